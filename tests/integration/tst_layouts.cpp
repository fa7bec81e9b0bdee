// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_form_area.h"
#include "core/ui/kirv_layout_catalog.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_ui_loader.h"
#include "tests/support/kirv_due_work.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFormLayout>
#include <QIcon>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QVBoxLayout>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>

namespace {

QByteArray builtIn(const QString &name)
{
    QFile file(QStringLiteral(":/kirv/layouts/%1.ui").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The layout as it comes with the program, with \a before replaced.
QByteArray changed(const QString &name, const QByteArray &before, const QByteArray &after)
{
    const QByteArray xml = builtIn(name);
    return xml.contains(before) ? QByteArray(xml).replace(before, after) : QByteArray("nothing to replace");
}

bool takesTab(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy();
}

/// The names of the widgets that Tab reaches, from \a first on; those that Qt adds of itself have none.
QStringList tabOrder(QWidget *first)
{
    QStringList names;
    QWidget *widget = first;
    do {
        if (takesTab(widget) && !widget->objectName().startsWith(QLatin1String("qt_")))
            names.append(widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != first);
    return names;
}

QStringList captions(const QWidget *top)
{
    QStringList texts;
    const QList<QWidget *> widgets = top->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts += label->buddy() ? label->text() : QString();
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts += button->text();
        else if (const auto *bar = qobject_cast<const QTabBar *>(widget))
            for (int tab = 0; tab < bar->count(); ++tab)
                texts += bar->tabText(tab);
    }
    return texts;
}

QStringList mnemonics(const QWidget *top)
{
    QStringList keys;
    const QStringList texts = captions(top);
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty())
            keys += key;
    }
    return keys;
}

QString accessibleName(QWidget *widget)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    const auto labels = interface->relations(QAccessible::Label);
    if (!labels.isEmpty())
        return labels.first().first->text(QAccessible::Name);
    return interface->text(QAccessible::Name);
}

std::unique_ptr<QWidget> load(const QString &name)
{
    return std::unique_ptr<QWidget>(KirvUILoader::getInstance()->loadUI(name, QString()));
}

} // namespace

class tst_Layouts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void builtInLayoutHasWhatItsWindowNeeds_data();
    void builtInLayoutHasWhatItsWindowNeeds();
    void builtInLayoutNeedsNoCatalog();
    void builtInLayoutLeavesTheLookToTheDesktop_data();
    void builtInLayoutLeavesTheLookToTheDesktop();
    void pageFillsItsParent();
    void pageJoinsTheLayoutOfItsParent();
    void dialogIsAWindowWithoutOwner_data();
    void dialogIsAWindowWithoutOwner();
    void unknownNameGivesAnEmptyWindow();
    void insertedWidgetFillsItsPlaceholder();
    void insertingIntoNothingDoesNothing();
    void insertingTwiceKeepsBothWidgets();
    void insertedControlsStandInTheTabOrderWhereTheyAreSeen();
    void insertedAvatarPickerStandsInTheTabOrderWhereItIsSeen();
    void overrideIsUsed();
    void overrideMayLackWhatIsOptional_data();
    void overrideMayLackWhatIsOptional();
    void absentOverrideIsNotReported();
    void brokenOverrideIsReportedAndTheBuiltInLayoutUsed_data();
    void brokenOverrideIsReportedAndTheBuiltInLayoutUsed();
    void brokenOverrideIsReportedOncePerBuild();
    void brokenOverrideLeavesNothingInTheParent();
    void tabOrderFollowsTheEye_data();
    void tabOrderFollowsTheEye();
    void mnemonicsDoNotClash_data();
    void mnemonicsDoNotClash();
    void everyFocusableWidgetHasNames_data();
    void everyFocusableWidgetHasNames();
    void layoutMirrorsForRightToLeftLanguages();
    void manyFieldsScrollInsteadOfGrowingTheWindow();
    void scrollBarGoesWhenTheFormFitsWithoutIt();
    void scrollBarStaysWhenTheFormNeedsMoreThanForItsWidth();
    void labelsOfTheFieldsLineUpWithThoseOfTheWindow();
    void fallbackIconsCanBePainted();
    void richTextLoadsNothing_data();
    void richTextLoadsNothing();

private:
    void nameEveryLayout();
};

void tst_Layouts::nameEveryLayout()
{
    QTest::addColumn<QString>("name");
    const QStringList names = KirvLayoutCatalog::names();
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Layouts::builtInLayoutHasWhatItsWindowNeeds_data()
{
    nameEveryLayout();
}

void tst_Layouts::builtInLayoutHasWhatItsWindowNeeds()
{
    QFETCH(QString, name);
    KirvLayoutCatalog catalog;
    QSignalSpy rejected(&catalog, &KirvLayoutCatalog::overrideRejected);
    const std::unique_ptr<QWidget> top(catalog.build(name, nullptr));
    QVERIFY(top);
    QCOMPARE(KirvLayoutCatalog::missingIn(name, top.get()), QStringList());
    QCOMPARE(rejected.count(), 0);
}

void tst_Layouts::builtInLayoutNeedsNoCatalog()
{
    QVERIFY(!KirvLayoutCatalog::instance());
    QVERIFY(load(QStringLiteral("AddAccount"))->findChild<QLineEdit *>(QStringLiteral("AddAccount_UsernameEdit")));
}

void tst_Layouts::builtInLayoutLeavesTheLookToTheDesktop_data()
{
    nameEveryLayout();
}

void tst_Layouts::builtInLayoutLeavesTheLookToTheDesktop()
{
    QFETCH(QString, name);
    const QByteArray xml = builtIn(name);
    QVERIFY(!xml.isEmpty());
    for (const char *property : { "\"styleSheet\"", "\"palette\"", "\"font\"" })
        QVERIFY2(!xml.contains(property), property);
}

void tst_Layouts::pageFillsItsParent()
{
    QWidget parent;
    QWidget *page = KirvUILoader::getInstance()->loadUI(QStringLiteral("Accounts"), &parent, QString());
    QCOMPARE(page->parentWidget(), &parent);
    parent.resize(700, 500);
    parent.show();
    QVERIFY(page->isVisible());
    QCOMPARE(page->geometry(), QRect(0, 0, 700, 500));
    parent.resize(800, 600);
    KIRV_TRY_COMPARE(page->geometry(), QRect(0, 0, 800, 600));
}

void tst_Layouts::pageJoinsTheLayoutOfItsParent()
{
    QWidget parent;
    auto *layout = new QVBoxLayout(&parent);
    layout->addWidget(new QLabel);
    QWidget *page = KirvUILoader::getInstance()->loadUI(QStringLiteral("Accounts"), &parent, QString());
    QCOMPARE(parent.layout(), layout);
    QCOMPARE(layout->indexOf(page), 1);
}

void tst_Layouts::dialogIsAWindowWithoutOwner_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("AddAccount") << "AddAccount";
    QTest::newRow("EditAccount") << "EditAccount";
}

void tst_Layouts::dialogIsAWindowWithoutOwner()
{
    QFETCH(QString, name);
    const std::unique_ptr<QWidget> top = load(name);
    QVERIFY(qobject_cast<QDialog *>(top.get()));
    QVERIFY(top->isWindow());
    QVERIFY(!top->parent());
    QVERIFY(!top->isVisible());
}

void tst_Layouts::unknownNameGivesAnEmptyWindow()
{
    QTest::ignoreMessage(QtWarningMsg, "There is no layout named \"Nothing\"");
    const std::unique_ptr<QWidget> dialog = load(QStringLiteral("Nothing"));
    QVERIFY(qobject_cast<QDialog *>(dialog.get()));
    QVERIFY(dialog->findChildren<QWidget *>().isEmpty());

    QWidget parent;
    QTest::ignoreMessage(QtWarningMsg, "There is no layout named \"../Accounts\"");
    QWidget *page = KirvUILoader::getInstance()->loadUI(QStringLiteral("../Accounts"), &parent, QString());
    QCOMPARE(page->parentWidget(), &parent);
    QVERIFY(page->findChildren<QWidget *>().isEmpty());
}

void tst_Layouts::insertedWidgetFillsItsPlaceholder()
{
    QWidget placeholder;
    placeholder.resize(64, 64);
    auto *widget = new QWidget;
    KirvUILoader::insertWidget(&placeholder, widget);
    QCOMPARE(widget->parentWidget(), &placeholder);
    placeholder.show();
    QCOMPARE(widget->geometry(), placeholder.rect());
}

void tst_Layouts::insertingIntoNothingDoesNothing()
{
    QWidget widget;
    auto *child = new QWidget(&widget);
    KirvUILoader::insertWidget(nullptr, nullptr);
    KirvUILoader::insertWidget(nullptr, &widget);
    KirvUILoader::insertWidget(&widget, nullptr);
    KirvUILoader::insertWidget(&widget, &widget);
    KirvUILoader::insertWidget(child, &widget);
    QVERIFY(!widget.parent());
    QVERIFY(!widget.layout());
    QVERIFY(!child->layout());
}

void tst_Layouts::insertingTwiceKeepsBothWidgets()
{
    QWidget placeholder;
    auto *first = new QWidget;
    auto *second = new QWidget;
    KirvUILoader::insertWidget(&placeholder, first);
    KirvUILoader::insertWidget(&placeholder, second);
    KirvUILoader::insertWidget(&placeholder, second);
    QCOMPARE(placeholder.layout()->count(), 2);
    QCOMPARE(placeholder.layout()->indexOf(first), 0);
    QCOMPARE(placeholder.layout()->indexOf(second), 1);
}

void tst_Layouts::insertedControlsStandInTheTabOrderWhereTheyAreSeen()
{
    const std::unique_ptr<QWidget> window = load(QStringLiteral("AddAccount"));
    auto *form =
        qobject_cast<QFormLayout *>(window->findChild<QWidget *>(QStringLiteral("AddAccount_LoginFrame"))->layout());
    QVERIFY(form);
    const QList<KirvField> fields { KirvField::textEdit("Server", "server", QString(), QString()),
                                    KirvField::number("Port", "port", 1, 1, 9, QString()) };
    auto *widget = new KirvFieldWidget(fields, nullptr, KirvFieldWidget::LabelsBeside);
    form->addRow(widget);
    window->show();
    const QStringList expected { "AddAccount_Configuration", "KirvField_server", "KirvField_port",
                                 "AddAccount_ButtonFrame_Save", "AddAccount_ButtonFrame_Cancel" };
    auto *combo = window->findChild<QWidget *>(QStringLiteral("AddAccount_Configuration"));
    QCOMPARE(tabOrder(combo).mid(0, 5), expected);

    widget->fillWithFields(fields);
    QCOMPARE(tabOrder(combo).mid(0, 5), expected);
}

void tst_Layouts::insertedAvatarPickerStandsInTheTabOrderWhereItIsSeen()
{
    const std::unique_ptr<QWidget> window = load("EditAccount");
    auto *picker = new KirvAvatarQuickSetWidget(window.get());
    KirvUILoader::insertWidget(window->findChild<QWidget *>("EditAccount_AvatarPlacement"), picker);
    window->show();
    const QStringList order = tabOrder(window->findChild<QWidget *>("KirvAvatar_Button"));
    QCOMPARE(order.value(1), QStringLiteral("EditAccount_Alias"));
    QWidget *before = window->findChild<QWidget *>("KirvAvatar_Button")->previousInFocusChain();
    while (!takesTab(before))
        before = before->previousInFocusChain();
    QVERIFY2(qobject_cast<QTabBar *>(before), qPrintable(before->objectName()));
}

void tst_Layouts::overrideIsUsed()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("AddAccount.ui")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(changed("AddAccount", "<string>Add Account</string>", "<string>My Own</string>"));
    file.close();

    KirvLayoutCatalog catalog;
    QSignalSpy rejected(&catalog, &KirvLayoutCatalog::overrideRejected);
    catalog.setOverrideFolder(folder.path());
    QCOMPARE(load(QStringLiteral("AddAccount"))->windowTitle(), QStringLiteral("My Own"));
    QCOMPARE(load(QStringLiteral("EditAccount"))->windowTitle(), QStringLiteral("Edit Account"));
    QCOMPARE(rejected.count(), 0);

    catalog.setOverrideFolder(QString());
    QCOMPARE(load(QStringLiteral("AddAccount"))->windowTitle(), QStringLiteral("Add Account"));
}

void tst_Layouts::overrideMayLackWhatIsOptional_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("child");
    QTest::newRow("main account") << "Accounts"
                                  << "Accounts_MainAccount";
    QTest::newRow("register") << "Accounts"
                              << "Accounts_RegisterButton";
    QTest::newRow("directory controls") << "EditAccount"
                                        << "EditAccount_PubDirControls";
    QTest::newRow("directory status") << "EditAccount"
                                      << "EditAccount_PubDirStatus";
    QTest::newRow("fetch") << "EditAccount"
                           << "EditAccount_PubDirFetch";
    QTest::newRow("delete") << "EditAccount"
                            << "EditAccount_PubDirDelete";
}

void tst_Layouts::overrideMayLackWhatIsOptional()
{
    QFETCH(QString, name);
    QFETCH(QString, child);
    const std::unique_ptr<QWidget> top(KirvLayoutCatalog::buildBuiltIn(name, nullptr));
    auto *widget = top->findChild<QWidget *>(child);
    QVERIFY(widget);
    delete widget;
    QCOMPARE(KirvLayoutCatalog::missingIn(name, top.get()), QStringList());
}

void tst_Layouts::absentOverrideIsNotReported()
{
    QTemporaryDir folder;
    KirvLayoutCatalog catalog;
    QSignalSpy rejected(&catalog, &KirvLayoutCatalog::overrideRejected);
    for (const QString &path : { folder.path(), folder.filePath("absent"), QStringLiteral("\n/\"") }) {
        catalog.setOverrideFolder(path);
        QVERIFY(load(QStringLiteral("AddAccount")));
    }
    QCOMPARE(rejected.count(), 0);
}

void tst_Layouts::brokenOverrideIsReportedAndTheBuiltInLayoutUsed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");

    const QByteArray accounts = builtIn("Accounts");
    QTest::newRow("empty") << "Accounts" << QByteArray() << "empty";
    QTest::newRow("cut off") << "Accounts" << accounts.left(accounts.size() / 2) << "Line ";
    QTest::newRow("malformed") << "Accounts" << QByteArray("<ui version=\"4.0\"><widget></ui>") << "Line 1";
    QTest::newRow("text") << "Accounts" << QByteArray("hello") << "Line 1";
    QTest::newRow("picture") << "Accounts" << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << "Line 1";
    QTest::newRow("foreign") << "Accounts" << QByteArray("<svg width=\"1\"/>") << "not a window layout";
    QTest::newRow("older format") << "Accounts" << QByteArray("<ui version=\"3.3\"><class>A</class></ui>")
                                  << "not a window layout";
    QTest::newRow("no window") << "Accounts" << QByteArray("<ui version=\"4.0\"/>") << "not a window layout";
    QTest::newRow("nested without end") << "Accounts"
                                        << QByteArray("<ui version=\"4.0\">") + QByteArray("<widget>").repeated(50000)
                                        << "nested too deeply";
    QTest::newRow("unknown class") << "Accounts" << changed("Accounts", "\"QTreeWidget\"", "\"OtherList\"")
                                   << "unknown class OtherList";
    QTest::newRow("unknown layout class")
        << "Accounts" << changed("Accounts", "\"QVBoxLayout\"", "\"OtherLayout\"") << "unknown class OtherLayout";
    QTest::newRow("missing child") << "Accounts" << changed("Accounts", "\"Accounts_List\"", "\"Other\"")
                                   << "no QTreeWidget named \"Accounts_List\"";
    QTest::newRow("wrong class") << "Accounts" << changed("Accounts", "\"QTreeWidget\"", "\"QListView\"")
                                 << "\"Accounts_List\" is a QListView, but must be a QTreeWidget";
    QTest::newRow("wrong class of an optional child")
        << "Accounts" << changed("Accounts", "\"QComboBox\"", "\"QSpinBox\"") << "must be a QComboBox";
    QTest::newRow("layout of another window")
        << "Accounts" << builtIn("AddAccount") << "no QToolButton named \"Accounts_AddButton\"";
    QTest::newRow("no dialog") << "AddAccount" << changed("AddAccount", "\"QDialog\"", "\"QWidget\"")
                               << "The window is a QWidget, but must be a QDialog";
    QTest::newRow("add without Save") << "AddAccount"
                                      << changed("AddAccount", "QDialogButtonBox::Cancel|QDialogButtonBox::Save",
                                                 "QDialogButtonBox::Cancel")
                                      << "no standard button Save";
    QTest::newRow("edit without Cancel") << "EditAccount"
                                         << changed("EditAccount", "QDialogButtonBox::Cancel|QDialogButtonBox::Save",
                                                    "QDialogButtonBox::Save")
                                         << "no standard button Cancel";
    QTest::newRow("edit with plain text edit")
        << "EditAccount" << changed("EditAccount", "\"QTextEdit\"", "\"QPlainTextEdit\"") << "must be a QTextEdit";
    QByteArray oneTab = builtIn("EditAccount");
    const int second = int(oneTab.indexOf("     <widget class=\"QWidget\" name=\"EditAccount_DirectoryTab\">"));
    const int end = int(oneTab.indexOf("\n     </widget>\n", second));
    QTest::newRow("edit with one tab") << "EditAccount" << oneTab.remove(second, end - second + 16) << "two tabs";
}

void tst_Layouts::brokenOverrideIsReportedAndTheBuiltInLayoutUsed()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    const QString path = folder.filePath(name + ".ui");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();

    KirvLayoutCatalog catalog;
    QSignalSpy rejected(&catalog, &KirvLayoutCatalog::overrideRejected);
    catalog.setOverrideFolder(folder.path());
    const std::unique_ptr<QWidget> top = load(name);
    QCOMPARE(KirvLayoutCatalog::missingIn(name, top.get()), QStringList());
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(rejected.first().at(0).toString(), name);
    const QString text = rejected.first().at(1).toString();
    QVERIFY2(text.contains(QDir::toNativeSeparators(path)), qPrintable(text));
    QVERIFY2(text.contains(reason), qPrintable(text));
}

void tst_Layouts::brokenOverrideIsReportedOncePerBuild()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("AddAccount.ui");
    KirvLayoutCatalog catalog;
    QSignalSpy rejected(&catalog, &KirvLayoutCatalog::overrideRejected);
    catalog.setOverrideFolder(folder.path());

    const auto reasonGiven = [&rejected] { return rejected.isEmpty() ? QString() : rejected.last().at(1).toString(); };
    QVERIFY(QDir().mkdir(path));
    QVERIFY(load("AddAccount"));
    QCOMPARE(rejected.count(), 1);
    QVERIFY2(reasonGiven().contains("not an ordinary file"), qPrintable(reasonGiven()));
    QVERIFY(QDir().rmdir(path));

    QCOMPARE(::mkfifo(qPrintable(path), 0600), 0); // opening it would wait for ever
    QVERIFY(load("AddAccount"));
    QCOMPARE(rejected.count(), 2);
    QVERIFY2(reasonGiven().contains("not an ordinary file"), qPrintable(reasonGiven()));
    QVERIFY(QFile::remove(path));

    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(100 * 1024 * 1024));
    QVERIFY(load("AddAccount"));
    QCOMPARE(rejected.count(), 3);
    QVERIFY2(reasonGiven().contains("larger than 1024 kB"), qPrintable(reasonGiven()));

    QVERIFY(file.resize(0));
    QVERIFY(file.setPermissions(QFileDevice::Permissions()));
    QVERIFY(load("AddAccount"));
    QCOMPARE(rejected.count(), 4);
    const bool mayReadAll = ::geteuid() == 0;
    QVERIFY2(reasonGiven().contains(mayReadAll ? "empty" : "cannot be read"), qPrintable(reasonGiven()));
}

void tst_Layouts::brokenOverrideLeavesNothingInTheParent()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("Accounts.ui"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(changed("Accounts", "\"Accounts_List\"", "\"Other\""));
    file.close();
    KirvLayoutCatalog catalog;
    catalog.setOverrideFolder(folder.path());
    QWidget parent;
    QWidget *page = KirvUILoader::getInstance()->loadUI("Accounts", &parent, QString());
    const QList<QWidget *> children = parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(children, QList<QWidget *> { page });
}

void tst_Layouts::tabOrderFollowsTheEye_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("Accounts") << "Accounts" << 0 << QStringList { "Accounts_List",           "Accounts_AddButton",
                                                                  "Accounts_EditButton",     "Accounts_RemoveButton",
                                                                  "Accounts_RegisterButton", "Accounts_MainAccount" };
    QTest::newRow("AddAccount") << "AddAccount" << 0 << QStringList { "AddAccount_UsernameEdit",
                                                                      "AddAccount_PasswordEdit",
                                                                      "AddAccount_RememberPasswordCheckbox",
                                                                      "AddAccount_PresenceCombo",
                                                                      "AddAccount_Configuration",
                                                                      "AddAccount_ButtonFrame_Save",
                                                                      "AddAccount_ButtonFrame_Cancel" };
    QTest::newRow("EditAccount, account") << "EditAccount" << 0
                                          << QStringList { "EditAccount_Alias",
                                                           "EditAccount_Password",
                                                           "EditAccount_RememberPassword",
                                                           "EditAccount_RememberPresence",
                                                           "EditAccount_RememberDescription",
                                                           "EditAccount_PresenceCombo",
                                                           "EditAccount_DescriptionEdit",
                                                           "EditAccount_FrameButtons_Save",
                                                           "EditAccount_FrameButtons_Cancel" };
    QTest::newRow("EditAccount, directory")
        << "EditAccount" << 1
        << QStringList { "EditAccount_PubDirFetch", "EditAccount_PubDirDelete", "EditAccount_FrameButtons_Save",
                         "EditAccount_FrameButtons_Cancel" };
}

void tst_Layouts::tabOrderFollowsTheEye()
{
    QFETCH(QString, name);
    QFETCH(int, tab);
    QFETCH(QStringList, expected);
    const std::unique_ptr<QWidget> top = load(name);
    if (auto *tabs = top->findChild<QTabWidget *>())
        tabs->setCurrentIndex(tab);
    top->show();
    QCOMPARE(tabOrder(top->findChild<QWidget *>(expected.first())), expected);
}

void tst_Layouts::mnemonicsDoNotClash_data()
{
    nameEveryLayout();
}

void tst_Layouts::mnemonicsDoNotClash()
{
    QFETCH(QString, name);
    const std::unique_ptr<QWidget> top = load(name);
    if (name == QLatin1String("EditAccount")) {
        const QList<KirvField> fields { KirvField::textEdit("Alias", "a", QString(), QString()),
                                        KirvField::checkBox("Password & Save", "b", true, QString()) };
        for (const char *place : { "EditAccount_AccSettings", "EditAccount_PubDirResults" })
            KirvUILoader::insertWidget(top->findChild<QWidget *>(place),
                                       new KirvFieldWidget(fields, nullptr, KirvFieldWidget::LabelsBeside));
    }
    top->show();
    if (auto *tabs = top->findChild<QTabWidget *>())
        tabs->setCurrentIndex(1);
    QStringList keys = mnemonics(top.get());
    QVERIFY(keys.size() >= 5);
    keys.sort();
    QStringList unique = keys;
    unique.removeDuplicates();
    QCOMPARE(keys, unique);
}

void tst_Layouts::everyFocusableWidgetHasNames_data()
{
    nameEveryLayout();
}

void tst_Layouts::everyFocusableWidgetHasNames()
{
    QFETCH(QString, name);
    const std::unique_ptr<QWidget> top = load(name);
    top->show();
    QTabWidget *tabs = top->findChild<QTabWidget *>();
    int seen = 0;
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        const QList<QWidget *> widgets = top->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (!takesTab(widget))
                continue;
            ++seen;
            QVERIFY2(!widget->objectName().isEmpty(), widget->metaObject()->className());
            if (!qobject_cast<QTabBar *>(widget)) // the tabs of a tab bar have the names, not the bar
                QVERIFY2(!accessibleName(widget).isEmpty(), qPrintable(widget->objectName()));
        }
    }
    QVERIFY(seen >= 6);
}

void tst_Layouts::layoutMirrorsForRightToLeftLanguages()
{
    const std::unique_ptr<QWidget> top = load("AddAccount");
    top->setLayoutDirection(Qt::RightToLeft);
    top->show();
    const QPoint origin;
    const auto *edit = top->findChild<QWidget *>("AddAccount_UsernameEdit");
    const auto *label = top->findChild<QWidget *>("AddAccount_UsernameLabel");
    QVERIFY(label->mapTo(top.get(), origin).x() > edit->mapTo(top.get(), origin).x());
}

void tst_Layouts::scrollBarGoesWhenTheFormFitsWithoutIt()
{
    KirvFormArea area;
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    auto *text = new QLabel(QStringLiteral("word ").repeated(60));
    text->setWordWrap(true);
    column->addWidget(text);
    area.setWidget(content);
    area.resize(300, 40);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area, kirvPatience));
    KIRV_TRY(area.verticalScrollBar()->isVisible());
    const int needed = content->heightForWidth(300);
    QVERIFY(content->heightForWidth(content->width()) > needed); // with the bar it would not fit
    area.resize(300, needed);
    KIRV_TRY(!area.verticalScrollBar()->isVisible());
    KIRV_TRY_COMPARE(content->width(), 300);
}

/// A bar that came and went without end would keep the processor busy.
void tst_Layouts::scrollBarStaysWhenTheFormNeedsMoreThanForItsWidth()
{
    struct Content : QWidget {
        QSize minimumSizeHint() const override { return QSize(100, 60); }
        int heightForWidth(int) const override { return 40; }
    };
    KirvFormArea area;
    auto *content = new Content;
    QSizePolicy policy;
    policy.setHeightForWidth(true);
    content->setSizePolicy(policy);
    area.setWidget(content);
    area.resize(300, 50);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area, kirvPatience));
    KIRV_TRY(area.verticalScrollBar()->isVisible());
    int times = 0;
    connect(area.verticalScrollBar(), &QScrollBar::rangeChanged, &area, [&times] { ++times; });
    kirvRunDueWork(20);
    QCOMPARE(times, 0);
    QVERIFY(area.verticalScrollBar()->isVisible());
}

void tst_Layouts::manyFieldsScrollInsteadOfGrowingTheWindow()
{
    const std::unique_ptr<QWidget> top = load("EditAccount");
    QList<KirvField> fields;
    for (int i = 0; i < 200; ++i)
        fields += KirvField::textEdit(QStringLiteral("Field %1").arg(i), QString::number(i), QString(), QString());
    KirvUILoader::insertWidget(top->findChild<QWidget *>("EditAccount_AccSettings"),
                               new KirvFieldWidget(fields, nullptr, KirvFieldWidget::LabelsBeside));
    top->show();
    const QSize screen = top->screen()->availableSize();
    QVERIFY(top->height() < screen.height());
    QVERIFY(top->width() < screen.width());
    auto *last = top->findChild<QLineEdit *>("KirvField_199");
    QVERIFY(!top->rect().contains(last->mapTo(top.get(), last->rect().center())));
    top->activateWindow();
    auto *next = top->findChild<QWidget *>("EditAccount_RememberPresence"); // below the fields
    next->setFocus();
    QTest::keyClick(next, Qt::Key_Backtab);
    KIRV_TRY_COMPARE(QApplication::focusWidget(), last);
    KIRV_TRY(top->rect().contains(last->mapTo(top.get(), last->rect().center())));
}

void tst_Layouts::labelsOfTheFieldsLineUpWithThoseOfTheWindow()
{
    const std::unique_ptr<QWidget> top = load("AddAccount");
    auto *form = qobject_cast<QFormLayout *>(top->findChild<QWidget *>("AddAccount_LoginFrame")->layout());
    const auto fields = QList<KirvField> { KirvField::textEdit("A label of some length", "x", QString(), QString()) };
    form->addRow(new KirvFieldWidget(fields, nullptr, KirvFieldWidget::LabelsBeside));
    top->show();
    const auto left = [&top](const char *name) {
        const auto *widget = top->findChild<QWidget *>(name);
        return widget->mapTo(top.get(), QPoint()).x();
    };
    KIRV_TRY_COMPARE(left("KirvField_x"), left("AddAccount_UsernameEdit"));
}

void tst_Layouts::fallbackIconsCanBePainted()
{
    const QDir folder(":/kirv/icons");
    const QStringList files = folder.entryList();
    QVERIFY(files.size() >= 5);
    for (const QString &file : files) {
        const QImage image = QIcon(folder.filePath(file)).pixmap(24, 24).toImage();
        QVERIFY2(!image.isNull(), qPrintable(file));
        int painted = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                painted += qAlpha(image.pixel(x, y)) > 64;
        QVERIFY2(painted > 24, qPrintable(file));
    }
}

void tst_Layouts::richTextLoadsNothing_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("source");
    for (const char *className : { "QTextEdit", "QTextBrowser" }) {
        QTest::addRow("%s, address", className) << className << "file://%1";
        QTest::addRow("%s, path", className) << className << "%1";
    }
}

void tst_Layouts::richTextLoadsNothing()
{
    QFETCH(QString, className);
    QFETCH(QString, source);
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("picture.png"));
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(picture));
    QFile file(folder.filePath(QStringLiteral("EditAccount.ui")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(changed("EditAccount", "\"QTextEdit\"", "\"" + className.toLatin1() + "\""));
    file.close();
    KirvLayoutCatalog catalog;
    catalog.setOverrideFolder(folder.path());
    const std::unique_ptr<QWidget> top(catalog.build(QStringLiteral("EditAccount"), nullptr));
    auto *view = top->findChild<QTextEdit *>(QStringLiteral("EditAccount_DescriptionEdit"));
    QVERIFY(view);
    QCOMPARE(view->inherits("QTextBrowser"), className == QLatin1String("QTextBrowser"));

    view->setHtml(QStringLiteral("<img src=\"%1\">").arg(source.arg(picture)));
    QVERIFY2(view->document()->size().height() < 100, "The picture was loaded.");
    view->resize(300, 300);
    const QColor drawn = view->grab().toImage().pixelColor(30, 30);
    QVERIFY2(drawn != QColor(Qt::red), "The picture was loaded.");
}

QTEST_MAIN(tst_Layouts)
#include "tst_layouts.moc"

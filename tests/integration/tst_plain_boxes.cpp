// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_account_manager.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTextDocument>
#include <QTreeWidget>
#include <QtTest>
#include <sys/stat.h>

/// Boxes and labels show the names of accounts as they are: nothing in them is markup, and what turns a text around is
/// made visible.
class tst_PlainBoxes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void addingAnAccountThatExists_data() { addNames(); }
    void addingAnAccountThatExists();
    void refusedAccount_data() { addNames(); }
    void refusedAccount();
    void removalQuestion_data() { addNames(); }
    void removalQuestion();
    void disableQuestion_data() { addNames(); }
    void disableQuestion();
    void editWindow_data() { addNames(); }
    void editWindow();
    void directoryDeletionQuestion_data() { addNames(); }
    void directoryDeletionQuestion();
    void passwordQuestion_data() { addNames(); }
    void passwordQuestion();
    void messageBar_data() { addNames(); }
    void messageBar();
    void listOfThePage_data() { addNames(); }
    void listOfThePage();
    void informativeText_data() { addNames(); }
    void informativeText();
    void filesThatMarkupNamesAreNotRead();
    void longNamesLeaveTheSentencesWhole();

private:
    static void addNames();
    QMessageBox *box() const;
    void checkLabels() const;

    std::unique_ptr<KirvClientWindows> windows;
};

namespace {

/// \a name as it must be shown.
QString visible(QString name)
{
    return name.replace(QChar(0x202E), QStringLiteral("[U+202E]"));
}

/// Whether a label shows \a text.
bool isShown(const QString &text)
{
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [&](QWidget *widget) {
        const auto *label = qobject_cast<QLabel *>(widget);
        return label && label->isVisible() && label->text().contains(text);
    });
}

} // namespace

void tst_PlainBoxes::addNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << "<b>x</b>";
    QTest::newRow("link") << "<a href=\"http://localhost/\">x</a>";
    QTest::newRow("turned") << QStringLiteral("x\u202Etxt.exe");
    QTest::newRow("both") << QStringLiteral("<i>x</i>\u202Ey");
}

void tst_PlainBoxes::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY2(windows->isReady(), qPrintable(windows->client->errorString()));
}

void tst_PlainBoxes::cleanup()
{
    KirvClientWindows::closeBoxes();
    windows.reset();
}

QMessageBox *tst_PlainBoxes::box() const
{
    const QList<QMessageBox *> boxes = KirvClientWindows::boxes();
    return boxes.size() == 1 ? boxes.first() : nullptr;
}

/// No label that is visible interprets its text or is turned around by it.
void tst_PlainBoxes::checkLabels() const
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        const auto *label = qobject_cast<QLabel *>(widget);
        if (!label || !label->isVisible())
            continue;
        const bool isPlain = label->textFormat() == Qt::PlainText
            || (label->textFormat() == Qt::AutoText && !Qt::mightBeRichText(label->text()));
        QVERIFY2(isPlain, qPrintable(label->objectName() + QLatin1String(": ") + label->text()));
        QVERIFY2(!label->text().contains(QChar(0x202E)), qPrintable(label->objectName()));
    }
}

void tst_PlainBoxes::addingAnAccountThatExists()
{
    QFETCH(QString, name);
    QVERIFY(windows->addAccount(name));
    int shown = 0;
    QVERIFY(!windows->addInWindow(name, [&](QMessageBox *box) {
        ++shown;
        QVERIFY2(box->text().contains(QLatin1Char('\'') + visible(name)), qPrintable(box->text()));
        QCOMPARE(box->textFormat(), Qt::PlainText);
        checkLabels();
    }));
    QCOMPARE(shown, 1);
}

/// The reason is put into the box while it is shown.
void tst_PlainBoxes::refusedAccount()
{
    QFETCH(QString, name);
    int shown = 0;
    const StoreRefusal insertion(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"));
    QVERIFY(!windows->addInWindow(name, [&](QMessageBox *box) {
        ++shown;
        windows->settle();
        QVERIFY2(box->text().contains(QLatin1String("refused by the test")), qPrintable(box->text()));
        checkLabels();
    }));
    QCOMPARE(shown, 1);
}

void tst_PlainBoxes::removalQuestion()
{
    QFETCH(QString, name);
    QVERIFY(windows->addAccount(name));
    windows->select(name);
    windows->pageButton("Accounts_RemoveButton")->click();
    QVERIFY(box());
    QVERIFY2(box()->text().contains(visible(name)), qPrintable(box()->text()));
    checkLabels();
}

void tst_PlainBoxes::disableQuestion()
{
    QFETCH(QString, name);
    QVERIFY(windows->addAccount(name));
    KIRV_TRY(windows->account(name)->isOnline());
    windows->row(name)->setCheckState(0, Qt::Unchecked);
    QVERIFY(box());
    QVERIFY2(box()->text().contains(visible(name)), qPrintable(box()->text()));
    checkLabels();
}

void tst_PlainBoxes::editWindow()
{
    QFETCH(QString, name);
    QVERIFY(windows->addAccount(name));
    KirvLayoutDialog *window = windows->edit(name);
    QCOMPARE(KirvClientWindows::child<QLabel>(window, "EditAccount_Identifier")->text(),
             visible(name) + QStringLiteral(" (Fake)"));
    checkLabels();
    KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Other"));
    const StoreRefusal refusal(windows->profileFolder());
    KirvClientWindows::save(window);
    QVERIFY(box());
    checkLabels();
    KirvClientWindows::cancel(window);
}

void tst_PlainBoxes::directoryDeletionQuestion()
{
    QFETCH(QString, name);
    QVERIFY(windows->addAccount(name));
    KIRV_TRY(windows->account(name)->isOnline());
    KirvLayoutDialog *window = windows->edit(name);
    KirvClientWindows::child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(1);
    windows->settle();
    KirvClientWindows::child<QAbstractButton>(window, "EditAccount_PubDirDelete")->click();
    QVERIFY(box());
    QVERIFY2(box()->text().contains(visible(name)), qPrintable(box()->text()));
    checkLabels();
}

void tst_PlainBoxes::passwordQuestion()
{
    QFETCH(QString, name);
    windows->protocol->server->needsPassword = true;
    KirvAccountManager::getInstance()->createAccount(name, name, QString(), false, windows->protocol,
                                                     windows->protocol->presences().first(), {});
    const auto question = [this] { return windows->client->window()->findChild<KirvPasswordDialog *>(); };
    KIRV_TRY(question() && question()->isVisible());
    QVERIFY(isShown(visible(name)));
    checkLabels();
}

void tst_PlainBoxes::messageBar()
{
    QFETCH(QString, name);
    QVERIFY(windows->addAccount(name));
    Q_EMIT windows->account(name)->noticeReceived(QStringLiteral("The server says ") + name);
    QCOMPARE(windows->messages().size(), 1);
    QVERIFY(isShown(QStringLiteral("The server says ") + visible(name)));
    checkLabels();
}

void tst_PlainBoxes::listOfThePage()
{
    QFETCH(QString, name);
    QVERIFY(windows->addAccount(name));
    const auto *delegate = qobject_cast<QStyledItemDelegate *>(windows->list()->itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(windows->row(name)->text(0), name);
    QCOMPARE(delegate->displayText(name, QLocale()), visible(name));
}

void tst_PlainBoxes::informativeText()
{
    QFETCH(QString, name);
    QMessageBox shown(QMessageBox::Information, QStringLiteral("Title"), name);
    shown.setInformativeText(name);
    shown.show();
    QCOMPARE(shown.text(), visible(name));
    QCOMPARE(shown.informativeText(), visible(name));
    checkLabels();
}

/// Reading a pipe would never end.
void tst_PlainBoxes::filesThatMarkupNamesAreNotRead()
{
    const QString pipe = windows->folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString name = QStringLiteral("<img src=\"%1\">").arg(pipe);
    QVERIFY(windows->addAccount(name));
    int shown = 0;
    QVERIFY(!windows->addInWindow(name, [&](QMessageBox *) { ++shown; }));
    QCOMPARE(shown, 1);
}

void tst_PlainBoxes::longNamesLeaveTheSentencesWhole()
{
    const QString name(20000, QLatin1Char('x'));
    QVERIFY(windows->addAccount(name));
    KIRV_TRY(windows->account(name)->isOnline());
    windows->select(name);
    windows->pageButton("Accounts_RemoveButton")->click();
    QVERIFY(box());
    QVERIFY2(box()->text().startsWith(QLatin1String("Do you want to remove account 'xxx"))
                 && box()->text().endsWith(QLatin1String("xxx' (Fake) and all related data?")),
             qPrintable(box()->text()));
    QVERIFY(box()->text().size() < 300);
}

QTEST_MAIN(tst_PlainBoxes)
#include "tst_plain_boxes.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_help.h"
#include "client/kirv_accounts_page_companion.h"
#include "client/kirv_certificate_question.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/moving/kirv_account_file.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>
#include <QtTest>
#include <algorithm>
#include <functional>

namespace {

using Windows = KirvClientWindows;
const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");

/// Presses \a key in the active window, as the keyboard does.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *window = popup ? popup : QApplication::activeWindow();
    QVERIFY(window);
    const QPointer<QWindow> handle(window->windowHandle()); // the key may close it
    QTest::keyPress(handle.data(), key, modifiers);
    if (handle)
        QTest::keyRelease(handle.data(), key, modifiers);
}

void type(const QString &text)
{
    QVERIFY(QApplication::activeWindow());
    for (const QChar character : text)
        QTest::keyClick(QApplication::activeWindow()->windowHandle(), character.toLatin1());
}

QString focused()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

/// Goes with Tab to the widget \a name; false when Tab does not lead there.
bool tabTo(const QString &name)
{
    for (int i = 0; i < 80 && focused() != name; ++i)
        press(Qt::Key_Tab);
    return focused() == name;
}

/// The same for a button of a message box, which has no name.
bool tabTo(const QWidget *button)
{
    for (int i = 0; i < 10 && QApplication::focusWidget() != button; ++i)
        press(Qt::Key_Tab);
    return QApplication::focusWidget() == button;
}

} // namespace

/// An account is added, edited and removed with the keyboard alone, and all that is in the windows can be used with it,
/// also where windows go from right to left.
class tst_KeyboardOnly : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void accountIsAdded_data() { addDirections(); }
    void accountIsAdded();
    void accountIsEdited_data() { addDirections(); }
    void accountIsEdited();
    void directoryEntryIsEdited_data() { addDirections(); }
    void directoryEntryIsEdited();
    void accountIsRemovedAndComesBack_data() { addDirections(); }
    void accountIsRemovedAndComesBack();
    void exportIsBegunOnThePageGeneral_data() { addDirections(); }
    void exportIsBegunOnThePageGeneral();
    void tabReachesEveryControl_data();
    void tabReachesEveryControl();

private:
    static void addDirections();
    /// Goes to that page of the window.
    void goToPage(const QString &title);
    /// Starts the client in the direction of the row, with the accounts.
    void start(const QStringList &ids);
    /// Goes to the row of the account in the list.
    void goToRow(const QString &id);
    void inAddWindow(const std::function<void()> &look);
    void openExportWindow();
    void openImportWindow();
    /// Opens the window of the row and waits until it is active.
    void openWindow(const QString &place);
    /// The active window but the main one; null when that is active.
    QDialog *dialog() const;

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_KeyboardOnly::addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void tst_KeyboardOnly::init()
{
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
}

void tst_KeyboardOnly::cleanup()
{
    windows.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_KeyboardOnly::start(const QStringList &ids)
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : ids)
        QVERIFY(windows->addAccount(id));
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
}

void tst_KeyboardOnly::goToRow(const QString &id)
{
    QVERIFY2(tabTo(QStringLiteral("Accounts_List")), qPrintable(focused()));
    press(Qt::Key_Home);
    for (int i = 0; i < 10 && windows->list()->currentItem()->text(2) != id; ++i)
        press(Qt::Key_Down);
    QCOMPARE(windows->list()->currentItem()->text(2), id);
}

QDialog *tst_KeyboardOnly::dialog() const
{
    return qobject_cast<QDialog *>(QApplication::activeWindow());
}

void tst_KeyboardOnly::accountIsAdded()
{
    start({});
    bool isAccepted = false;
    const auto fillIn = [](const QWidget *window) {
        KIRV_TRY_COMPARE(QApplication::activeWindow(), window);
        KIRV_TRY_COMPARE(focused(), QStringLiteral("AddAccount_UsernameEdit"));
        type(ann);
        QVERIFY(tabTo(QStringLiteral("AddAccount_PasswordEdit")));
        type(QStringLiteral("secret"));
        press(Qt::Key_Return);
    };
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *window) {
        const QPointer<KirvLayoutDialog> open(window);
        connect(window, &QDialog::accepted, this, [&isAccepted] { isAccepted = true; });
        fillIn(window);
        if (open && !isAccepted)
            open->reject(); // something has failed
    });
    press(Qt::Key_N, Qt::ControlModifier);
    Windows::settle();
    if (QApplication::activePopupWidget()) { // the menu of the protocols
        press(Qt::Key_Down);
        press(Qt::Key_Return);
    }
    KIRV_TRY(isAccepted);
    Windows::settle();
    QVERIFY(windows->account(ann));
    QCOMPARE(windows->rowIds(), QStringList(ann));
    QCOMPARE(windows->account(ann)->record().password, QStringLiteral("secret"));
}

void tst_KeyboardOnly::accountIsEdited()
{
    start({ ann, bob });
    goToRow(bob);
    press(Qt::Key_Return);
    KIRV_TRY(dialog());
    QVERIFY(tabTo(QStringLiteral("EditAccount_Alias")));
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("Robert"));
    QVERIFY2(tabTo(QStringLiteral("KirvField_server")), qPrintable(focused()));
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("example.org"));
    press(Qt::Key_Return);
    Windows::settle();
    QVERIFY(!dialog());
    QCOMPARE(windows->account(bob)->record().alias, QStringLiteral("Robert"));
    QCOMPARE(windows->account(bob)->record().settings.value(QStringLiteral("server")), QStringLiteral("example.org"));
    QCOMPARE(windows->account(ann)->record().alias, ann);
}

void tst_KeyboardOnly::directoryEntryIsEdited()
{
    start({ ann });
    goToRow(ann);
    press(Qt::Key_Return);
    KIRV_TRY(dialog());
    QVERIFY(tabTo(QStringLiteral("qt_tabwidget_tabbar")));
    press(QApplication::layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right);
    Windows::settle();
    QVERIFY2(tabTo(QStringLiteral("KirvField_town")), qPrintable(focused()));
    type(QStringLiteral("Verona"));
    press(Qt::Key_Return);
    Windows::settle();
    QVERIFY(!dialog());
    QVERIFY(windows->protocol->server->calls.contains(QStringLiteral("ann publish town")));
}

void tst_KeyboardOnly::accountIsRemovedAndComesBack()
{
    start({ ann, bob });
    goToRow(bob);
    const KirvWindowWatcher<QMessageBox> watcher([](QMessageBox *box) {
        const QPointer<QMessageBox> open(box);
        const bool isActive = QTest::qWaitFor([box] { return QApplication::activeWindow() == box; }, kirvPatience);
        if (isActive && tabTo(box->button(QMessageBox::Yes)))
            press(Qt::Key_Space);
        if (open && open->isVisible())
            open->reject(); // something has failed
    });
    press(Qt::Key_Delete);
    KIRV_TRY(!windows->account(bob));
    Windows::settle();
    QCOMPARE(windows->rowIds(), QStringList(ann));

    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
    QVERIFY(tabTo(QStringLiteral("Accounts_List")));
    press(Qt::Key_Z, Qt::ControlModifier);
    Windows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob }));
}

void tst_KeyboardOnly::goToPage(const QString &title)
{
    QVERIFY2(tabTo(QStringLiteral("Settings_Pages")), qPrintable(focused()));
    const auto *pages = Windows::child<QListWidget>(windows->client->window(), "Settings_Pages");
    press(Qt::Key_Home);
    for (int i = 0; i < 10 && pages->currentItem()->text() != title; ++i)
        press(Qt::Key_Down);
    QCOMPARE(pages->currentItem()->text(), title);
    Windows::settle();
}

void tst_KeyboardOnly::exportIsBegunOnThePageGeneral()
{
    start({ ann });
    goToPage(QStringLiteral("General"));
    QVERIFY2(tabTo(QStringLiteral("General_ExportButton")), qPrintable(focused()));
    press(Qt::Key_Space);
    KIRV_TRY(dialog());
    KIRV_TRY_COMPARE(focused(), QStringLiteral("ExportAccounts_List"));
    QVERIFY2(tabTo(QStringLiteral("ExportAccounts_All")), qPrintable(focused()));
    press(Qt::Key_Space); // no account is chosen any more
    QVERIFY(!dialog()->findChild<QPushButton *>("ExportAccounts_Export")->isEnabled());
    press(Qt::Key_Escape);
    KIRV_TRY(!dialog());
}

void tst_KeyboardOnly::tabReachesEveryControl_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("place");
    for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        for (const char *place :
             { "Accounts", "Plug-ins", "General", "add window", "edit window", "export window", "import window", "log",
               "log-in test", "certificate question", "password question", "report" })
            QTest::addRow("%s, %s", place, direction == Qt::LeftToRight ? "left to right" : "right to left")
                << direction << QString::fromLatin1(place);
    }
}

/// Each that is shown and enabled; what belongs to another one, as the text field of a box, has its keys there.
static QSet<QWidget *> controlsIn(const QWidget *window)
{
    QSet<QWidget *> controls;
    const auto all = window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const bool isControl = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget)
            || qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSpinBox *>(widget)
            || qobject_cast<QTextEdit *>(widget) || qobject_cast<QPlainTextEdit *>(widget)
            || qobject_cast<QAbstractItemView *>(widget);
        const bool isOfAnother = qobject_cast<QComboBox *>(widget->parentWidget())
            || qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) || qobject_cast<QHeaderView *>(widget)
            || qobject_cast<QTabBar *>(widget->parentWidget());
        if (isControl && !isOfAnother && widget->isVisible() && widget->isEnabled() && widget->window() == window)
            controls << widget;
    }
    return controls;
}

/// What has the focus on the way of \a key through the active window.
static QSet<QWidget *> reachedBy(Qt::Key key)
{
    QSet<QWidget *> reached;
    for (int i = 0; i < 150; ++i) {
        press(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        reached << QApplication::focusWidget();
    }
    return reached;
}

/// Tab leads to each control of the active window, there and back, and each is named to assistive technology.
static void checkControls()
{
    const QWidget *window = QApplication::activeWindow();
    const QSet<QWidget *> controls = controlsIn(window);
    QVERIFY2(controls.size() > 2, QByteArray::number(controls.size()).constData());
    QStringList wrong;
    const auto nameOf = [](const QWidget *widget) {
        return widget->objectName() + QLatin1Char('/') + QLatin1String(widget->metaObject()->className());
    };
    for (const Qt::Key key : { Qt::Key_Tab, Qt::Key_Backtab }) {
        const QSet<QWidget *> reached = reachedBy(key);
        for (const QWidget *missing : controls - reached)
            wrong << nameOf(missing) + QLatin1String(" is not reached");
    }
    for (QWidget *control : controls) {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
        if (!interface || interface->text(QAccessible::Name).trimmed().isEmpty())
            wrong << nameOf(control) + QLatin1String(" has no name");
    }
    QCOMPARE(QApplication::activeWindow(), window);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral(", "))));
}

/// Runs \a look in it, with a test of the log-in that is over.
void tst_KeyboardOnly::inAddWindow(const std::function<void()> &look)
{
    bool isRun = false;
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *window) {
        const QPointer<KirvLayoutDialog> open(window);
        KIRV_TRY_COMPARE(QApplication::activeWindow(), window);
        type(QStringLiteral("cleo"));
        auto *run = Windows::child<QPushButton>(window, "AddAccount_TestLogIn");
        run->click();
        const auto isOver = [&] { return windows->protocol->server->calls.contains(QStringLiteral("cleo log out")); };
        KIRV_TRY(isOver());
        Windows::child<QAbstractButton>(window, "AddAccount_Advanced")->setChecked(true);
        Windows::settle();
        look();
        isRun = true;
        if (open)
            open->reject();
    });
    Windows::child<QToolButton>(windows->client->window(), "Accounts_AddButton")->menu()->actions().first()->trigger();
    QVERIFY(isRun);
}

void tst_KeyboardOnly::openExportWindow()
{
    goToRow(bob);
    press(Qt::Key_Menu);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    const auto actions = menu->actions();
    const auto it = std::find_if(actions.begin(), actions.end(),
                                 [](const QAction *action) { return action->text().startsWith("E&xport"); });
    QVERIFY(it != actions.end());
    (*it)->trigger();
    menu->close();
}

void tst_KeyboardOnly::openImportWindow()
{
    KirvMovedAccounts moved;
    for (const char *id : { "cleo", "dan" }) {
        KirvMovedAccount account;
        account.record.key = { QString::fromLatin1(id), windows->protocol->name };
        moved.accounts << account;
    }
    QString problem;
    QFile file(windows->folder.filePath(QStringLiteral("accounts.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY2(file.write(KirvAccountFile::write(moved, QString(), &problem)) > 0, qPrintable(problem));
    file.close();
    windows->client->window()->findChild<KirvMovingWindows *>()->importFrom(file.fileName());
    const auto *list = Windows::child<QWidget>(windows->client->window(), "ImportAccounts_List");
    KIRV_TRY(list->isVisible());
}

void tst_KeyboardOnly::openWindow(const QString &place)
{
    auto *page = windows->client->accountsPage()->findChild<KirvAccountsPageCompanion *>();
    auto *help = windows->client->window()->findChild<KirvAccountHelp *>();
    KirvAccount *account = windows->account(bob);
    if (place == QLatin1String("edit window")) {
        goToRow(bob);
        press(Qt::Key_Return);
    } else if (place == QLatin1String("export window")) {
        openExportWindow();
    } else if (place == QLatin1String("import window")) {
        openImportWindow();
    } else if (place == QLatin1String("log")) {
        help->showLog(account);
    } else if (place == QLatin1String("report")) {
        help->showReport(account->key());
    } else if (place == QLatin1String("log-in test")) {
        help->testLogin(account);
        KIRV_TRY(windows->protocol->server->calls.contains(QStringLiteral("bob log out")));
    } else if (place == QLatin1String("password question")) {
        Q_EMIT page->passwordRequested(account);
    } else {
        windows->protocol->server->certificate.fingerprint = QByteArray(32, 'a');
        windows->protocol->server->certificate.problems = QStringList { "It is self-signed." };
        account->reconnect();
        KIRV_TRY(account->lastFailure().isFailure());
        Q_EMIT page->certificateRequested(account);
    }
    KIRV_TRY(dialog());
    Windows::settle();
}

void tst_KeyboardOnly::tabReachesEveryControl()
{
    QFETCH(QString, place);
    start({ ann, bob });
    if (place == QLatin1String("add window")) {
        inAddWindow(&checkControls);
        return;
    }
    if (QStringList { "Accounts", "Plug-ins", "General" }.contains(place))
        goToPage(place);
    else
        openWindow(place);
    checkControls();
}

QTEST_MAIN(tst_KeyboardOnly)
#include "tst_keyboard_only.moc"

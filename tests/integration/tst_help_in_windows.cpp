// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_log_window.h"
#include "client/kirv_event_delegate.h"
#include "client/kirv_login_test_dialog.h"
#include "client/kirv_login_test_view.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_report_window.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_secret_blank.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

using Step = KirvLoginStep;

namespace {

const QString ann = QStringLiteral("ann");
const QString password = QStringLiteral("secret"); // of the accounts of these windows
const QString typed = QStringLiteral("correct horse");

template <typename T>
T *child(const QWidget *window, const char *name)
{
    return KirvClientWindows::child<T>(window, name);
}

QPushButton *runButton(const QWidget *window)
{
    return child<QPushButton>(window, "AddAccount_TestLogIn");
}

QListWidget *stepsOf(const QWidget *window, const char *name = "AddAccount_LogInTestSteps")
{
    return child<QListWidget>(window, name);
}

QStringList textsOf(const QListWidget *list, int role = Qt::DisplayRole)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->data(role).toString();
    return texts;
}

int outcomeOf(const QListWidget *list, int row)
{
    return list->item(row)->data(KirvEventDelegate::OutcomeRole).toInt();
}

QString plain(const QString &caption)
{
    return QString(caption).remove(QLatin1Char('&'));
}

} // namespace

/// The windows that help to find out what is wrong with an account: the test of the log-in, the log and the report.
class tst_HelpInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void buttonSaysWhyItIsDisabled();
    void testUsesWhatIsTyped();
    void nothingIsStored();
    void stepThatFailsIsShown_data();
    void stepThatFailsIsShown();
    void stepsAreToldToAssistiveTechnology();
    void successIsSaid();
    void testIsCancelledAndStartedAgain();
    void reportOfTheTestIsCopied();
    void keyboardTestsAndSaves();
    void windowThatClosesEndsTheTest_data();
    void windowThatClosesEndsTheTest();
    void pluginThatGoesEndsTheTests();
    void programThatEndsEndsTheTests();
    void windowWithATestFitsASmallScreen();

    void whatIsWrongTestsTheStoredAccount();
    void nextTestTakesWhatIsStoredThen();
    void whatIsWrongIsOfferedForWhatFails();
    void runningConnectionIsLeftAlone();
    void oneDialogForAnAccount();
    void removedAccountClosesItsWindows();

    void logShowsWhatHappens();
    void logIsCopied();
    void logKeepsUpQuickly();
    void menuOpensTheWindows();

    void reportHoldsNoSecrets();
    void reportHoldsNamesOnlyWhenWanted();
    void reportTellsVersionsAndStates();
    void reportIsCopiedAndSaved();
    void reportOfManyAccountsIsBounded();

private:
    KirvFakeServer &server() const { return *windows->protocol->server; }
    static void fillIn(const QWidget *window);
    template <typename Window>
    Window *open() const
    {
        return KirvClientWindows::shownChild<Window>(windows->client->window());
    }
    QPushButton *stripButton(const char *name) const
    {
        return child<QPushButton>(windows->client->accountsPage(), name);
    }
    /// An account that was refused.
    void addFailing(const QString &id);
    KirvFakeConnection *ownConnection(const QString &id) const
    {
        return static_cast<KirvFakeConnection *>(windows->account(id)->connection());
    }
    KirvReportWindow *openReport();
    static QString reportText(const QWidget *window)
    {
        return child<QPlainTextEdit>(window, "Report_Text")->toPlainText();
    }

    std::unique_ptr<KirvClientWindows> windows;
    QPointer<KirvFakeConnection> connection; ///< the last one that was made
};

void tst_HelpInWindows::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->protocol->onConnection = [this](KirvFakeConnection *created) { connection = created; };
    windows->protocol->findProblem = [](const QString &text) {
        return text.contains(QLatin1Char(' ')) ? QStringLiteral("It holds a blank.") : QString();
    };
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
}

void tst_HelpInWindows::cleanup()
{
    const std::shared_ptr<KirvFakeServer> kept = windows->protocol ? windows->protocol->server : nullptr;
    windows.reset();
    QVERIFY(!kept || kept->connections == 0);
}

void tst_HelpInWindows::fillIn(const QWidget *window)
{
    child<QLineEdit>(window, "AddAccount_UsernameEdit")->setText(ann);
    child<QLineEdit>(window, "AddAccount_PasswordEdit")->setText(typed);
}

void tst_HelpInWindows::addFailing(const QString &id)
{
    server().logIn = KirvFakeServer::Refuses;
    windows->addAccount(id);
    windows->select(id);
    KirvClientWindows::settle();
}

void tst_HelpInWindows::buttonSaysWhyItIsDisabled()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QVERIFY(!runButton(window)->isEnabled());
        QCOMPARE(runButton(window)->toolTip(), QString("The login is missing."));
        auto *login = child<QLineEdit>(window, "AddAccount_UsernameEdit");
        login->setText("an n");
        QVERIFY(!runButton(window)->isEnabled());
        QCOMPARE(runButton(window)->toolTip(), QString("It holds a blank."));
        QCOMPARE(runButton(window)->accessibleDescription(), QString("It holds a blank."));
        login->setText(ann);
        QVERIFY(runButton(window)->isEnabled());
        QCOMPARE(plain(runButton(window)->text()), QString("Test Log-In"));
        QVERIFY(!stepsOf(window)->isVisible());
        const auto *save = child<QDialogButtonBox>(window, "AddAccount_ButtonFrame")->button(QDialogButtonBox::Save);
        QVERIFY(runButton(window)->mapTo(window, QPoint()).x() < save->mapTo(window, QPoint()).x());
    });
}

void tst_HelpInWindows::testUsesWhatIsTyped()
{
    server().logIn = KirvFakeServer::Holds;
    windows->inAddWindow([this](KirvLayoutDialog *window) {
        fillIn(window);
        child<QLineEdit>(window, "KirvField_server")->setText("other.example.org");
        runButton(window)->click();
        KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
        QCOMPARE(connection->login().id, ann);
        QCOMPARE(connection->login().password, typed);
        QCOMPARE(connection->login().settings.at(1).getText(), QString("other.example.org"));
    });
}

void tst_HelpInWindows::nothingIsStored()
{
    windows->inAddWindow([this](KirvLayoutDialog *window) {
        fillIn(window);
        runButton(window)->click();
        KIRV_TRY(plain(runButton(window)->text()) == "Test Again");
        QVERIFY(windows->client->accounts().accounts().isEmpty());
    });
    QVERIFY(windows->client->accounts().accounts().isEmpty());
}

void tst_HelpInWindows::stepThatFailsIsShown_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("kind");
    QTest::newRow("unknown host") << int(Step::NameLookup) << int(KirvFailure::HostNotFound);
    QTest::newRow("refused") << int(Step::Connection) << int(KirvFailure::ConnectionRefused);
    QTest::newRow("certificate") << int(Step::Encryption) << int(KirvFailure::UntrustedCertificate);
    QTest::newRow("password") << int(Step::LogIn) << int(KirvFailure::WrongPassword);
}

void tst_HelpInWindows::stepThatFailsIsShown()
{
    QFETCH(int, step);
    QFETCH(int, kind);
    server().logIn = KirvFakeServer::Holds;
    windows->inAddWindow([this, step, kind](KirvLayoutDialog *window) {
        fillIn(window);
        runButton(window)->click();
        KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
        for (int before = 0; before < step; ++before)
            connection->reportStep({ Step::Kind(before), Step::Done, QString("well %1").arg(before) });
        connection->reportStep({ Step::Kind(step), Step::Running, QStringLiteral("somebody") });
        QListWidget *list = stepsOf(window);
        QVERIFY(list->isVisible());
        QCOMPARE(list->count(), step + 1);
        QCOMPARE(outcomeOf(list, step), int(Step::Running));
        connection->loginFailed(KirvFailure::Kind(kind));
        QCOMPARE(list->count(), step + 1);
        const QString text =
            Step::title(Step::Kind(step)) + ": somebody. " + KirvFailure(KirvFailure::Kind(kind)).text();
        QCOMPARE(list->item(step)->text(), text);
        QCOMPARE(outcomeOf(list, step), int(Step::Failed));
        for (int before = 0; before < step; ++before)
            QCOMPARE(outcomeOf(list, before), int(Step::Done));
        QVERIFY(list->item(step)->data(KirvEventDelegate::EndRole).toString().endsWith(" ms"));
        QVERIFY(!QTest::currentTestFailed());
    });
}

void tst_HelpInWindows::stepsAreToldToAssistiveTechnology()
{
    server().logIn = KirvFakeServer::Refuses;
    windows->inAddWindow([](KirvLayoutDialog *window) {
        fillIn(window);
        runButton(window)->click();
        QListWidget *list = stepsOf(window);
        KIRV_TRY(list->count() == 1);
        QVERIFY(!list->accessibleName().isEmpty());
        const QString told = textsOf(list, Qt::AccessibleTextRole).first();
        QVERIFY2(told.startsWith("failed: Log-in: " + KirvFailure(KirvFailure::WrongPassword).text()),
                 qPrintable(told));
        QCOMPARE(list->accessibleDescription(), KirvFailure(KirvFailure::WrongPassword).text());
        QVERIFY(list->focusPolicy() & Qt::TabFocus);
    });
}

void tst_HelpInWindows::successIsSaid()
{
    windows->inAddWindow([this](KirvLayoutDialog *window) {
        fillIn(window);
        runButton(window)->click();
        QListWidget *list = stepsOf(window);
        KIRV_TRY(textsOf(list).contains("The log-in works."));
        KIRV_TRY(server().connections == 0);
        QVERIFY(server().calls.contains("ann log out"));
    });
}

void tst_HelpInWindows::testIsCancelledAndStartedAgain()
{
    server().logIn = KirvFakeServer::Holds;
    windows->inAddWindow([this](KirvLayoutDialog *window) {
        fillIn(window);
        runButton(window)->click();
        QCOMPARE(plain(runButton(window)->text()), QString("Cancel Test"));
        KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
        runButton(window)->click();
        QCOMPARE(server().connections, 0);
        QCOMPARE(plain(runButton(window)->text()), QString("Test Again"));
        QCOMPARE(textsOf(stepsOf(window)).last(), QString("The test was cancelled."));
        server().logIn = KirvFakeServer::Accepts;
        runButton(window)->click();
        KIRV_TRY(textsOf(stepsOf(window)).contains("The log-in works."));
        QVERIFY(!textsOf(stepsOf(window)).contains("The test was cancelled."));
    });
}

void tst_HelpInWindows::reportOfTheTestIsCopied()
{
    server().logIn = KirvFakeServer::Refuses;
    server().refusal = KirvFailure(KirvFailure::AccessDenied, "no " + typed + " here");
    windows->protocol->parts = QStringList { "Fake library 7.8" };
    windows->inAddWindow([](KirvLayoutDialog *window) {
        auto *copy = child<QPushButton>(window, "AddAccount_CopyTestReport");
        QVERIFY(!copy->isVisible());
        fillIn(window);
        runButton(window)->click();
        KIRV_TRY(plain(runButton(window)->text()) == "Test Again");
        QVERIFY(copy->isVisible());
        copy->click();
        const QString report = QGuiApplication::clipboard()->text();
        for (const char *part : { "[failed] Log-in", "Fake library 7.8", qVersion(), "no " })
            QVERIFY2(report.contains(QLatin1String(part)), qPrintable(report));
        QVERIFY2(!report.contains(typed), qPrintable(report));
    });
}

void tst_HelpInWindows::keyboardTestsAndSaves()
{
    server().logIn = KirvFakeServer::Holds;
    windows->inAddWindow([this](KirvLayoutDialog *window) {
        QTest::keyClicks(window->focusWidget(), ann);
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(window->focusWidget(), typed);
        for (int stop = 0; stop < 20 && window->focusWidget() != runButton(window); ++stop)
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QCOMPARE(window->focusWidget(), runButton(window));
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
        QVERIFY(window->isVisible());
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        QCOMPARE(server().connections, 0);
        // Enter in the login saves, and does not test.
        child<QLineEdit>(window, "AddAccount_UsernameEdit")->setFocus();
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        QVERIFY(!window->isVisible());
    });
    QVERIFY(windows->account(ann));
}

void tst_HelpInWindows::windowThatClosesEndsTheTest_data()
{
    QTest::addColumn<bool>("isCancelled");
    QTest::newRow("cancel") << true;
    QTest::newRow("save") << false;
}

void tst_HelpInWindows::windowThatClosesEndsTheTest()
{
    QFETCH(bool, isCancelled);
    server().logIn = KirvFakeServer::Holds;
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        fillIn(window);
        runButton(window)->click();
        KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
        const QPointer<KirvFakeConnection> tested = connection;
        const auto which = isCancelled ? QDialogButtonBox::Cancel : QDialogButtonBox::Save;
        child<QDialogButtonBox>(window, "AddAccount_ButtonFrame")->button(which)->click();
        QVERIFY(!tested);
    });
    KIRV_TRY_COMPARE(server().connections, isCancelled ? 0 : 1);
}

void tst_HelpInWindows::pluginThatGoesEndsTheTests()
{
    addFailing(ann);
    server().logIn = KirvFakeServer::Holds;
    stripButton("Accounts_TestButton")->click();
    KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
    const std::shared_ptr<KirvFakeServer> kept = windows->protocol->server;
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        fillIn(window);
        runButton(window)->click();
        KIRV_TRY(kept->connections == 3);
        Q_EMIT windows->client->plugins().protocolAboutToBeUnloaded(windows->protocol);
        QCOMPARE(kept->connections, 0);
    });
    QVERIFY(!open<KirvLoginTestDialog>());
    QCOMPARE(kept->connections, 0);
}

void tst_HelpInWindows::programThatEndsEndsTheTests()
{
    addFailing(ann);
    server().logIn = KirvFakeServer::Holds;
    stripButton("Accounts_TestButton")->click();
    KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
    const std::shared_ptr<KirvFakeServer> kept = windows->protocol->server;
    windows->end();
    QCOMPARE(kept->connections, 0);
}

void tst_HelpInWindows::windowWithATestFitsASmallScreen()
{
    windows->protocol->worksWithoutPassword = [](const QList<KirvField> &) { return true; };
    server().logIn = KirvFakeServer::Holds;
    windows->inAddWindow([this](KirvLayoutDialog *window) {
        child<QLineEdit>(window, "AddAccount_UsernameEdit")->setText(ann);
        runButton(window)->click();
        KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
        for (int kind = 0; kind < 4; ++kind)
            connection->reportStep({ Step::Kind(kind), Step::Running, QString(300, QLatin1Char('x')) });
        window->resize(480, 360);
        KirvClientWindows::settle();
        QCOMPARE(window->size(), QSize(480, 360));
        for (const char *name : { "AddAccount_TestLogIn", "AddAccount_CopyTestReport", "AddAccount_SaveWithoutPassword",
                                  "AddAccount_LogInTestSteps", "AddAccount_FormArea" }) {
            const auto *widget = child<QWidget>(window, name);
            QVERIFY2(widget->isVisible(), name);
            QVERIFY2(window->rect().contains(QRect(widget->mapTo(window, QPoint()), widget->size())), name);
            QVERIFY2(!qobject_cast<const QPushButton *>(widget) || widget->width() >= widget->sizeHint().width(), name);
        }
    });
}

void tst_HelpInWindows::whatIsWrongTestsTheStoredAccount()
{
    addFailing(ann);
    const KirvFakeConnection *own = ownConnection(ann);
    stripButton("Accounts_TestButton")->click();
    auto *dialog = open<KirvLoginTestDialog>();
    QVERIFY(dialog);
    QVERIFY(dialog->windowTitle().contains(ann));
    QListWidget *list = stepsOf(dialog, "LogInTest_LogInTestSteps");
    KIRV_TRY(list->count() == 1 && outcomeOf(list, 0) == Step::Failed);
    QVERIFY(list->item(0)->text().contains(KirvFailure(KirvFailure::WrongPassword).text()));
    QVERIFY(connection != own || !connection);
    QCOMPARE(server().calls.filter("ann log in available secret").size(), 2);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!open<KirvLoginTestDialog>());
}

void tst_HelpInWindows::nextTestTakesWhatIsStoredThen()
{
    addFailing(ann);
    stripButton("Accounts_TestButton")->click();
    auto *dialog = open<KirvLoginTestDialog>();
    QVERIFY(dialog);
    auto *again = child<QPushButton>(dialog, "LogInTest_TestLogIn");
    KIRV_TRY_COMPARE(plain(again->text()), QString("Test Again"));
    server().logIn = KirvFakeServer::Holds;
    windows->account(ann)->change([](KirvAccountRecord &record) {
        record.password = typed;
        record.settings.insert("server", "other.example.org");
    });
    KirvClientWindows::settle();
    again->click();
    KIRV_TRY(connection && connection != ownConnection(ann) && connection->state() == KirvConnection::Connecting);
    QCOMPARE(connection->login().password, typed);
    QCOMPARE(connection->login().settings.at(1).getText(), QString("other.example.org"));
    // The button of the page shows the same dialog, which stays up to date.
    stripButton("Accounts_TestButton")->click();
    QCOMPARE(open<KirvLoginTestDialog>(), dialog);
}

void tst_HelpInWindows::whatIsWrongIsOfferedForWhatFails()
{
    QVERIFY(!stripButton("Accounts_TestButton")->isEnabled());
    QVERIFY(!stripButton("Accounts_LogButton")->isEnabled());
    windows->addAccount(ann);
    windows->select(ann);
    KIRV_TRY(stripButton("Accounts_LogButton")->isEnabled());
    QVERIFY(!stripButton("Accounts_TestButton")->isEnabled()); // it is connected
    ownConnection(ann)->connectionLost(KirvFailure::ConnectionLost);
    KIRV_TRY(stripButton("Accounts_TestButton")->isEnabled());
}

void tst_HelpInWindows::runningConnectionIsLeftAlone()
{
    windows->addAccount(ann);
    const QDateTime since = windows->account(ann)->connection()->since();
    server().takeCalls();
    windows->client->window()->findChild<KirvLoginTestDialog *>();
    windows->select(ann);
    QTest::keyClick(windows->list(), Qt::Key_Menu);
    auto *menu = windows->client->window()->findChild<QMenu *>("Accounts_Menu");
    QVERIFY(menu);
    auto *action = menu->findChild<QAction *>("Accounts_TestAction");
    QVERIFY(action && action->isEnabled());
    action->trigger();
    menu->close();
    auto *dialog = open<KirvLoginTestDialog>();
    QVERIFY(dialog);
    KIRV_TRY(textsOf(stepsOf(dialog, "LogInTest_LogInTestSteps")).contains("The log-in works."));
    KIRV_TRY_COMPARE(server().connections, 1);
    QVERIFY(windows->account(ann)->isOnline());
    QCOMPARE(windows->account(ann)->connection()->since(), since);
    QCOMPARE(server().calls.filter("log in").size(), 1);
}

void tst_HelpInWindows::oneDialogForAnAccount()
{
    addFailing(ann);
    server().logIn = KirvFakeServer::Holds;
    stripButton("Accounts_TestButton")->click();
    auto *first = open<KirvLoginTestDialog>();
    windows->client->window()->activateWindow();
    stripButton("Accounts_TestButton")->click();
    QCOMPARE(windows->client->window()->findChildren<KirvLoginTestDialog *>().size(), 1);
    QCOMPARE(open<KirvLoginTestDialog>(), first);
}

void tst_HelpInWindows::removedAccountClosesItsWindows()
{
    addFailing(ann);
    server().logIn = KirvFakeServer::Holds;
    stripButton("Accounts_TestButton")->click();
    stripButton("Accounts_LogButton")->click();
    KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
    QVERIFY(open<KirvLoginTestDialog>() && open<KirvAccountLogWindow>());
    QVERIFY(windows->client->accounts().remove(windows->account(ann)));
    QVERIFY(!open<KirvLoginTestDialog>() && !open<KirvAccountLogWindow>());
    KIRV_TRY_COMPARE(server().connections, 0);
}

void tst_HelpInWindows::logShowsWhatHappens()
{
    addFailing(ann);
    stripButton("Accounts_LogButton")->click();
    auto *window = open<KirvAccountLogWindow>();
    QVERIFY(window);
    QVERIFY(window->windowTitle().contains(ann));
    auto *list = child<QListWidget>(window, "AccountLog_Entries");
    QCOMPARE(list->count(), windows->account(ann)->log().count());
    const QString failure = KirvFailure(KirvFailure::WrongPassword).text();
    QVERIFY(list->item(list->count() - 1)->text().endsWith(failure));
    QCOMPARE(outcomeOf(list, list->count() - 1), int(Step::Failed));
    const int before = list->count();
    Q_EMIT ownConnection(ann)->noticeReceived("Maintenance tonight");
    KIRV_TRY(list->count() == before + 1);
    QVERIFY(list->item(before)->text().endsWith("Maintenance tonight"));
}

void tst_HelpInWindows::logIsCopied()
{
    addFailing(ann);
    stripButton("Accounts_LogButton")->click();
    auto *window = open<KirvAccountLogWindow>();
    auto *list = child<QListWidget>(window, "AccountLog_Entries");
    child<QPushButton>(window, "AccountLog_Copy")->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), textsOf(list).join('\n'));
    list->setCurrentRow(1);
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window, kirvPatience));
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), list->item(1)->text());
}

/// Many entries at once cost one refresh, and the list is as long as the log.
void tst_HelpInWindows::logKeepsUpQuickly()
{
    addFailing(ann);
    stripButton("Accounts_LogButton")->click();
    auto *list = child<QListWidget>(open<KirvAccountLogWindow>(), "AccountLog_Entries");
    KirvClientWindows::settle();
    for (int i = 0; i < 2000; ++i)
        windows->account(ann)->log().addNotice(QString("event %1 ").arg(i) + QString(150, 'x'), KirvSecretBlank());
    int inserted = 0;
    connect(list->model(), &QAbstractItemModel::rowsInserted, this,
            [&inserted](const QModelIndex &, int first, int last) { inserted += last - first + 1; });
    KIRV_TRY_COMPARE(list->count(), KirvAccountLog::mostEntries);
    QVERIFY2(inserted <= KirvAccountLog::mostEntries, QByteArray::number(inserted).constData());
    QVERIFY(list->item(0)->text().contains("event 1500 "));
    QVERIFY(list->item(list->count() - 1)->text().contains("event 1999 "));
}

void tst_HelpInWindows::menuOpensTheWindows()
{
    addFailing(ann);
    QTest::keyClick(windows->list(), Qt::Key_Menu);
    auto *menu = windows->client->window()->findChild<QMenu *>("Accounts_Menu");
    QVERIFY(menu);
    menu->findChild<QAction *>("Accounts_LogAction")->trigger();
    menu->close();
    QVERIFY(open<KirvAccountLogWindow>());
}

KirvReportWindow *tst_HelpInWindows::openReport()
{
    child<QPushButton>(windows->client->pluginsPage(), "Plugins_ReportButton")->click();
    return open<KirvReportWindow>();
}

void tst_HelpInWindows::reportHoldsNoSecrets()
{
    server().refusal = KirvFailure(KirvFailure::AccessDenied, "wrong: " + password + "!");
    windows->protocol->settings.last().setText("word of the server");
    addFailing(ann);
    Q_EMIT ownConnection(ann)->noticeReceived("AUTHENTICATE " + QByteArray("\0ann\0secret", 11).toBase64()
                                              + " word of the server");
    KirvReportWindow *window = openReport();
    QVERIFY(window);
    for (const bool withNames : { false, true }) {
        child<QCheckBox>(window, "Report_Names")->setChecked(withNames);
        const QByteArray bytes = reportText(window).toUtf8();
        QVERIFY2(bytes.contains("wrong: "), bytes.constData());
        QVERIFY2(!bytes.contains(password.toUtf8()), bytes.constData());
        QVERIFY2(!bytes.contains("word of the server"), bytes.constData());
        QVERIFY2(!bytes.contains(QByteArray("\0ann\0secret", 11).toBase64()), bytes.constData());
    }
}

void tst_HelpInWindows::reportHoldsNamesOnlyWhenWanted()
{
    const QString login = QStringLiteral("anna.karenina@example.org");
    server().logIn = KirvFakeServer::Refuses;
    server().refusal = KirvFailure(KirvFailure::AccessDenied, "ANNA.KARENINA is banned");
    windows->addAccount(login);
    windows->account(login)->change([](KirvAccountRecord &record) {
        record.alias = QStringLiteral("My Anna");
        record.settings.insert("server", "Vronsky");
    });
    Q_EMIT ownConnection(login)->noticeReceived(login + " is My Anna, not Vronsky");
    KirvReportWindow *window = openReport();
    auto *names = child<QCheckBox>(window, "Report_Names");
    QVERIFY(!names->isChecked());
    for (const char *name : { "karenina", "my anna", "vronsky" })
        QVERIFY2(!reportText(window).contains(QLatin1String(name), Qt::CaseInsensitive),
                 qPrintable(reportText(window)));
    QVERIFY(reportText(window).contains("is banned"));
    names->setChecked(true);
    for (const char *name : { "Login: anna.karenina@example.org", "My Anna", "Vronsky" })
        QVERIFY2(reportText(window).contains(QLatin1String(name)), qPrintable(reportText(window)));
    names->setChecked(false);
    QVERIFY(!reportText(window).contains("karenina"));
}

void tst_HelpInWindows::reportTellsVersionsAndStates()
{
    windows->protocol->parts = QStringList { "Fake plug-in 1.2", "libfake 3.4.5" };
    windows->protocol->onConnection = [](KirvFakeConnection *created) {
        created->security = "TLSv1.3, SASL SCRAM-SHA-256";
    };
    windows->addAccount("bob");
    KIRV_TRY(windows->account("bob")->isOnline());
    const QString text = reportText(openReport());
    for (const QString &part :
         { QString(qVersion()), QSysInfo::prettyProductName(), QString("Fake plug-in 1.2"), QString("libfake 3.4.5"),
           QString("State: Connected"), QString("Connected: TLSv1.3, SASL SCRAM-SHA-256") })
        QVERIFY2(text.contains(part), qPrintable(part + " is not in " + text));
}

void tst_HelpInWindows::reportIsCopiedAndSaved()
{
    addFailing(ann);
    stripButton("Accounts_LogButton")->click();
    child<QPushButton>(open<KirvAccountLogWindow>(), "AccountLog_Report")->click();
    KirvReportWindow *window = open<KirvReportWindow>();
    QVERIFY(window);
    child<QPushButton>(window, "Report_Copy")->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), reportText(window));
    const QString path = windows->folder.filePath("report.txt");
    QVERIFY(window->save(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), reportText(window));
    QVERIFY(!window->save(windows->folder.filePath("no/such/folder/report.txt")));
    QVERIFY(child<QLabel>(window, "Report_Outcome")->text().contains("could not be saved"));
}

void tst_HelpInWindows::reportOfManyAccountsIsBounded()
{
    for (int i = 0; i < KirvReport::mostAccounts + 5; ++i)
        windows->addAccount(QString("id%1").arg(i));
    addFailing("failing");
    const QString text = reportText(openReport());
    QVERIFY2(text.contains("State: Wrong password"), qPrintable(text));
    QCOMPARE(text.count("State: "), int(KirvReport::mostAccounts));
    QVERIFY(text.contains("6 more accounts") || text.contains("6 more account(s)"));
}

QTEST_MAIN(tst_HelpInWindows)
#include "tst_help_in_windows.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_server_request.h"
#include "tests/support/gui/kirv_assistant_window.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_registration_script.h"
#include "tests/system/kirv_windows.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QTreeWidget>

using Assistant = KirvAssistantWindow;

namespace {

const QString xmpp = QStringLiteral("XMPP");
const QString here = QStringLiteral("Server on this computer");
const QString hereInClear = QStringLiteral("Server on this computer, unencrypted");
const QString romeo = QStringLiteral("romeo");
const QString romeoAddress = QStringLiteral("romeo@localhost");
const QString secret = QStringLiteral("secret");
const QString changePassword = QStringLiteral("Change Password on Server…");
const QString deleteAccount = QStringLiteral("Delete Account on Server…");

} // namespace

/// What a user does who has no account yet, and what can be done with an account on its server, in the client's
/// windows.
class tst_RegisteringInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newAccountIsInTheListAndLoggedIn();
    void takenNameIsSaidAndNothingIsLost();
    void registrationThatIsNotOfferedIsSaid();
    void silentServerIsSaid();
    void serverThatIsNotThereIsSaid();
    void formIsShownAsTheServerHasIt();
    void serverGoesWhileTheFormIsFilledIn();
    void connectionIsLostWhileTheFormIsSent();
    void clientQuitsWhileTheServerIsAsked();

    void passwordIsChangedOnTheServer();
    void actionsNeedAConnection();
    void accountIsDeletedOnTheServer();
    void cancelKeepsTheAccount_data();
    void cancelKeepsTheAccount();

private:
    bool start(KirvProsodyServer &server);
    void use(quint16 port) { qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(port)); }
    /// Clicks the register button and chooses a ready-made configuration in the window that opens.
    bool openWindow(const QString &configuration);
    /// Submits the server's step and waits for the form.
    static bool openForm();
    static void pressNext() { KirvWindowDriver::click(Assistant::next()); }
    static void pressClose() { KirvWindowDriver::click(Assistant::close()); }
    static void fill(const char *field, const QString &text)
    {
        KirvWindows::fill(Assistant::window(), QLatin1String(field), text);
    }
    bool isConnected(const QString &login) const { return windows->state(login) == QLatin1String("Connected"); }

    bool addRomeo(KirvProsodyServer &server);
    /// Chooses a command in the Server Account menu of the account's edit window.
    bool choose(QDialog *editWindow, const QString &command);

    std::unique_ptr<KirvWindows> windows;
};

void tst_RegisteringInWindows::init()
{
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
}

void tst_RegisteringInWindows::cleanup()
{
    windows.reset();
    QVERIFY(!Assistant::window());
    qunsetenv("KIRV_XMPP_LOCAL_PORT");
    qunsetenv("KIRV_XMPP_LOCAL_CERTIFICATE");
}

bool tst_RegisteringInWindows::start(KirvProsodyServer &server)
{
    if (!server.start()) {
        qWarning("%s", qPrintable(server.errorString()));
        return false;
    }
    use(server.port());
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", server.certificatePath().toLocal8Bit());
    return true;
}

bool tst_RegisteringInWindows::openWindow(const QString &configuration)
{
    windows->showPage(0);
    if (!QTest::qWaitFor([this] { return windows->client->accountsPage()->isVisible(); }, kirvPatience))
        return false;
    KirvWindowDriver::click(
        KirvWindows::child<QToolButton>(windows->client->accountsPage(), "Accounts_RegisterButton"));
    if (!QTest::qWaitFor([] { return Assistant::window(); }, kirvPatience)
        || !QTest::qWaitForWindowExposed(Assistant::window(), kirvPatience))
        return false;
    KirvWindowDriver::choose(Assistant::part<QComboBox>("Configuration"), configuration);
    return Assistant::filled(QStringLiteral("domain")) == QLatin1String("localhost");
}

bool tst_RegisteringInWindows::openForm()
{
    pressNext();
    return QTest::qWaitFor(&Assistant::isAtLaterStep, kirvPatience);
}

bool tst_RegisteringInWindows::addRomeo(KirvProsodyServer &server)
{
    return start(server) && server.addUser(romeo, secret)
        && windows->add(
            xmpp, here, romeoAddress, secret,
            [](QWidget *window) {
                KirvWindows::child<QAbstractButton>(window, "AddAccount_RememberPasswordCheckbox")->setChecked(true);
            })
        && QTest::qWaitFor([this] { return isConnected(romeoAddress); }, kirvPatience);
}

bool tst_RegisteringInWindows::choose(QDialog *editWindow, const QString &command)
{
    KirvWindowDriver driver(windows->profileFolder());
    driver.expectOnTop(
        QStringLiteral("The edit window is there"), [editWindow] { return editWindow->isVisible(); },
        [editWindow] {
            KirvWindowDriver::openMenu(KirvWindows::child<QPushButton>(editWindow, "EditAccount_ServerAccountButton"));
        });
    driver.expect(
        QStringLiteral("The menu offers: %1").arg(command), [command] { return KirvWindowDriver::menuOffers(command); },
        [command] { KirvWindowDriver::clickInMenu(command); });
    return driver.run();
}

void tst_RegisteringInWindows::newAccountIsInTheListAndLoggedIn()
{
    KirvProsodyServer server;
    QVERIFY(start(server));
    QVERIFY(openWindow(here));
    QVERIFY(openForm());
    fill("username", romeo);
    fill("password", secret);
    QVERIFY(Assistant::part<QCheckBox>("Remember")->isChecked());
    pressNext();
    KIRV_TRY(!Assistant::window());

    KIRV_TRY(windows->row(romeoAddress));
    QCOMPARE(windows->row(romeoAddress)->checkState(0), Qt::Checked);
    QCOMPARE(windows->list()->topLevelItemCount(), 1);
    KIRV_TRY(isConnected(romeoAddress));
    QVERIFY(server.hasUser(romeo));
    KIRV_TRY(server.isOnline(romeo));
    KIRV_TRY(windows->selector()->count() == 1);

    QVERIFY(windows->start());
    KIRV_TRY(isConnected(romeoAddress));
}

void tst_RegisteringInWindows::takenNameIsSaidAndNothingIsLost()
{
    KirvProsodyServer server;
    QVERIFY(start(server));
    QVERIFY(server.addUser(romeo, QStringLiteral("another")));
    QVERIFY(openWindow(here));
    QVERIFY(openForm());
    fill("username", romeo);
    fill("password", secret);
    pressNext();
    KIRV_TRY_CONTAINS(Assistant::message(), "\"romeo\" is already in use");
    QVERIFY(Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled(QStringLiteral("username")), romeo);
    QCOMPARE(Assistant::filled(QStringLiteral("password")), secret);
    QCOMPARE(windows->list()->topLevelItemCount(), 0);

    fill("username", QStringLiteral("romeo2"));
    pressNext();
    KIRV_TRY(!Assistant::window());
    KIRV_TRY(isConnected(QStringLiteral("romeo2@localhost")));
}

void tst_RegisteringInWindows::registrationThatIsNotOfferedIsSaid()
{
    KirvProsodyServer::Options options;
    options.allowsRegistration = false;
    KirvProsodyServer server(options);
    QVERIFY(start(server));
    QVERIFY(openWindow(here));
    pressNext();
    KIRV_TRY_CONTAINS(Assistant::message(), "does not offer");
    QVERIFY(!Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled(QStringLiteral("domain")), QStringLiteral("localhost"));
    QCOMPARE(Assistant::filled(QStringLiteral("server")), server.host());
    pressClose();
    KIRV_TRY(!Assistant::window());
}

void tst_RegisteringInWindows::silentServerIsSaid()
{
    KirvScriptedXmppServer server;
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    auto *request = windows->client->window()->findChild<KirvServerRequest *>();
    QVERIFY(request && request->setProperty("timeout", 500));
    pressNext();
    QVERIFY(Assistant::isWaiting());
    KIRV_TRY_CONTAINS(Assistant::message(), "did not answer in time");
    QVERIFY(!Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled(QStringLiteral("domain")), QStringLiteral("localhost"));
    QVERIFY(Assistant::next()->isEnabled());
}

void tst_RegisteringInWindows::serverThatIsNotThereIsSaid()
{
    use(KirvLocalServer::findFreePort());
    QVERIFY(openWindow(hereInClear));
    fill("domain", QStringLiteral("example.org"));
    pressNext();
    KIRV_TRY_CONTAINS(Assistant::message(), "does not accept connections");
    QCOMPARE(Assistant::filled(QStringLiteral("domain")), QStringLiteral("example.org"));

    // It comes after all.
    KirvProsodyServer server;
    QVERIFY(start(server));
    KirvWindowDriver::choose(Assistant::part<QComboBox>("Configuration"), here);
    fill("domain", QStringLiteral("localhost"));
    QVERIFY(openForm());
}

void tst_RegisteringInWindows::formIsShownAsTheServerHasIt()
{
    KirvScriptedXmppServer server(registering(dataForm(pngPicture())));
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    QVERIFY(openForm());
    const QString instructions = Assistant::text();
    QVERIFY(instructions.contains(QLatin1String("Join <us>")) && instructions.contains(QLatin1String("Fill it in.")));
    KIRV_TRY(Assistant::part<QLabel>("Picture1"));
    const auto *picture = Assistant::part<QLabel>("Picture1");
    QVERIFY(picture && picture->isVisible() && !picture->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(Assistant::filled(QStringLiteral("odd")), QStringLiteral("as it was"));

    fill("username", romeo);
    fill("password", secret);
    pressNext();
    QVERIFY2(Assistant::message().contains(QLatin1String("What is written there?")), qPrintable(Assistant::message()));
    QVERIFY(!server.received().contains("type=\"set\""));

    fill("ocr", QStringLiteral("green"));
    fill("odd", QStringLiteral("odder"));
    pressNext();
    KIRV_TRY(!Assistant::window());
    QVERIFY(server.received().contains("<field var=\"ocr\"><value>green</value></field>"));
    QVERIFY(server.received().contains("<field var=\"odd\"><value>odder</value></field>"));
    KIRV_TRY(windows->row(romeoAddress));
}

void tst_RegisteringInWindows::serverGoesWhileTheFormIsFilledIn()
{
    KirvProsodyServer server;
    QVERIFY(start(server));
    QVERIFY(openWindow(here));
    QVERIFY(openForm());
    fill("username", romeo);
    fill("password", secret);
    server.kill();
    pressNext();
    KIRV_TRY(!Assistant::message().isEmpty());
    QVERIFY(Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled(QStringLiteral("username")), romeo);
    QCOMPARE(Assistant::filled(QStringLiteral("password")), secret);
    QVERIFY(!windows->row(romeoAddress));

    QVERIFY(start(server));
    pressNext();
    KIRV_TRY(!Assistant::window());
    KIRV_TRY(isConnected(romeoAddress));
}

void tst_RegisteringInWindows::connectionIsLostWhileTheFormIsSent()
{
    KirvScriptedXmppServer server(registering("<username/><password/>", ""));
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    QVERIFY(openForm());
    fill("username", romeo);
    fill("password", secret);
    pressNext();
    KIRV_TRY(server.received().contains("type=\"set\""));
    server.hangUp();
    KIRV_TRY_CONTAINS(Assistant::message(), "lost");
    QVERIFY(Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled(QStringLiteral("username")), romeo);
    QCOMPARE(Assistant::filled(QStringLiteral("password")), secret);
    QCOMPARE(windows->list()->topLevelItemCount(), 0);
}

void tst_RegisteringInWindows::clientQuitsWhileTheServerIsAsked()
{
    KirvScriptedXmppServer server;
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    pressNext();
    KIRV_TRY(server.connections() == 1);
    windows->quit();
    QVERIFY(!Assistant::window());
    QVERIFY(windows->start());
    QCOMPARE(windows->list()->topLevelItemCount(), 0);
}

void tst_RegisteringInWindows::passwordIsChangedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QVERIFY(choose(editWindow, changePassword));
    KIRV_TRY(Assistant::window());
    fill("new_password", QStringLiteral("fresh"));
    fill("repetition", QStringLiteral("fresh"));
    pressNext();
    KIRV_TRY(Assistant::message().contains(QStringLiteral("is changed on its server")));
    KirvWindowDriver::click(Assistant::close());
    KIRV_TRY(!Assistant::window());
    QCOMPARE(windows->account(romeoAddress)->getPassword(), QStringLiteral("fresh"));
    KirvObservingXmppClient withOldPassword;
    QVERIFY(!withOldPassword.logIn(server, romeo, secret));
    KirvObservingXmppClient withNewPassword;
    QVERIFY(withNewPassword.logIn(server, romeo, QStringLiteral("fresh")));

    // Saving what else was edited must not bring the old password back.
    QVERIFY(windows->save(editWindow));
    QVERIFY(windows->start());
    KIRV_TRY(isConnected(romeoAddress));
    QCOMPARE(windows->problem(romeoAddress), QString());
}

void tst_RegisteringInWindows::actionsNeedAConnection()
{
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QMenu *menu = KirvWindows::child<QPushButton>(editWindow, "EditAccount_ServerAccountButton")->menu();
    const auto areOffered = [menu] {
        emit menu->aboutToShow();
        return menu->actions().size() == 2 && menu->actions().at(0)->isEnabled() && menu->actions().at(1)->isEnabled();
    };
    QVERIFY(areOffered());
    server.kill();
    KIRV_TRY(!isConnected(romeoAddress));
    QVERIFY(!areOffered());
    QVERIFY(choose(editWindow, deleteAccount));
    QVERIFY(!Assistant::window());
}

void tst_RegisteringInWindows::accountIsDeletedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QVERIFY(server.hasUser(romeo));
    QVERIFY(windows->profileHolds(romeoAddress.toUtf8()));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QVERIFY(choose(editWindow, deleteAccount));
    KIRV_TRY(Assistant::window());
    const QString question = Assistant::text();
    QVERIFY(question.contains(romeoAddress));
    pressNext();
    KIRV_TRY(Assistant::text() != question);
    QVERIFY(Assistant::text().contains(romeoAddress));
    QVERIFY(server.hasUser(romeo));
    pressNext();
    KIRV_TRY(!windows->row(romeoAddress));
    KIRV_TRY(!server.hasUser(romeo));
    KIRV_TRY(!KirvWindowDriver::window(QStringLiteral("EditAccount")));
    QVERIFY(!windows->account(romeoAddress));
    KIRV_TRY(windows->selector()->count() == 0);
    QVERIFY(!server.isOnline(romeo));
    windows->quit();
    QVERIFY(!windows->profileHolds(romeoAddress.toUtf8()));
}

void tst_RegisteringInWindows::cancelKeepsTheAccount_data()
{
    QTest::addColumn<int>("confirmations");
    QTest::newRow("at the first question") << 0;
    QTest::newRow("at the second question") << 1;
}

void tst_RegisteringInWindows::cancelKeepsTheAccount()
{
    QFETCH(int, confirmations);
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QVERIFY(choose(editWindow, deleteAccount));
    KIRV_TRY(Assistant::window());
    for (int i = 0; i < confirmations; ++i)
        pressNext();
    pressClose();
    KIRV_TRY(!Assistant::window());
    // The session still serves: a deletion would end it.
    KirvObservingXmppClient independent;
    QVERIFY(independent.logIn(server, romeo, secret));
    QVERIFY(editWindow->isVisible());
    QVERIFY(windows->row(romeoAddress));
    QVERIFY(isConnected(romeoAddress));
    QVERIFY(server.hasUser(romeo));
    QVERIFY(server.isOnline(romeo));
}

QTEST_MAIN(tst_RegisteringInWindows)
#include "tst_registering_in_windows.moc"

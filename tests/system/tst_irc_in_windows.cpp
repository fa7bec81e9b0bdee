// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_account_manager.h"
#include "tests/support/servers/kirv_observing_irc_client.h"
#include "tests/support/servers/kirv_scripted_irc_server.h"
#include "tests/system/kirv_windows.h"
#include "tools/servers/kirv_ngircd_server.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>

#include <vector>

namespace {

const QString irc = QStringLiteral("IRC");
const QString xmpp = QStringLiteral("XMPP");
const QString here = QStringLiteral("Server on this computer");
const QString alice = QStringLiteral("alice");
const QString secret = QStringLiteral("secret");
const QString required = QStringLiteral("Required (TLS)");
const QString passwordOfServer = QStringLiteral("Password of the server");

/// A setting of the account as its form shows it.
QString shown(const QWidget *window, const char *name)
{
    if (const auto *edit = KirvWindows::child<QLineEdit>(window, name))
        return edit->text();
    if (const auto *box = KirvWindows::child<QSpinBox>(window, name))
        return QString::number(box->value());
    const auto *choice = KirvWindows::child<QComboBox>(window, name);
    return choice ? choice->currentText() : QString();
}

QString shownNetwork(const QWidget *window)
{
    return QStringList { shown(window, "KirvField_server"), shown(window, "KirvField_port"),
                         shown(window, "KirvField_encryption") }
        .join(QLatin1Char(' '));
}

void remember(QWidget *window)
{
    KirvWindows::child<QAbstractButton>(window, "AddAccount_RememberPasswordCheckbox")->setChecked(true);
}

/// The answers of a server that lets everybody in.
QByteArray welcome(const QByteArray &line)
{
    return line.startsWith("USER ") ? ":server 001 alice :Welcome\r\n" : "";
}

} // namespace

/// What a user does with IRC accounts in the client's windows, against a real server where that can do it.
class tst_IrcInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void menuOffersBothProtocols();
    void networksFillTheForm();
    void addedAccountIsLoggedIn_data();
    void addedAccountIsLoggedIn();
    void editWindowHasNoDirectory();
    void disabledAccountSaysGoodbye();

    void awayAndBackAreSeenByOthers();
    void defaultPresenceIsSeenByOthers();

    void takenNickIsReplacedAndSaid();
    void allNicksTakenIsSaid();
    void nickThatTheServerRefusesIsSaid();
    void textThatIsNoNickCannotBeTyped();
    void nickWithoutAServerIsNotAdded();

    void wrongServerPasswordIsSaidAndCorrected();
    void untrustedCertificateIsSaidAndCanBeTrusted();

    void killedServerIsReachedAgain();
    void hungServerIsSaid();
    void connectionLostWhileLoggingInIsSaid();

    void bothProtocolsSideBySide();

private:
    /// Starts \a server and lets "Server on this computer" mean it.
    bool start(KirvLocalServer &server);
    void use(const QTcpServer &server) { qputenv("KIRV_IRC_LOCAL_PORT", QByteArray::number(server.serverPort())); }
    bool addAlice(const std::function<void(QWidget *window)> &fillIn = {}, const QString &password = secret)
    {
        return windows->add(irc, here, alice, password, fillIn);
    }
    bool isConnected(const QString &login) const { return windows->state(login) == QLatin1String("Connected"); }

    std::unique_ptr<KirvWindows> windows;
};

void tst_IrcInWindows::init()
{
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
}

void tst_IrcInWindows::cleanup()
{
    windows.reset();
    qunsetenv("KIRV_IRC_LOCAL_PORT");
}

bool tst_IrcInWindows::start(KirvLocalServer &server)
{
    if (!server.start()) {
        qWarning("%s", qPrintable(server.errorString()));
        return false;
    }
    qputenv("KIRV_IRC_LOCAL_PORT", QByteArray::number(server.port()));
    return true;
}

void tst_IrcInWindows::menuOffersBothProtocols()
{
    KirvWindowDriver driver(windows->profileFolder());
    driver.expectOnTop(
        QStringLiteral("The page is there"), [this] { return windows->client->accountsPage()->isVisible(); },
        [this] {
            KirvWindowDriver::openMenu(
                KirvWindows::child<QToolButton>(windows->client->accountsPage(), "Accounts_AddButton"));
        });
    driver.expect(
        QStringLiteral("The menu offers both protocols"),
        [] { return KirvWindowDriver::menuOffers(irc) && KirvWindowDriver::menuOffers(xmpp); },
        [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
    driver.expectOnTop(QStringLiteral("The menu is gone"), [] { return !QApplication::activePopupWidget(); });
    QVERIFY(driver.run());
    QVERIFY(!KirvWindowDriver::window(QStringLiteral("AddAccount")));
}

void tst_IrcInWindows::networksFillTheForm()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    QMap<QString, QString> networks;
    QVERIFY(addAlice([&networks](QWidget *window) {
        auto *box = KirvWindows::child<QComboBox>(window, "AddAccount_Configuration");
        for (int i = 0; i < box->count(); ++i) {
            KirvWindowDriver::choose(box, box->itemText(i));
            networks.insert(box->itemText(i), shownNetwork(window));
        }
        // None, which was on the way, takes the login away.
        KirvWindowDriver::type(KirvWindows::child<QLineEdit>(window, "AddAccount_UsernameEdit"), alice);
    }));
    QCOMPARE(networks.take(QStringLiteral("None")), QStringLiteral(" 6697 ") + required);
    QCOMPARE(networks.value(QStringLiteral("Libera.Chat")), QStringLiteral("irc.libera.chat 6697 ") + required);
    QCOMPARE(networks.value(QStringLiteral("OFTC")), QStringLiteral("irc.oftc.net 6697 ") + required);
    const QString local = networks.take(here);
    QVERIFY2(local.startsWith(QStringLiteral("127.0.0.1 %1 None").arg(server.port())), qPrintable(local));
    QVERIFY(networks.size() >= 4);
    for (const QString &network : qAsConst(networks))
        QVERIFY2(network.endsWith(QLatin1String(" 6697 ") + required), qPrintable(network));
    // The last one that was chosen is the one that counts.
    KIRV_TRY(isConnected(alice));
}

void tst_IrcInWindows::addedAccountIsLoggedIn_data()
{
    QTest::addColumn<bool>("encrypted");
    QTest::newRow("plain") << false;
    QTest::newRow("TLS") << true;
}

void tst_IrcInWindows::addedAccountIsLoggedIn()
{
    QFETCH(bool, encrypted);
    KirvNgircdServer server;
    server.setEncrypted(encrypted);
    QVERIFY(start(server));
    QVERIFY(addAlice([&](QWidget *window) {
        remember(window);
        if (!encrypted)
            return;
        KirvWindows::fill(window, QStringLiteral("encryption"), required);
        KirvWindows::fill(window, QStringLiteral("certificate"), server.certificateFile());
    }));
    QVERIFY(windows->row(alice));
    QCOMPARE(windows->row(alice)->checkState(0), Qt::Checked);
    KIRV_TRY(isConnected(alice));
    QCOMPARE(windows->messages(), QString());
    KIRV_TRY(windows->reason(alice).contains(QLatin1String("Protection: ")));
    const QString protection = windows->reason(alice).section(QStringLiteral("Protection: "), 1);
    QVERIFY2(protection.startsWith(encrypted ? "TLSv1." : "not encrypted, "), qPrintable(protection));
    KirvObservingIrcClient bob;
    QVERIFY(bob.logIn(server, QStringLiteral("bob")));
    QVERIFY(bob.sees(alice));

    windows->quit();
    KIRV_TRY(!bob.sees(alice));
    QVERIFY(windows->start());
    KIRV_TRY(isConnected(alice));
    KIRV_TRY(bob.sees(alice));
}

void tst_IrcInWindows::editWindowHasNoDirectory()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    QVERIFY(addAlice());
    KIRV_TRY(isConnected(alice));
    QDialog *window = windows->edit(alice);
    QVERIFY(window);
    QCOMPARE(KirvWindows::child<QTabWidget>(window, "EditAccount_Tabs")->count(), 1);
    const auto *fetch = KirvWindows::child<QWidget>(window, "EditAccount_PubDirFetch");
    QVERIFY(!fetch || !fetch->isVisible());
    QVERIFY(!KirvWindows::child<QWidget>(window, "EditAccount_ServerAccountButton"));
    QVERIFY(shownNetwork(window).startsWith(QStringLiteral("127.0.0.1 %1 None").arg(server.port())));
    QVERIFY(windows->save(window));
    QVERIFY(isConnected(alice));
}

void tst_IrcInWindows::disabledAccountSaysGoodbye()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    QVERIFY(addAlice());
    KIRV_TRY(isConnected(alice));
    windows->toggle(alice);
    KIRV_TRY(windows->question());
    QVERIFY(windows->question()->text().contains(alice) && windows->question()->text().contains(irc));
    QVERIFY(!server.output().contains(QLatin1String("Got QUIT command")));
    KirvWindowDriver::click(windows->question()->button(QMessageBox::Yes));
    KIRV_TRY(windows->state(alice) == QLatin1String("Disabled"));
    KIRV_TRY(server.output().contains(QLatin1String("Got QUIT command")));
    QCOMPARE(windows->row(alice)->checkState(0), Qt::Unchecked);
}

void tst_IrcInWindows::awayAndBackAreSeenByOthers()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    QVERIFY(addAlice());
    KIRV_TRY(isConnected(alice));
    KirvObservingIrcClient bob;
    QVERIFY(bob.logIn(server, QStringLiteral("bob")));
    QVERIFY(bob.awayTextOf(alice).isNull());

    QVERIFY(windows->goTo(alice, QStringLiteral("Away")));
    KIRV_TRY(bob.awayTextOf(alice) == QLatin1String("Away"));
    QVERIFY(windows->goTo(alice, QStringLiteral("Available")));
    KIRV_TRY(bob.awayTextOf(alice).isNull());
    QVERIFY(isConnected(alice));

    QVERIFY(windows->goTo(alice, QStringLiteral("Offline")));
    KIRV_TRY(!bob.sees(alice));
    KIRV_TRY(windows->state(alice) == QLatin1String("Off line"));
    QCOMPARE(windows->problem(alice), QString());
}

void tst_IrcInWindows::defaultPresenceIsSeenByOthers()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    QVERIFY(addAlice(remember));
    KIRV_TRY(isConnected(alice));
    QDialog *window = windows->edit(alice);
    QVERIFY(window);
    auto *choice = KirvWindows::child<QComboBox>(window, "EditAccount_PresenceCombo");
    if (!choice->isEnabled())
        KirvWindowDriver::pressKey(KirvWindows::child<QWidget>(window, "EditAccount_RememberPresence"), Qt::Key_Space);
    KirvWindowDriver::choose(choice, QStringLiteral("Away"));
    auto *description = KirvWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit");
    description->setFocus();
    QTest::keyClicks(description, QStringLiteral("Gone fishing"));
    QVERIFY(windows->save(window));

    QVERIFY(windows->start());
    KIRV_TRY(isConnected(alice));
    KirvObservingIrcClient bob;
    QVERIFY(bob.logIn(server, QStringLiteral("bob")));
    QCOMPARE(bob.awayTextOf(alice), QStringLiteral("Gone fishing"));
}

void tst_IrcInWindows::takenNickIsReplacedAndSaid()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    KirvObservingIrcClient other;
    QVERIFY(other.logIn(server, alice));
    QVERIFY(addAlice([](QWidget *window) {
        KirvWindows::fill(window, QStringLiteral("alternative_nicks"), QStringLiteral("wonderland"));
    }));
    KIRV_TRY(isConnected(alice));
    QVERIFY(other.sees(QStringLiteral("wonderland")));
    KIRV_TRY_CONTAINS(windows->messages(), "wonderland");
    QVERIFY(windows->messages().startsWith(alice + QLatin1String(": ")));
    QCOMPARE(windows->problem(alice), QString());
}

void tst_IrcInWindows::allNicksTakenIsSaid()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    const QStringList taken { alice, QStringLiteral("alice_"), QStringLiteral("alice__"), QStringLiteral("alice___") };
    std::vector<KirvObservingIrcClient> others(taken.size());
    for (int i = 0; i < taken.size(); ++i)
        QVERIFY(others[i].logIn(server, taken[i]));
    QVERIFY(addAlice());
    KIRV_TRY_CONTAINS(windows->problem(alice), "already in use");
    QVERIFY(windows->hasGivenUp(alice));

    KirvObservingIrcClient bob;
    QVERIFY(bob.logIn(server, QStringLiteral("bob")));
    others.clear();
    KIRV_TRY(!bob.sees(alice));
    windows->reconnect(alice);
    KIRV_TRY(isConnected(alice));
    QCOMPARE(windows->problem(alice), QString());
    QVERIFY(bob.sees(alice));
}

void tst_IrcInWindows::nickThatTheServerRefusesIsSaid()
{
    KirvNgircdServer server;
    server.setMaximumNickLength(4);
    QVERIFY(start(server));
    QVERIFY(addAlice());
    KIRV_TRY_CONTAINS(windows->problem(alice), "does not allow the name \"alice\"");
    QVERIFY(windows->hasGivenUp(alice));
}

void tst_IrcInWindows::textThatIsNoNickCannotBeTyped()
{
    KirvScriptedIrcServer silent(nullptr);
    use(silent);
    QString typed;
    QVERIFY(addAlice([&typed](QWidget *window) {
        auto *edit = KirvWindows::child<QLineEdit>(window, "AddAccount_UsernameEdit");
        KirvWindowDriver::type(edit, QStringLiteral("9#al ice"));
        typed = edit->text();
    }));
    QCOMPARE(typed, alice);
}

void tst_IrcInWindows::nickWithoutAServerIsNotAdded()
{
    QString hint;
    const auto readHint = [&hint](const QWidget *window) {
        hint = KirvWindows::child<QLabel>(window, "AddAccount_SaveHint")->text();
    };
    QVERIFY(windows->add(irc, QStringLiteral("None"), alice, secret, readHint, false));
    QCOMPARE(hint, QStringLiteral("No server is given."));
    QVERIFY(!windows->row(alice));
}

void tst_IrcInWindows::wrongServerPasswordIsSaidAndCorrected()
{
    KirvNgircdServer server;
    server.setPassword(QStringLiteral("sesame"));
    QVERIFY(start(server));
    const auto useForServer = [](QWidget *window) {
        KirvWindows::fill(window, QStringLiteral("password_use"), passwordOfServer);
    };
    QVERIFY(addAlice(useForServer, QStringLiteral("mistyped")));
    KIRV_TRY_CONTAINS(windows->problem(alice), "denied");
    KIRV_TRY_CONTAINS(windows->problem(alice), "password");
    QVERIFY(windows->hasGivenUp(alice));

    QDialog *window = windows->edit(alice);
    QVERIFY(window);
    KirvWindowDriver::type(KirvWindows::child<QLineEdit>(window, "EditAccount_Password"), QStringLiteral("sesame"));
    QVERIFY(windows->save(window));
    KIRV_TRY(isConnected(alice));
    QCOMPARE(windows->problem(alice), QString());
}

void tst_IrcInWindows::untrustedCertificateIsSaidAndCanBeTrusted()
{
    KirvNgircdServer server;
    server.setEncrypted(true);
    QVERIFY(start(server));
    QVERIFY(addAlice([](QWidget *window) { KirvWindows::fill(window, QStringLiteral("encryption"), required); }));
    KIRV_TRY_CONTAINS(windows->problem(alice), "certificate");
    KIRV_TRY(KirvWindowDriver::window(QStringLiteral("CertificateQuestion")));
    KirvWindowDriver::click(KirvWindows::child<QPushButton>(
        KirvWindowDriver::window(QStringLiteral("CertificateQuestion")), "CertificateQuestion_LeaveButton"));
    QVERIFY(windows->hasGivenUp(alice));

    QDialog *window = windows->edit(alice);
    QVERIFY(window);
    KirvWindows::fill(window, QStringLiteral("certificate"), server.certificateFile());
    QVERIFY(windows->save(window));
    windows->reconnect(alice);
    KIRV_TRY(isConnected(alice));
    QCOMPARE(windows->problem(alice), QString());
}

void tst_IrcInWindows::killedServerIsReachedAgain()
{
    KirvNgircdServer server;
    QVERIFY(start(server));
    QVERIFY(addAlice());
    KIRV_TRY(isConnected(alice));
    windows->hurry(alice);
    server.kill();
    KIRV_TRY(!isConnected(alice));
    KIRV_TRY(!windows->problem(alice).isEmpty());

    QVERIFY(start(server));
    KIRV_TRY(isConnected(alice));
    QCOMPARE(windows->problem(alice), QString());
    KirvObservingIrcClient bob;
    QVERIFY(bob.logIn(server, QStringLiteral("bob")));
    QVERIFY(bob.sees(alice));
}

void tst_IrcInWindows::hungServerIsSaid()
{
    KirvScriptedIrcServer silent(nullptr);
    use(silent);
    QVERIFY(addAlice());
    QCOMPARE(windows->state(alice), QStringLiteral("Connecting…"));
    windows->hurry(alice);
    windows->reconnect(alice);
    KIRV_TRY_CONTAINS(windows->problem(alice), "did not answer in time");
    QVERIFY(!isConnected(alice));
    // The window still answers, and the account is told to stop trying at once.
    windows->showPage(0);
    windows->toggle(alice);
    KIRV_TRY(windows->state(alice) == QLatin1String("Disabled"));
}

void tst_IrcInWindows::connectionLostWhileLoggingInIsSaid()
{
    bool isReplying = false;
    KirvScriptedIrcServer server(
        [&isReplying](const QByteArray &line) { return isReplying ? welcome(line) : QByteArray(); });
    use(server);
    QVERIFY(addAlice());
    windows->hurry(alice);
    KIRV_TRY(server.hasReceived("USER "));
    server.hangUp();
    KIRV_TRY_CONTAINS(windows->problem(alice), "lost");
    QVERIFY(!isConnected(alice));
    isReplying = true;
    KIRV_TRY(isConnected(alice));
    QCOMPARE(windows->problem(alice), QString());
}

void tst_IrcInWindows::bothProtocolsSideBySide()
{
    const QString ann = QStringLiteral("ann@localhost");
    KirvProsodyServer xmppServer;
    QVERIFY2(xmppServer.start() && xmppServer.addUser(QStringLiteral("ann"), secret),
             qPrintable(xmppServer.errorString()));
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(xmppServer.port()));
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", xmppServer.certificatePath().toLocal8Bit());
    KirvNgircdServer server;
    QVERIFY(start(server));

    QVERIFY(windows->add(xmpp, here, ann, secret, remember));
    QVERIFY(addAlice(remember));
    KIRV_TRY(isConnected(ann) && isConnected(alice));
    windows->showPage(0);
    KIRV_TRY(windows->selector()->count() == 2);
    // What is current there without the user's choice is no main account yet.
    KirvWindowDriver::choose(windows->selector(), ann);
    KirvWindowDriver::choose(windows->selector(), alice);
    KIRV_TRY_CONTAINS(windows->title(), "alice");

    QVERIFY(windows->start());
    KIRV_TRY(isConnected(ann) && isConnected(alice));
    QCOMPARE(windows->list()->topLevelItemCount(), 2);
    QCOMPARE(windows->row(ann)->text(1), xmpp);
    QCOMPARE(windows->row(alice)->text(1), irc);
    QVERIFY(KirvAccountManager::getInstance()->getMainAccount() == windows->account(alice));
    KIRV_TRY_CONTAINS(windows->title(), "alice");
    KIRV_TRY(windows->selector()->currentText() == alice);
}

QTEST_MAIN(tst_IrcInWindows)
#include "tst_irc_in_windows.moc"

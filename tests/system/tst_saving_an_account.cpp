// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_scripted_session_server.h"
#include "tests/support/store_refusal.h"
#include "tests/system/kirv_tested_account.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QComboBox>
#include <QDialog>

namespace {

const QString hereInClear = QStringLiteral("Server on this computer, unencrypted");
const QString ann = QStringLiteral("ann@localhost");
const QString oldPassword = QStringLiteral("the-old-one");
const QString newPassword = QStringLiteral("the-new-one");

} // namespace

/// What reaches the server's socket when an account is saved in its window.
class tst_SavingAnAccount : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void newPasswordIsNotSentWithTheOldEncryption_data();
    void newPasswordIsNotSentWithTheOldEncryption();
    void refusedSaveChangesNothingOutside_data();
    void refusedSaveChangesNothingOutside();
    void acceptedSaveReconnectsOnce_data();
    void acceptedSaveReconnectsOnce();

private:
    enum State { Connected, Refused, Waiting };
    static void addStates();
    /// Brings a new account into \a state; the server accepts every password afterwards.
    bool bring(int state);
    bool isInClear(const QString &password) const;
    /// Opens the edit window and enters the new password and the presence "Away"; null when it does not open.
    QDialog *enterChanges();

    KirvProsodyServer certified; ///< has the certificate that the other server uses
    std::unique_ptr<KirvScriptedSessionServer> server;
    std::unique_ptr<KirvWindows> windows;
    std::unique_ptr<KirvTestedAccount> account;
};

void tst_SavingAnAccount::initTestCase()
{
    QVERIFY2(certified.start(), qPrintable(certified.errorString()));
    certified.kill();
}

void tst_SavingAnAccount::init()
{
    server = std::make_unique<KirvScriptedSessionServer>();
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(server->serverPort()));
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
    account = std::make_unique<KirvTestedAccount>(*windows, ann);
}

void tst_SavingAnAccount::cleanup()
{
    account.reset();
    windows.reset();
    server.reset();
}

void tst_SavingAnAccount::addStates()
{
    QTest::addColumn<int>("state");
    QTest::newRow("connected") << int(Connected);
    QTest::newRow("off line after a refused password") << int(Refused);
    QTest::newRow("waiting for the next attempt") << int(Waiting);
}

bool tst_SavingAnAccount::bring(int state)
{
    const QString refused = QStringLiteral("password");
    server->setPassword(state == Refused ? "another one" : "");
    if (!account->create(oldPassword, hereInClear, "available"))
        return false;
    account->waitForAnswers(kirvPatience);
    const auto isThere = [&] {
        return state == Refused ? windows->problem(ann).contains(refused) && account->isSettled()
                                : account->isConnected() && !server->presences().isEmpty();
    };
    if (!QTest::qWaitFor(isThere, kirvPatience))
        return false;
    server->setPassword("");
    if (state != Waiting)
        return true;
    server->goAway();
    return QTest::qWaitFor([this] { return windows->state(ann).startsWith("Waiting"); }, kirvPatience)
        && server->comeBack();
}

bool tst_SavingAnAccount::isInClear(const QString &password) const
{
    const QByteArray raw = password.toUtf8();
    const QByteArray received = server->receivedInClear();
    for (const QByteArray &message : { QByteArray('\0' + QByteArray("ann") + '\0' + raw), raw }) {
        if (received.contains(message) || received.contains(message.toBase64()))
            return true;
    }
    return false;
}

QDialog *tst_SavingAnAccount::enterChanges()
{
    QDialog *window = account->openEditWindow();
    if (window) {
        KirvTestedAccount::typePassword(window, newPassword);
        KirvWindowDriver::choose(KirvWindows::child<QComboBox>(window, "EditAccount_PresenceCombo"), "Away");
    }
    return window;
}

void tst_SavingAnAccount::newPasswordIsNotSentWithTheOldEncryption_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isOffered");
    for (bool isOffered : { false, true }) {
        const char *offer = isOffered ? "offered" : "not offered";
        QTest::addRow("connected, encryption %s", offer) << int(Connected) << isOffered;
        QTest::addRow("off line after a refused password, encryption %s", offer) << int(Refused) << isOffered;
        QTest::addRow("waiting for the next attempt, encryption %s", offer) << int(Waiting) << isOffered;
    }
}

void tst_SavingAnAccount::newPasswordIsNotSentWithTheOldEncryption()
{
    QFETCH(int, state);
    QFETCH(bool, isOffered);
    QVERIFY(bring(state));
    QVERIFY(isInClear(oldPassword)); // this is seen when it happens
    const int connections = server->connections();
    if (isOffered)
        QVERIFY(server->offerEncryption(certified.certificatePath(), certified.folder() + "/localhost.key"));

    QDialog *window = account->openEditWindow();
    QVERIFY(window);
    KirvTestedAccount::typePassword(window, newPassword);
    KirvWindows::fill(window, "encryption", "Required");
    if (isOffered)
        KirvWindows::fill(window, "certificate", certified.certificatePath());
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());
    KIRV_TRY(server->connections() > connections && account->isSettled());

    QVERIFY2(!isInClear(newPassword), "The new password was sent in clear.");
    QCOMPARE(account->isConnected(), isOffered);
    QCOMPARE(server->passwords().contains(newPassword.toUtf8()), isOffered);
    QCOMPARE(server->connections(), connections + 1);
}

void tst_SavingAnAccount::refusedSaveChangesNothingOutside_data()
{
    addStates();
}

void tst_SavingAnAccount::refusedSaveChangesNothingOutside()
{
    QFETCH(int, state);
    QVERIFY(bring(state));
    const int connections = server->connections();
    QDialog *window = enterChanges();
    QVERIFY(window);
    StoreRefusal refusal(windows->profileFolder());
    QVERIFY(refusal.holds());
    KirvTestedAccount::pressSave(window);
    QVERIFY(account->confirmRefusedSave());
    KirvTestedAccount::pressCancel(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());
    refusal.end();

    QCOMPARE(account->password(), oldPassword);
    windows->reconnect(ann);
    KIRV_TRY(server->connections() > connections && account->isConnected());
    KIRV_TRY(server->lastPresence().contains("photo"));
    QVERIFY2(!server->passwords().contains(newPassword.toUtf8()), "The refused password was used.");
    QVERIFY2(!server->presences().join().contains("away"), "The refused presence was sent.");
    QCOMPARE(server->connections(), connections + 1);
}

void tst_SavingAnAccount::acceptedSaveReconnectsOnce_data()
{
    addStates();
}

void tst_SavingAnAccount::acceptedSaveReconnectsOnce()
{
    QFETCH(int, state);
    QVERIFY(bring(state));
    const int connections = server->connections();
    QDialog *window = enterChanges();
    QVERIFY(window);
    KirvWindows::fill(window, "resource", "elsewhere");
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());
    KIRV_TRY(server->connections() > connections && account->isConnected());
    KIRV_TRY(server->lastPresence().contains("away") && server->lastPresence().contains("photo"));
    QCOMPARE(server->passwords().last(), newPassword.toUtf8());
    QCOMPARE(server->resources().last(), QByteArray("elsewhere"));
    QCOMPARE(server->connections(), connections + 1);
}

QTEST_MAIN(tst_SavingAnAccount)
#include "tst_saving_an_account.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/kirv_patience.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

using State = KirvConnection::State;

const KirvPresence available(QStringLiteral("available"), QStringLiteral("Available"), QString());
const KirvPresence away(QStringLiteral("away"), QStringLiteral("Away"), QString());

} // namespace

class tst_Reconciler : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    // When it acts.
    void nothingHappensBeforeTheEventLoop();
    void severalChangesInOneSaveMakeOneStep();
    void nothingHappensWhileASaveIsOpen();
    void nestedSavesAreOne();
    void passwordAndSettingsOfASaveReachTheServerTogether();
    void aRefusedSaveChangesNothingOutside();
    void aRefusedSaveTriesNothingAgain();
    void aSaveWithoutAnyDifferenceKeepsTheSession();
    void whatTheServerDoesMeanwhileIsTakenIntoAccount();

    // Passwords that the server has changed.
    void aPasswordAcceptedByTheServerMakesNoReconnection();
    void aPasswordThatTheStoreRefusesIsStoredLater();
    void aPasswordAcceptedWhileARefusedSaveIsOpenStays();

    // Accounts that are not wanted any more.
    void aDisabledAccountIsNotLoggedInAtOnce();
    void aRemovedAccountIsNotLoggedInAtOnce();
    void aRemovedAccountDoesNotComeBack();
    void itsConnectionOutlivesARemovedAccount();

    // Steps that are requested.
    void tryingAgainEndsAWait();
    void tryingAgainKeepsASession();
    void reconnectingLogsOutAndInOnce();
    void aRequestedStepIsForgottenOnceItWasTaken();
    void aRequestedStepDuringASaveWaitsForItsEnd();
    void accountPresenceChangedOnlyMarks();

    // Avatars.
    void anAvatarIsKnownBeforeTheLogIn();
    void anAvatarIsNotPublishedOverASessionThatEnds();
    void aSlotMayChangeTheAccountWhileTheAvatarIsPublished();

    void itStopsForGood();
    void aConnectionMayGoBeforeItsTurn();

private:
    KirvAccount *online();

    std::unique_ptr<KirvAccountsFixture> core;
};

void tst_Reconciler::initTestCase()
{
    qRegisterMetaType<KirvAccount *>("KirvAccount*");
}

void tst_Reconciler::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
}

void tst_Reconciler::cleanup()
{
    core.reset();
}

/// A new account that is logged in.
KirvAccount *tst_Reconciler::online()
{
    core->bring(QStringLiteral("id"), State::Online);
    return core->account();
}

void tst_Reconciler::nothingHappensBeforeTheEventLoop()
{
    QVERIFY(core->create());
    QCOMPARE(core->server().calls, QStringList());
    QCOMPARE(core->connection()->state(), State::Offline);
    QCOMPARE(core->takeCalls(), QStringList { "id log in available word of id" });

    core->account()->setPassword("new");
    core->account()->setPresence(away);
    QCOMPARE(core->server().calls, QStringList());
    QCOMPARE(core->connection()->login().password, QString("word of id"));
    QCOMPARE(core->connection()->presence().getId(), QString("available"));
    QCOMPARE(core->takeCalls(), (QStringList { "id log out", "id log in away new" }));
}

void tst_Reconciler::severalChangesInOneSaveMakeOneStep()
{
    KirvAccount *account = online();
    account->beginSave();
    core->changeEverything(account);
    core->protocol->accountPresenceChanged(account);
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), (QStringList { "id log out", "id log in away new", "id avatar" }));
}

void tst_Reconciler::nothingHappensWhileASaveIsOpen()
{
    KirvAccount *account = online();
    account->beginSave();
    core->changeEverything(account);
    core->protocol->accountPresenceChanged(account);
    account->reconnect();
    QCOMPARE(core->takeCalls(), QStringList());
    core->connection()->serverGoes();
    QCOMPARE(core->takeCalls(), QStringList { "id abort" });
    QVERIFY(account->endSave());
    QCOMPARE(core->server().calls, QStringList());
    QCOMPARE(core->takeCalls(), QStringList { "id log in away new" });
}

void tst_Reconciler::nestedSavesAreOne()
{
    KirvAccount *account = online();
    account->beginSave();
    account->setPassword("first");
    account->beginSave();
    account->setPassword("second");
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), (QStringList { "id log out", "id log in available second" }));
}

void tst_Reconciler::passwordAndSettingsOfASaveReachTheServerTogether()
{
    KirvAccount *account = online();
    QList<KirvLogin> used;
    core->connection()->onLogIn = [&] {
        used << core->connection()->login();
        core->connection()->loginSucceeded();
    };
    account->beginSave();
    account->setPassword("new");
    account->setPresence(account->getDefaultPresence());
    core->protocol->accountPresenceChanged(account);
    core->settle();
    account->setAccountSettings({ KirvField::textEdit(QString(), "server", "required", QString()) });
    QVERIFY(account->endSave());
    core->settle();
    QCOMPARE(used.size(), 1);
    QCOMPARE(used.first().password, QString("new"));
    QCOMPARE(used.first().settings, account->settings());
    QCOMPARE(used.first().settings.at(1).getText(), QString("required"));
}

void tst_Reconciler::aRefusedSaveTriesNothingAgain()
{
    KirvAccount *account = online();
    core->connection()->serverGoes();
    core->takeCalls();
    QCOMPARE(core->connection()->state(), State::Waiting);
    core->setStoreFull(true);
    account->beginSave();
    account->tryAgain();
    account->setAlias(core->storeFiller());
    QVERIFY(!account->endSave());
    QCOMPARE(core->takeCalls(), QStringList());
    core->setStoreFull(false);
    account->tryAgain();
    QCOMPARE(core->takeCalls(), QStringList { "id log in available word of id" });
}

void tst_Reconciler::aRefusedSaveChangesNothingOutside()
{
    KirvAccount *account = online();
    const KirvLogin login = core->connection()->login();
    core->setStoreFull(true);
    account->beginSave();
    core->changeEverything(account);
    core->protocol->accountPresenceChanged(account);
    account->setAlias(core->storeFiller());
    QVERIFY(!account->endSave());
    core->setStoreFull(false);
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(account->isOnline());
    QCOMPARE(core->connection()->login(), login);
    QCOMPARE(core->connection()->presence().getId(), QString("available"));
    QCOMPARE(core->connection()->avatar().path, QString());
    // Also later, when the server ends the session.
    core->connection()->serverGoes();
    account->tryAgain();
    QCOMPARE(core->takeCalls(), (QStringList { "id abort", "id log in available word of id" }));
}

void tst_Reconciler::aSaveWithoutAnyDifferenceKeepsTheSession()
{
    KirvAccount *account = online();
    account->beginSave();
    account->setPassword(account->getPassword());
    account->setPresence(account->presence());
    account->setAccountSettings(account->getAccountSettingsInOrder());
    core->protocol->accountPresenceChanged(account);
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_Reconciler::whatTheServerDoesMeanwhileIsTakenIntoAccount()
{
    KirvAccount *account = online();
    account->setPassword("new");
    core->connection()->serverGoes(); // before the reconciler's turn
    QCOMPARE(core->takeCalls(), (QStringList { "id abort", "id log in available new" }));
    account->setPresence(away);
    account->setPresence(available);
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_Reconciler::aPasswordAcceptedByTheServerMakesNoReconnection()
{
    KirvAccount *account = online();
    QVERIFY(account->acceptServerPassword("changed"));
    QCOMPARE(core->takeCalls(), QStringList());
    account->tryAgain(); // compares
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(account->isOnline());
    QVERIFY(!account->hasUnstoredPassword());
    QCOMPARE(core->store.readAccounts().first().password, QString("changed"));
    account->reconnect();
    QCOMPARE(core->takeCalls(), (QStringList { "id log out", "id log in available changed" }));
}

void tst_Reconciler::aPasswordThatTheStoreRefusesIsStoredLater()
{
    KirvAccount *account = online();
    QSignalSpy refused(account, &KirvAccount::refused);
    const QString folder = core->store.folder();
    core->store.close();
    QVERIFY(!account->acceptServerPassword("changed"));
    QCOMPARE(refused.size(), 1);
    QVERIFY(account->hasUnstoredPassword());
    QCOMPARE(account->getPassword(), QString("changed"));
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(!account->change([](KirvAccountRecord &record) { record.alias = "refused, too"; }));
    QVERIFY(account->hasUnstoredPassword());
    QCOMPARE(account->getPassword(), QString("changed"));

    QVERIFY(core->store.open(folder));
    QCOMPARE(core->store.readAccounts().first().password, QString("word of id"));
    account->beginSave(); // without any change
    QVERIFY(account->endSave());
    QVERIFY(!account->hasUnstoredPassword());
    QCOMPARE(core->store.readAccounts().first().password, QString("changed"));
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_Reconciler::aPasswordAcceptedWhileARefusedSaveIsOpenStays()
{
    KirvAccount *account = online();
    account->beginSave();
    core->changeEverything(account);
    account->acceptServerPassword("changed");
    core->setStoreFull(true);
    account->setAlias(core->storeFiller());
    QVERIFY(!account->endSave());
    core->setStoreFull(false);
    QCOMPARE(account->getPassword(), QString("changed"));
    QCOMPARE(account->getAlias(), QString("Alias of id"));
    QCOMPARE(core->store.readAccounts().first().password, QString("changed"));
    QCOMPARE(core->store.readAccounts().first().alias, QString("Alias of id"));
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_Reconciler::aDisabledAccountIsNotLoggedInAtOnce()
{
    KirvAccount *account = online();
    core->server().logOut = KirvFakeServer::Holds;
    account->setEnabled(false);
    QVERIFY(!account->isLoggedIn());
    QVERIFY(core->connection()->isLoggedIn());
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
    QVERIFY(!account->isLoggedIn());
    account->setEnabled(true); // before the server has replied
    core->settle();
    core->connection()->serverAccepts();
    QCOMPARE(core->takeCalls(), QStringList { "id log in available word of id" });
    QVERIFY(account->isLoggedIn());
}

void tst_Reconciler::aRemovedAccountIsNotLoggedInAtOnce()
{
    const QPointer<KirvAccount> account(online());
    const QPointer<KirvFakeConnection> connection(core->connection());
    core->manager().removeAccount("id", core->fake);
    QVERIFY(account && connection);
    QVERIFY(!account->isLoggedIn());
    QVERIFY(connection->isLoggedIn());
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
    KIRV_TRY(!account && !connection);
}

void tst_Reconciler::aRemovedAccountDoesNotComeBack()
{
    const QPointer<KirvAccount> account(online());
    const QPointer<KirvFakeConnection> connection(core->connection());
    core->server().logOut = KirvFakeServer::Holds;
    account->reconnect();
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
    QVERIFY(connection->willLogInAgain());
    core->manager().removeAccount("id", core->fake);
    connection->serverAccepts(); // before the reconciler's turn
    KIRV_TRY(!account);
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_Reconciler::itsConnectionOutlivesARemovedAccount()
{
    const QPointer<KirvAccount> account(online());
    const QPointer<KirvFakeConnection> connection(core->connection());
    core->server().logOut = KirvFakeServer::Holds;
    core->manager().removeAccount("id", core->fake);
    core->settleAndDelete();
    QVERIFY(account && connection);
    QCOMPARE(connection->state(), State::Disconnecting);
    account->tryAgain();
    account->reconnect();
    core->settle();
    QVERIFY(!connection->willLogInAgain());
    connection->serverAccepts();
    KIRV_TRY(!account && !connection);
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
}

void tst_Reconciler::tryingAgainEndsAWait()
{
    core->bring("id", State::Waiting);
    core->account()->tryAgain();
    QCOMPARE(core->takeCalls(), QStringList { "id log in available word of id" });
}

void tst_Reconciler::tryingAgainKeepsASession()
{
    online()->tryAgain();
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_Reconciler::reconnectingLogsOutAndInOnce()
{
    KirvAccount *account = online();
    account->reconnect();
    account->reconnect();
    QCOMPARE(core->takeCalls(), (QStringList { "id log out", "id log in available word of id" }));
    core->setPresence("offline");
    core->takeCalls();
    account->reconnect();
    QCOMPARE(core->takeCalls(), QStringList { "id log in available word of id" });
}

void tst_Reconciler::aRequestedStepIsForgottenOnceItWasTaken()
{
    core->server().logIn = KirvFakeServer::Refuses;
    QVERIFY(core->create());
    core->takeCalls();
    core->account()->tryAgain();
    QCOMPARE(core->takeCalls(), (QStringList { "id log in available word of id", "id abort" }));
    core->account()->setAlias("something else");
    QCOMPARE(core->takeCalls(), QStringList());
    QCOMPARE(core->connection()->state(), State::Offline);
}

void tst_Reconciler::aRequestedStepDuringASaveWaitsForItsEnd()
{
    core->bring("id", State::Waiting);
    core->account()->beginSave();
    core->account()->tryAgain();
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(core->account()->endSave());
    QCOMPARE(core->takeCalls(), QStringList { "id log in available word of id" });
}

void tst_Reconciler::accountPresenceChangedOnlyMarks()
{
    core->bring("id", State::Waiting);
    core->protocol->accountPresenceChanged(core->account());
    QCOMPARE(core->server().calls, QStringList());
    QCOMPARE(core->takeCalls(), QStringList { "id log in available word of id" });
}

void tst_Reconciler::anAvatarIsKnownBeforeTheLogIn()
{
    QVERIFY(core->create());
    core->account()->setAvatar(core->makePicture());
    QString path;
    core->connection()->onLogIn = [&] { path = core->connection()->avatar().path; };
    core->settle();
    QCOMPARE(path, core->account()->avatarPath());
    QVERIFY(!path.isEmpty());
}

void tst_Reconciler::anAvatarIsNotPublishedOverASessionThatEnds()
{
    KirvAccount *account = online();
    core->server().logOut = KirvFakeServer::Holds;
    account->beginSave();
    account->setAvatar(core->makePicture());
    account->setPassword("new");
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
    QCOMPARE(core->connection()->avatar().path, account->avatarPath());
    core->connection()->serverAccepts();
    QCOMPARE(core->takeCalls(), QStringList { "id log in available new" });

    account->setEnabled(false);
    account->setAvatar(core->makePicture());
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
}

void tst_Reconciler::aSlotMayChangeTheAccountWhileTheAvatarIsPublished()
{
    KirvAccount *account = online();
    core->connection()->onAvatar = [&] {
        core->connection()->onAvatar = nullptr;
        account->setEnabled(false);
    };
    account->beginSave();
    account->setAvatar(core->makePicture());
    account->setPresence(away);
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), (QStringList { "id avatar", "id log out" }));
}

void tst_Reconciler::itStopsForGood()
{
    KirvAccount *account = online();
    account->stopReconciling();
    account->setPassword("new");
    account->tryAgain();
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_Reconciler::aConnectionMayGoBeforeItsTurn()
{
    KirvAccount *account = online();
    account->setPassword("new");
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    QCOMPARE(core->takeCalls(), QStringList { "id abort" });
    core->accounts->protocolLoaded(core->protocol.get());
    QCOMPARE(core->takeCalls(), QStringList { "id log in available new" });
}

QTEST_GUILESS_MAIN(tst_Reconciler)
#include "tst_reconciler.moc"

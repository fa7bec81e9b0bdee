// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_accounts_fixture.h"

#include <QHash>
#include <QtTest>
#include <functional>

/// Slots that interfere: they remove accounts, unload the protocol or end the core while it emits a signal.
class tst_AccountSlots : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aSlotMayInterfereAnywhere_data();
    void aSlotMayInterfereAnywhere();
    void aSlotMayRefuseANewAccountByRemovingIt();
    void aSlotMayDisableWhatIsBeingEnabled();
    void aSlotMayLoadTheProtocolAgainWhileItIsUnloaded();
    void anAccountDestroyedByASlotLeavesTheLists();
    void eachSignalOfARemovalMayEndTheCore_data();
    void eachSignalOfARemovalMayEndTheCore();

private:
    void act(const QString &action);
    void interfere(const QString &how);

    std::unique_ptr<KirvAccountsFixture> core;
    bool isInterfering = false;
    int interferences = 0;
};

void tst_AccountSlots::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    interferences = 0;
}

void tst_AccountSlots::cleanup()
{
    core.reset();
}

void tst_AccountSlots::aSlotMayInterfereAnywhere_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("how");
    for (const char *how : { "remove", "remove all", "unload", "end" }) {
        for (const char *action :
             { "alias",    "save",       "refused save", "enable",          "disable",
               "log in",   "log out",    "fail",         "no password",     "presence",
               "avatar",   "bad avatar", "password",     "server password", "refused server password",
               "create",   "unload",     "destroy",      "reload",          "log out all",
               "answer",   "refusal",    "notice",       "connect",         "remove another",
               "reconnect" }) {
            QTest::addRow("%s: %s", action, how) << action << how;
        }
    }
}

void tst_AccountSlots::aSlotMayInterfereAnywhere()
{
    QFETCH(QString, action);
    QFETCH(QString, how);
    core->bring(QStringLiteral("other"), KirvConnection::Online);
    core->bring(QStringLiteral("id"), KirvConnection::Online);
    if (action == QLatin1String("enable"))
        core->manager().disableAccount("id", core->fake);
    if (action == QLatin1String("log in"))
        core->setPresence("offline");
    if (action == QLatin1String("reload"))
        core->accounts->protocolAboutToBeUnloaded(core->fake);
    core->settle();

    QObject context;
    const auto slot = [&] { interfere(how); };
    connect(core->accounts.get(), &KirvAccountCollection::accountChanged, &context, slot);
    connect(core->accounts.get(), &KirvAccountCollection::problemOccurred, &context, slot);
    connect(core->accounts.get(), &KirvAccountCollection::accountAdded, &context, slot);
    connect(core->accounts.get(), &KirvAccountCollection::passwordNeeded, &context, slot);
    connect(core->accounts.get(), &KirvAccountCollection::noticeReceived, &context, slot);
    connect(core->accounts.get(), &KirvAccountCollection::accountAboutToBeRemoved, &context, slot);
    connect(core->accounts.get(), &KirvAccountCollection::accountRemoved, &context, slot);
    connect(&core->account()->directory(), &KirvAccountDirectory::answered, &context, slot);

    act(action);
    KirvAccountsFixture::settleAndDelete();
    QVERIFY2(interferences > 0, "Nothing was emitted.");
    if (how.startsWith(QLatin1String("remove")))
        QVERIFY(!core->account());
    if (how != QLatin1String("remove") || !core->protocol)
        return;
    core->accounts->disconnect(&context);
    core->restart();
    QVERIFY(!core->idsOf(core->fake).contains("id"));
}

/// Once in a slot of itself is enough.
void tst_AccountSlots::interfere(const QString &how)
{
    ++interferences;
    if (std::exchange(isInterfering, true))
        return;
    if (how == QLatin1String("end")) {
        core->endCore();
    } else if (how == QLatin1String("unload")) {
        core->accounts->protocolAboutToBeUnloaded(core->fake);
    } else {
        if (how == QLatin1String("remove all"))
            core->manager().removeAccount("other", core->fake);
        core->manager().removeAccount("id", core->fake);
    }
    KirvAccountsFixture::settleAndDelete(); // as a window's own event loop would
    isInterfering = false;
}

/// Does to the account "id" what \a action says.
void tst_AccountSlots::act(const QString &action)
{
    KirvAccount *account = core->account();
    KirvFakeConnection *connection = core->connection();
    const auto save = [=] {
        account->beginSave();
        core->changeEverything(account);
        account->directory().publish({ KirvField::textEdit("", "name", "Ann", "") });
    };
    const QHash<QString, std::function<void()>> actions {
        { "alias", [=] { account->setAlias("new"); } },
        { "save", [=] { save(), account->endSave(); } },
        { "refused save",
          [=] {
              save();
              core->setStoreFull(true);
              account->setAlias(core->storeFiller());
              account->endSave();
          } },
        { "enable", [=] { core->manager().enableAccount("id", core->fake); } },
        { "disable", [=] { core->manager().disableAccount("id", core->fake); } },
        { "log in", [=] { core->setPresence("available"); } },
        { "log out", [=] { connection->logOut(); } },
        { "fail", [=] { connection->serverGoes(); } },
        { "no password", [=] { connection->connectionLost(KirvFailure::PasswordMissing); } },
        { "presence", [=] { core->setPresence("away"); } },
        { "avatar", [=] { account->setAvatar(core->makePicture()); } },
        { "bad avatar", [=] { account->setAvatar("/nowhere"); } },
        { "password", [=] { account->providePassword("new", true); } },
        { "server password", [=] { account->acceptServerPassword("new"); } },
        { "refused server password",
          [=] {
              core->setStoreFull(true);
              account->acceptServerPassword(core->storeFiller());
          } },
        { "create", [=] { core->create("new"); } },
        { "unload", [=] { core->accounts->protocolAboutToBeUnloaded(core->fake); } },
        { "destroy", [=] { core->protocol.reset(); } },
        { "reload", [=] { core->accounts->protocolLoaded(core->protocol.get()); } },
        { "log out all", [=] { core->accounts->logOutAll(1000); } },
        { "answer", [=] { account->directory().fetch(); } },
        { "refusal",
          [=] {
              core->server().directory = KirvFakeServer::Refuses;
              account->directory().deleteEntry();
          } },
        { "notice", [=] { Q_EMIT connection->noticeReceived("Good morning."); } },
        { "connect",
          [=] {
              core->server().logIn = KirvFakeServer::Refuses;
              account->reconnect();
          } },
        { "remove another", [=] { core->manager().removeAccount("other", core->fake); } },
        { "reconnect", [=] { account->reconnect(); } },
    };
    actions.value(action)();
}

void tst_AccountSlots::aSlotMayRefuseANewAccountByRemovingIt()
{
    connect(core->accounts.get(), &KirvAccountCollection::accountAdded, this, [](KirvAccount *added) {
        KirvAccountsFixture::manager().removeAccount(added->getUid(), added->getProtocolName());
    });
    QVERIFY(!core->create());
    QVERIFY(core->accounts->accounts().isEmpty());
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_AccountSlots::aSlotMayDisableWhatIsBeingEnabled()
{
    QVERIFY(core->create());
    core->manager().disableAccount("id", core->fake);
    core->takeCalls();
    const auto connection = connect(core->accounts.get(), &KirvAccountCollection::accountChanged, this,
                                    [this] { core->manager().disableAccount("id", core->fake); });
    core->manager().enableAccount("id", core->fake);
    QCOMPARE(core->takeCalls(), QStringList());
    disconnect(connection);
    QVERIFY(!core->account()->isEnabled() && !core->account()->isLoggedIn());
}

void tst_AccountSlots::aSlotMayLoadTheProtocolAgainWhileItIsUnloaded()
{
    core->bring(QStringLiteral("id"), KirvConnection::Online);
    core->bring(QStringLiteral("other"), KirvConnection::Online);
    KirvFakeProtocol next;
    const auto connection =
        connect(core->accounts.get(), &KirvAccountCollection::accountChanged, this, [&](KirvAccount *account) {
            if (!account->isLoaded())
                core->accounts->protocolLoaded(&next);
        });
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    disconnect(connection);
    core->settle();
    for (const QString &id : { QStringLiteral("id"), QStringLiteral("other") }) {
        QVERIFY2(core->account(id)->isLoggedIn(), qPrintable(id));
        QCOMPARE(core->account(id)->protocol(), &next);
    }
    QCOMPARE(core->server().connections, 0);
    core->accounts->protocolAboutToBeUnloaded(core->fake);
}

void tst_AccountSlots::anAccountDestroyedByASlotLeavesTheLists()
{
    core->bring(QStringLiteral("other"), KirvConnection::Online);
    core->bring(QStringLiteral("id"), KirvConnection::Online);
    const QPointer<KirvAccount> leaving(core->account());
    connect(core->accounts.get(), &KirvAccountCollection::accountAboutToBeRemoved, this,
            [] { KirvAccountsFixture::settleAndDelete(); });
    core->manager().removeAccount("id", core->fake);
    QVERIFY(!leaving);
    QVERIFY(!core->account());
    QCOMPARE(core->accounts->accounts(), QList<KirvAccount *> { core->account("other") });
    QCOMPARE(core->accounts->accountsOf(core->fake), QList<KirvAccount *> { core->account("other") });
    QCOMPARE(core->idsOf(core->fake), QStringList { "other" });
}

void tst_AccountSlots::eachSignalOfARemovalMayEndTheCore_data()
{
    QTest::addColumn<bool>("before");
    QTest::newRow("accountAboutToBeRemoved") << true;
    QTest::newRow("accountRemoved") << false;
}

void tst_AccountSlots::eachSignalOfARemovalMayEndTheCore()
{
    QFETCH(bool, before);
    core->bring(QStringLiteral("id"), KirvConnection::Online);
    if (before)
        connect(core->accounts.get(), &KirvAccountCollection::accountAboutToBeRemoved, this, [&] { core->endCore(); });
    else
        connect(core->accounts.get(), &KirvAccountCollection::accountRemoved, this, [&] { core->endCore(); });
    core->manager().removeAccount("id", core->fake);
    QVERIFY(!core->accounts);
    QVERIFY(core->store.readAccounts().isEmpty());
}

QTEST_GUILESS_MAIN(tst_AccountSlots)
#include "tst_account_slots.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>
#include <functional>

/// Accounts from their creation to their removal, and protocols that come and go under them.
class tst_Accounts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<KirvAccount *>("KirvAccount*"); }

    void init()
    {
        core = std::make_unique<KirvAccountsFixture>();
        QVERIFY(core->isReady());
    }

    void cleanup() { core.reset(); }

    // Creating

    void aNewAccountIsStoredEnabledLoadedAndLoggedIn()
    {
        QSignalSpy added(core->accounts.get(), &KirvAccountCollection::accountAdded);
        const int commits = core->store.commitCount();
        KirvAccountConnection *connection = core->manager().createAccount(
            "id", "Alias", "word", true, core->protocol.get(), core->protocol->createPresenceWithId("away", "at lunch"),
            { KirvField::textEdit("", "server", "talk.example.org", ""),
              KirvField::checkBox("", "encrypted", false, "") });
        QVERIFY(connection);
        QCOMPARE(core->store.commitCount(), commits + 1);
        QCOMPARE(added.size(), 1);
        QCOMPARE(core->server().calls, QStringList());
        QVERIFY(!connection->isLoggedIn());
        QCOMPARE(core->takeCalls(), QStringList({ "id log in away word" }));
        QCOMPARE(connection, core->account("id"));
        QCOMPARE(core->manager().getAccount("id", core->fake), connection);
        QCOMPARE(connection->getUid(), QStringLiteral("id"));
        QCOMPARE(connection->getProtocolName(), core->fake);
        QCOMPARE(connection->getProtocol(), core->protocol.get());
        QCOMPARE(connection->getAlias(), QStringLiteral("Alias"));
        QVERIFY(connection->isEnabled() && connection->isLoggedIn());
        QVERIFY(core->accounts->lastError().isEmpty());

        core->restart();
        QCOMPARE(core->takeCalls().last(), QStringLiteral("id log in away word"));
        connection = core->account("id");
        QVERIFY(connection && connection->isLoggedIn());
        QCOMPARE(connection->getDefaultPresence().getId(), QStringLiteral("away"));
        QCOMPARE(connection->getDefaultPresence().getDescription(), QStringLiteral("at lunch"));
        QCOMPARE(connection->getDefaultPresence().getDisplay(), QStringLiteral("Away"));
        QCOMPARE(core->valuesOf(connection), QStringList({ "Read me", "talk.example.org", "5222", "-", "" }));
    }

    void anAccountThatCannotBeCreatedIsRefused_data()
    {
        QTest::addColumn<QString>("why");
        QTest::addColumn<bool>("isSaid");
        QTest::newRow("it exists") << "exists" << true;
        QTest::newRow("no protocol") << "no protocol" << false;
        QTest::newRow("the protocol is not loaded") << "not loaded" << true;
        QTest::newRow("no login") << "no login" << true;
        QTest::newRow("the store refuses") << "full" << true;
    }

    void anAccountThatCannotBeCreatedIsRefused()
    {
        QFETCH(QString, why);
        QFETCH(bool, isSaid);
        QVERIFY(core->create("first"));
        QSignalSpy added(core->accounts.get(), &KirvAccountCollection::accountAdded);
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        QSignalSpy refusals(core->accounts.get(), &KirvAccountCollection::creationRefused);
        if (why == QLatin1String("not loaded"))
            core->accounts->protocolAboutToBeUnloaded(core->fake);
        if (why == QLatin1String("full"))
            core->setStoreFull(true);
        KirvFakeProtocol *used = why == QLatin1String("no protocol") ? nullptr : core->protocol.get();
        const QString id = QLatin1String(why == QLatin1String("exists")         ? "first"
                                             : why == QLatin1String("no login") ? ""
                                                                                : "second");
        const QString large(100000, QLatin1Char('x'));
        QVERIFY(!core->manager().createAccount(id, large, "word", true, used, KirvPresence(), {}));
        QCOMPARE(added.size(), 0);
        QCOMPARE(core->accounts->accounts().size(), 1);
        QCOMPARE(core->manager().getAccountsInfo(core->fake).size(), 1);
        QCOMPARE(problems.size(), 0);
        QCOMPARE(refusals.size(), int(isSaid));
        if (isSaid)
            QCOMPARE(refusals.first().last().toString(), core->accounts->lastError());
        if (used)
            QVERIFY(!core->accounts->lastError().isEmpty());
        core->setStoreFull(false);
        core->restart();
        QCOMPARE(core->idsOf(core->fake), QStringList({ "first" }));
        QCOMPARE(core->account("first")->getAlias(), QStringLiteral("Alias of first"));
    }

    void theSameLoginOfAnotherProtocolIsAnotherAccount()
    {
        KirvFakeProtocol other(QStringLiteral("Other"));
        core->accounts->protocolLoaded(&other);
        QVERIFY(core->create("id"));
        QVERIFY(core->manager().createAccount("id", "of the other", "", false, &other, KirvPresence(), {}));
        QCOMPARE(core->manager().getAccount("id", core->fake)->getAlias(), QStringLiteral("Alias of id"));
        QCOMPARE(core->manager().getAccount("id", "Other")->getAlias(), QStringLiteral("of the other"));
        core->manager().removeAccount("id", core->fake);
        QVERIFY(!core->manager().getAccount("id", core->fake));
        QVERIFY(core->manager().getAccount("id", "Other"));
        core->accounts->protocolAboutToBeUnloaded("Other");
    }

    void anotherSpellingOfALoginIsTheSameAccount()
    {
        core->protocol->normalize = [](const QString &login) { return login.toLower(); };
        core->restart();
        QVERIFY(core->create("Name"));
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        QVERIFY(!core->create("nAME"));
        QCOMPARE(problems.size(), 0); // the page says so
        QVERIFY2(core->accounts->lastError().contains("Name") && core->accounts->lastError().contains("nAME"),
                 qPrintable(core->accounts->lastError()));
        QCOMPARE(core->idsOf(core->fake), QStringList({ "Name" })); // as it was typed
        QVERIFY(core->create("other"));

        core->restart();
        QVERIFY(!core->create("NAME"));
        core->manager().removeAccount("Name", core->fake);
        QVERIFY(core->create("NAME"));
        QVERIFY(!core->create("Name"));
    }

    void storedSpellingsOfALoginStayAndAreNamed()
    {
        for (const char *id : { "Name", "single", "NAME", "two", "Two", "name" })
            QVERIFY(core->create(id));
        core->protocol->normalize = [](const QString &login) { return login.toLower(); };
        std::unique_ptr<QSignalSpy> problems;
        core->restart(true, [&] {
            problems = std::make_unique<QSignalSpy>(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        });
        QCOMPARE(core->accounts->accounts().size(), 6);
        QCOMPARE(problems->size(), 1);
        const QString said = problems->first().first().toString();
        QVERIFY2(said.contains("Name") && said.contains("NAME") && said.contains("1") && !said.contains("single"),
                 qPrintable(said));

        // Those that are there can be used and removed, and the login is known until the last of them is gone.
        core->manager().removeAccount("Name", core->fake);
        QVERIFY(core->account("NAME") && core->account("name"));
        QVERIFY(!core->create("nAMe"));
        core->manager().removeAccount("name", core->fake);
        core->manager().removeAccount("NAME", core->fake);
        QVERIFY(core->create("nAMe"));
    }

    void aProtocolThatCannotNormalizeALoginComparesItAsItIs()
    {
        core->protocol->normalize = [](const QString &login) -> QString {
            if (login == QLatin1String("odd"))
                throw std::runtime_error("odd");
            return QString();
        };
        core->restart();
        QVERIFY(core->create("odd") && core->create("id"));
        QVERIFY(!core->create("odd") && !core->create("id"));
        QCOMPARE(core->accounts->accounts().size(), 2);
    }

    void eachLoginIsNormalizedOnceWhateverTheNumberOfAccounts()
    {
        int calls = 0;
        core->protocol->normalize = [&calls](const QString &login) {
            ++calls;
            return login.toLower();
        };
        for (int i = 0; i < 50; ++i)
            QVERIFY(core->create(QString::number(i)));
        calls = 0;
        core->restart();
        QCOMPARE(calls, 50);
        calls = 0;
        QVERIFY(core->create("one more"));
        QVERIFY2(calls <= 3, qPrintable(QString::number(calls)));
        core->protocol->normalize = nullptr;
    }

    void aProtocolThatGivesNoConnectionLeavesTheAccountUnloaded()
    {
        core->protocol->givesConnections = false;
        QVERIFY(core->create("id"));
        QVERIFY(!core->manager().getAccount("id", core->fake));
        QVERIFY(!core->manager().loadAccount("id", core->fake));
        core->protocol->givesConnections = true;
        QVERIFY(core->manager().loadAccount("id", core->fake));
    }

    // Looking up

    void infosAreInOrderAndUpToDate()
    {
        for (const char *id : { "c", "a", "b" })
            QVERIFY(core->create(id));
        QCOMPARE(core->idsOf(core->fake), QStringList({ "c", "a", "b" }));
        KirvAccountInfo *info = core->manager().getAccountsInfo(core->fake).at(1);
        core->account("a")->setAlias("Anna");
        core->manager().disableAccount("a", core->fake);
        QCOMPARE(core->manager().getAccountsInfo(core->fake).at(1), info);
        QCOMPARE(info->getAlias(), QStringLiteral("Anna"));
        QVERIFY(!info->isEnabled());
        core->manager().removeAccount("c", core->fake);
        QVERIFY(core->create("0"));
        QCOMPARE(core->idsOf(core->fake), QStringList({ "a", "b", "0" }));
        core->restart();
        QCOMPARE(core->idsOf(core->fake), QStringList({ "a", "b", "0" }));
        QCOMPARE(core->manager().getAccountsInfo(core->fake).first()->getAlias(), QStringLiteral("Anna"));
        QVERIFY(core->manager().getAccountsInfo("None").isEmpty());
    }

    void unknownAccountsAreNobody()
    {
        QVERIFY(core->create("id"));
        const int commits = core->store.commitCount();
        for (const QString &id : { QStringLiteral("other"), QString() }) {
            QVERIFY(!core->manager().accountEnabled(id, core->fake));
            QVERIFY(!core->manager().getAccount(id, core->fake));
            QVERIFY(!core->manager().loadAccount(id, core->fake));
            core->manager().enableAccount(id, core->fake);
            core->manager().disableAccount(id, core->fake);
            core->manager().removeAccount(id, core->fake);
        }
        QVERIFY(!core->manager().getAccount(core->fake, "id"));
        QCOMPARE(core->store.commitCount(), commits);
        QCOMPARE(core->accounts->accounts().size(), 1);
    }

    void anAccountIsFoundOnlyWhileItsProtocolIsLoaded()
    {
        QVERIFY(core->create("id"));
        KirvAccount *known = core->account("id");
        core->accounts->protocolAboutToBeUnloaded(core->fake);
        QVERIFY(!core->manager().getAccount("id", core->fake));
        QVERIFY(!core->manager().loadAccount("id", core->fake));
        QCOMPARE(core->account("id"), known);
        QVERIFY(!known->isLoaded() && !known->connection() && !known->isLoggedIn());
        QVERIFY(!known->getProtocol());
        QCOMPARE(known->getProtocolName(), core->fake);
        QCOMPARE(known->getDefaultPresence().getId(), QStringLiteral("available"));
        QVERIFY(core->manager().accountEnabled("id", core->fake));
        QCOMPARE(core->idsOf(core->fake), QStringList({ "id" }));
        known->setAlias("changed meanwhile");
        QVERIFY(known->getAccountSettingsInOrder().isEmpty());

        core->accounts->protocolLoaded(core->protocol.get());
        QCOMPARE(core->manager().getAccount("id", core->fake), known);
        core->settle();
        QVERIFY(known->isLoggedIn());
        QCOMPARE(core->server().connections, 1);
    }

    void aDisabledAccountIsLoadedButNotLoggedIn()
    {
        QVERIFY(core->create("id"));
        core->manager().disableAccount("id", core->fake);
        core->restart();
        QCOMPARE(core->takeCalls(), QStringList());
        QVERIFY(core->manager().loadAccount("id", core->fake));
        QVERIFY(!core->account("id")->isLoggedIn());
        core->account("id")->setPresence(core->protocol->presences().first());
        core->protocol->accountPresenceChanged(core->account("id"));
        core->account("id")->providePassword("word", false);
        QCOMPARE(core->takeCalls(), QStringList());
    }

    // Enabling and disabling

    void disablingLogsOutAndEnablingLogsIn()
    {
        QVERIFY(core->create("id"));
        core->takeCalls();
        int commits = core->store.commitCount();
        QVERIFY(core->account("id")->isLoggedIn());
        core->manager().disableAccount("id", core->fake);
        QVERIFY(!core->account("id")->isLoggedIn());
        QCOMPARE(core->takeCalls(), QStringList({ "id log out" }));
        QCOMPARE(core->store.commitCount(), ++commits);
        QVERIFY(!core->manager().accountEnabled("id", core->fake));
        core->manager().disableAccount("id", core->fake);
        QCOMPARE(core->store.commitCount(), commits);
        core->manager().enableAccount("id", core->fake);
        QCOMPARE(core->takeCalls(), QStringList({ "id log in available word of id" }));
        QCOMPARE(core->store.commitCount(), ++commits);
        QVERIFY(core->manager().accountEnabled("id", core->fake));
    }

    void enablingAnEnabledAccountChangesNothing()
    {
        QVERIFY(core->create("id"));
        core->setPresence("offline");
        core->takeCalls();
        const int commits = core->store.commitCount();
        core->manager().enableAccount("id", core->fake);
        QCOMPARE(core->takeCalls(), QStringList());
        QCOMPARE(core->store.commitCount(), commits);
    }

    void enablingLogsInAlsoWhenTheLastPresenceWasOffline()
    {
        QVERIFY(core->create("id"));
        core->account("id")->setRestoreLastPresence(true);
        core->setPresence("offline");
        core->settle();
        core->manager().disableAccount("id", core->fake);
        core->takeCalls();
        core->manager().enableAccount("id", core->fake);
        QCOMPARE(core->takeCalls(), QStringList({ "id log in available word of id" }));
    }

    void whatTheStoreRefusesDoesNotHappen()
    {
        QVERIFY(core->create("id"));
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        core->takeCalls();
        core->store.close();
        core->manager().disableAccount("id", core->fake);
        QCOMPARE(problems.size(), 1);
        QVERIFY(core->account("id")->isEnabled() && core->account("id")->isLoggedIn());
        core->manager().removeAccount("id", core->fake);
        QCOMPARE(problems.size(), 2);
        QVERIFY(core->account("id") && core->account("id")->isLoggedIn());
        QCOMPARE(core->takeCalls(), QStringList());
        QCOMPARE(core->manager().getAccountsInfo(core->fake).first()->isEnabled(), true);
    }

    // Presence

    void thePresenceAtTheStart_data()
    {
        QTest::addColumn<QString>("last");
        QTest::addColumn<bool>("restoresPresence");
        QTest::addColumn<bool>("restoresDescription");
        QTest::addColumn<QString>("presence");
        QTest::addColumn<QString>("description");
        QTest::newRow("nothing restored") << "away" << false << false << "available"
                                          << "default";
        QTest::newRow("presence restored") << "away" << true << false << "away"
                                           << "default";
        QTest::newRow("description restored") << "away" << false << true << "available"
                                              << "last";
        QTest::newRow("both restored") << "away" << true << true << "away"
                                       << "last";
        QTest::newRow("off line, not restored") << "offline" << false << false << "available"
                                                << "default";
        QTest::newRow("off line, restored on purpose") << "offline" << true << false << ""
                                                       << "default";
        QTest::newRow("one the protocol does not know") << "gone" << true << true << "available"
                                                        << "last";
    }

    void thePresenceAtTheStart()
    {
        QFETCH(QString, last);
        QFETCH(bool, restoresPresence);
        QFETCH(bool, restoresDescription);
        QFETCH(QString, presence);
        QFETCH(QString, description);
        QVERIFY(core->create("id"));
        core->account("id")->setDefaultPresence(core->protocol->createPresenceWithId("available", "default"));
        core->account("id")->setRestoreLastPresence(restoresPresence);
        core->account("id")->setRestoreLastDescription(restoresDescription);
        core->account("id")->setPresence(KirvPresence(last, last, QString(), "last"));
        core->protocol->accountPresenceChanged(core->account("id"));
        core->restart();
        core->settle();
        QCOMPARE(core->account("id")->isLoggedIn(), !presence.isEmpty());
        QCOMPARE(core->connection()->presence().getId(), presence);
        if (!presence.isEmpty())
            QCOMPARE(core->connection()->presence().getDescription(), description);
        QCOMPARE(core->account("id")->presence().getDescription(), description);
        QCOMPARE(core->account("id")->record().restorePresence, restoresPresence);
        QCOMPARE(core->account("id")->record().restoreDescription, restoresDescription);
    }

    void aReloadedProtocolFindsItsAccountsAsTheyWere()
    {
        for (const char *id : { "online", "offline", "disabled" })
            QVERIFY(core->create(id));
        core->setPresence("away", "online");
        core->setPresence("offline", "offline");
        core->manager().disableAccount("disabled", core->fake);
        core->settle();
        core->accounts->protocolAboutToBeUnloaded(core->fake);
        core->takeCalls();
        core->accounts->protocolLoaded(core->protocol.get());
        QCOMPARE(core->takeCalls(), QStringList({ "online log in away word of online" }));
        QVERIFY(!core->account("offline")->isLoggedIn());
        QCOMPARE(core->idsOf(core->fake), QStringList({ "online", "offline", "disabled" }));
    }

    void aProtocolCanBeLoadedWithoutLoggingIn()
    {
        QVERIFY(core->create("id"));
        core->restart(false);
        QVERIFY(core->account("id")->isLoaded());
        QCOMPARE(core->takeCalls(), QStringList());
    }

    void aPresenceIsStoredAndReachesTheServerOnce()
    {
        QVERIFY(core->create("id"));
        core->takeCalls();
        const int commits = core->store.commitCount();
        core->account("id")->setPresence(core->protocol->createPresenceWithId("away", "at lunch"));
        QCOMPARE(core->store.commitCount(), commits + 1);
        QCOMPARE(core->server().calls, QStringList());
        core->protocol->accountPresenceChanged(core->account("id"));
        QCOMPARE(core->takeCalls(), QStringList({ "id presence away" }));
        core->protocol->accountPresenceChanged(core->account("id"));
        QCOMPARE(core->takeCalls(), QStringList());
        QCOMPARE(core->account("id")->presence().getDescription(), QStringLiteral("at lunch"));
        core->setPresence("offline");
        core->settle();
        QVERIFY(!core->account("id")->isLoggedIn());
    }

    // Removing

    void removingDeletesEverything()
    {
        QVERIFY(core->create("other"));
        QVERIFY(core->create("id"));
        core->account("id")->setAvatar(core->makePicture());
        core->manager().setMainAccount(core->account("id"));
        QStringList events;
        connect(core->accounts.get(), &KirvAccountCollection::accountAboutToBeRemoved, this, [&](KirvAccount *leaving) {
            events << "about to be removed " + leaving->displayName() + " " + leaving->getPassword();
            QVERIFY(!leaving->isLoggedIn() && leaving->isRemoved() && leaving->isLoaded());
            QCOMPARE(core->account("id"), leaving);
        });
        connect(core->accounts.get(), &KirvAccountCollection::accountRemoved, this,
                [&](const QString &id, const QString &name) { events << "removed " + id + " " + name; });
        core->takeCalls();
        core->settle();
        core->takeCalls();
        const int commits = core->store.commitCount();
        const QPointer<KirvAccount> leaving(core->account("id"));
        core->manager().removeAccount("id", core->fake);
        QCOMPARE(events, QStringList({ "about to be removed Alias of id word of id", "removed id Fake" }));
        QCOMPARE(core->store.commitCount(), commits + 1);
        QVERIFY(!core->account("id") && !core->manager().loadAccount("id", core->fake)
                && !core->manager().accountEnabled("id", core->fake));
        QVERIFY(!core->manager().getMainAccount());
        QCOMPARE(core->idsOf(core->fake), QStringList({ "other" }));
        QCOMPARE(core->accounts->accountsOf(core->fake).size(), 1);
        QVERIFY(filesIn(core->store.avatarFolder()).isEmpty());
        QVERIFY(!isTextInFiles("word of id", core->store.folder()));
        QCOMPARE(core->takeCalls(), QStringList({ "id log out" }));
        KIRV_TRY(!leaving);
        QCOMPARE(core->server().connections, 1);
        core->restart();
        QCOMPARE(core->idsOf(core->fake), QStringList({ "other" }));
    }

    void aRemovedAccountLogsOutByItself_data()
    {
        QTest::addColumn<bool>("serverAnswers");
        QTest::newRow("the server answers late") << true;
        QTest::newRow("the server never answers") << false;
    }

    void aRemovedAccountLogsOutByItself()
    {
        QFETCH(bool, serverAnswers);
        QVERIFY(core->create("id"));
        core->settle();
        core->server().logOut = KirvFakeServer::Holds;
        KirvFakeConnection *connection = core->connection();
        KirvConnection::Timing timing;
        timing.logoutTimeout = serverAnswers ? 100000 : 20;
        connection->setTiming(timing);
        core->manager().removeAccount("id", core->fake);
        core->settleAndDelete();
        QCOMPARE(core->server().connections, 1);
        QCOMPARE(connection->state(), KirvConnection::Disconnecting);
        QCOMPARE(connection->login().id, QStringLiteral("id"));
        QVERIFY(core->create("id")); // a new one of that name is another account
        QCOMPARE(core->server().connections, 2);
        core->settle();
        QVERIFY(core->connection() != connection);
        QCOMPARE(core->connection()->state(), KirvConnection::Online);
        if (serverAnswers)
            connection->logoutFinished();
        KIRV_TRY_COMPARE(core->server().connections, 1);
        QVERIFY(core->account("id")->isLoggedIn());
    }

    void aRemovedAccountDoesNothingMore()
    {
        QVERIFY(core->create("id"));
        KirvAccount *leaving = core->account("id");
        core->settle();
        core->server().logOut = KirvFakeServer::Holds;
        core->manager().removeAccount("id", core->fake);
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        QSignalSpy changed(core->accounts.get(), &KirvAccountCollection::accountChanged);
        const int commits = core->store.commitCount();
        leaving->beginSave();
        leaving->setAlias("too late");
        leaving->setAvatar(core->makePicture());
        leaving->setPresence(core->protocol->presences().first());
        leaving->providePassword("too late", true);
        QVERIFY(!leaving->endSave());
        QVERIFY(!leaving->isLoggedIn());
        QCOMPARE(core->store.commitCount(), commits);
        QCOMPARE(problems.size() + changed.size(), 0);
        QVERIFY(filesIn(core->store.avatarFolder()).isEmpty());
    }

    // Protocols that come and go

    void aProtocolGoesInAnyState_data()
    {
        QTest::addColumn<KirvConnection::State>("state");
        QTest::addColumn<QString>("how");
        const auto states = QMetaEnum::fromType<KirvConnection::State>();
        for (const char *how : { "unloaded", "destroyed", "another one in its place", "the core goes" }) {
            for (int index = 0; index < states.keyCount(); ++index)
                QTest::addRow("%s, %s", states.key(index), how) << KirvConnection::State(states.value(index)) << how;
        }
    }

    void aProtocolGoesInAnyState()
    {
        QFETCH(KirvConnection::State, state);
        QFETCH(QString, how);
        core->bring("id", state);
        core->bring("removed", state);
        core->manager().removeAccount("removed", core->fake);
        if (how == QLatin1String("the core goes")) {
            core->endCore();
            QCOMPARE(core->server().connections, 0);
            return;
        }
        QSignalSpy changed(core->accounts.get(), &KirvAccountCollection::accountChanged);
        auto next = std::make_unique<KirvFakeProtocol>();
        const std::shared_ptr<KirvFakeServer> server = core->protocol->server;
        if (how == QLatin1String("unloaded"))
            core->accounts->protocolAboutToBeUnloaded(core->fake);
        else if (how == QLatin1String("another one in its place"))
            core->accounts->protocolLoaded(next.get());
        else
            core->protocol.reset();
        QCOMPARE(server->connections, 0);
        QVERIFY(changed.size() > 0);
        if (how != QLatin1String("another one in its place")) {
            QVERIFY(!core->account("id")->connection() && !core->account("id")->getProtocol());
            QVERIFY(!core->manager().getAccount("id", core->fake));
            core->accounts->protocolLoaded(next.get());
        }
        QCOMPARE(core->manager().getAccount("id", core->fake)->getProtocol(), next.get());
        core->settle();
        QCOMPARE(core->account("id")->isLoggedIn(),
                 state != KirvConnection::Offline && state != KirvConnection::Disconnecting);
        QCOMPARE(core->accounts->accounts().size(), 1);
        core->accounts->protocolAboutToBeUnloaded(core->fake);
        QCOMPARE(next->server->connections, 0);
    }

    // Connections

    void theLastFailureIsKeptUntilASuccess()
    {
        QVERIFY(core->create("id"));
        QVERIFY(!core->account("id")->lastFailure().isFailure() && !core->account("id")->lastFailureTime().isValid());
        QSignalSpy changed(core->accounts.get(), &KirvAccountCollection::accountChanged);
        core->server().logIn = KirvFakeServer::Refuses;
        core->account("id")->reconnect();
        core->settle();
        QVERIFY(changed.size() > 0);
        QCOMPARE(core->account("id")->lastFailure().kind(), KirvFailure::WrongPassword);
        QVERIFY(qAbs(core->account("id")->lastFailureTime().secsTo(QDateTime::currentDateTime())) < 60);
        core->server().logIn = KirvFakeServer::Accepts;
        core->setPresence("available");
        core->settle();
        QVERIFY(core->account("id")->isLoggedIn());
        QVERIFY(!core->account("id")->lastFailure().isFailure() && !core->account("id")->lastFailureTime().isValid());
    }

    void everyAccountIsLoggedOutWithinTheTime()
    {
        QVERIFY(core->create("id") && core->create("leaving") && core->create("off line"));
        core->setPresence("offline", "off line");
        core->settle();
        core->server().logOut = KirvFakeServer::Holds;
        KirvFakeConnection *connection = core->connection();
        KirvFakeConnection *leaving = core->connection("leaving");
        core->manager().removeAccount("leaving", core->fake);
        QElapsedTimer timer;
        timer.start();
        core->accounts->logOutAll(30);
        QVERIFY(timer.elapsed() >= 25);
        QCOMPARE(connection->state(), KirvConnection::Disconnecting);

        QMetaObject::invokeMethod(
            connection, [=] { connection->logoutFinished(); }, Qt::QueuedConnection);
        QMetaObject::invokeMethod(
            connection, [=] { leaving->logoutFinished(); }, Qt::QueuedConnection);
        timer.start();
        core->accounts->logOutAll(10 * kirvPatience);
        QVERIFY(timer.elapsed() < kirvPatience);
        QCOMPARE(connection->state(), KirvConnection::Offline);
        core->accounts->logOutAll(10 * kirvPatience); // nobody is on line
    }

    // Size

    /// What a change costs depends on nothing but what it changes; benchmarks measure the time.
    void aChangeWritesTheSameRowsInTenThousandAccounts()
    {
        core->server().logIn = KirvFakeServer::Holds;
        fillUpTo(10);
        const QMap<QString, int> few = rowsWrittenByEachChange();
        QVERIFY(few.value("alias") > 0);
        fillUpTo(10000);
        QCOMPARE(rowsWrittenByEachChange(), few);
    }

private:
    /// How many rows the store has changed since it was opened.
    static int changedRows()
    {
        const QSqlDatabase database = QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false);
        QSqlQuery query(QStringLiteral("SELECT total_changes()"), database);
        return query.next() ? query.value(0).toInt() : -1;
    }

    /// Fills the profile without the core, in one transaction.
    void fillUpTo(int count)
    {
        const int present = int(core->accounts->accounts().size());
        QVERIFY(core->store.begin());
        for (int number = present; number < count; ++number) {
            KirvAccountRecord account;
            account.key = { QStringLiteral("account %1").arg(number), core->fake };
            account.alias = QStringLiteral("Alias %1").arg(number);
            account.settings = { { "server", "localhost" }, { "port", "5222" }, { "encrypted", "true" } };
            QVERIFY(core->store.insertAccount(account));
        }
        QVERIFY(core->store.commit());
        core->restart(false);
        QCOMPARE(core->accounts->accounts().size(), count);
    }

    /// How many rows each change writes; checks that each is one commit.
    QMap<QString, int> rowsWrittenByEachChange()
    {
        QMap<QString, int> rows;
        const auto count = [&](const QString &what, const std::function<void()> &change) {
            const int commits = core->store.commitCount();
            const int before = changedRows();
            change();
            rows.insert(what, changedRows() - before);
            QCOMPARE(core->store.commitCount(), commits + 1);
        };
        count("add", [&] { core->create("new"); });
        count("alias", [&] { core->account("new")->setAlias("changed"); });
        count("disable", [&] { core->manager().disableAccount("new", core->fake); });
        count("enable", [&] { core->manager().enableAccount("new", core->fake); });
        count("remove", [&] { core->manager().removeAccount("new", core->fake); });
        return rows;
    }

    std::unique_ptr<KirvAccountsFixture> core;
};

QTEST_GUILESS_MAIN(tst_Accounts)
#include "tst_accounts.moc"

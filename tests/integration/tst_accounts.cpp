// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "host/kirv_account_info.h"
#include "tests/integration/kirv_fake_protocol.h"
#include "tests/integration/kirv_profile_files.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

namespace {

const QString fake = QStringLiteral("Fake");

KirvAccountManager &manager()
{
    return *KirvAccountManager::getInstance();
}

}

class AccountsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<KirvAccount *>("KirvAccount*"); }

    void init()
    {
        home = std::make_unique<QTemporaryDir>();
        QVERIFY(home->isValid());
        store = std::make_unique<KirvStore>();
        QVERIFY(store->open(home->filePath(QStringLiteral("profile"))));
        registry = std::make_unique<KirvAccountCollection>(*store);
        protocol = std::make_unique<FakeProtocol>();
        registry->protocolLoaded(protocol.get());
    }

    void cleanup()
    {
        registry.reset();
        if (protocol)
            QCOMPARE(protocol->connections, 0);
        protocol.reset();
        store.reset();
    }

    void theManagerCanBeAskedWithoutACore()
    {
        QCOMPARE(KirvAccountManagerPrivate::ampInstance, registry.get());
        registry.reset();
        QVERIFY(!KirvAccountManagerPrivate::ampInstance);
        QVERIFY(manager().getAccountsInfo(fake).isEmpty());
        QVERIFY(!manager().accountEnabled("id", fake));
        QVERIFY(!manager().getAccount("id", fake));
        QVERIFY(!manager().loadAccount("id", fake));
        QVERIFY(!manager().getMainAccount());
        QVERIFY(!create("id"));
        manager().enableAccount("id", fake);
        manager().disableAccount("id", fake);
        manager().removeAccount("id", fake);
        manager().setMainAccount(nullptr);
    }

    // Creating

    void aNewAccountIsStoredEnabledLoadedAndLoggedIn()
    {
        QSignalSpy added(registry.get(), &KirvAccountCollection::accountAdded);
        QString callsWhenAdded;
        connect(registry.get(), &KirvAccountCollection::accountAdded, this,
                [&] { callsWhenAdded = protocol->calls.join(';'); });
        const int commits = store->commitCount();
        KirvAccountConnection *connection = manager().createAccount(
            "id", "Alias", "word", true, protocol.get(), protocol->createPresenceWithId("away", "at lunch"),
            { KirvField::textEdit("", "server", "talk.example.org", ""),
              KirvField::checkBox("", "encrypted", false, "") });
        QVERIFY(connection);
        QCOMPARE(store->commitCount(), commits + 1);
        QCOMPARE(added.size(), 1);
        QCOMPARE(callsWhenAdded, QString());
        QCOMPARE(protocol->calls, QStringList({ "id log in away word" }));
        QCOMPARE(connection, account("id"));
        QCOMPARE(manager().getAccount("id", fake), connection);
        QCOMPARE(connection->getUid(), QStringLiteral("id"));
        QCOMPARE(connection->getProtocolName(), fake);
        QCOMPARE(connection->getProtocol(), protocol.get());
        QCOMPARE(connection->getAlias(), QStringLiteral("Alias"));
        QVERIFY(connection->isEnabled() && connection->isLoggedIn());
        QVERIFY(registry->lastError().isEmpty());

        restart();
        QCOMPARE(protocol->calls.last(), QStringLiteral("id log in away word"));
        connection = account("id");
        QVERIFY(connection && connection->isLoggedIn());
        QCOMPARE(connection->getDefaultPresence().getId(), QStringLiteral("away"));
        QCOMPARE(connection->getDefaultPresence().getDescription(), QStringLiteral("at lunch"));
        QCOMPARE(connection->getDefaultPresence().getDisplay(), QStringLiteral("Away"));
        QCOMPARE(valuesOf(connection), QStringList({ "Read me", "talk.example.org", "5222", "-", "" }));
    }

    void anAccountThatCannotBeCreatedIsRefused_data()
    {
        QTest::addColumn<QString>("why");
        QTest::addColumn<bool>("isSaid");
        QTest::newRow("it exists: the page says so") << "exists" << false;
        QTest::newRow("no protocol") << "no protocol" << false;
        QTest::newRow("the protocol is not loaded") << "not loaded" << true;
        QTest::newRow("no login") << "no login" << true;
        QTest::newRow("the store refuses") << "full" << true;
    }
    void anAccountThatCannotBeCreatedIsRefused()
    {
        QFETCH(QString, why);
        QFETCH(bool, isSaid);
        QVERIFY(create("first"));
        QSignalSpy added(registry.get(), &KirvAccountCollection::accountAdded);
        QSignalSpy problems(registry.get(), &KirvAccountCollection::problemOccurred);
        if (why == QLatin1String("not loaded"))
            registry->protocolAboutToBeUnloaded(fake);
        if (why == QLatin1String("full"))
            setStoreFull(true);
        FakeProtocol *used = why == QLatin1String("no protocol") ? nullptr : protocol.get();
        const QString id = QLatin1String(why == QLatin1String("exists")         ? "first"
                                             : why == QLatin1String("no login") ? ""
                                                                                : "second");
        const QString large(100000, QLatin1Char('x'));
        QVERIFY(!manager().createAccount(id, large, "word", true, used, KirvPresence(), {}));
        QCOMPARE(added.size(), 0);
        QCOMPARE(registry->accounts().size(), 1);
        QCOMPARE(manager().getAccountsInfo(fake).size(), 1);
        QCOMPARE(problems.size(), int(isSaid));
        if (isSaid)
            QCOMPARE(problems.first().first().toString(), registry->lastError());
        if (used)
            QVERIFY(!registry->lastError().isEmpty());
        setStoreFull(false);
        restart();
        QCOMPARE(idsOf(fake), QStringList({ "first" }));
        QCOMPARE(account("first")->getAlias(), QStringLiteral("Alias of first"));
    }

    void theSameLoginOfAnotherProtocolIsAnotherAccount()
    {
        FakeProtocol other(QStringLiteral("Other"));
        registry->protocolLoaded(&other);
        QVERIFY(create("id"));
        QVERIFY(manager().createAccount("id", "of the other", "", false, &other, KirvPresence(), {}));
        QCOMPARE(manager().getAccount("id", fake)->getAlias(), QStringLiteral("Alias of id"));
        QCOMPARE(manager().getAccount("id", "Other")->getAlias(), QStringLiteral("of the other"));
        manager().removeAccount("id", fake);
        QVERIFY(!manager().getAccount("id", fake));
        QVERIFY(manager().getAccount("id", "Other"));
        registry->protocolAboutToBeUnloaded("Other");
    }

    void aProtocolThatGivesNoConnectionLeavesTheAccountUnloaded()
    {
        protocol->givesConnections = false;
        QVERIFY(create("id"));
        QVERIFY(!manager().getAccount("id", fake));
        QVERIFY(!manager().loadAccount("id", fake));
        protocol->givesConnections = true;
        QVERIFY(manager().loadAccount("id", fake));
    }

    // Looking up

    void infosAreInOrderAndUpToDate()
    {
        for (const char *id : { "c", "a", "b" })
            QVERIFY(create(id));
        QCOMPARE(idsOf(fake), QStringList({ "c", "a", "b" }));
        KirvAccountInfo *info = manager().getAccountsInfo(fake).at(1);
        account("a")->setAlias("Anna");
        manager().disableAccount("a", fake);
        QCOMPARE(manager().getAccountsInfo(fake).at(1), info);
        QCOMPARE(info->getAlias(), QStringLiteral("Anna"));
        QVERIFY(!info->isEnabled());
        manager().removeAccount("c", fake);
        QVERIFY(create("0"));
        QCOMPARE(idsOf(fake), QStringList({ "a", "b", "0" }));
        restart();
        QCOMPARE(idsOf(fake), QStringList({ "a", "b", "0" }));
        QCOMPARE(manager().getAccountsInfo(fake).first()->getAlias(), QStringLiteral("Anna"));
        QVERIFY(manager().getAccountsInfo("None").isEmpty());
    }

    void unknownAccountsAreNobody()
    {
        QVERIFY(create("id"));
        const int commits = store->commitCount();
        for (const QString &id : { QStringLiteral("other"), QString() }) {
            QVERIFY(!manager().accountEnabled(id, fake));
            QVERIFY(!manager().getAccount(id, fake));
            QVERIFY(!manager().loadAccount(id, fake));
            manager().enableAccount(id, fake);
            manager().disableAccount(id, fake);
            manager().removeAccount(id, fake);
        }
        QVERIFY(!manager().getAccount(fake, "id"));
        QCOMPARE(store->commitCount(), commits);
        QCOMPARE(registry->accounts().size(), 1);
    }

    void anAccountIsFoundOnlyWhileItsProtocolIsLoaded()
    {
        QVERIFY(create("id"));
        KirvAccount *known = account("id");
        registry->protocolAboutToBeUnloaded(fake);
        QVERIFY(!manager().getAccount("id", fake));
        QVERIFY(!manager().loadAccount("id", fake));
        QCOMPARE(account("id"), known);
        QVERIFY(!known->isLoaded() && !known->connection() && !known->isLoggedIn());
        QVERIFY(!known->getProtocol());
        QCOMPARE(known->getProtocolName(), fake);
        QCOMPARE(known->getDefaultPresence().getId(), QStringLiteral("available"));
        QVERIFY(manager().accountEnabled("id", fake));
        QCOMPARE(idsOf(fake), QStringList({ "id" }));
        known->setAlias("changed meanwhile");
        QVERIFY(known->getAccountSettingsInOrder().isEmpty());

        registry->protocolLoaded(protocol.get());
        QCOMPARE(manager().getAccount("id", fake), known);
        QVERIFY(known->isLoggedIn());
        QCOMPARE(protocol->connections, 1);
    }

    void aDisabledAccountIsLoadedButNotLoggedIn()
    {
        QVERIFY(create("id"));
        manager().disableAccount("id", fake);
        restart();
        QCOMPARE(protocol->calls, QStringList());
        QVERIFY(manager().loadAccount("id", fake));
        QVERIFY(!account("id")->isLoggedIn());
        account("id")->setPresence(protocol->presences().first());
        protocol->accountPresenceChanged(account("id"));
        account("id")->providePassword("word", false);
        QCOMPARE(protocol->calls, QStringList());
    }

    // Enabling and disabling

    void disablingLogsOutAndEnablingLogsIn()
    {
        QVERIFY(create("id"));
        protocol->calls.clear();
        int commits = store->commitCount();
        manager().disableAccount("id", fake);
        QCOMPARE(protocol->calls, QStringList({ "id log out" }));
        QCOMPARE(store->commitCount(), ++commits);
        QVERIFY(!manager().accountEnabled("id", fake));
        manager().disableAccount("id", fake);
        QCOMPARE(store->commitCount(), commits);
        manager().enableAccount("id", fake);
        QCOMPARE(protocol->calls, QStringList({ "id log out", "id log in available word of id" }));
        QCOMPARE(store->commitCount(), ++commits);
        QVERIFY(manager().accountEnabled("id", fake));
    }

    void enablingAnEnabledAccountDisturbsNothing()
    {
        QVERIFY(create("id"));
        setPresence("offline");
        protocol->calls.clear();
        const int commits = store->commitCount();
        manager().enableAccount("id", fake);
        QCOMPARE(protocol->calls, QStringList());
        QCOMPARE(store->commitCount(), commits);
    }

    void enablingLogsInAlsoWhenTheLastPresenceWasOffline()
    {
        QVERIFY(create("id"));
        account("id")->setRestoreLastPresence(true);
        setPresence("offline");
        manager().disableAccount("id", fake);
        protocol->calls.clear();
        manager().enableAccount("id", fake);
        QCOMPARE(protocol->calls, QStringList({ "id log in available word of id" }));
    }

    void whatTheStoreRefusesDoesNotHappen()
    {
        QVERIFY(create("id"));
        QSignalSpy problems(registry.get(), &KirvAccountCollection::problemOccurred);
        protocol->calls.clear();
        store->close();
        manager().disableAccount("id", fake);
        QCOMPARE(problems.size(), 1);
        QVERIFY(account("id")->isEnabled() && account("id")->isLoggedIn());
        manager().removeAccount("id", fake);
        QCOMPARE(problems.size(), 2);
        QVERIFY(account("id") && account("id")->isLoggedIn());
        QCOMPARE(protocol->calls, QStringList());
        QCOMPARE(manager().getAccountsInfo(fake).first()->isEnabled(), true);
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
        QVERIFY(create("id"));
        account("id")->setDefaultPresence(protocol->createPresenceWithId("available", "default"));
        account("id")->setRestoreLastPresence(restoresPresence);
        account("id")->setRestoreLastDescription(restoresDescription);
        account("id")->setPresence(KirvPresence(last, last, QString(), "last"));
        protocol->accountPresenceChanged(account("id"));
        restart();
        QCOMPARE(account("id")->isLoggedIn(), !presence.isEmpty());
        if (!presence.isEmpty())
            QCOMPARE(account("id")->connection()->wantedPresence().getId(), presence);
        QCOMPARE(account("id")->connection()->wantedPresence().getDescription(), description);
        QCOMPARE(account("id")->presence().getDescription(), description);
        QCOMPARE(account("id")->restoresLastPresence(), restoresPresence);
        QCOMPARE(account("id")->restoresLastDescription(), restoresDescription);
    }

    void aReloadedProtocolFindsItsAccountsAsTheyWere()
    {
        for (const char *id : { "online", "offline", "disabled" })
            QVERIFY(create(id));
        setPresence("away", "online");
        setPresence("offline", "offline");
        manager().disableAccount("disabled", fake);
        registry->protocolAboutToBeUnloaded(fake);
        protocol->calls.clear();
        registry->protocolLoaded(protocol.get());
        QCOMPARE(protocol->calls, QStringList({ "online log in away word of online" }));
        QVERIFY(!account("offline")->isLoggedIn());
        QCOMPARE(idsOf(fake), QStringList({ "online", "offline", "disabled" }));
    }

    void aProtocolCanBeLoadedWithoutLoggingIn()
    {
        QVERIFY(create("id"));
        restart(false);
        QVERIFY(account("id")->isLoaded());
        QCOMPARE(protocol->calls, QStringList());
    }

    void settingAPresenceIsFollowedByTellingTheProtocol()
    {
        QVERIFY(create("id"));
        protocol->calls.clear();
        const int commits = store->commitCount();
        account("id")->setPresence(protocol->createPresenceWithId("away", "at lunch"));
        QCOMPARE(store->commitCount(), commits + 1);
        QCOMPARE(protocol->calls, QStringList());
        protocol->accountPresenceChanged(account("id"));
        QCOMPARE(protocol->calls, QStringList({ "id presence away" }));
        QCOMPARE(account("id")->presence().getDescription(), QStringLiteral("at lunch"));
        setPresence("offline");
        QVERIFY(!account("id")->isLoggedIn());
    }

    void aChangedPasswordLogsInAgainWithIt()
    {
        QVERIFY(create("id"));
        protocol->calls.clear();
        account("id")->setPassword("new word");
        QCOMPARE(protocol->calls, QStringList());
        account("id")->setPresence(account("id")->getDefaultPresence());
        protocol->accountPresenceChanged(account("id"));
        QCOMPARE(protocol->calls, QStringList({ "id log out", "id log in available new word" }));
    }

    // Passwords

    void aPasswordIsKeptOnlyWhenItIsToBeRemembered_data()
    {
        QTest::addColumn<bool>("remember");
        QTest::newRow("remembered") << true;
        QTest::newRow("not remembered") << false;
    }
    void aPasswordIsKeptOnlyWhenItIsToBeRemembered()
    {
        QFETCH(bool, remember);
        QVERIFY(manager().createAccount("id", "", "correct horse", remember, protocol.get(), KirvPresence(), {}));
        QCOMPARE(account("id")->getPassword(), QStringLiteral("correct horse"));
        QCOMPARE(account("id")->remembersPassword(), remember);
        QCOMPARE(isTextInFiles("correct horse", store->folder()), remember);
        restart();
        QCOMPARE(account("id")->getPassword(), remember ? QStringLiteral("correct horse") : QString());
        account("id")->setPassword("battery staple");
        QCOMPARE(isTextInFiles("battery staple", store->folder()), remember);
        QVERIFY(!isTextInFiles("correct horse", store->folder()));
        account("id")->setRememberPassword(!remember);
        QCOMPARE(isTextInFiles("battery staple", store->folder()), !remember);
        QCOMPARE(account("id")->getPassword(), QStringLiteral("battery staple"));
    }

    void aMissingPasswordIsAskedFor_data()
    {
        QTest::addColumn<bool>("remember");
        QTest::newRow("to remember") << true;
        QTest::newRow("for this run") << false;
    }
    void aMissingPasswordIsAskedFor()
    {
        QFETCH(bool, remember);
        QVERIFY(create("id"));
        account("id")->setRememberPassword(false);
        protocol->needsPassword = true;
        asked = 0;
        restart([&] { connect(registry.get(), &KirvAccountCollection::passwordNeeded, this, [&] { ++asked; }); });
        QCOMPARE(asked, 1);
        QCOMPARE(account("id")->lastFailure().kind(), KirvFailure::PasswordMissing);
        account("id")->providePassword("told", remember);
        QVERIFY(account("id")->isLoggedIn());
        QVERIFY(!account("id")->lastFailure().isFailure());
        QCOMPARE(isTextInFiles("told", store->folder()), remember);
        QCOMPARE(account("id")->remembersPassword(), remember);
        QCOMPARE(asked, 1);
    }

    void aPasswordThatTheStoreRefusesServesThisRun()
    {
        QVERIFY(create("id"));
        manager().disableAccount("id", fake);
        QSignalSpy problems(registry.get(), &KirvAccountCollection::problemOccurred);
        manager().enableAccount("id", fake);
        setPresence("offline");
        store->close();
        account("id")->providePassword("told", true);
        QCOMPARE(problems.size(), 1);
        QCOMPARE(protocol->calls.last(), QStringLiteral("id log in available told"));
    }

    // Saves

    void aSaveIsOneCommitAndOnePieceOfNews()
    {
        QVERIFY(create("id"));
        const int commits = store->commitCount();
        QSignalSpy changed(account("id"), &KirvAccount::changed);
        QSignalSpy accountChanged(registry.get(), &KirvAccountCollection::accountChanged);
        account("id")->beginSave();
        changeEverything();
        account("id")->beginSave();
        account("id")->setAlias("last");
        QVERIFY(account("id")->endSave());
        QCOMPARE(store->commitCount(), commits);
        QCOMPARE(changed.size(), 0);
        QVERIFY(account("id")->endSave());
        QCOMPARE(store->commitCount(), commits + 1);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(accountChanged.size(), 1);
        restart();
        QCOMPARE(account("id")->getAlias(), QStringLiteral("last"));
        QCOMPARE(account("id")->getPassword(), QStringLiteral("new"));
        QCOMPARE(valuesOf(account("id")).at(1), QStringLiteral("new"));
    }

    void everyChangeOnItsOwnIsOneCommitAndNoChangeIsNone()
    {
        QVERIFY(create("id"));
        KirvAccount *changing = account("id");
        const QList<std::function<void()>> changes {
            [&] { changing->setAlias("new"); },
            [&] { changing->setPassword("new"); },
            [&] { changing->setRememberPassword(false); },
            [&] { changing->setRestoreLastPresence(true); },
            [&] { changing->setRestoreLastDescription(true); },
            [&] { changing->setDefaultPresence(protocol->createPresenceWithId("away", "")); },
            [&] { changing->setPresence(protocol->createPresenceWithId("away", "")); },
            [&] { changing->setAccountSettings({ KirvField::number("", "port", 1, 0, 2, "") }); },
        };
        for (const std::function<void()> &change : changes) {
            const int commits = store->commitCount();
            change();
            QCOMPARE(store->commitCount(), commits + 1);
            change();
            QCOMPARE(store->commitCount(), commits + 1);
        }
        changing->beginSave();
        QVERIFY(changing->endSave());
        QVERIFY(changing->endSave());
    }

    void aRefusedSaveLeavesTheOldValues()
    {
        QVERIFY(create("id"));
        KirvAccount *saved = account("id");
        QSignalSpy problems(registry.get(), &KirvAccountCollection::problemOccurred);
        setStoreFull(true);
        saved->beginSave();
        changeEverything();
        saved->setAccountSettings({ KirvField::textEdit("", "server", QString(100000, 'x'), "") });
        QVERIFY(!saved->endSave());
        setStoreFull(false);
        QCOMPARE(problems.size(), 1);
        QVERIFY(!registry->lastError().isEmpty());
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(account("id")->getAlias(), QStringLiteral("Alias of id"));
            QCOMPARE(account("id")->getPassword(), QStringLiteral("word of id"));
            QVERIFY(account("id")->remembersPassword() && !account("id")->restoresLastPresence());
            QCOMPARE(account("id")->getDefaultPresence().getId(), QStringLiteral("available"));
            QCOMPARE(valuesOf(account("id")).at(1), QStringLiteral("localhost"));
            QCOMPARE(account("id")->getCurrentAvatarPath(), QString());
            QCOMPARE(manager().getAccountsInfo(fake).first()->getAlias(), QStringLiteral("Alias of id"));
            QVERIFY(filesIn(store->avatarFolder()).isEmpty());
            restart();
        }
        account("id")->setAlias("works again");
        QCOMPARE(account("id")->getAlias(), QStringLiteral("works again"));
        QVERIFY(registry->lastError().isEmpty());
    }

    void settingsFollowTheOrderOfTheProtocol()
    {
        QVERIFY(create("id"));
        QCOMPARE(valuesOf(account("id")), QStringList({ "Read me", "localhost", "5222", "+", "" }));
        account("id")->setAccountSettings(
            { KirvField::checkBox("", "encrypted", false, ""), KirvField::note("", "note", "changed", ""),
              KirvField::textEdit("", "unknown", "kept", ""), KirvField::password("", "server-password", "secret", ""),
              KirvField::textEdit("", "", "no id", "") });
        restart();
        QCOMPARE(valuesOf(account("id")), QStringList({ "Read me", "localhost", "5222", "-", "secret" }));
        const QMap<QString, QString> stored = store->readAccounts().first().settings;
        QCOMPARE(stored.keys(), QStringList({ "encrypted", "port", "server", "server-password", "unknown" }));
    }

    // Avatars

    void anAvatarIsKeptInTheProfileAndPublished()
    {
        QVERIFY(create("id"));
        protocol->calls.clear();
        const QString picture = makePicture(home->filePath("picture.png"));
        const QByteArray content = contentOf(picture);
        const int commits = store->commitCount();
        account("id")->setAvatar(picture);
        QCOMPARE(store->commitCount(), commits + 1);
        QCOMPARE(protocol->calls, QStringList({ "id avatar" }));
        QVERIFY(QFile::remove(picture));
        restart();
        const QString path = account("id")->getCurrentAvatarPath();
        QVERIFY(QDir::isAbsolutePath(path) && path.startsWith(store->avatarFolder()));
        QCOMPARE(contentOf(path), content);

        account("id")->setAvatar(path); // the picture that it has already
        QCOMPARE(contentOf(account("id")->getCurrentAvatarPath()), content);
        QCOMPARE(filesIn(store->avatarFolder()).size(), 1);
        account("id")->setAvatar(QString());
        QCOMPARE(account("id")->getCurrentAvatarPath(), QString());
        QVERIFY(filesIn(store->avatarFolder()).isEmpty());
        QCOMPARE(protocol->calls.mid(1), QStringList({ "id avatar", "id avatar" }));
        manager().disableAccount("id", fake);
        protocol->calls.clear();
        account("id")->setAvatar(makePicture(picture));
        QCOMPARE(protocol->calls, QStringList());
    }

    void aBadPictureLeavesTheOldAvatar()
    {
        QVERIFY(create("id"));
        account("id")->setAvatar(makePicture(home->filePath("picture.png")));
        const QString old = account("id")->getCurrentAvatarPath();
        QSignalSpy problems(registry.get(), &KirvAccountCollection::problemOccurred);
        account("id")->setAvatar(home->filePath("gone.png"));
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems.first().first().toString().contains("gone.png"));
        QCOMPARE(account("id")->getCurrentAvatarPath(), old);
        QVERIFY(QFile::exists(old));
    }

    void onlyTheLastAvatarOfASaveStays()
    {
        QVERIFY(create("id"));
        account("id")->beginSave();
        for (int size : { 8, 16, 24 })
            account("id")->setAvatar(makePicture(home->filePath("picture.png"), QSize(size, size)));
        QVERIFY(account("id")->endSave());
        QCOMPARE(filesIn(store->avatarFolder()).keys(), QStringList(account("id")->getCurrentAvatarPath()));
        QCOMPARE(QImage(account("id")->getCurrentAvatarPath()).width(), 24);
    }

    // Removing

    void removingTakesEverything()
    {
        QVERIFY(create("other"));
        QVERIFY(create("id"));
        account("id")->setAvatar(makePicture(home->filePath("picture.png")));
        manager().setMainAccount(account("id"));
        QStringList events;
        connect(registry.get(), &KirvAccountCollection::accountAboutToBeRemoved, this, [&](KirvAccount *leaving) {
            events << "about to be removed " + leaving->displayName() + " " + leaving->getPassword();
            QVERIFY(!leaving->isLoggedIn() && !leaving->isLoaded());
            QVERIFY(leaving->isMainAccount());
            QVERIFY(!manager().getAccount("id", fake));
        });
        connect(registry.get(), &KirvAccountCollection::accountRemoved, this,
                [&](const QString &id, const QString &name) { events << "removed " + id + " " + name; });
        protocol->calls.clear();
        const int commits = store->commitCount();
        const QPointer<KirvAccount> leaving(account("id"));
        manager().removeAccount("id", fake);
        QCOMPARE(protocol->calls, QStringList({ "id log out" }));
        QCOMPARE(events, QStringList({ "about to be removed Alias of id word of id", "removed id Fake" }));
        QCOMPARE(store->commitCount(), commits + 1);
        QVERIFY(!account("id") && !manager().loadAccount("id", fake) && !manager().accountEnabled("id", fake));
        QVERIFY(!manager().getMainAccount());
        QCOMPARE(idsOf(fake), QStringList({ "other" }));
        QCOMPARE(registry->accountsOf(fake).size(), 1);
        QVERIFY(filesIn(store->avatarFolder()).isEmpty());
        QVERIFY(!isTextInFiles("word of id", store->folder()));
        QTRY_VERIFY(!leaving);
        QCOMPARE(protocol->connections, 1);
        restart();
        QCOMPARE(idsOf(fake), QStringList({ "other" }));
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
        QVERIFY(create("id"));
        protocol->answersLogOut = false;
        auto *connection = static_cast<FakeConnection *>(account("id")->connection());
        KirvConnection::Timing timing;
        timing.logoutTimeout = serverAnswers ? 100000 : 20;
        connection->setTiming(timing);
        manager().removeAccount("id", fake);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(protocol->connections, 1);
        QCOMPARE(connection->state(), KirvConnection::Disconnecting);
        QCOMPARE(connection->account()->getUid(), QStringLiteral("id"));
        QVERIFY(create("id")); // a new one of that name is another account
        QCOMPARE(protocol->connections, 2);
        QCOMPARE(static_cast<KirvConnection *>(account("id")->connection())->state(), KirvConnection::Online);
        if (serverAnswers)
            connection->logoutFinished();
        QTRY_COMPARE(protocol->connections, 1);
        QVERIFY(account("id")->isLoggedIn());
    }

    void aRemovedAccountDoesNothingMore()
    {
        QVERIFY(create("id"));
        KirvAccount *leaving = account("id");
        protocol->answersLogOut = false;
        manager().removeAccount("id", fake);
        QSignalSpy problems(registry.get(), &KirvAccountCollection::problemOccurred);
        QSignalSpy changed(registry.get(), &KirvAccountCollection::accountChanged);
        const int commits = store->commitCount();
        leaving->beginSave();
        leaving->setAlias("too late");
        leaving->setAvatar(makePicture(home->filePath("picture.png")));
        leaving->setPresence(protocol->presences().first());
        leaving->providePassword("too late", true);
        QVERIFY(!leaving->endSave());
        QVERIFY(!leaving->isLoggedIn());
        QCOMPARE(store->commitCount(), commits);
        QCOMPARE(problems.size() + changed.size(), 0);
        QVERIFY(filesIn(store->avatarFolder()).isEmpty());
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
        bring("id", state);
        bring("removed", state);
        manager().removeAccount("removed", fake);
        if (how == QLatin1String("the core goes")) {
            registry.reset();
            QCOMPARE(protocol->connections, 0);
            return;
        }
        QSignalSpy changed(registry.get(), &KirvAccountCollection::accountChanged);
        auto next = std::make_unique<FakeProtocol>();
        if (how == QLatin1String("unloaded"))
            registry->protocolAboutToBeUnloaded(fake);
        else if (how == QLatin1String("another one in its place"))
            registry->protocolLoaded(next.get());
        else
            protocol.reset();
        QCOMPARE(protocol ? protocol->connections : 0, 0);
        QVERIFY(changed.size() > 0);
        if (how != QLatin1String("another one in its place")) {
            QVERIFY(!account("id")->connection() && !account("id")->getProtocol());
            QVERIFY(!manager().getAccount("id", fake));
            registry->protocolLoaded(next.get());
        }
        QCOMPARE(manager().getAccount("id", fake)->getProtocol(), next.get());
        QVERIFY(account("id")->isLoggedIn());
        QCOMPARE(registry->accounts().size(), 1);
        registry->protocolAboutToBeUnloaded(fake);
        QCOMPARE(next->connections, 0);
    }

    void whoWaitsForTheDirectoryIsAnsweredWhenTheProtocolGoes()
    {
        QVERIFY(create("id"));
        listenToDirectory();
        protocol->fetchPubdirInfo(account("id"));
        QVERIFY(answers.isEmpty());
        registry->protocolAboutToBeUnloaded(fake);
        QCOMPARE(answers, Answers({ { account("id"), {} } }));
    }

    // Slots that interfere

    void aSlotMayRemoveTheAccount_data()
    {
        QTest::addColumn<QString>("action");
        for (const char *action :
             { "alias", "save", "refused save", "enable", "disable", "log in", "log out", "fail", "ask", "presence",
               "avatar", "bad avatar", "password", "create", "unload", "reload", "log out all", "answer" }) {
            QTest::newRow(action) << action;
        }
    }
    void aSlotMayRemoveTheAccount()
    {
        QFETCH(QString, action);
        for (const bool removesAll : { false, true }) {
            bring("other", KirvConnection::Online);
            bring("id", KirvConnection::Online);
            KirvAccount *changing = account("id");
            if (action == QLatin1String("enable"))
                manager().disableAccount("id", fake);
            if (action == QLatin1String("log in"))
                setPresence("offline");
            if (action == QLatin1String("reload"))
                registry->protocolAboutToBeUnloaded(fake);
            QObject context;
            const auto interfere = [&] {
                if (removesAll)
                    manager().removeAccount("other", fake);
                manager().removeAccount("id", fake);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // as a nested loop would
            };
            connect(registry.get(), &KirvAccountCollection::accountChanged, &context, interfere);
            connect(registry.get(), &KirvAccountCollection::problemOccurred, &context, interfere);
            connect(registry.get(), &KirvAccountCollection::accountAdded, &context, interfere);
            connect(registry.get(), &KirvAccountCollection::passwordNeeded, &context, interfere);
            connect(registry.get(), &KirvAccountCollection::directoryAnswered, &context, interfere);
            connect(registry.get(), &KirvAccountCollection::accountAboutToBeRemoved, &context, interfere);

            auto *connection = static_cast<FakeConnection *>(changing->connection());
            if (action == QLatin1String("alias"))
                changing->setAlias("new");
            else if (action == QLatin1String("save") || action == QLatin1String("refused save")) {
                changing->beginSave();
                changeEverything();
                if (action == QLatin1String("refused save")) {
                    setStoreFull(true);
                    changing->setAlias(QString(100000, 'x'));
                }
                QCOMPARE(changing->endSave(), action == QLatin1String("save"));
            } else if (action == QLatin1String("enable"))
                manager().enableAccount("id", fake);
            else if (action == QLatin1String("disable"))
                manager().disableAccount("id", fake);
            else if (action == QLatin1String("log in"))
                connection->goTo(protocol->presences().first());
            else if (action == QLatin1String("log out"))
                connection->logOut();
            else if (action == QLatin1String("fail"))
                connection->connectionLost(KirvFailure::ConnectionLost);
            else if (action == QLatin1String("ask"))
                connection->connectionLost(KirvFailure::PasswordMissing);
            else if (action == QLatin1String("presence"))
                setPresence("away");
            else if (action == QLatin1String("avatar"))
                changing->setAvatar(makePicture(home->filePath("picture.png")));
            else if (action == QLatin1String("bad avatar"))
                changing->setAvatar("/nowhere");
            else if (action == QLatin1String("password"))
                changing->providePassword("new", true);
            else if (action == QLatin1String("create"))
                create("new");
            else if (action == QLatin1String("unload"))
                registry->protocolAboutToBeUnloaded(fake);
            else if (action == QLatin1String("reload"))
                registry->protocolLoaded(protocol.get());
            else if (action == QLatin1String("log out all"))
                registry->logOutAll(1000);
            else if (action == QLatin1String("answer"))
                connection->fetchDirectory(), connection->finishDirectoryRequest({ KirvField() });

            QVERIFY(!account("id"));
            disconnect(registry.get(), nullptr, &context, nullptr);
            restart();
            for (const QString &id : idsOf(fake))
                manager().removeAccount(id, fake);
        }
    }

    void aSlotMayRefuseANewAccountByRemovingIt()
    {
        connect(registry.get(), &KirvAccountCollection::accountAdded, this,
                [](KirvAccount *added) { manager().removeAccount(added->getUid(), added->getProtocolName()); });
        QVERIFY(!create("id"));
        QVERIFY(registry->accounts().isEmpty());
        QCOMPARE(protocol->calls, QStringList());
    }

    void aSlotMayDisableWhatIsBeingEnabled()
    {
        QVERIFY(create("id"));
        manager().disableAccount("id", fake);
        protocol->calls.clear();
        const auto connection = connect(registry.get(), &KirvAccountCollection::accountChanged, this,
                                        [] { manager().disableAccount("id", fake); });
        manager().enableAccount("id", fake);
        disconnect(connection);
        QVERIFY(!account("id")->isEnabled() && !account("id")->isLoggedIn());
        QCOMPARE(protocol->calls, QStringList());
    }

    // The main account

    void theMainAccountIsAssignedAndNothingElse()
    {
        QVERIFY(create("id"));
        QVERIFY(!manager().getMainAccount());
        QSignalSpy changed(registry.get(), &KirvAccountCollection::accountChanged);
        const int commits = store->commitCount();
        manager().setMainAccount(account("id"));
        QCOMPARE(manager().getMainAccount(), account("id"));
        QCOMPARE(KirvAccountManagerPrivate::ampInstance->mainAccount, account("id"));
        QVERIFY(account("id")->isMainAccount());
        QCOMPARE(store->commitCount(), commits);
        QCOMPARE(changed.size(), 0);
        manager().setMainAccount(nullptr);
        QVERIFY(!account("id")->isMainAccount());
    }

    void theMainAccountIsRestored_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("id");
        QTest::newRow("an account") << "id@@Fake"
                                    << "id";
        QTest::newRow("an id with the separator in it") << "odd@@id@@Fake"
                                                        << "odd@@id";
        QTest::newRow("gone") << "gone@@Fake"
                              << "";
        QTest::newRow("another protocol") << "id@@Other"
                                          << "";
        QTest::newRow("no separator") << "id"
                                      << "";
        QTest::newRow("none") << ""
                              << "";
    }
    void theMainAccountIsRestored()
    {
        QFETCH(QString, setting);
        QFETCH(QString, id);
        QVERIFY(create("id") && create("odd@@id"));
        QVERIFY(store->writeSetting("main_account", setting));
        restart([this] { registry->restoreMainAccount(); });
        QCOMPARE(manager().getMainAccount(), id.isEmpty() ? nullptr : account(id));
    }

    // News of connections

    void theLastFailureIsKeptUntilASuccess()
    {
        QVERIFY(create("id"));
        QVERIFY(!account("id")->lastFailure().isFailure() && !account("id")->lastFailureTime().isValid());
        QSignalSpy changed(registry.get(), &KirvAccountCollection::accountChanged);
        protocol->server = FakeProtocol::RefusesPassword;
        account("id")->connection()->reconnect(protocol->presences().first());
        QVERIFY(changed.size() > 0);
        QCOMPARE(account("id")->lastFailure().kind(), KirvFailure::WrongPassword);
        QVERIFY(qAbs(account("id")->lastFailureTime().secsTo(QDateTime::currentDateTime())) < 60);
        protocol->server = FakeProtocol::LetsIn;
        setPresence("available");
        QVERIFY(account("id")->isLoggedIn());
        QVERIFY(!account("id")->lastFailure().isFailure() && !account("id")->lastFailureTime().isValid());
    }

    void directoryAnswersArePassedOn()
    {
        QVERIFY(create("id"));
        listenToDirectory();
        protocol->fetchPubdirInfo(account("id"));
        const QList<KirvField> fields { KirvField::textEdit("", "town", "Verona", "") };
        static_cast<FakeConnection *>(account("id")->connection())->finishDirectoryRequest(fields);
        QCOMPARE(answers, Answers({ { account("id"), fields } }));
    }

    void everybodyIsLoggedOutWithinTheTime()
    {
        QVERIFY(create("id") && create("leaving") && create("off line"));
        setPresence("offline", "off line");
        protocol->answersLogOut = false;
        auto *connection = static_cast<FakeConnection *>(account("id")->connection());
        auto *leaving = static_cast<FakeConnection *>(account("leaving")->connection());
        manager().removeAccount("leaving", fake);
        QElapsedTimer timer;
        timer.start();
        registry->logOutAll(30);
        QVERIFY(timer.elapsed() >= 25);
        QCOMPARE(connection->state(), KirvConnection::Disconnecting);

        QMetaObject::invokeMethod(
            connection, [=] { connection->logoutFinished(); }, Qt::QueuedConnection);
        QMetaObject::invokeMethod(
            connection, [=] { leaving->logoutFinished(); }, Qt::QueuedConnection);
        timer.start();
        registry->logOutAll(60000);
        QVERIFY(timer.elapsed() < 30000);
        QCOMPARE(connection->state(), KirvConnection::Offline);
        registry->logOutAll(60000); // nobody is on line
    }

    // Size

    void oneChangeCostsTheSameInTenThousandAccounts()
    {
        protocol->server = FakeProtocol::Hangs;
        QMap<QString, double> few, many;
        fillUpTo(10);
        few = measure();
        fillUpTo(10000);
        many = measure();
        QElapsedTimer timer;
        timer.start();
        restart(false);
        qInfo("10,000 accounts: profile opened and all loaded in %lld ms", timer.elapsed());
        QVERIFY(timer.elapsed() < 10000);
        for (auto cost = few.constBegin(); cost != few.constEnd(); ++cost) {
            qInfo("%s: %.3f ms with 10 accounts, %.3f ms with 10,000", qPrintable(cost.key()), cost.value(),
                  many.value(cost.key()));
            // Rewriting all would cost hundreds of times more.
            QVERIFY2(many.value(cost.key()) < 20 * cost.value() + 5, qPrintable(cost.key()));
        }
    }

private:
    using Answers = QList<QPair<KirvAccount *, QList<KirvField>>>;

    void listenToDirectory()
    {
        answers.clear();
        connect(
            registry.get(), &KirvAccountCollection::directoryAnswered, this,
            [this](KirvAccount *account, const QList<KirvField> &fields) { answers << qMakePair(account, fields); });
    }

    KirvAccount *account(const QString &id) const { return registry->find({ id, fake }); }

    KirvAccountConnection *create(const QString &id)
    {
        return manager().createAccount(id, "Alias of " + id, "word of " + id, true, protocol.get(),
                                       protocol->presences().first(), {});
    }

    void setPresence(const QString &presence, const QString &id = QStringLiteral("id"))
    {
        account(id)->setPresence(protocol->createPresenceWithId(presence, QString()));
        protocol->accountPresenceChanged(account(id));
    }

    /// Creates an account and brings its connection into \a state.
    void bring(const QString &id, KirvConnection::State state)
    {
        protocol->server = state == KirvConnection::Connecting ? FakeProtocol::Hangs : FakeProtocol::LetsIn;
        protocol->answersLogOut = state != KirvConnection::Disconnecting;
        QVERIFY(create(id));
        auto *connection = static_cast<FakeConnection *>(account(id)->connection());
        if (state == KirvConnection::Offline || state == KirvConnection::Disconnecting)
            connection->logOut();
        if (state == KirvConnection::Waiting)
            connection->connectionLost(KirvFailure::ConnectionLost);
        QCOMPARE(connection->state(), state);
    }

    void changeEverything()
    {
        KirvAccount *changing = account("id");
        changing->setAlias("new");
        changing->setPassword("new");
        changing->setRememberPassword(true);
        changing->setRestoreLastPresence(true);
        changing->setRestoreLastDescription(true);
        changing->setDefaultPresence(protocol->createPresenceWithId("away", "new"));
        changing->setPresence(changing->getDefaultPresence());
        changing->setAvatar(makePicture(home->filePath("picture.png")));
        changing->setAccountSettings({ KirvField::textEdit("", "server", "new", "") });
    }

    static QStringList idsOf(const QString &protocol)
    {
        QStringList ids;
        for (const KirvAccountInfo *info : manager().getAccountsInfo(protocol))
            ids << info->getId();
        return ids;
    }

    /// The values of the settings of \a account in order, "+" and "-" for check boxes.
    static QStringList valuesOf(const KirvAccountConnection *account)
    {
        QStringList values;
        for (const KirvField &field : account->getAccountSettingsInOrder())
            values << (field.getKind() == KirvField::CheckBox ? QString(QLatin1Char(field.isChecked() ? '+' : '-'))
                                                              : field.getText());
        return values;
    }

    static void setStoreFull(bool isFull)
    {
        QSqlDatabase database = QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false);
        QVERIFY(QSqlQuery(database).exec(isFull ? "PRAGMA max_page_count = 1" : "PRAGMA max_page_count = 1000000"));
    }

    void restart(bool logIn = true)
    {
        restart([] {}, logIn);
    }

    /// Ends the core and starts it again over the same profile; \a beforeLoading runs before the protocol comes.
    void restart(const std::function<void()> &beforeLoading, bool logIn = true)
    {
        const QString folder = store->folder();
        registry.reset();
        QCOMPARE(protocol->connections, 0);
        protocol->calls.clear();
        store->close();
        QVERIFY2(store->open(folder), qPrintable(store->lastError()));
        registry = std::make_unique<KirvAccountCollection>(*store);
        beforeLoading();
        registry->protocolLoaded(protocol.get(), logIn);
    }

    /// Fills the profile behind the back of the registry, in one transaction.
    void fillUpTo(int count)
    {
        const int present = int(registry->accounts().size());
        registry.reset();
        QVERIFY(store->begin());
        for (int number = present; number < count; ++number) {
            KirvAccountRecord account;
            account.key = { QStringLiteral("account %1").arg(number), fake };
            account.alias = QStringLiteral("Alias %1").arg(number);
            account.settings = { { "server", "localhost" }, { "port", "5222" }, { "encrypted", "true" } };
            QVERIFY(store->insertAccount(account));
        }
        QVERIFY(store->commit());
        registry = std::make_unique<KirvAccountCollection>(*store);
        registry->protocolLoaded(protocol.get(), false);
        QCOMPARE(registry->accounts().size(), count);
    }

    /// The median time of each change in milliseconds; checks that each is one commit.
    QMap<QString, double> measure()
    {
        constexpr int rounds = 21;
        QMap<QString, QList<double>> times;
        const auto clock = [&](const QString &what, const std::function<void()> &change) {
            const int commits = store->commitCount();
            QElapsedTimer timer;
            timer.start();
            change();
            times[what] << double(timer.nsecsElapsed()) / 1e6;
            QCOMPARE(store->commitCount(), commits + 1);
        };
        const auto forEach = [&](const QString &what, const std::function<void(const QString &)> &change) {
            for (int round = 0; round < rounds; ++round) {
                const QString id = QStringLiteral("new %1").arg(round);
                clock(what, [&] { change(id); });
            }
        };
        forEach("add", [&](const QString &id) { create(id); });
        forEach("alias", [&](const QString &id) { account(id)->setAlias("changed"); });
        forEach("disable", [&](const QString &id) { manager().disableAccount(id, fake); });
        forEach("enable", [&](const QString &id) { manager().enableAccount(id, fake); });
        forEach("remove", [&](const QString &id) { manager().removeAccount(id, fake); });
        QMap<QString, double> medians;
        for (auto time = times.begin(); time != times.end(); ++time) {
            std::sort(time->begin(), time->end());
            medians.insert(time.key(), time->at(rounds / 2));
        }
        return medians;
    }

    std::unique_ptr<QTemporaryDir> home;
    std::unique_ptr<KirvStore> store;
    std::unique_ptr<FakeProtocol> protocol;
    std::unique_ptr<KirvAccountCollection> registry;
    int asked = 0;
    Answers answers;
};

QTEST_GUILESS_MAIN(AccountsTest)
#include "tst_accounts.moc"

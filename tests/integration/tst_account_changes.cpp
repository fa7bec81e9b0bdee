// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/kirv_profile_files.h"

#include <QSignalSpy>
#include <QtTest>
#include <functional>

/// What is stored of an account and how it changes; tst_reconciler shows what its connection does then.
class tst_AccountChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<KirvAccount *>("KirvAccount*"); }

    void init()
    {
        core = std::make_unique<KirvAccountsFixture>();
        QVERIFY(core->isReady());
    }

    void cleanup() { core.reset(); }

    void aChangedPasswordLogsInAgainWithIt()
    {
        QVERIFY(core->create("id"));
        core->takeCalls();
        core->account("id")->setPassword("new word");
        core->account("id")->setPresence(core->account("id")->getDefaultPresence());
        core->protocol->accountPresenceChanged(core->account("id"));
        QVERIFY(core->account("id")->isLoggedIn());
        QCOMPARE(core->takeCalls(), QStringList({ "id log out", "id log in available new word" }));
    }

    void aTrustedCertificateLogsInAgainWithIt()
    {
        QVERIFY(core->create("id"));
        QVERIFY(core->account("id")->connection()->login().trustedCertificate.isEmpty());
        core->takeCalls();
        core->account("id")->change([](KirvAccountRecord &record) { record.trustedCertificate = "00ff1a"; });
        core->settle();
        QCOMPARE(core->account("id")->connection()->login().trustedCertificate, QByteArray("\x00\xff\x1a", 3));
        QCOMPARE(core->takeCalls().first(), QStringLiteral("id log out"));
        QVERIFY(core->account("id")->isLoggedIn());
        core->restart();
        QCOMPARE(core->account("id")->record().trustedCertificate, QStringLiteral("00ff1a"));
    }

    void aPasswordIsKeptOnlyWhenItIsToBeRemembered_data()
    {
        QTest::addColumn<bool>("remember");
        QTest::newRow("remembered") << true;
        QTest::newRow("not remembered") << false;
    }

    void aPasswordIsKeptOnlyWhenItIsToBeRemembered()
    {
        QFETCH(bool, remember);
        QVERIFY(core->manager().createAccount("id", "", "correct horse", remember, core->protocol.get(), KirvPresence(),
                                              {}));
        QCOMPARE(core->account("id")->getPassword(), QStringLiteral("correct horse"));
        QCOMPARE(core->account("id")->record().rememberPassword, remember);
        QCOMPARE(isTextInFiles("correct horse", core->store.folder()), remember);
        core->restart();
        QCOMPARE(core->account("id")->getPassword(), remember ? QStringLiteral("correct horse") : QString());
        core->account("id")->setPassword("battery staple");
        QCOMPARE(isTextInFiles("battery staple", core->store.folder()), remember);
        QVERIFY(!isTextInFiles("correct horse", core->store.folder()));
        core->account("id")->setRememberPassword(!remember);
        QCOMPARE(isTextInFiles("battery staple", core->store.folder()), !remember);
        QCOMPARE(core->account("id")->getPassword(), QStringLiteral("battery staple"));
    }

    void aMissingPasswordIsRequested_data()
    {
        QTest::addColumn<bool>("remember");
        QTest::newRow("to remember") << true;
        QTest::newRow("for this run") << false;
    }

    void aMissingPasswordIsRequested()
    {
        QFETCH(bool, remember);
        QVERIFY(core->create("id"));
        core->account("id")->setRememberPassword(false);
        core->server().needsPassword = true;
        int requests = 0;
        core->restart(true, [&] {
            connect(core->accounts.get(), &KirvAccountCollection::passwordNeeded, this, [&] { ++requests; });
        });
        core->settle();
        QCOMPARE(requests, 1);
        QCOMPARE(core->account("id")->lastFailure().kind(), KirvFailure::PasswordMissing);
        core->account("id")->providePassword("given", remember);
        core->settle();
        QVERIFY(core->account("id")->isLoggedIn());
        QVERIFY(!core->account("id")->lastFailure().isFailure());
        QCOMPARE(isTextInFiles("given", core->store.folder()), remember);
        QCOMPARE(core->account("id")->record().rememberPassword, remember);
        QCOMPARE(requests, 1);
    }

    void aDisabledAccountNeedsNoPassword()
    {
        core->server().needsPassword = true;
        QSignalSpy requests(core->accounts.get(), &KirvAccountCollection::passwordNeeded);
        QVERIFY(core->create());
        core->account()->setRememberPassword(false);
        core->account()->setPassword(QString());
        connect(core->accounts.get(), &KirvAccountCollection::accountChanged, this, [](KirvAccount *account) {
            if (account->lastFailure().isFailure())
                account->setEnabled(false);
        });
        core->settle();
        QCOMPARE(core->account()->lastFailure().kind(), KirvFailure::PasswordMissing);
        QVERIFY(!core->account()->isEnabled());
        QCOMPARE(requests.size(), 0);
    }

    void aPasswordThatTheStoreRefusesServesThisRun()
    {
        QVERIFY(core->create("id"));
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        core->setPresence("offline");
        core->settle();
        core->store.close();
        core->account("id")->providePassword("given", true);
        QCOMPARE(problems.size(), 1);
        QCOMPARE(core->takeCalls().last(), QStringLiteral("id log in available given"));
        QCOMPARE(core->account("id")->getPassword(), QStringLiteral("given"));
    }

    void aSaveIsOneCommitAndOneSignal()
    {
        QVERIFY(core->create("id"));
        const int commits = core->store.commitCount();
        QSignalSpy changed(core->account("id"), &KirvAccount::changed);
        QSignalSpy accountChanged(core->accounts.get(), &KirvAccountCollection::accountChanged);
        core->account("id")->beginSave();
        core->changeEverything(core->account("id"));
        core->account("id")->beginSave();
        core->account("id")->setAlias("last");
        QVERIFY(core->account("id")->endSave());
        QCOMPARE(core->store.commitCount(), commits);
        QCOMPARE(changed.size(), 0);
        QVERIFY(core->account("id")->endSave());
        QCOMPARE(core->store.commitCount(), commits + 1);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(accountChanged.size(), 1);
        core->restart();
        QCOMPARE(core->account("id")->getAlias(), QStringLiteral("last"));
        QCOMPARE(core->account("id")->getPassword(), QStringLiteral("new"));
        QCOMPARE(core->valuesOf(core->account("id")).at(1), QStringLiteral("new"));
    }

    void everyChangeOnItsOwnIsOneCommitAndNoChangeIsNone()
    {
        QVERIFY(core->create("id"));
        KirvAccount *changing = core->account("id");
        const QList<std::function<void()>> changes {
            [&] { changing->setAlias("new"); },
            [&] { changing->setPassword("new"); },
            [&] { changing->setRememberPassword(false); },
            [&] { changing->setRestoreLastPresence(true); },
            [&] { changing->setRestoreLastDescription(true); },
            [&] { changing->setDefaultPresence(core->protocol->createPresenceWithId("away", "")); },
            [&] { changing->setPresence(core->protocol->createPresenceWithId("away", "")); },
            [&] { changing->setAccountSettings({ KirvField::number("", "port", 1, 0, 2, "") }); },
        };
        for (const std::function<void()> &change : changes) {
            const int commits = core->store.commitCount();
            change();
            QCOMPARE(core->store.commitCount(), commits + 1);
            change();
            QCOMPARE(core->store.commitCount(), commits + 1);
        }
        changing->beginSave();
        QVERIFY(changing->endSave());
        QVERIFY(changing->endSave());
    }

    void aRefusedSaveLeavesTheOldValues()
    {
        QVERIFY(core->create("id"));
        KirvAccount *saved = core->account("id");
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        core->setStoreFull(true);
        saved->beginSave();
        core->changeEverything(core->account("id"));
        saved->setAccountSettings({ KirvField::textEdit("", "server", QString(100000, 'x'), "") });
        QVERIFY(!saved->endSave());
        core->setStoreFull(false);
        QCOMPARE(problems.size(), 1);
        QVERIFY(!core->accounts->lastError().isEmpty());
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(core->account("id")->getAlias(), QStringLiteral("Alias of id"));
            QCOMPARE(core->account("id")->getPassword(), QStringLiteral("word of id"));
            QVERIFY(core->account("id")->record().rememberPassword && !core->account("id")->record().restorePresence);
            QCOMPARE(core->account("id")->getDefaultPresence().getId(), QStringLiteral("available"));
            QCOMPARE(core->valuesOf(core->account("id")).at(1), QStringLiteral("localhost"));
            QCOMPARE(core->account("id")->getCurrentAvatarPath(), QString());
            QCOMPARE(core->manager().getAccountsInfo(core->fake).first()->getAlias(), QStringLiteral("Alias of id"));
            QVERIFY(filesIn(core->store.avatarFolder()).isEmpty());
            core->restart();
        }
        core->account("id")->setAlias("works again");
        QCOMPARE(core->account("id")->getAlias(), QStringLiteral("works again"));
        QVERIFY(core->accounts->lastError().isEmpty());
    }

    void settingsFollowTheOrderOfTheProtocol()
    {
        QVERIFY(core->create("id"));
        QCOMPARE(core->valuesOf(core->account("id")), QStringList({ "Read me", "localhost", "5222", "+", "" }));
        core->account("id")->setAccountSettings(
            { KirvField::checkBox("", "encrypted", false, ""), KirvField::note("", "note", "changed", ""),
              KirvField::textEdit("", "unknown", "kept", ""), KirvField::password("", "server-password", "secret", ""),
              KirvField::textEdit("", "", "no id", "") });
        core->restart();
        QCOMPARE(core->valuesOf(core->account("id")), QStringList({ "Read me", "localhost", "5222", "-", "secret" }));
        const QMap<QString, QString> stored = core->store.readAccounts().first().settings;
        QCOMPARE(stored.keys(), QStringList({ "encrypted", "port", "server", "server-password", "unknown" }));
    }

    void anAvatarIsKeptInTheProfileAndPublished()
    {
        QVERIFY(core->create("id"));
        core->takeCalls();
        const QString picture = core->makePicture();
        const QByteArray content = contentOf(picture);
        const int commits = core->store.commitCount();
        core->account("id")->setAvatar(picture);
        QCOMPARE(core->store.commitCount(), commits + 1);
        QCOMPARE(core->takeCalls(), QStringList({ "id avatar" }));
        QVERIFY(QFile::remove(picture));
        core->restart();
        core->settle();
        const QString path = core->account("id")->getCurrentAvatarPath();
        QVERIFY(QDir::isAbsolutePath(path) && path.startsWith(core->store.avatarFolder()));
        QCOMPARE(contentOf(path), content);

        core->takeCalls();
        core->account("id")->setAvatar(path); // the picture that it has already
        QCOMPARE(core->takeCalls(), QStringList({ "id avatar" }));
        QCOMPARE(contentOf(core->account("id")->getCurrentAvatarPath()), content);
        QCOMPARE(filesIn(core->store.avatarFolder()).size(), 1);
        core->account("id")->setAvatar(QString());
        QCOMPARE(core->account("id")->getCurrentAvatarPath(), QString());
        QVERIFY(filesIn(core->store.avatarFolder()).isEmpty());
        QCOMPARE(core->takeCalls(), QStringList({ "id avatar" }));
        core->manager().disableAccount("id", core->fake);
        core->takeCalls();
        core->account("id")->setAvatar(core->makePicture());
        QCOMPARE(core->takeCalls(), QStringList());
    }

    void aBadPictureLeavesTheOldAvatar()
    {
        QVERIFY(core->create("id"));
        core->account("id")->setAvatar(core->makePicture());
        const QString old = core->account("id")->getCurrentAvatarPath();
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        core->account("id")->setAvatar(core->home.filePath("gone.png"));
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems.first().first().toString().contains("gone.png"));
        QCOMPARE(core->account("id")->getCurrentAvatarPath(), old);
        QVERIFY(QFile::exists(old));
    }

    void aChosenAvatarCountsUntilItIsOnTheServer()
    {
        QVERIFY(core->create("id"));
        core->settle();
        KirvFakeConnection *connection = core->connection();
        QVERIFY(!connection->avatar().isChosen);
        core->account("id")->setAvatar(core->makePicture());
        core->restart(); // the server has not replied
        core->settle();
        connection = core->connection();
        QVERIFY(connection->avatar().isChosen);
        Q_EMIT connection->avatarPublished("/an/older/one.png", "first");
        core->settle();
        QVERIFY(connection->avatar().isChosen);
        core->takeCalls();
        Q_EMIT connection->avatarPublished(connection->avatar().path, "second");
        core->settle();
        QVERIFY(!connection->avatar().isChosen);
        core->restart();
        core->settle();
        connection = core->connection();
        QVERIFY(!connection->avatar().isChosen);
        QCOMPARE(connection->avatar().onServer, QByteArray("second"));
        QVERIFY(!core->takeCalls().contains("id avatar"));
        // Removing it is a choice, too; removing none is not.
        core->account("id")->setAvatar(QString());
        core->settle();
        QVERIFY(connection->avatar().isChosen);
        Q_EMIT connection->avatarPublished(QString(), "third");
        core->account("id")->setAvatar(QString());
        core->settle();
        QVERIFY(!connection->avatar().isChosen);
        QCOMPARE(core->valuesOf(core->account("id")), QStringList({ "Read me", "localhost", "5222", "+", "" }));
    }

    void anAvatarOfAnotherClientTakesThePlace()
    {
        QVERIFY(core->create("id"));
        core->account("id")->setAvatar(core->makePicture());
        core->settle();
        KirvFakeConnection *connection = core->connection();
        const QByteArray image = contentOf(core->makePicture(QSize(16, 16)));
        Q_EMIT connection->avatarReceived(image, "too early");
        QCOMPARE(QImage(core->account("id")->getCurrentAvatarPath()).width(), 32); // the one that was chosen here

        Q_EMIT connection->avatarPublished(connection->avatar().path, "first");
        core->takeCalls();
        QSignalSpy changed(core->account("id"), &KirvAccount::changed);
        QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
        Q_EMIT connection->avatarReceived(image, "second");
        QCOMPARE(changed.size(), 1);
        QCOMPARE(core->takeCalls(), QStringList()); // it is not published again
        const QString path = core->account("id")->getCurrentAvatarPath();
        QCOMPARE(contentOf(path), image);
        QCOMPARE(filesIn(core->store.avatarFolder()).size(), 1);

        Q_EMIT connection->avatarReceived("no picture", "third");
        QCOMPARE(core->account("id")->getCurrentAvatarPath(), path);
        QCOMPARE(problems.size(), 0);
        core->restart();
        core->settle();
        connection = core->connection();
        QCOMPARE(connection->avatar().onServer, QByteArray("third"));
        QCOMPARE(core->account("id")->getCurrentAvatarPath(), path);

        Q_EMIT connection->avatarReceived(QByteArray(), "fourth");
        QCOMPARE(core->account("id")->getCurrentAvatarPath(), QString());
        QVERIFY(filesIn(core->store.avatarFolder()).isEmpty());
        QVERIFY(!core->takeCalls().contains("id avatar"));
    }

    void onlyTheLastAvatarOfASaveStays()
    {
        QVERIFY(core->create("id"));
        core->takeCalls();
        core->account("id")->beginSave();
        for (int size : { 8, 16, 24 })
            core->account("id")->setAvatar(core->makePicture(QSize(size, size)));
        QVERIFY(core->account("id")->endSave());
        QCOMPARE(filesIn(core->store.avatarFolder()).keys(), QStringList(core->account("id")->getCurrentAvatarPath()));
        QCOMPARE(QImage(core->account("id")->getCurrentAvatarPath()).width(), 24);
        QCOMPARE(core->takeCalls(), QStringList({ "id avatar" }));
    }

private:
    std::unique_ptr<KirvAccountsFixture> core;
};

QTEST_GUILESS_MAIN(tst_AccountChanges)
#include "tst_account_changes.moc"

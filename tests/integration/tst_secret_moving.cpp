// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/kirv_no_sync.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"

#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>
#include <algorithm>
#include <memory>

namespace {

QString idOf(int number)
{
    return QStringLiteral("id%1").arg(number, 3, 10, QLatin1Char('0'));
}

QString wordOf(int number)
{
    return QStringLiteral("word of ") + idOf(number);
}

} // namespace

/// Many passwords at once over a scripted keyring: those of the profile move there, or many are stored.
class tst_SecretMoving : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anInterruptedMoveCountsAllThatWereMoved();
    void aMoveWritesTheProfileRarely();
    void aMoveThatDoesNotGoOnLeavesNoTrace_data();
    void aMoveThatDoesNotGoOnLeavesNoTrace();
    void aCompleteMoveLeavesNoTrace();
    void aMoveThatCannotBeEndedEndsAtTheNextStart();
    void itemsOfAnInterruptedMoveAreGivenUpTogether();
    void aLockedKeyringIsUnlockedForTheMoveOnRequest_data();
    void aLockedKeyringIsUnlockedForTheMoveOnRequest();

    void withoutAKeyringAFewAreKeptInATurn();
    void aTurnReportsAFew();
    void manyThatAreStoredAtOnceFindTheirPlace();

private:
    static const int perCommit = 20; ///< passwords that leave the profile together

    void fill(int count);
    void restart();
    void moveUntil(int written);
    int movedCount() const;
    bool areAnyMovedInFiles(const QString &folder) const;
    QString copyOfFiles();

    QTemporaryDir other;
    std::unique_ptr<KirvFakeSecretStore> keyring;
    std::unique_ptr<KirvAccountsFixture> core;
};

void tst_SecretMoving::init()
{
    keyring = std::make_unique<KirvFakeSecretStore>(KirvSecretStore::Unavailable);
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    core->accounts->secrets().setKeyring(keyring.get());
}

void tst_SecretMoving::cleanup()
{
    core.reset();
    keyring.reset();
}

/// Starts the core over a profile that holds \a count passwords.
void tst_SecretMoving::fill(int count)
{
    QVERIFY(core->store.begin());
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(idOf(number)));
    QVERIFY(core->store.commit());
    restart();
    for (int round = 0; round < count; ++round)
        KirvAccountsFixture::settle(); // all have logged in
}

void tst_SecretMoving::restart()
{
    core->restart(true, [this] { core->accounts->secrets().setKeyring(keyring.get()); });
}

/// Moves until the keyring has so many passwords, and holds the next operation.
void tst_SecretMoving::moveUntil(int written)
{
    keyring->isHeld = true;
    core->accounts->secrets().startMoving();
    keyring->setState(KirvSecretStore::Ready);
    for (int round = 0; round < 20 * written && keyring->secrets.size() < written; ++round) {
        keyring->release();
        KirvAccountsFixture::settle();
    }
    QCOMPARE(keyring->secrets.size(), written);
}

void tst_SecretMoving::aLockedKeyringIsUnlockedForTheMoveOnRequest_data()
{
    QTest::addColumn<bool>("isUnlocked");
    QTest::newRow("the user unlocks it") << true;
    QTest::newRow("the user refuses") << false;
}

void tst_SecretMoving::aLockedKeyringIsUnlockedForTheMoveOnRequest()
{
    QFETCH(bool, isUnlocked);
    const int count = 3;
    fill(count);
    KirvSecretKeeper &secrets = core->accounts->secrets();
    keyring->setState(KirvSecretStore::Locked);
    const QSignalSpy changes(&secrets, &KirvSecretKeeper::changed);
    QVERIFY(!secrets.hasMovableSecrets());
    secrets.startMoving(); // when all plug-ins are loaded, which may be later than the state is known
    QVERIFY(secrets.hasMovableSecrets());
    QCOMPARE(changes.count(), 1);
    for (int round = 0; round < 20; ++round)
        KirvAccountsFixture::settle();
    QCOMPARE(keyring->calls, QStringList()); // nobody has requested it
    QVERIFY(secrets.hasMovableSecrets());
    keyring->outcome = isUnlocked ? KirvSecretStore::Done : KirvSecretStore::Refused;
    secrets.unlock();
    if (!isUnlocked) {
        KIRV_TRY(!keyring->calls.isEmpty());
        for (int round = 0; round < 20; ++round)
            KirvAccountsFixture::settle();
        QCOMPARE(keyring->calls, QStringList("write")); // once
        QCOMPARE(movedCount(), 0);
        QVERIFY(secrets.hasMovableSecrets());
        keyring->outcome = KirvSecretStore::Done;
        keyring->setState(KirvSecretStore::Ready); // later, by another program
    }
    KIRV_TRY_COMPARE(movedCount(), count);
    QCOMPARE(keyring->secrets.size(), count);
    QVERIFY(!secrets.hasMovableSecrets());
}

int tst_SecretMoving::movedCount() const
{
    int count = 0;
    for (const KirvAccount *account : core->accounts->accounts())
        count += account->record().secretItems.isEmpty() ? 0 : 1;
    return count;
}

/// Whether the files have a password that the profile does not hold any more.
bool tst_SecretMoving::areAnyMovedInFiles(const QString &folder) const
{
    const QList<KirvAccount *> accounts = core->accounts->accounts();
    return std::any_of(accounts.begin(), accounts.end(), [&folder](const KirvAccount *account) {
        return !account->record().secretItems.isEmpty() && isTextInFiles(account->record().password, folder);
    });
}

/// The profile as a kill would leave it.
QString tst_SecretMoving::copyOfFiles()
{
    const QString folder = other.filePath(QStringLiteral("killed"));
    QDir().mkpath(folder);
    const auto files = filesIn(core->store.folder());
    for (auto file = files.constBegin(); file != files.constEnd(); ++file) {
        QFile copy(QDir(folder).filePath(QFileInfo(file.key()).fileName()));
        const bool isOfDatabase =
            file.key().endsWith(QLatin1String(".sqlite")) || file.key().endsWith(QLatin1String("-wal"));
        if (isOfDatabase && (!copy.open(QIODevice::WriteOnly) || copy.write(file.value()) != file.value().size()))
            return QString();
    }
    return folder;
}

void tst_SecretMoving::anInterruptedMoveCountsAllThatWereMoved()
{
    fill(perCommit + 10);
    moveUntil(perCommit + 5);
    QCOMPARE(movedCount(), perCommit);
    keyring->isHeld = false;
    restart();
    QSignalSpy moves(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    core->accounts->secrets().startMoving();
    KIRV_TRY_COMPARE(moves.size(), 1);
    QCOMPARE(moves.first().first().toInt(), perCommit + 10);
    QCOMPARE(core->store.movedCount(), 0);
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    QCOMPARE(keyring->secrets.size(), perCommit + 10);
    restart();
    QSignalSpy again(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    core->accounts->secrets().startMoving();
    for (int round = 0; round < 500; ++round)
        KirvAccountsFixture::settle();
    QCOMPARE(again.size(), 0);
}

/// Each writing to the disk holds up the event loop for as long as the disk takes.
void tst_SecretMoving::aMoveWritesTheProfileRarely()
{
    const int count = 10 * perCommit;
    fill(count);
    QSignalSpy moves(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    keyring->setState(KirvSecretStore::Ready);
    const int commits = core->store.commitCount(), syncs = kirvSyncCalls();
    core->accounts->secrets().startMoving();
    KIRV_TRY_COMPARE(moves.size(), 1);
    QCOMPARE(moves.first().first().toInt(), count);
    const int commitsOfMove = core->store.commitCount() - commits, syncsOfMove = kirvSyncCalls() - syncs;
    qInfo("%d passwords: %d commits, %d synchronisations", count, commitsOfMove, syncsOfMove);
    QVERIFY(syncsOfMove > 0); // they are counted
    QVERIFY2(commitsOfMove <= 14,
             QByteArray::number(commitsOfMove).constData()); // the id, 2 batches, 10 parts, the end
    QVERIFY2(syncsOfMove <= 12, QByteArray::number(syncsOfMove).constData()); // one per part would be more
}

void tst_SecretMoving::aMoveThatDoesNotGoOnLeavesNoTrace_data()
{
    QTest::addColumn<QString>("reason");
    for (const char *reason : { "locked", "refused", "closed", "killed" })
        QTest::newRow(reason) << reason;
}

void tst_SecretMoving::aMoveThatDoesNotGoOnLeavesNoTrace()
{
    QFETCH(QString, reason);
    fill(perCommit + 10);
    moveUntil(perCommit + 5);
    QCOMPARE(movedCount(), perCommit);
    QVERIFY(areAnyMovedInFiles(core->store.folder())); // nothing is wiped in between
    const int movedSoFar = core->store.movedCount();
    QString folder = core->store.folder();
    if (reason == QLatin1String("locked")) {
        keyring->setState(KirvSecretStore::Locked);
    } else if (reason == QLatin1String("refused")) {
        keyring->outcome = KirvSecretStore::Refused;
        keyring->release();
        KirvAccountsFixture::settle();
    } else if (reason == QLatin1String("closed")) {
        core->store.close();
    } else {
        folder = copyOfFiles();
        QVERIFY(areAnyMovedInFiles(folder));
        KirvStore next;
        QVERIFY2(next.open(folder), qPrintable(next.lastError()));
        QVERIFY(!areAnyMovedInFiles(folder));
        QCOMPARE(next.movedCount(), movedSoFar);
    }
    QVERIFY(!areAnyMovedInFiles(folder));
}

void tst_SecretMoving::aCompleteMoveLeavesNoTrace()
{
    const int count = 5 * perCommit + 3;
    fill(count);
    QVERIFY(isTextInFiles(wordOf(7), core->store.folder()));
    QSignalSpy moves(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    keyring->setState(KirvSecretStore::Ready);
    core->accounts->secrets().startMoving();
    KIRV_TRY_COMPARE(moves.size(), 1);
    QCOMPARE(movedCount(), count);
    QVERIFY(!isTextInFiles(QStringLiteral("word of "), core->store.folder()));
}

void tst_SecretMoving::aMoveThatCannotBeEndedEndsAtTheNextStart()
{
    const int count = perCommit + 10;
    fill(count);
    {
        QSqlQuery query(QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false));
        QVERIFY(query.exec(QStringLiteral("CREATE TEMP TRIGGER refusal BEFORE DELETE ON setting "
                                          "BEGIN SELECT RAISE(ABORT, 'refused'); END")));
    }
    QSignalSpy moves(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    keyring->setState(KirvSecretStore::Ready);
    core->accounts->secrets().startMoving();
    KIRV_TRY_COMPARE(movedCount(), count);
    for (int round = 0; round < 100; ++round)
        KirvAccountsFixture::settle();
    QCOMPARE(moves.size(), 0);
    restart(); // the trigger is gone
    QVERIFY(!isTextInFiles(QStringLiteral("word of "), core->store.folder()));
    QSignalSpy later(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    core->accounts->secrets().startMoving();
    KIRV_TRY_COMPARE(later.size(), 1);
    QCOMPARE(later.first().first().toInt(), count);
}

/// They are noted before any of them is written.
void tst_SecretMoving::itemsOfAnInterruptedMoveAreGivenUpTogether()
{
    const int count = 2 * perCommit;
    fill(count);
    moveUntil(1);
    QVERIFY(core->store.unsettledItems().size() > perCommit);
    restart(); // what is held is never carried out
    for (int round = 0; round < 10; ++round)
        KirvAccountsFixture::settle();
    QVERIFY2(core->store.commitCount() <= 2, QByteArray::number(core->store.commitCount()).constData());
    while (keyring->heldCount() > 0) {
        keyring->isHeld = false;
        keyring->release();
        KirvAccountsFixture::settle();
    }
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    QVERIFY(keyring->secrets.isEmpty());
    core->accounts->secrets().startMoving();
    KIRV_TRY_COMPARE(movedCount(), count);
}

/// What was stored before it was known that there is none: each is a commit.
void tst_SecretMoving::withoutAKeyringAFewAreKeptInATurn()
{
    const int count = 2 * perCommit;
    keyring->setState(KirvSecretStore::Unknown);
    restart(); // with a keyring whose state was never another
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(idOf(number)));
    for (int round = 0; round < count; ++round)
        KirvAccountsFixture::settle();
    QCOMPARE(movedCount(), count);
    const int commits = core->store.commitCount();
    keyring->setState(KirvSecretStore::Unavailable);
    const int atOnce = core->store.commitCount() - commits;
    QVERIFY2(atOnce > 0 && atOnce <= 5, QByteArray::number(atOnce).constData());
    KIRV_TRY_COMPARE(movedCount(), 0);
    restart();
    for (int number = 0; number < count; ++number)
        QCOMPARE(core->account(idOf(number))->getPassword(), wordOf(number));
}

void tst_SecretMoving::aTurnReportsAFew()
{
    const int count = 2 * perCommit;
    keyring->isHeld = true;
    keyring->setState(KirvSecretStore::Ready);
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(idOf(number)));
    for (int round = 0; round < count; ++round)
        KirvAccountsFixture::settle();
    QSignalSpy notices(core->accounts.get(), &KirvAccountCollection::noticeReceived);
    keyring->setState(KirvSecretStore::Silent);
    keyring->release(); // the first one is written
    keyring->release(); // and read back
    QVERIFY(notices.isEmpty());
    QCoreApplication::processEvents();
    QVERIFY2(!notices.isEmpty() && notices.size() <= 10, QByteArray::number(notices.size()).constData());
    KIRV_TRY_COMPARE(notices.size(), count - 1);
}

/// Of an import, say.
void tst_SecretMoving::manyThatAreStoredAtOnceFindTheirPlace()
{
    const int count = 5 * perCommit;
    keyring->setState(KirvSecretStore::Ready);
    QVERIFY(core->store.begin());
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(idOf(number)));
    QVERIFY(core->store.commit());
    KIRV_TRY_COMPARE(keyring->secrets.size(), count);
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    for (int number = 0; number < count; ++number)
        core->account(idOf(number))->setPassword(QStringLiteral("another ") + wordOf(number));
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    QCOMPARE(keyring->secrets.size(), count); // those before are removed
    const QStringList values = keyring->secrets.values();
    QCOMPARE(values.filter(QStringLiteral("another ")).size(), count);
}

QTEST_MAIN(tst_SecretMoving)
#include "tst_secret_moving.moc"

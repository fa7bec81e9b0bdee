// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"
#include "tests/support/kirv_thorough.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const int accountCount = 150;

KirvAccountRecord makeAccount(int number)
{
    KirvAccountRecord account;
    account.key = { QStringLiteral("user%1").arg(number), QStringLiteral("XMPP") };
    account.alias = QStringLiteral("User %1").arg(number);
    account.password = QStringLiteral("password %1").arg(number);
    account.rememberPassword = true;
    account.settings = { { "server", "talk.example.org" }, { "encrypted", "true" } };
    return account;
}

}

/// A real profile whose database is cut off or changed in one bit: it is refused, or it opens with its accounts.
class tst_ProfileDamage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aTruncatedDatabaseIsNeverAnEmptyList();
    void aFlippedBitIsNeverAnEmptyList();

private:
    /// What became of profiles that were damaged.
    struct Outcome {
        int refused = 0, opened = 0, recovered = 0, recoveredAccounts = 0;
        qint64 longest = 0; ///< milliseconds until open() returned
    };
    void tryOut(const QByteArray &content, Outcome *outcome);
    void tryToRecover(Outcome *outcome);
    static void report(const char *what, int number, const Outcome &outcome);

    QTemporaryDir home;
    QString folder;
    QByteArray whole;
};

void tst_ProfileDamage::initTestCase()
{
    folder = home.filePath(QStringLiteral("profile"));
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.begin());
        for (int number = 0; number < accountCount; ++number)
            QVERIFY(store.insertAccount(makeAccount(number)));
        QVERIFY(store.writeSetting(QStringLiteral("main_account"), QStringLiteral("user1@@XMPP")));
        QVERIFY(store.commit());
    }
    whole = contentOf(databaseIn(folder));
    QVERIFY(whole.size() > 192 * 100);
}

void tst_ProfileDamage::tryOut(const QByteArray &content, Outcome *outcome)
{
    QVERIFY(QDir(folder).removeRecursively() && QDir().mkpath(folder));
    QVERIFY(QDir(folder).mkdir(QStringLiteral("avatars")));
    QVERIFY(writeFile(databaseIn(folder), content));
    QElapsedTimer timer;
    timer.start();
    KirvStore store;
    const bool opened = store.open(folder);
    outcome->longest = qMax(outcome->longest, timer.elapsed());
    if (opened) {
        ++outcome->opened;
        const QList<KirvAccountRecord> accounts = store.readAccounts();
        QVERIFY2(store.lastError().isEmpty(), qPrintable(store.lastError()));
        QCOMPARE(accounts.size(), accountCount);
        QVERIFY(store.updateAccount(accounts.first()));
        QVERIFY(store.removeAccount(accounts.last().key));
        return;
    }
    ++outcome->refused;
    QVERIFY(!store.lastError().isEmpty());
    QVERIFY(!store.isLockedByAnother());
    QCOMPARE(contentOf(databaseIn(folder)), content);
    if (store.state() == KirvProfileState::Damaged)
        tryToRecover(outcome);
}

void tst_ProfileDamage::tryToRecover(Outcome *outcome)
{
    KirvProfileRescue rescue(folder);
    KirvProfileRescue::Recovered found;
    if (!rescue.recover(&found)) {
        QVERIFY(!rescue.lastError().isEmpty());
        return;
    }
    ++outcome->recovered;
    outcome->recoveredAccounts += found.accounts;
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QCOMPARE(store.readAccounts().size(), found.accounts);
    QVERIFY(found.accounts == accountCount || !found.isComplete);
}

void tst_ProfileDamage::report(const char *what, int number, const Outcome &outcome)
{
    qInfo("%d %s: %d refused, %d opened with all accounts, none with fewer; at most %lld ms. Of the refused ones %d "
          "could be recovered, with %d %% of the accounts.",
          number, what, outcome.refused, outcome.opened, static_cast<long long>(outcome.longest), outcome.recovered,
          outcome.recovered ? outcome.recoveredAccounts * 100 / (outcome.recovered * accountCount) : 0);
}

void tst_ProfileDamage::aTruncatedDatabaseIsNeverAnEmptyList()
{
    Outcome outcome;
    const int tries = kirvIsThorough() ? 192 : 48;
    for (int number = 0; number < tries; ++number) {
        // Over the whole file, and close to its end.
        const int half = tries / 2;
        const qint64 size = whole.size();
        const int length = int(number < half ? size * number / half : size - 1 - (number - half) * 41);
        tryOut(whole.left(length), &outcome);
        if (QTest::currentTestFailed())
            return;
    }
    report("truncations", tries, outcome);
    QCOMPARE(outcome.refused, tries);
}

void tst_ProfileDamage::aFlippedBitIsNeverAnEmptyList()
{
    Outcome outcome;
    QRandomGenerator random(1);
    const int tries = kirvIsThorough() ? 500 : 120;
    for (int number = 0; number < tries; ++number) {
        // The first page, with the header and the schema, is all structure: half of the bits are there.
        const int bit = random.bounded((number % 2 ? 4096 : whole.size()) * 8);
        QByteArray content = whole;
        content[bit / 8] = char(content.at(bit / 8) ^ (1 << bit % 8));
        tryOut(content, &outcome);
        if (QTest::currentTestFailed()) {
            qWarning("bit %d of byte %d", bit % 8, bit / 8);
            return;
        }
    }
    report("flipped bits", tries, outcome);
    QVERIFY(outcome.refused > tries / 10);
}

QTEST_GUILESS_MAIN(tst_ProfileDamage)

#include "tst_profile_damage.moc"

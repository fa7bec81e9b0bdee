// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_kill_point.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <random>

namespace {

const int accountCount = 120;

KirvAccountKey keyOf(int number)
{
    return { QStringLiteral("user%1").arg(number), QStringLiteral("XMPP") };
}

/// Secrets of many lengths, some of them longer than a page; each can be told from all others by its first characters.
QString secret(int change)
{
    const QString mark = QStringLiteral("<%1>").arg(change, 6, 10, QLatin1Char('0'));
    return mark.repeated(1 + (change % 97 == 0 ? 1500 : change * 7 % 23));
}

/// Changes one account: its password, its secret setting, both, or everything about it.
bool change(KirvStore &store, int number, QRandomGenerator &random)
{
    const int chosen = random.bounded(accountCount);
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    const auto found = std::find_if(accounts.begin(), accounts.end(),
                                    [&](const KirvAccountRecord &account) { return account.key == keyOf(chosen); });
    KirvAccountRecord account;
    account.key = keyOf(chosen);
    account.rememberPassword = true;
    const int kind = random.bounded(10);
    if (found != accounts.end() && kind == 0)
        return store.removeAccount(account.key);
    if (found != accounts.end())
        account = *found;
    account.rememberPassword = kind != 1;
    account.secretSettings = { QStringLiteral("server-password") };
    if (kind < 8)
        account.password = secret(2 * number);
    if (kind > 5)
        account.settings.insert(QStringLiteral("server-password"), secret(2 * number + 1));
    return found == accounts.end() ? store.insertAccount(account) : store.updateAccount(account);
}

/// The process that is killed: makes changes, and is killed before call \a call of a function that changes a file.
int changeAndDie(const QString &folder, int first, int call)
{
    KirvStore store;
    if (!store.open(folder))
        return 1;
    QRandomGenerator random(static_cast<quint32>(first));
    kirvKillBeforeFileCall(call);
    for (int number = first; number < first + 1000; ++number) {
        if (!change(store, number, random))
            return 2;
    }
    return 3;
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The marks of all secrets that stand in any file of the profile.
QSet<QByteArray> marksIn(const QString &folder)
{
    QSet<QByteArray> marks;
    const auto files = filesIn(folder);
    for (const QByteArray &content : files) {
        for (int at = content.indexOf('<'); at >= 0; at = content.indexOf('<', at + 1)) {
            const QByteArray mark = content.mid(at, 8);
            const QByteArray digits = mark.mid(1, 6);
            if (mark.endsWith('>') && digits.size() == 6 && std::all_of(digits.begin(), digits.end(), isDigit))
                marks.insert(mark);
        }
    }
    return marks;
}

QSet<QByteArray> currentMarks(KirvStore &store)
{
    QSet<QByteArray> marks;
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    for (const KirvAccountRecord &account : accounts) {
        for (const QString &text : { account.password, account.settings.value(QStringLiteral("server-password")) }) {
            if (!text.isEmpty())
                marks.insert(text.left(8).toUtf8());
        }
    }
    return marks;
}

QByteArray listed(const QSet<QByteArray> &marks)
{
    return QByteArrayList(marks.begin(), marks.end()).join(' ');
}

}

class tst_ProfileSecrets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noOldSecretIsLeftByChanges();
    void noOldSecretIsLeftByChangesAndKills();
    void noMovedSecretIsLeft_data();
    void noMovedSecretIsLeft();
    void noOldSecretIsLeftByAnUpgrade();
    void aRefusedSecretLeavesNoTrace();
    void aSettingThatBecomesSecretLeavesNoTrace_data();
    void aSettingThatBecomesSecretLeavesNoTrace();
    void aChangeOfASecretWritesTheSecretsOnce_data();
    void aChangeOfASecretWritesTheSecretsOnce();
};

void tst_ProfileSecrets::noOldSecretIsLeftByChanges()
{
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    KirvStore store;
    QVERIFY(store.open(folder));
    QRandomGenerator random(1);
    for (int number = 1; number <= 400; ++number) {
        QVERIFY2(change(store, number, random), qPrintable(store.lastError()));
        const QSet<QByteArray> old = marksIn(folder) - currentMarks(store);
        QVERIFY2(old.isEmpty(), (QByteArray::number(number) + ": " + listed(old)).constData());
    }
    QVERIFY(currentMarks(store).size() > 50);
    QVERIFY((currentMarks(store) - marksIn(folder)).isEmpty()); // they would be found
}

void tst_ProfileSecrets::noOldSecretIsLeftByChangesAndKills()
{
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    QVERIFY(KirvStore().open(folder));
    int kills = 0, left = 0;
    for (; kills < 60; ++kills) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      { "--change", folder, QString::number(1 + kills * 1000), QString::number(40 + kills * 3) });
        QVERIFY(process.waitForFinished(kirvPatienceWithProgram));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        const QSet<QByteArray> before = marksIn(folder);
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        const QSet<QByteArray> current = currentMarks(store);
        left += int((before - current).size());
        const QSet<QByteArray> old = marksIn(folder) - current;
        QVERIFY2(old.isEmpty(), listed(old).constData());
    }
    qInfo("%d kills left %d old secrets in the files; every opening removed them", kills, left);
    QVERIFY(left > 0);
}

void tst_ProfileSecrets::noMovedSecretIsLeft_data()
{
    QTest::addColumn<QString>("ending");
    for (const char *ending : { "wiped", "ended", "closed", "killed" })
        QTest::newRow(ending) << ending;
}

/// Removing single rows leaves more than the log has: what moved when pages were balanced.
void tst_ProfileSecrets::noMovedSecretIsLeft()
{
    QFETCH(QString, ending);
    QTemporaryDir home;
    QString folder = home.filePath(QStringLiteral("profile"));
    KirvStore store;
    QVERIFY(store.open(folder));
    const int count = 4 * accountCount, moved = count - 80;
    QList<KirvAccountRecord> accounts;
    QVERIFY(store.begin());
    for (int number = 0; number < count; ++number) {
        KirvAccountRecord account;
        account.key = keyOf(number);
        account.rememberPassword = true;
        account.password = secret(2 * number);
        account.secretSettings = { QStringLiteral("server-password") };
        QVERIFY(store.insertAccount(account));
        accounts << account;
    }
    std::mt19937 random(1);
    std::shuffle(accounts.begin(), accounts.end(), random);
    QStringList keys;
    for (KirvAccountRecord &account : accounts) { // each comes between two others
        account.settings.insert(QStringLiteral("server-password"), account.password);
        QVERIFY(store.updateAccount(account));
        for (const QString &field : { QString(), QStringLiteral("server-password") }) {
            const KirvSecretItem item { account.key.id + field, QString() };
            QVERIFY(store.addSecretItems({ { item, account.key, field } }));
            keys << item.key;
        }
    }
    QVERIFY(store.commit());
    for (int first = 0; first < 2 * moved; first += 20)
        QCOMPARE(store.keepMovedItems(keys.mid(first, 20)).size(), 20);
    QCOMPARE(store.movedCount(), 2 * moved);
    const QSet<QByteArray> current = currentMarks(store);
    QCOMPARE(current.size(), count - moved);
    QVERIFY(marksIn(folder).size() > current.size());
    KirvStore next;
    if (ending == QLatin1String("wiped")) {
        QVERIFY(store.wipeTraces());
        QCOMPARE(store.movedCount(), 2 * moved);
    } else if (ending == QLatin1String("ended")) {
        QVERIFY(store.endMove());
        QCOMPARE(store.movedCount(), 0);
    } else if (ending == QLatin1String("closed")) {
        store.close();
    } else {
        const QString copy = home.filePath(QStringLiteral("killed"));
        QVERIFY(QDir().mkpath(copy));
        for (const char *end : { "", "-wal" })
            QVERIFY(QFile::copy(databaseIn(folder) + QLatin1String(end), databaseIn(copy) + QLatin1String(end)));
        folder = copy;
        QVERIFY2(next.open(folder), qPrintable(next.lastError()));
        QCOMPARE(next.movedCount(), 2 * moved);
    }
    const QSet<QByteArray> old = marksIn(folder) - current;
    QVERIFY2(old.isEmpty(), listed(old).constData());
}

void tst_ProfileSecrets::noOldSecretIsLeftByAnUpgrade()
{
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_1.sqlite"), databaseIn(folder)));
    QStringList statements { QStringLiteral("PRAGMA secure_delete = ON") };
    QRandomGenerator random(1);
    for (int number = 1; number < 1500; ++number) {
        const int chosen = random.bounded(accountCount);
        if (random.bounded(4) == 0)
            statements << QStringLiteral("DELETE FROM account WHERE id = '%1'").arg(chosen);
        statements << QStringLiteral("INSERT INTO account (id, protocol, password, remember_password) "
                                     "VALUES ('%1', 'XMPP', '%2', 1) "
                                     "ON CONFLICT DO UPDATE SET password = excluded.password")
                          .arg(chosen)
                          .arg(secret(number));
    }
    const QVariant result = runInDatabase(databaseIn(folder), statements);
    QVERIFY2(!result.isValid(), qPrintable(result.toString()));
    const QSet<QByteArray> before = marksIn(folder);
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QVERIFY((before - currentMarks(store)).size() > 0); // the gaps had some
    const QSet<QByteArray> old = marksIn(folder) - currentMarks(store);
    QVERIFY2(old.isEmpty(), listed(old).constData());
    QVERIFY(currentMarks(store).size() > 50);
}

void tst_ProfileSecrets::aRefusedSecretLeavesNoTrace()
{
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    KirvStore store;
    QVERIFY(store.open(folder));
    QRandomGenerator random(1);
    for (int number = 1; number <= 100; ++number)
        QVERIFY(change(store, number, random));
    QVERIFY(store.begin());
    for (KirvAccountRecord account : store.readAccounts()) {
        account.rememberPassword = true;
        account.password = QStringLiteral("refused ").repeated(1000); // more than the cache takes
        QVERIFY(store.updateAccount(account));
    }
    store.rollBack();
    QVERIFY(!isTextInFiles(QStringLiteral("refused refused"), folder));
}

void tst_ProfileSecrets::aSettingThatBecomesSecretLeavesNoTrace_data()
{
    QTest::addColumn<bool>("byProtocol");
    QTest::newRow("of all accounts of a protocol") << true;
    QTest::newRow("of single accounts") << false;
}

/// As when a new version of a plug-in makes a text a password.
void tst_ProfileSecrets::aSettingThatBecomesSecretLeavesNoTrace()
{
    QFETCH(bool, byProtocol);
    const QString token = QStringLiteral("server-password");
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    KirvStore store;
    QVERIFY(store.open(folder));
    QRandomGenerator random(3); // soon leaves something
    QSet<int> stored;
    QSet<QByteArray> gaps; // until something is left between the rows
    for (int number = 1; number <= 2000 && gaps.isEmpty(); ++number) {
        const int chosen = random.bounded(accountCount);
        KirvAccountRecord account;
        account.key = keyOf(chosen);
        account.settings.insert(token, secret(number));
        account.settings.insert(QStringLiteral("server"), QString(150, QLatin1Char('x')));
        if (!stored.contains(chosen))
            QVERIFY(store.insertAccount(account));
        else
            QVERIFY(random.bounded(10) == 0 ? store.removeAccount(account.key) && store.insertAccount(account)
                                            : store.updateAccount(account));
        stored.insert(chosen);
        gaps = marksIn(folder) - currentMarks(store);
    }
    QVERIFY(!gaps.isEmpty());
    store.close(); // with a copy
    QVERIFY(store.open(folder));
    if (byProtocol)
        QVERIFY(store.classifySettings(keyOf(1).protocol, { token }, { token }));
    QList<KirvAccountRecord> accounts = store.readAccounts();
    for (KirvAccountRecord &account : accounts) {
        account.secretSettings.insert(token);
        QVERIFY(store.updateAccount(account));
    }
    QVERIFY(!currentMarks(store).isEmpty());
    const QSet<QByteArray> copied = marksIn(folder + QLatin1String("/copies"));
    QVERIFY2(copied.isEmpty(), listed(copied).constData());
    QVERIFY(!QDir(folder + QLatin1String("/copies")).isEmpty());
    const QSet<QByteArray> old = marksIn(folder) - currentMarks(store);
    QVERIFY2(old.isEmpty(), listed(old).constData());
    for (KirvAccountRecord &account : accounts) {
        account.settings.remove(token);
        QVERIFY(store.updateAccount(account));
    }
    const QSet<QByteArray> left = marksIn(folder);
    QVERIFY2(left.isEmpty(), listed(left).constData());
}

void tst_ProfileSecrets::aChangeOfASecretWritesTheSecretsOnce_data()
{
    QTest::addColumn<int>("accounts");
    for (const int accounts : { 10, 1000, 10000 })
        QTest::addRow("%d accounts", accounts) << accounts;
}

/// How many rows this process has changed since the profile was opened.
static int changedRows()
{
    QSqlQuery query(QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false));
    return query.exec(QStringLiteral("SELECT total_changes()")) && query.next() ? query.value(0).toInt() : -1;
}

/// Out of the table and back into it, by insertions and deletions; nothing else grows with the number of accounts.
/// Benchmarks measure the time.
void tst_ProfileSecrets::aChangeOfASecretWritesTheSecretsOnce()
{
    QFETCH(int, accounts);
    QTemporaryDir home;
    KirvStore store;
    QVERIFY(store.open(home.filePath(QStringLiteral("profile"))));
    QVERIFY(store.begin());
    KirvAccountRecord account;
    for (int number = 0; number < accounts; ++number) {
        account.key = keyOf(number);
        account.rememberPassword = true;
        account.password = QStringLiteral("password %1").arg(number);
        QVERIFY(store.insertAccount(account));
    }
    QVERIFY(store.commit());
    for (int round = 0; round < 3; ++round) {
        const int before = changedRows();
        account.alias = QString::number(round);
        QVERIFY(store.updateAccount(account));
        const int between = changedRows();
        QVERIFY2(between > before && between - before < 5, qPrintable(QString::number(between - before)));
        account.password = QStringLiteral("new password %1").arg(round);
        QVERIFY(store.updateAccount(account));
        const int rows = changedRows() - between;
        QVERIFY2(rows >= accounts && rows < 4 * accounts + 5, qPrintable(QString::number(rows)));
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 5 && arguments.at(1) == QLatin1String("--change"))
        return changeAndDie(arguments.at(2), arguments.at(3).toInt(), arguments.at(4).toInt());
    tst_ProfileSecrets test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profile_secrets.moc"

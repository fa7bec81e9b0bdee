// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_kill_point.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>

namespace {

const KirvAccountKey key { QStringLiteral("id"), QStringLiteral("Fake") };

/// The values of save number \a number: it can be read from each one which save it is of.
QString text(int number)
{
    return QString::number(number) + QLatin1Char(' ') + QString(300, QLatin1Char('a' + number % 26));
}

QString picturePath(const QString &home, int number)
{
    return home + QStringLiteral("/picture%1.png").arg(number % 2);
}

/// What the edit window writes on Save, as one save.
bool save(KirvAccount &account, KirvFakeProtocol &protocol, const QString &home, int number)
{
    const QString id = QLatin1String(number % 2 ? "away" : "available");
    account.beginSave();
    account.setDefaultPresence(protocol.createPresenceWithId(id, text(number)));
    account.setRestoreLastPresence(number % 2);
    account.setRestoreLastDescription(number % 2);
    account.setRememberPassword(true);
    account.setPassword(text(number));
    account.setPresence(account.getDefaultPresence());
    account.setAlias(text(number));
    account.setAccountSettings({ KirvField::textEdit(QString(), QStringLiteral("server"), text(number), QString()),
                                 KirvField::checkBox(QString(), QStringLiteral("encrypted"), number % 2, QString()) });
    account.setAvatar(picturePath(home, number));
    return account.endSave();
}

/// The process that is killed: makes save \a number and is killed before call \a call inside it, or else after it.
int saveAndDie(const QString &home, int number, int call)
{
    KirvStore store;
    if (!store.open(home + QStringLiteral("/profile")))
        return 1;
    KirvAccountCollection accounts(store);
    KirvFakeProtocol protocol;
    accounts.protocolLoaded(&protocol, false);
    KirvAccount *account = accounts.find(key);
    if (!account)
        return 2;
    kirvKillBeforeFileCall(call);
    if (!save(*account, protocol, home, number))
        return 3;
    const int made = kirvFileCalls();
    kirvKillBeforeFileCall(-1);
    std::printf("%d", made);
    std::fflush(stdout);
    ::raise(SIGKILL);
    return 4;
}

} // namespace

class tst_SaveSurvivesAKill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aKilledSaveIsOldOrNewAndNeverAMixture();

private:
    static void createAccount(const QString &home);
    static int killWhileSaving(const QString &home, int number, int call);
    static int checkProfile(const QString &home);
};

/// Kills the saving process before each call that changes a file, one after the other.
void tst_SaveSurvivesAKill::aKilledSaveIsOldOrNewAndNeverAMixture()
{
    QTemporaryDir home;
    makePicture(picturePath(home.path(), 0), QSize(64, 64));
    makePicture(picturePath(home.path(), 1), QSize(48, 48));
    createAccount(home.path());
    if (QTest::currentTestFailed())
        return;

    int stored = 0, kills = 0, leftOld = 0, leftNew = 0;
    for (bool ended = false; !ended; ++kills) {
        const int number = stored + 1;
        const int made = killWhileSaving(home.path(), number, kills);
        QVERIFY2(made >= -1, "The saving process was not killed.");
        ended = made >= 0;
        const int found = checkProfile(home.path());
        if (QTest::currentTestFailed())
            return;
        QVERIFY2(found == number || found == stored, qPrintable(QStringLiteral("%1 %2").arg(found).arg(number)));
        QVERIFY2(!ended || found == number, "A save that had returned is lost.");
        leftOld += found == stored;
        leftNew += found == number;
        stored = found;
    }
    qInfo("%d kills: %d left the old values, %d the new ones", kills, leftOld, leftNew);
    // The avatar, the database and its log are written before the commit, the old avatar is removed after it.
    QVERIFY(leftOld >= 5);
    QVERIFY(leftNew >= 2);
}

void tst_SaveSurvivesAKill::createAccount(const QString &home)
{
    KirvStore store;
    QVERIFY(store.open(home + QStringLiteral("/profile")));
    KirvAccountCollection accounts(store);
    KirvFakeProtocol protocol;
    accounts.protocolLoaded(&protocol, false);
    KirvAccountRecord record;
    record.key = key;
    KirvAccount *account = accounts.create(record, &protocol);
    QVERIFY(account);
    QVERIFY(save(*account, protocol, home, 0));
}

/// How many calls the save made when it ended before call \a call; -1 when it was killed there, -2 when the process
/// failed.
int tst_SaveSurvivesAKill::killWhileSaving(const QString &home, int number, int call)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  { "--save", home, QString::number(number), QString::number(call) });
    if (!process.waitForFinished(kirvPatienceWithProgram) || process.exitStatus() != QProcess::CrashExit)
        return -2;
    const QByteArray output = process.readAllStandardOutput();
    return output.isEmpty() ? -1 : output.toInt();
}

/// Checks that all values are of the same save and gives its number.
int tst_SaveSurvivesAKill::checkProfile(const QString &home)
{
    KirvStore store;
    const bool opened = store.open(home + QStringLiteral("/profile"));
    [&] { QVERIFY2(opened, qPrintable(store.lastError())); }();
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    const int number = accounts.isEmpty() ? -1 : accounts.first().alias.section(QLatin1Char(' '), 0, 0).toInt();
    [&] {
        QCOMPARE(accounts.size(), 1);
        const KirvAccountRecord &account = accounts.first();
        QCOMPARE(account.alias, text(number));
        QCOMPARE(account.password, text(number));
        QCOMPARE(account.defaultDescription, text(number));
        QCOMPARE(account.lastDescription, text(number));
        QCOMPARE(account.defaultPresence, QLatin1String(number % 2 ? "away" : "available"));
        QCOMPARE(account.lastPresence, account.defaultPresence);
        QCOMPARE(account.restorePresence, number % 2 == 1);
        QCOMPARE(account.restoreDescription, number % 2 == 1);
        QCOMPARE(account.settings.value(QStringLiteral("server")), text(number));
        QCOMPARE(account.settings.value(QStringLiteral("encrypted")), QLatin1String(number % 2 ? "true" : "false"));
        const QMap<QString, QByteArray> avatars = filesIn(store.avatarFolder());
        QCOMPARE(avatars.keys(), QStringList(QDir(store.avatarFolder()).filePath(account.avatar)));
        QCOMPARE(avatars.first(), contentOf(picturePath(home, number)));
    }();
    return number;
}

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 5 && arguments.at(1) == QLatin1String("--save"))
        return saveAndDie(arguments.at(2), arguments.at(3).toInt(), arguments.at(4).toInt());
    tst_SaveSurvivesAKill test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_save_survives_a_kill.moc"

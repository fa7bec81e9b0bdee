// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_fake_protocol.h"
#include "tests/integration/kirv_profile_files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>

namespace {

constexpr int kills = 220;
const KirvAccountKey key { QStringLiteral("id"), QStringLiteral("Fake") };

/// The values of save number \a number: told from each one which save it is of.
QString text(int number)
{
    return QString::number(number) + QLatin1Char(' ') + QString(300, QLatin1Char('a' + number % 26));
}

QString picturePath(const QString &home, int number)
{
    return home + QStringLiteral("/picture%1.png").arg(number % 2);
}

/// What the edit window writes on Save, as one save.
bool save(KirvAccount &account, FakeProtocol &protocol, const QString &home, int number)
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

/// The process that is killed: saves for ever, beginning with the save after \a number, and says before each
/// save which one it begins and after it that it ended.
int saveForEver(const QString &home, int number)
{
    KirvStore store;
    if (!store.open(home + QStringLiteral("/profile")))
        return 1;
    KirvAccountCollection registry(store);
    FakeProtocol protocol;
    registry.protocolLoaded(&protocol, false);
    KirvAccount *account = registry.find(key);
    if (!account)
        return 2;
    while (true) {
        std::printf("begin %d\n", ++number);
        std::fflush(stdout);
        if (!save(*account, protocol, home, number))
            return 3;
        std::printf("end %d\n", number);
        std::fflush(stdout);
    }
}

}

class SaveSurvivesAKillTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aKilledSaveIsOldOrNewAndNeverAMixture()
    {
        const quint32 seed = qEnvironmentVariableIsSet("KIRV_SEED") ? qEnvironmentVariable("KIRV_SEED").toUInt()
                                                                    : QRandomGenerator::global()->generate();
        qInfo("KIRV_SEED=%u", seed);
        QRandomGenerator random(seed);
        QTemporaryDir home;
        makePicture(picturePath(home.path(), 0), QSize(64, 64));
        makePicture(picturePath(home.path(), 1), QSize(48, 48));
        int number = 0;
        createAccount(home.path());
        if (QTest::currentTestFailed())
            return;

        int midway = 0, old = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const int begun = killWhileSaving(home.path(), number, random);
            QVERIFY2(begun >= 0, "The saving process did not start.");
            const int found = checkProfile(home.path());
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(found == begun || found == begun - 1, qPrintable(QStringLiteral("%1 %2").arg(found).arg(begun)));
            QVERIFY2(found >= ended, "A save that had returned is lost.");
            midway += ended < begun;
            old += found < begun;
            number = found;
        }
        qInfo("%d kills, %d of them within a save, %d of these left the old values", kills, midway, old);
        QVERIFY(midway > kills / 4);
        QVERIFY(old > 0 && old < midway);
    }

private:
    static void createAccount(const QString &home)
    {
        KirvStore store;
        QVERIFY(store.open(home + QStringLiteral("/profile")));
        KirvAccountCollection registry(store);
        FakeProtocol protocol;
        registry.protocolLoaded(&protocol, false);
        QVERIFY(KirvAccountManager::getInstance()->createAccount(key.id, key.id, QString(), false, &protocol,
                                                                 protocol.presences().first(), {}));
        QVERIFY(save(*registry.find(key), protocol, home, 0));
    }

    /// Gives the number of the save that was begun last, -1 when the process failed.
    int killWhileSaving(const QString &home, int number, QRandomGenerator &random)
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), { "--save", home, QString::number(number) });
        if (!process.waitForStarted() || !process.waitForReadyRead(20000))
            return -1;
        // A random moment of the first two saves.
        QElapsedTimer timer;
        timer.start();
        const double moment = random.bounded(2 * saveTime);
        QByteArray output;
        bool hasEnded = false;
        while (double(timer.nsecsElapsed()) < moment) {
            process.waitForReadyRead(0);
            output += process.readAllStandardOutput();
            if (!hasEnded && output.contains("end ")) {
                hasEnded = true;
                saveTime = (saveTime + double(timer.nsecsElapsed())) / 2;
            }
        }
        if (!hasEnded)
            saveTime = qMax(saveTime, 1.1 * moment);
        process.kill();
        process.waitForFinished();
        if (process.exitStatus() != QProcess::CrashExit)
            return -1;
        ended = number;
        int begun = -1;
        const QList<QByteArray> lines = (output + process.readAllStandardOutput()).split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("begin "))
                begun = line.mid(6).toInt();
            else if (line.startsWith("end "))
                ended = line.mid(4).toInt();
        }
        return begun;
    }

    /// Checks that all values are of the same save and gives its number.
    static int checkProfile(const QString &home)
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

    double saveTime = 5e6; ///< in nanoseconds, as far as it is known
    int ended = 0; ///< the save that the killed process said last to have ended
};

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 4 && arguments.at(1) == QLatin1String("--save"))
        return saveForEver(arguments.at(2), arguments.at(3).toInt());
    SaveSurvivesAKillTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_save_survives_a_kill.moc"

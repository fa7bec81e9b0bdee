// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_kill_point.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"
#include "tests/support/kirv_thorough.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <cstdio>

namespace {

KirvAccountRecord makeAccount(int number, const QString &state = QStringLiteral("old"))
{
    KirvAccountRecord account;
    account.key = { QStringLiteral("user%1").arg(number), QStringLiteral("XMPP") };
    account.alias = state;
    account.password = state + QStringLiteral(" password ").repeated(30);
    account.rememberPassword = true;
    account.settings = { { "server", state }, { "server-password", state } };
    account.secretSettings = { QStringLiteral("server-password") };
    return account;
}

/// What is done to the profile in a process that is killed before call \a call.
int doAndDie(const QString &action, const QString &folder, const QString &picture, int call)
{
    if (action == QLatin1String("change")) {
        KirvStore store;
        if (!store.open(folder))
            return 1;
        kirvKillBeforeFileCall(call);
        KirvAccountRecord account = makeAccount(1, QStringLiteral("new"));
        account.avatar = store.importAvatar(picture);
        if (account.avatar.isEmpty() || !store.updateAccount(account))
            return 2;
        std::printf("changed ");
        std::fflush(stdout); // the copy that closing keeps can be killed, too
    } else if (action == QLatin1String("restore")) {
        KirvProfileRescue rescue(folder);
        const QList<KirvProfileCopy> copies = rescue.copies();
        kirvKillBeforeFileCall(call);
        if (copies.isEmpty() || !rescue.restore(copies.first()))
            return 3;
    } else {
        kirvKillBeforeFileCall(call);
        KirvStore store;
        if (!store.open(folder))
            return 4;
    }
    std::printf("done: %d", kirvFileCalls());
    std::fflush(stdout);
    return 0;
}

bool copyTree(const QString &from, const QString &to)
{
    bool good = QDir().mkpath(to);
    QDirIterator iterator(from, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (good && iterator.hasNext()) {
        const QString path = iterator.next();
        const QString target = to + path.mid(from.size());
        good = iterator.fileInfo().isDir() ? QDir().mkpath(target) : QFile::copy(path, target);
    }
    return good;
}

}

class tst_ProfileSurvivesKills : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aProfileOpensAfterAKillAtAnyCall_data();
    void aProfileOpensAfterAKillAtAnyCall();

private:
    void makeTemplates();
    void verifyProfile(const QString &action, const QByteArray &said);

    QTemporaryDir home;
    QString picture;
    QString folder;
};

void tst_ProfileSurvivesKills::initTestCase()
{
    QVERIFY(home.isValid());
    picture = makePicture(home.filePath(QStringLiteral("picture.png")));
    folder = home.filePath(QStringLiteral("place/profile"));
    makeTemplates();
}

/// What each action begins with.
void tst_ProfileSurvivesKills::makeTemplates()
{
    const QDir templates(home.filePath(QStringLiteral("templates")));
    QVERIFY(templates.mkpath(QStringLiteral("empty")) && templates.mkpath(QStringLiteral("early")));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_1.sqlite"),
                        databaseIn(templates.filePath(QStringLiteral("early")))));
    const QString whole = templates.filePath(QStringLiteral("whole"));
    const QString interrupted = templates.filePath(QStringLiteral("interrupted"));
    {
        KirvStore store;
        QVERIFY(store.open(whole));
        for (int number = 0; number < 40; ++number) {
            KirvAccountRecord account = makeAccount(number);
            if (number < 2)
                account.avatar = store.importAvatar(picture);
            QVERIFY(store.insertAccount(account));
        }
        QVERIFY(!store.importAvatar(picture).isEmpty()); // of no account
        QVERIFY(copyTree(whole, interrupted)); // with its log
    }
    const QString damaged = templates.filePath(QStringLiteral("damaged"));
    QVERIFY(copyTree(whole, damaged));
    QVERIFY(writeFile(databaseIn(damaged), "damaged"));
    for (const QString &profile : { whole, interrupted, damaged }) {
        QVERIFY(writeFile(profile + QLatin1String("/avatars/photo1.jpg"), "photo"));
        QVERIFY(QDir(profile).mkpath(QStringLiteral("layouts")));
        QVERIFY(writeFile(profile + QLatin1String("/layouts/Accounts.ui"), "layout"));
    }
    QVERIFY(QDir().mkpath(home.filePath(QStringLiteral("place"))));
    QVERIFY(writeFile(home.filePath(QStringLiteral("place/letter.txt")), "letter"));
}

void tst_ProfileSurvivesKills::aProfileOpensAfterAKillAtAnyCall_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("action");
    QTest::newRow("creation") << ""
                              << "create";
    QTest::newRow("creation in an empty folder") << "empty"
                                                 << "create";
    QTest::newRow("opening") << "whole"
                             << "open";
    QTest::newRow("opening after a kill") << "interrupted"
                                          << "open";
    QTest::newRow("an upgrade") << "early"
                                << "upgrade";
    QTest::newRow("a change") << "whole"
                              << "change";
    QTest::newRow("the restoration of a copy") << "damaged"
                                               << "restore";
}

/// Every tenth call in an ordinary run; every one in a thorough run.
void tst_ProfileSurvivesKills::aProfileOpensAfterAKillAtAnyCall()
{
    QFETCH(QString, from);
    QFETCH(QString, action);
    const int step = kirvIsThorough() ? 1 : 10;
    int kills = 0;
    QByteArray said;
    for (int call = 0; !said.contains("done"); call += step) {
        QVERIFY(QDir(folder).removeRecursively());
        if (!from.isEmpty())
            QVERIFY(copyTree(home.filePath(QStringLiteral("templates/") + from), folder));
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      { "--do", action, folder, picture, QString::number(call) });
        QVERIFY(process.waitForFinished(kirvPatienceWithProgram));
        said = process.readAllStandardOutput();
        const bool ended = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        QVERIFY2(said.contains("done") || process.exitStatus() == QProcess::CrashExit,
                 qPrintable(QStringLiteral("call %1: exit code %2").arg(call).arg(process.exitCode())));
        kills += !ended;
        verifyProfile(action, said);
        if (QTest::currentTestFailed()) {
            qWarning("after a kill before call %d", call);
            return;
        }
    }
    qInfo("%d kills, the profile whole after each; %s calls", kills, said.constData());
    QVERIFY(kills >= 2);
}

void tst_ProfileSurvivesKills::verifyProfile(const QString &action, const QByteArray &said)
{
    QCOMPARE(contentOf(home.filePath(QStringLiteral("place/letter.txt"))), QByteArray("letter"));
    KirvProfileRescue rescue(folder);
    if (action == QLatin1String("restore") && rescue.check().kind == KirvProfileState::Damaged) {
        QVERIFY2(rescue.restore(rescue.copies().value(0)), qPrintable(rescue.lastError()));
        QVERIFY(!rescue.keptFile().isEmpty());
    }
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    if (action == QLatin1String("create")) {
        QVERIFY(accounts.isEmpty());
        return;
    }
    if (action == QLatin1String("upgrade")) {
        QCOMPARE(accounts.size(), 3);
        QCOMPARE(accounts.first().password, QStringLiteral("wherefore"));
        QCOMPARE(accounts.first().settings.size(), 2);
        return;
    }
    QCOMPARE(accounts.size(), 40);
    for (int number = 0; number < 40; ++number) {
        KirvAccountRecord expected = makeAccount(number);
        if (number == 1 && action == QLatin1String("change") && accounts.at(1).alias == QLatin1String("new"))
            expected = makeAccount(number, QStringLiteral("new"));
        if (action == QLatin1String("restore")) { // copies have no secrets
            expected.password.clear();
            expected.settings.remove(QStringLiteral("server-password"));
        }
        expected.avatar = accounts.at(number).avatar;
        QVERIFY(accounts.at(number).isStoredLike(expected));
        QVERIFY(number >= 2 || contentOf(store.avatarFolder() + '/' + expected.avatar) == contentOf(picture));
    }
    QVERIFY(!said.contains("changed") || accounts.at(1).alias == QLatin1String("new"));
    QCOMPARE(contentOf(folder + QLatin1String("/avatars/photo1.jpg")), QByteArray("photo"));
    QCOMPARE(contentOf(folder + QLatin1String("/layouts/Accounts.ui")), QByteArray("layout"));
    QCOMPARE(filesIn(store.avatarFolder()).size(), 3); // two avatars and the photo
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 6 && arguments.at(1) == QLatin1String("--do"))
        return doAndDie(arguments.at(2), arguments.at(3), arguments.at(4), arguments.at(5).toInt());
    tst_ProfileSurvivesKills test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profile_survives_kills.moc"

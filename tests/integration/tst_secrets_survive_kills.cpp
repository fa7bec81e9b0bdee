// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/store/kirv_keyring.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_kill_point.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>

namespace {

const QString fake = QStringLiteral("Fake");
const QString oldSecret = QStringLiteral("the old secret");
const QString newSecret = QStringLiteral("the new secret");
const QString ofServer = QStringLiteral("of the server");

/// A core over a profile, with the session's keyring or without.
struct Core {
    Core(const QString &folder, bool usesKeyring)
    {
        isOpen = store.open(folder);
        accounts = std::make_unique<KirvAccountCollection>(store);
        if (usesKeyring) {
            keyring = std::make_unique<KirvKeyring>();
            accounts->secrets().setKeyring(keyring.get());
        }
        accounts->protocolLoaded(&protocol, false);
    }
    ~Core() { accounts.reset(); }

    KirvAccount *account() const { return accounts->find({ QStringLiteral("id"), fake }); }
    KirvAccount *create()
    {
        KirvAccountRecord record;
        record.key = { QStringLiteral("id"), fake };
        record.rememberPassword = true;
        record.password = oldSecret;
        record.settings.insert(QStringLiteral("server-password"), ofServer);
        return accounts->create(record, &protocol);
    }
    /// Whether everything is read and nothing is left to be done.
    bool isSettled()
    {
        return QTest::qWaitFor([this] {
            return keyring->state() == KirvSecretStore::Ready && (!account() || !account()->awaitsSecrets())
                && store.unsettledItems().isEmpty();
        });
    }
    bool isMoved()
    {
        accounts->secrets().startMoving();
        return QTest::qWaitFor([this] {
            return isSettled()
                && (!account() || account()->record().secretItems.size() == 2 || !account()->record().rememberPassword);
        });
    }

    KirvStore store;
    bool isOpen = false;
    KirvFakeProtocol protocol;
    std::unique_ptr<KirvKeyring> keyring;
    std::unique_ptr<KirvAccountCollection> accounts;
};

/// What is interrupted.
const QMap<QString, std::function<bool(Core &)>> &changes()
{
    static const QMap<QString, std::function<bool(Core &)>> all {
        { QStringLiteral("change"),
          [](Core &core) {
              core.account()->setPassword(newSecret);
              return core.isSettled();
          } },
        { QStringLiteral("untick"),
          [](Core &core) {
              core.account()->setRememberPassword(false);
              return core.isSettled();
          } },
        { QStringLiteral("remove"),
          [](Core &core) { return core.accounts->remove(core.account()) && core.isSettled(); } },
        { QStringLiteral("create"), [](Core &core) { return core.create() && core.isSettled(); } },
        { QStringLiteral("move"), [](Core &core) { return core.isMoved(); } },
    };
    return all;
}

/// The process that is killed: before call \a call of a function that changes a file, or writes to the bus, or else
/// when everything is done.
int changeAndDie(const QString &name, const QString &folder, int call)
{
    Core core(folder, true);
    if (!core.isOpen || !core.isSettled())
        return 1;
    kirvKillBeforeFileCall(call);
    if (!changes().value(name)(core))
        return 2;
    kirvKillBeforeFileCall(-1);
    std::printf("done");
    std::fflush(stdout);
    ::raise(SIGKILL);
    return 3;
}

} // namespace

/// A process is killed while the secrets of an account go to a real keyring, leave it or change.
class tst_SecretsSurviveKills : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(daemon.start()); }
    void aKillLeavesNoWrongSecretAndNoOrphan_data();
    void aKillLeavesNoWrongSecretAndNoOrphan();

private:
    static QString killed(const QString &name, const QString &folder, int call);
    void check(const QString &name, const QString &folder, bool isDone);

    KirvGnomeKeyring daemon;
};

void tst_SecretsSurviveKills::aKillLeavesNoWrongSecretAndNoOrphan_data()
{
    QTest::addColumn<QString>("name");
    const auto names = changes().keys();
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_SecretsSurviveKills::aKillLeavesNoWrongSecretAndNoOrphan()
{
    QFETCH(QString, name);
    const int stride = qEnvironmentVariableIsSet("KIRV_EVERY_KILL") ? 1 : 9;
    int kills = 0;
    bool isDone = false;
    for (int call = 0; !isDone; call += stride, ++kills) {
        QTemporaryDir home;
        const QString folder = home.filePath(QStringLiteral("profile"));
        {
            Core core(folder, name != QLatin1String("move"));
            QVERIFY(core.isOpen);
            if (name != QLatin1String("create"))
                QVERIFY(core.create());
            QVERIFY(name == QLatin1String("move") || core.isSettled());
        }
        const QString outcome = killed(name, folder, call);
        QVERIFY2(outcome == QLatin1String("killed") || outcome == QLatin1String("done"), qPrintable(outcome));
        isDone = outcome == QLatin1String("done");
        check(name, folder, isDone);
        if (QTest::currentTestFailed()) {
            qInfo("after call %d", call);
            return;
        }
    }
    qInfo("%d kills", kills - 1);
    QVERIFY(kills > 3);
}

/// "killed", "done", or what went wrong.
QString tst_SecretsSurviveKills::killed(const QString &name, const QString &folder, int call)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  { QStringLiteral("--change"), name, folder, QString::number(call) });
    if (!process.waitForFinished(60000))
        return QStringLiteral("does not end");
    if (process.exitStatus() != QProcess::CrashExit)
        return QStringLiteral("exit status %1").arg(process.exitCode());
    return process.readAllStandardOutput() == "done" ? QStringLiteral("done") : QStringLiteral("killed");
}

/// The next start.
void tst_SecretsSurviveKills::check(const QString &name, const QString &folder, bool isDone)
{
    int references = 0;
    {
        Core core(folder, true);
        QVERIFY2(core.isOpen, qPrintable(core.store.lastError()));
        QVERIFY(core.isSettled());
        if (name == QLatin1String("move"))
            QVERIFY(core.isMoved());
        const KirvAccount *account = core.account();
        QVERIFY(account || name == QLatin1String("remove") || name == QLatin1String("create"));
        QVERIFY(!isDone || bool(account) == (name != QLatin1String("remove")));
        const QString password = account ? account->getPassword() : QString();
        const bool isRemembered = account && account->record().rememberPassword;
        if (name == QLatin1String("change"))
            QVERIFY2(password == newSecret || (!isDone && password == oldSecret), qPrintable(password));
        else if (name == QLatin1String("move"))
            QCOMPARE(password, oldSecret);
        else if (name == QLatin1String("create") && !isDone)
            QVERIFY2(password == oldSecret || password.isEmpty(), qPrintable(password));
        else
            QCOMPARE(password, isRemembered ? oldSecret : QString());
        references = account ? int(account->record().secretItems.size()) : 0;
        const int missing = account ? int(account->record().unreadSecrets.size()) : 0;
        QCOMPARE(daemon.count(), references - missing);
        if (account)
            core.accounts->remove(core.account());
        QVERIFY(core.isSettled());
    }
    QCOMPARE(daemon.count(), 0);
    for (const QString &secret : { oldSecret, newSecret, ofServer })
        QVERIFY2(!isTextInFiles(secret, folder), qPrintable(secret));
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 5 && arguments.at(1) == QLatin1String("--change"))
        return changeAndDie(arguments.at(2), arguments.at(3), arguments.at(4).toInt());
    tst_SecretsSurviveKills test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_secrets_survive_kills.moc"

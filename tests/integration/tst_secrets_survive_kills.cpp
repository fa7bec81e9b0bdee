// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/store/kirv_keyring.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_kill_point.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_thorough.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
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
    KirvAccount *create(const QString &id = QStringLiteral("id"))
    {
        KirvAccountRecord record;
        record.key = { id, fake };
        record.rememberPassword = true;
        record.password = oldSecret;
        record.settings.insert(QStringLiteral("server-password"), ofServer);
        return accounts->create(record, &protocol);
    }
    /// Several accounts whose secrets leave the profile in more than one commit.
    bool createMany()
    {
        bool isDone = store.begin() && create();
        for (int number = 1; isDone && number < 12; ++number)
            isDone = create(QStringLiteral("id%1").arg(number));
        return isDone && store.commit();
    }
    template <typename Condition>
    bool isTrueOfAll(Condition condition) const
    {
        const QList<KirvAccount *> all = accounts->accounts();
        return std::all_of(all.begin(), all.end(), condition);
    }
    /// Whether everything is read and nothing is left to be done.
    bool isSettled()
    {
        return QTest::qWaitFor(
            [this] {
                return keyring->state() == KirvSecretStore::Ready
                    && isTrueOfAll([](const KirvAccount *account) { return !account->awaitsSecrets(); })
                    && store.unsettledItems().isEmpty();
            },
            kirvPatience);
    }
    bool isMoved()
    {
        accounts->secrets().startMoving();
        return QTest::qWaitFor(
            [this] {
                return isSettled() && isTrueOfAll([](const KirvAccount *account) {
                           return account->record().secretItems.size() == 2 || !account->record().rememberPassword;
                       });
            },
            kirvPatience);
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
        { QStringLiteral("move of many"), [](Core &core) { return core.isMoved(); } },
    };
    return all;
}

bool isMove(const QString &change)
{
    return change.startsWith(QLatin1String("move"));
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
    static void checkFiles(const QString &folder);
    void check(const QString &name, const QString &folder, bool isDone);
    void checkMoved(Core &core, const QSignalSpy &moves);

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
    const bool isOfMany = name == QLatin1String("move of many");
    // A move of many makes the same calls again and again; that of one is interrupted at each.
    const int stride = isOfMany ? (kirvIsThorough() ? 7 : 301) : (kirvIsThorough() ? 1 : 17);
    int kills = 0;
    bool isDone = false;
    for (int call = 0; !isDone; call += stride, ++kills) {
        QTemporaryDir home;
        const QString folder = home.filePath(QStringLiteral("profile"));
        {
            Core core(folder, !isMove(name));
            QVERIFY(core.isOpen);
            if (isOfMany)
                QVERIFY(core.createMany());
            else if (name != QLatin1String("create"))
                QVERIFY(core.create());
            QVERIFY(isMove(name) || core.isSettled());
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
    if (!process.waitForFinished(kirvPatienceWithProgram))
        return QStringLiteral("does not end");
    if (process.exitStatus() != QProcess::CrashExit)
        return QStringLiteral("exit status %1").arg(process.exitCode());
    return process.readAllStandardOutput() == "done" ? QStringLiteral("done") : QStringLiteral("killed");
}

void tst_SecretsSurviveKills::checkFiles(const QString &folder)
{
    for (const QString &secret : { oldSecret, newSecret, ofServer })
        QVERIFY2(!isTextInFiles(secret, folder), qPrintable(secret));
}

/// The next start.
void tst_SecretsSurviveKills::check(const QString &name, const QString &folder, bool isDone)
{
    // As the kill has left the files: opening and changing the profile wipes them. What is moved is in them at first.
    if (!isMove(name))
        checkFiles(folder);
    if (QTest::currentTestFailed())
        return;
    {
        Core core(folder, true);
        QVERIFY2(core.isOpen, qPrintable(core.store.lastError()));
        QSignalSpy moves(&core.accounts->secrets(), &KirvSecretKeeper::moved);
        QVERIFY(core.isSettled());
        if (isMove(name))
            checkMoved(core, moves);
        if (QTest::currentTestFailed())
            return;
        const KirvAccount *account = core.account();
        QVERIFY(account || name == QLatin1String("remove") || name == QLatin1String("create"));
        QVERIFY(!isDone || bool(account) == (name != QLatin1String("remove")));
        const QString password = account ? account->getPassword() : QString();
        const bool isRemembered = account && account->record().rememberPassword;
        if (name == QLatin1String("change"))
            QVERIFY2(password == newSecret || (!isDone && password == oldSecret), qPrintable(password));
        else if (name == QLatin1String("create") && !isDone)
            QVERIFY2(password == oldSecret || password.isEmpty(), qPrintable(password));
        else
            QCOMPARE(password, isRemembered ? oldSecret : QString());
        int references = 0;
        for (const KirvAccount *each : core.accounts->accounts())
            references += int(each->record().secretItems.size() - each->record().unreadSecrets.size());
        QCOMPARE(daemon.count(), references);
        QVERIFY(core.accounts->remove(core.accounts->accounts()));
        QVERIFY(core.isSettled());
    }
    QCOMPARE(daemon.count(), 0);
    checkFiles(folder);
}

/// The move is complete and was counted as a whole, unless the process that was killed has done so.
void tst_SecretsSurviveKills::checkMoved(Core &core, const QSignalSpy &moves)
{
    QVERIFY(core.isMoved());
    QVERIFY(core.isTrueOfAll([](const KirvAccount *account) {
        return account->record().password == oldSecret
            && account->record().settings.value(QStringLiteral("server-password")) == ofServer;
    }));
    const int moved = 2 * int(core.accounts->accounts().size());
    QVERIFY(QTest::qWaitFor([&core] { return core.store.movedCount() == 0; }, kirvPatience));
    QVERIFY2(moves.isEmpty() || moves.first().first().toInt() == moved, qPrintable(moves.value(0).value(0).toString()));
    for (const QString &secret : { oldSecret, ofServer })
        QVERIFY2(!isTextInFiles(secret, core.store.folder()), qPrintable(secret));
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

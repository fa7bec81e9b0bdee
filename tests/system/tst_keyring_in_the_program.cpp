// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_keyring.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"
#include "tests/support/servers/kirv_silent_bus.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

namespace {

const int accountCount = 12;

QString passwordOf(int number)
{
    return QStringLiteral("remembered word %1").arg(number);
}

QString serverPasswordOf(int number)
{
    return QStringLiteral("word for the server %1").arg(number);
}

} // namespace

/// The program itself with a real keyring: what any byte of its profile, its arguments and its environment says.
class tst_KeyringInTheProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(daemon.start()); }
    void cleanup() { daemon.stop(); }

    void theFirstStartMovesEverySecret();
    void twoProfilesSideBySideKeepTheirOwn();
    void anImportGoesToTheKeyring_data();
    void anImportGoesToTheKeyring();
    void withAServiceThatIsNotThereTheProfileStaysAsItIs();
    void aSessionBusThatDoesNotAnswerHoldsNothingUp();

private:
    static void makeProfile(const QString &folder);
    static void start(QProcess &program, const QString &folder);
    static bool hasSecrets(const QByteArray &bytes);
    static bool hasSecretsIn(const QString &folder);

    KirvGnomeKeyring daemon;
};

/// As an earlier version has left it: all secrets in the profile. Nothing connects anywhere.
void tst_KeyringInTheProgram::makeProfile(const QString &folder)
{
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    for (int number = 0; number < accountCount; ++number) {
        KirvAccountRecord account;
        account.key = { QStringLiteral("nick%1").arg(number), QStringLiteral("IRC") };
        account.enabled = false;
        account.rememberPassword = true;
        account.password = passwordOf(number);
        account.settings = { { QStringLiteral("server"), QStringLiteral("irc.invalid") },
                             { QStringLiteral("server-password"), serverPasswordOf(number) } };
        account.secretSettings = { QStringLiteral("server-password") };
        QVERIFY(store.insertAccount(account));
    }
}

void tst_KeyringInTheProgram::start(QProcess &program, const QString &folder)
{
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(KIRV_PROGRAM), { QStringLiteral("--profile"), folder });
    QVERIFY(program.waitForStarted(kirvPatience));
}

bool tst_KeyringInTheProgram::hasSecrets(const QByteArray &bytes)
{
    for (int number = 0; number < accountCount; ++number) {
        for (const QString &secret : { passwordOf(number), serverPasswordOf(number) }) {
            if (bytes.contains(secret.toUtf8()))
                return true;
        }
    }
    return false;
}

bool tst_KeyringInTheProgram::hasSecretsIn(const QString &folder)
{
    const auto files = filesIn(folder);
    return std::any_of(files.begin(), files.end(), &hasSecrets);
}

void tst_KeyringInTheProgram::theFirstStartMovesEverySecret()
{
    const int others = daemon.count();
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    makeProfile(folder);
    QVERIFY(hasSecretsIn(folder));
    QProcess program;
    start(program, folder);
    QTRY_VERIFY_WITH_TIMEOUT(!hasSecretsIn(folder), kirvPatienceWithProgram);
    QCOMPARE(daemon.count(), others + 2 * accountCount);
    const QString process = QStringLiteral("/proc/%1/").arg(program.processId());
    for (const char *name : { "cmdline", "environ" }) {
        const QByteArray bytes = contentOf(process + QLatin1String(name));
        QVERIFY(!bytes.isEmpty() || ::geteuid() != 0); // only root reads those of a program that protects its memory
        QVERIFY(!hasSecrets(bytes));
    }
    program.terminate();
    QVERIFY(program.waitForFinished(kirvPatience));
    QVERIFY(!hasSecretsIn(folder)); // with the copy that the end has made
    QVERIFY(!hasSecrets(program.readAll()));
    QCOMPARE(daemon.count(), others + 2 * accountCount);
}

void tst_KeyringInTheProgram::twoProfilesSideBySideKeepTheirOwn()
{
    const int others = daemon.count();
    QTemporaryDir home;
    const QString one = home.filePath(QStringLiteral("one")), two = home.filePath(QStringLiteral("two"));
    for (const QString &folder : { one, two })
        makeProfile(folder);
    QProcess first, second;
    start(first, one);
    start(second, two);
    QTRY_VERIFY_WITH_TIMEOUT(!hasSecretsIn(one) && !hasSecretsIn(two), kirvPatienceWithProgram);
    QCOMPARE(daemon.count(), others + 4 * accountCount);
    for (QProcess *program : { &first, &second }) {
        program->terminate();
        QVERIFY(program->waitForFinished(kirvPatience));
    }
    {
        KirvStore store;
        QVERIFY(store.open(one));
        const QList<KirvAccountRecord> accounts = store.readAccounts();
        for (const KirvAccountRecord &account : accounts)
            QVERIFY(store.removeAccount(account.key));
    }
    start(first, one); // removes what is left of them
    QTRY_COMPARE_WITH_TIMEOUT(daemon.count(), others + 2 * accountCount, kirvPatienceWithProgram);
    first.terminate();
    QVERIFY(first.waitForFinished(kirvPatience));
    KirvStore store;
    QVERIFY(store.open(two));
    KirvKeyring keyring;
    int read = 0;
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    for (const KirvAccountRecord &account : accounts) {
        QCOMPARE(account.secretItems.size(), 2);
        keyring.read(account.secretItems.value(QString()), this, [&, account](const KirvSecretStore::Reply &reply) {
            read += reply.outcome == KirvSecretStore::Done && reply.secret == passwordOf(account.key.id.mid(4).toInt());
        });
    }
    QTRY_COMPARE_WITH_TIMEOUT(read, accountCount, kirvPatienceWithProgram);
}

void tst_KeyringInTheProgram::anImportGoesToTheKeyring_data()
{
    QTest::addColumn<bool>("isLocked");
    QTest::addColumn<bool>("isLeftOut");
    QTest::newRow("unlocked") << false << false;
    QTest::newRow("something is left out") << false << true;
    QTest::newRow("locked") << true << false; // nobody may be there to unlock it
}

/// By the command line, while no program runs.
void tst_KeyringInTheProgram::anImportGoesToTheKeyring()
{
    QFETCH(bool, isLocked);
    QFETCH(bool, isLeftOut);
    const int others = daemon.count();
    if (isLocked)
        QVERIFY(daemon.lock());
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    QFile file(home.filePath(QStringLiteral("accounts.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<?xml version='1.0' encoding='UTF-8' ?><account version='1.0'>");
    for (int number = 0; number < accountCount; ++number) {
        file.write(QStringLiteral("<account><protocol>prpl-irc</protocol><name>nick%1@irc.invalid</name>"
                                  "<password>%2</password></account>")
                       .arg(number)
                       .arg(passwordOf(number))
                       .toUtf8());
    }
    if (isLeftOut)
        file.write("<account><protocol>prpl-other</protocol><name>ann</name></account>");
    file.write("</account>");
    file.close();
    QProcess program;
    program.start(
        QStringLiteral(KIRV_PROGRAM),
        { QStringLiteral("accounts"), QStringLiteral("import"), QStringLiteral("--profile"), folder, file.fileName() });
    QVERIFY(program.waitForFinished(kirvPatienceWithProgram));
    QVERIFY2(program.exitCode() == (isLeftOut ? 4 : 0), program.readAllStandardError().constData());
    QCOMPARE(hasSecretsIn(folder), isLocked);
    if (isLocked)
        QVERIFY(daemon.unlock());
    QCOMPARE(daemon.count(), isLocked ? others : others + accountCount);
}

void tst_KeyringInTheProgram::withAServiceThatIsNotThereTheProfileStaysAsItIs()
{
    daemon.stop();
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    makeProfile(folder);
    QProcess program;
    start(program, folder);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(folder + QStringLiteral("/plugins.json")),
                             kirvPatienceWithProgram); // it has loaded them
    program.terminate();
    QVERIFY(program.waitForFinished(kirvPatience));
    KirvStore store;
    QVERIFY(store.open(folder));
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    QCOMPARE(accounts.size(), accountCount);
    for (const KirvAccountRecord &account : accounts) {
        QVERIFY(account.secretItems.isEmpty());
        QCOMPARE(account.password, passwordOf(account.key.id.mid(4).toInt()));
    }
}

/// Whatever waits for it waits for 25 seconds.
void tst_KeyringInTheProgram::aSessionBusThatDoesNotAnswerHoldsNothingUp()
{
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    makeProfile(folder);
    const KirvSilentBus bus(KirvSilentBus::NeverAnswers);
    QVERIFY(bus.isReady());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(bus.address()));
    QProcess program;
    program.setProcessEnvironment(environment);
    start(program, folder);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(folder + QStringLiteral("/plugins.json")),
                             kirvPatience); // it has loaded them
    program.terminate();
    QVERIFY(program.waitForFinished(kirvPatience));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    KirvStore store;
    QVERIFY(store.open(folder));
    QCOMPARE(store.readAccounts().value(0).password, passwordOf(0));
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QCoreApplication application(argc, argv);
    tst_KeyringInTheProgram test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyring_in_the_program.moc"

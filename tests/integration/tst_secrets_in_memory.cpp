// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/store/kirv_keyring.h"
#include "core/store/kirv_store.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

namespace {

const QString fake = QStringLiteral("Fake");
const qint64 largestMapping = 1LL << 30; ///< those of sanitizers are larger

/// Memory that was released is overwritten, so that what is found belongs to something.
QProcessEnvironment environmentThatOverwrites()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("GLIBC_TUNABLES"),
                       QStringLiteral("glibc.malloc.tcache_count=0:glibc.malloc.perturb=85"));
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       environment.value(QStringLiteral("ASAN_OPTIONS"))
                           + QLatin1String(":max_free_fill_size=1048576:free_fill_byte=85"));
    return environment;
}

struct Core {
    explicit Core(const QString &folder)
        : isOpen(store.open(folder))
        , accounts(std::make_unique<KirvAccountCollection>(store))
    {
        accounts->secrets().setKeyring(&keyring);
        accounts->protocolLoaded(&protocol, false);
    }
    KirvAccount *account() const { return accounts->find({ QStringLiteral("id"), fake }); }
    bool isSettled()
    {
        return QTest::qWaitFor(
            [this] {
                return keyring.state() == KirvSecretStore::Ready && (!account() || !account()->awaitsSecrets())
                    && store.unsettledItems().isEmpty();
            },
            kirvPatience);
    }

    KirvStore store;
    bool isOpen = false;
    KirvFakeProtocol protocol;
    KirvKeyring keyring;
    std::unique_ptr<KirvAccountCollection> accounts;
};

/// The process that is looked into: does what its input says, and says so.
int followOrders(const QString &folder)
{
    Core core(folder);
    std::string order;
    while (std::getline(std::cin, order)) {
        if (!core.isOpen || !core.isSettled())
            return 1;
        if (order == "remove" && !core.accounts->remove(core.account()))
            return 2;
        if (order == "change" && !core.account()->change([](KirvAccountRecord &record) {
                record.password = QStringLiteral("another one");
            }))
            return 3;
        if (!core.isSettled())
            return 4;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        std::printf("%s\n", order.c_str());
        std::fflush(stdout);
    }
    return 0;
}

/// How often \a bytes stand in the memory of the process, as far as it can be written.
int countInMemory(qint64 process, const QByteArray &bytes)
{
    const QString folder = QStringLiteral("/proc/%1/").arg(process);
    QFile maps(folder + QLatin1String("maps")), memory(folder + QLatin1String("mem"));
    if (!maps.open(QIODevice::ReadOnly) || !memory.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return -1;
    int count = 0;
    const QList<QByteArray> lines = maps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        if (!columns.value(1).startsWith("rw"))
            continue;
        const QList<QByteArray> range = columns.first().split('-');
        const qint64 from = range.first().toLongLong(nullptr, 16), to = range.value(1).toLongLong(nullptr, 16);
        if (to - from > largestMapping || !memory.seek(from))
            continue;
        count += memory.read(to - from).count(bytes);
    }
    return count;
}

} // namespace

/// What is left of a secret in the memory of a process.
class tst_SecretsInMemory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(daemon.start()); }
    void nothingKeepsASecret_data();
    void nothingKeepsASecret();

private:
    KirvGnomeKeyring daemon;
};

void tst_SecretsInMemory::nothingKeepsASecret_data()
{
    QTest::addColumn<QByteArray>("order");
    QTest::newRow("of a removed account") << QByteArray("remove");
    QTest::newRow("that was replaced") << QByteArray("change");
}

void tst_SecretsInMemory::nothingKeepsASecret()
{
    QFETCH(QByteArray, order);
    QString secret;
    while (secret.size() < 24)
        secret += QChar(ushort('a' + QRandomGenerator::system()->bounded(26)));
    const QByteArray utf8 = secret.toUtf8();
    const QByteArray utf16(reinterpret_cast<const char *>(secret.utf16()), int(secret.size() * 2));
    QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("profile"));
    {
        Core core(folder);
        QVERIFY(core.isOpen);
        KirvAccountRecord record;
        record.key = { QStringLiteral("id"), fake };
        record.enabled = false;
        record.rememberPassword = true;
        record.password = secret;
        QVERIFY(core.accounts->create(record, &core.protocol));
        QVERIFY(core.isSettled());
    }
    QProcess process;
    process.setProcessEnvironment(environmentThatOverwrites());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--follow"), folder });
    const auto carryOut = [&process](const QByteArray &text) {
        process.write(text + '\n');
        return QTest::qWaitFor([&process] { return process.canReadLine(); }, kirvPatience)
            && process.readLine().trimmed() == text;
    };
    QVERIFY(carryOut("read"));
    QVERIFY(countInMemory(process.processId(), utf16) > 0); // it would be found
    QVERIFY(carryOut(order));
    QCOMPARE(countInMemory(process.processId(), utf16), 0);
    QCOMPARE(countInMemory(process.processId(), utf8), 0);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(kirvPatience));
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--follow"))
        return followOrders(arguments.at(2));
    tst_SecretsInMemory test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_secrets_in_memory.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_loader.h"
#include "host/kirv_account_connection.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/kirv_patience.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString fixture(const QString &kind, const QString &name)
{
    return QStringLiteral(KIRV_FIXTURE_PLUGINS) + QLatin1Char('/') + kind + QLatin1Char('/') + name
        + QStringLiteral(".so");
}

QString fixture(const QString &kind)
{
    return fixture(kind, kind);
}

QString exampleFile()
{
    return QStringLiteral(KIRV_EXAMPLE_PROTOCOLS "/kirv_protocol_example.so");
}

} // namespace

class tst_Plugins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void saysWhyAFileCannotBeUsed_data();
    void saysWhyAFileCannotBeUsed();
    void aNameWithoutBoundsIsRefused();
    void loadsTheGoodPlugin();
    void looksAtEveryFileOfAFolderInOrder();
    void saysThatAFolderDoesNotExist();
    void looksAtAFolderOnce();
    void theFirstOfTwoWithOneNameStays();
    void aFileThatWasMendedCanBeLoaded();
    void aSlowPluginIsLoaded();
    void hugeListsAreTakenAsTheyAre();
    void missingRepliesDoNoHarm();
    void unloadsAndLoadsAgain();
    void theProtocolIsCompleteUntilEveryReceiverHasReturned();
    void unloadingTwiceAtOnceUnloadsOnce();
    void unloadingWhatIsNotLoadedDoesNothing();
    void acceptsProtocolsOfTheProgram();
    void refusesUnusableProtocolsOfTheProgram();
    void unloadsEverythingAtTheEnd();
    void broadcastsCoreSignals();
    void aReceiverMayUnloadAnother();
    void directoryOperationsAreEmitted();
    void findsPresencesById();
};

void tst_Plugins::initTestCase()
{
    qRegisterMetaType<KirvProtocolBase *>();
}

void tst_Plugins::saysWhyAFileCannotBeUsed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("loadable");
    QTest::addColumn<QString>("error");
    QTest::newRow("not_a_library") << "not_a_library" << false << "The file is not a plug-in library.";
    QTest::newRow("wrong_interface")
        << "Fixture" << false << "The plug-in is not one for protocols: its interface is \"org.example.Calculator\".";
    QTest::newRow("wrong_version")
        << "Tomorrow" << false
        << "The plug-in was built for version 99 of the plug-in interface; this program has version 4.";
    QTest::newRow("false_interface") << "Fixture" << true << "The plug-in does not have the interface that it states.";
    QTest::newRow("missing_symbol") << "Fixture" << true << "The library cannot be loaded: *kirvDefinedNowhere*";
    QTest::newRow("no_protocol") << "Fixture" << true << "The moon is not full.";
    QTest::newRow("no_name") << "Fixture" << true << "The protocol has no name.";
    QTest::newRow("empty_lists") << "Fixture" << true << "The protocol \"Empty\" offers no presence.";
}

void tst_Plugins::saysWhyAFileCannotBeUsed()
{
    QFETCH(QString, name);
    QFETCH(bool, loadable);
    QFETCH(QString, error);
    const QString file = fixture(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(QFile::exists(file));

    KirvPluginLoader loader;
    QSignalSpy loaded(&loader, &KirvPluginLoader::protocolLoaded);
    QVERIFY(loader.loadFolder(QFileInfo(file).path()));
    QCOMPARE(loader.plugins().size(), 1);
    const KirvPluginInfo info = loader.plugins().first();
    QCOMPARE(info.fileName, file);
    QCOMPARE(info.name, name);
    QCOMPARE(info.loadable, loadable);
    QVERIFY(!info.loaded);
    const QRegularExpression pattern(
        QRegularExpression::wildcardToRegularExpression(error).replace(QStringLiteral("[^/]"), QStringLiteral(".")));
    QVERIFY2(pattern.match(info.error).hasMatch(), qPrintable(info.error));
    QVERIFY(loader.protocols().isEmpty());
    QCOMPARE(loaded.size(), 0);

    QVERIFY(!loader.load(file));
    QCOMPARE(loader.plugins().size(), 1);
    QVERIFY(!loader.unload(file));
}

/// It would be laid out in menus, lists and windows.
void tst_Plugins::aNameWithoutBoundsIsRefused()
{
    KirvPluginLoader loader;
    qputenv("KIRV_FIXTURE_PROTOCOL", QByteArray(100, 'x'));
    QVERIFY(loader.load(fixture(QStringLiteral("named_by_test"))));
    QVERIFY(loader.unload(fixture(QStringLiteral("named_by_test"))));
    qputenv("KIRV_FIXTURE_PROTOCOL", QByteArray(101, 'x'));
    QVERIFY(!loader.load(fixture(QStringLiteral("named_by_test"))));
    qunsetenv("KIRV_FIXTURE_PROTOCOL");
    QCOMPARE(loader.plugins().first().error, QStringLiteral("The name of the protocol has more than 100 characters."));
}

void tst_Plugins::loadsTheGoodPlugin()
{
    KirvPluginLoader loader;
    QSignalSpy loaded(&loader, &KirvPluginLoader::protocolLoaded);
    QSignalSpy changed(&loader, &KirvPluginLoader::pluginsChanged);
    QVERIFY(loader.load(exampleFile()));
    const KirvPluginInfo info = loader.plugins().first();
    QCOMPARE(info.name, QStringLiteral("Example"));
    QVERIFY(!info.description.isEmpty());
    QVERIFY(info.loaded && info.loadable && info.error.isEmpty());
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(loader.protocols().size(), 1);
    QCOMPARE(loader.protocol(QStringLiteral("Example")), loader.protocols().first());
    QVERIFY(!loader.protocol(QStringLiteral("example")));

    QVERIFY(loader.load(exampleFile()));
    QCOMPARE(loaded.size(), 1);
}

void tst_Plugins::looksAtEveryFileOfAFolderInOrder()
{
    QTemporaryDir folder;
    QVERIFY(QFile::copy(fixture(QStringLiteral("slow")), folder.filePath(QStringLiteral("c.so"))));
    QVERIFY(QFile::copy(fixture(QStringLiteral("wrong_version")), folder.filePath(QStringLiteral("b.so"))));
    QVERIFY(QFile::copy(exampleFile(), folder.filePath(QStringLiteral("d.so"))));
    QVERIFY(QFile::copy(fixture(QStringLiteral("not_a_library")), folder.filePath(QStringLiteral("a.txt"))));
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("e.so")));

    KirvPluginLoader loader;
    QVERIFY(loader.loadFolder(folder.path()));
    QStringList names;
    for (const KirvPluginInfo &info : loader.plugins())
        names.append(info.name);
    QCOMPARE(names, (QStringList { "a", "Tomorrow", "Slow", "Example" }));
    QCOMPARE(loader.protocols().size(), 2);
    QCOMPARE(loader.protocols().first()->getName(), QStringLiteral("Slow"));
}

void tst_Plugins::saysThatAFolderDoesNotExist()
{
    QTemporaryDir folder;
    KirvPluginLoader loader;
    QVERIFY(!loader.loadFolder(folder.filePath(QStringLiteral("nowhere"))));
    QVERIFY(loader.loadFolder(folder.path()));
    QVERIFY(loader.plugins().isEmpty());
}

void tst_Plugins::looksAtAFolderOnce()
{
    KirvPluginLoader loader;
    QVERIFY(loader.loadFolder(QStringLiteral(KIRV_EXAMPLE_PROTOCOLS)));
    QVERIFY(loader.unload(exampleFile()));
    QVERIFY(loader.loadFolder(QStringLiteral(KIRV_EXAMPLE_PROTOCOLS)));
    QCOMPARE(loader.plugins().size(), 1);
    QVERIFY(loader.protocols().isEmpty());
}

void tst_Plugins::theFirstOfTwoWithOneNameStays()
{
    KirvPluginLoader loader;
    QVERIFY(loader.loadFolder(QStringLiteral(KIRV_FIXTURE_PLUGINS "/same_name")));
    const QList<KirvPluginInfo> plugins = loader.plugins();
    QCOMPARE(plugins.size(), 2);
    QVERIFY(plugins.first().loaded);
    QVERIFY(!plugins.last().loaded);
    QCOMPARE(plugins.last().error, QStringLiteral("A protocol with the name \"Twin\" is loaded already."));
    QCOMPARE(loader.protocols().size(), 1);

    QVERIFY(loader.unload(plugins.first().fileName));
    QVERIFY(!loader.protocol(QStringLiteral("Twin")));
    QVERIFY(loader.load(plugins.last().fileName));
    QVERIFY(loader.plugins().last().loaded);
    QVERIFY(loader.plugins().last().error.isEmpty());
}

void tst_Plugins::aFileThatWasMendedCanBeLoaded()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("protocol.so"));
    QVERIFY(QFile::copy(fixture(QStringLiteral("not_a_library")), file));
    KirvPluginLoader loader;
    QVERIFY(loader.loadFolder(folder.path()));
    QVERIFY(loader.protocols().isEmpty());
    QVERIFY(QFile::remove(file));
    QVERIFY(!loader.load(file));
    QVERIFY(QFile::copy(exampleFile(), file));
    QVERIFY(loader.load(file));
    QCOMPARE(loader.plugins().size(), 1);
}

void tst_Plugins::aSlowPluginIsLoaded()
{
    KirvPluginLoader loader;
    QVERIFY(loader.load(fixture(QStringLiteral("slow"))));
    QVERIFY(loader.protocol(QStringLiteral("Slow")));
}

void tst_Plugins::hugeListsAreTakenAsTheyAre()
{
    KirvPluginLoader loader;
    QVERIFY(loader.load(fixture(QStringLiteral("huge_lists"))));
    KirvProtocol *protocol = loader.protocol(QStringLiteral("Huge"));
    QVERIFY(protocol);
    QCOMPARE(protocol->getAllPresences().size(), 10000);
    QCOMPARE(protocol->getAccountSettings().size(), 10000);
    QCOMPARE(protocol->getPubdirAccountFields().size(), 10000);
    QCOMPARE(protocol->createPresenceWithId(QStringLiteral("9999"), QString()).getId(), QStringLiteral("9999"));
    QCOMPARE(int(loader.plugins().first().description.size()), 1 << 20);
}

void tst_Plugins::missingRepliesDoNoHarm()
{
    KirvPluginLoader loader;
    QVERIFY(loader.load(fixture(QStringLiteral("half_answers"))));
    std::unique_ptr<KirvConnection> connection(loader.protocols().first()->createConnection());
    KirvConnection::Timing timing;
    timing.loginTimeout = timing.logoutTimeout = timing.requestTimeout = 20;
    connection->setTiming(timing);
    QList<int> answered;
    connect(connection.get(), &KirvConnection::directoryAnswered, this,
            [&](const KirvDirectoryAnswer &answer) { answered << answer.request; });

    connection->logIn({}, { QStringLiteral("silent"), QString(), QString() });
    KIRV_TRY_COMPARE(connection->state(), KirvConnection::Waiting);
    QCOMPARE(connection->lastFailure().kind(), KirvFailure::TimedOut);
    connection->logIn({}, { QStringLiteral("available"), QString(), QString() });
    QVERIFY(connection->isLoggedIn());
    QList<int> requests { connection->fetchDirectory() };
    KIRV_TRY_COMPARE(answered, requests);
    requests << connection->deleteDirectory();
    KIRV_TRY_COMPARE(answered, requests);
    requests << connection->publishDirectory({});
    connection->logOut();
    KIRV_TRY_COMPARE(connection->state(), KirvConnection::Offline);
    QCOMPARE(answered, requests);
}

void tst_Plugins::unloadsAndLoadsAgain()
{
    KirvPluginLoader loader;
    QVERIFY(loader.load(exampleFile()));
    QSignalSpy unloaded(&loader, &KirvPluginLoader::protocolUnloaded);
    for (int i = 0; i < 3; ++i) {
        const QPointer<KirvProtocolBase> protocol = loader.protocols().first();
        QSignalSpy changed(&loader, &KirvPluginLoader::pluginsChanged);
        QVERIFY(loader.unload(exampleFile()));
        QVERIFY(!protocol);
        QVERIFY(!loader.protocol(QStringLiteral("Example")));
        QVERIFY(loader.protocols().isEmpty());
        QCOMPARE(unloaded.takeFirst().first().toString(), QStringLiteral("Example"));
        const KirvPluginInfo info = loader.plugins().first();
        QVERIFY(!info.loaded && info.loadable && info.error.isEmpty());
        QCOMPARE(changed.size(), 1);
        QVERIFY(loader.load(exampleFile()));
        QVERIFY(loader.protocol(QStringLiteral("Example")));
    }
}

void tst_Plugins::theProtocolIsCompleteUntilEveryReceiverHasReturned()
{
    KirvPluginLoader loader;
    QVERIFY(loader.load(exampleFile()));
    QStringList log;
    connect(&loader, &KirvPluginLoader::protocolAboutToBeUnloaded, this, [&](KirvProtocolBase *protocol) {
        QCOMPARE(loader.protocol(QStringLiteral("Example")), protocol);
        log.append(QStringLiteral("about to be unloaded: ") + protocol->getName());
    });
    connect(&loader, &KirvPluginLoader::protocolUnloaded, this, [&](const QString &name) {
        QVERIFY(!loader.protocol(name));
        QVERIFY(!loader.plugins().first().loaded);
        log.append(QStringLiteral("unloaded: ") + name);
    });
    QVERIFY(loader.unload(exampleFile()));
    QCOMPARE(log, (QStringList { "about to be unloaded: Example", "unloaded: Example" }));
}

void tst_Plugins::unloadingTwiceAtOnceUnloadsOnce()
{
    KirvPluginLoader loader;
    QVERIFY(loader.load(exampleFile()));
    QSignalSpy unloaded(&loader, &KirvPluginLoader::protocolUnloaded);
    connect(&loader, &KirvPluginLoader::protocolAboutToBeUnloaded, this,
            [&] { QVERIFY(!loader.unload(exampleFile())); });
    QVERIFY(loader.unload(exampleFile()));
    QCOMPARE(unloaded.size(), 1);
}

void tst_Plugins::unloadingWhatIsNotLoadedDoesNothing()
{
    KirvPluginLoader loader;
    QVERIFY(loader.addProtocol(new KirvFakeProtocol(QStringLiteral("Own"))));
    QSignalSpy changed(&loader, &KirvPluginLoader::pluginsChanged);
    QVERIFY(!loader.unload(exampleFile()));
    QVERIFY(!loader.unload(QString()));
    QVERIFY(loader.protocol(QStringLiteral("Own")));
    QCOMPARE(changed.size(), 0);
}

void tst_Plugins::acceptsProtocolsOfTheProgram()
{
    KirvPluginLoader loader;
    QSignalSpy loaded(&loader, &KirvPluginLoader::protocolLoaded);
    auto *protocol = new KirvFakeProtocol(QStringLiteral("Own"));
    QVERIFY(loader.addProtocol(protocol));
    QCOMPARE(loader.protocol(QStringLiteral("Own")), protocol);
    QCOMPARE(loaded.size(), 1);
    QVERIFY(loader.plugins().isEmpty());
}

void tst_Plugins::refusesUnusableProtocolsOfTheProgram()
{
    KirvPluginLoader loader;
    QVERIFY(loader.addProtocol(new KirvFakeProtocol(QStringLiteral("Own"))));
    const QPointer<KirvProtocolBase> other = new KirvFakeProtocol(QStringLiteral("Own"));
    const QPointer<KirvProtocolBase> nameless = new KirvFakeProtocol(QString());
    QVERIFY(!loader.addProtocol(other));
    QVERIFY(!loader.addProtocol(nameless));
    QVERIFY(!loader.addProtocol(nullptr));
    QVERIFY(!other && !nameless);
    QCOMPARE(loader.protocols().size(), 1);
}

void tst_Plugins::unloadsEverythingAtTheEnd()
{
    QStringList gone;
    auto loader = std::make_unique<KirvPluginLoader>();
    QVERIFY(loader->load(exampleFile()));
    QVERIFY(loader->addProtocol(new KirvFakeProtocol(QStringLiteral("Own"))));
    const QList<KirvProtocolBase *> protocols = loader->protocols();
    const QList<QPointer<KirvProtocolBase>> guarded(protocols.begin(), protocols.end());
    connect(loader.get(), &KirvPluginLoader::protocolAboutToBeUnloaded, this,
            [&](KirvProtocolBase *protocol) { gone.append(protocol->getName()); });
    loader.reset();
    QCOMPARE(gone, (QStringList { "Example", "Own" }));
    QVERIFY(!guarded.first() && !guarded.last());
}

void tst_Plugins::broadcastsCoreSignals()
{
    KirvPluginLoader loader;
    QStringList received;
    auto *first = new KirvFakeProtocol(QStringLiteral("First"));
    auto *second = new KirvFakeProtocol(QStringLiteral("Second"));
    first->onCoreSignal = [&] { received << QStringLiteral("First ") + first->coreSignals.last(); };
    second->onCoreSignal = [&] { received << QStringLiteral("Second ") + second->coreSignals.last(); };
    connect(&loader, &KirvPluginLoader::coreSignalEmitted, this, [&](const QString &name, const QList<KirvArg> &args) {
        received << QStringLiteral("client ") + name + QLatin1Char(' ') + QString::number(args.size());
    });
    QVERIFY(loader.addProtocol(first) && loader.addProtocol(second));
    loader.broadcast(QStringLiteral("register_account"), {});
    loader.broadcast(QStringLiteral("other"), { KirvArg(1) });
    QCOMPARE(received,
             (QStringList { "First register_account 0", "Second register_account 0", "client register_account 0",
                            "First other 1", "Second other 1", "client other 1" }));
}

void tst_Plugins::aReceiverMayUnloadAnother()
{
    KirvPluginLoader loader;
    auto *first = new KirvFakeProtocol(QStringLiteral("First"));
    auto *last = new KirvFakeProtocol(QStringLiteral("Last"));
    first->onCoreSignal = [&] { QVERIFY(loader.unload(exampleFile())); };
    QVERIFY(loader.addProtocol(first));
    QVERIFY(loader.load(exampleFile()));
    QVERIFY(loader.addProtocol(last));
    loader.broadcast(QStringLiteral("go"), {});
    QCOMPARE(first->coreSignals, QStringList { "go 0" });
    QCOMPARE(last->coreSignals, QStringList { "go 0" });
    QVERIFY(!loader.protocol(QStringLiteral("Example")));
}

void tst_Plugins::directoryOperationsAreEmitted()
{
    KirvFakeProtocol protocol;
    KirvProtocol &contract = protocol;
    QList<KirvProtocolBase::DirectoryOperation> operations;
    QList<int> fieldCounts;
    connect(&protocol, &KirvProtocolBase::directoryRequested, this,
            [&](KirvAccountConnection *account, KirvProtocolBase::DirectoryOperation operation,
                const QList<KirvField> &fields) {
                QVERIFY(!account);
                operations << operation;
                fieldCounts << int(fields.size());
            });
    contract.fetchPubdirInfo(nullptr);
    contract.publishPubdirInfo(nullptr, protocol.directoryFields());
    contract.deletePubdirInfo(nullptr);
    QCOMPARE(operations,
             (QList<KirvProtocolBase::DirectoryOperation> { KirvProtocolBase::FetchDirectory,
                                                            KirvProtocolBase::PublishDirectory,
                                                            KirvProtocolBase::DeleteDirectory }));
    QCOMPARE(fieldCounts, (QList<int> { 0, 2, 0 }));
}

void tst_Plugins::findsPresencesById()
{
    KirvPluginLoader loader;
    QVERIFY(loader.load(exampleFile()));
    KirvProtocol *protocol = loader.protocol(QStringLiteral("Example"));
    const KirvPresence away = protocol->createPresenceWithId(QStringLiteral("away"), QStringLiteral("at lunch"));
    QCOMPARE(away.getId(), QStringLiteral("away"));
    QCOMPARE(away.getDisplay(), QStringLiteral("Away"));
    QCOMPARE(away.getIcon(), QStringLiteral("away.svg"));
    QCOMPARE(away.getDescription(), QStringLiteral("at lunch"));
    const KirvPresence unknown = protocol->createPresenceWithId(QStringLiteral("unknown"), QStringLiteral("words"));
    QCOMPARE(unknown.getId(), QStringLiteral("available"));
    QCOMPARE(unknown.getDescription(), QStringLiteral("words"));
}

QTEST_GUILESS_MAIN(tst_Plugins)
#include "tst_plugins.moc"

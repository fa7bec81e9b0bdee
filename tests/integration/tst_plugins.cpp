// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "tests/support/plugins/kirv_fixture_protocol.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(KirvField)

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

KirvProtocol *find(const QString &name)
{
    return KirvPluginManager::getInstance()->getProtocolByName(name);
}

/// A protocol that writes down the core signals and can do something when one comes.
class ListeningProtocol : public KirvFixtureProtocol {
public:
    ListeningProtocol(const QString &name, QStringList &heard)
        : KirvFixtureProtocol(name)
        , heard(heard)
    {
    }

    void handleCoreSignal(const QString &name, const QList<KirvArg> &args) override
    {
        heard.append(getName() + QLatin1Char(' ') + name + QLatin1Char(' ') + QString::number(args.size()));
        reaction();
    }

    std::function<void()> reaction = [] {};

private:
    QStringList &heard;
};

} // namespace

class tst_Plugins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void saysWhyAFileCannotBeUsed_data();
    void saysWhyAFileCannotBeUsed();
    void loadsTheGoodPlugin();
    void looksAtEveryFileOfAFolderInOrder();
    void saysThatAFolderDoesNotExist();
    void looksAtAFolderOnce();
    void theFirstOfTwoWithOneNameStays();
    void aFileThatWasMendedCanBeLoaded();
    void aSlowPluginIsLoaded();
    void hugeListsAreTakenAsTheyAre();
    void missingAnswersDoNoHarm();
    void unloadsAndLoadsAgain();
    void theProtocolIsCompleteUntilItHasBeenSaidGoodByeTo();
    void unloadingTwiceAtOnceUnloadsOnce();
    void unloadingWhatIsNotLoadedDoesNothing();
    void takesProtocolsOfTheProgram();
    void refusesUnusableProtocolsOfTheProgram();
    void unloadsEverythingAtTheEnd();
    void isNotThereAfterTheEnd();
    void broadcastsCoreSignals();
    void aFilterKeepsCoreSignalsFromTheProtocols();
    void aReceiverMayUnloadAnother();
    void directoryOperationsReachTheConnection();
    void findsPresencesById();
};

void tst_Plugins::initTestCase()
{
    qRegisterMetaType<QList<KirvField>>("QList<KirvField>");
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
        << "The plug-in was built for version 99 of the plug-in interface; this program has version 1.";
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

    KirvPluginLoader registry;
    QSignalSpy loaded(&registry, &KirvPluginLoader::protocolLoaded);
    QVERIFY(registry.loadFolder(QFileInfo(file).path()));
    QCOMPARE(registry.plugins().size(), 1);
    const KirvPluginInfo info = registry.plugins().first();
    QCOMPARE(info.fileName, file);
    QCOMPARE(info.name, name);
    QCOMPARE(info.loadable, loadable);
    QVERIFY(!info.loaded);
    const QRegularExpression pattern(
        QRegularExpression::wildcardToRegularExpression(error).replace(QStringLiteral("[^/]"), QStringLiteral(".")));
    QVERIFY2(pattern.match(info.error).hasMatch(), qPrintable(info.error));
    QVERIFY(registry.protocols().isEmpty());
    QCOMPARE(loaded.size(), 0);

    QVERIFY(!registry.load(file));
    QCOMPARE(registry.plugins().size(), 1);
    QVERIFY(!registry.unload(file));
}

void tst_Plugins::loadsTheGoodPlugin()
{
    KirvPluginLoader registry;
    QSignalSpy loaded(&registry, &KirvPluginLoader::protocolLoaded);
    QSignalSpy changed(&registry, &KirvPluginLoader::pluginsChanged);
    QVERIFY(registry.load(exampleFile()));
    const KirvPluginInfo info = registry.plugins().first();
    QCOMPARE(info.name, QStringLiteral("Example"));
    QVERIFY(!info.description.isEmpty());
    QVERIFY(info.loaded && info.loadable && info.error.isEmpty());
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(registry.protocols().size(), 1);
    QCOMPARE(find(QStringLiteral("Example")), static_cast<KirvProtocol *>(registry.protocols().first()));
    QVERIFY(!find(QStringLiteral("example")));

    QVERIFY(registry.load(exampleFile()));
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

    KirvPluginLoader registry;
    QVERIFY(registry.loadFolder(folder.path()));
    QStringList names;
    for (const KirvPluginInfo &info : registry.plugins())
        names.append(info.name);
    QCOMPARE(names, (QStringList { "a", "Tomorrow", "Slow", "Example" }));
    QCOMPARE(registry.protocols().size(), 2);
    QCOMPARE(registry.protocols().first()->getName(), QStringLiteral("Slow"));
}

void tst_Plugins::saysThatAFolderDoesNotExist()
{
    QTemporaryDir folder;
    KirvPluginLoader registry;
    QVERIFY(!registry.loadFolder(folder.filePath(QStringLiteral("nowhere"))));
    QVERIFY(registry.loadFolder(folder.path()));
    QVERIFY(registry.plugins().isEmpty());
}

void tst_Plugins::looksAtAFolderOnce()
{
    KirvPluginLoader registry;
    QVERIFY(registry.loadFolder(QStringLiteral(KIRV_EXAMPLE_PROTOCOLS)));
    QVERIFY(registry.unload(exampleFile()));
    QVERIFY(registry.loadFolder(QStringLiteral(KIRV_EXAMPLE_PROTOCOLS)));
    QCOMPARE(registry.plugins().size(), 1);
    QVERIFY(registry.protocols().isEmpty());
}

void tst_Plugins::theFirstOfTwoWithOneNameStays()
{
    KirvPluginLoader registry;
    QVERIFY(registry.loadFolder(QStringLiteral(KIRV_FIXTURE_PLUGINS "/same_name")));
    const QList<KirvPluginInfo> plugins = registry.plugins();
    QCOMPARE(plugins.size(), 2);
    QVERIFY(plugins.first().loaded);
    QVERIFY(!plugins.last().loaded);
    QCOMPARE(plugins.last().error, QStringLiteral("A protocol with the name \"Twin\" is loaded already."));
    QCOMPARE(registry.protocols().size(), 1);

    QVERIFY(registry.unload(plugins.first().fileName));
    QVERIFY(!find(QStringLiteral("Twin")));
    QVERIFY(registry.load(plugins.last().fileName));
    QVERIFY(registry.plugins().last().loaded);
    QVERIFY(registry.plugins().last().error.isEmpty());
}

void tst_Plugins::aFileThatWasMendedCanBeLoaded()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("protocol.so"));
    QVERIFY(QFile::copy(fixture(QStringLiteral("not_a_library")), file));
    KirvPluginLoader registry;
    QVERIFY(registry.loadFolder(folder.path()));
    QVERIFY(registry.protocols().isEmpty());
    QVERIFY(QFile::remove(file));
    QVERIFY(!registry.load(file));
    QVERIFY(QFile::copy(exampleFile(), file));
    QVERIFY(registry.load(file));
    QCOMPARE(registry.plugins().size(), 1);
}

void tst_Plugins::aSlowPluginIsLoaded()
{
    KirvPluginLoader registry;
    QVERIFY(registry.load(fixture(QStringLiteral("slow"))));
    QVERIFY(find(QStringLiteral("Slow")));
}

void tst_Plugins::hugeListsAreTakenAsTheyAre()
{
    KirvPluginLoader registry;
    QVERIFY(registry.load(fixture(QStringLiteral("huge_lists"))));
    KirvProtocol *protocol = find(QStringLiteral("Huge"));
    QVERIFY(protocol);
    QCOMPARE(protocol->getAllPresences().size(), 10000);
    QCOMPARE(protocol->getAccountSettings().size(), 10000);
    QCOMPARE(protocol->getPubdirAccountFields().size(), 10000);
    QCOMPARE(protocol->createPresenceWithId(QStringLiteral("9999"), QString()).getId(), QStringLiteral("9999"));
    QCOMPARE(int(registry.plugins().first().description.size()), 1 << 20);
}

void tst_Plugins::missingAnswersDoNoHarm()
{
    KirvPluginLoader registry;
    QVERIFY(registry.load(fixture(QStringLiteral("half_answers"))));
    std::unique_ptr<KirvConnection> connection(registry.protocols().first()->createConnection(nullptr));
    KirvConnection::Timing timing;
    timing.loginTimeout = timing.logoutTimeout = timing.requestTimeout = 20;
    connection->setTiming(timing);
    QSignalSpy answers(connection.get(), &KirvConnection::directoryAnswered);

    connection->goTo({ QStringLiteral("silent"), QString(), QString() });
    QTRY_COMPARE(connection->state(), KirvConnection::Waiting);
    QCOMPARE(connection->lastFailure().kind(), KirvFailure::TimedOut);
    connection->goTo({ QStringLiteral("available"), QString(), QString() });
    QVERIFY(connection->isLoggedIn());
    connection->fetchDirectory();
    QTRY_COMPARE(answers.size(), 1);
    connection->deleteDirectory();
    QTRY_COMPARE(answers.size(), 2);
    connection->publishDirectory({});
    connection->logOut();
    QTRY_COMPARE(connection->state(), KirvConnection::Offline);
    QCOMPARE(answers.size(), 3);
}

void tst_Plugins::unloadsAndLoadsAgain()
{
    KirvPluginLoader registry;
    QVERIFY(registry.load(exampleFile()));
    QSignalSpy unloaded(&registry, &KirvPluginLoader::protocolUnloaded);
    for (int i = 0; i < 3; ++i) {
        const QPointer<KirvProtocolBase> protocol = registry.protocols().first();
        QSignalSpy changed(&registry, &KirvPluginLoader::pluginsChanged);
        QVERIFY(registry.unload(exampleFile()));
        QVERIFY(!protocol);
        QVERIFY(!find(QStringLiteral("Example")));
        QVERIFY(registry.protocols().isEmpty());
        QCOMPARE(unloaded.takeFirst().first().toString(), QStringLiteral("Example"));
        const KirvPluginInfo info = registry.plugins().first();
        QVERIFY(!info.loaded && info.loadable && info.error.isEmpty());
        QCOMPARE(changed.size(), 1);
        QVERIFY(registry.load(exampleFile()));
        QVERIFY(find(QStringLiteral("Example")));
    }
}

void tst_Plugins::theProtocolIsCompleteUntilItHasBeenSaidGoodByeTo()
{
    KirvPluginLoader registry;
    QVERIFY(registry.load(exampleFile()));
    QStringList news;
    connect(&registry, &KirvPluginLoader::protocolAboutToBeUnloaded, this, [&](KirvProtocolBase *protocol) {
        QCOMPARE(find(QStringLiteral("Example")), static_cast<KirvProtocol *>(protocol));
        news.append(QStringLiteral("about to go: ") + protocol->getName());
    });
    connect(&registry, &KirvPluginLoader::protocolUnloaded, this, [&](const QString &name) {
        QVERIFY(!find(name));
        QVERIFY(!registry.plugins().first().loaded);
        news.append(QStringLiteral("gone: ") + name);
    });
    QVERIFY(registry.unload(exampleFile()));
    QCOMPARE(news, (QStringList { "about to go: Example", "gone: Example" }));
}

void tst_Plugins::unloadingTwiceAtOnceUnloadsOnce()
{
    KirvPluginLoader registry;
    QVERIFY(registry.load(exampleFile()));
    QSignalSpy unloaded(&registry, &KirvPluginLoader::protocolUnloaded);
    connect(&registry, &KirvPluginLoader::protocolAboutToBeUnloaded, this,
            [&] { QVERIFY(!registry.unload(exampleFile())); });
    QVERIFY(registry.unload(exampleFile()));
    QCOMPARE(unloaded.size(), 1);
}

void tst_Plugins::unloadingWhatIsNotLoadedDoesNothing()
{
    KirvPluginLoader registry;
    QVERIFY(registry.addProtocol(new KirvFixtureProtocol(QStringLiteral("Own"))));
    QSignalSpy changed(&registry, &KirvPluginLoader::pluginsChanged);
    QVERIFY(!registry.unload(exampleFile()));
    QVERIFY(!registry.unload(QString()));
    QVERIFY(find(QStringLiteral("Own")));
    QCOMPARE(changed.size(), 0);
}

void tst_Plugins::takesProtocolsOfTheProgram()
{
    KirvPluginLoader registry;
    QSignalSpy loaded(&registry, &KirvPluginLoader::protocolLoaded);
    auto *protocol = new KirvFixtureProtocol(QStringLiteral("Own"));
    QVERIFY(registry.addProtocol(protocol));
    QCOMPARE(find(QStringLiteral("Own")), static_cast<KirvProtocol *>(protocol));
    QCOMPARE(loaded.size(), 1);
    QVERIFY(registry.plugins().isEmpty());
}

void tst_Plugins::refusesUnusableProtocolsOfTheProgram()
{
    KirvPluginLoader registry;
    QVERIFY(registry.addProtocol(new KirvFixtureProtocol(QStringLiteral("Own"))));
    const QPointer<KirvProtocolBase> other = new KirvFixtureProtocol(QStringLiteral("Own"));
    const QPointer<KirvProtocolBase> nameless = new KirvFixtureProtocol(QString());
    QVERIFY(!registry.addProtocol(other));
    QVERIFY(!registry.addProtocol(nameless));
    QVERIFY(!registry.addProtocol(nullptr));
    QVERIFY(!other && !nameless);
    QCOMPARE(registry.protocols().size(), 1);
}

void tst_Plugins::unloadsEverythingAtTheEnd()
{
    QStringList gone;
    auto registry = std::make_unique<KirvPluginLoader>();
    QVERIFY(registry->load(exampleFile()));
    QVERIFY(registry->addProtocol(new KirvFixtureProtocol(QStringLiteral("Own"))));
    const QList<KirvProtocolBase *> protocols = registry->protocols();
    const QList<QPointer<KirvProtocolBase>> guarded(protocols.begin(), protocols.end());
    connect(registry.get(), &KirvPluginLoader::protocolAboutToBeUnloaded, this,
            [&](KirvProtocolBase *protocol) { gone.append(protocol->getName()); });
    registry.reset();
    QCOMPARE(gone, (QStringList { "Example", "Own" }));
    QVERIFY(!guarded.first() && !guarded.last());
}

void tst_Plugins::isNotThereAfterTheEnd()
{
    {
        KirvPluginLoader registry;
        QCOMPARE(KirvPluginManagerPrivate::instance, static_cast<KirvPluginManagerPrivate *>(&registry));
    }
    QVERIFY(!KirvPluginManagerPrivate::instance);
    QVERIFY(!find(QStringLiteral("Example")));
}

void tst_Plugins::broadcastsCoreSignals()
{
    KirvPluginLoader registry;
    QStringList heard;
    QVERIFY(registry.addProtocol(new ListeningProtocol(QStringLiteral("A"), heard)));
    QVERIFY(registry.addProtocol(new KirvFixtureProtocol(QStringLiteral("Deaf"))));
    QVERIFY(registry.addProtocol(new ListeningProtocol(QStringLiteral("B"), heard)));
    KirvPluginManagerPrivate::instance->emitCoreSignal(QStringLiteral("register_account"), {});
    KirvPluginManagerPrivate::instance->emitCoreSignal(QStringLiteral("other"), { KirvArg(1) });
    QCOMPARE(heard, (QStringList { "A register_account 0", "B register_account 0", "A other 1", "B other 1" }));
}

void tst_Plugins::aFilterKeepsCoreSignalsFromTheProtocols()
{
    KirvPluginLoader registry;
    QStringList heard;
    QVERIFY(registry.addProtocol(new ListeningProtocol(QStringLiteral("A"), heard)));
    registry.setCoreSignalFilter(
        [](const QString &name, const QList<KirvArg> &) { return name != QLatin1String("register_account"); });
    registry.emitCoreSignal(QStringLiteral("register_account"), {});
    registry.emitCoreSignal(QStringLiteral("other"), {});
    QCOMPARE(heard, QStringList { "A other 0" });
    registry.setCoreSignalFilter(nullptr);
    registry.emitCoreSignal(QStringLiteral("register_account"), {});
    QCOMPARE(heard.size(), 2);
}

void tst_Plugins::aReceiverMayUnloadAnother()
{
    KirvPluginLoader registry;
    QStringList heard;
    auto *first = new ListeningProtocol(QStringLiteral("First"), heard);
    first->reaction = [&] { QVERIFY(registry.unload(exampleFile())); };
    QVERIFY(registry.addProtocol(first));
    QVERIFY(registry.load(exampleFile()));
    QVERIFY(registry.addProtocol(new ListeningProtocol(QStringLiteral("Last"), heard)));
    registry.emitCoreSignal(QStringLiteral("go"), {});
    QCOMPARE(heard, (QStringList { "First go 0", "Last go 0" }));
    QVERIFY(!find(QStringLiteral("Example")));
}

void tst_Plugins::directoryOperationsReachTheConnection()
{
    KirvFixtureProtocol protocol(QStringLiteral("Own"));
    KirvProtocol &contract = protocol;
    contract.fetchPubdirInfo(nullptr);
    contract.publishPubdirInfo(nullptr, {});
    contract.deletePubdirInfo(nullptr);

    std::unique_ptr<KirvConnection> connection(protocol.createConnection(nullptr));
    protocol.setConnectionOf(nullptr, connection.get());
    QCOMPARE(protocol.connectionOf(nullptr), connection.get());
    QSignalSpy answers(connection.get(), &KirvConnection::directoryAnswered);
    contract.fetchPubdirInfo(nullptr);
    QCOMPARE(answers.size(), 0);
    QTRY_COMPARE(answers.size(), 1);

    connection->goTo({ QStringLiteral("available"), QString(), QString() });
    contract.fetchPubdirInfo(nullptr);
    contract.publishPubdirInfo(nullptr, {});
    contract.deletePubdirInfo(nullptr);
    QTRY_COMPARE(answers.size(), 4);

    connection.reset();
    QVERIFY(!protocol.connectionOf(nullptr));
    contract.fetchPubdirInfo(nullptr);
}

void tst_Plugins::findsPresencesById()
{
    KirvPluginLoader registry;
    QVERIFY(registry.load(exampleFile()));
    KirvProtocol *protocol = find(QStringLiteral("Example"));
    const KirvPresence away = protocol->createPresenceWithId(QStringLiteral("away"), QStringLiteral("at lunch"));
    QCOMPARE(away.getId(), QStringLiteral("away"));
    QCOMPARE(away.getDisplay(), QStringLiteral("Away"));
    QCOMPARE(away.getIcon(), QStringLiteral("away.svg"));
    QCOMPARE(away.getDescription(), QStringLiteral("at lunch"));
    const KirvPresence unknown = protocol->createPresenceWithId(QStringLiteral("asleep"), QStringLiteral("zzz"));
    QCOMPARE(unknown.getId(), QStringLiteral("available"));
    QCOMPARE(unknown.getDescription(), QStringLiteral("zzz"));
}

QTEST_GUILESS_MAIN(tst_Plugins)
#include "tst_plugins.moc"

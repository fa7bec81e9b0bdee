// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_patience.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// The core of a client with the example as its only protocol and one account of it.
class Core {
public:
    Core()
        : isReady(store.open(folder.filePath(QStringLiteral("profile"))))
        , settings(store)
        , accounts(store)
        , services(accounts, plugins, settings)
    {
        QObject::connect(&plugins, &KirvPluginLoader::protocolLoaded, &accounts,
                         [this](KirvProtocolBase *protocol) { accounts.protocolLoaded(protocol); });
        QObject::connect(
            &plugins, &KirvPluginLoader::protocolAboutToBeUnloaded, &accounts,
            [this](KirvProtocolBase *protocol) { accounts.protocolAboutToBeUnloaded(protocol->getName()); });
        isReady = isReady && plugins.load(file);
    }

    KirvProtocol *protocol() { return KirvPluginManager::getInstance()->getProtocolByName(QStringLiteral("Example")); }

    /// A new account, which logs in at once.
    KirvAccount *createAccount(const QString &password, int latency = 1)
    {
        const KirvField setting = KirvField::number(QString(), QStringLiteral("latency"), latency, 0, 60000, QString());
        return static_cast<KirvAccount *>(
            KirvAccountManager::getInstance()->createAccount(QStringLiteral("ann"), QStringLiteral("Ann"), password,
                                                             true, protocol(), presence("available"), { setting }));
    }

    KirvPresence presence(const char *id, const QString &description = QString())
    {
        return protocol()->createPresenceWithId(QLatin1String(id), description);
    }

    const QString file = QStringLiteral(KIRV_EXAMPLE_PROTOCOLS "/kirv_protocol_example.so");
    QTemporaryDir folder;
    KirvStore store;
    bool isReady;
    KirvPluginLoader plugins;
    KirvClientSettings settings;
    KirvAccountCollection accounts;
    KirvHostServices services;
};

QString readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_ExampleProtocol : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void describesItself();
    void fillsAFormWithAConfiguration();
    void logsInAndOut();
    void aWrongPasswordIsNotTriedAgain();
    void needsAPassword();
    void aServerThatIsTooSlowIsGivenUp();
    void aChangedPresenceIsSent();
    void aChangedPasswordLogsInAgain();
    void theSamePasswordKeepsTheSession();
    void aDisabledAccountStaysOffline();
    void aChangedSettingLogsInAgain();
    void keepsADirectoryEntry();
    void aRequestOfAnAccountThatIsNotConnectedFails();
    void aRequestFailsWhenTheProtocolIsUnloaded();
    void theGuideShowsThisExample();

private:
    std::unique_ptr<Core> core;
};

void tst_ExampleProtocol::initTestCase()
{
    qRegisterMetaType<KirvAccount *>();
    qRegisterMetaType<KirvConnection::State>();
}

void tst_ExampleProtocol::init()
{
    core = std::make_unique<Core>();
    QVERIFY2(core->isReady, qPrintable(core->store.lastError()));
}

void tst_ExampleProtocol::cleanup()
{
    core.reset();
}

void tst_ExampleProtocol::describesItself()
{
    KirvProtocol *protocol = core->protocol();
    QCOMPARE(protocol->getName(), QStringLiteral("Example"));
    QVERIFY(QFile::exists(protocol->getIconPath(0)));
    const QRegularExpression login(QRegularExpression::anchoredPattern(protocol->getLoginPattern()));
    QVERIFY(login.match(QStringLiteral("ann1")).hasMatch());
    QVERIFY(!login.match(QStringLiteral("Ann")).hasMatch());
    QCOMPARE(protocol->getAllPresences().size(), 3);
    QCOMPARE(protocol->getPubdirAccountFields().size(), 2);
}

void tst_ExampleProtocol::fillsAFormWithAConfiguration()
{
    KirvProtocol *protocol = core->protocol();
    QCOMPARE(protocol->getConfigurations().size(), 2);
    for (const QString &name : protocol->getConfigurations()) {
        const QList<KirvField> fields = protocol->getConfigurationFields(name);
        QCOMPARE(fields.size(), protocol->getAccountSettings().size());
        QCOMPARE(fields.first().getId(), protocol->getAccountSettings().first().getId());
    }
    QVERIFY(protocol->getConfigurationFields(QStringLiteral("nonsense")).isEmpty());
}

void tst_ExampleProtocol::logsInAndOut()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QVERIFY(account);
    QVERIFY(!account->isLoggedIn());
    KIRV_TRY(account->isLoggedIn());
    account->setPresence(core->presence("offline"));
    KIRV_TRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
    account->setPresence(core->presence("away"));
    KIRV_TRY(account->isLoggedIn());
    QCOMPARE(account->connection()->presence().getId(), QStringLiteral("away"));
    account->setPresence(core->presence("offline"));
    KIRV_TRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
}

void tst_ExampleProtocol::aWrongPasswordIsNotTriedAgain()
{
    KirvAccount *account = core->createAccount(QStringLiteral("wrong"));
    KIRV_TRY_COMPARE(account->connection()->lastFailure().kind(), KirvFailure::WrongPassword);
    QCOMPARE(account->connection()->state(), KirvConnection::Offline);
}

void tst_ExampleProtocol::needsAPassword()
{
    QSignalSpy questions(&core->accounts, &KirvAccountCollection::passwordNeeded);
    KirvAccount *account = core->createAccount(QString());
    KIRV_TRY_COMPARE(questions.size(), 1);
    QCOMPARE(account->connection()->lastFailure().kind(), KirvFailure::PasswordMissing);
}

void tst_ExampleProtocol::aServerThatIsTooSlowIsGivenUp()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"), 60000);
    KirvConnection::Timing timing;
    timing.loginTimeout = 20;
    account->connection()->setTiming(timing);
    KIRV_TRY_COMPARE(account->connection()->state(), KirvConnection::Waiting);
    QCOMPARE(account->connection()->lastFailure().kind(), KirvFailure::TimedOut);
}

void tst_ExampleProtocol::aChangedPresenceIsSent()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    KIRV_TRY(account->isLoggedIn());
    QSignalSpy notices(account->connection(), &KirvConnection::noticeReceived);
    account->setPresence(core->presence("away", QStringLiteral("at lunch")));
    core->protocol()->accountPresenceChanged(account);
    KIRV_TRY_COMPARE(notices.size(), 1);
    QCOMPARE(account->connection()->presence().getId(), QStringLiteral("away"));
    QCOMPARE(notices.first().first().toString(), QStringLiteral("The server echoes: at lunch"));

    account->setPresence(core->presence("offline"));
    core->protocol()->accountPresenceChanged(account);
    KIRV_TRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
}

void tst_ExampleProtocol::aChangedPasswordLogsInAgain()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    KIRV_TRY(account->isLoggedIn());
    account->setPassword(QStringLiteral("wrong"));
    core->protocol()->accountPresenceChanged(account);
    KIRV_TRY_COMPARE(account->connection()->lastFailure().kind(), KirvFailure::WrongPassword);

    account->setPassword(QStringLiteral("secret"));
    core->protocol()->accountPresenceChanged(account);
    KIRV_TRY(account->isLoggedIn());
}

void tst_ExampleProtocol::theSamePasswordKeepsTheSession()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    KIRV_TRY(account->isLoggedIn());
    QSignalSpy states(account->connection(), &KirvConnection::stateChanged);
    account->setPassword(QStringLiteral("secret"));
    core->protocol()->accountPresenceChanged(account);
    QCoreApplication::processEvents();
    QCOMPARE(states.size(), 0);
    QVERIFY(account->isLoggedIn());
}

void tst_ExampleProtocol::aDisabledAccountStaysOffline()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    KIRV_TRY(account->isLoggedIn());
    KirvAccountManager::getInstance()->disableAccount(account->getUid(), account->getProtocolName());
    KIRV_TRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
    account->setPresence(core->presence("available"));
    core->protocol()->accountPresenceChanged(account);
    QCoreApplication::processEvents();
    QCOMPARE(account->connection()->state(), KirvConnection::Offline);
}

void tst_ExampleProtocol::aChangedSettingLogsInAgain()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    KIRV_TRY(account->isLoggedIn());
    QSignalSpy states(account->connection(), &KirvConnection::stateChanged);
    account->setAccountSettings({ KirvField::number(QString(), QStringLiteral("latency"), 2, 0, 60000, QString()) });
    KIRV_TRY_COMPARE(states.size(), 4);
    KIRV_TRY(account->isLoggedIn());
}

void tst_ExampleProtocol::keepsADirectoryEntry()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    KIRV_TRY(account->isLoggedIn());
    QList<KirvDirectoryAnswer> answers;
    connect(account->connection(), &KirvConnection::directoryAnswered, this,
            [&](const KirvDirectoryAnswer &answer) { answers << answer; });
    const auto field = [](const char *id, const char *text) {
        return KirvField::textEdit(QString(), QLatin1String(id), QLatin1String(text), QString());
    };

    core->protocol()->fetchPubdirInfo(account);
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.takeFirst().outcome, KirvDirectoryAnswer::None);
    core->protocol()->publishPubdirInfo(account, { field("name", "Ann"), field("town", "Verona") });
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.takeFirst().fields.size(), 2);
    // A change of one field leaves the other one as it is.
    account->connection()->publishDirectory({ field("town", "Padua") });
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.takeFirst().fields, (QList<KirvField> { field("name", "Ann"), field("town", "Padua") }));
    core->protocol()->deletePubdirInfo(account);
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.takeFirst().outcome, KirvDirectoryAnswer::None);
    core->protocol()->fetchPubdirInfo(account);
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.takeFirst().outcome, KirvDirectoryAnswer::None);
}

void tst_ExampleProtocol::aRequestOfAnAccountThatIsNotConnectedFails()
{
    KirvAccount *account = core->createAccount(QStringLiteral("wrong"));
    KIRV_TRY_COMPARE(account->connection()->lastFailure().kind(), KirvFailure::WrongPassword);
    QList<KirvDirectoryAnswer> answers;
    connect(&account->directory(), &KirvAccountDirectory::answered, this,
            [&](KirvAccountDirectory::Operation, const KirvDirectoryAnswer &answer) { answers << answer; });
    core->protocol()->fetchPubdirInfo(account);
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.first().outcome, KirvDirectoryAnswer::Failed);
}

void tst_ExampleProtocol::aRequestFailsWhenTheProtocolIsUnloaded()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    KIRV_TRY(account->isLoggedIn());
    QList<KirvDirectoryAnswer> answers;
    connect(&account->directory(), &KirvAccountDirectory::answered, this,
            [&](KirvAccountDirectory::Operation, const KirvDirectoryAnswer &answer) { answers << answer; });
    core->protocol()->fetchPubdirInfo(account);
    QVERIFY(core->plugins.unload(core->file));
    QCOMPARE(answers.size(), 1);
    QCOMPARE(answers.first().outcome, KirvDirectoryAnswer::Failed);
    QVERIFY(!account->connection());

    QVERIFY(core->plugins.load(core->file));
    KIRV_TRY(account->isLoggedIn());
}

/// The code in the guide is the code that is built.
void tst_ExampleProtocol::theGuideShowsThisExample()
{
    const QString guide = readFile(QStringLiteral(KIRV_SOURCE_FOLDER "/docs/writing-a-protocol.md"));
    const QDir folder(QStringLiteral(KIRV_SOURCE_FOLDER "/protocols/example"));
    QString sources;
    for (const QString &name : folder.entryList(QDir::Files))
        sources += readFile(folder.filePath(name));
    // How it is built against the installed package, as a test builds it.
    sources += readFile(QStringLiteral(KIRV_SOURCE_FOLDER "/tests/consumer/protocol/CMakeLists.txt"));

    static const QRegularExpression block(QStringLiteral("```[a-z]+\\n(.*?)```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    int blocks = 0;
    for (auto matches = block.globalMatch(guide); matches.hasNext(); ++blocks) {
        const QString code = matches.next().captured(1);
        QVERIFY2(sources.contains(code), qPrintable(code));
    }
    QVERIFY(blocks >= 8);
}

QTEST_GUILESS_MAIN(tst_ExampleProtocol)
#include "tst_example_protocol.moc"

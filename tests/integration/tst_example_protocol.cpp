// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_store.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(KirvField)

namespace {

/// The core of a client with the example as its only protocol and one account of it.
class Core {
public:
    Core()
        : isReady(store.open(folder.filePath(QStringLiteral("profile"))))
        , accounts(store)
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
    KirvAccountCollection accounts;
};

QString readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const QList<KirvField> entry { KirvField::textEdit(QString(), QStringLiteral("name"), QStringLiteral("Ann"),
                                                   QString()) };

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
    void asksForAMissingPassword();
    void aServerThatIsTooSlowIsGivenUp();
    void aChangedPresenceIsSent();
    void aChangedPasswordLogsInAgain();
    void theSamePasswordKeepsTheSession();
    void aDisabledAccountStaysOffline();
    void anAccountWithoutConnectionIsLeftAlone();
    void keepsADirectoryEntry();
    void answersForAnAccountThatIsNotConnected();
    void answersWhenTheProtocolGoes();
    void theGuideShowsThisExample();

private:
    std::unique_ptr<Core> core;
};

void tst_ExampleProtocol::initTestCase()
{
    qRegisterMetaType<QList<KirvField>>("QList<KirvField>");
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
    QTRY_VERIFY(account->isLoggedIn());
    account->connection()->logOut();
    QTRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
    account->connection()->goTo(core->presence("away"));
    QTRY_VERIFY(account->isLoggedIn());
}

void tst_ExampleProtocol::aWrongPasswordIsNotTriedAgain()
{
    KirvAccount *account = core->createAccount(QStringLiteral("wrong"));
    QTRY_COMPARE(account->connection()->lastFailure().kind(), KirvFailure::WrongPassword);
    QCOMPARE(account->connection()->state(), KirvConnection::Offline);
}

void tst_ExampleProtocol::asksForAMissingPassword()
{
    QSignalSpy questions(&core->accounts, &KirvAccountCollection::passwordNeeded);
    KirvAccount *account = core->createAccount(QString());
    QCOMPARE(questions.size(), 1);
    QCOMPARE(account->connection()->lastFailure().kind(), KirvFailure::PasswordMissing);
}

void tst_ExampleProtocol::aServerThatIsTooSlowIsGivenUp()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"), 60000);
    account->connection()->drop();
    KirvConnection::Timing timing;
    timing.loginTimeout = 20;
    account->connection()->setTiming(timing);
    account->connection()->goTo(core->presence("available"));
    QTRY_COMPARE(account->connection()->state(), KirvConnection::Waiting);
    QCOMPARE(account->connection()->lastFailure().kind(), KirvFailure::TimedOut);
}

void tst_ExampleProtocol::aChangedPresenceIsSent()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QTRY_VERIFY(account->isLoggedIn());
    QSignalSpy notices(account->connection(), &KirvConnection::noticeReceived);
    account->setPresence(core->presence("away", QStringLiteral("at lunch")));
    core->protocol()->accountPresenceChanged(account);
    QCOMPARE(account->connection()->wantedPresence().getId(), QStringLiteral("away"));
    QTRY_COMPARE(notices.size(), 1);
    QCOMPARE(notices.first().first().toString(), QStringLiteral("The server echoes: at lunch"));

    account->setPresence(core->presence("offline"));
    core->protocol()->accountPresenceChanged(account);
    QTRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
}

void tst_ExampleProtocol::aChangedPasswordLogsInAgain()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QTRY_VERIFY(account->isLoggedIn());
    account->setPassword(QStringLiteral("wrong"));
    QVERIFY(account->connection()->isPasswordOutdated());
    core->protocol()->accountPresenceChanged(account);
    QTRY_COMPARE(account->connection()->lastFailure().kind(), KirvFailure::WrongPassword);

    account->setPassword(QStringLiteral("secret"));
    core->protocol()->accountPresenceChanged(account);
    QTRY_VERIFY(account->isLoggedIn());
}

void tst_ExampleProtocol::theSamePasswordKeepsTheSession()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QTRY_VERIFY(account->isLoggedIn());
    QSignalSpy states(account->connection(), &KirvConnection::stateChanged);
    account->setPassword(QStringLiteral("secret"));
    core->protocol()->accountPresenceChanged(account);
    QCOMPARE(states.size(), 0);
    QVERIFY(account->isLoggedIn());
}

void tst_ExampleProtocol::aDisabledAccountStaysOffline()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QTRY_VERIFY(account->isLoggedIn());
    KirvAccountManager::getInstance()->disableAccount(account->getUid(), account->getProtocolName());
    QTRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
    account->setPresence(core->presence("available"));
    core->protocol()->accountPresenceChanged(account);
    QCOMPARE(account->connection()->state(), KirvConnection::Offline);
}

void tst_ExampleProtocol::anAccountWithoutConnectionIsLeftAlone()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QTRY_VERIFY(account->isLoggedIn());
    auto *base = static_cast<KirvProtocolBase *>(core->protocol());
    KirvConnection *connection = base->connectionOf(account);
    QCOMPARE(connection, account->connection());
    base->setConnectionOf(account, nullptr);
    QSignalSpy states(connection, &KirvConnection::stateChanged);
    account->setPresence(core->presence("offline"));
    core->protocol()->accountPresenceChanged(account);
    core->protocol()->fetchPubdirInfo(account);
    QCOMPARE(states.size(), 0);
}

void tst_ExampleProtocol::keepsADirectoryEntry()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QTRY_VERIFY(account->isLoggedIn());
    QSignalSpy answers(account->connection(), &KirvConnection::directoryAnswered);
    const auto takeAnswer = [&] { return answers.takeFirst().first().value<QList<KirvField>>(); };

    core->protocol()->fetchPubdirInfo(account);
    QTRY_COMPARE(answers.size(), 1);
    QVERIFY(takeAnswer().isEmpty());
    core->protocol()->publishPubdirInfo(account, entry);
    QTRY_COMPARE(answers.size(), 1);
    QCOMPARE(takeAnswer(), entry);
    core->protocol()->fetchPubdirInfo(account);
    QTRY_COMPARE(answers.size(), 1);
    QCOMPARE(takeAnswer(), entry);
    core->protocol()->deletePubdirInfo(account);
    QTRY_COMPARE(answers.size(), 1);
    QVERIFY(takeAnswer().isEmpty());
    core->protocol()->fetchPubdirInfo(account);
    QTRY_COMPARE(answers.size(), 1);
    QVERIFY(takeAnswer().isEmpty());
}

void tst_ExampleProtocol::answersForAnAccountThatIsNotConnected()
{
    KirvAccount *account = core->createAccount(QStringLiteral("wrong"));
    QTRY_COMPARE(account->connection()->state(), KirvConnection::Offline);
    QSignalSpy answers(account->connection(), &KirvConnection::directoryAnswered);
    core->protocol()->publishPubdirInfo(account, entry);
    QTRY_COMPARE(answers.size(), 1);
    QVERIFY(answers.first().first().value<QList<KirvField>>().isEmpty());
}

void tst_ExampleProtocol::answersWhenTheProtocolGoes()
{
    KirvAccount *account = core->createAccount(QStringLiteral("secret"));
    QTRY_VERIFY(account->isLoggedIn());
    QSignalSpy answers(&core->accounts, &KirvAccountCollection::directoryAnswered);
    core->protocol()->fetchPubdirInfo(account);
    QVERIFY(core->plugins.unload(core->file));
    QCOMPARE(answers.size(), 1);
    QVERIFY(!account->connection());

    QVERIFY(core->plugins.load(core->file));
    QTRY_VERIFY(account->isLoggedIn());
}

/// The code in the guide is the code that is built.
void tst_ExampleProtocol::theGuideShowsThisExample()
{
    const QString guide = readFile(QStringLiteral(KIRV_SOURCE_FOLDER "/docs/writing-a-protocol.md"));
    const QDir folder(QStringLiteral(KIRV_SOURCE_FOLDER "/protocols/example"));
    QString sources;
    for (const QString &name : folder.entryList(QDir::Files))
        sources += readFile(folder.filePath(name));

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

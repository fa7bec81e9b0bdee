// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_request.h"
#include "client/kirv_client.h"
#include "client/kirv_instance_commands.h"
#include "client/kirv_instance_message.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_running_instance.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "tests/support/kirv_program_run.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <dlfcn.h>
#include <memory>
#include <sys/socket.h>

namespace {
const QString protocol = QStringLiteral("XMPP");
const QString secret = QStringLiteral("hunter2-secret");

bool isOtherUser = false; ///< who connects
}

/// Stands in front of that of the C library, which says who is at the other end of a socket.
extern "C" int getsockopt(int descriptor, int level, int option, void *value, socklen_t *size) noexcept
{
    static const auto real = reinterpret_cast<decltype(&getsockopt)>(::dlsym(RTLD_NEXT, "getsockopt"));
    const int result = real(descriptor, level, option, value, size);
    if (result == 0 && isOtherUser && level == SOL_SOCKET && option == SO_PEERCRED)
        ++static_cast<ucred *>(value)->uid;
    return result;
}

/// "kirv accounts" while the program has the profile open, which does what is wanted and replies.
class tst_AccountsThroughProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void statesAreListed();
    void enabledAccountLogsInAndIsShown();
    void disabledAccountsAreOneStepToUndo();
    void unknownNamesAreSaid();
    void exportAndImportGoThroughTheProgram();
    void importIsUndone();
    void importWaitsForThePlugins();
    void wrongPassPhraseIsSaid();
    void filesAreThoseOfTheCaller();
    void largeFilesAreTransferred();

    void otherVersionIsAnsweredWithASentence();
    void hostileBytesDoNoHarm_data();
    void hostileBytesDoNoHarm();
    void endlessLineIsCutOff();
    void slowOnesHoldNobodyUp();
    void otherUsersAreNotHeard();

private:
    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }
    KirvAccount *account(const QString &id) const { return client->accounts().find({ id, protocol }); }
    QTreeWidgetItem *row(const QString &id) const;
    /// Without its plug-in when \a waits is false.
    void start(bool waits = true);
    void addAccount(const QString &id, bool isEnabled = true);
    KirvProgramRun run(const QStringList &arguments);
    std::unique_ptr<QLocalSocket> connectToProgram() const;
    QByteArray replyTo(const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvClient> client;
    std::unique_ptr<KirvRunningInstance> instance;
    std::unique_ptr<KirvInstanceCommands> commands;
    QByteArray printed;
};

void tst_AccountsThroughProgram::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    for (const char *name : { "run", "plugins", "profile", "elsewhere" })
        QVERIFY(QDir().mkdir(path(name)));
    QVERIFY(QFile::setPermissions(path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_NAMED_PROTOCOL), path("plugins/named.so")));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(path("run")));
    qputenv("KIRV_FIXTURE_PROTOCOL", "XMPP");
    printed.clear();
}

void tst_AccountsThroughProgram::cleanup()
{
    isOtherUser = false;
    commands.reset();
    instance.reset();
    client.reset();
    folder.reset();
    QVERIFY(!printed.contains(secret.toUtf8()));
}

void tst_AccountsThroughProgram::start(bool waits)
{
    KirvClientOptions options;
    options.profileFolder = path("profile");
    options.pluginFolder = path("plugins");
    client = std::make_unique<KirvClient>(options);
    QVERIFY2(client->start(), qPrintable(client->errorString()));
    instance = std::make_unique<KirvRunningInstance>(path("profile"));
    commands = std::make_unique<KirvInstanceCommands>(*client, *instance);
    client->window()->show();
    if (waits)
        QTRY_VERIFY_WITH_TIMEOUT(client->arePluginsLoaded(), kirvPatience);
}

void tst_AccountsThroughProgram::addAccount(const QString &id, bool isEnabled)
{
    KirvAccountRecord record;
    record.key = { id, protocol };
    record.enabled = isEnabled;
    record.password = secret;
    record.rememberPassword = true;
    QVERIFY(client->accounts().create(record, client->plugins().protocol(protocol)));
}

QTreeWidgetItem *tst_AccountsThroughProgram::row(const QString &id) const
{
    const auto *list = client->window()->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
    for (int index = 0; list && index < list->topLevelItemCount(); ++index) {
        for (int column = 0; column < list->columnCount(); ++column) {
            if (list->topLevelItem(index)->text(column) == id)
                return list->topLevelItem(index);
        }
    }
    return nullptr;
}

KirvProgramRun tst_AccountsThroughProgram::run(const QStringList &arguments)
{
    const QStringList all = QStringList { "--profile", path("profile"), "accounts" } + arguments;
    const KirvProgramRun result = kirvRunProgram(QStringLiteral(KIRV_PROGRAM), all, path("elsewhere"));
    printed += result.output + result.errors;
    return result;
}

std::unique_ptr<QLocalSocket> tst_AccountsThroughProgram::connectToProgram() const
{
    const QStringList sockets = QDir(path("run")).entryList(QDir::System | QDir::Files);
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(QDir(path("run")).filePath(sockets.value(0)));
    return socket;
}

/// What the program sends until it ends the connection.
QByteArray tst_AccountsThroughProgram::replyTo(const QByteArray &bytes) const
{
    const std::unique_ptr<QLocalSocket> socket = connectToProgram();
    socket->write(bytes);
    if (!QTest::qWaitFor([&] { return socket->state() == QLocalSocket::UnconnectedState; }, kirvPatience))
        return "still connected";
    return socket->readAll();
}

void tst_AccountsThroughProgram::statesAreListed()
{
    start();
    addAccount(QStringLiteral("ann"));
    addAccount(QStringLiteral("bob"), false);
    QTRY_VERIFY_WITH_TIMEOUT(account(QStringLiteral("ann"))->isOnline(), kirvPatience);
    const KirvProgramRun result = run({ "list" });
    QCOMPARE(result.status, 0);
    QCOMPARE(result.text(),
             QStringLiteral("Protocol  Id   Alias  Enabled  Main  State\n"
                            "XMPP      ann         yes      yes   Connected\n"
                            "XMPP      bob         no       no    Disabled\n"));
    const QJsonObject json = run({ "list", "--json", "ann" }).json();
    QCOMPARE(json.value(QStringLiteral("running")).toBool(), true);
    const QJsonArray accounts = json.value(QStringLiteral("accounts")).toArray();
    QCOMPARE(accounts.size(), 1);
    QCOMPARE(accounts.first().toObject().value(QStringLiteral("state")).toString(), QStringLiteral("connected"));
}

void tst_AccountsThroughProgram::enabledAccountLogsInAndIsShown()
{
    start();
    addAccount(QStringLiteral("bob"), false);
    KIRV_TRY(row(QStringLiteral("bob")));
    KIRV_TRY_COMPARE(row(QStringLiteral("bob"))->checkState(0), Qt::Unchecked);
    const KirvProgramRun result = run({ "enable", "bob" });
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QTRY_VERIFY_WITH_TIMEOUT(account(QStringLiteral("bob"))->isOnline(), kirvPatience);
    KIRV_TRY_COMPARE(row(QStringLiteral("bob"))->checkState(0), Qt::Checked);
}

void tst_AccountsThroughProgram::disabledAccountsAreOneStepToUndo()
{
    start();
    for (const char *id : { "ann", "bob", "carl" })
        addAccount(QLatin1String(id));
    QTRY_VERIFY_WITH_TIMEOUT(account(QStringLiteral("bob"))->isOnline(), kirvPatience);
    QCOMPARE(run({ "disable", "ann", "bob" }).status, 0);
    KIRV_TRY(!account(QStringLiteral("bob"))->isOnline());
    KIRV_TRY_COMPARE(row(QStringLiteral("bob"))->checkState(0), Qt::Unchecked);
    KirvAccountHistory &history = client->accountHistory();
    QCOMPARE(history.accountsOf(history.latest()).size(), 2);
    QVERIFY(!client->window()->messageBar()->messages().isEmpty());
    QCOMPARE(history.undo(history.latest()), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(account(QStringLiteral("bob"))->isOnline(), kirvPatience);
    QVERIFY(account(QStringLiteral("ann"))->record().enabled);
}

void tst_AccountsThroughProgram::unknownNamesAreSaid()
{
    start();
    const KirvProgramRun result = run({ "disable", "eve" });
    QCOMPARE(result.status, 3);
    QCOMPARE(result.errorText(), QStringLiteral("kirv: There is no account \"eve\".\n"));
}

void tst_AccountsThroughProgram::exportAndImportGoThroughTheProgram()
{
    start();
    addAccount(QStringLiteral("ann"));
    QFile phrase(path("phrase"));
    QVERIFY(phrase.open(QIODevice::WriteOnly) && phrase.write("correct horse\n") > 0);
    phrase.close();
    const QStringList source { "--pass-phrase-file", path("phrase") };
    KirvProgramRun result = run(QStringList { "export", "--with-passwords", "accounts.json" } + source);
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QVERIFY(client->accounts().remove(account(QStringLiteral("ann"))));
    result = run(QStringList { "import", "accounts.json" } + source);
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QVERIFY(account(QStringLiteral("ann")));
    QCOMPARE(account(QStringLiteral("ann"))->record().password, secret);
    QTRY_VERIFY_WITH_TIMEOUT(account(QStringLiteral("ann"))->isOnline(), kirvPatience);
    KIRV_TRY(row(QStringLiteral("ann")));
}

void tst_AccountsThroughProgram::importIsUndone()
{
    start();
    addAccount(QStringLiteral("ann"));
    addAccount(QStringLiteral("bob"));
    QCOMPARE(run({ "export", "accounts.json" }).status, 0);
    for (const char *id : { "ann", "bob" })
        QVERIFY(client->accounts().remove(account(QLatin1String(id))));
    QCOMPARE(run({ "import", "accounts.json" }).status, 0);
    QCOMPARE(client->accounts().accounts().size(), 2);
    client->accountHistory().undo(client->accountHistory().latest());
    QCOMPARE(client->accounts().accounts().size(), 0);
}

void tst_AccountsThroughProgram::importWaitsForThePlugins()
{
    start();
    addAccount(QStringLiteral("ann"));
    QCOMPARE(run({ "export", "accounts.json" }).status, 0);
    QVERIFY(client->accounts().remove(account(QStringLiteral("ann"))));
    commands.reset();
    instance.reset();
    client.reset();
    QVERIFY(QFile::remove(path("profile/plugins.json"))); // so that they are tested again, which takes a while
    QFile file(path("elsewhere/accounts.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    KirvAccountsRequest request;
    request.command = KirvAccountsRequest::Import;
    request.file = QString::fromLatin1(file.readAll().toBase64());
    start(false);
    QVERIFY(!client->arePluginsLoaded());
    const QByteArray reply = replyTo(KirvInstanceMessage::toLine(request.toJson()));
    QVERIFY2(reply.contains("\"imported\":1"), reply.constData());
    QVERIFY(account(QStringLiteral("ann")));
}

void tst_AccountsThroughProgram::wrongPassPhraseIsSaid()
{
    start();
    addAccount(QStringLiteral("ann"));
    for (const char *text : { "right", "wrong" }) {
        QFile file(folder->filePath(QLatin1String(text)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(text).repeated(3)) > 0);
    }
    QCOMPARE(run({ "export", "a.json", "--with-passwords", "--pass-phrase-file", path("right") }).status, 0);
    const KirvProgramRun result = run({ "import", "a.json", "--replace", "--pass-phrase-file", path("wrong") });
    QCOMPARE(result.status, 5);
    QVERIFY(!result.errors.isEmpty());
}

/// The program runs in another folder.
void tst_AccountsThroughProgram::filesAreThoseOfTheCaller()
{
    start();
    addAccount(QStringLiteral("ann"));
    QCOMPARE(run({ "export", "accounts.json" }).status, 0);
    QVERIFY(QFileInfo::exists(path("elsewhere/accounts.json")));
    QCOMPARE(run({ "export", "accounts.json" }).status, 1);
    QCOMPARE(run({ "import", "../accounts.json" }).status, 1);
}

void tst_AccountsThroughProgram::largeFilesAreTransferred()
{
    start();
    QFile file(path("large"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(
        file.write("{\"format\": \"kirv-accounts\", \"version\": 1, \"accounts\": [" + QByteArray(20000000, ' ') + "]}")
        > 0);
    file.close();
    const KirvProgramRun result = run({ "import", path("large"), "--json" });
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QCOMPARE(result.json().value(QStringLiteral("imported")).toInt(-1), 0);
}

void tst_AccountsThroughProgram::otherVersionIsAnsweredWithASentence()
{
    start();
    addAccount(QStringLiteral("ann"));
    QJsonObject message = KirvAccountsRequest().toJson();
    message.insert(QStringLiteral("version"), KirvInstanceMessage::version + 1);
    const QByteArray reply = replyTo(QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n');
    const QJsonObject object = QJsonDocument::fromJson(reply).object();
    QVERIFY2(object.value(QStringLiteral("problem")).toString().contains(QLatin1String("another version")),
             reply.constData());
    QVERIFY(!reply.contains("ann"));
    // And the other way round.
    QString problem;
    QVERIFY(KirvInstanceMessage::fromLine("{\"version\": 99}\n", &problem).isEmpty());
    QVERIFY(problem.contains(QLatin1String("another version")));
}

void tst_AccountsThroughProgram::hostileBytesDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto line = [](QJsonObject object) { return KirvInstanceMessage::toLine(object); };
    QJsonObject whole = KirvAccountsRequest().toJson();
    QTest::newRow("nothing") << QByteArray("\n");
    QTest::newRow("zeros") << QByteArray(1000, '\0') + '\n';
    QTest::newRow("no JSON") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("deep") << QByteArray(60000, '[') + '\n';
    QTest::newRow("deep and large") << QByteArray(1000000, '{') + '\n';
    QTest::newRow("not UTF-8") << QByteArray("{\"version\":1,\"command\":\"\xff\xfe\"}\n");
    QTest::newRow("no command") << line({});
    QTest::newRow("unknown command") << line({ { "command", "quit" } });
    QTest::newRow("command of another kind") << line({ { "command", 7 } });
    QTest::newRow("half a command") << line({ { "command", "accounts" }, { "do", "import" } });
    for (const char *key : { "names", "passPhrase", "file", "withPasswords" }) {
        QJsonObject wrong = whole;
        wrong.insert(QLatin1String(key), 7);
        QTest::newRow(key) << line(wrong);
    }
    whole.insert(QStringLiteral("names"), QJsonArray { 1, 2 });
    QTest::newRow("names that are numbers") << line(whole);
    QTest::newRow("enable nobody") << line({ { "command", "accounts" },
                                             { "do", "enable" },
                                             { "names", QJsonArray() },
                                             { "passPhrase", "" },
                                             { "file", "" },
                                             { "withPasswords", false },
                                             { "replaces", false },
                                             { "isTrial", false } });
}

void tst_AccountsThroughProgram::hostileBytesDoNoHarm()
{
    QFETCH(QByteArray, bytes);
    start();
    addAccount(QStringLiteral("ann"), false);
    const QByteArray reply = replyTo(bytes);
    QVERIFY2(QJsonDocument::fromJson(reply).object().value(QStringLiteral("problem")).toString().size() > 10,
             reply.left(200).constData());
    QVERIFY(!account(QStringLiteral("ann"))->record().enabled);
    QCOMPARE(run({ "list" }).status, 0);
}

void tst_AccountsThroughProgram::endlessLineIsCutOff()
{
    start();
    const std::unique_ptr<QLocalSocket> socket = connectToProgram();
    const QByteArray part(1024 * 1024, ' ');
    qint64 sent = 0;
    while (socket->state() != QLocalSocket::UnconnectedState && sent < 2 * qint64(KirvInstanceMessage::longest)) {
        if (socket->bytesToWrite() < part.size())
            sent += socket->write(part);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    QVERIFY(sent <= KirvInstanceMessage::longest + 8 * part.size());
    QCOMPARE(run({ "list" }).status, 0);
}

/// One sends half a large message, another waits behind it with a large one, a third says nothing.
void tst_AccountsThroughProgram::slowOnesHoldNobodyUp()
{
    start();
    addAccount(QStringLiteral("ann"), false);
    const std::unique_ptr<QLocalSocket> slow = connectToProgram(), waiting = connectToProgram(),
                                        silent = connectToProgram();
    for (QLocalSocket *socket : { slow.get(), waiting.get() })
        socket->write(QByteArray(2 * KirvInstanceMessage::longestSmall, ' '));
    QCoreApplication::processEvents();
    QTimer drops;
    connect(&drops, &QTimer::timeout, slow.get(), [&slow] { slow->write(" "); });
    drops.start(100);
    const KirvProgramRun result = run({ "enable", "ann" });
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QCOMPARE(slow->state(), QLocalSocket::ConnectedState);
    drops.stop();
    QVERIFY(account(QStringLiteral("ann"))->record().enabled);
    // Both are cut off after a while, the second one when its turn has come and passed.
    for (QLocalSocket *socket : { slow.get(), silent.get(), waiting.get() })
        QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QLocalSocket::UnconnectedState, 2 * kirvPatience);
}

void tst_AccountsThroughProgram::otherUsersAreNotHeard()
{
    start();
    addAccount(QStringLiteral("ann"), false);
    KirvAccountsRequest request;
    request.command = KirvAccountsRequest::Enable;
    request.names << QStringLiteral("ann");
    isOtherUser = true;
    QCOMPARE(replyTo(KirvInstanceMessage::toLine(request.toJson())), QByteArray());
    QVERIFY(!account(QStringLiteral("ann"))->record().enabled);
    isOtherUser = false;
    QVERIFY(!replyTo(KirvInstanceMessage::toLine(request.toJson())).isEmpty());
    QVERIFY(account(QStringLiteral("ann"))->record().enabled);
}

QTEST_MAIN(tst_AccountsThroughProgram)
#include "tst_accounts_through_program.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_pass_phrase.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_settings_table.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_moved_samples.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"
#include "tests/support/kirv_program_run.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>
#if QT_VERSION < 0x060000
#include <QTextCodec>
#endif

#include <memory>
#include <pty.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
const QString protocol = QStringLiteral("XMPP");
const QString secret = QStringLiteral("hunter2-secret");
const QString phrase = QStringLiteral("correct horse battery");

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}
}

/// "kirv accounts" while no program has the profile open, and without a display.
class tst_AccountsCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void accountsAreListedForPeople();
    void accountsAreListedAsJson();
    void hostileNamesReachNoTerminal();
    void columnsAreAsWideAsTheTextsLook();
    void listingMakesNoProfile();
    void enabledAndDisabledAccountsAreStored();
    void mainAccountIsPassedOn();
    void accountsAreNamed_data();
    void accountsAreNamed();
    void oneUnknownNameChangesNothing();
    void damagedProfileIsReported();
    void wrongCommandLinesAreRefused_data();
    void wrongCommandLinesAreRefused();
    void helpTellsTheCommands();

    void exportIsANewPrivateFile();
    void exportReplacesFilesOnlyWhenForced();
    void exportGoesToTheOutput();
    void chosenAccountsAreExported();
    void passwordsNeedAPassPhrase_data();
    void passwordsNeedAPassPhrase();
    void wrongPassPhraseImportsNothing();
    void passwordsAreLeftOutWhenWanted();
    void newPassPhrasesAreBounded_data();
    void newPassPhrasesAreBounded();
    void oldFileWithAShortPassPhraseIsRead();
    void passPhraseIsTypedWithoutAnEcho();
    void passPhraseIsTheSameInEveryLocale();
    void existingAccountsAreKeptOrReplaced();
    void lostPasswordsAreNamed();
    void trialChangesNothing_data();
    void trialChangesNothing();
    void accountsOfPidginAreImported();
    void accountsWithoutTheirPluginAreNotTakenOver();
    void nothingLogsIn();
    void uselessFilesAreRefused_data();
    void uselessFilesAreRefused();
    void refusedImportMakesNoProfile_data();
    void refusedImportMakesNoProfile();

private:
    QString profile(const char *name = "profile") const { return home->filePath(QLatin1String(name)); }
    QString path(const char *name) const { return home->filePath(QLatin1String(name)); }
    KirvProgramRun run(const QStringList &arguments, const char *profileName = "profile",
                       const QByteArray &input = QByteArray());
    void add(const QString &id, const QString &ofProtocol = protocol, const QString &alias = QString(),
             bool isEnabled = true);
    QList<KirvAccountRecord> stored(const char *profileName = "profile") const;
    KirvAccountRecord storedOne(const QString &id, const char *profileName = "profile") const;
    void exportAll(const QStringList &more = {});

    std::unique_ptr<QTemporaryDir> home;
    QByteArray printed; ///< by all runs of a test
};

void tst_AccountsCommand::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    QVERIFY(QDir(home->path()).mkdir(QStringLiteral("plugins")));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_NAMED_PROTOCOL), path("plugins/named.so")));
    qputenv("KIRV_FIXTURE_PROTOCOL", "XMPP");
    qunsetenv("XDG_RUNTIME_DIR");
    QVERIFY(write(path("phrase"), phrase.toUtf8() + "\nnot this\n"));
    printed.clear();
}

/// Whatever was done, nothing that was printed holds a secret.
void tst_AccountsCommand::cleanup()
{
    for (const QString &text : { secret, phrase }) {
        QVERIFY(!printed.contains(text.toUtf8()));
        QVERIFY(!printed.contains(text.toUtf8().toBase64()));
    }
}

KirvProgramRun tst_AccountsCommand::run(const QStringList &arguments, const char *profileName, const QByteArray &input)
{
    const QStringList all =
        QStringList { "--profile", profile(profileName), "--plugins", path("plugins"), "accounts" } + arguments;
    const KirvProgramRun result = kirvRunProgram(QStringLiteral(KIRV_PROGRAM), all, home->path(), input);
    printed += result.output + result.errors;
    return result;
}

void tst_AccountsCommand::add(const QString &id, const QString &ofProtocol, const QString &alias, bool isEnabled)
{
    KirvStore store;
    QVERIFY2(store.open(profile()), qPrintable(store.lastError()));
    KirvAccountRecord account;
    account.key = { id, ofProtocol };
    account.alias = alias;
    account.enabled = isEnabled;
    account.password = secret;
    account.rememberPassword = true;
    QVERIFY(store.insertAccount(account));
}

QList<KirvAccountRecord> tst_AccountsCommand::stored(const char *profileName) const
{
    KirvStore store;
    return store.open(profile(profileName)) ? store.readAccounts() : QList<KirvAccountRecord>();
}

KirvAccountRecord tst_AccountsCommand::storedOne(const QString &id, const char *profileName) const
{
    const QList<KirvAccountRecord> all = stored(profileName);
    for (const KirvAccountRecord &record : all) {
        if (record.key.id == id)
            return record;
    }
    return KirvAccountRecord();
}

/// Into the file "accounts.json".
void tst_AccountsCommand::exportAll(const QStringList &more)
{
    const KirvProgramRun result = run(QStringList { "export", "accounts.json" } + more);
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
}

void tst_AccountsCommand::accountsAreListedForPeople()
{
    add(QStringLiteral("ann@example.org"), protocol, QStringLiteral("Work"));
    add(QStringLiteral("bob"), QStringLiteral("IRC"), QString(), false);
    const KirvProgramRun result = run({ "list" });
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errorText(), QString());
    QCOMPARE(result.text(),
             QStringLiteral("Protocol  Id               Alias  Enabled  Main\n"
                            "XMPP      ann@example.org  Work   yes      yes\n"
                            "IRC       bob                     no       no\n"));
}

void tst_AccountsCommand::accountsAreListedAsJson()
{
    add(QStringLiteral("ann@example.org"), protocol, QStringLiteral("Work"));
    add(QStringLiteral("bob"), QStringLiteral("IRC"), QString(), false);
    const KirvProgramRun result = run({ "list", "--json" });
    QCOMPARE(result.status, 0);
    const QJsonObject ann { { "protocol", "XMPP" }, { "id", "ann@example.org" },
                            { "alias", "Work" },    { "enabled", true },
                            { "main", true },       { "state", QJsonValue() } };
    const QJsonObject bob { { "protocol", "IRC" }, { "id", "bob" },   { "alias", "" },
                            { "enabled", false },  { "main", false }, { "state", QJsonValue() } };
    const QJsonObject expected { { "version", 1 },
                                 { "command", "list" },
                                 { "status", 0 },
                                 { "running", false },
                                 { "accounts", QJsonArray { ann, bob } } };
    QCOMPARE(result.json(), expected);
}

void tst_AccountsCommand::hostileNamesReachNoTerminal()
{
    const QString hostile =
        QStringLiteral("\x1b]0;title\x07\x1b[2J\nroot\t") + QChar(0x9b) + QStringLiteral("31m") + QChar(0x202e) + "x";
    add(QStringLiteral("ann") + hostile, protocol, hostile);
    add(QStringLiteral("ann") + hostile, QStringLiteral("IRC"), hostile);
    const QStringList name { QStringLiteral("ann") + hostile };
    for (const QStringList &arguments :
         { QStringList { "list" }, QStringList { "list", "--json" }, QStringList { "enable" } + name,
           QStringList { "disable", "--json" } + name, QStringList { "enable", "XMPP:" + name.first() } }) {
        const KirvProgramRun result = run(arguments);
        for (const QChar character : result.text() + result.errorText()) {
            QVERIFY(character == QLatin1Char('\n') || character.category() != QChar::Other_Control);
            QVERIFY(character.unicode() != 0x202e);
        }
    }
    const QJsonArray accounts = run({ "list", "--json" }).json().value(QStringLiteral("accounts")).toArray();
    QCOMPARE(accounts.first().toObject().value(QStringLiteral("alias")).toString(), hostile);
}

void tst_AccountsCommand::columnsAreAsWideAsTheTextsLook()
{
    add(QStringLiteral("a"), protocol, QString::fromUtf8("\xe6\xbc\xa2\xe5\xad\x97")); // two characters, four columns
    add(QStringLiteral("b"), protocol, QStringLiteral("abcdef"));
    const QStringList lines = run({ "list" }).text().split(QLatin1Char('\n'));
    QCOMPARE(lines.at(1).indexOf(QLatin1String("yes")), 22 - 2);
    QCOMPARE(lines.at(2).indexOf(QLatin1String("yes")), 22);
}

void tst_AccountsCommand::listingMakesNoProfile()
{
    const KirvProgramRun result = run({ "list", "--json" });
    QCOMPARE(result.status, 0);
    QCOMPARE(result.json().value(QStringLiteral("accounts")), QJsonValue(QJsonArray()));
    QCOMPARE(run({ "export", "accounts.json" }).status, 1);
    QCOMPARE(run({ "enable", "ann" }).status, 3);
    QVERIFY(!QFileInfo::exists(profile()));
    QVERIFY(!QFileInfo::exists(path("accounts.json")));
}

void tst_AccountsCommand::enabledAndDisabledAccountsAreStored()
{
    add(QStringLiteral("ann"));
    add(QStringLiteral("bob"), protocol, QString(), false);
    const KirvProgramRun result = run({ "disable", "ann", "bob" });
    QCOMPARE(result.status, 0);
    QCOMPARE(result.text(), QStringLiteral("XMPP:ann is disabled now.\nXMPP:bob was disabled already.\n"));
    QVERIFY(!storedOne(QStringLiteral("ann")).enabled);
    const QJsonObject json = run({ "enable", "--json", "XMPP:ann" }).json();
    QCOMPARE(json.value(QStringLiteral("accounts")).toArray().first().toObject(),
             (QJsonObject { { "protocol", "XMPP" }, { "id", "ann" }, { "enabled", true }, { "changed", true } }));
    QVERIFY(storedOne(QStringLiteral("ann")).enabled);
    QVERIFY(!storedOne(QStringLiteral("bob")).enabled);
    QCOMPARE(storedOne(QStringLiteral("ann")).password, secret);
}

void tst_AccountsCommand::mainAccountIsPassedOn()
{
    add(QStringLiteral("ann"));
    add(QStringLiteral("bob"));
    QCOMPARE(run({ "disable", "ann" }).status, 0);
    KirvStore store;
    QVERIFY(store.open(profile()));
    QCOMPARE(KirvClientSettings(store).value(KirvSettingKey::mainAccount), QStringLiteral("bob@@XMPP"));
}

void tst_AccountsCommand::accountsAreNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");
    QTest::newRow("by protocol and id") << "XMPP:ann" << 0 << "XMPP:ann is disabled now.";
    QTest::newRow("by the id alone") << "bob" << 0 << "IRC:bob is disabled now.";
    QTest::newRow("protocol in lower case") << "irc:bob" << 0 << "IRC:bob is disabled now.";
    QTest::newRow("id with a colon") << "IRC:XMPP:ann" << 0 << "IRC:XMPP:ann is disabled now.";
    QTest::newRow("ambiguous") << "ann" << 3 << "XMPP:ann, IRC:ann";
    QTest::newRow("unknown") << "eve" << 3 << "There is no account \"eve\".";
    QTest::newRow("id in another case") << "BOB" << 3 << "There is no account \"BOB\".";
    QTest::newRow("empty") << "" << 3 << "There is no account \"\".";
}

void tst_AccountsCommand::accountsAreNamed()
{
    QFETCH(QString, name);
    QFETCH(int, status);
    QFETCH(QString, said);
    add(QStringLiteral("ann"));
    add(QStringLiteral("ann"), QStringLiteral("IRC"));
    add(QStringLiteral("bob"), QStringLiteral("IRC"));
    add(QStringLiteral("XMPP:ann"), QStringLiteral("IRC"));
    const KirvProgramRun result = run({ "disable", name });
    QCOMPARE(result.status, status);
    const QString text = status == 0 ? result.text() : result.errorText();
    QVERIFY2(text.contains(said), qPrintable(text));
}

void tst_AccountsCommand::oneUnknownNameChangesNothing()
{
    add(QStringLiteral("ann"));
    const KirvProgramRun result = run({ "disable", "--json", "ann", "eve" });
    QCOMPARE(result.status, 3);
    QCOMPARE(result.json().value(QStringLiteral("status")).toInt(), 3);
    QCOMPARE(result.json().value(QStringLiteral("problem")).toString(), QStringLiteral("There is no account \"eve\"."));
    QVERIFY(storedOne(QStringLiteral("ann")).enabled);
}

void tst_AccountsCommand::damagedProfileIsReported()
{
    add(QStringLiteral("ann"));
    QCOMPARE(runInDatabase(databaseIn(profile()), { QStringLiteral("DROP TABLE avatar_file") }), QVariant());
    const auto before = treeOf(profile());
    const KirvProgramRun result = run({ "list" });
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errorText().contains(QLatin1String("--restore")), qPrintable(result.errorText()));
    QCOMPARE(treeOf(profile()), before);
}

void tst_AccountsCommand::wrongCommandLinesAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no command") << QStringList();
    QTest::newRow("unknown command") << QStringList { "remove", "ann" };
    QTest::newRow("unknown option") << QStringList { "list", "--all" };
    QTest::newRow("option of another command") << QStringList { "list", "--force" };
    QTest::newRow("nobody to enable") << QStringList { "enable" };
    QTest::newRow("nowhere to export to") << QStringList { "export" };
    QTest::newRow("nothing to import") << QStringList { "import" };
    QTest::newRow("two files") << QStringList { "import", "a", "b" };
    QTest::newRow("two pass phrases") << QStringList {
        "export", "a", "--with-passwords", "--pass-phrase-fd", "0", "--pass-phrase-file", "phrase"
    };
    QTest::newRow("pass phrase for nothing") << QStringList { "export", "a", "--pass-phrase-file", "phrase" };
    QTest::newRow("no descriptor") << QStringList { "import", "a", "--pass-phrase-fd", "three" };
    QTest::newRow("negative descriptor") << QStringList { "import", "a", "--pass-phrase-fd", "-1" };
    QTest::newRow("pass phrase as argument") << QStringList { "import", "a", "--pass-phrase", "words" };
    QTest::newRow("two things on the output") << QStringList { "export", "-", "--json" };
    QTest::newRow("with a command for the profile") << QStringList { "list", "--check" };
}

void tst_AccountsCommand::wrongCommandLinesAreRefused()
{
    QFETCH(QStringList, arguments);
    const auto before = treeOf(home->path());
    const KirvProgramRun result = run(arguments);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.text(), QString());
    QVERIFY(!result.errorText().isEmpty());
    QCOMPARE(treeOf(home->path()), before);
}

void tst_AccountsCommand::helpTellsTheCommands()
{
    const KirvProgramRun result = run({ "--help" });
    QCOMPARE(result.status, 0);
    for (const char *word : { "list", "enable", "disable", "export", "import", "--json", "--pass-phrase-file" })
        QVERIFY2(result.output.contains(word), word);
    QVERIFY(!QFileInfo::exists(profile()));
}

void tst_AccountsCommand::exportIsANewPrivateFile()
{
    add(QStringLiteral("ann"));
    const mode_t before = ::umask(0);
    const KirvProgramRun result = run({ "export", "accounts.json" });
    ::umask(before);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.text(), QStringLiteral("Accounts exported: 1, without passwords.\n"));
    struct stat status { };
    QCOMPARE(::stat(QFile::encodeName(path("accounts.json")).constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777, mode_t(0600));
    const QByteArray file = contentOf(path("accounts.json"));
    QVERIFY(file.contains("\"ann\""));
    QVERIFY(!file.contains(secret.toUtf8()));
    QCOMPARE(QDir(home->path()).entryList({ QStringLiteral("accounts.json*") }),
             QStringList { QStringLiteral("accounts.json") });
}

void tst_AccountsCommand::exportReplacesFilesOnlyWhenForced()
{
    add(QStringLiteral("ann"));
    QVERIFY(write(path("accounts.json"), "mine"));
    QVERIFY(QFile::link(path("accounts.json"), path("linked")));
    KirvProgramRun result = run({ "export", "accounts.json" });
    QCOMPARE(result.status, 1);
    QVERIFY(result.errorText().contains(QLatin1String("--force")));
    for (const char *notAFile : { "linked", "plugins" })
        QCOMPARE(run({ "export", "--force", QLatin1String(notAFile) }).status, 1);
    QCOMPARE(run({ "export", "missing/accounts.json" }).status, 1);
    QCOMPARE(contentOf(path("accounts.json")), QByteArray("mine"));
    QCOMPARE(run({ "export", "accounts.json", "--force" }).status, 0);
    QVERIFY(contentOf(path("accounts.json")).contains("\"ann\""));
    QCOMPARE(QFile::permissions(path("accounts.json")) & 0x77, QFile::Permissions());
}

void tst_AccountsCommand::exportGoesToTheOutput()
{
    add(QStringLiteral("ann"));
    const KirvProgramRun result = run({ "export", "-" });
    QCOMPARE(result.status, 0);
    QVERIFY(!QJsonDocument::fromJson(result.output).isNull());
    const KirvProgramRun imported = run({ "import", "-", "--json" }, "other", result.output);
    QVERIFY2(imported.status == 0, qPrintable(imported.errorText()));
    QCOMPARE(stored("other").size(), 1);
}

void tst_AccountsCommand::chosenAccountsAreExported()
{
    add(QStringLiteral("ann"));
    add(QStringLiteral("bob"));
    const KirvProgramRun result = run({ "export", "--json", "accounts.json", "bob" });
    QCOMPARE(result.status, 0);
    QCOMPARE(result.json().value(QStringLiteral("accounts")).toArray(),
             (QJsonArray { QJsonObject { { "protocol", "XMPP" }, { "id", "bob" } } }));
    const QByteArray file = contentOf(path("accounts.json"));
    QVERIFY(file.contains("\"bob\"") && !file.contains("\"ann\""));
    QCOMPARE(run({ "export", "--force", "accounts.json", "eve" }).status, 3);
    QCOMPARE(contentOf(path("accounts.json")), file);
}

void tst_AccountsCommand::passwordsNeedAPassPhrase_data()
{
    QTest::addColumn<QStringList>("source");
    QTest::addColumn<QByteArray>("input");
    QTest::newRow("in a file") << QStringList { "--pass-phrase-file", "phrase" } << QByteArray();
    QTest::newRow("from a descriptor") << QStringList { "--pass-phrase-fd", "0" } << phrase.toUtf8() + '\n';
    QTest::newRow("without a line feed") << QStringList { "--pass-phrase-fd", "0" } << phrase.toUtf8();
}

void tst_AccountsCommand::passwordsNeedAPassPhrase()
{
    QFETCH(QStringList, source);
    QFETCH(QByteArray, input);
    add(QStringLiteral("ann"));
    KirvProgramRun result =
        run(QStringList { "export", "accounts.json", "--with-passwords" } + source, "profile", input);
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QCOMPARE(result.text(), QStringLiteral("Accounts exported: 1, with the passwords that are stored.\n"));
    QVERIFY(!contentOf(path("accounts.json")).contains(secret.toUtf8()));
    result = run(QStringList { "import", "accounts.json" } + source, "other", input);
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QCOMPARE(storedOne(QStringLiteral("ann"), "other").password, secret);
}

void tst_AccountsCommand::wrongPassPhraseImportsNothing()
{
    add(QStringLiteral("ann"));
    exportAll({ "--with-passwords", "--pass-phrase-file", "phrase" });
    QVERIFY(write(path("empty"), ""));
    for (const QStringList &source :
         { QStringList { "--pass-phrase-fd", "0" }, QStringList { "--pass-phrase-file", "empty" },
           QStringList { "--pass-phrase-file", "missing" } }) {
        const KirvProgramRun result =
            run(QStringList { "import", "--json", "accounts.json" } + source, "other", "something else\n");
        QCOMPARE(result.status, 5);
        QVERIFY(!result.json().value(QStringLiteral("problem")).toString().isEmpty());
        QVERIFY(stored("other").isEmpty());
    }
    // There is no terminal to type it on.
    QCOMPARE(run({ "import", "accounts.json" }, "other").status, 5);
}

void tst_AccountsCommand::passwordsAreLeftOutWhenWanted()
{
    add(QStringLiteral("ann"));
    exportAll({ "--with-passwords", "--pass-phrase-file", "phrase" });
    QCOMPARE(run({ "import", "accounts.json", "--without-passwords" }, "other").status, 4);
    QCOMPARE(storedOne(QStringLiteral("ann"), "other").key.id, QStringLiteral("ann"));
    QCOMPARE(storedOne(QStringLiteral("ann"), "other").password, QString());
}

void tst_AccountsCommand::newPassPhrasesAreBounded_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("problem"); ///< empty: it can be used
    const QString tooShort = QStringLiteral("The pass phrase needs at least 12 characters.");
    const QString character = QString::fromUtf8("\xf0\x9f\x90\x8e"); // one, of two units
    QTest::newRow("short") << QStringLiteral("eleven char") << tooShort;
    QTest::newRow("long enough") << QStringLiteral("twelve chars") << QString();
    QTest::newRow("few large characters") << character.repeated(11) << tooShort;
    QTest::newRow("enough large characters") << character.repeated(12) << QString();
    QTest::newRow("as long as can be") << QString(KirvPassPhrase::longest, QLatin1Char('x')) << QString();
}

void tst_AccountsCommand::newPassPhrasesAreBounded()
{
    QFETCH(QString, typed);
    QFETCH(QString, problem);
    add(QStringLiteral("ann"));
    QVERIFY(write(path("typed"), typed.toUtf8() + '\n'));
    const KirvProgramRun result = run({ "export", "accounts.json", "--with-passwords", "--pass-phrase-file", "typed" });
    QCOMPARE(result.status, problem.isEmpty() ? 0 : 5);
    QCOMPARE(result.errorText(), problem.isEmpty() ? QString() : QStringLiteral("kirv: %1\n").arg(problem));
    QCOMPARE(QFileInfo::exists(path("accounts.json")), problem.isEmpty());
}

void tst_AccountsCommand::oldFileWithAShortPassPhraseIsRead()
{
    KirvMovedAccounts accounts;
    accounts.accounts << sampleAccount(QStringLiteral("ann"));
    QString problem;
    QVERIFY(write(path("accounts.json"), KirvAccountFile::write(accounts, QStringLiteral("short"), &problem)));
    QVERIFY(write(path("typed"), "short\n"));
    const KirvProgramRun result = run({ "import", "accounts.json", "--pass-phrase-file", "typed" });
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QCOMPARE(storedOne(QStringLiteral("ann")).password, QStringLiteral("password of ann"));
}

/// The program in a terminal of its own, where the pass phrase is typed twice, once with a slip.
void tst_AccountsCommand::passPhraseIsTypedWithoutAnEcho()
{
    add(QStringLiteral("ann"));
    const QByteArray profileFolder = QFile::encodeName(profile()), file = QFile::encodeName(path("typed.json"));
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    QVERIFY(child >= 0);
    if (child == 0) {
        ::execl(KIRV_PROGRAM, KIRV_PROGRAM, "--profile", profileFolder.constData(), "accounts", "export",
                "--with-passwords", file.constData(), static_cast<char *>(nullptr));
        ::_exit(99);
    }
    QByteArray shown;
    const auto showUntil = [&](const char *text) {
        char part[512];
        ssize_t count = 0;
        while (!shown.contains(text) && (count = ::read(terminal, part, sizeof part)) > 0)
            shown.append(part, int(count));
        return shown.contains(text);
    };
    const auto type = [&](const QByteArray &keys) {
        return ::write(terminal, keys.constData(), size_t(keys.size())) == keys.size();
    };
    QVERIFY(showUntil("Pass phrase for the file: "));
    QVERIFY(type("wrong\x15" + phrase.toUtf8() + "x\x7f\r"));
    QVERIFY(showUntil("Repeat the pass phrase: "));
    QVERIFY(type(phrase.toUtf8() + "\r"));
    QVERIFY(showUntil("exported"));
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    ::close(terminal);
    QCOMPARE(WEXITSTATUS(status), 0);
    printed += shown;
    QVERIFY(!shown.contains("wrong"));
    const KirvProgramRun imported = run({ "import", "typed.json", "--pass-phrase-file", "phrase" }, "other");
    QVERIFY2(imported.status == 0, qPrintable(imported.errorText()));
    QCOMPARE(storedOne(QStringLiteral("ann"), "other").password, secret);
}

void tst_AccountsCommand::passPhraseIsTheSameInEveryLocale()
{
#if QT_VERSION < 0x060000 // later versions take every locale for one of UTF-8
    const auto restore =
        qScopeGuard([before = QTextCodec::codecForLocale()] { QTextCodec::setCodecForLocale(before); });
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    QCOMPARE(KirvPassPhrase::fromBytes("gr\xfcne Pferde"), QString::fromUtf8("gr\xc3\xbcne Pferde"));
#endif
    QCOMPARE(KirvPassPhrase::fromBytes("gr\xc3\xbcne Pferde"), QString::fromUtf8("gr\xc3\xbcne Pferde"));
}

void tst_AccountsCommand::existingAccountsAreKeptOrReplaced()
{
    add(QStringLiteral("ann"), protocol, QStringLiteral("old"));
    exportAll();
    {
        KirvStore store;
        QVERIFY(store.open(profile()));
        KirvAccountRecord ann = store.readAccounts().first();
        ann.alias = QStringLiteral("new");
        QVERIFY(store.updateAccount(ann));
    }
    const KirvProgramRun kept = run({ "import", "accounts.json" });
    QVERIFY2(kept.status == 0, qPrintable(kept.errorText()));
    QCOMPARE(kept.text(), QStringLiteral("XMPP:ann  XMPP:ann is kept\nAccounts imported: 0.\n"));
    QCOMPARE(storedOne(QStringLiteral("ann")).alias, QStringLiteral("new"));
    const QJsonObject replaced = run({ "import", "--replace", "--json", "accounts.json" }).json();
    QCOMPARE(replaced.value(QStringLiteral("imported")).toInt(), 1);
    QCOMPARE(replaced.value(QStringLiteral("accounts")).toArray().first().toObject().value(QStringLiteral("result")),
             QJsonValue(QStringLiteral("replaced")));
    QCOMPARE(storedOne(QStringLiteral("ann")).alias, QStringLiteral("old"));
    QCOMPARE(storedOne(QStringLiteral("ann")).password, secret); // which did not come along
}

/// The file has another server, to which no stored password goes.
void tst_AccountsCommand::lostPasswordsAreNamed()
{
    add(QStringLiteral("ann"));
    add(QStringLiteral("bob"));
    exportAll();
    {
        KirvStore store;
        QVERIFY(store.open(profile()));
        KirvAccountRecord ann = store.readAccounts().first();
        QCOMPARE(ann.key.id, QStringLiteral("ann"));
        ann.settings.insert(QStringLiteral("server"), QStringLiteral("elsewhere.example"));
        QVERIFY(store.updateAccount(ann));
    }
    for (const bool isTrial : { true, false }) {
        const KirvProgramRun result = run(QStringList { "import", "--replace", "accounts.json" }
                                          + (isTrial ? QStringList { "--dry-run" } : QStringList()));
        QCOMPARE(result.status, 4);
        QCOMPARE(result.errorText(),
                 QStringLiteral("Stored passwords of the account \"ann\" are not kept, because its settings "
                                "in the file differ. They must be entered again.\n"));
        QCOMPARE(storedOne(QStringLiteral("ann")).password, isTrial ? secret : QString());
        QCOMPARE(storedOne(QStringLiteral("bob")).password, secret);
    }
}

void tst_AccountsCommand::trialChangesNothing_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("a profile with accounts") << true;
    QTest::newRow("no profile yet") << false;
}

void tst_AccountsCommand::trialChangesNothing()
{
    QFETCH(bool, isThere);
    add(QStringLiteral("ann"));
    add(QStringLiteral("bob"));
    exportAll();
    if (isThere) {
        QCOMPARE(run({ "export", "one.json", "ann" }).status, 0);
        QCOMPARE(run({ "import", "one.json" }, "other").status, 0);
    }
    const QList<KirvAccountRecord> before = isThere ? stored("other") : QList<KirvAccountRecord>();
    const KirvProgramRun result = run({ "import", "--dry-run", "--replace", "accounts.json" }, "other");
    QVERIFY2(result.status == 0, qPrintable(result.errorText()));
    QVERIFY2(result.text().endsWith(QLatin1String("Accounts that would be imported: 2. Nothing was changed.\n")),
             qPrintable(result.text()));
    QCOMPARE(QFileInfo::exists(profile("other")), isThere);
    if (isThere)
        QVERIFY(stored("other") == before);
}

void tst_AccountsCommand::accountsOfPidginAreImported()
{
    QVERIFY(write(path("accounts.xml"),
                  "<?xml version='1.0' encoding='UTF-8' ?>\n<account version='1.0'>\n<account>\n"
                  "<protocol>prpl-jabber</protocol>\n<name>ann@example.org/Home</name>\n"
                  "<password>hunter2-secret</password>\n<alias>Ann</alias>\n</account>\n"
                  "<account>\n<protocol>prpl-bonjour</protocol>\n<name>ann</name>\n</account>\n</account>\n"));
    const KirvProgramRun result = run({ "import", "--json", "accounts.xml" });
    QCOMPARE(result.status, 4);
    QCOMPARE(result.json().value(QStringLiteral("leftOut")).toArray().size(), 1);
    QCOMPARE(storedOne(QStringLiteral("ann@example.org")).password, secret);
}

void tst_AccountsCommand::accountsWithoutTheirPluginAreNotTakenOver()
{
    add(QStringLiteral("ann"));
    add(QStringLiteral("bob"), QStringLiteral("IRC"));
    exportAll();
    const KirvProgramRun result = run({ "import", "accounts.json" }, "other");
    QCOMPARE(result.status, 4);
    QVERIFY2(result.text().contains(QLatin1String("The protocol IRC is not loaded.")), qPrintable(result.text()));
    QCOMPARE(stored("other").size(), 1);
}

/// Although plug-ins are loaded, and the account that is there and those that are imported are enabled.
void tst_AccountsCommand::nothingLogsIn()
{
    qputenv("KIRV_FIXTURE_LOGINS", QFile::encodeName(path("logins")));
    add(QStringLiteral("ann"));
    add(QStringLiteral("bob"));
    exportAll();
    QCOMPARE(run({ "import", "--replace", "accounts.json" }).status, 0);
    QCOMPARE(run({ "import", "accounts.json" }, "other").status, 0);
    QCOMPARE(run({ "disable", "ann" }, "other").status, 0);
    QCOMPARE(run({ "enable", "ann" }, "other").status, 0);
    QVERIFY(storedOne(QStringLiteral("ann"), "other").enabled);
    QVERIFY(!QFileInfo::exists(path("logins")));
    qunsetenv("KIRV_FIXTURE_LOGINS");
}

void tst_AccountsCommand::uselessFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("something else") << QByteArray("GIF89a");
    QTest::newRow("other JSON") << QByteArray("{\"accounts\": []}");
    QTest::newRow("deep JSON") << QByteArray(100000, '[');
    QTest::newRow("newer") << QByteArray("{\"format\": \"kirv-accounts\", \"version\": 99, \"accounts\": []}");
    QTest::newRow("malformed XML") << QByteArray("<?xml version='1.0'?><account version='1.0'><account>");
}

void tst_AccountsCommand::uselessFilesAreRefused()
{
    QFETCH(QByteArray, content);
    add(QStringLiteral("ann"));
    QVERIFY(write(path("file"), content));
    for (const QString &file : { QStringLiteral("file"), QStringLiteral("missing"), QStringLiteral("plugins") }) {
        const KirvProgramRun result = run({ "import", "--replace", file });
        QCOMPARE(result.status, 1);
        QVERIFY(result.errorText().startsWith(QLatin1String("kirv: ")));
        QCOMPARE(stored().size(), 1);
    }
}

void tst_AccountsCommand::refusedImportMakesNoProfile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("something else") << QStringList { "phrase" } << 1;
    QTest::newRow("wrong pass phrase") << QStringList { "accounts.json", "--pass-phrase-file", "wrong" } << 5;
    QTest::newRow("damaged") << QStringList { "damaged.json", "--without-passwords" } << 1;
}

void tst_AccountsCommand::refusedImportMakesNoProfile()
{
    QFETCH(QStringList, arguments);
    add(QStringLiteral("ann"));
    exportAll({ "--with-passwords", "--pass-phrase-file", "phrase" });
    QVERIFY(write(path("wrong"), "another pass phrase\n"));
    QVERIFY(write(path("damaged.json"), contentOf(path("accounts.json")).chopped(20)));
    const KirvProgramRun result = run(QStringList { "import" } + arguments, "new");
    QTEST(result.status, "status");
    QVERIFY(result.errorText().startsWith(QLatin1String("kirv: ")));
    QVERIFY(!QFileInfo::exists(profile("new")));
    QCOMPARE(run({ "import", "accounts.json", "--pass-phrase-file", "phrase" }, "new").status, 0);
    QCOMPARE(storedOne(QStringLiteral("ann"), "new").password, secret);
}

QTEST_GUILESS_MAIN(tst_AccountsCommand)

#include "tst_accounts_command.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_json_bounds.h"
#include "core/moving/kirv_json_digest.h"
#include "core/store/kirv_account_columns.h"
#include "core/values/kirv_bounded_image.h"
#include "tests/support/kirv_moved_samples.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_quick_keys.h"
#include "tests/support/kirv_thorough.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <sodium.h>

Q_DECLARE_METATYPE(KirvMovedAccounts)

namespace {

const QString passPhrase = QStringLiteral("open sesame");
const QString noPassPhrase;

QByteArray written(const KirvMovedAccounts &accounts, const QString &phrase = noPassPhrase)
{
    QString problem;
    const QByteArray bytes = KirvAccountFile::write(accounts, phrase, &problem);
    return problem.isEmpty() ? bytes : QByteArray();
}

KirvMovedAccounts only(const KirvMovedAccount &account)
{
    KirvMovedAccounts moved;
    moved.accounts << account;
    return moved;
}

/// A file with one account of which \a members are added or replaced, as JSON.
QByteArray fileWith(const QByteArray &members)
{
    return R"({"format":"kirv-accounts","version":1,"accounts":[{"login":"anna","protocol":"XMPP")"
        + (members.isEmpty() ? members : "," + members) + "}]}";
}

QByteArray fileOf(const QByteArray &accounts, const QByteArray &more = QByteArray())
{
    return R"({"format":"kirv-accounts","version":1,"accounts":[)" + accounts + "]" + more + "}";
}

QByteArray quoted(const QByteArray &text)
{
    return '"' + text + '"';
}

/// A GIF file with a screen of that size, of which its one picture fills the corner only.
QByteArray gifWithScreen(const QSize &size)
{
    QByteArray data = QByteArray::fromBase64("R0lGODdhAQABAIAAAICAgAAAACwAAAAAAQABAAACAkQBADs=");
    data[6] = char(size.width() % 256);
    data[7] = char(size.width() / 256);
    data[8] = char(size.height() % 256);
    data[9] = char(size.height() / 256);
    return data;
}

} // namespace

/// The file of exported accounts: what it keeps, and what is refused.
class tst_AccountFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyColumnComesBack_data();
    void everyColumnComesBack();
    void everythingComesBackInItsOrder_data();
    void everythingComesBackInItsOrder();
    void noAccountsAreAFileToo();
    void fileOfTheFirstVersionIsRead();
    void whatIsMissingHasItsDefault();
    void withoutAPassPhraseNoSecretIsThere();
    void whatBelongsToAProfileStaysThere();
    void digestIsThatOfTheCanonicalForm();
    void boundsCountWhatIsOutsideOfTexts_data();
    void boundsCountWhatIsOutsideOfTexts();

    void whatIsWrittenFitsTheSchema_data();
    void whatIsWrittenFitsTheSchema();
    void schemaRefusesWhatIsRefused();

    void hostileFileIsRefused_data();
    void hostileFileIsRefused();
    void truncatedFileIsRefused();
    void asMuchAsAllowedIsRead();
    void pictureOfAnUnknownKindIsLeftOut();
    void whatNoFileHoldsIsNotWritten_data();
    void whatNoFileHoldsIsNotWritten();
    void largeFileIsNotWritten();

private:
    QString schemaProblem(const QByteArray &file) const;
    static void compare(const KirvMovedAccounts &actual, const KirvMovedAccounts &expected);
};

void tst_AccountFile::init()
{
    KirvQuickKeys::instance() = KirvQuickKeys();
}

void tst_AccountFile::compare(const KirvMovedAccounts &actual, const KirvMovedAccounts &expected)
{
    QCOMPARE(actual.accounts.size(), expected.accounts.size());
    for (int index = 0; index < expected.accounts.size(); ++index) {
        const KirvMovedAccount &one = actual.accounts.at(index), &other = expected.accounts.at(index);
        QCOMPARE(one.record.key.id, other.record.key.id);
        QVERIFY2(one.record == other.record, qPrintable(other.record.key.id));
        QCOMPARE(one.record.password, other.record.password);
        QCOMPARE(one.picture, other.picture);
    }
    QCOMPARE(actual.mainAccount.toSetting(), expected.mainAccount.toSetting());
}

/// A column that is added to the store belongs into the file, too.
void tst_AccountFile::everyColumnComesBack_data()
{
    QTest::addColumn<int>("column");
    const QList<KirvAccountColumn> &columns = kirvAccountColumns();
    for (int index = 0; index < columns.size(); ++index) {
        if (QByteArray("avatar") != columns.at(index).name) // the name of a file in the profile
            QTest::newRow(columns.at(index).name) << index;
    }
}

void tst_AccountFile::everyColumnComesBack()
{
    QFETCH(int, column);
    const KirvAccountColumn &changed = kirvAccountColumns().at(column);
    KirvMovedAccount account;
    account.record.key = { QStringLiteral("anna"), QStringLiteral("XMPP") };
    if (changed.text)
        account.record.*changed.text = QString(64, QLatin1Char('f'));
    else
        account.record.*changed.flag = !(account.record.*changed.flag);
    const KirvAccountFile::Result result = KirvAccountFile::read(written(only(account)), noPassPhrase);
    QCOMPARE(result.problem, QString());
    KirvAccountRecord unchanged;
    unchanged.key = account.record.key;
    QVERIFY(!account.record.isStoredLike(unchanged));
    QVERIFY(result.accounts.accounts.value(0).record.isStoredLike(account.record));
}

void tst_AccountFile::everythingComesBackInItsOrder_data()
{
    QTest::addColumn<QString>("phrase");
    QTest::newRow("short") << QStringLiteral("x");
    QTest::newRow("usual") << passPhrase;
    QTest::newRow("letters of the world") << QString::fromUtf8("p\xc3\xa4ss \xd9\x85\xd8\xb1\xd8\xad \xf0\x9f\x94\x91");
}

void tst_AccountFile::everythingComesBackInItsOrder()
{
    QFETCH(QString, phrase);
    const KirvMovedAccounts accounts = sampleAccounts();
    const QByteArray bytes = written(accounts, phrase);
    QVERIFY(KirvAccountFile::hasSecrets(bytes));
    const KirvAccountFile::Result result = KirvAccountFile::read(bytes, phrase);
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.accounts.leftOut, QStringList());
    compare(result.accounts, accounts);
}

void tst_AccountFile::noAccountsAreAFileToo()
{
    const KirvAccountFile::Result result = KirvAccountFile::read(written({}), noPassPhrase);
    QCOMPARE(result.problem, QString());
    QVERIFY(result.accounts.accounts.isEmpty());
}

/// It was made by a program in another language from what docs/export-format.md says.
void tst_AccountFile::fileOfTheFirstVersionIsRead()
{
    KirvQuickKeys::instance().isReal = true;
    const QByteArray bytes =
        contentOf(QStringLiteral(KIRV_SOURCE_FOLDER "/tests/integration/data/exported-accounts-1.json"));
    const KirvAccountFile::Result result = KirvAccountFile::read(bytes, QString::fromUtf8("sch\xc3\xb6nes Wetter"));
    QCOMPARE(result.problem, QString());
    KirvMovedAccounts expected = sampleAccounts();
    expected.accounts.removeFirst();
    compare(result.accounts, expected);
}

void tst_AccountFile::whatIsMissingHasItsDefault()
{
    const KirvAccountFile::Result result = KirvAccountFile::read(fileWith(QByteArray()), noPassPhrase);
    QCOMPARE(result.problem, QString());
    KirvAccountRecord expected;
    expected.key = { QStringLiteral("anna"), QStringLiteral("XMPP") };
    QVERIFY(result.accounts.accounts.value(0).record == expected);
    QVERIFY(result.accounts.accounts.value(0).picture.isEmpty());
    QVERIFY(result.accounts.mainAccount.id.isEmpty());
}

void tst_AccountFile::withoutAPassPhraseNoSecretIsThere()
{
    KirvMovedAccounts accounts = sampleAccounts();
    const QByteArray bytes = written(accounts);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(!KirvAccountFile::hasSecrets(bytes));
    for (KirvMovedAccount &account : accounts.accounts) {
        KirvAccountRecord &record = account.record;
        for (const QString &secret : { record.password, record.settings.take(QStringLiteral("proxy_password")) }) {
            QVERIFY(!secret.isEmpty());
            QVERIFY(!bytes.contains(secret.toUtf8()));
            QVERIFY(!bytes.contains(secret.toUtf8().toBase64(QByteArray::OmitTrailingEquals).chopped(2)));
        }
        record.password.clear();
    }
    const KirvAccountFile::Result result = KirvAccountFile::read(bytes, noPassPhrase);
    QCOMPARE(result.problem, QString());
    compare(result.accounts, accounts);
    QVERIFY(result.accounts.accounts.first().record.secretSettings.contains(QStringLiteral("proxy_password")));
    QCOMPARE(KirvQuickKeys::instance().made, 0);
}

void tst_AccountFile::whatBelongsToAProfileStaysThere()
{
    KirvMovedAccount account = sampleAccount(QStringLiteral("anna"));
    KirvAccountRecord &record = account.record;
    record.avatar = QStringLiteral("name-of-a-file.png");
    record.secretItems.insert(QString(), { QStringLiteral("key-in-the-keyring"), QStringLiteral("label") });
    record.settings.insert(KirvOwnSetting::avatarIsChosen, QStringLiteral("true"));
    record.settings.insert(KirvOwnSetting::avatarOnServer, QStringLiteral("hash"));
    record.secretSettings.insert(KirvOwnSetting::avatarOnServer);
    const QByteArray bytes = written(only(account), passPhrase);
    QVERIFY(!bytes.isEmpty());
    for (const char *text : { "name-of-a-file", "key-in-the-keyring", "label", "kirv/" })
        QVERIFY2(!bytes.contains(text), text);
    const KirvAccountFile::Result result = KirvAccountFile::read(bytes, passPhrase);
    QCOMPARE(result.problem, QString());
    compare(result.accounts, only(sampleAccount(QStringLiteral("anna"))));
}

void tst_AccountFile::digestIsThatOfTheCanonicalForm()
{
    const QJsonObject object { { QStringLiteral("b"), QJsonArray { true, false, QJsonArray(), QJsonObject() } },
                               { QStringLiteral("a\"\\"), QString::fromUtf8("\x01\n\t\x7f/\xc3\xa4\xf0\x9f\x94\x91") },
                               { QString::fromUtf8("\xef\xac\xb3"), 5 },
                               { QString::fromUtf8("\xf0\x9f\x98\x80"), 536870912 } };
    // The last two as code units of UTF-16: the smiley begins with a lower one.
    const QByteArray canonical("{\"a\\\"\\\\\":\"\\u0001\\n\\t\x7f/\xc3\xa4\xf0\x9f\x94\x91\","
                               "\"b\":[true,false,[],{}],\"\xf0\x9f\x98\x80\":536870912,\"\xef\xac\xb3\":5}");
    QByteArray digest(32, '\0');
    crypto_generichash(reinterpret_cast<unsigned char *>(digest.data()), 32,
                       reinterpret_cast<const unsigned char *>(canonical.constData()),
                       static_cast<unsigned long long>(canonical.size()), nullptr, 0);
    QCOMPARE(kirvJsonDigest(object).toHex(), digest.toHex());
}

void tst_AccountFile::boundsCountWhatIsOutsideOfTexts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("parts");
    QTest::newRow("empty") << QByteArray() << 0 << 0;
    QTest::newRow("text") << QByteArray(R"("[{,:")") << 0 << 0;
    QTest::newRow("text with quotes and backslashes") << QByteArray(R"("\\\"[[[",)") << 0 << 1;
    QTest::newRow("text without end") << QByteArray(R"("[[[[)") << 0 << 0;
    QTest::newRow("array") << QByteArray("[1,2,3]") << 1 << 6;
    QTest::newRow("object") << QByteArray(R"({"a":1,"b":[{}]})") << 3 << 15;
    QTest::newRow("one after the other") << QByteArray("[[],[],[]]") << 2 << 18;
    QTest::newRow("too many ends") << QByteArray("]]][[") << 0 << 8;
    QTest::newRow("100,000 deep") << QByteArray(100000, '[') << 100000 << 400000;
}

void tst_AccountFile::boundsCountWhatIsOutsideOfTexts()
{
    QFETCH(QByteArray, json);
    QFETCH(int, depth);
    QFETCH(int, parts);
    QVERIFY(kirvIsBoundedJson(json, depth, parts));
    QVERIFY(depth == 0 || !kirvIsBoundedJson(json, depth - 1, parts));
    QVERIFY(parts == 0 || !kirvIsBoundedJson(json, depth, parts - 1));
}

/// Empty when \a file fits docs/export-format.schema.json, as an independent program finds.
QString tst_AccountFile::schemaProblem(const QByteArray &file) const
{
    static const QString program =
        QStringLiteral("import json, sys, jsonschema\n"
                       "schema = json.load(open(sys.argv[1]))\n"
                       "jsonschema.Draft202012Validator.check_schema(schema)\n"
                       "jsonschema.Draft202012Validator(schema).validate(json.load(sys.stdin))\n");
    QProcess python;
    python.start(
        QStringLiteral("python3"),
        { QStringLiteral("-c"), program, QStringLiteral(KIRV_SOURCE_FOLDER "/docs/export-format.schema.json") });
    python.write(file);
    python.closeWriteChannel();
    if (!python.waitForFinished(kirvPatience))
        return python.errorString();
    const QString report = QString::fromUtf8(python.readAllStandardError());
    return python.exitCode() == 0 ? QString() : QStringLiteral("refused: ") + report;
}

void tst_AccountFile::whatIsWrittenFitsTheSchema_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("without secrets") << written(sampleAccounts());
    QTest::newRow("with secrets") << written(sampleAccounts(), passPhrase);
    QTest::newRow("no accounts") << written({});
    QTest::newRow("smallest") << fileWith(QByteArray());
}

void tst_AccountFile::whatIsWrittenFitsTheSchema()
{
    QFETCH(QByteArray, file);
    QCOMPARE(schemaProblem(file), QString());
}

void tst_AccountFile::schemaRefusesWhatIsRefused()
{
    for (const QByteArray &file :
         { fileWith(R"("unknown":"x")"), fileWith(R"("alias":5)"), fileWith(R"("enabled":"yes")"),
           fileWith(R"("settings":{"kirv/x":"y"})"), fileWith(R"("trusted_certificate":"ab")"),
           fileOf(R"({"login":"","protocol":"XMPP"})"), fileOf(R"({"login":"anna"})"),
           fileOf(QByteArray(), R"(,"main_account":"anna")"), fileOf(QByteArray(), R"(,"secrets":{})") }) {
        QVERIFY2(!KirvAccountFile::read(file, noPassPhrase).problem.isEmpty(), file.constData());
        QVERIFY2(schemaProblem(file).contains(QStringLiteral("ValidationError")), file.constData());
    }
}

void tst_AccountFile::hostileFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("sentence");
    const QString damaged = QStringLiteral("damaged"), newer = QStringLiteral("newer version");
    const QByteArray anna(R"({"login":"anna","protocol":"XMPP"})");
    QTest::newRow("empty") << QByteArray() << damaged;
    QTest::newRow("text") << QByteArray("accounts") << damaged;
    QTest::newRow("array") << QByteArray("[]") << damaged;
    QTest::newRow("object") << QByteArray("{}") << damaged;
    QTest::newRow("another format") << fileOf(anna).replace("kirv-accounts", "other-accounts") << damaged;
    QTest::newRow("no version") << fileOf(anna).replace("\"version\":1,", "") << damaged;
    QTest::newRow("version as text") << fileOf(anna).replace(":1,", ":\"1\",") << damaged;
    QTest::newRow("version 0") << fileOf(anna).replace(":1,", ":0,") << damaged;
    QTest::newRow("version 1.5") << fileOf(anna).replace(":1,", ":1.5,") << damaged;
    QTest::newRow("version 2") << fileOf(anna).replace(":1,", ":2,") << newer;
    QTest::newRow("version of another world") << fileOf(anna).replace(":1,", ":1e300,") << newer;
    QTest::newRow("newer and other in everything")
        << QByteArray(R"({"format":"kirv-accounts","version":2,"people":5})") << newer;
    QTest::newRow("something behind it") << fileOf(anna) + "x" << damaged;
    QTest::newRow("NUL behind it") << fileOf(anna) + '\0' << damaged;
    QTest::newRow("unknown member") << fileOf(anna, R"(,"people":5)") << damaged;
    QTest::newRow("accounts as an object") << fileOf(anna).replace("[", "{\"a\":").replace("]", "}") << damaged;
    QTest::newRow("account as text") << fileOf(R"("anna")") << damaged;
    QTest::newRow("account as null") << fileOf("null") << damaged;
    QTest::newRow("second one wrong") << fileOf(anna + R"(,{"login":"bob"})") << QStringLiteral("Account 2");
    QTest::newRow("twice") << fileOf(anna + ',' + anna) << QStringLiteral("\"anna\" (XMPP) twice");

    QTest::newRow("depth 33") << fileWith("\"settings\":" + QByteArray(30, '[') + QByteArray(30, ']')) << damaged;
    QTest::newRow("depth 1,000,000") << QByteArray(1000000, '[') << damaged;
    QTest::newRow("depth 1,000,000 in an account") << fileWith("\"settings\":" + QByteArray(1000000, '[')) << damaged;
    QTest::newRow("3,000,000 empty objects") << fileOf(QByteArray("{},").repeated(3000000) + "{}") << damaged;
    QTest::newRow("10,000,000 numbers") << fileOf(QByteArray("0,").repeated(10000000) + "0") << damaged;

    QTest::newRow("login missing") << fileOf(R"({"protocol":"XMPP"})") << QStringLiteral("\"login\"");
    QTest::newRow("login empty") << fileOf(R"({"login":"","protocol":"XMPP"})") << QStringLiteral("\"login\"");
    QTest::newRow("login as a number") << fileOf(R"({"login":5,"protocol":"XMPP"})") << QStringLiteral("\"login\"");
    QTest::newRow("login with a line break")
        << fileOf(R"({"login":"anna\nbob","protocol":"XMPP"})") << QStringLiteral("\"login\"");
    QTest::newRow("protocol missing") << fileOf(R"({"login":"anna"})") << QStringLiteral("\"protocol\"");
    QTest::newRow("protocol with NUL") << fileOf(R"({"login":"anna","protocol":"X\u0000"})")
                                       << QStringLiteral("\"protocol\"");

    const auto row = [](const char *name, const QByteArray &members, const char *wrong) {
        QTest::newRow(name) << fileWith(members)
                            << QStringLiteral("Account 1 in the file is damaged: \"%1\"").arg(QString::fromUtf8(wrong));
    };
    row("unknown member of an account", R"("unknown":5)", "unknown");
    row("unknown member with a long name", quoted(QByteArray(100000, 'x')) + ":5",
        (QByteArray(199, 'x') + "\xe2\x80\xa6").constData());
    row("password in clear", R"("password":"secret")", "password");
    row("alias as an object", R"("alias":{})", "alias");
    row("alias as null", R"("alias":null)", "alias");
    row("alias with an escape sequence", R"("alias":"\u001b[31m")", "alias");
    row("alias too long", "\"alias\":" + quoted(QByteArray(32768, 'x')), "alias");
    row("half a character", R"("alias":"\ud83d")", "alias");
    row("flag as text", R"("enabled":"true")", "enabled");
    row("flag as a number", R"("remember_password":1)", "remember_password");
    row("description with a control character", R"("last_description":"\u0007")", "last_description");
    row("certificate too short", R"("trusted_certificate":"abc")", "trusted_certificate");
    row("certificate of other letters", "\"trusted_certificate\":" + quoted(QByteArray(64, 'g')),
        "trusted_certificate");
    row("certificate with a line break", "\"trusted_certificate\":" + quoted(QByteArray(64, 'a') + "\\n"),
        "trusted_certificate");
    row("settings as an array", R"("settings":[])", "settings");
    row("setting as a flag", R"("settings":{"server":true})", "settings");
    row("setting without a name", R"("settings":{"":"x"})", "settings");
    row("setting of the program", R"("settings":{"kirv/avatar_is_chosen":"true"})", "settings");
    row("setting with a control character", R"("settings":{"server":"a\u0000b"})", "settings");
    row("setting too long", R"("settings":{"server":)" + quoted(QByteArray(32768, 'x')) + "}", "settings");
    row("secret setting in clear", R"("secret_settings":["p"],"settings":{"p":"secret"})", "settings");
    row("secret settings as an object", R"("secret_settings":{})", "secret_settings");
    row("secret setting as a number", R"("secret_settings":[5])", "secret_settings");
    row("secret setting twice", R"("secret_settings":["p","p"])", "secret_settings");
    row("secret setting of the program", R"("secret_settings":["kirv/x"])", "secret_settings");
    QByteArray many, names;
    for (int number = 0; number < 1001; ++number) {
        many += (number ? ",\"" : "\"") + QByteArray::number(number) + "\":\"\"";
        names += (number ? ",\"" : "\"") + QByteArray::number(number) + '"';
    }
    row("1,001 settings", "\"settings\":{" + many + "}", "settings");
    row("1,001 secret settings", "\"secret_settings\":[" + names + "]", "secret_settings");
    many.clear();
    const int countless = kirvIsThorough() ? 2000000 : 200000;
    for (int number = 0; number < countless; ++number)
        many += (number ? ",\"" : "\"") + QByteArray::number(number * 7 % countless) + "\":\"\"";
    row("countless settings", "\"settings\":{" + many + "}", "settings");
    QTest::newRow("countless members") << fileOf("{" + many + "}") << damaged;
    QTest::newRow("the same member countless times")
        << fileOf("{" + QByteArray("\"a\":\"\",").repeated(countless) + "\"a\":\"\"}") << damaged;
    row("picture as an array", R"("picture":[])", "picture");
    row("picture empty", R"("picture":"")", "picture");
    row("picture that is not in base64", R"("picture":"!!!!")", "picture");
    const QByteArray largest(int(KirvBoundedImage::maximumBytes) + 1, 'x');
    QTest::newRow("picture of too many bytes")
        << fileWith("\"picture\":" + quoted(largest.toBase64())) << QStringLiteral("picture of the account \"anna\"");
    QTest::newRow("picture of too many pixels")
        << fileWith("\"picture\":" + quoted(gifWithScreen(QSize(30000, 30000)).toBase64()))
        << QStringLiteral("too large");

    QTest::newRow("wrong UTF-8") << fileWith("\"alias\":\"\xff\xfe\"") << damaged;
    QTest::newRow("UTF-8 that ends early") << fileWith("\"alias\":\"\xc3\"") << damaged;
    QTest::newRow("UTF-8 that is too long") << fileWith("\"alias\":\"\xc0\xaf\"") << damaged;
    QTest::newRow("half a character in UTF-8") << fileWith("\"alias\":\"\xed\xa0\xbd\"") << damaged;
    QTest::newRow("main account that is not there")
        << fileOf(anna, R"(,"main_account":{"login":"bob","protocol":"XMPP"})") << QStringLiteral("main account");
    QTest::newRow("main account as text")
        << fileOf(anna, R"(,"main_account":"anna")") << QStringLiteral("main account");
    QTest::newRow("secrets as text") << fileOf(anna, R"(,"secrets":"x")") << QStringLiteral("passwords");
    QTest::newRow("too many accounts") << fileOf([] {
        QByteArray accounts;
        for (int number = 0; number <= KirvAccountFile::mostAccounts; ++number)
            accounts +=
                (number ? ",{\"login\":\"" : "{\"login\":\"") + QByteArray::number(number) + R"(","protocol":"XMPP"})";
        return accounts;
    }()) << QStringLiteral("too many accounts");
    QTest::newRow("too large") << fileOf(anna) + QByteArray(int(KirvAccountFile::largestFile), ' ')
                               << QStringLiteral("too large");
}

void tst_AccountFile::hostileFileIsRefused()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, sentence);
    for (const QString &phrase : { noPassPhrase, passPhrase }) {
        const KirvAccountFile::Result result = KirvAccountFile::read(file, phrase);
        QVERIFY2(result.problem.contains(sentence), qPrintable(result.problem));
        QVERIFY(result.problem.size() < 1000);
        QVERIFY(result.accounts.accounts.isEmpty());
        QVERIFY(result.accounts.leftOut.isEmpty());
        QVERIFY(result.accounts.mainAccount.id.isEmpty());
        QVERIFY(!result.wrongPassPhrase);
    }
    QCOMPARE(KirvQuickKeys::instance().made, 0);
    QVERIFY(!KirvAccountFile::hasSecrets(file));
}

void tst_AccountFile::truncatedFileIsRefused()
{
    const QByteArray file = written(sampleAccounts(), passPhrase).trimmed();
    QVERIFY(file.size() > 1000);
    for (int size = 0; size < file.size(); ++size) {
        const KirvAccountFile::Result result = KirvAccountFile::read(file.left(size), passPhrase);
        QVERIFY2(!result.problem.isEmpty() && result.accounts.accounts.isEmpty(), qPrintable(QString::number(size)));
    }
    QCOMPARE(KirvAccountFile::read(file, passPhrase).problem, QString());
}

void tst_AccountFile::asMuchAsAllowedIsRead()
{
    QByteArray accounts;
    for (int number = 0; number < KirvAccountFile::mostAccounts; ++number)
        accounts += (number ? ",{\"login\":\"" : "{\"login\":\"") + QByteArray::number(number)
            + R"(","protocol":"a protocol that nobody knows"})";
    KirvAccountFile::Result result = KirvAccountFile::read(fileOf(accounts), noPassPhrase);
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.accounts.accounts.size(), KirvAccountFile::mostAccounts);
    QCOMPARE(result.accounts.accounts.last().record.key.protocol, QStringLiteral("a protocol that nobody knows"));

    result = KirvAccountFile::read(fileWith("\"alias\":" + quoted(QByteArray(32767, 'x'))), noPassPhrase);
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.accounts.accounts.first().record.alias.size(), 32767);
}

/// A format may be missing here that there was where the file comes from.
void tst_AccountFile::pictureOfAnUnknownKindIsLeftOut()
{
    const KirvAccountFile::Result result =
        KirvAccountFile::read(fileWith(R"("picture":"bm8gcGljdHVyZQ==")"), noPassPhrase);
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.accounts.accounts.size(), 1);
    QVERIFY(result.accounts.accounts.first().picture.isEmpty());
    QCOMPARE(result.accounts.leftOut.size(), 1);
    QVERIFY(result.accounts.leftOut.first().contains(QStringLiteral("anna")));
}

void tst_AccountFile::whatNoFileHoldsIsNotWritten_data()
{
    QTest::addColumn<KirvMovedAccounts>("accounts");
    const auto row = [](const char *name, const std::function<void(KirvMovedAccount &)> &change) {
        KirvMovedAccounts accounts = sampleAccounts();
        change(accounts.accounts[1]);
        QTest::newRow(name) << accounts;
    };
    row("login", [](KirvMovedAccount &account) { account.record.key.id.clear(); });
    row("login that is there",
        [](KirvMovedAccount &account) { account.record.key = sampleAccounts().accounts.first().record.key; });
    row("alias", [](KirvMovedAccount &account) { account.record.alias = QChar(0x1b); });
    row("half a character", [](KirvMovedAccount &account) { account.record.alias = QChar(0xd83d); });
    row("password", [](KirvMovedAccount &account) { account.record.password = QString(32768, QLatin1Char('x')); });
    row("setting", [](KirvMovedAccount &account) { account.record.settings.insert(QStringLiteral("x"), QChar(0)); });
    row("name of a setting", [](KirvMovedAccount &account) { account.record.settings.insert(QString(), QString()); });
    row("certificate", [](KirvMovedAccount &account) { account.record.trustedCertificate = QStringLiteral("A"); });
    row("picture",
        [](KirvMovedAccount &account) { account.picture = QByteArray(int(KirvBoundedImage::maximumBytes) + 1, 'x'); });
}

void tst_AccountFile::whatNoFileHoldsIsNotWritten()
{
    QFETCH(KirvMovedAccounts, accounts);
    QString problem;
    QCOMPARE(KirvAccountFile::write(accounts, passPhrase, &problem), QByteArray());
    QVERIFY2(problem.contains(QStringLiteral("cannot be exported")), qPrintable(problem));
}

void tst_AccountFile::largeFileIsNotWritten()
{
    KirvMovedAccounts accounts;
    for (int number = 0; number < 6; ++number) {
        accounts.accounts << sampleAccount(QString::number(number));
        accounts.accounts.last().picture = QByteArray(int(KirvBoundedImage::maximumBytes), 'x');
    }
    QString problem;
    QCOMPARE(KirvAccountFile::write(accounts, noPassPhrase, &problem), QByteArray());
    QVERIFY2(problem.contains(QStringLiteral("64 MB")), qPrintable(problem));
    accounts.accounts.removeLast();
    accounts.accounts.removeLast();
    QVERIFY(!written(accounts).isEmpty());
}

QTEST_GUILESS_MAIN(tst_AccountFile)
#include "tst_account_file.moc"

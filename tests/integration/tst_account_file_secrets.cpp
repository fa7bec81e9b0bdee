// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_account_file.h"
#include "tests/support/kirv_moved_samples.h"
#include "tests/support/kirv_quick_keys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>
#include <functional>
#include <sodium.h>

namespace {

const QString passPhrase = QStringLiteral("open sesame");
const QString noPassPhrase;
const QString secrets = QStringLiteral("secrets");
const qint64 mebibyte = 1024 * 1024;

QByteArray written(const KirvMovedAccounts &accounts = sampleAccounts())
{
    QString problem;
    return KirvAccountFile::write(accounts, passPhrase, &problem);
}

QJsonObject toJson(const QByteArray &file)
{
    return QJsonDocument::fromJson(file).object();
}

QByteArray toBytes(const QJsonObject &file)
{
    return QJsonDocument(file).toJson();
}

unsigned char *in(QByteArray &bytes)
{
    return reinterpret_cast<unsigned char *>(bytes.data());
}

/// Of objects without signs that the canonical form and Qt write in different ways.
QString digestOf(const QJsonObject &object)
{
    QByteArray canonical = QJsonDocument(object).toJson(QJsonDocument::Compact);
    QByteArray digest(32, '\0');
    crypto_generichash(in(digest), 32, in(canonical), static_cast<unsigned long long>(canonical.size()), nullptr, 0);
    return QString::fromLatin1(digest.toBase64());
}

QByteArray bytesOf(const QJsonObject &box, const char *name)
{
    return QByteArray::fromBase64(box.value(QLatin1String(name)).toString().toLatin1());
}

QByteArray keyOf(const QJsonObject &box, const QString &phrase)
{
    QByteArray key(int(crypto_secretbox_KEYBYTES), '\0'), salt = bytesOf(box, "salt"), utf8 = phrase.toUtf8();
    const int made = crypto_pwhash(
        in(key), crypto_secretbox_KEYBYTES, utf8.constData(), static_cast<unsigned long long>(utf8.size()), in(salt),
        static_cast<unsigned long long>(box.value(QLatin1String("operations")).toDouble()),
        static_cast<std::size_t>(box.value(QLatin1String("memory")).toDouble()), crypto_pwhash_ALG_ARGON2ID13);
    return made == 0 ? key : QByteArray();
}

/// What is in the box of \a file; empty when \a phrase does not open it.
QByteArray opened(const QJsonObject &file, const QString &phrase = passPhrase)
{
    const QJsonObject box = file.value(secrets).toObject();
    QByteArray data = bytesOf(box, "data"), nonce = bytesOf(box, "nonce"), key = keyOf(box, phrase);
    QByteArray content(data.size() - int(crypto_secretbox_MACBYTES), '\0');
    const int result = crypto_secretbox_open_easy(in(content), in(data), static_cast<unsigned long long>(data.size()),
                                                  in(nonce), in(key));
    return result == 0 ? content : QByteArray();
}

/// \a file with \a box, which gets its check sum.
QJsonObject withBox(QJsonObject file, QJsonObject box)
{
    box.remove(QStringLiteral("checksum"));
    box.insert(QStringLiteral("checksum"), digestOf(box));
    file.insert(secrets, box);
    return file;
}

/// \a file with \a content in its box, encrypted as whoever knows the pass phrase can do it.
QJsonObject withContent(const QJsonObject &file, QByteArray content)
{
    QJsonObject box = file.value(secrets).toObject();
    QByteArray nonce = bytesOf(box, "nonce"), key = keyOf(box, passPhrase);
    QByteArray data(content.size() + int(crypto_secretbox_MACBYTES), '\0');
    crypto_secretbox_easy(in(data), in(content), static_cast<unsigned long long>(content.size()), in(nonce), in(key));
    box.insert(QStringLiteral("data"), QString::fromLatin1(data.toBase64()));
    return withBox(file, box);
}

bool isSameResult(const KirvAccountFile::Result &result, const KirvMovedAccounts &expected)
{
    bool isSame = result.accounts.accounts.size() == expected.accounts.size()
        && result.accounts.mainAccount == expected.mainAccount;
    for (int index = 0; isSame && index < expected.accounts.size(); ++index) {
        const KirvMovedAccount &one = result.accounts.accounts.at(index), &other = expected.accounts.at(index);
        isSame = one.record == other.record && one.picture == other.picture;
    }
    return isSame;
}

} // namespace

using Change = std::function<void(QJsonObject &)>;
Q_DECLARE_METATYPE(Change)

/// The passwords in a file of exported accounts.
class tst_AccountFileSecrets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(sodium_init() >= 0); }
    void init() { KirvQuickKeys::instance() = KirvQuickKeys(); }

    void noSecretCanBeReadInTheFile();
    void keyIsMadeAsTheFileSays();
    void twoFilesHaveNothingRandomInCommon();
    void onlyThePassPhraseOpensThem_data();
    void onlyThePassPhraseOpensThem();
    void withoutThePassPhraseTheyAreLeftOut();
    void formsOfTheSameCharactersAreOnePassPhrase();
    void expensiveBoxIsRefusedBeforeItCosts_data();
    void expensiveBoxIsRefusedBeforeItCosts();
    void missingMemoryIsReported();
    void damageIsToldFromAWrongPassPhrase();
    void flippedBitsChangeNothing();
    void malformedBoxIsRefused_data();
    void malformedBoxIsRefused();
    void changedAccountsGetNoPasswords_data();
    void changedAccountsGetNoPasswords();
    void layoutOfTheFileDoesNotMatter();
    void removedEncryptionIsNoticed();
    void hostileContentIsRefused_data();
    void hostileContentIsRefused();
};

void tst_AccountFileSecrets::noSecretCanBeReadInTheFile()
{
    const QByteArray file = written();
    QVERIFY(!file.isEmpty());
    for (const char *text : { "password of", "secret of", "open sesame" }) {
        QVERIFY2(!file.contains(text), text);
        QVERIFY2(!file.contains(QByteArray(text).left(6).toBase64()), text);
        QVERIFY2(!file.contains(QByteArray(text).toHex()), text);
    }
    for (const QJsonValue &account : toJson(file).value(QStringLiteral("accounts")).toArray()) {
        QVERIFY(!account.toObject().contains(QStringLiteral("password")));
        QVERIFY(!account.toObject()
                     .value(QStringLiteral("settings"))
                     .toObject()
                     .contains(QStringLiteral("proxy_password")));
    }
}

/// An independent reading, with the real derivation.
void tst_AccountFileSecrets::keyIsMadeAsTheFileSays()
{
    KirvQuickKeys::instance().isReal = true;
    const QJsonObject file = toJson(written());
    QCOMPARE(KirvQuickKeys::instance().operations, qint64(3));
    QCOMPARE(KirvQuickKeys::instance().memory, 256 * mebibyte);
    const QJsonObject box = file.value(secrets).toObject();
    QCOMPARE(box.value(QStringLiteral("operations")).toDouble(), 3.0);
    QCOMPARE(box.value(QStringLiteral("memory")).toDouble(), double(256 * mebibyte));

    const QJsonObject content = QJsonDocument::fromJson(opened(file)).object();
    const QJsonArray accounts = content.value(QStringLiteral("accounts")).toArray();
    QCOMPARE(accounts.size(), 3);
    const QJsonObject first = accounts.first().toObject();
    QCOMPARE(first.value(QStringLiteral("password")).toString(), QStringLiteral("password of zoe@example.org"));
    QCOMPARE(first.value(QStringLiteral("settings")).toObject().value(QStringLiteral("proxy_password")).toString(),
             QStringLiteral("secret of zoe@example.org"));
    QJsonObject readable = file;
    readable.remove(secrets);
    QCOMPARE(content.value(QStringLiteral("binding")).toString(), digestOf(readable));
}

void tst_AccountFileSecrets::twoFilesHaveNothingRandomInCommon()
{
    const QJsonObject one = toJson(written()).value(secrets).toObject();
    const QJsonObject other = toJson(written()).value(secrets).toObject();
    for (const char *name : { "salt", "nonce", "data", "checksum" }) {
        QVERIFY2(!bytesOf(one, name).isEmpty(), name);
        QVERIFY2(bytesOf(one, name) != bytesOf(other, name), name);
    }
}

void tst_AccountFileSecrets::onlyThePassPhraseOpensThem_data()
{
    QTest::addColumn<QString>("phrase");
    QTest::newRow("another") << QStringLiteral("sesame");
    QTest::newRow("another case") << QStringLiteral("Open sesame");
    QTest::newRow("a space more") << QStringLiteral("open sesame ");
    QTest::newRow("a NUL more") << passPhrase + QChar(0);
    QTest::newRow("very long") << QString(1000000, QLatin1Char('x'));
}

void tst_AccountFileSecrets::onlyThePassPhraseOpensThem()
{
    QFETCH(QString, phrase);
    const QByteArray file = written();
    const KirvAccountFile::Result result = KirvAccountFile::read(file, phrase);
    QVERIFY(result.wrongPassPhrase);
    QVERIFY2(result.problem.contains(QStringLiteral("pass phrase does not decrypt")), qPrintable(result.problem));
    QVERIFY(result.accounts.accounts.isEmpty());
    QVERIFY(isSameResult(KirvAccountFile::read(file, passPhrase), sampleAccounts()));
}

void tst_AccountFileSecrets::withoutThePassPhraseTheyAreLeftOut()
{
    const QByteArray file = written();
    KirvQuickKeys::instance().made = 0;
    const KirvAccountFile::Result result = KirvAccountFile::read(file, noPassPhrase);
    QCOMPARE(result.problem, QString());
    QVERIFY(!result.wrongPassPhrase);
    QCOMPARE(result.accounts.leftOut.size(), 1);
    QCOMPARE(KirvQuickKeys::instance().made, 0);
    KirvMovedAccounts expected = sampleAccounts();
    for (KirvMovedAccount &account : expected.accounts) {
        account.record.password.clear();
        account.record.settings.remove(QStringLiteral("proxy_password"));
    }
    QVERIFY(isSameResult(result, expected));
}

/// Keyboards and systems compose the same characters in different ways.
void tst_AccountFileSecrets::formsOfTheSameCharactersAreOnePassPhrase()
{
    QString problem;
    const QByteArray file = KirvAccountFile::write(sampleAccounts(), QString::fromUtf8("scho\xcc\x88n"), &problem);
    QCOMPARE(KirvAccountFile::read(file, QString::fromUtf8("sch\xc3\xb6n")).problem, QString());
}

void tst_AccountFileSecrets::expensiveBoxIsRefusedBeforeItCosts_data()
{
    QTest::addColumn<double>("operations");
    QTest::addColumn<double>("memory");
    QTest::addColumn<bool>("isAllowed");
    QTest::newRow("most operations and memory") << 10. << 512. * mebibyte << true;
    QTest::newRow("least operations and memory") << 1. << 8192. << true;
    QTest::newRow("one operation more") << 11. << 8192. << false;
    QTest::newRow("a byte more") << 1. << 512. * mebibyte + 1 << false;
    QTest::newRow("most of both") << 9007199254740991. << 9007199254740991. << false;
    QTest::newRow("a terabyte") << 3. << 1048576. * mebibyte << false;
}

void tst_AccountFileSecrets::expensiveBoxIsRefusedBeforeItCosts()
{
    QFETCH(double, operations);
    QFETCH(double, memory);
    QFETCH(bool, isAllowed);
    const QJsonObject file = toJson(written());
    QJsonObject box = file.value(secrets).toObject();
    box.insert(QStringLiteral("operations"), operations);
    box.insert(QStringLiteral("memory"), memory);
    const QByteArray changed = toBytes(withBox(file, box));
    KirvQuickKeys::instance() = KirvQuickKeys();
    const KirvAccountFile::Result result = KirvAccountFile::read(changed, passPhrase);
    QCOMPARE(KirvQuickKeys::instance().made, isAllowed ? 1 : 0);
    QCOMPARE(result.wrongPassPhrase, isAllowed); // the key is another one
    QCOMPARE(result.problem.contains(QStringLiteral("than is allowed")), !isAllowed);
    QVERIFY(result.accounts.accounts.isEmpty());
    if (isAllowed) {
        QCOMPARE(KirvQuickKeys::instance().operations, qint64(operations));
        QCOMPARE(KirvQuickKeys::instance().memory, qint64(memory));
    }
}

void tst_AccountFileSecrets::missingMemoryIsReported()
{
    const QByteArray file = written();
    KirvQuickKeys::instance().hasMemory = false;
    QString problem;
    QCOMPARE(KirvAccountFile::write(sampleAccounts(), passPhrase, &problem), QByteArray());
    QVERIFY2(problem.contains(QStringLiteral("memory")), qPrintable(problem));
    const KirvAccountFile::Result result = KirvAccountFile::read(file, passPhrase);
    QVERIFY2(result.problem.contains(QStringLiteral("memory")), qPrintable(result.problem));
    QVERIFY(!result.wrongPassPhrase && result.accounts.accounts.isEmpty());
}

void tst_AccountFileSecrets::damageIsToldFromAWrongPassPhrase()
{
    QJsonObject file = toJson(written());
    QJsonObject box = file.value(secrets).toObject();
    for (const char *name : { "salt", "nonce", "data", "checksum" }) {
        QByteArray bytes = bytesOf(box, name);
        bytes[bytes.size() / 2] = char(bytes.at(bytes.size() / 2) ^ 0x10);
        QJsonObject damaged = box;
        damaged.insert(QLatin1String(name), QString::fromLatin1(bytes.toBase64()));
        file.insert(secrets, damaged);
        for (const QString &phrase : { passPhrase, noPassPhrase, QStringLiteral("wrong") }) {
            const KirvAccountFile::Result result = KirvAccountFile::read(toBytes(file), phrase);
            QVERIFY2(result.problem.contains(QStringLiteral("damaged")), name);
            QVERIFY2(!result.wrongPassPhrase, name);
            QVERIFY2(result.accounts.accounts.isEmpty(), name);
        }
    }
}

/// What can be changed without being refused is the layout of the file.
void tst_AccountFileSecrets::flippedBitsChangeNothing()
{
    KirvMovedAccounts accounts = sampleAccounts();
    accounts.accounts.first().picture.clear(); // warnings are printed for damaged ones
    const QByteArray file = written(accounts);
    int refused = 0;
    for (int index = 0; index < file.size(); ++index) {
        for (const int bit : { index % 8, (index + 3) % 8 }) {
            QByteArray flipped = file;
            flipped[index] = char(flipped.at(index) ^ (1 << bit));
            const KirvAccountFile::Result result = KirvAccountFile::read(flipped, passPhrase);
            const bool isRefused = !result.problem.isEmpty() && result.accounts.accounts.isEmpty();
            refused += int(isRefused);
            QVERIFY2(isRefused || isSameResult(result, accounts),
                     qPrintable(QStringLiteral("bit %1 of byte %2").arg(bit).arg(index)));
        }
    }
    QVERIFY2(refused > 1.9 * file.size(), qPrintable(QString::number(refused)));
}

void tst_AccountFileSecrets::malformedBoxIsRefused_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const char *member, const QJsonValue &value) {
        const QString key = QLatin1String(member);
        QTest::newRow(name) << Change([key, value](QJsonObject &box) { box.insert(key, value); });
    };
    row("unknown member", "hint", QStringLiteral("dog"));
    row("another derivation", "derivation", QStringLiteral("argon2i13"));
    row("derivation as a number", "derivation", 2);
    row("another cipher", "cipher", QStringLiteral("aes"));
    row("operations as text", "operations", QStringLiteral("3"));
    row("no operation", "operations", 0);
    row("less than an operation", "operations", -1);
    row("half an operation", "operations", 2.5);
    row("no number of operations", "operations", 1e300);
    row("too little memory", "memory", 8191);
    row("memory as an object", "memory", QJsonObject());
    row("short salt", "salt", QStringLiteral("AAAA"));
    row("salt that is not in base64", "salt", QStringLiteral("!!!!!!!!!!!!!!!!!!!!!!=="));
    row("short nonce", "nonce", QStringLiteral("AAAA"));
    row("short data", "data", QStringLiteral("AAAA"));
    row("no data", "data", QString());
    row("data as an array", "data", QJsonArray());
    for (const char *name : { "derivation", "operations", "memory", "salt", "cipher", "nonce", "data" }) {
        const QString key = QLatin1String(name);
        QTest::newRow((QByteArray("without ") + name).constData())
            << Change([key](QJsonObject &box) { box.remove(key); });
    }
}

void tst_AccountFileSecrets::malformedBoxIsRefused()
{
    QFETCH(Change, change);
    const QJsonObject file = toJson(written());
    QJsonObject box = file.value(secrets).toObject();
    change(box);
    KirvQuickKeys::instance() = KirvQuickKeys();
    for (const QString &phrase : { passPhrase, noPassPhrase }) {
        const KirvAccountFile::Result result = KirvAccountFile::read(toBytes(withBox(file, box)), phrase);
        QVERIFY2(result.problem.contains(QStringLiteral("damaged")), qPrintable(result.problem));
        QVERIFY(!result.wrongPassPhrase && result.accounts.accounts.isEmpty());
    }
    QCOMPARE(KirvQuickKeys::instance().made, 0);
}

void tst_AccountFileSecrets::changedAccountsGetNoPasswords_data()
{
    QTest::addColumn<Change>("change");
    const auto member = [](const char *name, const char *member, const QJsonValue &value) {
        const QString key = QLatin1String(member);
        QTest::newRow(name) << Change([key, value](QJsonObject &file) {
            QJsonArray accounts = file.value(QStringLiteral("accounts")).toArray();
            QJsonObject account = accounts.last().toObject(); // not the main account
            account.insert(key, value);
            accounts[accounts.size() - 1] = account;
            file.insert(QStringLiteral("accounts"), accounts);
        });
    };
    const auto list = [](const char *name, const std::function<void(QJsonArray &)> &change) {
        QTest::newRow(name) << Change([change](QJsonObject &file) {
            QJsonArray accounts = file.value(QStringLiteral("accounts")).toArray();
            change(accounts);
            file.insert(QStringLiteral("accounts"), accounts);
        });
    };
    member("another server", "settings", QJsonObject { { QStringLiteral("server"), QStringLiteral("bad.example") } });
    member("another login", "login", QStringLiteral("anna@bad.example"));
    member("another protocol", "protocol", QStringLiteral("IRC"));
    member("another alias", "alias", QStringLiteral("x"));
    member("disabled", "enabled", false);
    member("another certificate", "trusted_certificate", QString(64, QLatin1Char('b')));
    member("fewer secret settings", "secret_settings", QJsonArray());
    member("more secret settings", "secret_settings",
           QJsonArray { QStringLiteral("proxy_password"), QStringLiteral("x") });
    member("a picture", "picture", QString::fromLatin1(samplePicture().toBase64()));
    list("another order", [](QJsonArray &accounts) { accounts.append(accounts.takeAt(0)); });
    list("one less", [](QJsonArray &accounts) { accounts.removeLast(); });
    list("one more", [](QJsonArray &accounts) {
        accounts.append(QJsonObject { { QStringLiteral("login"), QStringLiteral("eve") },
                                      { QStringLiteral("protocol"), QStringLiteral("XMPP") } });
    });
    QTest::newRow("no main account") << Change([](QJsonObject &file) { file.remove(QStringLiteral("main_account")); });
    QTest::newRow("secrets of another file with the pass phrase") << Change([](QJsonObject &file) {
        KirvMovedAccounts others = sampleAccounts();
        others.accounts[1].record.alias = QStringLiteral("x");
        file.insert(secrets, toJson(written(others)).value(secrets));
    });
}

void tst_AccountFileSecrets::changedAccountsGetNoPasswords()
{
    QFETCH(Change, change);
    QJsonObject file = toJson(written());
    change(file);
    const KirvAccountFile::Result result = KirvAccountFile::read(toBytes(file), passPhrase);
    QVERIFY2(result.problem.contains(QStringLiteral("changed after it was written")), qPrintable(result.problem));
    QVERIFY(result.accounts.accounts.isEmpty());
    QVERIFY(!result.wrongPassPhrase);
}

void tst_AccountFileSecrets::layoutOfTheFileDoesNotMatter()
{
    const QByteArray compact = QJsonDocument::fromJson(written()).toJson(QJsonDocument::Compact);
    QVERIFY(isSameResult(KirvAccountFile::read(compact, passPhrase), sampleAccounts()));
}

/// Otherwise accounts of somebody else could come in the place of those that were expected.
void tst_AccountFileSecrets::removedEncryptionIsNoticed()
{
    QJsonObject file = toJson(written());
    file.remove(secrets);
    const KirvAccountFile::Result result = KirvAccountFile::read(toBytes(file), passPhrase);
    QVERIFY2(result.problem.contains(QStringLiteral("contains no passwords")), qPrintable(result.problem));
    QVERIFY(result.accounts.accounts.isEmpty() && !result.wrongPassPhrase);
    QVERIFY(!KirvAccountFile::hasSecrets(toBytes(file)));
}

void tst_AccountFileSecrets::hostileContentIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char *name, const QByteArray &accounts) {
        QTest::newRow(name) << R"({"accounts":[)" + accounts + R"(],"binding":"BINDING"})";
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("password");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("depth 1,000,000") << QByteArray(1000000, '[');
    QTest::newRow("3,000,000 empty objects") << "[" + QByteArray("{},").repeated(3000000) + "{}]";
    QTest::newRow("no binding") << QByteArray(R"({"accounts":[{},{},{}]})");
    QTest::newRow("binding as a number") << QByteArray(R"({"accounts":[{},{},{}],"binding":5})");
    QTest::newRow("accounts as text") << QByteArray(R"({"accounts":"x","binding":"BINDING"})");
    QTest::newRow("unknown member") << QByteArray(R"({"accounts":[{},{},{}],"binding":"BINDING","x":1})");
    row("too few", "{},{}");
    row("too many", "{},{},{},{}");
    row("null", "{},null,{}");
    row("unknown member of an account", R"({},{"x":1},{})");
    row("password as a number", R"({},{"password":1},{})");
    row("password too long", R"({},{},{"password":")" + QByteArray(32768, 'x') + "\"}");
    row("password with NUL", R"({},{},{"password":"a\u0000b"})");
    row("settings as an array", R"({},{"settings":[]},{})");
    row("setting as a number", R"({},{"settings":{"proxy_password":5}},{})");
    row("setting that is not secret", R"({},{"settings":{"server":"bad.example"}},{})");
    row("setting of the program", R"({},{"settings":{"kirv/x":"y"}},{})");
    row("setting with a control character", R"({},{"settings":{"proxy_password":"\u001b"}},{})");
    row("wrong UTF-8", "{},{\"password\":\"\xff\"},{}");
}

void tst_AccountFileSecrets::hostileContentIsRefused()
{
    QFETCH(QByteArray, content);
    const QJsonObject file = toJson(written());
    QJsonObject readable = file;
    readable.remove(secrets);
    content.replace("BINDING", digestOf(readable).toLatin1());
    const KirvAccountFile::Result result = KirvAccountFile::read(toBytes(withContent(file, content)), passPhrase);
    QVERIFY2(result.problem.contains(QStringLiteral("passwords in the file are damaged")), qPrintable(result.problem));
    QVERIFY(result.accounts.accounts.isEmpty());

    const QByteArray harmless = R"({"accounts":[{},{},{}],"binding":")" + digestOf(readable).toLatin1() + "\"}";
    QCOMPARE(KirvAccountFile::read(toBytes(withContent(file, harmless)), passPhrase).problem, QString());
}

QTEST_GUILESS_MAIN(tst_AccountFileSecrets)
#include "tst_account_file_secrets.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_pidgin_file.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {

QByteArray sample()
{
    return contentOf(QStringLiteral(KIRV_TEST_DATA "/pidgin_accounts.xml"));
}

QByteArray document(const QByteArray &content)
{
    return "<?xml version='1.0' encoding='UTF-8' ?>\n\n<account version='1.0'>" + content + "</account>\n";
}

/// A file with one account of \a protocol, which logs in by itself, and \a settings.
QByteArray accountFile(const QByteArray &protocol, const QByteArray &name, const QByteArray &settings,
                       const QByteArray &more = QByteArray())
{
    return document("<account><protocol>" + protocol + "</protocol><name>" + name + "</name>" + more + "<settings>"
                    + settings
                    + "</settings><settings ui='gtk-gaim'><setting name='auto-login' type='bool'>1</setting></settings>"
                      "</account>");
}

QByteArray setting(const char *name, const char *type, const QByteArray &value)
{
    return QByteArray("<setting name='") + name + "' type='" + type + "'>" + value + "</setting>";
}

QString settingsOf(const KirvAccountRecord &record)
{
    QStringList texts;
    for (auto value = record.settings.constBegin(); value != record.settings.constEnd(); ++value)
        texts << value.key() + QLatin1Char('=') + value.value();
    return texts.join(QLatin1Char(' '));
}

const QString ofGlobalProxy = QStringLiteral("If Pidgin uses a proxy for all accounts, it is not in this file. Set it "
                                             "for the accounts before they log in.");

} // namespace

/// The accounts of Pidgin, as that program writes them and as somebody else could.
class tst_PidginFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFileOfPidginIsTakenOver_data();
    void theFileOfPidginIsTakenOver();
    void whatIsLeftOutOfTheFileHasAReason();
    void settingsBecomeOurs_data();
    void settingsBecomeOurs();
    void loginsAreSplit_data();
    void loginsAreSplit();
    void accountThatDoesNotLogInByItselfIsDisabled_data();
    void accountThatDoesNotLogInByItselfIsDisabled();
    void proxiesAreTakenOver_data();
    void proxiesAreTakenOver();
    void passwordIsTakenAsItIs();
    void textsAreShownInOneLine();
    void hostileFileIsRefused_data();
    void hostileFileIsRefused();
    void truncatedFileIsRefused();
    void longTagsTakeLittleTime();
    void whatIsNotOfInterestIsSkipped();
    void filesAreRecognised_data();
    void filesAreRecognised();
    void theFileIsWhereTheEnvironmentSays();
};

void tst_PidginFile::theFileOfPidginIsTakenOver_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("protocol");
    QTest::addColumn<QString>("alias");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("settings");

    QTest::newRow("XMPP with direct TLS, server, port and resource")
        << 0 << "anna@example.org"
        << "XMPP" << QStringLiteral("Anna \u00c5ngstr\u00f6m") << "s3cr&t<1>"
        << "encryption=direct port=5223 resource=Laptop server=xmpp.example.org";
    QTest::newRow("XMPP with another alphabet and without a password")
        << 1 << QStringLiteral("work@b\u00fccher.example") << "XMPP"
        << ""
        << ""
        << "encryption=required";
    QTest::newRow("IRC with TLS and SASL")
        << 2 << "anna_@irc.example.net"
        << "IRC"
        << ""
        << "ircpw" << QStringLiteral("encryption=required password_use=sasl port=6697 real_name=Anna \u00c5.");
}

void tst_PidginFile::theFileOfPidginIsTakenOver()
{
    QFETCH(int, index);
    const KirvPidginFile::Result result = KirvPidginFile::read(sample());
    QCOMPARE(result.problem, QString());
    QCOMPARE(int(result.accounts.accounts.size()), 3);
    QCOMPARE(result.accounts.mainAccount.id, QString());
    const KirvMovedAccount account = result.accounts.accounts.at(index);
    const KirvAccountRecord &record = account.record;
    QTEST(record.key.id, "id");
    QTEST(record.key.protocol, "protocol");
    QTEST(record.alias, "alias");
    QTEST(record.password, "password");
    QCOMPARE(record.rememberPassword, !record.password.isEmpty());
    QVERIFY(!record.enabled);
    QTEST(settingsOf(record), "settings");
    QCOMPARE(record.secretSettings, QSet<QString>());
    QCOMPARE(account.picture, QByteArray());
}

void tst_PidginFile::whatIsLeftOutOfTheFileHasAReason()
{
    const QStringList expected {
        "Settings of the account \"anna_@irc.example.net\" were left out, as there are no such settings here: "
        "username.",
        "The account \"someone\" was left out: the protocol GroupWise is not supported.",
    };
    QCOMPARE(KirvPidginFile::read(sample()).accounts.leftOut, expected);
}

void tst_PidginFile::settingsBecomeOurs_data()
{
    QTest::addColumn<QByteArray>("protocol");
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("leftOut"); ///< the beginning of the sentence

    const QByteArray xmpp = "prpl-jabber", irc = "prpl-irc";
    const QString required = QStringLiteral("encryption=required");
    QTest::newRow("security is missing") << xmpp << QByteArray() << required << "";
    const struct {
        const char *name, *type, *value, *ours, *leftOut;
    } securities[] = {
        { "TLS is required", "string", "require_tls", "required", "" },
        { "TLS if there is some", "string", "opportunistic_tls", "offered", "" },
        { "direct TLS", "string", "old_ssl", "direct", "" },
        { "no security that Pidgin knows", "string", "none", "required", "The account \"anna@b\" now requires" },
        { "security is empty", "string", "", "required", "The account \"anna@b\" now requires" },
        { "security of another type", "int", "opportunistic_tls", "required", "The account \"anna@b\" now requires" },
    };
    for (const auto &security : securities)
        QTest::newRow(security.name) << xmpp << setting("connection_security", security.type, security.value)
                                     << QStringLiteral("encryption=") + security.ours << security.leftOut;
    QTest::newRow("direct TLS of an old version") << xmpp << setting("old_ssl", "bool", "1") << "encryption=direct"
                                                  << "";
    QTest::newRow("TLS of an old version") << xmpp << setting("require_tls", "bool", "0") << required << "";
    QTest::newRow("passwords in clear") << xmpp << setting("auth_plain_in_clear", "bool", "1") << required
                                        << "The account \"anna@b\" does not send its password";
    QTest::newRow("passwords not in clear") << xmpp << setting("auth_plain_in_clear", "bool", "0") << required << "";
    for (const char *port : { "0", "65536", "-1", "x", "", "99999999999999999999" })
        QTest::addRow("port \"%s\"", port)
            << xmpp << setting("port", "int", port) << required << "The port of the account \"anna@b\" was left out";
    QTest::newRow("port of another type")
        << xmpp << setting("port", "string", "5222") << required << "The port of the account \"anna@b\" was left out";
    QTest::newRow("no server") << xmpp << setting("connect_server", "string", "") << required << "";
    for (const char *server : { "a b", "a/b", "a@b", "a&#9;b", "a&#x7f;b" })
        QTest::addRow("server \"%s\"", server) << xmpp << setting("connect_server", "string", server) << required
                                               << "The server of the account \"anna@b\" was left out";
    QTest::newRow("server of another type") << xmpp << setting("connect_server", "int", "a") << required
                                            << "The server of the account \"anna@b\" was left out";
    QTest::newRow("address as server") << xmpp << setting("connect_server", "string", "::1")
                                       << "encryption=required server=::1"
                                       << "";
    QTest::newRow("others") << xmpp << setting("ft_proxies", "string", "p") + setting("bosh_url", "string", "u")
                            << required
                            << "Settings of the account \"anna@b\" were left out, as there are no such settings here: "
                               "bosh_url, ft_proxies.";
    QTest::newRow("others that do nothing")
        << xmpp
        << setting("bosh_url", "string", "") + setting("x", "bool", "0") + setting("custom_smileys", "bool", "1")
        << required << "";
    QTest::newRow("picture") << xmpp << setting("buddyicon", "string", "0.png") << required
                             << "The picture of the account \"anna@b\" was left out";

    QTest::newRow("IRC as it is at first") << irc << QByteArray() << "encryption=none port=6667"
                                           << "";
    QTest::newRow("IRC with TLS") << irc << setting("ssl", "bool", "1") << required << "";
    QTest::newRow("IRC with something for TLS") << irc << setting("ssl", "string", "0") << required << "";
    QTest::newRow("IRC without TLS") << irc << setting("ssl", "bool", "0") + setting("port", "int", "7000")
                                     << "encryption=none port=7000"
                                     << "";
    QTest::newRow("IRC with SASL, which sends no password in clear")
        << irc << setting("sasl", "bool", "1") + setting("port", "int", "6667")
        << "encryption=required password_use=sasl"
        << "The account \"anna@b\" now requires encryption";
    QTest::newRow("IRC with SASL, which may send it")
        << irc << setting("sasl", "bool", "1") + setting("auth_plain_in_clear", "bool", "1")
        << "encryption=none password_use=sasl port=6667"
        << "";
    QTest::newRow("IRC with a SASL user")
        << irc << setting("ssl", "bool", "1") + setting("sasl", "bool", "1") + setting("sasl_login_name", "string", "a")
        << "encryption=required password_use=sasl sasl_user=a"
        << "";
    QTest::newRow("UTF-8") << irc << setting("ssl", "bool", "1") + setting("encoding", "string", "utf-8") << required
                           << "";
    QTest::newRow("another encoding") << irc << setting("ssl", "bool", "1") + setting("encoding", "string", "KOI8-R")
                                      << required << "The account \"anna@b\" uses UTF-8 instead of the encoding KOI8-R";
}

void tst_PidginFile::settingsBecomeOurs()
{
    QFETCH(QByteArray, protocol);
    QFETCH(QByteArray, given);
    QFETCH(QString, leftOut);
    const KirvPidginFile::Result result = KirvPidginFile::read(accountFile(protocol, "anna@b", given));
    QCOMPARE(result.problem, QString());
    QCOMPARE(int(result.accounts.accounts.size()), 1);
    QTEST(settingsOf(result.accounts.accounts.first().record), "settings");
    QVERIFY(result.accounts.accounts.first().record.enabled);
    const QStringList sentences = result.accounts.leftOut;
    QCOMPARE(sentences.last(), ofGlobalProxy);
    QCOMPARE(int(sentences.size()), leftOut.isEmpty() ? 1 : 2);
    QVERIFY2(sentences.first().startsWith(leftOut.isEmpty() ? ofGlobalProxy : leftOut), qPrintable(sentences.first()));
}

void tst_PidginFile::loginsAreSplit_data()
{
    QTest::addColumn<QByteArray>("protocol");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("id"); ///< null: the account is left out
    QTest::addColumn<QString>("resource");
    QTest::addColumn<QString>("leftOut");

    const QByteArray xmpp = "prpl-jabber", irc = "prpl-irc";
    const QString resourceOfA = QStringLiteral("The resource of the account \"a@b/");
    QTest::newRow("without a resource") << xmpp << QByteArray("a@b") << "a@b"
                                        << ""
                                        << "";
    QTest::newRow("empty resource") << xmpp << QByteArray("a@b/") << "a@b"
                                    << ""
                                    << "";
    QTest::newRow("resource with separators") << xmpp << QByteArray("a@b/c/d@e") << "a@b"
                                              << "c/d@e"
                                              << "";
    QTest::newRow("name of the computer") << xmpp << QByteArray("a@b/__HOSTNAME__") << "a@b"
                                          << "" << resourceOfA;
    QTest::newRow("resource with a star") << xmpp << QByteArray("a@b/c*") << "a@b"
                                          << "" << resourceOfA;
    QTest::newRow("resource of two lines") << xmpp << QByteArray("a@b/c&#10;d") << "a@b"
                                           << "" << resourceOfA;
    QTest::newRow("blanks around") << xmpp << QByteArray("\n\t a@b/c \n") << "a@b"
                                   << "c"
                                   << "";
    QTest::newRow("only a resource") << xmpp << QByteArray("/c") << ""
                                     << "c"
                                     << "";
    QTest::newRow("nothing") << xmpp << QByteArray(" ") << QString() << ""
                             << "An account was left out: it has no login.";
    QTest::newRow("IRC with characters of nicks") << irc << QByteArray("a[/]@b") << "a[/]@b"
                                                  << ""
                                                  << "";
    QTest::newRow("IRC without a server") << irc << QByteArray("a") << "a"
                                          << ""
                                          << "The account \"a\" has no server. Enter one before it is used.";
    QTest::newRow("another protocol") << QByteArray("prpl-zephyr") << QByteArray("a") << QString() << ""
                                      << "The account \"a\" was left out: the protocol Zephyr is not supported.";
    QTest::newRow("unknown protocol") << QByteArray("prpl-x&#10;y") << QByteArray("a") << QString() << ""
                                      << "The account \"a\" was left out: the protocol prpl-x y is not supported.";
    QTest::newRow("no protocol") << QByteArray() << QByteArray("a") << QString() << ""
                                 << "The account \"a\" was left";
}

void tst_PidginFile::loginsAreSplit()
{
    QFETCH(QByteArray, protocol);
    QFETCH(QByteArray, name);
    QFETCH(QString, id);
    QFETCH(QString, leftOut);
    const KirvPidginFile::Result result = KirvPidginFile::read(accountFile(protocol, name, QByteArray()));
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.accounts.accounts.isEmpty(), id.isNull());
    if (!id.isNull()) {
        QCOMPARE(result.accounts.accounts.first().record.key.id, id);
        QTEST(result.accounts.accounts.first().record.settings.value("resource"), "resource");
    }
    const QString first = result.accounts.leftOut.first();
    QVERIFY2(first.startsWith(leftOut.isEmpty() ? ofGlobalProxy : leftOut), qPrintable(first));
}

void tst_PidginFile::accountThatDoesNotLogInByItselfIsDisabled_data()
{
    QTest::addColumn<QByteArray>("interfaces");
    QTest::addColumn<bool>("isEnabled");
    const auto ofInterface = [](const char *name, const char *type, const char *value) {
        return QByteArray("<settings ui='") + name + "'>" + setting("auto-login", type, value) + "</settings>";
    };
    QTest::newRow("it does") << ofInterface("gtk-gaim", "bool", "1") << true;
    QTest::newRow("it does not") << ofInterface("gtk-gaim", "bool", "0") << false;
    QTest::newRow("missing") << QByteArray("<settings ui='gtk-gaim'/>") << false;
    QTest::newRow("no interface") << QByteArray() << false;
    QTest::newRow("it does elsewhere") << ofInterface("gtk-gaim", "bool", "0") + ofInterface("gnt-purple", "bool", "1")
                                       << true;
    QTest::newRow("of no interface") << "<settings>" + setting("auto-login", "bool", "1") + "</settings>" << false;
    QTest::newRow("another type") << ofInterface("gtk-gaim", "string", "1") << false;
    QTest::newRow("another value") << ofInterface("gtk-gaim", "bool", "yes") << false;
}

void tst_PidginFile::accountThatDoesNotLogInByItselfIsDisabled()
{
    QFETCH(QByteArray, interfaces);
    const KirvPidginFile::Result result = KirvPidginFile::read(
        document("<account><protocol>prpl-jabber</protocol><name>a@b</name>" + interfaces + "</account>"));
    QCOMPARE(int(result.accounts.accounts.size()), 1);
    QTEST(result.accounts.accounts.first().record.enabled, "isEnabled");
}

void tst_PidginFile::proxiesAreTakenOver_data()
{
    QTest::addColumn<QByteArray>("proxy");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<bool>("isEnabled");

    const QByteArray host = "<host>p.example</host>", port = "<port>8080</port>";
    const QByteArray user = "<username>u</username><password>pw</password>";
    const QString all = QStringLiteral("encryption=required proxy=%1 proxy_host=p.example proxy_password=pw "
                                       "proxy_port=8080 proxy_user=u");
    const QString none = QStringLiteral("encryption=required");
    QTest::newRow("SOCKS5") << "<type>socks5</type>" + host + port + user << all.arg("socks5") << true;
    QTest::newRow("HTTP") << "<type>http</type>" + host + port + user << all.arg("http") << true;
    QTest::newRow("Tor") << "<type>tor</type>" + host + port
                         << "encryption=required proxy=socks5 proxy_host=p.example proxy_password= proxy_port=8080 "
                            "proxy_user="
                         << true;
    QTest::newRow("usual port") << "<type>socks5</type>" + host
                                << "encryption=required proxy=socks5 proxy_host=p.example proxy_password= "
                                   "proxy_port=1080 proxy_user="
                                << true;
    QTest::newRow("environment") << QByteArray("<type>envvar</type>")
                                 << "encryption=required proxy=system proxy_host= proxy_password= proxy_port=1080 "
                                    "proxy_user="
                                 << true;
    QTest::newRow("none") << QByteArray("<type>none</type>") << none << true;
    QTest::newRow("that of all accounts") << QByteArray("<type>global</type>") << none << true;
    QTest::newRow("SOCKS4") << "<type>socks4</type>" + host + port << none << false;
    QTest::newRow("unknown kind") << "<type>x</type>" + host + port << none << false;
    QTest::newRow("no host") << "<type>http</type>" + port << none << false;
    QTest::newRow("no port") << "<type>http</type>" + host + "<port>x</port>" << none << false;
    QTest::newRow("password without a user") << "<type>http</type>" + host + "<password>p</password>" << none << false;
}

void tst_PidginFile::proxiesAreTakenOver()
{
    QFETCH(QByteArray, proxy);
    QFETCH(bool, isEnabled);
    const KirvPidginFile::Result result =
        KirvPidginFile::read(accountFile("prpl-jabber", "a@b", QByteArray(), "<proxy>" + proxy + "</proxy>"));
    QCOMPARE(int(result.accounts.accounts.size()), 1);
    const KirvAccountRecord record = result.accounts.accounts.first().record;
    QTEST(settingsOf(record), "settings");
    QCOMPARE(record.enabled, isEnabled);
    if (record.settings.contains("proxy_password"))
        QCOMPARE(record.secretSettings, QSet<QString> { "proxy_password" });
    QCOMPARE(result.accounts.leftOut.value(0).startsWith("The proxy of the account \"a@b\" was left out."), !isEnabled);
    QCOMPARE(result.accounts.leftOut.contains(ofGlobalProxy), proxy.contains("global"));
}

void tst_PidginFile::passwordIsTakenAsItIs()
{
    const KirvPidginFile::Result result = KirvPidginFile::read(
        accountFile("prpl-irc", "a@b", QByteArray(), "<password> &#10;<![CDATA[<&>]]> \xe2\x80\xae&amp; </password>"));
    QCOMPARE(int(result.accounts.accounts.size()), 1);
    const KirvAccountRecord record = result.accounts.accounts.first().record;
    QCOMPARE(record.password, QStringLiteral(" \n<&> \u202e& "));
    QVERIFY(record.rememberPassword);
    QCOMPARE(record.settings.value("password_use"), QStringLiteral("server"));
}

/// The beginning of a login cannot turn the sentence around it.
void tst_PidginFile::textsAreShownInOneLine()
{
    const KirvPidginFile::Result result =
        KirvPidginFile::read(accountFile("prpl-msn", "a&#10;b\xe2\x80\xae", QByteArray(), "<alias>x</alias>"));
    QCOMPARE(result.accounts.leftOut.value(0),
             QStringLiteral("The account \"a b\" was left out: the protocol MSN is not supported."));
    const QByteArray alias = "<alias>a&#10;b&#9;c</alias>";
    const KirvPidginFile::Result other = KirvPidginFile::read(accountFile("prpl-irc", "a@b", QByteArray(), alias));
    QCOMPARE(other.accounts.accounts.value(0).record.alias, QStringLiteral("a b c"));
}

void tst_PidginFile::hostileFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem"); ///< its beginning

    const QString noFile = QStringLiteral("The file does not hold accounts of Pidgin.");
    const QString damaged = QStringLiteral("The file is damaged or no XML");
    const QString entities = QStringLiteral("The file declares a document type");
    const QString nested = QStringLiteral("The elements of the file are nested too deeply");
    const QString tooLong = QStringLiteral("A text in the file is too long.");
    const QByteArray good = accountFile("prpl-jabber", "a@b", QByteArray());
    const QByteArray root = "<account version='1.0'>";
    QTest::newRow("nothing") << QByteArray() << damaged;
    QTest::newRow("no XML") << QByteArray("{}") << damaged;
    QTest::newRow("another root") << QByteArray("<accounts version='1.0'/>") << noFile;
    QTest::newRow("no version") << QByteArray("<account/>") << noFile;
    QTest::newRow("another version") << QByteArray("<account version='2.0'/>") << "The file is of another version";
    QTest::newRow("zeros") << good + QByteArray(3, '\0') << "The file is no text.";
    QTest::newRow("two documents") << good + good << damaged;
    QTest::newRow("text behind, far away") << good + QByteArray(40000, ' ') + "x"
                                           << "Something follows the accounts in the file.";
    QTest::newRow("no UTF-8") << accountFile("prpl-jabber", "a\xff", QByteArray()) << damaged;
    QTest::newRow("another encoding") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?>") + root + "</account>"
                                      << "The file is not encoded as UTF-8.";
    QTest::newRow("document type") << "<!DOCTYPE account>" + good.mid(good.indexOf(root)) << entities;
    QByteArray laughs = "<!DOCTYPE a [<!ENTITY a0 'ha'>";
    for (int i = 1; i < 20; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ";";
        laughs += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
    }
    QTest::newRow("entities of entities") << laughs + "]>" + root + "<x>&a19;</x></account>" << entities;
    QTest::newRow("file as entity") << "<!DOCTYPE a [<!ENTITY f SYSTEM 'file:///etc/passwd'>]>" + root
            + "<account><name>&f;</name></account></account>"
                                    << entities;
    QTest::newRow("unknown entity") << document("<account><name>&f;</name></account>") << damaged;
    QTest::newRow("deep elements") << document(QByteArray("<a>").repeated(100000)) << nested;
    QTest::newRow("deep and closed") << document(QByteArray("<a>").repeated(40) + QByteArray("</a>").repeated(40))
                                     << nested;
    QByteArray attributes;
    for (int i = 0; i < 30; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    QTest::newRow("many attributes") << document("<a" + attributes + "/>") << nested;
    QTest::newRow("long login") << accountFile("prpl-jabber", QByteArray(40000, 'a'), QByteArray()) << tooLong;
    QTest::newRow("long text in parts") << accountFile("prpl-jabber", QByteArray("aaaa<!---->").repeated(20000),
                                                       QByteArray())
                                        << tooLong;
    QTest::newRow("long attribute") << document("<a b='" + QByteArray(300000, 'a') + "'/>") << tooLong;
    QTest::newRow("long name of an element") << document("<" + QByteArray(300000, 'a') + "/>") << damaged;
    QTest::newRow("elements in a text") << document("<account><name><b>a</b></name></account>")
                                        << "There are elements in the file where a text is expected";
    QTest::newRow("many settings") << accountFile("prpl-jabber", "a@b", setting("a", "int", "1").repeated(501))
                                   << "An account in the file has too many settings.";
    QTest::newRow("many accounts") << document(QByteArray("<account/>").repeated(10001)) << "The file has more than";
    QTest::newRow("control character") << accountFile("prpl-jabber", "a&#1;", QByteArray()) << damaged;
    QTest::newRow("control byte") << accountFile("prpl-jabber", "a\x01", QByteArray()) << damaged;
    QTest::newRow("large file") << document(QByteArray(KirvPidginFile::largestFile, ' ')) << "The file is too large.";
}

void tst_PidginFile::hostileFileIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);
    const KirvPidginFile::Result result = KirvPidginFile::read(bytes);
    QVERIFY2(result.problem.startsWith(problem), qPrintable(result.problem));
    QVERIFY(!problem.isEmpty());
    QVERIFY(result.accounts.accounts.isEmpty());
    QVERIFY(result.accounts.leftOut.isEmpty());
}

void tst_PidginFile::truncatedFileIsRefused()
{
    const QByteArray whole = sample().trimmed();
    QCOMPARE(KirvPidginFile::read(whole).problem, QString());
    for (int size = 0; size < whole.size(); ++size) {
        const KirvPidginFile::Result result = KirvPidginFile::read(whole.left(size));
        QVERIFY2(!result.problem.isEmpty(), qPrintable(QString::number(size)));
        QVERIFY2(result.accounts.accounts.isEmpty(), qPrintable(QString::number(size)));
    }
}

/// The reader's time grows with the square of the attributes of a tag: hours for as many as a file could have.
void tst_PidginFile::longTagsTakeLittleTime()
{
    QByteArray tag = "<a";
    for (int i = 0; tag.size() < 8 * 1024 * 1024; ++i)
        tag += " a" + QByteArray::number(i, 36) + "=''";
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!KirvPidginFile::read(document(tag + "/>")).problem.isEmpty());
    QVERIFY(!KirvPidginFile::isOne(tag));
    QVERIFY2(timer.elapsed() < kirvPatience, qPrintable(QString::number(timer.elapsed())));
}

void tst_PidginFile::whatIsNotOfInterestIsSkipped()
{
    QByteArray statuses = "<statuses>";
    for (int i = 0; i < 5000; ++i)
        statuses += "<status type='away' name='Away' active='false'><attributes><attribute id='message' "
                    "value='gone'/></attributes></status>";
    statuses += "</statuses>";
    const KirvPidginFile::Result result =
        KirvPidginFile::read(accountFile("prpl-jabber", "a@b", QByteArray(), statuses + "<x><name>c</name></x>"));
    QCOMPARE(result.problem, QString());
    QCOMPARE(int(result.accounts.accounts.size()), 1);
    QCOMPARE(result.accounts.accounts.first().record.key.id, QStringLiteral("a@b"));
}

void tst_PidginFile::filesAreRecognised_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isOne");
    QTest::newRow("sample") << sample() << true;
    QTest::newRow("its beginning") << sample().left(100) << true;
    QTest::newRow("another version") << QByteArray("<account version='2.0'>") << true;
    QTest::newRow("no accounts") << QByteArray("<account version='1.0'/>") << true;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("list of contacts") << QByteArray("<purple version='1.0'>") << false;
    QTest::newRow("JSON") << QByteArray("{\"format\": 1}") << false;
    QTest::newRow("zeros") << QByteArray(100, '\0') << false;
    QTest::newRow("document type") << QByteArray("<!DOCTYPE account><account version='1.0'>") << false;
}

void tst_PidginFile::filesAreRecognised()
{
    QFETCH(QByteArray, bytes);
    QTEST(KirvPidginFile::isOne(bytes), "isOne");
}

void tst_PidginFile::theFileIsWhereTheEnvironmentSays()
{
    qunsetenv("PURPLEHOME");
    QCOMPARE(KirvPidginFile::defaultPath(), QDir::home().filePath(".purple/accounts.xml"));
    qputenv("PURPLEHOME", "/srv/anna");
    QCOMPARE(KirvPidginFile::defaultPath(), QStringLiteral("/srv/anna/.purple/accounts.xml"));
    qunsetenv("PURPLEHOME");
}

QTEST_GUILESS_MAIN(tst_PidginFile)
#include "tst_pidgin_file.moc"

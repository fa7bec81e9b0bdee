// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_settings.h"
#include "tests/support/kirv_field_texts.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QList<KirvField> onServer { text("server", "irc.example.org") };

} // namespace

/// What login, password and fields of an IRC account mean.
class tst_IrcSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void loginIsNickAndNetwork_data();
    void loginIsNickAndNetwork();
    void portFollowsTheServerOfTheLogin_data();
    void portFollowsTheServerOfTheLogin();
    void missingFieldsHaveDefaults();
    void fieldsAreRead();
    void problemsAreReported_data();
    void problemsAreReported();
    void missingServerIsReportedByItself();
    void passwordHasOneUse_data();
    void passwordHasOneUse();
    void clientCertificateTakesThePlaceOfThePassword_data();
    void clientCertificateTakesThePlaceOfThePassword();
    void keyIsInTheCertificatesFileUnlessThereIsAnother();
    void clientCertificateNeedsEncryption();
    void filesAreFields();
    void alternativesAreTriedInTheirOrder();
    void userNameIsLettersAndDigits_data();
    void userNameIsLettersAndDigits();
    void realNameIsOneLine();
    void configurationsAreEncryptedNetworks();
    void testReplacesNothingThatDecidesWhereAPasswordGoes();
    void localConfigurationUsesTheLocalPort();
    void loginPatternAccepts_data();
    void loginPatternAccepts();
    void problemsOfLoginsAreSaid_data();
    void problemsOfLoginsAreSaid();
    void spellingsOfANickAreOneLogin_data();
    void spellingsOfANickAreOneLogin();
};

void tst_IrcSettings::loginIsNickAndNetwork_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<QString>("serverField");
    QTest::addColumn<QString>("nick");
    QTest::addColumn<QString>("server");
    QTest::newRow("nick and server") << "alice"
                                     << "irc.example.org"
                                     << "alice"
                                     << "irc.example.org";
    QTest::newRow("server in the login") << "alice@irc.libera.chat"
                                         << ""
                                         << "alice"
                                         << "irc.libera.chat";
    QTest::newRow("field wins") << "alice@work"
                                << "irc.example.org"
                                << "alice"
                                << "irc.example.org";
    QTest::newRow("no server") << "alice"
                               << " "
                               << "alice"
                               << "";
}

void tst_IrcSettings::loginIsNickAndNetwork()
{
    QFETCH(QString, login);
    QFETCH(QString, serverField);
    const KirvIrcSettings settings(login, QString(), { text("server", serverField) });
    QTEST(settings.nick, "nick");
    QTEST(settings.server, "server");
}

void tst_IrcSettings::portFollowsTheServerOfTheLogin_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<QString>("serverField");
    QTest::addColumn<QString>("server");
    QTest::addColumn<int>("port");
    QTest::addColumn<bool>("works");
    const auto add = [](const char *name, const QString &login, const QString &serverField, const QString &server,
                        int port,
                        bool works) { QTest::newRow(name) << login << serverField << server << port << works; };
    add("none", "ann@irc.example.org", "", "irc.example.org", 7000, true);
    add("port", "ann@irc.example.org:6667", "", "irc.example.org", 6667, true);
    add("highest", "ann@irc.example.org:65535", "", "irc.example.org", 65535, true);
    add("address", "ann@192.0.2.7:6667", "", "192.0.2.7", 6667, true);
    add("address of IPv6", "ann@2001:db8::7", "", "2001:db8::7", 7000, true);
    add("address of IPv6 that ends in digits", "ann@2001:db8::6667", "", "2001:db8::6667", 7000, true);
    add("name only", "ann@work:6667", "irc.example.org", "irc.example.org", 7000, true);
    add("zero", "ann@irc.example.org:0", "", "irc.example.org", 0, false);
    add("too high", "ann@irc.example.org:65536", "", "irc.example.org", 0, false);
    add("too long", "ann@irc.example.org:006667", "", "irc.example.org", 0, false);
    add("missing", "ann@irc.example.org:", "", "irc.example.org", 0, false);
    add("no number", "ann@irc.example.org:tls", "", "irc.example.org", 0, false);
    add("sign", "ann@irc.example.org:+66", "", "irc.example.org", 0, false);
    add("no server", "ann@:6667", "", "", 6667, false);
}

void tst_IrcSettings::portFollowsTheServerOfTheLogin()
{
    QFETCH(QString, login);
    QFETCH(QString, serverField);
    QFETCH(bool, works);
    const KirvIrcSettings settings(login, QString(), { text("server", serverField), text("port", "7000") });
    QCOMPARE(settings.nick, QString("ann"));
    QTEST(settings.server, "server");
    QTEST(int(settings.port), "port");
    QCOMPARE(settings.problem().isEmpty(), works);
    QCOMPARE(KirvIrcSettings::loginProblem(login).isEmpty(), works);
}

void tst_IrcSettings::missingFieldsHaveDefaults()
{
    const KirvIrcSettings settings("alice@irc.example.org", "secret", {});
    QCOMPARE(settings.problem(), QString());
    QCOMPARE(settings.port, quint16(6697));
    QVERIFY(settings.encrypted);
    QCOMPARE(settings.certificateFile, QString());
    QCOMPARE(settings.passwordUse, KirvIrcSettings::NotUsed);
    QCOMPARE(settings.saslUser, QString("alice"));
    QCOMPARE(settings.realName, QString("alice"));
    QVERIFY(settings.alternativeNicks.isEmpty());
}

void tst_IrcSettings::fieldsAreRead()
{
    const KirvIrcSettings settings("alice", "secret",
                                   { text("server", " irc.example.org "), text("port", "7000"),
                                     text("encryption", "none"), text("certificate", "/a.pem"),
                                     text("password_use", "sasl"), text("sasl_user", "alice2"),
                                     text("real_name", "Alice A."), text("alternative_nicks", "bob, carol") });
    QCOMPARE(settings.problem(), QString());
    QCOMPARE(settings.server, QString("irc.example.org"));
    QCOMPARE(settings.port, quint16(7000));
    QVERIFY(!settings.encrypted);
    QCOMPARE(settings.certificateFile, QString("/a.pem"));
    QCOMPARE(settings.passwordUse, KirvIrcSettings::ForSasl);
    QCOMPARE(settings.password, QString("secret"));
    QCOMPARE(settings.saslUser, QString("alice2"));
    QCOMPARE(settings.realName, QString("Alice A."));
    QCOMPARE(settings.alternativeNicks, QStringList({ "bob", "carol" }));
}

void tst_IrcSettings::problemsAreReported_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("part");
    QTest::newRow("none") << "alice"
                          << ""
                          << "port"
                          << "6697"
                          << "";
    QTest::newRow("digit first") << "1alice"
                                 << ""
                                 << "port"
                                 << "6697"
                                 << "1alice";
    QTest::newRow("no nick") << "@network"
                             << ""
                             << "port"
                             << "6697"
                             << "cannot be a nick";
    QTest::newRow("no server") << "alice"
                               << ""
                               << "server"
                               << ""
                               << "No server";
    QTest::newRow("blank in the server") << "alice"
                                         << ""
                                         << "server"
                                         << "a b"
                                         << "a b";
    QTest::newRow("line break in the server") << "alice"
                                              << ""
                                              << "server"
                                              << "a\nQUIT"
                                              << "not the name of a server";
    QTest::newRow("server too long") << "alice"
                                     << ""
                                     << "server" << QString(256, 'a') << "not the name of a server";
    QTest::newRow("port zero") << "alice"
                               << ""
                               << "port"
                               << "0"
                               << "65535";
    QTest::newRow("port too large") << "alice"
                                    << ""
                                    << "port"
                                    << "70000"
                                    << "65535";
    QTest::newRow("port no number") << "alice"
                                    << ""
                                    << "port"
                                    << "tls"
                                    << "65535";
    QTest::newRow("line break in the server password") << "alice"
                                                       << "a\nb"
                                                       << "password_use"
                                                       << "server"
                                                       << "password";
    QTest::newRow("server password too long") << "alice" << QString(401, 'a') << "password_use"
                                              << "server"
                                              << "password";
    QTest::newRow("any SASL password") << "alice" << QString(401, '\n') << "password_use"
                                       << "sasl"
                                       << "";
    QTest::newRow("any unused password") << "alice" << QString(401, '\n') << "password_use"
                                         << "none"
                                         << "";
}

void tst_IrcSettings::problemsAreReported()
{
    QFETCH(QString, login);
    QFETCH(QString, password);
    QFETCH(QString, id);
    QFETCH(QString, value);
    QFETCH(QString, part);
    const KirvIrcSettings settings(login, password, onServer + QList<KirvField> { text(id, value) });
    QCOMPARE(settings.problem().isEmpty(), part.isEmpty());
    QVERIFY2(settings.problem().contains(part), qPrintable(settings.problem()));
    QVERIFY(!settings.problem().contains('\n'));
}

/// Before an account is added.
void tst_IrcSettings::missingServerIsReportedByItself()
{
    const auto problem = [](const char *login, const QList<KirvField> &fields) {
        return KirvIrcSettings(QLatin1String(login), QString(), fields).serverProblem();
    };
    QCOMPARE(problem("alice", {}), QString("No server is given."));
    QCOMPARE(problem("alice", { text("server", " ") }), QString("No server is given."));
    QCOMPARE(problem("alice", { text("server", "irc.example.org") }), QString());
    QCOMPARE(problem("alice@irc.example.org", {}), QString());
    QVERIFY(problem("alice", { text("server", "irc.example.org"), text("port", "0") }).contains("port"));
    // Which can be mended when it is tried.
    QCOMPARE(problem("alice@irc.example.org", { text("client_key", "/key.pem") }), QString());
}

void tst_IrcSettings::passwordHasOneUse_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("use");
    QTest::newRow("server") << "server" << int(KirvIrcSettings::ForServer);
    QTest::newRow("nick") << "sasl" << int(KirvIrcSettings::ForSasl);
    QTest::newRow("none") << "none" << int(KirvIrcSettings::NotUsed);
    QTest::newRow("unknown") << "everywhere" << int(KirvIrcSettings::NotUsed);
}

void tst_IrcSettings::passwordHasOneUse()
{
    QFETCH(QString, value);
    QTEST(int(KirvIrcSettings("alice", "secret", { text("password_use", value) }).passwordUse), "use");
}

void tst_IrcSettings::clientCertificateTakesThePlaceOfThePassword_data()
{
    QTest::addColumn<QString>("use");
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<bool>("needsPassword");
    QTest::newRow("nothing") << "none" << QString() << false;
    QTest::newRow("server") << "server" << QString() << true;
    QTest::newRow("SASL") << "sasl" << QString() << true;
    QTest::newRow("certificate") << "none"
                                 << "/a.pem" << false;
    QTest::newRow("server and certificate") << "server"
                                            << "/a.pem" << true;
    QTest::newRow("SASL and certificate") << "sasl"
                                          << "/a.pem" << false;
}

void tst_IrcSettings::clientCertificateTakesThePlaceOfThePassword()
{
    QFETCH(QString, use);
    QFETCH(QString, certificate);
    const KirvIrcSettings settings(
        "alice", QString(), onServer + QList { text("password_use", use), text("client_certificate", certificate) });
    QTEST(settings.needsPassword(), "needsPassword");
    QCOMPARE(settings.usesClientCertificate(), !certificate.isEmpty());
}

void tst_IrcSettings::filesAreFields()
{
    QStringList ids;
    const QList<KirvField> fields = KirvIrcSettings::defaultFields();
    for (const KirvField &field : fields)
        ids << field.getId();
    const QStringList files = KirvIrcSettings::fileFields();
    QCOMPARE(files.size(), 3);
    for (const QString &file : files)
        QVERIFY2(ids.contains(file), qPrintable(file));
}

void tst_IrcSettings::keyIsInTheCertificatesFileUnlessThereIsAnother()
{
    const QList<KirvField> fields = onServer + QList { text("client_certificate", " /a.pem ") };
    QCOMPARE(KirvIrcSettings("alice", QString(), fields).clientCertificateFile, QString("/a.pem"));
    QCOMPARE(KirvIrcSettings("alice", QString(), fields).clientKeyFile, QString("/a.pem"));
    const KirvIrcSettings settings("alice", QString(), fields + QList { text("client_key", "/a.key") });
    QCOMPARE(settings.clientKeyFile, QString("/a.key"));
    QCOMPARE(settings.problem(), QString());
    const KirvIrcSettings alone("alice", QString(), onServer + QList { text("client_key", "/a.key") });
    QVERIFY(alone.problem().contains("no client certificate"));
}

void tst_IrcSettings::clientCertificateNeedsEncryption()
{
    const KirvIrcSettings settings(
        "alice", QString(), onServer + QList { text("client_certificate", "/a.pem"), text("encryption", "none") });
    QVERIFY2(settings.problem().contains("encryption"), qPrintable(settings.problem()));
}

void tst_IrcSettings::alternativesAreTriedInTheirOrder()
{
    const KirvIrcSettings settings("alice", QString(),
                                   { text("alternative_nicks", ",bob  alice,1bad,\ncarol,alice_ b@d") });
    QCOMPARE(settings.nicks(), QStringList({ "alice", "bob", "carol", "alice_", "alice__", "alice___" }));
}

void tst_IrcSettings::userNameIsLettersAndDigits_data()
{
    QTest::addColumn<QString>("nick");
    QTest::addColumn<QString>("userName");
    QTest::newRow("nick") << "Alice"
                          << "alice";
    QTest::newRow("signs") << "[a-l_i]ce9"
                           << "alice9";
    QTest::newRow("long") << "abcdefghijklm"
                          << "abcdefghi";
    QTest::newRow("signs only") << "[]{}"
                                << "user";
}

void tst_IrcSettings::userNameIsLettersAndDigits()
{
    QFETCH(QString, nick);
    QTEST(KirvIrcSettings(nick, QString(), onServer).userName(), "userName");
}

void tst_IrcSettings::realNameIsOneLine()
{
    const KirvIrcSettings settings("alice", QString(), { text("real_name", "Al\nice" + QString(200, 'x')) });
    QVERIFY(settings.realName.startsWith("Al ice") && settings.realName.size() == 100);
}

void tst_IrcSettings::configurationsAreEncryptedNetworks()
{
    const QStringList names = KirvIrcSettings::configurations();
    QVERIFY(names.contains("Libera.Chat") && names.size() == 6);
    for (const QString &name : names) {
        const QList<KirvField> fields = KirvIrcSettings::configurationFields(name);
        QCOMPARE(fields.size(), KirvIrcSettings::defaultFields().size());
        QCOMPARE(KirvIrcSettings("alice", QString(), fields).problem(), QString());
        QCOMPARE(valueOf(fields, "login"), QString("missing"));
        if (name != names.last())
            QVERIFY(KirvIrcSettings("alice", QString(), fields).encrypted);
    }
    QVERIFY(KirvIrcSettings::configurationFields("no such network").isEmpty());
}

void tst_IrcSettings::localConfigurationUsesTheLocalPort()
{
    const QString local = KirvIrcSettings::configurations().last();
    qunsetenv("KIRV_IRC_LOCAL_PORT");
    QCOMPARE(valueOf(KirvIrcSettings::configurationFields(local), "port"), QString("6667"));
    qputenv("KIRV_IRC_LOCAL_PORT", "16667");
    QCOMPARE(valueOf(KirvIrcSettings::configurationFields(local), "port"), QString("16667"));
    qputenv("KIRV_IRC_LOCAL_PORT", "-1");
    QCOMPARE(valueOf(KirvIrcSettings::configurationFields(local), "port"), QString("6667"));
    qunsetenv("KIRV_IRC_LOCAL_PORT");
    QCOMPARE(valueOf(KirvIrcSettings::configurationFields(local), "server"), QString("127.0.0.1"));
    QCOMPARE(valueOf(KirvIrcSettings::configurationFields(local), "encryption"), QString("none"));
}

void tst_IrcSettings::loginPatternAccepts_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("nick") << "alice" << true;
    QTest::newRow("signs") << "[a]\\`^{|}-_1" << true;
    QTest::newRow("with a network") << "alice@irc.libera.chat" << true;
    QTest::newRow("with an address") << "alice@[::1]" << false;
    QTest::newRow("digit first") << "1alice" << false;
    QTest::newRow("hyphen first") << "-alice" << false;
    QTest::newRow("blank") << "al ice" << false;
    QTest::newRow("empty network") << "alice@" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("other letters") << QString::fromUtf8("älice") << false;
}

void tst_IrcSettings::problemsOfLoginsAreSaid_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char *name, const QString &login, const QString &problem) {
        QTest::newRow(name) << login << problem;
    };
    const QString letters = "A nickname consists of unaccented letters, digits and the characters "
                            "- _ ` ^ { | } [ ] \\.";
    add("nick", "alice", "");
    add("signs", "[a]\\`^{|}-_1", "");
    add("with a network", "alice@irc.libera.chat", "");
    add("digit first", "1alice", "A nickname starts with a letter.");
    add("hyphen first", "-alice", "A nickname starts with a letter.");
    add("blank", "al ice", "A nickname contains no blanks.");
    add("other letters", QString::fromUtf8("\xc3\xa4lice"), letters);
    add("empty network", "alice@", "The server after the \"@\" is missing.");
    add("no nick", "@irc.libera.chat", "The nickname is missing.");
    add("with a port", "alice@irc.libera.chat:6697", "");
    add("port zero", "alice@irc.libera.chat:0", "The port must be a number from 1 to 65535.");
    add("port too high", "alice@irc.libera.chat:70000", "The port must be a number from 1 to 65535.");
    add("port without a server", "alice@:6697", "The server after the \"@\" is missing.");
    add("with an address", "alice@[::1]", "\"[::1]\" is no address of a server.");
}

void tst_IrcSettings::problemsOfLoginsAreSaid()
{
    QFETCH(QString, login);
    QTEST(KirvIrcSettings::loginProblem(login), "problem");
}

void tst_IrcSettings::loginPatternAccepts()
{
    QFETCH(QString, login);
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(KirvIrcSettings::loginPattern()));
    QVERIFY(pattern.isValid());
    QTEST(pattern.match(login).hasMatch(), "isGood");
}

void tst_IrcSettings::spellingsOfANickAreOneLogin_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<QString>("normalized");
    QTest::newRow("lower case") << "alice"
                                << "alice";
    QTest::newRow("capitals") << "Alice"
                              << "alice";
    QTest::newRow("signs") << "[A]\\~"
                           << "{a}|^";
    QTest::newRow("network") << "Alice@Irc.Example"
                             << "alice@irc.example";
    QTest::newRow("signs of a network") << "a@[~"
                                        << "a@[~";
    QTest::newRow("no letters of others") << QString::fromUtf8("Älice") << QString::fromUtf8("Älice");
    QTest::newRow("empty") << ""
                           << "";
}

void tst_IrcSettings::spellingsOfANickAreOneLogin()
{
    QFETCH(QString, login);
    QTEST(KirvIrcSettings::normalizedLogin(login), "normalized");
}

void tst_IrcSettings::testReplacesNothingThatDecidesWhereAPasswordGoes()
{
    QList<KirvField> fields = KirvIrcSettings::defaultFields();
    for (KirvField &field : fields)
        field.setText(QStringLiteral("value of ") + field.getId());
    const QList<KirvField> tested = KirvIrcSettings::forTest(fields);
    QCOMPARE(tested.size(), fields.size());
    QStringList replaced;
    for (int i = 0; i < fields.size(); ++i) {
        if (tested.at(i).getText() != fields.at(i).getText())
            replaced << tested.at(i).getId();
    }
    QCOMPARE(replaced, (QStringList { "real_name", "alternative_nicks" }));
}

QTEST_GUILESS_MAIN(tst_IrcSettings)
#include "tst_irc_settings.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_protocol.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"
#include "tests/support/kirv_field_texts.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmppConfiguration.h>
#include <sys/stat.h>

namespace {

/// A self-signed certificate of a server called localhost.
const QByteArray certificate = R"(-----BEGIN CERTIFICATE-----
MIIBfzCCASWgAwIBAgIUPO5VTvD0zHNr2GqlMAcyWahCrl0wCgYIKoZIzj0EAwIw
FDESMBAGA1UEAwwJbG9jYWxob3N0MCAXDTI2MTEyMTEyMjI0MVoYDzIxMjYxMDI4
MTIyMjQxWjAUMRIwEAYDVQQDDAlsb2NhbGhvc3QwWTATBgcqhkjOPQIBBggqhkjO
PQMBBwNCAAS7fRSrWyjjRPZYRLu+eFOSe0SFgKe6nenyaZaVea4LKnU+OlDaimgw
XAB3VADfcOMu4WRAdrXg+S5nNQD5uMM7o1MwUTAdBgNVHQ4EFgQUstwjg2IhVuPv
JaH90ssgOQHv0/8wHwYDVR0jBBgwFoAUstwjg2IhVuPvJaH90ssgOQHv0/8wDwYD
VR0TAQH/BAUwAwEB/zAKBggqhkjOPQQDAgNIADBFAiEA6DhnLVYSYueSw/sRupE0
Jw/+5Rj7L69k7tUGFBo2IFsCIEhuI65cxj451q/cyh+JbYoTJtachQZJ9hhVvrAY
rWhE
-----END CERTIFICATE-----
)";

} // namespace

/// The settings of an XMPP account as fields, and what they make of the library's configuration.
class tst_XmppSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreReadAndWrittenAlike();
    void badValuesFallBackToSafeOnes_data();
    void badValuesFallBackToSafeOnes();
    void testReplacesNothingThatDecidesWhereAPasswordGoes();
    void serverFieldsAreAmongTheFields();
    void configurationsGiveFields();
    void theServerOfTheDomainIsTheDefault();
    void encryptionBecomesAMode_data();
    void encryptionBecomesAMode();
    void theHostIsOnlyGivenWhenNeeded_data();
    void theHostIsOnlyGivenWhenNeeded();
    void theResourceHasARandomPartByDefault();
    void theLibraryNeitherReconnectsNorAccepts();
    void aTrustedCertificateIsAdded_data();
    void aTrustedCertificateIsAdded();
    void filesAreFields();
    void aCertificateThatWouldBlockIsReported();
    void aCertificateThatCannotBeUsedIsReported_data();
    void aCertificateThatCannotBeUsedIsReported();
    void loginsAreAddresses_data();
    void loginsAreAddresses();
    void problemsOfLoginsAreSaid_data();
    void problemsOfLoginsAreSaid();
};

void tst_XmppSettings::fieldsAreReadAndWrittenAlike()
{
    KirvXmppSettings settings;
    settings.server = "xmpp.example.org";
    settings.port = 5223;
    settings.resource = "Home";
    settings.priority = -7;
    settings.encryption = KirvXmppSettings::IfOffered;
    settings.certificatePath = "/folder/file.pem";
    const QList<KirvField> fields = settings.toFields();
    const KirvXmppSettings again(fields);
    QCOMPARE(again.server, settings.server);
    QCOMPARE(again.port, settings.port);
    QCOMPARE(again.resource, settings.resource);
    QCOMPARE(again.priority, settings.priority);
    QCOMPARE(again.encryption, settings.encryption);
    QCOMPARE(again.certificatePath, settings.certificatePath);
    QVERIFY(again.toFields() == fields);
}

void tst_XmppSettings::testReplacesNothingThatDecidesWhereAPasswordGoes()
{
    const QHash<QString, QString> values {
        { "server", "xmpp.example.org" },
        { "port", "5223" },
        { "resource", "Home" },
        { "priority", "7" },
        { "encryption", "offered" },
        { "certificate", "/ca.pem" },
        { "proxy", "socks5" },
        { "proxy_host", "proxy.example" },
        { "proxy_port", "1080" },
        { "proxy_user", "ann" },
        { "proxy_password", "proxy word" },
    };
    KirvXmppProtocol protocol;
    QList<KirvField> fields = protocol.accountSettings();
    for (KirvField &field : fields) {
        QVERIFY2(values.contains(field.getId()), qPrintable(field.getId()));
        field.setText(values.value(field.getId()));
    }
    const QList<KirvField> tested = protocol.settingsForTest(fields);
    QStringList replaced;
    for (const KirvField &field : std::as_const(fields)) {
        if (valueOf(tested, field.getId()) != field.getText())
            replaced << field.getId();
    }
    QCOMPARE(replaced, QStringList({ "resource", "priority" }));
}

void tst_XmppSettings::badValuesFallBackToSafeOnes_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("read");
    QTest::newRow("port is no number") << "port"
                                       << "http"
                                       << "5222";
    QTest::newRow("port is zero") << "port"
                                  << "0"
                                  << "5222";
    QTest::newRow("port is too large") << "port"
                                       << "65536"
                                       << "5222";
    QTest::newRow("largest port") << "port"
                                  << "65535"
                                  << "65535";
    QTest::newRow("port is empty") << "port"
                                   << ""
                                   << "5222";
    QTest::newRow("priority is too small") << "priority"
                                           << "-129"
                                           << "-1";
    QTest::newRow("smallest priority") << "priority"
                                       << "-128"
                                       << "-128";
    QTest::newRow("priority is no number") << "priority"
                                           << "high"
                                           << "-1";
    QTest::newRow("encryption is unknown") << "encryption"
                                           << "maybe"
                                           << "required";
    QTest::newRow("encryption is empty") << "encryption"
                                         << ""
                                         << "required";
    QTest::newRow("server with blanks") << "server"
                                        << "  example.org "
                                        << "example.org";
    QTest::newRow("resource with blanks") << "resource"
                                          << " Home "
                                          << "Home";
    QTest::newRow("certificate as an address") << "certificate"
                                               << " file:///folder/file.pem "
                                               << "/folder/file.pem";
    QTest::newRow("certificate as an address with a blank") << "certificate"
                                                            << "file:///a%20folder/a%20b.pem"
                                                            << "/a folder/a b.pem";
    QTest::newRow("certificate with a percent sign") << "certificate"
                                                     << "/folder/a%20b.pem"
                                                     << "/folder/a%20b.pem";
}

void tst_XmppSettings::badValuesFallBackToSafeOnes()
{
    QFETCH(QString, id);
    QFETCH(QString, value);
    QFETCH(QString, read);
    const KirvXmppSettings settings({ text(id, value), text("unknown", "ignored") });
    QCOMPARE(valueOf(settings.toFields(), id), read);
}

void tst_XmppSettings::serverFieldsAreAmongTheFields()
{
    const QList<KirvField> all = KirvXmppSettings().toFields();
    for (const KirvField &field : KirvXmppSettings().toServerFields())
        QVERIFY2(all.contains(field), qPrintable(field.getId()));
    QCOMPARE(all.size(), KirvXmppSettings().toServerFields().size() + 2);
    for (const KirvField &field : KirvProxy().toFields())
        QVERIFY2(KirvXmppSettings().toServerFields().contains(field), qPrintable(field.getId()));
}

void tst_XmppSettings::configurationsGiveFields()
{
    qputenv("KIRV_XMPP_LOCAL_PORT", "15222");
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", "/local.pem");
    const QStringList names = KirvXmppSettings::configurations();
    QCOMPARE(names.size(), 3);
    QVERIFY(KirvXmppSettings::configurationFields(names.at(0)) == KirvXmppSettings().toFields());
    const QList<KirvField> encrypted = KirvXmppSettings::configurationFields(names.at(1));
    QCOMPARE(valueOf(encrypted, "server"), QString("127.0.0.1"));
    QCOMPARE(valueOf(encrypted, "port"), QString("15222"));
    QCOMPARE(valueOf(encrypted, "encryption"), QString("required"));
    QCOMPARE(valueOf(encrypted, "certificate"), QString("/local.pem"));
    const QList<KirvField> plain = KirvXmppSettings::configurationFields(names.at(2));
    QCOMPARE(valueOf(plain, "encryption"), QString("none"));
    QCOMPARE(valueOf(plain, "certificate"), QString());
    QVERIFY(KirvXmppSettings::configurationFields("no such configuration").isEmpty());

    qputenv("KIRV_XMPP_LOCAL_PORT", "99999");
    QCOMPARE(valueOf(KirvXmppSettings::configurationFields(names.at(1)), "port"), QString("5222"));
    qunsetenv("KIRV_XMPP_LOCAL_PORT");
    qunsetenv("KIRV_XMPP_LOCAL_CERTIFICATE");
}

void tst_XmppSettings::theServerOfTheDomainIsTheDefault()
{
    for (const QString &name : KirvXmppSettings::configurations())
        QCOMPARE(valueOf(KirvXmppSettings::configurationFields(name), "login"), QString("missing"));
    QCOMPARE(valueOf(KirvXmppSettings().toFields(), "server"), QString());
    QCOMPARE(valueOf(KirvXmppSettings().toFields(), "encryption"), QString("required"));
}

void tst_XmppSettings::encryptionBecomesAMode_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("mode");
    QTest::newRow("required") << "required" << int(QXmppConfiguration::TLSRequired);
    QTest::newRow("if offered") << "offered" << int(QXmppConfiguration::TLSEnabled);
    QTest::newRow("none") << "none" << int(QXmppConfiguration::TLSDisabled);
    QTest::newRow("unknown") << "what?" << int(QXmppConfiguration::TLSRequired);
}

void tst_XmppSettings::encryptionBecomesAMode()
{
    QFETCH(QString, value);
    QFETCH(int, mode);
    QXmppConfiguration configuration;
    QString problem;
    QVERIFY(KirvXmppSettings({ text("encryption", value) }).apply("example.org", &configuration, &problem));
    QCOMPARE(int(configuration.streamSecurityMode()), mode);
}

void tst_XmppSettings::theHostIsOnlyGivenWhenNeeded_data()
{
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("host");
    QTest::newRow("nothing given") << ""
                                   << "5222"
                                   << "";
    QTest::newRow("server") << "xmpp.example.org"
                            << "5222"
                            << "xmpp.example.org";
    QTest::newRow("other port of the domain") << ""
                                              << "5223"
                                              << "example.org";
    QTest::newRow("both") << "127.0.0.1"
                          << "5223"
                          << "127.0.0.1";
}

void tst_XmppSettings::theHostIsOnlyGivenWhenNeeded()
{
    QFETCH(QString, server);
    QFETCH(QString, port);
    QFETCH(QString, host);
    QXmppConfiguration configuration;
    QString problem;
    const KirvXmppSettings settings({ text("server", server), text("port", port) });
    QVERIFY(settings.apply("example.org", &configuration, &problem));
    QCOMPARE(configuration.domain(), QString("example.org"));
    QCOMPARE(configuration.host(), host);
    QCOMPARE(configuration.port(), port.toInt());
}

void tst_XmppSettings::theResourceHasARandomPartByDefault()
{
    const KirvXmppSettings settings;
    const QString resource = settings.resourceWith("abc");
    QVERIFY2(resource.contains("abc") && resource.size() > 3, qPrintable(resource));
    QVERIFY(KirvXmppSettings::randomPart() != KirvXmppSettings::randomPart());
    const QRegularExpression expression("^[a-z0-9]{8,}$");
    QVERIFY(expression.match(KirvXmppSettings::randomPart()).hasMatch());
    // What the user sets is used as it is.
    QCOMPARE(KirvXmppSettings({ text("resource", "Home") }).resourceWith("abc"), QString("Home"));
    QCOMPARE(KirvXmppSettings({ text("resource", "") }).resourceWith("abc"), QString());
    QCOMPARE(KirvXmppSettings({ text("resource", "*, *") }).resourceWith("abc"), QString("abc, abc"));
}

void tst_XmppSettings::theLibraryNeitherReconnectsNorAccepts()
{
    QXmppConfiguration configuration;
    QString problem;
    QVERIFY(KirvXmppSettings().apply("example.org", &configuration, &problem));
    QVERIFY(!configuration.autoReconnectionEnabled());
    QVERIFY(!configuration.autoAcceptSubscriptions());
    QVERIFY(!configuration.useNonSASLAuthentication());
    QVERIFY(!configuration.ignoreSslErrors());
}

void tst_XmppSettings::aTrustedCertificateIsAdded_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::newRow("path") << "";
    QTest::newRow("address") << "file://";
}

void tst_XmppSettings::aTrustedCertificateIsAdded()
{
    QFETCH(QString, prefix);
    QTemporaryDir folder;
    QFile file(folder.filePath("localhost.pem"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(certificate) > 0);
    file.close();
    QXmppConfiguration configuration;
    QString problem;
    const KirvXmppSettings settings({ text("certificate", prefix + file.fileName()) });
    QVERIFY2(settings.apply("example.org", &configuration, &problem), qPrintable(problem));
    QVERIFY(!configuration.caCertificates().isEmpty());
    QCOMPARE(configuration.caCertificates().last().subjectInfo(QSslCertificate::CommonName),
             QStringList { "localhost" });
}

void tst_XmppSettings::filesAreFields()
{
    QCOMPARE(KirvXmppSettings::fileFields(), QStringList { "certificate" });
    QStringList ids;
    const QList<KirvField> fields = KirvXmppSettings().toFields();
    for (const KirvField &field : fields)
        ids << field.getId();
    QVERIFY(ids.contains("certificate"));
}

void tst_XmppSettings::aCertificateThatWouldBlockIsReported()
{
    QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe.pem");
    QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
    for (const QString &path : { pipe, folder.path() }) {
        QXmppConfiguration configuration;
        QString problem;
        QVERIFY(!KirvXmppSettings({ text("certificate", path) }).apply("a.b", &configuration, &problem));
        QVERIFY2(problem.contains("is not a file"), qPrintable(problem));
    }
}

void tst_XmppSettings::aCertificateThatCannotBeUsedIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("part");
    QTest::newRow("missing file") << QByteArray() << "cannot be read";
    QTest::newRow("no certificate") << QByteArray("text") << "does not hold a certificate";
}

void tst_XmppSettings::aCertificateThatCannotBeUsedIsReported()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, part);
    QTemporaryDir folder;
    QFile file(folder.filePath("localhost.pem"));
    QVERIFY(content.isEmpty() || (file.open(QIODevice::WriteOnly) && file.write(content) > 0));
    file.close();
    QXmppConfiguration configuration;
    QString problem;
    QVERIFY(!KirvXmppSettings({ text("certificate", file.fileName()) }).apply("a.b", &configuration, &problem));
    QVERIFY2(problem.contains(part) && problem.contains(file.fileName()), qPrintable(problem));
}

void tst_XmppSettings::loginsAreAddresses_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("address") << "anna@example.org" << true;
    QTest::newRow("host without dots") << "anna@localhost" << true;
    QTest::newRow("letters of any language") << QString::fromUtf8("änna@exämple.org") << true;
    QTest::newRow("no domain") << "anna" << false;
    QTest::newRow("empty domain") << "anna@" << false;
    QTest::newRow("no user") << "@example.org" << false;
    QTest::newRow("two at signs") << "anna@b@example.org" << false;
    QTest::newRow("dots only") << "anna@a..b" << false;
    QTest::newRow("resource") << "anna@example.org/home" << false;
    QTest::newRow("blank") << "an na@example.org" << false;
    QTest::newRow("markup") << "<b>@example.org" << false;
}

void tst_XmppSettings::problemsOfLoginsAreSaid_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char *name, const QString &login, const QString &problem) {
        QTest::newRow(name) << login << problem;
    };
    add("address", "anna@example.org", "");
    add("host without dots", "anna@localhost", "");
    add("letters of any language", QString::fromUtf8("\xc3\xa4nna@\xe4\xbe\x8b.org"), "");
    add("beyond 16 bits", QString::fromUtf8("\xf0\x9f\x98\x80@example.org"), "");
    add("no domain", "anna", "The domain is missing, as in anna@example.org.");
    add("empty domain", "anna@", "The domain after the \"@\" is missing.");
    add("no name", "@example.org", "The name before the \"@\" is missing.");
    add("two at signs", "anna@b@example.org", "An address contains one \"@\" only.");
    add("dots only", "anna@a..b", "The domain after the \"@\" is not complete.");
    add("dot first", "anna@.org", "The domain after the \"@\" is not complete.");
    add("dot last", "anna@example.", "The domain after the \"@\" is not complete.");
    add("resource", "anna@example.org/home", "The character \"/\" is not allowed in an address.");
    add("blank", "an na@example.org", "An address contains no blanks.");
    add("markup", "<b>@example.org", "The character \"<\" is not allowed in an address.");
    add("text turned around", QString("a%1b@example.org").arg(QChar(0x202e)),
        "The character \"[U+202E]\" is not allowed in an address.");
    add("long name", QString(1024, 'a') + "@example.org", "The address is too long.");
    add("longest name", QString(1023, 'a') + "@example.org", "");
    add("long domain", "a@" + QString(1024, 'a'), "The address is too long.");
}

void tst_XmppSettings::problemsOfLoginsAreSaid()
{
    QFETCH(QString, login);
    QTEST(KirvXmppSettings::loginProblem(login), "problem");
}

void tst_XmppSettings::loginsAreAddresses()
{
    QFETCH(QString, login);
    QFETCH(bool, isGood);
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(KirvXmppSettings::loginPattern()));
    QVERIFY(pattern.isValid());
    QCOMPARE(pattern.match(login).hasMatch(), isGood);
}

QTEST_GUILESS_MAIN(tst_XmppSettings)
#include "tst_xmpp_settings.moc"

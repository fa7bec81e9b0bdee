// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_tls_irc_server.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <sys/stat.h>

namespace {

using Values = QMap<QString, QString>;

/// A self-signed certificate for 127.0.0.1 and its key, both PEM.
bool createCertificate(const QString &certificateFile, const QString &keyFile, const QStringList &key)
{
    QStringList arguments { "req", "-x509", "-newkey" };
    arguments += key;
    arguments += { "-nodes",  "-days", "30",   "-subj",        "/CN=alice", "-addext", "subjectAltName=IP:127.0.0.1",
                   "-keyout", keyFile, "-out", certificateFile };
    return QProcess::execute(QStringLiteral("openssl"), arguments) == 0;
}

/// A server that offers SASL EXTERNAL; \a judgement is the numeric that ends it.
KirvTlsIrcServer::Script external(const QByteArray &judgement, const QByteArray &offer = "sasl=EXTERNAL,PLAIN")
{
    return [judgement, offer](const QByteArray &line) -> QByteArray {
        if (line.startsWith("CAP LS"))
            return ":server CAP * LS :" + offer + "\r\n";
        if (line.startsWith("CAP REQ"))
            return ":server CAP * ACK :sasl\r\n";
        if (line == "AUTHENTICATE EXTERNAL" || line == "AUTHENTICATE PLAIN")
            return "AUTHENTICATE +\r\n";
        if (line.startsWith("AUTHENTICATE "))
            return ":server " + judgement + " * :That is the judgement\r\n";
        return line == "CAP END" ? ":server 001 alice :Welcome\r\n" : "";
    };
}

} // namespace

/// Logging in with a certificate of one's own.
class tst_IrcClientCertificate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void certificateLogsIn_data();
    void certificateLogsIn();
    void unknownCertificateIsRefused();
    void otherMechanismsAreNotUsedInstead();
    void unusableFilesAreTold_data();
    void unusableFilesAreTold();
    void keyOfAnotherCertificateIsTold();
    void keyThatOthersCanReadIsTold_data();
    void keyThatOthersCanReadIsTold();
    void protectionOfTheSessionIsKnown();

    void trustedCertificateIsTrustedBesidesTheSystems_data();
    void trustedCertificateIsTrustedBesidesTheSystems();
    void logInThatIsLeftBeforeTheCertificatesAreThereDoesNotConnect();

private:
    QString path(const QString &name) const { return folder.filePath(name); }
    void serve(KirvTlsIrcServer::Script script);
    void logIn(const Values &values);
    Values client(const QString &name) const
    {
        return { { "client_certificate", path(name + ".pem") }, { "client_key", path(name + ".key") } };
    }
    bool isOnline() const { return connection->state() == KirvConnection::Online; }
    KirvFailure failure() const { return connection->lastFailure(); }

    QTemporaryDir folder;
    std::unique_ptr<KirvTlsIrcServer> server;
    std::unique_ptr<KirvIrcConnection> connection;
    std::unique_ptr<QSignalSpy> notices;
};

void tst_IrcClientCertificate::initTestCase()
{
    const QStringList ec { "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1" };
    QVERIFY(createCertificate(path("server.pem"), path("server.key"), ec));
    QVERIFY(createCertificate(path("ec.pem"), path("ec.key"), ec));
    QVERIFY(createCertificate(path("rsa.pem"), path("rsa.key"), { "rsa:2048" }));
    QFile joined(path("joined.pem"));
    QVERIFY(joined.open(QIODevice::WriteOnly));
    for (const char *part : { "ec.pem", "ec.key" }) {
        QFile file(path(part));
        QVERIFY(file.open(QIODevice::ReadOnly));
        joined.write(file.readAll());
    }
    joined.close();
    for (const char *key : { "ec.key", "rsa.key", "joined.pem" })
        QVERIFY(QFile::setPermissions(path(key), QFile::ReadOwner | QFile::WriteOwner));
    QFile text(path("text.key"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no key at all\n") > 0);
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.key")), 0600), 0);
}

void tst_IrcClientCertificate::init()
{
    connection = std::make_unique<KirvIrcConnection>();
    notices = std::make_unique<QSignalSpy>(connection.get(), &KirvConnection::noticeReceived);
}

void tst_IrcClientCertificate::serve(KirvTlsIrcServer::Script script)
{
    server = std::make_unique<KirvTlsIrcServer>(path("server.pem"), path("server.key"), std::move(script));
}

void tst_IrcClientCertificate::logIn(const Values &values)
{
    Values all = values;
    all.insert("server", "127.0.0.1");
    all.insert("port", QString::number(server ? server->serverPort() : 1));
    if (!all.contains("certificate"))
        all.insert("certificate", path("server.pem"));
    KirvLogin login;
    login.id = QStringLiteral("alice");
    login.password = QStringLiteral("secret");
    login.settings = KirvIrcSettings::defaultFields();
    for (KirvField &field : login.settings) {
        if (all.contains(field.getId()))
            field.setText(all.take(field.getId()));
    }
    QVERIFY(!all.contains("client_certificate") && !all.contains("client_key"));
    connection->logIn(login, { QStringLiteral("available"), QString(), QString() });
}

void tst_IrcClientCertificate::certificateLogsIn_data()
{
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("passwordUse");
    QTest::newRow("EC") << "ec.pem"
                        << "ec.key"
                        << "none";
    QTest::newRow("RSA") << "rsa.pem"
                         << "rsa.key"
                         << "none";
    QTest::newRow("key in the same file") << "joined.pem"
                                          << ""
                                          << "none";
    QTest::newRow("instead of the password") << "ec.pem"
                                             << "ec.key"
                                             << "sasl";
}

void tst_IrcClientCertificate::certificateLogsIn()
{
    QFETCH(QString, certificate);
    QFETCH(QString, key);
    QFETCH(QString, passwordUse);
    serve(external("903"));
    logIn({ { "client_certificate", path(certificate) },
            { "client_key", key.isEmpty() ? key : path(key) },
            { "password_use", passwordUse } });
    QTRY_VERIFY2_WITH_TIMEOUT(isOnline(), qPrintable(failure().text()), kirvPatience);
    QCOMPARE(server->clientCertificate(), QSslCertificate::fromPath(path(certificate)).value(0));
    QVERIFY(server->receivedLines().contains("AUTHENTICATE EXTERNAL"));
    QVERIFY(server->receivedLines().contains("AUTHENTICATE +"));
    const QByteArray sent = server->receivedLines().join('\n');
    QVERIFY(!sent.contains("PASS") && !sent.contains(QByteArray("\0alice\0secret", 13).toBase64()));
    QVERIFY(notices->isEmpty());
}

void tst_IrcClientCertificate::unknownCertificateIsRefused()
{
    serve(external("904"));
    logIn(client("ec"));
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::AccessDenied, kirvPatience);
    QVERIFY2(failure().text().contains("certificate"), qPrintable(failure().text()));
    QCOMPARE(connection->state(), KirvConnection::Offline);
}

void tst_IrcClientCertificate::otherMechanismsAreNotUsedInstead()
{
    serve(external("903", "sasl=PLAIN"));
    Values values = client("ec");
    values.insert("password_use", "sasl");
    logIn(values);
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::AuthenticationNotOffered, kirvPatience);
    QVERIFY(!server->receivedLines().join('\n').contains("AUTHENTICATE"));
}

void tst_IrcClientCertificate::unusableFilesAreTold_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("named");
    const auto files = [this](const QString &certificate, const QString &key) {
        return Values { { "client_certificate", path(certificate) }, { "client_key", path(key) } };
    };
    Values plain = files("ec.pem", "ec.key");
    plain.insert("encryption", "none");
    QTest::newRow("no such certificate") << files("nothing.pem", "ec.key") << "nothing.pem";
    QTest::newRow("no such key") << files("ec.pem", "nothing.key") << "nothing.key";
    QTest::newRow("folder") << files("ec.pem", "") << folder.path();
    QTest::newRow("text") << files("ec.pem", "text.key") << "text.key";
    QTest::newRow("pipe that nobody writes to") << files("ec.pem", "pipe.key") << "pipe.key";
    QTest::newRow("pipe for a certificate") << files("pipe.key", "ec.key") << "pipe.key";
    QTest::newRow("no key in the certificate's file")
        << Values { { "client_certificate", path("ec.pem") } } << "ec.pem";
    QTest::newRow("key without a certificate") << Values { { "client_key", path("ec.key") } } << "certificate";
    QTest::newRow("no encryption") << plain << "encryption";
}

void tst_IrcClientCertificate::unusableFilesAreTold()
{
    QFETCH(Values, values);
    QFETCH(QString, named);
    serve(external("903"));
    logIn(values);
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::BadSettings, kirvPatience);
    QVERIFY2(failure().detail().contains(named), qPrintable(failure().detail()));
    QCOMPARE(connection->state(), KirvConnection::Offline);
    QVERIFY(server->receivedLines().isEmpty());
}

void tst_IrcClientCertificate::keyOfAnotherCertificateIsTold()
{
    serve(external("903"));
    logIn({ { "client_certificate", path("ec.pem") }, { "client_key", path("rsa.key") } });
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::BadSettings, kirvPatience);
    QCOMPARE(connection->state(), KirvConnection::Offline);
}

void tst_IrcClientCertificate::keyThatOthersCanReadIsTold_data()
{
    QTest::addColumn<int>("permissions");
    QTest::addColumn<bool>("isTold");
    const int owner = QFile::ReadOwner | QFile::WriteOwner;
    QTest::newRow("owner only") << owner << false;
    QTest::newRow("group reads") << (owner | QFile::ReadGroup) << true;
    QTest::newRow("all read") << (owner | QFile::ReadOther) << true;
}

void tst_IrcClientCertificate::keyThatOthersCanReadIsTold()
{
    QFETCH(int, permissions);
    QFETCH(bool, isTold);
    const QString key = path("copy.key");
    QFile::remove(key);
    QVERIFY(QFile::copy(path("ec.key"), key) && QFile::setPermissions(key, QFile::Permissions(permissions)));
    serve(external("903"));
    for (int visit = 0; visit < 2; ++visit) {
        logIn({ { "client_certificate", path("ec.pem") }, { "client_key", key } });
        QTRY_VERIFY2_WITH_TIMEOUT(isOnline(), qPrintable(failure().text()), kirvPatience);
        QCOMPARE(notices->size(), isTold ? 1 : 0); // once is enough
        connection->drop();
    }
    QVERIFY(!isTold || notices->at(0).at(0).toString().contains("copy.key"));
}

void tst_IrcClientCertificate::protectionOfTheSessionIsKnown()
{
    serve(external("903"));
    QCOMPARE(connection->securityText(), QString());
    logIn(client("ec"));
    QTRY_VERIFY2_WITH_TIMEOUT(isOnline(), qPrintable(failure().text()), kirvPatience);
    QVERIFY2(connection->securityText().startsWith("TLS"), qPrintable(connection->securityText()));
    QVERIFY(connection->securityText().endsWith("SASL EXTERNAL"));
    connection->drop();
    QCOMPARE(connection->securityText(), QString());

    logIn({ { "password_use", "sasl" } });
    QTRY_VERIFY2_WITH_TIMEOUT(isOnline(), qPrintable(failure().text()), kirvPatience);
    QVERIFY(connection->securityText().endsWith("SASL PLAIN"));
}

void tst_IrcClientCertificate::trustedCertificateIsTrustedBesidesTheSystems_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("ofSystem");
    QTest::addColumn<bool>("isTrusted");
    QTest::newRow("by the account") << "server.pem"
                                    << "rsa.pem" << true;
    QTest::newRow("by the system") << "rsa.pem"
                                   << "server.pem" << true;
    QTest::newRow("by nobody") << "rsa.pem"
                               << "ec.pem" << false;
}

void tst_IrcClientCertificate::trustedCertificateIsTrustedBesidesTheSystems()
{
    QFETCH(QString, own);
    QFETCH(QString, ofSystem);
    QFETCH(bool, isTrusted);
    KirvSystemCertificates system([&] { return QSslCertificate::fromPath(path(ofSystem)); });
    connection = std::make_unique<KirvIrcConnection>(KirvClock::system(), nullptr, system);
    serve([](const QByteArray &line) { return line.startsWith("USER ") ? ":server 001 alice :Welcome\r\n" : ""; });
    logIn({ { "certificate", path(own) } });
    QTRY_VERIFY_WITH_TIMEOUT(isOnline() || failure().isFailure(), kirvPatience);
    QVERIFY2(isOnline() == isTrusted, qPrintable(failure().text()));
    if (!isTrusted)
        QCOMPARE(failure().kind(), KirvFailure::UntrustedCertificate);
    connection.reset(); // it ends before the certificates do
}

void tst_IrcClientCertificate::logInThatIsLeftBeforeTheCertificatesAreThereDoesNotConnect()
{
    KirvSystemCertificates system([&] { return QSslCertificate::fromPath(path("server.pem")); });
    connection = std::make_unique<KirvIrcConnection>(KirvClock::system(), nullptr, system);
    serve([](const QByteArray &) { return ""; });
    logIn({});
    connection->drop();
    bool areRead = false;
    system.request(this, [&areRead](const QList<QSslCertificate> &) { areRead = true; });
    QTRY_VERIFY_WITH_TIMEOUT(areRead, kirvPatience);
    QCOMPARE(connection->state(), KirvConnection::Offline);
    QVERIFY(!server->waitForNewConnection(0));
    connection.reset();
}

QTEST_GUILESS_MAIN(tst_IrcClientCertificate)
#include "tst_irc_client_certificate.moc"

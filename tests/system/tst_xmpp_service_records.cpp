// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_dns_server.h"
#include "tests/support/servers/kirv_private_network.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QTest>
#include <cstdio>
#include <fstream>
#include <unistd.h>

namespace {

const int notRun = 77; ///< what the test ends with where it cannot be run
const QString domain = QStringLiteral("example.test");
const QString host = QStringLiteral("chat.example.test");
const QString ordinary = QStringLiteral("_xmpp-client._tcp.example.test");
const QString direct = QStringLiteral("_xmpps-client._tcp.example.test");

} // namespace

/// The way to a real server by the records of a real name server, in a network of the test's own.
class tst_XmppServiceRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void recordsLeadToTheServer_data();
    void recordsLeadToTheServer();
    void theNextServerIsTriedWhereTheFirstIsNotThere();
    void theDomainItselfIsTriedWithoutRecords();
    void aNameServerThatIsNotThereIsNoServer();

private:
    static KirvLogin loginTo(const KirvProsodyServer &server, KirvXmppSettings::Encryption encryption);
    static KirvProsodyServer::Options options(bool encryptsAtOnce);
};

KirvLogin tst_XmppServiceRecords::loginTo(const KirvProsodyServer &server, KirvXmppSettings::Encryption encryption)
{
    KirvXmppSettings settings;
    settings.encryption = encryption;
    settings.certificatePath = server.certificatePath();
    return { "romeo@" + domain, "secret", settings.toFields() };
}

KirvProsodyServer::Options tst_XmppServiceRecords::options(bool encryptsAtOnce)
{
    KirvProsodyServer::Options options;
    options.domain = domain;
    options.encryptsAtOnce = encryptsAtOnce;
    return options;
}

void tst_XmppServiceRecords::recordsLeadToTheServer_data()
{
    QTest::addColumn<bool>("encryptsAtOnce");
    QTest::addColumn<int>("encryption");
    QTest::newRow("ordinary") << false << int(KirvXmppSettings::Required);
    QTest::newRow("TLS at once") << true << int(KirvXmppSettings::Required);
    QTest::newRow("TLS at once and nothing else") << true << int(KirvXmppSettings::Direct);
}

void tst_XmppServiceRecords::recordsLeadToTheServer()
{
    QFETCH(bool, encryptsAtOnce);
    QFETCH(int, encryption);
    KirvProsodyServer server(options(encryptsAtOnce));
    QVERIFY(KirvXmppProfile::start(server));
    KirvDnsServer names;
    names.addAddress(host);
    names.addService(encryptsAtOnce ? direct : ordinary, host, server.port(), 5);
    QVERIFY2(names.start(), qPrintable(names.errorString()));
    KirvXmppConnection connection;
    connection.logIn(loginTo(server, KirvXmppSettings::Encryption(encryption)), { "available", "", QString(), "" });
    KIRV_TRY_COMPARE(connection.state(), KirvConnection::Online);
    QVERIFY(server.isOnline("romeo"));
    server.kill(); // an orderly end takes a second
}

void tst_XmppServiceRecords::theNextServerIsTriedWhereTheFirstIsNotThere()
{
    KirvProsodyServer server(options(false));
    QVERIFY(KirvXmppProfile::start(server));
    KirvDnsServer names;
    names.addAddress(host);
    names.addService(ordinary, "gone.example.test", 5222, 1);
    names.addService(direct, host, KirvLocalServer::findFreePort(), 2);
    names.addService(ordinary, host, server.port(), 3);
    QVERIFY2(names.start(), qPrintable(names.errorString()));
    KirvXmppConnection connection;
    connection.logIn(loginTo(server, KirvXmppSettings::Required), { "available", "", QString(), "" });
    KIRV_TRY_COMPARE(connection.state(), KirvConnection::Online);
    server.kill();
}

void tst_XmppServiceRecords::theDomainItselfIsTriedWithoutRecords()
{
    KirvProsodyServer server(options(false));
    QVERIFY(KirvXmppProfile::start(server));
    KirvDnsServer names;
    names.addAddress(domain);
    QVERIFY2(names.start(), qPrintable(names.errorString()));
    KirvXmppConnection connection;
    connection.logIn(loginTo(server, KirvXmppSettings::Required), { "available", "", QString(), "" });
    KIRV_TRY(connection.lastFailure().isFailure());
    QCOMPARE(connection.lastFailure().kind(), KirvFailure::ConnectionRefused); // there is nobody at the usual port
    QVERIFY(connection.lastFailure().text().contains(domain));
    server.kill();
}

void tst_XmppServiceRecords::aNameServerThatIsNotThereIsNoServer()
{
    KirvProsodyServer server(options(false));
    QVERIFY(KirvXmppProfile::start(server));
    KirvXmppConnection connection;
    KirvLogin login = loginTo(server, KirvXmppSettings::Required);
    login.id = "romeo@unknown.test"; // Qt remembers the addresses of the other one
    connection.logIn(login, { "available", "", QString(), "" });
    KIRV_TRY(connection.lastFailure().isFailure());
    QVERIFY2(connection.lastFailure().kind() == KirvFailure::HostNotFound, qPrintable(connection.lastFailure().text()));
    server.kill();
}

/// The network is changed before Qt starts threads, which would stay outside.
int main(int argc, char **argv)
{
    char resolver[] = "/tmp/kirv-resolver-XXXXXX";
    const int file = mkstemp(resolver);
    close(file);
    std::ofstream(resolver) << "nameserver 127.0.0.1\noptions timeout:1 attempts:1\n";
    std::string problem = "no temporary file";
    const bool isAlone = file >= 0 && kirvEnterPrivateNetwork(resolver, &problem);
    std::remove(resolver);
    if (!isAlone) {
        std::printf("NOT RUN: tst_xmpp_service_records needs a network of its own (%s).\n", problem.c_str());
        return notRun;
    }
    QCoreApplication application(argc, argv);
    tst_XmppServiceRecords test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_xmpp_service_records.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QSignalSpy>
#include <QTest>
#include <memory>

/// One account in several clients at a time, on a real server.
class TestXmppOtherClients : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void twoWithTheSameSettingsStayOnLine();
    void comingBackTakesThePlaceOfTheOldSession();

private:
    KirvLogin login(const QString &id = "romeo@localhost") const;
    void logIn(KirvXmppConnection &connection) const;

    const KirvPresence available { "available", "Available", QString(), QString() };
    std::unique_ptr<KirvProsodyServer> server;
};

void TestXmppOtherClients::init()
{
    server = std::make_unique<KirvProsodyServer>();
    QVERIFY(KirvXmppProfile::start(*server, { "romeo", "juliet" }));
}

void TestXmppOtherClients::cleanup()
{
    server.reset();
}

KirvLogin TestXmppOtherClients::login(const QString &id) const
{
    KirvXmppSettings settings;
    settings.server = server->host();
    settings.port = server->port();
    settings.certificatePath = server->certificatePath();
    return { id, "secret", settings.toFields() };
}

void TestXmppOtherClients::logIn(KirvXmppConnection &connection) const
{
    connection.logIn(login(), available);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), KirvConnection::Online, kirvPatience);
}

void TestXmppOtherClients::twoWithTheSameSettingsStayOnLine()
{
    KirvXmppConnection one, other;
    QSignalSpy failed(&one, &KirvConnection::failed);
    logIn(one);
    logIn(other);
    QTRY_COMPARE_WITH_TIMEOUT(server->sessions().size(), 2, kirvPatience);
    QVERIFY(one.isLoggedIn() && other.isLoggedIn());
    QCOMPARE(failed.size(), 0);
}

void TestXmppOtherClients::comingBackTakesThePlaceOfTheOldSession()
{
    KirvXmppConnection connection;
    logIn(connection);
    const QStringList before = server->sessions();
    connection.drop();
    logIn(connection);
    QTRY_COMPARE_WITH_TIMEOUT(server->sessions(), before, kirvPatience);
}

QTEST_GUILESS_MAIN(TestXmppOtherClients)
#include "tst_xmpp_other_clients.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_scripted_proxy.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_ngircd_server.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QSignalSpy>
#include <QTest>
#include <memory>

/// Sessions with real servers when the network is another one: whether they still work is found out at once.
class tst_NetworkChange : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void aSessionThatWorksIsKept_data() { protocols(); }
    void aSessionThatWorksIsKept();
    void aSessionThatHangsIsLeft_data() { protocols(); }
    void aSessionThatHangsIsLeft();
    void aWaitIsCutShort_data() { protocols(); }
    void aWaitIsCutShort();

private:
    static void protocols();
    void logIn(bool isXmpp, KirvClock &clock = KirvClock::system());

    KirvProsodyServer prosody;
    KirvNgircdServer ngircd;
    std::unique_ptr<KirvScriptedProxy> proxy; ///< between the client and the server
    KirvFakeClock fakeClock; ///< before what uses it
    std::unique_ptr<KirvConnection> connection;
};

void tst_NetworkChange::protocols()
{
    QTest::addColumn<bool>("isXmpp");
    QTest::newRow("XMPP") << true;
    QTest::newRow("IRC") << false;
}

void tst_NetworkChange::cleanup()
{
    connection.reset();
    proxy.reset();
}

void tst_NetworkChange::logIn(bool isXmpp, KirvClock &clock)
{
    qRegisterMetaType<KirvConnection::State>("KirvConnection::State");
    QVERIFY(prosody.isRunning() || KirvXmppProfile::start(prosody));
    QVERIFY(ngircd.isRunning() || ngircd.start());
    proxy = std::make_unique<KirvScriptedProxy>(KirvScriptedProxy::Socks5, isXmpp ? prosody.port() : ngircd.port());
    KirvProxy settings;
    settings.kind = KirvProxy::Socks5;
    settings.host = "127.0.0.1";
    settings.port = proxy->serverPort();
    KirvLogin login;
    if (isXmpp) {
        KirvXmppSettings xmpp;
        xmpp.certificatePath = prosody.certificatePath();
        xmpp.proxy = settings;
        login = { "romeo@localhost", "secret", xmpp.toFields() };
        connection = std::make_unique<KirvXmppConnection>(clock);
    } else {
        login = { "alice@irc.example", QString(),
                  KirvPluginProfile::withValues(KirvIrcSettings::defaultFields(), { { "encryption", "none" } })
                      + settings.toFields() };
        connection = std::make_unique<KirvIrcConnection>(clock);
    }
    connection->logIn(login, { "available", "Available", QString(), QString() });
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    KirvConnection::Timing timing = connection->timing();
    timing.backOff.first = timing.backOff.last = 3600 * 1000;
    connection->setTiming(timing);
}

/// Until long after its check: a session that hangs has been left meanwhile.
void tst_NetworkChange::aSessionThatWorksIsKept()
{
    QFETCH(bool, isXmpp);
    logIn(isXmpp);
    const std::unique_ptr<KirvScriptedProxy> workingProxy = std::move(proxy);
    const std::unique_ptr<KirvConnection> working = std::move(connection);
    logIn(isXmpp);
    proxy->freeze();
    QSignalSpy states(working.get(), &KirvConnection::stateChanged);
    for (int change = 0; change < 10; ++change)
        working->networkChanged();
    connection->networkChanged();
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Waiting, kirvPatience);
    QCOMPARE(states.size(), 0);
    QCOMPARE(working->state(), KirvConnection::Online);
}

void tst_NetworkChange::aSessionThatHangsIsLeft()
{
    QFETCH(bool, isXmpp);
    logIn(isXmpp, fakeClock);
    proxy->freeze();
    connection->networkChanged();
    fakeClock.advance(connection->timing().requestTimeout / 3 - 1);
    QCOMPARE(connection->state(), KirvConnection::Online);
    fakeClock.advance(1);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Waiting, kirvPatience);
    QCOMPARE(connection->lastFailure().kind(), KirvFailure::ConnectionLost);
    QVERIFY2(connection->lastFailure().text().contains("answer"), qPrintable(connection->lastFailure().text()));
}

void tst_NetworkChange::aWaitIsCutShort()
{
    QFETCH(bool, isXmpp);
    logIn(isXmpp);
    proxy->hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Waiting, kirvPatience);
    connection->networkChanged();
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
}

QTEST_GUILESS_MAIN(tst_NetworkChange)
#include "tst_network_change.moc"

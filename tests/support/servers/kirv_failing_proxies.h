// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAILING_PROXIES_H
#define KIRV_FAILING_PROXIES_H

#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_proxy.h"
#include "core/values/kirv_failure.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_scripted_proxy.h"

#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(KirvFailure::Kind)
Q_DECLARE_METATYPE(KirvScriptedProxy::Kind)
Q_DECLARE_METATYPE(KirvScriptedProxy::Behaviour)

/// A name that no host has.
const auto kirvNoProxyHere = "no-proxy-here.invalid";

/// The rows of a test of what a connection reports of a proxy that does not lead to the server: "kind", "behaviour" and
/// the kind of failure, "failing".
inline void kirvAddFailingProxies()
{
    using Proxy = KirvScriptedProxy;
    QTest::addColumn<Proxy::Kind>("kind");
    QTest::addColumn<Proxy::Behaviour>("behaviour");
    QTest::addColumn<KirvFailure::Kind>("failing");
    for (const auto kind : { Proxy::Socks5, Proxy::Http }) {
        const char *name = kind == Proxy::Http ? "HTTP" : "SOCKS5";
        QTest::addRow("%s hangs up", name) << kind << Proxy::HangsUp << KirvFailure::ProxyFailed;
        QTest::addRow("%s talks nonsense", name) << kind << Proxy::TalksNonsense << KirvFailure::ProxyFailed;
        QTest::addRow("%s finds the server closed", name)
            << kind << Proxy::FindsServerClosed << KirvFailure::ConnectionRefused;
    }
    QTest::newRow("HTTP denies") << Proxy::Http << Proxy::Denies << KirvFailure::ProxyDenied;
    QTest::newRow("HTTP finds no server") << Proxy::Http << Proxy::FindsNoServer << KirvFailure::HostNotFound;
    // Both are the same to Qt.
    QTest::newRow("SOCKS5 denies") << Proxy::Socks5 << Proxy::Denies << KirvFailure::ProxyFailed;
    QTest::newRow("SOCKS5 finds no server") << Proxy::Socks5 << Proxy::FindsNoServer << KirvFailure::ProxyFailed;
}

/// The rows of a test of a proxy that is not there: "kind" and "host".
inline void kirvAddMissingProxies()
{
    using Proxy = KirvScriptedProxy;
    QTest::addColumn<Proxy::Kind>("kind");
    QTest::addColumn<QString>("host");
    QTest::newRow("SOCKS5, nobody listens") << Proxy::Socks5 << "127.0.0.1";
    QTest::newRow("SOCKS5, no such host") << Proxy::Socks5 << kirvNoProxyHere;
    QTest::newRow("HTTP, nobody listens") << Proxy::Http << "127.0.0.1";
    QTest::newRow("HTTP, no such host") << Proxy::Http << kirvNoProxyHere;
}

/// One row for each "kind" of proxy.
inline void kirvAddKindsOfProxies()
{
    using Proxy = KirvScriptedProxy;
    QTest::addColumn<Proxy::Kind>("kind");
    QTest::newRow("SOCKS5") << Proxy::Socks5;
    QTest::newRow("HTTP") << Proxy::Http;
}

/// Verifies that \a connection, which logs in through the failing \a proxy, reports \a failing and tries again through
/// the proxy.
inline void kirvVerifyFailingProxy(const KirvConnection &connection, const KirvScriptedProxy &proxy,
                                   KirvFailure::Kind failing)
{
    KIRV_TRY(connection.lastFailure().isFailure());
    const KirvFailure failure = connection.lastFailure();
    QVERIFY2(failure.kind() == failing, qPrintable(failure.text()));
    QCOMPARE(connection.state(), KirvConnection::Waiting);
    const int before = proxy.connections();
    KIRV_TRY(proxy.connections() > before);
}

/// Verifies that each attempt of \a connection reports that the proxy \a host:\a port is not there.
inline void kirvVerifyMissingProxy(const KirvConnection &connection, const QString &host, int port)
{
    for (int attempt = 0; attempt < 3; ++attempt) {
        QSignalSpy failures(&connection, &KirvConnection::failed);
        KIRV_TRY(!failures.isEmpty());
        const KirvFailure failure = connection.lastFailure();
        QCOMPARE(failure.kind(), KirvFailure::ProxyNotReached);
        QVERIFY2(failure.text().contains(QStringLiteral("%1:%2").arg(host).arg(port)), qPrintable(failure.text()));
    }
}

/// Verifies that \a connection, which logs in through \a proxy and has the time of \a clock, gives the silent proxy up
/// in time.
inline void kirvVerifySilentProxy(const KirvConnection &connection, const KirvScriptedProxy &proxy,
                                  KirvFakeClock &clock)
{
    KIRV_TRY_COMPARE(proxy.connections(), 1);
    clock.advance(KirvProxy::timeout - 1);
    QCOMPARE(connection.state(), KirvConnection::Connecting);
    clock.advance(1);
    QCOMPARE(connection.lastFailure().kind(), KirvFailure::ProxyTimedOut);
}

#endif

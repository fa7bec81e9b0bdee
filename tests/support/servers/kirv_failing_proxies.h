// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAILING_PROXIES_H
#define KIRV_FAILING_PROXIES_H

#include "core/values/kirv_failure.h"
#include "tests/support/servers/kirv_scripted_proxy.h"

#include <QtTest>

Q_DECLARE_METATYPE(KirvFailure::Kind)
Q_DECLARE_METATYPE(KirvScriptedProxy::Kind)
Q_DECLARE_METATYPE(KirvScriptedProxy::Behaviour)

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

#endif

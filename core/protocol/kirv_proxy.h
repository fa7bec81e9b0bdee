// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROXY_H
#define KIRV_PROXY_H

#include "core/values/kirv_failure.h"
#include "core/values/kirv_values_export.h"
#include "host/kirv_field.h"

#include <QAbstractSocket>
#include <QCoreApplication>
#include <QList>
#include <QNetworkProxy>
#include <QString>
#include <functional>

class KirvClock;
class QObject;

/// What the connections of an account go through: the settings of every protocol that offers a proxy, and what they
/// mean. A value type.
///
/// An account with a proxy is never connected without it: what cannot be understood or reached is a failure.
class KIRV_PROTOCOL_EXPORT KirvProxy {
    Q_DECLARE_TR_FUNCTIONS(KirvProxy)

public:
    /// What connections go through.
    enum Kind {
        None, ///< directly to the server, whatever the system says
        System, ///< what the system says for the server, which may be that there is none
        Socks5, ///< version 5 of SOCKS, with names that the proxy looks up
        Http, ///< the method CONNECT
        Unknown ///< what was stored is none of these; cannot be used
    };

    /// The port of a proxy that names none.
    static const int defaultPort = 1080;
    /// How long a proxy may take until it has connected to the server, in milliseconds.
    static const int timeout = 20000;

    KirvProxy() = default;
    /// Reads \a fields; what is missing keeps its default.
    explicit KirvProxy(const QList<KirvField> &fields);

    Kind kind = None; ///< what connections go through
    QString host; ///< only of Socks5 and Http, as what follows
    int port = defaultPort; ///< 0: what was stored is no port
    QString user; ///< empty: no log-in
    QString password; ///< of the user; empty: none

    /// The settings as fields, in display order. That of the password is secret. Their ids begin with "proxy".
    QList<KirvField> toFields() const;
    /// Why the settings cannot be used, a sentence for the user; empty when they can.
    QString problem() const;
    /// The proxy for kirvFindProxy(); problem() must be empty.
    QNetworkProxy toNetworkProxy() const;
};

/// What kirvFindProxy() has found. With a failure, nothing may be connected.
using KirvProxyReceiver = std::function<void(const QNetworkProxy &proxy, const KirvFailure &failure)>;
/// The type of kirvFindProxy().
using KirvProxyFinder = std::function<void(const QNetworkProxy &proxy, const QString &host, int port, KirvClock &clock,
                                           QObject *context, const KirvProxyReceiver &receiver)>;

/// Finds what a connection to \a host goes through: \a proxy itself, at once; or what the system says when \a proxy is
/// of the type DefaultProxy, later. \a receiver is called once, unless \a context is destroyed before, with a proxy
/// that looks the names of servers up itself, or one of the type NoProxy, or a failure.
KIRV_PROTOCOL_EXPORT void kirvFindProxy(const QNetworkProxy &proxy, const QString &host, int port, KirvClock &clock,
                                        QObject *context, const KirvProxyReceiver &receiver);

/// What \a error of a socket that goes through \a proxy means when it is about the proxy; None when it is not. \a text
/// is the socket's for it.
KIRV_PROTOCOL_EXPORT KirvFailure kirvProxyFailure(const QNetworkProxy &proxy, QAbstractSocket::SocketError error,
                                                  const QString &text);
/// The proxy has not connected to the server within KirvProxy::timeout.
KIRV_PROTOCOL_EXPORT KirvFailure kirvProxyTimedOut(const QNetworkProxy &proxy);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SYSTEM_PROXY_H
#define KIRV_SYSTEM_PROXY_H

#include "core/values/kirv_values_export.h"

#include <QHash>
#include <QList>
#include <QNetworkProxy>
#include <QObject>
#include <QPointer>
#include <QSharedPointer>
#include <functional>
#include <optional>

class KirvClock;

/// What the system says about proxies.
///
/// The reply can take as long as the script takes that the system downloads and runs for it. So it comes from a thread,
/// and what has not come in time is not known, and nothing is connected then. GUI thread only.
class KIRV_PROTOCOL_EXPORT KirvSystemProxy : public QObject {
    Q_OBJECT

public:
    /// Finds what the system says; may block.
    using Query = std::function<QList<QNetworkProxy>(const QNetworkProxyQuery &query)>;
    /// With the proxy, or one of the type NoProxy where the system says that there is none; with nothing when it is not
    /// known.
    using Receiver = std::function<void(const std::optional<QNetworkProxy> &found)>;

    static constexpr int replyTimeout = 5000; ///< milliseconds

    /// \a query is called in another thread, at most once at a time; it may still run when this object is destroyed.
    explicit KirvSystemProxy(Query query, QObject *parent = nullptr);
    ~KirvSystemProxy() override;
    /// That of this system, for all connections of the process.
    static KirvSystemProxy &instance();

    /// Requests the proxy for a connection to \a host. \a receiver is called once, from the event loop, within the
    /// replyTimeout that \a clock measures, unless \a context is destroyed before.
    void request(const QString &host, int port, KirvClock &clock, QObject *context, const Receiver &receiver);

    /// The first of \a proxies that a connection can be made through, changed so that it looks names up itself; or
    /// NoProxy.
    static std::optional<QNetworkProxy> usable(const QList<QNetworkProxy> &proxies);

private:
    struct Q_DECL_HIDDEN Line;
    class Q_DECL_HIDDEN Thread;
    struct Request {
        QPointer<QObject> context;
        Receiver receiver;
    };

    void finish(quint64 number, const QList<QNetworkProxy> &proxies);

    const QSharedPointer<Line> line; ///< shared with the thread
    QHash<quint64, Request> requests;
    quint64 lastNumber = 0;
};

#endif

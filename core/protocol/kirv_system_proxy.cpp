// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_system_proxy.h"

#include "core/values/kirv_clock.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QNetworkProxyFactory>
#include <QThread>
#include <utility>

/// The queries that wait for the thread. It outlives the object while a query runs.
struct KirvSystemProxy::Line {
    struct Waiting {
        quint64 number;
        QNetworkProxyQuery query;
    };

    void remove(quint64 number);

    Query query;
    QMutex mutex; ///< of what follows
    QList<Waiting> waiting; ///< the first one is the next
    KirvSystemProxy *owner = nullptr; ///< null when it is destroyed
    bool isRunning = false; ///< the thread
};

void KirvSystemProxy::Line::remove(quint64 number)
{
    for (int index = 0; index < waiting.size(); ++index) {
        if (waiting.at(index).number == number) {
            waiting.removeAt(index);
            return;
        }
    }
}

/// Ends when no query waits. Nobody waits for it: a query that hangs would hold the end of the program.
class KirvSystemProxy::Thread : public QThread {
public:
    static void begin(const QSharedPointer<Line> &line)
    {
        auto *thread = new Thread(line);
        connect(thread, &QThread::finished, thread, &QObject::deleteLater);
        thread->start();
    }

protected:
    void run() override;

private:
    explicit Thread(const QSharedPointer<Line> &line)
        : line(line)
    {
    }

    const QSharedPointer<Line> line;
};

void KirvSystemProxy::Thread::run()
{
    QMutexLocker locker(&line->mutex);
    while (!line->waiting.isEmpty()) {
        const auto [number, query] = line->waiting.takeFirst();
        locker.unlock();
        const QList<QNetworkProxy> proxies = line->query(query);
        locker.relock();
        if (KirvSystemProxy *owner = line->owner) {
            QMetaObject::invokeMethod(
                owner, [owner, number = number, proxies] { owner->finish(number, proxies); }, Qt::QueuedConnection);
        }
    }
    line->isRunning = false;
}

KirvSystemProxy::KirvSystemProxy(Query query, QObject *parent)
    : QObject(parent)
    , line(new Line)
{
    line->query = std::move(query);
    line->owner = this;
}

KirvSystemProxy::~KirvSystemProxy()
{
    const QMutexLocker locker(&line->mutex);
    line->owner = nullptr;
    line->waiting.clear();
}

KirvSystemProxy &KirvSystemProxy::instance()
{
    static QPointer<KirvSystemProxy> shared;
    if (!shared)
        shared = new KirvSystemProxy(&QNetworkProxyFactory::systemProxyForQuery, QCoreApplication::instance());
    return *shared;
}

void KirvSystemProxy::request(const QString &host, int port, KirvClock &clock, QObject *context,
                              const Receiver &receiver)
{
    const quint64 number = ++lastNumber;
    requests.insert(number, { context, receiver });
    clock.callLater(replyTimeout, this, [this, number] { finish(number, {}); });
    const QMutexLocker locker(&line->mutex);
    line->waiting.append({ number, QNetworkProxyQuery(host, port) });
    if (!std::exchange(line->isRunning, true))
        Thread::begin(line);
}

/// Does nothing for a request that was replied to.
void KirvSystemProxy::finish(quint64 number, const QList<QNetworkProxy> &proxies)
{
    const Request request = requests.take(number);
    {
        const QMutexLocker locker(&line->mutex);
        line->remove(number);
    }
    if (request.context && request.receiver)
        request.receiver(usable(proxies));
}

std::optional<QNetworkProxy> KirvSystemProxy::usable(const QList<QNetworkProxy> &proxies)
{
    for (QNetworkProxy proxy : proxies) {
        if (proxy.type() == QNetworkProxy::NoProxy)
            return proxy;
        const bool isKnown = proxy.type() == QNetworkProxy::Socks5Proxy || proxy.type() == QNetworkProxy::HttpProxy;
        if (!isKnown || proxy.hostName().isEmpty())
            continue;
        // Whatever the system says of it: names are never looked up here. Qt needs both to connect.
        proxy.setCapabilities(proxy.capabilities() | QNetworkProxy::TunnelingCapability
                              | QNetworkProxy::HostNameLookupCapability);
        return proxy;
    }
    return std::nullopt;
}

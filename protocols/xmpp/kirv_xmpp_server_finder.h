// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_SERVER_FINDER_H
#define KIRV_XMPP_SERVER_FINDER_H

#include <QList>
#include <QString>
#include <functional>

class QHostAddress;
class QObject;

/// Where a server accepts connections. A value type.
struct KirvXmppTarget {
    QString host;
    int port = 0;
    bool isDirect = false; ///< TLS from the first byte

    bool operator==(const KirvXmppTarget &other) const
    {
        return host == other.host && port == other.port && isDirect == other.isDirect;
    }
};

/// One service record (SRV) of a domain. A value type.
struct KirvXmppServiceRecord {
    QString host; ///< "." or empty: the domain has no such service
    int port = 0;
    int priority = 0; ///< the smallest is tried first
    int weight = 0; ///< among those of the same priority: how often it is the first one
};

/// What is called for the service records of a name such as "_xmpp-client._tcp.example.org". The receiver is called
/// once, later, unless \a context is destroyed before; with an empty list when there are none, or no reply.
using KirvXmppServiceLookup = std::function<void(
    const QString &name, QObject *context, const std::function<void(const QList<KirvXmppServiceRecord> &)> &receiver)>;

/// Looks service records up in the network (DNS). A KirvXmppServiceLookup.
void kirvXmppLookUpService(const QString &name, QObject *context,
                           const std::function<void(const QList<KirvXmppServiceRecord> &)> &receiver);

/// The names of the two services of \a domain: with TLS after the start of the stream, and from the first byte.
QString kirvXmppServiceName(const QString &domain, bool isDirect);

/// The order in which to try what the records of both services say. \a random gives a number from 0 to what it is
/// called with, by chance.
QList<KirvXmppTarget> kirvXmppTargets(const QList<KirvXmppServiceRecord> &ordinary,
                                      const QList<KirvXmppServiceRecord> &direct,
                                      const std::function<int(int largest)> &random);

/// Whether \a address is one of this computer or of a private network: the rest of the world does not reach it.
bool kirvXmppIsLocal(const QHostAddress &address);

#endif

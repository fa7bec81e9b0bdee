// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DNS_SERVER_H
#define KIRV_DNS_SERVER_H

#include "tools/servers/kirv_local_server.h"

#include <QStringList>

/// A name server (dnsmasq) at port 53 of 127.0.0.1, which knows nothing but what it is told: for a private network.
class KirvDnsServer : public KirvLocalServer {
public:
    KirvDnsServer()
        : KirvLocalServer(53)
    {
    }

    /// \a name has the address 127.0.0.1.
    void addAddress(const QString &name) { records << QStringLiteral("--address=/%1/127.0.0.1").arg(name); }
    /// \a service, as "_xmpp-client._tcp.example.test", is at \a port of \a host; the smallest \a priority comes first.
    void addService(const QString &service, const QString &host, int port, int priority)
    {
        records << QStringLiteral("--srv-host=%1,%2,%3,%4").arg(service, host).arg(port).arg(priority);
    }

protected:
    bool writeConfiguration() override { return true; }
    QString program() const override { return QStringLiteral("dnsmasq"); }
    QStringList arguments() const override
    {
        return QStringList { "--keep-in-foreground",
                             "--conf-file=/dev/null",
                             "--no-hosts",
                             "--no-resolv",
                             "--user=",
                             "--group=",
                             "--pid-file=",
                             "--log-facility=-",
                             "--listen-address=127.0.0.1",
                             "--bind-interfaces",
                             "--local=/test/" }
        + records;
    }

private:
    QStringList records;
};

#endif

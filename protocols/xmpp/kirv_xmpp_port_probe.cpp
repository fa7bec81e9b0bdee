// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_port_probe.h"

#include "core/values/kirv_clock.h"

#include <QSslSocket>
#include <memory>

namespace {

const int timeout = 4000; // in milliseconds
const int mostBytes = 1000; // that are read to see what the other side is

} // namespace

void kirvXmppProbePort(const KirvXmppTarget &target, const QNetworkProxy &proxy, KirvClock &clock, QObject *context,
                       const std::function<void(bool isOther)> &receiver)
{
    auto *socket = new QSslSocket(context);
    socket->setProxy(proxy);
    socket->setReadBufferSize(mostBytes);
    const auto isOver = std::make_shared<bool>(false);
    const auto finish = [=](bool isOther) {
        if (*isOver)
            return;
        *isOver = true;
        socket->disconnect(context);
        socket->abort();
        socket->deleteLater();
        receiver(isOther);
    };
    QObject::connect(socket, &QAbstractSocket::disconnected, context, [=] { finish(false); });
    QObject::connect(socket, &QAbstractSocket::errorOccurred, context, [=] { finish(false); });
    clock.callLater(timeout, socket, [=] { finish(false); });
    if (target.isDirect) {
        QObject::connect(socket, &QAbstractSocket::connected, context, [=] {
            socket->write("<?xml version='1.0'?><stream:stream xmlns='jabber:client' "
                          "xmlns:stream='http://etherx.jabber.org/streams' version='1.0'>");
        });
        QObject::connect(socket, &QIODevice::readyRead, context,
                         [=] { finish(socket->read(mostBytes).trimmed().startsWith('<')); });
        socket->connectToHost(target.host, quint16(target.port));
    } else {
        // Who it is does not matter: nothing is sent over it.
        socket->setPeerVerifyMode(QSslSocket::VerifyNone);
        QObject::connect(socket, &QSslSocket::encrypted, context, [=] { finish(true); });
        socket->connectToHostEncrypted(target.host, quint16(target.port));
    }
}

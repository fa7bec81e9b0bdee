// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_clock.h"
#include "protocols/irc/kirv_irc_sasl.h"
#include "protocols/irc/kirv_irc_socket.h"
#include "tests/protocols/fake_irc_socket.h"

#include <IrcConnection>
#include <QCoreApplication>
#include <cstdint>
#include <cstdlib>

namespace {

void handleEvents(const FakeIrcSocket &transport)
{
    for (int turn = 0; turn < 3 || transport.bytesAvailable() > 0; ++turn) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (turn > 1000)
            abort(); // what has come is not read
    }
}

} // namespace

/// What a server sends, in pieces that end at bytes of 255, through our socket into the library. The first byte
/// decides how the client logs in.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static int argumentCount = 1;
    static char programName[] = "fuzz_irc_message";
    static char *arguments[] = { programName, nullptr };
    static QCoreApplication application(argumentCount, arguments);
    if (size == 0)
        return 0;

    IrcConnection connection;
    auto *transport = new FakeIrcSocket;
    auto *socket = new KirvIrcSocket(transport, KirvClock::system(), &connection);
    connection.setSocket(socket);
    connection.setHost(QStringLiteral("irc.example.org"));
    connection.setUserName(QStringLiteral("alice"));
    connection.setNickName(QStringLiteral("alice"));
    connection.setRealName(QStringLiteral("Alice"));
    if (data[0] % 3 == 1)
        connection.setProtocol(new KirvIrcSasl(&connection, QStringLiteral("alice"), QStringLiteral("secret")));
    else if (data[0] % 3 == 2)
        connection.setProtocol(new KirvIrcSasl(&connection));
    connection.open();

    const QByteArray input(reinterpret_cast<const char *>(data + 1), int(size - 1));
    const QList<QByteArray> pieces = input.split('\xff');
    for (const QByteArray &piece : pieces) {
        transport->receiveBytes(piece);
        handleEvents(*transport);
    }
    qint64 sent = 0;
    const QStringList lines = transport->takeSent();
    for (const QString &line : lines)
        sent += line.size();
    if (sent > 4096 + 4 * qint64(size))
        abort(); // a few bytes of a server must not cause many of ours
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_SOCKET_H
#define KIRV_IRC_SOCKET_H

#include "protocols/irc/kirv_irc_input.h"

#include <QAbstractSocket>
#include <QTimer>

/// The socket that is given to the library: it stands before a real one and hands on what KirvIrcInput keeps, a little
/// in each turn of the event loop.
///
/// What waits to be read or to be sent is bounded. While the server does not read what it has caused to be sent,
/// nothing of it is read either. What came before the end of the connection is handed on before the end is.
class KirvIrcSocket : public QAbstractSocket {
    Q_OBJECT

public:
    static constexpr int bytesPerTurn = 32768;
    static constexpr int linesPerTurn = 50; ///< of those that are handed on
    static constexpr int largestBacklog = 65536; ///< bytes that wait to be sent

    /// Takes ownership of \a transport: a QSslSocket is encrypted, others are not. \a clock outlives the object.
    KirvIrcSocket(QAbstractSocket *transport, KirvClock &clock, QObject *parent = nullptr);
    ~KirvIrcSocket() override;

    /// The version of TLS that is used; empty without encryption and when it is not connected.
    QString encryptionName() const;

    /// Ends the connection at once; emits nothing.
    void breakOff();

    void connectToHost(const QString &host, quint16 port, OpenMode mode, NetworkLayerProtocol protocol) override;
    void disconnectFromHost() override;
    qint64 bytesAvailable() const override;
    bool canReadLine() const override;

Q_SIGNALS:
    /// The server has sent something, whether it is used or not.
    void received();
    /// The server has sent a line that is longer than any: nothing more is read.
    void lineWasTooLong();

protected:
    qint64 readData(char *data, qint64 size) override;
    qint64 readLineData(char *data, qint64 size) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    void enter(SocketState state);
    void begin();
    void end();
    void receiveError(SocketError error);
    void finish();
    void goOn();
    void takeTurn();

    QAbstractSocket *const transport;
    KirvIrcInput input;
    QByteArray used; ///< lines that the library has not read yet
    QTimer nextTurn;
    bool ended = false; ///< the transport has, and the rest of the input is still to be handed on
    SocketError endError = UnknownSocketError; ///< why it has; UnknownSocketError: without an error
};

#endif

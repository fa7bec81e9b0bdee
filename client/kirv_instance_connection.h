// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_INSTANCE_CONNECTION_H
#define KIRV_INSTANCE_CONNECTION_H

#include <QJsonObject>
#include <QObject>
#include <QTimer>

class QLocalSocket;
class QThreadPool;

/// The end of a running program of the connection with one later start: receives one line, replies with one and
/// destroys itself. Whoever sends or reads too slowly is disconnected; neither keeps the event loop waiting.
class KirvInstanceConnection : public QObject {
    Q_OBJECT

public:
    /// Whether the process at the other end of \a socket belongs to the user of this one.
    static bool isOfOwnUser(const QLocalSocket &socket);

    /// Takes \a socket over. Messages are taken apart and put together in \a threads, which outlive this.
    KirvInstanceConnection(QLocalSocket *socket, QThreadPool &threads, QObject *parent);

    /// Starts to receive, once somebody has connected to the signals.
    void start();
    /// Lets more than KirvInstanceMessage::longestSmall bytes be received.
    void allowLarge();
    /// Sends \a message. Once, after received().
    void reply(const QJsonObject &message);

Q_SIGNALS:
    /// The line is large: nothing more is received before allowLarge().
    void isLarge();
    void received(const QJsonObject &message);
    /// Nothing follows.
    void ended();

private:
    void read();
    void parse();
    void send(const QByteArray &line);
    void end();

    QLocalSocket *socket;
    QThreadPool &threads;
    QTimer patience; ///< with the other end
    QByteArray line;
    bool mayBeLarge = false;
    bool isWaiting = false; ///< for allowLarge()
    bool isComplete = false;
    bool hasEnded = false;
};

#endif

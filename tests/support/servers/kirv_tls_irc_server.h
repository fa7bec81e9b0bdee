// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TLS_IRC_SERVER_H
#define KIRV_TLS_IRC_SERVER_H

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>
#include <functional>
#include <utility>

/// A server with TLS that requests a certificate of the client and answers lines with lines.
class KirvTlsIrcServer : public QTcpServer {
public:
    /// Gives the lines that answer \a line, each with its line feed; nothing for no answer.
    using Script = std::function<QByteArray(const QByteArray &line)>;

    /// The files are PEM; the certificate is made for 127.0.0.1.
    KirvTlsIrcServer(const QString &certificateFile, const QString &keyFile, Script script)
        : certificateFile(certificateFile)
        , keyFile(keyFile)
        , script(std::move(script))
    {
        listen(QHostAddress::LocalHost);
    }

    /// What the last client has shown; null when it has shown none.
    QSslCertificate clientCertificate() const { return shown; }
    QByteArrayList receivedLines() const { return received; }
    /// Whether a client has sent anything over an encrypted connection.
    bool wasSpokenTo() const { return spokenTo; }

protected:
    void incomingConnection(qintptr handle) override
    {
        auto *socket = new QSslSocket(this);
        socket->setSocketDescriptor(handle);
        socket->setLocalCertificate(certificateFile);
        socket->setPrivateKey(keyFile, QSsl::Ec);
        socket->setPeerVerifyMode(QSslSocket::QueryPeer);
        connect(socket, QOverload<const QList<QSslError> &>::of(&QSslSocket::sslErrors), socket,
                [socket] { socket->ignoreSslErrors(); });
        connect(socket, &QSslSocket::encrypted, this, [this, socket] { shown = socket->peerCertificate(); });
        connect(socket, &QSslSocket::readyRead, this, [this, socket] {
            spokenTo = true;
            while (socket->canReadLine()) {
                received += socket->readLine().trimmed();
                socket->write(script(received.last()));
            }
        });
        socket->startServerEncryption();
    }

private:
    const QString certificateFile;
    const QString keyFile;
    const Script script;
    QSslCertificate shown;
    QByteArrayList received;
    bool spokenTo = false;
};

#endif

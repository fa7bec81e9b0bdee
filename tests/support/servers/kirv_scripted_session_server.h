// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_SESSION_SERVER_H
#define KIRV_SCRIPTED_SESSION_SERVER_H

#include <QByteArrayList>
#include <QList>
#include <QSslCertificate>
#include <QSslKey>
#include <QTcpServer>

/// A server that logs a client in by SASL PLAIN, changes its password, keeps one directory entry, and records what
/// reaches its socket: the bytes in clear, the passwords, the presences. Serves "ann@localhost".
class KirvScriptedSessionServer : public QTcpServer {
    Q_OBJECT

public:
    /// What happens to requests for the directory entry.
    enum Directory { Answers, RefusesToRead, RefusesToPublish, IsSilent, IgnoresPublications };

    KirvScriptedSessionServer();

    /// Offers encryption from now on with the certificate and the key of these PEM files; false when they cannot
    /// be read.
    bool offerEncryption(const QString &certificatePath, const QString &keyPath);
    /// Accepts this password only; an empty one stands for every password, as at the start.
    void setPassword(const QByteArray &password) { acceptedPassword = password; }
    void setDirectory(Directory directory) { directoryState = directory; }
    /// Replaces the children of the directory entry, as another client would.
    void setCard(const QByteArray &children) { card = children; }

    /// Sends \a bytes over all connections.
    void say(const QByteArray &bytes);
    /// Breaks all connections and accepts none until comeBack(), which listens on the same port.
    void goAway();
    bool comeBack();

    int connections() const { return connectionCount; }
    /// Everything that came in clear, over all connections.
    QByteArray receivedInClear() const { return inClear; }
    /// The passwords of all log-ins, refused ones too, in their order.
    QByteArrayList passwords() const { return usedPasswords; }
    /// The resources that were requested, in their order.
    QByteArrayList resources() const { return requestedResources; }
    /// The presences in their order; the one of a log-in that tells the picture comes last.
    QByteArrayList presences() const { return receivedPresences; }
    QByteArray lastPresence() const { return receivedPresences.value(receivedPresences.size() - 1); }
    int cardRequests() const { return cardRequestCount; }
    /// The publications that were received, refused ones too: the children of their entries.
    QByteArrayList publications() const { return receivedPublications; }
    QByteArray storedCard() const { return card; }

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    class Session;
    friend class Session;

    QSslCertificate certificate;
    QSslKey key;
    quint16 port = 0;
    QByteArray acceptedPassword;
    Directory directoryState = Answers;
    QByteArray card;
    int connectionCount = 0;
    int cardRequestCount = 0;
    QByteArray inClear;
    QByteArrayList usedPasswords;
    QByteArrayList requestedResources;
    QByteArrayList receivedPresences;
    QByteArrayList receivedPublications;
};

#endif

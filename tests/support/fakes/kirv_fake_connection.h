// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_CONNECTION_H
#define KIRV_FAKE_CONNECTION_H

#include "core/protocol/kirv_connection.h"
#include "tests/support/fakes/kirv_fake_server.h"

#include <QMap>
#include <functional>
#include <memory>

/// A connection to a KirvFakeServer.
///
/// The invokable operations can be called by name, too, where the class comes out of a plug-in.
class KirvFakeConnection : public KirvConnection {
    Q_OBJECT

public:
    explicit KirvFakeConnection(std::shared_ptr<KirvFakeServer> server = std::make_shared<KirvFakeServer>(),
                                KirvClock &clock = KirvClock::system(), QObject *parent = nullptr);
    ~KirvFakeConnection() override;

    /// Accepts what the server holds: the log-in, the log-out or the oldest directory request.
    Q_INVOKABLE void serverAccepts();
    /// Refuses the log-in or the oldest directory request.
    Q_INVOKABLE void serverRefuses();
    /// Breaks the connection, or the attempt to connect.
    Q_INVOKABLE void serverGoes();
    /// Moves the clock, which is a KirvFakeClock.
    Q_INVOKABLE void advance(int milliseconds);

    /// The numbers of the directory requests that the server holds, the oldest first.
    QList<int> heldRequests() const { return held.keys(); }
    void acceptRequest(int request);
    void refuseRequest(int request);

    /// What the server received over any connection since the last take.
    QStringList takeCalls() { return server->takeCalls(); }

    using KirvConnection::acceptsCertificate;
    using KirvConnection::answerDirectoryRequest;
    using KirvConnection::connectionLost;
    using KirvConnection::failDirectoryRequest;
    using KirvConnection::failForCertificate;
    using KirvConnection::loginFailed;
    using KirvConnection::loginSucceeded;
    using KirvConnection::logoutFinished;
    using KirvConnection::reportStep;
    using KirvConnection::requestFailed;

    QString securityText() const override { return security; }

    const std::shared_ptr<KirvFakeServer> server;
    QString security;
    /// Run in place of the server's reply where they are set.
    std::function<void()> onLogIn;
    std::function<void()> onLogOut;
    std::function<void()> onAbort;
    std::function<void(int request)> onDirectory;
    std::function<void()> onAvatar;

protected:
    void startLogin(const KirvPresence &presence) override;
    void startLogout() override;
    void abortConnection() override;
    void applyPresence(const KirvPresence &presence) override;
    void checkSession(int milliseconds) override;
    void publishAvatar() override;
    void startDirectoryFetch(int request) override;
    void startDirectoryPublication(int request, const QList<KirvField> &changes) override;
    void startDirectoryDeletion(int request) override;

private:
    /// Changes the entry of the account as the request says, once it is accepted.
    using Change = std::function<void(QList<KirvField> &entry)>;

    void log(const QString &call);
    void startRequest(int request, const Change &change);

    QMap<int, Change> held;
};

#endif

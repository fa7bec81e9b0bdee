// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROSODY_SERVER_H
#define KIRV_PROSODY_SERVER_H

#include "tools/servers/kirv_local_server.h"

#include <QStringList>

/// A private XMPP server (Prosody) for one domain.
class KirvProsodyServer : public KirvLocalServer {
public:
    struct Options {
        QString domain = QStringLiteral("localhost");
        bool offersEncryption = true; ///< with a certificate of its own making, which nobody trusts yet
        bool requiresEncryption = true; ///< only together with offersEncryption
        bool encryptsAtOnce = false; ///< TLS from the first byte; only together with offersEncryption
        bool allowsRegistration = true;
        QStringList enabledModules; ///< in addition to those that a private server has
        QStringList disabledModules; ///< in addition to those that a private server has no use for
    };

    KirvProsodyServer();
    explicit KirvProsodyServer(const Options &options);

    QString domain() const { return options.domain; }
    /// The server's certificate as a PEM file; there once the server was started, when it offers encryption.
    QString certificatePath() const;

    /// Creates or removes an account; the server need not be running but must have been started once. False
    /// with errorString(). Removing does not end a session.
    bool addUser(const QString &user, const QString &password);
    bool removeUser(const QString &user);
    bool hasUser(const QString &user) const;
    /// The full addresses of the sessions that the running server has now, as it tells itself.
    QStringList sessions();
    /// Whether \a user has a session now.
    bool isOnline(const QString &user);

protected:
    bool writeConfiguration() override;
    QString program() const override { return QStringLiteral("prosody"); }
    QStringList arguments() const override;

private:
    QString configurationPath() const;
    bool makeCertificate();
    bool control(const QStringList &command, QString *printed = nullptr);

    Options options;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_NGIRCD_SERVER_H
#define KIRV_NGIRCD_SERVER_H

#include "tools/servers/kirv_local_server.h"

#include <QStringList>

/// A private ngircd: an IRC network of one server. Set it up before start().
class KirvNgircdServer : public KirvLocalServer {
public:
    /// Clients are spoken to with TLS only, and with a self-signed certificate for "localhost" and 127.0.0.1.
    void setEncrypted(bool encrypted) { this->encrypted = encrypted; }
    bool isEncrypted() const { return encrypted; }
    /// Clients must send this password; empty: none.
    void setPassword(const QString &password) { this->password = password; }
    /// Longer nicks are refused.
    void setMaximumNickLength(int length) { maximumNickLength = length; }

    /// The certificate, for clients that should trust it; it is there after the first encrypted start().
    QString certificateFile() const { return folder() + QStringLiteral("/certificate.pem"); }

protected:
    bool writeConfiguration() override;
    QString program() const override;
    QStringList arguments() const override;

private:
    bool createCertificate();
    QByteArray configuration() const;
    QString configurationFile() const { return folder() + QStringLiteral("/ngircd.conf"); }
    QString keyFile() const { return folder() + QStringLiteral("/key.pem"); }
    QString parameterFile() const { return folder() + QStringLiteral("/dh.pem"); }

    bool encrypted = false;
    QString password;
    int maximumNickLength = 30;
};

#endif

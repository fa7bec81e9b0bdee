// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_SASL_H
#define KIRV_IRC_SASL_H

#include "core/values/kirv_failure.h"

#include <IrcProtocol>
#include <QString>

class IrcMessage;
class IrcNumericMessage;

/// Opens a session with SASL PLAIN or EXTERNAL, and only so.
///
/// The protocol of the library ends the negotiation before the server has judged the password, which can log in
/// without it, and sends the password as that of the server where SASL is not offered. This one waits for the
/// judgement and never sends the password anywhere else.
class KirvIrcSasl : public IrcProtocol {
    Q_OBJECT

public:
    /// PLAIN. \a connection owns it and has no password and no SASL mechanism of its own.
    KirvIrcSasl(IrcConnection *connection, const QString &user, const QString &password);
    /// EXTERNAL: the certificate that the socket of \a connection shows says who the user is.
    explicit KirvIrcSasl(IrcConnection *connection);

    /// As it is called in the protocol.
    QString mechanismName() const { return QLatin1String(mechanism); }
    /// Whether the server has accepted the password or the certificate.
    bool isAccepted() const { return accepted; }

    bool write(const QByteArray &data) override;

Q_SIGNALS:
    void failed(const KirvFailure &failure);

private:
    void receive(IrcMessage *message);
    void negotiate(IrcMessage *message);
    void evaluateNumeric(IrcNumericMessage *message);
    KirvFailure refusal() const;
    void sendCredentials();
    void accept();

    bool isOffered() const;

    const QByteArray mechanism;
    QByteArray credentials; ///< empty for EXTERNAL
    bool capabilityRequested = false;
    bool requested = false; ///< the mechanism
    bool answered = false; ///< the credentials have been sent
    bool accepted = false;
};

#endif

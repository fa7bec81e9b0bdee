// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_sasl.h"

#include <IrcConnection>
#include <IrcMessage>
#include <IrcNetwork>

namespace {

const char endOfNegotiation[] = "CAP END";
/// Longer credentials are sent in pieces of this size.
const int pieceSize = 400;

} // namespace

KirvIrcSasl::KirvIrcSasl(IrcConnection *connection, const QString &user, const QString &password)
    : IrcProtocol(connection)
    , mechanism("PLAIN")
    , credentials(('\0' + user.toUtf8() + '\0' + password.toUtf8()).toBase64())
{
    connect(connection, &IrcConnection::messageReceived, this, &KirvIrcSasl::receive);
}

KirvIrcSasl::KirvIrcSasl(IrcConnection *connection)
    : IrcProtocol(connection)
    , mechanism("EXTERNAL")
{
    connect(connection, &IrcConnection::messageReceived, this, &KirvIrcSasl::receive);
}

/// A server that does not list its mechanisms may have ours.
bool KirvIrcSasl::isOffered() const
{
    const QStringList capabilities = connection()->network()->availableCapabilities();
    for (const QString &capability : capabilities) {
        if (capability.section(QLatin1Char('='), 0, 0) != QLatin1String("sasl"))
            continue;
        const QString mechanisms = capability.section(QLatin1Char('='), 1);
        return mechanisms.isEmpty() || mechanisms.split(QLatin1Char(',')).contains(mechanismName());
    }
    return false;
}

bool KirvIrcSasl::write(const QByteArray &data)
{
    const bool tooEarly = data == endOfNegotiation && !accepted;
    return tooEarly || IrcProtocol::write(data);
}

void KirvIrcSasl::receive(IrcMessage *message)
{
    if (message->type() == IrcMessage::Capability) {
        negotiate(message);
    } else if (message->command() == QLatin1String("AUTHENTICATE")) {
        if (requested && !answered && !accepted)
            sendCredentials();
    } else if (message->type() == IrcMessage::Numeric) {
        evaluateNumeric(static_cast<IrcNumericMessage *>(message));
    }
}

void KirvIrcSasl::evaluateNumeric(IrcNumericMessage *message)
{
    const QString words = message->parameter(message->parameters().size() - 1);
    switch (message->code()) {
    case 903: // RPL_SASLSUCCESS
        if (answered)
            accept();
        break;
    case 907: // ERR_SASLALREADY
        if (requested)
            accept();
        break;
    case 902: // ERR_NICKLOCKED
        Q_EMIT failed({ KirvFailure::AccessDenied, words });
        break;
    case 904: // ERR_SASLFAIL
        Q_EMIT failed(refusal());
        break;
    case 905: // ERR_SASLTOOLONG
        if (answered)
            Q_EMIT failed({ KirvFailure::BadSettings, tr("The password is longer than the server accepts.") });
        else
            Q_EMIT failed(KirvFailure::AuthenticationNotOffered);
        break;
    case 906: // ERR_SASLABORTED, which nobody but the server can have done
        Q_EMIT failed({ KirvFailure::ServiceUnavailable, tr("It has ended SASL before it was done.") });
        break;
    case 908: // RPL_SASLMECHS
        Q_EMIT failed(KirvFailure::AuthenticationNotOffered);
        break;
    default:
        break;
    }
}

void KirvIrcSasl::negotiate(IrcMessage *message)
{
    if (accepted)
        return;
    const QString subCommand = message->parameter(1);
    if (subCommand == QLatin1String("LS")) {
        // A list in several lines has an asterisk in all but the last.
        if (message->parameter(2) == QLatin1String("*"))
            return;
        if (!isOffered())
            Q_EMIT failed(KirvFailure::AuthenticationNotOffered);
        else if (!capabilityRequested)
            connection()->sendRaw(QStringLiteral("CAP REQ :sasl"));
        capabilityRequested = true;
    } else if (subCommand == QLatin1String("ACK")) {
        if (!requested)
            connection()->sendData("AUTHENTICATE " + mechanism);
        requested = true;
    } else if (subCommand == QLatin1String("NAK")) {
        Q_EMIT failed(KirvFailure::AuthenticationNotOffered);
    }
}

/// A server without its services refuses before it has seen the password.
KirvFailure KirvIrcSasl::refusal() const
{
    if (!answered)
        return KirvFailure::AuthenticationNotOffered;
    if (credentials.isEmpty())
        return { KirvFailure::AccessDenied, tr("The client certificate is not known there.") };
    return KirvFailure::WrongPassword;
}

void KirvIrcSasl::sendCredentials()
{
    answered = true;
    for (int begin = 0; begin < credentials.size(); begin += pieceSize)
        connection()->sendData("AUTHENTICATE " + credentials.mid(begin, pieceSize));
    // A piece of full size says that another one follows; there may be nothing left for it.
    if (credentials.size() % pieceSize == 0)
        connection()->sendData("AUTHENTICATE +");
}

void KirvIrcSasl::accept()
{
    if (accepted)
        return;
    accepted = true;
    connection()->sendData(endOfNegotiation);
}

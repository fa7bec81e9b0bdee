// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_login_guard.h"

#include "protocols/xmpp/kirv_xmpp_features.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QDomDocument>
#include <QHash>
#include <QSslSocket>
#include <QXmppOutgoingClient.h>

namespace {

const auto authenticationSpace = QStringLiteral("urn:ietf:params:xml:ns:xmpp-sasl");

/// What the library keeps for classes that derive from a stream.
class Stream : public QXmppOutgoingClient {
public:
    static void receiveStanza(QXmppOutgoingClient &stream, const QDomElement &element)
    {
        (stream.*(&Stream::handleStanza))(element);
    }
};

/// What Qt keeps for classes that derive from a socket.
class Socket : public QAbstractSocket {
public:
    static void setState(QAbstractSocket &socket, SocketState state) { (socket.*(&Socket::setSocketState))(state); }
};

/// Reads the attributes of a message of SCRAM ("r=…,s=…,i=…") by their letters. False when a letter comes twice: the
/// library would use another value than the one that was looked at.
bool readAttributes(const QByteArray &message, QHash<char, QByteArray> *attributes)
{
    const QList<QByteArray> parts = message.split(',');
    for (const QByteArray &part : parts) {
        if (part.size() < 2 || part.at(1) != '=')
            continue;
        if (attributes->contains(part.at(0)))
            return false;
        attributes->insert(part.at(0), part.mid(2));
    }
    return true;
}

} // namespace

KirvXmppLoginGuard::KirvXmppLoginGuard(QXmppOutgoingClient &stream)
    : stream(stream)
{
}

bool KirvXmppLoginGuard::receiveFeatures(QDomElement &features, bool sendsPasswords)
{
    ++featureCount;
    QString mechanism;
    const bool canLogIn = kirvXmppReduceFeatures(features, sendsPasswords, &mechanism);
    if (!isDone && !isEndless()) {
        chosen = mechanism;
        return canLogIn;
    }
    features.removeChild(kirvXmppChild(features, authenticationSpace, QStringLiteral("mechanisms")));
    return true;
}

KirvFailure KirvXmppLoginGuard::receiveStep(const QDomElement &step)
{
    if (step.localName() == QLatin1String("challenge"))
        return receiveChallenge(step.text());
    return step.localName() == QLatin1String("success") ? receiveSuccess(step) : KirvFailure();
}

KirvFailure KirvXmppLoginGuard::receiveChallenge(const QString &text)
{
    if (isChecking)
        return KirvFailure();
    if (++challengeCount > mostChallenges || text.size() > longestChallenge)
        return KirvFailure(KirvFailure::ServiceUnavailable, tr("It requires more than a log-in needs."));
    if (!isMutual())
        return KirvFailure();
    QHash<char, QByteArray> attributes;
    const bool isClear = readAttributes(QByteArray::fromBase64(text.toLatin1()), &attributes);
    const bool hasProof = attributes.contains('v');
    if (!isClear || (hasProof && challengeCount == 1))
        return KirvFailure(KirvFailure::ServiceUnavailable, tr("Its part of the log-in is wrong."));
    isProven = isProven || hasProof; // the library ends the stream when the proof of the second challenge is wrong
    const int most = chosen == QLatin1String("SCRAM-SHA-512") ? mostRoundsOfSha512 : mostRounds;
    bool isNumber = false;
    const QByteArray rounds = attributes.value('i');
    if (rounds.isEmpty() || (rounds.toInt(&isNumber) <= most && isNumber))
        return KirvFailure();
    return KirvFailure(KirvFailure::ServiceUnavailable,
                       tr("It requires more work to check the password than is allowed (%1 rounds, at most %2).")
                           .arg(QString::fromLatin1(rounds.left(12)))
                           .arg(most));
}

KirvFailure KirvXmppLoginGuard::receiveSuccess(const QDomElement &success)
{
    if (isMutual() && !isProven && !isProof(success))
        return KirvFailure(KirvFailure::ServiceUnavailable, tr("It has not proved that it knows the password."));
    isDone = true;
    return KirvFailure();
}

/// The library checks the proof of a challenge, to which it replies. That reply must not be sent: for as long as it
/// takes, the socket does not seem to be connected.
bool KirvXmppLoginGuard::isProof(const QDomElement &success)
{
    if (challengeCount == 0 || success.text().size() > longestChallenge)
        return false;
    bool isReplied = false;
    const auto note = [&isReplied](QXmppLogger::MessageType type, const QString &text) {
        isReplied = isReplied || (type == QXmppLogger::SentMessage && text.startsWith(QLatin1String("<response")));
    };
    QDomDocument document;
    QDomElement challenge = document.createElementNS(success.namespaceURI(), QStringLiteral("challenge"));
    challenge.appendChild(document.createTextNode(success.text()));
    document.appendChild(challenge);

    const auto state = stream.socket()->state();
    const QMetaObject::Connection connection = QObject::connect(&stream, &QXmppLoggable::logMessage, &stream, note);
    Socket::setState(*stream.socket(), QAbstractSocket::ClosingState);
    isChecking = true;
    Stream::receiveStanza(stream, challenge);
    isChecking = false;
    Socket::setState(*stream.socket(), state);
    QObject::disconnect(connection);
    return isReplied;
}

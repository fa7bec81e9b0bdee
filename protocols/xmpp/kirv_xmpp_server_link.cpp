// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_server_link.h"

#include "core/protocol/kirv_proxy.h"
#include "protocols/tls/kirv_socket_steps.h"
#include "protocols/tls/kirv_system_certificates.h"
#include "protocols/xmpp/kirv_xmpp_address.h"
#include "protocols/xmpp/kirv_xmpp_errors.h"
#include "protocols/xmpp/kirv_xmpp_server_finder.h"
#include "protocols/xmpp/kirv_xmpp_stream_reader.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QByteArrayList>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QPointer>
#include <QSslSocket>
#include <QUrl>
#include <QXmppClientExtension.h>
#include <QXmppDiscoveryManager.h>
#include <QXmppElement.h>
#include <QXmppEntityTimeManager.h>
#include <QXmppOutgoingClient.h>
#include <QXmppRosterManager.h>
#include <QXmppVCardManager.h>
#include <QXmppVersionManager.h>

namespace {

const auto streamSpace = QStringLiteral("http://etherx.jabber.org/streams");
const auto streamErrorSpace = QStringLiteral("urn:ietf:params:xml:ns:xmpp-streams");
const auto stanzaErrorSpace = QStringLiteral("urn:ietf:params:xml:ns:xmpp-stanzas");
const auto encryptionSpace = QStringLiteral("urn:ietf:params:xml:ns:xmpp-tls");
const auto authenticationSpace = QStringLiteral("urn:ietf:params:xml:ns:xmpp-sasl");
const auto registrationFeatureSpace = QStringLiteral("http://jabber.org/features/iq-register");

template <typename Extension>
void removeExtension(QXmppClient &client)
{
    if (auto *extension = client.findExtension<Extension>())
        client.removeExtension(extension);
}

} // namespace

/// Sees every element of the stream before the library does.
class KirvXmppServerLink::Tap : public QXmppClientExtension {
public:
    explicit Tap(KirvXmppServerLink &link)
        : link(link)
    {
    }

    bool handleStanza(const QDomElement &stanza) override { return link.receive(stanza); }

private:
    KirvXmppServerLink &link;
};

KirvXmppServerLink::KirvXmppServerLink(Purpose purpose, KirvClock &clock, int replyTimeout, QObject *parent)
    : KirvXmppLink(parent)
    , purpose(purpose)
    , clock(clock)
    , replyTimeout(replyTimeout)
    , loginGuard(*client.findChild<QXmppOutgoingClient *>())
{
    // They answer everybody, with the name of the system among others, and fetch what is not used.
    removeExtension<QXmppDiscoveryManager>(client);
    removeExtension<QXmppEntityTimeManager>(client);
    removeExtension<QXmppRosterManager>(client);
    removeExtension<QXmppVCardManager>(client);
    removeExtension<QXmppVersionManager>(client);
    client.insertExtension(0, new Tap(*this));
    guardStream();
    connect(&client, &QXmppClient::connected, this, &KirvXmppServerLink::receiveConnected);
    connect(&client, &QXmppClient::disconnected, this, &KirvXmppServerLink::endSoon);
    connect(&client, &QXmppClient::error, this, &KirvXmppServerLink::receiveError);
    connect(&client, &QXmppClient::sslErrors, this, &KirvXmppServerLink::checkCertificate);
}

KirvXmppServerLink::~KirvXmppServerLink()
{
    reader->stop();
    delete steps; // the socket goes first otherwise
    client.disconnect(this);
}

KirvXmppLink *KirvXmppServerLink::create(Purpose purpose, KirvClock &clock, int replyTimeout)
{
    return new KirvXmppServerLink(purpose, clock, replyTimeout);
}

/// Puts a reader with its guard before the library.
void KirvXmppServerLink::guardStream()
{
    auto *stream = client.findChild<QXmppOutgoingClient *>();
    reader = new KirvXmppStreamReader(
        *stream, [this](const KirvXmppStanzaStart &start) { return isUsed(start); }, this);
    steps = new KirvSocketSteps(*stream->socket(), this);
    connect(steps, &KirvSocketSteps::step, this, &KirvXmppLink::step);
    connect(stream->socket(), &QSslSocket::encrypted, this, [this, socket = stream->socket()] {
        const QByteArray &trusted = trustedCertificate();
        if (!trusted.isEmpty() && socket->peerCertificate().digest(QCryptographicHash::Sha256) != trusted)
            checkCertificate({});
    });
    connect(stream->socket(), &QAbstractSocket::connected, this, &KirvXmppLink::reached);
    connect(reader, &KirvXmppStreamReader::streamBroken, this, &KirvXmppServerLink::receiveViolation);
    connect(stream->socket(), &QAbstractSocket::connected, this, &KirvXmppServerLink::checkServerAddress);
    connect(reader, &KirvXmppStreamReader::stanzaDropped, this, &KirvXmppServerLink::receiveDropped);
}

/// Messages, presences and what others request or reply have no use here.
bool KirvXmppServerLink::isUsed(const KirvXmppStanzaStart &start) const
{
    static const QByteArrayList used { "features", "error", "proceed", "failure", "challenge", "success" };
    if (start.isStanza())
        return start.name == "iq" && requests.isOwnServer(QString::fromUtf8(start.from));
    return used.contains(start.name);
}

void KirvXmppServerLink::receiveViolation(KirvXmppStreamGuard::Violation violation)
{
    switch (violation) {
    case KirvXmppStreamGuard::NoStream:
        return fail(KirvFailure(KirvFailure::ConnectionLost, tr("What the server sent is no XMPP stream.")));
    case KirvXmppStreamGuard::TooLarge:
        return fail(KirvFailure(KirvFailure::ConnectionLost, tr("The server sent data that is longer than allowed.")));
    case KirvXmppStreamGuard::Malformed:
        return fail(KirvFailure(KirvFailure::ConnectionLost, tr("The server sent data that is no valid XML.")));
    case KirvXmppStreamGuard::Forbidden:
    case KirvXmppStreamGuard::None:
        break;
    }
    fail(KirvFailure(KirvFailure::ConnectionLost, tr("The server sent XML that is not allowed in a stream.")));
}

/// A reply that was too large is one.
void KirvXmppServerLink::receiveDropped(const KirvXmppStanzaStart &start)
{
    const QString id = QString::fromUtf8(start.id);
    if (!requests.isAwaited(id, QString::fromUtf8(start.from)) || (start.type != "result" && start.type != "error"))
        return;
    KirvXmppReply none;
    none.failure = KirvFailure(KirvFailure::RequestFailed, tr("the reply of the server is too large"));
    reply(id, none);
}

void KirvXmppServerLink::open(const QXmppConfiguration &configuration, const QXmppPresence &presence)
{
    accountAddress = configuration.jidBare();
    requests.setAccount(configuration.jid());
    isEncrypted = configuration.streamSecurityMode() == QXmppConfiguration::LegacySSL;
    if (isEncrypted)
        startWithEncryption();
    const bool wantsNone = configuration.streamSecurityMode() == QXmppConfiguration::TLSDisabled;
    steps->begin(configuration.host(), configuration.port(), configuration.networkProxy(),
                 wantsNone ? KirvSocketSteps::None : KirvSocketSteps::Wanted);
    if (configuration.caCertificates().isEmpty()) // the library looks up those of the system that it needs
        return client.connectToServer(configuration, presence);
    KirvSystemCertificates::instance().request(this, [=](const QList<QSslCertificate> &ofSystem) {
        if (hasEnded || isClosing)
            return;
        QXmppConfiguration complete = configuration;
        complete.setCaCertificates(ofSystem + configuration.caCertificates());
        client.connectToServer(complete, presence);
    });
}

/// The library would open the stream twice, also as soon as the socket is connected, and servers refuse that.
void KirvXmppServerLink::startWithEncryption()
{
    if (auto *stream = client.findChild<QXmppOutgoingClient *>())
        QObject::disconnect(stream->socket(), &QAbstractSocket::connected, stream, nullptr);
}

/// What the library has written by now is not on its way yet.
void KirvXmppServerLink::checkServerAddress()
{
    QSslSocket *const socket = client.findChild<QXmppOutgoingClient *>()->socket();
    // Behind a proxy the address says nothing about the server.
    const QNetworkProxy::ProxyType kind = socket->proxy().type();
    const bool isDirect = kind == QNetworkProxy::NoProxy || kind == QNetworkProxy::DefaultProxy;
    isLocal = isDirect && kirvXmppIsLocal(socket->peerAddress());
    if (!isLocal || !refusesLocal)
        return;
    fail(KirvFailure(KirvFailure::ServerShutDown, tr("it refers to a server of a private network")));
    socket->abort();
}

void KirvXmppServerLink::close()
{
    isClosing = true;
    client.disconnectFromServer();
    if (client.state() == QXmppClient::DisconnectedState)
        endSoon();
}

void KirvXmppServerLink::abort()
{
    hasEnded = true;
    requests.clear();
    reader->stop();
    client.disconnectFromServer();
}

bool KirvXmppServerLink::isReady() const
{
    return hasArrived && !isClosing && !hasEnded && !reason.isFailure();
}

QString KirvXmppServerLink::securityText() const
{
    if (!isReady() || loginGuard.mechanism().isEmpty())
        return QString();
    const QString encryption = reader->encryptionName();
    //: %1 is the encryption, as "TLSv1.3", %2 how the user has proved who he is, as "SASL SCRAM-SHA-256"
    return tr("%1, %2").arg(encryption.isEmpty() ? tr("not encrypted") : encryption,
                            QLatin1String("SASL ") + loginGuard.mechanism());
}

void KirvXmppServerLink::sendPresence(const QXmppPresence &presence)
{
    // The client would take an unavailable presence of its own for a wish to disconnect.
    if (presence.type() == QXmppPresence::Unavailable)
        client.sendPacket(presence);
    else
        client.setClientPresence(presence);
}

void KirvXmppServerLink::sendRequest(QXmppIq::Type type, const QDomDocument &payload, const Receiver &receiver,
                                     const QString &to)
{
    QXmppIq request(type);
    request.setTo(to);
    request.setExtensions({ QXmppElement(payload.documentElement()) });
    const QString id = requests.add(to, receiver);
    request.setId(id); // the library's own can be guessed
    const auto giveUp = [this, id](const KirvFailure &failure) {
        KirvXmppReply none;
        none.failure = failure;
        reply(id, none);
    };
    if (isReady() && client.sendPacket(request))
        clock.callLater(replyTimeout, this, [=] { giveUp(KirvFailure(KirvFailure::TimedOut, serverName())); });
    else
        clock.callLater(0, this, [=] { giveUp(KirvFailure::ConnectionLost); });
}

bool KirvXmppServerLink::receive(const QDomElement &stanza)
{
    const QString name = stanza.localName();
    const QString space = stanza.namespaceURI();
    if (space == streamSpace && name == QLatin1String("features"))
        return receiveFeatures(stanza);
    if (space == streamSpace && name == QLatin1String("error"))
        return receiveStreamError(stanza);
    if (space == encryptionSpace && name == QLatin1String("proceed"))
        isEncrypted = true;
    else if (space == authenticationSpace)
        return receiveLoginStep(stanza);
    else if (name == QLatin1String("iq"))
        return receiveReply(stanza);
    return false;
}

/// True when the features are dealt with: the library would continue and log in.
bool KirvXmppServerLink::receiveFeatures(const QDomElement &features)
{
    const auto security = client.configuration().streamSecurityMode();
    const QDomElement encryption = kirvXmppChild(features, encryptionSpace, QStringLiteral("starttls"));
    const bool mayEncrypt = !encryption.isNull() && security != QXmppConfiguration::TLSDisabled;
    Q_EMIT featuresReceived();
    hasMechanisms = !kirvXmppChild(features, authenticationSpace, QStringLiteral("mechanisms")).isNull();
    QDomElement used = features; // the same elements, which the library reads afterwards
    const bool sendsPasswords = reader->isEncrypted() || security == QXmppConfiguration::TLSDisabled;
    const bool canLogIn = loginGuard.receiveFeatures(used, sendsPasswords);
    if (loginGuard.isEndless()) {
        fail(KirvFailure(KirvFailure::ConnectionLost, tr("The server begins the log-in again and again.")));
        return true;
    }

    if (!isEncrypted && mayEncrypt)
        return false;
    if (!isEncrypted && security == QXmppConfiguration::TLSRequired) {
        fail(KirvFailure::EncryptionNotOffered);
        return false;
    }
    if (!isEncrypted && !kirvXmppChild(encryption, encryptionSpace, QStringLiteral("required")).isNull()) {
        fail(KirvFailure(KirvFailure::BadSettings, tr("the server requires encryption")));
        return true;
    }
    if (!isEncrypted)
        steps->goOnUnencrypted();
    if (purpose == LogIn && !canLogIn) // without encryption the password is not to be read along
        fail(sendsPasswords ? KirvFailure::AuthenticationNotOffered : KirvFailure::EncryptionNotOffered);
    if (purpose == LogIn)
        return !canLogIn;
    hasArrived = true;
    Q_EMIT readyToRegister(!kirvXmppChild(features, registrationFeatureSpace, QStringLiteral("register")).isNull());
    return true;
}

/// True when the library is not to see it: it would go to another server by itself, after having said that the stream
/// is over.
bool KirvXmppServerLink::receiveStreamError(const QDomElement &error)
{
    const KirvXmppError description(error, streamErrorSpace);
    const QString &condition = description.condition;
    Q_EMIT featuresReceived();
    if (condition == QLatin1String("see-other-host"))
        return receiveReference(kirvXmppChild(error, streamErrorSpace, condition).text());
    if (description.isConflict())
        fail(KirvFailure(KirvFailure::LoggedInElsewhere, description.text));
    else if (condition == QLatin1String("host-unknown"))
        fail(KirvFailure(KirvFailure::BadSettings, tr("the server does not serve the domain of the login")));
    else if (condition == QLatin1String("policy-violation") || condition == QLatin1String("not-authorized")
             || condition == QLatin1String("conflict"))
        fail(KirvFailure(KirvFailure::AccessDenied, description.text));
    else
        fail(KirvFailure(KirvFailure::ServerShutDown, description.text));
    return false;
}

bool KirvXmppServerLink::receiveReference(const QString &address)
{
    // An address of the new kind is in brackets, as it holds colons.
    const QUrl url(QStringLiteral("xmpp://") + address.trimmed(), QUrl::StrictMode);
    if (url.host().isEmpty() || !url.userInfo().isEmpty() || !url.path().isEmpty()) {
        fail(KirvFailure(KirvFailure::ServerShutDown, tr("it refers to a server without a name")));
        return true;
    }
    referredHost = url.host();
    referredPort = url.port(0);
    fail(KirvFailure::ServerShutDown);
    return true;
}

/// True when the library is not to see it.
bool KirvXmppServerLink::receiveLoginStep(const QDomElement &step)
{
    const KirvFailure failure = step.localName() == QLatin1String("failure")
        ? KirvXmppError(step, authenticationSpace).loginFailure()
        : loginGuard.receiveStep(step);
    if (failure.isFailure())
        fail(failure);
    return failure.isFailure() && step.localName() != QLatin1String("failure");
}

bool KirvXmppServerLink::receiveReply(const QDomElement &iq)
{
    const QString type = iq.attribute(QStringLiteral("type"));
    const QString id = iq.attribute(QStringLiteral("id"));
    const bool isError = type == QLatin1String("error");
    if (!requests.contains(id) || (!isError && type != QLatin1String("result")))
        return false;
    if (!requests.isAwaited(id, iq.attribute(QStringLiteral("from"))))
        return true;

    KirvXmppReply received;
    received.iq = iq;
    for (QDomElement child = iq.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.localName() == QLatin1String("error")) {
            const KirvXmppError description(child, stanzaErrorSpace);
            received.condition = description.condition;
            received.failure = description.requestFailure();
        } else if (received.payload.isNull()) {
            received.payload = child;
        }
    }
    if (isError && !received.isError())
        received.failure = KirvFailure::RequestFailed;
    reply(id, received);
    return true;
}

void KirvXmppServerLink::receiveConnected()
{
    if (!client.isAuthenticated()) {
        fail(KirvFailure::AuthenticationNotOffered);
        return;
    }
    const QString bound = client.configuration().jidBare();
    if (kirvXmppNormalizedAddress(bound) != kirvXmppNormalizedAddress(accountAddress)) {
        //: %1 is the address of an account
        fail(KirvFailure(KirvFailure::ServiceUnavailable, tr("It has logged in the account \"%1\".").arg(bound)));
        return;
    }
    requests.setAccount(client.configuration().jid()); // as the server has bound it
    hasArrived = true;
    Q_EMIT loggedIn();
}

void KirvXmppServerLink::receiveError(QXmppClient::Error error)
{
    if (error == QXmppClient::SocketError)
        fail(socketFailure());
    else if (error == QXmppClient::KeepAliveError)
        fail(KirvFailure(KirvFailure::ConnectionLost, tr("the server does not answer any more")));
    else
        fail(hasArrived ? KirvFailure::ServerShutDown : KirvFailure::AuthenticationNotOffered);
}

/// Where the user trusts a certificate, another one is refused, also when nothing is wrong with it: then \a errors is
/// empty.
void KirvXmppServerLink::checkCertificate(const QList<QSslError> &errors)
{
    QSslSocket *const socket = client.findChild<QXmppOutgoingClient *>()->socket();
    const KirvServerCertificate shown(socket->peerCertificate(), errors, client.configuration().domain());
    Q_EMIT certificateShown(shown);
    if (!shown.isNull() && shown.fingerprint == trustedCertificate())
        socket->ignoreSslErrors(errors);
    else
        fail(KirvFailure(KirvFailure::UntrustedCertificate, shown.problems.join(QLatin1Char(' '))));
}

void KirvXmppServerLink::reply(const QString &id, const KirvXmppReply &reply)
{
    if (const Receiver receiver = requests.take(id))
        receiver(reply);
}

/// Remembers the first reason, which the later ones follow from, and lets the library finish what it is at. That the
/// connection has ended can be known before what the server has said last.
void KirvXmppServerLink::fail(const KirvFailure &failure)
{
    const bool isUnspecific = reason.kind() == KirvFailure::ConnectionLost && reason.detail().isEmpty();
    if (!reason.isFailure() || isUnspecific)
        reason = failure;
    endSoon();
}

void KirvXmppServerLink::endSoon()
{
    QMetaObject::invokeMethod(
        this, [this] { end(); }, Qt::QueuedConnection);
}

void KirvXmppServerLink::end()
{
    if (hasEnded)
        return;
    hasEnded = true;
    if (!isClosing && !reason.isFailure())
        reason = endWithoutReason();
    const QPointer<KirvXmppServerLink> alive(this);
    const QStringList unanswered = requests.ids();
    KirvXmppReply none;
    none.failure = reason.isFailure() ? reason : KirvFailure(KirvFailure::ConnectionLost);
    for (const QString &id : unanswered) {
        reply(id, none);
        if (!alive)
            return;
    }
    if (!isClosing && !referredHost.isEmpty())
        Q_EMIT redirected(referredHost, referredPort, isEncrypted);
    else
        Q_EMIT ended(isClosing ? KirvFailure() : reason);
}

KirvFailure KirvXmppServerLink::socketFailure()
{
    const QNetworkProxy proxy = client.configuration().networkProxy();
    const KirvFailure ofProxy = kirvProxyFailure(proxy, client.socketError(), client.socketErrorString());
    if (ofProxy.isFailure())
        return ofProxy;
    switch (client.socketError()) {
    case QAbstractSocket::HostNotFoundError:
        return KirvFailure(KirvFailure::HostNotFound, serverName());
    case QAbstractSocket::ConnectionRefusedError:
        return KirvFailure(KirvFailure::ConnectionRefused, serverName());
    case QAbstractSocket::SocketTimeoutError:
        return KirvFailure(KirvFailure::TimedOut, serverName());
    case QAbstractSocket::RemoteHostClosedError:
        return KirvFailure::ConnectionLost;
    case QAbstractSocket::SslHandshakeFailedError:
        return KirvFailure(KirvFailure::Other, client.socketErrorString());
    default:
        return KirvFailure(hasArrived ? KirvFailure::ConnectionLost : KirvFailure::Other, client.socketErrorString());
    }
}

/// The stream has ended without an error: the library does that when it finds no way to go on.
KirvFailure KirvXmppServerLink::endWithoutReason() const
{
    if (purpose == LogIn && loginGuard.isUnderWay())
        return KirvFailure(KirvFailure::ServiceUnavailable, tr("Its part of the log-in is wrong."));
    return purpose == LogIn && hasMechanisms && !hasArrived ? KirvFailure::AuthenticationNotOffered
                                                            : KirvFailure::ConnectionLost;
}

QString KirvXmppServerLink::serverName()
{
    const QXmppConfiguration &configuration = client.configuration();
    return configuration.host().isEmpty() ? configuration.domain() : configuration.host();
}

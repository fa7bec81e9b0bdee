// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"

#include "protocols/irc/kirv_irc_certificates.h"
#include "protocols/irc/kirv_irc_sasl.h"
#include "protocols/irc/kirv_irc_socket.h"
#include "protocols/irc/kirv_irc_text.h"
#include "protocols/tls/kirv_socket_steps.h"

#include <Irc>
#include <IrcCommand>
#include <IrcConnection>
#include <IrcMessage>
#include <QCoreApplication>
#include <QPointer>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <memory>

namespace {

/// What fits into a line beside the command and is accepted by most servers, in bytes.
const int longestAwayText = 300;

/// A server that is silent for this many times the time a request may take gets a ping.
const int silencePerRequestTime = 2;

/// How long to wait for the goodbye that follows a refusal and says more, in milliseconds.
const int errorMessageTimeout = 2000;

/// How often a change of the nick is told at most, in milliseconds.
const int nickPause = 10000;
const int longestShownNick = 64;

bool matches(const QString &text, const char *words)
{
    return QRegularExpression(QLatin1String(words), QRegularExpression::CaseInsensitiveOption).match(text).hasMatch();
}

/// Whether \a text says that the user is banned.
bool isBan(const QString &text)
{
    return matches(text, "\\bbann?ed\\b|\\b[gkz]-?lined?\\b");
}

/// Whether \a text is about a limit that is reached for the moment.
bool isLimit(const QString &text)
{
    return matches(text, "too (many|fast)|no more connections|\\bfull\\b|\\blimit\\b|try( again)? later");
}

/// Whether a server that closes the connection before the log-in says so because it refuses this client. Everything
/// else (it is full, we came back too fast) may pass.
bool isDenial(const QString &text)
{
    return isBan(text) || (!isLimit(text) && matches(text, "denied|password|not authori[sz]ed|unauthori[sz]ed"));
}

/// The reply to requests for the name of the program; the library would give its own name.
QString programName()
{
    const QString name =
        QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
    return name.trimmed();
}

} // namespace

KirvIrcConnection::KirvIrcConnection(KirvClock &clock, QObject *parent, KirvSystemCertificates &systemCertificates)
    : KirvConnection(clock, parent)
    , systemCertificates(systemCertificates)
{
}

KirvIrcConnection::~KirvIrcConnection()
{
    KirvIrcConnection::abortConnection();
}

void KirvIrcConnection::startLogin(const KirvPresence &presence)
{
    settings = KirvIrcSettings(login().id, login().password, login().settings);
    QString problem = settings.problem();
    if (!problem.isEmpty())
        return loginFailed({ KirvFailure::BadSettings, problem });
    if (settings.needsPassword() && settings.password.isEmpty())
        return loginFailed(KirvFailure::PasswordMissing);

    isCertificateRefused = false;
    QAbstractSocket *const transport = createTransport(&problem);
    if (!transport)
        return loginFailed({ KirvFailure::BadSettings, problem });
    createLink();
    createSocket(transport);
    prepareAuthentication();
    connect(link.data(), &IrcConnection::connected, this, [this, presence] { finishLogin(presence); });
    remainingNicks = settings.nicks();
    link->setNickName(remainingNicks.takeFirst());
    openThroughProxy(transport);
}

/// Without a proxy, at once. The proxy looks the name of the server up.
void KirvIrcConnection::openThroughProxy(QAbstractSocket *transport)
{
    // Both are deleted later, that is after this, and another link can have the address of this one.
    const auto isOpening = [this, opened = link.data(), socket = QPointer<QAbstractSocket>(transport)] {
        return socket && link.data() == opened;
    };
    const auto timeOut = [=] {
        if (isOpening() && transport->state() != QAbstractSocket::ConnectedState)
            connectionLost(kirvProxyTimedOut(proxy));
    };
    const auto receive = [=](const QNetworkProxy &found, const KirvFailure &failure) {
        if (!isOpening())
            return;
        if (failure.isFailure())
            return connectionLost(failure);
        proxy = found;
        transport->setProxy(proxy);
        if (proxy.type() != QNetworkProxy::NoProxy)
            clock().callLater(KirvProxy::timeout, this, timeOut);
        auto *steps = new KirvSocketSteps(*transport, transport);
        connect(steps, &KirvSocketSteps::step, this, &KirvIrcConnection::reportStep);
        steps->begin(settings.server, settings.port, proxy,
                     settings.encrypted ? KirvSocketSteps::Wanted : KirvSocketSteps::None);
        openLink(qobject_cast<QSslSocket *>(transport));
    };
    kirvFindProxy(settings.proxy.toNetworkProxy(), settings.server, settings.port, clock(), this, receive);
}

/// A list of one's own takes the place of the system's, which is then needed as a whole.
void KirvIrcConnection::openLink(QSslSocket *encrypted)
{
    if (!encrypted || settings.certificateFile.isEmpty()) {
        link->open();
        return;
    }
    IrcConnection *const opened = link.data();
    systemCertificates.request(opened, [this, opened, encrypted](const QList<QSslCertificate> &ofSystem) {
        if (link.data() != opened)
            return;
        QSslConfiguration configuration = encrypted->sslConfiguration();
        configuration.addCaCertificates(ofSystem);
        encrypted->setSslConfiguration(configuration);
        opened->open();
    });
}

/// A new one for each attempt, so that nothing of an earlier attempt is left.
void KirvIrcConnection::createLink()
{
    refusal.clear();
    announcedNick = settings.nick;
    announcesLater = false;
    link.reset(new IrcConnection);
    link->setReconnectDelay(0);
    link->setCtcpReplies({ { QStringLiteral("VERSION"), programName() } });
    link->setHost(settings.server);
    link->setPort(settings.port);
    link->setUserName(settings.userName());
    link->setRealName(settings.realName);
    connect(link.data(), &IrcConnection::numericMessageReceived, this, &KirvIrcConnection::receiveNumeric);
    connect(link.data(), &IrcConnection::errorMessageReceived, this, &KirvIrcConnection::receiveErrorMessage);
    connect(link.data(), &IrcConnection::disconnected, this, [this] { loseConnection(); });
}

/// The library reads and writes through a socket of ours that bounds both.
void KirvIrcConnection::createSocket(QAbstractSocket *transport)
{
    socket = new KirvIrcSocket(transport, clock(), link.data());
    link->setSocket(socket);
    connect(socket, &KirvIrcSocket::received, this, [this] {
        lastReceived = clock().now();
        ++receivedCount;
        wasPinged = false;
    });
    connect(socket, &KirvIrcSocket::errorOccurred, this, &KirvIrcConnection::receiveSocketError);
    connect(socket, &KirvIrcSocket::lineWasTooLong, this, [this] {
        connectionLost({ KirvFailure::ConnectionLost, tr("The server sent a line that is longer than lines can be.") });
    });
}

/// The library's own secure socket accepts every certificate; this one has to be convinced. Null when the settings
/// cannot be used.
QAbstractSocket *KirvIrcConnection::createTransport(QString *problem)
{
    if (!settings.encrypted)
        return new QTcpSocket;
    auto encrypted = std::make_unique<QSslSocket>();
    if (!configure(encrypted.get(), problem))
        return nullptr;
    encrypted->setPeerVerifyMode(QSslSocket::VerifyPeer);
    connect(encrypted.get(), QOverload<const QList<QSslError> &>::of(&QSslSocket::sslErrors), this,
            [this, socket = encrypted.get()](const QList<QSslError> &errors) { checkCertificate(socket, errors); });
    connect(encrypted.get(), &QSslSocket::encrypted, this, [this, socket = encrypted.get()] {
        const QByteArray trusted = login().trustedCertificate;
        if (!trusted.isEmpty() && socket->peerCertificate().digest(QCryptographicHash::Sha256) != trusted)
            checkCertificate(socket, {});
    });
    return encrypted.release();
}

/// Goes on where the certificate is the one that the user trusts for this account. Where the user trusts one, another
/// is refused, also when nothing is wrong with it.
void KirvIrcConnection::checkCertificate(QSslSocket *encrypted, const QList<QSslError> &errors)
{
    isCertificateRefused = !acceptsCertificate({ encrypted->peerCertificate(), errors, settings.server });
    if (!isCertificateRefused)
        encrypted->ignoreSslErrors(errors);
    else if (encrypted->isEncrypted())
        encrypted->abort(); // nothing has been sent
}

/// Sets the certificates. False when one of the files cannot be used.
bool KirvIrcConnection::configure(QSslSocket *encrypted, QString *problem) const
{
    QSslConfiguration configuration = encrypted->sslConfiguration();
    const auto read = [problem](const QString &path) {
        const QList<QSslCertificate> certificates = kirvReadCertificates(path);
        if (certificates.isEmpty())
            *problem = tr("There is no certificate in the file \"%1\".").arg(path);
        return certificates;
    };
    if (!settings.certificateFile.isEmpty())
        configuration.addCaCertificates(read(settings.certificateFile));
    if (settings.usesClientCertificate()) {
        configuration.setLocalCertificateChain(read(settings.clientCertificateFile));
        configuration.setPrivateKey(kirvReadPrivateKey(settings.clientKeyFile));
        if (problem->isEmpty() && configuration.privateKey().isNull())
            *problem = tr("There is no private key that can be used in the file \"%1\".").arg(settings.clientKeyFile);
    }
    encrypted->setSslConfiguration(configuration);
    return problem->isEmpty();
}

void KirvIrcConnection::prepareAuthentication()
{
    sasl = nullptr;
    if (settings.passwordUse == KirvIrcSettings::ForServer)
        link->setPassword(settings.password);
    if (settings.usesClientCertificate())
        sasl = new KirvIrcSasl(link.data());
    else if (settings.passwordUse == KirvIrcSettings::ForSasl)
        sasl = new KirvIrcSasl(link.data(), settings.saslUser, settings.password);
    else
        return;
    link->setProtocol(sasl);
    connect(sasl, &KirvIrcSasl::failed, this, &KirvIrcConnection::failAuthentication);
}

void KirvIrcConnection::finishLogin(const KirvPresence &presence)
{
    // A server that knows nothing of capabilities goes on without the password.
    if (sasl && !sasl->isAccepted())
        return failAuthentication(KirvFailure::AuthenticationNotOffered);
    if (sasl)
        saslServer = settings.server;
    reportStep({ KirvLoginStep::LogIn, KirvLoginStep::Done, proofText() });
    applyPresence(presence);
    connect(link.data(), &IrcConnection::nickNameChanged, this, &KirvIrcConnection::announceNick);
    watchServer();
    const QPointer<KirvIrcConnection> alive(this);
    loginSucceeded();
    if (alive && state() == Online)
        announceNick();
    if (alive && state() == Online)
        reportReadableKey();
}

/// Whoever can read the key can log in as this user. Told once.
void KirvIrcConnection::reportReadableKey()
{
    const QString file = settings.clientKeyFile;
    if (file == reportedKeyFile || !settings.usesClientCertificate() || !kirvIsReadableByOthers(file))
        return;
    reportedKeyFile = file;
    Q_EMIT noticeReceived(
        tr("Other users of this computer can read or change the key file \"%1\". Only its owner should.").arg(file));
}

/// The services of a network that was restarted are back later than its servers.
void KirvIrcConnection::failAuthentication(const KirvFailure &failure)
{
    if (failure.kind() == KirvFailure::AuthenticationNotOffered && saslServer == settings.server)
        loginFailed({ KirvFailure::ServiceUnavailable, tr("It does not offer SASL now, as it did before.") });
    else
        loginFailed(failure);
}

/// Not for each of many changes in a row, but for the last one.
void KirvIrcConnection::announceNick()
{
    if (announcesLater || link->nickName() == announcedNick)
        return;
    announcesLater = true;
    callLaterOnLink(nickPause, [this] {
        announcesLater = false;
        announceNick();
    });
    announcedNick = link->nickName();
    if (announcedNick != settings.nick) {
        Q_EMIT noticeReceived(tr("The nick \"%1\" could not be had; you are \"%2\" on this server now.")
                                  .arg(settings.nick, kirvIrcShown(announcedNick, longestShownNick)));
    }
}

void KirvIrcConnection::receiveNumeric(IrcNumericMessage *message)
{
    if (message->code() == Irc::ERR_YOUREBANNEDCREEP && (state() == Connecting || state() == Online))
        return awaitErrorMessage(message);
    if (state() != Connecting)
        return;
    switch (message->code()) {
    case Irc::ERR_ERRONEUSNICKNAME:
        tryNextNick(true);
        break;
    case Irc::ERR_NICKNAMEINUSE:
    case Irc::ERR_NICKCOLLISION:
    case Irc::ERR_UNAVAILRESOURCE:
        tryNextNick(false);
        break;
    case Irc::ERR_PASSWDMISMATCH:
        awaitErrorMessage(message);
        break;
    default:
        break;
    }
}

void KirvIrcConnection::tryNextNick(bool wasRefused)
{
    // An alternative that is refused is only one less; the nick itself is what the user has to correct.
    const bool isFirst = remainingNicks.size() == settings.nicks().size() - 1;
    if (wasRefused && isFirst)
        return loginFailed({ KirvFailure::NameNotAllowed, settings.nick });
    if (remainingNicks.isEmpty())
        return loginFailed({ KirvFailure::NameInUse, settings.nick });
    link->setNickName(remainingNicks.takeFirst());
}

/// The server closes the connection now, and often gives its reason only then.
void KirvIrcConnection::awaitErrorMessage(IrcNumericMessage *message)
{
    const bool isFirst = refusal.isEmpty();
    refusal = message->parameters().value(message->parameters().size() - 1);
    if (!isFirst || refusal.isEmpty())
        return;
    clock().callLater(errorMessageTimeout, this, [this, refused = QPointer<IrcConnection>(link.data())] {
        if (refused && link.data() == refused)
            loseConnection();
    });
}

void KirvIrcConnection::receiveErrorMessage(IrcErrorMessage *message)
{
    if (state() != Disconnecting)
        connectionLost(meaningOf(message->error()));
}

/// What it means that the server closes the connection with \a goodbye.
KirvFailure KirvIrcConnection::meaningOf(const QString &goodbye) const
{
    if (refusal.isEmpty()) {
        const bool isFinal = state() == Connecting && isDenial(goodbye);
        return { isFinal ? KirvFailure::AccessDenied : KirvFailure::ServerShutDown, goodbye };
    }
    //: %1 is what a server says first, as "You are banned", %2 what it says when it closes the connection
    const QString reason = goodbye.isEmpty() ? refusal : tr("%1 – %2").arg(refusal, goodbye);
    const bool passes = isLimit(reason) && !isBan(reason);
    return { passes ? KirvFailure::ServerShutDown : KirvFailure::AccessDenied, reason };
}

/// The connection has ended without a goodbye.
void KirvIrcConnection::loseConnection(const QString &reason)
{
    if (isCertificateRefused)
        return failForCertificate();
    connectionLost(refusal.isEmpty() ? KirvFailure(KirvFailure::ConnectionLost, reason) : meaningOf(QString()));
}

void KirvIrcConnection::receiveSocketError(QAbstractSocket::SocketError error)
{
    const KirvFailure ofProxy = kirvProxyFailure(proxy, error, socket->errorString());
    if (ofProxy.isFailure())
        return connectionLost(ofProxy);
    switch (error) {
    case QAbstractSocket::HostNotFoundError:
        return connectionLost({ KirvFailure::HostNotFound, settings.server });
    case QAbstractSocket::ConnectionRefusedError:
        return connectionLost({ KirvFailure::ConnectionRefused, settings.server });
    case QAbstractSocket::SocketTimeoutError:
        return connectionLost({ KirvFailure::TimedOut, settings.server });
    case QAbstractSocket::SslHandshakeFailedError:
        return isCertificateRefused ? failForCertificate() : connectionLost(KirvFailure::EncryptionNotOffered);
    case QAbstractSocket::SslInvalidUserDataError:
        return connectionLost({ KirvFailure::BadSettings, socket->errorString() });
    case QAbstractSocket::RemoteHostClosedError:
        return; // what the server sent before is still to be read; the disconnection follows
    default:
        return loseConnection(socket->errorString());
    }
}

/// How the user has proved who he is.
QString KirvIrcConnection::proofText() const
{
    if (sasl)
        return QLatin1String("SASL ") + sasl->mechanismName();
    return settings.passwordUse == KirvIrcSettings::ForServer ? tr("password of the server") : tr("no password");
}

QString KirvIrcConnection::securityText() const
{
    if (state() != Online)
        return QString();
    const QString encryption = socket->encryptionName();
    //: %1 is the encryption, as "TLSv1.3", %2 how the user has proved who he is, as "SASL PLAIN"
    return tr("%1, %2").arg(encryption.isEmpty() ? tr("not encrypted") : encryption, proofText());
}

void KirvIrcConnection::startLogout()
{
    link->quit();
}

void KirvIrcConnection::abortConnection()
{
    sasl = nullptr;
    if (!link)
        return;
    link->disconnect(this);
    socket->disconnect(this);
    socket->breakOff();
    socket = nullptr;
    link->close();
    link.reset();
}

void KirvIrcConnection::applyPresence(const KirvPresence &presence)
{
    QString reason;
    if (presence.getId() == QLatin1String("away")) {
        reason = kirvIrcLine(presence.getDescription(), longestAwayText).trimmed();
        if (reason.isEmpty())
            reason = tr("Away");
    }
    link->sendCommand(IrcCommand::createAway(reason));
}

/// Whatever the server sends shows that it is there.
void KirvIrcConnection::checkSession(int milliseconds)
{
    link->sendCommand(IrcCommand::createPing(settings.server));
    callLaterOnLink(milliseconds, [this, before = receivedCount] {
        if (receivedCount == before)
            connectionLost({ KirvFailure::ConnectionLost, tr("The server does not answer any more.") });
    });
}

/// A connection can break without any sign of it: a server that has been silent for long gets a ping.
void KirvIrcConnection::watchServer()
{
    const int time = timing().requestTimeout;
    const int silence = silencePerRequestTime * time;
    const qint64 silent = lastReceived.msecsTo(clock().now());
    if (wasPinged)
        return connectionLost({ KirvFailure::ConnectionLost, tr("The server does not answer any more.") });
    if (silent >= 0 && silent < silence)
        return callLaterOnLink(int(silence - silent), [this] { watchServer(); });
    link->sendCommand(IrcCommand::createPing(settings.server));
    wasPinged = true;
    callLaterOnLink(time, [this] { watchServer(); });
}

/// Calls \a callback later, unless the link has ended by then.
void KirvIrcConnection::callLaterOnLink(int milliseconds, const std::function<void()> &callback)
{
    const QPointer<IrcConnection> watched = link.data();
    clock().callLater(milliseconds, this, [this, watched, callback] {
        if (watched && link.data() == watched && state() == Online)
            callback();
    });
}

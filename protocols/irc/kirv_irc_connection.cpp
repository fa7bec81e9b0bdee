// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"

#include "protocols/irc/kirv_irc_sasl.h"
#include "protocols/irc/kirv_irc_socket.h"
#include "protocols/irc/kirv_irc_text.h"

#include <Irc>
#include <IrcCommand>
#include <IrcConnection>
#include <IrcMessage>
#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>

namespace {

/// What fits into a line beside the command and is accepted by most servers, in bytes.
const int longestAwayText = 300;

/// A connection that is silent for this many times the time a request may take is checked.
const int silencePerRequestTime = 4;

/// Whether a server that closes the connection before the log-in says so because it does not want us. Everything
/// else (it is full, we came back too fast) may pass.
bool isDenial(const QString &goodbye)
{
    static const QRegularExpression expression(QStringLiteral("denied|password|\\bbann?ed\\b|\\b[gkz]-?lined?\\b|"
                                                              "not authori[sz]ed|unauthori[sz]ed"),
                                               QRegularExpression::CaseInsensitiveOption);
    return expression.match(goodbye).hasMatch();
}

/// The reply to requests for the name of the program; the library would give its own name.
QString programName()
{
    const QString name =
        QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
    return name.trimmed();
}

/// A file that is larger than a bundle of certificates is none.
QList<QSslCertificate> readCertificates(const QString &path)
{
    const qint64 largest = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largest)
        return {};
    return QSslCertificate::fromData(file.read(largest), QSsl::Pem);
}

} // namespace

KirvIrcConnection::KirvIrcConnection(KirvClock &clock, QObject *parent)
    : KirvConnection(clock, parent)
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
    if (settings.passwordUse != KirvIrcSettings::NotUsed && settings.password.isEmpty())
        return loginFailed(KirvFailure::PasswordMissing);

    QAbstractSocket *const transport = createTransport(&problem);
    if (!transport)
        return loginFailed({ KirvFailure::BadSettings, problem });
    createLink();
    createSocket(transport);
    prepareAuthentication();
    connect(link.data(), &IrcConnection::connected, this, [this, presence] { finishLogin(presence); });
    nicksLeft = settings.nicks();
    link->setNickName(nicksLeft.takeFirst());
    link->open();
}

/// A new one for each attempt, so that nothing of an earlier attempt is left.
void KirvIrcConnection::createLink()
{
    link.reset(new IrcConnection);
    link->setReconnectDelay(0);
    link->setCtcpReplies({ { QStringLiteral("VERSION"), programName() } });
    link->setHost(settings.server);
    link->setPort(settings.port);
    link->setUserName(settings.userName());
    link->setRealName(settings.realName);
    connect(link.data(), &IrcConnection::numericMessageReceived, this, &KirvIrcConnection::receiveNumeric);
    connect(link.data(), &IrcConnection::errorMessageReceived, this, &KirvIrcConnection::receiveGoodbye);
    connect(link.data(), &IrcConnection::disconnected, this, [this] { connectionLost(KirvFailure::ConnectionLost); });
}

/// The library reads and writes through a socket of ours that bounds both.
void KirvIrcConnection::createSocket(QAbstractSocket *transport)
{
    socket = new KirvIrcSocket(transport, clock(), link.data());
    link->setSocket(socket);
    connect(socket, &KirvIrcSocket::heard, this, [this] { heard = true; });
    connect(socket, &KirvIrcSocket::errorOccurred, this, &KirvIrcConnection::receiveSocketError);
    connect(socket, &KirvIrcSocket::lineWasTooLong, this, [this] {
        connectionLost({ KirvFailure::ConnectionLost, tr("The server sent a line that is longer than lines can be.") });
    });
}

/// The library's own secure socket accepts every certificate; this one has to be convinced. Null when the settings
/// cannot be used.
QAbstractSocket *KirvIrcConnection::createTransport(QString *problem)
{
    certificateError.clear();
    if (!settings.encrypted)
        return new QTcpSocket;
    QList<QSslCertificate> trusted;
    if (!settings.certificateFile.isEmpty()) {
        trusted = readCertificates(settings.certificateFile);
        if (trusted.isEmpty()) {
            *problem = tr("There is no certificate in the file “%1”.").arg(settings.certificateFile);
            return nullptr;
        }
    }
    auto *encrypted = new QSslSocket;
    encrypted->setPeerVerifyMode(QSslSocket::VerifyPeer);
    connect(encrypted, QOverload<const QList<QSslError> &>::of(&QSslSocket::sslErrors), this,
            [this](const QList<QSslError> &errors) { certificateError = errors.first().errorString(); });
    if (!trusted.isEmpty()) {
        QSslConfiguration configuration = encrypted->sslConfiguration();
        configuration.addCaCertificates(trusted);
        encrypted->setSslConfiguration(configuration);
    }
    return encrypted;
}

void KirvIrcConnection::prepareAuthentication()
{
    sasl = nullptr;
    if (settings.passwordUse == KirvIrcSettings::ForServer)
        link->setPassword(settings.password);
    if (settings.passwordUse != KirvIrcSettings::ForSasl)
        return;
    sasl = new KirvIrcSasl(link.data(), settings.saslUser, settings.password);
    link->setProtocol(sasl);
    connect(sasl, &KirvIrcSasl::failed, this, &KirvIrcConnection::loginFailed);
}

void KirvIrcConnection::finishLogin(const KirvPresence &presence)
{
    // A server that knows nothing of capabilities goes on without the password.
    if (sasl && !sasl->isAccepted())
        return loginFailed(KirvFailure::AuthenticationNotOffered);
    applyPresence(presence);
    connect(link.data(), &IrcConnection::nickNameChanged, this, &KirvIrcConnection::announceNick);
    watchServer();
    const QPointer<KirvIrcConnection> alive(this);
    loginSucceeded();
    if (alive && state() == Online)
        announceNick();
}

void KirvIrcConnection::announceNick()
{
    if (link && link->nickName() != settings.nick) {
        Q_EMIT noticeReceived(tr("The nick “%1” could not be had; you are “%2” on this server now.")
                                  .arg(settings.nick, link->nickName()));
    }
}

void KirvIrcConnection::receiveNumeric(IrcNumericMessage *message)
{
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
    case Irc::ERR_YOUREBANNEDCREEP:
        loginFailed({ KirvFailure::AccessDenied, message->parameters().value(message->parameters().size() - 1) });
        break;
    default:
        break;
    }
}

void KirvIrcConnection::tryNextNick(bool wasRefused)
{
    // An alternative that is refused is only one less; the nick itself is what the user has to correct.
    const bool isFirst = nicksLeft.size() == settings.nicks().size() - 1;
    if (wasRefused && isFirst)
        return loginFailed({ KirvFailure::NameNotAllowed, settings.nick });
    if (nicksLeft.isEmpty())
        return loginFailed({ KirvFailure::NameInUse, settings.nick });
    link->setNickName(nicksLeft.takeFirst());
}

void KirvIrcConnection::receiveGoodbye(IrcErrorMessage *message)
{
    if (state() == Disconnecting)
        return;
    const bool denied = state() == Connecting && isDenial(message->error());
    connectionLost({ denied ? KirvFailure::AccessDenied : KirvFailure::ServerShutDown, message->error() });
}

void KirvIrcConnection::receiveSocketError(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::HostNotFoundError:
        return connectionLost({ KirvFailure::HostNotFound, settings.server });
    case QAbstractSocket::ConnectionRefusedError:
        return connectionLost({ KirvFailure::ConnectionRefused, settings.server });
    case QAbstractSocket::SocketTimeoutError:
        return connectionLost({ KirvFailure::TimedOut, settings.server });
    case QAbstractSocket::SslHandshakeFailedError:
        if (certificateError.isEmpty())
            return connectionLost(KirvFailure::EncryptionNotOffered);
        return connectionLost({ KirvFailure::UntrustedCertificate, certificateError });
    case QAbstractSocket::RemoteHostClosedError:
        return; // what the server sent before is still to be read; the disconnection follows
    default:
        return connectionLost({ KirvFailure::ConnectionLost, socket->errorString() });
    }
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

/// A connection can break without any sign of it: a server that has been silent for long gets a ping.
void KirvIrcConnection::watchServer()
{
    heard = false;
    callLaterOnLink(silencePerRequestTime * timing().requestTimeout, [this] {
        if (heard)
            watchServer();
        else
            checkServer();
    });
}

void KirvIrcConnection::checkServer()
{
    link->sendCommand(IrcCommand::createPing(settings.server));
    callLaterOnLink(timing().requestTimeout, [this] {
        if (heard)
            watchServer();
        else
            connectionLost({ KirvFailure::ConnectionLost, tr("The server does not answer any more.") });
    });
}

/// Calls \a callback later, unless the link has ended by then.
void KirvIrcConnection::callLaterOnLink(int milliseconds, std::function<void()> callback)
{
    IrcConnection *const watched = link.data();
    clock().callLater(milliseconds, watched, [this, watched, callback] {
        if (link.data() == watched && state() == Online)
            callback();
    });
}

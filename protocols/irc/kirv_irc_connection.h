// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_CONNECTION_H
#define KIRV_IRC_CONNECTION_H

#include "core/protocol/kirv_connection.h"
#include "protocols/irc/kirv_irc_settings.h"
#include "protocols/tls/kirv_system_certificates.h"

#include <QAbstractSocket>
#include <QDateTime>
#include <QScopedPointer>
#include <QStringList>
#include <functional>

class IrcConnection;
class IrcErrorMessage;
class IrcNumericMessage;
class KirvIrcSasl;
class KirvIrcSocket;
class QSslError;
class QSslSocket;

/// The connection of an IRC account to its server.
///
/// When the nick is in use, the alternatives are tried and then the nick with underscores; noticeReceived() says which
/// one it is then. "Away" is sent with the description of the presence, or a fixed text where that is empty, as away
/// without a text means being back.
class KirvIrcConnection : public KirvConnection {
    Q_OBJECT

public:
    /// \a clock and \a systemCertificates are not owned and outlive the connection.
    explicit KirvIrcConnection(KirvClock &clock = KirvClock::system(), QObject *parent = nullptr,
                               KirvSystemCertificates &systemCertificates = KirvSystemCertificates::instance());
    ~KirvIrcConnection() override;

    QString securityText() const override;

protected:
    void startLogin(const KirvPresence &presence) override;
    void startLogout() override;
    void abortConnection() override;
    void applyPresence(const KirvPresence &presence) override;
    void checkSession(int milliseconds) override;

private:
    void createLink();
    void createSocket(QAbstractSocket *transport);
    void openThroughProxy(QAbstractSocket *transport);
    QAbstractSocket *createTransport(QString *problem);
    bool configure(QSslSocket *encrypted, QString *problem) const;
    void checkCertificate(QSslSocket *encrypted, const QList<QSslError> &errors);
    void openLink(QSslSocket *encrypted);
    void reportReadableKey();
    void prepareAuthentication();

    void finishLogin(const KirvPresence &presence);
    QString proofText() const;
    void failAuthentication(const KirvFailure &failure);
    void announceNick();
    void receiveNumeric(IrcNumericMessage *message);
    void tryNextNick(bool wasRefused);
    void awaitErrorMessage(IrcNumericMessage *message);
    void receiveErrorMessage(IrcErrorMessage *message);
    KirvFailure meaningOf(const QString &goodbye) const;
    void loseConnection(const QString &reason = QString());
    void receiveSocketError(QAbstractSocket::SocketError error);

    void watchServer();
    void callLaterOnLink(int milliseconds, const std::function<void()> &callback);

    KirvSystemCertificates &systemCertificates;
    /// Deleted later, as it may be in the middle of a signal.
    QScopedPointer<IrcConnection, QScopedPointerDeleteLater> link;
    KirvIrcSettings settings;
    KirvIrcSocket *socket = nullptr; ///< of the link
    QNetworkProxy proxy; ///< that it goes through
    KirvIrcSasl *sasl = nullptr; ///< of the link; null when the log-in does without
    QStringList remainingNicks;
    bool isCertificateRefused = false; ///< the server's is not trusted
    QString saslServer; ///< where SASL worked last, in this session of the program
    QString reportedKeyFile; ///< the key file that others can read, when that was told
    QString refusal; ///< why the server is about to close the connection; its goodbye follows
    QString announcedNick;
    bool announcesLater = false; ///< a nick was announced not long ago
    QDateTime lastReceived;
    quint64 receivedCount = 0; ///< counts what the server has sent
    bool wasPinged = false; ///< since the last line of the server
};

#endif

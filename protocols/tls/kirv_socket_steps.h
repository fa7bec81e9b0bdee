// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SOCKET_STEPS_H
#define KIRV_SOCKET_STEPS_H

#include "core/protocol/kirv_login_step.h"

#include <QNetworkProxy>
#include <QObject>

class QAbstractSocket;
class QSslCertificate;
class QSslSocket;

/// Watches a socket while a log-in goes over it, and reports the steps up to the log-in itself, whose end the protocol
/// reports. Failures are not reported here.
class KirvSocketSteps : public QObject {
    Q_OBJECT

public:
    enum Encryption {
        None, ///< the settings want none
        Wanted ///< from the first byte, or later
    };

    /// \a socket is not owned and outlives this.
    explicit KirvSocketSteps(QAbstractSocket &socket, QObject *parent);

    /// The socket is about to connect to \a host, through \a proxy unless that is of the type NoProxy.
    void begin(const QString &host, int port, const QNetworkProxy &proxy, Encryption encryption);
    /// The server offers no encryption, and the log-in goes on without. Does nothing once it is encrypted.
    void goOnUnencrypted();

    /// Whose certificate it is, until when it is valid, and its fingerprint, in a few words.
    static QString certificateText(const QSslCertificate &certificate);

Q_SIGNALS:
    void step(const KirvLoginStep &step);

private:
    void receiveAddress();
    void receiveConnection();
    void receiveEncryption();
    void receiveWarning();
    void emitStep(KirvLoginStep::Kind kind, KirvLoginStep::Outcome outcome, const QString &text = QString());
    QString encryptionText() const;

    QAbstractSocket &socket;
    QSslSocket *const encrypted; ///< the same; null for one that cannot be
    QString target;
    QNetworkProxy proxy;
    Encryption encryption = Wanted;
    bool hasLogInBegun = false;
};

#endif

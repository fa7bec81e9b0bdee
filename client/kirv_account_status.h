// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_STATUS_H
#define KIRV_ACCOUNT_STATUS_H

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

class KirvAccount;
class KirvFailure;

/// What the windows say about an account and its connection. All texts are plain text.
class KirvAccountStatus {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountStatus)

public:
    enum Kind {
        Connected,
        Connecting, ///< or logging out
        Waiting, ///< for the next attempt
        Failed, ///< it gave up
        OffLine, ///< as it is wanted
        Disabled,
        NotLoaded
    };

    /// \a account is not owned and outlives this; \a isMain: it is the main account.
    KirvAccountStatus(const KirvAccount &account, bool isMain);

    Kind kind() const { return stateKind; }
    /// A few words about the state, as "Waiting, next try in 12 s", at the time \a now.
    QString text(const QDateTime &now = QDateTime::currentDateTime()) const;
    /// The line below the name in a list: the state, and while it is connected the presence, and whether it is the
    /// main account.
    QString line(const QDateTime &now = QDateTime::currentDateTime()) const;
    /// The same for assistive technology: it stays right as long as the state does.
    QString accessibleLine() const;
    /// The whole reason of the state and what can be done, in sentences.
    QString reason() const;

    // What can be done with the account now.
    bool canEdit() const;
    bool canReconnect() const;
    bool canEnterPassword() const;
    bool canTestLogin() const;
    /// Whether there may be something wrong with the log-in.
    bool canBeWrong() const;
    /// Whether the log-in was refused for the certificate of the server, or the session goes on only because the user
    /// trusts that.
    bool isAboutCertificate() const;
    /// The same, or a certificate is trusted.
    bool canShowCertificate() const;

private:
    static Kind kindOf(const KirvAccount &account);
    /// A failure in a few words.
    static QString shortText(const KirvFailure &failure);
    /// What can be done about a failure that no new attempt follows; a sentence.
    static QString advice(const KirvFailure &failure);
    /// Of a log-in that was refused for a certificate although another one is trusted; a sentence.
    QString otherCertificateText() const;
    QString lineOf(const QString &state) const;
    QString waitingText(const QDateTime &now) const;
    QString waitingReason() const;
    bool isWaitingForSecrets() const;
    QString connectedReason() const;
    /// Since when the connection has been in its state; a sentence.
    QString since() const;

    const KirvAccount &account;
    const bool isMain;
    const Kind stateKind;
};

#endif

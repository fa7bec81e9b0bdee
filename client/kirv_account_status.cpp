// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_status.h"

#include "client/kirv_plain_text.h"
#include "client/kirv_secret_texts.h"
#include "core/accounts/kirv_account.h"

#include <QLocale>
#include <QStringList>

namespace {

const qint64 secondsShown = 120; ///< longer times are shown in minutes

QString timeText(const QDateTime &time)
{
    const QLocale locale;
    return time.date() == QDate::currentDate() ? locale.toString(time.time(), QStringLiteral("hh:mm:ss"))
                                               : locale.toString(time, QLocale::ShortFormat);
}

/// The presence of \a account as its protocol calls it now, in the language that is used now.
QString presenceName(const KirvAccount &account)
{
    const KirvPresence presence = account.presence();
    const QList<KirvPresence> offered = account.isLoaded() ? account.protocol()->presences() : QList<KirvPresence>();
    for (const KirvPresence &candidate : offered) {
        if (candidate.getId() == presence.getId())
            return candidate.getDisplay();
    }
    return presence.getDisplay();
}

QString sentences(const QStringList &parts)
{
    QStringList present = parts;
    present.removeAll(QString());
    return present.join(QLatin1Char(' '));
}

} // namespace

KirvAccountStatus::KirvAccountStatus(const KirvAccount &account, bool isMain)
    : account(account)
    , isMain(isMain)
    , stateKind(kindOf(account))
{
}

KirvAccountStatus::Kind KirvAccountStatus::kindOf(const KirvAccount &account)
{
    if (!account.isLoaded())
        return NotLoaded;
    switch (account.connection()->state()) {
    case KirvConnection::Online:
        return Connected;
    case KirvConnection::Connecting:
    case KirvConnection::Disconnecting:
        return Connecting;
    case KirvConnection::Waiting:
        return Waiting;
    case KirvConnection::Offline:
        break;
    }
    if (!account.record().enabled)
        return Disabled;
    if (account.awaitsSecrets())
        return Waiting;
    return account.lastFailure().isFailure() ? Failed : OffLine;
}

QString KirvAccountStatus::text(const QDateTime &now) const
{
    switch (stateKind) {
    case Connected:
        return tr("Connected");
    case Connecting:
        return account.connection()->state() == KirvConnection::Disconnecting ? tr("Logging out…") : tr("Connecting…");
    case Waiting:
        return waitingText(now);
    case Failed:
        return shortText(account.lastFailure());
    case OffLine:
        return tr("Off line");
    case Disabled:
        return tr("Disabled");
    case NotLoaded:
        break;
    }
    return tr("Its plug-in is not loaded");
}

bool KirvAccountStatus::isWaitingForSecrets() const
{
    return account.connection()->state() == KirvConnection::Offline;
}

QString KirvAccountStatus::waitingText(const QDateTime &now) const
{
    if (isWaitingForSecrets())
        return KirvSecretTexts(account.secrets()).shortObstacle();
    if (account.connection()->isWaitingForTurn())
        //: other accounts connect first
        return tr("Waiting to connect…");
    const qint64 seconds = qMax<qint64>(1, (now.msecsTo(account.connection()->nextRetry()) + 999) / 1000);
    if (seconds < secondsShown)
        //: %1 = number of seconds; keep it short
        return tr("Waiting, next try in %1 s").arg(seconds);
    //: %1 = number of minutes; keep it short
    return tr("Waiting, next try in %1 min").arg((seconds + 59) / 60);
}

QString KirvAccountStatus::line(const QDateTime &now) const
{
    return lineOf(text(now));
}

QString KirvAccountStatus::accessibleLine() const
{
    if (stateKind != Waiting || account.connection()->isWaitingForTurn() || isWaitingForSecrets())
        return lineOf(text());
    //: %1 = time of day
    return lineOf(tr("Waiting, next try at %1").arg(timeText(account.connection()->nextRetry())));
}

QString KirvAccountStatus::lineOf(const QString &state) const
{
    QStringList parts { state };
    if (stateKind == Connected)
        parts << presenceName(account);
    if (isMain)
        parts << tr("main account");
    parts.removeAll(QString());
    //: between the parts of the line below the name of an account, as in "Connected · Away · main account"
    return kirvPlainSentence(parts.join(tr(" · ")).simplified());
}

QString KirvAccountStatus::reason() const
{
    const KirvFailure failure = account.lastFailure();
    switch (stateKind) {
    case Connected:
        return connectedReason();
    case Connecting:
        return sentences({ failure.text(), since() });
    case Waiting:
        return isWaitingForSecrets() ? kirvPlainSentence(KirvSecretTexts(account.secrets()).obstacleOf(account))
                                     : sentences({ failure.text(), waitingReason() });
    case Failed:
        return sentences({ failure.text(), otherCertificateText(), advice(failure), since() });
    case OffLine:
        return sentences({ tr("The account is logged out. It can be logged in with Reconnect."), since() });
    case Disabled:
        return tr("The account does not log in. It can be enabled with its check box.");
    case NotLoaded:
        break;
    }
    return tr("The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.")
        .arg(kirvPlainName(account.key().protocol));
}

QString KirvAccountStatus::waitingReason() const
{
    const KirvConnection *connection = account.connection();
    return connection->isWaitingForTurn() ? tr("Other accounts connect first.")
                                          //: %1 = time of day
                                          : tr("The next try is at %1.").arg(timeText(connection->nextRetry()));
}

QString KirvAccountStatus::connectedReason() const
{
    const KirvConnection *connection = account.connection();
    const QString security = connection->securityText();
    const QString presence = presenceName(account);
    return sentences({ account.lastFailure().text(),
                       presence.isEmpty() ? QString()
                                          //: %1 = name of a presence, as "Away"
                                          : tr("The presence is %1.").arg(kirvPlainName(presence)),
                       since(),
                       security.isEmpty() ? QString()
                                          //: %1 = how a connection is protected, as "TLSv1.3, SASL EXTERNAL"
                                          //: or "not encrypted, no password"
                                          : tr("Protection: %1.").arg(kirvPlainName(security)) });
}

QString KirvAccountStatus::since() const
{
    const KirvConnection *connection = account.connection();
    const QDateTime time = connection ? connection->since() : QDateTime();
    //: %1 = time of day, or date and time, since when a connection has been in its state
    return time.isValid() ? tr("Since %1.").arg(timeText(time)) : QString();
}

QString KirvAccountStatus::shortText(const KirvFailure &failure)
{
    switch (failure.kind()) {
    case KirvFailure::WrongPassword:
        return tr("Wrong password");
    case KirvFailure::PasswordMissing:
        return tr("Password needed");
    case KirvFailure::HostNotFound:
        return tr("Server not found");
    case KirvFailure::ConnectionRefused:
        return tr("Server not reachable");
    case KirvFailure::TimedOut:
        return tr("No reply from the server");
    case KirvFailure::UntrustedCertificate:
        return tr("Certificate not trusted");
    case KirvFailure::EncryptionNotOffered:
        return tr("Encryption not offered");
    case KirvFailure::AuthenticationNotOffered:
        return tr("No usable log-in offered");
    case KirvFailure::ServiceUnavailable:
        return tr("Server not available");
    case KirvFailure::ConnectionLost:
        return tr("Connection lost");
    case KirvFailure::ServerShutDown:
        return tr("Connection closed by the server");
    case KirvFailure::LoggedInElsewhere:
        return tr("Logged in elsewhere");
    case KirvFailure::NameInUse:
        return tr("Name in use");
    case KirvFailure::NameNotAllowed:
        return tr("Name not allowed");
    case KirvFailure::ProxyNotReached:
        return tr("Proxy not reachable");
    case KirvFailure::ProxyTimedOut:
    case KirvFailure::ProxyUnknown:
        return tr("No reply from the proxy");
    case KirvFailure::ProxyLoginRefused:
        return tr("Log-in refused by the proxy");
    case KirvFailure::ProxyDenied:
        return tr("Denied by the proxy");
    case KirvFailure::ProxyFailed:
        return tr("Proxy failed");
    case KirvFailure::AccessDenied:
        return tr("Access denied");
    case KirvFailure::BadSettings:
        return tr("Settings cannot be used");
    case KirvFailure::NotSupported:
        return tr("Not supported by the server");
    case KirvFailure::None:
    case KirvFailure::RequestFailed:
    case KirvFailure::Other:
        break;
    }
    return tr("Log-in failed");
}

QString KirvAccountStatus::advice(const KirvFailure &failure)
{
    switch (failure.kind()) {
    case KirvFailure::WrongPassword:
        return tr("Enter the password again, or edit the account if the login is wrong.");
    case KirvFailure::PasswordMissing:
        return tr("Enter the password.");
    case KirvFailure::UntrustedCertificate:
        return tr("Look at it with Show Certificate.");
    case KirvFailure::EncryptionNotOffered:
    case KirvFailure::AuthenticationNotOffered:
    case KirvFailure::NameInUse:
    case KirvFailure::NameNotAllowed:
    case KirvFailure::ProxyLoginRefused:
    case KirvFailure::BadSettings:
        return tr("Edit the account to change its settings.");
    case KirvFailure::LoggedInElsewhere:
        return tr("It can be logged in here again with Reconnect.");
    default:
        return tr("It can be tried again with Reconnect.");
    }
}

bool KirvAccountStatus::canEdit() const
{
    return stateKind != NotLoaded;
}

bool KirvAccountStatus::canReconnect() const
{
    return account.isLoaded() && account.record().enabled;
}

bool KirvAccountStatus::canEnterPassword() const
{
    return canReconnect();
}

bool KirvAccountStatus::canTestLogin() const
{
    return account.isLoaded() && !account.awaitsSecrets();
}

bool KirvAccountStatus::canBeWrong() const
{
    return canTestLogin() && stateKind != Connected;
}

bool KirvAccountStatus::isAboutCertificate() const
{
    const KirvConnection *connection = account.connection();
    if (!connection || !account.record().enabled)
        return false;
    return stateKind == Connected ? !connection->pinnedCertificate().isNull()
                                  : stateKind == Failed && !connection->refusedCertificate().isNull();
}

bool KirvAccountStatus::canShowCertificate() const
{
    return isAboutCertificate() || (account.isLoaded() && !account.record().trustedCertificate.isEmpty());
}

QString KirvAccountStatus::otherCertificateText() const
{
    const bool isOther = isAboutCertificate() && !account.record().trustedCertificate.isEmpty();
    return isOther ? tr("It is another one than the one that you have trusted.") : QString();
}

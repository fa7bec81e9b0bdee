// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_failure.h"

#include "core/values/kirv_single_line.h"

namespace {

constexpr int longestDetail = 300;

} // namespace

KirvFailure::KirvFailure(Kind kind, const QString &detail)
    : failureKind(kind)
    , failureDetail(kirvSingleLine(detail, longestDetail))
{
}

KirvFailure KirvFailure::connectionEnded()
{
    return KirvFailure(RequestFailed, tr("The connection ended before the server answered."));
}

bool KirvFailure::isWorthRetrying() const
{
    switch (failureKind) {
    case HostNotFound:
    case ConnectionRefused:
    case TimedOut:
    case ConnectionLost:
    case ServerShutDown:
    case ServiceUnavailable:
    case ProxyNotReached:
    case ProxyTimedOut:
    case ProxyDenied:
    case ProxyFailed:
    case ProxyUnknown:
    case Other:
        return true;
    case None:
    case WrongPassword:
    case PasswordMissing:
    case UntrustedCertificate:
    case EncryptionNotOffered:
    case AuthenticationNotOffered:
    case LoggedInElsewhere:
    case NameInUse:
    case NameNotAllowed:
    case ProxyLoginRefused:
    case AccessDenied:
    case BadSettings:
    case NotSupported:
    case RequestFailed:
        return false;
    }
    return false;
}

QString KirvFailure::text() const
{
    const QString sentence = failureDetail.isEmpty() ? QString() : textWithDetail();
    return sentence.isEmpty() ? textWithoutDetail() : sentence.arg(failureDetail);
}

QString KirvFailure::textWithoutDetail() const
{
    switch (failureKind) {
    case None:
        return QString();
    case WrongPassword:
        return tr("The server did not accept the login or the password.");
    case PasswordMissing:
        return tr("A password is needed to log in, and none is known.");
    case HostNotFound:
        return tr("The server could not be found. Check its name and your network connection.");
    case ConnectionRefused:
        return tr("The server does not accept connections. Check its name and port, or try again later.");
    case TimedOut:
        return tr("The server did not answer in time.");
    case UntrustedCertificate:
        return tr("The certificate of the server is not trusted.");
    case EncryptionNotOffered:
        return tr("The account requires encryption, and the server does not offer it.");
    case AuthenticationNotOffered:
        return tr("The server offers no way to log in that this account can use.");
    case ServiceUnavailable:
        return tr("The server cannot log the account in at the moment.");
    case ConnectionLost:
        return tr("The connection to the server was lost.");
    case ServerShutDown:
        return tr("The server closed the connection.");
    case LoggedInElsewhere:
        return tr("Another client logged in to the account and took its place.");
    case NameInUse:
        return tr("The name is already in use on the server.");
    case NameNotAllowed:
        return tr("The server does not allow this name.");
    case ProxyNotReached:
        return tr("The proxy cannot be reached. Check its name and port and your network connection.");
    case ProxyTimedOut:
        return tr("The proxy did not connect to the server in time.");
    case ProxyLoginRefused:
        return tr("The proxy did not accept the user or the password.");
    case ProxyDenied:
        return tr("The proxy does not allow a connection to the server.");
    case ProxyFailed:
        return tr("The connection through the proxy failed.");
    case ProxyUnknown:
        return tr("The system did not say in time which proxy to use, so no connection was made.");
    case AccessDenied:
        return tr("The server denied access.");
    case BadSettings:
        return tr("The settings of the account cannot be used.");
    case NotSupported:
        return tr("The server does not offer what was requested.");
    case RequestFailed:
        return tr("The request failed.");
    case Other:
        break;
    }
    return tr("An unknown error occurred.");
}

QString KirvFailure::textWithDetail() const
{
    switch (failureKind) {
    case HostNotFound:
        //: %1 is the name of a server
        return tr("The server \"%1\" could not be found. Check its name and your network connection.");
    case ConnectionRefused:
        //: %1 is the name of a server
        return tr("The server \"%1\" does not accept connections. Check its name and port, or try again later.");
    case TimedOut:
        //: %1 is the name of a server
        return tr("The server \"%1\" did not answer in time.");
    case UntrustedCertificate:
        //: %1 is what is wrong with the certificate
        return tr("The certificate of the server is not trusted: %1");
    case ServiceUnavailable:
        //: %1 is the reason
        return tr("The server cannot log the account in at the moment: %1");
    case ConnectionLost:
        //: %1 is the reason
        return tr("The connection to the server was lost: %1");
    case ServerShutDown:
        //: %1 is what the server said
        return tr("The server closed the connection: %1");
    case LoggedInElsewhere:
        //: %1 is what the server said
        return tr("Another client logged in to the account and took its place: %1");
    case NameInUse:
        //: %1 is the name of a user
        return tr("The name \"%1\" is already in use on the server.");
    case NameNotAllowed:
        //: %1 is the name of a user
        return tr("The server does not allow the name \"%1\".");
    case AccessDenied:
        //: %1 is what the server said
        return tr("The server denied access: %1");
    case BadSettings:
        //: %1 says which setting and what is wrong with it
        return tr("The settings of the account cannot be used: %1");
    case NotSupported:
        //: %1 is what was requested
        return tr("The server does not offer what was requested: %1");
    case RequestFailed:
        //: %1 is the reason
        return tr("The request failed: %1");
    case Other:
        //: %1 is what the server or the network said
        return tr("An error occurred: %1");
    default:
        return isOfProxy() ? proxyTextWithDetail() : QString();
    }
}

QString KirvFailure::proxyTextWithDetail() const
{
    switch (failureKind) {
    case ProxyNotReached:
        //: %1 is the name and port of a proxy
        return tr("The proxy %1 cannot be reached. Check its name and port and your network connection.");
    case ProxyTimedOut:
        //: %1 is the name and port of a proxy
        return tr("The proxy %1 did not connect to the server in time.");
    case ProxyLoginRefused:
        //: %1 is the name and port of a proxy
        return tr("The proxy %1 did not accept the user or the password.");
    case ProxyDenied:
        //: %1 is the name and port of a proxy
        return tr("The proxy %1 does not allow a connection to the server.");
    case ProxyFailed:
        //: %1 is the reason
        return tr("The connection through the proxy failed: %1");
    default:
        return QString();
    }
}

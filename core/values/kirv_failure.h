// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAILURE_H
#define KIRV_FAILURE_H

#include "core/values/kirv_values_export.h"

#include <QCoreApplication>
#include <QMetaType>
#include <QString>

/// Why a connection or a request failed, the same for every protocol.
class KIRV_VALUES_EXPORT KirvFailure {
    Q_DECLARE_TR_FUNCTIONS(KirvFailure)

public:
    /// What failed.
    enum Kind {
        None, ///< nothing failed
        WrongPassword, ///< the server knows the login but refuses the password, or refuses both
        PasswordMissing, ///< a password is needed and none is known
        HostNotFound, ///< the server's name has no address; the detail is that name
        ConnectionRefused, ///< no server accepts connections there; the detail is its name
        TimedOut, ///< the server did not answer in time; the detail is its name
        UntrustedCertificate, ///< the server's certificate is not to be trusted; the detail says why
        EncryptionNotOffered, ///< encryption is required and the server has none
        AuthenticationNotOffered, ///< no common way to log in
        ServiceUnavailable, ///< the server cannot log the account in for the moment; the detail says why
        ConnectionLost, ///< the connection broke
        ServerShutDown, ///< the server closed the stream in an orderly way
        LoggedInElsewhere, ///< another client took the session over
        NameInUse, ///< the name (the detail) is taken, and no alternative was left
        NameNotAllowed, ///< the server does not accept that name (the detail)
        ProxyNotReached, ///< nothing accepts connections where the proxy (the detail) is to be
        ProxyTimedOut, ///< the proxy (the detail) has not connected to the server in time
        ProxyLoginRefused, ///< the proxy (the detail) requires a log-in, or does not accept this one
        ProxyDenied, ///< the proxy (the detail) does not allow a connection to the server
        ProxyFailed, ///< anything else with the proxy; the detail says what
        ProxyUnknown, ///< the system has not said which proxy to use
        AccessDenied, ///< the server does not let us in (banned, wrong server password)
        BadSettings, ///< the account's settings cannot be used; the detail says which
        NotSupported, ///< the server does not offer what was requested
        RequestFailed, ///< the server refused a request; the detail says why
        Other ///< anything else; the detail says what
    };

    KirvFailure() = default;
    /// \a detail is added to the sentence where it helps: a host name, the server's own words. It is kept in
    /// one line of at most 300 characters, whatever a server sends.
    KirvFailure(Kind kind, const QString &detail = QString());
    /// Of a request that was under way when its connection ended.
    static KirvFailure connectionEnded();

    /// What failed; None when nothing did.
    Kind kind() const { return failureKind; }
    /// What helps to understand the failure, as the constructor keeps it; may be empty.
    QString detail() const { return failureDetail; }
    /// Whether anything failed.
    bool isFailure() const { return failureKind != None; }
    /// Whether trying again by itself may help. A wrong password, say, stays wrong.
    bool isWorthRetrying() const;
    /// Whether it is about the proxy and nothing is known of the server.
    bool isOfProxy() const { return failureKind >= ProxyNotReached && failureKind <= ProxyUnknown; }
    /// One or two sentences for the user, translated; empty for None. Plain text.
    QString text() const;

private:
    QString textWithoutDetail() const;
    /// With a place-holder for the detail; empty where the detail does not help.
    QString textWithDetail() const;
    QString proxyTextWithDetail() const;

    Kind failureKind = None;
    QString failureDetail;
};

Q_DECLARE_METATYPE(KirvFailure)

#endif

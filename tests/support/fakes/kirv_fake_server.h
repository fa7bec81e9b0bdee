// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_SERVER_H
#define KIRV_FAKE_SERVER_H

#include "core/protocol/kirv_server_certificate.h"
#include "core/values/kirv_failure.h"
#include "host/kirv_field.h"

#include <QHash>
#include <QList>
#include <QStringList>
#include <utility>

/// The server of all connections of a KirvFakeProtocol: how it replies, what it holds and what it received. A test
/// sets and reads the members.
struct KirvFakeServer {
    enum Reply {
        Accepts, ///< at once
        Holds, ///< until the test replies with KirvFakeConnection::serverAccepts() or serverRefuses()
        Refuses ///< at once
    };

    Reply logIn = Accepts;
    Reply logOut = Accepts; ///< a refused log-out is held
    Reply directory = Accepts;
    bool needsPassword = false; ///< a log-in without a password fails before the server is reached
    QStringList silentPresences; ///< ids; a log-in with one of them is held
    KirvFailure refusal = KirvFailure::WrongPassword; ///< of a log-in
    KirvServerCertificate certificate; ///< logins that do not trust it are refused; null: it is trusted by all
    KirvFailure directoryRefusal { KirvFailure::RequestFailed, QStringLiteral("not today") };

    QHash<QString, QList<KirvField>> entries; ///< the directory, by account id
    /// What was received, in order, each with the account id in front: "ann log in available secret", "ann log out",
    /// "ann abort", "ann presence away", "ann avatar", "ann fetch", "ann publish name,town", "ann delete".
    QStringList calls;
    int connections = 0; ///< how many connection objects exist

    /// The calls since the last take.
    QStringList takeCalls() { return std::exchange(calls, QStringList()); }
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RECORDING_ACCOUNT_H
#define KIRV_RECORDING_ACCOUNT_H

#include "host/kirv_account_connection.h"

class KirvRecordingProtocol;

/// An account whose state a test sets directly, unrecorded, and the library through the contract, recorded.
class KirvRecordingAccount : public KirvAccountConnection {
public:
    KirvRecordingAccount(const QString &id, KirvRecordingProtocol *protocol);

    const QString id;
    const QString protocolName;
    /// What getProtocol() returns; not owned.
    KirvRecordingProtocol *protocol;

    QString alias;
    QString password;
    bool enabled = true;
    bool loggedIn = false;
    /// Whether getAccount() finds it.
    bool loaded = true;
    /// Whether loadAccount() finds it.
    bool loadable = true;
    KirvPresence defaultPresence;
    QString avatarPath;
    QList<KirvField> settings;
    /// What readAccountGlobals() gives.
    QList<KirvField> globals;

    /// How the log names it: "id@protocol".
    QString written() const;
};

#endif

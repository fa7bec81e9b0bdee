// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DEMO_H
#define KIRV_DEMO_H

#include "tools/servers/kirv_ngircd_server.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCoreApplication>
#include <QString>
#include <QTemporaryDir>

/// A try without an account: private servers on this computer and a throw-away profile, all of which end with
/// the object. The protocols find the servers under their configuration "Server on this computer".
class KirvDemo {
    Q_DECLARE_TR_FUNCTIONS(KirvDemo)

public:
    /// Starts the XMPP server, with one account, and the IRC server where there is one. False with
    /// errorString() when there is no XMPP server. Call it before the plug-ins are loaded.
    bool start();
    QString errorString() const { return error; }

    QString profileFolder() const { return profile.path(); }
    /// What to type, in plain text.
    QString instructions() const;

    QString address() const;
    QString password() const;
    /// Whether the XMPP server has a session of that account now.
    bool isOnline();
    bool hasIrc() const { return irc.isRunning(); }

private:
    bool startXmpp();
    void startIrc();

    QTemporaryDir profile;
    KirvProsodyServer xmpp;
    KirvNgircdServer irc;
    QString error;
};

#endif

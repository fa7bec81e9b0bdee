// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_SETTINGS_H
#define KIRV_IRC_SETTINGS_H

#include "core/protocol/kirv_proxy.h"
#include "host/kirv_field.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

/// The settings of an IRC account, read from its login, its password and its fields. A value type.
///
/// A login is a nick, or a nick, "@" and the name of a network: "alice", "alice\@irc.libera.chat". The second form
/// lets a user keep the same nick on several networks, as a login can be used only once. What follows the "@" is
/// the server as long as the field "server" is empty; otherwise it is only a name that tells the accounts apart.
/// The port of such a server may follow after a colon, "alice\@irc.libera.chat:7000", and holds in place of the field
/// "port".
class KirvIrcSettings {
    Q_DECLARE_TR_FUNCTIONS(KirvIrcSettings)

public:
    /// What the account's one password is for. Many networks need none at all.
    enum PasswordUse {
        NotUsed, ///< it is not sent
        ForServer, ///< to be let in by the server (PASS)
        ForSasl ///< to prove that a registered nick is one's own (SASL PLAIN)
    };

    KirvIrcSettings() = default;
    /// Fields that are missing have their default values.
    KirvIrcSettings(const QString &login, const QString &password, const QList<KirvField> &fields);

    /// Why the settings cannot be used, a sentence for the user; empty when they can.
    QString problem() const;
    /// Of these what keeps the server from being found at all.
    QString serverProblem() const;

    QString nick; ///< the one that is wanted
    QString server;
    quint16 port = 0;
    bool encrypted = true;
    QString certificateFile; ///< PEM; trusted besides those of the system. Empty: none
    QString clientCertificateFile; ///< PEM; shows who the user is (SASL EXTERNAL). Empty: none
    QString clientKeyFile; ///< PEM; the certificate's file unless there is one of its own
    PasswordUse passwordUse = NotUsed;
    QString password;
    QString saslUser;
    QString realName;
    KirvProxy proxy;
    QStringList alternativeNicks; ///< to be tried in this order when the nick is in use

    /// The nicks to try, the wanted one first: the alternatives follow, then the nick with something appended.
    QStringList nicks() const;
    /// Whether the log-in needs the password. A client certificate takes the place of that for SASL.
    bool needsPassword() const;
    bool usesClientCertificate() const { return !clientCertificateFile.isEmpty(); }
    /// The name of the user on this computer as servers see it: letters and digits, never empty.
    QString userName() const;

    /// The fields of a new account.
    static QList<KirvField> defaultFields();
    /// \a fields for a log-in that is only a test: the names do not matter.
    static QList<KirvField> forTest(QList<KirvField> fields);
    /// The ids of those that are the path of a file.
    static QStringList fileFields();
    /// The names of the ready-made configurations and the fields of one; empty for an unknown name.
    static QStringList configurations();
    static QList<KirvField> configurationFields(const QString &name);

    /// What a login looks like.
    static QString loginPattern();
    /// What is wrong with \a login, or missing of it, a sentence for the user; empty when nothing is.
    static QString loginProblem(const QString &login);
    /// The login in lower case, where {, }, | and ^ are the lower case of [, ], \ and ~ in a nick (rfc1459): most
    /// networks compare nicks like that, and which one it is shows only after the log-in.
    static QString normalizedLogin(const QString &login);
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_REQUEST_H
#define KIRV_ACCOUNTS_REQUEST_H

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// A command for accounts that came by the command line. A value type, which travels as JSON.
struct KirvAccountsRequest {
    enum Command { List, Enable, Disable, Export, Import };

    Command command = List;
    QStringList names; ///< of accounts, see KirvAccountNames; empty: all of them, where the command allows that
    bool withPasswords = false; ///< of an export
    QString passPhrase; ///< of the file; empty: passwords are neither put into it nor read of it
    QString file; ///< the bytes to import, as Base64
    bool replaces = false; ///< accounts that exist, by an import
    bool isTrial = false; ///< an import that changes nothing

    static QString nameOf(Command command);
    /// False when there is no command of that \a name.
    static bool commandOf(const QString &name, Command *command);

    QJsonObject toJson() const;
    /// False when \a json is no such request.
    static bool fromJson(const QJsonObject &json, KirvAccountsRequest *request);
};

/// What became of it. A value type, which travels as JSON.
struct KirvAccountsReply {
    /// The exit statuses of the program.
    enum Status {
        Done = 0,
        Refused = 1, ///< nothing was changed, unless the problem says so
        Damaged = 2, ///< the profile
        UnknownAccount = 3, ///< or a name that several have; nothing was changed
        DoneInPart = 4, ///< what was left out is among the result
        WrongPassPhrase = 5 ///< or none where one is needed; nothing was changed
    };

    int status = Done;
    QString problem; ///< a sentence for the user; empty: there is none
    QJsonObject result; ///< what the command line prints, see the man page; empty when there was a problem
    QString file; ///< the bytes that were exported, as Base64

    /// With the status Refused, unless another one is given.
    static KirvAccountsReply refusal(const QString &problem, Status status = Refused);

    QJsonObject toJson() const;
    static KirvAccountsReply fromJson(const QJsonObject &json);
};

#endif

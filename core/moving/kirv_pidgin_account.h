// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PIDGIN_ACCOUNT_H
#define KIRV_PIDGIN_ACCOUNT_H

#include "core/moving/kirv_moved_accounts.h"

#include <QMap>
#include <QString>

/// One account as it stands in a file of Pidgin. A value type. Private to KirvPidginFile.
struct KirvPidginAccount {
    struct Setting {
        QString type; ///< "string", "int" or "bool"
        QString value;
    };

    QString protocol; ///< as "prpl-jabber"
    QString name;
    QString password; ///< empty: the file has none
    QString alias;
    QMap<QString, Setting> settings; ///< those of the protocol, by name
    QMap<QString, QString>
        proxy; ///< what stands in the element of that name; empty: the account has no proxy of its own
    bool logsIn = false; ///< by itself

    bool usesGlobalProxy() const
    {
        const QString type = proxy.value(QStringLiteral("type"));
        return type.isEmpty() || type == QLatin1String("global");
    }
};

/// Adds to \a moved what \a account is here, or the reason why it is left out.
void kirvAddPidginAccount(const KirvPidginAccount &account, KirvMovedAccounts *moved);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REPORT_H
#define KIRV_REPORT_H

#include "core/values/kirv_account_key.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class KirvAccount;
class KirvAccountCollection;
class KirvPluginLoader;
class KirvProtocolBase;

/// What somebody who helps wants to know: versions, plug-ins, and the accounts with their states, failures and logs.
/// It holds no secrets, and no names of the user unless these are wanted.
class KirvReport {
    Q_DECLARE_TR_FUNCTIONS(KirvReport)

public:
    // In a report about all accounts.
    static const int mostAccounts = 20; ///< those with failures come first
    static const int entriesOfEach = 20; ///< the last ones of its log

    /// Neither is owned; both outlive the report.
    KirvReport(const KirvAccountCollection &accounts, const KirvPluginLoader &plugins);

    /// About \a account alone, with its whole log; or about all, when that is not configured. Plain text.
    QString text(const KirvAccountKey &account, bool withNames) const;

    /// The program, Qt and the system with their versions.
    static QString ofProgram();
    /// The protocol and its libraries with their versions, in a line.
    static QString ofProtocol(KirvProtocolBase &protocol);
    /// \a text without the names by which \a account and its user are known.
    static QString withoutNames(const QString &text, KirvAccount &account);

private:
    QStringList pluginLines() const;
    QList<KirvAccount *> chosen() const;
    QStringList linesOf(KirvAccount &account, int number, int mostEntries, bool withNames) const;

    const KirvAccountCollection &accounts;
    const KirvPluginLoader &plugins;
};

#endif

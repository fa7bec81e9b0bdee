// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_NAMES_H
#define KIRV_ACCOUNT_NAMES_H

#include <QCoreApplication>
#include <QList>
#include <QMultiHash>
#include <QString>
#include <QStringList>

class KirvAccount;
struct KirvAccountKey;

/// How accounts are named on the command line: PROTOCOL:ID, or the id alone when only one account has it. The protocol
/// may be written in lower case when no other one is meant then.
class KirvAccountNames {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountNames)

public:
    explicit KirvAccountNames(const QList<KirvAccount *> &accounts);

    /// As PROTOCOL:ID.
    static QString of(const KirvAccountKey &key);

    /// The accounts that \a names name, each once, in the order of the names. Empty when one of them names none or
    /// several; \a problem is a sentence about it then.
    QList<KirvAccount *> find(const QStringList &names, QString *problem) const;

private:
    QList<KirvAccount *> candidates(const QString &name) const;

    QMultiHash<QString, KirvAccount *> byName, byId, byFoldedName;
};

#endif

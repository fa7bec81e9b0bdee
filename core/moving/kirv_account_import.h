// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_IMPORT_H
#define KIRV_ACCOUNT_IMPORT_H

#include "core/moving/kirv_moved_accounts.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

class KirvAccountCollection;
class KirvAccountHistory;
class KirvMainAccount;

/// Takes the accounts of a file over into the profile, as one change that can be undone.
///
/// An account that exists, also with another spelling of its login, is kept or replaced; there can be only one account
/// with a login. Nothing changes before apply().
class KirvAccountImport {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountImport)

public:
    struct Row {
        KirvAccountKey key; ///< as in the file
        QString name; ///< the alias, or the id when there is none
        KirvAccountKey existing; ///< the account with the same login; the id is empty: it is new
        QString problem; ///< why it cannot be taken over, a sentence; empty: it can
        bool isTaken = false; ///< whether apply() takes it over; it replaces the existing one then
        /// Whether the existing account loses passwords or secret settings when it is replaced: the file has none, and
        /// they must not go where its settings lead.
        bool losesSecrets = false;
        bool isNew() const { return existing.id.isEmpty(); }
    };

    /// None of the three is owned; they outlive this. \a mainAccount was restored before. New accounts without a
    /// problem are taken, existing ones kept. An account of a protocol that is not loaded has a problem: nobody could
    /// say what its login is to the server.
    KirvAccountImport(KirvAccountCollection &accounts, KirvMainAccount &mainAccount, KirvAccountHistory &history,
                      const KirvMovedAccounts &moved);

    /// One for each account of the file, in its order.
    QList<Row> rows() const { return all; }
    /// What was left out of the file, a sentence each; after apply() with the pictures that could not be used.
    QStringList leftOut() const { return moved.leftOut; }
    /// The taken accounts that lose secrets, a sentence each.
    QStringList lostSecrets() const;
    /// Does nothing for a row with a problem.
    void setTaken(int row, bool isTaken);
    int takenCount() const;

    /// Does what the rows say, all of it or, when the store refuses or an account cannot be taken over any more,
    /// nothing: then false, and \a problem says why. New accounts follow the others in the order of the file. An
    /// account that is replaced keeps its key and its place, its picture when none came along, and, while its passwords
    /// go to the same server in the same way, those of its passwords and secret settings that did not come along, and
    /// the certificate that is trusted. No other trusted certificate is taken over. The main account of the file
    /// becomes the main account only where there was none. It is one step of the history.
    bool apply(QString *problem);

private:
    struct Plan;

    void makeRows();
    QString problemOf(const Row &row) const;
    bool makePlan(Plan *plan, QString *problem);
    KirvAccountRecord complete(const KirvAccountRecord &record) const;
    bool losesSecrets(const KirvAccountRecord &record, const KirvAccountRecord &before) const;
    bool leaveOutBadPictures();
    KirvAccountKey newMainAccount(const Plan &plan) const;

    KirvAccountCollection &accounts;
    KirvMainAccount &mainAccount;
    KirvAccountHistory &history;
    KirvMovedAccounts moved;
    QList<Row> all;
};

#endif

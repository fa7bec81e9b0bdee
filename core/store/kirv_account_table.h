// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_TABLE_H
#define KIRV_ACCOUNT_TABLE_H

#include "core/store/kirv_account_record.h"
#include "core/store/kirv_secret_item_table.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>
#include <QVariant>

class KirvDatabase;

/// The accounts in the tables of a database: records become rows and rows records. Private to the store.
///
/// Changes are made inside a transaction of the caller's, who looks after their effects().
class KirvAccountTable {
    Q_DECLARE_TR_FUNCTIONS(KirvStore)

public:
    /// What is left to do of the changes that were made.
    struct Effects {
        QStringList obsoleteAvatars; ///< after the commit
        bool hasOverwritten = false; ///< after the commit, old values are still in the log
        bool hasOverwrittenSecrets = false; ///< before the commit, rewriteSecrets()
        bool hasNewSecrets =
            false; ///< settings have become secret: before the commit, rewriteSettings(); copies have them
    };

    /// \a database is not owned.
    explicit KirvAccountTable(KirvDatabase &database)
        : database(database)
        , secretItems(database)
    {
    }

    /// All accounts in their order; the error of the database says whether that worked.
    QList<KirvAccountRecord> readAll();
    bool insert(const KirvAccountRecord &account);
    bool update(const KirvAccountRecord &account);
    /// Touches nothing else of the accounts.
    bool setEnabled(const QList<KirvAccountKey> &keys, bool enabled);
    bool remove(const KirvAccountKey &key);
    /// Puts the accounts, in the order of \a keys, before \a next in the order, or at the end when the id of \a next is
    /// empty. \a next is none of them.
    bool place(const QList<KirvAccountKey> &keys, const KirvAccountKey &next);
    /// Gives the accounts \a keys, which are all, the order in which they stand there.
    bool arrange(const QList<KirvAccountKey> &keys);
    /// Those of \a fields that accounts of \a protocol have in the table where \a secretFields says they do not belong.
    QStringList misplaced(const QString &protocol, const QSet<QString> &fields, const QSet<QString> &secretFields);
    /// Moves a setting of all accounts of \a protocol into the other table.
    bool move(const QString &protocol, const QString &field, bool toSecrets);

    /// Writes the table of the secrets, or of the other settings, anew, so that nothing is left between its rows.
    bool rewriteSecrets();
    bool rewriteSettings();

    Effects &effects() { return pending; }
    KirvSecretItemTable &items() { return secretItems; }

private:
    /// The values of an account by field, in one of the two tables that have the same columns.
    using Values = QMap<QString, QString>;
    struct Row {
        QVariant number;
        QString avatar;
    };

    bool makeRoom(int count, const KirvAccountKey &next, qint64 *position);
    bool findRow(const KirvAccountKey &key, Row *row);
    bool findRowAsRead(const KirvAccountKey &key, Row *row);
    bool readValues(const QString &table, QList<KirvAccountRecord> &accounts, const QHash<qint64, int> &indices);
    bool rewrite(const QString &table);
    bool noteNewSecrets(const QVariant &number, const Values &secrets);
    bool writeColumns(const QVariant &number, const QVariantList &values);
    bool writeValues(const QVariant &number, const KirvAccountRecord &account);
    bool writeValues(const QString &table, const QVariant &number, const Values &values, bool *hasOverwritten);

    KirvDatabase &database;
    KirvSecretItemTable secretItems;
    Effects pending;
};

#endif

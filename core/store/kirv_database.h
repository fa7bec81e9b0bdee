// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DATABASE_H
#define KIRV_DATABASE_H

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>
#include <map>

/// One SQLite file: prepared statements, nested transactions and errors as sentences. Private to the store.
///
/// Once a statement fails inside a transaction, the transaction takes no more and is undone as a whole.
class KirvDatabase {
    Q_DECLARE_TR_FUNCTIONS(KirvDatabase)

public:
    enum Access {
        Immutable, ///< read without any lock, journal or log; the file must not be written meanwhile
        ReadOnly,
        Plain, ///< read and written without a journal: a file that counts only when it is complete
        Recovering, ///< read after a journal, if there is one, was rolled back
        ReadWrite ///< the profile's own way: with a log
    };

    KirvDatabase();
    ~KirvDatabase();

    bool open(const QString &file, Access access);
    void close();
    bool isOpen() const { return connection.isOpen(); }

    /// Runs \a sql with \a values for its place-holders; null when that failed. Belongs to the database and
    /// is good until the same statement is run again; finish() it when not all rows were read.
    QSqlQuery *run(const QString &sql, const QVariantList &values = QVariantList());
    /// Whether the rows of \a query ended because there were no more of them.
    bool readToEnd(QSqlQuery *query);
    /// The first column of the first row of the result of \a sql; invalid when there is none.
    QVariant valueOf(const QString &sql, const QVariantList &values = QVariantList());
    /// Runs \a sql, which gives no rows of interest, and keeps nothing of it.
    bool execute(const QString &sql, const QVariantList &values = QVariantList());

    bool begin();
    bool commit();
    void rollBack();
    /// Whether a commit is on the disk when it returns, which is so at first. Otherwise a power failure may undo it,
    /// and all that follow it up to the next one that is. Changes nothing inside a transaction.
    void setDurable(bool isDurable);
    bool isInTransaction() const { return depth > 0; }
    /// Whether the next commit() ends the transaction.
    bool isOutermost() const { return depth == 1; }
    int commitCount() const { return commits; }

    QString errorText() const { return error; }
    /// Whether the error is that the file is no good database.
    bool isDamaged() const { return damaged; }
    /// Makes \a text the error; inside a transaction this undoes it, too.
    void fail(const QString &text);
    /// Forgets the error of the operation before, unless it belongs to the running transaction.
    void clearError();

private:
    Q_DISABLE_COPY(KirvDatabase)
    QString sentence(const QSqlError &failure) const;
    bool failBy(const QSqlError &failure);

    const QString name;
    QString file;
    QSqlDatabase connection;
    std::map<QString, QSqlQuery> statements;
    QString error;
    bool damaged = false;
    int depth = 0;
    bool mustRollBack = false;
    int commits = 0;
};

#endif

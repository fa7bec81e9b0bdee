// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEST_STORE_REFUSAL_H
#define KIRV_TEST_STORE_REFUSAL_H

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

/// While it lives, the profile refuses to store changes of accounts but for their passwords and other secrets, or of
/// another table: a trigger in its database, made over a connection of its own.
class StoreRefusal {
public:
    /// \a condition limits the refusal to the changes for which it holds, an SQL expression over NEW and OLD, and
    /// \a change is the kind of change, an SQL keyword.
    explicit StoreRefusal(const QString &profileFolder, const QString &condition = QStringLiteral("1"),
                          const QString &change = QStringLiteral("UPDATE"),
                          const QString &table = QStringLiteral("account"))
        : file(QDir(profileFolder).filePath(QStringLiteral("profile.sqlite")))
    {
        isHolding = run(QStringLiteral("CREATE TRIGGER test_refusal BEFORE %1 ON %3 WHEN %2 "
                                       "BEGIN SELECT RAISE(ABORT, 'refused by the test'); END")
                            .arg(change, condition, table));
    }
    ~StoreRefusal() { end(); }
    Q_DISABLE_COPY(StoreRefusal)

    bool holds() const { return isHolding; }
    void end()
    {
        if (isHolding)
            isHolding = !run(QStringLiteral("DROP TRIGGER test_refusal"));
    }

private:
    bool run(const QString &statement) const
    {
        const QString name = QStringLiteral("store_refusal");
        bool isDone = false;
        {
            QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            database.setDatabaseName(file);
            if (database.open()) {
                QSqlQuery query(database);
                isDone = query.exec(statement);
                if (!isDone)
                    qWarning("%s", qPrintable(query.lastError().text()));
            }
        }
        QSqlDatabase::removeDatabase(name);
        return isDone;
    }

    const QString file;
    bool isHolding = false;
};

#endif

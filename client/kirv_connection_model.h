// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CONNECTION_MODEL_H
#define KIRV_CONNECTION_MODEL_H

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QVector>

class KirvAccount;
class KirvAccountCollection;

/// The accounts and the state of their connections, one row each in the registry's order. A change of one
/// account touches its row only.
class KirvConnectionModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { AccountColumn, ProtocolColumn, StateColumn, SinceColumn, ErrorColumn, ColumnCount };
    /// What the cells are sorted by.
    static constexpr int SortRole = Qt::UserRole;

    /// \a accounts is not owned and outlives the model.
    explicit KirvConnectionModel(KirvAccountCollection &accounts, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    KirvAccount *accountAt(int row) const;
    /// -1 when the account has no row.
    int rowOf(const KirvAccount *account) const;

    /// Another account became the main account.
    void refreshMainAccount();

    /// The state of the account in words.
    static QString stateText(const KirvAccount &account);

private:
    void append(KirvAccount *account);
    void remove(KirvAccount *account);
    void refresh(const KirvAccount *account);
    QString text(const KirvAccount &account, int column) const;
    QIcon protocolIcon(const KirvAccount &account) const;

    KirvAccountCollection &accounts;
    QVector<KirvAccount *> rows;
    QHash<const KirvAccount *, int> rowNumbers;
    mutable QHash<QString, QIcon> icons; ///< by path; each file is read once
};

#endif

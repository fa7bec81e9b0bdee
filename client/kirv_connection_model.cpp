// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_connection_model.h"

#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_account_manager.h"

#include <QFont>
#include <QLocale>

namespace {
/// A time of today is shown without its date.
QString sinceText(const QDateTime &time)
{
    return time.date() == QDate::currentDate() ? QLocale().toString(time.time(), QLocale::ShortFormat)
                                               : QLocale().toString(time, QLocale::ShortFormat);
}

bool isMainAccount(const KirvAccount &account)
{
    return &account == KirvAccountManager::getInstance()->getMainAccount();
}
} // namespace

KirvConnectionModel::KirvConnectionModel(KirvAccountCollection &accounts, QObject *parent)
    : QAbstractTableModel(parent)
    , accounts(accounts)
{
    const QList<KirvAccount *> present = accounts.accounts();
    for (KirvAccount *account : present)
        append(account);
    connect(&accounts, &KirvAccountCollection::accountAdded, this, &KirvConnectionModel::append);
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this, &KirvConnectionModel::remove);
    connect(&accounts, &KirvAccountCollection::accountChanged, this, &KirvConnectionModel::refresh);
}

int KirvConnectionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(rows.size());
}

int KirvConnectionModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant KirvConnectionModel::data(const QModelIndex &index, int role) const
{
    const KirvAccount *account = accountAt(index.row());
    if (!account)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return text(*account, index.column()).simplified();
    case SortRole:
        if (index.column() == SinceColumn)
            return account->connection() ? account->connection()->since() : QDateTime();
        return text(*account, index.column());
    case Qt::ToolTipRole:
        if (index.column() == SinceColumn && account->connection())
            return QLocale().toString(account->connection()->since(), QLocale::LongFormat);
        return kirvPlainToolTip(text(*account, index.column()));
    case Qt::DecorationRole:
        return index.column() == AccountColumn ? protocolIcon(*account) : QIcon();
    case Qt::FontRole:
        if (index.column() == AccountColumn && isMainAccount(*account)) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        break;
    default:
        break;
    }
    return QVariant();
}

QVariant KirvConnectionModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case AccountColumn:
        return tr("Account");
    case ProtocolColumn:
        return tr("Protocol");
    case StateColumn:
        return tr("State");
    case SinceColumn:
        //: column title: the time since when a connection has been in its state
        return tr("Since");
    case ErrorColumn:
        return tr("Last Problem");
    default:
        return QVariant();
    }
}

KirvAccount *KirvConnectionModel::accountAt(int row) const
{
    return row >= 0 && row < rows.size() ? rows.at(row) : nullptr;
}

int KirvConnectionModel::rowOf(const KirvAccount *account) const
{
    return rowNumbers.value(account, -1);
}

void KirvConnectionModel::refreshMainAccount()
{
    if (!rows.isEmpty())
        emit dataChanged(index(0, AccountColumn), index(int(rows.size()) - 1, AccountColumn));
}

QString KirvConnectionModel::stateText(const KirvAccount &account)
{
    if (!account.isLoaded())
        return tr("Plug-in not loaded");
    const KirvConnection *connection = account.connection();
    switch (connection->state()) {
    case KirvConnection::Connecting:
        return tr("Connecting…");
    case KirvConnection::Online:
        return tr("Connected");
    case KirvConnection::Disconnecting:
        return tr("Logging out…");
    case KirvConnection::Waiting:
        if (connection->isWaitingForTurn())
            //: other accounts connect first
            return tr("Waiting to connect…");
        //: %1 = time of day
        return tr("Waiting until %1")
            .arg(QLocale().toString(connection->nextRetry().time(), QStringLiteral("hh:mm:ss")));
    case KirvConnection::Offline:
        break;
    }
    return account.record().enabled ? tr("Off line") : tr("Disabled");
}

void KirvConnectionModel::append(KirvAccount *account)
{
    const int row = int(rows.size());
    beginInsertRows(QModelIndex(), row, row);
    rows.append(account);
    rowNumbers.insert(account, row);
    endInsertRows();
}

void KirvConnectionModel::remove(KirvAccount *account)
{
    const int row = rowOf(account);
    if (row < 0)
        return;
    beginRemoveRows(QModelIndex(), row, row);
    rows.removeAt(row);
    rowNumbers.remove(account);
    for (int i = row; i < rows.size(); ++i)
        rowNumbers[rows.at(i)] = i;
    endRemoveRows();
}

void KirvConnectionModel::refresh(const KirvAccount *account)
{
    const int row = rowOf(account);
    if (row >= 0)
        emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

QString KirvConnectionModel::text(const KirvAccount &account, int column) const
{
    switch (column) {
    case AccountColumn:
        //: %1 = name of an account
        return kirvPlainName(isMainAccount(account) ? tr("%1 (main account)").arg(account.displayName())
                                                    : account.displayName());
    case ProtocolColumn:
        return account.key().protocol;
    case StateColumn:
        return stateText(account);
    case SinceColumn:
        return account.connection() ? sinceText(account.connection()->since()) : QString();
    case ErrorColumn:
        return account.lastFailure().text();
    default:
        return QString();
    }
}

QIcon KirvConnectionModel::protocolIcon(const KirvAccount &account) const
{
    if (!account.isLoaded())
        return QIcon();
    const QString path = account.protocol()->getIconPath(0);
    auto icon = icons.find(path);
    if (icon == icons.end())
        icon = icons.insert(path, QIcon(path));
    return *icon;
}

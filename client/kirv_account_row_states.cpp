// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_row_states.h"

#include "client/kirv_account_rows.h"
#include "client/kirv_account_status.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_account_manager.h"

#include <QSignalBlocker>
#include <QTreeWidget>

#include <utility>

namespace {

/// A change of a row costs time in proportion to their number: more than these wait for the next round of the event
/// loop.
const int rowsAtOnce = 100;

const KirvAccount *presentMainAccount()
{
    return static_cast<const KirvAccount *>(KirvAccountManager::getInstance()->getMainAccount());
}

void setText(QTreeWidgetItem *row, int role, const QString &text)
{
    if (row->data(KirvAliasColumn, role).toString() != text)
        row->setData(KirvAliasColumn, role, text);
}

} // namespace

KirvAccountRowStates::KirvAccountRowStates(const KirvAccountCollection &accounts, const KirvAccountRows &rows,
                                           QTreeWidget *list)
    : QObject(list)
    , accounts(accounts)
    , rows(rows)
    , list(list)
{
    connect(&accounts, &KirvAccountCollection::accountChanged, this,
            [this](const KirvAccount *account) { touch(account->key()); });
    connect(&rows, &KirvAccountRows::inserted, this, &KirvAccountRowStates::touch);
}

void KirvAccountRowStates::mainAccountChanged()
{
    const KirvAccount *account = presentMainAccount();
    const KirvAccountKey before = std::exchange(mainAccount, account ? account->key() : KirvAccountKey());
    touch(before);
    touch(mainAccount);
}

void KirvAccountRowStates::touch(const KirvAccountKey &key)
{
    touched.insert(key);
    list->viewport()->update();
    flushLater();
}

void KirvAccountRowStates::flushLater()
{
    if (!std::exchange(isFlushDue, true))
        QMetaObject::invokeMethod(this, &KirvAccountRowStates::flush, Qt::QueuedConnection);
}

void KirvAccountRowStates::flush()
{
    isFlushDue = false;
    const QSignalBlocker noItemChanged(list);
    for (int i = 0; i < rowsAtOnce && !touched.isEmpty(); ++i) {
        const KirvAccountKey key = *touched.cbegin();
        touched.erase(touched.begin());
        describe(key);
    }
    if (!touched.isEmpty())
        flushLater();
}

void KirvAccountRowStates::describe(const KirvAccountKey &key)
{
    QTreeWidgetItem *row = rows.find(key);
    const KirvAccount *account = accounts.find(key);
    if (!row || !account)
        return;
    const KirvAccountStatus status(*account, account == presentMainAccount());
    //: read aloud for a row: %1 = name of an account, %2 = its state
    setText(row, Qt::AccessibleTextRole,
            tr("%1, %2").arg(kirvPlainName(account->displayName()), status.accessibleLine()));
    setText(row, Qt::AccessibleDescriptionRole, status.reason());
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_main_account_selector.h"

#include "client/kirv_long_list_style.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_account_manager.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QHash>
#include <QSignalBlocker>

#include <utility>

namespace {

/// What the page keeps with an entry: the address of an account, which may be gone until the next refresh. It is
/// compared and never followed.
const void *addressAt(const QComboBox *box, int index)
{
    return box->itemData(index).value<void *>();
}

const void *addressOf(const KirvAccountConnection *account)
{
    return account;
}

} // namespace

KirvMainAccountSelector::KirvMainAccountSelector(QComboBox *box, const KirvAccountCollection &accounts)
    : QObject(box)
    , box(box)
    , accounts(accounts)
{
    box->setStyle(new KirvLongListStyle(box));
    // A refresh empties and fills the selector, which must not lose the focus meanwhile: this comes after it.
    connect(box->model(), &QAbstractItemModel::rowsInserted, this, &KirvMainAccountSelector::correctLater);
    connect(box->model(), &QAbstractItemModel::rowsRemoved, this, &KirvMainAccountSelector::correctLater);
    correct();
}

void KirvMainAccountSelector::correctLater()
{
    if (!std::exchange(isDue, true))
        QMetaObject::invokeMethod(this, &KirvMainAccountSelector::correct, Qt::QueuedConnection);
}

void KirvMainAccountSelector::correct()
{
    isDue = false;
    const QSignalBlocker noChoice(box);
    nameEntries();
    box->setEnabled(box->count() > 0);
    const auto *account = static_cast<const KirvAccount *>(KirvAccountManager::getInstance()->getMainAccount());
    const int entry = entryOf(account);
    if (entry != box->currentIndex())
        box->setCurrentIndex(entry);
    //: %1 = name of the main account
    box->setPlaceholderText(account ? tr("%1 (its plug-in is not loaded)").arg(kirvPlainName(account->displayName()))
                                    : QString());
}

void KirvMainAccountSelector::nameEntries()
{
    QHash<const void *, const KirvAccount *> byAddress;
    for (int i = 0; i < box->count(); ++i) {
        if (!box->itemText(i).isEmpty())
            continue;
        if (byAddress.isEmpty()) {
            const QList<KirvAccount *> all = accounts.accounts();
            for (const KirvAccount *account : all)
                byAddress.insert(addressOf(account), account);
        }
        if (const KirvAccount *account = byAddress.value(addressAt(box, i)))
            box->setItemText(i, kirvPlainName(account->displayName()));
    }
}

/// -1 when it is not offered.
int KirvMainAccountSelector::entryOf(const KirvAccount *account) const
{
    for (int i = 0; account && i < box->count(); ++i) {
        if (addressAt(box, i) == addressOf(account))
            return i;
    }
    return -1;
}

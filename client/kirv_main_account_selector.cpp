// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_main_account_selector.h"

#include "client/kirv_long_list_style.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account.h"
#include "host/kirv_account_manager.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QSignalBlocker>

#include <utility>

namespace {

const KirvAccount *accountAt(const QComboBox *box, int index)
{
    return static_cast<const KirvAccount *>(static_cast<KirvAccountConnection *>(box->itemData(index).value<void *>()));
}

} // namespace

KirvMainAccountSelector::KirvMainAccountSelector(QComboBox *box)
    : QObject(box)
    , box(box)
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
    for (int i = 0; i < box->count(); ++i) {
        if (box->itemText(i).isEmpty())
            box->setItemText(i, kirvPlainName(accountAt(box, i)->displayName()));
    }
}

/// -1 when it is not offered.
int KirvMainAccountSelector::entryOf(const KirvAccount *account) const
{
    for (int i = 0; account && i < box->count(); ++i) {
        if (accountAt(box, i) == account)
            return i;
    }
    return -1;
}

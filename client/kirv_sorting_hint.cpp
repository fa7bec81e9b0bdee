// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_sorting_hint.h"

#include "client/kirv_account_order.h"
#include "client/kirv_message_bar.h"

#include <utility>

KirvSortingHint::KirvSortingHint(KirvAccountOrder &order, KirvMessageBar &messages)
    : QObject(&order)
    , order(order)
    , messages(&messages)
{
    connect(&order, &KirvAccountOrder::moveRefused, this, &KirvSortingHint::show);
    connect(&order, &KirvAccountOrder::sorted, this, [this] {
        if (this->order.isOwn())
            withdraw();
    });
}

/// The page is built anew in another language.
KirvSortingHint::~KirvSortingHint()
{
    withdraw();
}

void KirvSortingHint::show()
{
    if (!messages)
        return;
    shown = tr("The list is sorted by a column. Accounts can be moved only in your own order.");
    messages->showMessage(
        shown, tr("&Own Order"), [this] { order.setOwn(true); }, KirvMessageBar::Information);
}

void KirvSortingHint::withdraw()
{
    const QString text = std::exchange(shown, QString());
    if (messages && !text.isEmpty())
        messages->removeMessage(text);
}

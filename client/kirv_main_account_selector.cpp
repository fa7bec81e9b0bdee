// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_main_account_selector.h"

#include <QAbstractItemModel>
#include <QComboBox>

#include <utility>

KirvMainAccountSelector::KirvMainAccountSelector(QComboBox *box)
    : QObject(box)
    , box(box)
{
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
    box->setEnabled(box->count() > 0);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_state_line.h"

#include "client/kirv_account_status.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"

#include <QLabel>

KirvStateLine::KirvStateLine(QLabel *label, const KirvAccountKey &key, const KirvAccountCollection &accounts)
    : QObject(label)
    , label(label)
    , key(key)
    , accounts(accounts)
{
    label->setTextFormat(Qt::PlainText);
    connect(&accounts, &KirvAccountCollection::accountChanged, this, [this](const KirvAccount *account) {
        if (account->key() == this->key)
            refresh();
    });
    connect(&accounts.secrets(), &KirvSecretKeeper::changed, this, &KirvStateLine::refresh);
    refresh();
}

void KirvStateLine::refresh()
{
    const KirvAccount *account = accounts.find(key);
    if (!account)
        return;
    const KirvAccountStatus status(*account, false);
    label->setText(status.accessibleLine());
    const QString reason = status.reason();
    label->setToolTip(kirvPlainToolTip(reason)); // servers have their words in it
    label->setAccessibleDescription(reason);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_edit_window_keeper.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_edit_window_binding.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "edit_account/kirv_edit_account_dialog.h"

#include <QChildEvent>
#include <QDialog>
#include <QMessageBox>

KirvEditWindowKeeper::KirvEditWindowKeeper(KirvAccountsTab *page, KirvAccountCollection &accounts, QObject *parent)
    : QObject(parent)
    , page(page)
    , accounts(accounts)
{
    page->installEventFilter(this);
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this,
            [this](KirvAccount *account) { close(account->key()); });
}

void KirvEditWindowKeeper::edit(KirvAccount *account)
{
    if (!page || !account->isLoaded())
        return;
    closeIf([](const KirvEditWindowBinding &) { return true; });
    page->editAccount(account);
}

void KirvEditWindowKeeper::close(const KirvAccountKey &key)
{
    closeIf([&key](const KirvEditWindowBinding &binding) { return binding.key() == key; });
}

void KirvEditWindowKeeper::closeProtocol(const QString &protocol)
{
    closeIf([&protocol](const KirvEditWindowBinding &binding) { return binding.key().protocol == protocol; });
    if (!page)
        return;
    const auto addWindows = page->findChildren<QDialog *>(QStringLiteral("AddAccount"), Qt::FindDirectChildrenOnly);
    for (QDialog *window : addWindows) {
        const auto boxes = window->findChildren<QMessageBox *>();
        for (QMessageBox *box : boxes)
            box->close();
        window->close();
    }
}

bool KirvEditWindowKeeper::eventFilter(QObject *watched, QEvent *event)
{
    // The page gives the window its parent when everything in it is in place, just before it shows it.
    if (event->type() == QEvent::ChildAdded && watched == page)
        bindNewWindow(static_cast<QChildEvent *>(event)->child());
    return QObject::eventFilter(watched, event);
}

void KirvEditWindowKeeper::bindNewWindow(QObject *child)
{
    auto *window = qobject_cast<QDialog *>(child);
    if (!window || window->objectName() != QLatin1String("EditAccount") || !page->getAccEdit())
        return;
    const bool isBound = window->findChild<KirvEditWindowBinding *>();
    if (!isBound)
        new KirvEditWindowBinding(window, page->getAccEdit(), accounts);
}

void KirvEditWindowKeeper::closeIf(const std::function<bool(const KirvEditWindowBinding &)> &condition)
{
    if (!page)
        return;
    const auto bindings = page->findChildren<KirvEditWindowBinding *>();
    for (KirvEditWindowBinding *binding : bindings) {
        if (condition(*binding))
            binding->close();
    }
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_help.h"

#include "client/kirv_account_log_window.h"
#include "client/kirv_login_test_dialog.h"
#include "client/kirv_report_window.h"
#include "client/kirv_window_front.h"
#include "core/accounts/kirv_account_collection.h"

KirvAccountHelp::KirvAccountHelp(const KirvAccountCollection &accounts, const KirvPluginLoader &plugins,
                                 QWidget *window)
    : QObject(window)
    , accounts(accounts)
    , plugins(plugins)
    , window(window)
{
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this,
            [this](const KirvAccount *account) { closeWindowsOf(account->key()); });
}

/// The one about \a account; null when none is open.
template <typename Window>
Window *KirvAccountHelp::openWindow(const KirvAccountKey &account) const
{
    const auto windows = window->findChildren<Window *>(QString(), Qt::FindDirectChildrenOnly);
    for (Window *candidate : windows) {
        if (candidate->isVisible() && candidate->key() == account)
            return candidate;
    }
    return nullptr;
}

void KirvAccountHelp::testLogin(const KirvAccount *account)
{
    if (!account || !account->protocol())
        return;
    KirvLoginTestDialog *dialog = openWindow<KirvLoginTestDialog>(account->key());
    kirvOpenInFront(dialog ? dialog : new KirvLoginTestDialog(*account, window));
}

void KirvAccountHelp::showLog(KirvAccount *account)
{
    if (!account)
        return;
    KirvAccountLogWindow *log = openWindow<KirvAccountLogWindow>(account->key());
    if (!log) {
        log = new KirvAccountLogWindow(*account, window);
        connect(log, &KirvAccountLogWindow::reportRequested, this, &KirvAccountHelp::showReport);
    }
    kirvOpenInFront(log);
}

void KirvAccountHelp::showReport(const KirvAccountKey &account)
{
    kirvOpenInFront(new KirvReportWindow(KirvReport(accounts, plugins), account, window));
}

void KirvAccountHelp::closeWindowsOf(const QString &protocol)
{
    const auto dialogs = window->findChildren<KirvLoginTestDialog *>(QString(), Qt::FindDirectChildrenOnly);
    for (KirvLoginTestDialog *dialog : dialogs) {
        if (dialog->key().protocol == protocol)
            dialog->reject();
    }
}

void KirvAccountHelp::closeWindowsOf(const KirvAccountKey &account)
{
    if (QDialog *dialog = openWindow<KirvLoginTestDialog>(account))
        dialog->reject();
    const auto logs = window->findChildren<KirvAccountLogWindow *>(QString(), Qt::FindDirectChildrenOnly);
    for (KirvAccountLogWindow *log : logs) {
        if (log->key() == account)
            delete log; // it shows what goes with the account
    }
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EDIT_WINDOW_KEEPER_H
#define KIRV_EDIT_WINDOW_KEEPER_H

#include "core/values/kirv_account_key.h"

#include <QObject>
#include <QPointer>
#include <functional>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountsTab;
class KirvEditWindowBinding;

/// Looks after the windows that the account page opens: binds each edit window as it appears and closes windows
/// whose account or protocol goes.
class KirvEditWindowKeeper : public QObject {
    Q_OBJECT

public:
    /// \a accounts is not owned; it outlives the keeper and the windows.
    KirvEditWindowKeeper(KirvAccountsTab *page, KirvAccountCollection &accounts, QObject *parent = nullptr);

    /// Opens the edit window of \a account, after closing one that is still open. Does nothing while the
    /// account's protocol is not loaded.
    void edit(KirvAccount *account);
    /// Closes the edit window of the account.
    void close(const KirvAccountKey &key);
    /// Closes the edit windows of the accounts of \a protocol, and every add window: which protocol one of
    /// those adds to cannot be told.
    void closeProtocol(const QString &protocol);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void bindNewWindow(QObject *child);
    void closeIf(const std::function<bool(const KirvEditWindowBinding &)> &condition);

    QPointer<KirvAccountsTab> page;
    KirvAccountCollection &accounts;
};

#endif

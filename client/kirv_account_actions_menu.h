// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ACTIONS_MENU_H
#define KIRV_ACCOUNT_ACTIONS_MENU_H

#include "core/values/kirv_account_key.h"

#include <QMenu>

class KirvAccountCollection;

/// The commands that a protocol offers for one account beyond the ordinary ones, asked for each time the menu
/// opens.
class KirvAccountActionsMenu : public QMenu {
    Q_OBJECT

public:
    /// \a accounts is not owned and outlives the menu. \a window is the parent for what a command asks.
    KirvAccountActionsMenu(const KirvAccountKey &key, KirvAccountCollection &accounts, QWidget *window, QWidget *parent);

    /// Whether the protocol has any command for the account.
    static bool isUseful(const KirvAccountKey &key, const KirvAccountCollection &accounts);

private:
    void fill();
    void run(const QString &actionId);

    const KirvAccountKey key;
    KirvAccountCollection &accounts;
    QWidget *window;
};

#endif

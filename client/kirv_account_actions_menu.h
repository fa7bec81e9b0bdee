// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ACTIONS_MENU_H
#define KIRV_ACCOUNT_ACTIONS_MENU_H

#include "core/values/kirv_account_key.h"

#include <QMenu>
#include <QPointer>

class KirvServerCommands;

/// What a protocol offers for one account on its server; read anew each time the menu opens.
class KirvAccountActionsMenu : public QMenu {
    Q_OBJECT

public:
    /// \a commands are not owned and outlive the menu. The windows of the actions stand over \a window.
    KirvAccountActionsMenu(const KirvAccountKey &key, KirvServerCommands &commands, QWidget *window, QWidget *parent);

    /// Whether the protocol offers anything for the account.
    static bool isUseful(const KirvAccountKey &key, const KirvServerCommands &commands);

private:
    void fill();

    const KirvAccountKey key;
    KirvServerCommands &commands;
    const QPointer<QWidget> window;
};

#endif

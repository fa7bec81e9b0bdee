// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_actions_menu.h"

#include "client/kirv_plain_text.h"
#include "client/kirv_server_commands.h"

KirvAccountActionsMenu::KirvAccountActionsMenu(const KirvAccountKey &key, KirvServerCommands &commands, QWidget *window,
                                               QWidget *parent)
    : QMenu(parent)
    , key(key)
    , commands(commands)
    , window(window)
{
    setObjectName(QStringLiteral("AccountActions"));
    setTitle(tr("&Server Account"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &KirvAccountActionsMenu::fill);
}

bool KirvAccountActionsMenu::isUseful(const KirvAccountKey &key, const KirvServerCommands &commands)
{
    return !commands.actionsOf(key).isEmpty();
}

void KirvAccountActionsMenu::fill()
{
    clear();
    const QList<KirvAccountAction> actions = commands.actionsOf(key);
    for (const KirvAccountAction &offered : actions) {
        QAction *action = addAction(offered.text);
        action->setObjectName(offered.id);
        action->setToolTip(kirvPlainToolTip(offered.toolTip));
        action->setEnabled(commands.canRun(key));
        connect(action, &QAction::triggered, this, [this, id = offered.id] { commands.run(key, id, window); });
    }
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_window_companions.h"

#include "add_account/kirv_add_account_dialog.h"
#include "client/kirv_account_help.h"
#include "client/kirv_add_window_companion.h"
#include "client/kirv_edit_window_companion.h"
#include "client/kirv_link_target.h"
#include "core/ui/kirv_layout_catalog.h"
#include "edit_account/kirv_edit_account_dialog.h"

#include <algorithm>

namespace {

/// \a companions is copied: they change while windows close.
template <typename Companion, typename Condition>
void closeWhere(const QList<QPointer<Companion>> companions, const Condition &condition)
{
    for (const QPointer<Companion> &companion : companions) {
        if (companion && condition(*companion))
            companion->close();
    }
}

} // namespace

KirvWindowCompanions::KirvWindowCompanions(KirvLayoutCatalog &layouts,
                                           const KirvAccountsPageCompanion::Environment &environment, QObject *parent)
    : QObject(parent)
    , environment(environment)
{
    connect(&layouts, &KirvLayoutCatalog::windowBuilt, this, &KirvWindowCompanions::add);
}

KirvAccountsPageCompanion *KirvWindowCompanions::page() const
{
    return pageCompanion;
}

bool KirvWindowCompanions::takeRefusal(const KirvAccountKey &key, const QString &reason) const
{
    return std::any_of(addWindows.begin(), addWindows.end(), [&](const QPointer<KirvAddWindowCompanion> &companion) {
        return companion && companion->takeRefusal(key, reason);
    });
}

void KirvWindowCompanions::closeWindowsOf(const QString &protocol)
{
    environment.help.closeWindowsOf(protocol);
    closeWhere(editWindows, [&protocol](const auto &companion) { return companion.key().protocol == protocol; });
    closeWhere(addWindows, [&protocol](const auto &companion) { return companion.protocol() == protocol; });
}

void KirvWindowCompanions::closeUnchanged()
{
    const auto isUnchanged = [](const auto &companion) { return !companion.hasInput(); };
    closeWhere(editWindows, isUnchanged);
    closeWhere(addWindows, isUnchanged);
}

void KirvWindowCompanions::add(const QString &layout, QWidget *top)
{
    auto *dialog = qobject_cast<KirvLayoutDialog *>(top);
    if (layout == QLatin1String("Accounts")) {
        pageCompanion = new KirvAccountsPageCompanion(top, environment);
        connect(new KirvLinkTarget(top), &KirvLinkTarget::linkTaken, this, &KirvWindowCompanions::linkTaken);
    } else if (KirvEditAccountDialog *controller = KirvEditAccountDialog::of(dialog)) {
        editWindows.removeAll(nullptr);
        editWindows << new KirvEditWindowCompanion(dialog, controller, environment.accounts,
                                                   environment.serverCommands);
    } else if (const KirvAddAccountDialog *controller = KirvAddAccountDialog::of(dialog)) {
        addWindows.removeAll(nullptr);
        addWindows << new KirvAddWindowCompanion(dialog, controller, environment.accounts);
    }
}

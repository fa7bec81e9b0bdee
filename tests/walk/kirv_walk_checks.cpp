// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/walk/kirv_walk_checks.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_client_settings.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "tests/walk/kirv_walk.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QToolButton>
#include <QTreeWidget>

namespace {
const auto connectionName = QStringLiteral("walk");
}

KirvWalkChecks::KirvWalkChecks(const KirvWalk &walk)
    : walk(walk)
{
    QSqlDatabase store = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
    store.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    store.setDatabaseName(QDir(walk.profileFolder()).filePath(QStringLiteral("profile.sqlite")));
    store.open();
}

KirvWalkChecks::~KirvWalkChecks()
{
    QSqlDatabase::removeDatabase(connectionName);
}

QString KirvWalkChecks::disagreement() const
{
    for (const QString &wrong :
         { rowDisagreement(), selectorDisagreement(), storeDisagreement(), editDisagreement() }) {
        if (!wrong.isEmpty())
            return wrong;
    }
    return QString();
}

/// Every configured account stands in the list once, as it is.
QString KirvWalkChecks::rowDisagreement() const
{
    const QTreeWidget *list = walk.list();
    QSet<KirvAccountKey> listed;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = list->topLevelItem(i);
        const KirvAccountKey key { row->text(2), row->text(1) };
        const KirvAccount *account = walk.client->accounts().find(key);
        if (!account)
            return QStringLiteral("a row of the account %1 that is not configured").arg(key.toSetting());
        if (listed.contains(key))
            return QStringLiteral("two rows of %1").arg(key.toSetting());
        const bool isNameless = account->getAlias().trimmed().isEmpty();
        if (row->text(0) != (isNameless ? account->displayName() : account->getAlias()))
            return QStringLiteral("the alias of %1, \"%2\"").arg(key.toSetting(), row->text(0));
        if (walk.page()->isVisible() && (row->checkState(0) == Qt::Checked) != account->isEnabled())
            return QStringLiteral("the check box of %1").arg(key.toSetting());
        listed.insert(key);
    }
    if (listed.size() != walk.client->accounts().accounts().size())
        return QStringLiteral("%1 rows of %2 accounts")
            .arg(listed.size())
            .arg(walk.client->accounts().accounts().size());
    // The list's focus makes a row current without selecting it, which the buttons do not follow. Several are removed,
    // but not edited.
    const int selected = list->selectedItems().size();
    const bool isCurrent = list->currentIndex().isValid();
    for (const char *button : { "Accounts_EditButton", "Accounts_RemoveButton" }) {
        const bool isEnabled = walk.page()->findChild<QToolButton *>(QLatin1String(button))->isEnabled();
        const bool isMeant =
            selected == 1 || (selected > 1 && QLatin1String(button) == QLatin1String("Accounts_RemoveButton"));
        if ((isMeant && !isEnabled) || (!isCurrent && isEnabled))
            return QStringLiteral("%1 is %2")
                .arg(QLatin1String(button), QLatin1String(isEnabled ? "enabled" : "disabled"));
    }
    return QString();
}

/// The selector offers each enabled and loaded account once, and shows the main account when it offers it.
QString KirvWalkChecks::selectorDisagreement() const
{
    const QComboBox *selector = walk.selector();
    QSet<void *> expected;
    for (KirvAccount *account : walk.client->accounts().accounts()) {
        if (account->isEnabled() && account->isLoaded())
            expected.insert(static_cast<KirvAccountConnection *>(account));
    }
    QSet<void *> offered;
    for (int i = 0; i < selector->count(); ++i)
        offered.insert(selector->itemData(i).value<void *>());
    if (offered.size() != selector->count())
        return QStringLiteral("an account is offered twice");
    // While the page is hidden, it may not know yet what came; what went it must not offer.
    QSet<void *> configured;
    for (KirvAccount *account : walk.client->accounts().accounts())
        configured.insert(static_cast<KirvAccountConnection *>(account));
    if (!configured.contains(offered))
        return QStringLiteral("an account that is gone is offered");
    if (!walk.page()->isVisible())
        return QString();
    if (offered != expected)
        return QStringLiteral("%1 accounts are offered, %2 are enabled and loaded")
            .arg(offered.size())
            .arg(expected.size());
    void *mainAccount = KirvAccountManager::getInstance()->getMainAccount();
    if (mainAccount && offered.contains(mainAccount) && selector->currentData().value<void *>() != mainAccount)
        return QStringLiteral("the selector does not show the main account");
    return QString();
}

/// A second connection to the database sees what the account manager holds.
QString KirvWalkChecks::storeDisagreement() const
{
    QSqlQuery query(QSqlDatabase::database(connectionName));
    if (!query.exec(QStringLiteral("SELECT id, protocol, alias, enabled FROM account ORDER BY position")))
        return query.lastQuery();
    for (const KirvAccount *account : walk.client->accounts().accounts()) {
        if (!query.next())
            return QStringLiteral("the store holds too few accounts");
        const KirvAccountKey key { query.value(0).toString(), query.value(1).toString() };
        if (key != account->key())
            return QStringLiteral("the store holds %1 in place of %2").arg(key.toSetting(), account->key().toSetting());
        if (query.value(2).toString() != account->getAlias() || query.value(3).toBool() != account->isEnabled())
            return QStringLiteral("the store holds other values of %1").arg(key.toSetting());
    }
    if (query.next())
        return QStringLiteral("the store holds too many accounts");
    const auto *mainAccount = static_cast<KirvAccount *>(KirvAccountManager::getInstance()->getMainAccount());
    const QString stored = walk.client->settings().value(QStringLiteral("main_account"));
    // Where the store refused the one that the rule has chosen, it still holds one that cannot be it.
    const KirvAccount *storedAccount = walk.client->accounts().find(KirvAccountKey::fromSetting(stored));
    if (storedAccount && storedAccount->isEnabled() && storedAccount != mainAccount)
        return QStringLiteral("the store holds the main account %1").arg(stored);
    return QString();
}

/// The recorded edit dialog is alive, and no edit window is open without one.
QString KirvWalkChecks::editDisagreement() const
{
    KirvEditAccountDialog *recorded = walk.page()->getAccEdit();
    if (recorded && recorded->metaObject() != &KirvEditAccountDialog::staticMetaObject)
        return QStringLiteral("the recorded edit dialog");
    int open = 0;
    for (const QDialog *window : walk.page()->findChildren<QDialog *>(QStringLiteral("EditAccount")))
        open += window->isVisible();
    if (open > 1 || (open == 1 && !recorded))
        return QStringLiteral("%1 edit windows are open").arg(open);
    return QString();
}

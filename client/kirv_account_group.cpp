// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_group.h"

#include "client/kirv_account_undo.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_main_account.h"

#include <QMessageBox>
#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace {
/// Of many accounts, as many are named in a question.
const int mostNames = 8;
} // namespace

KirvAccountGroup::KirvAccountGroup(KirvAccountCollection &accounts, KirvMainAccount &mainAccount, KirvAccountUndo &undo,
                                   QWidget *parent)
    : QObject(parent)
    , accounts(accounts)
    , mainAccount(mainAccount)
    , undo(undo)
    , parent(parent)
{
}

QList<KirvAccount *> KirvAccountGroup::find(const QList<KirvAccountKey> &keys) const
{
    QList<KirvAccount *> found;
    for (const KirvAccountKey &key : keys) {
        if (KirvAccount *account = accounts.find(key))
            found << account;
    }
    return found;
}

/// The main account is passed on once then, and not from each to the next.
QList<KirvAccount *> KirvAccountGroup::mainLast(QList<KirvAccount *> found) const
{
    if (found.removeOne(mainAccount.account()))
        found << mainAccount.account();
    return found;
}

QList<KirvAccountKey> KirvAccountGroup::enabledOnes() const
{
    QList<KirvAccountKey> keys;
    const QList<KirvAccount *> all = accounts.accounts();
    for (const KirvAccount *account : all) {
        if (account->record().enabled)
            keys << account->key();
    }
    return keys;
}

void KirvAccountGroup::enable(const QList<KirvAccountKey> &keys)
{
    accounts.setEnabled(find(keys), true);
}

void KirvAccountGroup::disable(const QList<KirvAccountKey> &keys)
{
    const QList<KirvAccount *> found = find(keys);
    const int online =
        int(std::count_if(found.begin(), found.end(), [](const KirvAccount *account) { return account->isOnline(); }));
    if (online == 0) {
        disableNow(keys, false);
        return;
    }
    ask(tr("Disabling Accounts"),
        tr("Do you want to disable %n accounts? They are logged out.", nullptr, int(found.size())), keys,
        [this, keys] { disableNow(keys, false); });
}

void KirvAccountGroup::remove(const QList<KirvAccountKey> &keys)
{
    ask(tr("Removing Accounts"),
        tr("Do you want to remove %n accounts and all related data?", nullptr, int(find(keys).size())), keys,
        [this, keys] { removeNow(keys); });
}

bool KirvAccountGroup::canDisableAll() const
{
    const QList<KirvAccount *> all = accounts.accounts();
    return std::any_of(all.begin(), all.end(), [](const KirvAccount *account) { return account->record().enabled; });
}

void KirvAccountGroup::disableAll()
{
    const QList<KirvAccountKey> keys = enabledOnes();
    ask(tr("Disabling All Accounts"), tr("Do you want to disable all accounts? They are logged out."), keys,
        [this, keys] { disableNow(keys, true); });
}

bool KirvAccountGroup::canEnableAgain() const
{
    return undo.history().canUndo(undo.allDisabled());
}

void KirvAccountGroup::enableAgain()
{
    undo.undo(undo.allDisabled());
}

void KirvAccountGroup::disableNow(const QList<KirvAccountKey> &keys, bool isAll)
{
    const QPointer<KirvAccountGroup> alive(this);
    KirvAccountHistory &history = undo.history();
    history.beginStep(KirvAccountHistory::Disabling);
    accounts.setEnabled(find(keys), false);
    if (!alive)
        return;
    const int before = history.latest();
    history.endStep();
    if (isAll && history.latest() != before)
        undo.setAllDisabled(history.latest());
}

void KirvAccountGroup::removeNow(const QList<KirvAccountKey> &keys)
{
    const QPointer<KirvAccountGroup> alive(this);
    KirvAccountHistory &history = undo.history();
    history.beginStep(KirvAccountHistory::Removal);
    accounts.remove(mainLast(find(keys)));
    if (alive)
        history.endStep();
}

void KirvAccountGroup::ask(const QString &title, const QString &question, const QList<KirvAccountKey> &keys,
                           const std::function<void()> &whenAccepted)
{
    QStringList names;
    const QList<KirvAccount *> found = find(keys);
    for (const KirvAccount *account : found.mid(0, mostNames))
        names << kirvPlainName(account->displayName());
    if (found.size() > mostNames)
        names << tr("and %n more", nullptr, int(found.size()) - mostNames);
    auto *box = new QMessageBox(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No,
                                parent->window(), Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->setObjectName(QStringLiteral("Accounts_GroupQuestion"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(names.join(QLatin1Char('\n')));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose, true);
    connect(box, &QDialog::finished, this, [whenAccepted](int result) {
        if (result == QMessageBox::Yes)
            whenAccepted();
    });
    box->show();
}

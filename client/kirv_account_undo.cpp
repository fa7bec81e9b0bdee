// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_undo.h"

#include "client/kirv_message_bar.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"

#include <QShortcut>

KirvAccountUndo::KirvAccountUndo(KirvAccountCollection &accounts, KirvAccountHistory &history, KirvMessageBar &messages,
                                 QWidget *window)
    : QObject(window)
    , accounts(accounts)
    , past(history)
    , messages(messages)
{
    connect(&history, &KirvAccountHistory::stepAdded, this, &KirvAccountUndo::stepAdded);
    connect(&history, &KirvAccountHistory::stepGone, this, &KirvAccountUndo::withdraw);
    auto *shortcut = new QShortcut(QKeySequence::Undo, window);
    connect(shortcut, &QShortcut::activated, this, &KirvAccountUndo::undoLatest);
}

QString KirvAccountUndo::command() const
{
    const QStringList names = past.namesOf(past.latest());
    if (names.isEmpty())
        return QString();
    const QString name = kirvPlainCommand(kirvPlainName(names.first()));
    const int count = int(names.size());
    switch (past.kindOf(past.latest())) {
    case KirvAccountHistory::Removal:
        //: %1 = name of an account
        return count == 1 ? tr("&Undo Removing %1").arg(name) : tr("&Undo Removing %n Accounts", nullptr, count);
    case KirvAccountHistory::Disabling:
        //: %1 = name of an account
        return count == 1 ? tr("&Undo Disabling %1").arg(name) : tr("&Undo Disabling %n Accounts", nullptr, count);
    case KirvAccountHistory::Import:
        break;
    }
    //: %1 = name of an account
    return count == 1 ? tr("&Undo Importing %1").arg(name) : tr("&Undo Importing %n Accounts", nullptr, count);
}

void KirvAccountUndo::undoLatest()
{
    undo(past.latest());
}

void KirvAccountUndo::undo(int step)
{
    if (past.has(step) && past.kindOf(step) == KirvAccountHistory::Disabling && !enableAgain(step))
        return;
    const QStringList reasons = past.undo(step);
    for (const QString &reason : reasons)
        messages.showMessage(reason);
}

/// All accounts of the step in one change; the history finds them enabled then. False when the store refuses, which the
/// accounts report.
bool KirvAccountUndo::enableAgain(int step)
{
    QList<KirvAccount *> disabled;
    const QList<KirvAccountKey> keys = past.accountsOf(step);
    for (const KirvAccountKey &key : keys) {
        if (KirvAccount *account = accounts.find(key))
            disabled << account;
    }
    return accounts.enableAgain(disabled);
}

void KirvAccountUndo::stepAdded(int step)
{
    holdBack();
    show(step);
}

/// Takes the messages away whose button could not undo anything now.
void KirvAccountUndo::holdBack()
{
    for (auto message = shown.constBegin(); message != shown.constEnd(); ++message) {
        if (past.canUndo(message.key()) || !messages.messages().contains(message.value()))
            continue;
        heldBack.insert(message.key());
        messages.removeMessage(message.value());
    }
}

void KirvAccountUndo::showHeldBack()
{
    const QSet<int> steps = heldBack;
    for (int step : steps) {
        if (!past.canUndo(step))
            continue;
        heldBack.remove(step);
        show(step);
    }
}

void KirvAccountUndo::show(int step)
{
    const QString text = messageOf(step);
    messages.removeMessage(text); // of an earlier step on an account of the same name: its button would undo that one
    shown.insert(step, text);
    messages.showMessage(
        text, tr("&Undo"), [this, step] { undo(step); }, KirvMessageBar::Information);
}

void KirvAccountUndo::withdraw(int step)
{
    const QString text = shown.take(step);
    heldBack.remove(step);
    if (!shown.values().contains(text))
        messages.removeMessage(text);
    showHeldBack();
}

QString KirvAccountUndo::messageOf(int step) const
{
    const QStringList names = past.namesOf(step);
    const QString name = kirvPlainName(names.value(0)), protocol = past.accountsOf(step).value(0).protocol;
    const int count = int(names.size());
    switch (past.kindOf(step)) {
    case KirvAccountHistory::Removal:
        //: %1 = name of an account, %2 = name of its protocol
        return count == 1 ? tr("The account %1 (%2) was removed.").arg(name, protocol)
                          : tr("%n accounts were removed.", nullptr, count);
    case KirvAccountHistory::Disabling:
        //: %1 = name of an account, %2 = name of its protocol
        return count == 1 ? tr("The account %1 (%2) was disabled.").arg(name, protocol)
                          : tr("%n accounts were disabled.", nullptr, count);
    case KirvAccountHistory::Import:
        break;
    }
    //: %1 = name of an account, %2 = name of its protocol
    return count == 1 ? tr("The account %1 (%2) was imported.").arg(name, protocol)
                      : tr("%n accounts were imported.", nullptr, count);
}

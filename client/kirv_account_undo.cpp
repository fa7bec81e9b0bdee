// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_undo.h"

#include "client/kirv_message_bar.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"

#include <QShortcut>

#include <algorithm>

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
    const int step = past.latestUndoable();
    const QStringList names = past.namesOf(step);
    if (names.isEmpty())
        return QString();
    const QString name = kirvPlainCommand(kirvPlainName(names.first()));
    const int count = int(names.size());
    switch (past.kindOf(step)) {
    case KirvAccountHistory::Removal:
        //: %1 = name of an account
        return count == 1 ? tr("&Undo Removing %1").arg(name) : tr("&Undo Removing %n Accounts", nullptr, count);
    case KirvAccountHistory::Disabling:
        //: %1 = name of an account
        return count == 1 ? tr("&Undo Disabling %1").arg(name) : tr("&Undo Disabling %n Accounts", nullptr, count);
    case KirvAccountHistory::Import:
    case KirvAccountHistory::UndoneImport: // is not the latest that can be undone
        break;
    }
    //: %1 = name of an account
    return count == 1 ? tr("&Undo Importing %1").arg(name) : tr("&Undo Importing %n Accounts", nullptr, count);
}

void KirvAccountUndo::undoLatest()
{
    const int step = past.latestUndoable();
    undo(step ? step : past.latest()); // for the reason why it cannot be undone
}

void KirvAccountUndo::undo(int step)
{
    if (past.has(step) && past.kindOf(step) == KirvAccountHistory::Disabling && !enableAgain(step))
        return;
    const QStringList reasons = past.undo(step);
    for (const QString &reason : reasons)
        messages.showMessage(reason);
    updateMessage(step);
}

/// What could not be undone stays in its step, whose message is about less then.
void KirvAccountUndo::updateMessage(int step)
{
    const QString before = shown.value(step);
    const bool isShown = !heldBack.contains(step) && messages.messages().contains(before);
    if (!past.has(step) || !isShown || before == messageOf(step))
        return;
    messages.removeMessage(before);
    shown.insert(step, messageOf(step));
    heldBack.insert(step);
    showHeldBack();
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
        const bool isShown = !heldBack.contains(message.key()) && messages.messages().contains(message.value());
        if (!isShown || past.canUndo(message.key()))
            continue;
        heldBack.insert(message.key());
        messages.removeMessage(message.value());
    }
}

void KirvAccountUndo::showHeldBack()
{
    QList<int> steps = heldBack.values();
    std::sort(steps.begin(), steps.end());
    for (int step : qAsConst(steps)) {
        if (!past.canUndo(step) || isReplaced(step))
            continue;
        heldBack.remove(step);
        show(step);
    }
}

void KirvAccountUndo::show(int step)
{
    const QString text = messageOf(step);
    replaceEarlier(step, text);
    shown.insert(step, text);
    const bool isUndone = past.kindOf(step) == KirvAccountHistory::UndoneImport;
    messages.showMessage(
        text, isUndone ? tr("&Import Again") : tr("&Undo"), [this, step] { undo(step); }, KirvMessageBar::Information);
}

/// Takes the message \a text of an earlier step on an account of the same name away: its button would undo that one.
void KirvAccountUndo::replaceEarlier(int step, const QString &text)
{
    const bool isShown = messages.messages().contains(text);
    const QList<int> alike = shown.keys(text);
    for (int earlier : alike) {
        if (earlier == step || heldBack.contains(earlier))
            continue;
        if (isShown)
            heldBack.insert(earlier);
        else
            shown.remove(earlier); // the user has closed it
    }
    messages.removeMessage(text);
}

/// Whether a later step shows the message of \a step.
bool KirvAccountUndo::isReplaced(int step) const
{
    const QString text = shown.value(step);
    const QList<int> alike = shown.keys(text);
    return messages.messages().contains(text) && std::any_of(alike.begin(), alike.end(), [this, step](int other) {
               return other > step && !heldBack.contains(other);
           });
}

void KirvAccountUndo::withdraw(int step)
{
    const QString text = shown.take(step);
    if (!heldBack.remove(step) && !text.isEmpty())
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
    case KirvAccountHistory::UndoneImport:
        //: %1 = name of an account, %2 = name of its protocol
        return count == 1 ? tr("The import of the account %1 (%2) was undone.").arg(name, protocol)
                          : tr("The import of %n accounts was undone.", nullptr, count);
    case KirvAccountHistory::Import:
        break;
    }
    //: %1 = name of an account, %2 = name of its protocol
    return count == 1 ? tr("The account %1 (%2) was imported.").arg(name, protocol)
                      : tr("%n accounts were imported.", nullptr, count);
}

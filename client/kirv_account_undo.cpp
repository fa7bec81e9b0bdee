// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_undo.h"

#include "client/kirv_message_bar.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_history.h"

#include <QShortcut>

KirvAccountUndo::KirvAccountUndo(KirvAccountHistory &history, KirvMessageBar &messages, QWidget *window)
    : QObject(window)
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
    const bool isRemoval = past.kindOf(past.latest()) == KirvAccountHistory::Removal;
    if (names.size() > 1)
        return isRemoval ? tr("&Undo Removing %n Accounts", nullptr, int(names.size()))
                         : tr("&Undo Disabling %n Accounts", nullptr, int(names.size()));
    //: %1 = name of an account
    const QString text = isRemoval ? tr("&Undo Removing %1") : tr("&Undo Disabling %1");
    return text.arg(kirvPlainCommand(kirvPlainName(names.first())));
}

void KirvAccountUndo::undoLatest()
{
    undo(past.latest());
}

void KirvAccountUndo::undo(int step)
{
    const QStringList reasons = past.undo(step);
    for (const QString &reason : reasons)
        messages.showMessage(reason);
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
    const bool isRemoval = past.kindOf(step) == KirvAccountHistory::Removal;
    if (names.size() > 1)
        return isRemoval ? tr("%n accounts were removed.", nullptr, int(names.size()))
                         : tr("%n accounts were disabled.", nullptr, int(names.size()));
    //: %1 = name of an account, %2 = name of its protocol
    const QString text = isRemoval ? tr("The account %1 (%2) was removed.") : tr("The account %1 (%2) was disabled.");
    return text.arg(kirvPlainName(names.value(0)), past.accountsOf(step).value(0).protocol);
}

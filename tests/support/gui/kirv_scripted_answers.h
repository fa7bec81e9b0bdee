// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_ANSWERS_H
#define KIRV_SCRIPTED_ANSWERS_H

#include "tests/support/gui/kirv_window_watcher.h"

#include <QAbstractButton>
#include <QList>
#include <QMessageBox>
#include <QStringList>

/// Answers the message boxes that are shown while it exists, one after the other, also those that block. A box beyond
/// the answers is rejected, as it is with the Escape key, and counted in texts like the others.
class KirvScriptedAnswers {
public:
    explicit KirvScriptedAnswers(const QList<QMessageBox::StandardButton> &answers = {})
        : remaining(answers)
        , watcher([this](QMessageBox *box) { answer(box); })
    {
    }

    /// The texts of the boxes so far.
    QStringList texts;
    /// How many answers no box has taken yet.
    int unused() const { return int(remaining.size()); }

private:
    void answer(QMessageBox *box)
    {
        texts << box->text();
        QAbstractButton *button = remaining.isEmpty() ? nullptr : box->button(remaining.takeFirst());
        if (button)
            button->click();
        else
            box->reject();
    }

    QList<QMessageBox::StandardButton> remaining;
    KirvWindowWatcher<QMessageBox> watcher;
};

#endif

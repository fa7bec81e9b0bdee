// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REVEAL_BUTTON_H
#define KIRV_REVEAL_BUTTON_H

#include <QToolButton>

class QLineEdit;

/// The button beside a password that shows what is typed, for as long as it is down.
class KirvRevealButton : public QToolButton {
    Q_OBJECT

public:
    /// \a edit becomes masked. It is not owned and outlives the button, or goes with it.
    KirvRevealButton(QLineEdit *edit, QWidget *parent);

    /// Puts a button for \a edit beside it in the form that it stands in; null when it does not stand in one.
    static KirvRevealButton *addBeside(QLineEdit *edit);

private:
    void reveal(bool on);

    QLineEdit *const edit;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_KEYBOARD_H
#define KIRV_KEYBOARD_H

#include <QSet>
#include <QString>

class QWidget;

// What widgets that enter a window at run time need for the keyboard.

/// Puts the focusable widgets in \a inserted, or itself, behind those that its parent already has, or else to
/// where the parent stands; otherwise Tab would reach them last of all in their window.
void kirvPlaceInTabOrder(QWidget *inserted);

/// The mnemonics that the window of \a widget uses outside of \a widget, in upper case.
QSet<QChar> kirvMnemonicsAround(const QWidget *widget);

/// The caption \a plain for a label or button, with a mnemonic that is not in \a taken and is added to it. Without
/// one when none is left. An ampersand in \a plain stands for itself.
QString kirvWithMnemonic(const QString &plain, QSet<QChar> *taken);

#endif

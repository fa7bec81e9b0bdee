// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MOVE_DIALOG_H
#define KIRV_MOVE_DIALOG_H

#include <QDialog>

class KirvFormArea;
class QProgressBar;

/// What the windows that export and import accounts have in common: a form that scrolls where the screen is too small
/// for it, a bar while a file is written or read, and buttons.
class KirvMoveDialog : public QDialog {
    Q_OBJECT

protected:
    /// \a name is the object name of the window, and the beginning of those of its parts.
    KirvMoveDialog(const QString &name, const QString &title, QWidget *parent);

    /// To be called once. The window is \a characters of average width wide, where the screen is.
    void build(QWidget *content, QWidget *buttons, int characters);
    /// Makes it as wide as a \a width of its contents needs, where the screen is; never narrower.
    void widen(int width);
    /// Makes it as high as its contents need, where the screen is; never lower.
    void grow();
    /// The same when its contents have found their size.
    void growLater();

    KirvFormArea *const area;
    QProgressBar *const progress; ///< not shown at first
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WINDOW_FRONT_H
#define KIRV_WINDOW_FRONT_H

#include <QWidget>

/// Shows \a window in front of the others, as the one that is in use.
inline void kirvBringToFront(QWidget *window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

/// The same for one that is deleted when it is closed.
inline void kirvOpenInFront(QWidget *window)
{
    window->setAttribute(Qt::WA_DeleteOnClose);
    kirvBringToFront(window);
}

#endif

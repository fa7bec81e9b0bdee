// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BUSY_BAR_H
#define KIRV_BUSY_BAR_H

#include <QProgressBar>
#include <QString>

/// A bar that is not shown yet and says only that something goes on. \a parent owns it.
inline QProgressBar *kirvCreateBusyBar(const QString &name, const QString &accessibleName, QWidget *parent)
{
    auto *bar = new QProgressBar(parent);
    bar->setObjectName(name);
    bar->setAccessibleName(accessibleName);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->hide();
    return bar;
}

#endif

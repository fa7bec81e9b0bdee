// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_wheel_guard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>

KirvWheelGuard::KirvWheelGuard(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KirvWheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel && event->type() != QEvent::Polish)
        return false;
    if (!qobject_cast<QComboBox *>(watched) && !qobject_cast<QAbstractSpinBox *>(watched))
        return false;
    auto *box = static_cast<QWidget *>(watched);
    if (event->type() == QEvent::Polish) {
        // Otherwise the wheel itself gives the focus, before the event arrives.
        if (box->focusPolicy() == Qt::WheelFocus)
            box->setFocusPolicy(Qt::StrongFocus);
        return false;
    }
    if (box->hasFocus())
        return false;
    event->ignore();
    return true;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_focus_return.h"

#include <QApplication>

namespace {

bool contains(const QWidget *container, const QWidget *widget)
{
    return container == widget || container->isAncestorOf(widget);
}

bool canTakeFocus(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

/// Null when there is none.
QWidget *firstStop(QWidget *place)
{
    QWidget *widget = place;
    do {
        if (contains(place, widget) && canTakeFocus(widget))
            return widget;
        widget = widget->nextInFocusChain();
    } while (widget != place);
    return nullptr;
}

} // namespace

KirvFocusReturn::KirvFocusReturn(QWidget *area)
    : QObject(area)
    , area(area)
{
    connect(qApp, &QApplication::focusChanged, this, &KirvFocusReturn::note);
}

void KirvFocusReturn::note(QWidget *old, QWidget *now)
{
    if (old && now && isInArea(now) && !isInArea(old) && old->window() == area->window())
        before = old;
}

bool KirvFocusReturn::isInArea(const QWidget *widget) const
{
    return contains(area, widget);
}

void KirvFocusReturn::leave(const QWidget *part, QWidget *place)
{
    const QWidget *focused = area->window()->focusWidget();
    if (!focused || !contains(part, focused))
        return;
    QWidget *next = before && canTakeFocus(before) ? before.data() : place ? firstStop(place) : nullptr;
    if (next)
        next->setFocus(Qt::OtherFocusReason);
}

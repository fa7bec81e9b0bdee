// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_narrow_button.h"

#include <QEvent>
#include <QLayout>
#include <QToolButton>

KirvNarrowButton::KirvNarrowButton(QToolButton *button, QWidget *page)
    : QObject(button)
    , button(button)
    , page(page)
{
    if (button->icon().isNull() || button->toolButtonStyle() != Qt::ToolButtonTextBesideIcon)
        return;
    measure();
    page->installEventFilter(this);
}

bool KirvNarrowButton::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::Polish:
        measure();
        break;
    case QEvent::Resize:
        adapt();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KirvNarrowButton::measure()
{
    button->setMinimumWidth(0);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    const int iconWidth = button->sizeHint().width();
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (page->layout())
        page->layout()->invalidate();
    needed = page->minimumSizeHint().width();
    button->setMinimumWidth(iconWidth);
    adapt();
}

void KirvNarrowButton::adapt()
{
    const bool isNarrow = page->isVisible() && page->width() < needed;
    button->setToolButtonStyle(isNarrow ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
}

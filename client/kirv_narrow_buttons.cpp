// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_narrow_buttons.h"

#include <QEvent>
#include <QLayout>
#include <QToolButton>

#include <algorithm>

KirvNarrowButtons::KirvNarrowButtons(const QList<QToolButton *> &buttons, QWidget *page)
    : QObject(page)
    , page(page)
{
    std::copy_if(buttons.begin(), buttons.end(), std::back_inserter(this->buttons), [](const QToolButton *button) {
        return !button->icon().isNull() && button->toolButtonStyle() == Qt::ToolButtonTextBesideIcon;
    });
    measure();
    page->installEventFilter(this);
}

bool KirvNarrowButtons::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::Polish:
        measure();
        break;
    case QEvent::Resize: // the layout, if any, has followed already
    case QEvent::Show:
        adapt();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// A layout gives less to all of its items rather than to one, but not less than the icon needs.
void KirvNarrowButtons::measure()
{
    for (QToolButton *button : qAsConst(buttons)) {
        button->setMinimumWidth(0);
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        button->setMinimumWidth(button->sizeHint().width());
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    adapt();
}

void KirvNarrowButtons::adapt()
{
    if (!page->isVisible())
        return;
    for (QToolButton *button : qAsConst(buttons))
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QToolButton *button : qAsConst(buttons)) {
        if (!isAnyClipped())
            return;
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    }
}

bool KirvNarrowButtons::isAnyClipped() const
{
    if (page->layout())
        page->layout()->activate();
    return std::any_of(buttons.begin(), buttons.end(), [](const QToolButton *button) {
        return button->isVisible() && button->width() < button->sizeHint().width();
    });
}

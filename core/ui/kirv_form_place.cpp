// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_form_place.h"

#include <QWidget>

KirvFormPlace::KirvFormPlace(QWidget *widget)
    : widget(widget)
{
    const QWidget *parent = widget->parentWidget();
    auto *layout = parent ? qobject_cast<QFormLayout *>(parent->layout()) : nullptr;
    if (!layout || layout->indexOf(widget) < 0)
        return;
    form = layout;
    form->getWidgetPosition(widget, &row, &role);
}

void KirvFormPlace::replaceBy(QLayout *cell)
{
    form->removeWidget(widget);
    form->setLayout(row, role, cell);
}

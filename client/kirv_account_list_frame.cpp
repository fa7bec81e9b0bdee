// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_list_frame.h"

#include "core/ui/kirv_keyboard.h"

#include <QAbstractItemView>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include <memory>

KirvAccountListFrame::KirvAccountListFrame(QAbstractItemView *list)
    : rows(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("Accounts_ListFrame"));
    setSizePolicy(list->sizePolicy());
    rows->setContentsMargins(0, 0, 0, 0);
    takePlaceOf(list, list->parentWidget());
    rows->addWidget(list, 1);
    list->show();
    show();
}

void KirvAccountListFrame::takePlaceOf(QWidget *widget, QWidget *place)
{
    auto *area = qobject_cast<QScrollArea *>(place->parentWidget());
    if (auto *splitter = qobject_cast<QSplitter *>(place)) {
        splitter->replaceWidget(splitter->indexOf(widget), this);
        return;
    }
    if (area && area->widget() == widget) {
        area->takeWidget();
        area->setWidget(this);
        return;
    }
    setParent(place);
    // Finds the list in the nested layouts, too, and keeps its row, stretch and span there.
    const std::unique_ptr<QLayoutItem> replaced(place->layout() ? place->layout()->replaceWidget(widget, this)
                                                                : nullptr);
    if (!replaced)
        setGeometry(widget->geometry());
}

void KirvAccountListFrame::addBelow(QWidget *widget)
{
    rows->addWidget(widget);
    kirvPlaceInTabOrder(widget);
}

void KirvAccountListFrame::addAbove(QWidget *widget)
{
    rows->insertWidget(0, widget);
    kirvPlaceInTabOrder(widget);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_list_end_room.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTreeView>

KirvListEndRoom::KirvListEndRoom(QTreeView *list, QWidget *cover)
    : QObject(list)
    , list(list)
    , cover(cover)
    , ownMaximum(list->verticalScrollBar()->maximum())
{
    cover->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    const QScrollBar *bar = list->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, this, [this](int, int maximum) { ownRangeChanged(maximum); });
    connect(bar, &QScrollBar::valueChanged, this, &KirvListEndRoom::update);
    // After the list has scrolled to it. What is under a pressed button stays there.
    connect(
        list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this] {
            if (QApplication::mouseButtons() == Qt::NoButton)
                revealCurrent();
        },
        Qt::QueuedConnection);
}

bool KirvListEndRoom::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        QMetaObject::invokeMethod(this, &KirvListEndRoom::update, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return false;
}

/// By the list, which sets the same range again at many occasions.
void KirvListEndRoom::ownRangeChanged(int maximum)
{
    if (isChanging)
        return;
    const bool isOther = maximum != ownMaximum;
    ownMaximum = maximum;
    if (isOther)
        setMaximum(qMax(ownMaximum, coveredMaximum()));
    else
        update();
}

/// Where the list stands beyond its end, it stays until it is scrolled back.
void KirvListEndRoom::update()
{
    setMaximum(qMax(qMax(ownMaximum, coveredMaximum()), list->verticalScrollBar()->value()));
}

void KirvListEndRoom::setMaximum(int maximum)
{
    const bool isOwn = ownMaximum > 0 || maximum == 0;
    const Qt::ScrollBarPolicy policy = isOwn ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    isChanging = true;
    if (list->verticalScrollBarPolicy() != policy)
        list->setVerticalScrollBarPolicy(policy);
    list->verticalScrollBar()->setMaximum(maximum);
    isChanging = false;
}

/// With which the last row is above the cover; 0 when nothing is covered.
int KirvListEndRoom::coveredMaximum() const
{
    const int free = freeHeight();
    const int height = rowHeight();
    if (free >= list->viewport()->height() || height <= 0)
        return 0;
    int rows = 0;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        rows += list->isRowHidden(row, QModelIndex()) ? 0 : 1;
    if (!isPerItem())
        return rows * height - free;
    return qMin(rows - free / height, rows - 1);
}

/// Of the viewport, above the cover. A cover at the top leaves it all.
int KirvListEndRoom::freeHeight() const
{
    const QWidget *viewport = list->viewport();
    if (!cover || !cover->isVisible() || !list->isVisible() || cover->window() != list->window())
        return viewport->height();
    const QRect covered(viewport->mapFromGlobal(cover->mapToGlobal(QPoint())), cover->size());
    const bool isAtEnd = covered.intersects(viewport->rect()) && covered.center().y() > viewport->rect().center().y();
    return isAtEnd ? qMax(0, covered.top()) : viewport->height();
}

/// 0 when no row is shown.
int KirvListEndRoom::rowHeight() const
{
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        if (!list->isRowHidden(row, QModelIndex()))
            return list->visualRect(list->model()->index(row, 0)).height();
    }
    return 0;
}

bool KirvListEndRoom::isPerItem() const
{
    return list->verticalScrollMode() == QAbstractItemView::ScrollPerItem;
}

void KirvListEndRoom::revealCurrent()
{
    const QRect place = list->visualRect(list->currentIndex());
    const int covered = place.bottom() + 1 - freeHeight();
    if (covered <= 0 || !place.intersects(list->viewport()->rect()))
        return;
    update();
    QScrollBar *bar = list->verticalScrollBar();
    bar->setValue(bar->value() + (isPerItem() ? (covered + place.height() - 1) / place.height() : covered));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_move_dialog.h"

#include "client/kirv_busy_bar.h"
#include "core/ui/kirv_form_area.h"

#include <QProgressBar>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

KirvMoveDialog::KirvMoveDialog(const QString &name, const QString &title, QWidget *parent)
    : QDialog(parent)
    , area(new KirvFormArea(this))
    , progress(kirvCreateBusyBar(name + QStringLiteral("_Progress"), tr("Progress"), this))
{
    setObjectName(name);
    setWindowTitle(title);
}

void KirvMoveDialog::build(QWidget *content, QWidget *buttons, int characters)
{
    area->setWidget(content);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(progress);
    layout->addWidget(buttons);
    const int available = parentWidget()->screen()->availableSize().width();
    resize(std::min(characters * fontMetrics().averageCharWidth(), available), height());
}

void KirvMoveDialog::widen(int width)
{
    layout()->activate();
    const QRect available = screen()->availableGeometry();
    const int around = this->width() - area->widget()->width();
    const int possible = std::min(width + around, available.width() * 9 / 10);
    if (this->width() >= possible || isMaximized() || isFullScreen())
        return;
    resize(possible, height());
    const int outside = frameGeometry().right() - available.right();
    if (outside > 0)
        move(std::max(available.left(), x() - outside), y());
}

void KirvMoveDialog::grow()
{
    layout()->activate();
    const int wanted = std::max(layout()->totalHeightForWidth(width()), sizeHint().height());
    const int possible = std::min(wanted, screen()->availableSize().height() * 9 / 10);
    if (height() < possible && !isMaximized() && !isFullScreen())
        resize(width(), possible);
}

void KirvMoveDialog::growLater()
{
    QMetaObject::invokeMethod(this, &KirvMoveDialog::grow, Qt::QueuedConnection);
}

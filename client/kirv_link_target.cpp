// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_link_target.h"

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QWidget>

KirvLinkTarget::KirvLinkTarget(QWidget *widget)
    : QObject(widget)
    , widget(widget)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
    auto *paste = new QAction(widget);
    paste->setShortcuts(QKeySequence::Paste);
    paste->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    widget->addAction(paste);
    connect(paste, &QAction::triggered, this, [this] { take(QGuiApplication::clipboard()->mimeData()); });
}

bool KirvLinkTarget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget && (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop)) {
        auto *drop = static_cast<QDropEvent *>(event);
        if (KirvAccountLink::fromMimeData(drop->mimeData()).isNull())
            return QObject::eventFilter(watched, event);
        drop->setDropAction(Qt::CopyAction);
        drop->accept();
        if (event->type() == QEvent::Drop)
            take(drop->mimeData());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void KirvLinkTarget::take(const QMimeData *data)
{
    const KirvAccountLink link = KirvAccountLink::fromMimeData(data);
    if (!link.isNull() || link.isTooLong)
        QMetaObject::invokeMethod(
            this, [this, link] { Q_EMIT linkTaken(link); }, Qt::QueuedConnection);
}

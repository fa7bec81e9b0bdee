// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_visible_boxes.h"

#include "client/kirv_plain_text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>

KirvVisibleBoxes::KirvVisibleBoxes(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KirvVisibleBoxes::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (auto *box = qobject_cast<QMessageBox *>(watched)) {
        box->setText(kirvPlainName(box->text()));
        box->setInformativeText(kirvPlainName(box->informativeText()));
    }
    return false;
}

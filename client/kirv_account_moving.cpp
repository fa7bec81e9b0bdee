// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_moving.h"

#include "client/kirv_export_window.h"
#include "core/moving/kirv_moving_file.h"
#include "core/moving/kirv_pidgin_file.h"

#include <QFileDialog>

KirvAccountMoving::KirvAccountMoving(const KirvImportWindow::Environment &environment, QWidget *window)
    : QObject(window)
    , environment(environment)
    , window(window)
{
}

void KirvAccountMoving::open(QDialog *opened)
{
    opened->setAttribute(Qt::WA_DeleteOnClose);
    opened->show();
    opened->raise();
    opened->activateWindow();
}

void KirvAccountMoving::exportAccounts(const QList<KirvAccountKey> &chosen)
{
    if (!exportWindow || !exportWindow->isVisible())
        exportWindow = new KirvExportWindow(environment.accounts, environment.mainAccount, chosen, window);
    else if (!chosen.isEmpty())
        exportWindow->check(chosen);
    open(exportWindow);
}

void KirvAccountMoving::importAccounts()
{
    if (importWindow && importWindow->isVisible()) {
        open(importWindow);
        return;
    }
    if (!fileDialog) {
        fileDialog = KirvImportWindow::createFileDialog(window);
        connect(fileDialog, &QFileDialog::fileSelected, this, &KirvAccountMoving::importFrom);
    }
    fileDialog->open();
    fileDialog->activateWindow();
}

void KirvAccountMoving::importFrom(const QString &path)
{
    if (!importWindow || !importWindow->isVisible()) {
        importWindow = new KirvImportWindow(environment, window);
        connect(importWindow, &KirvImportWindow::imported, this, &KirvAccountMoving::imported);
        connect(importWindow, &KirvImportWindow::partLeftOut, this, &KirvAccountMoving::problemOccurred);
    }
    importWindow->read(path);
    open(importWindow);
}

void KirvAccountMoving::protocolsChanged()
{
    if (importWindow)
        importWindow->listLater();
}

/// The folder may be on a slow disk.
void KirvAccountMoving::lookForPidgin()
{
    const QString path = KirvPidginFile::defaultPath();
    look.run<bool>([path](const KirvBackgroundJob::Flag &) { return KirvMovingFile::isPidginFile(path); },
                   [this, path](const bool &isThere) { Q_EMIT pidginFound(isThere ? path : QString()); });
}

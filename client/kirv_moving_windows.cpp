// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_moving_windows.h"

#include "client/kirv_export_window.h"
#include "client/kirv_window_front.h"
#include "core/moving/kirv_moving_file.h"
#include "core/moving/kirv_pidgin_file.h"

#include <QFileDialog>

KirvMovingWindows::KirvMovingWindows(const KirvImportWindow::Environment &environment, QWidget *window)
    : QObject(window)
    , environment(environment)
    , window(window)
{
}

void KirvMovingWindows::exportAccounts(const QList<KirvAccountKey> &chosen)
{
    if (!exportWindow || !exportWindow->isVisible())
        exportWindow = new KirvExportWindow(environment.accounts, environment.mainAccount, chosen, window);
    else if (!chosen.isEmpty())
        exportWindow->check(chosen);
    kirvOpenInFront(exportWindow);
}

void KirvMovingWindows::importAccounts()
{
    if (importWindow && importWindow->isVisible()) {
        kirvOpenInFront(importWindow);
        return;
    }
    if (!fileDialog) {
        fileDialog = KirvImportWindow::createFileDialog(window);
        connect(fileDialog, &QFileDialog::fileSelected, this, &KirvMovingWindows::importFrom);
    }
    fileDialog->open();
    fileDialog->activateWindow();
}

void KirvMovingWindows::importFrom(const QString &path)
{
    if (!importWindow || !importWindow->isVisible()) {
        importWindow = new KirvImportWindow(environment, window);
        connect(importWindow, &KirvImportWindow::imported, this, &KirvMovingWindows::imported);
        connect(importWindow, &KirvImportWindow::partLeftOut, this, &KirvMovingWindows::problemOccurred);
    }
    importWindow->read(path);
    kirvOpenInFront(importWindow);
}

void KirvMovingWindows::protocolsChanged()
{
    if (importWindow)
        importWindow->listLater();
}

/// The folder may be on a slow disk.
void KirvMovingWindows::lookForPidgin()
{
    const QString path = KirvPidginFile::defaultPath();
    look.run<bool>([path](const KirvBackgroundJob::Flag &) { return KirvMovingFile::isPidginFile(path); },
                   [this, path](const bool &isThere) { Q_EMIT pidginFound(isThere ? path : QString()); });
}

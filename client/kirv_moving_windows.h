// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MOVING_WINDOWS_H
#define KIRV_MOVING_WINDOWS_H

#include "client/kirv_background_job.h"
#include "client/kirv_import_window.h"
#include "core/values/kirv_account_key.h"

#include <QList>
#include <QObject>
#include <QPointer>

class KirvExportWindow;
class QFileDialog;
class QWidget;

/// Opens the windows in which accounts move into a file and out of one, one of each, and finds the accounts of another
/// program that can be imported.
class KirvMovingWindows : public QObject {
    Q_OBJECT

public:
    /// What is in \a environment is not owned and outlives this. \a window is the parent of the windows and owns this.
    KirvMovingWindows(const KirvImportWindow::Environment &environment, QWidget *window);

    /// \a chosen are checked; when it is empty, all are, or what is checked in the window that is open.
    void exportAccounts(const QList<KirvAccountKey> &chosen = {});
    /// Lets the user choose a file first.
    void importAccounts();
    void importFrom(const QString &path);

    /// A protocol was loaded or is going to be unloaded.
    void protocolsChanged();
    /// Looks whether there is a file of Pidgin; pidginFound() is emitted later.
    void lookForPidgin();

Q_SIGNALS:
    /// Its file is \a path; empty: there is none.
    void pidginFound(const QString &path);
    void imported(const QList<KirvAccountKey> &accounts);
    /// Something of an import could not be taken over; \a text says why.
    void problemOccurred(const QString &text);

private:
    const KirvImportWindow::Environment environment;
    QWidget *const window;
    KirvBackgroundJob look;
    QPointer<KirvExportWindow> exportWindow;
    QPointer<KirvImportWindow> importWindow;
    QPointer<QFileDialog> fileDialog;
};

#endif

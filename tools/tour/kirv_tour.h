// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TOUR_H
#define KIRV_TOUR_H

#include "client/kirv_client.h"
#include "tools/demo/kirv_demo.h"
#include "tools/tour/kirv_window_driver.h"

#include <QTemporaryDir>

#include <memory>

class QTreeWidgetItem;
class QWidget;

/// The main job of the client, from the first account to the last question, against the servers of the demo.
class KirvTour {
public:
    /// \a demo is running and outlives this. Pictures are put into \a folder.
    KirvTour(KirvDemo &demo, const QString &folder);

    /// Prints each step with its outcome; true when all of them worked.
    bool run();

private:
    void startClient();
    void planFirstAccount();
    void planRestart();
    void planEditing();
    void planWrongPassword();
    void planIrcAccount();
    void planExport();
    void planImport();
    void planDisabling();
    void planRemoving();

    QWidget *page() const;
    QTreeWidgetItem *row(const QString &protocol) const;
    void openEditWindow(const QString &protocol) const;
    void select(const QString &protocol) const;
    QString state(const QString &protocol) const;
    QString problem(const QString &protocol) const;

    KirvDemo &demo;
    KirvClientOptions options;
    std::unique_ptr<KirvClient> client;
    const QTemporaryDir exports;
    KirvWindowDriver driver;
};

#endif

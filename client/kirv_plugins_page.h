// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGINS_PAGE_H
#define KIRV_PLUGINS_PAGE_H

#include "core/plugins/kirv_plugin_loader.h"

#include <QWidget>

class KirvPluginQueue;
class QLabel;
class QPushButton;
class QTreeWidget;

/// The page of the plug-ins: which are loaded, which are not and why; loads and unloads them.
class KirvPluginsPage : public QWidget {
    Q_OBJECT

public:
    /// \a plugins and the \a queue that loads them are not owned and outlive the page. \a folder is where they were
    /// looked for.
    KirvPluginsPage(KirvPluginLoader &plugins, KirvPluginQueue &queue, const QString &folder,
                    QWidget *parent = nullptr);

    /// The state of a plug-in in words.
    static QString stateText(const KirvPluginInfo &plugin);

Q_SIGNALS:
    /// The user wants a report about the program and its accounts.
    void reportRequested();

private:
    void createList();
    void createDetails();
    void createButtons();
    QLabel *createPlace(const QString &folder);
    void arrange(QLabel *place);
    void refresh();
    void updateDetails();
    void loadCurrent();
    void unloadCurrent();
    /// Null when no row is current.
    const KirvPluginInfo *current() const;

    KirvPluginLoader &plugins;
    KirvPluginQueue &queue;
    QList<KirvPluginInfo> shown; ///< one per row of the list, in the same order
    QTreeWidget *list;
    QLabel *details;
    QPushButton *loadButton;
    QPushButton *unloadButton;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGINS_PAGE_H
#define KIRV_PLUGINS_PAGE_H

#include "core/plugins/kirv_plugin_loader.h"

#include <QPointer>
#include <QWidget>

class KirvAccount;
class KirvAccountCollection;
class KirvPluginQueue;
class QLabel;
class QMessageBox;
class QPushButton;
class QTreeWidget;

/// The page of the plug-ins: which are loaded, which are not and why; loads and unloads them, after
/// a question when accounts go off line with that.
class KirvPluginsPage : public QWidget {
    Q_OBJECT

public:
    /// \a plugins, the \a queue that loads them and \a accounts are not owned and outlive the page. \a folder is where
    /// the plug-ins were looked for.
    KirvPluginsPage(KirvPluginLoader &plugins, KirvPluginQueue &queue, const KirvAccountCollection &accounts,
                    const QString &folder, QWidget *parent = nullptr);

    /// The state of a plug-in in words.
    static QString stateText(const KirvPluginInfo &plugin);

Q_SIGNALS:
    /// The user wants a report about the program and its accounts.
    void reportRequested();

private:
    void createList();
    void createDetails();
    void createButtons();
    QWidget *createPlace(const QString &folder);
    void arrange(QWidget *place);
    void refresh();
    void updateDetails();
    void loadCurrent();
    void unloadCurrent();
    /// Asks before the plug-in of \a fileName, which has \a connected accounts, is unloaded.
    void confirmUnloading(const QString &name, const QString &fileName, const QList<const KirvAccount *> &connected);
    void closeOutdatedQuestion();
    /// Null when no row is current.
    const KirvPluginInfo *current() const;

    KirvPluginLoader &plugins;
    KirvPluginQueue &queue;
    const KirvAccountCollection &accounts;
    QPointer<QMessageBox> question; ///< null while none is open
    QString questionedFile; ///< the plug-in that it is about
    QList<KirvPluginInfo> shown; ///< one per row of the list, in the same order
    QTreeWidget *list;
    QLabel *details;
    QPushButton *loadButton;
    QPushButton *unloadButton;
};

#endif

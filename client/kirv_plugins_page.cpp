// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_plugins_page.h"

#include "client/kirv_plain_text.h"
#include "client/kirv_wrapped_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_queue.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

KirvPluginsPage::KirvPluginsPage(KirvPluginLoader &plugins, KirvPluginQueue &queue,
                                 const KirvAccountCollection &accounts, const QString &folder, QWidget *parent)
    : QWidget(parent)
    , plugins(plugins)
    , queue(queue)
    , accounts(accounts)
    , list(new QTreeWidget(this))
    , details(new QLabel(this))
    , loadButton(new QPushButton(tr("&Load"), this))
    , unloadButton(new QPushButton(tr("&Unload"), this))
{
    setObjectName(QStringLiteral("Plugins"));
    createList();
    createDetails();
    createButtons();
    arrange(createPlace(folder));
    connect(list, &QTreeWidget::currentItemChanged, this, &KirvPluginsPage::updateDetails);
    connect(loadButton, &QPushButton::clicked, this, &KirvPluginsPage::loadCurrent);
    connect(unloadButton, &QPushButton::clicked, this, &KirvPluginsPage::unloadCurrent);
    connect(&plugins, &KirvPluginLoader::pluginsChanged, this, &KirvPluginsPage::refresh);
    connect(&plugins, &KirvPluginLoader::pluginsChanged, this, &KirvPluginsPage::closeOutdatedQuestion);
    refresh();
}

void KirvPluginsPage::createList()
{
    list->setObjectName(QStringLiteral("Plugins_List"));
    list->setAccessibleName(tr("Plug-ins"));
    list->setHeaderLabels({ tr("Plug-in"), tr("State"), tr("File") });
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setAlternatingRowColors(true);
    const int unit = fontMetrics().averageCharWidth();
    list->setColumnWidth(0, 24 * unit);
    list->setColumnWidth(1, 18 * unit);
}

void KirvPluginsPage::createDetails()
{
    details->setObjectName(QStringLiteral("Plugins_Details"));
    details->setAccessibleName(tr("About the plug-in"));
    details->setTextFormat(Qt::PlainText);
    details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    details->setWordWrap(true);
}

void KirvPluginsPage::createButtons()
{
    loadButton->setObjectName(QStringLiteral("Plugins_LoadButton"));
    loadButton->setToolTip(tr("Loads the plug-in; its accounts come back as they were."));
    unloadButton->setObjectName(QStringLiteral("Plugins_UnloadButton"));
    unloadButton->setToolTip(tr("Logs the accounts of the plug-in out. They stay in your profile."));
}

QWidget *KirvPluginsPage::createPlace(const QString &folder)
{
    auto *place = new KirvWrappedText(this);
    place->setObjectName(QStringLiteral("Plugins_Folder"));
    place->setAccessibleName(tr("Plug-ins"));
    //: %1 = path of a folder
    place->showText(tr("Plug-ins are looked for in the folder %1.").arg(QDir::toNativeSeparators(folder)));
    return place;
}

void KirvPluginsPage::arrange(QWidget *place)
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(loadButton);
    buttons->addWidget(unloadButton);
    buttons->addStretch();
    auto *report = new QPushButton(tr("&Report…"), this);
    report->setObjectName(QStringLiteral("Plugins_ReportButton"));
    report->setToolTip(tr("Puts versions, plug-ins and the states of the accounts together for somebody who helps."));
    connect(report, &QPushButton::clicked, this, &KirvPluginsPage::reportRequested);
    buttons->addWidget(report);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(list, 1);
    layout->addWidget(details);
    layout->addLayout(buttons);
    layout->addWidget(place);
}

QString KirvPluginsPage::stateText(const KirvPluginInfo &plugin)
{
    switch (plugin.activity) {
    case KirvPluginInfo::Waiting:
        return tr("Waiting");
    case KirvPluginInfo::BeingTested:
        return tr("Being tested");
    case KirvPluginInfo::BeingLoaded:
        return tr("Loading");
    case KirvPluginInfo::NoActivity:
        break;
    }
    if (plugin.loaded)
        return tr("Loaded");
    return plugin.error.isEmpty() ? tr("Not loaded") : tr("Failed");
}

void KirvPluginsPage::refresh()
{
    const QString selected = current() ? current()->fileName : QString();
    list->clear();
    shown = plugins.plugins();
    for (const KirvPluginInfo &plugin : qAsConst(shown)) {
        auto *row =
            new QTreeWidgetItem(list, { plugin.name, stateText(plugin), QFileInfo(plugin.fileName).fileName() });
        if (plugin.fileName == selected)
            list->setCurrentItem(row);
    }
    if (!list->currentItem())
        list->setCurrentItem(list->topLevelItem(0));
    updateDetails();
}

void KirvPluginsPage::updateDetails()
{
    const KirvPluginInfo *plugin = current();
    details->setText(!plugin                       ? tr("There are no plug-ins.")
                         : plugin->error.isEmpty() ? plugin->description
                                                   : plugin->error);
    loadButton->setEnabled(plugin && !plugin->loaded && plugin->loadable
                           && plugin->activity == KirvPluginInfo::NoActivity);
    unloadButton->setEnabled(plugin && plugin->loaded);
}

void KirvPluginsPage::loadCurrent()
{
    if (const KirvPluginInfo *plugin = current())
        queue.load(QString(plugin->fileName)); // a copy: the list is read anew meanwhile
}

void KirvPluginsPage::unloadCurrent()
{
    const KirvPluginInfo *plugin = current();
    if (!plugin || question)
        return;
    QList<const KirvAccount *> connected;
    for (const KirvAccount *account : accounts.accountsOf(plugin->name)) {
        if (account->isOnline())
            connected << account;
    }
    if (connected.isEmpty())
        plugins.unload(QString(plugin->fileName)); // a copy, as above
    else
        confirmUnloading(plugin->name, plugin->fileName, connected);
}

void KirvPluginsPage::confirmUnloading(const QString &name, const QString &fileName,
                                       const QList<const KirvAccount *> &connected)
{
    const QString text = connected.size() == 1
        //: %1 = name of a plug-in, %2 = name of an account
        ? tr("When the plug-in %1 is unloaded, its account %2 goes off line.")
              .arg(kirvPlainName(name), kirvPlainName(connected.first()->displayName()))
        //: %1 = name of a plug-in
        : tr("When the plug-in %1 is unloaded, its %n connected accounts go off line.", nullptr, int(connected.size()))
              .arg(kirvPlainName(name));
    question = new QMessageBox(QMessageBox::Warning, tr("Unload Plug-in"), text, QMessageBox::Cancel, this);
    question->setObjectName(QStringLiteral("Plugins_UnloadQuestion"));
    question->setTextFormat(Qt::PlainText);
    question->setInformativeText(
        tr("The accounts stay in your profile and come back when the plug-in is loaded again."));
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Cancel);
    QPushButton *unload = question->addButton(tr("&Unload"), QMessageBox::DestructiveRole);
    unload->setObjectName(QStringLiteral("Plugins_UnloadAnyway"));
    questionedFile = fileName;
    connect(unload, &QPushButton::clicked, this, [this, fileName] { plugins.unload(fileName); });
    question->open();
}

/// The plug-in that it is about was unloaded meanwhile.
void KirvPluginsPage::closeOutdatedQuestion()
{
    if (question && !plugins.plugin(questionedFile).loaded)
        question->close();
}

const KirvPluginInfo *KirvPluginsPage::current() const
{
    const int row = list->indexOfTopLevelItem(list->currentItem());
    return row >= 0 && row < shown.size() ? &shown.at(row) : nullptr;
}

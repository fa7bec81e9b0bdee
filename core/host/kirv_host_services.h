// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_HOST_SERVICES_H
#define KIRV_HOST_SERVICES_H

#include "core/accounts/kirv_main_account.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_settings_manager.h"

#include <QObject>

class KirvAccountCollection;
class KirvClientSettings;
class KirvPluginLoader;

/// Puts the core behind the contract: while it lives, the managers of host/ lead to the accounts, plug-ins and
/// settings that it was given. One per process at a time; without one the managers find nothing.
class KirvHostServices : public QObject,
                         public KirvAccountManagerPrivate,
                         public KirvPluginManagerPrivate,
                         public KirvSettingsManagerPrivate {
    Q_OBJECT

public:
    /// None of them is owned, and all outlive the services.
    KirvHostServices(KirvAccountCollection &accounts, KirvPluginLoader &plugins, KirvClientSettings &settings,
                     QObject *parent = nullptr);
    ~KirvHostServices() override;

    /// The present services; null when there are none.
    static KirvHostServices *instance();

    KirvAccountCollection &accounts;
    KirvPluginLoader &plugins;
    KirvClientSettings &settings;
    /// The rule behind the main account; the client restores it at the start.
    KirvMainAccount mainAccountRule;
};

#endif

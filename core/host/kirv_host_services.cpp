// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/host/kirv_host_services.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"

namespace {
KirvHostServices *present = nullptr;
}

KirvHostServices::KirvHostServices(KirvAccountCollection &accounts, KirvPluginLoader &plugins,
                                   KirvClientSettings &settings, QObject *parent)
    : QObject(parent)
    , accounts(accounts)
    , plugins(plugins)
    , settings(settings)
    , mainAccountRule(accounts, settings, *this)
{
    present = this;
    KirvAccountManagerPrivate::ampInstance = this;
    KirvPluginManagerPrivate::instance = this;
    KirvSettingsManagerPrivate::settingsMgrPrivInstance = this;
    accounts.setMainAccount([this] { return mainAccountRule.account(); });
}

KirvHostServices::~KirvHostServices()
{
    accounts.setMainAccount(nullptr);
    if (present != this)
        return;
    present = nullptr;
    KirvAccountManagerPrivate::ampInstance = nullptr;
    KirvPluginManagerPrivate::instance = nullptr;
    KirvSettingsManagerPrivate::settingsMgrPrivInstance = nullptr;
}

KirvHostServices *KirvHostServices::instance()
{
    return present;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/host/kirv_host_services.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_settings_table.h"

namespace {
KirvHostServices *present = nullptr;
}

KirvHostServices::KirvHostServices(KirvAccountCollection &accounts, KirvPluginLoader &plugins,
                                   KirvClientSettings &settings, QObject *parent)
    : QObject(parent)
    , accounts(accounts)
    , plugins(plugins)
    , settings(settings)
{
    present = this;
    KirvAccountManagerPrivate::ampInstance = this;
    KirvPluginManagerPrivate::instance = this;
    KirvSettingsManagerPrivate::settingsMgrPrivInstance = this;
    accounts.setMainAccount([this] { return static_cast<KirvAccount *>(mainAccount); });
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this, [this](KirvAccount *account) {
        if (mainAccount == account)
            mainAccount = nullptr;
    });
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

void KirvHostServices::restoreMainAccount()
{
    mainAccount = accounts.find(KirvAccountKey::fromSetting(settings.value(KirvSettingKey::mainAccount)));
}

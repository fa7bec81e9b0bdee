// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_plugin_manager.h"

#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_protocol_base.h"

KirvPluginManagerPrivate *KirvPluginManagerPrivate::instance = nullptr;

KirvPluginManager *KirvPluginManager::getInstance()
{
    static KirvPluginManager manager;
    return &manager;
}

KirvProtocol *KirvPluginManager::getProtocolByName(const QString &name)
{
    const KirvHostServices *services = KirvHostServices::instance();
    return services ? services->plugins.protocol(name) : nullptr;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the contract says so
void KirvPluginManagerPrivate::emitCoreSignal(const QString &name, QList<KirvArg> args)
{
    // Every object of this class is a KirvHostServices.
    static_cast<KirvHostServices *>(this)->plugins.broadcast(name, args);
}

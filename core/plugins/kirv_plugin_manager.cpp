// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_plugin_manager.h"

#include "core/connection/kirv_protocol_base.h"
#include "core/plugins/kirv_plugin_registry.h"

#include <QPointer>

KirvPluginManagerPrivate *KirvPluginManagerPrivate::instance = nullptr;

KirvPluginManager *KirvPluginManager::getInstance()
{
    static KirvPluginManager manager;
    return &manager;
}

KirvProtocol *KirvPluginManager::getProtocolByName(const QString &name)
{
    // The instance is always a registry of ours.
    const auto *registry = static_cast<KirvPluginRegistry *>(KirvPluginManagerPrivate::instance);
    return registry ? registry->protocol(name) : nullptr;
}

void KirvPluginManagerPrivate::emitCoreSignal(const QString &name, QList<KirvArg> args)
{
    const auto *registry = static_cast<KirvPluginRegistry *>(this);
    if (!registry->passesFilter(name, args))
        return;
    QList<QPointer<KirvProtocolBase>> receivers;
    for (KirvProtocolBase *protocol : registry->protocols())
        receivers.append(protocol);
    for (const QPointer<KirvProtocolBase> &receiver : receivers) {
        if (receiver) // a receiver before it may have unloaded it
            receiver->handleCoreSignal(name, args);
    }
}

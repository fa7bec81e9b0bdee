// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_file.h"

#include "core/plugins/kirv_plugin_trust.h"
#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/protocol/kirv_protocol_plugin.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

namespace {

const int longestName = 100; ///< in characters; it stands in menus, lists and windows

} // namespace

KirvPluginFile::KirvPluginFile(const QString &path)
    : path(path)
{
}

KirvPluginInfo KirvPluginFile::inspect() const
{
    KirvPluginInfo info;
    info.fileName = path;
    info.name = QFileInfo(path).completeBaseName();
    if (!QFileInfo(path).isFile()) { // opening a pipe would wait for ever
        info.error = tr("The file is not a plug-in library.");
        return info;
    }
    const QJsonObject plugin = QPluginLoader(path).metaData();
    const QJsonObject stated = plugin.value(QLatin1String("MetaData")).toObject();
    const QString interfaceId = plugin.value(QLatin1String("IID")).toString();
    const int version = stated.value(QLatin1String("api")).toInt();

    if (!stated.value(QLatin1String("name")).toString().isEmpty())
        info.name = stated.value(QLatin1String("name")).toString();
    if (plugin.isEmpty())
        info.error = tr("The file is not a plug-in library.");
    else if (interfaceId != QLatin1String(KIRV_PROTOCOL_PLUGIN_IID))
        info.error = tr("The plug-in is not one for protocols: its interface is \"%1\".").arg(interfaceId);
    else if (version != KIRV_PROTOCOL_PLUGIN_API)
        info.error = tr("The plug-in was built for version %1 of the plug-in interface; "
                        "this program has version %2.")
                         .arg(version)
                         .arg(KIRV_PROTOCOL_PLUGIN_API);
    info.loadable = info.error.isEmpty();
    if (info.loadable) // it stays loadable: permissions can be put right while the program runs
        info.error = KirvPluginTrust().refusalReason(path);
    return info;
}

std::unique_ptr<KirvProtocolBase> KirvPluginFile::createProtocol()
{
    failure.clear();
    std::unique_ptr<KirvProtocolBase> protocol = create();
    if (protocol)
        examine(protocol.get());
    else if (failure.isEmpty())
        failure = tr("The plug-in did not create its protocol and gave no reason.");
    return failure.isEmpty() ? std::move(protocol) : nullptr;
}

std::unique_ptr<KirvProtocolBase> KirvPluginFile::create()
{
    QPluginLoader loader(path);
    // All symbols now, so that a missing one is an error and not a crash later. Never unloaded: what the library
    // left in the event queue may still need its code.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!loader.load()) {
        failure = tr("The library cannot be loaded: %1").arg(loader.errorString());
        return nullptr;
    }
    QObject *root = nullptr;
    if (!kirvCallPlugin([&] { root = loader.instance(); }, &failure))
        return nullptr;
    auto *plugin = qobject_cast<KirvProtocolPlugin *>(root);
    if (!plugin) {
        failure = tr("The plug-in does not have the interface that it states.");
        return nullptr;
    }
    std::unique_ptr<KirvProtocolBase> protocol;
    kirvCallPlugin([&] { protocol.reset(plugin->createProtocol(&failure)); }, &failure);
    return protocol;
}

void KirvPluginFile::examine(KirvProtocolBase *protocol)
{
    bool offersPresences = false;
    const auto readWhatItStates = [&] {
        name = protocol->getName();
        description = protocol->getDescription();
        offersPresences = !protocol->presences().isEmpty();
        // The page, its windows and the accounts read these: an exception is known before.
        protocol->getIconPath(0);
        protocol->getConfigurations();
        protocol->getLoginPattern();
        protocol->accountSettings();
        protocol->directoryFields();
        protocol->accountActions();
    };
    if (!kirvCallPlugin(readWhatItStates, &failure))
        return;
    // A reason that came along with a protocol keeps it out.
    if (name.isEmpty())
        failure = tr("The protocol has no name.");
    else if (name.size() > longestName)
        failure = tr("The name of the protocol has more than %1 characters.").arg(longestName);
    else if (!offersPresences)
        failure = tr("The protocol \"%1\" offers no presence.").arg(name);
}

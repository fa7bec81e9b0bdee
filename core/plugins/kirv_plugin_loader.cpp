// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_loader.h"

#include "core/protocol/kirv_protocol_base.h"
#include "core/protocol/kirv_protocol_plugin.h"

#include <QDir>
#include <QHash>
#include <QJsonObject>
#include <QPluginLoader>
#include <QPointer>

#include <algorithm>
#include <vector>

class KirvPluginLoader::Private {
public:
    struct Loaded {
        KirvProtocolBase *protocol;
        QString name;
        QString fileName; ///< empty: comes with the program
        bool leaving = false;
    };

    explicit Private(KirvPluginLoader *registry)
        : registry(registry)
    {
    }

    static KirvPluginInfo inspect(const QString &fileName);
    KirvProtocolBase *createUsableProtocol(const QString &fileName, QString *error) const;
    QString whyUnusable(KirvProtocolBase *protocol) const;

    KirvPluginInfo *info(const QString &fileName);
    void setInfo(const KirvPluginInfo &info);
    KirvProtocolBase *protocolOf(const QString &fileName) const;
    void add(KirvProtocolBase *protocol, const QString &fileName);
    bool remove(KirvProtocolBase *protocol);

    KirvPluginLoader *const registry;
    QList<KirvPluginInfo> plugins;
    std::vector<Loaded> loaded; ///< in the order of loading
    QHash<QString, KirvProtocolBase *> protocolsByName;
};

namespace {

QString absolutePath(const QString &fileName)
{
    return QFileInfo(fileName).absoluteFilePath();
}

} // namespace

/// What can be said about the file without running any of its code.
KirvPluginInfo KirvPluginLoader::Private::inspect(const QString &fileName)
{
    const QJsonObject plugin = QPluginLoader(fileName).metaData();
    const QJsonObject stated = plugin.value(QLatin1String("MetaData")).toObject();
    const QString interfaceId = plugin.value(QLatin1String("IID")).toString();
    const int version = stated.value(QLatin1String("api")).toInt();

    KirvPluginInfo info;
    info.fileName = fileName;
    info.name = stated.value(QLatin1String("name")).toString();
    if (info.name.isEmpty())
        info.name = QFileInfo(fileName).completeBaseName();
    if (plugin.isEmpty())
        info.error = KirvPluginLoader::tr("The file is not a plug-in library.");
    else if (interfaceId != QLatin1String(KIRV_PROTOCOL_PLUGIN_IID))
        info.error =
            KirvPluginLoader::tr("The plug-in is not one for protocols: its interface is \"%1\".").arg(interfaceId);
    else if (version != KIRV_PROTOCOL_PLUGIN_API)
        info.error = KirvPluginLoader::tr("The plug-in was built for version %1 of the plug-in interface; "
                                          "this program has version %2.")
                         .arg(version)
                         .arg(KIRV_PROTOCOL_PLUGIN_API);
    info.loadable = info.error.isEmpty();
    return info;
}

KirvProtocolBase *KirvPluginLoader::Private::createUsableProtocol(const QString &fileName, QString *error) const
{
    QPluginLoader loader(fileName);
    // All symbols now, so that a missing one is an error and not a crash later. Never unloaded: what the library
    // left in the event queue may still need its code.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!loader.load()) {
        *error = KirvPluginLoader::tr("The library cannot be loaded: %1").arg(loader.errorString());
        return nullptr;
    }
    auto *plugin = qobject_cast<KirvProtocolPlugin *>(loader.instance());
    if (!plugin) {
        *error = KirvPluginLoader::tr("The plug-in does not have the interface that it states.");
        return nullptr;
    }
    std::unique_ptr<KirvProtocolBase> protocol(plugin->createProtocol(error));
    if (protocol)
        *error = whyUnusable(protocol.get());
    else if (error->isEmpty())
        *error = KirvPluginLoader::tr("The plug-in did not create its protocol and gave no reason.");
    return error->isEmpty() ? protocol.release() : nullptr;
}

QString KirvPluginLoader::Private::whyUnusable(KirvProtocolBase *protocol) const
{
    const QString name = protocol->getName();
    if (name.isEmpty())
        return KirvPluginLoader::tr("The protocol has no name.");
    if (protocolsByName.contains(name))
        return KirvPluginLoader::tr("A protocol with the name \"%1\" is loaded already.").arg(name);
    if (protocol->presences().isEmpty())
        return KirvPluginLoader::tr("The protocol \"%1\" offers no presence.").arg(name);
    return QString();
}

KirvPluginInfo *KirvPluginLoader::Private::info(const QString &fileName)
{
    const auto found = std::find_if(plugins.begin(), plugins.end(),
                                    [&](const KirvPluginInfo &info) { return info.fileName == fileName; });
    return found == plugins.end() ? nullptr : &*found;
}

void KirvPluginLoader::Private::setInfo(const KirvPluginInfo &changed)
{
    if (KirvPluginInfo *known = info(changed.fileName))
        *known = changed;
    else
        plugins.append(changed);
}

KirvProtocolBase *KirvPluginLoader::Private::protocolOf(const QString &fileName) const
{
    if (fileName.isEmpty()) // a protocol of the program is not one of a file
        return nullptr;
    const auto found =
        std::find_if(loaded.begin(), loaded.end(), [&](const Loaded &entry) { return entry.fileName == fileName; });
    return found == loaded.end() ? nullptr : found->protocol;
}

void KirvPluginLoader::Private::add(KirvProtocolBase *protocol, const QString &fileName)
{
    const QString name = protocol->getName();
    loaded.push_back({ protocol, name, fileName });
    protocolsByName.insert(name, protocol);
}

/// False when the protocol is being unloaded already: a slot has requested it again.
bool KirvPluginLoader::Private::remove(KirvProtocolBase *protocol)
{
    const auto find = [&] {
        return std::find_if(loaded.begin(), loaded.end(),
                            [&](const Loaded &entry) { return entry.protocol == protocol; });
    };
    if (std::exchange(find()->leaving, true))
        return false;
    Q_EMIT registry->protocolAboutToBeUnloaded(protocol);

    const Loaded gone = *find();
    loaded.erase(find());
    protocolsByName.remove(gone.name);
    delete protocol;
    if (KirvPluginInfo *plugin = info(gone.fileName))
        plugin->loaded = false;
    Q_EMIT registry->protocolUnloaded(gone.name);
    return true;
}

KirvPluginLoader::KirvPluginLoader(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
}

KirvPluginLoader::~KirvPluginLoader()
{
    for (KirvProtocolBase *protocol : protocols())
        d->remove(protocol);
}

bool KirvPluginLoader::loadFolder(const QString &folder)
{
    const QDir directory(folder);
    if (!directory.exists())
        return false;
    for (const QString &fileName : directory.entryList(QDir::Files, QDir::Name)) {
        const QString path = absolutePath(directory.filePath(fileName));
        if (!d->info(path))
            load(path);
    }
    return true;
}

QList<KirvPluginInfo> KirvPluginLoader::plugins() const
{
    return d->plugins;
}

QList<KirvProtocolBase *> KirvPluginLoader::protocols() const
{
    QList<KirvProtocolBase *> protocols;
    for (const Private::Loaded &entry : d->loaded)
        protocols.append(entry.protocol);
    return protocols;
}

KirvProtocolBase *KirvPluginLoader::protocol(const QString &name) const
{
    return d->protocolsByName.value(name);
}

bool KirvPluginLoader::load(const QString &fileName)
{
    const QString path = absolutePath(fileName);
    if (d->protocolOf(path))
        return true;
    KirvPluginInfo info = Private::inspect(path);
    KirvProtocolBase *protocol = info.loadable ? d->createUsableProtocol(path, &info.error) : nullptr;
    if (protocol) {
        info.name = protocol->getName();
        info.description = protocol->getDescription();
        info.loaded = true;
        d->add(protocol, path);
    }
    d->setInfo(info);
    if (protocol)
        Q_EMIT protocolLoaded(protocol);
    Q_EMIT pluginsChanged();
    return info.loaded;
}

bool KirvPluginLoader::unload(const QString &fileName)
{
    KirvProtocolBase *protocol = d->protocolOf(absolutePath(fileName));
    if (!protocol || !d->remove(protocol))
        return false;
    Q_EMIT pluginsChanged();
    return true;
}

bool KirvPluginLoader::addProtocol(KirvProtocolBase *protocol)
{
    std::unique_ptr<KirvProtocolBase> owned(protocol);
    if (!protocol || !d->whyUnusable(protocol).isEmpty())
        return false;
    d->add(owned.release(), QString());
    Q_EMIT protocolLoaded(protocol);
    return true;
}

void KirvPluginLoader::broadcast(const QString &name, const QList<KirvArg> &args)
{
    QList<QPointer<KirvProtocolBase>> receivers;
    for (KirvProtocolBase *protocol : protocols())
        receivers.append(protocol);
    for (const QPointer<KirvProtocolBase> &receiver : qAsConst(receivers)) {
        if (receiver) // a receiver before it may have unloaded it
            receiver->handleCoreSignal(name, args);
    }
    Q_EMIT coreSignalEmitted(name, args);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_loader.h"

#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_protocol_base.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
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

    bool isTaken(const QString &name) const { return protocolsByName.contains(name); }

    KirvPluginInfo *info(const QString &fileName); ///< null for a file that is not known
    void setInfo(const KirvPluginInfo &info);
    KirvProtocolBase *protocolOf(const QString &fileName) const;
    void add(KirvProtocolBase *protocol, const QString &name, const QString &fileName);
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

void KirvPluginLoader::Private::add(KirvProtocolBase *protocol, const QString &name, const QString &fileName)
{
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
    if (!QDir(folder).exists())
        return false;
    const QStringList files = filesOf(folder);
    for (const QString &path : files) {
        if (!d->info(path))
            load(path);
    }
    return true;
}

QStringList KirvPluginLoader::filesOf(const QString &folder)
{
    const QDir directory(folder);
    QStringList paths;
    const QStringList names = directory.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names)
        paths += absolutePath(directory.filePath(name));
    return paths;
}

void KirvPluginLoader::announce(const QString &fileName)
{
    const QString path = absolutePath(fileName);
    if (d->info(path))
        return;
    KirvPluginInfo info;
    info.fileName = path;
    info.name = QFileInfo(path).completeBaseName();
    d->setInfo(info);
    Q_EMIT pluginsChanged();
}

bool KirvPluginLoader::inspect(const QString &fileName)
{
    const QString path = absolutePath(fileName);
    if (d->protocolOf(path))
        return true;
    const KirvPluginInfo info = KirvPluginFile(path).inspect();
    d->setInfo(info);
    Q_EMIT pluginsChanged();
    return info.loadable && info.error.isEmpty();
}

void KirvPluginLoader::setActivity(const QString &fileName, KirvPluginInfo::Activity activity)
{
    KirvPluginInfo *info = d->info(absolutePath(fileName));
    if (!info || info->activity == activity)
        return;
    info->activity = activity;
    Q_EMIT pluginsChanged();
}

void KirvPluginLoader::leaveOut(const QString &fileName, const QString &reason)
{
    KirvPluginInfo *info = d->info(absolutePath(fileName));
    if (!info || info->loaded)
        return;
    info->activity = KirvPluginInfo::NoActivity;
    info->error = reason;
    Q_EMIT pluginsChanged();
}

void KirvPluginLoader::readDescriptions()
{
    const QList<KirvPluginInfo> before = d->plugins; // what a plug-in does meanwhile may change the list
    for (const KirvPluginInfo &plugin : before) {
        KirvProtocolBase *protocol = d->protocolOf(plugin.fileName);
        QString description;
        if (!protocol || !kirvCallPlugin([&] { description = protocol->getDescription(); }))
            continue;
        if (KirvPluginInfo *known = d->info(plugin.fileName))
            known->description = description;
    }
    Q_EMIT pluginsChanged();
}

KirvPluginInfo KirvPluginLoader::plugin(const QString &fileName) const
{
    const KirvPluginInfo *info = d->info(absolutePath(fileName));
    return info ? *info : KirvPluginInfo();
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
    KirvPluginFile file(path);
    KirvPluginInfo info = file.inspect();
    std::unique_ptr<KirvProtocolBase> protocol;
    if (info.error.isEmpty()) {
        protocol = file.createProtocol();
        info.error = file.problem();
    }
    if (protocol && d->isTaken(file.protocolName())) {
        info.error = tr("A protocol with the name \"%1\" is loaded already.").arg(file.protocolName());
        protocol.reset();
    }
    if (protocol) {
        info.name = file.protocolName();
        info.description = file.protocolDescription();
        info.loaded = true;
        d->add(protocol.get(), info.name, path);
    }
    d->setInfo(info);
    if (protocol)
        Q_EMIT protocolLoaded(protocol.release());
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
    if (!protocol)
        return false;
    std::unique_ptr<KirvProtocolBase> owned(protocol);
    const QString name = protocol->getName();
    if (name.isEmpty() || d->isTaken(name) || protocol->presences().isEmpty())
        return false;
    d->add(owned.release(), name, QString());
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
            kirvCallPlugin([&] { receiver->handleCoreSignal(name, args); });
    }
    Q_EMIT coreSignalEmitted(name, args);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_LOADER_H
#define KIRV_PLUGIN_LOADER_H

#include "host/kirv_arg.h"

#include <QList>
#include <QObject>
#include <QString>
#include <memory>

class KirvProtocolBase;

/// The state of one plug-in file, for a list of plug-ins. A value type.
struct KirvPluginInfo {
    QString fileName; ///< absolute path of the library
    QString name; ///< the protocol's name, or the file's base name when it is not known
    QString description; ///< a sentence of the protocol's own; may be empty
    bool loaded = false;
    bool loadable = false; ///< whether load() may be tried (a file that is no plug-in stays out)
    QString error; ///< why it is not loaded, a sentence for the user; empty when nothing failed
};

/// Loads the protocol plug-ins of a folder and owns their protocols.
class KirvPluginLoader : public QObject {
    Q_OBJECT

public:
    explicit KirvPluginLoader(QObject *parent = nullptr);
    /// Unloads every protocol.
    ~KirvPluginLoader() override;

    /// Looks at every file in \a folder, in the order of names, and loads the protocol plug-ins among them.
    /// What cannot be used is reported in plugins(); files seen before are left as they are. A folder that does
    /// not exist is reported by false.
    bool loadFolder(const QString &folder);

    /// Every file seen so far, in order.
    QList<KirvPluginInfo> plugins() const;
    /// The loaded protocols, in the order of loading.
    QList<KirvProtocolBase *> protocols() const;
    /// The loaded protocol of that \a name, null when there is none. Constant time.
    KirvProtocolBase *protocol(const QString &name) const;

    /// Loads or unloads the protocol of that file at run time; false when it did not work out (the reason is
    /// in plugins()).
    bool load(const QString &fileName);
    bool unload(const QString &fileName);

    /// Registers a protocol that comes with the program instead of a file; takes ownership. False when it has no
    /// name or presence, or one of that name is there already (it is deleted then).
    bool addProtocol(KirvProtocolBase *protocol);

    /// Hands the core signal \a name to all protocols, and emits coreSignalEmitted().
    void broadcast(const QString &name, const QList<KirvArg> &args);

Q_SIGNALS:
    void protocolLoaded(KirvProtocolBase *protocol);
    /// The protocol is still complete; it is destroyed when all receivers have returned.
    void protocolAboutToBeUnloaded(KirvProtocolBase *protocol);
    void protocolUnloaded(const QString &name);
    void coreSignalEmitted(const QString &name, const QList<KirvArg> &args);
    /// Anything in plugins() changed.
    void pluginsChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif

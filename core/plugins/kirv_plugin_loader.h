// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_LOADER_H
#define KIRV_PLUGIN_LOADER_H

#include "core/plugins/kirv_plugin_file.h"
#include "host/kirv_arg.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <memory>

class KirvProtocolBase;

/// Loads the protocol plug-ins of a folder and owns their protocols.
///
/// It runs the code of the plug-ins in this process, while its caller waits; KirvPluginQueue uses it one plug-in at a
/// time. Exceptions of a plug-in become its error.
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

    /// The files of \a folder in the order of names, as absolute paths.
    static QStringList filesOf(const QString &folder);
    /// Lists the file in plugins() without reading it, unless it is there already.
    void announce(const QString &fileName);
    /// Reads what the file states, none of its code is run. False when it must not be loaded; plugins() says why.
    bool inspect(const QString &fileName);
    /// Shows what is being done with an announced file, or why it is left out: a sentence for the user.
    void setActivity(const QString &fileName, KirvPluginInfo::Activity activity);
    void leaveOut(const QString &fileName, const QString &reason);
    /// The announced file; empty when it was not announced.
    KirvPluginInfo plugin(const QString &fileName) const;

    /// Reads the descriptions of the loaded plug-ins again, for when the program uses another language.
    void readDescriptions();

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

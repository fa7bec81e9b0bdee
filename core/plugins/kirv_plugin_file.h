// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_FILE_H
#define KIRV_PLUGIN_FILE_H

#include <QCoreApplication>
#include <QString>

#include <memory>

class KirvProtocolBase;

/// The state of one plug-in file, for a list of plug-ins. A value type.
struct KirvPluginInfo {
    /// What is being done with the file at the moment.
    enum Activity { NoActivity, Waiting, BeingTested, BeingLoaded };

    QString fileName; ///< absolute path of the library
    QString name; ///< the protocol's name, or the file's base name when it is not known
    QString description; ///< a sentence of the protocol's own; may be empty
    bool loaded = false;
    bool loadable = false; ///< whether load() may be tried (a file that is no plug-in stays out)
    Activity activity = NoActivity;
    QString error; ///< why it is not loaded, a sentence for the user; empty when nothing failed
};

/// One plug-in file: what it states, and the protocol that it creates.
class KirvPluginFile {
    Q_DECLARE_TR_FUNCTIONS(KirvPluginFile)

public:
    /// \a path is absolute.
    explicit KirvPluginFile(const QString &path);

    /// What can be said about the file without running any of its code. An error means that it must not be loaded.
    KirvPluginInfo inspect() const;

    /// Loads the library into this process and lets it create its protocol. The library is never unloaded.
    /// Null with problem() when there is no protocol that can be used.
    std::unique_ptr<KirvProtocolBase> createProtocol();

    // What the protocol states; set by createProtocol().
    QString protocolName() const { return name; }
    QString protocolDescription() const { return description; }
    QString problem() const { return failure; }

private:
    std::unique_ptr<KirvProtocolBase> create();
    void examine(KirvProtocolBase *protocol);

    QString path;
    QString name;
    QString description;
    QString failure;
};

#endif

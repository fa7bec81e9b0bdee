// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_MANAGER_H
#define KIRV_PLUGIN_MANAGER_H

#include "host/kirv_arg.h"

#include <QList>
#include <QString>

class KirvProtocol;

/// The process-wide plug-in manager. Call it from the GUI thread only.
class KirvPluginManager {
public:
    /// The plug-in manager of this process; not owned by the caller.
    static KirvPluginManager *getInstance();

    /// The loaded protocol of that \a name, null when there is none. The manager owns it.
    KirvProtocol *getProtocolByName(const QString &name);
};

/// The part of the plug-in manager that reaches all plug-ins at once.
class KirvPluginManagerPrivate {
public:
    /// Not owned by this pointer; null before the client core is up and after it has gone.
    static KirvPluginManagerPrivate *instance;

    /// Broadcasts the core signal \a name to all plug-ins, which act on the names they know.
    void emitCoreSignal(const QString &name, QList<KirvArg> args);
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLIENT_OPTIONS_H
#define KIRV_CLIENT_OPTIONS_H

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the command line says.
struct KirvClientOptions {
    Q_DECLARE_TR_FUNCTIONS(KirvClientOptions)

public:
    QString profileFolder;
    QString pluginFolder;

    /// The user's own profile and the plug-ins that came with the program.
    static KirvClientOptions defaults();
    /// The options that \a arguments, the program's name first, ask for. Prints and ends the program for
    /// --help, --version and what it does not understand.
    static KirvClientOptions fromCommandLine(const QStringList &arguments);
};

#endif

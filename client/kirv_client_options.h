// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLIENT_OPTIONS_H
#define KIRV_CLIENT_OPTIONS_H

#include "client/kirv_account_link.h"

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;

/// What the command line says.
struct KirvClientOptions {
    Q_DECLARE_TR_FUNCTIONS(KirvClientOptions)

public:
    /// What the program is to do.
    enum Command {
        Start, ///< show its windows
        Check, ///< say whether the profile is damaged
        Restore, ///< put a copy in the place of the profile's database
        Recover ///< read what is still readable of the profile's database
    };

    Command command = Start;
    QString copy; ///< the file name or path of the copy to restore; empty: the newest
    QString profileFolder; ///< absolute; empty when there is none, and profileProblem says why
    QString profileProblem; ///< a sentence for the user
    QString pluginFolder;
    bool usesKeyring = false; ///< whether passwords go to the desktop's keyring; only of the user's own program
    KirvAccountLink link; ///< whose account is to be added; null: none
    QString linkText; ///< the link as it was typed, also one that is too long

    /// The user's own profile and the plug-ins that came with the program.
    static KirvClientOptions defaults();
    /// The options that say where the profile and the plug-ins are; every command has them.
    static QList<QCommandLineOption> placeOptions();
    /// What \a parser has read of them. Ends the program when one names no folder.
    static KirvClientOptions ofPlaces(const QCommandLineParser &parser);
    /// The options in \a arguments, the program's name first. Prints and ends the program for --help, --version and
    /// what it does not understand.
    static KirvClientOptions fromCommandLine(const QStringList &arguments);
    /// Whether one of \a arguments says that no window is to be shown, so that no display is needed.
    static bool isWithoutWindow(const QStringList &arguments);
};

#endif

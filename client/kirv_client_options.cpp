// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client_options.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>

namespace {
/// The plug-ins beside the program come first, so that a build that is not installed uses its own.
QString ownPluginFolder()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QStringList candidates { program.filePath(QStringLiteral("../lib/kirv/protocols")),
                                   program.filePath(QStringLiteral("../" KIRV_PROTOCOL_INSTALL_DIRECTORY)) };
    for (const QString &candidate : candidates) {
        if (QFileInfo(candidate).isDir())
            return QDir::cleanPath(candidate);
    }
    return QDir::cleanPath(candidates.last());
}

/// Ends the program when the option names no folder: the present one would be a surprise.
QString folderOf(const QCommandLineParser &parser, const QCommandLineOption &option)
{
    const QString folder = parser.value(option);
    if (folder.isEmpty()) {
        //: %1 = name of an option
        std::fprintf(stderr, "kirv: %s\n",
                     qPrintable(KirvClientOptions::tr("The option --%1 needs a folder.").arg(option.names().first())));
        std::exit(1);
    }
    return QDir::current().absoluteFilePath(folder);
}
} // namespace

KirvClientOptions KirvClientOptions::defaults()
{
    KirvClientOptions options;
    options.profileFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    options.pluginFolder = ownPluginFolder();
    return options;
}

KirvClientOptions KirvClientOptions::fromCommandLine(const QStringList &arguments)
{
    const QCommandLineOption profile(QStringLiteral("profile"),
                                     tr("Keep accounts and settings in <folder> instead of the person's own profile."),
                                     tr("folder"));
    const QCommandLineOption plugins(QStringLiteral("plugins"), tr("Load the protocol plug-ins of <folder>."),
                                     tr("folder"));

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Accounts of several instant-messaging protocols in one place."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({ profile, plugins });
    parser.process(arguments);

    KirvClientOptions options = defaults();
    if (parser.isSet(profile))
        options.profileFolder = folderOf(parser, profile);
    if (parser.isSet(plugins))
        options.pluginFolder = folderOf(parser, plugins);
    return options;
}

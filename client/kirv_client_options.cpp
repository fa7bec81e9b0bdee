// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client_options.h"

#include "core/store/kirv_default_profile.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {
/// The plug-ins beside the program come first, so that a build that is not installed uses its own.
QString ownPluginFolder()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QStringList candidates { program.filePath(QStringLiteral("../lib/kirv/protocols")),
                                   program.filePath(QStringLiteral(KIRV_PROTOCOLS_FROM_BIN)) };
    for (const QString &candidate : candidates) {
        if (QFileInfo(candidate).isDir())
            return QDir::cleanPath(candidate);
    }
    return QDir::cleanPath(candidates.last());
}

[[noreturn]] void refuse(const QString &text)
{
    std::fprintf(stderr, "kirv: %s\n", qPrintable(text));
    std::exit(1);
}

const QString profileOption = QStringLiteral("profile"), pluginsOption = QStringLiteral("plugins");

/// Ends the program when the option names no folder: the present one would be a surprise.
QString folderOf(const QCommandLineParser &parser, const QString &option)
{
    const QString folder = parser.value(option);
    if (folder.isEmpty()) {
        //: %1 = name of an option
        refuse(KirvClientOptions::tr("The option --%1 needs a folder.").arg(option));
    }
    return QDir::current().absoluteFilePath(folder);
}

/// The commands among the options.
class Commands {
public:
    Commands()
        : options {
            { KirvClientOptions::Check,
              { QStringLiteral("check"),
                KirvClientOptions::tr("Say whether the profile is damaged, list its copies and end: with 0 when "
                                      "it can be used, 2 when it is damaged, and 1 when it cannot be used for "
                                      "another reason.") } },
            { KirvClientOptions::Restore,
              { QStringLiteral("restore"),
                KirvClientOptions::tr("Put a copy in the place of the profile's database and end: the newest, or "
                                      "the one that is named. Passwords are in no copy.") } },
            { KirvClientOptions::Recover,
              { QStringLiteral("recover"),
                KirvClientOptions::tr("Read what is still readable of the profile's damaged database, keep that, "
                                      "and end.") } }
        }
    {
    }

    void addTo(QCommandLineParser &parser) const
    {
        for (const auto &option : options)
            parser.addOption(option.second);
        parser.addPositionalArgument(QStringLiteral("copy"), KirvClientOptions::tr("The copy to restore."),
                                     KirvClientOptions::tr("[copy]"));
        parser.addPositionalArgument(QStringLiteral("link"),
                                     KirvClientOptions::tr("A link that begins with xmpp:, irc: or ircs: opens the "
                                                           "window for a new account of that protocol."),
                                     KirvClientOptions::tr("[link]"));
    }

    /// Ends the program when the command line has more than one command, or something behind a command that takes
    /// nothing.
    void read(const QCommandLineParser &parser, KirvClientOptions *read) const
    {
        QStringList names;
        for (const auto &option : options) {
            if (!parser.isSet(option.second))
                continue;
            read->command = option.first;
            names << QLatin1String("--") + option.second.names().first();
        }
        if (names.size() > 1) {
            //: %1, %2 = names of options
            refuse(
                KirvClientOptions::tr("The options %1 and %2 cannot be used together.").arg(names.at(0), names.at(1)));
        }
        QStringList others = parser.positionalArguments();
        if (read->command == KirvClientOptions::Restore && !others.isEmpty())
            read->copy = others.takeFirst();
        if (read->command == KirvClientOptions::Start && !others.isEmpty()) {
            read->link = KirvAccountLink::fromText(others.first());
            if (!read->link.isNull() || read->link.isTooLong)
                read->linkText = others.takeFirst();
        }
        if (!others.isEmpty()) {
            //: %1 = a word of the command line
            refuse(KirvClientOptions::tr("The argument \"%1\" is not known.").arg(others.first()));
        }
    }

private:
    const QList<QPair<KirvClientOptions::Command, QCommandLineOption>> options;
};
} // namespace

KirvClientOptions KirvClientOptions::defaults()
{
    KirvClientOptions options;
    options.profileFolder = kirvDefaultProfileFolder(&options.profileProblem);
    options.pluginFolder = ownPluginFolder();
    return options;
}

QList<QCommandLineOption> KirvClientOptions::placeOptions()
{
    return { { profileOption, tr("Keep accounts and settings in <folder> instead of the user's own profile."),
               tr("folder") },
             { pluginsOption, tr("Load the protocol plug-ins of <folder>."), tr("folder") } };
}

KirvClientOptions KirvClientOptions::ofPlaces(const QCommandLineParser &parser)
{
    KirvClientOptions options = defaults();
    options.usesKeyring = true;
    if (parser.isSet(profileOption))
        options.profileFolder = folderOf(parser, profileOption);
    if (parser.isSet(pluginsOption))
        options.pluginFolder = folderOf(parser, pluginsOption);
    return options;
}

KirvClientOptions KirvClientOptions::fromCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Accounts of several instant-messaging protocols in one place.\n"
                                        "\"kirv accounts --help\" says how accounts are listed, enabled, disabled, "
                                        "exported and imported without windows."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions(placeOptions());
    const Commands commands;
    commands.addTo(parser);
    parser.process(arguments);

    KirvClientOptions options = ofPlaces(parser);
    commands.read(parser, &options);
    return options;
}

bool KirvClientOptions::isWithoutWindow(const QStringList &arguments)
{
    static const QStringList words { QStringLiteral("--check"),   QStringLiteral("--restore"),
                                     QStringLiteral("--recover"), QStringLiteral("--help"),
                                     QStringLiteral("-h"),        QStringLiteral("--version"),
                                     QStringLiteral("-v") };
    return std::any_of(arguments.begin(), arguments.end(),
                       [](const QString &argument) { return words.contains(argument); });
}

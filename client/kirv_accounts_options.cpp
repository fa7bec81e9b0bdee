// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_options.h"

#include "client/kirv_terminal_text.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

using Command = KirvAccountsRequest::Command;

const QLatin1String topic("accounts");

/// Where the word "accounts" stands among \a arguments; -1: it is no command.
int topicIn(const QStringList &arguments)
{
    for (int index = 1; index < arguments.size(); ++index) {
        const QString &argument = arguments.at(index);
        if (argument == topic)
            return index;
        if (argument == QLatin1String("--profile") || argument == QLatin1String("--plugins"))
            ++index; // its folder
        else if (!argument.startsWith(QLatin1Char('-')))
            return -1;
    }
    return -1;
}

[[noreturn]] void refuse(const QString &text)
{
    std::fprintf(stderr, "kirv: %s\n", qPrintable(kirvTerminalText(text, 1000)));
    std::exit(KirvAccountsReply::Refused);
}

/// The options and which commands have them.
class Parser {
public:
    Parser();

    void read(const QStringList &arguments, KirvAccountsOptions *options);

private:
    struct Option {
        QCommandLineOption option;
        QList<Command> commands; ///< that have it; empty: all
    };

    void readCommand(KirvAccountsOptions *options);
    void readFlags(KirvAccountsOptions *options) const;
    void readPassPhrase(KirvAccountsOptions *options) const;
    bool isSet(const char *name) const { return parser.isSet(QLatin1String(name)); }

    QCommandLineParser parser;
    QList<Option> all;
    QStringList words;
};

Parser::Parser()
    : all {
        { { QStringLiteral("json"), KirvAccountsOptions::tr("Print one line of JSON.") }, {} },
        { { QStringLiteral("with-passwords"),
            KirvAccountsOptions::tr("Export: put passwords into the file, encrypted with a pass phrase.") },
          { KirvAccountsRequest::Export } },
        { { QStringLiteral("force"), KirvAccountsOptions::tr("Export: overwrite a file that is there.") },
          { KirvAccountsRequest::Export } },
        { { QStringLiteral("without-passwords"),
            KirvAccountsOptions::tr("Import: leave out the passwords that are in the file.") },
          { KirvAccountsRequest::Import } },
        { { QStringLiteral("replace"),
            KirvAccountsOptions::tr("Import: replace accounts that exist by those of the file.") },
          { KirvAccountsRequest::Import } },
        { { QStringLiteral("dry-run"), KirvAccountsOptions::tr("Import: say what would be done, and change nothing.") },
          { KirvAccountsRequest::Import } },
        { { QStringLiteral("pass-phrase-file"),
            KirvAccountsOptions::tr("Export and import: the pass phrase is the first line of <file>."),
            KirvAccountsOptions::tr("file") },
          { KirvAccountsRequest::Export, KirvAccountsRequest::Import } },
        { { QStringLiteral("pass-phrase-fd"),
            KirvAccountsOptions::tr(
                "Export and import: the pass phrase is the first line that can be read from the file "
                "descriptor <number>."),
            KirvAccountsOptions::tr("number") },
          { KirvAccountsRequest::Export, KirvAccountsRequest::Import } },
    }
{
    parser.setApplicationDescription(
        KirvAccountsOptions::tr("Lists, enables, disables, exports and imports accounts.\n"
                                "An account is named PROTOCOL:ID, or by its id when no other account has the same.\n\n"
                                "  accounts list [account…]\n"
                                "  accounts enable account…\n"
                                "  accounts disable account…\n"
                                "  accounts export file [account…]\n"
                                "  accounts import file\n\n"
                                "A file is called - where the standard output or input is meant."));
    parser.addHelpOption();
    parser.addOptions(KirvClientOptions::placeOptions());
    for (const Option &option : std::as_const(all))
        parser.addOption(option.option);
    parser.addPositionalArgument(topic, QString(), topic);
    parser.addPositionalArgument(QStringLiteral("command"),
                                 KirvAccountsOptions::tr("list, enable, disable, export or import."));
    parser.addPositionalArgument(QStringLiteral("argument"), KirvAccountsOptions::tr("A file or an account."),
                                 KirvAccountsOptions::tr("[argument…]"));
}

void Parser::read(const QStringList &arguments, KirvAccountsOptions *options)
{
    parser.process(arguments);
    options->client = KirvClientOptions::ofPlaces(parser);
    words = parser.positionalArguments().mid(1);
    readCommand(options);
    readFlags(options);
    readPassPhrase(options);
}

void Parser::readCommand(KirvAccountsOptions *options)
{
    if (words.isEmpty())
        refuse(KirvAccountsOptions::tr("The command is missing: list, enable, disable, export or import."));
    const QString name = words.takeFirst();
    if (!KirvAccountsRequest::commandOf(name, &options->command)) {
        //: %1 = a word of the command line
        refuse(KirvAccountsOptions::tr("The command \"%1\" is not known: it can be list, enable, disable, export or "
                                       "import.")
                   .arg(name));
    }
    for (const Option &option : std::as_const(all)) {
        if (parser.isSet(option.option) && !option.commands.isEmpty() && !option.commands.contains(options->command)) {
            //: %1 = name of an option, %2 = name of a command
            refuse(KirvAccountsOptions::tr("The option --%1 does not belong to the command \"%2\".")
                       .arg(option.option.names().first(), name));
        }
    }
    const bool hasFile =
        options->command == KirvAccountsRequest::Export || options->command == KirvAccountsRequest::Import;
    if (hasFile && (words.isEmpty() || words.first().isEmpty()))
        refuse(KirvAccountsOptions::tr("The file is missing."));
    if (hasFile)
        options->file = words.takeFirst();
    if (options->command == KirvAccountsRequest::Import && !words.isEmpty()) {
        //: %1 = a word of the command line
        refuse(KirvAccountsOptions::tr("The argument \"%1\" is not known.").arg(words.first()));
    }
    if (!hasFile && options->command != KirvAccountsRequest::List && words.isEmpty())
        refuse(KirvAccountsOptions::tr("The account is missing."));
    options->names = words;
}

void Parser::readFlags(KirvAccountsOptions *options) const
{
    options->isJson = isSet("json");
    options->overwrites = isSet("force");
    options->withPasswords = isSet("with-passwords");
    options->withoutPasswords = isSet("without-passwords");
    options->replaces = isSet("replace");
    options->isTrial = isSet("dry-run");
    if (options->isJson && options->command == KirvAccountsRequest::Export && options->file == QLatin1String("-"))
        refuse(KirvAccountsOptions::tr("The option --json cannot be used when the file goes to the standard output."));
}

void Parser::readPassPhrase(KirvAccountsOptions *options) const
{
    const bool isInFile = isSet("pass-phrase-file"), isInDescriptor = isSet("pass-phrase-fd");
    if (isInFile && isInDescriptor)
        //: %1, %2 = names of options
        refuse(KirvClientOptions::tr("The options %1 and %2 cannot be used together.")
                   .arg(QLatin1String("--pass-phrase-file"), QLatin1String("--pass-phrase-fd")));
    const bool isUseless =
        options->command == KirvAccountsRequest::Export ? !options->withPasswords : options->withoutPasswords;
    if ((isInFile || isInDescriptor) && isUseless)
        refuse(KirvAccountsOptions::tr("A pass phrase is of no use when no passwords are exported or imported."));
    if (isInFile)
        options->passPhraseFile = parser.value(QStringLiteral("pass-phrase-file"));
    if (isInFile && options->passPhraseFile.isEmpty())
        refuse(KirvAccountsOptions::tr("The file with the pass phrase is missing."));
    bool isNumber = true;
    if (isInDescriptor)
        options->passPhraseDescriptor = parser.value(QStringLiteral("pass-phrase-fd")).toInt(&isNumber);
    if (!isNumber || options->passPhraseDescriptor < (isInDescriptor ? 0 : -1))
        refuse(KirvAccountsOptions::tr("The option --pass-phrase-fd needs the number of a file descriptor."));
}

} // namespace

bool KirvAccountsOptions::areMeant(const QStringList &arguments)
{
    return topicIn(arguments) > 0;
}

bool KirvAccountsOptions::areForImport(const QStringList &arguments)
{
    const int index = topicIn(arguments);
    return index > 0 && arguments.mid(index + 1).contains(KirvAccountsRequest::nameOf(KirvAccountsRequest::Import));
}

KirvAccountsOptions KirvAccountsOptions::fromCommandLine(const QStringList &arguments)
{
    KirvAccountsOptions options;
    Parser().read(arguments, &options);
    return options;
}

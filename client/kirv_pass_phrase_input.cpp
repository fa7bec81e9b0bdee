// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_pass_phrase_input.h"

#include "client/kirv_accounts_options.h"
#include "client/kirv_terminal_line.h"
#include "core/moving/kirv_pass_phrase.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {
const int longest = KirvPassPhrase::longest;
}

KirvPassPhraseInput::KirvPassPhraseInput(const KirvAccountsOptions &options)
    : options(options)
{
}

bool KirvPassPhraseInput::isNamed(const KirvAccountsOptions &options)
{
    return options.passPhraseDescriptor >= 0 || !options.passPhraseFile.isEmpty();
}

QString KirvPassPhraseInput::read(bool isNew)
{
    const QString phrase = readAny(isNew);
    const QString problem = isNew && !phrase.isEmpty() ? KirvPassPhrase::problemWithNew(phrase) : QString();
    return problem.isEmpty() ? phrase : fail(problem);
}

QString KirvPassPhraseInput::readAny(bool isNew)
{
    if (options.passPhraseDescriptor >= 0)
        return fromDescriptor(options.passPhraseDescriptor);
    return options.passPhraseFile.isEmpty() ? fromTerminal(isNew) : fromFile(options.passPhraseFile);
}

QString KirvPassPhraseInput::fail(const QString &problem)
{
    text = problem;
    return QString();
}

/// Byte by byte, as what follows the line may be meant for somebody else.
QString KirvPassPhraseInput::firstLine(int descriptor, const Problems &problems)
{
    QByteArray line;
    line.reserve(longest + 1);
    char byte = 0;
    ssize_t count = 1;
    while (line.size() <= longest) {
        count = ::read(descriptor, &byte, 1);
        if (count < 0 && errno == EINTR)
            continue;
        if (count != 1 || byte == '\n')
            break;
        line += byte;
    }
    if (count < 0)
        return fail(problems.unreadable);
    if (line.endsWith('\r'))
        line.chop(1);
    const QString read = line.size() > longest ? QString() : KirvPassPhrase::fromBytes(line);
    const bool isTooLong = line.size() > longest;
    line.fill('\0');
    if (isTooLong)
        return fail(problems.tooLong);
    return read.isEmpty() ? fail(problems.missing) : read;
}

QString KirvPassPhraseInput::fromDescriptor(int descriptor)
{
    return firstLine(descriptor,
                     { tr("The pass phrase cannot be read from file descriptor %1.").arg(descriptor),
                       tr("The pass phrase from file descriptor %1 is too long.").arg(descriptor),
                       tr("There is no pass phrase to be read from file descriptor %1.").arg(descriptor) });
}

QString KirvPassPhraseInput::fromFile(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const QString line = firstLine(descriptor,
                                   { tr("The pass phrase cannot be read from the file \"%1\".").arg(path),
                                     tr("The pass phrase in the file \"%1\" is too long.").arg(path),
                                     tr("There is no pass phrase in the file \"%1\".").arg(path) });
    if (descriptor >= 0)
        ::close(descriptor);
    return line;
}

QString KirvPassPhraseInput::fromTerminal(bool isNew)
{
    KirvTerminalLine terminal;
    if (!terminal.isOpen())
        return fail(tr("A pass phrase is needed, and there is no terminal to enter it on. Use --pass-phrase-file or "
                       "--pass-phrase-fd."));
    QByteArray typed, repeated;
    if (!terminal.read(tr("Pass phrase for the file: "), longest, &typed) || typed.isEmpty())
        return fail(tr("No pass phrase was entered."));
    if (isNew && (!terminal.read(tr("Repeat the pass phrase: "), longest, &repeated) || typed != repeated))
        return fail(tr("The two pass phrases are not the same."));
    const QString read = KirvPassPhrase::fromBytes(typed);
    typed.fill('\0');
    repeated.fill('\0');
    return read;
}

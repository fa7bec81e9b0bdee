// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_terminal_line.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <termios.h>
#include <unistd.h>

namespace {

const int endSignals[] = { SIGINT, SIGTERM, SIGHUP, SIGQUIT };
volatile std::sig_atomic_t caught = 0;

void noteSignal(int number)
{
    caught = number;
}

/// While it lives, a signal that would end the process interrupts read() instead; it ends the process afterwards.
class HeldSignals {
public:
    HeldSignals()
    {
        caught = 0;
        struct sigaction note { };
        note.sa_handler = noteSignal; // without SA_RESTART
        for (size_t index = 0; index < std::size(endSignals); ++index)
            ::sigaction(endSignals[index], &note, &before[index]);
    }
    ~HeldSignals()
    {
        for (size_t index = 0; index < std::size(endSignals); ++index)
            ::sigaction(endSignals[index], &before[index], nullptr);
        if (caught != 0)
            std::raise(caught);
    }

private:
    Q_DISABLE_COPY(HeldSignals)
    struct sigaction before[std::size(endSignals)] {};
};

/// While it lives, what is typed is not shown, and read() gives it character by character.
class SilentTerminal {
public:
    explicit SilentTerminal(int descriptor)
        : descriptor(descriptor)
    {
        isKnown = ::tcgetattr(descriptor, &before) == 0;
        struct termios silent = before;
        silent.c_lflag &= ~tcflag_t(ECHO | ICANON | ISIG);
        silent.c_cc[VMIN] = 1;
        silent.c_cc[VTIME] = 0;
        isKnown = isKnown && ::tcsetattr(descriptor, TCSAFLUSH, &silent) == 0;
    }
    ~SilentTerminal()
    {
        if (isKnown)
            ::tcsetattr(descriptor, TCSAFLUSH, &before);
    }
    bool isSilent() const { return isKnown; }

private:
    Q_DISABLE_COPY(SilentTerminal)
    const int descriptor;
    bool isKnown;
    struct termios before { };
};

/// The last character, which may be several bytes of UTF-8.
void removeCharacter(QByteArray *line)
{
    while (!line->isEmpty() && (uchar(line->back()) & 0xC0) == 0x80)
        line->chop(1);
    line->chop(1);
}

/// Takes the character typed last; false when the line ends with it, and \a isCancelled says how.
bool take(char typed, QByteArray *line, bool *isCancelled)
{
    switch (typed) {
    case '\n':
    case '\r':
        return false;
    case 0x03: // Ctrl+C
    case 0x04: // Ctrl+D
        *isCancelled = true;
        return false;
    case 0x08:
    case 0x7f:
        removeCharacter(line);
        return true;
    case 0x15: // Ctrl+U
        line->clear();
        return true;
    default:
        line->append(typed);
        return true;
    }
}

} // namespace

KirvTerminalLine::KirvTerminalLine()
    : descriptor(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC))
{
}

KirvTerminalLine::~KirvTerminalLine()
{
    if (isOpen())
        ::close(descriptor);
}

void KirvTerminalLine::print(const QByteArray &text) const
{
    const ssize_t written = ::write(descriptor, text.constData(), size_t(text.size()));
    Q_UNUSED(written);
}

bool KirvTerminalLine::read(const QString &prompt, int longest, QByteArray *line)
{
    line->clear();
    line->reserve(longest + 1); // no copies of it are left where it grew
    const HeldSignals signalsHeld;
    bool isCancelled = false;
    {
        const SilentTerminal silent(descriptor);
        if (!silent.isSilent())
            return false;
        print(prompt.toLocal8Bit());
        char typed = 0;
        do {
            ssize_t count = -1;
            do
                count = ::read(descriptor, &typed, 1);
            while (count < 0 && errno == EINTR && caught == 0);
            if (count != 1)
                isCancelled = true;
        } while (!isCancelled && take(typed, line, &isCancelled) && line->size() <= longest);
        print("\n");
    }
    return !isCancelled && line->size() <= longest;
}

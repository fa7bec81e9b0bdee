// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_quit_signals.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {
// A signal handler may do next to nothing; writing a byte into a pipe is allowed.
int pipeEnds[2] = { -1, -1 };
const int quitSignals[] = { SIGINT, SIGTERM, SIGHUP };

void noteSignal(int)
{
    const char byte = 0;
    const ssize_t written = write(pipeEnds[1], &byte, 1);
    Q_UNUSED(written);
}
} // namespace

KirvQuitSignals::KirvQuitSignals(QObject *parent)
    : QObject(parent)
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals then end the program as they always do
    notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte;
        while (read(pipeEnds[0], &byte, 1) == 1) { }
        emit quitRequested();
    });
    for (int number : quitSignals)
        std::signal(number, noteSignal);
}

KirvQuitSignals::~KirvQuitSignals()
{
    if (!notifier)
        return;
    for (int number : quitSignals)
        std::signal(number, SIG_DFL);
    delete notifier;
    close(pipeEnds[0]);
    close(pipeEnds[1]);
}

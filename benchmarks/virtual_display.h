// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_VIRTUAL_DISPLAY_H
#define KIRV_VIRTUAL_DISPLAY_H

#include <QByteArray>
#include <QProcess>
#include <sys/types.h>

struct xcb_connection_t;

/// An X server without a screen, and what it says about the windows of programs. Ends the program when something fails
/// that has to be there.
class VirtualDisplay {
public:
    /// Starts the server.
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay &) = delete;
    VirtualDisplay &operator=(const VirtualDisplay &) = delete;

    /// The value of DISPLAY.
    QByteArray name() const { return displayName; }

    /// Waits until the server has mapped a window of \a process. Gives the time on the clock of now(), or -1 after ten
    /// seconds. What other programs had mapped before that is forgotten.
    qint64 timeOfFirstWindow(pid_t process);
    /// Waits until something is painted in the middle of that window, which is black before. Gives the time likewise.
    qint64 timeOfFirstPainting();

    /// The time on the clock that all processes of this computer share, in nanoseconds.
    static qint64 now();

private:
    bool isOf(unsigned int window, pid_t process);
    bool isPainted();

    QProcess server;
    QByteArray displayName;
    xcb_connection_t *connection = nullptr;
    unsigned int processAtom = 0;
    unsigned int window = 0;
};

#endif

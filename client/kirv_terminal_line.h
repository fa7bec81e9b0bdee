// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TERMINAL_LINE_H
#define KIRV_TERMINAL_LINE_H

#include <QByteArray>
#include <QString>

/// The terminal of the process while secrets are typed on it.
class KirvTerminalLine {
public:
    /// Opens the terminal, whatever the standard input is.
    KirvTerminalLine();
    ~KirvTerminalLine();

    bool isOpen() const { return descriptor >= 0; }
    /// Prints \a prompt and gives what is typed, without an echo, until the line ends. False when it was cancelled with
    /// Ctrl+C or Ctrl+D, or is longer than \a longest bytes. A signal that ends the process ends it with the terminal
    /// as it was.
    bool read(const QString &prompt, int longest, QByteArray *line);

private:
    Q_DISABLE_COPY(KirvTerminalLine)
    void print(const QByteArray &text) const;

    int descriptor = -1;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RUNNING_INSTANCE_H
#define KIRV_RUNNING_INSTANCE_H

#include "client/kirv_account_link.h"

#include <QLocalServer>
#include <QObject>

class QLocalSocket;

/// What a program that has a profile open hears of later starts with the same profile: these hand over the link they
/// were started with, and end.
///
/// Both meet at a socket in the folder that the desktop keeps for the user's running programs (XDG_RUNTIME_DIR), which
/// only that user can use. Where there is no such folder nothing is handed over, and a second start says that the
/// profile is in use.
class KirvRunningInstance : public QObject {
    Q_OBJECT

public:
    /// Longest link that is handed over, in bytes of UTF-8.
    static const int longestLink = 4096;

    /// Waits for later starts. To be made only by who has the profile in \a profileFolder open: what a program that
    /// ended without a farewell has left of its socket is replaced.
    explicit KirvRunningInstance(const QString &profileFolder, QObject *parent = nullptr);
    ~KirvRunningInstance() override;

    /// Whether later starts can be heard of.
    bool isListening() const { return server.isListening(); }

    /// Hands \a link, as it was typed, or an empty text, to the program that has the profile in \a profileFolder open.
    /// Waits at most \a milliseconds for its reply; false when there was none. Needs no event loop.
    static bool handOver(const QString &profileFolder, const QString &link, int milliseconds = 10000);

Q_SIGNALS:
    /// The program was started again, with \a link, or without one when that is null.
    void startedAgain(const KirvAccountLink &link);

private:
    static QString socketPath(const QString &profileFolder);
    void accept(QLocalSocket *socket);
    void read(QLocalSocket *socket);

    QLocalServer server;
};

#endif

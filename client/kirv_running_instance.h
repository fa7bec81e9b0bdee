// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RUNNING_INSTANCE_H
#define KIRV_RUNNING_INSTANCE_H

#include "client/kirv_account_link.h"

#include <QJsonObject>
#include <QList>
#include <QLocalServer>
#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <functional>

class KirvInstanceConnection;

/// What a program that has a profile open hears of later starts with the same profile: these hand over the link they
/// were started with, or a command, and end.
///
/// Both meet at a socket in the folder that the desktop keeps for the user's running programs (XDG_RUNTIME_DIR), which
/// only that user can use. Where there is no such folder nothing is handed over, and a second start says that the
/// profile is in use. Each end makes sure that the other belongs to the same user.
class KirvRunningInstance : public QObject {
    Q_OBJECT

public:
    /// Later starts that are heard at a time.
    static const int mostAtOnce = 8;

    /// Called with the reply, once, at any time; not needed any more when the other end is gone.
    using Reply = std::function<void(const QJsonObject &reply)>;
    using Handler = std::function<void(const QJsonObject &command, const Reply &reply)>;

    /// What a later start gets. A value type.
    struct Answer {
        bool isThere = false; ///< a program listens
        QJsonObject message; ///< its reply; empty: none that counts
        QString problem; ///< why there is none that counts, or why it refuses, a sentence for the user
    };

    /// Waits for later starts. To be made only by who has the profile in \a profileFolder open: what a program that
    /// ended without a farewell has left of its socket is replaced.
    explicit KirvRunningInstance(const QString &profileFolder, QObject *parent = nullptr);
    ~KirvRunningInstance() override;

    /// Whether later starts can be heard of.
    bool isListening() const { return server.isListening(); }
    /// Who handles the messages that do more than show the window. Without one they are refused.
    void setHandler(const Handler &newHandler) { handler = newHandler; }

    /// Whether there is a folder where both can meet.
    static bool canMeet(const QString &profileFolder);
    /// Hands \a link, as it was typed, or an empty text, to the program that has the profile in \a profileFolder open.
    /// Of one that is too long only that is handed over.
    /// Waits at most \a milliseconds for its reply, less when nobody listens; false when there was none that counts,
    /// and \a problem, which may be null, gets a sentence when the program refuses. Needs no event loop.
    static bool handOver(const QString &profileFolder, const QString &link, int milliseconds = 10000,
                         QString *problem = nullptr);
    /// Sends \a message there and waits for the reply: at most \a connectMilliseconds until somebody listens, and
    /// \a milliseconds from then on.
    static Answer request(const QString &profileFolder, const QJsonObject &message, int connectMilliseconds,
                          int milliseconds);

Q_SIGNALS:
    /// The program was started again, with \a link, or without one when that is null; that may have been too long.
    void laterStart(const KirvAccountLink &link);

private:
    static QString socketPath(const QString &profileFolder);
    void accept(QLocalSocket *socket);
    void handle(KirvInstanceConnection *connection, const QJsonObject &message);
    void nextLarge();

    QThreadPool threads; ///< before what uses it
    QLocalServer server;
    Handler handler;
    int connections = 0;
    QList<QPointer<KirvInstanceConnection>> large;
    QPointer<KirvInstanceConnection> currentLarge;
};

#endif

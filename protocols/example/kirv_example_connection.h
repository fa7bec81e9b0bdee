// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EXAMPLE_CONNECTION_H
#define KIRV_EXAMPLE_CONNECTION_H

#include "core/protocol/kirv_connection.h"

/// A connection to a server that exists in this object only. It replies after the latency of the account's settings,
/// accepts every password but "wrong", and keeps one directory entry.
class KirvExampleConnection : public KirvConnection {
    Q_OBJECT

public:
    explicit KirvExampleConnection(KirvClock &clock = KirvClock::system());

    /// The id of the setting that says after how many milliseconds the server replies.
    static QString latencySetting();

protected:
    void startLogin(const KirvPresence &presence) override;
    void startLogout() override;
    void abortConnection() override;
    void applyPresence(const KirvPresence &presence) override;

    void startDirectoryFetch(int request) override;
    void startDirectoryPublication(int request, const QList<KirvField> &changes) override;
    void startDirectoryDeletion(int request) override;

private:
    void replyLater(std::function<void()> reply);
    int latency() const;

    std::unique_ptr<QObject> session; ///< stands for the open socket: replies that are under way end with it
    QList<KirvField> entry;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EXAMPLE_CONNECTION_H
#define KIRV_EXAMPLE_CONNECTION_H

#include "core/protocol/kirv_connection.h"

/// A connection to a server that exists in this object only. It answers after the account's latency, accepts
/// every password but "wrong", and keeps one directory entry.
class KirvExampleConnection : public KirvConnection {
    Q_OBJECT

public:
    explicit KirvExampleConnection(KirvAccountConnection *account, KirvClock &clock = KirvClock::system());

    /// The id of the setting that says after how many milliseconds the server answers.
    static QString latencySetting();

    void fetchDirectory() override;
    void publishDirectory(const QList<KirvField> &fields) override;
    void deleteDirectory() override;

protected:
    void startLogin(const KirvPresence &presence) override;
    void startLogout() override;
    void abortConnection() override;
    void applyPresence(const KirvPresence &presence) override;

private:
    void answerLater(std::function<void()> answer);
    int latency() const;

    std::unique_ptr<QObject> session; ///< stands for the open socket: what the server still has to say dies with it
    QList<KirvField> entry;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_SERVICE_H
#define KIRV_ACCOUNTS_SERVICE_H

#include "client/kirv_accounts_request.h"

#include <QList>
#include <QObject>

#include <functional>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountHistory;
class KirvMovingCommands;
class KirvMainAccount;

/// Does what the commands for accounts of the command line want, in the program that has the profile open.
class KirvAccountsService : public QObject {
    Q_OBJECT

public:
    using Callback = std::function<void(const KirvAccountsReply &reply)>;

    /// What it works on. Nothing is owned, and all of it outlives the service.
    struct Environment {
        KirvAccountCollection &accounts;
        KirvMainAccount &mainAccount;
        KirvAccountHistory &history;
        /// Whether accounts have states: false where nothing ever logs in.
        bool logsIn;
        /// Calls \a then when everything that \a request needs is there, as the plug-ins for an import.
        std::function<void(const KirvAccountsRequest &request, const std::function<void()> &then)> prepare;
    };

    explicit KirvAccountsService(const Environment &environment, QObject *parent = nullptr);

    /// Calls \a callback once, at once or from the event loop, unless the service is destroyed before.
    void run(const KirvAccountsRequest &request, const Callback &callback);

private:
    void runPrepared(const KirvAccountsRequest &request, const Callback &callback);
    KirvAccountsReply list(const QList<KirvAccount *> &chosen) const;
    KirvAccountsReply setEnabled(const QList<KirvAccount *> &chosen, bool isEnabled);
    QJsonObject describe(const KirvAccount &account) const;

    const Environment environment;
    KirvMovingCommands *moving;
};

#endif

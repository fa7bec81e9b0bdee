// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_INSTANCE_COMMANDS_H
#define KIRV_INSTANCE_COMMANDS_H

#include "client/kirv_running_instance.h"

#include <QObject>

class KirvAccountsService;
class KirvClient;
struct KirvAccountsRequest;

/// Lets the program that has a profile open do what later starts with the same profile are told by the command line:
/// show its window, open a link, and change accounts.
class KirvInstanceCommands : public QObject {
    Q_OBJECT

public:
    /// Neither is owned, and both outlive this. The client has started.
    KirvInstanceCommands(KirvClient &client, KirvRunningInstance &instance);

private:
    void handle(const QJsonObject &message, const KirvRunningInstance::Reply &reply);
    void prepare(const KirvAccountsRequest &request, const std::function<void()> &then);

    KirvClient &client;
    KirvAccountsService *service;
};

#endif

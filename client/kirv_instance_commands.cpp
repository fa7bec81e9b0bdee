// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_instance_commands.h"

#include "client/kirv_accounts_service.h"
#include "client/kirv_client.h"
#include "client/kirv_instance_message.h"

#include <QTimer>

namespace {
const int millisecondsBetweenLooks = 50;
}

KirvInstanceCommands::KirvInstanceCommands(KirvClient &client, KirvRunningInstance &instance)
    : client(client)
    , service(new KirvAccountsService(
          { client.accounts(), client.mainAccount(), client.accountHistory(), true,
            [this](const KirvAccountsRequest &request, const std::function<void()> &then) { prepare(request, then); } },
          this))
{
    // Queued, as the window for a new account runs an event loop of its own.
    connect(&instance, &KirvRunningInstance::laterStart, &client, &KirvClient::show, Qt::QueuedConnection);
    instance.setHandler(
        [this](const QJsonObject &message, const KirvRunningInstance::Reply &reply) { handle(message, reply); });
}

void KirvInstanceCommands::handle(const QJsonObject &message, const KirvRunningInstance::Reply &reply)
{
    KirvAccountsRequest request;
    if (KirvAccountsRequest::fromJson(message, &request))
        service->run(request, [reply](const KirvAccountsReply &outcome) { reply(outcome.toJson()); });
    else
        reply(KirvInstanceMessage::unknownCommand());
}

/// An import waits until each plug-in that there was at the start is loaded or left out.
void KirvInstanceCommands::prepare(const KirvAccountsRequest &request, const std::function<void()> &then)
{
    if (request.command != KirvAccountsRequest::Import || client.arePluginsLoaded()) {
        then();
        return;
    }
    auto *poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [this, poll, then] {
        if (!client.arePluginsLoaded())
            return;
        poll->stop();
        poll->deleteLater();
        then();
    });
    poll->start(millisecondsBetweenLooks);
}

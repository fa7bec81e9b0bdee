// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MOVING_COMMANDS_H
#define KIRV_MOVING_COMMANDS_H

#include "client/kirv_accounts_service.h"
#include "core/moving/kirv_account_file.h"

#include <QObject>
#include <QThreadPool>

/// The export and the import among the commands for accounts. Files are read and written in a thread, as a pass phrase
/// takes a second or more.
class KirvMovingCommands : public QObject {
    Q_OBJECT

public:
    using Callback = KirvAccountsService::Callback;

    KirvMovingCommands(const KirvAccountsService::Environment &environment, QObject *parent);

    void exportThem(const QList<KirvAccount *> &chosen, const KirvAccountsRequest &request, const Callback &callback);
    void importThem(const KirvAccountsRequest &request, const Callback &callback);

private:
    KirvAccountsReply take(const KirvAccountFile::Result &file, const KirvAccountsRequest &request);

    const KirvAccountsService::Environment environment;
    QThreadPool threads;
};

#endif

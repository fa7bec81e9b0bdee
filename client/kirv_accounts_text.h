// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_TEXT_H
#define KIRV_ACCOUNTS_TEXT_H

#include "client/kirv_accounts_request.h"

#include <QCoreApplication>
#include <QStringList>

/// What the commands for accounts print for people.
class KirvAccountsText {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountsText)

public:
    /// The lines about the result of \a command. Names and sentences of others are made harmless for a terminal.
    static QStringList lines(KirvAccountsRequest::Command command, const QJsonObject &result);
    /// What was left out, a line each.
    static QStringList leftOut(const QJsonObject &result);

private:
    static QStringList listLines(const QJsonObject &result);
    static QStringList enablingLines(const QJsonObject &result);
    static QStringList exportLines(const QJsonObject &result);
    static QStringList importLines(const QJsonObject &result);
    static QString importText(const QJsonObject &row);
};

#endif

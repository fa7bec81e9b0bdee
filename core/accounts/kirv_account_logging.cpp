// SPDX-License-Identifier: LGPL-2.1-or-later
// The part of KirvAccount that notes what happens to its connection.
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_secret_blank.h"

#include <QLocale>

KirvAccountLog &KirvAccount::log()
{
    if (!eventLog)
        eventLog = new KirvAccountLog(this);
    return *eventLog;
}

/// Those that are stored, and those that the connection uses still.
KirvSecretBlank KirvAccount::secretBlank() const
{
    KirvSecretBlank blank(current);
    if (connection())
        blank += KirvSecretBlank(connection()->login());
    return blank;
}

void KirvAccount::connectLog(KirvConnection *created)
{
    connect(created, &KirvConnection::stateChanged, this, &KirvAccount::logState);
    connect(created, &KirvConnection::loginStep, this,
            [this](const KirvLoginStep &step) { log().addStep(step, secretBlank()); });
    connect(created, &KirvConnection::failed, this,
            [this](const KirvFailure &failed) { log().addFailure(failed, secretBlank()); });
    connect(created, &KirvConnection::noticeReceived, this,
            [this](const QString &text) { log().addNotice(text, secretBlank()); });
}

void KirvAccount::logState(KirvConnection::State state)
{
    QString detail;
    if (state == KirvConnection::Online)
        detail = connection()->securityText();
    else if (state == KirvConnection::Waiting && connection()->isWaitingForTurn())
        detail = tr("other accounts connect first");
    else if (state == KirvConnection::Waiting)
        //: %1 = time of day
        detail =
            tr("the next try is at %1")
                .arg(QLocale().toString(connection()->nextRetry().toLocalTime().time(), QStringLiteral("HH:mm:ss")));
    log().addState(state, detail, detail.isEmpty() ? KirvSecretBlank() : secretBlank());
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/example/kirv_example_connection.h"

#include "host/kirv_account_connection.h"

KirvExampleConnection::KirvExampleConnection(KirvAccountConnection *account, KirvClock &clock)
    : KirvConnection(account, clock)
{
}

QString KirvExampleConnection::latencySetting()
{
    return QStringLiteral("latency");
}

void KirvExampleConnection::startLogin(const KirvPresence &)
{
    const QString password = account()->getPassword();
    if (password.isEmpty()) {
        loginFailed(KirvFailure::PasswordMissing);
        return;
    }
    session = std::make_unique<QObject>();
    answerLater([this, password] {
        if (password == QLatin1String("wrong"))
            loginFailed(KirvFailure::WrongPassword);
        else
            loginSucceeded();
    });
}

void KirvExampleConnection::startLogout()
{
    answerLater([this] {
        abortConnection();
        logoutFinished();
    });
}

void KirvExampleConnection::abortConnection()
{
    session.reset();
}

void KirvExampleConnection::applyPresence(const KirvPresence &presence)
{
    const QString description = presence.getDescription();
    if (!description.isEmpty())
        answerLater([this, description] { Q_EMIT noticeReceived(tr("The server echoes: %1").arg(description)); });
}

void KirvExampleConnection::fetchDirectory()
{
    const int request = beginDirectoryRequest();
    answerLater([this, request] { finishDirectoryRequest(entry, request); });
}

void KirvExampleConnection::publishDirectory(const QList<KirvField> &fields)
{
    const int request = beginDirectoryRequest();
    answerLater([this, request, fields] {
        entry = fields;
        finishDirectoryRequest(entry, request);
    });
}

void KirvExampleConnection::deleteDirectory()
{
    publishDirectory({});
}

void KirvExampleConnection::answerLater(std::function<void()> answer)
{
    clock().callLater(latency(), session.get(), std::move(answer));
}

int KirvExampleConnection::latency() const
{
    for (const KirvField &field : account()->getAccountSettingsInOrder()) {
        if (field.getId() == latencySetting())
            return field.getText().toInt();
    }
    return 0;
}

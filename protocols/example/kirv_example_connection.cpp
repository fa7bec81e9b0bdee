// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/example/kirv_example_connection.h"

#include <algorithm>

KirvExampleConnection::KirvExampleConnection(KirvClock &clock)
    : KirvConnection(clock)
{
}

QString KirvExampleConnection::latencySetting()
{
    return QStringLiteral("latency");
}

void KirvExampleConnection::startLogin(const KirvPresence &)
{
    const QString password = login().password;
    if (password.isEmpty()) {
        loginFailed(KirvFailure::PasswordMissing);
        return;
    }
    session = std::make_unique<QObject>();
    reportStep({ KirvLoginStep::LogIn, KirvLoginStep::Running, tr("a server inside the program") });
    replyLater([this, password] {
        if (password == QLatin1String("wrong"))
            loginFailed(KirvFailure::WrongPassword);
        else
            loginSucceeded();
    });
}

void KirvExampleConnection::startLogout()
{
    replyLater([this] {
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
        replyLater([this, description] { Q_EMIT noticeReceived(tr("The server echoes: %1").arg(description)); });
}

void KirvExampleConnection::startDirectoryFetch(int request)
{
    replyLater([this, request] { answerDirectoryRequest(request, entry); });
}

void KirvExampleConnection::startDirectoryPublication(int request, const QList<KirvField> &changes)
{
    replyLater([this, request, changes] {
        for (const KirvField &change : changes) {
            const auto hasSameId = [&change](const KirvField &field) { return field.getId() == change.getId(); };
            const auto field = std::find_if(entry.begin(), entry.end(), hasSameId);
            if (field == entry.end())
                entry.append(change);
            else
                *field = change;
        }
        answerDirectoryRequest(request, entry);
    });
}

void KirvExampleConnection::startDirectoryDeletion(int request)
{
    replyLater([this, request] {
        entry.clear();
        answerDirectoryRequest(request, entry);
    });
}

void KirvExampleConnection::replyLater(std::function<void()> reply)
{
    clock().callLater(latency(), session.get(), std::move(reply));
}

int KirvExampleConnection::latency() const
{
    for (const KirvField &field : login().settings) {
        if (field.getId() == latencySetting())
            return field.getText().toInt();
    }
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_connection.h"

#include "tests/support/fakes/kirv_fake_clock.h"

#include <algorithm>

KirvFakeConnection::KirvFakeConnection(std::shared_ptr<KirvFakeServer> server, KirvClock &clock, QObject *parent)
    : KirvConnection(clock, parent)
    , server(std::move(server))
{
    ++this->server->connections;
}

KirvFakeConnection::~KirvFakeConnection()
{
    --server->connections;
}

void KirvFakeConnection::serverAccepts()
{
    if (state() == Connecting)
        loginSucceeded();
    else if (state() == Disconnecting)
        logoutFinished();
    else if (!held.isEmpty())
        acceptRequest(held.firstKey());
}

void KirvFakeConnection::serverRefuses()
{
    if (state() == Connecting)
        loginFailed(server->refusal);
    else if (!held.isEmpty())
        refuseRequest(held.firstKey());
}

void KirvFakeConnection::serverGoes()
{
    if (state() == Connecting)
        loginFailed(KirvFailure::ConnectionRefused);
    else if (state() == Online)
        connectionLost(KirvFailure::ConnectionLost);
}

void KirvFakeConnection::advance(int milliseconds)
{
    static_cast<KirvFakeClock &>(clock()).advance(milliseconds);
}

void KirvFakeConnection::acceptRequest(int request)
{
    const Change change = held.take(request);
    QList<KirvField> &entry = server->entries[login().id];
    change(entry);
    answerDirectoryRequest(request, QList<KirvField>(entry));
}

void KirvFakeConnection::refuseRequest(int request)
{
    held.remove(request);
    failDirectoryRequest(request, server->directoryRefusal);
}

void KirvFakeConnection::startLogin(const KirvPresence &presence)
{
    log(QStringLiteral("log in ") + presence.getId() + QLatin1Char(' ') + login().password);
    if (onLogIn)
        onLogIn();
    else if (server->needsPassword && login().password.isEmpty())
        loginFailed(KirvFailure::PasswordMissing);
    else if (!server->certificate.isNull() && !acceptsCertificate(server->certificate))
        failForCertificate();
    else if (server->logIn == KirvFakeServer::Refuses)
        loginFailed(server->refusal);
    else if (server->logIn == KirvFakeServer::Accepts && !server->silentPresences.contains(presence.getId()))
        loginSucceeded();
}

void KirvFakeConnection::startLogout()
{
    log(QStringLiteral("log out"));
    if (onLogOut)
        onLogOut();
    else if (server->logOut == KirvFakeServer::Accepts)
        logoutFinished();
}

void KirvFakeConnection::abortConnection()
{
    log(QStringLiteral("abort"));
    held.clear();
    if (onAbort)
        onAbort();
}

void KirvFakeConnection::applyPresence(const KirvPresence &presence)
{
    log(QStringLiteral("presence ") + presence.getId());
}

void KirvFakeConnection::checkSession(int milliseconds)
{
    log(QStringLiteral("check %1").arg(milliseconds));
}

void KirvFakeConnection::publishAvatar()
{
    log(QStringLiteral("avatar"));
    if (onAvatar)
        onAvatar();
}

void KirvFakeConnection::startDirectoryFetch(int request)
{
    log(QStringLiteral("fetch"));
    startRequest(request, [](QList<KirvField> &) {});
}

void KirvFakeConnection::startDirectoryPublication(int request, const QList<KirvField> &changes)
{
    QStringList ids;
    for (const KirvField &field : changes)
        ids << field.getId();
    log(QStringLiteral("publish ") + ids.join(QLatin1Char(',')));
    startRequest(request, [changes](QList<KirvField> &entry) {
        for (const KirvField &changed : changes) {
            const auto same = std::find_if(entry.begin(), entry.end(),
                                           [&](const KirvField &field) { return field.getId() == changed.getId(); });
            if (same == entry.end())
                entry << changed;
            else
                *same = changed;
        }
    });
}

void KirvFakeConnection::startDirectoryDeletion(int request)
{
    log(QStringLiteral("delete"));
    startRequest(request, [](QList<KirvField> &entry) { entry.clear(); });
}

void KirvFakeConnection::log(const QString &call)
{
    server->calls << login().id + QLatin1Char(' ') + call;
}

void KirvFakeConnection::startRequest(int request, const Change &change)
{
    held.insert(request, change);
    if (onDirectory)
        onDirectory(request);
    else if (server->directory == KirvFakeServer::Accepts)
        acceptRequest(request);
    else if (server->directory == KirvFakeServer::Refuses)
        refuseRequest(request);
}

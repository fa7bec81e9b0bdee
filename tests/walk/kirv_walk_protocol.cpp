// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/walk/kirv_walk_protocol.h"

#include "host/kirv_account_connection.h"

namespace {

/// The clock of all connections of this library. It lives as long as the library, which is never unloaded.
KirvFakeClock &walkClock()
{
    static KirvFakeClock clock;
    return clock;
}

QList<KirvField> fieldsWithServer(const QString &server)
{
    return { KirvField::textEdit(QStringLiteral("Server"), QStringLiteral("server"), server, QString()),
             KirvField::number(QStringLiteral("Port"), QStringLiteral("port"), 5222, 1, 65535, QString()),
             KirvField::checkBox(QStringLiteral("Encrypted"), QStringLiteral("encrypted"), true, QString()) };
}

} // namespace

KirvWalkConnection::KirvWalkConnection(KirvAccountConnection *account)
    : KirvConnection(account, walkClock())
{
}

void KirvWalkConnection::serverAnswers()
{
    if (state() == Connecting)
        loginSucceeded();
    else if (state() == Disconnecting)
        logoutFinished();
    else if (request != 0) {
        entry = answerToRequest;
        finishDirectoryRequest(entry, std::exchange(request, 0));
    }
}

void KirvWalkConnection::serverRefuses()
{
    if (state() == Connecting)
        loginFailed(KirvFailure::WrongPassword);
    else if (request != 0)
        failDirectoryRequest({ KirvFailure::RequestFailed, QStringLiteral("not today") }, std::exchange(request, 0));
}

void KirvWalkConnection::serverGoes()
{
    if (state() == Connecting)
        loginFailed(KirvFailure::ConnectionRefused);
    else if (state() == Online)
        connectionLost(KirvFailure::ConnectionLost);
}

void KirvWalkConnection::advance(int milliseconds)
{
    walkClock().advance(milliseconds);
}

void KirvWalkConnection::fetchDirectory()
{
    ask(entry);
}

void KirvWalkConnection::publishDirectory(const QList<KirvField> &fields)
{
    ask(fields);
}

void KirvWalkConnection::deleteDirectory()
{
    ask({});
}

void KirvWalkConnection::ask(const QList<KirvField> &answer)
{
    answerToRequest = answer;
    request = beginDirectoryRequest();
}

void KirvWalkConnection::startLogin(const KirvPresence &)
{
    if (account()->getPassword().isEmpty())
        loginFailed(KirvFailure::PasswordMissing);
}

void KirvWalkConnection::startLogout() { }

void KirvWalkConnection::abortConnection()
{
    request = 0;
}

void KirvWalkConnection::applyPresence(const KirvPresence &) { }

QString KirvWalkProtocol::getName()
{
    return QStringLiteral(KIRV_WALK_NAME);
}

QString KirvWalkProtocol::getIconPath(int)
{
    return QString();
}

QStringList KirvWalkProtocol::getConfigurations()
{
    return { QStringLiteral("Here"), QStringLiteral("There") };
}

QList<KirvField> KirvWalkProtocol::getConfigurationFields(const QString &name)
{
    return fieldsWithServer(name);
}

QString KirvWalkProtocol::getLoginPattern()
{
    return QStringLiteral("[a-z0-9<>%]+");
}

QList<KirvPresence> KirvWalkProtocol::presences() const
{
    return { KirvPresence(QStringLiteral("available"), QStringLiteral("Available"), QStringLiteral("available.svg")),
             KirvPresence(QStringLiteral("away"), QStringLiteral("Away"), QStringLiteral("away.svg")),
             KirvPresence(QStringLiteral("offline"), QStringLiteral("Off line"), QStringLiteral("offline.svg")) };
}

QList<KirvField> KirvWalkProtocol::accountSettings() const
{
    return fieldsWithServer(QString());
}

QList<KirvField> KirvWalkProtocol::directoryFields() const
{
    return { KirvField::textEdit(QStringLiteral("Full name"), QStringLiteral("name"), QString(), QString()),
             KirvField::multiLine(QStringLiteral("About"), QStringLiteral("about"), QString(), QString()) };
}

KirvConnection *KirvWalkProtocol::createConnection(KirvAccountConnection *account)
{
    return new KirvWalkConnection(account);
}

bool KirvWalkProtocol::offersRegistration() const
{
    return true;
}

KirvProtocolBase *KirvWalkPlugin::createProtocol(QString *)
{
    return new KirvWalkProtocol;
}

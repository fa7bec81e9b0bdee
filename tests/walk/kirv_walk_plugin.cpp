// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_protocol_plugin.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/fakes/kirv_fake_server_request.h"

#include <QPointer>

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

/// A protocol whose server does nothing by itself: the walk says when it replies, and how, by the names of the
/// invokable operations of this class and of the connection. Time stands still until the walk moves it.
class KirvWalkProtocol : public KirvFakeProtocol {
    Q_OBJECT

public:
    KirvWalkProtocol();

    /// Replies to what all server requests wait for. Whether one of them succeeded by that.
    Q_INVOKABLE bool answerRequests(bool accept);

private:
    KirvServerRequest *createRegistrationRequest();
    KirvServerRequest *createRequestFor(const QString &action, KirvConnection *connection);
    KirvServerRequest *hold(KirvFakeServerRequest *request);

    QList<QPointer<KirvFakeServerRequest>> requests;
    int created = 0;
    int succeeded = 0;
};

KirvWalkProtocol::KirvWalkProtocol()
    : KirvFakeProtocol(QStringLiteral(KIRV_WALK_NAME), walkClock())
{
    server->logIn = server->logOut = server->directory = KirvFakeServer::Holds;
    server->needsPassword = true;
    loginPattern = QStringLiteral("[a-z0-9<>%]+");
    configurations = QStringList { QStringLiteral("Here"), QStringLiteral("There") };
    configurationFields = fieldsWithServer(QStringLiteral("here"));
    settings = fieldsWithServer(QString());
    directory << KirvField::multiLine(QStringLiteral("About"), QStringLiteral("about"), QString(), QString());
    actions = { { QStringLiteral("password"), QStringLiteral("Change Password"), QString() },
                { QStringLiteral("delete"), QStringLiteral("Delete Account"), QString() } };
    makeRegistration = [this] { return createRegistrationRequest(); };
    makeRequest = [this](const QString &action, KirvConnection *connection) {
        return createRequestFor(action, connection);
    };
}

bool KirvWalkProtocol::answerRequests(bool accept)
{
    const int before = succeeded;
    const QList<QPointer<KirvFakeServerRequest>> present = requests;
    for (const QPointer<KirvFakeServerRequest> &request : present) {
        if (!request || !request->isUnderWay())
            continue;
        if (accept)
            request->serverAccepts();
        else
            request->serverRefuses(KirvFailure(KirvFailure::RequestFailed, QStringLiteral("not today")));
    }
    requests.removeAll(nullptr);
    return succeeded > before;
}

/// Some of the accounts exist already.
KirvServerRequest *KirvWalkProtocol::createRegistrationRequest()
{
    const KirvField name = KirvField::textEdit(QStringLiteral("Name"), QStringLiteral("name"), QString(), QString());
    KirvServerRequest::Step serverStep;
    serverStep.text = QStringLiteral("Choose a server.");
    serverStep.configurations = configurations;
    serverStep.fields = configurationFields;
    serverStep.command = QStringLiteral("Go On");
    KirvServerRequest::Step nameStep;
    nameStep.fields = { name };
    nameStep.pictures = { { QStringLiteral("Picture"), QByteArray("no image"), QString() } };
    nameStep.command = QStringLiteral("Register");
    nameStep.canGoBack = nameStep.hasPassword = true;
    KirvServerRequest::Result result;
    result.account = { QStringLiteral("reg%1").arg(created % 4), QStringLiteral("secret"), settings };
    if (created % 5 == 4)
        result.account.id.clear();
    return hold(new KirvFakeServerRequest({ serverStep, nameStep }, result));
}

KirvServerRequest *KirvWalkProtocol::createRequestFor(const QString &action, KirvConnection *connection)
{
    KirvServerRequest::Step step;
    step.command = QStringLiteral("Do It");
    KirvServerRequest::Result result;
    result.kind = KirvServerRequest::Result::PasswordChanged;
    result.password = QStringLiteral("changed");
    if (action == QLatin1String("delete")) {
        result.kind = KirvServerRequest::Result::AccountDeleted;
        step.isDangerous = true;
    }
    auto *request = new KirvFakeServerRequest({ step }, result);
    connect(connection, &KirvConnection::stateChanged, request, [request](KirvConnection::State state) {
        if (state != KirvConnection::Online)
            request->serverRefuses(KirvFailure::ConnectionLost);
    });
    connect(connection, &QObject::destroyed, request,
            [request] { request->serverRefuses(KirvFailure::ConnectionLost); });
    return hold(request);
}

KirvServerRequest *KirvWalkProtocol::hold(KirvFakeServerRequest *request)
{
    request->isHeld = true;
    request->canBeCancelled = ++created % 3 != 0;
    requests << request;
    // Before anybody else, who may destroy the request.
    connect(request, &KirvServerRequest::succeeded, this, [this] { ++succeeded; });
    return request;
}

class KirvWalkPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "kirv_walk_plugin.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override { return new KirvWalkProtocol; }
};

#include "kirv_walk_plugin.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_observing_xmpp_client.h"

#include "tests/support/kirv_patience.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCryptographicHash>
#include <QDomDocument>
#include <QSslSocket>
#include <QXmppElement.h>
#include <QXmppLogger.h>
#include <QXmppMessage.h>
#include <QXmppOutgoingClient.h>
#include <QXmppRosterManager.h>
#include <QXmppUtils.h>
#include <QXmppVCardManager.h>

namespace {

bool isMutual(QXmppClient &client, const QString &address)
{
    const auto *roster = client.findExtension<QXmppRosterManager>();
    return roster->getRosterEntry(address).subscriptionType() == QXmppRosterIq::Item::Both;
}

} // namespace

KirvObservingXmppClient::KirvObservingXmppClient()
{
    QObject::connect(&client, &QXmppClient::presenceReceived, &client, [this](const QXmppPresence &presence) {
        presences.insert(QXmppUtils::jidToBareJid(presence.from()), presence);
    });
    client.logger()->setLoggingType(QXmppLogger::SignalLogging);
    QObject::connect(client.logger(), &QXmppLogger::message, &client,
                     [this](QXmppLogger::MessageType type, const QString &text) {
                         if (type == QXmppLogger::ReceivedMessage)
                             everything += text;
                     });
    QObject::connect(&client, &QXmppClient::messageReceived, &client,
                     [this](const QXmppMessage &message) { messages << message.body(); });
}

bool KirvObservingXmppClient::logIn(const KirvProsodyServer &server, const QString &user, const QString &password,
                                    const QString &resource)
{
    QXmppConfiguration configuration;
    configuration.setJid(user + '@' + server.domain());
    configuration.setPassword(password);
    configuration.setResource(resource);
    configuration.setHost(server.host());
    configuration.setPort(server.port());
    configuration.setIgnoreSslErrors(true);
    configuration.setAutoReconnectionEnabled(false);
    configuration.setAutoAcceptSubscriptions(true);
    bool isRefused = false;
    QObject context;
    QObject::connect(&client, &QXmppClient::error, &context,
                     [&isRefused](QXmppClient::Error error) { isRefused = error == QXmppClient::XmppStreamError; });
    client.connectToServer(configuration);
    const auto isIn = [this] { return client.isConnected() && client.isAuthenticated(); };
    return QTest::qWaitFor([&] { return isRefused || isIn(); }, kirvPatience) && isIn();
}

void KirvObservingXmppClient::logOut()
{
    client.disconnectFromServer();
}

bool KirvObservingXmppClient::befriend(const KirvProsodyServer &server, const QString &user, const QString &password)
{
    KirvObservingXmppClient other;
    if (!other.logIn(server, user, password))
        return false;
    const QString myAddress = client.configuration().jidBare();
    const QString otherAddress = other.client.configuration().jidBare();
    client.findExtension<QXmppRosterManager>()->subscribe(otherAddress);
    const bool done = QTest::qWaitFor(
        [&] { return isMutual(client, otherAddress) && isMutual(other.client, myAddress); }, kirvPatience);
    other.logOut();
    return done && QTest::qWaitFor([&] { return !sees(otherAddress); }, kirvPatience);
}

QXmppPresence KirvObservingXmppClient::presenceOf(const QString &address) const
{
    return presences.value(address, QXmppPresence(QXmppPresence::Unavailable));
}

QXmppVCardIq KirvObservingXmppClient::vCardOf(const QString &address)
{
    QXmppVCardIq card;
    bool hasCome = false;
    QString question;
    QObject context;
    auto *manager = client.findExtension<QXmppVCardManager>();
    QObject::connect(manager, &QXmppVCardManager::vCardReceived, &context, [&](const QXmppVCardIq &received) {
        if (received.id() == question) {
            card = received;
            hasCome = true;
        }
    });
    // Who has no entry has an error in its place.
    QObject::connect(&client, &QXmppClient::iqReceived, &context,
                     [&](const QXmppIq &iq) { hasCome = hasCome || iq.id() == question; });
    question = manager->requestVCard(address);
    if (!QTest::qWaitFor([&] { return hasCome; }, kirvPatience))
        qWarning() << "The directory entry of" << address << "did not come.";
    return card;
}

bool KirvObservingXmppClient::publish(QXmppVCardIq card)
{
    bool isDone = false;
    QObject context;
    card.setType(QXmppIq::Set);
    QObject::connect(&client, &QXmppClient::iqReceived, &context, [&](const QXmppIq &iq) {
        if (iq.id() == card.id())
            isDone = iq.type() == QXmppIq::Result;
    });
    client.sendPacket(card);
    return QTest::qWaitFor([&] { return isDone; }, kirvPatience);
}

bool KirvObservingXmppClient::send(const QByteArray &stanza)
{
    auto *stream = client.findChild<QXmppOutgoingClient *>();
    return stream->sendData(stanza) && (stream->socket()->flush() || stream->socket()->bytesToWrite() == 0);
}

bool KirvObservingXmppClient::synchronise()
{
    const QByteArray id = "synchronised-" + QByteArray::number(++synchronisations);
    const QByteArray domain = client.configuration().domain().toUtf8();
    if (!send("<iq type='get' id='" + id + "' to='" + domain + "'><ping xmlns='urn:xmpp:ping'/></iq>"))
        return false;
    auto *socket = client.findChild<QXmppOutgoingClient *>()->socket();
    while (!everything.contains(QLatin1String(id))) {
        if (!socket->waitForReadyRead(kirvPatience))
            return false;
    }
    return true;
}

bool KirvObservingXmppClient::publishEvent(const QByteArray &picture)
{
    const QString hash = QCryptographicHash::hash(picture, QCryptographicHash::Sha1).toHex();
    const QString form = "<pubsub xmlns='http://jabber.org/protocol/pubsub'><publish node='urn:xmpp:avatar:%1'>"
                         "<item id='%2'>%3</item></publish></pubsub>";
    const QString data = "<data xmlns='urn:xmpp:avatar:data'>" + picture.toBase64() + "</data>";
    const QString metadata = QString("<metadata xmlns='urn:xmpp:avatar:metadata'>"
                                     "<info id='%1' type='image/png' bytes='%2'/></metadata>")
                                 .arg(hash)
                                 .arg(picture.size());
    QDomDocument first, second;
    return first.setContent(form.arg("data", hash, data), true) && request(QXmppIq::Set, first.documentElement())
        && second.setContent(form.arg("metadata", hash, metadata), true)
        && request(QXmppIq::Set, second.documentElement());
}

/// Whether the server carries it out.
bool KirvObservingXmppClient::request(QXmppIq::Type type, const QDomElement &payload)
{
    bool hasCome = false, isDone = false;
    QObject context;
    QXmppIq iq(type);
    iq.setExtensions({ QXmppElement(payload) });
    QObject::connect(&client, &QXmppClient::iqReceived, &context, [&](const QXmppIq &reply) {
        if (reply.id() != iq.id())
            return;
        hasCome = true;
        isDone = reply.type() == QXmppIq::Result;
    });
    client.sendPacket(iq);
    return QTest::qWaitFor([&] { return hasCome; }, kirvPatience) && isDone;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/xmpp/xmpp_observer.h"

#include "tools/servers/kirv_prosody_server.h"

#include <QTest>
#include <QXmppRosterManager.h>
#include <QXmppUtils.h>
#include <QXmppVCardManager.h>

namespace {

const int patience = 15000;

bool isMutual(QXmppClient &client, const QString &address)
{
    const auto *roster = client.findExtension<QXmppRosterManager>();
    return roster->getRosterEntry(address).subscriptionType() == QXmppRosterIq::Item::Both;
}

} // namespace

XmppObserver::XmppObserver()
{
    QObject::connect(&client, &QXmppClient::presenceReceived, &client, [this](const QXmppPresence &presence) {
        presences.insert(QXmppUtils::jidToBareJid(presence.from()), presence);
    });
}

bool XmppObserver::logIn(const KirvProsodyServer &server, const QString &user, const QString &password,
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
    return QTest::qWaitFor([&] { return isRefused || isIn(); }, patience) && isIn();
}

void XmppObserver::logOut()
{
    client.disconnectFromServer();
}

bool XmppObserver::befriend(const KirvProsodyServer &server, const QString &user)
{
    XmppObserver other;
    if (!other.logIn(server, user))
        return false;
    const QString myAddress = client.configuration().jidBare();
    const QString otherAddress = other.client.configuration().jidBare();
    client.findExtension<QXmppRosterManager>()->subscribe(otherAddress);
    const bool done =
        QTest::qWaitFor([&] { return isMutual(client, otherAddress) && isMutual(other.client, myAddress); }, patience);
    other.logOut();
    return done && QTest::qWaitFor([&] { return !sees(otherAddress); }, patience);
}

QXmppPresence XmppObserver::presenceOf(const QString &address) const
{
    return presences.value(address, QXmppPresence(QXmppPresence::Unavailable));
}

QXmppVCardIq XmppObserver::vCardOf(const QString &address)
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
    if (!QTest::qWaitFor([&] { return hasCome; }, patience))
        qWarning() << "The directory entry of" << address << "did not come.";
    return card;
}

bool XmppObserver::publish(QXmppVCardIq card)
{
    bool isDone = false;
    QObject context;
    card.setType(QXmppIq::Set);
    QObject::connect(&client, &QXmppClient::iqReceived, &context, [&](const QXmppIq &iq) {
        if (iq.id() == card.id())
            isDone = iq.type() == QXmppIq::Result;
    });
    client.sendPacket(card);
    return QTest::qWaitFor([&] { return isDone; }, patience);
}

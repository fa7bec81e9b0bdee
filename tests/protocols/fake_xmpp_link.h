// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_XMPP_LINK_H
#define KIRV_FAKE_XMPP_LINK_H

#include "protocols/xmpp/kirv_xmpp_link.h"
#include "tests/protocols/xmpp_parsing.h"

#include <QList>
#include <QPointer>

/// A link without a server: it keeps what is sent, and a test replies.
class FakeXmppLink : public KirvXmppLink {
public:
    struct Request {
        QXmppIq::Type type;
        QDomDocument payload;
        Receiver receiver;
        QString to;
    };

    explicit FakeXmppLink(Purpose purpose)
        : purpose(purpose)
    {
    }

    void refuseLocalServers() override { refusesLocal = true; }
    bool isServerLocal() const override { return isLocal; }
    void open(const QXmppConfiguration &with, const QXmppPresence &) override
    {
        isOpened = true;
        configuration = with;
    }
    void close() override { end(KirvFailure()); }
    void abort() override
    {
        isOpened = isArrived = false;
        requests.clear();
    }
    bool isReady() const override { return isArrived; }
    void sendPresence(const QXmppPresence &presence) override { presences << presence; }
    void sendRequest(QXmppIq::Type type, const QDomDocument &payload, const Receiver &receiver,
                     const QString &to) override
    {
        requests << Request { type, payload, receiver, to };
    }

    /// The server lets the client in, or is ready to register.
    void arrive(bool offersRegistration = true)
    {
        isArrived = true;
        if (purpose == LogIn)
            Q_EMIT loggedIn();
        else
            Q_EMIT readyToRegister(offersRegistration);
    }
    /// Replies to the oldest request with \a children of a result.
    void reply(const QByteArray &children = QByteArray())
    {
        documents << parsed("<iq xmlns='jabber:client' type='result'>" + children + "</iq>");
        KirvXmppReply reply;
        reply.iq = documents.last().documentElement();
        reply.payload = reply.iq.firstChildElement();
        requests.takeFirst().receiver(reply);
    }
    void refuse(const QString &condition, const KirvFailure &failure = KirvFailure::RequestFailed)
    {
        KirvXmppReply reply;
        reply.condition = condition;
        reply.failure = failure;
        requests.takeFirst().receiver(reply);
    }
    /// The stream ends: what is without a reply fails first.
    void end(const KirvFailure &failure)
    {
        isArrived = false;
        const QPointer<FakeXmppLink> alive(this);
        while (alive && !requests.isEmpty())
            refuse(QString(), failure.isFailure() ? failure : KirvFailure(KirvFailure::ConnectionLost));
        if (alive)
            Q_EMIT ended(failure);
    }

    const Purpose purpose;
    QXmppConfiguration configuration;
    QList<Request> requests; ///< without a reply
    QList<QXmppPresence> presences;
    bool isOpened = false;
    bool isArrived = false;
    bool isLocal = false;
    bool refusesLocal = false;

private:
    QList<QDomDocument> documents; ///< elements do not keep theirs
};

/// Creates fake links, and knows the latest one.
class FakeXmppServer {
public:
    KirvXmppLinkFactory factory()
    {
        return [this](KirvXmppLink::Purpose purpose, KirvClock &, int) {
            ++links;
            latest = new FakeXmppLink(purpose);
            return latest.data();
        };
    }
    FakeXmppLink *link() const { return latest; }
    /// The payload of the oldest request without a reply.
    QDomElement payload() const { return latest->requests.first().payload.documentElement(); }
    bool isAwaited() const { return latest && !latest->requests.isEmpty(); }

    int links = 0;

private:
    QPointer<FakeXmppLink> latest;
};

#endif

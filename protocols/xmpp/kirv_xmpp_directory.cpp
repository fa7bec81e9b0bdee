// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_directory.h"

#include "protocols/xmpp/kirv_xmpp_link.h"

KirvXmppDirectory::KirvXmppDirectory(KirvXmppLink &link)
    : link(link)
{
}

void KirvXmppDirectory::read(const Receiver &receiver)
{
    add({ [](KirvXmppVCard &) { return false; }, receiver });
}

void KirvXmppDirectory::change(const Change &change, const Receiver &receiver)
{
    add({ change, receiver });
}

void KirvXmppDirectory::add(const Job &job)
{
    jobs << job;
    if (jobs.size() == 1)
        startNext();
}

void KirvXmppDirectory::startNext()
{
    const auto receive = [this](const KirvXmppReply &reply) {
        KirvXmppVCard card(reply.payload);
        const bool hasNone = reply.condition == QLatin1String("item-not-found");
        if (reply.isError() && !hasNone)
            finish(reply.failure, KirvXmppVCard());
        else if (jobs.first().change(card))
            write(card);
        else
            finish(KirvFailure(), card);
    };
    link.sendRequest(QXmppIq::Get, KirvXmppVCard().document(), receive, QString());
}

void KirvXmppDirectory::write(const KirvXmppVCard &card)
{
    if (card.size() > KirvXmppVCard::largestSize) {
        finish(KirvFailure(KirvFailure::RequestFailed, tr("The directory entry is too long to be sent.")), card);
        return;
    }
    const auto receive = [this, card](const KirvXmppReply &reply) { finish(reply.failure, card); };
    link.sendRequest(QXmppIq::Set, card.document(), receive, QString());
}

void KirvXmppDirectory::finish(const KirvFailure &failure, const KirvXmppVCard &card)
{
    // Started first: the receiver may destroy all this.
    const Job done = jobs.takeFirst();
    if (!jobs.isEmpty())
        startNext();
    done.receiver(failure, card);
}

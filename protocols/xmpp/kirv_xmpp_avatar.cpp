// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_avatar.h"

#include "protocols/xmpp/kirv_xmpp_directory.h"
#include "protocols/xmpp/kirv_xmpp_link.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

namespace {

const auto eventSpace = QStringLiteral("http://jabber.org/protocol/pubsub");
const auto metadataSpace = QStringLiteral("urn:xmpp:avatar:metadata");
const auto dataSpace = QStringLiteral("urn:xmpp:avatar:data");

/// The first item of a reply; null when it has none.
QDomElement itemOf(const KirvXmppReply &reply)
{
    const QDomElement items = kirvXmppChild(reply.payload, eventSpace, QStringLiteral("items"));
    return kirvXmppChild(items, eventSpace, QStringLiteral("item"));
}

/// Whether the server has not said whether there is something.
bool isUnknown(const KirvXmppReply &reply)
{
    const QStringList temporary { QString(), QStringLiteral("internal-server-error"),
                                  QStringLiteral("remote-server-timeout"), QStringLiteral("resource-constraint") };
    return reply.isError() && temporary.contains(reply.condition);
}

KirvXmppAvatar::Result failed(const KirvFailure &failure)
{
    KirvXmppAvatar::Result result;
    result.failure = failure;
    return result;
}

/// \a text when it has the form of a hash in hexadecimal digits, in lower case; empty otherwise.
QByteArray toHash(const QString &text)
{
    const QByteArray hash = QByteArray::fromHex(text.toLatin1());
    return hash.size() == 20 ? hash.toHex() : QByteArray();
}

} // namespace

KirvXmppAvatar::Places KirvXmppAvatar::Places::fromBytes(const QByteArray &bytes)
{
    const int separator = int(bytes.indexOf('/'));
    return separator < 0 ? Places() : Places { bytes.left(separator), bytes.mid(separator + 1) };
}

KirvXmppAvatar::KirvXmppAvatar(KirvXmppLink &link, KirvXmppDirectory &directory)
    : link(link)
    , directory(directory)
{
}

void KirvXmppAvatar::synchronize(const KirvAvatar &avatar, const Receiver &receiver)
{
    if (avatar.isChosen)
        publish(avatar, receiver);
    else
        readEvent([=](const KirvFailure &failure, const QByteArray &event) {
            if (failure.isFailure())
                receiver(failed(failure));
            else
                readEntry(avatar, event, receiver);
        });
}

/// The event is read first: only one that comes later is newer.
void KirvXmppAvatar::publish(const KirvAvatar &avatar, const Receiver &receiver)
{
    readEvent([=](const KirvFailure &failure, const QByteArray &event) {
        if (failure.isFailure())
            receiver(failed(failure));
        else
            writeEntry(avatar, event, receiver);
    });
}

/// Empty when there is none, and on servers without such events.
void KirvXmppAvatar::readEvent(const EventReceiver &receiver)
{
    requestItem(metadataSpace, QByteArray(), [receiver](const KirvXmppReply &reply) {
        if (isUnknown(reply)) {
            receiver(reply.failure, QByteArray());
            return;
        }
        const QDomElement item = itemOf(reply);
        const QDomElement metadata = kirvXmppChild(item, metadataSpace, QStringLiteral("metadata"));
        const bool hasPicture = !kirvXmppChild(metadata, metadataSpace, QStringLiteral("info")).isNull();
        receiver(KirvFailure(), hasPicture ? toHash(item.attribute(QStringLiteral("id"))) : QByteArray());
    });
}

void KirvXmppAvatar::writeEntry(const KirvAvatar &avatar, const QByteArray &event, const Receiver &receiver)
{
    const KirvXmppPhoto photo = avatar.path.isEmpty() ? KirvXmppPhoto() : KirvXmppPhoto::fromFile(avatar.path);
    if (photo.isNull() && !avatar.path.isEmpty()) {
        const QString problem = tr("The picture of the account cannot be read.");
        receiver(failed(KirvFailure(KirvFailure::RequestFailed, problem)));
        return;
    }
    const auto change = [photo](KirvXmppVCard &card) {
        const bool differs = card.photo().data != photo.data;
        if (differs)
            card.setPhoto(photo);
        return differs;
    };
    directory.change(change, [event, receiver](const KirvFailure &failure, const KirvXmppVCard &card) {
        Result result;
        result.failure = failure;
        result.kind = Result::Published;
        result.photo = card.photo();
        result.onServer = Places { result.photo.hash().toHex(), event }.toBytes();
        receiver(result);
    });
}

void KirvXmppAvatar::readEntry(const KirvAvatar &avatar, const QByteArray &event, const Receiver &receiver)
{
    directory.read([=](const KirvFailure &failure, const KirvXmppVCard &card) {
        Result result;
        result.failure = failure;
        result.photo = card.photo();
        result.onServer = Places { result.photo.hash().toHex(), event }.toBytes();
        if (failure.isFailure())
            receiver(result);
        else
            compare(avatar, event, result, receiver);
    });
}

void KirvXmppAvatar::compare(const KirvAvatar &avatar, const QByteArray &event, Result result, const Receiver &receiver)
{
    const Places known = Places::fromBytes(avatar.onServer);
    const QByteArray entry = result.photo.hash().toHex();
    const bool isKnown = !avatar.onServer.isEmpty();
    if (!isKnown && entry.isEmpty() && event.isEmpty()) {
        if (avatar.path.isEmpty())
            receiver(result);
        else
            writeEntry(avatar, event, receiver); // there is nothing that it could overwrite
        return;
    }
    // Where the server keeps the places in line, they tell of one change.
    if (!event.isEmpty() && event != entry && event != known.event) {
        fetchEvent(event, result, receiver);
        return;
    }
    if (!isKnown || entry != known.entry) {
        result.kind = Result::Received;
        result.image = result.photo.data;
    }
    receiver(result);
}

void KirvXmppAvatar::fetchEvent(const QByteArray &hash, const Result &result, const Receiver &receiver)
{
    requestItem(dataSpace, hash, [=](const KirvXmppReply &reply) {
        const QDomElement data = kirvXmppChild(itemOf(reply), dataSpace, QStringLiteral("data"));
        Result received = result;
        received.image = QByteArray::fromBase64(data.text().toLatin1());
        // A picture that is not there is no reason to remove the one that is here.
        received.kind = received.image.isEmpty() ? Result::Unchanged : Result::Received;
        receiver(received);
    });
}

/// The item \a id of the account's own events at \a node; an empty one means the latest.
void KirvXmppAvatar::requestItem(const QString &node, const QByteArray &id,
                                 const std::function<void(const KirvXmppReply &)> &receiver)
{
    const QDomDocument request = kirvXmppNewDocument(eventSpace, QStringLiteral("pubsub"));
    QDomElement pubsub = request.documentElement();
    QDomElement items = kirvXmppAppend(pubsub, QStringLiteral("items"));
    items.setAttribute(QStringLiteral("node"), node);
    if (id.isEmpty())
        items.setAttribute(QStringLiteral("max_items"), 1);
    else
        kirvXmppAppend(items, QStringLiteral("item")).setAttribute(QStringLiteral("id"), QString::fromLatin1(id));
    link.sendRequest(QXmppIq::Get, request, receiver, QString());
}

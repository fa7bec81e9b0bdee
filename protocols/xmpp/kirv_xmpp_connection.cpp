// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"

#include "protocols/xmpp/kirv_xmpp_directory.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QXmppConfiguration.h>
#include <memory>

namespace {

const int longestStatus = 1000;
const auto registrationSpace = QStringLiteral("jabber:iq:register");
const auto pingSpace = QStringLiteral("urn:xmpp:ping");

} // namespace

KirvXmppConnection::KirvXmppConnection(KirvClock &clock, QObject *parent, KirvXmppLinkFactory createLink)
    : KirvConnection(clock, parent)
    , createLink(std::move(createLink))
{
}

KirvXmppConnection::~KirvXmppConnection()
{
    KirvXmppConnection::abortConnection(); // no other one: derived classes are gone
}

QString KirvXmppConnection::securityText() const
{
    return isLoggedIn() && link ? link->securityText() : QString();
}

void KirvXmppConnection::startLogin(const KirvPresence &presence)
{
    settings = KirvXmppSettings(login().settings);
    const QString user = login().id.section(QLatin1Char('@'), 0, 0);
    const QString domain = login().id.section(QLatin1Char('@'), 1);
    if (user.isEmpty() || domain.isEmpty()) {
        loginFailed(KirvFailure(KirvFailure::BadSettings, tr("The login must be an address such as user@domain.")));
        return;
    }
    if (login().password.isEmpty()) {
        loginFailed(KirvFailure::PasswordMissing);
        return;
    }
    QXmppConfiguration configuration;
    QString problem;
    if (!settings.apply(domain, &configuration, &problem)) {
        loginFailed(KirvFailure(KirvFailure::BadSettings, problem));
        return;
    }
    configuration.setResource(settings.resourceWith(randomPart));
    configuration.setUser(user);
    configuration.setPassword(login().password);
    photoState = QXmppPresence::VCardUpdateNotReady;
    connectLink();
    link->open(configuration, toXmpp(presence));
}

void KirvXmppConnection::connectLink()
{
    abortConnection();
    link.reset(createLink(KirvXmppLink::LogIn, clock(), timing().requestTimeout));
    link->setTrustedCertificate(login().trustedCertificate);
    connect(link.data(), &KirvXmppLink::certificateShown, this, &KirvXmppConnection::acceptsCertificate);
    directory.reset(new KirvXmppDirectory(*link));
    picture.reset(new KirvXmppAvatar(*link, *directory));
    connect(link.data(), &KirvXmppLink::step, this, &KirvXmppConnection::reportStep);
    connect(link.data(), &KirvXmppLink::loggedIn, this, &KirvXmppConnection::finishLogin);
    connect(link.data(), &KirvXmppLink::ended, this, &KirvXmppConnection::receiveEnd);
}

void KirvXmppConnection::finishLogin()
{
    const QString proof = link->mechanism();
    reportStep({ KirvLoginStep::LogIn, KirvLoginStep::Done, proof.isEmpty() ? proof : QLatin1String("SASL ") + proof });
    const KirvAvatar own = avatar();
    picture->synchronize(own, [=](const KirvXmppAvatar::Result &result) { finishAvatar(own, result); });
    loginSucceeded();
}

void KirvXmppConnection::receiveEnd(const KirvFailure &failure)
{
    if (state() == Disconnecting)
        logoutFinished();
    else if (state() == Connecting && failure.kind() == KirvFailure::UntrustedCertificate)
        failForCertificate();
    else if (state() == Connecting)
        loginFailed(failure);
    else
        connectionLost(failure);
}

void KirvXmppConnection::startLogout()
{
    link->close();
}

void KirvXmppConnection::abortConnection()
{
    if (!link)
        return;
    link->disconnect(this);
    link->abort();
    picture.reset();
    directory.reset();
    link.reset();
}

void KirvXmppConnection::applyPresence(const KirvPresence &presence)
{
    link->sendPresence(toXmpp(presence));
}

QXmppPresence KirvXmppConnection::toXmpp(const KirvPresence &presence) const
{
    const QString id = presence.getId();
    QXmppPresence result;
    if (id == QLatin1String("invisible")) {
        result.setType(QXmppPresence::Unavailable);
        return result;
    }
    if (id == QLatin1String("chat"))
        result.setAvailableStatusType(QXmppPresence::Chat);
    else if (id == QLatin1String("away"))
        result.setAvailableStatusType(QXmppPresence::Away);
    else if (id == QLatin1String("xa"))
        result.setAvailableStatusType(QXmppPresence::XA);
    else if (id == QLatin1String("dnd"))
        result.setAvailableStatusType(QXmppPresence::DND);
    result.setStatusText(kirvXmppSendable(presence.getDescription().left(longestStatus)));
    result.setPriority(settings.priority);
    result.setVCardUpdateType(photoState);
    result.setPhotoHash(photoHash);
    return result;
}

void KirvXmppConnection::startDirectoryFetch(int request)
{
    changeDirectory(request, [](KirvXmppVCard &) { return false; });
}

void KirvXmppConnection::startDirectoryPublication(int request, const QList<KirvField> &changes)
{
    changeDirectory(request, [changes](KirvXmppVCard &card) {
        card.setFields(changes);
        return true;
    });
}

void KirvXmppConnection::startDirectoryDeletion(int request)
{
    changeDirectory(request, [](KirvXmppVCard &card) {
        card.clear();
        return true;
    });
}

/// Replies with the entry as it is after \a change.
void KirvXmppConnection::changeDirectory(int request, const std::function<bool(KirvXmppVCard &)> &change)
{
    directory->change(change, [this, request](const KirvFailure &failure, const KirvXmppVCard &card) {
        if (failure.isFailure())
            failDirectoryRequest(request, failure);
        else
            answerDirectoryRequest(request, card.toFields());
    });
}

/// Every reply shows that the server is there, also a refusal.
void KirvXmppConnection::checkSession(int milliseconds)
{
    if (!link->isReady())
        return;
    const auto isAnswered = std::make_shared<bool>(false);
    const KirvXmppLink *const checked = link.data();
    clock().callLater(milliseconds, link.data(), [=] {
        if (link.data() == checked && !*isAnswered)
            connectionLost(KirvFailure(KirvFailure::ConnectionLost, tr("the server does not answer any more")));
    });
    const QDomDocument ping = kirvXmppNewDocument(pingSpace, QStringLiteral("ping"));
    const QString server = login().id.section(QLatin1Char('@'), 1);
    link->sendRequest(
        QXmppIq::Get, ping, [isAnswered](const KirvXmppReply &) { *isAnswered = true; }, server);
}

void KirvXmppConnection::publishAvatar()
{
    if (!link || !link->isReady())
        return;
    const KirvAvatar own = avatar();
    picture->publish(own, [=](const KirvXmppAvatar::Result &result) { finishAvatar(own, result); });
}

/// Reported last: a slot may destroy the connection.
void KirvXmppConnection::finishAvatar(const KirvAvatar &own, const KirvXmppAvatar::Result &result)
{
    if (result.failure.isFailure()) {
        if (own.isChosen) // otherwise nothing was wanted
            requestFailed(result.failure);
        return;
    }
    advertise(result.photo);
    if (result.kind == KirvXmppAvatar::Result::Published)
        Q_EMIT avatarPublished(own.path, result.onServer);
    else if (result.kind == KirvXmppAvatar::Result::Received)
        Q_EMIT avatarReceived(result.image, result.onServer);
}

/// Announces in the presence which picture is the present one.
void KirvXmppConnection::advertise(const KirvXmppPhoto &photo)
{
    photoState = photo.isNull() ? QXmppPresence::VCardUpdateNoPhoto : QXmppPresence::VCardUpdateValidPhoto;
    photoHash = photo.hash();
    if (isLoggedIn())
        applyPresence(presence());
}

void KirvXmppConnection::changePassword(const QString &password, const Receiver &receiver)
{
    const QDomDocument request = kirvXmppNewDocument(registrationSpace, QStringLiteral("query"));
    QDomElement query = request.documentElement();
    kirvXmppAppend(query, QStringLiteral("username"), login().id.section(QLatin1Char('@'), 0, 0));
    kirvXmppAppend(query, QStringLiteral("password"), password);
    sendToServer(request, receiver);
}

void KirvXmppConnection::deleteOnServer(const Receiver &receiver)
{
    const QDomDocument request = kirvXmppNewDocument(registrationSpace, QStringLiteral("query"));
    QDomElement query = request.documentElement();
    kirvXmppAppend(query, QStringLiteral("remove"));
    sendToServer(request, [this, receiver](const KirvFailure &failure) {
        if (!failure.isFailure())
            drop(); // the server ends the stream now, which is no failure
        receiver(failure);
    });
}

void KirvXmppConnection::sendToServer(const QDomDocument &request, const Receiver &receiver)
{
    if (!isLoggedIn()) {
        receiver(KirvFailure(KirvFailure::RequestFailed, tr("The account is not connected.")));
        return;
    }
    const QString server = login().id.section(QLatin1Char('@'), 1);
    const auto receive = [receiver](const KirvXmppReply &reply) { receiver(reply.failure); };
    link->sendRequest(QXmppIq::Set, request, receive, server);
}

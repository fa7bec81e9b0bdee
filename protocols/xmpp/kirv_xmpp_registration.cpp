// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration.h"

#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QXmppConfiguration.h>

KirvXmppRegistration::KirvXmppRegistration(KirvClock &clock, QObject *parent, KirvXmppLinkFactory createLink)
    : QObject(parent)
    , clock(clock)
    , createLink(std::move(createLink))
{
}

KirvXmppRegistration::~KirvXmppRegistration()
{
    cancel();
}

void KirvXmppRegistration::fetchForm(const QString &domain, const KirvXmppSettings &settings)
{
    this->domain = domain;
    this->settings = settings;
    isSubmitting = false;
    open();
}

void KirvXmppRegistration::submit(const QList<KirvField> &filled)
{
    this->filled = filled;
    isSubmitting = true;
    // What the server refused stays refused, also when no new form came.
    if (link && link->isReady() && !refusal.isFailure())
        send();
    else
        open();
}

void KirvXmppRegistration::cancel()
{
    isBusy = false;
    ++attempt;
    if (!link)
        return;
    link->disconnect(this);
    link->abort();
    link.reset();
}

void KirvXmppRegistration::open()
{
    cancel();
    refusal = KirvFailure();
    QXmppConfiguration configuration;
    QString problem;
    isBusy = true;
    if (!settings.apply(domain, &configuration, &problem)) {
        fail(KirvFailure(KirvFailure::BadSettings, problem));
        return;
    }
    clock.callLater(replyTimeout, this, [this, started = attempt] {
        if (isBusy && started == attempt)
            fail(KirvFailure(KirvFailure::TimedOut, settings.server.isEmpty() ? domain : settings.server));
    });
    link.reset(createLink(KirvXmppLink::Register, clock, replyTimeout));
    link->setTrustedCertificate(trustedCertificate);
    connect(link.data(), &KirvXmppLink::certificateShown, this, &KirvXmppRegistration::certificateShown);
    connect(link.data(), &KirvXmppLink::readyToRegister, this, [this](bool offered) {
        isOffered = offered;
        requestForm();
    });
    connect(link.data(), &KirvXmppLink::ended, this, &KirvXmppRegistration::receiveEnd);
    link->open(configuration, QXmppPresence());
}

void KirvXmppRegistration::requestForm()
{
    const QDomDocument query = kirvXmppNewDocument(QStringLiteral("jabber:iq:register"), QStringLiteral("query"));
    const auto receive = [this](const KirvXmppReply &reply) { receiveForm(reply); };
    link->sendRequest(QXmppIq::Get, query, receive, domain);
}

void KirvXmppRegistration::receiveForm(const KirvXmppReply &reply)
{
    if (reply.isError() && refusal.isFailure()) {
        fail(refusal);
        return;
    }
    if (reply.isError()) {
        fail(isOffered ? reply.failure : KirvFailure(KirvFailure::NotSupported, tr("registration of accounts")));
        return;
    }
    const QList<KirvField> before = form.fields();
    form = KirvXmppRegistrationForm(reply.iq);
    const bool isSameForm = form.fields() == before && form.pictures().isEmpty();
    if (isSubmitting && isSameForm && !refusal.isFailure()) {
        send();
        return;
    }
    isBusy = false;
    ++attempt;
    const KirvFailure reason = refusal;
    refusal = KirvFailure();
    Q_EMIT formReceived(form, reason);
}

void KirvXmppRegistration::send()
{
    isBusy = true;
    const auto receive = [this](const KirvXmppReply &reply) {
        if (reply.condition == QLatin1String("conflict")) {
            const QString name = KirvXmppRegistrationForm::userName(filled);
            refuse(KirvFailure(KirvFailure::NameInUse, name));
        } else if (reply.isError()) {
            refuse(reply.failure);
        } else {
            cancel();
            Q_EMIT succeeded();
        }
    };
    link->sendRequest(QXmppIq::Set, form.toQuery(filled), receive, domain);
}

/// The server knows the answer to a picture only once: the right one for the same form would be refused, too.
void KirvXmppRegistration::refuse(const KirvFailure &failure)
{
    if (!form.isSingleUse() || !link || !link->isReady()) {
        fail(failure);
        return;
    }
    refusal = failure;
    requestForm();
}

void KirvXmppRegistration::receiveEnd(const KirvFailure &failure)
{
    // Nothing was under way: the next submit() comes back.
    if (!isBusy)
        cancel();
    else if (!isOffered && !isSubmitting)
        fail(KirvFailure(KirvFailure::NotSupported, tr("registration of accounts")));
    else if (refusal.isFailure())
        fail(refusal);
    else
        fail(failure.isFailure() ? failure : KirvFailure::ConnectionLost);
}

/// Keeps the stream when the server has only refused: the user corrects the form and sends it again.
void KirvXmppRegistration::fail(const KirvFailure &failure)
{
    if (!isBusy)
        return;
    isBusy = false;
    ++attempt;
    if (!link || !link->isReady() || failure.kind() == KirvFailure::TimedOut)
        cancel();
    Q_EMIT failed(failure);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration_request.h"

#include "protocols/xmpp/kirv_xmpp_fields.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QPointer>
#include <algorithm>

namespace {

const auto domainId = QStringLiteral("domain");

KirvField createDomainField(const QString &domain)
{
    KirvField field = KirvField::textEdit(KirvXmppRegistrationRequest::tr("Domain"), domainId, domain,
                                          KirvXmppRegistrationRequest::tr("The part of the address after the @."));
    field.setRequired(true);
    return field;
}

/// The domain that was filled in, also as the end of a whole address.
QString domainOf(const QList<KirvField> &fields)
{
    return kirvXmppTextOf(fields, domainId).section(QLatin1Char('@'), -1).trimmed();
}

} // namespace

KirvXmppRegistrationRequest::KirvXmppRegistrationRequest(KirvClock &clock, QObject *parent,
                                                         KirvXmppLinkFactory createLink)
    : KirvServerRequest(parent)
    , registration(clock, nullptr, std::move(createLink))
    , serverFields(QList<KirvField> { createDomainField(QString()) } + KirvXmppSettings().toServerFields())
{
    connect(&registration, &KirvXmppRegistration::formReceived, this, &KirvXmppRegistrationRequest::showForm);
    connect(&registration, &KirvXmppRegistration::succeeded, this, &KirvXmppRegistrationRequest::finish);
    connect(&registration, &KirvXmppRegistration::certificateShown, this,
            [this](const KirvServerCertificate &shown) { certificate = shown; });
    connect(&registration, &KirvXmppRegistration::failed, this, &KirvXmppRegistrationRequest::receiveFailure);
}

QString KirvXmppRegistrationRequest::title() const
{
    return tr("Register XMPP Account");
}

void KirvXmppRegistrationRequest::start()
{
    showServerStep();
}

void KirvXmppRegistrationRequest::showServerStep()
{
    isAtForm = isAtCertificate = false;
    Step step;
    step.text = tr("Choose the server of the new account. The server determines what is to be filled in next.");
    step.configurations = KirvXmppSettings::configurations();
    step.fields = serverFields;
    step.providerField = domainId;
    step.command = tr("Continue");
    Q_EMIT stepReady(step);
}

QList<KirvField> KirvXmppRegistrationRequest::fieldsOf(const QString &name, const QList<KirvField> &filled) const
{
    KirvXmppSettings settings(KirvXmppSettings::configurationFields(name));
    settings.proxy = KirvProxy(filled); // no configuration is about the way there
    QString known = domainOf(filled);
    if (known.isEmpty() && !settings.server.isEmpty())
        known = QStringLiteral("localhost");
    return QList<KirvField> { createDomainField(known) } + settings.toServerFields();
}

void KirvXmppRegistrationRequest::submit(const QList<KirvField> &filled)
{
    if (isAtCertificate) {
        trustedCertificate = certificate.fingerprint;
        requestForm();
    } else if (isAtForm) {
        formFields = filled;
        sendForm();
    } else {
        serverFields = filled;
        trustedCertificate.clear(); // it may be another server
        requestForm();
    }
}

void KirvXmppRegistrationRequest::receiveFailure(const KirvFailure &failure)
{
    if (failure.kind() == KirvFailure::UntrustedCertificate && !certificate.isNull())
        showCertificate();
    else
        Q_EMIT failed(failure);
}

/// Asks whether the certificate is to be trusted all the same. What was typed into the form stays for it.
void KirvXmppRegistrationRequest::showCertificate()
{
    isAtForm = false;
    isAtCertificate = true;
    Step step;
    step.text = tr("The certificate of the server is not trusted. Somebody between you and the server could read your "
                   "password.");
    step.notice = certificate.problems.join(QLatin1Char(' '));
    const QList<KirvServerCertificate::Detail> details = certificate.details();
    for (const KirvServerCertificate::Detail &detail : details) {
        const QString id = QStringLiteral("certificate_%1").arg(step.fields.size());
        step.fields << KirvField::note(detail.label, id, detail.text, QString());
    }
    step.command = tr("Trust for This Account");
    step.isDangerous = true;
    step.canGoBack = true;
    Q_EMIT stepReady(step);
}

void KirvXmppRegistrationRequest::requestForm()
{
    domain = domainOf(serverFields);
    const bool isSendable = std::all_of(serverFields.begin(), serverFields.end(),
                                        [](const KirvField &field) { return kirvXmppIsSendable(field.getText()); });
    if (domain.isEmpty()) {
        Q_EMIT inputRejected(tr("Enter the domain of the server."));
        return;
    }
    if (!isSendable) {
        Q_EMIT inputRejected(tr("The name of a server holds characters that cannot be sent."));
        return;
    }
    const QPointer<KirvXmppRegistrationRequest> alive(this);
    Q_EMIT waiting(tr("Requesting the registration form…"));
    if (!alive)
        return;
    certificate = KirvServerCertificate();
    registration.setTrustedCertificate(trustedCertificate);
    registration.fetchForm(domain, KirvXmppSettings(serverFields));
}

void KirvXmppRegistrationRequest::showForm(const KirvXmppRegistrationForm &received, const KirvFailure &refusal)
{
    const bool isAnother = isAtForm;
    isAtCertificate = false;
    formFields = received.fieldsWith(formFields, form.fields());
    form = received;
    isAtForm = true;

    Step step;
    step.text = textOf(form);
    step.fields = formFields;
    step.pictures = form.pictures();
    step.canGoBack = true;
    step.hasPassword = form.hasPassword();
    if (step.fields.isEmpty())
        step.notice = tr("This server does not register accounts from within a client.");
    else
        step.command = tr("Register");
    if (isAnother && !step.fields.isEmpty())
        step.notice = noticeOf(refusal);
    Q_EMIT stepReady(step);
}

QString KirvXmppRegistrationRequest::noticeOf(const KirvFailure &refusal)
{
    const QString notice = tr("The server sent another form. Check it and register again.");
    return refusal.isFailure() ? refusal.text() + QLatin1Char('\n') + notice : notice;
}

QString KirvXmppRegistrationRequest::textOf(const KirvXmppRegistrationForm &form) const
{
    QStringList texts { form.title(), form.instructions() };
    if (!form.address().isEmpty()) {
        //: %1 = a web address
        texts << tr("The server also names this address: %1").arg(form.address());
    }
    texts.removeAll(QString());
    return texts.join(QStringLiteral("\n\n"));
}

void KirvXmppRegistrationRequest::sendForm()
{
    const QString problem = form.problem(formFields);
    if (!problem.isEmpty()) {
        Q_EMIT inputRejected(problem);
        return;
    }
    const QPointer<KirvXmppRegistrationRequest> alive(this);
    Q_EMIT waiting(tr("Sending the form…"));
    if (alive)
        registration.submit(formFields);
}

void KirvXmppRegistrationRequest::finish()
{
    const QString name = KirvXmppRegistrationForm::userName(formFields);
    Result result;
    result.kind = Result::AccountRegistered;
    if (!name.isEmpty()) {
        result.account.id = name + QLatin1Char('@') + domain;
        result.account.password = KirvXmppRegistrationForm::password(formFields);
        result.account.settings = KirvXmppSettings(serverFields).toFields();
        result.account.trustedCertificate = trustedCertificate;
    }
    Q_EMIT succeeded(result);
}

void KirvXmppRegistrationRequest::goBack(const QList<KirvField> &filled)
{
    registration.cancel();
    if (!isAtForm && !isAtCertificate)
        return;
    if (isAtForm)
        formFields = filled;
    showServerStep();
}

bool KirvXmppRegistrationRequest::cancel()
{
    registration.cancel();
    return true;
}

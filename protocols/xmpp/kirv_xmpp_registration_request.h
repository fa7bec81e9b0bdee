// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_REGISTRATION_REQUEST_H
#define KIRV_XMPP_REGISTRATION_REQUEST_H

#include "core/protocol/kirv_server_request.h"
#include "protocols/xmpp/kirv_xmpp_registration.h"
#include "protocols/xmpp/kirv_xmpp_route.h"

/// Registers a new account: the first step is about the server, the second is the form of this server. Values that
/// were typed stay when a step comes again and when the server sends another form.
///
/// When the certificate of the server is not trusted, a step in between shows it. The one that is trusted there is
/// trusted for the new account, too.
class KirvXmppRegistrationRequest : public KirvServerRequest {
    Q_OBJECT
    /// How long the server may take for a reply, in milliseconds.
    Q_PROPERTY(int timeout READ timeout WRITE setTimeout)

public:
    /// \a clock is not owned and outlives the request.
    explicit KirvXmppRegistrationRequest(KirvClock &clock = KirvClock::system(), QObject *parent = nullptr,
                                         KirvXmppLinkFactory createLink = KirvXmppRoute::create);

    int timeout() const { return registration.timeout(); }
    void setTimeout(int milliseconds) { registration.setTimeout(milliseconds); }

    QString title() const override;
    void start() override;
    QList<KirvField> fieldsOf(const QString &name, const QList<KirvField> &filled) const override;
    void submit(const QList<KirvField> &filled) override;
    void goBack(const QList<KirvField> &filled) override;
    bool cancel() override;

private:
    void showServerStep();
    void requestForm();
    void receiveFailure(const KirvFailure &failure);
    void showCertificate();
    void showForm(const KirvXmppRegistrationForm &received, const KirvFailure &refusal);
    static QString noticeOf(const KirvFailure &refusal);
    QString textOf(const KirvXmppRegistrationForm &form) const;
    void sendForm();
    void finish();

    KirvXmppRegistration registration;
    bool isAtForm = false;
    bool isAtCertificate = false;
    KirvServerCertificate certificate; ///< that the server has shown last and that has problems
    QByteArray trustedCertificate; ///< the digest of the one that is trusted
    QList<KirvField> serverFields; ///< of the first step, as filled in last
    QString domain;
    KirvXmppRegistrationForm form;
    QList<KirvField> formFields; ///< of the second step, as filled in last
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_REGISTRATION_H
#define KIRV_XMPP_REGISTRATION_H

#include "protocols/xmpp/kirv_xmpp_registration_form.h"
#include "protocols/xmpp/kirv_xmpp_route.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"

#include <QObject>
#include <QScopedPointer>

/// Requests the registration form of a server and sends it back filled in.
///
/// Every request ends in exactly one signal, within the time-out. A stream that has ended while the form was filled in
/// is opened again to send it. A form that can be sent only once is requested anew when the server refused it. A slot
/// may destroy the object.
class KirvXmppRegistration : public QObject {
    Q_OBJECT

public:
    /// \a clock is not owned and outlives the registration.
    explicit KirvXmppRegistration(KirvClock &clock = KirvClock::system(), QObject *parent = nullptr,
                                  KirvXmppLinkFactory createLink = KirvXmppRoute::create);
    ~KirvXmppRegistration() override;

    /// How long the server may take, in milliseconds.
    int timeout() const { return replyTimeout; }
    void setTimeout(int milliseconds) { replyTimeout = milliseconds; }

    /// The certificate that is trusted whatever is wrong with it: its SHA-256 digest; empty: none.
    void setTrustedCertificate(const QByteArray &digest) { trustedCertificate = digest; }

    /// Requests the form of the server of \a domain; the reply is formReceived() or failed().
    void fetchForm(const QString &domain, const KirvXmppSettings &settings);
    /// Sends the form; the reply is succeeded() or failed(), or formReceived() when the server has another form by
    /// now, or refused this one and has sent a new one.
    void submit(const QList<KirvField> &filled);
    /// Ends what is under way; nothing is emitted.
    void cancel();

Q_SIGNALS:
    /// \a refusal: why the form before was refused; None when it was not.
    void formReceived(const KirvXmppRegistrationForm &form, const KirvFailure &refusal);
    void succeeded();
    /// The server has shown a certificate that has problems; failed() follows unless it is the trusted one.
    void certificateShown(const KirvServerCertificate &certificate);
    /// The server refused, or could not be reached.
    void failed(const KirvFailure &failure);

private:
    void open();
    void requestForm();
    void receiveForm(const KirvXmppReply &reply);
    void send();
    void refuse(const KirvFailure &failure);
    void receiveEnd(const KirvFailure &failure);
    void fail(const KirvFailure &failure);

    KirvClock &clock;
    const KirvXmppLinkFactory createLink;
    int replyTimeout = 30000;
    QString domain;
    QByteArray trustedCertificate;
    KirvXmppSettings settings;
    KirvXmppRegistrationForm form;
    QList<KirvField> filled;
    KirvFailure refusal; ///< of the form that a new one was requested for
    bool isSubmitting = false;
    bool isBusy = false;
    bool isOffered = true;
    quint64 attempt = 0; ///< tells a timer whether it is still wanted
    /// Deleted later, as it may be in the middle of a signal.
    QScopedPointer<KirvXmppLink, QScopedPointerDeleteLater> link;
};

#endif

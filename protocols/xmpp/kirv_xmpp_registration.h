// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_REGISTRATION_H
#define KIRV_XMPP_REGISTRATION_H

#include "core/values/kirv_clock.h"
#include "core/values/kirv_failure.h"
#include "protocols/xmpp/kirv_xmpp_registration_form.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"

#include <QObject>
#include <QScopedPointer>
#include <functional>

class KirvXmppLink;
struct KirvXmppAnswer;

/// Asks a server for its registration form and sends it back filled in.
///
/// Every request ends in exactly one signal, within the time-out. A stream that has ended while the user was
/// filling the form is opened again for the answer.
class KirvXmppRegistration : public QObject {
    Q_OBJECT

public:
    explicit KirvXmppRegistration(KirvClock &clock = KirvClock::system(), QObject *parent = nullptr);
    ~KirvXmppRegistration() override;

    /// How long the server may take, in milliseconds.
    int timeout() const { return answerTimeout; }
    void setTimeout(int milliseconds) { answerTimeout = milliseconds; }

    /// Asks the server of \a domain for its form; answered by formReceived() or failed().
    void fetchForm(const QString &domain, const KirvXmppSettings &settings);
    /// Sends the form; answered by succeeded(), or by failed(), or by formReceived() when the server by now wants
    /// another one filled in.
    void submit(const QList<KirvField> &filled);
    /// Ends what is under way; nothing is told.
    void cancel();

Q_SIGNALS:
    void formReceived(const KirvXmppRegistrationForm &form);
    void succeeded();
    /// The server refused, or could not be asked.
    void failed(const KirvFailure &failure);

private:
    void open();
    void askForForm();
    void receiveForm(const KirvXmppAnswer &answer);
    void send();
    void receiveEnd(const KirvFailure &failure);
    void fail(const KirvFailure &failure);

    KirvClock &clock;
    int answerTimeout = 30000;
    QString domain;
    KirvXmppSettings settings;
    KirvXmppRegistrationForm form;
    QList<KirvField> filled;
    bool isSubmitting = false;
    bool isBusy = false;
    bool isOffered = true;
    quint64 attempt = 0; ///< tells a timer whether it is still wanted
    /// Deleted later, as it may be in the middle of a signal.
    QScopedPointer<KirvXmppLink, QScopedPointerDeleteLater> link;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
// What a connection knows of the certificate of its server.
#include "core/protocol/kirv_connection_p.h"

#include <QPointer>

const KirvServerCertificate &KirvConnection::refusedCertificate() const
{
    return d->refusedCertificate;
}

KirvServerCertificate KirvConnection::pinnedCertificate() const
{
    return d->state == Online ? d->shownCertificate : KirvServerCertificate();
}

bool KirvConnection::acceptsCertificate(const KirvServerCertificate &certificate)
{
    d->shownCertificate = certificate;
    return !certificate.isNull() && certificate.fingerprint == d->login.trustedCertificate;
}

void KirvConnection::failForCertificate()
{
    if (!d->accepts(Connecting))
        return;
    d->refusedCertificate = d->shownCertificate;
    const quint64 visit = d->visit;
    const QPointer<KirvConnection> alive(this);
    Q_EMIT certificateRefused(KirvServerCertificate(d->refusedCertificate)); // a slot may begin another log-in
    if (alive && d->visit == visit)
        loginFailed({ KirvFailure::UntrustedCertificate, d->refusedCertificate.problems.join(QLatin1Char(' ')) });
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_server_request.h"

KirvFakeServerRequest::KirvFakeServerRequest(const QList<Step> &steps, const Result &result, QObject *parent)
    : KirvServerRequest(parent)
    , steps(steps)
    , result(result)
{
}

void KirvFakeServerRequest::start()
{
    next = 0;
    reply();
}

QList<KirvField> KirvFakeServerRequest::fieldsOf(const QString &, const QList<KirvField> &filled) const
{
    return configurationFields.isEmpty() ? filled : configurationFields;
}

void KirvFakeServerRequest::submit(const QList<KirvField> &filled)
{
    submitted << filled;
    next = index + 1;
    reply();
}

void KirvFakeServerRequest::goBack(const QList<KirvField> &)
{
    showStep(index - 1);
}

bool KirvFakeServerRequest::cancel()
{
    ++cancelled;
    if (isCommitted && isUnderWay())
        return false;
    next = -1;
    return true;
}

void KirvFakeServerRequest::serverAccepts()
{
    if (next >= 0)
        showStep(std::exchange(next, -1));
}

void KirvFakeServerRequest::serverRefuses(const KirvFailure &refusal)
{
    if (std::exchange(next, -1) >= 0)
        Q_EMIT failed(refusal);
}

void KirvFakeServerRequest::reply()
{
    Q_EMIT waiting(QStringLiteral("Waiting for the fake server…"));
    if (isHeld)
        return;
    if (failure.isFailure())
        serverRefuses(failure);
    else
        serverAccepts();
}

void KirvFakeServerRequest::showStep(int shown)
{
    if (shown >= int(steps.size())) {
        Q_EMIT succeeded(result);
        return;
    }
    index = shown;
    Q_EMIT stepReady(steps.at(index));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_server_request.h"

#include <utility>

KirvFakeServerRequest::KirvFakeServerRequest(const QList<Step> &steps, const Result &result, QObject *parent)
    : KirvServerRequest(parent)
    , steps(steps)
    , result(result)
{
}

void KirvFakeServerRequest::start()
{
    calls << QStringLiteral("start");
    showStep(0);
}

QList<KirvField> KirvFakeServerRequest::fieldsOf(const QString &name, const QList<KirvField> &filled) const
{
    QList<KirvField> fields = filled;
    for (KirvField &field : fields)
        field.setText(name);
    return fields;
}

void KirvFakeServerRequest::submit(const QList<KirvField> &newFilled)
{
    calls << QStringLiteral("submit");
    filled = newFilled;
    isSubmitted = true;
    Q_EMIT waiting(QStringLiteral("Waiting for the fake server…"));
    if (!isHeld)
        serverAccepts();
}

void KirvFakeServerRequest::goBack(const QList<KirvField> &newFilled)
{
    calls << QStringLiteral("back");
    filled = newFilled;
    isSubmitted = false;
    if (index > 0)
        showStep(index - 1);
}

bool KirvFakeServerRequest::cancel()
{
    calls << QStringLiteral("cancel");
    isSubmitted = isSubmitted && !canBeCancelled;
    return canBeCancelled;
}

void KirvFakeServerRequest::serverAccepts()
{
    if (!std::exchange(isSubmitted, false))
        return;
    if (index + 1 < int(steps.size()))
        showStep(index + 1);
    else
        Q_EMIT succeeded(result);
}

void KirvFakeServerRequest::serverRefuses(const KirvFailure &failure)
{
    if (std::exchange(isSubmitted, false))
        Q_EMIT failed(failure);
}

void KirvFakeServerRequest::succeedWith(Result::Kind kind, const KirvLogin &account, const QString &password)
{
    isSubmitted = false;
    Result other;
    other.kind = kind;
    other.account = account;
    other.password = password;
    Q_EMIT succeeded(other);
}

void KirvFakeServerRequest::showStep(int shown)
{
    index = shown;
    Q_EMIT stepReady(steps.at(index));
}

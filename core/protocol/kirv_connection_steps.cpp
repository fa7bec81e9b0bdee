// SPDX-License-Identifier: LGPL-2.1-or-later
// The part of KirvConnection that reports the steps of a log-in.
#include "core/protocol/kirv_connection_p.h"

void KirvConnection::Private::emitStep(const KirvLoginStep &step)
{
    lastStep = step;
    Q_EMIT connection->loginStep(step);
}

/// The attempt has failed: the step that was running, or else the log-in as a whole.
void KirvConnection::Private::failStep(const KirvFailure &failure)
{
    if (state != Connecting)
        return;
    const bool isRunning = lastStep && lastStep->outcome() == KirvLoginStep::Running;
    emitStep({ isRunning ? lastStep->kind() : KirvLoginStep::LogIn, KirvLoginStep::Failed, failure.text() });
}

/// Protocols that report no steps have one.
void KirvConnection::Private::finishSteps()
{
    const bool isReported =
        lastStep && lastStep->kind() == KirvLoginStep::LogIn && lastStep->outcome() == KirvLoginStep::Done;
    if (!isReported)
        emitStep({ KirvLoginStep::LogIn, KirvLoginStep::Done });
}

void KirvConnection::reportStep(const KirvLoginStep &step)
{
    if (d->accepts(Connecting))
        d->emitStep(step);
}

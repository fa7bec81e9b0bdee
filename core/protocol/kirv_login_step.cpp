// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_login_step.h"

#include "core/values/kirv_single_line.h"

namespace {
const int longestStepText = 400;
}

KirvLoginStep::KirvLoginStep(Kind kind, Outcome outcome, const QString &text)
    : stepKind(kind)
    , stepOutcome(outcome)
    , stepText(kirvSingleLine(text, longestStepText))
{
}

QString KirvLoginStep::title(Kind kind)
{
    switch (kind) {
    case NameLookup:
        return tr("Name look-up");
    case Connection:
        return tr("Connection");
    case Encryption:
        return tr("Encryption");
    case LogIn:
        break;
    }
    return tr("Log-in");
}

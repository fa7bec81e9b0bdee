// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_back_off.h"

#include <QRandomGenerator>
#include <QtGlobal>

int KirvBackOff::next(const Limits &limits)
{
    return next(limits, QRandomGenerator::global()->generateDouble());
}

int KirvBackOff::next(const Limits &limits, double chance)
{
    delay = delay ? int(qMin<qint64>(2 * qint64(delay), limits.last)) : limits.first;
    return qRound(delay * (1 + (2 * chance - 1) * limits.jitter));
}

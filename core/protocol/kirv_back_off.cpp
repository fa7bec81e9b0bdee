// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_back_off.h"

#include <QRandomGenerator>
#include <QtGlobal>

int KirvBackOff::next(const Limits &limits)
{
    delay = delay ? int(qMin<qint64>(2 * qint64(delay), limits.last)) : limits.first;
    const double chance = 2 * QRandomGenerator::global()->generateDouble() - 1;
    return qRound(delay * (1 + chance * limits.jitter));
}

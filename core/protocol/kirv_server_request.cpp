// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_server_request.h"

QList<KirvField> KirvServerRequest::fieldsOf(const QString &, const QList<KirvField> &filled) const
{
    return filled;
}

void KirvServerRequest::goBack(const QList<KirvField> &) { }

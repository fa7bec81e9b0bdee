// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_FIELDS_H
#define KIRV_XMPP_FIELDS_H

#include "host/kirv_field.h"

#include <QList>
#include <algorithm>

/// The first of \a fields with that \a id; null when there is none. Points into \a fields.
inline const KirvField *kirvXmppFind(const QList<KirvField> &fields, const QString &id)
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&id](const KirvField &field) { return field.getId() == id; });
    return found == fields.end() ? nullptr : &*found;
}

/// The text of that field; null when there is none.
inline QString kirvXmppTextOf(const QList<KirvField> &fields, const QString &id)
{
    const KirvField *field = kirvXmppFind(fields, id);
    return field ? field->getText() : QString();
}

#endif

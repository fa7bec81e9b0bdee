// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FIELD_TEXTS_H
#define KIRV_FIELD_TEXTS_H

#include "host/kirv_field.h"

#include <QList>

/// A field of that \a id which holds \a value.
inline KirvField text(const QString &id, const QString &value)
{
    return KirvField::textEdit(QString(), id, value, QString());
}

/// The text of the field \a id; "missing" when there is none.
inline QString valueOf(const QList<KirvField> &fields, const QString &id)
{
    for (const KirvField &field : fields) {
        if (field.getId() == id)
            return field.getText();
    }
    return "missing";
}

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_H
#define KIRV_LOGIN_H

#include "host/kirv_field.h"

#include <QList>
#include <QString>

/// What a connection logs in with: a copy of what is stored for the account, made when a log-in is wanted. A value
/// type.
struct KirvLogin {
    QString id; ///< the account id
    QString password; ///< empty: none is known
    QList<KirvField> settings; ///< the protocol's settings of the account, in display order

    bool operator==(const KirvLogin &other) const
    {
        return id == other.id && password == other.password && settings == other.settings;
    }
    bool operator!=(const KirvLogin &other) const { return !(*this == other); }
};

#endif

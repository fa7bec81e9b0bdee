// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOCAL_PATH_H
#define KIRV_LOCAL_PATH_H

#include "core/values/kirv_values_export.h"

#include <QString>

/// The path that \a text, as it was typed or pasted, means: without blanks around it, and of the address of a local
/// file
/// ("file:///a%20b.pem") the path ("/a b.pem"). Everything else stays as it is.
KIRV_VALUES_EXPORT QString kirvLocalPath(const QString &text);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_local_path.h"

#include <QUrl>

QString kirvLocalPath(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QUrl address(trimmed);
    return address.isLocalFile() ? address.toLocalFile() : trimmed;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_name_delegate.h"

#include "client/kirv_plain_text.h"
#include "core/values/kirv_text_limit.h"

QString KirvNameDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return kirvPlainName(kirvShortName(QStyledItemDelegate::displayText(value, locale)));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_selecting_style.h"

#include <QApplication>

KirvSelectingStyle::KirvSelectingStyle(QObject *parent)
    : QProxyStyle(QApplication::style()->objectName()) // one of its own: a proxy owns its base
{
    setParent(parent);
}

int KirvSelectingStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                  QStyleHintReturn *returnData) const
{
    if (hint == SH_ItemView_ActivateItemOnSingleClick)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

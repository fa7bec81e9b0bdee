// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_single_click_style.h"

#include <QApplication>

KirvSingleClickStyle::KirvSingleClickStyle(QObject *parent)
    : QProxyStyle(QApplication::style()->objectName()) // one of its own: a proxy owns its base
{
    setParent(parent);
}

int KirvSingleClickStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                    QStyleHintReturn *returnData) const
{
    if (hint == SH_ItemView_ActivateItemOnSingleClick)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

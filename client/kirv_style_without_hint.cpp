// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_style_without_hint.h"

#include <QApplication>

KirvStyleWithoutHint::KirvStyleWithoutHint(StyleHint hint, QObject *parent)
    : QProxyStyle(QApplication::style()->objectName()) // one of its own: a proxy owns its base
    , unset(hint)
{
    setParent(parent);
}

int KirvStyleWithoutHint::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                    QStyleHintReturn *returnData) const
{
    return hint == unset ? 0 : QProxyStyle::styleHint(hint, option, widget, returnData);
}

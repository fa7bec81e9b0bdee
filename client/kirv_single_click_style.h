// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SINGLE_CLICK_STYLE_H
#define KIRV_SINGLE_CLICK_STYLE_H

#include <QProxyStyle>

/// The style of the program for a list in which a single click only selects, also in desktops where it activates.
class KirvSingleClickStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// \a parent owns it.
    explicit KirvSingleClickStyle(QObject *parent);

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
};

#endif

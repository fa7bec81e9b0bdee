// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STYLE_WITHOUT_HINT_H
#define KIRV_STYLE_WITHOUT_HINT_H

#include <QProxyStyle>

/// The style of the program for one widget, with a hint that is 0 whatever the desktop says.
class KirvStyleWithoutHint : public QProxyStyle {
    Q_OBJECT

public:
    /// \a parent owns it.
    KirvStyleWithoutHint(StyleHint hint, QObject *parent);

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;

private:
    const StyleHint unset;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LONG_LIST_STYLE_H
#define KIRV_LONG_LIST_STYLE_H

#include "client/kirv_style_without_hint.h"

/// The style of the program for a combo box with many entries: its list has QComboBox::maxVisibleItems() rows, where
/// styles show as many as the screen holds. The placeholder text can be read in every palette; Qt 5 paints none in
/// light ones. It is elided where the box is narrow, and does not widen a box that is to be as wide as its minimum of
/// characters.
class KirvLongListStyle : public KirvStyleWithoutHint {
    Q_OBJECT

public:
    /// \a parent owns it.
    explicit KirvLongListStyle(QObject *parent);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
};

#endif

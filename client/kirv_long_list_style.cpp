// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_long_list_style.h"

#include <QComboBox>
#include <QStyleOptionComboBox>

KirvLongListStyle::KirvLongListStyle(QObject *parent)
    : KirvStyleWithoutHint(SH_ComboBox_Popup, parent)
{
}

void KirvLongListStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                    const QWidget *widget) const
{
    const auto *box = qobject_cast<const QComboBox *>(widget);
    const auto *whole = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (element != CE_ComboBoxLabel || !box || !whole || box->currentIndex() >= 0) {
        KirvStyleWithoutHint::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionComboBox label = *whole;
    label.currentText = box->placeholderText();
    // As the texts of the entries; the text itself says that it is none.
    label.palette.setBrush(QPalette::ButtonText, box->palette().brush(QPalette::ButtonText));
    label.palette.setBrush(QPalette::Text, box->palette().brush(QPalette::Text));
    KirvStyleWithoutHint::drawControl(element, &label, painter, widget);
}

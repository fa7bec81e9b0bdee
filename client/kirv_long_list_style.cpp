// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_long_list_style.h"

#include <QComboBox>
#include <QStyleOptionComboBox>

#include <algorithm>

namespace {
const int textMargins = 2; // of styles, around the text
const int iconGap = 4; // of QComboBox, between an icon and the text
}

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
    const int room = proxy()->subControlRect(CC_ComboBox, whole, SC_ComboBoxEditField, widget).width() - textMargins;
    label.currentText = option->fontMetrics.elidedText(box->placeholderText(), Qt::ElideMiddle, room);
    // As the texts of the entries; the text itself says that it is none.
    label.palette.setBrush(QPalette::ButtonText, box->palette().brush(QPalette::ButtonText));
    label.palette.setBrush(QPalette::Text, box->palette().brush(QPalette::Text));
    KirvStyleWithoutHint::drawControl(element, &label, painter, widget);
}

QSize KirvLongListStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                          const QWidget *widget) const
{
    const auto *box = qobject_cast<const QComboBox *>(widget);
    QSize size = contents;
    if (type == CT_ComboBox && box && box->sizeAdjustPolicy() == QComboBox::AdjustToMinimumContentsLengthWithIcon) {
        const int text = box->minimumContentsLength() * box->fontMetrics().horizontalAdvance(QLatin1Char('X'));
        size.setWidth(std::min(contents.width(), text + box->iconSize().width() + iconGap));
    }
    return KirvStyleWithoutHint::sizeFromContents(type, option, size, widget);
}

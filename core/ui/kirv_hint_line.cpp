// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_hint_line.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

#include <algorithm>

KirvHintLine::KirvHintLine(const QString &name, QWidget *parent)
    : QWidget(parent)
    , icon(new QLabel(this))
    , label(new QLabel(this))
{
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(size, size));
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);

    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(icon);
    line->addWidget(label, 1);
    hide();
}

void KirvHintLine::keepPlace()
{
    keepsPlace = true;
    setMinimumHeight(std::max(icon->sizeHint().height(), label->fontMetrics().height()));
    icon->setVisible(!text().isEmpty());
    show();
}

void KirvHintLine::setText(const QString &text)
{
    if (text == label->text())
        return;
    label->setText(text);
    icon->setVisible(!text.isEmpty());
    setVisible(keepsPlace || !text.isEmpty());
    if (isVisible()) {
        QAccessibleEvent alert(label, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

QString KirvHintLine::text() const
{
    return label->text();
}

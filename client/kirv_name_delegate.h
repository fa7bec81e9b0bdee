// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_NAME_DELEGATE_H
#define KIRV_NAME_DELEGATE_H

#include <QStyledItemDelegate>

/// Draws the names in a list so that none reads as another one, and only as much of a long one as can be seen.
class KirvNameDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
};

#endif

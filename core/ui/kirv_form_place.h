// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FORM_PLACE_H
#define KIRV_FORM_PLACE_H

#include <QFormLayout>

/// Where a widget stands in the form that its parent lays out. A value type.
struct KirvFormPlace {
    /// Not valid when the parent of \a widget is laid out in another way.
    explicit KirvFormPlace(QWidget *widget);

    bool isValid() const { return form; }
    /// Puts \a cell, which the form then owns, into the place of the widget, which is in no layout afterwards.
    void replaceBy(QLayout *cell);

    QWidget *widget;
    QFormLayout *form = nullptr; ///< null: not valid
    int row = -1;
    QFormLayout::ItemRole role = QFormLayout::FieldRole;
};

#endif

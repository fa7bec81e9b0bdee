// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FIELD_WIDGET_H
#define KIRV_FIELD_WIDGET_H

#include "host/kirv_field.h"

#include <QList>
#include <QWidget>

class KirvFieldWidgetPrivate;

/// Shows a list of fields as a form of editable controls, one per field.
class KirvFieldWidget : public QWidget {
    Q_OBJECT

public:
    /// Where the labels stand: beside the controls, or above them.
    enum Layout { LabelsBeside, LabelsAbove };

    /// Builds the form for \a fields. \a parent may be null; the widget then has no owner yet.
    KirvFieldWidget(const QList<KirvField> &fields, QWidget *parent, KirvFieldWidget::Layout layout);

    /// Replaces the form's content with \a fields; what the user had typed is gone.
    void fillWithFields(const QList<KirvField> &fields);
    /// The fields with the values as the user edited them, in the form's order.
    QList<KirvField> getFields() const;

private:
    Q_DISABLE_COPY(KirvFieldWidget)

    /// The implementation's own, which also frees it (as a child object, say).
    KirvFieldWidgetPrivate *d = nullptr;
};

#endif

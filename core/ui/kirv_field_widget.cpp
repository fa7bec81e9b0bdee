// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_field_widget.h"

#include "core/ui/kirv_field_form.h"
#include "core/ui/kirv_keyboard.h"

#include <QEvent>
#include <QPointer>
#include <QVBoxLayout>

/// Keeps the form that is shown now, and fits it to the keyboard of the window that the widget gets into.
class KirvFieldWidgetPrivate : public QObject {
public:
    KirvFieldWidgetPrivate(KirvFieldWidget *widget, KirvFieldWidget::Layout layout)
        : QObject(widget)
        , widget(widget)
        , labels(layout == KirvFieldWidget::LabelsAbove ? QFormLayout::WrapAllRows : QFormLayout::DontWrapRows)
    {
        auto *box = new QVBoxLayout(widget);
        box->setContentsMargins(0, 0, 0, 0);
        widget->installEventFilter(this);
    }

    void setFields(const QList<KirvField> &fields)
    {
        const QWidget *focus = widget->window()->focusWidget();
        const QString focused = form && focus && form->isAncestorOf(focus) ? focus->objectName() : QString();
        widget->setUpdatesEnabled(false);
        removeForm();
        form = new KirvFieldForm(fields, labels, widget);
        widget->layout()->addWidget(form);
        form->show();
        if (widget->isVisible())
            fitToWindow();
        widget->setUpdatesEnabled(true);
        if (QWidget *control = focused.isEmpty() ? nullptr : form->findChild<QWidget *>(focused))
            control->setFocus();
    }

    QPointer<KirvFieldForm> form;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == widget && event->type() == QEvent::Show)
            fitToWindow();
        return QObject::eventFilter(watched, event);
    }

private:
    /// Out of the widget at once, but deleted later: one of its controls may be what led here.
    void removeForm()
    {
        if (!form)
            return;
        widget->layout()->removeWidget(form);
        form->hide();
        form->setParent(nullptr);
        form->deleteLater();
    }

    void fitToWindow()
    {
        kirvPlaceInTabOrder(widget);
        form->assignMnemonics();
    }

    KirvFieldWidget *widget;
    QFormLayout::RowWrapPolicy labels;
};

KirvFieldWidget::KirvFieldWidget(const QList<KirvField> &fields, QWidget *parent, KirvFieldWidget::Layout layout)
    : QWidget(parent)
    , d(new KirvFieldWidgetPrivate(this, layout))
{
    d->setFields(fields);
}

void KirvFieldWidget::fillWithFields(const QList<KirvField> &fields)
{
    d->setFields(fields);
}

QList<KirvField> KirvFieldWidget::getFields() const
{
    return d->form->fields();
}

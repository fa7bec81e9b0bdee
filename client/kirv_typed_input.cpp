// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_typed_input.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>

namespace {

/// What is chosen in \a widget; invalid when nothing is chosen there.
QVariant choiceIn(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (button && button->isCheckable())
        return button->isChecked();
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->currentText();
    if (const auto *box = qobject_cast<const QSpinBox *>(widget))
        return box->value();
    return QVariant();
}

bool hasTypedText(const QWidget *widget)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->isModified();
    const auto *text = qobject_cast<const QTextEdit *>(widget);
    return text && !text->isReadOnly() && text->document()->isModified();
}

} // namespace

void KirvTypedInput::note(const QWidget *window)
{
    noted.clear();
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QVariant choice = choiceIn(widget);
        if (choice.isValid())
            noted.insert(widget->objectName(), choice);
    }
}

bool KirvTypedInput::isIn(const QWidget *window) const
{
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    return std::any_of(widgets.begin(), widgets.end(), [this](const QWidget *widget) {
        const QVariant before = noted.value(widget->objectName());
        return hasTypedText(widget) || (before.isValid() && before != choiceIn(widget));
    });
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEXT_LABEL_H
#define KIRV_TEXT_LABEL_H

#include <QLabel>

/// A label, owned by \a parent, that shows \a text in several lines, as it stands: nothing in it is markup. \a name is
/// its object name.
inline QLabel *kirvCreateText(const char *name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setText(text);
    return label;
}

#endif

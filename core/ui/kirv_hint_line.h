// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_HINT_LINE_H
#define KIRV_HINT_LINE_H

#include <QString>
#include <QWidget>

class QLabel;

/// A line below a control that says what is wrong with its value. It is hidden while it has no text. Its label bears
/// its object name and is announced to assistive technology when the text changes.
class KirvHintLine : public QWidget {
    Q_OBJECT

public:
    /// \a name is the object name of the label.
    KirvHintLine(const QString &name, QWidget *parent);

    /// It takes the place of a line of text also while nothing is wrong, so that what is below does not move.
    void keepPlace();

    /// Plain text. Empty: nothing is wrong.
    void setText(const QString &text);
    QString text() const;

private:
    QLabel *icon;
    QLabel *label;
    bool keepsPlace = false;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WRAPPED_TEXT_H
#define KIRV_WRAPPED_TEXT_H

#include <QTextEdit>

/// Shows a text as a label does, as plain text that can be selected. Lines are broken inside of words, too, where a
/// word alone is too long: an address of any length does not widen the window. A text of more than 20,000 characters
/// is cut.
class KirvWrappedText : public QTextEdit {
    Q_OBJECT

public:
    explicit KirvWrappedText(QWidget *parent = nullptr);

    void showText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    /// A copy of the text, to be laid out for widths that the widget does not have.
    QTextDocument *measured;
};

#endif

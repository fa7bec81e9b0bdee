// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_NARROW_BUTTON_H
#define KIRV_NARROW_BUTTON_H

#include <QObject>

class QToolButton;

/// Lets a button with icon and text show its icon only while the page around it is too narrow for the text, so that the
/// window can be made small.
class KirvNarrowButton : public QObject {
    Q_OBJECT

public:
    /// \a button owns this; \a page is not owned and is around it. A button without an icon is left alone.
    KirvNarrowButton(QToolButton *button, QWidget *page);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void measure();
    void adapt();

    QToolButton *button;
    QWidget *page;
    int needed = 0; ///< the width of the page with the text
};

#endif

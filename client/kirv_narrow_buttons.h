// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_NARROW_BUTTONS_H
#define KIRV_NARROW_BUTTONS_H

#include <QList>
#include <QObject>

class QToolButton;

/// Lets buttons with icon and text show their icons only, one after the other, while the page around them has no room
/// for all of the texts, so that the window can be made small.
class KirvNarrowButtons : public QObject {
    Q_OBJECT

public:
    /// \a page owns this and is around \a buttons. The first one gives up its text first. Buttons without an icon or
    /// a text beside it are left alone.
    KirvNarrowButtons(const QList<QToolButton *> &buttons, QWidget *page);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void measure();
    void adapt();
    bool isAnyClipped() const;

    QWidget *page;
    QList<QToolButton *> buttons;
};

#endif

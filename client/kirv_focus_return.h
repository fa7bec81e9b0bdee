// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FOCUS_RETURN_H
#define KIRV_FOCUS_RETURN_H

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Gives the focus back to the widget that had it before an area of the window, when the part of the area that has it
/// goes. Qt would give it to whatever comes next in the tab order.
class KirvFocusReturn : public QObject {
    Q_OBJECT

public:
    /// \a area owns this.
    explicit KirvFocusReturn(QWidget *area);

    /// Called before \a part of the area is hidden. When the widget that had the focus cannot take it any more, the
    /// first one in \a place that can gets it.
    void leave(const QWidget *part, QWidget *place);

private:
    void note(QWidget *old, QWidget *now);
    bool isInArea(const QWidget *widget) const;

    QWidget *const area;
    QPointer<QWidget> before; ///< has had the focus, in the same window
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_LIST_FRAME_H
#define KIRV_ACCOUNT_LIST_FRAME_H

#include <QWidget>

class QAbstractItemView;
class QVBoxLayout;

/// Takes the place of a list in whatever layout it stands, and holds the list: what belongs to it is put above and
/// below it there.
class KirvAccountListFrame : public QWidget {
    Q_OBJECT

public:
    /// \a list has a parent, which owns the frame from now on.
    explicit KirvAccountListFrame(QAbstractItemView *list);

    /// The frame owns \a widget.
    void addBelow(QWidget *widget);
    void addAbove(QWidget *widget);

private:
    void takePlaceOf(QWidget *widget, QWidget *place);

    QVBoxLayout *rows;
};

#endif

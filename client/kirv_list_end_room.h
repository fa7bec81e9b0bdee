// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LIST_END_ROOM_H
#define KIRV_LIST_END_ROOM_H

#include <QObject>
#include <QPointer>

class QTreeView;
class QWidget;

/// Lets a list whose end is covered be scrolled further, so that its last row can be seen above the cover. No row moves
/// when the cover comes or goes, and no scroll bar appears because of it.
class KirvListEndRoom : public QObject {
    Q_OBJECT

public:
    /// \a cover floats in the window of \a list and is not owned; this belongs to \a list. The rows of the list are
    /// equally high and have no children.
    KirvListEndRoom(QTreeView *list, QWidget *cover);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ownRangeChanged(int maximum);
    void update();
    void setMaximum(int maximum);
    int coveredMaximum() const;
    int freeHeight() const;
    int rowHeight() const;
    bool isPerItem() const;
    void revealCurrent();

    QTreeView *list;
    QPointer<QWidget> cover;
    int ownMaximum; ///< of the scroll bar, without the room
    bool isChanging = false;
};

#endif

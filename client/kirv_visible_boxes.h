// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_VISIBLE_BOXES_H
#define KIRV_VISIBLE_BOXES_H

#include <QObject>

/// As long as it exists, no message box of the program is turned around by a name in it: what would do that is made
/// visible when the box is shown, whoever made it.
class KirvVisibleBoxes : public QObject {
    Q_OBJECT

public:
    explicit KirvVisibleBoxes(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif

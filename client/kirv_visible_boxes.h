// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_VISIBLE_BOXES_H
#define KIRV_VISIBLE_BOXES_H

#include <QObject>

/// As long as it exists, no message box of the program takes a name in it for markup, is turned around by it or too
/// long for it, whoever made the box: its texts are changed before they are laid out.
class KirvVisibleBoxes : public QObject {
    Q_OBJECT

public:
    explicit KirvVisibleBoxes(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif

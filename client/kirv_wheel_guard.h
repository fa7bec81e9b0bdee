// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WHEEL_GUARD_H
#define KIRV_WHEEL_GUARD_H

#include <QObject>

/// As long as it exists, the mouse wheel changes a combo box or a spin box only when that has the focus; otherwise it
/// scrolls what the box stands in.
class KirvWheelGuard : public QObject {
    Q_OBJECT

public:
    explicit KirvWheelGuard(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif

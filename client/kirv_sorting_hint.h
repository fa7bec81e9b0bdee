// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SORTING_HINT_H
#define KIRV_SORTING_HINT_H

#include <QObject>
#include <QPointer>
#include <QString>

class KirvAccountOrder;
class KirvMessageBar;

/// Says in the message bar why no row of a sorted list can be moved, and offers the user's own order. The message goes
/// when that is chosen.
class KirvSortingHint : public QObject {
    Q_OBJECT

public:
    /// \a order owns this; \a messages is not owned.
    KirvSortingHint(KirvAccountOrder &order, KirvMessageBar &messages);
    ~KirvSortingHint() override;

private:
    void show();
    void withdraw();

    KirvAccountOrder &order;
    const QPointer<KirvMessageBar> messages;
    QString shown; ///< empty: not shown
};

#endif

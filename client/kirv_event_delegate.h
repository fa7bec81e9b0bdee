// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EVENT_DELEGATE_H
#define KIRV_EVENT_DELEGATE_H

#include <QStyledItemDelegate>

class QAbstractItemView;

/// Draws the rows of a list of events: the shape of what became of a step, the text, which is wrapped as often as it
/// must be, and a short text at its end. What failed is bold.
class KirvEventDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    enum Role {
        OutcomeRole = Qt::UserRole, ///< a KirvLoginStep::Outcome; invalid: no shape
        EndRole ///< the text at the end; may be empty
    };

    /// \a view is drawn; its rows are as high as its width needs.
    explicit KirvEventDelegate(QAbstractItemView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    struct Places {
        QRect shape;
        QRect text;
        QRect end;
    };
    Places placesIn(const QRect &row, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    static bool isFailure(const QModelIndex &index);
    static QFont fontOf(const QStyleOptionViewItem &option, const QModelIndex &index);

    QAbstractItemView *const view;
};

#endif

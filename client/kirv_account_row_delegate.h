// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ROW_DELEGATE_H
#define KIRV_ACCOUNT_ROW_DELEGATE_H

#include "client/kirv_name_delegate.h"

class KirvAccount;
class KirvAccountCollection;
class QTimer;
class QTreeWidget;

/// Draws the accounts of the page's list: the icon of the state, the name, and the state in words below it. The state
/// is looked up by the texts of the row, and nothing of it is stored in the row.
class KirvAccountRowDelegate : public KirvNameDelegate {
    Q_OBJECT

public:
    /// \a accounts outlives the delegate, which belongs to \a list.
    KirvAccountRowDelegate(const KirvAccountCollection &accounts, QTreeWidget *list);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Where the text of the row \a index stands in the viewport of the list.
    QRect textRect(const QModelIndex &index) const;

private:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    const KirvAccount *accountOf(const QModelIndex &index) const;
    void paintLines(QPainter *painter, const QStyleOptionViewItem &option, const QRect &place, const QString &name,
                    const QString &state) const;
    static QFont stateFont(const QFont &font);

    const KirvAccountCollection &accounts;
    QTreeWidget *list;
    QTimer *countdown; ///< runs while a row is painted that shows seconds
};

#endif

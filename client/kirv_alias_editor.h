// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ALIAS_EDITOR_H
#define KIRV_ALIAS_EDITOR_H

#include "core/values/kirv_account_key.h"

#include <QLineEdit>

class KirvAccountCollection;
class KirvAccountRowDelegate;
class KirvAccountRows;
class QTreeWidget;

/// Changes the alias of an account in its row, through the core: the row itself is not edited. Return and a click
/// elsewhere keep what was typed, Escape drops it.
class KirvAliasEditor : public QLineEdit {
    Q_OBJECT

public:
    /// None is owned, and all outlive this, which belongs to \a list.
    KirvAliasEditor(const KirvAccountCollection &accounts, const KirvAccountRows &rows,
                    const KirvAccountRowDelegate &delegate, QTreeWidget *list);

    /// Opens in the row of the account; does nothing when it has none.
    void edit(const KirvAccountKey &key);
    bool isOpen() const { return !isHidden(); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void place();
    void keep();
    void close();

    const KirvAccountCollection &accounts;
    const KirvAccountRows &rows;
    const KirvAccountRowDelegate &delegate;
    QTreeWidget *list;
    KirvAccountKey key;
};

#endif

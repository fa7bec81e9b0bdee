// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_alias_editor.h"

#include "client/kirv_account_row_delegate.h"
#include "client/kirv_account_rows.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/ui/kirv_length_limit.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTreeWidget>

KirvAliasEditor::KirvAliasEditor(const KirvAccountCollection &accounts, const KirvAccountRows &rows,
                                 const KirvAccountRowDelegate &delegate, QTreeWidget *list)
    : QLineEdit(list->viewport())
    , accounts(accounts)
    , rows(rows)
    , delegate(delegate)
    , list(list)
{
    hide();
    setObjectName(QStringLiteral("Accounts_AliasEditor"));
    setAccessibleName(tr("Alias"));
    setAutoFillBackground(true);
    kirvLimitLength(this);
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, &KirvAliasEditor::place);
    connect(list->header(), &QHeaderView::geometriesChanged, this, &KirvAliasEditor::place);
    connect(list->header(), &QHeaderView::sectionResized, this, &KirvAliasEditor::place);
    connect(list->model(), &QAbstractItemModel::layoutChanged, this, &KirvAliasEditor::place);
    connect(&rows, &KirvAccountRows::aboutToBeRemoved, this, [this](const KirvAccountKey &removed) {
        if (isOpen() && removed == key)
            close();
    });
}

void KirvAliasEditor::edit(const KirvAccountKey &edited)
{
    QTreeWidgetItem *row = rows.find(edited);
    const KirvAccount *account = accounts.find(edited);
    if (!row || !account)
        return;
    key = edited;
    list->scrollToItem(row);
    setText(account->getAlias());
    selectAll();
    show();
    place();
    setFocus(Qt::OtherFocusReason);
}

void KirvAliasEditor::place()
{
    QTreeWidgetItem *row = isOpen() ? rows.find(key) : nullptr;
    if (!row)
        return;
    QRect place = delegate.textRect(list->model()->index(list->indexOfTopLevelItem(row), KirvAliasColumn));
    const int height = sizeHint().height();
    place.setTop(place.center().y() - height / 2);
    place.setHeight(height);
    setGeometry(place);
}

void KirvAliasEditor::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        keep();
        break;
    case Qt::Key_Escape:
        close();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
    event->accept(); // the list would open the account, say
}

void KirvAliasEditor::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (isOpen() && event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        keep();
}

void KirvAliasEditor::keep()
{
    const QString typed = text();
    KirvAccount *account = accounts.find(key);
    close();
    if (account && typed != account->getAlias())
        account->setAlias(typed.trimmed());
}

void KirvAliasEditor::close()
{
    const bool hadFocus = hasFocus();
    hide();
    if (hadFocus)
        list->setFocus(Qt::OtherFocusReason);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_CHECK_LIST_H
#define KIRV_ACCOUNT_CHECK_LIST_H

#include "core/values/kirv_account_key.h"

#include <QHash>
#include <QList>
#include <QStringList>
#include <QWidget>

class QCheckBox;
class QTreeWidget;
class QTreeWidgetItem;

/// A list of accounts with a check box each, and one above them for all. The first two columns are the name, which
/// tells accounts of the same alias apart, and the protocol.
class KirvAccountCheckList : public QWidget {
    Q_OBJECT

public:
    struct Row {
        KirvAccountKey account;
        QString alias; ///< may be empty
        bool isChecked = false;
        bool isDisabled = false; ///< it cannot be checked
        QStringList further; ///< the texts of the further columns
        QString later = QString(); ///< what the last of them may show later; there is room for it from the beginning
    };

    /// \a name begins the names of the list and its parts: NAME_Accounts, NAME_List and NAME_All. \a furtherColumns are
    /// the titles of the columns besides the two.
    KirvAccountCheckList(const QString &name, const QStringList &furtherColumns, QWidget *parent);

    /// In place of those before; the account of the current row stays current.
    void setRows(const QList<Row> &rows);
    /// \a column counts the further columns.
    void setText(int row, int column, const QString &text);
    /// Makes the columns wider where texts that were set since setRows() need it and there is room; none becomes
    /// narrower. The name gives way first.
    void fitColumns();
    /// With which nothing of the further columns is elided, and not much of the names.
    int comfortableWidth() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Gives the focus to the list.
    void focusList();

    /// How the list names an account: by its alias and its login.
    static QString nameOf(const KirvAccountKey &account, const QString &alias);

    int count() const;
    KirvAccountKey accountAt(int row) const;
    bool isChecked(int row) const;
    int checkedCount() const { return checked; }
    QList<KirvAccountKey> checkedAccounts() const;

Q_SIGNALS:
    /// The user has checked rows or cleared them.
    void changed();

private:
    static QTreeWidgetItem *createItem(const Row &row);
    int inCharacters(int count) const;
    int textWidth(const QString &text) const;
    int contentsWidth(int column) const;
    int narrowest(int column) const;
    int narrowestName() const;
    void shareRoom();
    void makeCurrent(const KirvAccountKey &account);
    void toggleAll();
    void refreshAllBox();

    QCheckBox *allBox;
    QTreeWidget *list;
    QHash<int, int> wantedWidths; ///< by column, in pixels
    int checked = 0;
    int checkable = 0;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PAGE_FIXTURE_H
#define KIRV_PAGE_FIXTURE_H

#include "accounts_tab/kirv_accounts_tab.h"
#include "tests/support/recording_host/kirv_recording_host.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPointer>
#include <QToolButton>
#include <QTreeWidget>

/// The visible window of a class, null when there is none or more than one.
template <typename Window>
Window *kirvVisibleWindow()
{
    Window *found = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *window = qobject_cast<Window *>(widget);
        if (!window || !window->isVisible())
            continue;
        if (found)
            return nullptr;
        found = window;
    }
    return found;
}

/// A recording host with the protocols XMPP and IRC, and the page over it. The page is made on first use, so that a
/// test can prepare the host before.
class KirvPageFixture {
public:
    KirvPageFixture();
    /// Ends the page, the edit dialog and all windows before the host.
    ~KirvPageFixture();

    KirvRecordingHost host;
    KirvRecordingProtocol *const xmpp;
    KirvRecordingProtocol *const irc;

    KirvAccountsTab *page();
    /// Whether the page exists (without making it).
    bool hasPage() const { return !thePage.isNull(); }
    /// Lets the page read both protocols, shows it in an active window and forgets the calls so far.
    void showFilledPage();
    void showPage();

    QTreeWidget *list() { return child<QTreeWidget>("Accounts_List"); }
    QComboBox *selector() { return child<QComboBox>("Accounts_MainAccount"); }
    QToolButton *addButton() { return child<QToolButton>("Accounts_AddButton"); }
    QToolButton *editButton() { return child<QToolButton>("Accounts_EditButton"); }
    QToolButton *removeButton() { return child<QToolButton>("Accounts_RemoveButton"); }
    QToolButton *registerButton() { return child<QToolButton>("Accounts_RegisterButton"); }
    QMenu *addMenu() { return addButton()->menu(); }

    /// The first row of the account, null when there is none.
    QTreeWidgetItem *row(const QString &id, const QString &protocol = QStringLiteral("XMPP"));
    bool isChecked(const QString &id, const QString &protocol = QStringLiteral("XMPP"));
    /// Clicks on the row's text, or on its check box.
    void clickRow(QTreeWidgetItem *row, int column = 0);
    void clickCheckBox(QTreeWidgetItem *row);
    /// Clicks on a row, then selects all rows or none.
    void selectAllOrNone(bool all);

    /// "id@protocol" of the accounts that the selector offers, in order, with a star before the current one.
    QStringList offered();

    /// Ends what deleteLater() was called for.
    static void letGo();

private:
    template <typename Widget>
    Widget *child(const char *name)
    {
        return page()->findChild<Widget *>(QLatin1String(name));
    }

    QPointer<KirvAccountsTab> thePage;
};

#endif

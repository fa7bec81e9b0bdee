// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WINDOWS_H
#define KIRV_WINDOWS_H

#include "client/kirv_client.h"
#include "core/accounts/kirv_account.h"
#include "tests/support/kirv_patience.h"
#include "tools/tour/kirv_window_driver.h"

#include <QDialogButtonBox>
#include <QTemporaryDir>

#include <functional>
#include <memory>

class QComboBox;
class QDialog;
class QLineEdit;
class QMessageBox;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The real client with a profile of its own, used through its windows as a user uses it.
class KirvWindows {
public:
    KirvWindows();
    ~KirvWindows();

    /// Starts the client, or quits it and starts it again, and waits until its plug-ins are loaded.
    bool start();
    void quit();

    /// Adds an account through the add button's menu and the window that it opens. \a fillIn is called before
    /// Save is pressed, when login and password are there. False when a step did not work.
    bool add(const QString &protocol, const QString &configuration, const QString &login, const QString &password,
             const std::function<void(QWidget *window)> &fillIn = {}, bool isAccepted = true);
    /// Double-clicks the row and returns the window; null when none opened.
    QDialog *edit(const QString &login);
    /// Waits for the edit window and returns it; null when none opens.
    QDialog *openEditWindow() const;
    bool save(QDialog *editWindow);

    /// Types \a value into the control of the field \a id, or chooses it there.
    static void fill(QWidget *window, const QString &id, const QString &value);

    QTreeWidget *list() const;
    QTreeWidgetItem *row(const QString &login) const;
    QComboBox *selector() const;
    void select(const QString &login) const;
    /// Clicks the check box of the row by the keyboard.
    void toggle(const QString &login) const;
    /// The question that is open; null when none is.
    QMessageBox *question() const;

    KirvAccount *account(const QString &login) const;
    /// What the page says of the account.
    QString state(const QString &login) const;
    /// Whether its connection failed in a way that no other attempt follows.
    bool hasGivenUp(const QString &login) const;
    QString problem(const QString &login) const;
    /// What the strip below the list says about the account, which is selected for it.
    QString reason(const QString &login) const;
    QString title() const;
    /// What the message bar says.
    QString messages() const;

    /// Presses Reconnect below the list.
    void reconnect(const QString &login);
    /// Chooses \a presence in the menu of the account; false when it is not offered.
    bool goTo(const QString &login, const QString &presence);
    /// Makes the account's connection wait a fraction of a second where it would wait long; for what it does next.
    void hurry(const QString &login) const;

    /// Clicks Load or Unload for the plug-in of \a protocol on the Plug-ins page.
    void setLoaded(const QString &protocol, bool loaded);
    void showPage(int index);
    QString pluginFile(const QString &protocol) const;

    QString profileFolder() const { return options.profileFolder; }
    /// Whether any file of the profile holds the bytes of \a text.
    bool profileHolds(const QByteArray &text) const;

    template <class Widget>
    static Widget *child(const QWidget *window, const char *name)
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }
    static QPushButton *button(const QWidget *window, const char *box, QDialogButtonBox::StandardButton which);

    std::unique_ptr<KirvClient> client;

private:
    QTemporaryDir files;
    KirvClientOptions options;
};

#endif

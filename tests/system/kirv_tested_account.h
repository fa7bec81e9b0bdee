// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TESTED_ACCOUNT_H
#define KIRV_TESTED_ACCOUNT_H

#include "tests/system/kirv_windows.h"

#include <QByteArray>
#include <QPointer>

class KirvAccountConnection;

/// One account of the running client and the windows about it. A window is found by a child that every layout of
/// it has, so that it does not matter what the layout calls its top widget.
///
/// What these tests need besides windows, servers and the contract in host/ stands in the source of this class.
class KirvTestedAccount {
public:
    /// \a windows is not owned and outlives this.
    KirvTestedAccount(KirvWindows &windows, const QString &login, const QString &protocol = QStringLiteral("XMPP"));

    /// Creates the account with the settings of the protocol's \a configuration; it remembers its password. It
    /// stays off line, unless \a presence is another one.
    bool create(const QString &password, const QString &configuration = QString(),
                const QString &presence = QStringLiteral("offline"));
    void goTo(const QString &presence);
    bool isConnected() const;
    /// Whether the connection is neither logging in nor logging out.
    bool isSettled() const;
    /// The password that the account has in this run.
    QString password() const;
    QString alias() const;
    void remove();
    bool isThere() const;

    /// Makes a lost connection stay lost until the account is used again, and bounds the wait for an answer, from
    /// the next log-in on.
    void waitForAnswers(int milliseconds);

    bool loadProtocol(const QString &fileName);
    bool unloadProtocol();

    /// Opens the edit window by Enter on the account's row; null when none opens.
    QDialog *openEditWindow();
    static QDialog *editWindow();
    static QDialog *addWindow();
    /// Whether nothing can be done in \a window any more: it is closed or cannot save.
    static bool isOutOfUse(const QPointer<QDialog> &window);
    /// The Save button of an edit or add window.
    static QPushButton *saveButton(const QDialog *window);
    static void pressSave(QDialog *window);
    static void pressCancel(QDialog *window);
    static void typePassword(QDialog *editWindow, const QString &password);
    static void typeAlias(QDialog *editWindow, const QString &alias);
    /// Waits for the message that the changes were not stored and closes it; false when it does not come.
    bool confirmRefusedSave();
    /// Opens the menu of the protocol's commands in the edit window, gives the account a new password on its
    /// server and waits until that is done.
    bool changePasswordOnServer(QDialog *editWindow, const QString &password);

    // The directory tab of the edit window.
    static void showDirectory(QDialog *editWindow);
    static void fetchAgain(QDialog *editWindow);
    static bool isDirectoryLocked(const QDialog *editWindow);
    static QString directoryStatus(const QDialog *editWindow);
    static QString directoryText(const QDialog *editWindow, const QString &field);

    /// Puts a copy of the built-in layout \a layout into the profile, whose top widget is called \a topName.
    static bool replaceLayout(const KirvWindows &windows, const QString &layout, const QString &topName);

private:
    KirvAccountConnection *connection() const;

    KirvWindows &windows;
    const QString login;
    const QString protocol;
    QString pluginFile;
};

#endif

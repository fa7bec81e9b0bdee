// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_HELP_H
#define KIRV_ACCOUNT_HELP_H

#include "core/values/kirv_account_key.h"

#include <QObject>

class KirvAccount;
class KirvAccountCollection;
class KirvPluginLoader;
class QDialog;
class QWidget;

/// Opens the windows that help to find out what is wrong: the test of a log-in, the log of an account, and the report.
/// Of each there is one for an account, which is closed when the account goes.
class KirvAccountHelp : public QObject {
    Q_OBJECT

public:
    /// \a accounts and \a plugins are not owned and outlive this. \a window is the parent of the windows and owns this.
    KirvAccountHelp(const KirvAccountCollection &accounts, const KirvPluginLoader &plugins, QWidget *window);

    /// Tests the log-in of \a account; does nothing while its protocol is not loaded.
    void testLogin(const KirvAccount *account);
    void showLog(KirvAccount *account);
    /// About \a account, or about all when that is not configured.
    void showReport(const KirvAccountKey &account = KirvAccountKey());

    /// Closes the windows that use the protocol.
    void closeWindowsOf(const QString &protocol);

private:
    template <typename Window>
    Window *openWindow(const KirvAccountKey &account) const;
    void closeWindowsOf(const KirvAccountKey &account);

    const KirvAccountCollection &accounts;
    const KirvPluginLoader &plugins;
    QWidget *const window;
};

#endif

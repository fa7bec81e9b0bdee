// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_LOG_WINDOW_H
#define KIRV_ACCOUNT_LOG_WINDOW_H

#include "core/values/kirv_account_key.h"

#include <QDialog>

class KirvAccount;
class KirvAccountLog;
class QListWidget;
class QPushButton;

/// Shows the log of one account, with what is added while it is open.
class KirvAccountLogWindow : public QDialog {
    Q_OBJECT

public:
    /// The window is closed before \a account goes.
    KirvAccountLogWindow(KirvAccount &account, QWidget *parent);

    KirvAccountKey key() const { return accountKey; }

Q_SIGNALS:
    void reportRequested(const KirvAccountKey &key);

private:
    void createList();
    void arrange();
    void refreshLater();
    void refresh();
    void copy() const;

    const KirvAccountKey accountKey;
    KirvAccountLog &log;
    QListWidget *list;
    quint64 shown = 0; ///< of the entries that there ever were
    bool isRefreshDue = false;
};

#endif

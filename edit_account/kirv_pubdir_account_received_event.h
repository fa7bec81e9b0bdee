// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PUBDIR_ACCOUNT_RECEIVED_EVENT_H
#define KIRV_PUBDIR_ACCOUNT_RECEIVED_EVENT_H

#include "accounts_tab/kirv_gui_accounts_tab_export.h"
#include "host/kirv_field.h"

#include <QEvent>
#include <QList>

class KirvAccountConnection;

/// The answer to a directory request of an account, delivered to the edit dialog that
/// KirvAccountsTab::getAccEdit() returns. It may be sent or posted.
class KIRV_GUI_ACCOUNTS_TAB_EXPORT KirvPubdirAccountReceivedEvent : public QEvent {
public:
    /// The fixed event type; plug-ins that were built before the client rely on it.
    enum { EventType = 1212 };

    /// \a account is the one the answer belongs to; it is not owned and must live until the event is handled.
    /// Empty \a data means that the answer carries no data.
    KirvPubdirAccountReceivedEvent(KirvAccountConnection *account, const QList<KirvField> &data);
    ~KirvPubdirAccountReceivedEvent() override;

    /// The account that the answer belongs to; not owned.
    KirvAccountConnection *getAccount() const;
    /// The fields of the entry; empty when the answer carries no data.
    QList<KirvField> getData() const;

private:
    KirvAccountConnection *account;
    QList<KirvField> data;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_P_H
#define KIRV_ACCOUNT_P_H

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_registry.h"
#include "core/connection/kirv_connection.h"
#include "core/connection/kirv_failure.h"
#include "core/connection/kirv_protocol_base.h"
#include "core/settings/kirv_store.h"
#include "host/kirv_account_info.h"

#include <QPointer>
#include <optional>

/// The state of an account, and what the registry does with it.
///
/// Whatever tells somebody something comes last in a function or is followed by a check: a slot may have
/// removed the account.
class KirvAccount::Private {
public:
    Private(KirvAccountRegistry &registry, KirvStore &store, const KirvStore::Account &record);

    /// Makes one change of the record, stored at once or with the save that is open.
    template <typename Change>
    bool change(Change makeChange)
    {
        account->beginSave();
        makeChange(record);
        return account->endSave();
    }
    void refreshInfo();
    void tellChanged();

    /// Gets a connection from \a protocol.
    void load(KirvProtocolBase *protocol);
    /// Breaks the connection, also one that is logging out for good, and destroys it.
    void unload();
    /// The account is not configured any more: logs out, and does nothing else from now on.
    void leave();
    /// Destroys the account, not before it is logged out. Nobody asks for it any more.
    void letGo();
    /// unload() without a word to anybody.
    void abandon();

    KirvPresence createPresence(const QString &id, const QString &description) const;
    KirvPresence defaultPresence() const;
    KirvPresence startPresence() const;
    /// The presence for a log-in that was asked for: never an off-line one when there is a better one.
    KirvPresence logInPresence() const;
    void goTo(const KirvPresence &presence);

    KirvAccount *account = nullptr;
    KirvAccountRegistry &registry;
    KirvStore &store;
    KirvStore::Account record; ///< with the password even when it is not to be stored
    KirvAccountInfo info;

    int saveDepth = 0;
    KirvStore::Account recordBefore; ///< the record when the open save began
    QStringList importedAvatars; ///< by the open save
    bool hasNews = false; ///< besides the record

    QPointer<KirvProtocolBase> protocol;
    QPointer<KirvConnection> connection;
    QPointer<KirvConnection> leavingConnection;
    std::optional<KirvPresence> askedPresence; ///< in this run
    KirvFailure failure;
    QDateTime failureTime;
    bool isRemoved = false;
    bool mayGo = false;

private:
    void releaseConnection();
    void listenToConnection();
    void onStateChanged(KirvConnection::State state);
    void onFailed(const KirvFailure &failed);
    void onDirectoryAnswered(const QList<KirvField> &fields);
};

/// The stored form of the value of \a field.
QString kirvStoredValue(const KirvField &field);
/// \a fields by id in that form, without those that are only there to be read.
QMap<QString, QString> kirvStoredValues(const QList<KirvField> &fields);
/// \a field with the value of that form.
KirvField kirvWithStoredValue(KirvField field, const QString &value);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_H
#define KIRV_ACCOUNT_H

#include "core/accounts/kirv_account_key.h"
#include "host/kirv_account_connection.h"

#include <QDateTime>
#include <QObject>
#include <memory>

class KirvAccountRegistry;
class KirvConnection;
class KirvFailure;

/// One configured account: what stands behind KirvAccountConnection. Owned by the registry; lives as long as
/// the account is configured, also while its protocol is not loaded.
class KirvAccount : public QObject, public KirvAccountConnection {
    Q_OBJECT

public:
    ~KirvAccount() override;

    KirvAccountKey key() const;
    /// The alias, or the account id when the alias is empty.
    QString displayName() const;
    /// The connection while the protocol is loaded; null otherwise. Owned by the account.
    KirvConnection *connection() const;
    bool isLoaded() const;
    bool isMainAccount() const;

    bool remembersPassword() const;
    bool restoresLastPresence() const;
    bool restoresLastDescription() const;
    /// The current presence as it was asked for last.
    KirvPresence presence() const;

    /// The last failure of the connection or of a request, and when; None and invalid when there is none.
    KirvFailure lastFailure() const;
    QDateTime lastFailureTime() const;

    /// Takes the password the user typed for this run (and keeps it when \a remember), then logs in.
    void providePassword(const QString &password, bool remember);

    /// Puts several changes into one transaction, from beginSave() to endSave(). Nesting is allowed.
    void beginSave();
    /// False when the store refused; the account then holds the old values again.
    bool endSave();

Q_SIGNALS:
    void changed();

private:
    friend class KirvAccountConnection;
    friend class KirvAccountManager;
    friend class KirvAccountRegistry;
    class Private;
    explicit KirvAccount(std::unique_ptr<Private> priv, QObject *parent = nullptr);
    const std::unique_ptr<Private> d;
};

#endif

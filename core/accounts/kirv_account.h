// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_H
#define KIRV_ACCOUNT_H

#include "core/accounts/kirv_account_directory.h"
#include "core/accounts/kirv_account_fields.h"
#include "core/accounts/kirv_reconciler.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/store/kirv_account_record.h"
#include "host/kirv_account_connection.h"
#include "host/kirv_account_info.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <functional>
#include <optional>

class KirvAccountLog;
class KirvSecretBlank;
class KirvSecretKeeper;
class KirvStore;

/// One configured account: what is stored of it, what is wanted of its connection, and the connection while its
/// protocol is loaded. What stands behind KirvAccountConnection.
///
/// The collection owns it; it lives as long as the account is configured, also while its protocol is not loaded, and
/// after its removal until it is logged out. Every change is stored before the operation returns, or with the save
/// that is open; the connection follows from the event loop, after the commit.
///
/// A slot connected to one of the signals may remove the account.
class KirvAccount : public QObject, public KirvAccountConnection {
    Q_OBJECT

public:
    /// \a store, \a logins, \a turns and \a secrets are not owned and outlive the account; \a record is stored in the
    /// store.
    KirvAccount(KirvStore &store, KirvLoginQueue &logins, KirvReconcilerQueue &turns, KirvSecretKeeper &secrets,
                const KirvAccountRecord &record, QObject *parent = nullptr);
    ~KirvAccount() override;

    const KirvAccountKey &key() const { return current.key; }
    /// The alias, or the account id when the alias is blank; of a long one the beginning.
    QString displayName() const;
    /// What is stored, with the changes of the save that is open, and the password also when it is not stored.
    const KirvAccountRecord &record() const { return current; }
    /// The digest of the certificate that the user trusts for this account; empty: none.
    QByteArray trustedCertificate() const { return QByteArray::fromHex(current.trustedCertificate.toLatin1()); }
    KirvAccountInfo *info() { return &description; }

    // Changes. False when the store refused: everything is then as before, and refused() was emitted.

    bool change(const std::function<void(KirvAccountRecord &)> &makeChange);
    /// Puts several changes into one, from beginSave() to endSave(). Nesting is allowed; the outermost end stores.
    void beginSave();
    bool endSave();
    /// The outermost end stores nothing: everything is then as before. It gives false, and refused() is not emitted.
    void cancelSave() { isCancelled = saveDepth > 0; }
    bool isSaving() const { return saveDepth > 0; }
    /// Copies the image at \a path into the profile as the avatar; an empty path removes the avatar. It is published.
    bool setAvatar(const QString &path);
    /// The path of the avatar; empty: none.
    QString avatarPath() const;
    /// The protocol's settings in display order; empty while the protocol is not loaded.
    QList<KirvField> settings() const;
    bool setSettings(const QList<KirvField> &fields);
    /// Enabling an account makes it log in, disabling makes it log out.
    bool setEnabled(bool enabled);

    // What is wanted of the connection.

    KirvPresence defaultPresence() const;
    /// The present presence as it was wanted last.
    KirvPresence presence() const;
    bool setPresence(const KirvPresence &presence);
    /// Logs in with what is stored, also when the connection gave up or waits; during a save, after it was stored. Does
    /// nothing for a disabled account.
    void tryAgain();
    /// The same, and a connection that is logged in logs out first.
    void reconnect();
    /// Uses the password that the user typed in this run, keeps it when \a remember, and logs in. Where the store
    /// refuses, the next save stores it.
    void providePassword(const QString &password, bool remember);
    /// Uses \a password until the program ends, or the stored one can be read when the account connects again. Changes
    /// nothing of what is stored, and logs in when no other secret is awaited.
    void providePasswordForNow(const QString &password);
    /// Whether the account waits for secrets that are in the keyring before it logs in.
    bool awaitsSecrets() const { return !awaited.isEmpty(); }
    /// Whether the password is among them.
    bool awaitsPassword() const { return awaitsSecret(QString()); }
    /// Whether that setting is; an empty \a field is the password.
    bool awaitsSecret(const QString &field) const { return awaited.contains(field); }
    /// Whether any setting is.
    bool awaitsSetting() const { return awaited.size() > (awaitsPassword() ? 1 : 0); }
    const KirvSecretKeeper &secrets() const { return keeper; }
    /// The server has changed the password to \a password. Where the store refuses, the account keeps it for this run,
    /// so that it can be stored later; the result is false then.
    bool acceptServerPassword(const QString &password);
    /// Whether the password is one that acceptServerPassword() or providePassword() could not store.
    bool hasUnstoredPassword() const { return unstoredPassword; }

    /// The loaded protocol; null while it is not loaded.
    KirvProtocolBase *protocol() const { return loadedProtocol; }
    /// The connection while the protocol is loaded; null otherwise. Owned by the account.
    KirvConnection *connection() const { return reconciler.connection(); }
    bool isLoaded() const { return connection(); }
    /// Whether the account is enabled, not removed, and its connection is logged in.
    bool isOnline() const;
    KirvAccountDirectory &directory() { return entry; }

    /// The last failure of the connection or of a request, and when; None and invalid when there is none.
    KirvFailure lastFailure() const { return failure; }
    QDateTime lastFailureTime() const { return failureTime; }

    /// What happened to the connection in this run, without secrets. Owned by the account; made when it is needed.
    KirvAccountLog &log();
    /// Takes the secrets of the account, as far as they are known, out of texts.
    KirvSecretBlank secretBlank() const;

    // For the keeper of the secrets. Each secret has the id of its field, the password the empty one.

    void secretRead(const QString &field, const QString &value);
    /// It is not in the keyring: somebody has removed it there.
    void secretMissing(const QString &field);
    /// It cannot be read now.
    void secretFailed(const QString &field);
    /// The profile says where it is: in \a item.
    void secretPlaced(const QString &field, const KirvSecretItem &item);
    /// False when the profile refuses: it stays known until the program ends.
    bool keepSecretInProfile(const QString &field);
    void secretStateChanged();
    /// Whether the account logs in with what it knows when \a field cannot be read.
    bool canDoWithout(const QString &field) const;
    /// One that was changed could not be kept; \a reason is what the keyring says, and may be empty.
    void reportUnkeptSecret(const QString &reason);
    /// One for which there is no keyring could not be stored, because of \a reason.
    void reportUnstoredSecret(const QString &reason);

    // For the collection.

    /// Creates a connection of \a protocol, which logs in when \a logIn and the account is enabled.
    void load(KirvProtocolBase *protocol, bool logIn);
    /// Breaks and destroys the connection.
    void unload();
    /// The store has got \a stored for the account, in a larger change: it is what the account is now. \a wanted is the
    /// presence that is wanted; with an empty id it stays what it is. An account that becomes enabled logs in. Emits
    /// nothing.
    void adopt(const KirvAccountRecord &stored, const KirvPresence &wanted);
    /// Wants \a presence in this run; what is stored stays as it is.
    void resume(const KirvPresence &presence);
    /// The account is not configured any more: logs out, emits nothing from now on and destroys itself then.
    void logOutAndDelete();
    bool isRemoved() const { return removed; }
    /// The profile says that the account is enabled, or disabled. When \a isAgain, an account that was disabled in this
    /// run has the presence that it had then. Emits nothing; followEnabled() belongs to it.
    void setStoredEnabled(bool enabled, bool isAgain);
    /// Emits changed(), and makes the connection follow.
    void followEnabled();
    /// The connection is left as it is from now on: the program ends.
    void stopReconciling() { reconciler.hold(); }

Q_SIGNALS:
    /// Anything about it changed: what is stored, the state of its connection, the last failure.
    void changed();
    /// The account is going to be disabled, or the store refuses that. A slot of this signal changes nothing.
    void disablingBegins();
    /// The store did not take a change; \a reason is a sentence for the user.
    void refused(const QString &reason);
    /// The account cannot log in without a password. Reply with providePassword().
    void passwordNeeded();
    /// The server says something that the user should read although nothing failed.
    void noticeReceived(const QString &text);

private:
    void refreshDescription();
    bool store();
    void takeBackChanges();
    void discardUnusedAvatars();
    KirvPresence createPresence(const QString &id, const QString &description) const;
    KirvPresence startPresence() const;
    bool isOffline(const KirvPresence &presence) const;
    KirvPresence logInPresence() const;
    KirvPresence onlinePresence() const;
    KirvReconciler::Wanted wanted() const;
    KirvAvatar avatar() const;
    bool takeAvatar(const QString &imported, const std::function<void(KirvAccountRecord &)> &alsoChange);
    void connectConnection(KirvConnection *connection);
    void connectLog(KirvConnection *connection);
    void logState(KirvConnection::State state);
    bool dropConnection();
    void onStateChanged(KirvConnection::State state);
    void onFailed(const KirvFailure &failed);
    void onAvatarPublished(const QString &path, const QByteArray &onServer);
    void onAvatarReceived(const QByteArray &image, const QByteArray &onServer);
    void onDirectoryAnswered(const KirvDirectoryAnswer &answer);
    void setFailure(const KirvFailure &newFailure);
    void readSecretsAgain();
    bool usesPasswordForNow() const;
    void noLongerAwait(const QString &field);

    KirvStore &profile;
    KirvSecretKeeper &keeper;
    KirvAccountRecord current;
    KirvAccountInfo description;

    int saveDepth = 0;
    bool isCancelled = false; ///< the open save
    KirvAccountRecord recordBefore; ///< when the open save began
    std::optional<KirvPresence> presenceBefore;
    QStringList importedAvatars; ///< by the open save

    std::optional<KirvPresence> requestedPresence; ///< in this run; empty: the stored one
    std::optional<KirvPresence> presenceWhenDisabled; ///< the last time in this run
    bool unstoredPassword = false;
    bool hasPasswordForNow = false;
    QSet<QString> awaited; ///< fields of secrets that are in the keyring and not known yet, or not any more
    bool mayLogIn = true;
    bool removed = false;
    KirvAccountLog *eventLog = nullptr; ///< owned; null: empty
    KirvFailure failure;
    QDateTime failureTime;

    QPointer<KirvProtocolBase> loadedProtocol;
    KirvReconciler reconciler;
    KirvAccountDirectory entry;
};

#endif

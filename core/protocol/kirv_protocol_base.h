// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROTOCOL_BASE_H
#define KIRV_PROTOCOL_BASE_H

#include "core/values/kirv_values_export.h"
#include "host/kirv_arg.h"
#include "host/kirv_protocol.h"

#include <QList>
#include <QObject>
#include <QStringList>

class KirvConnection;
class KirvServerRequest;

/// Something that can be done with one account on its server beyond what every protocol offers (change the password
/// there, delete the account there). A value type.
struct KirvAccountAction {
    QString id; ///< unique within the protocol
    QString text; ///< a command, in title case, translated
    QString toolTip; ///< a sentence; may be empty
};

/// What a protocol plug-in derives its protocol from.
///
/// The contract's operations that are not virtual lead to the virtual operations here. Its directory operations become
/// signals: whoever owns the accounts decides when a request reaches the account's connection.
class KIRV_PROTOCOL_EXPORT KirvProtocolBase : public QObject, public KirvProtocol {
    Q_OBJECT

public:
    /// What is to be done with the directory entry of an account.
    enum DirectoryOperation { FetchDirectory, PublishDirectory, DeleteDirectory };

    /// \a parent may be null: the core owns the protocol that a plug-in has made.
    explicit KirvProtocolBase(QObject *parent = nullptr);
    ~KirvProtocolBase() override;

    /// What \a login is to the server: logins for which it is the same are spellings of one, and only one of them can
    /// be added. The login itself stays as it was typed. Must depend on nothing else, and be quick: it is called for
    /// every account when the protocol is loaded. The default is \a login.
    virtual QString normalizedLogin(const QString &login) const;
    /// An example of a login, as it is shown in an empty field; the default is empty.
    virtual QString loginExample() const;
    /// What is wrong with \a login, or missing of it, as a sentence for the user; empty when nothing is. No account is
    /// created with a login that has a problem. Must depend on nothing else, and be quick: it is called while the user
    /// types. The default finds nothing wrong.
    virtual QString loginProblem(const QString &login) const;
    /// Whether an account with \a login and \a settings can log in with a password only. The default is true.
    virtual bool needsPassword(const QString &login, const QList<KirvField> &settings) const;

    /// What keeps an account with \a login and \a settings from ever logging in, such as a server that is not named in
    /// either, as a sentence for the user; empty when nothing does. No account is created then. Must be quick: it is
    /// called while the user types. The default finds nothing.
    virtual QString settingsProblem(const QString &login, const QList<KirvField> &settings) const;

    /// Every presence in display order; the first is the default. Must not be empty.
    virtual QList<KirvPresence> presences() const = 0;
    /// The presence with that \a id, carrying \a description. An unknown id gives the first presence.
    KirvPresence presenceWithId(const QString &id, const QString &description) const;
    /// The settings of a new account with their defaults.
    virtual QList<KirvField> accountSettings() const = 0;
    /// The ids of those of accountSettings() that are the path of a file on this computer: the client offers to choose
    /// the file. The default is none.
    virtual QStringList fileSettings() const;
    /// The blank fields of a directory entry; empty: the protocol has no directory.
    virtual QList<KirvField> directoryFields() const;
    /// A new, off-line connection; the caller owns it. Null when none can be made.
    virtual KirvConnection *createConnection() = 0;

    /// The \a settings for a log-in that only finds out whether it works, beside a session of the same account that is
    /// not to be disturbed. Nothing is replaced that says where a password goes or how it is protected: a stored
    /// password stays while these are the same. The default is \a settings.
    virtual QList<KirvField> settingsForTest(const QList<KirvField> &settings) const;
    /// What the plug-in consists of, each with its version, as "XMPP plug-in 1.0" and "QXmpp 1.4.0", for reports about
    /// problems. The default is empty.
    virtual QStringList components() const;

    /// A core signal was broadcast; protocols act on the names they know. The default does nothing.
    virtual void handleCoreSignal(const QString &name, const QList<KirvArg> &args);

    /// Whether createRegistration() gives a request.
    virtual bool offersRegistration() const;
    /// A new dialogue that registers an account on a server; the caller owns it. Null when the protocol has none.
    virtual KirvServerRequest *createRegistration();
    /// What can be done with an account on its server while it is logged in; the default is nothing.
    virtual QList<KirvAccountAction> accountActions() const;
    /// A new dialogue for the action \a actionId over \a connection, one of this protocol's, which it does not own and
    /// does not outlive. The caller owns it. Null for an unknown id.
    virtual KirvServerRequest *createAccountRequest(const QString &actionId, KirvConnection *connection);

    /// The directory operations of the contract: emit directoryRequested().
    void publishPubdirInfo(KirvAccountConnection *account, const QList<KirvField> &fields) override;
    void fetchPubdirInfo(KirvAccountConnection *account) override;
    void deletePubdirInfo(KirvAccountConnection *account) override;

Q_SIGNALS:
    /// \a fields are those of the entry to publish; empty for the other operations.
    void directoryRequested(KirvAccountConnection *account, KirvProtocolBase::DirectoryOperation operation,
                            const QList<KirvField> &fields);
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SERVER_COMMANDS_H
#define KIRV_SERVER_COMMANDS_H

#include "client/kirv_provider_list.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/values/kirv_account_key.h"

#include <QHash>
#include <QObject>
#include <QPointer>

class KirvAccount;
class KirvAccountCollection;
class KirvPluginLoader;
class KirvRegistrationChooser;
class KirvServerTask;
class QWidget;

/// The commands that lead to a server: registering an account, and what a protocol offers for one of its accounts.
/// Each opens the assistant, or raises the one that is open already.
///
/// The core signal "register_account" registers an account: with the protocol that its argument names, or after a
/// choice when several offer it.
class KirvServerCommands : public QObject {
    Q_OBJECT

public:
    /// \a plugins and \a accounts are not owned and outlive this. \a window owns this, and the assistants of
    /// registrations stand over it.
    KirvServerCommands(KirvPluginLoader &plugins, KirvAccountCollection &accounts, QWidget *window);
    ~KirvServerCommands() override;

    /// What registrations offer as servers.
    void setProviders(const KirvProviderList &newProviders) { providers = newProviders; }
    /// Registers a new account. An empty \a protocol: the one that offers it, or the one that the user chooses.
    void registerAccount(const QString &protocol = QString());
    /// What the protocol of the account offers; empty while the protocol is not loaded.
    QList<KirvAccountAction> actionsOf(const KirvAccountKey &key) const;
    /// Whether actions of the account can be run now.
    bool canRun(const KirvAccountKey &key) const;
    /// Runs the action \a actionId of the account over \a window. Does nothing when there is no such action.
    void run(const KirvAccountKey &key, const QString &actionId, QWidget *window);

Q_SIGNALS:
    /// No loaded protocol, or not the one that was named, offers a registration; \a text says so to the user.
    void unavailable(const QString &text);
    /// Something failed after its window was closed; \a text is for the user.
    void problemOccurred(const QString &text);
    /// Something succeeded after its window was closed; \a text is for the user.
    void succeeded(const QString &text);

private:
    QList<KirvProtocolBase *> offeringProtocols() const;
    void choose(const QList<KirvProtocolBase *> &protocols);
    void finishChoice(int result);
    void open(const QString &name, KirvServerRequest *request, KirvProtocolBase *protocol, KirvAccount *account,
              QWidget *over);
    bool raise(const QString &name, QWidget *over);
    void endTasksOf(const KirvProtocolBase *protocol);
    void endTasksOf(const KirvAccount *account);

    KirvPluginLoader &plugins;
    KirvAccountCollection &accounts;
    QWidget *const window;
    KirvProviderList providers;
    QPointer<KirvRegistrationChooser> chooser;
    QHash<QString, QPointer<KirvServerTask>> tasks; ///< by a name that each has alone
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_ACCOUNTS_H
#define KIRV_PROFILE_ACCOUNTS_H

#include "client/kirv_accounts_service.h"
#include "client/kirv_client_options.h"

#include <QDeadlineTimer>

#include <functional>
#include <memory>

class KirvClientSettings;
class KirvHostServices;
class KirvKeyring;
class KirvPluginLoader;
class KirvPluginQueue;
class KirvStore;

/// The accounts of a profile that no program has open, for a command of the command line. Nothing logs in.
///
/// Plug-ins are loaded for an import only; they need an application with a GUI then, be it without a display. The
/// keyring is read for an export with passwords only. What is imported goes to the profile and from there to the
/// keyring, where that is unlocked and takes it in time; the program moves the rest when it starts.
class KirvProfileAccounts {
public:
    enum Outcome { Opened, InUse, Damaged, Unusable };

    explicit KirvProfileAccounts(const KirvClientOptions &options);
    ~KirvProfileAccounts();

    /// Opens the profile in \a folder.
    Outcome open(const QString &folder);
    /// Why it could not be opened, a sentence for the user.
    QString problem() const;

    // What follows may be used once open() has given Opened.

    /// Does \a request, from an event loop of its own.
    KirvAccountsReply run(const KirvAccountsRequest &request);

private:
    void prepare(const KirvAccountsRequest &request, const std::function<void()> &then);
    void loadPlugins(const std::function<void()> &then);
    void readKeyring(const std::function<void()> &then);
    bool awaitsKeyring() const;
    void moveToKeyring(const std::function<void()> &then);
    void openKeyring();
    void poll(const std::function<bool()> &isAwaited, const std::function<void()> &then);
    void hold();

    const KirvClientOptions options;
    // In the order in which they are made; they are destroyed the other way round.
    std::unique_ptr<KirvStore> store;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvKeyring> keyring; ///< null: it is not used
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvPluginLoader> plugins;
    std::unique_ptr<KirvPluginQueue> pluginQueue;
    std::unique_ptr<KirvHostServices> services;
    std::unique_ptr<KirvAccountHistory> history;
    std::unique_ptr<KirvAccountsService> service;
    QDeadlineTimer keyringPatience;
};

#endif

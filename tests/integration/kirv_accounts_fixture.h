// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_FIXTURE_H
#define KIRV_ACCOUNTS_FIXTURE_H

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "tests/support/fakes/kirv_fake_protocol.h"

#include <QSize>
#include <QTemporaryDir>
#include <functional>
#include <memory>

/// A client core over a profile of its own, with the protocol "Fake".
///
/// Connections follow what is stored from the event loop: settle() runs it.
class KirvAccountsFixture {
public:
    KirvAccountsFixture();
    ~KirvAccountsFixture();

    /// Whether the profile could be opened.
    bool isReady() const { return ready; }
    /// Ends the core and starts it again over the same profile; \a beforeLoading runs before the protocol is loaded.
    void restart(
        bool logIn = true, const std::function<void()> &beforeLoading = [] {});
    /// Destroys the core without the store and the protocol.
    void endCore();

    /// Runs whatever is due in the event loop, until nothing is.
    static void settle();
    /// The same, also the deletions that are due.
    static void settleAndDelete();

    static KirvAccountManager &manager() { return *KirvAccountManager::getInstance(); }
    KirvAccount *account(const QString &id = QStringLiteral("id")) const;
    KirvFakeConnection *connection(const QString &id = QStringLiteral("id")) const;
    KirvFakeServer &server() { return *protocol->server; }
    /// What the server received since the last call, after settle().
    QStringList takeCalls();

    /// Creates an account with the alias "Alias of <id>" and the password "word of <id>".
    KirvAccountConnection *create(const QString &id = QStringLiteral("id"));
    /// Creates the accounts \a ids, one of which becomes the main account; gives what keeps their changes to undo them.
    /// Null when one of them is refused. The history has to end before the core does.
    std::unique_ptr<KirvAccountHistory> createWithHistory(const QStringList &ids);
    /// Creates an account and brings its connection into \a state.
    void bring(const QString &id, KirvConnection::State state);
    /// Wants that presence of the account and tells the protocol, as the page does.
    void setPresence(const QString &presence, const QString &id = QStringLiteral("id"));
    /// Changes everything that the edit window can change.
    void changeEverything(KirvAccount *account);
    QString makePicture(const QSize &size = QSize(32, 32));
    /// Makes the store refuse whatever needs more room; a text of storeFiller() does.
    static void setStoreFull(bool isFull);
    static QString storeFiller() { return QString(100000, QLatin1Char('x')); }

    /// The ids of all accounts in the user's order.
    QStringList order() const;
    static QStringList idsOf(const QString &protocol);
    /// The values of the settings of \a account in order, "+" and "-" for check boxes.
    static QStringList valuesOf(const KirvAccountConnection *account);

    const QString fake = QStringLiteral("Fake");
    QTemporaryDir home;
    KirvStore store;
    std::unique_ptr<KirvFakeProtocol> protocol;
    std::unique_ptr<KirvPluginLoader> plugins;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvHostServices> services;

private:
    void startCore();

    bool ready;
    int pictures = 0;
};

#endif

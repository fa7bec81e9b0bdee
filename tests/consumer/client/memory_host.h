// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef MEMORY_HOST_H
#define MEMORY_HOST_H

#include "host/kirv_account_connection.h"
#include "host/kirv_account_info.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_protocol.h"
#include "host/kirv_settings_manager.h"

#include <QHash>
#include <QList>
#include <QString>
#include <memory>

/// One account, all of it in memory. It never logs in anywhere by itself.
class MemoryAccount : public KirvAccountConnection {
public:
    QString id;
    QString alias;
    QString password;
    QString avatar;
    KirvPresence presence;
    QList<KirvField> settings;
    bool rememberPassword = true;
    bool restorePresence = false;
    bool restoreDescription = false;
    bool enabled = true;
    bool loggedIn = false; ///< nothing sets it but a test
    KirvAccountInfo info; ///< what KirvAccountManager::getAccountsInfo() hands out

    void refreshInfo() { info = KirvAccountInfo(id, alias, enabled); }
};

/// A protocol without a server.
class MemoryProtocol : public KirvProtocol {
public:
    QString iconPath;
    int publishedEntries = 0; ///< to the directory, which takes them and keeps none

    QString getName() override { return QStringLiteral("Memory"); }
    QString getIconPath(int) override { return iconPath; }
    QStringList getConfigurations() override { return {}; }
    QList<KirvField> getConfigurationFields(const QString &) override { return {}; }
    void publishPubdirInfo(KirvAccountConnection *, const QList<KirvField> &) override { ++publishedEntries; }
    void fetchPubdirInfo(KirvAccountConnection *) override { }
    void deletePubdirInfo(KirvAccountConnection *) override { }
    QString getLoginPattern() override { return QStringLiteral("\\S+"); }
};

/// The smallest client core: everything that the page asks of its client, in memory, for one protocol. It shows
/// what a client has to define to link the page. One at a time.
class MemoryHost {
public:
    /// \a layouts is the folder of Accounts.ui, AddAccount.ui and EditAccount.ui.
    explicit MemoryHost(const QString &layouts);
    ~MemoryHost();

    /// The one that lives.
    static MemoryHost *current();

    /// Adds an account, also to the end of the order; null when the id is taken.
    MemoryAccount *addAccount(const QString &id, const QString &alias, bool enabled = true);
    void removeAccount(const QString &id);
    /// Null when there is none.
    MemoryAccount *account(const QString &id, const QString &protocolName) const;
    QList<KirvAccountInfo *> infos() const;

    MemoryProtocol protocol;
    QString layouts;
    QHash<QString, QString> globalSettings;

private:
    Q_DISABLE_COPY(MemoryHost)

    KirvAccountManagerPrivate accountsState;
    KirvPluginManagerPrivate pluginsState;
    KirvSettingsManagerPrivate settingsState;
    QHash<QString, std::shared_ptr<MemoryAccount>> accounts;
    QList<KirvAccountInfo *> order;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLIENT_H
#define KIRV_CLIENT_H

#include "client/kirv_client_options.h"
#include "core/values/kirv_account_key.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <memory>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountRows;
class KirvAccountsTab;
class KirvConnectionView;
class KirvEditWindowKeeper;
class KirvField;
class KirvLayoutCatalog;
class KirvPasswordQuestions;
class KirvPluginLoader;
class KirvPluginsPage;
class KirvProtocolBase;
class KirvClientSettings;
class KirvSettingsWindow;
class KirvStore;

/// The program without its command line: makes the services of the core and the settings window, and leads the
/// news of the ones to the other. One per process at a time.
class KirvClient : public QObject {
    Q_OBJECT

public:
    explicit KirvClient(const KirvClientOptions &options, QObject *parent = nullptr);
    /// Logs all accounts out, within a few seconds, and closes the profile.
    ~KirvClient() override;

    /// Opens the profile, makes the window, which is not shown yet, and loads the plug-ins: the accounts start
    /// to log in. False with errorString() when the profile cannot be used.
    bool start();
    /// A sentence or two for the user.
    QString errorString() const { return error; }

    // What follows exists once start() has given true.
    KirvStore &profile() const { return *store; }
    KirvAccountCollection &accounts() const { return *accountRegistry; }
    KirvPluginLoader &plugins() const { return *pluginRegistry; }
    KirvClientSettings &settings() const { return *settingsRegistry; }
    KirvSettingsWindow *window() const { return settingsWindow.get(); }
    KirvAccountsTab *accountsPage() const;
    KirvConnectionView *connectionView() const;
    KirvPluginsPage *pluginsPage() const;

private Q_SLOTS:
    void mainAccountChanged();

private:
    bool openStore();
    void createServices();
    void createWindow();
    void connectServices();
    void loadPlugins();

    void protocolLoaded(KirvProtocolBase *protocol);
    void protocolAboutToBeUnloaded(KirvProtocolBase *protocol);
    void accountAdded(KirvAccount *account);
    void accountRemoved(const QString &id, const QString &protocol);
    void accountChanged(KirvAccount *account);
    void syncRowLater(const KirvAccountKey &key);
    void syncRows();
    void updateTitle();
    void deliverDirectoryAnswer(KirvAccount *account, const QList<KirvField> &fields);
    void showNotice(const KirvAccount *account, const QString &text);
    void showProblem(const QString &text);

    const KirvClientOptions options;
    QString error;
    // In the order in which they are made; they are destroyed the other way round.
    std::unique_ptr<KirvStore> store;
    std::unique_ptr<KirvClientSettings> settingsRegistry;
    std::unique_ptr<KirvAccountCollection> accountRegistry;
    std::unique_ptr<KirvPluginLoader> pluginRegistry;
    std::unique_ptr<KirvLayoutCatalog> layouts;
    std::unique_ptr<KirvSettingsWindow> settingsWindow;
    std::unique_ptr<KirvAccountRows> rows;
    QPointer<KirvAccountsTab> page;
    QPointer<KirvConnectionView> connections;
    QPointer<KirvPluginsPage> pluginList;
    QPointer<KirvEditWindowKeeper> editWindows;
    QPointer<KirvPasswordQuestions> passwordQuestions;
    QList<KirvAccountKey> unsynced; ///< came or went since the page's rows were last compared
};

#endif

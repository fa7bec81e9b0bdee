// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLIENT_H
#define KIRV_CLIENT_H

#include "client/kirv_client_options.h"
#include "core/accounts/kirv_main_account.h"

#include <QObject>
#include <QPointer>
#include <memory>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountHelp;
class KirvAccountHistory;
class KirvMovingWindows;
class KirvAccountsTab;
class KirvGeneralPage;
class KirvCertificateQuestions;
class KirvHostServices;
class KirvKeyring;
class KirvLanguageChange;
class KirvLayoutCatalog;
class KirvNetworkWatch;
class KirvPasswordQuestions;
class KirvPluginLoader;
class KirvPluginQueue;
class KirvPluginsPage;
class KirvProfileSaver;
class KirvProtocolBase;
class KirvClientSettings;
class KirvSettingsWindow;
class KirvStore;
class KirvWindowCompanions;
struct KirvAccountKey;

/// The program without its command line: makes the services of the core and the settings window, and leads the
/// news of the ones to the other. One per process at a time.
class KirvClient : public QObject {
    Q_OBJECT

public:
    explicit KirvClient(const KirvClientOptions &options, QObject *parent = nullptr);
    /// Logs all accounts out, within a few seconds, and closes the profile.
    ~KirvClient() override;

    /// Opens the profile and makes the window, which is not shown yet. False with errorString() when the profile
    /// cannot be used. The plug-ins are loaded from the event loop when the window has been painted, or soon when it is
    /// not shown; with each the accounts of its protocol start to log in.
    bool start();
    /// A sentence or two for the user.
    QString errorString() const { return error; }
    /// Whether start() has given false because the profile is damaged. It can be called again when that was repaired.
    bool isProfileDamaged() const;
    /// Whether start() has given false because another running program has the profile open.
    bool isProfileInUse() const;

    // What follows exists once start() has given true.
    KirvStore &profile() const { return *store; }
    KirvAccountCollection &accounts() const { return *accountCollection; }
    KirvAccountHistory &accountHistory() const { return *history; }
    KirvMainAccount &mainAccount() const;
    KirvPluginLoader &plugins() const { return *pluginLoader; }
    KirvPluginQueue &pluginQueue() const { return *pluginsToLoad; }
    /// Whether every plug-in that there was at the start is loaded or left out.
    bool arePluginsLoaded() const;
    KirvClientSettings &settings() const { return *clientSettings; }
    KirvSettingsWindow *window() const { return settingsWindow.get(); }
    KirvAccountsTab *accountsPage() const;
    KirvPluginsPage *pluginsPage() const;

    /// The program was started again: brings the window to the front and opens \a link when it is not null. One that is
    /// too long is said to be.
    void show(const KirvAccountLink &link);

Q_SIGNALS:
    /// The profile was saved to \a folder, and the user wants to go on with that: the program is to be started anew.
    void continuationRequested(const QString &folder);

private Q_SLOTS:
    void mainAccountChanged();

private:
    bool openStore();
    void createServices();
    void createWindow();
    void createPages();
    void connectPage();
    void createPagesAnew();
    void connectServices();
    void loadPlugins();
    void openLink();
    void open(const KirvAccountLink &link);

    void protocolLoaded(KirvProtocolBase *protocol);
    void protocolAboutToBeUnloaded(KirvProtocolBase *protocol);
    void creationRefused(const KirvAccountKey &key, const QString &reason);
    void accountChanged(KirvAccount *account);
    void updateTitle();
    void mainAccountSuccessorChosen(const QString &previous, KirvMainAccount::Reason reason, const KirvAccount *next);
    void showNotice(const KirvAccount *account, const QString &text);
    void showProblem(const QString &text);
    void showRefusal(const QString &text);
    void showMoved(int secrets);

    const KirvClientOptions options;
    KirvAccountLink unopenedLink;
    QString successorMessage; ///< the message about the main account
    QString error;
    // In the order in which they are made; they are destroyed the other way round.
    std::unique_ptr<KirvStore> store;
    std::unique_ptr<KirvClientSettings> clientSettings;
    std::unique_ptr<KirvKeyring> keyring; ///< null: it is not used
    std::unique_ptr<KirvAccountCollection> accountCollection;
    std::unique_ptr<KirvNetworkWatch> networkWatch;
    std::unique_ptr<KirvPluginLoader> pluginLoader;
    std::unique_ptr<KirvPluginQueue> pluginsToLoad;
    bool isLoadingStarted = false;
    std::unique_ptr<KirvHostServices> services;
    std::unique_ptr<KirvAccountHistory> history;
    std::unique_ptr<KirvLayoutCatalog> layouts;
    std::unique_ptr<KirvSettingsWindow> settingsWindow;
    QPointer<KirvAccountsTab> page;
    QPointer<KirvPluginsPage> pluginList;
    QPointer<KirvAccountHelp> help;
    QPointer<KirvMovingWindows> moving;
    QPointer<KirvGeneralPage> generalPage;
    QPointer<KirvLanguageChange> languageChange;
    QPointer<KirvWindowCompanions> companions;
    QPointer<KirvPasswordQuestions> passwordQuestions;
    QPointer<KirvCertificateQuestions> certificateQuestions;
    QPointer<KirvProfileSaver> profileSaver;
};

#endif

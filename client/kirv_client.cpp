// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_help.h"
#include "client/kirv_account_order.h"
#include "client/kirv_account_undo.h"
#include "client/kirv_accounts_page_companion.h"
#include "client/kirv_application.h"
#include "client/kirv_certificate_questions.h"
#include "client/kirv_first_paint.h"
#include "client/kirv_general_page.h"
#include "client/kirv_language_change.h"
#include "client/kirv_list_end_room.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_password_questions.h"
#include "client/kirv_plain_text.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_profile_saver.h"
#include "client/kirv_server_commands.h"
#include "client/kirv_settings_window.h"
#include "client/kirv_sorting_hint.h"
#include "client/kirv_translations.h"
#include "client/kirv_visible_boxes.h"
#include "client/kirv_wheel_guard.h"
#include "client/kirv_window_companions.h"
#include "client/kirv_window_front.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_network_watch.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/plugins/kirv_plugin_queue.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_keyring.h"
#include "core/store/kirv_store.h"
#include "core/ui/kirv_layout_catalog.h"
#include "host/kirv_account_manager.h"

#include <QDir>
#include <QIcon>
#include <QTreeView>

#include <utility>

namespace {
const int logOutMilliseconds = 3000;

QIcon themeIcon(const QString &name)
{
    return QIcon::fromTheme(name, QIcon(QStringLiteral(":/kirv/client/icons/%1.svg").arg(name)));
}

void floatOver(QTreeView *list, KirvMessageBar &messages)
{
    messages.floatOver(list);
    new KirvListEndRoom(list, &messages);
    if (auto *order = list->findChild<KirvAccountOrder *>())
        new KirvSortingHint(*order, messages);
}

} // namespace

KirvClient::KirvClient(const KirvClientOptions &options, QObject *parent)
    : QObject(parent)
    , options(options)
    , unopenedLink(options.link)
{
    KirvApplication::initializeResources();
}

KirvClient::~KirvClient()
{
    if (!accountCollection)
        return;
    if (settingsWindow)
        settingsWindow->hide();
    pluginsToLoad.reset();
    networkWatch.reset();
    accountCollection->logOutAll(logOutMilliseconds);
    // Nothing is emitted from now on: the window is destroyed first, the protocols and the store follow.
    accountCollection->disconnect(this);
    services->mainAccountRule.disconnect(this);
    pluginLoader->disconnect(this);
    clientSettings->disconnect(this);
    layouts->disconnect(this);
    settingsWindow.reset();
    for (KirvProtocolBase *protocol : pluginLoader->protocols())
        accountCollection->protocolAboutToBeUnloaded(protocol->getName());
    pluginLoader.reset();
}

bool KirvClient::start()
{
    if (!openStore())
        return false;
    createServices();
    createWindow();
    connectServices();
    kirvAfterFirstPaint(settingsWindow.get(), [this] { loadPlugins(); });
    services->mainAccountRule.restore();
    mainAccountChanged();
    return true;
}

KirvAccountsTab *KirvClient::accountsPage() const
{
    return page;
}

KirvMainAccount &KirvClient::mainAccount() const
{
    return services->mainAccountRule;
}

KirvPluginsPage *KirvClient::pluginsPage() const
{
    return pluginList;
}

bool KirvClient::openStore()
{
    store = std::make_unique<KirvStore>();
    error = options.profileProblem;
    if (options.profileFolder.isEmpty())
        return false;
    error.clear();
    if (store->open(options.profileFolder))
        return true;
    error = store->lastError();
    return false;
}

bool KirvClient::isProfileDamaged() const
{
    return store && store->state() == KirvProfileState::Damaged;
}

bool KirvClient::isProfileInUse() const
{
    return store && store->state() == KirvProfileState::InUse;
}

void KirvClient::createServices()
{
    clientSettings = std::make_unique<KirvClientSettings>(*store);
    accountCollection = std::make_unique<KirvAccountCollection>(*store);
    if (options.usesKeyring) {
        keyring = std::make_unique<KirvKeyring>();
        accountCollection->secrets().setKeyring(keyring.get());
    }
    networkWatch = std::make_unique<KirvNetworkWatch>();
    const QDir profile(options.profileFolder);
    pluginLoader = std::make_unique<KirvPluginLoader>();
    pluginsToLoad = std::make_unique<KirvPluginQueue>(*pluginLoader, profile.filePath(QStringLiteral("plugins.json")));
    services = std::make_unique<KirvHostServices>(*accountCollection, *pluginLoader, *clientSettings);
    history = std::make_unique<KirvAccountHistory>(*accountCollection, services->mainAccountRule);
    layouts = std::make_unique<KirvLayoutCatalog>();
    clientSettings->setThemeFolder(profile.filePath(QStringLiteral("themes")));
    layouts->setOverrideFolder(profile.filePath(QStringLiteral("layouts")));
    KirvLanguageChange::applyStored(*clientSettings);
}

void KirvClient::createWindow()
{
    settingsWindow = std::make_unique<KirvSettingsWindow>(*clientSettings);
    new KirvVisibleBoxes(settingsWindow.get());
    new KirvWheelGuard(settingsWindow.get());
    // Building the page may reject layouts of the user's own already.
    connect(layouts.get(), &KirvLayoutCatalog::overrideRejected, this,
            [this](const QString &, const QString &text) { showProblem(text); });
    auto *serverCommands = new KirvServerCommands(*pluginLoader, *accountCollection, settingsWindow.get());
    KirvProviderList providers;
    showProblem(providers.load(QDir(options.profileFolder)));
    serverCommands->setProviders(providers);
    auto *undo = new KirvAccountUndo(*accountCollection, *history, *settingsWindow->messageBar(), settingsWindow.get());
    help = new KirvAccountHelp(*accountCollection, *pluginLoader, settingsWindow.get());
    moving = new KirvMovingWindows({ *accountCollection, services->mainAccountRule, *history }, settingsWindow.get());
    connect(moving, &KirvMovingWindows::imported, this, [this] { settingsWindow->showPage(page); });
    connect(moving, &KirvMovingWindows::problemOccurred, this, &KirvClient::showProblem);
    companions = new KirvWindowCompanions(*layouts,
                                          { *accountCollection, *serverCommands, services->mainAccountRule, *undo,
                                            *clientSettings, *help, *moving, *settingsWindow->messageBar() },
                                          settingsWindow.get());
    connect(companions, &KirvWindowCompanions::linkTaken, this, &KirvClient::open);
    languageChange = new KirvLanguageChange(*clientSettings, *companions, settingsWindow.get());
    createPages();

    passwordQuestions = new KirvPasswordQuestions(*accountCollection, settingsWindow.get());
    certificateQuestions = new KirvCertificateQuestions(*accountCollection, settingsWindow.get());
    profileSaver = new KirvProfileSaver(*store, *settingsWindow->messageBar());
    connect(profileSaver, &KirvProfileSaver::continuationRequested, this, &KirvClient::continuationRequested);
    showProblem(store->copyError());

    connect(serverCommands, &KirvServerCommands::unavailable, this, &KirvClient::showProblem);
    connect(serverCommands, &KirvServerCommands::problemOccurred, this, &KirvClient::showProblem);
    connect(serverCommands, &KirvServerCommands::succeeded, this, [this](const QString &text) {
        settingsWindow->messageBar()->showMessage(text, QString(), {}, KirvMessageBar::Information);
    });
    connectPage();
    companions->page()->takeFocus();
    connect(languageChange, &KirvLanguageChange::changed, this, &KirvClient::createPagesAnew);
}

void KirvClient::createPages()
{
    page = KirvAccountsTab::getInstance();
    pluginList = new KirvPluginsPage(*pluginLoader, *pluginsToLoad, *accountCollection, options.pluginFolder);
    generalPage = new KirvGeneralPage(*accountCollection, KirvTranslations::instance(), options.profileFolder);
    settingsWindow->addPage(page, tr("Accounts"), themeIcon(QStringLiteral("system-users")));
    if (auto *list = page->findChild<QTreeView *>(QStringLiteral("Accounts_List")))
        floatOver(list, *settingsWindow->messageBar());
    settingsWindow->addPage(pluginList, tr("Plug-ins"), themeIcon(QStringLiteral("application-x-addon")));
    settingsWindow->addPage(generalPage, tr("General"), themeIcon(QStringLiteral("preferences-system")));

    const auto showLanguage = [this] {
        generalPage->showLanguage(KirvLanguageChange::chosen(*clientSettings), languageChange->isPending());
    };
    showLanguage();
    connect(generalPage, &KirvGeneralPage::languageChosen, this, [this, showLanguage](const QString &language) {
        languageChange->choose(language);
        showLanguage();
    });
    connect(languageChange, &KirvLanguageChange::pendingChanged, generalPage, showLanguage);
    connect(generalPage, &KirvGeneralPage::exportRequested, moving, [this] { moving->exportAccounts(); });
    connect(generalPage, &KirvGeneralPage::importRequested, moving, &KirvMovingWindows::importAccounts);
    connect(pluginList, &KirvPluginsPage::reportRequested, help, [this] { help->showReport(); });
}

/// What the page of the library and its companion are connected with; each page anew.
void KirvClient::connectPage()
{
    connect(page, SIGNAL(mainAccountChanged()), this, SLOT(mainAccountChanged()));
    connect(companions->page(), &KirvAccountsPageCompanion::passwordRequested, passwordQuestions,
            &KirvPasswordQuestions::ask);
    connect(companions->page(), &KirvAccountsPageCompanion::certificateRequested, certificateQuestions,
            &KirvCertificateQuestions::show);
    connect(pluginsToLoad.get(), &KirvPluginQueue::finished, companions->page(),
            &KirvAccountsPageCompanion::pluginsLoaded);
    connect(clientSettings.get(), &KirvClientSettings::writeFailed, companions->page(),
            &KirvAccountsPageCompanion::refreshLater); // its selector shows the main account that was refused
}

/// Another language is used.
void KirvClient::createPagesAnew()
{
    const bool hadFocus = settingsWindow->isActiveWindow();
    settingsWindow->removePages();
    pluginLoader->readDescriptions();
    createPages();
    connectPage();
    const QList<KirvProtocolBase *> protocols = pluginLoader->protocols();
    for (KirvProtocolBase *protocol : protocols)
        companions->page()->protocolLoaded(protocol->getName());
    if (arePluginsLoaded())
        companions->page()->pluginsLoaded();
    mainAccountChanged();
    if (hadFocus)
        generalPage->focusLanguage();
}

void KirvClient::connectServices()
{
    connect(&services->mainAccountRule, &KirvMainAccount::changed, this, &KirvClient::mainAccountChanged);
    connect(&services->mainAccountRule, &KirvMainAccount::successorChosen, this,
            &KirvClient::mainAccountSuccessorChosen);
    connect(accountCollection.get(), &KirvAccountCollection::accountChanged, this, &KirvClient::accountChanged);
    connect(accountCollection.get(), &KirvAccountCollection::noticeReceived, this, &KirvClient::showNotice);
    connect(accountCollection.get(), &KirvAccountCollection::problemOccurred, this, &KirvClient::showRefusal);
    connect(accountCollection.get(), &KirvAccountCollection::creationRefused, this, &KirvClient::creationRefused);
    connect(networkWatch.get(), &KirvNetworkWatch::changed, accountCollection.get(),
            &KirvAccountCollection::networkChanged);
    connect(pluginsToLoad.get(), &KirvPluginQueue::problemOccurred, this, &KirvClient::showProblem);
    // Queued, as the window runs an event loop of its own.
    connect(pluginsToLoad.get(), &KirvPluginQueue::finished, this, &KirvClient::openLink, Qt::QueuedConnection);
    if (const auto *application = qobject_cast<KirvApplication *>(QCoreApplication::instance()))
        connect(application, &KirvApplication::exceptionCaught, this, &KirvClient::showProblem);
    connect(pluginsToLoad.get(), &KirvPluginQueue::finished, &accountCollection->secrets(),
            &KirvSecretKeeper::startMoving);
    connect(&accountCollection->secrets(), &KirvSecretKeeper::moved, this, &KirvClient::showMoved);
    connect(clientSettings.get(), &KirvClientSettings::writeFailed, this, &KirvClient::showRefusal);
    connect(pluginLoader.get(), &KirvPluginLoader::protocolLoaded, this, &KirvClient::protocolLoaded);
    connect(pluginLoader.get(), &KirvPluginLoader::protocolAboutToBeUnloaded, this,
            &KirvClient::protocolAboutToBeUnloaded);
}

bool KirvClient::arePluginsLoaded() const
{
    return isLoadingStarted && !pluginsToLoad->isBusy();
}

void KirvClient::loadPlugins()
{
    if (!pluginsToLoad) // the program quits
        return;
    isLoadingStarted = true;
    if (!pluginsToLoad->loadFolder(options.pluginFolder)) {
        companions->page()->pluginsLoaded();
        //: %1 = path of a folder
        showProblem(tr("There is no folder %1, so no protocol is available.")
                        .arg(QDir::toNativeSeparators(options.pluginFolder)));
    }
}

void KirvClient::openLink()
{
    const KirvAccountLink link = std::exchange(unopenedLink, KirvAccountLink());
    if (link.isTooLong || !link.isNull())
        open(link);
}

void KirvClient::show(const KirvAccountLink &link)
{
    QWidget *modal = QApplication::activeModalWidget();
    for (QWidget *front : { static_cast<QWidget *>(settingsWindow.get()), modal }) {
        if (!front)
            continue;
        front->setWindowState(front->windowState() & ~Qt::WindowMinimized);
        kirvBringToFront(front);
    }
    if (link.isTooLong)
        return open(link);
    if (link.isNull())
        return;
    if (modal)
        showProblem(tr("The link was not opened because another window waits for an answer. Close that, and open the "
                       "link again."));
    else if (arePluginsLoaded())
        open(link);
    else
        unopenedLink = link;
}

void KirvClient::open(const KirvAccountLink &link)
{
    if (link.isTooLong) {
        showProblem(tr("The link was not opened because it is too long."));
    } else if (!link.open(page)) {
        //: %1 = name of a protocol
        showProblem(tr("The link cannot be opened: the protocol %1 is not available.").arg(link.protocol));
    }
}

void KirvClient::protocolLoaded(KirvProtocolBase *protocol)
{
    accountCollection->protocolLoaded(protocol);
    companions->page()->protocolLoaded(protocol->getName());
    moving->protocolsChanged();
    if (arePluginsLoaded()) // a plug-in of the user's own
        accountCollection->secrets().startMoving();
}

void KirvClient::protocolAboutToBeUnloaded(KirvProtocolBase *protocol)
{
    const QString name = protocol->getName();
    companions->closeWindowsOf(name);
    passwordQuestions->closeQuestionsOf(name);
    certificateQuestions->closeQuestionsOf(name);
    accountCollection->protocolAboutToBeUnloaded(name);
    companions->page()->protocolUnloaded(name);
    moving->protocolsChanged();
}

void KirvClient::creationRefused(const KirvAccountKey &key, const QString &reason)
{
    const bool isReported = companions && companions->takeRefusal(key, reason);
    if (accountCollection->find(key)) // whoever creates one that exists finds it
        return;
    if (!isReported || !store->isInPlace()) // the bar has the button for another folder
        showRefusal(reason);
}

void KirvClient::accountChanged(KirvAccount *account)
{
    if (account == KirvAccountManager::getInstance()->getMainAccount())
        updateTitle();
}

void KirvClient::mainAccountChanged()
{
    updateTitle();
    settingsWindow->messageBar()->removeMessage(std::exchange(successorMessage, QString())); // it names another one
    if (companions->page())
        companions->page()->mainAccountChanged();
}

void KirvClient::mainAccountSuccessorChosen(const QString &previous, KirvMainAccount::Reason reason,
                                            const KirvAccount *next)
{
    const QString text = reason == KirvMainAccount::Removed
        //: %1 and %2 = names of accounts
        ? tr("%1 is the main account now, because %2 was removed.")
        //: %1 and %2 = names of accounts
        : tr("%1 is the main account now, because %2 was disabled.");
    successorMessage = text.arg(kirvPlainName(next->displayName()), kirvPlainName(previous));
    settingsWindow->messageBar()->showMessage(successorMessage, QString(), {}, KirvMessageBar::Information);
}

void KirvClient::updateTitle()
{
    const auto *account = static_cast<KirvAccount *>(KirvAccountManager::getInstance()->getMainAccount());
    settingsWindow->setMainAccount(account ? kirvPlainName(account->displayName()) : QString());
}

void KirvClient::showNotice(const KirvAccount *account, const QString &text)
{
    //: %1 = name of an account, %2 = one or more sentences about it
    showProblem(tr("%1: %2").arg(kirvPlainName(account->displayName()), text));
}

void KirvClient::showProblem(const QString &text)
{
    settingsWindow->messageBar()->showMessage(text);
}

void KirvClient::showMoved(int secrets)
{
    const KirvSecretStore *place = accountCollection->secrets().keyring();
    const QString name = place ? place->providerName() : QString();
    QString text = tr("One password was moved to your keyring.");
    if (secrets > 1 && name.isEmpty())
        text = tr("%n passwords were moved to your keyring.", nullptr, secrets);
    else if (secrets > 1)
        //: %1 = "GNOME Keyring"
        text = tr("%n passwords were moved to your keyring, which is %1.", nullptr, secrets).arg(name);
    settingsWindow->messageBar()->showMessage(text, QString(), {}, KirvMessageBar::Information);
}

void KirvClient::showRefusal(const QString &text)
{
    profileSaver->showRefusal(text);
}

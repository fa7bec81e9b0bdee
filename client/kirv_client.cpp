// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_rows.h"
#include "client/kirv_connection_view.h"
#include "client/kirv_edit_window_keeper.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_password_questions.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_registration.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "core/ui/kirv_layout_catalog.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "edit_account/kirv_pubdir_account_received_event.h"
#include "host/kirv_account_manager.h"

#include <QCoreApplication>
#include <QDir>
#include <QIcon>

#include <utility>

static void initializeResources()
{
    Q_INIT_RESOURCE(kirv_client); // a static library's resources are left out unless asked for
}

namespace {
const int logOutMilliseconds = 3000;

QIcon themeIcon(const QString &name)
{
    return QIcon::fromTheme(name, QIcon(QStringLiteral(":/kirv/client/icons/%1.svg").arg(name)));
}
} // namespace

KirvClient::KirvClient(const KirvClientOptions &options, QObject *parent)
    : QObject(parent)
    , options(options)
{
    initializeResources();
}

KirvClient::~KirvClient()
{
    if (!accountRegistry)
        return;
    if (settingsWindow)
        settingsWindow->hide();
    accountRegistry->logOutAll(logOutMilliseconds);
    // From now on nobody is told anything: the window goes first, the protocols and the store follow.
    accountRegistry->disconnect(this);
    pluginRegistry->disconnect(this);
    layouts->disconnect(this);
    settingsWindow.reset();
    for (KirvProtocolBase *protocol : pluginRegistry->protocols())
        accountRegistry->protocolAboutToBeUnloaded(protocol->getName());
    pluginRegistry.reset();
}

bool KirvClient::start()
{
    if (!openStore())
        return false;
    createServices();
    createWindow();
    connectServices();
    loadPlugins();
    accountRegistry->restoreMainAccount();
    mainAccountChanged();
    return true;
}

KirvAccountsTab *KirvClient::accountsPage() const
{
    return page;
}

KirvConnectionView *KirvClient::connectionView() const
{
    return connections;
}

KirvPluginsPage *KirvClient::pluginsPage() const
{
    return pluginList;
}

bool KirvClient::openStore()
{
    store = std::make_unique<KirvStore>();
    if (store->open(options.profileFolder))
        return true;
    error = store->lastError();
    return false;
}

void KirvClient::createServices()
{
    settingsRegistry = std::make_unique<KirvClientSettings>(*store);
    accountRegistry = std::make_unique<KirvAccountCollection>(*store);
    pluginRegistry = std::make_unique<KirvPluginLoader>();
    layouts = std::make_unique<KirvLayoutCatalog>();
    const QDir profile(options.profileFolder);
    settingsRegistry->setThemeFolder(profile.filePath(QStringLiteral("themes")));
    layouts->setOverrideFolder(profile.filePath(QStringLiteral("layouts")));
}

void KirvClient::createWindow()
{
    settingsWindow = std::make_unique<KirvSettingsWindow>(*settingsRegistry);
    // Building the page may reject layouts of the user's own already.
    connect(layouts.get(), &KirvLayoutCatalog::overrideRejected, this,
            [this](const QString &, const QString &text) { showProblem(text); });
    page = KirvAccountsTab::getInstance();
    connections = new KirvConnectionView(*accountRegistry);
    pluginList = new KirvPluginsPage(*pluginRegistry, options.pluginFolder);
    settingsWindow->addPage(page, tr("Accounts"), themeIcon(QStringLiteral("system-users")));
    settingsWindow->addPage(connections, tr("Connections"), themeIcon(QStringLiteral("network-wired")));
    settingsWindow->addPage(pluginList, tr("Plug-ins"), themeIcon(QStringLiteral("application-x-addon")));

    rows = std::make_unique<KirvAccountRows>(page);
    editWindows = new KirvEditWindowKeeper(page, *accountRegistry, page);
    passwordQuestions = new KirvPasswordQuestions(*accountRegistry, settingsWindow.get());
    auto *registration = new KirvRegistration(*pluginRegistry, settingsWindow.get());

    connect(page, SIGNAL(mainAccountChanged()), this, SLOT(mainAccountChanged()));
    connect(registration, &KirvRegistration::unavailable, this, &KirvClient::showProblem);
    connect(connections, &KirvConnectionView::editRequested, editWindows, &KirvEditWindowKeeper::edit);
    connect(connections, &KirvConnectionView::passwordRequested, passwordQuestions, &KirvPasswordQuestions::ask);
}

void KirvClient::connectServices()
{
    connect(accountRegistry.get(), &KirvAccountCollection::accountAdded, this, &KirvClient::accountAdded);
    connect(accountRegistry.get(), &KirvAccountCollection::accountRemoved, this, &KirvClient::accountRemoved);
    connect(accountRegistry.get(), &KirvAccountCollection::accountChanged, this, &KirvClient::accountChanged);
    connect(accountRegistry.get(), &KirvAccountCollection::directoryAnswered, this, &KirvClient::deliverDirectoryAnswer);
    connect(accountRegistry.get(), &KirvAccountCollection::noticeReceived, this, &KirvClient::showNotice);
    connect(accountRegistry.get(), &KirvAccountCollection::problemOccurred, this, &KirvClient::showProblem);
    connect(pluginRegistry.get(), &KirvPluginLoader::protocolLoaded, this, &KirvClient::protocolLoaded);
    connect(pluginRegistry.get(), &KirvPluginLoader::protocolAboutToBeUnloaded, this,
            &KirvClient::protocolAboutToBeUnloaded);
}

void KirvClient::loadPlugins()
{
    if (!pluginRegistry->loadFolder(options.pluginFolder)) {
        //: %1 = path of a folder
        showProblem(tr("There is no folder %1, so no protocol is available.")
                        .arg(QDir::toNativeSeparators(options.pluginFolder)));
    }
}

/// The page lists the accounts of a protocol anew each time it is loaded and keeps the rows of one that went:
/// the kept ones make room, so that each account stands there once.
void KirvClient::protocolLoaded(KirvProtocolBase *protocol)
{
    const QString name = protocol->getName();
    accountRegistry->protocolLoaded(protocol);
    const KirvAccountKey current = rows->current();
    rows->removeAll(name);
    page->readProtocolAccounts(name);
    rows->setCurrent(current);
    if (page->isVisible())
        page->updateAccounts();
}

/// The rows stay, greyed: the accounts are still there, and can still be disabled and removed.
void KirvClient::protocolAboutToBeUnloaded(KirvProtocolBase *protocol)
{
    const QString name = protocol->getName();
    editWindows->closeProtocol(name);
    passwordQuestions->withdrawProtocol(name);
    page->removeProtocolAccounts(name);
    accountRegistry->protocolAboutToBeUnloaded(name);
    rows->markUnloaded(name);
    if (page->isVisible())
        page->updateAccounts();
}

/// The add dialog makes the row of its account itself, after this; accounts that come another way have none.
void KirvClient::accountAdded(KirvAccount *account)
{
    syncRowLater(account->key());
}

/// The page takes the row away itself, after this, when it was asked to remove the account.
void KirvClient::accountRemoved(const QString &id, const QString &protocol)
{
    syncRowLater({ id, protocol });
    mainAccountChanged();
}

void KirvClient::accountChanged(KirvAccount *account)
{
    if (account->isMainAccount())
        updateTitle();
}

void KirvClient::syncRowLater(const KirvAccountKey &key)
{
    if (unsynced.isEmpty())
        QMetaObject::invokeMethod(this, &KirvClient::syncRows, Qt::QueuedConnection);
    unsynced << key;
}

/// Makes the page list the accounts that came and went exactly when they are configured.
void KirvClient::syncRows()
{
    const QList<KirvAccountKey> keys = std::exchange(unsynced, {});
    for (const KirvAccountKey &key : keys) {
        KirvAccount *account = accountRegistry->find(key);
        if (!account)
            rows->remove(key);
        else if (account->isLoaded() && !rows->contains(key))
            page->addAccountEntry(account);
    }
    // Also while the page is hidden: its selector must not keep accounts that are gone.
    page->updateAccounts();
}

void KirvClient::deliverDirectoryAnswer(KirvAccount *account, const QList<KirvField> &fields)
{
    KirvEditAccountDialog *dialog = page->getAccEdit();
    // The answer to a request that a newer one has replaced must not unlock the fields before their time.
    const bool isReplaced = fields.isEmpty() && account->connection() && account->connection()->isAskingDirectory();
    if (!dialog || isReplaced)
        return;
    KirvPubdirAccountReceivedEvent answer(account, fields);
    QCoreApplication::sendEvent(dialog, &answer);
}

void KirvClient::mainAccountChanged()
{
    updateTitle();
    connections->refreshMainAccount();
}

void KirvClient::updateTitle()
{
    const auto *account = static_cast<KirvAccount *>(KirvAccountManager::getInstance()->getMainAccount());
    settingsWindow->setMainAccount(account ? account->displayName() : QString());
}

void KirvClient::showNotice(const KirvAccount *account, const QString &text)
{
    //: %1 = name of an account, %2 = one or more sentences about it
    showProblem(tr("%1: %2").arg(account->displayName(), text));
}

void KirvClient::showProblem(const QString &text)
{
    settingsWindow->messageBar()->showMessage(text);
}

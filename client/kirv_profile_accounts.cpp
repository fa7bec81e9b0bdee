// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_profile_accounts.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/plugins/kirv_plugin_queue.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_keyring.h"
#include "core/store/kirv_store.h"

#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace {
const int millisecondsForTheKeyring = 60000;
const int millisecondsBetweenLooks = 20;
}

KirvProfileAccounts::KirvProfileAccounts(const KirvClientOptions &options)
    : options(options)
{
}

KirvProfileAccounts::~KirvProfileAccounts()
{
    service.reset();
    pluginQueue.reset();
    if (!plugins)
        return;
    const QList<KirvProtocolBase *> protocols = plugins->protocols();
    for (KirvProtocolBase *protocol : protocols)
        accounts->protocolAboutToBeUnloaded(protocol->getName());
}

KirvProfileAccounts::Outcome KirvProfileAccounts::open(const QString &folder)
{
    store = std::make_unique<KirvStore>();
    if (!store->open(folder)) {
        switch (store->state()) {
        case KirvProfileState::InUse:
            return InUse;
        case KirvProfileState::Damaged:
            return Damaged;
        default:
            return Unusable;
        }
    }
    settings = std::make_unique<KirvClientSettings>(*store);
    accounts = std::make_unique<KirvAccountCollection>(*store);
    plugins = std::make_unique<KirvPluginLoader>();
    services = std::make_unique<KirvHostServices>(*accounts, *plugins, *settings);
    history = std::make_unique<KirvAccountHistory>(*accounts, services->mainAccountRule);
    services->mainAccountRule.restore();
    hold();
    service = std::make_unique<KirvAccountsService>(
        KirvAccountsService::Environment { *accounts, services->mainAccountRule, *history, false,
                                           [this](const auto &request, const auto &then) { prepare(request, then); } });
    return Opened;
}

QString KirvProfileAccounts::problem() const
{
    return store->lastError();
}

/// Nothing logs in, whatever is enabled, added and loaded.
void KirvProfileAccounts::hold()
{
    const QList<KirvAccount *> all = accounts->accounts();
    for (KirvAccount *account : all)
        account->stopReconciling();
    QObject::connect(accounts.get(), &KirvAccountCollection::accountAdded, accounts.get(),
                     [](KirvAccount *account) { account->stopReconciling(); });
}

void KirvProfileAccounts::prepare(const KirvAccountsRequest &request, const std::function<void()> &then)
{
    if (request.command == KirvAccountsRequest::Import)
        loadPlugins(then);
    else if (request.command == KirvAccountsRequest::Export && request.withPasswords && options.usesKeyring)
        readKeyring(then);
    else
        then();
}

/// An import needs them to know which logins are possible, and which settings there are and which of them are secret.
void KirvProfileAccounts::loadPlugins(const std::function<void()> &then)
{
    QObject::connect(plugins.get(), &KirvPluginLoader::protocolLoaded, accounts.get(),
                     [this](KirvProtocolBase *protocol) { accounts->protocolLoaded(protocol, false); });
    const QDir profile(store->folder());
    pluginQueue = std::make_unique<KirvPluginQueue>(*plugins, profile.filePath(QStringLiteral("plugins.json")));
    QObject::connect(pluginQueue.get(), &KirvPluginQueue::finished, service.get(), then);
    if (!pluginQueue->loadFolder(options.pluginFolder))
        then();
}

/// Until each secret is read, or the keyring gives none, or nobody has unlocked it in time.
void KirvProfileAccounts::readKeyring(const std::function<void()> &then)
{
    openKeyring();
    poll([this] { return awaitsKeyring(); }, then);
}

void KirvProfileAccounts::openKeyring()
{
    keyring = std::make_unique<KirvKeyring>();
    accounts->secrets().setKeyring(keyring.get());
    keyringPatience.setRemainingTime(millisecondsForTheKeyring);
}

/// Calls \a then as soon as \a isAwaited does not hold any more, or the time for the keyring is over.
void KirvProfileAccounts::poll(const std::function<bool()> &isAwaited, const std::function<void()> &then)
{
    auto *timer = new QTimer(service.get());
    QObject::connect(timer, &QTimer::timeout, service.get(), [this, timer, isAwaited, then] {
        if (isAwaited() && !keyringPatience.hasExpired())
            return;
        timer->deleteLater();
        timer->stop();
        then();
    });
    timer->start(millisecondsBetweenLooks);
}

/// Nobody is asked to unlock it: there may be nobody.
void KirvProfileAccounts::moveToKeyring(const std::function<void()> &then)
{
    openKeyring();
    KirvSecretKeeper &secrets = accounts->secrets();
    secrets.startMoving();
    poll(
        [this, &secrets] {
            return keyring->state() == KirvSecretStore::Unknown
                || (keyring->state() == KirvSecretStore::Ready && secrets.hasMovableSecrets());
        },
        then);
}

bool KirvProfileAccounts::awaitsKeyring() const
{
    const KirvSecretKeeper::Obstacle obstacle = accounts->secrets().obstacle();
    if (obstacle != KirvSecretKeeper::None && obstacle != KirvSecretKeeper::Locked)
        return false;
    const QList<KirvAccount *> all = accounts->accounts();
    // While the keyring is locked, only what enabled accounts need is requested of it.
    return std::any_of(all.begin(), all.end(), [obstacle](const KirvAccount *account) {
        return account->awaitsSecrets() && (obstacle == KirvSecretKeeper::None || account->record().enabled);
    });
}

KirvAccountsReply KirvProfileAccounts::run(const KirvAccountsRequest &request)
{
    KirvAccountsReply result;
    QEventLoop loop;
    bool isDone = false;
    const auto end = [&] {
        isDone = true;
        loop.quit();
    };
    service->run(request, [&](const KirvAccountsReply &reply) {
        result = reply;
        const bool hasImported =
            result.status == KirvAccountsReply::Done || result.status == KirvAccountsReply::DoneInPart;
        if (hasImported && request.command == KirvAccountsRequest::Import && options.usesKeyring)
            moveToKeyring(end);
        else
            end();
    });
    if (!isDone)
        loop.exec();
    return result;
}

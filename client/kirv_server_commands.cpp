// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_server_commands.h"

#include "client/kirv_registration_chooser.h"
#include "client/kirv_server_task.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"

#include <QWidget>

namespace {

const QLatin1String registerSignal("register_account");

QString nameOf(const QString &protocol, const QString &account, const QString &action)
{
    return QStringList { protocol, account, action }.join(QChar(u'\0'));
}

} // namespace

KirvServerCommands::KirvServerCommands(KirvPluginLoader &plugins, KirvAccountCollection &accounts, QWidget *window)
    : QObject(window)
    , plugins(plugins)
    , accounts(accounts)
    , window(window)
{
    connect(&plugins, &KirvPluginLoader::coreSignalEmitted, this,
            [this](const QString &name, const QList<KirvArg> &arguments) {
                if (name == registerSignal)
                    registerAccount(arguments.value(0).getValue().toString());
            });
    connect(&plugins, &KirvPluginLoader::protocolAboutToBeUnloaded, this, [this](KirvProtocolBase *protocol) {
        if (chooser)
            chooser->removeProtocol(protocol->getName());
        endTasksOf(protocol);
    });
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this,
            [this](KirvAccount *account) { endTasksOf(account); });
}

KirvServerCommands::~KirvServerCommands() = default;

QList<KirvProtocolBase *> KirvServerCommands::offeringProtocols() const
{
    QList<KirvProtocolBase *> offering;
    for (KirvProtocolBase *protocol : plugins.protocols()) {
        if (protocol->offersRegistration())
            offering << protocol;
    }
    return offering;
}

void KirvServerCommands::registerAccount(const QString &protocolName)
{
    QList<KirvProtocolBase *> offering = offeringProtocols();
    if (!protocolName.isEmpty()) {
        KirvProtocolBase *named = plugins.protocol(protocolName);
        offering = offering.contains(named) ? QList<KirvProtocolBase *> { named } : QList<KirvProtocolBase *>();
    }
    if (offering.isEmpty()) {
        //: %1 = name of a protocol
        Q_EMIT unavailable(protocolName.isEmpty() ? tr("None of the loaded plug-ins can register a new account.")
                                                  : tr("New accounts cannot be registered with %1.").arg(protocolName));
        return;
    }
    if (offering.size() > 1) {
        choose(offering);
        return;
    }
    KirvProtocolBase *protocol = offering.first();
    const QString name = nameOf(protocol->getName(), QString(), QString());
    if (!raise(name, window))
        open(name, protocol->createRegistration(), protocol, nullptr, window);
}

void KirvServerCommands::choose(const QList<KirvProtocolBase *> &protocols)
{
    if (chooser) {
        chooser->activateWindow();
        return;
    }
    chooser = new KirvRegistrationChooser(protocols, window);
    connect(chooser, &QDialog::finished, this, &KirvServerCommands::finishChoice);
    chooser->open();
}

void KirvServerCommands::finishChoice(int result)
{
    const QString protocol = chooser->protocol();
    chooser->deleteLater();
    chooser = nullptr;
    if (result == QDialog::Accepted && !protocol.isEmpty())
        registerAccount(protocol);
}

QList<KirvAccountAction> KirvServerCommands::actionsOf(const KirvAccountKey &key) const
{
    const KirvAccount *account = accounts.find(key);
    return account && account->isLoaded() ? account->protocol()->accountActions() : QList<KirvAccountAction>();
}

bool KirvServerCommands::canRun(const KirvAccountKey &key) const
{
    const KirvAccount *account = accounts.find(key);
    return account && account->isOnline();
}

void KirvServerCommands::run(const KirvAccountKey &key, const QString &actionId, QWidget *over)
{
    KirvAccount *account = accounts.find(key);
    if (!account || !account->isLoaded())
        return;
    const QString name = nameOf(key.protocol, key.id, actionId);
    if (raise(name, over))
        return;
    KirvServerRequest *request = account->protocol()->createAccountRequest(actionId, account->connection());
    open(name, request, account->protocol(), account, over);
}

/// Takes ownership of \a request; null: the protocol has none.
void KirvServerCommands::open(const QString &name, KirvServerRequest *request, KirvProtocolBase *protocol,
                              KirvAccount *account, QWidget *over)
{
    if (!request)
        return;
    auto *task = new KirvServerTask(std::unique_ptr<KirvServerRequest>(request), protocol, account, accounts, this);
    connect(task, &KirvServerTask::problemOccurred, this, &KirvServerCommands::problemOccurred);
    connect(task, &KirvServerTask::succeeded, this, &KirvServerCommands::succeeded);
    task->setProviders(providers.of(protocol->getName()));
    tasks.insert(name, task);
    task->show(over);
}

/// Shows the window of the task of that name again; false when there is none.
bool KirvServerCommands::raise(const QString &name, QWidget *over)
{
    KirvServerTask *task = tasks.value(name);
    if (!task || task->hasEnded())
        return false;
    task->show(over);
    return true;
}

void KirvServerCommands::endTasksOf(const KirvProtocolBase *protocol)
{
    for (const QPointer<KirvServerTask> &task : qAsConst(tasks)) {
        if (task && task->protocol() == protocol)
            task->end();
    }
}

void KirvServerCommands::endTasksOf(const KirvAccount *account)
{
    for (const QPointer<KirvServerTask> &task : qAsConst(tasks)) {
        if (task && task->account() == account)
            task->end();
    }
}

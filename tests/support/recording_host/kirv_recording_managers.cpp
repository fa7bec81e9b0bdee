// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/recording_host/kirv_recording_host.h"

KirvAccountManagerPrivate *KirvAccountManagerPrivate::ampInstance = nullptr;
KirvPluginManagerPrivate *KirvPluginManagerPrivate::instance = nullptr;
KirvSettingsManagerPrivate *KirvSettingsManagerPrivate::settingsMgrPrivInstance = nullptr;

namespace {

KirvRecordingHost &host()
{
    return KirvRecordingHost::instance();
}

void record(const QString &operation, const QStringList &arguments)
{
    host().record(QString(), operation, arguments);
}

void record(const QString &operation, const QString &id, const QString &protocol)
{
    record(operation, { kirvWritten(id), kirvWritten(protocol) });
}

void setEnabled(const QString &id, const QString &protocol, bool enabled)
{
    if (KirvRecordingAccount *account = host().findAccount(id, protocol))
        account->enabled = enabled;
}

}

KirvAccountManager *KirvAccountManager::getInstance()
{
    static KirvAccountManager manager;
    return &manager;
}

QList<KirvAccountInfo *> KirvAccountManager::getAccountsInfo(const QString &protocol) const
{
    record(QStringLiteral("getAccountsInfo"), { kirvWritten(protocol) });
    return host().infosOf(protocol);
}

bool KirvAccountManager::accountEnabled(const QString &id, const QString &protocol) const
{
    record(QStringLiteral("accountEnabled"), id, protocol);
    const KirvRecordingAccount *account = host().findAccount(id, protocol);
    return account && account->enabled;
}

KirvAccountConnection *KirvAccountManager::getAccount(const QString &id, const QString &protocol)
{
    record(QStringLiteral("getAccount"), id, protocol);
    KirvRecordingAccount *account = host().findAccount(id, protocol);
    return account && account->loaded ? account : nullptr;
}

KirvAccountConnection *KirvAccountManager::loadAccount(const QString &id, const QString &protocol)
{
    record(QStringLiteral("loadAccount"), id, protocol);
    KirvRecordingAccount *account = host().findAccount(id, protocol);
    return account && account->loadable ? account : nullptr;
}

KirvAccountConnection *KirvAccountManager::getMainAccount() const
{
    record(QStringLiteral("getMainAccount"), {});
    return KirvAccountManagerPrivate::ampInstance->mainAccount;
}

KirvAccountConnection *KirvAccountManager::createAccount(const QString &id, const QString &alias,
                                                         const QString &password, bool rememberPassword,
                                                         KirvProtocol *protocol, const KirvPresence &presence,
                                                         const QList<KirvField> &settings)
{
    auto *recordingProtocol = static_cast<KirvRecordingProtocol *>(protocol);
    record(QStringLiteral("createAccount"),
           { kirvWritten(id), kirvWritten(alias), kirvWritten(password), kirvWritten(rememberPassword),
             recordingProtocol->name, kirvWritten(presence), kirvWritten(settings) });
    if (!host().acceptsNewAccounts || host().findAccount(id, recordingProtocol->name))
        return nullptr;
    KirvRecordingAccount *account = host().addAccount(id, recordingProtocol->name);
    account->alias = alias;
    account->password = password;
    account->defaultPresence = presence;
    account->settings = settings;
    return account;
}

void KirvAccountManager::enableAccount(const QString &id, const QString &protocol)
{
    record(QStringLiteral("enableAccount"), id, protocol);
    if (host().enablesAccounts)
        setEnabled(id, protocol, true);
}

void KirvAccountManager::disableAccount(const QString &id, const QString &protocol)
{
    record(QStringLiteral("disableAccount"), id, protocol);
    if (host().disablesAccounts)
        setEnabled(id, protocol, false);
}

void KirvAccountManager::removeAccount(const QString &id, const QString &protocol)
{
    record(QStringLiteral("removeAccount"), id, protocol);
    host().removeAccount(id, protocol);
}

void KirvAccountManager::setMainAccount(KirvAccountConnection *account)
{
    record(QStringLiteral("setMainAccount"), { kirvWritten(account) });
    KirvAccountManagerPrivate::ampInstance->mainAccount = account;
}

KirvPluginManager *KirvPluginManager::getInstance()
{
    static KirvPluginManager manager;
    return &manager;
}

KirvProtocol *KirvPluginManager::getProtocolByName(const QString &name)
{
    record(QStringLiteral("getProtocolByName"), { kirvWritten(name) });
    return host().findProtocol(name);
}

void KirvPluginManagerPrivate::emitCoreSignal(const QString &name, QList<KirvArg> args)
{
    record(QStringLiteral("emitCoreSignal"), { kirvWritten(name), QString::number(args.size()) });
}

KirvSettingsManager *KirvSettingsManager::getInstance()
{
    static KirvSettingsManager manager;
    return &manager;
}

QString KirvSettingsManager::getCurrentRosterThemeDir() const
{
    record(QStringLiteral("getCurrentRosterThemeDir"), {});
    return host().rosterThemeDir;
}

QList<KirvField> KirvSettingsManagerPrivate::readAccountGlobals(const QString &id, const QString &protocol)
{
    record(QStringLiteral("readAccountGlobals"), id, protocol);
    const KirvRecordingAccount *account = host().findAccount(id, protocol);
    return account ? account->globals : QList<KirvField>();
}

void KirvSettingsManagerPrivate::writeGlobalSetting(const KirvField &field)
{
    record(QStringLiteral("writeGlobalSetting"), { kirvWritten(field) });
    host().writtenSettings.append(field);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/recording_host/kirv_recording_host.h"

#include "tests/support/recording_host/kirv_recording_icons.h"

#include <QtPlugin>

#include <algorithm>

Q_IMPORT_PLUGIN(KirvRecordingIconPlugin)

namespace {

KirvRecordingHost *living = nullptr;

}

KirvRecordingHost::KirvRecordingHost()
{
    Q_ASSERT(!living);
    living = this;
    KirvAccountManagerPrivate::ampInstance = &accountManagerPrivate;
    KirvPluginManagerPrivate::instance = &pluginManagerPrivate;
    KirvSettingsManagerPrivate::settingsMgrPrivInstance = &settingsManagerPrivate;
    kirvForgetIconReads();
}

KirvRecordingHost::~KirvRecordingHost()
{
    KirvAccountManagerPrivate::ampInstance = nullptr;
    KirvPluginManagerPrivate::instance = nullptr;
    KirvSettingsManagerPrivate::settingsMgrPrivInstance = nullptr;
    living = nullptr;
}

KirvRecordingHost &KirvRecordingHost::instance()
{
    Q_ASSERT(living);
    return *living;
}

QStringList KirvRecordingHost::calls() const
{
    QStringList texts;
    for (const Call &call : log)
        texts.append(call.text);
    return texts;
}

QStringList KirvRecordingHost::calls(const QSet<QString> &operations) const
{
    QStringList texts;
    for (const Call &call : log) {
        if (operations.contains(call.operation))
            texts.append(call.text);
    }
    return texts;
}

QStringList KirvRecordingHost::effects() const
{
    static const QSet<QString> changing = { "createAccount",
                                            "enableAccount",
                                            "disableAccount",
                                            "removeAccount",
                                            "setMainAccount",
                                            "emitCoreSignal",
                                            "writeGlobalSetting",
                                            "setAlias",
                                            "setPassword",
                                            "setRememberPassword",
                                            "setRestoreLastPresence",
                                            "setRestoreLastDescription",
                                            "setDefaultPresence",
                                            "setPresence",
                                            "setAvatar",
                                            "setAccountSettings",
                                            "accountPresenceChanged",
                                            "publishPubdirInfo",
                                            "fetchPubdirInfo",
                                            "deletePubdirInfo" };
    return calls(changing);
}

void KirvRecordingHost::forgetCalls()
{
    log.clear();
    kirvForgetIconReads();
}

void KirvRecordingHost::hook(const QString &operation, const std::function<void()> &hook)
{
    hooks.insert(operation, hook);
}

KirvRecordingProtocol *KirvRecordingHost::addProtocol(const QString &name)
{
    protocols.push_back(std::make_unique<KirvRecordingProtocol>(name));
    unloaded.remove(name);
    return protocols.back().get();
}

void KirvRecordingHost::unloadProtocol(const QString &name)
{
    unloaded.insert(name);
}

KirvRecordingProtocol *KirvRecordingHost::findProtocol(const QString &name) const
{
    if (unloaded.contains(name))
        return nullptr;
    // The one added last: a protocol loaded again is another object.
    const auto found = std::find_if(protocols.rbegin(), protocols.rend(),
                                    [&](const auto &protocol) { return protocol->name == name; });
    return found == protocols.rend() ? nullptr : found->get();
}

KirvRecordingAccount *KirvRecordingHost::addAccount(const QString &id, const QString &protocol)
{
    accounts.push_back(std::make_unique<KirvRecordingAccount>(id, findProtocol(protocol)));
    return accounts.back().get();
}

KirvRecordingAccount *KirvRecordingHost::findAccount(const QString &id, const QString &protocol) const
{
    const auto found = std::find_if(accounts.begin(), accounts.end(), [&](const auto &account) {
        return account->id == id && account->protocolName == protocol;
    });
    return found == accounts.end() ? nullptr : found->get();
}

void KirvRecordingHost::removeAccount(const QString &id, const QString &protocol)
{
    KirvRecordingAccount *account = findAccount(id, protocol);
    if (!account)
        return;
    if (accountManagerPrivate.mainAccount == account)
        accountManagerPrivate.mainAccount = nullptr;
    accounts.erase(std::find_if(accounts.begin(), accounts.end(),
                                [&](const auto &candidate) { return candidate.get() == account; }));
}

void KirvRecordingHost::record(const QString &owner, const QString &operation, const QStringList &arguments)
{
    const QString prefix = owner.isEmpty() ? QString() : owner + QLatin1Char('.');
    log.push_back({ operation, prefix + operation + QLatin1Char('(') + arguments.join(", ") + QLatin1Char(')') });
    // A copy, as the hook may end itself.
    const std::function<void()> hook = hooks.value(operation);
    if (hook)
        hook();
}

QList<KirvAccountInfo *> KirvRecordingHost::infosOf(const QString &protocol)
{
    // As the contract allows, earlier descriptions of accounts end here.
    infos.clear();
    QList<KirvAccountInfo *> result;
    for (const auto &account : accounts) {
        if (account->protocolName != protocol)
            continue;
        infos.push_back(std::make_unique<KirvAccountInfo>(account->id, account->alias, account->enabled));
        result.append(infos.back().get());
    }
    return result;
}

QString kirvWritten(const QString &text)
{
    if (text.isNull())
        return QStringLiteral("null");
    return text.isEmpty() ? QStringLiteral("\"\"") : text;
}

QString kirvWritten(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString kirvWritten(const KirvField &field)
{
    const QString value = field.getKind() == KirvField::CheckBox ? kirvWritten(field.isChecked()) : field.getText();
    return field.getId() + QLatin1Char('=') + value;
}

QString kirvWritten(const QList<KirvField> &fields)
{
    QStringList texts;
    for (const KirvField &field : fields)
        texts.append(kirvWritten(field));
    return QLatin1Char('[') + texts.join(", ") + QLatin1Char(']');
}

QString kirvWritten(const KirvPresence &presence)
{
    return presence.getId() + QLatin1Char(':') + kirvWritten(presence.getDescription());
}

QString kirvWritten(const KirvAccountConnection *account)
{
    return account ? static_cast<const KirvRecordingAccount *>(account)->written() : QStringLiteral("null");
}

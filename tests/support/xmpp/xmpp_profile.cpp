// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/xmpp/xmpp_profile.h"

#include "tools/servers/kirv_prosody_server.h"

#include <QDir>
#include <QFile>

XmppProfile::XmppProfile()
{
    if (!store.open(files.filePath("profile"))) {
        error = store.lastError();
        return;
    }
    registry = std::make_unique<KirvAccountCollection>(store);
    pluginRegistry = std::make_unique<KirvPluginLoader>();
    settings = std::make_unique<KirvClientSettings>(store);
    services = std::make_unique<KirvHostServices>(*registry, *pluginRegistry, *settings);
    QObject::connect(pluginRegistry.get(), &KirvPluginLoader::protocolLoaded, registry.get(),
                     [this](KirvProtocolBase *loaded) { registry->protocolLoaded(loaded); });
    QObject::connect(pluginRegistry.get(), &KirvPluginLoader::protocolAboutToBeUnloaded, registry.get(),
                     [this](KirvProtocolBase *leaving) { registry->protocolAboutToBeUnloaded(leaving->getName()); });

    // Alone in its folder, whatever other plug-ins the build has made.
    const QString protocols = files.filePath("protocols");
    if (!QDir().mkpath(protocols) || !QFile::copy(KIRV_XMPP_PLUGIN, protocols + "/kirv_protocol_xmpp.so")
        || !pluginRegistry->loadFolder(protocols)) {
        error = "The plug-in cannot be copied.";
        return;
    }
    xmpp = pluginRegistry->protocol("XMPP");
    if (!xmpp)
        error = pluginRegistry->plugins().value(0).error;
}

XmppProfile::~XmppProfile()
{
    pluginRegistry.reset();
    registry.reset();
}

KirvAccount *XmppProfile::createAccount(const QString &login, const Values &values, const QString &password)
{
    QList<KirvField> fields = xmpp->getAccountSettings();
    for (KirvField &field : fields) {
        if (values.contains(field.getId()))
            field.setText(values[field.getId()]);
    }
    auto *account = static_cast<KirvAccount *>(KirvAccountManager::getInstance()->createAccount(
        login, login, password, true, xmpp, xmpp->createPresenceWithId("offline", QString()), fields));
    KirvConnection::Timing timing;
    timing.loginTimeout = patience;
    timing.backOff.first = 50;
    timing.backOff.last = 200;
    account->connection()->setTiming(timing);
    return account;
}

KirvAccount *XmppProfile::createAccount(const KirvProsodyServer &server, const QString &user, Values values,
                                        const QString &password)
{
    const Values defaults { { "server", server.host() },
                            { "port", QString::number(server.port()) },
                            { "encryption", server.certificatePath().isEmpty() ? "none" : "required" },
                            { "certificate", server.certificatePath() } };
    for (auto value = defaults.begin(); value != defaults.end(); ++value) {
        if (!values.contains(value.key()))
            values.insert(value.key(), value.value());
    }
    return createAccount(user + '@' + server.domain(), values, password);
}

void XmppProfile::setValue(KirvAccount *account, const QString &id, const QString &value)
{
    QList<KirvField> fields = account->getAccountSettingsInOrder();
    for (KirvField &field : fields) {
        if (field.getId() == id)
            field.setText(value);
    }
    account->setAccountSettings(fields);
}

void XmppProfile::goTo(KirvAccount *account, const QString &presence, const QString &description)
{
    account->setPresence(xmpp->createPresenceWithId(presence, description));
    xmpp->accountPresenceChanged(account);
}

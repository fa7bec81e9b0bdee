// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_plugin_profile.h"

#include <QFile>
#include <QFileInfo>
#include <map>

namespace {

/// A folder with \a pluginFile alone, whatever other plug-ins the build has made; empty when it cannot be copied. All
/// profiles of a test load the same copy: another one would be another library, which reads all certificates again.
QString folderWith(const QString &pluginFile)
{
    static std::map<QString, QTemporaryDir> folders;
    const QTemporaryDir &folder = folders[pluginFile];
    const QString copy = folder.filePath(QFileInfo(pluginFile).fileName());
    return QFile::exists(copy) || QFile::copy(pluginFile, copy) ? folder.path() : QString();
}

} // namespace

KirvPluginProfile::KirvPluginProfile(const QString &pluginFile, const QString &name)
{
    if (!store.open(files.filePath("profile"))) {
        error = store.lastError();
        return;
    }
    collection = std::make_unique<KirvAccountCollection>(store);
    loader = std::make_unique<KirvPluginLoader>();
    settings = std::make_unique<KirvClientSettings>(store);
    services = std::make_unique<KirvHostServices>(*collection, *loader, *settings);
    QObject::connect(loader.get(), &KirvPluginLoader::protocolLoaded, collection.get(),
                     [this](KirvProtocolBase *protocol) { collection->protocolLoaded(protocol); });
    QObject::connect(loader.get(), &KirvPluginLoader::protocolAboutToBeUnloaded, collection.get(),
                     [this](KirvProtocolBase *leaving) { collection->protocolAboutToBeUnloaded(leaving->getName()); });

    const QString protocols = folderWith(pluginFile);
    if (protocols.isEmpty() || !loader->loadFolder(protocols)) {
        error = "The plug-in cannot be copied.";
        return;
    }
    loaded = loader->protocol(name);
    if (!loaded)
        error = loader->plugins().value(0).error;
}

KirvAccount *KirvPluginProfile::createAccount(const QString &login, const Values &values, const QString &password)
{
    KirvAccountRecord record;
    record.key = { login, loaded->getName() };
    record.alias = login;
    record.password = password;
    record.rememberPassword = true;
    record.defaultPresence = record.lastPresence = "offline";
    record.settings = kirvStoredValues(withValues(loaded->accountSettings(), values));
    KirvAccount *account = collection->create(record, loaded);
    if (!account)
        return nullptr;
    KirvConnection::Timing timing;
    timing.loginTimeout = kirvPatience;
    timing.backOff.first = 50;
    timing.backOff.last = 200;
    account->connection()->setTiming(timing);
    return account;
}

void KirvPluginProfile::setValue(KirvAccount *account, const QString &id, const QString &value)
{
    account->setSettings(withValues(account->settings(), { { id, value } }));
}

void KirvPluginProfile::goTo(KirvAccount *account, const QString &presence, const QString &description)
{
    account->setPresence(loaded->presenceWithId(presence, description));
    account->tryAgain();
}

QList<KirvField> KirvPluginProfile::withValues(QList<KirvField> fields, const Values &values)
{
    for (KirvField &field : fields) {
        if (values.contains(field.getId()))
            field.setText(values[field.getId()]);
    }
    return fields;
}

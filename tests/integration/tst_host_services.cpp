// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_settings_table.h"
#include "tests/integration/kirv_accounts_fixture.h"

#include <QtTest>
#include <functional>

namespace {

KirvAccountManager &manager()
{
    return *KirvAccountManager::getInstance();
}

} // namespace

/// The contract over the client core: what each operation does, in which order, and what it leaves alone.
class tst_HostServices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutServicesNothingIsFound();
    void theServicesStandBehindTheStaticPointers();

    void anOperationHasExactlyItsEffects_data();
    void anOperationHasExactlyItsEffects();
    void aReadingOperationHasNoEffect_data();
    void aReadingOperationHasNoEffect();
    void gettersGiveWhatIsStored();
    void settersAreReadBackInThisRunAndTheNext();

    void theMainAccountIsAssignedAndNothingElse();
    void theMainAccountGoesWithItsAccount();
    void theMainAccountIsRestored_data();
    void theMainAccountIsRestored();

    void protocolsAreFoundByTheirName();
    void coreSignalsReachEveryProtocolAndTheClient();
    void aRefusedGlobalSettingIsReported();
    void anUnknownAccountHasNoGlobals();

private:
    void record();
    QStringList takeLog();

    std::unique_ptr<KirvAccountsFixture> core;
    QStringList log;
};

void tst_HostServices::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    QVERIFY(core->plugins->addProtocol(new KirvFakeProtocol(QStringLiteral("Loaded"))));
}

void tst_HostServices::cleanup()
{
    core.reset();
}

/// Logs the signals of the core from now on.
void tst_HostServices::record()
{
    core->settle();
    core->server().calls.clear();
    log.clear();
    const KirvAccountCollection *accounts = core->accounts.get();
    const auto idOf = [](KirvAccount *account) { return QLatin1Char(' ') + account->key().id; };
    connect(accounts, &KirvAccountCollection::accountAdded, this,
            [=](KirvAccount *account) { log << "added" + idOf(account); });
    connect(accounts, &KirvAccountCollection::accountAboutToBeRemoved, this,
            [=](KirvAccount *account) { log << "about to be removed" + idOf(account); });
    connect(accounts, &KirvAccountCollection::accountRemoved, this,
            [=](const QString &id, const QString &protocol) { log << "removed " + id + " " + protocol; });
    connect(accounts, &KirvAccountCollection::accountChanged, this,
            [=](KirvAccount *account) { log << "changed" + idOf(account); });
    connect(accounts, &KirvAccountCollection::problemOccurred, this, [=] { log << "problem"; });
    connect(core->settings.get(), &KirvClientSettings::writeFailed, this, [=] { log << "write failed"; });
    connect(core->plugins.get(), &KirvPluginLoader::coreSignalEmitted, this,
            [=](const QString &name) { log << "core signal " + name; });
    for (KirvAccount *account : accounts->accounts()) {
        connect(&account->directory(), &KirvAccountDirectory::answered, this,
                [=](KirvAccountDirectory::Operation, const KirvDirectoryAnswer &answer) {
                    log << "directory answered " + QString::number(answer.outcome);
                });
    }
}

/// What happened since the last call.
QStringList tst_HostServices::takeLog()
{
    return std::exchange(log, {});
}

void tst_HostServices::withoutServicesNothingIsFound()
{
    const QString fake = core->fake;
    KirvProtocol *protocol = core->protocol.get();
    QVERIFY(core->create());
    core->services.reset();
    QVERIFY(!KirvHostServices::instance());
    QVERIFY(!KirvAccountManagerPrivate::ampInstance);
    QVERIFY(!KirvPluginManagerPrivate::instance);
    QVERIFY(!KirvSettingsManagerPrivate::settingsMgrPrivInstance);
    QVERIFY(manager().getAccountsInfo(fake).isEmpty());
    QVERIFY(!manager().accountEnabled("id", fake));
    QVERIFY(!manager().getAccount("id", fake));
    QVERIFY(!manager().loadAccount("id", fake));
    QVERIFY(!manager().getMainAccount());
    QVERIFY(!manager().createAccount("new", "", "", false, protocol, KirvPresence(), {}));
    manager().enableAccount("id", fake);
    manager().disableAccount("id", fake);
    manager().removeAccount("id", fake);
    manager().setMainAccount(core->account());
    QVERIFY(!manager().getMainAccount());
    QVERIFY(!KirvPluginManager::getInstance()->getProtocolByName("Loaded"));
    QCOMPARE(KirvSettingsManager::getInstance()->getCurrentRosterThemeDir(), QString());
    QVERIFY(core->account()->isEnabled());
}

void tst_HostServices::theServicesStandBehindTheStaticPointers()
{
    QCOMPARE(KirvHostServices::instance(), core->services.get());
    QCOMPARE(KirvAccountManagerPrivate::ampInstance, core->services.get());
    QCOMPARE(KirvPluginManagerPrivate::instance, core->services.get());
    QCOMPARE(KirvSettingsManagerPrivate::settingsMgrPrivInstance, core->services.get());
}

Q_DECLARE_METATYPE(std::function<void()>)

/// Each operation on the account "id", which is logged in, beside the account "off", which is disabled. The log holds
/// the signals inside the operation, "returned", and what follows from the event loop; the server's calls come last.
void tst_HostServices::anOperationHasExactlyItsEffects_data()
{
    QTest::addColumn<std::function<void()>>("operation");
    QTest::addColumn<int>("commits");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("calls");
    const auto row = [](const char *name, const std::function<void()> &operation, int commits,
                        const QStringList &expected,
                        const QStringList &calls) { QTest::newRow(name) << operation << commits << expected << calls; };
    const auto account = [this] { return manager().getAccount("id", core->fake); };
    const auto presence = [this](const char *id) { return core->protocol->createPresenceWithId(id, "at lunch"); };
    const QStringList changed { "changed id", "returned" };
    const QStringList unchanged { "returned" };
    const QStringList reconnection { "changed id", "changed id", "changed id", "changed id" };

    row("createAccount", [this] { core->create("new"); }, 1, { "added new", "returned", "changed new", "changed new" },
        { "new log in available word of new" });
    row("createAccount, existing", [this] { core->create("id"); }, 0, unchanged, {});
    row("enableAccount", [this] { manager().enableAccount("off", core->fake); }, 1,
        { "changed off", "returned", "changed off", "changed off" }, { "off log in available word of off" });
    row("enableAccount, enabled", [this] { manager().enableAccount("id", core->fake); }, 0, unchanged, {});
    row("disableAccount", [this] { manager().disableAccount("id", core->fake); }, 1, changed + reconnection.mid(2),
        { "id log out" });
    row("disableAccount, disabled", [this] { manager().disableAccount("off", core->fake); }, 0, unchanged, {});
    row("removeAccount", [this] { manager().removeAccount("id", core->fake); }, 1,
        { "about to be removed id", "removed id Fake", "returned" }, { "id log out" });
    row("removeAccount, unknown", [this] { manager().removeAccount("nobody", core->fake); }, 0, unchanged, {});
    row("setMainAccount", [=] { manager().setMainAccount(account()); }, 0, unchanged, {});

    row("setAlias", [=] { account()->setAlias("new"); }, 1, changed, {});
    row("setPassword", [=] { account()->setPassword("new"); }, 1, changed + reconnection,
        { "id log out", "id log in available new" });
    row("setPassword, the same", [=] { account()->setPassword("word of id"); }, 0, unchanged, {});
    row("setRememberPassword", [=] { account()->setRememberPassword(false); }, 1, changed, {});
    row("setRestoreLastPresence", [=] { account()->setRestoreLastPresence(true); }, 1, changed, {});
    row("setRestoreLastDescription", [=] { account()->setRestoreLastDescription(true); }, 1, changed, {});
    row("setPresence", [=] { account()->setPresence(presence("away")); }, 1, changed, { "id presence away" });
    row("setPresence, off line", [=] { account()->setPresence(presence("offline")); }, 1, changed + reconnection.mid(2),
        { "id log out" });
    row("setAvatar", [=] { account()->setAvatar(core->makePicture()); }, 1, changed, { "id avatar" });
    row("setAvatar, no picture", [=] { account()->setAvatar("/nowhere"); }, 0, { "problem", "returned" }, {});
    row("setAccountSettings",
        [=] { account()->setAccountSettings({ KirvField::textEdit("", "server", "there", "") }); }, 1,
        changed + reconnection, { "id log out", "id log in available word of id" });

    row("accountPresenceChanged", [=] { core->protocol->accountPresenceChanged(account()); }, 0, unchanged, {});
    row("fetchPubdirInfo", [=] { core->protocol->fetchPubdirInfo(account()); }, 0,
        { "returned", "directory answered 1" }, { "id fetch" });
    row("publishPubdirInfo without a base",
        [=] { core->protocol->publishPubdirInfo(account(), core->protocol->directoryFields()); }, 0, unchanged, {});
    row("deletePubdirInfo", [=] { core->protocol->deletePubdirInfo(account()); }, 0,
        { "returned", "directory answered 1" }, { "id delete" });

    row("emitCoreSignal", [] { KirvPluginManagerPrivate::instance->emitCoreSignal("register_account", {}); }, 0,
        { "core signal register_account", "returned" }, {});
    row("writeGlobalSetting",
        [] {
            KirvSettingsManagerPrivate::settingsMgrPrivInstance->writeGlobalSetting(
                KirvField::textEdit("", "main_account", "id@@Fake", ""));
        },
        1, unchanged, {});
}

void tst_HostServices::anOperationHasExactlyItsEffects()
{
    QFETCH(std::function<void()>, operation);
    QFETCH(int, commits);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, calls);
    QVERIFY(core->create("id") && core->create("off"));
    core->account("off")->setEnabled(false);
    record();
    const int before = core->store.commitCount();
    operation();
    log << "returned";
    // Only a directory request that changes nothing stored goes out at once.
    const bool isRequest = calls == QStringList { "id fetch" } || calls == QStringList { "id delete" };
    QCOMPARE(core->server().calls, isRequest ? calls : QStringList());
    QCOMPARE(core->store.commitCount() - before, commits);
    QCOMPARE(core->takeCalls(), calls);
    QCOMPARE(takeLog(), expected);
    QCOMPARE(core->store.commitCount() - before, commits);
}

void tst_HostServices::aReadingOperationHasNoEffect_data()
{
    QTest::addColumn<std::function<void()>>("operation");
    const auto account = [this] { return manager().getAccount("id", core->fake); };
    const auto row = [](const char *name, const std::function<void()> &operation) { QTest::newRow(name) << operation; };
    row("getAccountsInfo", [this] { QCOMPARE(manager().getAccountsInfo(core->fake).size(), 2); });
    row("accountEnabled", [this] { QVERIFY(manager().accountEnabled("id", core->fake)); });
    row("getAccount", [=] { QVERIFY(account()); });
    row("loadAccount", [=] { QCOMPARE(manager().loadAccount("id", core->fake), account()); });
    row("getMainAccount", [] { QVERIFY(!manager().getMainAccount()); });
    row("getPassword", [=] { QCOMPARE(account()->getPassword(), QString("word of id")); });
    row("getDefaultPresence", [=] { QCOMPARE(account()->getDefaultPresence().getId(), QString("available")); });
    row("getAccountSettingsInOrder", [=] { QCOMPARE(account()->getAccountSettingsInOrder().size(), 5); });
    row("isLoggedIn", [=] { QVERIFY(account()->isLoggedIn()); });
    row("getAllPresences", [this] { QCOMPARE(core->protocol->getAllPresences().size(), 3); });
    row("getAccountSettings", [this] { QCOMPARE(core->protocol->getAccountSettings().size(), 5); });
    row("getPubdirAccountFields", [this] { QCOMPARE(core->protocol->getPubdirAccountFields().size(), 2); });
    row("getProtocolByName", [] { QVERIFY(KirvPluginManager::getInstance()->getProtocolByName("Loaded")); });
    row("readAccountGlobals", [this] {
        QCOMPARE(KirvSettingsManagerPrivate::settingsMgrPrivInstance->readAccountGlobals("id", core->fake).size(), 5);
    });
    row("getCurrentRosterThemeDir",
        [] { QVERIFY(!KirvSettingsManager::getInstance()->getCurrentRosterThemeDir().isEmpty()); });
}

void tst_HostServices::aReadingOperationHasNoEffect()
{
    QFETCH(std::function<void()>, operation);
    QVERIFY(core->create("id") && core->create("other"));
    record();
    const int commits = core->store.commitCount();
    operation();
    QCOMPARE(core->takeCalls(), QStringList());
    QCOMPARE(takeLog(), QStringList());
    QCOMPARE(core->store.commitCount(), commits);
}

void tst_HostServices::gettersGiveWhatIsStored()
{
    KirvAccountConnection *account = core->create("id");
    core->settle();
    QCOMPARE(account->getUid(), QString("id"));
    QCOMPARE(account->getProtocolName(), core->fake);
    QCOMPARE(account->getProtocol(), core->protocol.get());
    QCOMPARE(account->getAlias(), QString("Alias of id"));
    QCOMPARE(account->getPassword(), QString("word of id"));
    QCOMPARE(account->getDefaultPresence().getDisplay(), QString("Available"));
    QCOMPARE(account->getCurrentAvatarPath(), QString());
    QCOMPARE(core->valuesOf(account), QStringList({ "Read me", "localhost", "5222", "+", "" }));
    QVERIFY(account->isEnabled() && account->isLoggedIn());
    core->connection()->serverGoes();
    QVERIFY(account->isEnabled() && !account->isLoggedIn());
}

void tst_HostServices::settersAreReadBackInThisRunAndTheNext()
{
    QVERIFY(core->create("id"));
    core->changeEverything(core->account());
    for (int run = 0; run < 2; ++run) {
        KirvAccountConnection *account = manager().getAccount("id", core->fake);
        QCOMPARE(account->getAlias(), QString("new"));
        QCOMPARE(account->getPassword(), QString("new"));
        QCOMPARE(account->getDefaultPresence().getId(), QString("away"));
        QCOMPARE(account->getDefaultPresence().getDescription(), QString("new"));
        QVERIFY(QFile::exists(account->getCurrentAvatarPath()));
        QCOMPARE(core->valuesOf(account).at(1), QString("new"));
        QCOMPARE(core->account()->presence().getId(), QString("away"));
        core->restart();
    }
}

void tst_HostServices::theMainAccountIsAssignedAndNothingElse()
{
    QVERIFY(core->create("id"));
    QVERIFY(!manager().getMainAccount());
    record();
    const int commits = core->store.commitCount();
    manager().setMainAccount(core->account());
    QCOMPARE(manager().getMainAccount(), core->account());
    QCOMPARE(KirvAccountManagerPrivate::ampInstance->mainAccount, core->account());
    QCOMPARE(core->store.commitCount(), commits);
    QCOMPARE(takeLog(), QStringList());
    manager().setMainAccount(nullptr);
    QVERIFY(!manager().getMainAccount());
}

void tst_HostServices::theMainAccountGoesWithItsAccount()
{
    QVERIFY(core->create("id") && core->create("other"));
    manager().setMainAccount(core->account());
    manager().removeAccount("other", core->fake);
    QCOMPARE(manager().getMainAccount(), core->account());
    manager().removeAccount("id", core->fake);
    QVERIFY(!manager().getMainAccount());
}

void tst_HostServices::theMainAccountIsRestored_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("id");
    QTest::newRow("an account") << "id@@Fake"
                                << "id";
    QTest::newRow("an id with the separator in it") << "odd@@id@@Fake"
                                                    << "odd@@id";
    QTest::newRow("removed") << "gone@@Fake"
                             << "id";
    QTest::newRow("another protocol") << "id@@Other"
                                      << "id";
    QTest::newRow("no separator") << "odd"
                                  << "id";
    QTest::newRow("none") << ""
                          << "id";
}

void tst_HostServices::theMainAccountIsRestored()
{
    QFETCH(QString, setting);
    QFETCH(QString, id);
    QVERIFY(core->create("id") && core->create("odd@@id"));
    QVERIFY(core->store.writeSetting(KirvSettingKey::mainAccount, setting));
    core->restart(true, [this] { core->services->mainAccountRule.restore(); });
    QCOMPARE(manager().getMainAccount(), core->account(id));
}

void tst_HostServices::protocolsAreFoundByTheirName()
{
    KirvPluginManager *plugins = KirvPluginManager::getInstance();
    KirvProtocolBase *loaded = core->plugins->protocol("Loaded");
    QVERIFY(loaded);
    QCOMPARE(plugins->getProtocolByName("Loaded"), static_cast<KirvProtocol *>(loaded));
    QVERIFY(!plugins->getProtocolByName("loaded"));
    QVERIFY(!plugins->getProtocolByName(QString()));
}

void tst_HostServices::coreSignalsReachEveryProtocolAndTheClient()
{
    auto *other = new KirvFakeProtocol(QStringLiteral("Other"));
    QVERIFY(core->plugins->addProtocol(other));
    record();
    KirvPluginManagerPrivate::instance->emitCoreSignal("register_account", {});
    KirvPluginManagerPrivate::instance->emitCoreSignal("go", { KirvArg(1), KirvArg(2) });
    QCOMPARE(other->coreSignals, QStringList({ "register_account 0", "go 2" }));
    QCOMPARE(static_cast<KirvFakeProtocol *>(core->plugins->protocol("Loaded"))->coreSignals, other->coreSignals);
    QCOMPARE(takeLog(), QStringList({ "core signal register_account", "core signal go" }));
}

void tst_HostServices::aRefusedGlobalSettingIsReported()
{
    record();
    core->store.close();
    KirvSettingsManagerPrivate::settingsMgrPrivInstance->writeGlobalSetting(
        KirvField::textEdit("", "main_account", "id@@Fake", ""));
    QCOMPARE(takeLog(), QStringList { "write failed" });
}

void tst_HostServices::anUnknownAccountHasNoGlobals()
{
    QVERIFY(KirvSettingsManagerPrivate::settingsMgrPrivInstance->readAccountGlobals("id", core->fake).isEmpty());
}

QTEST_GUILESS_MAIN(tst_HostServices)
#include "tst_host_services.moc"

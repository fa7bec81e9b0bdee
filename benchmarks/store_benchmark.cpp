// SPDX-License-Identifier: LGPL-2.1-or-later
// What a change of one account costs in a profile of few and of many accounts: milliseconds until the operation
// returns, which is when it is safe on the disk, and transactions. Then what opening a profile costs, with the check of
// every row.
#include "benchmarks/measurement.h"
#include "protocols/example/kirv_example_protocol.h"

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <map>

namespace {

const int repetitions = 50;

QString accountId(int number)
{
    return QStringLiteral("user%1").arg(number, 6, 10, QLatin1Char('0'));
}

/// The client's core over a profile with accounts that are all disabled, so that none of them logs in.
class Core {
public:
    Core(const QString &folder, int accountCount)
        : accountCount(accountCount)
    {
        if (!store.open(folder) || !addAccounts())
            qFatal("The profile cannot be made: %s", qPrintable(store.lastError()));
        settings = std::make_unique<KirvClientSettings>(store);
        plugins = std::make_unique<KirvPluginLoader>();
        accounts = std::make_unique<KirvAccountCollection>(store);
        auto *example = new KirvExampleProtocol;
        protocol = example;
        plugins->addProtocol(example);
        accounts->protocolLoaded(example);
        services = std::make_unique<KirvHostServices>(*accounts, *plugins, *settings);
    }

    int commitCount() const { return store.commitCount(); }

    KirvProtocol *protocol = nullptr;

private:
    bool addAccounts()
    {
        bool good = store.begin();
        for (int i = 0; good && i < accountCount; ++i) {
            KirvAccountRecord account;
            account.key = { accountId(i), KirvExampleProtocol().getName() };
            account.alias = account.key.id;
            account.enabled = false;
            good = store.insertAccount(account);
        }
        return good && store.commit();
    }

    int accountCount;
    KirvStore store;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvPluginLoader> plugins;
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvHostServices> services;
};

/// An account with secrets, as the store keeps it.
KirvAccountRecord accountWithSecrets(int number)
{
    KirvAccountRecord account;
    account.key = { accountId(number), QStringLiteral("XMPP") };
    account.alias = account.key.id;
    account.rememberPassword = true;
    account.password = QStringLiteral("password %1").arg(number);
    account.settings = { { "server", "talk.example.org" }, { "port", "5222" }, { "encrypted", "true" } };
    return account;
}

/// Milliseconds until the profile is open, until its accounts are read, and until it is open when a copy is to be kept.
struct OpeningCost {
    double opened = 0;
    double read = 0;
    double openedWithCopy = 0;
    double passwordChanged = 0;
};

OpeningCost measureOpening(const QString &folder, int accountCount)
{
    const QTemporaryDir home(folder + QStringLiteral("/profile-XXXXXX"));
    const QString profile = home.filePath(QStringLiteral("profile"));
    OpeningCost cost;
    KirvStore store;
    bool good = store.open(profile) && store.begin();
    for (int number = 0; good && number < accountCount; ++number)
        good = store.insertAccount(accountWithSecrets(number));
    good = good && store.commit();
    KirvAccountRecord changed = accountWithSecrets(accountCount / 2);
    changed.password = QStringLiteral("another password");
    cost.passwordChanged = millisecondsOf([&] { good = good && store.updateAccount(changed); });
    store.close();
    QVector<double> opened, read;
    for (int round = 0; round < 5; ++round) {
        opened.append(millisecondsOf([&] { good = good && store.open(profile); }));
        read.append(millisecondsOf([&] { good = good && store.readAccounts().size() == accountCount; }));
        store.close();
    }
    QDir(profile + QStringLiteral("/copies")).removeRecursively();
    cost.openedWithCopy = millisecondsOf([&] { good = good && store.open(profile); });
    if (!good)
        qFatal("The profile cannot be used: %s", qPrintable(store.lastError()));
    cost.opened = median(opened);
    cost.read = median(read);
    return cost;
}

void reportOpenings(const QString &folder, const QStringList &numbers)
{
    Table table({ QStringLiteral("accounts"), QStringLiteral("open"), QStringLiteral("read all"),
                  QStringLiteral("open and copy"), QStringLiteral("another password") });
    for (const QString &number : numbers) {
        const OpeningCost cost = measureOpening(folder, number.toInt());
        table.addRow({ number, formatMilliseconds(cost.opened), formatMilliseconds(cost.read),
                       formatMilliseconds(cost.openedWithCopy), formatMilliseconds(cost.passwordChanged) });
    }
    table.print(QStringLiteral("Opening a profile, every row checked (ms)"));
}

/// The medians of one operation.
struct Cost {
    double milliseconds = 0;
    double commits = 0;
};

Cost measure(const Core &core, const std::function<void(int)> &operation)
{
    QVector<double> milliseconds;
    QVector<double> commits;
    for (int i = 0; i < repetitions; ++i) {
        const int before = core.commitCount();
        milliseconds.append(millisecondsOf([&] { operation(i); }));
        commits.append(core.commitCount() - before);
    }
    return { median(milliseconds), median(commits) };
}

const QStringList operationNames { QStringLiteral("add"), QStringLiteral("enable"), QStringLiteral("disable"),
                                   QStringLiteral("alias change"), QStringLiteral("removal") };

QVector<Cost> measureAll(const QString &folder, int accountCount)
{
    QTemporaryDir profile(folder + QStringLiteral("/profile-XXXXXX"));
    Core core(profile.path(), accountCount);
    KirvAccountManager *manager = KirvAccountManager::getInstance();
    const QString protocolName = core.protocol->getName();
    const auto newId = [](int i) { return QStringLiteral("new%1").arg(i); };
    const auto newAccount = [&](int i) { return manager->getAccount(newId(i), protocolName); };

    QVector<Cost> costs;
    costs.append(measure(core, [&](int i) {
        manager->createAccount(newId(i), newId(i), QStringLiteral("secret"), true, core.protocol,
                               core.protocol->createPresenceWithId(QStringLiteral("offline"), QString()),
                               core.protocol->getAccountSettings());
    }));
    for (int i = 0; i < repetitions; ++i) {
        if (!newAccount(i))
            qFatal("Account %d was not created", i);
        manager->disableAccount(newId(i), protocolName);
    }
    costs.append(measure(core, [&](int i) { manager->enableAccount(newId(i), protocolName); }));
    costs.append(measure(core, [&](int i) { manager->disableAccount(newId(i), protocolName); }));
    costs.append(measure(core, [&](int i) { newAccount(i)->setAlias(QStringLiteral("Renamed")); }));
    costs.append(measure(core, [&](int i) { manager->removeAccount(newId(i), protocolName); }));
    return costs;
}

void report(const std::map<int, QVector<Cost>> &results)
{
    Table table(
        { QStringLiteral("operation"), QStringLiteral("accounts"), QStringLiteral("ms"), QStringLiteral("commits") });
    for (int operation = 0; operation < operationNames.size(); ++operation) {
        for (const auto &[accountCount, costs] : results) {
            const Cost &cost = costs.at(operation);
            table.addRow({ operationNames.at(operation), QString::number(accountCount),
                           formatMilliseconds(cost.milliseconds), QString::number(cost.commits) });
        }
    }
    table.print(QStringLiteral("One change in the store (medians of %1)").arg(repetitions));
}

Panel panelOf(const std::map<int, QVector<Cost>> &results)
{
    Panel panel { QStringLiteral("one change"), {} };
    for (int operation = 0; operation < operationNames.size(); ++operation) {
        Series series { operationNames.at(operation), {}, {} };
        for (const auto &[accountCount, costs] : results) {
            series.x.append(accountCount);
            series.y.append(costs.at(operation).milliseconds);
        }
        panel.series.append(series);
    }
    return panel;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures changes of one account in the client's store."));
    parser.addHelpOption();
    addProfileOptions(&parser, "10,100,1000,10000");
    parser.addOption({ QStringLiteral("openings"),
                       QStringLiteral("The numbers of accounts of the profiles that are opened, separated by commas."),
                       QStringLiteral("numbers"), QStringLiteral("10,1000,100000") });
    parser.addOption(
        { QStringLiteral("plot"), QStringLiteral("Draws the results into <file>."), QStringLiteral("file") });
    parser.process(application);

    std::map<int, QVector<Cost>> results;
    for (const QString &number : parser.value(QStringLiteral("accounts")).split(QLatin1Char(',')))
        results[number.toInt()] = measureAll(parser.value(QStringLiteral("folder")), number.toInt());

    report(results);
    reportOpenings(parser.value(QStringLiteral("folder")),
                   parser.value(QStringLiteral("openings")).split(QLatin1Char(',')));
    const QString file = parser.value(QStringLiteral("plot"));
    if (!file.isEmpty()
        && !plot(file, QStringLiteral("One change in the store"), QStringLiteral("milliseconds (median) over accounts"),
                 { panelOf(results) })) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
        return 1;
    }
    return 0;
}

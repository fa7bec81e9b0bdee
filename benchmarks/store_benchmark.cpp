// SPDX-License-Identifier: LGPL-2.1-or-later
// What a change of one account costs in a profile of few and of many accounts: milliseconds until the operation
// returns, which is when it is safe on the disk, and transactions. And what it costs to open such a profile.
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
const int openings = 11;

QString accountId(int number)
{
    return QStringLiteral("user%1").arg(number, 6, 10, QLatin1Char('0'));
}

/// Adds accounts that are all disabled, so that none of them logs in.
bool addAccounts(KirvStore &store, int accountCount)
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

/// The client's core over a new profile with accounts.
class Core {
public:
    Core(const QString &folder, int accountCount)
    {
        if (!store.open(folder) || !addAccounts(store, accountCount))
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
    KirvStore store;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvPluginLoader> plugins;
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvHostServices> services;
};

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

/// The medians of one opening.
struct Opening {
    double open = 0; ///< the store
    double read = 0; ///< all accounts of it
    double load = 0; ///< a connection for each of them
};

Opening measureOpening(const QString &folder, int accountCount)
{
    QTemporaryDir profile(folder + QStringLiteral("/profile-XXXXXX"));
    {
        KirvStore store;
        if (!store.open(profile.path()) || !addAccounts(store, accountCount))
            qFatal("The profile cannot be made: %s", qPrintable(store.lastError()));
    }
    QVector<double> open, read, load;
    for (int i = 0; i < openings; ++i) {
        KirvStore store;
        open.append(millisecondsOf([&] { store.open(profile.path()); }));
        std::unique_ptr<KirvAccountCollection> accounts;
        read.append(millisecondsOf([&] { accounts = std::make_unique<KirvAccountCollection>(store); }));
        KirvExampleProtocol protocol;
        load.append(millisecondsOf([&] { accounts->protocolLoaded(&protocol); }));
        if (accounts->accounts().size() != accountCount)
            qFatal("The profile has lost accounts");
        accounts.reset();
    }
    return { median(open), median(read), median(load) };
}

void report(const std::map<int, Opening> &results)
{
    Table table({ QStringLiteral("accounts"), QStringLiteral("open ms"), QStringLiteral("read ms"),
                  QStringLiteral("load ms") });
    for (const auto &[accountCount, opening] : results) {
        table.addRow({ QString::number(accountCount), formatMilliseconds(opening.open),
                       formatMilliseconds(opening.read), formatMilliseconds(opening.load) });
    }
    table.print(QStringLiteral("Opening a profile (medians of %1)").arg(openings));
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
    parser.setApplicationDescription(QStringLiteral("Measures the client's store."));
    parser.addHelpOption();
    parser.addOption({ QStringLiteral("folder"), QStringLiteral("Makes the profiles in <folder>."),
                       QStringLiteral("folder"), QDir::tempPath() });
    parser.addOption({ QStringLiteral("accounts"), QStringLiteral("The numbers of accounts, separated by commas."),
                       QStringLiteral("numbers"), QStringLiteral("10,100,1000,10000") });
    parser.addOption(
        { QStringLiteral("plot"), QStringLiteral("Draws the results into <file>."), QStringLiteral("file") });
    parser.process(application);

    std::map<int, QVector<Cost>> results;
    std::map<int, Opening> openingResults;
    const QString folder = parser.value(QStringLiteral("folder"));
    for (const QString &number : parser.value(QStringLiteral("accounts")).split(QLatin1Char(','))) {
        results[number.toInt()] = measureAll(folder, number.toInt());
        openingResults[number.toInt()] = measureOpening(folder, number.toInt());
    }
    report(results);
    report(openingResults);
    const QString file = parser.value(QStringLiteral("plot"));
    if (!file.isEmpty()
        && !plot(file, QStringLiteral("One change in the store"), QStringLiteral("milliseconds (median) over accounts"),
                 { panelOf(results) })) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
        return 1;
    }
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// Several accounts are changed in one change of the store, and what follows takes turns.
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_main_account.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

class tst_ChangingSeveral : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aTurnOfTheEventLoopServesAFewAccounts_data();
    void aTurnOfTheEventLoopServesAFewAccounts();
    void noSlotFindsAPartChanged();
    void onlyThoseThatDifferAreChanged();
    void refusedChangeEmitsOneProblem();
    void disabledAccountsThatWaitForATurnDoNotLogIn();
    void removedAccountsThatWaitForATurnDoNotLogIn();
    void anAccountChangedMeanwhileIsAsItWasChangedLast();
    void aSlotMayInterfere_data();
    void aSlotMayInterfere();
    void disablingSeveralIsOneStepToUndo();
    void enabledAgainWithTheirPresences();

    void severalArePlaced_data();
    void severalArePlaced();
    void placingSeveralIsOneChangeOfTheStore();
    void refusedPlacingMovesNone();

private:
    static QString id(int number) { return QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0')); }
    void create(int count);
    QList<KirvAccount *> accounts(const QStringList &ids) const;
    QStringList stored(bool enabled);
    bool areAll(bool online) const;

    std::unique_ptr<KirvAccountsFixture> core;
};

void tst_ChangingSeveral::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    core->services->mainAccountRule.restore();
}

void tst_ChangingSeveral::cleanup()
{
    core.reset();
}

void tst_ChangingSeveral::create(int count)
{
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(id(number)));
    KIRV_TRY(areAll(true));
    core->settle();
    core->server().takeCalls();
}

QList<KirvAccount *> tst_ChangingSeveral::accounts(const QStringList &ids) const
{
    QList<KirvAccount *> found;
    for (const QString &one : ids)
        found << core->account(one);
    return found;
}

QStringList tst_ChangingSeveral::stored(bool enabled)
{
    QStringList ids;
    const QList<KirvAccountRecord> records = core->store.readAccounts();
    for (const KirvAccountRecord &record : records) {
        if (record.enabled == enabled)
            ids << record.key.id;
    }
    return ids;
}

bool tst_ChangingSeveral::areAll(bool online) const
{
    const QList<KirvAccount *> all = core->accounts->accounts();
    return std::all_of(all.begin(), all.end(), [online](const KirvAccount *account) {
        const KirvConnection::State state = account->connection()->state();
        return online ? account->isOnline() : state == KirvConnection::Offline;
    });
}

void tst_ChangingSeveral::aTurnOfTheEventLoopServesAFewAccounts_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("disable") << false;
    QTest::newRow("enable") << true;
}

/// In a turn as many are served as follow the change, and as have followed it before.
void tst_ChangingSeveral::aTurnOfTheEventLoopServesAFewAccounts()
{
    QFETCH(bool, enabled);
    const int count = 10 * KirvAccountCollection::accountsPerTurn;
    create(count);
    if (enabled) {
        QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), false));
        KIRV_TRY(areAll(false));
        core->settle();
    }
    QSet<KirvAccount *> changed, changedInTurn;
    int most = 0;
    connect(core->accounts.get(), &KirvAccountCollection::accountChanged, this, [&](KirvAccount *account) {
        changed << account;
        changedInTurn << account;
    });
    QTimer turns; // times out once in each
    connect(&turns, &QTimer::timeout, this, [&] { most = qMax(most, int(std::exchange(changedInTurn, {}).size())); });
    turns.start(0);
    QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), enabled));
    QVERIFY(changed.isEmpty());
    KIRV_TRY(areAll(enabled));
    QCOMPARE(int(changed.size()), count);
    QVERIFY2(most > 0 && most <= 3 * KirvAccountCollection::accountsPerTurn, QByteArray::number(most).constData());
    core->accounts->disconnect(this);
}

void tst_ChangingSeveral::noSlotFindsAPartChanged()
{
    create(3);
    int emitted = 0;
    connect(core->accounts.get(), &KirvAccountCollection::enabledChanged, this,
            [&](const QList<KirvAccountKey> &changed) {
                ++emitted;
                QCOMPARE(int(changed.size()), 3);
                QCOMPARE(int(stored(false).size()), 3);
                for (const KirvAccount *account : core->accounts->accounts())
                    QVERIFY(!account->record().enabled && !account->isOnline());
                QVERIFY(!core->services->mainAccountRule.account());
            });
    QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), false));
    QCOMPARE(emitted, 1);
    core->accounts->disconnect(this);
    for (const KirvAccountInfo *info : core->accounts->descriptionsOf(core->fake))
        QVERIFY(!info->isEnabled());
}

void tst_ChangingSeveral::onlyThoseThatDifferAreChanged()
{
    create(3);
    QVERIFY(core->account(id(1))->setEnabled(false));
    core->settle();
    core->server().takeCalls();
    const QSignalSpy begins(core->accounts.get(), &KirvAccountCollection::disablingBegins);
    QList<QList<KirvAccountKey>> changed;
    connect(core->accounts.get(), &KirvAccountCollection::enabledChanged, this,
            [&changed](const QList<KirvAccountKey> &keys) { changed << keys; });
    const int commits = core->store.commitCount();
    QVERIFY(core->accounts->setEnabled(accounts({ id(1) }), false));
    QVERIFY(core->accounts->setEnabled(accounts({ id(2) }), true));
    QVERIFY(core->accounts->setEnabled({}, true));
    QCOMPARE(core->store.commitCount(), commits);
    QCOMPARE(int(changed.size()), 0);
    QVERIFY(core->accounts->setEnabled(accounts({ id(1), id(2) }), false));
    core->accounts->disconnect(this);
    QCOMPARE(core->store.commitCount(), commits + 1);
    QCOMPARE(begins.size(), 1);
    QCOMPARE(changed, QList<QList<KirvAccountKey>> { { core->account(id(2))->key() } });
    for (int turn = 0; turn < 10; ++turn)
        core->settle();
    QCOMPARE(core->takeCalls(), QStringList { "002 log out" });
}

void tst_ChangingSeveral::refusedChangeEmitsOneProblem()
{
    create(3);
    const StoreRefusal refusal(core->store.folder(), QStringLiteral("OLD.id = '002'"));
    const QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
    const QSignalSpy changed(core->accounts.get(), &KirvAccountCollection::accountChanged);
    int several = 0;
    connect(core->accounts.get(), &KirvAccountCollection::enabledChanged, this, [&several] { ++several; });
    QVERIFY(!core->accounts->setEnabled(core->accounts->accounts(), false));
    QVERIFY(!core->accounts->lastError().isEmpty());
    core->settle();
    core->accounts->disconnect(this);
    QCOMPARE(problems.size(), 1);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(several, 0);
    QCOMPARE(stored(true), QStringList({ id(0), id(1), id(2) }));
    QVERIFY(areAll(true));
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_ChangingSeveral::disabledAccountsThatWaitForATurnDoNotLogIn()
{
    const int count = 3 * KirvAccountCollection::accountsPerTurn;
    create(count);
    core->server().logIn = KirvFakeServer::Holds;
    core->restart();
    KirvLoginQueue &queue = core->accounts->loginQueue();
    const int attempts = queue.limits().attempts;
    KIRV_TRY(queue.attemptCount() == attempts && queue.waitingCount() == count - attempts);
    core->server().takeCalls();
    QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), false));
    for (int number = 0; number < attempts; ++number)
        core->connection(id(number))->serverAccepts(); // makes room for others
    KIRV_TRY(areAll(false));
    QCOMPARE(core->server().takeCalls().filter(QStringLiteral(" log in")), QStringList());
    QCOMPARE(queue.waitingCount(), 0);
    core->server().logIn = KirvFakeServer::Accepts;
    QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), true));
    KIRV_TRY(areAll(true));
}

void tst_ChangingSeveral::removedAccountsThatWaitForATurnDoNotLogIn()
{
    const int count = 3 * KirvAccountCollection::accountsPerTurn;
    create(count);
    core->server().logIn = KirvFakeServer::Holds;
    core->restart();
    KirvLoginQueue &queue = core->accounts->loginQueue();
    const int attempts = queue.limits().attempts;
    KIRV_TRY(queue.attemptCount() == attempts && queue.waitingCount() == count - attempts);
    QList<QPointer<KirvFakeConnection>> connections;
    for (int number = 0; number < count; ++number)
        connections << core->connection(id(number));
    core->server().takeCalls();
    QVERIFY(core->accounts->remove(core->accounts->accounts()));
    for (int number = 0; number < attempts; ++number)
        connections.at(number)->serverAccepts(); // makes room for others
    KIRV_TRY(std::all_of(connections.cbegin(), connections.cend(), [](const auto &left) { return left.isNull(); }));
    QCOMPARE(core->server().takeCalls().filter(QStringLiteral(" log in")), QStringList());
    QCOMPARE(queue.waitingCount(), 0);
}

void tst_ChangingSeveral::anAccountChangedMeanwhileIsAsItWasChangedLast()
{
    create(4);
    QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), false));
    QVERIFY(core->account(id(0))->setEnabled(true));
    QVERIFY(core->accounts->setEnabled(accounts({ id(1) }), true));
    QVERIFY(core->accounts->remove(core->account(id(2))));
    for (int turn = 0; turn < 10; ++turn)
        core->settleAndDelete();
    QVERIFY(core->account(id(0))->isOnline() && core->account(id(1))->isOnline());
    QCOMPARE(core->connection(id(3))->state(), KirvConnection::Offline);
    QCOMPARE(stored(true), QStringList({ id(0), id(1) }));
}

void tst_ChangingSeveral::aSlotMayInterfere_data()
{
    QTest::addColumn<QString>("signal");
    QTest::addColumn<QString>("how");
    for (const char *signal : { "at once", "later" }) {
        for (const char *how : { "end", "remove", "unload" })
            QTest::addRow("%s: %s", signal, how) << QString::fromLatin1(signal) << QString::fromLatin1(how);
    }
}

void tst_ChangingSeveral::aSlotMayInterfere()
{
    QFETCH(QString, signal);
    QFETCH(QString, how);
    create(3);
    QObject context;
    bool isDone = false;
    const auto interfere = [&] {
        if (std::exchange(isDone, true))
            return;
        if (how == QLatin1String("end"))
            core->endCore();
        else if (how == QLatin1String("unload"))
            core->accounts->protocolAboutToBeUnloaded(core->fake);
        else
            QVERIFY(core->accounts->remove(core->accounts->accounts()));
    };
    if (signal == QLatin1String("later"))
        connect(core->accounts.get(), &KirvAccountCollection::accountChanged, &context, interfere);
    else
        connect(core->accounts.get(), &KirvAccountCollection::enabledChanged, &context, interfere);
    QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), false));
    for (int turn = 0; turn < 10; ++turn)
        core->settleAndDelete();
    QVERIFY(isDone);
    QCOMPARE(int(core->store.readAccounts().size()), how == QLatin1String("remove") ? 0 : 3);
}

void tst_ChangingSeveral::disablingSeveralIsOneStepToUndo()
{
    create(3);
    KirvAccountHistory history(*core->accounts, core->services->mainAccountRule);
    history.beginStep(KirvAccountHistory::Disabling);
    QVERIFY(core->accounts->setEnabled(accounts({ id(0), id(2) }), false));
    history.endStep();
    const int step = history.latest();
    QCOMPARE(history.namesOf(step), QStringList({ "Alias of 000", "Alias of 002" }));
    QCOMPARE(core->services->mainAccountRule.account(), core->account(id(1)));
    core->settle();
    QCOMPARE(history.latest(), step);
    QCOMPARE(history.undo(step), QStringList());
    core->settle();
    QCOMPARE(history.latest(), 0);
    QCOMPARE(stored(false), QStringList());
    QCOMPARE(core->services->mainAccountRule.account(), core->account(id(0)));
    KIRV_TRY(areAll(true));
}

void tst_ChangingSeveral::enabledAgainWithTheirPresences()
{
    create(3);
    core->setPresence(QStringLiteral("away"), id(1));
    core->setPresence(QStringLiteral("offline"), id(2));
    core->settle();
    QVERIFY(core->accounts->setEnabled(core->accounts->accounts(), false));
    core->settle();
    const int commits = core->store.commitCount();
    QVERIFY(core->accounts->enableAgain(accounts({ id(1), id(2) })));
    KIRV_TRY(core->account(id(1))->isOnline());
    core->settle();
    QCOMPARE(core->account(id(1))->presence().getId(), QStringLiteral("away"));
    QVERIFY(!core->account(id(2))->isOnline() && core->account(id(2))->isEnabled());
    QCOMPARE(core->store.commitCount(), commits + 2); // and the main account
}

void tst_ChangingSeveral::severalArePlaced_data()
{
    QTest::addColumn<QString>("placed");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("expected");
    QTest::newRow("to the start") << "003 001"
                                  << "000"
                                  << "003 001 000 002 004";
    QTest::newRow("down") << "000 001"
                          << "003"
                          << "002 000 001 003 004";
    QTest::newRow("from both sides") << "000 004"
                                     << "002"
                                     << "001 000 004 002 003";
    QTest::newRow("to the end") << "002 000"
                                << ""
                                << "001 003 004 002 000";
    QTest::newRow("all") << "004 003 002 001 000"
                         << ""
                         << "004 003 002 001 000";
    QTest::newRow("where they are") << "001 002"
                                    << "003"
                                    << "000 001 002 003 004";
    QTest::newRow("before one of them") << "001 002"
                                        << "002"
                                        << "000 001 002 003 004";
    QTest::newRow("none") << ""
                          << "002"
                          << "000 001 002 003 004";
}

/// Among them one of another protocol, which is not loaded.
void tst_ChangingSeveral::severalArePlaced()
{
    QFETCH(QString, placed);
    QFETCH(QString, next);
    QFETCH(QString, expected);
    for (int number = 0; number < 5; ++number) {
        KirvAccountRecord record;
        record.key = { id(number), number == 2 ? QStringLiteral("Other") : core->fake };
        QVERIFY(core->store.insertAccount(record));
    }
    core->restart(false);
    const auto find = [this](const QString &one) {
        return core->accounts->find({ one, one == id(2) ? QStringLiteral("Other") : core->fake });
    };
    QList<KirvAccount *> moved;
    for (const QString &one : placed.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        moved << find(one);
    QVERIFY(core->accounts->place(moved, next.isEmpty() ? nullptr : find(next)));
    QCOMPARE(core->order().join(QLatin1Char(' ')), expected);
    QStringList ofFake = core->order();
    ofFake.removeAll(id(2));
    QCOMPARE(KirvAccountsFixture::idsOf(core->fake), ofFake);
    QCOMPARE(core->accounts->accountsOf(core->fake), accounts(ofFake));
    QCOMPARE(int(core->accounts->accountsOf(QStringLiteral("Other")).size()), 1);
    core->restart(false);
    QCOMPARE(core->order().join(QLatin1Char(' ')), expected);
}

void tst_ChangingSeveral::placingSeveralIsOneChangeOfTheStore()
{
    create(5);
    int moved = 0;
    connect(core->accounts.get(), &KirvAccountCollection::orderChanged, this, [&moved] { ++moved; });
    const int commits = core->store.commitCount();
    QVERIFY(core->accounts->place(accounts({ id(3), id(4) }), core->account(id(1))));
    QCOMPARE(core->store.commitCount(), commits + 1);
    QCOMPARE(moved, 1);
    QVERIFY(core->accounts->place(accounts({ id(3), id(4) }), core->account(id(1))));
    core->accounts->disconnect(this);
    QCOMPARE(core->store.commitCount(), commits + 1);
    QCOMPARE(moved, 1);
}

void tst_ChangingSeveral::refusedPlacingMovesNone()
{
    create(5);
    const StoreRefusal refusal(core->store.folder(), QStringLiteral("OLD.id = '004'"));
    int moved = 0;
    connect(core->accounts.get(), &KirvAccountCollection::orderChanged, this, [&moved] { ++moved; });
    const QSignalSpy problems(core->accounts.get(), &KirvAccountCollection::problemOccurred);
    QVERIFY(!core->accounts->place(accounts({ id(3), id(4) }), core->account(id(1))));
    QCOMPARE(core->order(), QStringList({ id(0), id(1), id(2), id(3), id(4) }));
    core->accounts->disconnect(this);
    QCOMPARE(moved, 0);
    QCOMPARE(problems.size(), 1);
    QStringList ids;
    for (const KirvAccountRecord &record : core->store.readAccounts())
        ids << record.key.id;
    QCOMPARE(ids, core->order());
}

QTEST_GUILESS_MAIN(tst_ChangingSeveral)
#include "tst_changing_several.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_main_account.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/store_refusal.h"

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");

} // namespace

/// What was removed or disabled comes back as it was.
class tst_AccountHistory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void removedAccountComesBackWithEverything();
    void passwordThatIsNotStoredComesBackInMemory();
    void removalClearsTheDiskAtOnce();
    void restoredAccountLogsInAgain();
    void restoredAccountWaitsForTheOldConnection();
    void restoredAccountStandsWhereItStood_data();
    void restoredAccountStandsWhereItStood();
    void severalComeBackInTheFormerOrder_data();
    void severalComeBackInTheFormerOrder();
    void stepsUndoneInAnyOrderGiveTheFormerOrder();
    void restoredAccountFollowsWhatWasMoved();
    void mainAccountComesBackAsMainAccount();
    void disabledAccountComesBackWithItsPresence();
    void disabledMainAccountIsMainAgain();
    void severalChangesAreOneStep();
    void enablingElsewhereEmptiesTheStep();
    void disablingWaitsForTheRemovalToBeUndone();
    void loginThatWasAddedAnewIsNotTouched();
    void removalStaysWhileTheLoginIsTakenAnew();
    void accountsThatCanComeBackDoSo();
    void stepThatCannotBeUndoneIsPassedOver();
    void accountOfAnUnloadedProtocolComesBack();
    void refusedChangeMakesNoStep();
    void refusedUndoLosesNothing_data();
    void refusedUndoLosesNothing();
    void oldestStepsAreDropped();
    void picturesAreBounded();
    void removingSeveralIsOneChangeOfTheStore();
    void refusedRemovalOfSeveralRemovesNone();

private:
    KirvMainAccount &mainAccount() const { return core->services->mainAccountRule; }
    void remove(const QString &id) { QVERIFY(core->accounts->remove(core->account(id))); }

    std::unique_ptr<KirvAccountsFixture> core;
    std::unique_ptr<KirvAccountHistory> history;
};

void tst_AccountHistory::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    history = core->createWithHistory({ ann, bob, cleo });
    QVERIFY(history);
}

void tst_AccountHistory::cleanup()
{
    history.reset();
    core.reset();
}

void tst_AccountHistory::removedAccountComesBackWithEverything()
{
    core->changeEverything(core->account(bob));
    core->settle();
    KirvAccountRecord before = core->account(bob)->record();
    QFile pictureBefore(core->account(bob)->avatarPath());
    QVERIFY(pictureBefore.open(QIODevice::ReadOnly));
    const QByteArray bytes = pictureBefore.readAll();
    QVERIFY(!bytes.isEmpty());
    const QString presence = core->account(bob)->presence().getId();
    remove(bob);
    core->settleAndDelete();
    QVERIFY(!pictureBefore.exists());
    QCOMPARE(history->undo(history->latest()), QStringList());
    core->settleAndDelete();

    KirvAccountRecord after = core->account(bob)->record();
    QFile pictureAfter(core->account(bob)->avatarPath());
    QVERIFY(pictureAfter.open(QIODevice::ReadOnly));
    QCOMPARE(pictureAfter.readAll(), bytes);
    before.avatar = after.avatar;
    for (KirvAccountRecord *record : { &before, &after }) // what the server holds is told by its reply
        record->settings.remove(KirvOwnSetting::avatarOnServer);
    QVERIFY(before == after);
    QCOMPARE(core->account(bob)->presence().getId(), presence);

    history.reset();
    core->restart();
    KirvAccountRecord stored = core->account(bob)->record();
    stored.settings.remove(KirvOwnSetting::avatarOnServer);
    QVERIFY(stored.isStoredLike(after));
}

void tst_AccountHistory::passwordThatIsNotStoredComesBackInMemory()
{
    core->account(bob)->setRememberPassword(false);
    core->account(bob)->setPassword(QStringLiteral("only known here"));
    remove(bob);
    QCOMPARE(history->undo(history->latest()), QStringList());
    QCOMPARE(core->account(bob)->getPassword(), QStringLiteral("only known here"));
    QVERIFY(!isTextInFiles("only known here", core->store.folder()));
}

void tst_AccountHistory::removalClearsTheDiskAtOnce()
{
    QVERIFY(isTextInFiles("word of bob", core->store.folder()));
    remove(bob);
    QVERIFY(!isTextInFiles("word of bob", core->store.folder()));
    QCOMPARE(history->undo(history->latest()), QStringList());
    QVERIFY(isTextInFiles("word of bob", core->store.folder()));
}

void tst_AccountHistory::restoredAccountLogsInAgain()
{
    core->takeCalls();
    remove(bob);
    core->settleAndDelete();
    QCOMPARE(core->takeCalls(), QStringList { "bob log out" });
    history->undo(history->latest());
    core->settleAndDelete();
    QCOMPARE(core->takeCalls(), QStringList { "bob log in available word of bob" });
    QVERIFY(core->account(bob)->isOnline());
}

/// One would end the other on a server that lets a login in once.
void tst_AccountHistory::restoredAccountWaitsForTheOldConnection()
{
    core->takeCalls();
    const QPointer<KirvFakeConnection> old = core->connection(bob);
    core->server().logOut = KirvFakeServer::Holds;
    remove(bob);
    history->undo(history->latest());
    core->settleAndDelete();
    QCOMPARE(core->takeCalls(), QStringList { "bob log out" });
    old->serverAccepts();
    core->settleAndDelete();
    QVERIFY(!old);
    QCOMPARE(core->takeCalls(), QStringList { "bob log in available word of bob" });
    QVERIFY(core->account(bob)->isOnline());
}

void tst_AccountHistory::restoredAccountStandsWhereItStood_data()
{
    QTest::addColumn<QStringList>("removed");
    QTest::newRow("first") << QStringList { ann };
    QTest::newRow("middle") << QStringList { bob };
    QTest::newRow("last") << QStringList { cleo };
    QTest::newRow("all") << QStringList { ann, bob, cleo };
    QTest::newRow("all from the end") << QStringList { cleo, bob, ann };
}

void tst_AccountHistory::restoredAccountStandsWhereItStood()
{
    QFETCH(QStringList, removed);
    for (const QString &id : removed)
        remove(id);
    QCOMPARE(core->order().size(), 3 - removed.size());
    while (history->latest())
        QCOMPARE(history->undo(history->latest()), QStringList());
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
    QCOMPARE(KirvAccountsFixture::idsOf(core->fake), QStringList({ ann, bob, cleo }));
    history.reset();
    core->restart();
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
}

void tst_AccountHistory::severalComeBackInTheFormerOrder_data()
{
    QTest::addColumn<QStringList>("removed");
    QTest::newRow("own order") << QStringList { ann, bob, cleo };
    QTest::newRow("main account last") << QStringList { bob, cleo, ann };
    QTest::newRow("from the end") << QStringList { cleo, bob, ann };
    QTest::newRow("mixed") << QStringList { cleo, ann, bob };
}

void tst_AccountHistory::severalComeBackInTheFormerOrder()
{
    QFETCH(QStringList, removed);
    for (const QString &id : { QStringLiteral("dora"), QStringLiteral("eve") })
        QVERIFY(core->create(id));
    const QStringList before = core->order();
    QList<KirvAccount *> accounts;
    for (const QString &id : removed)
        accounts << core->account(id);
    history->beginStep(KirvAccountHistory::Removal);
    QVERIFY(core->accounts->remove(accounts));
    history->endStep();
    QCOMPARE(int(core->order().size()), 2);
    QCOMPARE(history->undo(history->latest()), QStringList());
    QCOMPARE(core->order(), before);
    QCOMPARE(KirvAccountsFixture::idsOf(core->fake), before);
    QCOMPARE(mainAccount().account(), core->account(ann));
    history.reset();
    core->restart();
    QCOMPARE(core->order(), before);
}

void tst_AccountHistory::stepsUndoneInAnyOrderGiveTheFormerOrder()
{
    QVERIFY(core->create(QStringLiteral("dora")));
    const QStringList before = core->order();
    QList<int> steps;
    for (const QString &id : { cleo, bob, ann }) {
        remove(id);
        steps << history->latest();
    }
    for (int step : { steps.at(0), steps.at(2), steps.at(1) })
        QCOMPARE(history->undo(step), QStringList());
    QCOMPARE(core->order(), before);
}

/// Its place is beside the accounts that stayed, wherever they are now.
void tst_AccountHistory::restoredAccountFollowsWhatWasMoved()
{
    QVERIFY(core->create(QStringLiteral("dora")));
    remove(bob);
    QVERIFY(core->accounts->place(core->account(QStringLiteral("dora")), core->account(ann)));
    remove(cleo);
    QCOMPARE(core->order(), QStringList({ QStringLiteral("dora"), ann }));
    const int last = history->latest();
    QCOMPARE(history->undo(last - 1), QStringList());
    QCOMPARE(history->undo(last), QStringList());
    QCOMPARE(core->order(), QStringList({ QStringLiteral("dora"), ann, bob, cleo }));
}

void tst_AccountHistory::mainAccountComesBackAsMainAccount()
{
    QCOMPARE(mainAccount().account(), core->account(ann));
    remove(ann);
    QCOMPARE(mainAccount().account(), core->account(bob));
    history->undo(history->latest());
    QCOMPARE(mainAccount().account(), core->account(ann));
    QCOMPARE(core->settings->value("main_account"), QStringLiteral("ann@@Fake"));
    remove(bob);
    history->undo(history->latest());
    QCOMPARE(mainAccount().account(), core->account(ann));
}

void tst_AccountHistory::disabledAccountComesBackWithItsPresence()
{
    core->setPresence(QStringLiteral("away"), bob);
    core->settle();
    QVERIFY(core->account(bob)->setEnabled(false));
    core->settle();
    QVERIFY(!core->account(bob)->isOnline());
    QCOMPARE(history->kindOf(history->latest()), KirvAccountHistory::Disabling);
    core->takeCalls();
    QCOMPARE(history->undo(history->latest()), QStringList());
    core->settle();
    QVERIFY(core->account(bob)->isOnline());
    QCOMPARE(core->account(bob)->presence().getId(), QStringLiteral("away"));
    QCOMPARE(core->takeCalls(), QStringList { "bob log in away word of bob" });
    QCOMPARE(history->latest(), 0);
}

void tst_AccountHistory::disabledMainAccountIsMainAgain()
{
    QVERIFY(core->account(ann)->setEnabled(false));
    QCOMPARE(mainAccount().account(), core->account(bob));
    history->undo(history->latest());
    QCOMPARE(mainAccount().account(), core->account(ann));
}

void tst_AccountHistory::severalChangesAreOneStep()
{
    QVERIFY(core->account(cleo)->setEnabled(false));
    const int first = history->latest();
    history->beginStep(KirvAccountHistory::Disabling);
    for (const QString &id : { bob, ann, cleo })
        QVERIFY(core->account(id)->setEnabled(false));
    QCOMPARE(history->latest(), first);
    history->endStep();
    QCOMPARE(history->accountsOf(history->latest()),
             (QList<KirvAccountKey> { core->account(bob)->key(), core->account(ann)->key() }));
    history->undo(history->latest());
    QVERIFY(core->account(ann)->isEnabled());
    QVERIFY(core->account(bob)->isEnabled());
    QVERIFY(!core->account(cleo)->isEnabled());
    QCOMPARE(history->latest(), first);
}

void tst_AccountHistory::enablingElsewhereEmptiesTheStep()
{
    history->beginStep(KirvAccountHistory::Disabling);
    for (const QString &id : { ann, bob })
        QVERIFY(core->account(id)->setEnabled(false));
    history->endStep();
    const int step = history->latest();
    const QSignalSpy gone(history.get(), &KirvAccountHistory::stepGone);
    QVERIFY(core->account(bob)->setEnabled(true));
    QCOMPARE(history->accountsOf(step), QList<KirvAccountKey> { core->account(ann)->key() });
    QVERIFY(core->account(ann)->setEnabled(true));
    QVERIFY(!history->has(step));
    QCOMPARE(gone.size(), 1);
}

void tst_AccountHistory::disablingWaitsForTheRemovalToBeUndone()
{
    QVERIFY(core->account(bob)->setEnabled(false));
    const int disabling = history->latest();
    QVERIFY(history->canUndo(disabling));
    remove(bob);
    const int removal = history->latest();
    QVERIFY(!history->canUndo(disabling));
    QVERIFY(history->canUndo(removal));
    QCOMPARE(int(history->undo(disabling).size()), 1);
    QVERIFY(history->has(disabling));
    QVERIFY(!core->account(bob));
    QCOMPARE(history->undo(removal), QStringList());
    QVERIFY(!core->account(bob)->isEnabled());
    QVERIFY(history->canUndo(disabling));
    QCOMPARE(history->undo(disabling), QStringList());
    QVERIFY(core->account(bob)->isEnabled());
    QCOMPARE(history->latest(), 0);
}

void tst_AccountHistory::loginThatWasAddedAnewIsNotTouched()
{
    remove(bob);
    QVERIFY(core->create(bob));
    core->account(bob)->setAlias(QStringLiteral("the new one"));
    QCOMPARE(history->undo(history->latest()), QStringList { "The account \"bob\" (Fake) exists already." });
    QCOMPARE(core->account(bob)->getAlias(), QStringLiteral("the new one"));
    QCOMPARE(core->order(), QStringList({ ann, cleo, bob }));
}

/// What belonged to the removed one is nowhere else.
void tst_AccountHistory::removalStaysWhileTheLoginIsTakenAnew()
{
    core->changeEverything(core->account(bob));
    const KirvAccountRecord before = core->account(bob)->record();
    QVERIFY(!before.alias.isEmpty() && !before.password.isEmpty());
    QVERIFY(!core->account(bob)->avatarPath().isEmpty());
    remove(bob);
    const int removal = history->latest();
    QVERIFY(core->create(bob));
    core->account(bob)->setAlias(QStringLiteral("the new one"));
    QVERIFY(!history->canUndo(removal));
    QCOMPARE(int(history->undo(removal).size()), 1);
    QVERIFY(history->has(removal));
    remove(bob);
    const int removalOfNew = history->latest();
    QVERIFY(history->canUndo(removal));
    QCOMPARE(history->undo(removal), QStringList());
    QCOMPARE(core->account(bob)->getAlias(), before.alias);
    QCOMPARE(core->account(bob)->record().password, before.password);
    QVERIFY(!core->account(bob)->avatarPath().isEmpty());
    QVERIFY(!history->has(removal));
    QVERIFY(history->has(removalOfNew) && !history->canUndo(removalOfNew));
}

void tst_AccountHistory::accountsThatCanComeBackDoSo()
{
    history->beginStep(KirvAccountHistory::Removal);
    QVERIFY(core->accounts->remove({ core->account(ann), core->account(bob) }));
    history->endStep();
    const int step = history->latest();
    QVERIFY(core->create(bob));
    QVERIFY(history->canUndo(step));
    QCOMPARE(int(history->undo(step).size()), 1);
    QVERIFY(core->account(ann));
    QCOMPARE(history->namesOf(step), QStringList { "Alias of bob" });
    QVERIFY(!history->canUndo(step));
    remove(bob);
    QCOMPARE(history->undo(step), QStringList());
    QVERIFY(core->account(bob));
    QVERIFY(!history->has(step));
}

void tst_AccountHistory::stepThatCannotBeUndoneIsPassedOver()
{
    QVERIFY(core->account(bob)->setEnabled(false));
    remove(ann);
    const int removalOfAnn = history->latest();
    remove(bob);
    QCOMPARE(history->latestUndoable(), history->latest());
    QVERIFY(core->create(bob));
    QCOMPARE(history->latestUndoable(), removalOfAnn);
    QCOMPARE(history->undo(removalOfAnn), QStringList());
    // What was disabled was the account that is gone.
    QCOMPARE(history->latestUndoable(), 0);
    QVERIFY(history->latest() != 0);
    remove(bob);
    QCOMPARE(history->latestUndoable(), history->latest());
}

void tst_AccountHistory::accountOfAnUnloadedProtocolComesBack()
{
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    remove(bob);
    QCOMPARE(history->undo(history->latest()), QStringList());
    QVERIFY(core->account(bob));
    QVERIFY(!core->account(bob)->isLoaded());
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
}

void tst_AccountHistory::refusedChangeMakesNoStep()
{
    {
        const StoreRefusal refusal(core->store.folder(), QStringLiteral("1"), QStringLiteral("DELETE"));
        QVERIFY(!core->accounts->remove(core->account(bob)));
    }
    {
        const StoreRefusal refusal(core->store.folder());
        QVERIFY(!core->account(bob)->setEnabled(false));
    }
    core->account(bob)->setAlias(QStringLiteral("Robert"));
    QCOMPARE(history->latest(), 0);
}

void tst_AccountHistory::refusedUndoLosesNothing_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("table");
    QTest::newRow("account") << QStringLiteral("INSERT") << QStringLiteral("account");
    QTest::newRow("order") << QStringLiteral("UPDATE") << QStringLiteral("account");
    QTest::newRow("picture") << QStringLiteral("INSERT") << QStringLiteral("avatar_file");
}

void tst_AccountHistory::refusedUndoLosesNothing()
{
    QFETCH(QString, change);
    QFETCH(QString, table);
    QVERIFY(core->account(bob)->setAvatar(core->makePicture()));
    remove(bob);
    core->settleAndDelete();
    const int step = history->latest();
    {
        const StoreRefusal refusal(core->store.folder(), QStringLiteral("1"), change, table);
        const QStringList reasons = history->undo(step);
        QCOMPARE(int(reasons.size()), 1);
        QVERIFY(!reasons.first().isEmpty());
    }
    QVERIFY(!core->account(bob));
    QCOMPARE(history->latest(), step);
    QCOMPARE(history->undo(step), QStringList());
    QVERIFY(core->account(bob));
    QVERIFY(!core->account(bob)->avatarPath().isEmpty());
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
}

void tst_AccountHistory::oldestStepsAreDropped()
{
    QVERIFY(core->account(cleo)->setEnabled(false));
    const int first = history->latest();
    for (int i = 0; i < KirvAccountHistory::mostSteps; ++i) {
        QVERIFY(history->has(first));
        remove(bob);
        QVERIFY(core->create(bob));
    }
    QVERIFY(!history->has(first));
    QVERIFY(history->has(first + 1));
}

void tst_AccountHistory::picturesAreBounded()
{
    const QString large = core->home.filePath(QStringLiteral("large.bmp"));
    QImage image(1500, 2000, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(large));
    const qint64 bytes = QFileInfo(large).size() * 4 / 3;
    remove(cleo);
    const int first = history->latest();
    const int fitting = int(KirvAccountHistory::mostBytes / QFileInfo(large).size());
    QVERIFY2(fitting > 1 && fitting < KirvAccountHistory::mostSteps, qPrintable(QString::number(bytes)));
    for (int i = 0; i <= fitting; ++i) {
        QVERIFY(core->account(bob)->setAvatar(large));
        remove(bob);
        QVERIFY(core->create(bob));
    }
    QVERIFY(!history->has(first));
    QVERIFY(!history->has(first + 1));
    QVERIFY(history->has(first + 2));
}

void tst_AccountHistory::removingSeveralIsOneChangeOfTheStore()
{
    const int commits = core->store.commitCount();
    history->beginStep(KirvAccountHistory::Removal);
    QVERIFY(core->accounts->remove({ core->account(bob), core->account(cleo) }));
    history->endStep();
    QCOMPARE(core->store.commitCount(), commits + 1);
    QCOMPARE(core->order(), QStringList { ann });
    QCOMPARE(history->namesOf(history->latest()), QStringList({ "Alias of bob", "Alias of cleo" }));
    history->undo(history->latest());
    QCOMPARE(core->store.commitCount(), commits + 2);
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
    history.reset();
    core->restart();
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
}

void tst_AccountHistory::refusedRemovalOfSeveralRemovesNone()
{
    const StoreRefusal refusal(core->store.folder(), QStringLiteral("OLD.id = 'cleo'"), QStringLiteral("DELETE"));
    const QSignalSpy refused(core->accounts.get(), &KirvAccountCollection::removalRefused);
    QVERIFY(!core->accounts->remove({ core->account(bob), core->account(cleo) }));
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
    QCOMPARE(refused.size(), 2);
    QVERIFY(!core->accounts->lastError().isEmpty());
    QCOMPARE(int(core->store.readAccounts().size()), 3);
    QVERIFY(!core->account(bob)->isRemoved());
}

QTEST_GUILESS_MAIN(tst_AccountHistory)
#include "tst_account_history.moc"

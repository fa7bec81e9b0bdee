// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_directory.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/kirv_patience.h"

#include <QPointer>
#include <QtTest>

namespace {

using Outcome = KirvDirectoryAnswer::Outcome;

QList<KirvField> fields(const QString &name, const QString &town)
{
    return { KirvField::textEdit(QString(), QStringLiteral("name"), name, QString()),
             KirvField::textEdit(QString(), QStringLiteral("town"), town, QString()) };
}

/// Their texts.
QStringList texts(const QList<KirvField> &fields)
{
    QStringList texts;
    for (const KirvField &field : fields)
        texts << field.getText();
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(KirvField)

class tst_AccountDirectory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void changesAreWhatDiffersInItsValue_data();
    void changesAreWhatDiffersInItsValue();

    // Requests and their answers.
    void aFetchedEntryIsTheBase();
    void noEntryIsABaseOfBlankFields();
    void aFailedFetchLeavesNoBase_data();
    void aFailedFetchLeavesNoBase();
    void withoutABaseNothingIsPublished();
    void aLaterFetchMakesTheBaseUnknownUntilItsAnswer();
    void onlyChangedFieldsArePublished();
    void whatThePageDoesNotShowStays();
    void aPublicationWithoutChangesSendsNothing();
    void aPublishedEntryIsTheNextBase();
    void aFailedPublicationCanBeRepeated();
    void whatAFailedPublicationSentIsSentAgain();
    void onlyTheLatestAnswerIsEmitted();
    void anUnchangedPublicationDoesNotAnswerForALaterFetch();
    void deletingLeavesBlankFields();
    void aFailedDeletionLeavesNoBase();
    void forgettingTheBasePublishesNothing();

    // Saves.
    void aPublicationWaitsForTheCommit();
    void aPublicationOfARefusedSaveIsDropped();
    void aPublicationWaitsForTheReconnection();
    void aPublicationWaitsForALogInThatIsUnderWay();
    void aPublicationFailsWhenTheReconnectionDoes();
    void aPublicationOfADisabledAccountFails();
    void theLastPublicationOfASaveCounts();

    // Ends.
    void aRequestFailsWhenTheConnectionEnds();
    void requestsFailWhenTheProtocolIsUnloaded_data();
    void requestsFailWhenTheProtocolIsUnloaded();
    void theBaseIsUnknownAfterTheProtocolWasUnloaded();
    void aSlotMayUnloadTheProtocol_data();
    void aSlotMayUnloadTheProtocol();
    void failuresAndSuccessesAreThoseOfTheAccount();
    void requestsForOtherAccountsReachNobody();

private:
    KirvAccountDirectory &directory() { return core->account()->directory(); }
    KirvFakeServer &server() { return core->server(); }
    void fetchBase(const QString &name, const QString &town);
    KirvDirectoryAnswer takeAnswer();

    std::unique_ptr<KirvAccountsFixture> core;
    QList<KirvAccountDirectory::Operation> operations;
    QList<KirvDirectoryAnswer> answers;
};

void tst_AccountDirectory::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    core->bring(QStringLiteral("id"), KirvConnection::Online);
    operations.clear();
    answers.clear();
    connect(&directory(), &KirvAccountDirectory::answered, this,
            [this](KirvAccountDirectory::Operation operation, const KirvDirectoryAnswer &answer) {
                operations << operation;
                answers << answer;
            });
}

void tst_AccountDirectory::cleanup()
{
    core.reset();
}

/// Makes an entry with these values what was fetched last.
void tst_AccountDirectory::fetchBase(const QString &name, const QString &town)
{
    server().entries["id"] = fields(name, town);
    directory().fetch();
    core->settle();
    QCOMPARE(texts(directory().base()), QStringList({ name, town }));
    answers.clear();
    operations.clear();
    server().calls.clear();
}

/// The only answer since the last call, after the event loop ran; a failed one when there is none or more than one.
KirvDirectoryAnswer tst_AccountDirectory::takeAnswer()
{
    core->settle();
    const QList<KirvDirectoryAnswer> taken = std::exchange(answers, {});
    operations.clear();
    return taken.size() == 1 ? taken.first() : KirvDirectoryAnswer();
}

void tst_AccountDirectory::changesAreWhatDiffersInItsValue_data()
{
    QTest::addColumn<QList<KirvField>>("fields");
    QTest::addColumn<QStringList>("changed");
    const KirvField box = KirvField::checkBox("Public", "public", true, QString());
    QTest::newRow("nothing") << QList<KirvField>() << QStringList();
    QTest::newRow("the same") << fields("Ann", "Verona") << QStringList();
    QTest::newRow("one") << fields("Ann", "Padua") << QStringList { "town" };
    QTest::newRow("emptied") << fields("", "Verona") << QStringList { "name" };
    QTest::newRow("all") << fields("Bob", "Padua") << QStringList { "name", "town" };
    QTest::newRow("other appearance") << QList<KirvField> { KirvField::multiLine("Name", "name", "Ann", "Tip") }
                                      << QStringList();
    QTest::newRow("unknown") << QList<KirvField> { KirvField::textEdit("", "new", "", "") } << QStringList { "new" };
    QTest::newRow("box unticked") << QList<KirvField> { KirvField::checkBox("", "public", false, "") }
                                  << QStringList { "public" };
    QTest::newRow("box ticked") << QList<KirvField> { box } << QStringList();
}

void tst_AccountDirectory::changesAreWhatDiffersInItsValue()
{
    QFETCH(QList<KirvField>, fields);
    QFETCH(QStringList, changed);
    const QList<KirvField> base = ::fields("Ann", "Verona") << KirvField::checkBox("Public", "public", true, "");
    QStringList ids;
    for (const KirvField &field : KirvAccountDirectory::changes(fields, base))
        ids << field.getId();
    QCOMPARE(ids, changed);
}

void tst_AccountDirectory::aFetchedEntryIsTheBase()
{
    server().entries["id"] = fields("Ann", "Verona");
    QVERIFY(!directory().isKnown() && !directory().isBusy());
    core->protocol->fetchPubdirInfo(core->account());
    QVERIFY(directory().isBusy());
    QVERIFY(answers.isEmpty());
    core->settle();
    QCOMPARE(operations, QList<KirvAccountDirectory::Operation> { KirvAccountDirectory::Fetch });
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.outcome, Outcome::Data);
    QCOMPARE(answer.fields, fields("Ann", "Verona"));
    QVERIFY(directory().isKnown() && !directory().isBusy());
    QCOMPARE(directory().base(), answer.fields);
}

void tst_AccountDirectory::noEntryIsABaseOfBlankFields()
{
    directory().fetch();
    QCOMPARE(takeAnswer().outcome, Outcome::None);
    QVERIFY(directory().isKnown());
    QCOMPARE(directory().base(), core->protocol->directoryFields());
    directory().publish(fields("Ann", ""));
    QCOMPARE(core->takeCalls(), (QStringList { "id fetch", "id publish name" }));
}

void tst_AccountDirectory::aFailedFetchLeavesNoBase_data()
{
    QTest::addColumn<bool>("timesOut");
    QTest::newRow("refused") << false;
    QTest::newRow("time-out") << true;
}

void tst_AccountDirectory::aFailedFetchLeavesNoBase()
{
    QFETCH(bool, timesOut);
    fetchBase("Ann", "Verona");
    server().directory = timesOut ? KirvFakeServer::Holds : KirvFakeServer::Refuses;
    KirvConnection::Timing timing = core->connection()->timing();
    timing.requestTimeout = timesOut ? 20 : 60000;
    core->connection()->setTiming(timing);
    directory().fetch();
    KIRV_TRY_COMPARE(answers.size(), 1);
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.outcome, Outcome::Failed);
    QCOMPARE(answer.failure.kind(), timesOut ? KirvFailure::TimedOut : KirvFailure::RequestFailed);
    QVERIFY(!directory().isKnown() && !directory().isBusy());

    server().directory = KirvFakeServer::Accepts;
    directory().publish(fields("", ""));
    QCOMPARE(core->takeCalls(), QStringList { "id fetch" });
    QCOMPARE(server().entries.value("id"), fields("Ann", "Verona"));
}

void tst_AccountDirectory::withoutABaseNothingIsPublished()
{
    server().entries["id"] = fields("Ann", "Verona");
    core->protocol->publishPubdirInfo(core->account(), fields("", ""));
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(!directory().isBusy());
    QCOMPARE(server().entries.value("id"), fields("Ann", "Verona"));
    QVERIFY(answers.isEmpty());
}

void tst_AccountDirectory::aLaterFetchMakesTheBaseUnknownUntilItsAnswer()
{
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Holds;
    directory().fetch();
    QVERIFY(!directory().isKnown());
    directory().publish(fields("Bob", "Verona"));
    QCOMPARE(core->takeCalls(), QStringList { "id fetch" });
    core->connection()->serverAccepts();
    directory().publish(fields("Bob", "Verona"));
    QCOMPARE(core->takeCalls(), QStringList { "id publish name" });
}

void tst_AccountDirectory::onlyChangedFieldsArePublished()
{
    fetchBase("Ann", "Verona");
    core->protocol->publishPubdirInfo(core->account(), fields("Ann", "Padua"));
    QVERIFY(directory().isBusy());
    QCOMPARE(core->takeCalls(), QStringList { "id publish town" });
    QCOMPARE(operations, QList<KirvAccountDirectory::Operation> { KirvAccountDirectory::Publish });
    QCOMPARE(texts(takeAnswer().fields), QStringList({ "Ann", "Padua" }));
}

void tst_AccountDirectory::whatThePageDoesNotShowStays()
{
    fetchBase("Ann", "Verona");
    // Another client changes the name and adds a telephone meanwhile.
    server().entries["id"] = fields("Anna", "Verona") << KirvField::textEdit("", "telephone", "112", "");
    directory().publish(fields("Ann", "Padua"));
    QCOMPARE(texts(takeAnswer().fields), QStringList({ "Anna", "Padua", "112" }));
    QCOMPARE(texts(directory().base()), QStringList({ "Anna", "Padua", "112" }));
}

void tst_AccountDirectory::aPublicationWithoutChangesSendsNothing()
{
    fetchBase("Ann", "Verona");
    directory().publish(fields("Ann", "Verona"));
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.outcome, Outcome::Data);
    QCOMPARE(answer.fields, fields("Ann", "Verona"));
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(!directory().isBusy());
}

void tst_AccountDirectory::aPublishedEntryIsTheNextBase()
{
    fetchBase("Ann", "Verona");
    directory().publish(fields("Ann", "Padua"));
    QCOMPARE(takeAnswer().outcome, Outcome::Data);
    directory().publish(fields("Ann", "Padua"));
    QCOMPARE(takeAnswer().outcome, Outcome::Data);
    QCOMPARE(core->takeCalls(), QStringList { "id publish town" });
    directory().publish(fields("Ann", "Verona"));
    QCOMPARE(core->takeCalls(), QStringList { "id publish town" });
}

void tst_AccountDirectory::aFailedPublicationCanBeRepeated()
{
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Refuses;
    directory().publish(fields("Ann", "Padua"));
    QCOMPARE(takeAnswer().outcome, Outcome::Failed);
    QVERIFY(directory().isKnown() && !directory().isBusy());
    QCOMPARE(directory().base(), fields("Ann", "Verona"));
    server().directory = KirvFakeServer::Accepts;
    directory().publish(fields("Ann", "Padua"));
    QCOMPARE(texts(takeAnswer().fields), QStringList({ "Ann", "Padua" }));
    QCOMPARE(core->takeCalls(), (QStringList { "id publish town", "id publish town" }));
}

/// A publication that timed out may have reached the server: taking it back has to be published.
void tst_AccountDirectory::whatAFailedPublicationSentIsSentAgain()
{
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Refuses;
    directory().publish(fields("Ann", "Padua"));
    QCOMPARE(takeAnswer().outcome, Outcome::Failed);
    server().entries["id"] = fields("Ann", "Padua");
    server().directory = KirvFakeServer::Accepts;
    directory().publish(fields("Ann", "Verona"));
    QCOMPARE(texts(takeAnswer().fields), QStringList({ "Ann", "Verona" }));
    QCOMPARE(core->takeCalls(), (QStringList { "id publish town", "id publish town" }));
    directory().publish(fields("Bob", "Verona"));
    QCOMPARE(core->takeCalls(), QStringList { "id publish name" });
}

void tst_AccountDirectory::onlyTheLatestAnswerIsEmitted()
{
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Holds;
    directory().publish(fields("Ann", "Padua"));
    directory().publish(fields("Bob", "Padua"));
    QCOMPARE(core->takeCalls(), (QStringList { "id publish town", "id publish name,town" }));
    core->connection()->serverAccepts();
    QVERIFY(answers.isEmpty());
    QVERIFY(directory().isBusy());
    core->connection()->serverAccepts();
    QCOMPARE(texts(takeAnswer().fields), QStringList({ "Bob", "Padua" }));

    directory().fetch();
    directory().deleteEntry();
    core->connection()->serverAccepts();
    QVERIFY(answers.isEmpty());
    QVERIFY(!directory().isKnown());
    core->connection()->serverAccepts();
    QCOMPARE(takeAnswer().outcome, Outcome::None);
}

void tst_AccountDirectory::anUnchangedPublicationDoesNotAnswerForALaterFetch()
{
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Holds;
    core->account()->beginSave();
    directory().publish(fields("Ann", "Verona"));
    directory().fetch();
    QVERIFY(core->account()->endSave());
    core->settle();
    QVERIFY(answers.isEmpty());
    core->connection()->serverAccepts();
    QCOMPARE(operations, QList<KirvAccountDirectory::Operation> { KirvAccountDirectory::Fetch });
    QCOMPARE(takeAnswer().fields, fields("Ann", "Verona"));
}

void tst_AccountDirectory::deletingLeavesBlankFields()
{
    fetchBase("Ann", "Verona");
    core->protocol->deletePubdirInfo(core->account());
    QVERIFY(!directory().isKnown());
    QCOMPARE(takeAnswer().outcome, Outcome::None);
    QCOMPARE(core->takeCalls(), QStringList { "id delete" });
    QCOMPARE(directory().base(), core->protocol->directoryFields());
    QVERIFY(server().entries.value("id").isEmpty());
}

void tst_AccountDirectory::aFailedDeletionLeavesNoBase()
{
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Refuses;
    directory().deleteEntry();
    QCOMPARE(takeAnswer().outcome, Outcome::Failed);
    QVERIFY(!directory().isKnown());
}

void tst_AccountDirectory::forgettingTheBasePublishesNothing()
{
    fetchBase("Ann", "Verona");
    directory().forget();
    directory().publish(fields("Bob", "Padua"));
    QCOMPARE(core->takeCalls(), QStringList());
}

void tst_AccountDirectory::aPublicationWaitsForTheCommit()
{
    fetchBase("Ann", "Verona");
    KirvAccount *account = core->account();
    account->beginSave();
    core->protocol->publishPubdirInfo(account, fields("Bob", "Verona"));
    account->setAlias("new");
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(directory().isBusy());
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), QStringList { "id publish name" });
    QCOMPARE(takeAnswer().outcome, Outcome::Data);
    QVERIFY(!directory().isBusy());
}

void tst_AccountDirectory::aPublicationOfARefusedSaveIsDropped()
{
    fetchBase("Ann", "Verona");
    KirvAccount *account = core->account();
    core->setStoreFull(true);
    account->beginSave();
    directory().publish(fields("Bob", "Verona"));
    account->setAlias(core->storeFiller());
    QVERIFY(!account->endSave());
    core->setStoreFull(false);
    QVERIFY(!directory().isBusy());
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(answers.isEmpty());
    // The next save publishes what differs from the same base.
    account->beginSave();
    directory().publish(fields("Bob", "Verona"));
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), QStringList { "id publish name" });
}

void tst_AccountDirectory::aPublicationWaitsForTheReconnection()
{
    fetchBase("Ann", "Verona");
    KirvAccount *account = core->account();
    server().logIn = server().logOut = KirvFakeServer::Holds;
    account->beginSave();
    directory().publish(fields("Bob", "Verona"));
    account->setPassword("new");
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
    core->connection()->serverAccepts();
    QCOMPARE(core->takeCalls(), QStringList { "id log in available new" });
    QVERIFY(directory().isBusy() && answers.isEmpty());
    core->connection()->serverAccepts();
    QCOMPARE(core->takeCalls(), QStringList { "id publish name" });
    QCOMPARE(takeAnswer().outcome, Outcome::Data);
}

void tst_AccountDirectory::aPublicationWaitsForALogInThatIsUnderWay()
{
    fetchBase("Ann", "Verona");
    server().logIn = KirvFakeServer::Holds;
    core->account()->reconnect();
    core->takeCalls();
    directory().publish(fields("Bob", "Verona"));
    QCOMPARE(core->takeCalls(), QStringList());
    core->connection()->serverAccepts();
    QCOMPARE(core->takeCalls(), QStringList { "id publish name" });
}

void tst_AccountDirectory::aPublicationFailsWhenTheReconnectionDoes()
{
    fetchBase("Ann", "Verona");
    KirvAccount *account = core->account();
    server().logIn = KirvFakeServer::Refuses;
    account->beginSave();
    directory().publish(fields("Bob", "Verona"));
    account->setPassword("wrong");
    QVERIFY(account->endSave());
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(takeAnswer().outcome, Outcome::Failed);
    QCOMPARE(account->connection()->lastFailure().kind(), KirvFailure::WrongPassword);
    QVERIFY(!directory().isBusy());
    QVERIFY(directory().isKnown());
}

void tst_AccountDirectory::aPublicationOfADisabledAccountFails()
{
    fetchBase("Ann", "Verona");
    KirvAccount *account = core->account();
    account->beginSave();
    directory().publish(fields("Bob", "Verona"));
    account->setEnabled(false);
    QVERIFY(account->endSave());
    KIRV_TRY_COMPARE(answers.size(), 1);
    QCOMPARE(takeAnswer().outcome, Outcome::Failed);
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
}

void tst_AccountDirectory::theLastPublicationOfASaveCounts()
{
    fetchBase("Ann", "Verona");
    KirvAccount *account = core->account();
    account->beginSave();
    directory().publish(fields("Bob", "Verona"));
    directory().publish(fields("Ann", "Padua"));
    QVERIFY(account->endSave());
    QCOMPARE(core->takeCalls(), QStringList { "id publish town" });
}

void tst_AccountDirectory::aRequestFailsWhenTheConnectionEnds()
{
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Holds;
    directory().publish(fields("Bob", "Verona"));
    core->connection()->serverGoes();
    QCOMPARE(takeAnswer().outcome, Outcome::Failed);
    QVERIFY(directory().isKnown()); // the page shows it still
}

void tst_AccountDirectory::requestsFailWhenTheProtocolIsUnloaded_data()
{
    QTest::addColumn<QString>("request");
    for (const char *request : { "fetch", "publish", "held", "delete" })
        QTest::newRow(request) << request;
}

void tst_AccountDirectory::requestsFailWhenTheProtocolIsUnloaded()
{
    QFETCH(QString, request);
    fetchBase("Ann", "Verona");
    server().directory = KirvFakeServer::Holds;
    if (request == QLatin1String("held"))
        core->account()->beginSave();
    if (request == QLatin1String("fetch"))
        directory().fetch();
    else if (request == QLatin1String("delete"))
        directory().deleteEntry();
    else
        directory().publish(fields("Bob", "Verona"));
    core->settle();
    QVERIFY(answers.isEmpty());
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    QCOMPARE(answers.size(), 1);
    QCOMPARE(takeAnswer().outcome, Outcome::Failed);
    QVERIFY(!directory().isBusy() && !directory().isKnown());
    core->account()->endSave();
    core->accounts->protocolLoaded(core->protocol.get());
    core->settle();
    QVERIFY(answers.isEmpty());
    QCOMPARE(server().entries.value("id"), fields("Ann", "Verona"));
}

void tst_AccountDirectory::theBaseIsUnknownAfterTheProtocolWasUnloaded()
{
    fetchBase("Ann", "Verona");
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    core->accounts->protocolLoaded(core->protocol.get());
    core->takeCalls();
    directory().publish(fields("Bob", "Verona"));
    directory().fetch();
    QCOMPARE(core->takeCalls(), QStringList { "id fetch" });
    QCOMPARE(takeAnswer().fields, fields("Ann", "Verona"));
}

void tst_AccountDirectory::aSlotMayUnloadTheProtocol_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("action");
    for (const char *action : { "unload", "remove", "end" }) {
        for (const char *answer : { "fetched", "refused", "unchanged", "connection ends", "protocol unloaded" })
            QTest::addRow("%s: %s", answer, action) << answer << action;
    }
}

void tst_AccountDirectory::aSlotMayUnloadTheProtocol()
{
    QFETCH(QString, answer);
    QFETCH(QString, action);
    fetchBase("Ann", "Verona");
    int answered = 0;
    connect(&directory(), &KirvAccountDirectory::answered, core->accounts.get(), [&] {
        ++answered;
        if (action == QLatin1String("unload"))
            core->accounts->protocolAboutToBeUnloaded(core->fake);
        else if (action == QLatin1String("end"))
            core->endCore();
        else {
            core->manager().removeAccount("id", core->fake);
            core->settleAndDelete();
        }
    });
    server().directory = answer == QLatin1String("refused") ? KirvFakeServer::Refuses : KirvFakeServer::Holds;
    if (answer == QLatin1String("unchanged"))
        directory().publish(fields("Ann", "Verona"));
    else
        directory().fetch();
    if (answer == QLatin1String("fetched"))
        core->connection()->serverAccepts();
    else if (answer == QLatin1String("connection ends"))
        core->connection()->serverGoes();
    else if (answer == QLatin1String("protocol unloaded"))
        core->accounts->protocolAboutToBeUnloaded(core->fake);
    core->settleAndDelete();
    QCOMPARE(answered, 1);
    KIRV_TRY_COMPARE(server().connections, 0);
}

void tst_AccountDirectory::failuresAndSuccessesAreThoseOfTheAccount()
{
    KirvAccount *account = core->account();
    server().directory = KirvFakeServer::Refuses;
    int changed = 0;
    connect(account, &KirvAccount::changed, this, [&] { ++changed; });
    directory().fetch();
    core->settle();
    QCOMPARE(account->lastFailure().kind(), KirvFailure::RequestFailed);
    QVERIFY(account->lastFailureTime().isValid());
    QCOMPARE(changed, 1);
    server().directory = KirvFakeServer::Accepts;
    directory().fetch();
    core->settle();
    QVERIFY(!account->lastFailure().isFailure());
    QCOMPARE(changed, 2);
    directory().fetch();
    core->settle();
    QCOMPARE(changed, 2);
}

void tst_AccountDirectory::requestsForOtherAccountsReachNobody()
{
    KirvProtocol &contract = *core->protocol;
    contract.fetchPubdirInfo(nullptr);
    const QPointer<KirvAccount> leaving(core->account());
    server().logOut = KirvFakeServer::Holds;
    core->manager().removeAccount("id", core->fake);
    contract.fetchPubdirInfo(leaving);
    contract.publishPubdirInfo(leaving, fields("Bob", "Verona"));
    contract.deletePubdirInfo(leaving);
    QCOMPARE(core->takeCalls(), QStringList { "id log out" });
    core->accounts->protocolAboutToBeUnloaded(core->fake);
}

QTEST_GUILESS_MAIN(tst_AccountDirectory)
#include "tst_account_directory.moc"

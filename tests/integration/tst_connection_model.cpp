// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_connection_model.h"
#include "tests/integration/kirv_accounts_fixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QtTest>

/// The model of the connections over a real core. Every change is also followed by Qt's tester of models, which ends
/// the test at once when the model breaks a rule.
class tst_connection_model : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void accountsArePresentFromTheStart();
    void newAccountIsAppended();
    void removedAccountIsTakenOut_data();
    void removedAccountIsTakenOut();
    void changeTouchesItsRowOnly();
    void stateFollowsTheConnection();
    void waitForATurnIsNoWaitForATime();
    void unloadedProtocolKeepsItsRows();
    void mainAccountIsMarked();
    void textsAreOneLineOfPlainText();
    void manyChangesKeepEveryRowInItsPlace();

private:
    QStringList ids() const;
    QString text(const QString &id, KirvConnectionModel::Column column) const;
    bool hasRightRowNumbers() const;
    void remove(const QString &id);

    std::unique_ptr<KirvAccountsFixture> core;
    std::unique_ptr<KirvConnectionModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
    std::unique_ptr<QSortFilterProxyModel> sorted;
    std::unique_ptr<QAbstractItemModelTester> sortedTester;
};

void tst_connection_model::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    for (const char *id : { "ann", "bob", "cy" })
        core->create(QLatin1String(id));
    KirvAccountsFixture::settle();
    model = std::make_unique<KirvConnectionModel>(*core->accounts);
    tester =
        std::make_unique<QAbstractItemModelTester>(model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    // As the view uses it.
    sorted = std::make_unique<QSortFilterProxyModel>();
    sorted->setSourceModel(model.get());
    sorted->setSortRole(KirvConnectionModel::SortRole);
    sorted->sort(KirvConnectionModel::AccountColumn, Qt::DescendingOrder);
    sortedTester =
        std::make_unique<QAbstractItemModelTester>(sorted.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
}

void tst_connection_model::cleanup()
{
    sortedTester.reset();
    sorted.reset();
    tester.reset();
    model.reset();
    core.reset();
}

QStringList tst_connection_model::ids() const
{
    QStringList ids;
    for (int row = 0; row < model->rowCount(); ++row)
        ids << model->accountAt(row)->key().id;
    return ids;
}

QString tst_connection_model::text(const QString &id, KirvConnectionModel::Column column) const
{
    return model->index(model->rowOf(core->account(id)), column).data().toString();
}

bool tst_connection_model::hasRightRowNumbers() const
{
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->rowOf(model->accountAt(row)) != row)
            return false;
    }
    return sorted->rowCount() == model->rowCount();
}

void tst_connection_model::remove(const QString &id)
{
    KirvAccountsFixture::manager().removeAccount(id, core->fake);
    KirvAccountsFixture::settleAndDelete();
}

void tst_connection_model::accountsArePresentFromTheStart()
{
    QCOMPARE(ids(), (QStringList { "ann", "bob", "cy" }));
    QVERIFY(hasRightRowNumbers());
    QCOMPARE(model->columnCount(), int(KirvConnectionModel::ColumnCount));
    QCOMPARE(text("bob", KirvConnectionModel::AccountColumn), QStringLiteral("Alias of bob"));
    QCOMPARE(text("bob", KirvConnectionModel::ProtocolColumn), QStringLiteral("Fake"));
    QCOMPARE(model->accountAt(3), nullptr);
    QCOMPARE(model->accountAt(-1), nullptr);
    QCOMPARE(model->rowOf(nullptr), -1);
}

void tst_connection_model::newAccountIsAppended()
{
    QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
    core->create(QStringLiteral("dan"));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted.first().at(1).toInt(), 3);
    QCOMPARE(inserted.first().at(2).toInt(), 3);
    QCOMPARE(ids(), (QStringList { "ann", "bob", "cy", "dan" }));
    QVERIFY(hasRightRowNumbers());
}

void tst_connection_model::removedAccountIsTakenOut_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QStringList>("rest");
    QTest::newRow("first") << "ann" << QStringList { "bob", "cy" };
    QTest::newRow("middle") << "bob" << QStringList { "ann", "cy" };
    QTest::newRow("last") << "cy" << QStringList { "ann", "bob" };
}

void tst_connection_model::removedAccountIsTakenOut()
{
    QFETCH(QString, id);
    QFETCH(QStringList, rest);
    QSignalSpy removed(model.get(), &QAbstractItemModel::rowsRemoved);
    remove(id);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(ids(), rest);
    QVERIFY(hasRightRowNumbers());
    // Those behind it are still found when they change.
    for (const QString &other : rest) {
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        core->account(other)->change([](KirvAccountRecord &record) { record.alias = QStringLiteral("new"); });
        QCOMPARE(changed.first().at(0).toModelIndex().row(), int(rest.indexOf(other)));
        QCOMPARE(text(other, KirvConnectionModel::AccountColumn), QStringLiteral("new"));
    }
}

void tst_connection_model::changeTouchesItsRowOnly()
{
    QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
    core->account(QStringLiteral("bob"))->change([](KirvAccountRecord &record) { record.alias = "Bobby"; });
    QVERIFY(!changed.isEmpty());
    for (const QList<QVariant> &arguments : qAsConst(changed)) {
        QCOMPARE(arguments.at(0).toModelIndex(), model->index(1, 0));
        QCOMPARE(arguments.at(1).toModelIndex(), model->index(1, KirvConnectionModel::ColumnCount - 1));
    }
    QCOMPARE(text("bob", KirvConnectionModel::AccountColumn), QStringLiteral("Bobby"));
}

void tst_connection_model::stateFollowsTheConnection()
{
    const auto state = [this] { return text("ann", KirvConnectionModel::StateColumn); };
    QCOMPARE(state(), QStringLiteral("Connected"));
    core->connection(QStringLiteral("ann"))->connectionLost(KirvFailure::WrongPassword);
    QCOMPARE(state(), QStringLiteral("Off line"));
    QCOMPARE(text("ann", KirvConnectionModel::ErrorColumn), KirvFailure(KirvFailure::WrongPassword).text());
    KirvAccountsFixture::manager().disableAccount(QStringLiteral("ann"), core->fake);
    KirvAccountsFixture::settle();
    QCOMPARE(state(), QStringLiteral("Disabled"));
}

void tst_connection_model::waitForATurnIsNoWaitForATime()
{
    KirvLoginQueue::Limits noPlaces;
    noPlaces.attempts = noPlaces.urgentAttempts = 0;
    core->accounts->logins().setLimits(noPlaces);
    KirvConnection::Timing timing;
    timing.backOff.first = 100;
    core->connection("bob")->setTiming(timing);
    core->connection("bob")->serverGoes();
    QVERIFY(text("bob", KirvConnectionModel::StateColumn).startsWith("Waiting until"));
    QTRY_COMPARE(text("bob", KirvConnectionModel::StateColumn), QString("Waiting to connect…"));
}

void tst_connection_model::unloadedProtocolKeepsItsRows()
{
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    KirvAccountsFixture::settleAndDelete();
    QCOMPARE(ids(), (QStringList { "ann", "bob", "cy" }));
    QCOMPARE(text("cy", KirvConnectionModel::StateColumn), QStringLiteral("Plug-in not loaded"));
    QCOMPARE(text("cy", KirvConnectionModel::SinceColumn), QString());
    remove(QStringLiteral("bob"));
    core->accounts->protocolLoaded(core->protocol.get());
    KirvAccountsFixture::settle();
    QCOMPARE(ids(), (QStringList { "ann", "cy" }));
    QCOMPARE(text("cy", KirvConnectionModel::StateColumn), QStringLiteral("Connected"));
}

void tst_connection_model::mainAccountIsMarked()
{
    KirvAccountsFixture::manager().setMainAccount(core->account(QStringLiteral("bob")));
    QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
    model->refreshMainAccount();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(text("bob", KirvConnectionModel::AccountColumn), QStringLiteral("Alias of bob (main account)"));
    QCOMPARE(text("ann", KirvConnectionModel::AccountColumn), QStringLiteral("Alias of ann"));
}

void tst_connection_model::textsAreOneLineOfPlainText()
{
    core->account(QStringLiteral("ann"))->change([](KirvAccountRecord &record) { record.alias = "<b>A</b>\n B"; });
    QCOMPARE(text("ann", KirvConnectionModel::AccountColumn), QStringLiteral("<b>A</b> B"));
    const QString toolTip = model->index(0, KirvConnectionModel::AccountColumn).data(Qt::ToolTipRole).toString();
    QVERIFY2(!toolTip.contains(QStringLiteral("<b>")), qPrintable(toolTip));
}

void tst_connection_model::manyChangesKeepEveryRowInItsPlace()
{
    for (int i = 0; i < 40; ++i) {
        core->create(QStringLiteral("id%1").arg(i));
        if (i % 3 == 2)
            remove(ids().at(i % model->rowCount()));
        QVERIFY(hasRightRowNumbers());
    }
    QStringList configured;
    const QList<KirvAccount *> accounts = core->accounts->accounts();
    for (const KirvAccount *account : accounts)
        configured << account->key().id;
    QCOMPARE(ids(), configured);
}

QTEST_MAIN(tst_connection_model)
#include "tst_connection_model.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/unit/kirv_page_fixture.h"

#include <QMessageBox>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

/// The user's choice of the main account.
class tst_MainAccount : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void choosingAnEntryMakesItTheMainAccount();
    void theAccountIsAssignedThenStoredThenReported();
    void theSettingIsATextField();
    void nothingElseHappens();
    void choosingTheCurrentEntryIsNoChoice();
    void anIndexWithoutAccountChangesNothing_data();
    void anIndexWithoutAccountChangesNothing();
    void anEntryWithoutAccountChangesNothing_data();
    void anEntryWithoutAccountChangesNothing();
    void enablingAndDisablingAccountsChoosesNothing();
    void removingTheCurrentEntryChoosesNothing();
    void afterTheRemovalAChoiceCountsOnce();

private:
    KirvAccountConnection *mainAccount() const { return KirvAccountManagerPrivate::ampInstance->mainAccount; }

    std::unique_ptr<KirvPageFixture> fixture;
    KirvRecordingAccount *alice = nullptr;
    KirvRecordingAccount *bob = nullptr;
    std::unique_ptr<QSignalSpy> reported;
};

void tst_MainAccount::init()
{
    fixture = std::make_unique<KirvPageFixture>();
    alice = fixture->host.addAccount("alice", "XMPP");
    bob = fixture->host.addAccount("bob", "IRC");
    KirvAccountManagerPrivate::ampInstance->mainAccount = alice;
    reported = std::make_unique<QSignalSpy>(fixture->page(), SIGNAL(mainAccountChanged()));
    fixture->showFilledPage();
}

void tst_MainAccount::cleanup()
{
    reported.reset();
    fixture.reset();
}

void tst_MainAccount::choosingAnEntryMakesItTheMainAccount()
{
    fixture->selector()->setFocus();
    QTest::keyClick(fixture->selector(), Qt::Key_Down);
    QCOMPARE(fixture->offered(), (QStringList { "alice@XMPP", "*bob@IRC" }));
    QCOMPARE(mainAccount(), static_cast<KirvAccountConnection *>(bob));
    QCOMPARE(fixture->host.calls({ "writeGlobalSetting" }),
             QStringList { "writeGlobalSetting(main_account=bob@@IRC)" });
    QCOMPARE(reported->count(), 1);
}

void tst_MainAccount::theAccountIsAssignedThenStoredThenReported()
{
    QStringList order;
    fixture->host.hook("writeGlobalSetting", [&] {
        order.append(mainAccount() == bob ? "stored after it was assigned" : "stored too early");
    });
    connect(fixture->page(), qOverload<>(&KirvAccountsTab::mainAccountChanged), this, [&] {
        const bool isStored = fixture->host.writtenSettings.size() == 1;
        order.append(isStored ? "reported after it was stored" : "reported too early");
    });
    fixture->selector()->setCurrentIndex(1);
    QCOMPARE(order, (QStringList { "stored after it was assigned", "reported after it was stored" }));
}

void tst_MainAccount::theSettingIsATextField()
{
    fixture->selector()->setCurrentIndex(1);
    QCOMPARE(fixture->host.writtenSettings.size(), 1);
    QVERIFY(fixture->host.writtenSettings.first() == KirvField::textEdit("", "main_account", "bob@@IRC", ""));
}

void tst_MainAccount::nothingElseHappens()
{
    fixture->selector()->setCurrentIndex(1);
    QStringList calls = fixture->host.calls();
    calls.sort();
    QCOMPARE(calls,
             (QStringList { "bob@IRC.getProtocolName()", "bob@IRC.getUid()", "setMainAccount(bob@IRC)",
                            "writeGlobalSetting(main_account=bob@@IRC)" }));
}

void tst_MainAccount::choosingTheCurrentEntryIsNoChoice()
{
    fixture->selector()->setCurrentIndex(0);
    QCOMPARE(fixture->host.calls(), QStringList());
    QCOMPARE(reported->count(), 0);
}

void tst_MainAccount::anIndexWithoutAccountChangesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("no entry") << -1;
    QTest::newRow("behind the last") << 2;
    QTest::newRow("far away") << 1000000;
}

void tst_MainAccount::anIndexWithoutAccountChangesNothing()
{
    QFETCH(int, index);
    QVERIFY(QMetaObject::invokeMethod(fixture->page(), "mainAccountChanged", Q_ARG(int, index)));
    QCOMPARE(fixture->host.calls(), QStringList());
    QCOMPARE(reported->count(), 0);
    QCOMPARE(mainAccount(), static_cast<KirvAccountConnection *>(alice));
}

void tst_MainAccount::anEntryWithoutAccountChangesNothing_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("null pointer") << QVariant::fromValue(static_cast<void *>(nullptr));
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("a text") << QVariant("alice");
}

void tst_MainAccount::anEntryWithoutAccountChangesNothing()
{
    QFETCH(QVariant, data);
    fixture->selector()->setItemData(1, data, Qt::UserRole);
    fixture->selector()->setCurrentIndex(1);
    QCOMPARE(fixture->host.calls(), QStringList());
    QCOMPARE(reported->count(), 0);
    QCOMPARE(mainAccount(), static_cast<KirvAccountConnection *>(alice));
}

void tst_MainAccount::enablingAndDisablingAccountsChoosesNothing()
{
    fixture->clickCheckBox(fixture->row("alice"));
    QCOMPARE(fixture->offered(), QStringList { "*bob@IRC" });
    fixture->clickCheckBox(fixture->row("bob", "IRC"));
    QCOMPARE(fixture->offered(), QStringList());
    fixture->clickCheckBox(fixture->row("bob", "IRC"));
    fixture->clickCheckBox(fixture->row("alice"));
    QCOMPARE(fixture->offered(), (QStringList { "*alice@XMPP", "bob@IRC" }));
    QCOMPARE(fixture->host.calls({ "writeGlobalSetting", "setMainAccount" }), QStringList());
    QCOMPARE(reported->count(), 0);
    QCOMPARE(mainAccount(), static_cast<KirvAccountConnection *>(alice));
}

void tst_MainAccount::removingTheCurrentEntryChoosesNothing()
{
    fixture->clickRow(fixture->row("alice"));
    fixture->removeButton()->click();
    kirvVisibleWindow<QMessageBox>()->button(QMessageBox::Yes)->click();
    QVERIFY(!fixture->row("alice"));
    QCOMPARE(fixture->offered(), QStringList { "*bob@IRC" });
    QCOMPARE(fixture->host.effects(), QStringList { "removeAccount(alice, XMPP)" });
    QCOMPARE(reported->count(), 0);
    QVERIFY(!mainAccount());
}

void tst_MainAccount::afterTheRemovalAChoiceCountsOnce()
{
    fixture->host.addAccount("carol", "IRC");
    fixture->page()->addAccountEntry(fixture->host.findAccount("carol", "IRC"));
    fixture->page()->updateAccounts();
    fixture->row("alice")->setSelected(true);
    QVERIFY(QMetaObject::invokeMethod(fixture->page(), "removeAccountAccepted", Q_ARG(int, QMessageBox::Yes)));
    QCOMPARE(fixture->offered(), (QStringList { "*bob@IRC", "carol@IRC" }));
    fixture->selector()->setCurrentIndex(1);
    QCOMPARE(fixture->host.calls({ "writeGlobalSetting" }),
             QStringList { "writeGlobalSetting(main_account=carol@@IRC)" });
    QCOMPARE(reported->count(), 1);
}

QTEST_MAIN(tst_MainAccount)
#include "tst_main_account.moc"

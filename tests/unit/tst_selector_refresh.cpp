// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/recording_host/kirv_recording_icons.h"
#include "tests/unit/kirv_page_fixture.h"

#include <QMessageBox>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

/// The refresh: check boxes as the account manager has them, the selector filled anew, no signal for a choice that
/// the user did not make, also when refreshes run inside each other.
class tst_SelectorRefresh : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theHostIsCalledInOrder();
    void anEntryCarriesAliasIconAndAccount();
    void onlyEnabledAndLoadedAccountsAreOffered();
    void theMainAccountIsCurrent();
    void withoutAMainAccountTheFirstEntryIsCurrent();
    void aRefreshSetsTheCheckBoxes();
    void aRefreshAddsAndRemovesNoRows();
    void anIconIsKeptUntilItsProtocolIsReadAgain();
    void aChangedIconIsReadOnce();
    void aRowWithoutACheckBoxGetsOne_data();
    void aRowWithoutACheckBoxGetsOne();
    void manyRefreshesLeaveOneConnection();
    void severalRowsThatChangeInOneRefresh();
    void everyRowChangesInOneRefresh();
    void aHostThatDoesNotEnable();
    void aHostThatDoesNotDisable();
    void aHostThatRefreshesWhileItIsCalled_data();
    void aHostThatRefreshesWhileItIsCalled();
    void aHostThatListsAnAccountWhileItIsCalled();
    void aDisabledAccountThatIsStillLoggedInOpensOneQuestion();

private:
    KirvRecordingAccount *addAccount(const QString &id, const QString &protocol, bool enabled)
    {
        KirvRecordingAccount *account = fixture->host.addAccount(id, protocol);
        account->enabled = enabled;
        return account;
    }
    /// What holds after every refresh, whatever ran inside it.
    void verifyAgreement();

    std::unique_ptr<KirvPageFixture> fixture;
    std::unique_ptr<QSignalSpy> reported;
};

void tst_SelectorRefresh::init()
{
    fixture = std::make_unique<KirvPageFixture>();
    reported = std::make_unique<QSignalSpy>(fixture->page(), SIGNAL(mainAccountChanged()));
}

void tst_SelectorRefresh::cleanup()
{
    reported.reset();
    fixture.reset();
}

void tst_SelectorRefresh::verifyAgreement()
{
    // No choice but the user's was reported or stored.
    QCOMPARE(reported->count(), 0);
    QCOMPARE(fixture->host.calls({ "writeGlobalSetting", "setMainAccount" }), QStringList());

    // Boxes show the state in the host; each enabled and loaded account is offered once, in the order of the rows.
    QStringList expected;
    for (int i = 0; i < fixture->list()->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = fixture->list()->topLevelItem(i);
        const KirvRecordingAccount *account = fixture->host.findAccount(row->text(2), row->text(1));
        QCOMPARE(row->checkState(0) == Qt::Checked, account && account->enabled);
        if (account && account->enabled && account->loaded)
            expected.append(account->written());
    }
    QStringList offered = fixture->offered();
    offered.replaceInStrings("*", QString());
    QCOMPARE(offered, expected);

    // One choice is reported and stored once.
    if (expected.size() < 2)
        return;
    const int other = fixture->selector()->currentIndex() == 0 ? 1 : 0;
    fixture->selector()->setCurrentIndex(other);
    QCOMPARE(reported->count(), 1);
    QCOMPARE(fixture->host.calls({ "writeGlobalSetting" }),
             QStringList { "writeGlobalSetting(main_account=" + QString(expected.at(other)).replace("@", "@@") + ")" });
    reported->clear();
}

void tst_SelectorRefresh::theHostIsCalledInOrder()
{
    addAccount("alice", "XMPP", true);
    addAccount("bob", "XMPP", false);
    addAccount("carol", "XMPP", true)->loaded = false;
    addAccount("dave", "IRC", true);
    fixture->showFilledPage();
    fixture->page()->updateAccounts();
    QCOMPARE(
        fixture->host.calls(),
        (QStringList { "accountEnabled(alice, XMPP)", "getAccount(alice, XMPP)", "alice@XMPP.getProtocol()",
                       "XMPP.getIconPath(0)", "getMainAccount()", "accountEnabled(bob, XMPP)",
                       "accountEnabled(carol, XMPP)", "getAccount(carol, XMPP)", "accountEnabled(dave, IRC)",
                       "getAccount(dave, IRC)", "dave@IRC.getProtocol()", "IRC.getIconPath(0)", "getMainAccount()" }));
}

void tst_SelectorRefresh::anEntryCarriesAliasIconAndAccount()
{
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", true);
    fixture->showFilledPage();
    QComboBox *selector = fixture->selector();
    QCOMPARE(selector->itemText(0), QString("Alias of alice"));
    QCOMPARE(selector->itemIcon(0).name(), QString("/icons/XMPP.recorded"));
    QCOMPARE(selector->itemData(0, Qt::UserRole).userType(), int(QMetaType::VoidStar));
    QCOMPARE(selector->itemData(0, Qt::UserRole).value<void *>(),
             static_cast<void *>(static_cast<KirvAccountConnection *>(alice)));

    // The alias of the row, not the account's.
    alice->alias = "Not yet known to the list";
    fixture->page()->updateAccounts();
    QCOMPARE(selector->itemText(0), QString("Alias of alice"));
}

void tst_SelectorRefresh::onlyEnabledAndLoadedAccountsAreOffered()
{
    addAccount("alice", "XMPP", true);
    addAccount("bob", "XMPP", false);
    addAccount("carol", "XMPP", true)->loaded = false;
    addAccount("dave", "IRC", true);
    fixture->showFilledPage();
    QCOMPARE(fixture->offered(), (QStringList { "*alice@XMPP", "dave@IRC" }));
    QVERIFY(fixture->isChecked("carol"));
    verifyAgreement();
}

void tst_SelectorRefresh::theMainAccountIsCurrent()
{
    addAccount("alice", "XMPP", true);
    KirvRecordingAccount *bob = addAccount("bob", "XMPP", true);
    addAccount("carol", "XMPP", true);
    KirvAccountManagerPrivate::ampInstance->mainAccount = bob;
    fixture->showFilledPage();
    QCOMPARE(fixture->offered(), (QStringList { "alice@XMPP", "*bob@XMPP", "carol@XMPP" }));
    verifyAgreement();
}

void tst_SelectorRefresh::withoutAMainAccountTheFirstEntryIsCurrent()
{
    addAccount("alice", "XMPP", true);
    KirvRecordingAccount *bob = addAccount("bob", "XMPP", false);
    KirvAccountManagerPrivate::ampInstance->mainAccount = bob;
    addAccount("carol", "XMPP", true);
    fixture->showFilledPage();
    QCOMPARE(fixture->offered(), (QStringList { "*alice@XMPP", "carol@XMPP" }));
    QCOMPARE(KirvAccountManagerPrivate::ampInstance->mainAccount, static_cast<KirvAccountConnection *>(bob));
    verifyAgreement();
}

void tst_SelectorRefresh::aRefreshSetsTheCheckBoxes()
{
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", true);
    KirvRecordingAccount *bob = addAccount("bob", "XMPP", false);
    fixture->showFilledPage();
    alice->enabled = false;
    bob->enabled = true;
    fixture->page()->updateAccounts();
    QVERIFY(!fixture->isChecked("alice"));
    QVERIFY(fixture->isChecked("bob"));
    QVERIFY(fixture->list()->isEnabled());
    verifyAgreement();
}

void tst_SelectorRefresh::aRefreshAddsAndRemovesNoRows()
{
    addAccount("alice", "XMPP", true);
    fixture->showFilledPage();
    addAccount("bob", "XMPP", true);
    fixture->host.removeAccount("alice", "XMPP");
    fixture->page()->updateAccounts();
    QCOMPARE(fixture->list()->topLevelItemCount(), 1);
    QVERIFY(!fixture->isChecked("alice"));
    QCOMPARE(fixture->offered(), QStringList());
}

void tst_SelectorRefresh::anIconIsKeptUntilItsProtocolIsReadAgain()
{
    for (const char *id : { "alice", "bob", "carol" })
        addAccount(id, "XMPP", true);
    addAccount("dave", "IRC", true);
    fixture->showFilledPage();
    fixture->page()->updateAccounts();
    fixture->page()->updateAccounts();
    QCOMPARE(kirvRecordedIconReads(), QStringList());

    fixture->page()->readProtocolAccounts("XMPP");
    fixture->page()->updateAccounts();
    QCOMPARE(kirvRecordedIconReads(), QStringList { "/icons/XMPP.recorded" });
    const QIcon readAgain = fixture->addMenu()->actions().last()->icon();
    const QComboBox *selector = fixture->selector();
    for (int i = 0; i < selector->count(); ++i) {
        const bool isXmpp = selector->itemIcon(i).name() == "/icons/XMPP.recorded";
        QCOMPARE(selector->itemIcon(i).cacheKey() == readAgain.cacheKey(), isXmpp);
    }
}

void tst_SelectorRefresh::aChangedIconIsReadOnce()
{
    for (const char *id : { "alice", "bob", "carol" })
        addAccount(id, "XMPP", true);
    fixture->showFilledPage();
    fixture->xmpp->iconPath = "/icons/other.recorded";
    fixture->page()->updateAccounts();
    fixture->page()->updateAccounts();
    QCOMPARE(kirvRecordedIconReads(), QStringList { "/icons/other.recorded" });
    for (int i = 0; i < 3; ++i)
        QCOMPARE(fixture->selector()->itemIcon(i).name(), QString("/icons/other.recorded"));
    QCOMPARE(fixture->host.calls({ "getIconPath" }).size(), 6);
}

void tst_SelectorRefresh::aRowWithoutACheckBoxGetsOne_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("enabled account") << true;
    QTest::newRow("disabled account") << false;
}

void tst_SelectorRefresh::aRowWithoutACheckBoxGetsOne()
{
    QFETCH(bool, enabled);
    addAccount("alice", "XMPP", enabled);
    fixture->showFilledPage();
    fixture->list()->blockSignals(true);
    fixture->row("alice")->setData(0, Qt::CheckStateRole, QVariant());
    fixture->list()->blockSignals(false);
    fixture->page()->updateAccounts();
    QVERIFY(fixture->row("alice")->data(0, Qt::CheckStateRole).isValid());
    QCOMPARE(fixture->isChecked("alice"), enabled);
    verifyAgreement();
}

void tst_SelectorRefresh::manyRefreshesLeaveOneConnection()
{
    addAccount("alice", "XMPP", true);
    addAccount("bob", "XMPP", true);
    fixture->showFilledPage();
    for (int i = 0; i < 20; ++i)
        fixture->page()->updateAccounts();
    verifyAgreement();
}

void tst_SelectorRefresh::severalRowsThatChangeInOneRefresh()
{
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", true);
    KirvRecordingAccount *bob = addAccount("bob", "XMPP", false);
    KirvRecordingAccount *carol = addAccount("carol", "XMPP", true);
    KirvAccountManagerPrivate::ampInstance->mainAccount = carol;
    addAccount("dave", "IRC", true);
    fixture->showFilledPage();
    alice->enabled = false;
    bob->enabled = true;
    carol->loaded = false;
    fixture->page()->updateAccounts();
    QCOMPARE(fixture->host.effects(), (QStringList { "disableAccount(alice, XMPP)", "enableAccount(bob, XMPP)" }));
    verifyAgreement();
}

void tst_SelectorRefresh::everyRowChangesInOneRefresh()
{
    QList<KirvRecordingAccount *> accounts;
    for (int i = 0; i < 12; ++i)
        accounts.append(addAccount(QString("account%1").arg(i), i % 2 ? "XMPP" : "IRC", i % 3 != 0));
    fixture->showFilledPage();
    for (KirvRecordingAccount *account : accounts)
        account->enabled = !account->enabled;
    fixture->page()->updateAccounts();
    QCOMPARE(fixture->host.effects().size(), accounts.size());
    verifyAgreement();
}

void tst_SelectorRefresh::aHostThatDoesNotEnable()
{
    addAccount("alice", "XMPP", false);
    addAccount("bob", "XMPP", true);
    addAccount("carol", "XMPP", true);
    fixture->host.enablesAccounts = false;
    fixture->showFilledPage();
    fixture->clickCheckBox(fixture->row("alice"));
    // The refresh clears the box again, which is handled like a click on it.
    QCOMPARE(fixture->host.effects(), (QStringList { "enableAccount(alice, XMPP)", "disableAccount(alice, XMPP)" }));
    QVERIFY(fixture->list()->isEnabled());
    verifyAgreement();
}

void tst_SelectorRefresh::aHostThatDoesNotDisable()
{
    addAccount("alice", "XMPP", true);
    addAccount("bob", "XMPP", true);
    fixture->host.disablesAccounts = false;
    fixture->showFilledPage();
    fixture->clickCheckBox(fixture->row("alice"));
    QCOMPARE(fixture->host.effects(), (QStringList { "disableAccount(alice, XMPP)", "enableAccount(alice, XMPP)" }));
    QVERIFY(fixture->list()->isEnabled());
    verifyAgreement();
}

void tst_SelectorRefresh::aHostThatRefreshesWhileItIsCalled_data()
{
    QTest::addColumn<QString>("operation");
    for (const char *operation : { "accountEnabled", "getAccount", "getIconPath", "getMainAccount" })
        QTest::newRow(operation) << operation;
}

void tst_SelectorRefresh::aHostThatRefreshesWhileItIsCalled()
{
    QFETCH(QString, operation);
    for (const char *id : { "alice", "bob", "carol" })
        addAccount(id, "XMPP", true);
    fixture->showFilledPage();
    int calls = 0;
    fixture->host.hook(operation, [&] {
        if (++calls == 2)
            fixture->page()->updateAccounts();
    });
    fixture->page()->updateAccounts();
    QVERIFY(calls > 2);
    fixture->host.hook(operation, nullptr);
    verifyAgreement();
}

void tst_SelectorRefresh::aHostThatListsAnAccountWhileItIsCalled()
{
    addAccount("bob", "XMPP", true);
    addAccount("carol", "XMPP", true);
    fixture->showFilledPage();
    bool added = false;
    fixture->host.hook("accountEnabled", [&] {
        if (!added) {
            added = true;
            fixture->page()->addAccountEntry(addAccount("dave", "XMPP", true));
        }
    });
    fixture->page()->updateAccounts();
    fixture->host.hook("accountEnabled", nullptr);
    verifyAgreement();
}

void tst_SelectorRefresh::aDisabledAccountThatIsStillLoggedInOpensOneQuestion()
{
    // While an account logs out, say: the box is cleared by the refresh, and the question keeps it checked.
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", true);
    addAccount("bob", "XMPP", true);
    alice->loggedIn = true;
    fixture->showFilledPage();
    alice->enabled = false;
    int calls = 0;
    fixture->host.hook("isLoggedIn", [&] {
        // Ends a refresh that would never end.
        if (++calls > 20)
            alice->loggedIn = false;
    });
    fixture->page()->updateAccounts();
    fixture->host.hook("isLoggedIn", nullptr);
    QVERIFY2(calls <= 2, "the refresh and the question go round in circles");
    QVERIFY(fixture->list()->isEnabled());
    QCOMPARE(fixture->offered(), QStringList { "*bob@XMPP" });
}

QTEST_MAIN(tst_SelectorRefresh)
#include "tst_selector_refresh.moc"

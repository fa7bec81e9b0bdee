// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/recording_host/kirv_recording_icons.h"
#include "tests/unit/kirv_page_fixture.h"

#include <QHeaderView>
#include <QtTest>

#include <memory>

/// The rows of the list and the entries of the add menu: how they come, change and go.
class tst_AccountList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<KirvPageFixture>(); }
    void cleanup() { fixture.reset(); }

    void theAccountsOfALoadedProtocolAreReadOnce();
    void aRowShowsTheStoredAccount();
    void aRowUsesStandardRolesOnly();
    void anUnknownProtocolChangesNothing();
    void aProtocolWithoutAccountsIsInTheAddMenu();
    void theActionHasAnIconOnlyWhenThereIsOne_data();
    void theActionHasAnIconOnlyWhenThereIsOne();
    void theIconIsReadOncePerProtocol();
    void theActionStandsForTheNameThatTheHostPassed();
    void aProtocolReadTwiceIsListedTwice();
    void anUnloadedProtocolLeavesTheMenuButNotTheList();
    void anUnknownProtocolIsUnloadedSilently();
    void readingAndUnloadingLeaveTheSelectorAlone();
    void aNewAccountIsListedAsEnabledInAnyCase();
    void aNewAccountComesIntoTheSelectorWithTheNextShow();
    void aChangedAliasIsShownAtOnce();
    void aChangedAliasIsHandledLikeAChangeOfTheCheckBox_data();
    void aChangedAliasIsHandledLikeAChangeOfTheCheckBox();
    void anUnchangedAliasIsNotHandled();
    void onlyTheRowOfThatAccountIsUpdated();
    void idsAreComparedExactly();
    void buttonsFollowTheCurrentRow();
    void buttonsFollowTheCurrentRowAndNotTheSelection();
    void theRemoveButtonIsSetBeforeTheEditButton();
    void buttonsAreDisabledWhenTheListIsEmptyAgain();
    void theListOpensSortedByAliasFromAToZ();
    void theSortOrderOfTheUserHolds();

private:
    QStringList aliases()
    {
        QStringList texts;
        for (int i = 0; i < fixture->list()->topLevelItemCount(); ++i)
            texts.append(fixture->list()->topLevelItem(i)->text(0));
        return texts;
    }
    KirvRecordingAccount *addAccount(const QString &id, const QString &protocol, const QString &alias)
    {
        KirvRecordingAccount *account = fixture->host.addAccount(id, protocol);
        account->alias = alias;
        return account;
    }
    void clickHeader(int section)
    {
        QHeaderView *header = fixture->list()->header();
        const int x = header->sectionViewportPosition(section) + header->sectionSize(section) / 2;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
    }

    std::unique_ptr<KirvPageFixture> fixture;
};

void tst_AccountList::theAccountsOfALoadedProtocolAreReadOnce()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->host.addAccount("bob", "XMPP");
    fixture->page();
    fixture->host.forgetCalls();
    fixture->page()->readProtocolAccounts("XMPP");
    QStringList calls = fixture->host.calls();
    calls.removeAll("XMPP.getName()");
    QCOMPARE(calls, (QStringList { "getProtocolByName(XMPP)", "XMPP.getIconPath(0)", "getAccountsInfo(XMPP)" }));
}

void tst_AccountList::aRowShowsTheStoredAccount()
{
    addAccount("alice", "XMPP", "Work");
    addAccount("bob", "XMPP", "Home")->enabled = false;
    fixture->page()->readProtocolAccounts("XMPP");
    QCOMPARE(fixture->list()->topLevelItemCount(), 2);

    const QTreeWidgetItem *alice = fixture->row("alice");
    QCOMPARE(alice->text(0), QString("Work"));
    QCOMPARE(alice->text(1), QString("XMPP"));
    QCOMPARE(alice->text(2), QString("alice"));
    QCOMPARE(alice->icon(1).name(), QString("/icons/XMPP.recorded"));
    QCOMPARE(alice->data(0, Qt::CheckStateRole), QVariant(2));
    QCOMPARE(fixture->row("bob")->data(0, Qt::CheckStateRole), QVariant(0));
}

void tst_AccountList::aRowUsesStandardRolesOnly()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    const QTreeWidgetItem *row = fixture->row("alice");
    const QTreeWidgetItem plain;
    QCOMPARE(row->type(), int(QTreeWidgetItem::Type));
    QCOMPARE(row->flags(), plain.flags());
    for (int column = 0; column < 4; ++column) {
        for (int role = Qt::UserRole; role < Qt::UserRole + 8; ++role)
            QVERIFY(!row->data(column, role).isValid());
    }
    for (int role : { int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::CheckStateRole) })
        QVERIFY(row->data(3, role).toString().isEmpty());
    QVERIFY(row->icon(0).isNull());
    QVERIFY(!row->data(1, Qt::CheckStateRole).isValid());
}

void tst_AccountList::anUnknownProtocolChangesNothing()
{
    fixture->page();
    fixture->host.forgetCalls();
    fixture->page()->readProtocolAccounts("Unknown");
    QCOMPARE(fixture->host.calls(), QStringList { "getProtocolByName(Unknown)" });
    QVERIFY(fixture->addMenu()->actions().isEmpty());
    QCOMPARE(fixture->list()->topLevelItemCount(), 0);
}

void tst_AccountList::aProtocolWithoutAccountsIsInTheAddMenu()
{
    fixture->page()->readProtocolAccounts("XMPP");
    const QList<QAction *> actions = fixture->addMenu()->actions();
    QCOMPARE(actions.size(), 1);
    QCOMPARE(actions.first()->text(), QString("XMPP"));
    QCOMPARE(actions.first()->icon().name(), QString("/icons/XMPP.recorded"));
    QCOMPARE(actions.first()->parent(), fixture->page());
}

void tst_AccountList::theActionHasAnIconOnlyWhenThereIsOne_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("hasIcon");
    QTest::newRow("icon") << "/icons/XMPP.recorded" << true;
    QTest::newRow("no path") << "" << false;
}

void tst_AccountList::theActionHasAnIconOnlyWhenThereIsOne()
{
    QFETCH(QString, path);
    QFETCH(bool, hasIcon);
    fixture->xmpp->iconPath = path;
    fixture->host.addAccount("alice", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    QCOMPARE(fixture->addMenu()->actions().first()->icon().isNull(), !hasIcon);
    // A row carries an icon in any case, a null one if need be.
    const QVariant decoration = fixture->row("alice")->data(1, Qt::DecorationRole);
    QCOMPARE(decoration.userType(), int(QMetaType::QIcon));
    QCOMPARE(decoration.value<QIcon>().isNull(), !hasIcon);
}

void tst_AccountList::theIconIsReadOncePerProtocol()
{
    for (const char *id : { "alice", "bob", "carol" })
        fixture->host.addAccount(id, "XMPP");
    fixture->host.addAccount("dave", "IRC");
    fixture->page()->readProtocolAccounts("XMPP");
    fixture->page()->readProtocolAccounts("IRC");
    QCOMPARE(kirvRecordedIconReads(), (QStringList { "/icons/XMPP.recorded", "/icons/IRC.recorded" }));
}

void tst_AccountList::theActionStandsForTheNameThatTheHostPassed()
{
    fixture->xmpp->reportedName = "Jabber";
    fixture->host.addAccount("alice", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    QCOMPARE(fixture->addMenu()->actions().first()->text(), QString("Jabber"));
    QVERIFY(fixture->row("alice", "Jabber"));

    fixture->host.unloadProtocol("XMPP");
    fixture->host.forgetCalls();
    fixture->addMenu()->actions().first()->trigger();
    QCOMPARE(fixture->host.calls(), QStringList { "getProtocolByName(XMPP)" });
    fixture->page()->removeProtocolAccounts("Jabber");
    QCOMPARE(fixture->addMenu()->actions().size(), 1);
    fixture->page()->removeProtocolAccounts("XMPP");
    QVERIFY(fixture->addMenu()->actions().isEmpty());
}

void tst_AccountList::aProtocolReadTwiceIsListedTwice()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    QCOMPARE(fixture->addMenu()->actions().size(), 2);
    QCOMPARE(fixture->list()->topLevelItemCount(), 2);
    fixture->page()->removeProtocolAccounts("XMPP");
    QCOMPARE(fixture->addMenu()->actions().size(), 1);
    fixture->page()->removeProtocolAccounts("XMPP");
    QCOMPARE(fixture->addMenu()->actions().size(), 0);
    QCOMPARE(fixture->list()->topLevelItemCount(), 2);
}

void tst_AccountList::anUnloadedProtocolLeavesTheMenuButNotTheList()
{
    fixture->host.addAccount("alice", "XMPP");
    // Not even a row that the protocol's name is looked up in, by alias or id.
    addAccount("XMPP", "IRC", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    fixture->page()->readProtocolAccounts("IRC");
    const QPointer<QAction> action = fixture->addMenu()->actions().first();
    fixture->host.forgetCalls();

    fixture->page()->removeProtocolAccounts("XMPP");
    QVERIFY(!action);
    QCOMPARE(fixture->addMenu()->actions().size(), 1);
    QCOMPARE(fixture->addMenu()->actions().first()->text(), QString("IRC"));
    QVERIFY(fixture->row("alice"));
    QVERIFY(fixture->row("XMPP", "IRC"));
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_AccountList::anUnknownProtocolIsUnloadedSilently()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    fixture->page()->removeProtocolAccounts("Unknown");
    fixture->page()->removeProtocolAccounts(QString());
    QCOMPARE(fixture->addMenu()->actions().size(), 1);
    QCOMPARE(fixture->list()->topLevelItemCount(), 1);
}

void tst_AccountList::readingAndUnloadingLeaveTheSelectorAlone()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->host.addAccount("dave", "IRC");
    fixture->page()->readProtocolAccounts("XMPP");
    QCOMPARE(fixture->offered(), QStringList());
    fixture->showPage();
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });
    fixture->page()->readProtocolAccounts("IRC");
    fixture->page()->removeProtocolAccounts("XMPP");
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });
}

void tst_AccountList::aNewAccountIsListedAsEnabledInAnyCase()
{
    fixture->showFilledPage();
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", "Work");
    alice->enabled = false;
    fixture->page()->addAccountEntry(alice);

    const QTreeWidgetItem *row = fixture->row("alice");
    QVERIFY(row);
    QCOMPARE(row->text(0), QString("Work"));
    QCOMPARE(row->icon(1).name(), QString("/icons/XMPP.recorded"));
    QCOMPARE(row->checkState(0), Qt::Checked);
    QCOMPARE(fixture->host.calls({ "accountEnabled", "isEnabled", "getAccount", "loadAccount", "getAccountsInfo",
                                   "getProtocolByName" }),
             QStringList());
    QCOMPARE(fixture->host.calls({ "getIconPath" }), QStringList { "XMPP.getIconPath(0)" });
    QCOMPARE(fixture->host.effects(), QStringList());
    QCOMPARE(fixture->addMenu()->actions().size(), 2);

    // The next refresh shows the state in the host.
    fixture->page()->updateAccounts();
    QCOMPARE(fixture->row("alice")->checkState(0), Qt::Unchecked);
}

void tst_AccountList::aNewAccountComesIntoTheSelectorWithTheNextShow()
{
    fixture->showFilledPage();
    fixture->page()->addAccountEntry(fixture->host.addAccount("alice", "XMPP"));
    QCOMPARE(fixture->offered(), QStringList());
    fixture->page()->hide();
    fixture->showPage();
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });
}

void tst_AccountList::aChangedAliasIsShownAtOnce()
{
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", "Old");
    fixture->showFilledPage();
    alice->alias = "New";
    fixture->page()->updateAccount(alice);
    QCOMPARE(fixture->row("alice")->text(0), QString("New"));
    QCOMPARE(fixture->row("alice")->checkState(0), Qt::Checked);
    QCOMPARE(fixture->row("alice")->icon(1).name(), QString("/icons/XMPP.recorded"));
}

void tst_AccountList::aChangedAliasIsHandledLikeAChangeOfTheCheckBox_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("effect");
    QTest::newRow("enabled account") << true << "enableAccount(alice, XMPP)";
    QTest::newRow("disabled account") << false << "disableAccount(alice, XMPP)";
}

void tst_AccountList::aChangedAliasIsHandledLikeAChangeOfTheCheckBox()
{
    QFETCH(bool, enabled);
    QFETCH(QString, effect);
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", "Old");
    alice->enabled = enabled;
    fixture->showFilledPage();
    alice->alias = "New";
    fixture->page()->updateAccount(alice);
    QCOMPARE(fixture->host.effects(), QStringList { effect });
    QCOMPARE(fixture->isChecked("alice"), enabled);
    QCOMPARE(fixture->host.count("accountEnabled(alice, XMPP)"), 1);
}

void tst_AccountList::anUnchangedAliasIsNotHandled()
{
    KirvRecordingAccount *alice = fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    fixture->page()->updateAccount(alice);
    QCOMPARE(fixture->host.effects(), QStringList());
    QCOMPARE(fixture->host.calls({ "accountEnabled" }), QStringList());
}

void tst_AccountList::onlyTheRowOfThatAccountIsUpdated()
{
    addAccount("alice", "IRC", "Alice on IRC");
    addAccount("bob", "XMPP", "Bob");
    KirvRecordingAccount *alice = addAccount("alice", "XMPP", "Alice");
    fixture->showFilledPage();
    alice->alias = "New";
    fixture->page()->updateAccount(alice);
    QCOMPARE(aliases(), (QStringList { "Alice on IRC", "Bob", "New" }));

    // Of an account that is listed twice, only the first row, which the new alias sorts before the other.
    fixture->page()->readProtocolAccounts("XMPP");
    alice->alias = "A newer one";
    fixture->page()->updateAccount(alice);
    QCOMPARE(aliases().count("A newer one"), 1);
    QCOMPARE(aliases().count("New"), 1);
}

void tst_AccountList::idsAreComparedExactly()
{
    addAccount("Alice", "XMPP", "Upper");
    fixture->showFilledPage();
    fixture->page()->updateAccount(addAccount("alice", "XMPP", "Lower"));
    fixture->page()->updateAccount(addAccount("XMPP", "IRC", "Swapped"));
    QCOMPARE(aliases(), QStringList { "Upper" });
    QCOMPARE(fixture->host.effects(), QStringList());
}

void tst_AccountList::buttonsFollowTheCurrentRow()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    QVERIFY(!fixture->editButton()->isEnabled());
    fixture->clickRow(fixture->row("alice"));
    QVERIFY(fixture->editButton()->isEnabled());
    QVERIFY(fixture->removeButton()->isEnabled());

    // Also when nothing is left but to leave the list.
    fixture->list()->selectionModel()->clear();
    fixture->row("alice")->setSelected(true);
    QVERIFY(!fixture->editButton()->isEnabled());
    QVERIFY(!fixture->removeButton()->isEnabled());
    QVERIFY(fixture->registerButton()->isEnabled());
    QVERIFY(fixture->addButton()->isEnabled());
}

void tst_AccountList::buttonsFollowTheCurrentRowAndNotTheSelection()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    fixture->clickRow(fixture->row("alice"));
    fixture->list()->clearSelection();
    QVERIFY(fixture->list()->selectedItems().isEmpty());
    QVERIFY(fixture->editButton()->isEnabled());
    QVERIFY(fixture->removeButton()->isEnabled());
}

void tst_AccountList::theRemoveButtonIsSetBeforeTheEditButton()
{
    struct Order : QObject {
        QStringList names;
        bool eventFilter(QObject *object, QEvent *event) override
        {
            if (event->type() == QEvent::EnabledChange)
                names.append(object->objectName());
            return false;
        }
    } order;
    fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    fixture->editButton()->installEventFilter(&order);
    fixture->removeButton()->installEventFilter(&order);
    fixture->clickRow(fixture->row("alice"));
    fixture->list()->selectionModel()->clear();
    fixture->row("alice")->setSelected(true);
    const QStringList once { "Accounts_RemoveButton", "Accounts_EditButton" };
    QCOMPARE(order.names, once + once);
}

void tst_AccountList::buttonsAreDisabledWhenTheListIsEmptyAgain()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    fixture->clickRow(fixture->row("alice"));
    delete fixture->row("alice");
    QVERIFY(!fixture->editButton()->isEnabled());
    QVERIFY(!fixture->removeButton()->isEnabled());
}

void tst_AccountList::theListOpensSortedByAliasFromAToZ()
{
    addAccount("1", "XMPP", "Home");
    addAccount("2", "XMPP", "Away from home");
    addAccount("3", "IRC", "Chat");
    fixture->showFilledPage();
    QCOMPARE(aliases(), (QStringList { "Away from home", "Chat", "Home" }));
    fixture->page()->addAccountEntry(addAccount("4", "XMPP", "Bureau"));
    QCOMPARE(aliases(), (QStringList { "Away from home", "Bureau", "Chat", "Home" }));
}

void tst_AccountList::theSortOrderOfTheUserHolds()
{
    addAccount("1", "XMPP", "B");
    addAccount("2", "IRC", "C");
    addAccount("3", "XMPP", "A");
    fixture->showFilledPage();
    clickHeader(0);
    QCOMPARE(aliases(), (QStringList { "C", "B", "A" }));

    fixture->page()->updateAccounts();
    fixture->page()->addAccountEntry(addAccount("4", "XMPP", "D"));
    fixture->page()->hide();
    fixture->showPage();
    QCOMPARE(aliases(), (QStringList { "D", "C", "B", "A" }));

    clickHeader(1);
    fixture->page()->readProtocolAccounts("IRC");
    QCOMPARE(fixture->list()->header()->sortIndicatorSection(), 1);
    QStringList protocols;
    for (int i = 0; i < fixture->list()->topLevelItemCount(); ++i)
        protocols.append(fixture->list()->topLevelItem(i)->text(1));
    QCOMPARE(protocols, (QStringList { "IRC", "IRC", "XMPP", "XMPP", "XMPP" }));
}

QTEST_MAIN(tst_AccountList)
#include "tst_account_list.moc"

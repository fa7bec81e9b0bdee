// SPDX-License-Identifier: LGPL-2.1-or-later
#include "edit_account/kirv_edit_account_dialog.h"
#include "tests/unit/kirv_page_fixture.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QShortcut>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(std::function<void(KirvPageFixture &)>)

/// The page itself: its one instance, its meta-object, what it binds of the layout and how it ends.
class tst_AccountsTab : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<KirvPageFixture>(); }
    void cleanup() { fixture.reset(); }

    void signalsAndSlotsStandInTheirOrder_data();
    void signalsAndSlotsStandInTheirOrder();
    void theMetaObjectHoldsNothingElse();
    void thereIsOnePage();
    void afterItsEndTheNextPageIsNewAndBound();
    void constructionOnlyLoadsTheLayout();
    void constructionFillsNothing();
    void theListIsSetUp();
    void theHeaderIsLabelled();
    void theAddButtonOpensItsMenuAtOnce();
    void theAddButtonItselfDoesNothing();
    void buttonsStartWithoutACurrentRow();
    void theDeleteKeyIsAShortcutOfTheList();
    void theDeleteKeyWorksEvenWhileTheButtonIsDisabled();
    void everyControlIsConnectedOnce_data();
    void everyControlIsConnectedOnce();
    void everyShowRefreshes();
    void aLayoutWithoutSelectorIsServed();
    void aLayoutWithoutRegisterButtonIsServed();
    void whatThePageOwnsGoesWithIt();
    void theEditDialogOutlivesThePage();
    void anOpenQuestionGoesWithThePage();

private:
    std::unique_ptr<KirvPageFixture> fixture;
};

void tst_AccountsTab::signalsAndSlotsStandInTheirOrder_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("access");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QList<QByteArray>>("parameters");
    const auto add = [](int index, QMetaMethod::MethodType type, QMetaMethod::Access access, const char *signature,
                        const QList<QByteArray> &parameters) {
        QTest::newRow(signature) << index << int(type) << int(access) << QByteArray(signature) << parameters;
    };
    const auto slot = QMetaMethod::Slot;
    const auto isProtected = QMetaMethod::Protected;
    add(0, QMetaMethod::Signal, QMetaMethod::Public, "mainAccountChanged()", {});
    add(1, slot, QMetaMethod::Public, "readProtocolAccounts(QString)", { "proto" });
    add(2, slot, QMetaMethod::Public, "removeProtocolAccounts(QString)", { "proto" });
    add(3, slot, isProtected, "disableAccountAccepted(int)", { "result" });
    add(4, slot, isProtected, "removeAccountAccepted(int)", { "result" });
    add(5, slot, isProtected, "addAccount()", {});
    add(6, slot, isProtected, "editAccount()", {});
    add(7, slot, isProtected, "itemSelectionChanged()", {});
    add(8, slot, isProtected, "setAccountEnabled(QTreeWidgetItem*,int)", { "item", "column" });
    add(9, slot, isProtected, "removeAccount()", {});
    add(10, slot, isProtected, "registerAccount()", {});
    add(11, slot, isProtected, "itemActivated(QTreeWidgetItem*,int)", { "item", "column" });
    add(12, slot, isProtected, "mainAccountChanged(int)", { "index" });
}

void tst_AccountsTab::signalsAndSlotsStandInTheirOrder()
{
    QFETCH(int, index);
    QFETCH(int, type);
    QFETCH(int, access);
    QFETCH(QByteArray, signature);
    QFETCH(QList<QByteArray>, parameters);
    const QMetaObject &meta = KirvAccountsTab::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(int(method.methodType()), type);
    QCOMPARE(int(method.access()), access);
    QCOMPARE(method.parameterNames(), parameters);
}

void tst_AccountsTab::theMetaObjectHoldsNothingElse()
{
    const QMetaObject &meta = KirvAccountsTab::staticMetaObject;
    QCOMPARE(meta.className(), "KirvAccountsTab");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 13);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.classInfoCount(), meta.classInfoOffset());
}

void tst_AccountsTab::thereIsOnePage()
{
    KirvAccountsTab *page = KirvAccountsTab::getInstance();
    QVERIFY(page);
    QCOMPARE(KirvAccountsTab::getInstance(), page);
    QCOMPARE(fixture->page(), page);
    QVERIFY(!page->parent());
    QCOMPARE(fixture->host.count("loadUI(Accounts, KirvAccountsTab, null)"), 1);
}

void tst_AccountsTab::afterItsEndTheNextPageIsNewAndBound()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    delete fixture->page();
    QVERIFY(!fixture->hasPage());

    QCOMPARE(fixture->list()->topLevelItemCount(), 0);
    QVERIFY(fixture->addMenu()->actions().isEmpty());
    fixture->showFilledPage();
    QCOMPARE(fixture->list()->topLevelItemCount(), 1);
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });
    fixture->clickRow(fixture->row("alice"));
    QVERIFY(fixture->editButton()->isEnabled());
}

void tst_AccountsTab::constructionOnlyLoadsTheLayout()
{
    fixture->page();
    QCOMPARE(fixture->host.calls(), QStringList { "loadUI(Accounts, KirvAccountsTab, null)" });
}

void tst_AccountsTab::constructionFillsNothing()
{
    fixture->host.addAccount("alice", "XMPP");
    QCOMPARE(fixture->list()->topLevelItemCount(), 0);
    QCOMPARE(fixture->selector()->count(), 0);
    QVERIFY(fixture->addMenu()->actions().isEmpty());
    QVERIFY(!fixture->page()->getAccEdit());
}

void tst_AccountsTab::theListIsSetUp()
{
    QTreeWidget *list = fixture->list();
    QCOMPARE(list->columnCount(), 4);
    QVERIFY(!list->isColumnHidden(0));
    QVERIFY(!list->isColumnHidden(1));
    QVERIFY(list->isColumnHidden(2));
    QVERIFY(list->isColumnHidden(3));
    QVERIFY(list->itemsExpandable());
    QCOMPARE(list->indentation(), 0);
    QVERIFY(list->isSortingEnabled());
    QCOMPARE(list->header()->sectionResizeMode(0), QHeaderView::Stretch);
    QCOMPARE(list->header()->sectionResizeMode(1), QHeaderView::Interactive);
}

void tst_AccountsTab::theHeaderIsLabelled()
{
    const QTreeWidgetItem *header = fixture->list()->headerItem();
    QCOMPARE(header->text(0), QString("Alias"));
    QCOMPARE(header->text(1), QString("Protocol"));
    QCOMPARE(header->text(2), QString("uid"));
}

void tst_AccountsTab::theAddButtonOpensItsMenuAtOnce()
{
    QCOMPARE(fixture->addButton()->popupMode(), QToolButton::InstantPopup);
    QVERIFY(fixture->addMenu());
    QCOMPARE(fixture->addMenu()->parent(), fixture->page());
}

void tst_AccountsTab::theAddButtonItselfDoesNothing()
{
    fixture->showFilledPage();
    QVERIFY(QMetaObject::invokeMethod(fixture->addButton(), "clicked", Q_ARG(bool, false)));
    QCOMPARE(fixture->host.calls(), QStringList());
    QVERIFY(!kirvVisibleWindow<QDialog>());
}

void tst_AccountsTab::buttonsStartWithoutACurrentRow()
{
    fixture->page();
    QVERIFY(fixture->addButton()->isEnabled());
    QVERIFY(!fixture->editButton()->isEnabled());
    QVERIFY(!fixture->removeButton()->isEnabled());
    QVERIFY(fixture->registerButton()->isEnabled());
}

void tst_AccountsTab::theDeleteKeyIsAShortcutOfTheList()
{
    const QList<QShortcut *> shortcuts =
        fixture->list()->findChildren<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(shortcuts.size(), 1);
    QCOMPARE(shortcuts.first()->key(), QKeySequence(QKeySequence::Delete));
    QCOMPARE(shortcuts.first()->context(), Qt::WindowShortcut);
    QVERIFY(shortcuts.first()->isEnabled());
}

void tst_AccountsTab::theDeleteKeyWorksEvenWhileTheButtonIsDisabled()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    fixture->row("alice")->setSelected(true);
    fixture->removeButton()->setEnabled(false);
    // Anywhere in the window, not only in the list.
    fixture->registerButton()->setFocus();
    QTest::keyClick(fixture->registerButton(), Qt::Key_Delete);
    QVERIFY(kirvVisibleWindow<QMessageBox>());
}

void tst_AccountsTab::everyControlIsConnectedOnce_data()
{
    using Action = std::function<void(KirvPageFixture &)>;
    QTest::addColumn<Action>("act");
    QTest::addColumn<QString>("call");
    const auto add = [](const char *name, const Action &act, const char *call) {
        QTest::newRow(name) << act << QString(call);
    };
    const char *loadsEditWindow = "loadUI(EditAccount, null)";
    add(
        "edit button", [](KirvPageFixture &f) { f.editButton()->click(); }, loadsEditWindow);
    add(
        "activated row", [](KirvPageFixture &f) { QTest::keyClick(f.list(), Qt::Key_Return); }, loadsEditWindow);
    add(
        "register button", [](KirvPageFixture &f) { f.registerButton()->click(); },
        "emitCoreSignal(register_account, 0)");
    add(
        "check box", [](KirvPageFixture &f) { f.row("alice")->setCheckState(0, Qt::Unchecked); },
        "disableAccount(alice, XMPP)");
    add(
        "selector", [](KirvPageFixture &f) { f.selector()->setCurrentIndex(1); },
        "writeGlobalSetting(main_account=bob@@XMPP)");
    add(
        "entry of the add menu",
        [](KirvPageFixture &f) {
            f.host.unloadProtocol("XMPP");
            f.addMenu()->actions().first()->trigger();
        },
        "getProtocolByName(XMPP)");
}

void tst_AccountsTab::everyControlIsConnectedOnce()
{
    QFETCH(std::function<void(KirvPageFixture &)>, act);
    QFETCH(QString, call);
    fixture->host.addAccount("alice", "XMPP");
    fixture->host.addAccount("bob", "XMPP");
    fixture->showFilledPage();
    fixture->page()->updateAccounts();
    fixture->clickRow(fixture->row("alice"));
    fixture->host.forgetCalls();
    act(*fixture);
    QCOMPARE(fixture->host.count(call), 1);
}

void tst_AccountsTab::everyShowRefreshes()
{
    KirvRecordingAccount *alice = fixture->host.addAccount("alice", "XMPP");
    fixture->page()->readProtocolAccounts("XMPP");
    QCOMPARE(fixture->host.count("accountEnabled(alice, XMPP)"), 0);
    fixture->showPage();
    QCOMPARE(fixture->host.count("accountEnabled(alice, XMPP)"), 1);
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });

    fixture->page()->hide();
    alice->loaded = false;
    fixture->showPage();
    QCOMPARE(fixture->host.count("accountEnabled(alice, XMPP)"), 2);
    QCOMPARE(fixture->offered(), QStringList());
}

void tst_AccountsTab::aLayoutWithoutSelectorIsServed()
{
    fixture->host.layouts.omitted.insert("Accounts_MainAccount");
    KirvRecordingAccount *alice = fixture->host.addAccount("alice", "XMPP");
    alice->enabled = false;
    fixture->page()->readProtocolAccounts("XMPP");
    alice->enabled = true;
    fixture->host.forgetCalls();

    // The connection is tried all the same, for the changed row's refresh and for the one around it at most.
    const QRegularExpression warning(R"(^QObject::connect.*::currentIndexChanged\(int\))");
    QTest::ignoreMessage(QtWarningMsg, warning);
    alice->enabled = false;
    fixture->page()->updateAccounts();
    QCOMPARE(fixture->host.calls({ "accountEnabled", "getMainAccount" }),
             QStringList { "accountEnabled(alice, XMPP)" });
    QVERIFY(!fixture->selector());

    // Removing an account does not need it either.
    fixture->row("alice")->setSelected(true);
    QVERIFY(QMetaObject::invokeMethod(fixture->page(), "removeAccountAccepted", Q_ARG(int, QMessageBox::Yes)));
    QCOMPARE(fixture->list()->topLevelItemCount(), 0);
}

void tst_AccountsTab::aLayoutWithoutRegisterButtonIsServed()
{
    fixture->host.layouts.omitted.insert("Accounts_RegisterButton");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(R"(^QObject::connect.*::clicked\(\))"));
    fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });
}

void tst_AccountsTab::whatThePageOwnsGoesWithIt()
{
    fixture->page()->readProtocolAccounts("XMPP");
    const QPointer<QMenu> menu = fixture->addMenu();
    const QPointer<QAction> action = menu->actions().first();
    const QPointer<QShortcut> shortcut = fixture->list()->findChild<QShortcut *>();
    const QPointer<QTreeWidget> list = fixture->list();
    QCOMPARE(action->parent(), fixture->page());
    delete fixture->page();
    QVERIFY(!menu);
    QVERIFY(!action);
    QVERIFY(!shortcut);
    QVERIFY(!list);
}

void tst_AccountsTab::theEditDialogOutlivesThePage()
{
    KirvRecordingAccount *alice = fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    fixture->page()->editAccount(alice);
    const QPointer<KirvEditAccountDialog> controller = fixture->page()->getAccEdit();
    const QPointer<QDialog> window = kirvVisibleWindow<QDialog>();
    QVERIFY(window);

    delete fixture->page();
    QVERIFY(controller);
    QVERIFY(!window);
    QVERIFY(!fixture->page()->getAccEdit());
    // Without its window it still takes every call.
    for (const char *slot : { "saveSettings", "saveAndClose", "requestPubdirInfo", "removePubdirInfo", "reject" })
        QVERIFY(QMetaObject::invokeMethod(controller, slot));
    QCOMPARE(controller->exec(), int(QDialog::Rejected));
    delete controller;
    QVERIFY(!fixture->page()->getAccEdit());
}

void tst_AccountsTab::anOpenQuestionGoesWithThePage()
{
    fixture->host.addAccount("alice", "XMPP");
    fixture->showFilledPage();
    fixture->clickRow(fixture->row("alice"));
    fixture->removeButton()->click();
    const QPointer<QMessageBox> question = kirvVisibleWindow<QMessageBox>();
    QVERIFY(question);
    delete fixture->page();
    QVERIFY(!question);
    QCOMPARE(fixture->host.effects(), QStringList());
}

QTEST_MAIN(tst_AccountsTab)
#include "tst_accounts_tab.moc"

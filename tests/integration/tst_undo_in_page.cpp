// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_undo.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_main_account.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_scripted_answers.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString removed = QStringLiteral("The account bob (Fake) was removed.");
const QString disabled = QStringLiteral("The account bob (Fake) was disabled.");

} // namespace

/// What was removed, disabled or imported in the page comes back, in each of the ways that the page offers.
class tst_UndoInPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void messageUndoesARemoval();
    void messageUndoesItsOwnStep();
    void ctrlZUndoesFromEverywhereInTheWindow();
    void ctrlZInATextFieldUndoesTyping();
    void ctrlZUndoesAfterTheMessageWasClosed();
    void menuUndoes();
    void menuOfTheEmptyPageUndoes();
    void messageUndoesDisabling();
    void messageAndMenuUndoAnImport_data();
    void messageAndMenuUndoAnImport();
    void importThatIsUndoneCanBeMadeAgain();
    void disablingIsNotOfferedWhileTheRemovalCanBeUndone();
    void closedMessageStaysClosed();
    void undoAsksNothing();
    void undoneMainAccountIsShown();
    void greyedRowComesBackGreyed();
    void loginThatWasAddedAnewIsNamed();
    void removalOfATakenLoginIsPassedOver();
    void messageOfAnEarlierStepComesBack();
    void refusedUndoStaysPossible();
    void allAreDisabledAndExactlyThoseEnabledAgain();
    void disablingAllAsksOnce();
    void accountsOfOneNameAreToldApart();

private:
    KirvMessageBar *bar() const { return windows->client->window()->messageBar(); }
    /// The button of the latest message.
    QAbstractButton *undoButton() const
    {
        return bar()->findChildren<QAbstractButton *>("MessageBar_Command").value(0);
    }
    void clickUndo();
    QMenu *menu() const { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    QAction *action(const char *name) const
    {
        return menu() ? menu()->findChild<QAction *>(QLatin1String(name)) : nullptr;
    }
    void trigger(const char *name);
    void press(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier);
    QTreeWidget *list() const { return windows->list(); }

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_UndoInPage::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : { ann, bob, cleo })
        windows->addAccount(id);
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
    KIRV_TRY(windows->account(ann)->isOnline() && windows->account(bob)->isOnline());
}

void tst_UndoInPage::cleanup()
{
    if (menu())
        menu()->close();
    windows.reset();
}

void tst_UndoInPage::clickUndo()
{
    QVERIFY(undoButton());
    QVERIFY(undoButton()->isVisible());
    QTest::mouseClick(undoButton(), Qt::LeftButton);
    KirvClientWindows::settle();
}

void tst_UndoInPage::trigger(const char *name)
{
    press(list(), Qt::Key_Menu, Qt::NoModifier);
    QVERIFY(action(name));
    QVERIFY(action(name)->isEnabled());
    action(name)->trigger();
    if (menu())
        menu()->close();
    KirvClientWindows::settle();
}

void tst_UndoInPage::press(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    windows->client->window()->activateWindow(); // as a window manager does when a question was closed
    KIRV_TRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(windows->client->window()));
    widget->setFocus();
    QTest::keyClick(widget, key, modifiers);
    KirvClientWindows::settle();
}

void tst_UndoInPage::messageUndoesARemoval()
{
    windows->removeInPage(bob);
    QVERIFY(!windows->account(bob));
    QCOMPARE(windows->rowIds(), QStringList({ ann, cleo }));
    QCOMPARE(windows->messages(), QStringList { removed });
    clickUndo();
    QVERIFY(windows->account(bob));
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo }));
    QCOMPARE(list()->currentItem(), windows->row(bob));
    QCOMPARE(windows->selector()->count(), 3);
    QCOMPARE(windows->messages(), QStringList());
    KIRV_TRY(windows->account(bob)->isOnline());
}

void tst_UndoInPage::messageUndoesItsOwnStep()
{
    windows->removeInPage(bob);
    windows->removeInPage(cleo);
    QCOMPARE(int(windows->messages().size()), 2);
    clickUndo();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob }));
    QCOMPARE(windows->messages(), QStringList { QStringLiteral("The account cleo (Fake) was removed.") });
}

void tst_UndoInPage::ctrlZUndoesFromEverywhereInTheWindow()
{
    for (const char *name : { "Accounts_List", "Accounts_MainAccount", "Settings_Pages", "Accounts_StripReason" }) {
        windows->removeInPage(bob);
        QVERIFY(!windows->account(bob));
        windows->select(ann);
        press(KirvClientWindows::child<QWidget>(windows->client->window(), name), Qt::Key_Z);
        QVERIFY2(windows->account(bob), name);
        QVERIFY(windows->row(bob));
        QCOMPARE(windows->messages(), QStringList());
        QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { windows->row(bob) }); // although Ctrl is held
    }
    press(list(), Qt::Key_Z); // nothing is left
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo }));
}

void tst_UndoInPage::ctrlZInATextFieldUndoesTyping()
{
    windows->removeInPage(bob);
    windows->select(ann);
    press(list(), Qt::Key_F2, Qt::NoModifier);
    auto *editor = KirvClientWindows::child<QLineEdit>(list(), "Accounts_AliasEditor");
    QTest::keyClicks(editor, QStringLiteral("Anna"));
    for (int i = 0; i < 3; ++i) // also when nothing of it is left
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    QVERIFY(editor->text() != QStringLiteral("Anna"));
    QVERIFY(editor->isVisible());
    QVERIFY(!windows->account(bob));
}

void tst_UndoInPage::ctrlZUndoesAfterTheMessageWasClosed()
{
    windows->removeInPage(bob);
    KirvClientWindows::child<QAbstractButton>(bar(), "MessageBar_Close")->click();
    QCOMPARE(windows->messages(), QStringList());
    press(list(), Qt::Key_Z);
    QVERIFY(windows->account(bob));
}

void tst_UndoInPage::menuUndoes()
{
    windows->select(ann);
    press(list(), Qt::Key_Menu, Qt::NoModifier);
    QVERIFY(!action("Accounts_UndoAction")->isEnabled());
    menu()->close();
    windows->removeInPage(bob);
    windows->select(ann);
    press(list(), Qt::Key_Menu, Qt::NoModifier);
    QCOMPARE(action("Accounts_UndoAction")->text(), QStringLiteral("&Undo Removing bob"));
    menu()->close();
    trigger("Accounts_UndoAction");
    QVERIFY(windows->account(bob));
}

void tst_UndoInPage::menuOfTheEmptyPageUndoes()
{
    for (const QString &id : { ann, bob, cleo })
        windows->removeInPage(id);
    QVERIFY(!list()->isVisible());
    auto *invitation = KirvClientWindows::child<QWidget>(windows->client->window(), "Accounts_Invitation");
    QVERIFY(invitation->isVisible());
    QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(5, 5), invitation->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(invitation, &request);
    QVERIFY(action("Accounts_UndoAction"));
    action("Accounts_UndoAction")->trigger();
    menu()->close();
    KirvClientWindows::settle();
    QVERIFY(list()->isVisible());
    QCOMPARE(windows->rowIds(), QStringList { cleo });
}

void tst_UndoInPage::messageUndoesDisabling()
{
    windows->account(bob)->setPresence(windows->protocol->presenceWithId(QStringLiteral("away"), QString()));
    windows->toggleInPage(bob);
    QVERIFY(!windows->account(bob)->isEnabled());
    QCOMPARE(windows->messages(), QStringList { disabled });
    clickUndo();
    QVERIFY(windows->account(bob)->isEnabled());
    QCOMPARE(windows->row(bob)->checkState(0), Qt::Checked);
    QCOMPARE(windows->account(bob)->presence().getId(), QStringLiteral("away"));
    QCOMPARE(windows->messages(), QStringList());
    windows->toggleInPage(bob);
    windows->toggleInPage(bob); // enabled by hand: nothing is left to undo
    QCOMPARE(windows->messages(), QStringList());
}

void tst_UndoInPage::disablingIsNotOfferedWhileTheRemovalCanBeUndone()
{
    windows->toggleInPage(bob);
    QCOMPARE(windows->messages(), QStringList { disabled });
    windows->removeInPage(bob);
    QCOMPARE(windows->messages(), QStringList { removed });
    clickUndo();
    QCOMPARE(windows->messages(), QStringList { disabled });
    QVERIFY(!windows->account(bob)->isEnabled());
    clickUndo();
    QVERIFY(windows->account(bob)->isEnabled());
    QCOMPARE(windows->messages(), QStringList());
}

void tst_UndoInPage::closedMessageStaysClosed()
{
    windows->toggleInPage(bob);
    KirvClientWindows::child<QAbstractButton>(bar(), "MessageBar_Close")->click();
    windows->removeInPage(bob);
    clickUndo();
    QCOMPARE(windows->messages(), QStringList());
    press(list(), Qt::Key_Z);
    QVERIFY(windows->account(bob)->isEnabled());
}

/// The page handles each check box that changes, and asks for an account that still logs out.
void tst_UndoInPage::messageAndMenuUndoAnImport_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("undone");
    QTest::newRow("one") << QStringList { "dora" } << "The account dora (Fake) was imported."
                         << "&Undo Importing dora"
                         << "The import of the account dora (Fake) was undone.";
    QTest::newRow("several") << QStringList { "dora", "eve" } << "2 accounts were imported."
                             << "&Undo Importing 2 Accounts"
                             << "The import of 2 accounts was undone.";
}

void tst_UndoInPage::messageAndMenuUndoAnImport()
{
    QFETCH(QStringList, ids);
    QFETCH(QString, message);
    QFETCH(QString, undone);
    KirvAccountHistory::Imported imported;
    for (const QString &id : ids)
        imported.added << windows->addAccount(id)->key();
    KirvAccountHistory &history = windows->client->window()->findChild<KirvAccountUndo *>()->history();
    for (const bool byMenu : { true, false }) {
        history.addImport(imported);
        QCOMPARE(windows->messages(), QStringList { message });
        press(list(), Qt::Key_Menu, Qt::NoModifier);
        QVERIFY(action("Accounts_UndoAction"));
        QTEST(action("Accounts_UndoAction")->text(), "command");
        menu()->close();
        if (byMenu)
            trigger("Accounts_UndoAction");
        else
            clickUndo();
        QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo }));
        QCOMPARE(windows->messages(), QStringList { undone });
        bar()->removeMessage(undone);
        for (const QString &id : ids)
            windows->addAccount(id);
    }
}

/// The key may be meant for what was changed since, which it does not undo.
void tst_UndoInPage::importThatIsUndoneCanBeMadeAgain()
{
    KirvAccountHistory &history = windows->client->window()->findChild<KirvAccountUndo *>()->history();
    KirvAccount *dora = windows->addAccount(QStringLiteral("dora"));
    history.addImport({ { dora->key() }, {}, {} });
    QVERIFY(dora->change([](KirvAccountRecord &record) { record.alias = QStringLiteral("renamed"); }));
    press(list(), Qt::Key_Z);
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo }));
    const QString undone = QStringLiteral("The import of the account renamed (Fake) was undone.");
    QCOMPARE(windows->messages(), QStringList { undone });
    press(list(), Qt::Key_Z); // nothing before it
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo }));
    QCOMPARE(windows->messages(), QStringList { undone });
    QCOMPARE(undoButton()->text(), QStringLiteral("&Import Again"));
    clickUndo();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, "dora" }));
    QCOMPARE(windows->account(QStringLiteral("dora"))->record().alias, QStringLiteral("renamed"));
    QCOMPARE(windows->messages(), QStringList("The account renamed (Fake) was imported."));
    press(list(), Qt::Key_Z);
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo }));
}

void tst_UndoInPage::undoAsksNothing()
{
    windows->toggleInPage(bob);
    windows->removeInPage(bob);
    int handled = 0;
    connect(list(), &QTreeWidget::itemChanged, this, [&handled] { ++handled; });
    press(list(), Qt::Key_Z);
    QVERIFY(!windows->account(bob)->isEnabled());
    QCOMPARE(windows->row(bob)->checkState(0), Qt::Unchecked);
    press(list(), Qt::Key_Z);
    QVERIFY(windows->account(bob)->isEnabled());
    QCOMPARE(windows->row(bob)->checkState(0), Qt::Checked);
    QCOMPARE(handled, 0);
    QVERIFY(KirvClientWindows::boxes().isEmpty());
    list()->disconnect(this);
}

void tst_UndoInPage::undoneMainAccountIsShown()
{
    windows->chooseMainAccount(bob);
    windows->removeInPage(bob);
    QCOMPARE(windows->shownMainAccount(), ann);
    QVERIFY(windows->messages().join(QString()).contains(QStringLiteral("ann is the main account now")));
    press(list(), Qt::Key_Z);
    QCOMPARE(windows->shownMainAccount(), bob);
    QCOMPARE(windows->messages(), QStringList()); // that ann is it has become wrong
}

void tst_UndoInPage::greyedRowComesBackGreyed()
{
    emit windows->client->plugins().protocolAboutToBeUnloaded(windows->protocol);
    KirvClientWindows::settle();
    windows->removeInPage(bob);
    QVERIFY(!windows->row(bob));
    press(list(), Qt::Key_Z);
    QVERIFY(windows->row(bob));
    QVERIFY(!windows->row(bob)->toolTip(0).isEmpty());
    QCOMPARE(windows->row(bob)->foreground(0), windows->row(ann)->foreground(0));
    QCOMPARE(windows->row(bob)->checkState(0), Qt::Checked);
}

void tst_UndoInPage::loginThatWasAddedAnewIsNamed()
{
    windows->removeInPage(bob);
    windows->addAccount(bob);
    press(list(), Qt::Key_Z);
    const QString reason = QStringLiteral("The account \"bob\" (Fake) exists already.");
    QCOMPARE(windows->messages(), QStringList({ removed, reason }));
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo }));
}

/// What belonged to the removed account waits until its login is free.
void tst_UndoInPage::removalOfATakenLoginIsPassedOver()
{
    windows->removeInPage(cleo);
    windows->account(bob)->setAlias(QStringLiteral("Robert"));
    windows->removeInPage(bob);
    windows->addAccount(bob);
    press(list(), Qt::Key_Z);
    QVERIFY(windows->account(cleo));
    press(list(), Qt::Key_Menu, Qt::NoModifier);
    QVERIFY(!action("Accounts_UndoAction")->isEnabled());
    menu()->close();
    windows->removeInPage(bob);
    QCOMPARE(windows->messages(), QStringList({ QStringLiteral("The account Robert (Fake) was removed."), removed }));
    bar()->findChildren<QAbstractButton *>("MessageBar_Command").first()->click(); // Robert's
    KirvClientWindows::settle();
    QCOMPARE(windows->account(bob)->getAlias(), QStringLiteral("Robert"));
}

/// Each message with a button undoes what it names, also where two say the same.
void tst_UndoInPage::messageOfAnEarlierStepComesBack()
{
    windows->removeInPage(bob);
    windows->account(ann)->setAlias(bob);
    windows->removeInPage(ann);
    QCOMPARE(int(windows->messages().filter(removed).size()), 1);
    clickUndo();
    QVERIFY(windows->account(ann) && !windows->account(bob));
    QCOMPARE(int(windows->messages().filter(removed).size()), 1);
    clickUndo();
    QVERIFY(windows->account(bob));
    QCOMPARE(int(windows->messages().filter(removed).size()), 0);
}

void tst_UndoInPage::refusedUndoStaysPossible()
{
    windows->removeInPage(bob);
    {
        const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"));
        clickUndo();
        QVERIFY(!windows->account(bob));
        QVERIFY(!windows->row(bob));
        QCOMPARE(int(windows->messages().size()), 2);
        QCOMPARE(windows->messages().first(), removed);
        QVERIFY(windows->messages().last().contains(QStringLiteral("refused by the test")));
    }
    clickUndo();
    QVERIFY(windows->account(bob));
    QVERIFY(!windows->messages().contains(removed));
}

void tst_UndoInPage::allAreDisabledAndExactlyThoseEnabledAgain()
{
    windows->toggleInPage(cleo);
    {
        const KirvScriptedAnswers answers({ QMessageBox::Yes });
        trigger("Accounts_DisableAllAction");
        KIRV_TRY(!windows->account(ann)->isEnabled());
        QCOMPARE(int(answers.texts.size()), 1);
    }
    for (const QString &id : { ann, bob, cleo }) {
        QVERIFY(!windows->account(id)->isEnabled());
        QCOMPARE(windows->row(id)->checkState(0), Qt::Unchecked);
    }
    QCOMPARE(windows->selector()->count(), 0);
    QVERIFY(windows->messages().contains(QStringLiteral("2 accounts were disabled.")));
    QVERIFY(!windows->messages().join(QString()).contains(QStringLiteral("main account now")));
    press(list(), Qt::Key_Menu, Qt::NoModifier);
    QVERIFY(!action("Accounts_DisableAllAction")->isEnabled());
    menu()->close();
    trigger("Accounts_EnableAgainAction");
    QVERIFY(windows->account(ann)->isEnabled());
    QVERIFY(windows->account(bob)->isEnabled());
    QVERIFY(!windows->account(cleo)->isEnabled());
    QCOMPARE(windows->row(ann)->checkState(0), Qt::Checked);
    QCOMPARE(windows->row(cleo)->checkState(0), Qt::Unchecked);
    QCOMPARE(windows->shownMainAccount(), ann);
    QVERIFY(KirvClientWindows::boxes().isEmpty());
    press(list(), Qt::Key_Menu, Qt::NoModifier);
    QVERIFY(!action("Accounts_EnableAgainAction"));
}

void tst_UndoInPage::disablingAllAsksOnce()
{
    KirvScriptedAnswers answers({ QMessageBox::No });
    trigger("Accounts_DisableAllAction");
    KIRV_TRY_COMPARE(int(answers.texts.size()), 1);
    KirvClientWindows::settle();
    QVERIFY(windows->account(ann)->isEnabled());
    QVERIFY(windows->account(bob)->isEnabled());
    QCOMPARE(windows->messages(), QStringList());
}

void tst_UndoInPage::accountsOfOneNameAreToldApart()
{
    windows->account(ann)->setAlias(bob);
    windows->removeInPage(bob);
    windows->removeInPage(ann);
    QCOMPARE(windows->rowIds(), QStringList { cleo });
    QVERIFY(windows->messages().contains(removed));
    clickUndo(); // of the latest
    QCOMPARE(windows->rowIds(), QStringList({ ann, cleo }));
    press(list(), Qt::Key_Z);
    QVERIFY(windows->account(bob));
}

QTEST_MAIN(tst_UndoInPage)
#include "tst_undo_in_page.moc"

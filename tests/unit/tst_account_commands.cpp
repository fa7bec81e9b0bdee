// SPDX-License-Identifier: LGPL-2.1-or-later
#include "edit_account/kirv_edit_account_dialog.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/unit/kirv_object_counter.h"
#include "tests/unit/kirv_page_fixture.h"
#include "tests/unit/kirv_private_member.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <memory>

KIRV_PRIVATE_MEMBER(KirvAccountsTab, protocolActions);

Q_DECLARE_METATYPE(std::function<void(KirvEditAccountDialog *)>)

namespace {

/// Runs an action once, inside the next showing of a window that has the layout of the edit dialog.
class NextEditWindowShown : public QObject {
public:
    explicit NextEditWindowShown(const std::function<void()> &action)
        : action(action)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && object->objectName() == QLatin1String("EditAccount")) {
            qApp->removeEventFilter(this);
            action();
        }
        return false;
    }

private:
    std::function<void()> action;
};

}

/// The commands that open a dialog or request a registration.
class tst_AccountCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { fixture.reset(); }

    void anAddEntryOpensTheDialogOfItsProtocol();
    void addingReturnsWhenTheDialogHasFinished();
    void anAddEntryOfAnUnloadedProtocolOpensNothing();
    void addingWithoutASenderDoesNothing();
    void addingFromAnythingButAnActionDoesNothing();
    void aForeignActionGetsAnEmptyNameAndOpensNothing();
    void theEditButtonOpensTheSelectedAccount();
    void editingNeedsExactlyOneSelectedRow_data();
    void editingNeedsExactlyOneSelectedRow();
    void activatingAnyColumnOpensTheAccount_data();
    void activatingAnyColumnOpensTheAccount();
    void aDoubleClickOnTheRowOpensTheAccount();
    void theEnterKeyOpensTheAccount();
    void theHostOpensAnAccountWithoutTheList();
    void theNextEditDialogReplacesTheOneBefore();
    void theRecordedDialogNeverDangles_data();
    void theRecordedDialogNeverDangles();
    void anUnknownProtocolEndsTheDialogBeforeAndRecordsNone();
    void aDialogForAnUnknownProtocolIsNotLeaked();
    void anEditDialogReplacedWhileItIsShownIsDeletedOnce_data();
    void anEditDialogReplacedWhileItIsShownIsDeletedOnce();
    void addDialogsLeaveNothingBehind();
    void registeringEmitsOneCoreSignalWithoutArguments();

private:
    QString identifier() const
    {
        const auto *window = kirvVisibleWindow<QDialog>();
        return window ? window->findChild<QLabel *>("EditAccount_Identifier")->text() : QString();
    }

    std::unique_ptr<KirvPageFixture> fixture;
    KirvRecordingAccount *alice = nullptr;
    KirvRecordingAccount *bob = nullptr;
};

void tst_AccountCommands::init()
{
    fixture = std::make_unique<KirvPageFixture>();
    alice = fixture->host.addAccount("alice", "XMPP");
    bob = fixture->host.addAccount("bob", "IRC");
    fixture->showFilledPage();
}

void tst_AccountCommands::anAddEntryOpensTheDialogOfItsProtocol()
{
    fixture->irc->configurations = QStringList { "Home" };
    KirvWindowWatcher<QDialog> watcher([&](QDialog *window) {
        QCOMPARE(window->objectName(), QString("AddAccount"));
        QCOMPARE(window->parent(), fixture->page());
        // No configuration is chosen beforehand.
        QCOMPARE(window->findChild<QComboBox *>("AddAccount_Configuration")->currentIndex(), 0);
        QCOMPARE(fixture->host.calls({ "getConfigurationFields" }), QStringList());
        window->close();
    });
    fixture->addMenu()->actions().at(1)->trigger();
    QCOMPARE(watcher.shown, 1);
    QCOMPARE(fixture->host.calls({ "getProtocolByName", "loadUI", "getLoginPattern" }),
             (QStringList { "getProtocolByName(IRC)", "loadUI(AddAccount, null)", "IRC.getLoginPattern()" }));
}

void tst_AccountCommands::addingReturnsWhenTheDialogHasFinished()
{
    bool isRunning = true;
    KirvWindowWatcher<QDialog> watcher([&](QDialog *window) {
        QVERIFY(isRunning);
        QVERIFY(window->isModal());
        window->reject();
    });
    fixture->addMenu()->actions().first()->trigger();
    isRunning = false;
    QCOMPARE(watcher.shown, 1);
    QVERIFY(!kirvVisibleWindow<QDialog>());
}

void tst_AccountCommands::anAddEntryOfAnUnloadedProtocolOpensNothing()
{
    fixture->host.unloadProtocol("XMPP");
    fixture->addMenu()->actions().first()->trigger();
    QCOMPARE(fixture->host.calls(), QStringList { "getProtocolByName(XMPP)" });
    QVERIFY(!kirvVisibleWindow<QDialog>());
}

void tst_AccountCommands::addingWithoutASenderDoesNothing()
{
    QVERIFY(QMetaObject::invokeMethod(fixture->page(), "addAccount"));
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_AccountCommands::addingFromAnythingButAnActionDoesNothing()
{
    QToolButton button;
    connect(&button, SIGNAL(clicked()), fixture->page(), SLOT(addAccount()));
    button.click();
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_AccountCommands::aForeignActionGetsAnEmptyNameAndOpensNothing()
{
    const auto &actions = fixture->page()->*kirvMember(KirvAccountsTab_protocolActions());
    QCOMPARE(actions.size(), 2);
    QAction foreign;
    connect(&foreign, SIGNAL(triggered()), fixture->page(), SLOT(addAccount()));
    foreign.trigger();
    QCOMPARE(fixture->host.calls(), QStringList { "getProtocolByName(null)" });
    QVERIFY(!kirvVisibleWindow<QDialog>());
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions.value(&foreign, "none"), QString());
}

void tst_AccountCommands::theEditButtonOpensTheSelectedAccount()
{
    fixture->clickRow(fixture->row("bob", "IRC"));
    QTest::mouseClick(fixture->editButton(), Qt::LeftButton);
    QCOMPARE(identifier(), QString("bob (IRC)"));
    QCOMPARE(fixture->host.calls({ "getProtocolByName", "loadUI" }),
             (QStringList { "getProtocolByName(IRC)", "loadUI(EditAccount, null)" }));
    QCOMPARE(fixture->host.calls({ "loadAccount", "readAccountGlobals" }),
             (QStringList { "loadAccount(bob, IRC)", "readAccountGlobals(bob, IRC)" }));
    QCOMPARE(kirvVisibleWindow<QDialog>()->parent(), fixture->page());
    QVERIFY(fixture->page()->getAccEdit());
    QVERIFY(!fixture->page()->getAccEdit()->parent());
}

void tst_AccountCommands::editingNeedsExactlyOneSelectedRow_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("no row selected") << false;
    QTest::newRow("two rows selected") << true;
}

void tst_AccountCommands::editingNeedsExactlyOneSelectedRow()
{
    QFETCH(bool, all);
    fixture->selectAllOrNone(all);
    QVERIFY(fixture->editButton()->isEnabled());
    fixture->editButton()->click();
    QCOMPARE(fixture->host.calls(), QStringList());
    QVERIFY(!fixture->page()->getAccEdit());
}

void tst_AccountCommands::activatingAnyColumnOpensTheAccount_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < 4; ++column)
        QTest::addRow("column %d", column) << column;
}

void tst_AccountCommands::activatingAnyColumnOpensTheAccount()
{
    QFETCH(int, column);
    // The row that is activated counts, not the selected one.
    fixture->clickRow(fixture->row("bob", "IRC"));
    QVERIFY(QMetaObject::invokeMethod(fixture->list(), "itemActivated", Q_ARG(QTreeWidgetItem *, fixture->row("alice")),
                                      Q_ARG(int, column)));
    QCOMPARE(identifier(), QString("alice (XMPP)"));
    QCOMPARE(fixture->host.count("loadUI(EditAccount, null)"), 1);
}

void tst_AccountCommands::aDoubleClickOnTheRowOpensTheAccount()
{
    const QRect cell = fixture->list()->visualItemRect(fixture->row("alice"));
    QTest::mouseClick(fixture->list()->viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(fixture->list()->viewport(), Qt::LeftButton, {}, cell.center());
    QCOMPARE(identifier(), QString("alice (XMPP)"));
}

void tst_AccountCommands::theEnterKeyOpensTheAccount()
{
    fixture->clickRow(fixture->row("alice"));
    QTest::keyClick(fixture->list(), Qt::Key_Return);
    QCOMPARE(identifier(), QString("alice (XMPP)"));
}

void tst_AccountCommands::theHostOpensAnAccountWithoutTheList()
{
    KirvRecordingAccount *carol = fixture->host.addAccount("carol", "XMPP");
    fixture->clickRow(fixture->row("alice"));
    fixture->page()->editAccount(carol);
    QCOMPARE(identifier(), QString("carol (XMPP)"));
    QVERIFY(fixture->page()->getAccEdit());
}

void tst_AccountCommands::theNextEditDialogReplacesTheOneBefore()
{
    fixture->page()->editAccount(alice);
    const QPointer<KirvEditAccountDialog> first = fixture->page()->getAccEdit();
    const QPointer<QDialog> firstWindow = kirvVisibleWindow<QDialog>();
    fixture->page()->editAccount(bob);
    QVERIFY(!first);
    QVERIFY(fixture->page()->getAccEdit());
    // The window is the page's child, not the controller's.
    QVERIFY(firstWindow);
    firstWindow->close();
    QCOMPARE(identifier(), QString("bob (IRC)"));
}

void tst_AccountCommands::theRecordedDialogNeverDangles_data()
{
    using End = std::function<void(KirvEditAccountDialog *)>;
    QTest::addColumn<End>("end");
    QTest::newRow("deleted") << End([](KirvEditAccountDialog *dialog) { delete dialog; });
    QTest::newRow("its finished() called") << End(
        [](KirvEditAccountDialog *dialog) { QVERIFY(QMetaObject::invokeMethod(dialog, "finished", Q_ARG(int, 0))); });
    QTest::newRow("connected to its window, which is closed") << End([](KirvEditAccountDialog *dialog) {
        auto *window = kirvVisibleWindow<QDialog>();
        connect(window, SIGNAL(finished(int)), dialog, SLOT(finished(int)));
        window->close();
    });
    QTest::newRow("connected to its window, which is saved") << End([](KirvEditAccountDialog *dialog) {
        auto *window = kirvVisibleWindow<QDialog>();
        window->setAttribute(Qt::WA_DeleteOnClose);
        connect(window, SIGNAL(finished(int)), dialog, SLOT(finished(int)));
        window->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });
}

void tst_AccountCommands::theRecordedDialogNeverDangles()
{
    QFETCH(std::function<void(KirvEditAccountDialog *)>, end);
    fixture->page()->editAccount(alice);
    const QPointer<KirvEditAccountDialog> first = fixture->page()->getAccEdit();
    end(first);
    fixture->letGo();
    QVERIFY(!first);
    QVERIFY(!fixture->page()->getAccEdit());
    fixture->page()->editAccount(bob);
    QVERIFY(fixture->page()->getAccEdit());
}

void tst_AccountCommands::anUnknownProtocolEndsTheDialogBeforeAndRecordsNone()
{
    fixture->page()->editAccount(alice);
    const QPointer<KirvEditAccountDialog> first = fixture->page()->getAccEdit();
    fixture->host.unloadProtocol("IRC");
    fixture->host.forgetCalls();
    fixture->page()->editAccount(bob);
    QVERIFY(!first);
    QVERIFY(!fixture->page()->getAccEdit());
    QCOMPARE(fixture->host.calls({ "loadUI", "loadAccount", "readAccountGlobals" }), QStringList());
}

void tst_AccountCommands::aDialogForAnUnknownProtocolIsNotLeaked()
{
    fixture->host.unloadProtocol("IRC");
    const KirvObjectCounter counter;
    fixture->page()->editAccount(bob);
    QVERIFY(QMetaObject::invokeMethod(fixture->page(), "itemActivated",
                                      Q_ARG(QTreeWidgetItem *, fixture->row("bob", "IRC")), Q_ARG(int, 0)));
    QCOMPARE(counter.living(), 0);
}

void tst_AccountCommands::anEditDialogReplacedWhileItIsShownIsDeletedOnce_data()
{
    QTest::addColumn<bool>("secondIsKnown");
    QTest::newRow("by an account of a loaded protocol") << true;
    QTest::newRow("by an account of an unloaded protocol") << false;
}

void tst_AccountCommands::anEditDialogReplacedWhileItIsShownIsDeletedOnce()
{
    QFETCH(bool, secondIsKnown);
    if (!secondIsKnown)
        fixture->host.unloadProtocol("IRC");
    QPointer<KirvEditAccountDialog> first;
    QPointer<KirvEditAccountDialog> second;
    const NextEditWindowShown showing([&] {
        first = fixture->page()->getAccEdit();
        QVERIFY(first);
        fixture->page()->editAccount(bob);
        QVERIFY(!first);
        second = fixture->page()->getAccEdit();
        QCOMPARE(!second.isNull(), secondIsKnown);
    });
    fixture->page()->editAccount(alice);
    QCOMPARE(fixture->page()->getAccEdit(), second.data());
    QCOMPARE(!second.isNull(), secondIsKnown);
}

void tst_AccountCommands::addDialogsLeaveNothingBehind()
{
    fixture->xmpp->configurations = QStringList { "Home" };
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->close(); });
    const auto addAndCancel = [&] {
        fixture->addMenu()->actions().first()->trigger();
        fixture->letGo();
    };
    // What Qt keeps for later is made by the first one.
    addAndCancel();
    const KirvObjectCounter counter;
    for (int i = 0; i < 10; ++i)
        addAndCancel();
    QCOMPARE(watcher.shown, 11);
    QCOMPARE(counter.living(), 0);
}

void tst_AccountCommands::registeringEmitsOneCoreSignalWithoutArguments()
{
    QTest::mouseClick(fixture->registerButton(), Qt::LeftButton);
    QCOMPARE(fixture->host.calls(), QStringList { "emitCoreSignal(register_account, 0)" });
    QTest::mouseClick(fixture->registerButton(), Qt::LeftButton);
    QCOMPARE(fixture->host.count("emitCoreSignal(register_account, 0)"), 2);
}

QTEST_MAIN(tst_AccountCommands)
#include "tst_account_commands.moc"

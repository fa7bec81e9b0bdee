// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_settings_window.h"
#include "client/kirv_translations.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_scripted_answers.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>
#include <QtTest>
#include <algorithm>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");

/// The style of a desktop in which a click activates.
class ActivatingStyle : public QProxyStyle {
public:
    ActivatingStyle()
        : QProxyStyle(QStringLiteral("fusion"))
    {
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_ItemView_ActivateItemOnSingleClick ? 1
                                                             : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

/// Turns the wheel by one step, as the window system reports it.
void turnWheel(QWidget *widget)
{
    const QPoint place = widget->rect().center();
    QWheelEvent turn(place, widget->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(widget, &turn);
}

} // namespace

/// Commands that can be reached in more than one way, and movements that change nothing.
class tst_PageSlips : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void wheelChangesNoSelectorWithoutTheFocus();
    void wheelChangesNoFieldWithoutTheFocus_data();
    void wheelChangesNoFieldWithoutTheFocus();
    void newRowIsSelectedAndScrolledTo();
    void newRowLeavesAnOpenQuestionAlone();
    void newRowLeavesTheEditorAlone();
    void menuOpensForTheCurrentRow_data();
    void menuOpensForTheCurrentRow();
    void menuOpensForTheRowUnderThePointer();
    void menuWithoutARowOffersWhatNeedsNone();
    void menuEdits();
    void menuDisablesAndEnables();
    void menuReconnects();
    void menuRemoves();
    void menuMakesTheMainAccount();
    void menuChangesThePresence();
    void menuAsksForThePassword();
    void menuOffersWhatIsPossible();
    void menuGoesWithItsAccount();
    void clickBelowTheRowsChoosesNoAccount();
    void f2RenamesInPlace();
    void renamingIsOneChangeOfTheStore();
    void blankAliasIsNone();
    void rowOfABlankAliasShowsTheLogin();
    void blanksAroundATypedAliasAreDropped();
    void refusedAliasIsNotShown();
    void escapeKeepsTheAlias();
    void clickElsewhereKeepsWhatWasTyped();
    void keysOfTheEditorReachNoCommand();
    void editorGoesWithItsRow();
    void ctrlNOpensTheMenuOfTheProtocols();
    void singleClickOnlySelects();
    void keyboardAloneRunsThePage_data();
    void keyboardAloneRunsThePage();

private:
    QTreeWidget *list() const { return windows->list(); }
    QMenu *menu() const
    {
        auto *open = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        return open && open->isVisible() ? open : nullptr;
    }
    /// Opens the menu of the account by the keyboard and chooses a command in it.
    void choose(const QString &id, const char *command);
    QAction *action(const char *name) const
    {
        return menu() ? menu()->findChild<QAction *>(QLatin1String(name)) : nullptr;
    }
    QLineEdit *editor() const { return KirvClientWindows::child<QLineEdit>(list(), "Accounts_AliasEditor"); }
    bool isEditing() const { return editor()->isVisible(); }
    QWidget *editWindow() const
    {
        const auto *opened = windows->client->accountsPage()->getAccEdit();
        return opened && opened->getWindow() && opened->getWindow()->isVisible() ? opened->getWindow() : nullptr;
    }
    /// Makes \a window the active one, as a window manager does.
    static void activate(QWidget *window);
    void activatePage();
    void startWithLanguages();
    /// Over the fields of the test's row in \a window, each without and with the focus.
    static void turnWheelOverFields(QWidget *window);

    std::unique_ptr<KirvTranslations> translations; ///< null but where a language is chosen
    std::unique_ptr<KirvClientWindows> windows;
};

void tst_PageSlips::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : { ann, bob })
        windows->addAccount(id);
    activatePage();
}

void tst_PageSlips::cleanup()
{
    if (menu())
        menu()->close();
    windows.reset();
    translations.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
}

void tst_PageSlips::activate(QWidget *window)
{
    QVERIFY(QTest::qWaitForWindowExposed(window, kirvPatience));
    window->activateWindow();
    KIRV_TRY_COMPARE(QApplication::activeWindow(), window);
}

void tst_PageSlips::activatePage()
{
    activate(windows->client->window());
    list()->setFocus();
}

void tst_PageSlips::choose(const QString &id, const char *command)
{
    windows->select(id);
    QTest::keyClick(list(), Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(action(command));
    QVERIFY(action(command)->isEnabled());
    for (int i = 0; i < 20 && menu()->activeAction() != action(command); ++i)
        QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Return);
    KirvClientWindows::settle();
    QVERIFY(!menu());
}

void tst_PageSlips::wheelChangesNoSelectorWithoutTheFocus()
{
    QCOMPARE(windows->shownMainAccount(), ann);
    turnWheel(windows->selector());
    QCOMPARE(windows->shownMainAccount(), ann);
    QVERIFY(!windows->selector()->hasFocus());
    windows->selector()->setFocus();
    turnWheel(windows->selector());
    QCOMPARE(windows->shownMainAccount(), bob);
}

void tst_PageSlips::wheelChangesNoFieldWithoutTheFocus_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("edit window") << "edit window" << QStringList { "KirvField_port", "EditAccount_PresenceCombo" };
    QTest::newRow("add window") << "add window"
                                << QStringList { "KirvField_port", "AddAccount_PresenceCombo",
                                                 "AddAccount_Configuration" };
    QTest::newRow("page General") << "page General" << QStringList { "General_Language" };
}

void tst_PageSlips::wheelChangesNoFieldWithoutTheFocus()
{
    QFETCH(QString, place);
    bool isRun = false;
    const auto check = [&](QWidget *window) {
        isRun = true;
        turnWheelOverFields(window);
    };
    if (place == QLatin1String("edit window")) {
        check(windows->edit(ann));
    } else if (place == QLatin1String("page General")) {
        startWithLanguages();
        windows->client->window()->showPage(KirvClientWindows::child<QWidget>(windows->client->window(), "General"));
        check(windows->client->window());
    } else {
        windows->protocol->configurations = QStringList { "Usual", "Other" };
        windows->protocol->configurationFields = windows->protocol->settings;
        windows->inAddWindow([&](KirvLayoutDialog *window) {
            KirvClientWindows::child<QToolButton>(window, "AddAccount_Advanced")->setChecked(true);
            check(window);
        });
    }
    QVERIFY(isRun);
}

/// A language can be chosen only with them.
void tst_PageSlips::startWithLanguages()
{
    windows->end();
    translations = std::make_unique<KirvTranslations>(*qApp, windows->folder.path());
    translations->use(QString());
    windows->restart();
    QVERIFY(windows->isReady());
}

void tst_PageSlips::turnWheelOverFields(QWidget *window)
{
    QFETCH(QStringList, fields);
    activate(window);
    for (const QString &name : fields) {
        auto *field = window->findChild<QWidget *>(name);
        QVERIFY2(field && field->isVisible() && field->isEnabled(), qPrintable(name));
        const bool isSelector = qobject_cast<QComboBox *>(field);
        QSignalSpy changes(field, isSelector ? SIGNAL(currentIndexChanged(int)) : SIGNAL(valueChanged(int)));
        const auto buttons = window->findChildren<QPushButton *>();
        const auto other = std::find_if(buttons.begin(), buttons.end(), [](const QPushButton *button) {
            return button->isVisible() && button->isEnabled() && button->focusPolicy() != Qt::NoFocus;
        });
        QVERIFY(other != buttons.end());
        (*other)->setFocus();
        turnWheel(field);
        if (auto *line = field->findChild<QLineEdit *>())
            turnWheel(line);
        QVERIFY2(changes.isEmpty(), qPrintable(name));
        QVERIFY2(!field->hasFocus(), qPrintable(name));
        field->setFocus();
        turnWheel(field);
        QVERIFY2(changes.size() == 1, qPrintable(name));
    }
}

void tst_PageSlips::newRowIsSelectedAndScrolledTo()
{
    for (int i = 0; i < 40; ++i)
        windows->addAccount(QStringLiteral("user%1").arg(i, 2, 10, QLatin1Char('0')));
    windows->addAccount(QStringLiteral("aaa"));
    QTreeWidgetItem *row = windows->row(QStringLiteral("aaa"));
    QCOMPARE(list()->currentItem(), row);
    QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { row });
    QVERIFY(list()->viewport()->rect().contains(list()->visualItemRect(row)));
    QVERIFY(windows->addInWindow(QStringLiteral("zzz")));
    row = windows->row(QStringLiteral("zzz"));
    QCOMPARE(list()->currentItem(), row);
    QVERIFY(list()->viewport()->rect().contains(list()->visualItemRect(row)));
}

void tst_PageSlips::newRowLeavesAnOpenQuestionAlone()
{
    windows->select(ann);
    windows->pageButton("Accounts_RemoveButton")->click();
    KIRV_TRY(!KirvClientWindows::boxes().isEmpty());
    windows->addAccount(cleo);
    QCOMPARE(list()->currentItem(), windows->row(ann));
    KirvClientWindows::boxes().first()->button(QMessageBox::Yes)->click();
    KirvClientWindows::settle();
    QVERIFY(!windows->account(ann));
    QVERIFY(windows->account(cleo));
}

void tst_PageSlips::newRowLeavesTheEditorAlone()
{
    windows->select(ann);
    QTest::keyClick(list(), Qt::Key_F2);
    QVERIFY(isEditing());
    windows->addAccount(cleo);
    QVERIFY(isEditing());
    QCOMPARE(list()->currentItem(), windows->row(ann));
}

void tst_PageSlips::menuOpensForTheCurrentRow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Menu") << int(Qt::Key_Menu) << int(Qt::NoModifier);
    QTest::newRow("Shift+F10") << int(Qt::Key_F10) << int(Qt::ShiftModifier);
}

void tst_PageSlips::menuOpensForTheCurrentRow()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(menu());
    QStringList offered;
    for (const QAction *command : menu()->actions())
        offered << command->objectName();
    for (const char *command : { "Accounts_EditAction", "Accounts_RenameAction", "Accounts_EnableAction",
                                 "Accounts_ReconnectAction", "Accounts_RemoveAction", "Accounts_MainAction" })
        QVERIFY2(offered.contains(QLatin1String(command)), command);
    QVERIFY(menu()->activeAction());
    QTest::keyClick(menu(), Qt::Key_Escape);
    QVERIFY(!menu());
    // A platform that makes a request for the menu as well.
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(1, 1), list()->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(list(), &request);
    QVERIFY(menu());
}

void tst_PageSlips::menuOpensForTheRowUnderThePointer()
{
    windows->select(ann);
    const QPoint place = list()->visualItemRect(windows->row(bob)).center();
    QContextMenuEvent request(QContextMenuEvent::Mouse, place, list()->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list()->viewport(), &request);
    QVERIFY(menu());
    QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { windows->row(bob) });
}

void tst_PageSlips::menuWithoutARowOffersWhatNeedsNone()
{
    const auto check = [this] {
        QVERIFY(menu());
        QVERIFY(action("Accounts_DisableAllAction"));
        QVERIFY(!action("Accounts_EditAction"));
        QVERIFY(!action("Accounts_RemoveAction"));
        menu()->close();
        KirvClientWindows::settle();
    };
    const QPoint place(5, list()->viewport()->height() - 2);
    QVERIFY(!list()->itemAt(place));
    QContextMenuEvent request(QContextMenuEvent::Mouse, place, list()->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list()->viewport(), &request);
    check();
    list()->setCurrentItem(nullptr);
    QTest::keyClick(list(), Qt::Key_Menu);
    check();
}

void tst_PageSlips::menuEdits()
{
    choose(bob, "Accounts_EditAction");
    QVERIFY(editWindow());
    QCOMPARE(KirvClientWindows::child<QLineEdit>(editWindow(), "EditAccount_Alias")->text(), bob);
}

void tst_PageSlips::menuDisablesAndEnables()
{
    KIRV_TRY(windows->account(bob)->isOnline());
    {
        KirvScriptedAnswers answers({ QMessageBox::No, QMessageBox::Yes });
        choose(bob, "Accounts_EnableAction");
        QCOMPARE(int(answers.texts.size()), 1);
        QVERIFY(windows->account(bob)->isEnabled());
        activatePage();
        choose(bob, "Accounts_EnableAction");
        QCOMPARE(int(answers.texts.size()), 2);
    }
    QVERIFY(!windows->account(bob)->isEnabled());
    QCOMPARE(windows->row(bob)->checkState(0), Qt::Unchecked);
    activatePage();
    choose(bob, "Accounts_EnableAction");
    QVERIFY(windows->account(bob)->isEnabled());
}

void tst_PageSlips::menuReconnects()
{
    KIRV_TRY(windows->account(bob)->isOnline());
    windows->protocol->server->takeCalls();
    choose(bob, "Accounts_ReconnectAction");
    KIRV_TRY(windows->protocol->server->calls.join(QLatin1Char(' ')).contains(QLatin1String("bob log in")));
}

void tst_PageSlips::menuRemoves()
{
    KirvScriptedAnswers answers({ QMessageBox::Yes });
    choose(bob, "Accounts_RemoveAction");
    KIRV_TRY(!windows->account(bob));
    QCOMPARE(int(answers.texts.size()), 1);
    QCOMPARE(windows->rowIds(), QStringList { ann });
}

void tst_PageSlips::menuMakesTheMainAccount()
{
    QCOMPARE(windows->shownMainAccount(), ann);
    choose(bob, "Accounts_MainAction");
    QCOMPARE(windows->shownMainAccount(), bob);
    QCOMPARE(windows->client->settings().value(QStringLiteral("main_account")), QStringLiteral("bob@@Fake"));
    QCOMPARE(windows->client->window()->windowTitle(), QStringLiteral("Kirv – Settings – bob"));
}

void tst_PageSlips::menuChangesThePresence()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_Menu);
    auto *presences = menu()->findChild<QMenu *>(QStringLiteral("Accounts_PresenceMenu"));
    QVERIFY(presences);
    QCOMPARE(int(presences->actions().size()), 3);
    QVERIFY(presences->actions().first()->isChecked());
    presences->actions().at(1)->trigger();
    QCOMPARE(windows->account(bob)->presence().getId(), QStringLiteral("away"));
}

void tst_PageSlips::menuAsksForThePassword()
{
    choose(bob, "Accounts_PasswordAction");
    const auto *question = windows->client->window()->findChild<KirvPasswordDialog *>();
    QVERIFY(question);
    QCOMPARE(question->key().id, bob);
}

void tst_PageSlips::menuOffersWhatIsPossible()
{
    windows->account(bob)->setEnabled(false);
    windows->client->accountsPage()->updateAccounts();
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_Menu);
    QVERIFY(action("Accounts_EditAction")->isEnabled());
    QVERIFY(!action("Accounts_ReconnectAction")->isEnabled());
    QVERIFY(!action("Accounts_MainAction")->isEnabled());
    menu()->close();
    windows->select(ann);
    QTest::keyClick(list(), Qt::Key_Menu);
    QVERIFY(!action("Accounts_MainAction")->isEnabled()); // it is
    menu()->close();
    windows->client->accounts().protocolAboutToBeUnloaded(windows->protocol->name);
    QTest::keyClick(list(), Qt::Key_Menu);
    QVERIFY(!action("Accounts_EditAction")->isEnabled());
    QVERIFY(!action("Accounts_ReconnectAction")->isEnabled());
    QVERIFY(action("Accounts_RenameAction")->isEnabled());
    QVERIFY(action("Accounts_RemoveAction")->isEnabled());
}

void tst_PageSlips::menuGoesWithItsAccount()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_Menu);
    QVERIFY(menu());
    KirvAccountManager::getInstance()->removeAccount(bob, QStringLiteral("Fake"));
    KIRV_TRY(!menu());
}

/// No command is offered that would do nothing, and none for an account that is not selected.
void tst_PageSlips::clickBelowTheRowsChoosesNoAccount()
{
    windows->select(ann);
    QVERIFY(windows->pageButton("Accounts_EditButton")->isEnabled());
    const auto *strip =
        KirvClientWindows::child<QAbstractButton>(windows->client->accountsPage(), "Accounts_StripEditButton");
    KIRV_TRY(strip->isVisible());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, list()->viewport()->height() - 3));
    KirvClientWindows::settle();
    QVERIFY(list()->selectedItems().isEmpty());
    QVERIFY(!list()->currentItem());
    for (const char *button : { "Accounts_EditButton", "Accounts_RemoveButton" })
        QVERIFY(!windows->pageButton(button)->isEnabled());
    QVERIFY(!strip->isVisible() || !strip->isEnabled());
    QTest::keyClick(list(), Qt::Key_F2);
    QVERIFY(!isEditing());
    QTest::keyClick(list(), Qt::Key_Down);
    QCOMPARE(int(list()->selectedItems().size()), 1);
}

void tst_PageSlips::f2RenamesInPlace()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QVERIFY(isEditing());
    QVERIFY(editor()->hasFocus());
    QCOMPARE(editor()->selectedText(), bob);
    QVERIFY(list()->visualItemRect(windows->row(bob)).contains(editor()->geometry().center()));
    QTest::keyClicks(editor(), QStringLiteral("Robert"));
    QTest::keyClick(editor(), Qt::Key_Return);
    KirvClientWindows::settle();
    QVERIFY(!isEditing());
    QVERIFY(list()->hasFocus());
    QVERIFY(!editWindow());
    QCOMPARE(windows->account(bob)->getAlias(), QStringLiteral("Robert"));
    QCOMPARE(windows->row(bob)->text(0), QStringLiteral("Robert"));
    QVERIFY(windows->selector()->findText(QStringLiteral("Robert")) >= 0);
}

void tst_PageSlips::renamingIsOneChangeOfTheStore()
{
    windows->account(bob)->setEnabled(false);
    windows->client->accountsPage()->updateAccounts();
    KirvClientWindows::settle();
    int changes = 0;
    connect(list(), &QTreeWidget::itemChanged, this, [&changes] { ++changes; });
    const int commits = windows->client->profile().commitCount();
    choose(bob, "Accounts_RenameAction");
    QVERIFY(isEditing());
    QTest::keyClicks(editor(), QStringLiteral("Robert"));
    QTest::keyClick(editor(), Qt::Key_Return);
    KirvClientWindows::settle();
    list()->disconnect(this);
    QCOMPARE(windows->row(bob)->text(0), QStringLiteral("Robert"));
    QCOMPARE(windows->client->profile().commitCount(), commits + 1);
    QCOMPARE(changes, 0);
}

void tst_PageSlips::blankAliasIsNone()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QTest::keyClicks(editor(), QStringLiteral("   "));
    QTest::keyClick(editor(), Qt::Key_Return);
    KirvClientWindows::settle();
    QCOMPARE(windows->account(bob)->getAlias(), QString());
    QCOMPARE(windows->row(bob)->text(0), bob);
}

/// As another window stores what was typed.
void tst_PageSlips::rowOfABlankAliasShowsTheLogin()
{
    const QString blank = QStringLiteral(" \u00a0 ");
    windows->account(bob)->setAlias(blank);
    KirvClientWindows::settle();
    QCOMPARE(windows->account(bob)->getAlias(), blank);
    QCOMPARE(windows->account(bob)->displayName(), bob);
    QCOMPARE(windows->account(bob)->info()->getAlias(), bob);
    QCOMPARE(windows->row(bob)->text(0), bob);
    QVERIFY(windows->selector()->findText(bob) >= 0);
    windows->restart();
    KirvClientWindows::settle();
    QCOMPARE(windows->row(bob)->text(0), bob);
}

void tst_PageSlips::blanksAroundATypedAliasAreDropped()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QTest::keyClicks(editor(), QStringLiteral(" Robert the Second "));
    QTest::keyClick(editor(), Qt::Key_Return);
    KirvClientWindows::settle();
    QCOMPARE(windows->account(bob)->getAlias(), QStringLiteral("Robert the Second"));
}

void tst_PageSlips::refusedAliasIsNotShown()
{
    const StoreRefusal refusal(windows->profileFolder());
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QTest::keyClicks(editor(), QStringLiteral("Robert"));
    QTest::keyClick(editor(), Qt::Key_Return);
    KirvClientWindows::settle();
    QCOMPARE(windows->row(bob)->text(0), bob);
    QCOMPARE(windows->account(bob)->getAlias(), bob);
    QVERIFY(!windows->messages().isEmpty());
}

void tst_PageSlips::escapeKeepsTheAlias()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QTest::keyClicks(editor(), QStringLiteral("Robert"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    KirvClientWindows::settle();
    QVERIFY(!isEditing());
    QVERIFY(windows->client->window()->isVisible());
    QCOMPARE(windows->account(bob)->getAlias(), bob);
}

void tst_PageSlips::clickElsewhereKeepsWhatWasTyped()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QTest::keyClicks(editor(), QStringLiteral("Robert"));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualItemRect(windows->row(ann)).center());
    windows->selector()->setFocus();
    KirvClientWindows::settle();
    QVERIFY(!isEditing());
    QCOMPARE(windows->account(bob)->getAlias(), QStringLiteral("Robert"));
}

void tst_PageSlips::keysOfTheEditorReachNoCommand()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QTest::keyClick(editor(), Qt::Key_Home);
    QTest::keyClick(editor(), Qt::Key_Delete);
    QTest::keyClick(editor(), Qt::Key_Down);
    QTest::keyClick(editor(), Qt::Key_Space);
    QVERIFY(KirvClientWindows::boxes().isEmpty());
    QVERIFY(isEditing());
    QCOMPARE(editor()->text(), QStringLiteral(" ob"));
    QCOMPARE(list()->currentItem(), windows->row(bob));
}

void tst_PageSlips::editorGoesWithItsRow()
{
    windows->select(bob);
    QTest::keyClick(list(), Qt::Key_F2);
    QVERIFY(isEditing());
    KirvAccountManager::getInstance()->removeAccount(bob, QStringLiteral("Fake"));
    KIRV_TRY(!isEditing());
    QCOMPARE(windows->account(ann)->getAlias(), ann);
}

void tst_PageSlips::ctrlNOpensTheMenuOfTheProtocols()
{
    for (QWidget *focused : { static_cast<QWidget *>(list()), static_cast<QWidget *>(windows->selector()),
                              KirvClientWindows::child<QWidget>(windows->client->window(), "Settings_Pages") }) {
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(menu(),
                 KirvClientWindows::child<QToolButton>(windows->client->accountsPage(), "Accounts_AddButton")->menu());
        QVERIFY(menu()->activeAction());
        menu()->close();
    }
}

void tst_PageSlips::singleClickOnlySelects()
{
    windows.reset();
    QApplication::setStyle(new ActivatingStyle);
    windows = std::make_unique<KirvClientWindows>();
    for (const QString &id : { ann, bob })
        windows->addAccount(id);
    activatePage();
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick), 1);
    const QPoint place = list()->visualItemRect(windows->row(bob)).center();
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(list()->currentItem(), windows->row(bob));
    QVERIFY(!editWindow());
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place);
    QVERIFY(editWindow());
    qobject_cast<QDialog *>(editWindow())->reject();
    KIRV_TRY(!editWindow());
    activatePage();
    QTest::keyClick(list(), Qt::Key_Return);
    QVERIFY(editWindow());
}

void tst_PageSlips::keyboardAloneRunsThePage_data()
{
    QTest::addColumn<bool>("isRightToLeft");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

/// Renames, edits, disables and removes an account without the mouse.
void tst_PageSlips::keyboardAloneRunsThePage()
{
    QFETCH(bool, isRightToLeft);
    QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    windows->account(bob)->setPresence(windows->protocol->presenceWithId(QStringLiteral("offline"), QString()));
    KIRV_TRY(!windows->account(bob)->isOnline());
    QTest::keyClick(list(), Qt::Key_Home);
    QTest::keyClick(list(), Qt::Key_Down);
    QCOMPARE(list()->currentItem(), windows->row(bob));

    QTest::keyClick(list(), Qt::Key_F2);
    // The check box stands before the text, on the side where reading begins.
    const QRect row = list()->visualItemRect(windows->row(bob));
    const int before = isRightToLeft ? row.right() - editor()->geometry().right() : editor()->geometry().left();
    const int after = isRightToLeft ? editor()->geometry().left() : row.right() - editor()->geometry().right();
    QVERIFY2(isRightToLeft ? before > 0 && after >= list()->columnWidth(1) : before > 0 && after >= 0,
             qPrintable(QStringLiteral("%1 %2").arg(before).arg(after)));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Robert"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    KirvClientWindows::settle();
    QCOMPARE(windows->row(bob)->text(0), QStringLiteral("Robert"));

    QTest::keyClick(list(), Qt::Key_Return);
    QVERIFY(editWindow());
    activate(editWindow());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    KIRV_TRY(!editWindow());

    activatePage();
    QTest::keyClick(list(), Qt::Key_Space);
    KirvClientWindows::settle();
    QVERIFY(!windows->account(bob)->isEnabled());

    KirvScriptedAnswers answers({ QMessageBox::Yes });
    QTest::keyClick(list(), Qt::Key_Delete);
    KIRV_TRY(!windows->account(bob));
    QCOMPARE(windows->rowIds(), QStringList { ann });
}

QTEST_MAIN(tst_PageSlips)
#include "tst_page_slips.moc"

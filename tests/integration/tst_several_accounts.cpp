// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_scripted_answers.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString dora = QStringLiteral("dora");

} // namespace

/// Several accounts are changed at once: with one question, and as one step to undo.
class tst_SeveralAccounts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void shiftAndCtrlSelectSeveral();
    void buttonsAndStripKnowThatThereAreSeveral();
    void stripIsAboutTheSelectedRow();
    void severalAreDisabledWithOneQuestion();
    void severalOffLineAreDisabledWithoutAQuestion();
    void severalAreEnabled();
    void changingSeveralIsOneChangeOfTheStore();
    void disablingAllAndBackIsOneChangeEach();
    void refusedChangeOfSeveralChangesNone_data();
    void refusedChangeOfSeveralChangesNone();
    void refusedUndoOfSeveralEnablesNone();
    void undoneDisablingBringsThePresencesBack();
    void refreshOfThePageIsNoClickMeanwhile();
    void mainAccountThatIsDisabledIsPassedOnOnce();
    void severalAreRemoved_data();
    void severalAreRemoved();
    void severalComeBackInTheOwnOrder_data();
    void severalComeBackInTheOwnOrder();
    void messageFollowsAPartialUndo();
    void refusedQuestionRemovesNone();
    void refusedRemovalKeepsAllRows();
    void mainAccountIsPassedOnOnce();
    void oneOfSeveralIsRemovedByThePageAlone();

private:
    QTreeWidget *list() const { return windows->list(); }
    QMenu *menu() const { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    void click(const QString &id, Qt::KeyboardModifiers modifiers = {});
    void choose(const char *command);
    void activate();
    void disableFrom(const QString &first, const QString &last);
    QStringList storedAsEnabled() const;
    QStringList shownAsEnabled() const;
    int commits() const { return windows->client->profile().commitCount(); }

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_SeveralAccounts::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : { ann, bob, cleo, dora })
        windows->addAccount(id);
    KIRV_TRY(windows->account(dora)->isOnline());
    activate();
}

void tst_SeveralAccounts::cleanup()
{
    if (menu())
        menu()->close();
    windows.reset();
}

void tst_SeveralAccounts::activate()
{
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
    list()->setFocus();
}

void tst_SeveralAccounts::click(const QString &id, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, list()->visualItemRect(windows->row(id)).center());
    KirvClientWindows::settle();
}

void tst_SeveralAccounts::choose(const char *command)
{
    activate();
    QTest::keyClick(list(), Qt::Key_Menu);
    QVERIFY(menu());
    auto *action = menu()->findChild<QAction *>(QLatin1String(command));
    QVERIFY(action);
    action->trigger();
    if (menu())
        menu()->close();
    KirvClientWindows::settle();
}

void tst_SeveralAccounts::disableFrom(const QString &first, const QString &last)
{
    click(first);
    click(last, Qt::ShiftModifier);
    KirvScriptedAnswers answers({ QMessageBox::Yes });
    choose("Accounts_DisableSeveralAction");
    KIRV_TRY_COMPARE(int(answers.texts.size()), 1);
    KirvClientWindows::settle();
}

QStringList tst_SeveralAccounts::storedAsEnabled() const
{
    QStringList ids;
    const QList<KirvAccountRecord> records = windows->client->profile().readAccounts();
    for (const KirvAccountRecord &record : records) {
        if (record.enabled)
            ids << record.key.id;
    }
    return ids;
}

QStringList tst_SeveralAccounts::shownAsEnabled() const
{
    QStringList ids;
    const QStringList all = windows->rowIds();
    for (const QString &id : all) {
        if (windows->row(id)->checkState(0) == Qt::Checked)
            ids << id;
    }
    return ids;
}

void tst_SeveralAccounts::shiftAndCtrlSelectSeveral()
{
    click(ann);
    click(cleo, Qt::ShiftModifier);
    QCOMPARE(int(list()->selectedItems().size()), 3);
    click(bob, Qt::ControlModifier);
    QCOMPARE(int(list()->selectedItems().size()), 2);
    click(dora);
    QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { windows->row(dora) });
    QTest::keyClick(list(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(int(list()->selectedItems().size()), 2);
}

void tst_SeveralAccounts::buttonsAndStripKnowThatThereAreSeveral()
{
    click(ann);
    const auto *title = KirvClientWindows::child<QLabel>(windows->client->accountsPage(), "Accounts_StripTitle");
    QVERIFY(windows->pageButton("Accounts_EditButton")->isEnabled());
    click(bob, Qt::ControlModifier);
    QVERIFY(!windows->pageButton("Accounts_EditButton")->isEnabled());
    QVERIFY(windows->pageButton("Accounts_RemoveButton")->isEnabled());
    KIRV_TRY_COMPARE(title->text(), QStringLiteral("2 accounts are selected."));
    QVERIFY(!windows->pageButton("Accounts_ReconnectButton")->isEnabled());
    click(bob);
    QVERIFY(windows->pageButton("Accounts_EditButton")->isEnabled());
    KIRV_TRY(title->text().startsWith(QLatin1String("Connected")));
    KIRV_TRY(windows->pageButton("Accounts_ReconnectButton")->isEnabled());
}

/// As Edit and Remove are, also when another row is the current one.
void tst_SeveralAccounts::stripIsAboutTheSelectedRow()
{
    windows->account(bob)->setEnabled(false);
    const QWidget *page = windows->client->accountsPage();
    const auto *title = KirvClientWindows::child<QLabel>(page, "Accounts_StripTitle");
    const auto *strip = KirvClientWindows::child<QWidget>(page, "Accounts_Strip");
    click(bob);
    click(cleo, Qt::ControlModifier);
    click(cleo, Qt::ControlModifier);
    QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { windows->row(bob) });
    QCOMPARE(list()->currentItem(), windows->row(cleo));
    KIRV_TRY_COMPARE(title->text(), QStringLiteral("Disabled"));
    QCOMPARE(strip->accessibleName(), QStringLiteral("State of bob"));
    QCOMPARE(strip->toolTip(), QStringLiteral("<qt>State of bob</qt>"));
    QTest::keyClick(list(), Qt::Key_F2);
    QCOMPARE(KirvClientWindows::child<QLineEdit>(list(), "Accounts_AliasEditor")->text(), bob);
    QTest::keyClick(KirvClientWindows::child<QLineEdit>(list(), "Accounts_AliasEditor"), Qt::Key_Escape);
    windows->account(bob)->setEnabled(true);
    KIRV_TRY(title->text().startsWith(QLatin1String("Connected")));
    windows->pageButton("Accounts_StripEditButton")->click();
    KirvClientWindows::settle();
    auto *window = windows->client->window()->findChild<KirvLayoutDialog *>();
    QVERIFY(window);
    QCOMPARE(KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->text(), bob);
    KirvClientWindows::cancel(window);
}

void tst_SeveralAccounts::severalAreDisabledWithOneQuestion()
{
    click(bob);
    click(dora, Qt::ShiftModifier);
    {
        KirvScriptedAnswers answers({ QMessageBox::Yes });
        choose("Accounts_DisableSeveralAction");
        KIRV_TRY(!windows->account(dora)->isEnabled());
        KirvClientWindows::settle();
        QCOMPARE(int(answers.texts.size()), 1);
        QVERIFY2(answers.texts.first().contains(QLatin1String("3 accounts")), qPrintable(answers.texts.first()));
    }
    for (const QString &id : { bob, cleo, dora }) {
        QVERIFY(!windows->account(id)->isEnabled());
        QCOMPARE(windows->row(id)->checkState(0), Qt::Unchecked);
    }
    QVERIFY(windows->account(ann)->isEnabled());
    activate();
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    for (const QString &id : { bob, cleo, dora })
        QCOMPARE(windows->row(id)->checkState(0), Qt::Checked);
}

void tst_SeveralAccounts::severalOffLineAreDisabledWithoutAQuestion()
{
    for (const QString &id : { bob, cleo })
        windows->account(id)->setPresence(windows->protocol->presenceWithId(QStringLiteral("offline"), QString()));
    KIRV_TRY(!windows->account(bob)->isOnline() && !windows->account(cleo)->isOnline());
    click(bob);
    click(cleo, Qt::ControlModifier);
    const KirvScriptedAnswers answers;
    choose("Accounts_DisableSeveralAction");
    QCOMPARE(int(answers.texts.size()), 0);
    QVERIFY(!windows->account(bob)->isEnabled() && !windows->account(cleo)->isEnabled());
}

void tst_SeveralAccounts::severalAreEnabled()
{
    for (const QString &id : { bob, cleo })
        windows->toggleInPage(id);
    int handled = 0;
    connect(list(), &QTreeWidget::itemChanged, this, [&handled] { ++handled; });
    click(ann);
    click(cleo, Qt::ShiftModifier);
    choose("Accounts_EnableSeveralAction");
    list()->disconnect(this);
    for (const QString &id : { ann, bob, cleo }) {
        QVERIFY(windows->account(id)->isEnabled());
        QCOMPARE(windows->row(id)->checkState(0), Qt::Checked);
    }
    QCOMPARE(handled, 0);
    KIRV_TRY(windows->account(bob)->isOnline() && windows->account(cleo)->isOnline());
    QCOMPARE(windows->selector()->count(), 4);
}

void tst_SeveralAccounts::changingSeveralIsOneChangeOfTheStore()
{
    int before = commits();
    disableFrom(bob, dora);
    QCOMPARE(commits(), before + 1);
    QCOMPARE(storedAsEnabled(), QStringList { ann });
    QCOMPARE(shownAsEnabled(), QStringList { ann });
    before = commits();
    choose("Accounts_EnableSeveralAction");
    QCOMPARE(commits(), before + 1);
    QCOMPARE(storedAsEnabled(), QStringList({ ann, bob, cleo, dora }));
    KIRV_TRY(windows->account(bob)->isOnline() && windows->account(cleo)->isOnline());
    KIRV_TRY(windows->account(dora)->isOnline());
}

/// Besides the accounts, the main account is stored: none, then the first, and the one that it was.
void tst_SeveralAccounts::disablingAllAndBackIsOneChangeEach()
{
    windows->chooseMainAccount(cleo);
    KirvClientWindows::settle();
    int before = commits();
    {
        KirvScriptedAnswers answers({ QMessageBox::Yes });
        choose("Accounts_DisableAllAction");
        KIRV_TRY(storedAsEnabled().isEmpty());
        KirvClientWindows::settle();
    }
    QCOMPARE(commits(), before + 2);
    QCOMPARE(shownAsEnabled(), QStringList());
    QCOMPARE(windows->shownMainAccount(), QString());
    before = commits();
    choose("Accounts_EnableAgainAction");
    QCOMPARE(commits(), before + 3);
    QCOMPARE(storedAsEnabled(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(shownAsEnabled(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(windows->shownMainAccount(), cleo);
    KIRV_TRY(windows->account(ann)->isOnline() && windows->account(dora)->isOnline());
}

void tst_SeveralAccounts::refusedChangeOfSeveralChangesNone_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("enable") << true;
    QTest::newRow("disable") << false;
}

void tst_SeveralAccounts::refusedChangeOfSeveralChangesNone()
{
    QFETCH(bool, enabled);
    if (enabled)
        disableFrom(bob, dora);
    const QStringList before = enabled ? QStringList { ann } : QStringList { ann, bob, cleo, dora };
    const int shown = int(windows->messages().size());
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("OLD.id = 'cleo'"));
    if (enabled)
        choose("Accounts_EnableSeveralAction");
    else
        disableFrom(bob, dora);
    KirvClientWindows::settle();
    QCOMPARE(storedAsEnabled(), before);
    QCOMPARE(shownAsEnabled(), before);
    QCOMPARE(int(windows->messages().size()), shown + 1);
    for (const QString &id : { bob, cleo, dora }) {
        QCOMPARE(windows->account(id)->isEnabled(), !enabled);
        QCOMPARE(windows->account(id)->isOnline(), !enabled);
    }
}

void tst_SeveralAccounts::refusedUndoOfSeveralEnablesNone()
{
    disableFrom(bob, dora);
    StoreRefusal refusal(windows->profileFolder(), QStringLiteral("OLD.id = 'cleo'"));
    const int shown = int(windows->messages().size());
    activate();
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    QCOMPARE(storedAsEnabled(), QStringList { ann });
    QCOMPARE(shownAsEnabled(), QStringList { ann });
    QCOMPARE(int(windows->messages().size()), shown + 1);
    refusal.end();
    const int before = commits();
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    QCOMPARE(commits(), before + 1);
    QCOMPARE(storedAsEnabled(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(shownAsEnabled(), QStringList({ ann, bob, cleo, dora }));
}

void tst_SeveralAccounts::undoneDisablingBringsThePresencesBack()
{
    windows->account(bob)->setPresence(windows->protocol->presenceWithId(QStringLiteral("away"), QString()));
    windows->account(cleo)->setPresence(windows->protocol->presenceWithId(QStringLiteral("offline"), QString()));
    KIRV_TRY(!windows->account(cleo)->isOnline());
    disableFrom(bob, dora);
    activate();
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KIRV_TRY(windows->account(bob)->isOnline() && windows->account(dora)->isOnline());
    KirvClientWindows::settle();
    QCOMPARE(windows->account(bob)->presence().getId(), QStringLiteral("away"));
    QCOMPARE(windows->account(cleo)->presence().getId(), QStringLiteral("offline"));
    QVERIFY(!windows->account(cleo)->isOnline());
    QCOMPARE(windows->shownMainAccount(), ann);
}

/// It handles a check box that differs from the account as a click.
void tst_SeveralAccounts::refreshOfThePageIsNoClickMeanwhile()
{
    QStringList ids { ann, bob, cleo, dora };
    for (int number = 0; number < 60; ++number) {
        ids << QStringLiteral("more%1").arg(number, 2, 10, QLatin1Char('0'));
        windows->addAccount(ids.last());
    }
    KIRV_TRY(windows->account(ids.last())->isOnline());
    QCOMPARE(shownAsEnabled(), ids);
    int handled = 0;
    connect(list(), &QTreeWidget::itemChanged, this, [&handled] { ++handled; });
    const KirvScriptedAnswers answers;
    for (const bool enabled : { false, true }) {
        const int before = commits();
        QVERIFY(windows->client->accounts().setEnabled(windows->client->accounts().accounts().mid(1), enabled));
        KirvAccountsTab::getInstance()->updateAccounts();
        QCOMPARE(commits(), before + 1);
        QCOMPARE(shownAsEnabled(), enabled ? ids : QStringList { ann });
        KirvClientWindows::settle();
    }
    list()->disconnect(this);
    QCOMPARE(handled, 0);
    QCOMPARE(int(answers.texts.size()), 0);
    KIRV_TRY(windows->account(ids.last())->isOnline());
}

void tst_SeveralAccounts::mainAccountThatIsDisabledIsPassedOnOnce()
{
    QCOMPARE(windows->shownMainAccount(), ann);
    const int before = commits();
    disableFrom(ann, cleo);
    QCOMPARE(commits(), before + 2);
    QCOMPARE(windows->shownMainAccount(), dora);
    QCOMPARE(windows->messages().filter(QStringLiteral("main account")),
             QStringList { QStringLiteral("dora is the main account now, because ann was disabled.") });
    activate();
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    QCOMPARE(windows->shownMainAccount(), ann);
}

void tst_SeveralAccounts::severalAreRemoved_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("menu") << QStringLiteral("menu");
    QTest::newRow("button") << QStringLiteral("button");
    QTest::newRow("key") << QStringLiteral("key");
}

void tst_SeveralAccounts::severalAreRemoved()
{
    QFETCH(QString, way);
    click(bob);
    click(dora, Qt::ControlModifier);
    {
        KirvScriptedAnswers answers({ QMessageBox::Yes });
        if (way == QLatin1String("menu"))
            choose("Accounts_RemoveSeveralAction");
        else if (way == QLatin1String("button"))
            windows->pageButton("Accounts_RemoveButton")->click();
        else
            QTest::keyClick(list(), Qt::Key_Delete);
        KIRV_TRY(!windows->account(bob) && !windows->account(dora));
        KirvClientWindows::settle();
        QCOMPARE(int(answers.texts.size()), 1);
    }
    QCOMPARE(windows->rowIds(), QStringList({ ann, cleo }));
    QCOMPARE(windows->selector()->count(), 2);
    QVERIFY(list()->selectedItems().isEmpty());
    activate();
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
}

void tst_SeveralAccounts::severalComeBackInTheOwnOrder_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::newRow("with the main account") << ann << cleo;
    QTest::newRow("without it") << bob << dora;
}

/// The rows are sorted by alias, which is another order than the user's own.
void tst_SeveralAccounts::severalComeBackInTheOwnOrder()
{
    QFETCH(QString, first);
    QFETCH(QString, last);
    KirvAccountCollection &accounts = windows->client->accounts();
    const auto order = [&accounts] {
        QStringList ids;
        const QList<KirvAccount *> all = accounts.accounts();
        for (const KirvAccount *account : all)
            ids << account->key().id;
        return ids;
    };
    QVERIFY(accounts.place(windows->account(cleo), windows->account(ann)));
    QVERIFY(accounts.place(windows->account(bob), windows->account(ann)));
    const QStringList before { cleo, bob, ann, dora };
    QCOMPARE(order(), before);
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(windows->shownMainAccount(), ann);
    click(first);
    click(last, Qt::ShiftModifier);
    const KirvScriptedAnswers answers({ QMessageBox::Yes });
    QTest::keyClick(list(), Qt::Key_Delete);
    KIRV_TRY_COMPARE(int(order().size()), 1);
    KirvClientWindows::settle();
    activate();
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    QCOMPARE(order(), before);
    QCOMPARE(windows->shownMainAccount(), ann);
    QStringList stored;
    const QList<KirvAccountRecord> records = windows->client->profile().readAccounts();
    for (const KirvAccountRecord &record : records)
        stored << record.key.id;
    QCOMPARE(stored, before);
}

void tst_SeveralAccounts::messageFollowsAPartialUndo()
{
    const QString both = QStringLiteral("2 accounts were removed.");
    click(bob);
    click(dora, Qt::ControlModifier);
    {
        KirvScriptedAnswers answers({ QMessageBox::Yes });
        windows->pageButton("Accounts_RemoveButton")->click();
        KIRV_TRY(!windows->account(bob) && !windows->account(dora));
    }
    KIRV_TRY(windows->messages().contains(both));
    windows->addAccount(dora);
    activate();
    QTest::keyClick(windows->client->window(), Qt::Key_Z, Qt::ControlModifier);
    KIRV_TRY(windows->account(bob));
    KirvClientWindows::settle();
    QVERIFY2(!windows->messages().contains(both), qPrintable(windows->messages().join(QLatin1Char('\n'))));
}

void tst_SeveralAccounts::refusedQuestionRemovesNone()
{
    click(bob);
    click(dora, Qt::ShiftModifier);
    const KirvScriptedAnswers answers({ QMessageBox::No });
    QTest::keyClick(list(), Qt::Key_Delete);
    KIRV_TRY_COMPARE(int(answers.texts.size()), 1);
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
}

void tst_SeveralAccounts::refusedRemovalKeepsAllRows()
{
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("OLD.id = 'dora'"), QStringLiteral("DELETE"));
    click(bob);
    click(dora, Qt::ShiftModifier);
    const KirvScriptedAnswers answers({ QMessageBox::Yes });
    QTest::keyClick(list(), Qt::Key_Delete);
    KIRV_TRY(!windows->messages().isEmpty());
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
    QVERIFY(windows->account(bob) && windows->account(dora));
    QCOMPARE(int(windows->messages().size()), 1);
}

void tst_SeveralAccounts::mainAccountIsPassedOnOnce()
{
    QCOMPARE(windows->shownMainAccount(), ann);
    click(ann);
    click(cleo, Qt::ShiftModifier);
    const KirvScriptedAnswers answers({ QMessageBox::Yes });
    QTest::keyClick(list(), Qt::Key_Delete);
    KIRV_TRY(!windows->account(ann));
    KirvClientWindows::settle();
    QCOMPARE(windows->shownMainAccount(), dora);
    QCOMPARE(windows->messages().filter(QStringLiteral("main account")),
             QStringList { QStringLiteral("dora is the main account now, because ann was removed.") });
}

void tst_SeveralAccounts::oneOfSeveralIsRemovedByThePageAlone()
{
    click(bob);
    KirvScriptedAnswers answers({ QMessageBox::Yes });
    QTest::keyClick(list(), Qt::Key_Delete);
    KIRV_TRY(!windows->account(bob));
    KirvClientWindows::settle();
    QCOMPARE(answers.texts, QStringList { "Do you want to remove account 'bob' (Fake) and all related data?" });
}

QTEST_MAIN(tst_SeveralAccounts)
#include "tst_several_accounts.moc"

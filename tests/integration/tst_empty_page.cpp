// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

namespace {
const QString ann = QStringLiteral("ann");
}

/// The page while there is no account.
class tst_EmptyPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void pageWithoutAccountsInvites();
    void firstAccountShowsTheList();
    void windowKeepsItsSize();
    void lastAccountBringsTheInvitationBack();
    void listIsShownAgainAfterARestart();
    void accountWithoutItsProtocolIsAnAccount();
    void addButtonOpensTheMenuOfTheProtocols();
    void addButtonNeedsAProtocol();
    void registerButtonRegisters();
    void selectorIsDisabledWhileItOffersNothing();
    void selectorKeepsTheFocusWhileItIsRefilled();
    void keyboardAloneAddsTheFirstAccount();
    void keyboardStartsOnThePage();

private:
    template <typename T = QWidget>
    T *part(const char *name) const
    {
        return KirvClientWindows::child<T>(windows->client->accountsPage(), name);
    }
    bool isInviting() const
    {
        return part("Accounts_Invitation")->isVisible() && !windows->list()->isVisible()
            && !part("Accounts_Strip")->isVisible();
    }
    bool isListing() const
    {
        return !part("Accounts_Invitation")->isVisible() && windows->list()->isVisible()
            && part("Accounts_Strip")->isVisible();
    }

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_EmptyPage::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
}

void tst_EmptyPage::cleanup()
{
    windows.reset();
}

void tst_EmptyPage::pageWithoutAccountsInvites()
{
    QVERIFY(isInviting());
    QVERIFY(!part<QLabel>("Accounts_InvitationText")->text().isEmpty());
    QVERIFY(part<QPushButton>("Accounts_InvitationAddButton")->isEnabled());
    QVERIFY(part<QPushButton>("Accounts_InvitationRegisterButton")->isEnabled());
}

void tst_EmptyPage::firstAccountShowsTheList()
{
    part("Accounts_InvitationAddButton")->setFocus();
    windows->addAccount(ann);
    QVERIFY(isListing());
    QVERIFY(windows->list()->hasFocus());
}

void tst_EmptyPage::windowKeepsItsSize()
{
    QWidget *window = windows->client->window();
    window->resize(window->minimumSizeHint().width(), 360);
    KirvClientWindows::settle();
    QCOMPARE(window->height(), 360);
    windows->addAccount(ann);
    QVERIFY(isListing());
    QCOMPARE(window->height(), 360);
    windows->removeInPage(ann);
    KIRV_TRY(isInviting());
    QCOMPARE(window->height(), 360);
}

void tst_EmptyPage::lastAccountBringsTheInvitationBack()
{
    windows->addAccount(ann);
    windows->list()->setFocus();
    windows->removeInPage(ann);
    KIRV_TRY(isInviting());
    QCOMPARE(windows->client->window()->focusWidget(), part("Accounts_InvitationAddButton"));
}

void tst_EmptyPage::listIsShownAgainAfterARestart()
{
    windows->addAccount(ann);
    windows->restart();
    QVERIFY(isListing());
}

void tst_EmptyPage::accountWithoutItsProtocolIsAnAccount()
{
    windows->addAccount(ann);
    windows->end();
    windows->client = std::make_unique<KirvClient>(windows->options);
    QVERIFY(windows->client->start());
    windows->client->window()->show();
    KirvClientWindows::settle();
    QVERIFY(isListing());
}

void tst_EmptyPage::addButtonOpensTheMenuOfTheProtocols()
{
    QMenu *menu = part<QPushButton>("Accounts_InvitationAddButton")->menu();
    QVERIFY(menu);
    QCOMPARE(menu, part<QToolButton>("Accounts_AddButton")->menu());
    QCOMPARE(menu->actions().first()->text(), windows->protocol->name);
}

void tst_EmptyPage::addButtonNeedsAProtocol()
{
    windows->client->accountsPage()->removeProtocolAccounts(windows->protocol->name);
    KIRV_TRY(!part<QPushButton>("Accounts_InvitationAddButton")->isEnabled());
    QVERIFY(!part<QPushButton>("Accounts_InvitationAddButton")->toolTip().isEmpty());
    windows->client->accountsPage()->readProtocolAccounts(windows->protocol->name);
    KIRV_TRY(part<QPushButton>("Accounts_InvitationAddButton")->isEnabled());
}

void tst_EmptyPage::registerButtonRegisters()
{
    windows->protocol->coreSignals.clear();
    part<QPushButton>("Accounts_InvitationRegisterButton")->click();
    QCOMPARE(windows->protocol->coreSignals, QStringList { QStringLiteral("register_account 0") });
}

void tst_EmptyPage::selectorIsDisabledWhileItOffersNothing()
{
    QVERIFY(!windows->selector()->isEnabled());
    windows->addAccount(ann);
    KIRV_TRY(windows->selector()->isEnabled());
    windows->account(ann)->setEnabled(false);
    windows->client->accountsPage()->updateAccounts();
    KIRV_TRY(!windows->selector()->isEnabled());
    windows->account(ann)->setEnabled(true);
    windows->client->accountsPage()->updateAccounts();
    KIRV_TRY(windows->selector()->isEnabled());
    windows->removeInPage(ann);
    KIRV_TRY(!windows->selector()->isEnabled());
}

void tst_EmptyPage::selectorKeepsTheFocusWhileItIsRefilled()
{
    windows->addAccount(ann);
    KIRV_TRY(windows->selector()->isEnabled());
    windows->selector()->setFocus();
    windows->client->accountsPage()->updateAccounts();
    KirvClientWindows::settle();
    QVERIFY(windows->selector()->hasFocus());
}

void tst_EmptyPage::keyboardAloneAddsTheFirstAccount()
{
    const KirvWindowWatcher<QMenu> chooses([](QMenu *menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    const KirvWindowWatcher<KirvLayoutDialog> fills([](KirvLayoutDialog *window) {
        window->activateWindow(); // the menu that led to it is still closing
        KIRV_TRY(window->isActiveWindow() && window->focusWidget() == QApplication::focusWidget());
        auto *login = KirvClientWindows::child<QWidget>(window, "AddAccount_UsernameEdit");
        for (int i = 0; i < 20 && QApplication::focusWidget() != login; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(QApplication::focusWidget(), ann);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("secret"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    auto *pages = KirvClientWindows::child<QWidget>(windows->client->window(), "Settings_Pages");
    pages->setFocus();
    QTest::keyClick(pages, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), part("Accounts_InvitationAddButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    KIRV_TRY(windows->account(ann));
    KIRV_TRY(isListing());
}

/// And not in the list of the pages, where it could do nothing for an account.
void tst_EmptyPage::keyboardStartsOnThePage()
{
    KIRV_TRY_COMPARE(QApplication::focusWidget(), part("Accounts_InvitationAddButton"));
    windows->addAccount(ann);
    windows->restart();
    KIRV_TRY(isListing());
    QCOMPARE(windows->client->window()->focusWidget(), windows->list());
}

QTEST_MAIN(tst_EmptyPage)
#include "tst_empty_page.moc"

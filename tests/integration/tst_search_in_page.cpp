// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_scripted_answers.h"
#include "tests/support/kirv_patience.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTreeWidget>
#include <QtTest>

namespace {

const int enough = 10;

QString idOf(int index)
{
    return QStringLiteral("user%1").arg(index, 2, 10, QLatin1Char('0'));
}

} // namespace

/// The search above the list hides rows and never takes a command for one that is hidden.
class tst_SearchInPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { windows.reset(); }

    void fieldComesWithManyAccounts();
    void ctrlFOpensTheField();
    void wordsAreFound_data();
    void wordsAreFound();
    void stateThatChangesMovesItsRow();
    void accountThatTriesAgainIsAProblem();
    void questionStaysAboutItsRow_data();
    void questionStaysAboutItsRow();
    void rowInUseIsHiddenAfterwards_data();
    void rowInUseIsHiddenAfterwards();
    void hiddenRowIsDeselectedFirst();
    void selectionComesBackWithItsRow_data();
    void selectionComesBackWithItsRow();
    void deleteRemovesNoHiddenAccount();
    void keysLeadFromTheFieldToTheList();
    void escapeEmptiesTheField();
    void newAccountIsShown();
    void hiddenRowsStayHiddenWhenTheyAreSorted();
    void countIsTold();

private:
    QTreeWidget *list() const { return windows->list(); }
    QLineEdit *field() const
    {
        return KirvClientWindows::child<QLineEdit>(windows->client->accountsPage(), "Accounts_Search");
    }
    void fill();
    void refuse(int index);
    void search(const QString &text);
    QStringList shownIds() const;

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_SearchInPage::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
}

void tst_SearchInPage::fill()
{
    for (int i = 0; i < enough; ++i)
        windows->addAccount(idOf(i));
    windows->account(idOf(3))->setAlias(QStringLiteral("Ann at Work"));
    KIRV_TRY(windows->account(idOf(enough - 1))->isOnline());
    QVERIFY(field()->isVisible());
}

/// Has the server refuse the account.
void tst_SearchInPage::refuse(int index)
{
    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    windows->account(idOf(index))->reconnect();
    KIRV_TRY(windows->account(idOf(index))->lastFailure().isFailure());
    KirvClientWindows::settle();
}

void tst_SearchInPage::search(const QString &text)
{
    field()->setFocus();
    field()->clear();
    QTest::keyClicks(field(), text);
    KirvClientWindows::settle();
}

QStringList tst_SearchInPage::shownIds() const
{
    QStringList ids;
    for (int i = 0; i < list()->topLevelItemCount(); ++i) {
        if (!list()->topLevelItem(i)->isHidden())
            ids << list()->topLevelItem(i)->text(2);
    }
    ids.sort();
    return ids;
}

void tst_SearchInPage::fieldComesWithManyAccounts()
{
    for (int i = 0; i < enough; ++i) {
        QVERIFY(!field()->isVisible());
        windows->addAccount(idOf(i));
    }
    QVERIFY(field()->isVisible());
    windows->removeInPage(idOf(0));
    QVERIFY(!field()->isVisible());
}

void tst_SearchInPage::ctrlFOpensTheField()
{
    QTest::keyClick(windows->client->window(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(!field()->isVisible()); // there is nothing to search
    windows->addAccount(idOf(0));
    windows->addAccount(idOf(1));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(field()->isVisible());
    QVERIFY(field()->hasFocus());
    QTest::keyClicks(field(), idOf(1));
    QCOMPARE(shownIds(), QStringList { idOf(1) });
    QTest::keyClick(field(), Qt::Key_Escape);
    QVERIFY(!field()->isVisible());
    QCOMPARE(shownIds().size(), 2);
}

void tst_SearchInPage::wordsAreFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("id") << "user07" << QStringList { idOf(7) };
    QTest::newRow("alias") << "ann" << QStringList { idOf(3) };
    QTest::newRow("in capitals") << "WORK" << QStringList { idOf(3) };
    QTest::newRow("several words") << "work user" << QStringList { idOf(3) };
    QTest::newRow("words of different accounts") << "work user07" << QStringList();
    QTest::newRow("protocol") << "fake user08" << QStringList { idOf(8) };
    QTest::newRow("problem") << "problem" << QStringList { idOf(5) };
    QTest::newRow("state in words") << "password" << QStringList { idOf(5) };
    QTest::newRow("disabled") << "disabled" << QStringList { idOf(6) };
    QTest::newRow("blank") << "  " << QStringList { idOf(0), idOf(1), idOf(2), idOf(3), idOf(4),
                                                    idOf(5), idOf(6), idOf(7), idOf(8), idOf(9) };
}

void tst_SearchInPage::wordsAreFound()
{
    QFETCH(QString, text);
    QFETCH(QStringList, ids);
    fill();
    windows->account(idOf(6))->setEnabled(false);
    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    windows->account(idOf(5))->reconnect();
    KIRV_TRY(windows->account(idOf(5))->lastFailure().isFailure());
    search(text);
    QCOMPARE(shownIds(), ids);
    search(QString());
    QCOMPARE(int(shownIds().size()), enough);
}

void tst_SearchInPage::stateThatChangesMovesItsRow()
{
    fill();
    search(QStringLiteral("problem"));
    QCOMPARE(shownIds(), QStringList());
    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    windows->account(idOf(4))->reconnect();
    KIRV_TRY_COMPARE(shownIds(), QStringList { idOf(4) });
    windows->protocol->server->logIn = KirvFakeServer::Accepts;
    windows->account(idOf(4))->reconnect();
    KIRV_TRY_COMPARE(shownIds(), QStringList());
}

void tst_SearchInPage::accountThatTriesAgainIsAProblem()
{
    fill();
    refuse(5);
    search(QStringLiteral("problem"));
    QCOMPARE(shownIds(), QStringList { idOf(5) });
    windows->protocol->server->logIn = KirvFakeServer::Holds;
    windows->account(idOf(5))->reconnect();
    KIRV_TRY(windows->account(idOf(5))->connection()->state() == KirvConnection::Connecting);
    KirvClientWindows::settle();
    QCOMPARE(shownIds(), QStringList { idOf(5) });
}

void tst_SearchInPage::questionStaysAboutItsRow_data()
{
    QTest::addColumn<bool>("isConnected");
    QTest::newRow("tries again") << false;
    QTest::newRow("gets connected") << true;
}

void tst_SearchInPage::questionStaysAboutItsRow()
{
    QFETCH(bool, isConnected);
    fill();
    refuse(5);
    search(QStringLiteral("problem"));
    windows->select(idOf(5));
    windows->pageButton("Accounts_RemoveButton")->click();
    KirvClientWindows::settle();
    QCOMPARE(int(KirvClientWindows::boxes().size()), 1);
    windows->protocol->server->logIn = isConnected ? KirvFakeServer::Accepts : KirvFakeServer::Holds;
    windows->account(idOf(5))->reconnect();
    const auto wanted = isConnected ? KirvConnection::Online : KirvConnection::Connecting;
    KIRV_TRY(windows->account(idOf(5))->connection()->state() == wanted);
    KirvClientWindows::settle();
    KirvClientWindows::boxes().first()->button(QMessageBox::Yes)->click();
    KirvClientWindows::settle();
    QVERIFY(!windows->account(idOf(5)));
    QCOMPARE(int(windows->client->accounts().accounts().size()), enough - 1);
}

void tst_SearchInPage::rowInUseIsHiddenAfterwards_data()
{
    QTest::addColumn<bool>("isSearchedAnew");
    QTest::newRow("another row is selected") << false;
    QTest::newRow("other words") << true;
}

void tst_SearchInPage::rowInUseIsHiddenAfterwards()
{
    QFETCH(bool, isSearchedAnew);
    fill();
    refuse(4);
    refuse(5);
    search(QStringLiteral("problem"));
    windows->select(idOf(5));
    windows->protocol->server->logIn = KirvFakeServer::Accepts;
    windows->account(idOf(5))->reconnect();
    KIRV_TRY(windows->account(idOf(5))->isOnline());
    KirvClientWindows::settle();
    QCOMPARE(shownIds(), (QStringList { idOf(4), idOf(5) }));
    QVERIFY(windows->row(idOf(5))->isSelected());
    if (isSearchedAnew)
        search(QStringLiteral("proble"));
    else
        windows->select(idOf(4));
    KIRV_TRY_COMPARE(shownIds(), QStringList { idOf(4) });
    QVERIFY(!windows->row(idOf(5))->isSelected());
}

void tst_SearchInPage::hiddenRowIsDeselectedFirst()
{
    fill();
    windows->select(idOf(2));
    search(QStringLiteral("user0"));
    QCOMPARE(list()->currentItem(), windows->row(idOf(2)));
    QCOMPARE(int(list()->selectedItems().size()), 1);
    search(QStringLiteral("user07"));
    QVERIFY(!list()->currentItem());
    QVERIFY(list()->selectedItems().isEmpty());
    QVERIFY(!windows->pageButton("Accounts_RemoveButton")->isEnabled());
}

void tst_SearchInPage::selectionComesBackWithItsRow_data()
{
    QTest::addColumn<QString>("meanwhile"); ///< selected by the user
    QTest::addColumn<QString>("selected");
    QTest::newRow("nothing else is selected") << QString() << idOf(5);
    QTest::newRow("another row is selected") << idOf(3) << idOf(3);
}

void tst_SearchInPage::selectionComesBackWithItsRow()
{
    QFETCH(QString, meanwhile);
    QFETCH(QString, selected);
    fill();
    windows->select(idOf(5));
    search(idOf(3));
    QCOMPARE(shownIds(), QStringList(idOf(3)));
    QVERIFY(!list()->currentItem());
    if (!meanwhile.isEmpty())
        windows->select(meanwhile);
    search(QString());
    QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { windows->row(selected) });
    QCOMPARE(list()->currentItem(), windows->row(selected));
}

/// Delete is a shortcut of the whole window.
void tst_SearchInPage::deleteRemovesNoHiddenAccount()
{
    fill();
    KirvScriptedAnswers answers({ QMessageBox::Yes });
    windows->select(idOf(2));
    search(QStringLiteral("user07"));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Delete);
    KirvClientWindows::settle();
    QCOMPARE(int(answers.texts.size()), 0);
    search(QString());
    list()->selectAll();
    search(QStringLiteral("user07"));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Delete);
    KirvClientWindows::settle();
    QCOMPARE(windows->client->accounts().accounts().size(), enough - 1);
    QVERIFY(!windows->account(idOf(7)));
}

void tst_SearchInPage::keysLeadFromTheFieldToTheList()
{
    fill();
    for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Return }) {
        search(QStringLiteral("user07"));
        QTest::keyClick(field(), key);
        QVERIFY(list()->hasFocus());
        QCOMPARE(list()->currentItem(), windows->row(idOf(7)));
        QVERIFY(!windows->client->accountsPage()->getAccEdit());
    }
}

void tst_SearchInPage::escapeEmptiesTheField()
{
    fill();
    search(QStringLiteral("user07"));
    QTest::keyClick(field(), Qt::Key_Escape);
    QCOMPARE(field()->text(), QString());
    QVERIFY(field()->isVisible());
    QVERIFY(list()->hasFocus());
    QVERIFY(windows->client->window()->isVisible());
}

void tst_SearchInPage::newAccountIsShown()
{
    fill();
    search(QStringLiteral("user07"));
    windows->addAccount(QStringLiteral("user07 too"));
    QCOMPARE(field()->text(), QStringLiteral("user07"));
    QCOMPARE(int(shownIds().size()), 2);
    windows->addAccount(QStringLiteral("cleo"));
    QCOMPARE(field()->text(), QString());
    QCOMPARE(list()->currentItem(), windows->row(QStringLiteral("cleo")));
}

void tst_SearchInPage::hiddenRowsStayHiddenWhenTheyAreSorted()
{
    fill();
    search(QStringLiteral("user07"));
    list()->sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(shownIds(), QStringList { idOf(7) });
    windows->client->accountsPage()->updateAccounts();
    QCOMPARE(shownIds(), QStringList { idOf(7) });
}

void tst_SearchInPage::countIsTold()
{
    fill();
    search(QStringLiteral("user07"));
    const auto *count = KirvClientWindows::child<QLabel>(windows->client->accountsPage(), "Accounts_SearchCount");
    QCOMPARE(count->text(), QStringLiteral("1 of 10"));
    QCOMPARE(field()->accessibleDescription(), QStringLiteral("1 of 10"));
    search(QString());
    QCOMPARE(count->text(), QString());
}

QTEST_MAIN(tst_SearchInPage)
#include "tst_search_in_page.moc"

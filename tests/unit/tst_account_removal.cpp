// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_patience.h"
#include "tests/unit/kirv_question.h"

#include <QSignalSpy>

#include <memory>

/// Removing an account: the question and its answers.
class tst_AccountRemoval : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { fixture.reset(); }

    void theQuestionNamesAliasAndProtocol();
    void theQuestionDoesNotBlock();
    void markupInAnAliasIsShownAsText();
    void removingNeedsExactlyOneSelectedRow_data();
    void removingNeedsExactlyOneSelectedRow();
    void yesRemovesTheAccountAndItsRow();
    void anyOtherAnswerLeavesEverything_data();
    void anyOtherAnswerLeavesEverything();
    void onlyYesCounts_data();
    void onlyYesCounts();
    void theQuestionEndsWithTheAnswer_data();
    void theQuestionEndsWithTheAnswer();
    void theAnswerCountsForWhatIsSelectedThen();
    void yesWithoutASelectionRemovesNothing();
    void yesWithSeveralSelectedRowsRemovesNothing();
    void aRowThatIsGoneIsNotTouched();
    void aHostThatTakesTheRowAwayItself();
    void theRowsAreNotRefreshed();
    void theSelectorNoLongerOffersTheAccount();
    void theDeleteKeyWorksLikeTheButton();

private:
    void openQuestion(const QString &id)
    {
        fixture->clickRow(fixture->row(id));
        QTest::mouseClick(fixture->removeButton(), Qt::LeftButton);
    }

    std::unique_ptr<KirvPageFixture> fixture;
};

void tst_AccountRemoval::init()
{
    fixture = std::make_unique<KirvPageFixture>();
    fixture->host.addAccount("alice", "XMPP")->alias = "Work";
    fixture->host.addAccount("alice", "IRC")->alias = "Chat";
    fixture->host.addAccount("bob", "XMPP")->alias = "Home";
    fixture->showFilledPage();
}

void tst_AccountRemoval::theQuestionNamesAliasAndProtocol()
{
    openQuestion("alice");
    kirvVerifyQuestion(*fixture, "Removing account",
                       "Do you want to remove account 'Work' (XMPP) and all related data?");
}

void tst_AccountRemoval::theQuestionDoesNotBlock()
{
    fixture->row("alice")->setSelected(true);
    QVERIFY(QMetaObject::invokeMethod(fixture->page(), "removeAccount"));
    QVERIFY(kirvVisibleWindow<QMessageBox>());
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_AccountRemoval::markupInAnAliasIsShownAsText()
{
    fixture->row("alice")->setText(0, "<h1>%2</h1>");
    fixture->host.forgetCalls();
    openQuestion("alice");
    // The placeholders are filled one after the other.
    kirvVerifyQuestion(*fixture, "Removing account",
                       "Do you want to remove account '<h1>XMPP</h1>' (XMPP) and all related data?");
}

void tst_AccountRemoval::removingNeedsExactlyOneSelectedRow_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("no row selected") << false;
    QTest::newRow("several rows selected") << true;
}

void tst_AccountRemoval::removingNeedsExactlyOneSelectedRow()
{
    QFETCH(bool, all);
    fixture->selectAllOrNone(all);
    fixture->removeButton()->click();
    QVERIFY(!kirvVisibleWindow<QMessageBox>());
}

void tst_AccountRemoval::yesRemovesTheAccountAndItsRow()
{
    openQuestion("alice");
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList { "removeAccount(alice, XMPP)" });
    QVERIFY(!fixture->row("alice", "XMPP"));
    QVERIFY(fixture->row("alice", "IRC"));
    QVERIFY(fixture->row("bob", "XMPP"));
}

void tst_AccountRemoval::anyOtherAnswerLeavesEverything_data()
{
    QTest::addColumn<KirvAnswer>("answer");
    QTest::newRow("no") << KirvAnswer::No;
    QTest::newRow("closed") << KirvAnswer::Close;
    QTest::newRow("escaped") << KirvAnswer::Escape;
}

void tst_AccountRemoval::anyOtherAnswerLeavesEverything()
{
    QFETCH(KirvAnswer, answer);
    openQuestion("alice");
    kirvAnswer(answer);
    QVERIFY(!kirvVisibleWindow<QMessageBox>());
    QCOMPARE(fixture->host.calls(), QStringList());
    QCOMPARE(fixture->list()->topLevelItemCount(), 3);
    QCOMPARE(fixture->selector()->count(), 3);
}

void tst_AccountRemoval::onlyYesCounts_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("yes to all") << int(QMessageBox::YesToAll);
    QTest::newRow("no") << int(QMessageBox::No);
    QTest::newRow("ok") << int(QMessageBox::Ok);
    QTest::newRow("accepted") << int(QDialog::Accepted);
    QTest::newRow("rejected") << int(QDialog::Rejected);
    QTest::newRow("nothing") << -1;
}

void tst_AccountRemoval::onlyYesCounts()
{
    QFETCH(int, result);
    fixture->clickRow(fixture->row("alice"));
    for (const char *slot : { "removeAccountAccepted", "disableAccountAccepted" })
        QVERIFY(QMetaObject::invokeMethod(fixture->page(), slot, Q_ARG(int, result)));
    QCOMPARE(fixture->host.calls(), QStringList());
    QCOMPARE(fixture->list()->topLevelItemCount(), 3);
}

void tst_AccountRemoval::theQuestionEndsWithTheAnswer_data()
{
    anyOtherAnswerLeavesEverything_data();
    QTest::newRow("yes") << KirvAnswer::Yes;
}

void tst_AccountRemoval::theQuestionEndsWithTheAnswer()
{
    QFETCH(KirvAnswer, answer);
    openQuestion("alice");
    const QPointer<QMessageBox> box = kirvVisibleWindow<QMessageBox>();
    kirvAnswer(answer);
    KIRV_TRY(!box);
}

void tst_AccountRemoval::theAnswerCountsForWhatIsSelectedThen()
{
    openQuestion("alice");
    fixture->list()->setCurrentItem(fixture->row("bob"));
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList { "removeAccount(bob, XMPP)" });
    QVERIFY(fixture->row("alice"));
    QVERIFY(!fixture->row("bob"));
}

void tst_AccountRemoval::yesWithoutASelectionRemovesNothing()
{
    openQuestion("alice");
    fixture->list()->clearSelection();
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList());
    QCOMPARE(fixture->list()->topLevelItemCount(), 3);
}

void tst_AccountRemoval::yesWithSeveralSelectedRowsRemovesNothing()
{
    fixture->list()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    openQuestion("alice");
    fixture->list()->selectAll();
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList());
    QCOMPARE(fixture->list()->topLevelItemCount(), 3);
}

void tst_AccountRemoval::aRowThatIsGoneIsNotTouched()
{
    openQuestion("alice");
    delete fixture->row("alice");
    fixture->list()->clearSelection();
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList());
    QCOMPARE(fixture->list()->topLevelItemCount(), 2);
}

void tst_AccountRemoval::aHostThatTakesTheRowAwayItself()
{
    fixture->host.hook("removeAccount", [&] { delete fixture->row("alice"); });
    openQuestion("alice");
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList { "removeAccount(alice, XMPP)" });
    QCOMPARE(fixture->list()->topLevelItemCount(), 2);
}

void tst_AccountRemoval::theRowsAreNotRefreshed()
{
    fixture->host.findAccount("bob", "XMPP")->enabled = false;
    openQuestion("alice");
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.calls({ "accountEnabled", "getAccount", "getMainAccount" }), QStringList());
    QVERIFY(fixture->isChecked("bob"));
}

void tst_AccountRemoval::theSelectorNoLongerOffersTheAccount()
{
    QSignalSpy reported(fixture->page(), SIGNAL(mainAccountChanged()));
    QCOMPARE(fixture->offered(), (QStringList { "*alice@IRC", "bob@XMPP", "alice@XMPP" }));
    openQuestion("alice");
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->offered(), (QStringList { "*alice@IRC", "bob@XMPP" }));
    QCOMPARE(reported.count(), 0);
}

void tst_AccountRemoval::theDeleteKeyWorksLikeTheButton()
{
    fixture->clickRow(fixture->row("bob"));
    QTest::keyClick(fixture->list(), Qt::Key_Delete);
    kirvVerifyQuestion(*fixture, "Removing account",
                       "Do you want to remove account 'Home' (XMPP) and all related data?");
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList { "removeAccount(bob, XMPP)" });
}

QTEST_MAIN(tst_AccountRemoval)
#include "tst_account_removal.moc"

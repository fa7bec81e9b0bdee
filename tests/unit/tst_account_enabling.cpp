// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_patience.h"
#include "tests/unit/kirv_question.h"

#include <QLineEdit>

#include <memory>

/// Enabling and disabling accounts by their check boxes.
class tst_AccountEnabling : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { fixture.reset(); }

    void checkingEnablesTheAccount();
    void uncheckingAnOfflineAccountDisablesItAtOnce();
    void uncheckingAnUnknownAccountDisablesItAtOnce();
    void uncheckingAConnectedAccountKeepsTheCheckAndOpensAQuestion();
    void theQuestionNamesIdAndProtocol();
    void markupInAnIdIsShownAsText();
    void yesClearsTheCheckDisablesAndRefreshes();
    void yesLeavesTheListAndTheFocusAlone();
    void anyOtherAnswerKeepsTheAccountEnabled_data();
    void anyOtherAnswerKeepsTheAccountEnabled();
    void afterTheAnswerTheCheckBoxWorksOnce();
    void everyColumnIsHandledAlike_data();
    void everyColumnIsHandledAlike();
    void aHalfCheckedBoxCountsAsUnchecked();
    void theListIsDisabledWhileTheHostWorks();
    void theListGetsTheFocus();
    void theSpaceKeyChangesTheBox();
    void theRowGoneWhileTheQuestionIsOpen_data();
    void theRowGoneWhileTheQuestionIsOpen();
    void anotherRowInPlaceOfTheOneThatIsGone();
    void theAccountRemovedWhileTheQuestionIsOpen();
    void aHostThatDoesNotDisableGetsTheCheckBack();
    void aHostThatRefreshesInsideAnOperation_data();
    void aHostThatRefreshesInsideAnOperation();
    void anAliasChangedOnADisabledConnectedAccountOpensAQuestion();

private:
    void uncheckAlice() { fixture->clickCheckBox(fixture->row("alice")); }

    std::unique_ptr<KirvPageFixture> fixture;
    KirvRecordingAccount *alice = nullptr;
};

namespace {

const QStringList refresh { "accountEnabled(alice, XMPP)", "accountEnabled(bob, IRC)" };

}

void tst_AccountEnabling::init()
{
    fixture = std::make_unique<KirvPageFixture>();
    alice = fixture->host.addAccount("alice", "XMPP");
    fixture->host.addAccount("bob", "IRC")->enabled = false;
    fixture->showFilledPage();
}

void tst_AccountEnabling::checkingEnablesTheAccount()
{
    fixture->clickCheckBox(fixture->row("bob", "IRC"));
    QCOMPARE(fixture->host.calls({ "enableAccount", "disableAccount", "isLoggedIn", "accountEnabled" }),
             QStringList { "enableAccount(bob, IRC)" } + refresh);
    QVERIFY(!kirvVisibleWindow<QMessageBox>());
    QVERIFY(fixture->isChecked("bob", "IRC"));
    QCOMPARE(fixture->offered(), (QStringList { "*alice@XMPP", "bob@IRC" }));
}

void tst_AccountEnabling::uncheckingAnOfflineAccountDisablesItAtOnce()
{
    uncheckAlice();
    QCOMPARE(fixture->host.calls(),
             (QStringList { "getAccount(alice, XMPP)", "alice@XMPP.isLoggedIn()", "disableAccount(alice, XMPP)" }
              + refresh));
    QVERIFY(!kirvVisibleWindow<QMessageBox>());
    QVERIFY(!fixture->isChecked("alice"));
    QCOMPARE(fixture->offered(), QStringList());
}

void tst_AccountEnabling::uncheckingAnUnknownAccountDisablesItAtOnce()
{
    alice->loaded = false;
    alice->loggedIn = true;
    uncheckAlice();
    QCOMPARE(fixture->host.calls(),
             (QStringList { "getAccount(alice, XMPP)", "disableAccount(alice, XMPP)" } + refresh));
    QVERIFY(!kirvVisibleWindow<QMessageBox>());
}

void tst_AccountEnabling::uncheckingAConnectedAccountKeepsTheCheckAndOpensAQuestion()
{
    alice->loggedIn = true;
    uncheckAlice();
    QVERIFY(fixture->isChecked("alice"));
    QVERIFY(kirvVisibleWindow<QMessageBox>());
    QCOMPARE(fixture->host.calls({ "getAccount", "isLoggedIn", "enableAccount", "disableAccount", "accountEnabled" }),
             (QStringList { "getAccount(alice, XMPP)", "alice@XMPP.isLoggedIn()", "accountEnabled(alice, XMPP)",
                            "getAccount(alice, XMPP)", "accountEnabled(bob, IRC)" }));
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });
    QVERIFY(fixture->list()->isEnabled());
}

void tst_AccountEnabling::theQuestionNamesIdAndProtocol()
{
    alice->loggedIn = true;
    uncheckAlice();
    kirvVerifyQuestion(*fixture, "Disabling account",
                       "Do you want to disable account 'alice' (XMPP) in which you are currently logged in.");
}

void tst_AccountEnabling::markupInAnIdIsShownAsText()
{
    KirvRecordingAccount *odd = fixture->host.addAccount("<b>odd</b>", "IRC");
    fixture->page()->addAccountEntry(odd);
    odd->loggedIn = true;
    fixture->row("<b>odd</b>", "IRC")->setCheckState(0, Qt::Unchecked);
    kirvVerifyQuestion(*fixture, "Disabling account",
                       "Do you want to disable account '<b>odd</b>' (IRC) in which you are currently logged in.");
}

void tst_AccountEnabling::yesClearsTheCheckDisablesAndRefreshes()
{
    alice->loggedIn = true;
    uncheckAlice();
    fixture->host.forgetCalls();
    bool wasChecked = true;
    fixture->host.hook("disableAccount", [&] { wasChecked = fixture->isChecked("alice"); });
    kirvAnswer(KirvAnswer::Yes);
    QVERIFY(!wasChecked);
    QVERIFY(!fixture->isChecked("alice"));
    // The cleared box is not handled again.
    QCOMPARE(fixture->host.calls({ "getAccount", "isLoggedIn", "enableAccount", "disableAccount", "accountEnabled" }),
             QStringList { "disableAccount(alice, XMPP)" } + refresh);
    QCOMPARE(fixture->offered(), QStringList());
}

void tst_AccountEnabling::yesLeavesTheListAndTheFocusAlone()
{
    alice->loggedIn = true;
    uncheckAlice();
    fixture->selector()->setFocus();
    bool wasEnabled = false;
    fixture->host.hook("disableAccount", [&] { wasEnabled = fixture->list()->isEnabled(); });
    kirvAnswer(KirvAnswer::Yes);
    QVERIFY(wasEnabled);
    QCOMPARE(fixture->page()->focusWidget(), fixture->selector());
}

void tst_AccountEnabling::anyOtherAnswerKeepsTheAccountEnabled_data()
{
    QTest::addColumn<KirvAnswer>("answer");
    QTest::newRow("no") << KirvAnswer::No;
    QTest::newRow("closed") << KirvAnswer::Close;
    QTest::newRow("escaped") << KirvAnswer::Escape;
}

void tst_AccountEnabling::anyOtherAnswerKeepsTheAccountEnabled()
{
    QFETCH(KirvAnswer, answer);
    alice->loggedIn = true;
    uncheckAlice();
    const QPointer<QMessageBox> box = kirvVisibleWindow<QMessageBox>();
    fixture->host.forgetCalls();
    kirvAnswer(answer);
    QCOMPARE(fixture->host.calls(), QStringList());
    QVERIFY(fixture->isChecked("alice"));
    QVERIFY(alice->enabled);
    KIRV_TRY(!box);
}

void tst_AccountEnabling::afterTheAnswerTheCheckBoxWorksOnce()
{
    alice->loggedIn = true;
    for (KirvAnswer answer : { KirvAnswer::No, KirvAnswer::No, KirvAnswer::Yes }) {
        uncheckAlice();
        kirvAnswer(answer);
        fixture->letGo();
    }
    fixture->host.forgetCalls();
    fixture->clickCheckBox(fixture->row("alice"));
    QCOMPARE(fixture->host.effects(), QStringList { "enableAccount(alice, XMPP)" });
}

void tst_AccountEnabling::everyColumnIsHandledAlike_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("protocol");
    QTest::addColumn<QString>("effect");
    for (int column = 0; column < 4; ++column) {
        QTest::addRow("column %d of a checked row", column) << column << "alice"
                                                            << "XMPP"
                                                            << "enableAccount(alice, XMPP)";
        QTest::addRow("column %d of an unchecked row", column) << column << "bob"
                                                               << "IRC"
                                                               << "disableAccount(bob, IRC)";
    }
}

void tst_AccountEnabling::everyColumnIsHandledAlike()
{
    QFETCH(int, column);
    QFETCH(QString, id);
    QFETCH(QString, protocol);
    QFETCH(QString, effect);
    fixture->row(id, protocol)->setToolTip(column, "changed");
    QCOMPARE(fixture->host.effects(), QStringList { effect });
    QCOMPARE(fixture->host.calls({ "accountEnabled" }), refresh);
}

void tst_AccountEnabling::aHalfCheckedBoxCountsAsUnchecked()
{
    fixture->row("alice")->setCheckState(0, Qt::PartiallyChecked);
    // The refresh clears the box for good, which is handled once more.
    const QString disabling = "disableAccount(alice, XMPP)";
    QCOMPARE(fixture->host.effects(), (QStringList { disabling, disabling }));
    QCOMPARE(fixture->row("alice")->checkState(0), Qt::Unchecked);
}

void tst_AccountEnabling::theListIsDisabledWhileTheHostWorks()
{
    QStringList enabledDuring;
    for (const char *operation : { "disableAccount", "enableAccount", "getAccount", "accountEnabled" }) {
        fixture->host.hook(operation, [&, operation] {
            if (fixture->list()->isEnabled())
                enabledDuring.append(operation);
        });
    }
    uncheckAlice();
    fixture->clickCheckBox(fixture->row("bob", "IRC"));
    QCOMPARE(fixture->host.effects().size(), 2);
    QCOMPARE(enabledDuring, QStringList());
    QVERIFY(fixture->list()->isEnabled());
}

void tst_AccountEnabling::theListGetsTheFocus()
{
    fixture->selector()->setFocus();
    fixture->row("alice")->setCheckState(0, Qt::Unchecked);
    QVERIFY(fixture->list()->hasFocus());
}

void tst_AccountEnabling::theSpaceKeyChangesTheBox()
{
    fixture->clickRow(fixture->row("alice"));
    QTest::keyClick(fixture->list(), Qt::Key_Space);
    QCOMPARE(fixture->host.effects(), QStringList { "disableAccount(alice, XMPP)" });
    QVERIFY(fixture->list()->hasFocus());
}

void tst_AccountEnabling::theRowGoneWhileTheQuestionIsOpen_data()
{
    QTest::addColumn<KirvAnswer>("answer");
    QTest::addColumn<QStringList>("effects");
    QTest::newRow("yes") << KirvAnswer::Yes << QStringList { "disableAccount(alice, XMPP)" };
    QTest::newRow("no") << KirvAnswer::No << QStringList();
}

void tst_AccountEnabling::theRowGoneWhileTheQuestionIsOpen()
{
    QFETCH(KirvAnswer, answer);
    QFETCH(QStringList, effects);
    alice->loggedIn = true;
    uncheckAlice();
    delete fixture->row("alice");
    kirvAnswer(answer);
    // The account is still configured, so the answer counts for it.
    QCOMPARE(fixture->host.effects(), effects);
    QCOMPARE(fixture->list()->topLevelItemCount(), 1);
}

void tst_AccountEnabling::anotherRowInPlaceOfTheOneThatIsGone()
{
    alice->loggedIn = true;
    uncheckAlice();
    delete fixture->row("alice");
    for (int i = 0; i < 100; ++i)
        fixture->page()->addAccountEntry(fixture->host.addAccount(QString("account%1").arg(i), "XMPP"));
    fixture->host.forgetCalls();
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList { "disableAccount(alice, XMPP)" });
    for (int i = 0; i < 100; ++i)
        QVERIFY(fixture->isChecked(QString("account%1").arg(i)));
}

void tst_AccountEnabling::theAccountRemovedWhileTheQuestionIsOpen()
{
    alice->loggedIn = true;
    uncheckAlice();
    delete fixture->row("alice");
    fixture->host.removeAccount("alice", "XMPP");
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), QStringList());
}

void tst_AccountEnabling::aHostThatDoesNotDisableGetsTheCheckBack()
{
    alice->loggedIn = true;
    fixture->host.disablesAccounts = false;
    uncheckAlice();
    fixture->host.forgetCalls();
    kirvAnswer(KirvAnswer::Yes);
    QCOMPARE(fixture->host.effects(), (QStringList { "disableAccount(alice, XMPP)", "enableAccount(alice, XMPP)" }));
    QVERIFY(fixture->isChecked("alice"));
    QCOMPARE(fixture->offered(), QStringList { "*alice@XMPP" });
}

void tst_AccountEnabling::aHostThatRefreshesInsideAnOperation_data()
{
    QTest::addColumn<bool>("enable");
    QTest::newRow("while it enables") << true;
    QTest::newRow("while it disables") << false;
}

/// What the page passed to the operation still names the same account afterwards.
void tst_AccountEnabling::aHostThatRefreshesInsideAnOperation()
{
    QFETCH(bool, enable);
    KirvRecordingAccount *bob = fixture->host.findAccount("bob", "IRC");
    KirvRecordingAccount *carol = fixture->host.addAccount("carol", "IRC");
    fixture->page()->addAccountEntry(carol);
    alice->enabled = !enable;
    fixture->page()->updateAccounts();
    fixture->host.forgetCalls();

    const QString operation = enable ? "enableAccount" : "disableAccount";
    fixture->host.hook(operation, [&] {
        fixture->host.hook(operation, nullptr);
        // Another row is changed by the refresh and handled inside.
        carol->enabled = !carol->enabled;
        bob->enabled = !bob->enabled;
        alice->enabled = enable;
        fixture->page()->updateAccounts();
        alice->enabled = !enable;
    });
    fixture->clickCheckBox(fixture->row("alice"));
    QCOMPARE(fixture->host.effects().first(), operation + "(alice, XMPP)");
    QCOMPARE(alice->enabled, enable);
    QCOMPARE(fixture->isChecked("alice"), enable);
    QCOMPARE(fixture->isChecked("bob", "IRC"), bob->enabled);
    QCOMPARE(fixture->isChecked("carol", "IRC"), carol->enabled);
}

void tst_AccountEnabling::anAliasChangedOnADisabledConnectedAccountOpensAQuestion()
{
    KirvRecordingAccount *bob = fixture->host.findAccount("bob", "IRC");
    int questions = 0;
    fixture->host.hook("isLoggedIn", [&] {
        // Ends a refresh that would never end.
        if (++questions > 20)
            bob->loggedIn = false;
    });
    bob->loggedIn = true;
    bob->alias = "New";
    fixture->page()->updateAccount(bob);
    QVERIFY2(questions <= 2, "the refresh and the question go round in circles");
}

QTEST_MAIN(tst_AccountEnabling)
#include "tst_account_enabling.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "add_account/kirv_add_account_dialog.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/unit/kirv_page_fixture.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include <memory>

/// Creating an account with the add dialog, refusals, and how dialog and window end.
class tst_AccountCreation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void saveCreatesTheAccountAndListsIt();
    void theHostIsCalledInOrder();
    void withoutFieldWidgetTheSettingsAreEmpty();
    void onlyAnUncheckedBoxForgetsThePassword_data();
    void onlyAnUncheckedBoxForgetsThePassword();
    void anEmptyPresenceListGivesAnEmptyId();
    void aRefusalIsReportedAndTheWindowStays();
    void everyRefusalIsReportedAlike();
    void afterARefusalSaveTriesAgain();
    void everyWayOfCancellingCreatesNothing_data();
    void everyWayOfCancellingCreatesNothing();
    void dialogAndWindowEndAfterTheyFinished_data();
    void dialogAndWindowEndAfterTheyFinished();
    void theWindowDestroyedWithItsParentEndsTheDialog();
    void theDialogDeletedBeforeItsWindow();
    void finishedOnlySchedulesTheEnd();

private:
    void fill(const QString &login, const QString &password);
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }
    QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return child<QDialogButtonBox>("AddAccount_ButtonFrame")->button(which);
    }
    void open()
    {
        dialog = new KirvAddAccountDialog(fixture->xmpp, QString(""), fixture->page(), Qt::Sheet);
        window = fixture->page()->findChild<QDialog *>("AddAccount");
        fixture->host.forgetCalls();
    }
    /// Runs the window; \a act is called once inside.
    int run(const std::function<void()> &act)
    {
        KirvWindowWatcher<QDialog> watcher([&](QDialog *shown) {
            if (shown == window)
                act();
        });
        return dialog->exec();
    }

    std::unique_ptr<KirvPageFixture> fixture;
    QPointer<KirvAddAccountDialog> dialog;
    QPointer<QDialog> window;
};

void tst_AccountCreation::init()
{
    fixture = std::make_unique<KirvPageFixture>();
    fixture->xmpp->accountSettings = { KirvField::textEdit("", "server", "example.org", "") };
    fixture->showFilledPage();
    open();
}

void tst_AccountCreation::cleanup()
{
    delete dialog;
    fixture.reset();
}

void tst_AccountCreation::fill(const QString &login, const QString &password)
{
    child<QLineEdit>("AddAccount_UsernameEdit")->setText(login);
    child<QLineEdit>("AddAccount_PasswordEdit")->setText(password);
}

void tst_AccountCreation::saveCreatesTheAccountAndListsIt()
{
    const int result = run([&] {
        QTest::keyClicks(child<QLineEdit>("AddAccount_UsernameEdit"), "alice");
        QTest::keyClicks(child<QLineEdit>("AddAccount_PasswordEdit"), "secret");
        child<QLineEdit>("server")->setText("other.org");
        child<QComboBox>("AddAccount_PresenceCombo")->setCurrentIndex(1);
        QTest::mouseClick(button(QDialogButtonBox::Save), Qt::LeftButton);
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(fixture->host.effects(),
             QStringList { "createAccount(alice, alice, secret, false, XMPP, away:null, [server=other.org])" });
    QVERIFY(fixture->row("alice"));
    QCOMPARE(fixture->row("alice")->text(0), QString("alice"));
    QVERIFY(fixture->isChecked("alice"));
    QCOMPARE(fixture->list()->topLevelItemCount(), 1);
}

void tst_AccountCreation::theHostIsCalledInOrder()
{
    fill("alice", "secret");
    run([&] { button(QDialogButtonBox::Save)->click(); });
    QStringList calls = fixture->host.calls();
    calls.removeAll("XMPP.getName()");
    QCOMPARE(calls.mid(0, 3),
             (QStringList { "getFields()", "XMPP.createPresenceWithId(online, null)",
                            "createAccount(alice, alice, secret, false, XMPP, online:null, [server=example.org])" }));
    // Nothing but the new row is brought up to date.
    QCOMPARE(fixture->host.calls({ "accountEnabled", "getAccountsInfo", "setMainAccount", "writeGlobalSetting" }),
             QStringList());
    QCOMPARE(fixture->offered(), QStringList());
}

void tst_AccountCreation::withoutFieldWidgetTheSettingsAreEmpty()
{
    delete dialog;
    delete window;
    fixture->xmpp->accountSettings.clear();
    open();
    fill("alice", "secret");
    run([&] { button(QDialogButtonBox::Save)->click(); });
    QCOMPARE(fixture->host.effects(),
             QStringList { "createAccount(alice, alice, secret, false, XMPP, online:null, [])" });
    QCOMPARE(fixture->host.calls({ "getFields" }), QStringList());
}

void tst_AccountCreation::onlyAnUncheckedBoxForgetsThePassword_data()
{
    QTest::addColumn<Qt::CheckState>("state");
    QTest::addColumn<QString>("remembers");
    QTest::newRow("unchecked") << Qt::Unchecked << "false";
    QTest::newRow("partially checked") << Qt::PartiallyChecked << "true";
    QTest::newRow("checked") << Qt::Checked << "true";
}

void tst_AccountCreation::onlyAnUncheckedBoxForgetsThePassword()
{
    QFETCH(Qt::CheckState, state);
    QFETCH(QString, remembers);
    fill("alice", "secret");
    child<QCheckBox>("AddAccount_RememberPasswordCheckbox")->setCheckState(state);
    run([&] { button(QDialogButtonBox::Save)->click(); });
    QCOMPARE(fixture->host.effects(),
             QStringList { "createAccount(alice, alice, secret, " + remembers
                           + ", XMPP, online:null, [server=example.org])" });
}

void tst_AccountCreation::anEmptyPresenceListGivesAnEmptyId()
{
    child<QComboBox>("AddAccount_PresenceCombo")->clear();
    fill("alice", "secret");
    run([&] { button(QDialogButtonBox::Save)->click(); });
    const QStringList created = fixture->host.calls({ "createPresenceWithId" });
    QCOMPARE(created.size(), 1);
    QVERIFY(created.first() == "XMPP.createPresenceWithId(null, null)"
            || created.first() == "XMPP.createPresenceWithId(\"\", null)");
}

void tst_AccountCreation::aRefusalIsReportedAndTheWindowStays()
{
    fixture->host.addAccount("alice", "XMPP");
    fill("alice", "secret");
    child<QComboBox>("AddAccount_PresenceCombo")->setCurrentIndex(1);
    KirvWindowWatcher<QMessageBox> refusal([&](QMessageBox *box) {
        QCOMPARE(box->windowTitle(), QString("Add account"));
        QCOMPARE(box->text(), QString("Account 'alice' alerady exists!"));
        QCOMPARE(box->icon(), QMessageBox::Information);
        QCOMPARE(box->standardButtons(), QMessageBox::Ok);
        QCOMPARE(box->parent(), window.data());
        QVERIFY(window->isVisible());
        box->button(QMessageBox::Ok)->click();
    });
    const int result = run([&] {
        button(QDialogButtonBox::Save)->click();
        QCOMPARE(refusal.shown, 1);
        QVERIFY(window->isVisible());
        QCOMPARE(child<QLineEdit>("AddAccount_UsernameEdit")->text(), QString("alice"));
        QCOMPARE(child<QLineEdit>("AddAccount_PasswordEdit")->text(), QString("secret"));
        QCOMPARE(child<QComboBox>("AddAccount_PresenceCombo")->currentIndex(), 1);
        QVERIFY(button(QDialogButtonBox::Save)->isEnabled());
        QCOMPARE(fixture->list()->topLevelItemCount(), 0);
        window->close();
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(fixture->list()->topLevelItemCount(), 0);
}

void tst_AccountCreation::everyRefusalIsReportedAlike()
{
    // Whatever the cause; the login is put in as it is.
    fixture->host.acceptsNewAccounts = false;
    fill("%1 100%", "secret");
    QString shown;
    KirvWindowWatcher<QMessageBox> refusal([&](QMessageBox *box) {
        shown = box->text();
        box->close();
    });
    run([&] {
        button(QDialogButtonBox::Save)->click();
        window->close();
    });
    QCOMPARE(shown, QString("Account '%1 100%' alerady exists!"));
}

void tst_AccountCreation::afterARefusalSaveTriesAgain()
{
    fixture->host.addAccount("alice", "XMPP");
    fill("alice", "secret");
    KirvWindowWatcher<QMessageBox> refusal([&](QMessageBox *box) { box->accept(); });
    const int result = run([&] {
        button(QDialogButtonBox::Save)->click();
        child<QLineEdit>("AddAccount_UsernameEdit")->setText("bob");
        button(QDialogButtonBox::Save)->click();
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(refusal.shown, 1);
    QCOMPARE(fixture->host.calls({ "createAccount" }).size(), 2);
    QVERIFY(fixture->row("bob"));
    QVERIFY(!fixture->row("alice"));
}

void tst_AccountCreation::everyWayOfCancellingCreatesNothing_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "Cancel", "close button", "Escape" })
        QTest::newRow(way) << way;
}

void tst_AccountCreation::everyWayOfCancellingCreatesNothing()
{
    QFETCH(QString, way);
    fill("alice", "secret");
    const int result = run([&] {
        if (way == "Cancel")
            QTest::mouseClick(button(QDialogButtonBox::Cancel), Qt::LeftButton);
        else if (way == "Escape")
            QTest::keyClick(window, Qt::Key_Escape);
        else
            window->close();
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(fixture->host.calls(), QStringList());
    QCOMPARE(fixture->list()->topLevelItemCount(), 0);
    fixture->letGo();
    QVERIFY(!dialog);
    QVERIFY(!window);
}

void tst_AccountCreation::dialogAndWindowEndAfterTheyFinished_data()
{
    QTest::addColumn<bool>("saves");
    QTest::newRow("saved") << true;
    QTest::newRow("cancelled") << false;
}

void tst_AccountCreation::dialogAndWindowEndAfterTheyFinished()
{
    QFETCH(bool, saves);
    fill("alice", "secret");
    int finished = 0;
    connect(window.data(), &QDialog::finished, this, [&](int result) {
        ++finished;
        QCOMPARE(result, saves ? 1 : 0);
        QVERIFY(dialog);
    });
    run([&] { button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Cancel)->click(); });
    QCOMPARE(finished, 1);
    fixture->letGo();
    QVERIFY(!dialog);
    QVERIFY(!window);
}

void tst_AccountCreation::theWindowDestroyedWithItsParentEndsTheDialog()
{
    delete fixture->page();
    QVERIFY(!window);
    fixture->letGo();
    QVERIFY(!dialog);
}

void tst_AccountCreation::theDialogDeletedBeforeItsWindow()
{
    delete dialog;
    QVERIFY(window);
    QVERIFY(window->testAttribute(Qt::WA_DeleteOnClose));
    window->show();
    window->close();
    fixture->letGo();
    QVERIFY(!window);
}

void tst_AccountCreation::finishedOnlySchedulesTheEnd()
{
    QVERIFY(QMetaObject::invokeMethod(dialog, "finished", Q_ARG(int, 0)));
    QVERIFY(dialog);
    fixture->letGo();
    QVERIFY(!dialog);
}

QTEST_MAIN(tst_AccountCreation)
#include "tst_account_creation.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_status.h"
#include "client/kirv_accounts_page_companion.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/gui/kirv_remember_box.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>
#include <memory>

namespace {

const QString id = QStringLiteral("ann");

KirvField serverPassword()
{
    return KirvField::password(QString(), QStringLiteral("server-password"), QStringLiteral("of the server"),
                               QString());
}

} // namespace

/// What the windows show of the keyring, and what they do with passwords that are in it.
class tst_PasswordsInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theAddWindowSaysWhereThePasswordGoes_data();
    void theAddWindowSaysWhereThePasswordGoes();
    void theBoxFollowsTheKeyringUntilItIsClicked();
    void theEditWindowSaysWhyAPasswordIsNotShown();
    void aPasswordThatBecomesKnownIsShown();
    void aSecretSettingThatBecomesKnownIsKept();
    void theEditWindowSaysWhyASecretSettingIsNotShown();
    void theAccountSaysWhatItWaitsFor_data();
    void theAccountSaysWhatItWaitsFor();
    void theAccountSaysWhatCanBeEntered_data();
    void theAccountSaysWhatCanBeEntered();
    void aPasswordCanBeEnteredForNow();
    void aPasswordThatIsNotInTheKeyringIsNotForNow();
    void theMoveIsSaidOnce();

private:
    KirvSecretKeeper &secrets() const { return windows->client->accounts().secrets(); }
    KirvAccount *account() const { return windows->account(id); }
    void settle() const;
    void restart(KirvSecretStore::State state);

    std::unique_ptr<KirvFakeSecretStore> keyring;
    std::unique_ptr<KirvClientWindows> windows;
};

void tst_PasswordsInWindows::init()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    secrets().setKeyring(keyring.get());
}

void tst_PasswordsInWindows::cleanup()
{
    windows.reset();
    keyring.reset();
}

void tst_PasswordsInWindows::settle() const
{
    for (int round = 0; round < 50; ++round)
        windows->settle();
}

/// The client starts again with the keyring in that state.
void tst_PasswordsInWindows::restart(KirvSecretStore::State state)
{
    settle();
    keyring->setState(state);
    windows->restart();
    secrets().setKeyring(keyring.get());
    settle();
}

void tst_PasswordsInWindows::theAddWindowSaysWhereThePasswordGoes_data()
{
    kirvAddPlacesOfPasswords();
}

void tst_PasswordsInWindows::theAddWindowSaysWhereThePasswordGoes()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(QString, text);
    QFETCH(bool, isOn);
    keyring->setState(state);
    windows->inAddWindow([&](const KirvLayoutDialog *window) {
        auto *box = KirvClientWindows::child<QCheckBox>(window, "AddAccount_RememberPasswordCheckbox");
        auto *line = KirvClientWindows::child<QLabel>(window, "AddAccount_RememberPasswordCheckboxPlace");
        QVERIFY(box && line);
        QCOMPARE(line->text(), text);
        QVERIFY(line->isVisible() && box->isVisible());
        QVERIFY(line->mapToGlobal(QPoint()).y() >= box->mapToGlobal(QPoint()).y() + box->height());
        QCOMPARE(box->isChecked(), isOn);
        QCOMPARE(box->accessibleDescription(), text);
    });
}

void tst_PasswordsInWindows::theBoxFollowsTheKeyringUntilItIsClicked()
{
    keyring->setState(KirvSecretStore::Unknown);
    windows->inAddWindow([&](const KirvLayoutDialog *window) {
        auto *box = KirvClientWindows::child<QCheckBox>(window, "AddAccount_RememberPasswordCheckbox");
        kirvVerifyBoxFollowsKeyring(box, *keyring);
    });
}

void tst_PasswordsInWindows::theEditWindowSaysWhyAPasswordIsNotShown()
{
    QVERIFY(windows->addAccount(id));
    settle();
    const QMap<QString, QString> before = keyring->secrets;
    QCOMPARE(before.size(), 1);
    restart(KirvSecretStore::Unavailable);
    KirvLayoutDialog *window = windows->edit(id);
    QVERIFY(window);
    QVERIFY(KirvClientWindows::child<QLineEdit>(window, "EditAccount_Password")->text().isEmpty());
    auto *reason = KirvClientWindows::child<QLabel>(window, "EditAccount_PasswordReason");
    QVERIFY(reason->isVisible());
    QCOMPARE(reason->text(),
             QStringLiteral("The keyring is not there. The password stays as it is unless you enter another one."));
    KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Other"));
    KirvClientWindows::save(window);
    settle();
    QCOMPARE(account()->record().alias, QStringLiteral("Other"));
    QVERIFY(account()->record().rememberPassword);
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets, before);
    QCOMPARE(account()->getPassword(), before.first());
}

void tst_PasswordsInWindows::aPasswordThatBecomesKnownIsShown()
{
    QVERIFY(windows->addAccount(id));
    restart(KirvSecretStore::Silent);
    KirvLayoutDialog *window = windows->edit(id);
    auto *edit = KirvClientWindows::child<QLineEdit>(window, "EditAccount_Password");
    QVERIFY(edit->text().isEmpty());
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(edit->text(), keyring->secrets.first());
    QVERIFY(!KirvClientWindows::child<QLabel>(window, "EditAccount_PasswordReason")->isVisible());
    KirvClientWindows::cancel(window);
}

void tst_PasswordsInWindows::aSecretSettingThatBecomesKnownIsKept()
{
    QVERIFY(windows->addAccount(id));
    account()->setSettings({ KirvField::password(QString(), QStringLiteral("server-password"),
                                                 QStringLiteral("of the server"), QString()) });
    restart(KirvSecretStore::Unavailable);
    KirvLayoutDialog *window = windows->edit(id);
    keyring->setState(KirvSecretStore::Ready); // while the window shows it as empty
    settle();
    KirvClientWindows::save(window);
    settle();
    QCOMPARE(account()->record().settings.value(QStringLiteral("server-password")), QStringLiteral("of the server"));
    QVERIFY(keyring->secrets.values().contains(QStringLiteral("of the server")));
}

void tst_PasswordsInWindows::theEditWindowSaysWhyASecretSettingIsNotShown()
{
    QVERIFY(windows->addAccount(id));
    account()->setSettings({ serverPassword() });
    restart(KirvSecretStore::Unavailable);
    KirvLayoutDialog *window = windows->edit(id);
    auto *edit = KirvClientWindows::child<QLineEdit>(window, "KirvField_server-password");
    auto *reason = KirvClientWindows::child<QLabel>(window, "KirvField_server-password_Reason");
    QVERIFY(edit && reason);
    QVERIFY(edit->text().isEmpty());
    QVERIFY(reason->isVisibleTo(edit->window()));
    QCOMPARE(reason->text(),
             QStringLiteral("The keyring is not there. The password stays as it is unless you enter another one."));
    QVERIFY(reason->mapTo(window, QPoint()).y() >= edit->mapTo(window, QPoint()).y() + edit->height());
    keyring->setState(KirvSecretStore::Silent);
    settle();
    QVERIFY2(reason->text().startsWith(QLatin1String("The keyring does not respond.")), qPrintable(reason->text()));
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(edit->text(), QStringLiteral("of the server"));
    QVERIFY(!reason->isVisibleTo(edit->window()));
    KirvClientWindows::cancel(window);
}

void tst_PasswordsInWindows::theAccountSaysWhatItWaitsFor_data()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::addColumn<KirvSecretStore::Outcome>("outcome");
    QTest::addColumn<QString>("text");
    const KirvSecretStore::Outcome done = KirvSecretStore::Done;
    QTest::newRow("unknown") << KirvSecretStore::Unknown << done << "Reading the password…";
    QTest::newRow("refused") << KirvSecretStore::Locked << KirvSecretStore::Refused << "The keyring is locked";
    QTest::newRow("hangs") << KirvSecretStore::Ready << KirvSecretStore::TimedOut << "The keyring does not respond";
    QTest::newRow("silent") << KirvSecretStore::Silent << done << "The keyring does not respond";
    QTest::newRow("gone") << KirvSecretStore::Unavailable << done << "The keyring is not there";
    QTest::newRow("fails") << KirvSecretStore::Ready << KirvSecretStore::Failed << "The keyring cannot be read";
}

void tst_PasswordsInWindows::theAccountSaysWhatItWaitsFor()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(KirvSecretStore::Outcome, outcome);
    QFETCH(QString, text);
    QVERIFY(windows->addAccount(id));
    settle();
    keyring->outcome = outcome;
    restart(state);
    const KirvAccountStatus status(*account(), false);
    QCOMPARE(status.kind(), KirvAccountStatus::Waiting);
    QCOMPARE(status.text(), text);
    QVERIFY(status.accessibleLine().contains(text));
    QVERIFY(status.reason().contains(QStringLiteral("password")));
    QVERIFY(status.canEnterPassword());
    QVERIFY(!status.canTestLogin() && !status.canBeWrong()); // a test without the password would say that it is wrong
}

void tst_PasswordsInWindows::theAccountSaysWhatCanBeEntered_data()
{
    QTest::addColumn<bool>("hasPassword");
    QTest::addColumn<bool>("hasSetting");
    QTest::addColumn<QString>("advice");
    QTest::newRow("password") << true << false << "Or enter the password: it is used until the program ends.";
    QTest::newRow("setting") << false << true << "Or edit the account and enter it again.";
    QTest::newRow("both") << true << true << "Or edit the account and enter its passwords again.";
}

/// The password alone would not help where a setting is missing.
void tst_PasswordsInWindows::theAccountSaysWhatCanBeEntered()
{
    QFETCH(bool, hasPassword);
    QFETCH(bool, hasSetting);
    QFETCH(QString, advice);
    QVERIFY(windows->addAccount(id));
    if (hasSetting)
        account()->setSettings({ serverPassword() });
    account()->setRememberPassword(hasPassword);
    restart(KirvSecretStore::Unavailable);
    const KirvAccountStatus status(*account(), false);
    QCOMPARE(status.kind(), KirvAccountStatus::Waiting);
    QVERIFY2(status.reason().endsWith(advice), qPrintable(status.reason()));
    if (!hasPassword)
        return;
    Q_EMIT windows->client->accountsPage()->findChild<KirvAccountsPageCompanion *>()->passwordRequested(account());
    settle();
    auto *dialog = windows->client->window()->findChild<KirvPasswordDialog *>();
    QVERIFY(dialog);
    const QString asked = KirvClientWindows::child<QLabel>(dialog, "PasswordQuestion_Reason")->text();
    QVERIFY2(asked.endsWith(advice), qPrintable(asked));
    dialog->reject();
}

void tst_PasswordsInWindows::aPasswordCanBeEnteredForNow()
{
    QVERIFY(windows->addAccount(id));
    settle();
    const QMap<QString, QString> before = keyring->secrets;
    restart(KirvSecretStore::Unavailable);
    QVERIFY(!account()->isOnline());
    Q_EMIT windows->client->accountsPage()->findChild<KirvAccountsPageCompanion *>()->passwordRequested(account());
    settle();
    auto *dialog = windows->client->window()->findChild<KirvPasswordDialog *>();
    QVERIFY(dialog);
    QVERIFY(!KirvClientWindows::child<QCheckBox>(dialog, "PasswordQuestion_Remember")->isVisible());
    QVERIFY(KirvClientWindows::child<QLabel>(dialog, "PasswordQuestion_Reason")->isVisible());
    KirvClientWindows::child<QLineEdit>(dialog, "PasswordQuestion_Password")->setText(QStringLiteral("for now"));
    dialog->accept();
    settle();
    QVERIFY(account()->isOnline());
    QCOMPARE(keyring->secrets, before);
    QVERIFY(!isTextInFiles(QStringLiteral("for now"), windows->profileFolder()));
}

/// What the account waits for may be another secret.
void tst_PasswordsInWindows::aPasswordThatIsNotInTheKeyringIsNotForNow()
{
    QVERIFY(windows->addAccount(id));
    account()->setSettings({ KirvField::password(QString(), QStringLiteral("server-password"),
                                                 QStringLiteral("of the server"), QString()) });
    account()->setRememberPassword(false);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("of the server"));
    restart(KirvSecretStore::Unavailable);
    QVERIFY(account()->awaitsSecrets());
    Q_EMIT windows->client->accountsPage()->findChild<KirvAccountsPageCompanion *>()->passwordRequested(account());
    settle();
    auto *dialog = windows->client->window()->findChild<KirvPasswordDialog *>();
    QVERIFY(dialog);
    QVERIFY(KirvClientWindows::child<QCheckBox>(dialog, "PasswordQuestion_Remember")->isVisible());
    QCOMPARE(KirvClientWindows::child<QLabel>(dialog, "PasswordQuestion_Reason")->text(),
             QStringLiteral("The password is not remembered, so it is needed when the account logs in."));
    KirvClientWindows::child<QLineEdit>(dialog, "PasswordQuestion_Password")->setText(QStringLiteral("typed"));
    dialog->accept();
    settle();
    QVERIFY(!account()->isOnline());
    QVERIFY(account()->awaitsSecrets());
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(account()->isOnline());
}

void tst_PasswordsInWindows::theMoveIsSaidOnce()
{
    keyring->setState(KirvSecretStore::Unavailable);
    for (int number = 0; number < 12; ++number)
        QVERIFY(windows->addAccount(QStringLiteral("ann%1").arg(number)));
    restart(KirvSecretStore::Unavailable);
    keyring->setState(KirvSecretStore::Ready);
    secrets().startMoving();
    KIRV_TRY_COMPARE(keyring->secrets.size(), 12);
    KIRV_TRY_COMPARE(windows->messages(),
                     QStringList("12 passwords were moved to your keyring, which is Fake Keyring."));
    const auto *icon = KirvClientWindows::child<QLabel>(windows->client->window(), "MessageBar_Icon");
    QCOMPARE(icon->accessibleName(), QStringLiteral("Information")); // nothing is wrong
    restart(KirvSecretStore::Ready);
    secrets().startMoving();
    settle();
    QVERIFY(windows->messages().isEmpty());
}

QTEST_MAIN(tst_PasswordsInWindows)
#include "tst_passwords_in_windows.moc"

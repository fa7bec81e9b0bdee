// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_accounts_page_companion.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>
#include <memory>

namespace {

const QString id = QStringLiteral("ann");

} // namespace

/// The question for a password says why it is asked.
class tst_PasswordQuestion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void passwordThatIsNotRememberedIsNeededAtEachLogIn();
    void missingPasswordIsSaid();
    void wrongPasswordIsSaid();
    void anotherPasswordCanBeEntered();
    void lockedKeyringIsSaid();
    void passwordThatIsGoneFromTheKeyringIsSaid();
    void assistiveTechnologyReadsTheReason();

private:
    KirvAccount *account() const { return windows->account(id); }
    void settle() const;
    void restart(KirvSecretStore::State state);
    /// What the page's button does.
    void enterPassword() const;
    /// What the open question says; empty when there is none.
    QString reason() const;
    KirvPasswordDialog *question() const;

    std::unique_ptr<KirvFakeSecretStore> keyring;
    std::unique_ptr<KirvClientWindows> windows;
};

void tst_PasswordQuestion::init()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->client->accounts().secrets().setKeyring(keyring.get());
}

void tst_PasswordQuestion::cleanup()
{
    windows.reset();
    keyring.reset();
}

void tst_PasswordQuestion::settle() const
{
    for (int round = 0; round < 50; ++round)
        windows->settle();
}

void tst_PasswordQuestion::restart(KirvSecretStore::State state)
{
    settle();
    keyring->setState(state);
    windows->restart();
    windows->client->accounts().secrets().setKeyring(keyring.get());
    settle();
}

void tst_PasswordQuestion::enterPassword() const
{
    Q_EMIT windows->client->accountsPage()->findChild<KirvAccountsPageCompanion *>()->passwordRequested(account());
    settle();
}

KirvPasswordDialog *tst_PasswordQuestion::question() const
{
    return windows->client->window()->findChild<KirvPasswordDialog *>();
}

QString tst_PasswordQuestion::reason() const
{
    const auto *label = question() ? KirvClientWindows::child<QLabel>(question(), "PasswordQuestion_Reason") : nullptr;
    return label && label->isVisible() ? label->text() : QString();
}

void tst_PasswordQuestion::passwordThatIsNotRememberedIsNeededAtEachLogIn()
{
    windows->addAccount(id);
    windows->protocol->server->needsPassword = true;
    account()->change([](KirvAccountRecord &record) {
        record.password.clear();
        record.rememberPassword = false;
    });
    account()->reconnect();
    settle();
    QCOMPARE(reason(), QStringLiteral("The password is not remembered, so it is needed when the account logs in."));
}

void tst_PasswordQuestion::missingPasswordIsSaid()
{
    windows->addAccount(id);
    windows->protocol->server->needsPassword = true;
    account()->change([](KirvAccountRecord &record) { record.password.clear(); });
    account()->reconnect();
    settle();
    QCOMPARE(reason(), QStringLiteral("No password was entered for this account yet."));
}

void tst_PasswordQuestion::wrongPasswordIsSaid()
{
    windows->addAccount(id);
    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    windows->protocol->server->refusal = KirvFailure(KirvFailure::WrongPassword);
    account()->reconnect();
    settle();
    enterPassword();
    QCOMPARE(reason(), QStringLiteral("The server did not accept the password that was used last."));
}

void tst_PasswordQuestion::anotherPasswordCanBeEntered()
{
    windows->addAccount(id);
    QVERIFY(account()->isOnline());
    enterPassword();
    QCOMPARE(reason(), QStringLiteral("The account has a password; the one that you enter takes its place."));
}

void tst_PasswordQuestion::lockedKeyringIsSaid()
{
    windows->addAccount(id);
    settle();
    keyring->outcome = KirvSecretStore::Refused;
    restart(KirvSecretStore::Locked);
    enterPassword();
    QVERIFY2(reason().contains(QStringLiteral("which was not unlocked")), qPrintable(reason()));
}

void tst_PasswordQuestion::passwordThatIsGoneFromTheKeyringIsSaid()
{
    windows->addAccount(id);
    settle();
    windows->protocol->server->needsPassword = true;
    keyring->secrets.clear();
    windows->end();
    windows->restart();
    windows->protocol->server->needsPassword = true;
    windows->client->accounts().secrets().setKeyring(keyring.get());
    settle();
    if (!question())
        enterPassword();
    QCOMPARE(reason(), QStringLiteral("The password is not in the keyring any more."));
}

void tst_PasswordQuestion::assistiveTechnologyReadsTheReason()
{
    windows->addAccount(id);
    enterPassword();
    QVERIFY(question());
    QCOMPARE(KirvClientWindows::child<QLineEdit>(question(), "PasswordQuestion_Password")->accessibleDescription(),
             reason());
    QVERIFY(!reason().isEmpty());
}

QTEST_MAIN(tst_PasswordQuestion)
#include "tst_password_question.moc"

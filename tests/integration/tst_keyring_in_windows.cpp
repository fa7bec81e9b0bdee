// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_status.h"
#include "client/kirv_accounts_page_companion.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_secret_item_table.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"
#include "tests/support/servers/kirv_scripted_secret_service.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>
#include <algorithm>
#include <memory>

namespace {

const QString id = QStringLiteral("ann");
const QString word = QStringLiteral("word that is remembered");
const QString newer = QStringLiteral("word that was typed later");
const QString ofAnother = QStringLiteral("word of another program");

QString logIn(const QString &password)
{
    return QStringLiteral("ann log in available ") + password;
}

} // namespace

/// The client with a real GNOME Keyring: what a user does in its windows, what becomes of the passwords there, and
/// that none of them is ever seen in a file, or among the arguments and variables of the process.
class tst_KeyringInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void addedPasswordIsInTheKeyringOnly();
    void editedPasswordReplacesTheOneBefore();
    void passwordThatIsNotRememberedAnyMoreIsRemoved();
    void removedAccountTakesItsPasswordAlong();
    void removedAccountThatComesBackHasItsPassword();
    void passwordIsReadWhenTheKeyringIsUnlockedLate();
    void passwordThatAnotherProgramChangedIsUsed();
    void passwordThatAnotherProgramDeletedIsAskedFor();
    void passwordIsMovedWhenTheKeyringComesBack();
    void serviceThatHangsHoldsNothingUp();

private:
    KirvAccount *account() const { return windows->account(id); }
    KirvSecretStore::State keyringState() const { return windows->client->accounts().secrets().keyring()->state(); }
    bool isSettled() const;
    /// The secrets in the keyring when the client has nothing left to do with them.
    QStringList kept() const;
    bool isSeenAnywhere() const;
    QStringList logIns() const { return windows->protocol->server->calls.filter(QStringLiteral("log in")); }
    KirvAccountStatus status() const { return KirvAccountStatus(*account(), false); }
    KirvPasswordDialog *openPasswordQuestion() const;

    std::unique_ptr<KirvGnomeKeyring> daemon;
    std::unique_ptr<KirvClientWindows> windows;
};

/// With one account, which is on line.
void tst_KeyringInWindows::init()
{
    daemon = std::make_unique<KirvGnomeKeyring>();
    QVERIFY(daemon->start());
    windows = std::make_unique<KirvClientWindows>(QStringLiteral("Fake"), KirvClientWindows::InKeyring);
    QVERIFY(windows->isReady());
    windows->password = word;
    KIRV_TRY_COMPARE(keyringState(), KirvSecretStore::Ready);
    QVERIFY(windows->addInWindow(id));
    KIRV_TRY(account()->isOnline());
    KIRV_TRY_COMPARE(kept(), QStringList(word));
    QVERIFY(!isSeenAnywhere());
}

void tst_KeyringInWindows::cleanup()
{
    const bool wasSeen = isSeenAnywhere();
    windows->end(); // which keeps a copy
    const bool isSeen = isSeenAnywhere();
    windows.reset();
    daemon.reset();
    QVERIFY(!wasSeen);
    QVERIFY(!isSeen);
}

/// Whether the client has nothing left to do with the keyring. What ends in the middle of it would make the next client
/// of this process wait for the library.
bool tst_KeyringInWindows::isSettled() const
{
    bool isDone = false;
    const QString name = QStringLiteral("settled");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(windows->profileFolder() + QStringLiteral("/profile.sqlite"));
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        database.open();
        QSqlQuery query(database);
        isDone =
            query.exec(
                QStringLiteral("SELECT count(*) FROM secret_item WHERE stage <> %1").arg(int(KirvStoredItem::Kept)))
            && query.next() && query.value(0).toInt() == 0;
    }
    QSqlDatabase::removeDatabase(name);
    return isDone;
}

QStringList tst_KeyringInWindows::kept() const
{
    return isSettled() ? daemon->secrets() : QStringList("not settled");
}

bool tst_KeyringInWindows::isSeenAnywhere() const
{
    const QStringList words { word, newer, ofAnother };
    return std::any_of(words.begin(), words.end(), [this](const QString &one) {
        return isTextInFiles(one, windows->folder.path())
            || contentOf(QStringLiteral("/proc/self/cmdline")).contains(one.toUtf8())
            || contentOf(QStringLiteral("/proc/self/environ")).contains(one.toUtf8());
    });
}

KirvPasswordDialog *tst_KeyringInWindows::openPasswordQuestion() const
{
    Q_EMIT windows->client->accountsPage()->findChild<KirvAccountsPageCompanion *>()->passwordRequested(account());
    KirvClientWindows::settle();
    return windows->client->window()->findChild<KirvPasswordDialog *>();
}

void tst_KeyringInWindows::addedPasswordIsInTheKeyringOnly()
{
    windows->restart();
    KIRV_TRY(account()->isOnline());
    QCOMPARE(logIns(), QStringList(logIn(word)));
    QCOMPARE(daemon->secrets(), QStringList(word));
}

void tst_KeyringInWindows::editedPasswordReplacesTheOneBefore()
{
    KirvLayoutDialog *window = windows->edit(id);
    QVERIFY(window);
    KirvClientWindows::child<QLineEdit>(window, "EditAccount_Password")->setText(newer);
    KirvClientWindows::save(window);
    KIRV_TRY_COMPARE(kept(), QStringList(newer));
    windows->restart();
    KIRV_TRY(account()->isOnline());
    QCOMPARE(logIns(), QStringList(logIn(newer)));
}

void tst_KeyringInWindows::passwordThatIsNotRememberedAnyMoreIsRemoved()
{
    KirvLayoutDialog *window = windows->edit(id);
    QVERIFY(window);
    KirvClientWindows::child<QCheckBox>(window, "EditAccount_RememberPassword")->setChecked(false);
    KirvClientWindows::save(window);
    KIRV_TRY_COMPARE(kept(), QStringList());
    QVERIFY(account()->isOnline());
}

/// Not before nobody can undo the removal.
void tst_KeyringInWindows::removedAccountTakesItsPasswordAlong()
{
    windows->removeInPage(id);
    QVERIFY(!account());
    windows->restart();
    KIRV_TRY_COMPARE(kept(), QStringList());
}

void tst_KeyringInWindows::removedAccountThatComesBackHasItsPassword()
{
    windows->removeInPage(id);
    QVERIFY(!account());
    auto *undo = KirvClientWindows::child<QAbstractButton>(windows->client->window(), "MessageBar_Command");
    QVERIFY(undo);
    undo->click();
    KIRV_TRY(account() && account()->isOnline());
    KIRV_TRY_COMPARE(kept(), QStringList(word));
    windows->restart();
    KIRV_TRY(account()->isOnline());
    QCOMPARE(logIns(), QStringList(logIn(word)));
}

void tst_KeyringInWindows::passwordIsReadWhenTheKeyringIsUnlockedLate()
{
    windows->end();
    QVERIFY(daemon->lock());
    windows->restart();
    KIRV_TRY_COMPARE(status().text(), QStringLiteral("The keyring is locked")); // nobody is there who could unlock it
    KirvLayoutDialog *window = windows->edit(id);
    QVERIFY(window);
    QCOMPARE(KirvClientWindows::child<QLineEdit>(window, "EditAccount_Password")->text(), QString());
    QVERIFY(KirvClientWindows::child<QLabel>(window, "EditAccount_PasswordReason")->isVisible());
    KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Other"));
    KirvClientWindows::save(window);
    QCOMPARE(account()->record().alias, QStringLiteral("Other"));
    QCOMPARE(logIns(), QStringList());
    QVERIFY(daemon->unlock());
    KIRV_TRY(account()->isOnline());
    QCOMPARE(logIns(), QStringList(logIn(word)));
    QCOMPARE(daemon->secrets(), QStringList(word));
}

void tst_KeyringInWindows::passwordThatAnotherProgramChangedIsUsed()
{
    windows->end();
    QVERIFY(daemon->change(word, ofAnother));
    windows->restart();
    KIRV_TRY(account()->isOnline());
    QCOMPARE(logIns(), QStringList(logIn(ofAnother)));
    QVERIFY(daemon->change(ofAnother, newer)); // while the client runs
    windows->protocol->server->calls.clear();
    account()->reconnect();
    KIRV_TRY_COMPARE(logIns(), QStringList(logIn(newer)));
    QCOMPARE(daemon->secrets(), QStringList(newer));
}

void tst_KeyringInWindows::passwordThatAnotherProgramDeletedIsAskedFor()
{
    windows->end();
    QVERIFY(daemon->remove(word));
    windows->prepare = [](KirvFakeProtocol *protocol) { protocol->server->needsPassword = true; };
    windows->restart();
    KIRV_TRY_COMPARE(status().kind(), KirvAccountStatus::Failed);
    QVERIFY(!account()->awaitsSecrets());
    QVERIFY(status().canEnterPassword());
    KirvPasswordDialog *dialog = openPasswordQuestion();
    QVERIFY(dialog);
    QCOMPARE(KirvClientWindows::child<QLabel>(dialog, "PasswordQuestion_Reason")->text(),
             QStringLiteral("The password is not in the keyring any more."));
    KirvClientWindows::child<QLineEdit>(dialog, "PasswordQuestion_Password")->setText(newer);
    dialog->accept();
    KIRV_TRY(account()->isOnline());
    KIRV_TRY_COMPARE(kept(), QStringList(newer));
}

/// Meanwhile it is in a file, as the window says.
void tst_KeyringInWindows::passwordIsMovedWhenTheKeyringComesBack()
{
    daemon->stop();
    KIRV_TRY_COMPARE(keyringState(), KirvSecretStore::Unavailable);
    KirvLayoutDialog *window = windows->edit(id);
    QVERIFY(window);
    QCOMPARE(KirvClientWindows::child<QLineEdit>(window, "EditAccount_Password")->text(), word); // it is known
    QCOMPARE(KirvClientWindows::child<QLabel>(window, "EditAccount_RememberPasswordPlace")->text(),
             QStringLiteral("There is no keyring here: it would be kept in a file only you can read"));
    KirvClientWindows::child<QLineEdit>(window, "EditAccount_Password")->setText(newer);
    KirvClientWindows::save(window);
    KIRV_TRY(logIns().contains(logIn(newer)));
    QVERIFY(daemon->start());
    KIRV_TRY_COMPARE(kept(), QStringList(newer));
    KIRV_TRY(!isSeenAnywhere());
}

void tst_KeyringInWindows::serviceThatHangsHoldsNothingUp()
{
    windows->end();
    daemon->stop();
    KirvScriptedSecretService service(KirvScriptedSecretService::NeverReplies);
    QVERIFY(service.appear());
    windows->restart();
    KIRV_TRY_COMPARE(status().text(), QStringLiteral("The keyring does not respond"));
    KirvPasswordDialog *dialog = openPasswordQuestion();
    QVERIFY(dialog);
    KirvClientWindows::child<QLineEdit>(dialog, "PasswordQuestion_Password")->setText(newer);
    dialog->accept();
    KIRV_TRY(account()->isOnline());
    QCOMPARE(logIns(), QStringList(logIn(newer)));
    service.leave();
    QVERIFY(daemon->start());
    KIRV_TRY_COMPARE(keyringState(), KirvSecretStore::Ready);
    QCOMPARE(daemon->secrets(), QStringList(word)); // what was typed was for now only
    windows->restart();
    KIRV_TRY(account()->isOnline());
    QCOMPARE(logIns(), QStringList(logIn(word)));
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QApplication application(argc, argv);
    tst_KeyringInWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyring_in_windows.moc"

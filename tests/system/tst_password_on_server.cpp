// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_scripted_session_server.h"
#include "tests/support/store_refusal.h"
#include "tests/system/kirv_tested_account.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QDialog>

namespace {

const QString here = QStringLiteral("Server on this computer");
const QString hereInClear = QStringLiteral("Server on this computer, unencrypted");
const QString ann = QStringLiteral("ann@localhost");
const QString secret = QStringLiteral("secret");
const QString fresh = QStringLiteral("fresh");

} // namespace

/// An account that gets a new password on its server.
class tst_PasswordOnServer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newPasswordIsKeptWhenTheStoreRefusesIt();
    void acceptedChangeMakesNoReconnection_data();
    void acceptedChangeMakesNoReconnection();

private:
    /// The edit window of a new account that is connected to the server on \a port; null when a step did not work.
    QDialog *edit(const QString &configuration, quint16 port, const QString &certificate = QString());

    std::unique_ptr<KirvWindows> windows;
    std::unique_ptr<KirvTestedAccount> account;
};

void tst_PasswordOnServer::init()
{
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
    account = std::make_unique<KirvTestedAccount>(*windows, ann);
}

void tst_PasswordOnServer::cleanup()
{
    account.reset();
    windows.reset();
}

QDialog *tst_PasswordOnServer::edit(const QString &configuration, quint16 port, const QString &certificate)
{
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(port));
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", certificate.toLocal8Bit());
    const bool isReady = account->create(secret, configuration, "available")
        && QTest::qWaitFor([this] { return account->isConnected(); }, kirvPatience);
    return isReady ? account->openEditWindow() : nullptr;
}

void tst_PasswordOnServer::newPasswordIsKeptWhenTheStoreRefusesIt()
{
    KirvProsodyServer server;
    QVERIFY2(server.start() && server.addUser("ann", secret), qPrintable(server.errorString()));
    QDialog *window = edit(here, server.port(), server.certificatePath());
    QVERIFY(window);
    {
        StoreRefusal refusal(windows->profileFolder());
        QVERIFY(refusal.holds());
        QVERIFY(account->changePasswordOnServer(window, fresh));
        KirvTestedAccount::pressCancel(window);
        KIRV_TRY(!KirvTestedAccount::editWindow());
        QCOMPARE(account->password(), fresh);
        windows->reconnect(ann);
        KIRV_TRY(account->isConnected());
    }
    window = account->openEditWindow();
    QVERIFY(window);
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());
    QVERIFY(windows->start());
    KIRV_TRY(account->isConnected());
}

void tst_PasswordOnServer::acceptedChangeMakesNoReconnection_data()
{
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("window is cancelled") << false;
    QTest::newRow("window is saved") << true;
}

void tst_PasswordOnServer::acceptedChangeMakesNoReconnection()
{
    QFETCH(bool, isSaved);
    KirvScriptedSessionServer server;
    server.setPassword(secret.toUtf8());
    QDialog *window = edit(hereInClear, server.serverPort());
    QVERIFY(window);
    QVERIFY(account->changePasswordOnServer(window, fresh));
    if (isSaved)
        KirvTestedAccount::pressSave(window);
    else
        KirvTestedAccount::pressCancel(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());
    QCOMPARE(account->password(), fresh);

    QVERIFY(windows->goTo(ann, "Away"));
    KIRV_TRY(server.lastPresence().contains("away"));
    KIRV_TRY(account->isConnected());
    QCOMPARE(server.connections(), 1);
    QCOMPARE(server.passwords(), QByteArrayList { secret.toUtf8() });
}

QTEST_MAIN(tst_PasswordOnServer)
#include "tst_password_on_server.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_service.h"
#include "core/accounts/kirv_account_history.h"
#include "core/moving/kirv_account_file.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/kirv_patience.h"

#include <QJsonArray>
#include <QtTest>

#include <memory>

/// What a command does to the accounts of a program with a keyring.
class tst_AccountsService : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void passwordsOfALockedKeyringAreNotExported_data();
    void passwordsOfALockedKeyringAreNotExported();
};

void tst_AccountsService::passwordsOfALockedKeyringAreNotExported_data()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("password");
    QTest::newRow("unlocked") << KirvSecretStore::Ready << int(KirvAccountsReply::Done) << "word of id";
    QTest::newRow("locked") << KirvSecretStore::Locked << int(KirvAccountsReply::DoneInPart) << "";
    QTest::newRow("silent") << KirvSecretStore::Silent << int(KirvAccountsReply::DoneInPart) << "";
}

/// The account has logged in with its password, which it still knows.
void tst_AccountsService::passwordsOfALockedKeyringAreNotExported()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(int, status);
    QFETCH(QString, password);
    KirvFakeSecretStore keyring;
    KirvAccountsFixture core;
    QVERIFY(core.isReady());
    core.accounts->secrets().setKeyring(&keyring);
    core.create();
    core.account()->change([](KirvAccountRecord &record) { record.rememberPassword = true; });
    KIRV_TRY_COMPARE(keyring.secrets.values(), QStringList { QStringLiteral("word of id") });
    KIRV_TRY(core.account()->isOnline());
    KirvAccountsFixture::settle();
    keyring.setState(state);

    KirvAccountHistory history(*core.accounts, core.services->mainAccountRule);
    KirvAccountsService service({ *core.accounts, core.services->mainAccountRule, history, true,
                                  [](const KirvAccountsRequest &, const std::function<void()> &then) { then(); } });
    KirvAccountsRequest request;
    request.command = KirvAccountsRequest::Export;
    request.withPasswords = true;
    request.passPhrase = QStringLiteral("phrase");
    KirvAccountsReply reply;
    reply.status = -1;
    service.run(request, [&reply](const KirvAccountsReply &result) { reply = result; });
    QTRY_VERIFY_WITH_TIMEOUT(reply.status >= 0, kirvPatience);
    QCOMPARE(reply.status, status);
    QCOMPARE(reply.result.value(QStringLiteral("leftOut")).toArray().isEmpty(), !password.isEmpty());
    const KirvAccountFile::Result file =
        KirvAccountFile::read(QByteArray::fromBase64(reply.file.toLatin1()), request.passPhrase);
    QCOMPARE(file.accounts.accounts.size(), 1);
    QCOMPARE(file.accounts.accounts.first().record.password, password);
    QCOMPARE(core.account()->record().password, QStringLiteral("word of id"));
}

QTEST_GUILESS_MAIN(tst_AccountsService)

#include "tst_accounts_service.moc"

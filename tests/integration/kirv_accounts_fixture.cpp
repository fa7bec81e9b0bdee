// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_accounts_fixture.h"

#include "tests/support/kirv_profile_files.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

KirvAccountsFixture::KirvAccountsFixture()
    : protocol(std::make_unique<KirvFakeProtocol>())
    , ready(store.open(home.filePath(QStringLiteral("profile"))))
{
    startCore();
    accounts->protocolLoaded(protocol.get());
}

KirvAccountsFixture::~KirvAccountsFixture()
{
    const std::shared_ptr<KirvFakeServer> server = protocol ? protocol->server : std::make_shared<KirvFakeServer>();
    endCore();
    if (server->connections != 0)
        qFatal("%d connections are left", server->connections);
}

void KirvAccountsFixture::startCore()
{
    plugins = std::make_unique<KirvPluginLoader>();
    settings = std::make_unique<KirvClientSettings>(store);
    accounts = std::make_unique<KirvAccountCollection>(store);
    services = std::make_unique<KirvHostServices>(*accounts, *plugins, *settings);
}

void KirvAccountsFixture::endCore()
{
    services.reset();
    accounts.reset();
    settings.reset();
    plugins.reset();
}

void KirvAccountsFixture::restart(bool logIn, const std::function<void()> &beforeLoading)
{
    const QString folder = store.folder();
    endCore();
    QCOMPARE(server().connections, 0);
    server().calls.clear();
    store.close();
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    startCore();
    beforeLoading();
    accounts->protocolLoaded(protocol.get(), logIn);
}

void KirvAccountsFixture::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void KirvAccountsFixture::settleAndDelete()
{
    settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

KirvAccount *KirvAccountsFixture::account(const QString &id) const
{
    return accounts ? accounts->find({ id, fake }) : nullptr;
}

KirvFakeConnection *KirvAccountsFixture::connection(const QString &id) const
{
    return account(id) ? static_cast<KirvFakeConnection *>(account(id)->connection()) : nullptr;
}

QStringList KirvAccountsFixture::takeCalls()
{
    settle();
    return server().takeCalls();
}

KirvAccountConnection *KirvAccountsFixture::create(const QString &id)
{
    return manager().createAccount(id, QStringLiteral("Alias of ") + id, QStringLiteral("word of ") + id, true,
                                   protocol.get(), protocol->presences().first(), {});
}

std::unique_ptr<KirvAccountHistory> KirvAccountsFixture::createWithHistory(const QStringList &ids)
{
    KirvMainAccount &mainAccount = services->mainAccountRule;
    mainAccount.restore();
    auto history = std::make_unique<KirvAccountHistory>(*accounts, mainAccount);
    for (const QString &id : ids) {
        if (!create(id))
            return nullptr;
    }
    settle();
    return history;
}

void KirvAccountsFixture::bring(const QString &id, KirvConnection::State state)
{
    server().logIn = state == KirvConnection::Connecting ? KirvFakeServer::Holds : KirvFakeServer::Accepts;
    server().logOut = state == KirvConnection::Disconnecting ? KirvFakeServer::Holds : KirvFakeServer::Accepts;
    QVERIFY(create(id));
    settle();
    if (state == KirvConnection::Offline || state == KirvConnection::Disconnecting)
        setPresence(QStringLiteral("offline"), id);
    if (state == KirvConnection::Waiting)
        connection(id)->serverGoes();
    settle();
    QCOMPARE(connection(id)->state(), state);
    server().calls.clear();
}

void KirvAccountsFixture::setPresence(const QString &presence, const QString &id)
{
    account(id)->setPresence(protocol->createPresenceWithId(presence, QString()));
    protocol->accountPresenceChanged(account(id));
}

void KirvAccountsFixture::changeEverything(KirvAccount *changing)
{
    changing->setAlias(QStringLiteral("new"));
    changing->setPassword(QStringLiteral("new"));
    changing->setRememberPassword(true);
    changing->setRestoreLastPresence(true);
    changing->setRestoreLastDescription(true);
    changing->setDefaultPresence(protocol->createPresenceWithId(QStringLiteral("away"), QStringLiteral("new")));
    changing->setPresence(changing->getDefaultPresence());
    changing->setAvatar(makePicture());
    changing->change([](KirvAccountRecord &record) { record.trustedCertificate = QString(64, QLatin1Char('a')); });
    changing->setAccountSettings(
        { KirvField::textEdit(QString(), QStringLiteral("server"), QStringLiteral("new"), QString()) });
}

QString KirvAccountsFixture::makePicture(const QSize &size)
{
    return ::makePicture(home.filePath(QStringLiteral("picture%1.png").arg(++pictures)), size);
}

void KirvAccountsFixture::setStoreFull(bool isFull)
{
    QSqlDatabase database = QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false);
    QVERIFY(QSqlQuery(database).exec(
        QLatin1String(isFull ? "PRAGMA max_page_count = 1" : "PRAGMA max_page_count = 1000000")));
}

QStringList KirvAccountsFixture::order() const
{
    QStringList ids;
    for (const KirvAccount *account : accounts->accounts())
        ids << account->key().id;
    return ids;
}

QStringList KirvAccountsFixture::idsOf(const QString &protocol)
{
    QStringList ids;
    for (const KirvAccountInfo *info : manager().getAccountsInfo(protocol))
        ids << info->getId();
    return ids;
}

QStringList KirvAccountsFixture::valuesOf(const KirvAccountConnection *account)
{
    QStringList values;
    for (const KirvField &field : account->getAccountSettingsInOrder())
        values << (field.getKind() == KirvField::CheckBox ? QString(QLatin1Char(field.isChecked() ? '+' : '-'))
                                                          : field.getText());
    return values;
}

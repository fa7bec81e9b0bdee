// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_main_account.h"
#include "core/moving/kirv_account_export.h"
#include "core/moving/kirv_account_file.h"
#include "core/values/kirv_bounded_image.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/kirv_profile_files.h"

#include <QFile>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString serverPassword = QStringLiteral("server-password");

QStringList idsOf(const KirvMovedAccounts &moved)
{
    QStringList ids;
    for (const KirvMovedAccount &account : moved.accounts)
        ids << account.record.key.id;
    return ids;
}

} // namespace

/// What of the accounts goes into a file.
class tst_AccountExport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void chosenAccountsComeInTheirOrder();
    void mainAccountComesWhenItIsChosen();
    void everythingOfAnAccountComes();
    void withoutSecretsNoneComes();
    void passwordThatIsNotRememberedStaysHere();
    void whatALockedKeyringHoldsIsNamed();
    void passwordForThisRunStaysHere();
    void whatAKeyringHasGivenComes();
    void whatBelongsToTheProfileStaysHere();
    void pictureThatIsGoneIsNamed();
    void picturesAreReadLater();
    void picturesThatNoFileHoldsAreNotRead();
    void accountThatNoFileHoldsIsNamed();
    void whatIsCollectedCanBeWritten();

private:
    KirvMainAccount &mainAccount() const { return core->services->mainAccountRule; }
    KirvMovedAccounts collect(const QStringList &ids, bool withSecrets = true) const;
    KirvAccountRecord collected(const QString &id, bool withSecrets = true) const
    {
        return collect({ id }, withSecrets).accounts.value(0).record;
    }
    void change(const QString &id, const std::function<void(KirvAccountRecord &)> &makeChange) const
    {
        QVERIFY(core->account(id)->change(makeChange));
    }
    void settle() const;
    void startWithLockedKeyring();

    std::unique_ptr<KirvFakeSecretStore> keyring;
    std::unique_ptr<KirvAccountsFixture> core;
};

void tst_AccountExport::init()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    mainAccount().restore();
    for (const QString &id : { ann, bob, cleo })
        QVERIFY(core->create(id));
    core->settle();
}

void tst_AccountExport::cleanup()
{
    core.reset();
    keyring.reset();
}

KirvMovedAccounts tst_AccountExport::collect(const QStringList &ids, bool withSecrets) const
{
    QList<KirvAccount *> chosen;
    for (const QString &id : ids)
        chosen << core->account(id);
    KirvMovedAccounts moved = KirvAccountExport::collect(*core->accounts, mainAccount(), chosen, withSecrets);
    KirvAccountExport::readPictures(&moved);
    return moved;
}

/// Each operation of the keyring follows from the event loop from the one before.
void tst_AccountExport::settle() const
{
    for (int round = 0; round < 100; ++round)
        core->settle();
}

/// After everything was put into it.
void tst_AccountExport::startWithLockedKeyring()
{
    core->accounts->secrets().setKeyring(keyring.get());
    change(bob, [](KirvAccountRecord &record) {
        record.password = QStringLiteral("word in the keyring");
        record.settings.insert(serverPassword, QStringLiteral("setting in the keyring"));
    });
    settle();
    QCOMPARE(keyring->secrets.size(), 2);
    keyring->setState(KirvSecretStore::Locked);
    keyring->outcome = KirvSecretStore::Refused;
    core->restart(true, [this] { core->accounts->secrets().setKeyring(keyring.get()); });
    mainAccount().restore();
    settle();
    QCOMPARE(core->account(bob)->record().unreadSecrets, QSet<QString>({ QString(), serverPassword }));
}

void tst_AccountExport::chosenAccountsComeInTheirOrder()
{
    QVERIFY(core->accounts->place(core->account(cleo), core->account(ann)));
    QCOMPARE(idsOf(collect({ ann, bob, cleo })), QStringList({ cleo, ann, bob }));
    QCOMPARE(idsOf(collect({ bob, cleo })), QStringList({ cleo, bob }));
    QCOMPARE(idsOf(collect({ bob, bob })), QStringList({ bob }));
    QCOMPARE(idsOf(collect({})), QStringList());
}

void tst_AccountExport::mainAccountComesWhenItIsChosen()
{
    QVERIFY(mainAccount().choose(core->account(bob)));
    QCOMPARE(collect({ ann, bob }).mainAccount.id, bob);
    QCOMPARE(collect({ ann, cleo }).mainAccount.id, QString());
    for (const QString &id : { ann, bob, cleo })
        QVERIFY(core->account(id)->setEnabled(false));
    QCOMPARE(collect({ ann, bob, cleo }).mainAccount.id, QString());
}

void tst_AccountExport::everythingOfAnAccountComes()
{
    core->changeEverything(core->account(bob));
    change(bob, [](KirvAccountRecord &record) { record.settings.insert(serverPassword, QStringLiteral("word")); });
    core->settle();
    KirvAccountRecord expected = core->account(bob)->record();
    QVERIFY(!expected.avatar.isEmpty());
    expected.avatar.clear();
    expected.settings.remove(KirvOwnSetting::avatarIsChosen);
    expected.settings.remove(KirvOwnSetting::avatarOnServer);
    const KirvMovedAccounts moved = collect({ bob });
    QCOMPARE(moved.leftOut, QStringList());
    QCOMPARE(moved.accounts.size(), 1);
    QVERIFY(moved.accounts.first().record == expected);
    QCOMPARE(moved.accounts.first().record.password, QStringLiteral("new"));
    QCOMPARE(moved.accounts.first().record.settings.value(serverPassword), QStringLiteral("word"));
    const QByteArray picture = contentOf(core->account(bob)->avatarPath());
    QVERIFY(!picture.isEmpty());
    QCOMPARE(moved.accounts.first().picture, picture);
}

void tst_AccountExport::withoutSecretsNoneComes()
{
    change(bob, [](KirvAccountRecord &record) { record.settings.insert(serverPassword, QStringLiteral("word")); });
    const KirvMovedAccounts moved = collect({ bob }, false);
    const KirvAccountRecord record = moved.accounts.value(0).record;
    QCOMPARE(record.key.id, bob);
    QCOMPARE(record.password, QString());
    QVERIFY(!record.settings.contains(serverPassword));
    QVERIFY(record.secretSettings.contains(serverPassword));
    QVERIFY(record.rememberPassword);
    QCOMPARE(moved.leftOut, QStringList()); // nobody wanted them
}

void tst_AccountExport::passwordThatIsNotRememberedStaysHere()
{
    core->account(bob)->setRememberPassword(false);
    QCOMPARE(core->account(bob)->record().password, QStringLiteral("word of bob"));
    QCOMPARE(collected(bob).password, QString());
    QCOMPARE(collected(ann).password, QStringLiteral("word of ann"));
}

void tst_AccountExport::whatALockedKeyringHoldsIsNamed()
{
    startWithLockedKeyring();
    const KirvMovedAccounts moved = collect({ ann, bob });
    QCOMPARE(moved.leftOut.size(), 2);
    QVERIFY2(moved.leftOut.first().contains(QStringLiteral("password of the account \"Alias of bob\" (Fake)")),
             qPrintable(moved.leftOut.first()));
    QVERIFY2(moved.leftOut.last().contains(QStringLiteral("Secret settings")), qPrintable(moved.leftOut.last()));
    QCOMPARE(idsOf(moved), QStringList({ ann, bob }));
    const KirvAccountRecord record = moved.accounts.last().record;
    QCOMPARE(record.password, QString());
    QVERIFY(!record.settings.contains(serverPassword));
    QVERIFY(record.unreadSecrets.isEmpty());
    QVERIFY(record.secretItems.isEmpty());
    QCOMPARE(collect({ ann, bob }, false).leftOut, QStringList());
}

void tst_AccountExport::passwordForThisRunStaysHere()
{
    startWithLockedKeyring();
    core->account(bob)->providePasswordForNow(QStringLiteral("typed now"));
    QCOMPARE(core->account(bob)->record().password, QStringLiteral("typed now"));
    QCOMPARE(collected(bob).password, QString());
    QVERIFY(collect({ bob }).leftOut.value(0).contains(QStringLiteral("password")));
}

void tst_AccountExport::whatAKeyringHasGivenComes()
{
    startWithLockedKeyring();
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(core->account(bob)->record().unreadSecrets.isEmpty());
    QCOMPARE(collected(bob).password, QStringLiteral("word in the keyring"));
    QCOMPARE(collected(bob).settings.value(serverPassword), QStringLiteral("setting in the keyring"));
    QVERIFY(collected(bob).secretItems.isEmpty());
    QCOMPARE(collect({ bob }).leftOut, QStringList());
}

void tst_AccountExport::whatBelongsToTheProfileStaysHere()
{
    QVERIFY(core->account(bob)->setAvatar(core->makePicture()));
    QVERIFY(core->account(bob)->setAvatar(core->makePicture(QSize(16, 16))));
    core->settle();
    change(bob, [](KirvAccountRecord &record) {
        record.settings.insert(KirvOwnSetting::avatarOnServer, QStringLiteral("hash"));
    });
    const KirvAccountRecord record = collected(bob);
    QCOMPARE(record.avatar, QString());
    const QStringList ids = record.settings.keys();
    QVERIFY(!ids.isEmpty());
    for (const QString &id : ids)
        QVERIFY2(!id.startsWith(QStringLiteral("kirv/")), qPrintable(id));
}

void tst_AccountExport::pictureThatIsGoneIsNamed()
{
    QVERIFY(core->account(bob)->setAvatar(core->makePicture()));
    QVERIFY(QFile::remove(core->account(bob)->avatarPath()));
    const KirvMovedAccounts moved = collect({ ann, bob });
    QCOMPARE(moved.leftOut.size(), 1);
    QVERIFY2(moved.leftOut.first().contains(QStringLiteral("picture of the account \"Alias of bob\"")),
             qPrintable(moved.leftOut.first()));
    QCOMPARE(idsOf(moved), QStringList({ ann, bob }));
    QVERIFY(moved.accounts.last().picture.isEmpty());
}

/// The window goes on meanwhile.
void tst_AccountExport::picturesAreReadLater()
{
    QVERIFY(core->account(bob)->setAvatar(core->makePicture()));
    KirvMovedAccounts moved =
        KirvAccountExport::collect(*core->accounts, mainAccount(), { core->account(ann), core->account(bob) }, false);
    QCOMPARE(moved.accounts.first().unreadPicture, QString());
    QCOMPARE(moved.accounts.last().unreadPicture, core->account(bob)->avatarPath());
    QVERIFY(moved.accounts.last().picture.isEmpty());
    KirvAccountExport::readPictures(&moved);
    QCOMPARE(moved.accounts.last().unreadPicture, QString());
    QVERIFY(!moved.accounts.last().picture.isEmpty());
    QCOMPARE(moved.leftOut, QStringList());
}

void tst_AccountExport::picturesThatNoFileHoldsAreNotRead()
{
    QVERIFY(core->account(bob)->setAvatar(core->makePicture()));
    QFile picture(core->account(bob)->avatarPath());
    QVERIFY(picture.resize(KirvBoundedImage::maximumBytes));
    KirvMovedAccounts moved;
    for (int index = 0; index < 20; ++index) {
        KirvMovedAccount account;
        account.record.key = { QString::number(index), core->fake };
        account.unreadPicture = picture.fileName();
        moved.accounts << account;
    }
    KirvAccountExport::readPictures(&moved);
    QCOMPARE(moved.leftOut, QStringList());
    qint64 size = 0;
    for (const KirvMovedAccount &account : qAsConst(moved.accounts))
        size += account.picture.size();
    QVERIFY(size > KirvAccountFile::largestFile);
    QVERIFY(size <= KirvAccountFile::largestFile + KirvBoundedImage::maximumBytes);
    QString problem;
    QCOMPARE(KirvAccountFile::write(moved, QString(), &problem), QByteArray());
    QVERIFY(!problem.isEmpty());
}

void tst_AccountExport::accountThatNoFileHoldsIsNamed()
{
    core->account(bob)->setAlias(QString(40000, QLatin1Char('x')));
    QVERIFY(mainAccount().choose(core->account(bob)));
    const KirvMovedAccounts moved = collect({ ann, bob });
    QCOMPARE(idsOf(moved), QStringList({ ann }));
    QCOMPARE(moved.leftOut.size(), 1);
    QVERIFY2(moved.leftOut.first().contains(QStringLiteral("cannot be exported")), qPrintable(moved.leftOut.first()));
    QVERIFY(moved.leftOut.first().size() < 1000);
    QCOMPARE(moved.mainAccount.id, QString());
}

void tst_AccountExport::whatIsCollectedCanBeWritten()
{
    core->changeEverything(core->account(bob));
    QVERIFY(mainAccount().choose(core->account(bob)));
    const KirvMovedAccounts moved = collect({ ann, bob, cleo }, false);
    QString problem;
    const KirvAccountFile::Result result =
        KirvAccountFile::read(KirvAccountFile::write(moved, QString(), &problem), QString());
    QCOMPARE(problem, QString());
    QCOMPARE(result.problem, QString());
    QCOMPARE(idsOf(result.accounts), QStringList({ ann, bob, cleo }));
    QCOMPARE(result.accounts.mainAccount.id, bob);
    for (int index = 0; index < 3; ++index)
        QVERIFY(result.accounts.accounts.at(index).record == moved.accounts.at(index).record);
    QCOMPARE(result.accounts.accounts.at(1).picture, moved.accounts.at(1).picture);
}

QTEST_GUILESS_MAIN(tst_AccountExport)
#include "tst_account_export.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/host/kirv_host_services.h"
#include "core/moving/kirv_account_import.h"
#include "core/moving/kirv_moving_file.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_keyring.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_kill_point.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_thorough.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <climits>
#include <cstdio>
#include <memory>

namespace {

const QString fake = QStringLiteral("Fake");
const QString phrase = QStringLiteral("seven green horses");
const QString secretField = QStringLiteral("server-password");
// The profile has the first three, all disabled; the file has all but the first.
const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob"); ///< goes to another server and gets another picture
const QString cleo = QStringLiteral("cleo"); ///< gets other passwords for the same server, and no picture
const QString dora = QStringLiteral("dora"); ///< comes with a picture
const QString eve = QStringLiteral("eve"); ///< is the main account of the file

QString secretOf(const QString &id, const QString &field, bool isNew)
{
    return QStringLiteral("the %1 %2 of %3")
        .arg(QLatin1String(isNew ? "new" : "old"), field.isEmpty() ? QStringLiteral("password") : field, id);
}

KirvAccountRecord makeRecord(const QString &id, bool isNew)
{
    KirvAccountRecord record;
    record.key = { id, fake };
    record.alias = (isNew ? QStringLiteral("New ") : QStringLiteral("Old ")) + id;
    record.enabled = isNew;
    record.defaultPresence = QLatin1String(isNew ? "away" : "available");
    record.rememberPassword = true;
    record.password = secretOf(id, QString(), isNew);
    record.settings = { { QStringLiteral("server"),
                          id == cleo ? QStringLiteral("same.example")
                                     : QLatin1String(isNew ? "new.example" : "old.example") },
                        { secretField, secretOf(id, secretField, isNew) } };
    record.secretSettings = { secretField };
    return record;
}

/// A core over a profile, with the session's keyring or without.
struct Core {
    Core(const QString &folder, bool usesKeyring)
    {
        isOpen = store.open(folder);
        protocol.server->logIn = KirvFakeServer::Holds; // what a session changes is no part of the import
        settings = std::make_unique<KirvClientSettings>(store);
        accounts = std::make_unique<KirvAccountCollection>(store);
        services = std::make_unique<KirvHostServices>(*accounts, plugins, *settings);
        history = std::make_unique<KirvAccountHistory>(*accounts, services->mainAccountRule);
        if (usesKeyring) {
            keyring = std::make_unique<KirvKeyring>();
            accounts->secrets().setKeyring(keyring.get());
        }
        accounts->protocolLoaded(&protocol, false);
        services->mainAccountRule.restore();
    }
    ~Core()
    {
        history.reset();
        services.reset();
        accounts.reset();
    }

    KirvAccount *account(const QString &id) const { return accounts->find({ id, fake }); }
    /// Whether everything is read, and nothing is left to be done.
    bool isSettled()
    {
        if (!keyring)
            return true;
        return QTest::qWaitFor(
            [this] {
                const QList<KirvAccount *> all = accounts->accounts();
                return keyring->state() == KirvSecretStore::Ready && store.unsettledItems().isEmpty()
                    && std::none_of(all.begin(), all.end(),
                                    [](const KirvAccount *account) { return account->awaitsSecrets(); });
            },
            kirvPatience);
    }
    /// The profile that is imported into.
    bool fill(const QString &picture)
    {
        for (const QString &id : { ann, bob, cleo }) {
            KirvAccount *account = accounts->create(makeRecord(id, false), &protocol);
            if (!account || !account->setAvatar(picture))
                return false;
        }
        return isSettled();
    }

    KirvStore store;
    bool isOpen = false;
    KirvFakeProtocol protocol;
    KirvPluginLoader plugins;
    std::unique_ptr<KirvKeyring> keyring;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvHostServices> services;
    std::unique_ptr<KirvAccountHistory> history;
};

/// The process that is killed before call \a call of a function that changes a file, or writes to the bus: imports the
/// whole \a file, brings the secrets to the keyring and quits.
int importAndDie(const QString &folder, const QString &file, bool usesKeyring, int call)
{
    auto core = std::make_unique<Core>(folder, usesKeyring);
    if (!core->isOpen || !core->isSettled())
        return 1;
    const KirvAccountFile::Result found = KirvMovingFile::accounts(KirvMovingFile::read(file).bytes, phrase);
    if (!found.problem.isEmpty())
        return 2;
    KirvAccountImport import(*core->accounts, core->services->mainAccountRule, *core->history, found.accounts);
    for (int row = 0; row < import.rows().size(); ++row)
        import.setTaken(row, true);
    kirvKillBeforeFileCall(call);
    QString problem;
    if (import.takenCount() != 4 || !import.apply(&problem))
        return 3;
    std::printf("imported ");
    std::fflush(stdout);
    if (!core->isSettled())
        return 4;
    std::printf("settled ");
    std::fflush(stdout);
    core.reset(); // the copy that closing keeps can be killed, too
    std::printf("done: %d", kirvFileCalls());
    std::fflush(stdout);
    return 0;
}

/// What of a profile an import changes, without the secrets that are in a keyring.
struct Content {
    QList<KirvAccountRecord> accounts;
    QList<QByteArray> pictures; ///< one for each
    QString mainAccount;

    bool operator==(const Content &other) const
    {
        const auto isSame = [](const KirvAccountRecord &left, const KirvAccountRecord &right) {
            return left.isStoredLike(right);
        };
        return std::equal(accounts.begin(), accounts.end(), other.accounts.begin(), other.accounts.end(), isSame)
            && pictures == other.pictures && mainAccount == other.mainAccount;
    }
    QStringList ids() const
    {
        QStringList ids;
        for (const KirvAccountRecord &account : accounts)
            ids << account.key.id;
        return ids;
    }
};

} // namespace

/// A process is killed while it imports a file with new accounts and others that replace those of the profile.
class tst_ImportSurvivesKills : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aKillLeavesAllOfTheImportOrNothing_data();
    void aKillLeavesAllOfTheImportOrNothing();

private:
    enum Outcome { Before, After };

    void writeFile();
    void fill(bool usesKeyring);
    QByteArray import(bool usesKeyring, int call);
    void read(Content *content) const;
    void checkComplete(const Content &content) const;
    void checkFiles(Outcome outcome) const;
    void checkKeyring(Outcome outcome, bool isSettled);
    void emptyKeyring();

    KirvGnomeKeyring daemon;
    QTemporaryDir place;
    QString file, oldPicture, newPicture;
    std::unique_ptr<QTemporaryDir> home;
    QString folder;
};

void tst_ImportSurvivesKills::initTestCase()
{
    QVERIFY(daemon.start());
    oldPicture = makePicture(place.filePath(QStringLiteral("old.png")), QSize(32, 32));
    newPicture = makePicture(place.filePath(QStringLiteral("new.png")), QSize(48, 48));
    writeFile();
}

void tst_ImportSurvivesKills::writeFile()
{
    KirvMovedAccounts moved;
    for (const QString &id : { dora, bob, eve, cleo }) {
        KirvMovedAccount account;
        account.record = makeRecord(id, true);
        if (id == bob || id == dora)
            account.picture = contentOf(newPicture);
        moved.accounts << account;
    }
    moved.mainAccount = { eve, fake };
    QString problem;
    const QByteArray bytes = KirvAccountFile::write(moved, phrase, &problem);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    file = place.filePath(QStringLiteral("accounts.json"));
    QCOMPARE(KirvMovingFile::write(file, bytes, [] { return true; }), QString());
}

void tst_ImportSurvivesKills::init()
{
    home = std::make_unique<QTemporaryDir>();
    folder = home->filePath(QStringLiteral("profile"));
}

void tst_ImportSurvivesKills::cleanup()
{
    home.reset();
}

void tst_ImportSurvivesKills::fill(bool usesKeyring)
{
    QVERIFY(QDir(folder).removeRecursively());
    Core core(folder, usesKeyring);
    QVERIFY2(core.isOpen, qPrintable(core.store.lastError()));
    QVERIFY(core.isSettled() && core.fill(oldPicture));
}

/// What the process has said; "failed" with its exit status when it has not ended in the way that it should.
QByteArray tst_ImportSurvivesKills::import(bool usesKeyring, int call)
{
    QProcess process;
    process.start(
        QCoreApplication::applicationFilePath(),
        { QStringLiteral("--import"), folder, file, QString::number(int(usesKeyring)), QString::number(call) });
    if (!process.waitForFinished(kirvPatienceWithProgram))
        return "failed: it does not end";
    const QByteArray said = process.readAllStandardOutput();
    if (process.exitStatus() == QProcess::CrashExit || said.contains("done"))
        return said;
    return "failed: " + QByteArray::number(process.exitCode());
}

/// Opens the profile as the next start does.
void tst_ImportSurvivesKills::read(Content *content) const
{
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    content->mainAccount = store.readSetting(QStringLiteral("main_account"));
    content->accounts = store.readAccounts();
    int pictures = 0;
    for (KirvAccountRecord &account : content->accounts) {
        pictures += account.avatar.isEmpty() ? 0 : 1;
        content->pictures << (account.avatar.isEmpty() ? QByteArray()
                                                       : contentOf(store.avatarFolder() + '/' + account.avatar));
        QVERIFY(account.avatar.isEmpty() || !content->pictures.last().isEmpty());
        // Names that are never used twice.
        account.avatar.clear();
        for (KirvSecretItem &item : account.secretItems)
            item = KirvSecretItem();
    }
    QCOMPARE(int(filesIn(store.avatarFolder()).size()), pictures);
}

/// What a whole import makes of the profile.
void tst_ImportSurvivesKills::checkComplete(const Content &content) const
{
    QCOMPARE(content.ids(), QStringList({ ann, bob, cleo, dora, eve }));
    QCOMPARE(content.mainAccount, KirvAccountKey({ eve, fake }).toSetting());
    for (int i = 0; i < content.accounts.size(); ++i) {
        const KirvAccountRecord &account = content.accounts.at(i);
        const bool isNew = account.key.id != ann;
        QCOMPARE(account.alias, makeRecord(account.key.id, isNew).alias);
        QCOMPARE(account.enabled, isNew);
        QCOMPARE(content.pictures.at(i),
                 account.key.id == eve
                     ? QByteArray()
                     : contentOf(account.key.id == bob || account.key.id == dora ? newPicture : oldPicture));
    }
}

/// Without a keyring the secrets that count, and no others, are in the files.
void tst_ImportSurvivesKills::checkFiles(Outcome outcome) const
{
    for (const QString &id : { ann, bob, cleo, dora, eve }) {
        const bool isNew = outcome == After && id != ann;
        const bool isThere = outcome == After || (id != dora && id != eve);
        for (const QString &field : { QString(), secretField }) {
            QCOMPARE(isTextInFiles(secretOf(id, field, isNew), folder), isThere);
            QVERIFY(!isTextInFiles(secretOf(id, field, !isNew), folder));
        }
    }
}

/// The next start with the keyring. What of the file has not reached the keyring is missing; only for the server that
/// it was for does the secret before count then.
void tst_ImportSurvivesKills::checkKeyring(Outcome outcome, bool isSettled)
{
    Core core(folder, true);
    QVERIFY2(core.isOpen, qPrintable(core.store.lastError()));
    QVERIFY(core.isSettled());
    int items = 0;
    const QList<KirvAccount *> accounts = core.accounts->accounts();
    for (const KirvAccount *account : accounts) {
        const KirvAccountRecord &record = account->record();
        const QString id = record.key.id;
        const bool isNew = outcome == After && id != ann;
        items += int(record.secretItems.size() - record.unreadSecrets.size());
        for (const QString &field : { QString(), secretField }) {
            const QString secret = field.isEmpty() ? record.password : record.settings.value(field);
            const bool isRight = secret == secretOf(id, field, isNew);
            const bool isMissing =
                isNew && !isSettled && (id == cleo ? secret == secretOf(id, field, false) : secret.isEmpty());
            QVERIFY2(isRight || isMissing, qPrintable(id + QLatin1String(" has \"") + secret + QLatin1Char('"')));
        }
    }
    QCOMPARE(daemon.count(), items);
}

/// For the next profile.
void tst_ImportSurvivesKills::emptyKeyring()
{
    {
        Core core(folder, true);
        QVERIFY(core.isOpen && core.isSettled());
        QVERIFY(core.accounts->remove(core.accounts->accounts()));
        core.history.reset();
        QVERIFY(core.isSettled());
    }
    QCOMPARE(daemon.count(), 0);
}

void tst_ImportSurvivesKills::aKillLeavesAllOfTheImportOrNothing_data()
{
    QTest::addColumn<bool>("usesKeyring");
    QTest::newRow("secrets in the profile") << false;
    QTest::newRow("secrets in the keyring") << true;
}

/// Some of the calls in an ordinary run; every one in a thorough run, and with the keyring, which makes the
/// same calls for each secret, every third one.
void tst_ImportSurvivesKills::aKillLeavesAllOfTheImportOrNothing()
{
    QFETCH(bool, usesKeyring);
    const int step = usesKeyring ? (kirvIsThorough() ? 3 : 131) : (kirvIsThorough() ? 1 : 23);
    Content before, after;
    fill(usesKeyring);
    read(&before);
    QCOMPARE(before.ids(), QStringList({ ann, bob, cleo }));
    QVERIFY(import(usesKeyring, INT_MAX).contains("done"));
    read(&after);
    checkComplete(after);
    if (usesKeyring)
        emptyKeyring();

    int kills = 0, leftBefore = 0;
    QByteArray said;
    for (int call = 0; !said.contains("done") && !QTest::currentTestFailed(); call += step) {
        fill(usesKeyring);
        said = import(usesKeyring, call);
        QVERIFY2(!said.contains("failed"), said.constData());
        if (usesKeyring) {
            for (const char *secret : { "the old ", "the new " })
                QVERIFY2(!isTextInFiles(QLatin1String(secret), folder), secret);
        }
        Content found;
        read(&found);
        QVERIFY2(found == before || found == after,
                 qPrintable(QStringLiteral("call %1: %2").arg(call).arg(found.ids().join(QLatin1Char(' ')))));
        const Outcome outcome = found == before ? Before : After;
        QVERIFY2(outcome == After || !said.contains("imported"), "An import that had returned is lost.");
        if (usesKeyring) {
            checkKeyring(outcome, said.contains("settled"));
            emptyKeyring();
        } else {
            checkFiles(outcome);
        }
        if (QTest::currentTestFailed())
            qWarning("after a kill before call %d", call);
        kills += !said.contains("done");
        leftBefore += outcome == Before;
    }
    qInfo("%d kills, %d of them before the import counted; %s calls", kills, leftBefore, said.constData());
    QVERIFY(leftBefore >= 1);
    QVERIFY(kills - leftBefore >= 2);
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 6 && arguments.at(1) == QLatin1String("--import"))
        return importAndDie(arguments.at(2), arguments.at(3), arguments.at(4).toInt() != 0, arguments.at(5).toInt());
    tst_ImportSurvivesKills test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_import_survives_kills.moc"

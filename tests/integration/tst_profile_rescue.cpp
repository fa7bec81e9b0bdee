// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client.h"
#include "client/kirv_client_start.h"
#include "client/kirv_profile_command.h"
#include "client/kirv_rescue_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

namespace {

const QString protocol = QStringLiteral("XMPP");

KirvAccountRecord makeAccount(int number)
{
    KirvAccountRecord account;
    account.key = { QStringLiteral("user%1@example.org").arg(number), protocol };
    account.password = QStringLiteral("secret of %1").arg(number);
    account.rememberPassword = true;
    account.settings = { { "server", QStringLiteral("talk.example.org") } };
    return account;
}

} // namespace

/// The client is started on a damaged profile, and the window that opens is used.
class tst_ProfileRescue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowSaysWhatIsWrongAndListsTheCopies();
    void newestCopyIsRestoredByTheKeyboardAlone();
    void olderCopyIsRestored();
    void readableRowsAreRecoveredWithPasswords();
    void partOfTheRowsIsSaidToBeAPart();
    void withoutCopiesRecoveringIsTheDefault();
    void freshStartHasNoAccounts();
    void missingDatabaseIsRestored();
    void failedChoiceKeepsTheWindowOpen();
    void copyCanStillBeTakenAfterAFreshStart();
    void quittingChangesNothing();
    void quittingAfterARepairIsNoFailure();
    void otherRefusalsOpenNoWindow_data();
    void otherRefusalsOpenNoWindow();
    void withoutADisplayNoWindowIsOpened();

private:
    /// Keeps a copy with so many accounts more.
    void addAccounts(int count);
    void damage() const;
    bool start(const std::function<void(KirvRescueWindow *)> &use);
    QStringList keptFiles() const;
    QString database() const { return databaseIn(options.profileFolder); }

    template <class Widget = QPushButton>
    static Widget *part(const KirvRescueWindow *window, const char *name)
    {
        return window->findChild<Widget *>(QLatin1String("ProfileRescue_") + QLatin1String(name));
    }
    static QString textOf(const KirvRescueWindow *window, const char *name)
    {
        const auto *text = part<QTextEdit>(window, name);
        return text->isVisible() ? text->toPlainText() : QString();
    }

    std::unique_ptr<QTemporaryDir> home;
    KirvClientOptions options;
    std::unique_ptr<KirvClient> client;
    int accounts = 0;
    int status = -1;
    int windows = 0; ///< how many were opened
};

void tst_ProfileRescue::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    options.profileFolder = home->filePath(QStringLiteral("profile"));
    options.pluginFolder = home->path();
    accounts = 0;
    status = -1;
    windows = 0;
}

void tst_ProfileRescue::cleanup()
{
    client.reset();
}

void tst_ProfileRescue::addAccounts(int count)
{
    KirvStore store;
    QVERIFY2(store.open(options.profileFolder), qPrintable(store.lastError()));
    QVERIFY(store.begin());
    for (int number = accounts; number < accounts + count; ++number)
        QVERIFY(store.insertAccount(makeAccount(number)));
    QVERIFY(store.commit());
    accounts += count;
}

/// A table that the program needs is gone; all accounts are still there.
void tst_ProfileRescue::damage() const
{
    QCOMPARE(runInDatabase(database(), { QStringLiteral("DROP TABLE avatar_file") }), QVariant());
}

/// Starts the client with a display; \a use is what the user does in each window about the damage.
bool tst_ProfileRescue::start(const std::function<void(KirvRescueWindow *)> &use)
{
    client = std::make_unique<KirvClient>(options);
    KirvWindowWatcher<KirvRescueWindow> watcher(use);
    const bool isStarted = kirvStartClient(*client, options, true, &status);
    windows = watcher.shown;
    return isStarted;
}

QStringList tst_ProfileRescue::keptFiles() const
{
    return QDir(options.profileFolder).entryList({ QStringLiteral("profile.sqlite.damaged-*") }, QDir::Files);
}

void tst_ProfileRescue::windowSaysWhatIsWrongAndListsTheCopies()
{
    addAccounts(2);
    addAccounts(3);
    damage();
    QStringList rows;
    QString text, defaultButton;
    bool canContinue = true;
    QVERIFY(!start([&](KirvRescueWindow *window) {
        text = textOf(window, "Text");
        auto *list = part<QTreeWidget>(window, "Copies");
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            rows << list->topLevelItem(row)->text(1);
        QVERIFY(list->topLevelItem(0)->text(0).contains(QString::number(QDate::currentDate().day())));
        for (const QPushButton *button : window->findChildren<QPushButton *>()) {
            QVERIFY(!button->objectName().isEmpty());
            if (button->isDefault())
                defaultButton += button->objectName();
        }
        canContinue = part(window, "ContinueButton")->isEnabled();
        part(window, "QuitButton")->click();
    }));
    QVERIFY2(text.contains(QLatin1String("Tables or columns of its database are missing.")), qPrintable(text));
    QVERIFY(text.contains(options.profileFolder));
    QCOMPARE(rows, QStringList({ QStringLiteral("5"), QStringLiteral("2") }));
    QCOMPARE(defaultButton, QStringLiteral("ProfileRescue_RestoreButton"));
    QVERIFY(!canContinue);
}

void tst_ProfileRescue::newestCopyIsRestoredByTheKeyboardAlone()
{
    addAccounts(2);
    addAccounts(3);
    damage();
    const QByteArray damaged = contentOf(database());
    QString outcome;
    QVERIFY(start([&](KirvRescueWindow *window) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        outcome = textOf(window, "Outcome");
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    }));
    QCOMPARE(windows, 1);
    QCOMPARE(client->accounts().accounts().size(), 5);
    QVERIFY2(outcome.contains(QLatin1String("Accounts: 5")), qPrintable(outcome));
    QVERIFY2(outcome.contains(QLatin1String("Passwords")), qPrintable(outcome));
    QCOMPARE(keptFiles().size(), 1);
    QVERIFY2(outcome.contains(QDir(options.profileFolder).filePath(keptFiles().first())), qPrintable(outcome));
    QCOMPARE(contentOf(QDir(options.profileFolder).filePath(keptFiles().first())), damaged);
}

void tst_ProfileRescue::olderCopyIsRestored()
{
    addAccounts(2);
    addAccounts(3);
    damage();
    QVERIFY(start([&](KirvRescueWindow *window) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Down);
        part(window, "RestoreButton")->click();
        part(window, "ContinueButton")->click();
    }));
    QCOMPARE(client->accounts().accounts().size(), 2);
}

void tst_ProfileRescue::readableRowsAreRecoveredWithPasswords()
{
    addAccounts(4);
    damage();
    QString outcome;
    bool isWhollyShown = false;
    QVERIFY(start([&](KirvRescueWindow *window) {
        part(window, "RecoverButton")->click();
        outcome = textOf(window, "Outcome");
        QCoreApplication::processEvents();
        const auto *shown = part<QTextEdit>(window, "Outcome");
        isWhollyShown = shown->height() >= shown->heightForWidth(shown->width());
        part(window, "ContinueButton")->click();
    }));
    QVERIFY(isWhollyShown);
    QVERIFY2(outcome.contains(QLatin1String("Everything could be read.\nAccounts: 4\nSettings of accounts: 4\n"
                                            "Passwords and other secret settings: 4\n")),
             qPrintable(outcome));
    const QList<KirvAccountRecord> records = client->profile().readAccounts();
    QCOMPARE(records.size(), 4);
    QCOMPARE(records.at(2).password, makeAccount(2).password);
}

void tst_ProfileRescue::partOfTheRowsIsSaidToBeAPart()
{
    addAccounts(300);
    QByteArray content = contentOf(database());
    content.replace(content.indexOf("user150@") / 4096 * 4096, 4096, QByteArray(4096, '\xa5'));
    QVERIFY(writeFile(database(), content));
    QString outcome;
    QVERIFY(start([&](KirvRescueWindow *window) {
        part(window, "RecoverButton")->click();
        outcome = textOf(window, "Outcome");
        part(window, "ContinueButton")->click();
    }));
    const int found = int(client->accounts().accounts().size());
    QVERIFY(found > 0 && found < 300);
    QVERIFY2(outcome.contains(QLatin1String("Only a part")), qPrintable(outcome));
    QVERIFY2(outcome.contains(QStringLiteral("\nAccounts: %1\n").arg(found)), qPrintable(outcome));
}

void tst_ProfileRescue::withoutCopiesRecoveringIsTheDefault()
{
    addAccounts(2);
    QVERIFY(QDir(options.profileFolder + QLatin1String("/copies")).removeRecursively());
    damage();
    bool isListShown = true, canRestore = true;
    QString label;
    QVERIFY(start([&](KirvRescueWindow *window) {
        isListShown = part<QTreeWidget>(window, "Copies")->isVisible();
        canRestore = part(window, "RestoreButton")->isEnabled();
        label = part<QLabel>(window, "CopiesLabel")->text();
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    }));
    QVERIFY(!isListShown && !canRestore);
    QVERIFY2(label.contains(QLatin1String("no copy")), qPrintable(label));
    QCOMPARE(client->accounts().accounts().size(), 2);
}

void tst_ProfileRescue::freshStartHasNoAccounts()
{
    addAccounts(2);
    damage();
    QVERIFY(start([&](KirvRescueWindow *window) {
        part(window, "FreshButton")->click();
        part(window, "ContinueButton")->click();
    }));
    QVERIFY(client->accounts().accounts().isEmpty());
    QCOMPARE(keptFiles().size(), 1);
}

void tst_ProfileRescue::missingDatabaseIsRestored()
{
    addAccounts(2);
    QVERIFY(QFile::remove(database()));
    QString text, reason, outcome;
    QVERIFY(start([&](KirvRescueWindow *window) {
        text = textOf(window, "Text");
        part(window, "RecoverButton")->click();
        reason = textOf(window, "Outcome");
        part(window, "RestoreButton")->click();
        outcome = textOf(window, "Outcome");
        part(window, "ContinueButton")->click();
    }));
    QVERIFY2(text.contains(QLatin1String("Its database is missing.")), qPrintable(text));
    QVERIFY(!reason.isEmpty());
    QVERIFY2(!outcome.contains(QLatin1String("kept")), qPrintable(outcome));
    QVERIFY(keptFiles().isEmpty());
    QCOMPARE(client->accounts().accounts().size(), 2);
}

void tst_ProfileRescue::failedChoiceKeepsTheWindowOpen()
{
    addAccounts(2);
    damage();
    QString text, outcome;
    bool isOpen = false, canContinue = true;
    QVERIFY(!start([&](KirvRescueWindow *window) {
        const QDir copies(options.profileFolder + QLatin1String("/copies"));
        QVERIFY(writeFile(copies.filePath(copies.entryList(QDir::Files).first()), QByteArray(5000, 'x')));
        part(window, "RestoreButton")->click();
        isOpen = window->isVisible();
        text = textOf(window, "Text");
        outcome = textOf(window, "Outcome");
        canContinue = part(window, "ContinueButton")->isEnabled();
        window->reject();
    }));
    QVERIFY(isOpen && !canContinue);
    QVERIFY2(text.contains(QLatin1String("is damaged")), qPrintable(text));
    QVERIFY2(outcome.contains(QLatin1String("The copy")), qPrintable(outcome));
    QVERIFY(keptFiles().isEmpty());
}

void tst_ProfileRescue::copyCanStillBeTakenAfterAFreshStart()
{
    addAccounts(2);
    damage();
    bool canRecoverAgain = true;
    QVERIFY(start([&](KirvRescueWindow *window) {
        part(window, "FreshButton")->click();
        canRecoverAgain = part(window, "RecoverButton")->isEnabled();
        part(window, "RestoreButton")->click();
        part(window, "ContinueButton")->click();
    }));
    QVERIFY(!canRecoverAgain);
    QCOMPARE(client->accounts().accounts().size(), 2);
    QCOMPARE(keptFiles().size(), 2);
}

void tst_ProfileRescue::quittingChangesNothing()
{
    addAccounts(2);
    damage();
    const auto before = treeOf(options.profileFolder);
    QVERIFY(!start([](KirvRescueWindow *window) { QTest::keyClick(window->focusWidget(), Qt::Key_Escape); }));
    QCOMPARE(windows, 1);
    QCOMPARE(status, int(KirvProfileCommand::Damaged));
    QCOMPARE(treeOf(options.profileFolder), before);
}

void tst_ProfileRescue::quittingAfterARepairIsNoFailure()
{
    addAccounts(2);
    damage();
    QVERIFY(!start([](KirvRescueWindow *window) {
        part(window, "RestoreButton")->click();
        part(window, "QuitButton")->click();
    }));
    QCOMPARE(status, int(KirvProfileCommand::Success));
    QVERIFY(KirvStore().open(options.profileFolder));
}

void tst_ProfileRescue::otherRefusalsOpenNoWindow_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("reason");
    QTest::newRow("newer") << "PRAGMA user_version = 77"
                           << "newer version";
    QTest::newRow("of another program") << "PRAGMA application_id = 77"
                                        << "another program";
    QTest::newRow("in use") << ""
                            << "in use";
}

void tst_ProfileRescue::otherRefusalsOpenNoWindow()
{
    QFETCH(QString, statement);
    QFETCH(QString, reason);
    addAccounts(2);
    KirvStore other;
    if (statement.isEmpty())
        QVERIFY(other.open(options.profileFolder));
    else
        QCOMPARE(runInDatabase(database(), { statement }), QVariant());
    const auto before = treeOf(options.profileFolder);
    QVERIFY(!start([](KirvRescueWindow *window) { window->reject(); }));
    QCOMPARE(windows, 0);
    QCOMPARE(status, int(KirvProfileCommand::Refused));
    QVERIFY2(client->errorString().contains(reason), qPrintable(client->errorString()));
    QCOMPARE(treeOf(options.profileFolder), before);
}

void tst_ProfileRescue::withoutADisplayNoWindowIsOpened()
{
    addAccounts(2);
    damage();
    client = std::make_unique<KirvClient>(options);
    const KirvWindowWatcher<KirvRescueWindow> watcher([](KirvRescueWindow *window) { window->reject(); });
    QVERIFY(!kirvStartClient(*client, options, false, &status));
    QCOMPARE(watcher.shown, 0);
    QCOMPARE(status, int(KirvProfileCommand::Damaged));
}

QTEST_MAIN(tst_ProfileRescue)

#include "tst_profile_rescue.moc"

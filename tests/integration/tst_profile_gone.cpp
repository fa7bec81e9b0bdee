// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client.h"
#include "client/kirv_client_start.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_protocol.h"
#include "tests/support/gui/kirv_file_choice.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_tool.h"
#include "tests/support/store_refusal.h"

#include <QFileDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>

namespace {
const QString example = QStringLiteral("Example");
}

/// The folder of the profile disappears while the client runs, or takes no copies.
class tst_ProfileGone : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nextChangeSaysThatTheProfileIsGone();
    void refusedSettingSaysSoToo();
    void messageIsShownOnce();
    void everythingIsSavedToAnotherFolder();
    void everythingIsSavedToTheFolderThatWasDeleted();
    void programGoesOnWithTheOtherFolder();
    void folderOfOthersIsRefusedAndAnotherCanBeChosen();
    void oneFolderIsChosenAtATime();
    void otherRefusalsHaveNoButton();
    void copyThatCannotBeKeptIsSaidAtTheStart();
    void wholeProfileStartsWithoutAMessage();

private:
    void start();
    void addAccount(const QString &id);
    void deleteProfile() const { QVERIFY(QDir(options.profileFolder).removeRecursively()); }
    /// Disables an account in the list.
    void changeSomething() const;
    QStringList messages() const { return client->window()->messageBar()->messages(); }
    /// The buttons in messages.
    QList<QPushButton *> commands() const
    {
        return client->window()->findChildren<QPushButton *>(QStringLiteral("MessageBar_Command"));
    }
    QPushButton *saveButton() const { return commands().value(0); }
    /// Clicks the button and chooses \a folder in the window that it opens.
    void saveTo(const QString &folder) const;

    std::unique_ptr<QTemporaryDir> home;
    KirvClientOptions options;
    std::unique_ptr<KirvClient> client;
};

void tst_ProfileGone::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    options.profileFolder = home->filePath(QStringLiteral("profile"));
    options.pluginFolder = QStringLiteral(KIRV_EXAMPLE_PROTOCOLS);
    start();
    addAccount(QStringLiteral("anna"));
    addAccount(QStringLiteral("berta"));
}

void tst_ProfileGone::cleanup()
{
    client.reset();
}

void tst_ProfileGone::start()
{
    client.reset();
    client = std::make_unique<KirvClient>(options);
    QVERIFY2(client->start(), qPrintable(client->errorString()));
    client->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(client->window(), kirvPatience));
    KIRV_TRY(client->arePluginsLoaded());
}

void tst_ProfileGone::addAccount(const QString &id)
{
    KirvProtocol *protocol = KirvPluginManager::getInstance()->getProtocolByName(example);
    QVERIFY(KirvAccountManager::getInstance()->createAccount(id, id, QStringLiteral("secret"), true, protocol,
                                                             protocol->getAllPresences().first(),
                                                             protocol->getAccountSettings()));
}

void tst_ProfileGone::changeSomething() const
{
    KirvAccountManager::getInstance()->disableAccount(QStringLiteral("anna"), example);
}

void tst_ProfileGone::saveTo(const QString &folder) const
{
    const KirvWindowWatcher<QFileDialog> watcher([folder](QFileDialog *dialog) { kirvChooseFile(dialog, folder); });
    QVERIFY(saveButton());
    saveButton()->click();
    KIRV_TRY(!client->window()->findChild<QFileDialog *>());
    QCOMPARE(watcher.shown, 1);
}

void tst_ProfileGone::nextChangeSaysThatTheProfileIsGone()
{
    QCOMPARE(messages(), QStringList());
    deleteProfile();
    QCOMPARE(messages(), QStringList());
    changeSomething();
    QCOMPARE(messages().size(), 1);
    QVERIFY2(messages().first().contains(QLatin1String("deleted")), qPrintable(messages().first()));
    QVERIFY(saveButton() && saveButton()->isVisible());
    QVERIFY(!QDir(options.profileFolder).exists());
}

void tst_ProfileGone::refusedSettingSaysSoToo()
{
    deleteProfile();
    QVERIFY(!client->settings().setValue(QStringLiteral("key"), QStringLiteral("value")));
    QCOMPARE(messages().size(), 1);
    QVERIFY(saveButton());
}

void tst_ProfileGone::messageIsShownOnce()
{
    deleteProfile();
    changeSomething();
    changeSomething();
    QCOMPARE(messages().size(), 1);
}

void tst_ProfileGone::everythingIsSavedToAnotherFolder()
{
    const QString other = home->filePath(QStringLiteral("other"));
    QVERIFY(QDir().mkpath(other));
    deleteProfile();
    changeSomething();
    saveTo(other);
    QCOMPARE(messages().size(), 1);
    QVERIFY2(messages().first().contains(QStringLiteral("--profile \"%1\"").arg(other)),
             qPrintable(messages().first()));
    KIRV_TRY_COMPARE(commands().size(), 1);
    QSignalSpy continued(client.get(), &KirvClient::continuationRequested);
    commands().first()->click();
    QCOMPARE(continued.value(0), QVariantList { other });
    options.profileFolder = other;
    start();
    QCOMPARE(client->accounts().accounts().size(), 2);
    QCOMPARE(client->accounts().find({ QStringLiteral("anna"), example })->record().password, QStringLiteral("secret"));
    QCOMPARE(messages(), QStringList());
}

void tst_ProfileGone::everythingIsSavedToTheFolderThatWasDeleted()
{
    deleteProfile();
    changeSomething();
    QVERIFY(QDir().mkpath(options.profileFolder));
    saveTo(options.profileFolder);
    QCOMPARE(messages().size(), 1);
    QVERIFY2(!messages().first().contains(QLatin1String("--profile")), qPrintable(messages().first()));
    start();
    QCOMPARE(client->accounts().accounts().size(), 2);
}

/// The program as its main() runs it.
void tst_ProfileGone::programGoesOnWithTheOtherFolder()
{
    client.reset();
    const QString other = home->filePath(QStringLiteral("other"));
    QVERIFY(QDir().mkpath(other));
    const auto window = [] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        const auto found = std::find_if(widgets.begin(), widgets.end(),
                                        [](QWidget *widget) { return qobject_cast<KirvSettingsWindow *>(widget); });
        return found == widgets.end() ? nullptr : static_cast<KirvSettingsWindow *>(*found);
    };
    int started = 0;
    QPointer<KirvSettingsWindow> last;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (!window() || window() == last || !KirvAccountManager::getInstance()->getAccount("anna", example))
            return;
        last = window();
        if (++started == 2) {
            changeSomething();
            timer.stop();
            QCoreApplication::exit(7);
            return;
        }
        deleteProfile();
        changeSomething();
        const KirvWindowWatcher<QFileDialog> watcher([other](QFileDialog *dialog) { kirvChooseFile(dialog, other); });
        last->findChild<QPushButton *>(QStringLiteral("MessageBar_Command"))->click();
        KIRV_TRY_COMPARE(last->messageBar()->messages().value(0).contains(QLatin1String("--profile")), true);
        last->findChildren<QPushButton *>(QStringLiteral("MessageBar_Command")).last()->click();
    });
    timer.start(10);
    QCOMPARE(kirvRunClient(options, true), 7);
    QCOMPARE(started, 2);
    KirvStore store;
    QVERIFY(store.open(other));
    QCOMPARE(store.readAccounts().size(), 2);
    QVERIFY(!store.readAccounts().first().enabled);
    QVERIFY(!QDir(options.profileFolder).exists());
}

void tst_ProfileGone::folderOfOthersIsRefusedAndAnotherCanBeChosen()
{
    const QString foreign = home->filePath(QStringLiteral("foreign"));
    QVERIFY(QDir().mkpath(foreign) && writeFile(foreign + QLatin1String("/letter"), "Dear all"));
    deleteProfile();
    changeSomething();
    const auto before = treeOf(foreign);
    saveTo(foreign);
    QCOMPARE(treeOf(foreign), before);
    QCOMPARE(messages().size(), 2);
    QVERIFY2(messages().last().contains(QLatin1String("other files")), qPrintable(messages().last()));
    QVERIFY(saveButton() && saveButton()->isVisible());
    QVERIFY(QDir().mkpath(options.profileFolder));
    saveTo(options.profileFolder);
    QVERIFY(QFile::exists(databaseIn(options.profileFolder)));
}

void tst_ProfileGone::oneFolderIsChosenAtATime()
{
    deleteProfile();
    changeSomething();
    const KirvWindowWatcher<QFileDialog> watcher([](QFileDialog *) {});
    saveButton()->click();
    saveButton()->click();
    QCoreApplication::processEvents();
    QCOMPARE(watcher.shown, 1);
    client.reset(); // with the dialog open
}

void tst_ProfileGone::otherRefusalsHaveNoButton()
{
    const StoreRefusal refusal(options.profileFolder);
    QVERIFY(refusal.holds());
    changeSomething();
    QCOMPARE(messages().size(), 1);
    QVERIFY(!saveButton());
}

void tst_ProfileGone::copyThatCannotBeKeptIsSaidAtTheStart()
{
    client.reset();
    const QString copies = options.profileFolder + QLatin1String("/copies");
    QVERIFY(QDir(copies).removeRecursively() && writeFile(copies, "x"));
    start();
    QCOMPARE(messages().size(), 1);
    QVERIFY2(messages().first().contains(QLatin1String("copies")), qPrintable(messages().first()));
    addAccount(QStringLiteral("clara"));
    QCOMPARE(messages().size(), 1);
    QCOMPARE(client->accounts().accounts().size(), 3);
}

void tst_ProfileGone::wholeProfileStartsWithoutAMessage()
{
    start();
    QCOMPARE(messages(), QStringList());
}

QTEST_MAIN(tst_ProfileGone)

#include "tst_profile_gone.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_store.h"
#include "core/ui/kirv_layout_dialog.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_field_widget.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/kirv_due_work.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString secret = QStringLiteral("secret");
const QString published = QStringLiteral("Ann of the Server");

QList<KirvField> entry(const QString &name, const QString &town)
{
    return { KirvField::textEdit(QStringLiteral("Name"), QStringLiteral("name"), name, QString()),
             KirvField::textEdit(QStringLiteral("Town"), QStringLiteral("town"), town, QString()) };
}

QString textOf(const QList<KirvField> &entry, const QString &id)
{
    for (const KirvField &field : entry) {
        if (field.getId() == id)
            return field.getText();
    }
    return QString();
}

/// The built-in layout "EditAccount", to be changed and used as a layout of the user's own.
QString builtInLayout()
{
    QFile file(QStringLiteral(":/kirv/layouts/EditAccount.ui"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// \a layout without the widget \a name, which stands in an item of a layout.
QString without(const QString &layout, const QString &name)
{
    const auto start =
        layout.lastIndexOf(QLatin1String("<item"), layout.indexOf(QStringLiteral("name=\"%1\"").arg(name)));
    auto end = start;
    for (int depth = 0;;) {
        const auto open = layout.indexOf(QLatin1String("<item"), end + 1);
        const auto close = layout.indexOf(QLatin1String("</item>"), end + 1);
        depth += open >= 0 && open < close ? 1 : -1;
        end = open >= 0 && open < close ? open : close;
        if (depth < 0)
            break;
    }
    return layout.left(start) + layout.mid(end + int(qstrlen("</item>")));
}

/// Runs an action where the window consults it.
class Companion : public KirvWindowCompanion {
public:
    using KirvWindowCompanion::KirvWindowCompanion;

    void aboutToShow() override { ++shown; }
    bool mayFinish(int result) override
    {
        results << result;
        return action();
    }

    std::function<bool()> action = [] { return true; };
    int shown = 0;
    QList<int> results;
};

} // namespace

/// What the client's companions add to the windows of the page, over a protocol without a network.
class tst_WindowCompanions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // Any companion.
    void companionSeesEachShowing();
    void companionMayKeepTheWindowOpen();
    void companionMayEndTheWindow_data();
    void companionMayEndTheWindow();

    // Save as one change.
    void everyWayToSaveIsOneChange_data();
    void everyWayToSaveIsOneChange();
    void refusedSaveCanBeTriedAgain();
    void savingWithoutAChangeDoesNothing();
    void oneSaveMakesOneReconnection();
    void refusedSaveSendsNothing();
    void reconnectingAfterARefusedSaveIsOneLogIn_data();
    void reconnectingAfterARefusedSaveIsOneLogIn();
    void offlinePresenceWithAnotherPasswordLogsOut();
    void accountDisabledWhileItLogsInStaysOff();
    void passwordOfTheServerIsNotPutBack();
    void pictureStaysWhenTheWindowIsCancelled();
    void slotsOfASaveMayEndTheWindow_data();
    void slotsOfASaveMayEndTheWindow();
    void accountRemovedWithinASaveIsNotReportedAsRefused();
    void windowOfAnUnusableAccountCanOnlyBeClosed();

    // The directory.
    void failedFetchPublishesNothing_data();
    void failedFetchPublishesNothing();
    void typedTextIsNotPublishedAfterAFailedFetch();
    void failedDeletionPublishesNothing();
    void deletionOffLineSendsNothing();
    void noEntryPublishesOnlyWhatWasTyped();
    void refusedPublicationIsSentByTheNextSave();
    void lostConnectionKeepsWhatWasTyped();
    void failedReconnectionKeepsWhatWasTyped();
    void refusedSaveKeepsWhatWasTyped();
    void saveWaitsForItsPublication_data();
    void saveWaitsForItsPublication();
    void windowCanBeClosedWhilePublishing_data();
    void windowCanBeClosedWhilePublishing();
    void heldPublicationSurvivesAnotherRefusedChange();
    void baseOfAnEarlierWindowIsNotUsed();
    void answersOfOtherAccountsDoNotMix();

    // Layouts of the user's own.
    void missingDirectoryControlsAreAdded_data();
    void missingDirectoryControlsAreAdded();
    void fetchButtonWorksWhereverItStands();
    void fieldsOutsideTheSecondTabAreFetchedToo();
    void saveButtonNeedNotBeTheDefault();
    void connectionsOfALayoutDoNotFinishTheWindow();
    void nothingElseIsUsableWhilePublishing();
    void publicationReplacedByAFetchKeepsWhatWasTyped();
    void topsOfOtherClassesAreRefused_data();
    void topsOfOtherClassesAreRefused();

    // The description.
    void markupInADescriptionIsPlainText_data();
    void markupInADescriptionIsPlainText();

    // Ends.
    void pageMayGoWithWindowsOpen();
    void clientMayGoWhilePublishing();
    void secondWindowOfAnAccountReplacesTheFirst();

private:
    KirvAccount *addAccount(const QString &id);
    KirvAccount *account(const QString &id = ann) const { return client->accounts().find({ id, protocol->name }); }
    KirvFakeConnection *connection(const QString &id = ann) const;
    KirvFakeServer &server() const { return *protocol->server; }
    QString name(const QString &id = ann) const { return textOf(server().entries.value(id), QStringLiteral("name")); }
    void useLayout(const QString &text);

    KirvLayoutDialog *edit(const QString &id = ann);
    KirvLayoutDialog *editDirectory(const QString &id = ann);
    template <typename T>
    static T *child(const QWidget *window, const char *name)
    {
        return window->findChild<T *>(QLatin1String(name));
    }
    static QPushButton *button(const QWidget *window, QDialogButtonBox::StandardButton which);
    static void save(const QWidget *window) { button(window, QDialogButtonBox::Save)->click(); }
    static KirvFieldWidget *fields(const QWidget *window);
    static bool isLocked(const QWidget *window) { return !fields(window)->isEnabled(); }
    static QString status(const QWidget *window) { return child<QLabel>(window, "EditAccount_PubDirStatus")->text(); }
    static void fetch(const QWidget *window);
    static QLineEdit *nameEdit(const QWidget *window) { return child<QLineEdit>(window, "KirvField_name"); }
    /// Saves the name "Typed" while the server does not reply. Whether the window waits for that.
    bool waitsForPublication(const QPointer<KirvLayoutDialog> &window) const;
    /// Saves and verifies that the window is closed and the server was sent nothing since its calls were taken.
    void verifySaveSendsNothing(const QPointer<KirvLayoutDialog> &window) const;
    /// Saves and verifies that the window is closed when the name is published.
    void verifySavePublishesName(const QPointer<KirvLayoutDialog> &window) const;
    static void settle();

    std::unique_ptr<QTemporaryDir> folder;
    KirvClientOptions options;
    std::unique_ptr<KirvClient> client;
    KirvFakeProtocol *protocol = nullptr;
};

void tst_WindowCompanions::init()
{
    folder = std::make_unique<QTemporaryDir>();
    options = KirvClientOptions();
    options.profileFolder = folder->filePath(QStringLiteral("profile"));
    options.pluginFolder = folder->path();
    client = std::make_unique<KirvClient>(options);
    QVERIFY2(client->start(), qPrintable(client->errorString()));
    protocol = new KirvFakeProtocol;
    QVERIFY(client->plugins().addProtocol(protocol));
    server().entries.insert(ann, entry(published, QStringLiteral("Aachen")));
    client->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(client->window(), kirvPatience));
    addAccount(ann);
    KIRV_TRY(account()->isOnline());
    server().takeCalls();
}

void tst_WindowCompanions::cleanup()
{
    client.reset();
}

KirvAccount *tst_WindowCompanions::addAccount(const QString &id)
{
    KirvAccountManager::getInstance()->createAccount(id, id, secret, true, protocol, protocol->presences().first(),
                                                     protocol->accountSettings());
    settle();
    return account(id);
}

KirvFakeConnection *tst_WindowCompanions::connection(const QString &id) const
{
    return static_cast<KirvFakeConnection *>(account(id)->connection());
}

void tst_WindowCompanions::useLayout(const QString &text)
{
    const QDir layouts(options.profileFolder + QStringLiteral("/layouts"));
    QVERIFY(layouts.mkpath(QStringLiteral(".")));
    QFile file(layouts.filePath(QStringLiteral("EditAccount.ui")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text.toUtf8()), qint64(text.toUtf8().size()));
}

KirvLayoutDialog *tst_WindowCompanions::edit(const QString &id)
{
    client->accountsPage()->editAccount(account(id));
    auto *controller = client->accountsPage()->getAccEdit();
    auto *window = controller ? qobject_cast<KirvLayoutDialog *>(controller->getWindow()) : nullptr;
    if (window)
        window->activateWindow();
    return window;
}

/// With the directory tab shown and the answer of the server, if it gives one.
KirvLayoutDialog *tst_WindowCompanions::editDirectory(const QString &id)
{
    KirvLayoutDialog *window = edit(id);
    child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(1);
    settle();
    return window;
}

QPushButton *tst_WindowCompanions::button(const QWidget *window, QDialogButtonBox::StandardButton which)
{
    return child<QDialogButtonBox>(window, "EditAccount_FrameButtons")->button(which);
}

KirvFieldWidget *tst_WindowCompanions::fields(const QWidget *window)
{
    return child<QWidget>(window, "EditAccount_PubDirResults")->findChild<KirvFieldWidget *>();
}

void tst_WindowCompanions::fetch(const QWidget *window)
{
    child<QAbstractButton>(window, "EditAccount_PubDirFetch")->click();
    settle();
}

bool tst_WindowCompanions::waitsForPublication(const QPointer<KirvLayoutDialog> &window) const
{
    nameEdit(window)->setText(QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Holds;
    save(window);
    settle();
    return window && window->isVisible();
}

void tst_WindowCompanions::verifySaveSendsNothing(const QPointer<KirvLayoutDialog> &window) const
{
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(server().takeCalls(), QStringList());
    QCOMPARE(name(), published);
}

void tst_WindowCompanions::verifySavePublishesName(const QPointer<KirvLayoutDialog> &window) const
{
    server().takeCalls();
    save(window);
    KIRV_TRY(!window);
    QCOMPARE(server().takeCalls(), QStringList("ann publish name"));
}

/// Runs what is due, with the deletions.
void tst_WindowCompanions::settle()
{
    kirvRunDueWork(5);
}

void tst_WindowCompanions::companionSeesEachShowing()
{
    KirvLayoutDialog window;
    auto *companion = new Companion(&window);
    QCOMPARE(companion->parent(), &window);
    window.setVisible(false);
    QCOMPARE(companion->shown, 0);
    window.setVisible(true);
    window.setVisible(true);
    window.show();
    QCOMPARE(companion->shown, 1);
    window.hide();
    window.show();
    QCOMPARE(companion->shown, 2);
    delete companion;
    window.close();
    QVERIFY(!window.isVisible());
}

void tst_WindowCompanions::companionMayKeepTheWindowOpen()
{
    KirvLayoutDialog window;
    auto *companion = new Companion(&window);
    companion->action = [] { return false; };
    QSignalSpy finished(&window, &QDialog::finished);
    window.show();
    window.accept();
    window.reject();
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.close());
    QVERIFY(window.isVisible());
    QCOMPARE(finished.size(), 0);
    QCOMPARE(companion->results,
             (QList<int> { QDialog::Accepted, QDialog::Rejected, QDialog::Rejected, QDialog::Rejected }));
    window.finish(7);
    QVERIFY(!window.isVisible());
    window.finish(8);
    QCOMPARE(finished, (QList<QList<QVariant>> { { 7 } }));
}

void tst_WindowCompanions::companionMayEndTheWindow_data()
{
    QTest::addColumn<bool>("isDestroyed");
    QTest::addColumn<bool>("reply");
    for (bool reply : { false, true }) {
        QTest::addRow("finishes it, replies %d", int(reply)) << false << reply;
        QTest::addRow("destroys it, replies %d", int(reply)) << true << reply;
    }
}

void tst_WindowCompanions::companionMayEndTheWindow()
{
    QFETCH(bool, isDestroyed);
    QFETCH(bool, reply);
    QPointer<KirvLayoutDialog> window = new KirvLayoutDialog;
    auto *companion = new Companion(window);
    companion->action = [=] {
        const bool result = reply; // the action goes with the window
        if (isDestroyed)
            delete window;
        else
            window->finish(7);
        return result;
    };
    QSignalSpy finished(window, &QDialog::finished);
    window->show();
    window->accept();
    QCOMPARE(finished.size(), isDestroyed ? 0 : 1);
    QCOMPARE(bool(window), !isDestroyed);
    if (window)
        QCOMPARE(window->result(), 7);
    delete window;
}

void tst_WindowCompanions::everyWayToSaveIsOneChange_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "click", "two clicks", "Enter", "mnemonic", "Space" })
        QTest::newRow(way) << way;
}

void tst_WindowCompanions::everyWayToSaveIsOneChange()
{
    QFETCH(QString, way);
    QPointer<KirvLayoutDialog> window = edit();
    QVERIFY(QTest::qWaitForWindowActive(window, kirvPatience));
    QSignalSpy finished(window, &QDialog::finished);
    auto *alias = child<QLineEdit>(window, "EditAccount_Alias");
    alias->setText(QStringLiteral("Ann"));
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    child<QTextEdit>(window, "EditAccount_DescriptionEdit")->setPlainText(QStringLiteral("Busy"));
    child<QLineEdit>(window, "KirvField_server")->setText(QStringLiteral("elsewhere"));
    const int commits = client->profile().commitCount();

    QPushButton *saveButton = button(window, QDialogButtonBox::Save);
    if (way == QLatin1String("click")) {
        QTest::mouseClick(saveButton, Qt::LeftButton);
    } else if (way == QLatin1String("two clicks")) {
        saveButton->click();
        saveButton->click();
    } else if (way == QLatin1String("Enter")) {
        alias->setFocus();
        QTest::keyClick(alias, Qt::Key_Return);
    } else if (way == QLatin1String("mnemonic")) {
        saveButton->setText(QStringLiteral("Save (&Z)")); // has none of its own in some styles
        QTest::keySequence(window->windowHandle(), QKeySequence::mnemonic(saveButton->text()));
    } else {
        saveButton->setFocus();
        QTest::keyClick(saveButton, Qt::Key_Space);
    }
    KIRV_TRY_COMPARE(client->profile().commitCount(), commits + 1); // a mnemonic clicks later
    settle();
    QVERIFY(!window);
    QCOMPARE(account()->record().alias, QStringLiteral("Ann"));
    QCOMPARE(account()->record().defaultDescription, QStringLiteral("Busy"));
    QCOMPARE(server().takeCalls(), (QStringList { "ann log out", "ann log in available new" }));
    QVERIFY(!client->accountsPage()->getAccEdit());
    if (way != QLatin1String("two clicks"))
        QCOMPARE(finished.size(), 1);
}

void tst_WindowCompanions::refusedSaveCanBeTriedAgain()
{
    QPointer<KirvLayoutDialog> window = edit();
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    StoreRefusal refusal(options.profileFolder);
    QVERIFY(refusal.holds());
    for (int attempt = 0; attempt < 2; ++attempt) {
        save(window);
        settle();
        QVERIFY(window && window->isVisible());
        auto *box = child<QMessageBox>(window, "EditAccount_SaveFailed");
        QVERIFY(box && box->isVisible());
        box->button(QMessageBox::Ok)->click();
        settle();
        QCOMPARE(account()->record().alias, ann);
        QCOMPARE(account()->record().password, secret);
        QVERIFY(!isLocked(window)); // the directory has nothing to do with it
    }
    refusal.end();
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(account()->record().alias, QStringLiteral("Ann"));
    QCOMPARE(server().takeCalls(), (QStringList { "ann log out", "ann log in available new" }));
}

void tst_WindowCompanions::savingWithoutAChangeDoesNothing()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    QCOMPARE(server().takeCalls(), QStringList("ann fetch"));
    const int commits = client->profile().commitCount();
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(server().takeCalls(), QStringList());
    QCOMPARE(client->profile().commitCount(), commits);
}

void tst_WindowCompanions::oneSaveMakesOneReconnection()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    server().takeCalls();
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    child<QLineEdit>(window, "KirvField_server")->setText(QStringLiteral("elsewhere"));
    child<QComboBox>(window, "EditAccount_PresenceCombo")->setCurrentIndex(1);
    nameEdit(window)->setText(QStringLiteral("Ann New"));
    save(window);
    KIRV_TRY(!window);
    QCOMPARE(server().takeCalls(), (QStringList { "ann log out", "ann log in away new", "ann publish name" }));
    QCOMPARE(name(), QStringLiteral("Ann New"));
    QCOMPARE(textOf(server().entries.value(ann), QStringLiteral("town")), QStringLiteral("Aachen"));
}

void tst_WindowCompanions::refusedSaveSendsNothing()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    server().takeCalls();
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    child<QComboBox>(window, "EditAccount_PresenceCombo")->setCurrentIndex(1);
    nameEdit(window)->setText(QStringLiteral("Ann New"));
    const StoreRefusal refusal(options.profileFolder);
    save(window);
    settle();
    button(window, QDialogButtonBox::Cancel)->click();
    settle();
    QVERIFY(!window);
    account()->tryAgain();
    settle();
    QCOMPARE(server().takeCalls(), QStringList());
    QCOMPARE(account()->presence().getId(), QStringLiteral("available"));
}

void tst_WindowCompanions::reconnectingAfterARefusedSaveIsOneLogIn_data()
{
    QTest::addColumn<bool>("isWaiting");
    QTest::newRow("off line") << false;
    QTest::newRow("waiting") << true;
}

void tst_WindowCompanions::reconnectingAfterARefusedSaveIsOneLogIn()
{
    QFETCH(bool, isWaiting);
    server().logIn = KirvFakeServer::Refuses;
    server().refusal = isWaiting ? KirvFailure::ConnectionLost : KirvFailure::WrongPassword;
    account()->reconnect();
    settle();
    server().takeCalls();
    QCOMPARE(connection()->state(), isWaiting ? KirvConnection::Waiting : KirvConnection::Offline);
    server().logIn = KirvFakeServer::Holds;
    QPointer<KirvLayoutDialog> window = edit();
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann")); // what is refused
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    {
        const StoreRefusal refusal(options.profileFolder);
        save(window);
        settle();
    }
    QVERIFY(window);
    window->reject();
    settle();
    QCOMPARE(server().takeCalls(), QStringList()); // nothing was tried by the Save
    account()->reconnect();
    settle();
    connection()->serverAccepts();
    settle();
    QCOMPARE(server().takeCalls(), QStringList("ann log in available secret"));
}

void tst_WindowCompanions::offlinePresenceWithAnotherPasswordLogsOut()
{
    QPointer<KirvLayoutDialog> window = edit();
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    child<QComboBox>(window, "EditAccount_PresenceCombo")->setCurrentIndex(2);
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(server().takeCalls(), QStringList("ann log out"));
    QCOMPARE(connection()->state(), KirvConnection::Offline);
}

void tst_WindowCompanions::accountDisabledWhileItLogsInStaysOff()
{
    server().logIn = KirvFakeServer::Holds;
    QPointer<KirvLayoutDialog> window = edit();
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    save(window);
    settle();
    QCOMPARE(connection()->state(), KirvConnection::Connecting);
    KirvAccountManager::getInstance()->disableAccount(ann, protocol->name);
    settle();
    QCOMPARE(connection()->state(), KirvConnection::Offline);
    connection()->serverAccepts();
    settle();
    QVERIFY(!account()->isOnline());
    QCOMPARE(server().takeCalls(), (QStringList { "ann log out", "ann log in available new", "ann abort" }));
}

void tst_WindowCompanions::passwordOfTheServerIsNotPutBack()
{
    QPointer<KirvLayoutDialog> window = edit();
    QVERIFY(account()->acceptServerPassword(QStringLiteral("of the server")));
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(account()->record().password, QStringLiteral("of the server"));
    QCOMPARE(server().takeCalls(), QStringList());
}

void tst_WindowCompanions::pictureStaysWhenTheWindowIsCancelled()
{
    const QString picture = folder->filePath(QStringLiteral("picture.png"));
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(picture));
    QPointer<KirvLayoutDialog> window = edit();
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    QVERIFY(QMetaObject::invokeMethod(client->accountsPage()->getAccEdit(), "changeAvatar", Q_ARG(QString, picture)));
    window->close();
    settle();
    QVERIFY(!window);
    QVERIFY(!account()->avatarPath().isEmpty());
    QCOMPARE(account()->record().alias, ann);
    QCOMPARE(server().takeCalls(), QStringList("ann avatar"));
}

void tst_WindowCompanions::slotsOfASaveMayEndTheWindow_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : { "remove", "disable", "unload", "edit another", "edit again", "close",
                                "delete controller", "delete window", "change" }) {
        QTest::newRow(action) << action;
    }
}

void tst_WindowCompanions::slotsOfASaveMayEndTheWindow()
{
    QFETCH(QString, action);
    KirvAccount *other = addAccount(bob);
    server().takeCalls();
    QPointer<KirvLayoutDialog> window = editDirectory();
    QSignalSpy finished(window, &QDialog::finished);
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    nameEdit(window)->setText(QStringLiteral("Ann New"));
    bool isDone = false;
    connect(&client->accounts(), &KirvAccountCollection::accountChanged, window, [&](KirvAccount *changed) {
        if (changed->record().alias != QLatin1String("Ann") || std::exchange(isDone, true))
            return;
        KirvAccountManager *manager = KirvAccountManager::getInstance();
        if (action == QLatin1String("remove"))
            manager->removeAccount(ann, protocol->name);
        else if (action == QLatin1String("disable"))
            manager->disableAccount(ann, protocol->name);
        else if (action == QLatin1String("unload"))
            Q_EMIT client->plugins().protocolAboutToBeUnloaded(protocol);
        else if (action == QLatin1String("edit another"))
            client->accountsPage()->editAccount(other);
        else if (action == QLatin1String("edit again"))
            client->accountsPage()->editAccount(changed);
        else if (action == QLatin1String("close"))
            window->close();
        else if (action == QLatin1String("delete controller"))
            delete client->accountsPage()->getAccEdit();
        else if (action == QLatin1String("delete window"))
            delete window;
        else
            changed->change([](KirvAccountRecord &record) { record.alias = QStringLiteral("Anna"); });
    });
    save(window);
    QVERIFY(isDone);
    const bool isReplaced = action.startsWith(QLatin1String("edit"));
    if (action == QLatin1String("disable")) { // what was typed could not be published
        settle();
        QVERIFY(window && window->isVisible());
        QCOMPARE(nameEdit(window)->text(), QStringLiteral("Ann New"));
        QCOMPARE(name(), published);
        window->close();
    }
    KIRV_TRY(!window);
    QCOMPARE(bool(client->accountsPage()->getAccEdit()), isReplaced);
    if (action != QLatin1String("delete window"))
        QCOMPARE(finished.size(), 1);
    const bool isPublished = isReplaced || action == QLatin1String("change") || action == QLatin1String("close")
        || action.startsWith(QLatin1String("delete"));
    settle();
    QCOMPARE(name(), isPublished ? QStringLiteral("Ann New") : published);
}

void tst_WindowCompanions::accountRemovedWithinASaveIsNotReportedAsRefused()
{
    QPointer<KirvLayoutDialog> window = edit();
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    // The page shows the new alias before the save ends.
    connect(child<QTreeWidget>(client->accountsPage(), "Accounts_List"), &QTreeWidget::itemChanged, window,
            [this] { KirvAccountManager::getInstance()->removeAccount(ann, protocol->name); });
    save(window);
    QVERIFY(!child<QMessageBox>(window, "EditAccount_SaveFailed"));
    settle();
    QVERIFY(!window);
    QVERIFY(!account());
}

void tst_WindowCompanions::windowOfAnUnusableAccountCanOnlyBeClosed()
{
    Q_EMIT client->plugins().protocolAboutToBeUnloaded(protocol);
    protocol->givesConnections = false;
    Q_EMIT client->plugins().protocolLoaded(protocol);
    settle();
    QVERIFY(!account()->isLoaded());
    QPointer<KirvLayoutDialog> window = edit();
    QVERIFY(window);
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    save(window);
    save(window);
    settle();
    QVERIFY(window && window->isVisible());
    QVERIFY(!account()->isSaving());
    QCOMPARE(account()->record().alias, ann);
    button(window, QDialogButtonBox::Cancel)->click();
    settle();
    QVERIFY(!window);
}

void tst_WindowCompanions::failedFetchPublishesNothing_data()
{
    QTest::addColumn<QString>("failure");
    for (const char *failure : { "refused", "no answer", "connection lost" })
        QTest::newRow(failure) << failure;
}

void tst_WindowCompanions::failedFetchPublishesNothing()
{
    QFETCH(QString, failure);
    auto timing = connection()->timing();
    timing.requestTimeout = 20;
    connection()->setTiming(timing);
    server().directory = failure == QLatin1String("refused") ? KirvFakeServer::Refuses : KirvFakeServer::Holds;
    QPointer<KirvLayoutDialog> window = edit();
    child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(1);
    QVERIFY(isLocked(window));
    if (failure == QLatin1String("connection lost"))
        connection()->serverGoes();
    KIRV_TRY(!account()->directory().isBusy());
    QVERIFY(isLocked(window));
    QVERIFY(!status(window).isEmpty());
    account()->tryAgain();
    KIRV_TRY(account()->isOnline());
    server().takeCalls();
    verifySaveSendsNothing(window);

    window = editDirectory();
    KIRV_TRY(!account()->directory().isBusy());
    server().directory = KirvFakeServer::Accepts;
    fetch(window);
    QVERIFY(!isLocked(window));
    QCOMPARE(status(window), QString());
    QCOMPARE(nameEdit(window)->text(), published);
}

void tst_WindowCompanions::typedTextIsNotPublishedAfterAFailedFetch()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Refuses;
    fetch(window);
    QVERIFY(isLocked(window));
    QVERIFY(status(window).contains(QLatin1String("not today")));
    server().takeCalls();
    StoreRefusal refusal(options.profileFolder);
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    save(window); // refused: the window stays open
    settle();
    QVERIFY(window && isLocked(window));
    refusal.end();
    verifySaveSendsNothing(window);
}

void tst_WindowCompanions::failedDeletionPublishesNothing()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Refuses;
    child<QAbstractButton>(window, "EditAccount_PubDirDelete")->click();
    child<QMessageBox>(window, "EditAccount_PubDirDeleteQuestion")->button(QMessageBox::Yes)->click();
    settle();
    QVERIFY(isLocked(window));
    QVERIFY(status(window).contains(QLatin1String("not today")));
    server().directory = KirvFakeServer::Accepts;
    server().takeCalls();
    verifySaveSendsNothing(window);
}

void tst_WindowCompanions::deletionOffLineSendsNothing()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    account()->setPresence(protocol->presenceWithId(QStringLiteral("offline"), QString()));
    settle();
    server().takeCalls();
    QVERIFY(status(window).contains(QLatin1String("must be connected")));
    child<QAbstractButton>(window, "EditAccount_PubDirDelete")->click();
    child<QMessageBox>(window, "EditAccount_PubDirDeleteQuestion")->button(QMessageBox::Yes)->click();
    settle();
    QVERIFY(isLocked(window));
    QCOMPARE(server().takeCalls(), QStringList());
    account()->setPresence(protocol->presences().first());
    settle();
    QVERIFY(!isLocked(window));
    QCOMPARE(nameEdit(window)->text(), published);
    QCOMPARE(server().takeCalls(), (QStringList { "ann log in available secret", "ann fetch" }));
}

void tst_WindowCompanions::noEntryPublishesOnlyWhatWasTyped()
{
    server().entries.clear();
    QPointer<KirvLayoutDialog> window = editDirectory();
    QVERIFY(!isLocked(window));
    QCOMPARE(nameEdit(window)->text(), QString());
    nameEdit(window)->setText(QStringLiteral("Typed"));
    verifySavePublishesName(window);
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::refusedPublicationIsSentByTheNextSave()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(0);
    nameEdit(window)->setText(QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Refuses;
    for (int attempt = 0; attempt < 2; ++attempt) {
        server().takeCalls();
        save(window);
        settle();
        QVERIFY(window && window->isVisible());
        QVERIFY(!isLocked(window));
        QCOMPARE(child<QTabWidget>(window, "EditAccount_Tabs")->currentIndex(), 1);
        QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));
        QVERIFY(status(window).contains(QLatin1String("not today")));
        QCOMPARE(server().takeCalls(), QStringList("ann publish name"));
    }
    server().directory = KirvFakeServer::Accepts;
    save(window);
    KIRV_TRY(!window);
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::lostConnectionKeepsWhatWasTyped()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    QVERIFY(waitsForPublication(window));
    connection()->serverGoes();
    settle();
    QVERIFY(window && window->isVisible());
    QVERIFY(!isLocked(window));
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Accepts;
    account()->tryAgain();
    KIRV_TRY(account()->isOnline());
    settle();
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));
    verifySavePublishesName(window);
}

void tst_WindowCompanions::failedReconnectionKeepsWhatWasTyped()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    auto *password = child<QLineEdit>(window, "EditAccount_Password");
    password->setText(QStringLiteral("wrong"));
    server().logIn = KirvFakeServer::Refuses;
    save(window);
    settle();
    QVERIFY(window && window->isVisible());
    QCOMPARE(account()->record().password, QStringLiteral("wrong"));
    QVERIFY(!isLocked(window));
    QVERIFY(button(window, QDialogButtonBox::Save)->hasFocus());
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));

    server().logIn = KirvFakeServer::Accepts;
    account()->providePassword(secret, true);
    settle();
    QVERIFY(account()->isOnline());
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));
    server().takeCalls();
    save(window);
    KIRV_TRY(!window);
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::refusedSaveKeepsWhatWasTyped()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    server().takeCalls();
    StoreRefusal refusal(options.profileFolder);
    save(window);
    settle();
    QVERIFY(window && window->isVisible());
    QVERIFY(!isLocked(window));
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));
    QCOMPARE(server().takeCalls(), QStringList());
    refusal.end();
    save(window);
    KIRV_TRY(!window);
    QCOMPARE(server().takeCalls(), QStringList("ann publish name"));
}

void tst_WindowCompanions::saveWaitsForItsPublication_data()
{
    QTest::addColumn<bool>("reconnects");
    QTest::newRow("over the same connection") << false;
    QTest::newRow("after a reconnection") << true;
}

void tst_WindowCompanions::saveWaitsForItsPublication()
{
    QFETCH(bool, reconnects);
    QPointer<KirvLayoutDialog> window = editDirectory();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    if (reconnects)
        child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    server().directory = KirvFakeServer::Holds;
    server().logIn = KirvFakeServer::Holds;
    save(window);
    settle();
    if (reconnects) {
        QVERIFY(window && window->isVisible());
        QVERIFY(status(window).contains(QLatin1String("Publishing")));
        connection()->serverAccepts(); // the log-in
        settle();
    }
    QVERIFY(window && window->isVisible());
    QVERIFY(!button(window, QDialogButtonBox::Save)->isEnabled());
    QVERIFY(status(window).contains(QLatin1String("Publishing")));
    QTest::keyClick(window, Qt::Key_Return);
    settle();
    server().takeCalls();
    if (window)
        connection()->serverAccepts();
    KIRV_TRY(!window);
    QCOMPARE(server().takeCalls(), QStringList());
    settle();
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::windowCanBeClosedWhilePublishing_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "Cancel", "Escape", "close", "another window" })
        QTest::newRow(way) << way;
}

void tst_WindowCompanions::windowCanBeClosedWhilePublishing()
{
    QFETCH(QString, way);
    KirvAccount *other = addAccount(bob);
    QPointer<KirvLayoutDialog> window = editDirectory();
    QSignalSpy finished(window, &QDialog::finished);
    QVERIFY(waitsForPublication(window));
    if (way == QLatin1String("Cancel"))
        button(window, QDialogButtonBox::Cancel)->click();
    else if (way == QLatin1String("Escape"))
        QTest::keyClick(window, Qt::Key_Escape);
    else if (way == QLatin1String("close"))
        window->close();
    else
        client->accountsPage()->editAccount(other);
    QVERIFY(!window->isVisible());
    settle();
    QVERIFY(!window);
    QCOMPARE(finished.size(), 1);
    connection()->serverAccepts();
    settle();
    QCOMPARE(name(), QStringLiteral("Typed"));
    QCOMPARE(bool(client->accountsPage()->getAccEdit()), way == QLatin1String("another window"));
}

/// A change that has nothing to do with the window, like a password that cannot be stored.
void tst_WindowCompanions::heldPublicationSurvivesAnotherRefusedChange()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("new"));
    server().logIn = KirvFakeServer::Holds;
    save(window);
    settle();
    QVERIFY(window && window->isVisible());
    {
        const StoreRefusal refusal(options.profileFolder);
        QVERIFY(!account()->change([](KirvAccountRecord &record) { record.alias = QStringLiteral("Other"); }));
    }
    connection()->serverAccepts();
    KIRV_TRY(!window);
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::baseOfAnEarlierWindowIsNotUsed()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    window->close();
    settle();
    server().entries.insert(ann, entry(QStringLiteral("Changed elsewhere"), QStringLiteral("Bonn")));
    server().directory = KirvFakeServer::Refuses;
    window = editDirectory();
    QVERIFY(isLocked(window));
    server().takeCalls();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(server().takeCalls(), QStringList());

    server().directory = KirvFakeServer::Accepts;
    window = editDirectory();
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Changed elsewhere"));
    nameEdit(window)->setText(QStringLiteral("Typed"));
    verifySavePublishesName(window);
    QCOMPARE(textOf(server().entries.value(ann), QStringLiteral("town")), QStringLiteral("Bonn"));
}

void tst_WindowCompanions::answersOfOtherAccountsDoNotMix()
{
    addAccount(bob);
    server().entries.insert(bob, entry(QStringLiteral("Bob"), QString()));
    server().directory = KirvFakeServer::Holds;
    QPointer<KirvLayoutDialog> first = editDirectory(ann);
    QPointer<KirvLayoutDialog> second = editDirectory(bob);
    QVERIFY(!first);
    connection(ann)->serverAccepts();
    settle();
    QVERIFY(isLocked(second));
    connection(bob)->serverAccepts();
    settle();
    QVERIFY(!isLocked(second));
    QCOMPARE(nameEdit(second)->text(), QStringLiteral("Bob"));
}

void tst_WindowCompanions::missingDirectoryControlsAreAdded_data()
{
    QTest::addColumn<QString>("layout");
    const QString all = builtInLayout();
    QTest::newRow("none") << without(all, QStringLiteral("EditAccount_PubDirControls"));
    QTest::newRow("no status") << without(all, QStringLiteral("EditAccount_PubDirStatus"));
    QTest::newRow("no button") << without(all, QStringLiteral("EditAccount_PubDirFetch"));
    QTest::newRow("neither") << without(without(all, QStringLiteral("EditAccount_PubDirFetch")),
                                        QStringLiteral("EditAccount_PubDirStatus"));
}

void tst_WindowCompanions::missingDirectoryControlsAreAdded()
{
    QFETCH(QString, layout);
    useLayout(layout);
    server().directory = KirvFakeServer::Refuses;
    QPointer<KirvLayoutDialog> window = editDirectory();
    QVERIFY(isLocked(window));
    auto *label = child<QLabel>(window, "EditAccount_PubDirStatus");
    QVERIFY(label && label->isVisible() && label->text().contains(QLatin1String("not today")));
    auto *again = child<QAbstractButton>(window, "EditAccount_PubDirFetch");
    QVERIFY(again && again->isVisible() && again->isEnabled());
    if (qEnvironmentVariableIsSet("KIRV_PICTURES"))
        window->grab().save(QStringLiteral("/tmp/review_%1.png").arg(QTest::currentDataTag()));
    server().directory = KirvFakeServer::Accepts;
    server().takeCalls();
    fetch(window);
    QCOMPARE(server().takeCalls(), QStringList("ann fetch"));
    QVERIFY(!isLocked(window));
}

void tst_WindowCompanions::fetchButtonWorksWhereverItStands()
{
    QString layout = without(builtInLayout(), QStringLiteral("EditAccount_PubDirFetch"));
    layout.replace(QStringLiteral("<widget class=\"KirvFormArea\" name=\"EditAccount_DirectoryArea\">"),
                   QStringLiteral("<widget class=\"QPushButton\" name=\"EditAccount_PubDirFetch\"/></item><item>"
                                  "<widget class=\"KirvFormArea\" name=\"EditAccount_DirectoryArea\">"));
    useLayout(layout);
    QPointer<KirvLayoutDialog> window = editDirectory();
    server().takeCalls();
    fetch(window);
    QCOMPARE(server().takeCalls(), QStringList("ann fetch"));
}

void tst_WindowCompanions::fieldsOutsideTheSecondTabAreFetchedToo()
{
    QString layout = builtInLayout();
    layout.replace(QStringLiteral("name=\"EditAccount_PubDirResults\""), QStringLiteral("name=\"Elsewhere\""));
    layout.replace(QStringLiteral("<widget class=\"QDialogButtonBox\""),
                   QStringLiteral("<widget class=\"QWidget\" name=\"EditAccount_PubDirResults\"/></item><item>"
                                  "<widget class=\"QDialogButtonBox\""));
    useLayout(layout);
    server().directory = KirvFakeServer::Holds;
    QPointer<KirvLayoutDialog> window = edit();
    QVERIFY(fields(window)->isVisible());
    settle();
    QVERIFY(isLocked(window));
    QCOMPARE(server().takeCalls(), QStringList("ann fetch"));
    connection()->serverAccepts();
    settle();
    QCOMPARE(nameEdit(window)->text(), published);
    server().directory = KirvFakeServer::Accepts;
    nameEdit(window)->setText(QStringLiteral("Typed"));
    save(window);
    KIRV_TRY(!window);
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::saveButtonNeedNotBeTheDefault()
{
    QPointer<KirvLayoutDialog> window = edit();
    QVERIFY(QTest::qWaitForWindowActive(window, kirvPatience));
    QPushButton *saveButton = button(window, QDialogButtonBox::Save);
    saveButton->setAutoDefault(false);
    saveButton->setDefault(false);
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    const StoreRefusal refusal(options.profileFolder);
    saveButton->setFocus();
    QTest::keyClick(saveButton, Qt::Key_Space);
    settle();
    QVERIFY(window && window->isVisible());
    QCOMPARE(account()->record().alias, ann);
}

/// As Qt Designer makes them in a new dialog.
void tst_WindowCompanions::connectionsOfALayoutDoNotFinishTheWindow()
{
    QString layout = builtInLayout();
    const QString connection = QStringLiteral("<connection><sender>EditAccount_FrameButtons</sender><signal>%1</signal>"
                                              "<receiver>EditAccount</receiver><slot>%2</slot></connection>");
    layout.replace(QStringLiteral("<connections/>"),
                   QStringLiteral("<connections>")
                       + connection.arg(QStringLiteral("accepted()"), QStringLiteral("accept()"))
                       + connection.arg(QStringLiteral("rejected()"), QStringLiteral("reject()"))
                       + QStringLiteral("</connections>"));
    useLayout(layout);
    QPointer<KirvLayoutDialog> window = edit();
    QSignalSpy finished(window, &QDialog::finished);
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    StoreRefusal refusal(options.profileFolder);
    save(window);
    settle();
    QVERIFY(window && window->isVisible());
    refusal.end();
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(account()->record().alias, QStringLiteral("Ann"));
    QCOMPARE(finished.size(), 1);

    window = edit();
    button(window, QDialogButtonBox::Cancel)->click();
    settle();
    QVERIFY(!window);
}

void tst_WindowCompanions::nothingElseIsUsableWhilePublishing()
{
    QString layout = without(builtInLayout(), QStringLiteral("EditAccount_PubDirControls"));
    layout.replace(QStringLiteral("<widget class=\"QDialogButtonBox\""),
                   QStringLiteral("<widget class=\"QWidget\" name=\"EditAccount_PubDirControls\">"
                                  "<layout class=\"QVBoxLayout\"><item>"
                                  "<widget class=\"QPushButton\" name=\"EditAccount_PubDirFetch\"/></item></layout>"
                                  "</widget></item><item><widget class=\"QDialogButtonBox\""));
    useLayout(layout);
    QPointer<KirvLayoutDialog> window = editDirectory();
    QVERIFY(waitsForPublication(window));
    server().takeCalls();
    fetch(window);
    QCOMPARE(server().takeCalls(), QStringList());
    connection()->serverRefuses();
    settle();
    QVERIFY(window && window->isVisible());
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Accepts;
    fetch(window);
    QCOMPARE(nameEdit(window)->text(), published);
}

void tst_WindowCompanions::publicationReplacedByAFetchKeepsWhatWasTyped()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    QVERIFY(waitsForPublication(window));
    QVERIFY(QMetaObject::invokeMethod(client->accountsPage()->getAccEdit(), "requestPubdirInfo"));
    connection()->serverRefuses(); // the publication
    connection()->serverAccepts(); // the fetch
    settle();
    QVERIFY(window && window->isVisible());
    QVERIFY(!isLocked(window));
    QCOMPARE(nameEdit(window)->text(), QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Accepts;
    save(window);
    KIRV_TRY(!window);
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::topsOfOtherClassesAreRefused_data()
{
    QTest::addColumn<QString>("className");
    for (const char *className : { "QWizard", "QWidget", "QMainWindow", "QMessageBox" })
        QTest::newRow(className) << className;
}

void tst_WindowCompanions::topsOfOtherClassesAreRefused()
{
    QFETCH(QString, className);
    QString layout = builtInLayout();
    layout.replace(QStringLiteral("<widget class=\"QDialog\" name=\"EditAccount\">"),
                   QStringLiteral("<widget class=\"%1\" name=\"EditAccount\">").arg(className));
    useLayout(layout);
    QPointer<KirvLayoutDialog> window = edit();
    QVERIFY(window); // the built-in one
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Ann"));
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(account()->record().alias, QStringLiteral("Ann"));
}

void tst_WindowCompanions::markupInADescriptionIsPlainText_data()
{
    QTest::addColumn<QString>("description");
    QTest::newRow("bold") << "<b>Busy</b> &amp; away";
    QTest::newRow("file") << "<img src=\"file://PICTURE\">";
    QTest::newRow("path") << "<img src=\"PICTURE\">";
    QTest::newRow("network") << "<img src=\"http://localhost/picture.png\">";
    QTest::newRow("style sheet") << "<link rel=stylesheet href=\"PICTURE\"><p>Text";
    QTest::newRow("lines") << "one\n two  \n\n three\t";
}

void tst_WindowCompanions::markupInADescriptionIsPlainText()
{
    QFETCH(QString, description);
    // A pipe: reading it would never end.
    const QString pipe = folder->filePath(QStringLiteral("pipe"));
    QVERIFY(QProcess::execute(QStringLiteral("mkfifo"), { pipe }) == 0);
    description.replace(QStringLiteral("PICTURE"), pipe);
    QVERIFY(account()->change([&](KirvAccountRecord &record) { record.defaultDescription = description; }));
    settle();
    server().takeCalls();
    QPointer<KirvLayoutDialog> window = edit();
    QVERIFY(QTest::qWaitForWindowExposed(window, kirvPatience));
    QCOMPARE(child<QTextEdit>(window, "EditAccount_DescriptionEdit")->toPlainText(), description);
    const int commits = client->profile().commitCount();
    save(window);
    settle();
    QVERIFY(!window);
    QCOMPARE(account()->record().defaultDescription, description);
    QCOMPARE(client->profile().commitCount(), commits);
}

void tst_WindowCompanions::pageMayGoWithWindowsOpen()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    QPointer<KirvEditAccountDialog> controller = client->accountsPage()->getAccEdit();
    nameEdit(window)->setText(QStringLiteral("Typed"));
    server().directory = KirvFakeServer::Holds;
    save(window);
    delete client->accountsPage();
    QVERIFY(!window && !controller);
    settle();
    connection()->serverAccepts();
    settle();
    QCOMPARE(name(), QStringLiteral("Typed"));
}

void tst_WindowCompanions::clientMayGoWhilePublishing()
{
    QPointer<KirvLayoutDialog> window = editDirectory();
    QVERIFY(waitsForPublication(window));
    client.reset();
    QVERIFY(!window);
}

void tst_WindowCompanions::secondWindowOfAnAccountReplacesTheFirst()
{
    QPointer<KirvLayoutDialog> first = editDirectory();
    nameEdit(first)->setText(QStringLiteral("Typed in the first"));
    server().directory = KirvFakeServer::Holds;
    save(first);
    QPointer<KirvLayoutDialog> second = edit();
    QVERIFY(second != first);
    settle();
    QVERIFY(!first && second);
    child<QTabWidget>(second, "EditAccount_Tabs")->setCurrentIndex(1);
    settle();
    QVERIFY(isLocked(second));
    connection()->serverAccepts(); // the publication
    connection()->serverAccepts(); // the fetch
    settle();
    QVERIFY(!isLocked(second));
    QCOMPARE(nameEdit(second)->text(), QStringLiteral("Typed in the first"));
    server().takeCalls();
    save(second);
    settle();
    QVERIFY(!second);
    QCOMPARE(server().takeCalls(), QStringList());
}

QTEST_MAIN(tst_WindowCompanions)
#include "tst_window_companions.moc"

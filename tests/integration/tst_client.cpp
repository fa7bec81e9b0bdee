// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_status.h"
#include "client/kirv_client.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_registration_chooser.h"
#include "client/kirv_server_assistant.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_plugin_manager.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/fakes/kirv_fake_server_request.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_thorough.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

namespace {
const QString example = QStringLiteral("Example");
enum Column { AliasColumn, ProtocolColumn, IdColumn };

/// A request that asks for a name, which is the only step.
KirvServerRequest *createRequest()
{
    KirvServerRequest::Step step;
    step.fields << KirvField::textEdit(QStringLiteral("Name"), QStringLiteral("name"), QString(), QString());
    step.command = QStringLiteral("Send");
    return new KirvFakeServerRequest({ step }, KirvServerRequest::Result());
}

/// A protocol that offers to register and has a command of its own for an account.
KirvFakeProtocol *createOfferingProtocol(const QString &name)
{
    auto *protocol = new KirvFakeProtocol(name);
    protocol->makeRegistration = createRequest;
    protocol->actions << KirvAccountAction { QStringLiteral("act"), QStringLiteral("Act on Server…"), QString() };
    protocol->makeRequest = [](const QString &, KirvConnection *) { return createRequest(); };
    return protocol;
}
} // namespace

class tst_Client : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithAnEmptyProfile();
    void secondInstanceIsRefusedWithAReason();
    void missingPluginFolderIsTold();
    void accountsLogInAgainAfterARestart();
    void firstAccountIsSelectedAtTheStart();
    void titleAndRowsFollowTheMainAccount();
    void windowRemembersItsSize();

    void unloadedProtocolKeepsItsRows();
    void ctrlNSaysThatNoProtocolIsLoaded();
    void reloadedProtocolListsItsAccountsOnce();
    void reloadingKeepsTheCurrentRow();
    void reloadingWhileDisablingIsAskedDisablesTheAccountAskedAbout();
    void reloadingWhileRemovingIsAskedRemovesTheAccountAskedAbout();
    void reloadingFromThePluginsPage();

    void accountAddedByOthersGetsARow();
    void accountRemovedByOthersLosesRowAndSelectorEntry();
    void questionAboutARemovedAccountDoesNotHitItsNeighbour();

    void editAndCloseLeavesNothingBehind();
    void closingTheWindowEndsTheController();
    void secondEditWindowReplacesTheFirst();
    void editWindowGoesWithItsAccount();
    void editWindowGoesWithItsProtocol();
    void editWindowGoesWithThePage();
    void oneSaveIsOneTransaction();
    void refusedSaveKeepsTheWindowOpen();
    void directoryTabSaysWhyItIsLocked();
    void directoryIsAskedWhenTheAccountComesOnLine();

    void rowsShowStates();
    void reconnectLogsInAgain();

    void passwordIsAskedForAndTaken();
    void passwordsAreAskedOneAfterTheOther();
    void cancelledPasswordQuestionLeavesTheAccountOffLine();
    void passwordQuestionGoesWithItsAccount();
    void passwordQuestionGoesWithItsProtocol();

    void registrationWithoutOfferIsTold();
    void registrationWithOneOfferGoesThere();
    void registrationWithSeveralOffersIsChosen();
    void registrationChoiceGoesWithItsProtocols();
    void actionsOfTheProtocolAreOffered();

    void messagesAreShownOnceAndClosed();
    void namesTurnNoTextAround();

private:
    void start();
    void restart();
    KirvAccount *addAccount(const QString &id, const QString &password = QStringLiteral("secret"),
                            bool remember = true);
    KirvAccount *addOnlineAccount(const QString &id);
    KirvAccount *account(const QString &id) const { return client->accounts().find({ id, example }); }
    QTreeWidget *list() const;
    QTreeWidgetItem *row(const QString &id) const;
    QStringList rowIds() const;
    QComboBox *selector() const;
    QDialog *editWindow() const;
    QDialog *openEditWindow(const QString &id);
    template <typename T>
    T *child(QWidget *parent, const char *name) const
    {
        return parent->findChild<T *>(QLatin1String(name));
    }
    QString pluginFile() const { return client->plugins().plugins().first().fileName; }
    void unload() { QVERIFY(client->plugins().unload(pluginFile())); }
    void load() { QVERIFY(client->plugins().load(pluginFile())); }
    static QString state(const KirvAccount *account);
    KirvPasswordDialog *passwordQuestion() const;
    /// The assistants that are open.
    QList<KirvServerAssistant *> assistants() const;
    static void processDeletions();

    std::unique_ptr<QTemporaryDir> folder;
    KirvClientOptions options;
    std::unique_ptr<KirvClient> client;
};

void tst_Client::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    options = KirvClientOptions();
    options.profileFolder = folder->filePath(QStringLiteral("profile"));
    options.pluginFolder = QStringLiteral(KIRV_EXAMPLE_PROTOCOLS);
    start();
}

void tst_Client::cleanup()
{
    client.reset();
}

void tst_Client::start()
{
    client = std::make_unique<KirvClient>(options);
    QVERIFY2(client->start(), qPrintable(client->errorString()));
    client->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(client->window(), kirvPatience));
    KIRV_TRY(client->arePluginsLoaded());
}

void tst_Client::restart()
{
    client.reset();
    start();
}

KirvAccount *tst_Client::addAccount(const QString &id, const QString &password, bool remember)
{
    KirvProtocol *protocol = KirvPluginManager::getInstance()->getProtocolByName(example);
    KirvAccountConnection *created = KirvAccountManager::getInstance()->createAccount(
        id, id, password, remember, protocol, protocol->getAllPresences().first(), protocol->getAccountSettings());
    QCoreApplication::processEvents();
    return static_cast<KirvAccount *>(created);
}

KirvAccount *tst_Client::addOnlineAccount(const QString &id)
{
    KirvAccount *created = addAccount(id);
    return QTest::qWaitFor([created] { return created->isLoggedIn(); }, kirvPatience) ? created : nullptr;
}

QTreeWidget *tst_Client::list() const
{
    return child<QTreeWidget>(client->accountsPage(), "Accounts_List");
}

QTreeWidgetItem *tst_Client::row(const QString &id) const
{
    return list()->findItems(id, Qt::MatchExactly, IdColumn).value(0);
}

QStringList tst_Client::rowIds() const
{
    QStringList ids;
    for (int i = 0; i < list()->topLevelItemCount(); ++i)
        ids << list()->topLevelItem(i)->text(IdColumn);
    return ids;
}

QComboBox *tst_Client::selector() const
{
    return child<QComboBox>(client->accountsPage(), "Accounts_MainAccount");
}

QDialog *tst_Client::editWindow() const
{
    const auto windows =
        client->accountsPage()->findChildren<QDialog *>(QStringLiteral("EditAccount"), Qt::FindDirectChildrenOnly);
    for (QDialog *window : windows) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

QDialog *tst_Client::openEditWindow(const QString &id)
{
    list()->setCurrentItem(row(id));
    child<QToolButton>(client->accountsPage(), "Accounts_EditButton")->click();
    return editWindow();
}

QString tst_Client::state(const KirvAccount *account)
{
    return KirvAccountStatus(*account, false).text();
}

KirvPasswordDialog *tst_Client::passwordQuestion() const
{
    const auto dialogs = client->window()->findChildren<KirvPasswordDialog *>();
    for (KirvPasswordDialog *dialog : dialogs) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

QList<KirvServerAssistant *> tst_Client::assistants() const
{
    QList<KirvServerAssistant *> open;
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *assistant = qobject_cast<KirvServerAssistant *>(widget); assistant && assistant->isVisible())
            open << assistant;
    }
    return open;
}

void tst_Client::processDeletions()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void tst_Client::startsWithAnEmptyProfile()
{
    QCOMPARE(rowIds(), QStringList());
    QCOMPARE(client->window()->windowTitle(), QStringLiteral("Kirv – Settings"));
    QVERIFY(client->accountsPage()->isVisible());
    auto *pages = child<QListWidget>(client->window(), "Settings_Pages");
    QCOMPARE(pages->count(), 3);
    pages->setCurrentRow(1);
    QVERIFY(client->pluginsPage()->isVisible());
    QVERIFY(client->window()->messageBar()->messages().isEmpty());
}

void tst_Client::secondInstanceIsRefusedWithAReason()
{
    KirvClient second(options);
    QVERIFY(!second.start());
    QVERIFY2(second.errorString().contains(QLatin1String("another running instance")),
             qPrintable(second.errorString()));
}

void tst_Client::missingPluginFolderIsTold()
{
    options.pluginFolder = folder->filePath(QStringLiteral("nothing"));
    restart();
    QCOMPARE(client->window()->messageBar()->messages().size(), 1);
    QVERIFY(client->window()->messageBar()->messages().first().contains(options.pluginFolder));
    QCOMPARE(child<QLabel>(client->pluginsPage(), "Plugins_Details")->text(), QStringLiteral("There are no plug-ins."));
}

void tst_Client::accountsLogInAgainAfterARestart()
{
    QVERIFY(addOnlineAccount(QStringLiteral("anna")));
    restart();
    QCOMPARE(rowIds(), QStringList { QStringLiteral("anna") });
    QCOMPARE(row(QStringLiteral("anna"))->checkState(AliasColumn), Qt::Checked);
    KIRV_TRY(account(QStringLiteral("anna"))->isLoggedIn());
}

/// So that the strip says something, and the keys of the list have something to work on.
void tst_Client::firstAccountIsSelectedAtTheStart()
{
    addAccount(QStringLiteral("bert"));
    addAccount(QStringLiteral("anna"));
    restart();
    KIRV_TRY(list()->topLevelItem(0)->isSelected());
    QCOMPARE(list()->currentItem(), list()->topLevelItem(0));
    QCOMPARE(list()->selectedItems().size(), 1);
    KIRV_TRY(child<QPushButton>(client->accountsPage(), "Accounts_StripEditButton")->isEnabled());
}

void tst_Client::titleAndRowsFollowTheMainAccount()
{
    addAccount(QStringLiteral("anna"));
    KirvAccount *bert = addAccount(QStringLiteral("bert"));
    client->accountsPage()->updateAccounts();
    const int index = selector()->findText(QStringLiteral("bert"));
    QVERIFY(index > 0);
    selector()->setCurrentIndex(index);
    QCOMPARE(client->window()->windowTitle(), QStringLiteral("Kirv – Settings – bert"));
    KIRV_TRY_COMPARE(
        row(QStringLiteral("anna"))->data(AliasColumn, Qt::AccessibleTextRole).toString().contains("main account"),
        false);
    KIRV_TRY(
        row(QStringLiteral("bert"))->data(AliasColumn, Qt::AccessibleTextRole).toString().contains("main account"));
    bert->setAlias(QStringLiteral("Bert\nB."));
    QCOMPARE(client->window()->windowTitle(), QStringLiteral("Kirv – Settings – Bert B."));

    restart();
    QCOMPARE(client->window()->windowTitle(), QStringLiteral("Kirv – Settings – Bert B."));
    KirvAccountManager::getInstance()->removeAccount(QStringLiteral("bert"), example);
    QCOMPARE(client->window()->windowTitle(), QStringLiteral("Kirv – Settings – anna"));
    KirvAccountManager::getInstance()->removeAccount(QStringLiteral("anna"), example);
    QCOMPARE(client->window()->windowTitle(), QStringLiteral("Kirv – Settings"));
}

void tst_Client::windowRemembersItsSize()
{
    client->window()->resize(701, 503);
    QCoreApplication::processEvents();
    restart();
    QCOMPARE(client->window()->size(), QSize(701, 503));
}

void tst_Client::unloadedProtocolKeepsItsRows()
{
    addOnlineAccount(QStringLiteral("anna"));
    client->accountsPage()->updateAccounts();
    QCOMPARE(selector()->count(), 1);
    unload();
    QCOMPARE(rowIds(), QStringList { QStringLiteral("anna") });
    QCOMPARE(row(QStringLiteral("anna"))->checkState(AliasColumn), Qt::Checked);
    QVERIFY(row(QStringLiteral("anna"))->toolTip(AliasColumn).contains(example));
    QCOMPARE(selector()->count(), 0);
    QVERIFY(account(QStringLiteral("anna"))->isEnabled());
    QCOMPARE(state(account(QStringLiteral("anna"))), QStringLiteral("Its plug-in is not loaded"));
}

void tst_Client::ctrlNSaysThatNoProtocolIsLoaded()
{
    addAccount(QStringLiteral("anna"));
    client->accountsPage()->updateAccounts();
    unload();
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyRelease(list(), Qt::Key_Control); // else it counts as pressed in the next tests
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(client->window()->messageBar()->messages(),
             QStringList { QStringLiteral("No protocol is loaded. Load one on the Plug-ins page.") });
    load();
    QCOMPARE(client->window()->messageBar()->messages(), QStringList());
}

void tst_Client::reloadedProtocolListsItsAccountsOnce()
{
    addOnlineAccount(QStringLiteral("anna"));
    addAccount(QStringLiteral("bert"));
    KirvAccountManager::getInstance()->disableAccount(QStringLiteral("bert"), example);
    client->accountsPage()->updateAccounts();
    for (int round = 0; round < 3; ++round) {
        unload();
        load();
        QCOMPARE(rowIds(), (QStringList { QStringLiteral("anna"), QStringLiteral("bert") }));
        QCOMPARE(row(QStringLiteral("anna"))->checkState(AliasColumn), Qt::Checked);
        QCOMPARE(row(QStringLiteral("bert"))->checkState(AliasColumn), Qt::Unchecked);
        QCOMPARE(row(QStringLiteral("anna"))->toolTip(AliasColumn), QString());
        QCOMPARE(selector()->count(), 1);
        QCOMPARE(child<QToolButton>(client->accountsPage(), "Accounts_AddButton")->menu()->actions().size(), 1);
        KIRV_TRY(account(QStringLiteral("anna"))->isLoggedIn());
    }
}

void tst_Client::reloadingKeepsTheCurrentRow()
{
    for (const char *id : { "anna", "bert", "carl" })
        addAccount(QLatin1String(id));
    list()->sortItems(AliasColumn, Qt::DescendingOrder);
    list()->setCurrentItem(row(QStringLiteral("bert")));
    unload();
    QCOMPARE(list()->currentItem(), row(QStringLiteral("bert")));
    load();
    QCOMPARE(list()->currentItem(), row(QStringLiteral("bert")));
    QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { row(QStringLiteral("bert")) });
    QCOMPARE(rowIds(), (QStringList { QStringLiteral("carl"), QStringLiteral("bert"), QStringLiteral("anna") }));
    QVERIFY(child<QToolButton>(client->accountsPage(), "Accounts_EditButton")->isEnabled());
}

void tst_Client::reloadingWhileDisablingIsAskedDisablesTheAccountAskedAbout()
{
    addOnlineAccount(QStringLiteral("anna"));
    addOnlineAccount(QStringLiteral("bert"));
    row(QStringLiteral("anna"))->setCheckState(AliasColumn, Qt::Unchecked);
    QPointer<QMessageBox> question = client->accountsPage()->findChild<QMessageBox *>();
    QVERIFY(question);
    unload();
    load();
    QVERIFY(question);
    question->button(QMessageBox::Yes)->click();
    QVERIFY(!account(QStringLiteral("anna"))->isEnabled());
    QVERIFY(account(QStringLiteral("bert"))->isEnabled());
    QCOMPARE(row(QStringLiteral("anna"))->checkState(AliasColumn), Qt::Unchecked);
    QCOMPARE(rowIds().size(), 2);
}

void tst_Client::reloadingWhileRemovingIsAskedRemovesTheAccountAskedAbout()
{
    for (const char *id : { "anna", "bert", "carl" })
        addAccount(QLatin1String(id));
    list()->setCurrentItem(row(QStringLiteral("bert")));
    child<QToolButton>(client->accountsPage(), "Accounts_RemoveButton")->click();
    QPointer<QMessageBox> question = client->accountsPage()->findChild<QMessageBox *>();
    QVERIFY(question);
    unload();
    load();
    QVERIFY(question);
    question->button(QMessageBox::Yes)->click();
    processDeletions();
    QCOMPARE(rowIds(), (QStringList { QStringLiteral("anna"), QStringLiteral("carl") }));
    QVERIFY(!account(QStringLiteral("bert")));
    QVERIFY(account(QStringLiteral("anna")) && account(QStringLiteral("carl")));
}

void tst_Client::reloadingFromThePluginsPage()
{
    addOnlineAccount(QStringLiteral("anna"));
    client->window()->showPage(client->pluginsPage());
    auto *loadButton = child<QPushButton>(client->pluginsPage(), "Plugins_LoadButton");
    auto *unloadButton = child<QPushButton>(client->pluginsPage(), "Plugins_UnloadButton");
    auto *plugins = child<QTreeWidget>(client->pluginsPage(), "Plugins_List");
    QCOMPARE(plugins->topLevelItemCount(), 1);
    QCOMPARE(plugins->topLevelItem(0)->text(1), QStringLiteral("Loaded"));
    QVERIFY(!loadButton->isEnabled());
    QTest::mouseClick(unloadButton, Qt::LeftButton);
    auto *unloadAnyway = child<QPushButton>(client->pluginsPage(), "Plugins_UnloadAnyway");
    QVERIFY(unloadAnyway);
    QTest::mouseClick(unloadAnyway, Qt::LeftButton);
    QCOMPARE(plugins->topLevelItem(0)->text(1), QStringLiteral("Not loaded"));
    QVERIFY(!unloadButton->isEnabled());
    QTest::mouseClick(loadButton, Qt::LeftButton);
    QVERIFY(!loadButton->isEnabled());
    KIRV_TRY_COMPARE(plugins->topLevelItem(0)->text(1), QStringLiteral("Loaded"));
    KIRV_TRY(account(QStringLiteral("anna"))->isLoggedIn());
    QCOMPARE(rowIds(), QStringList { QStringLiteral("anna") });
}

void tst_Client::accountAddedByOthersGetsARow()
{
    addAccount(QStringLiteral("anna"));
    QCOMPARE(rowIds(), QStringList { QStringLiteral("anna") });
    QCOMPARE(selector()->count(), 1);
}

void tst_Client::accountRemovedByOthersLosesRowAndSelectorEntry()
{
    addAccount(QStringLiteral("anna"));
    addAccount(QStringLiteral("bert"));
    KirvAccountManager::getInstance()->removeAccount(QStringLiteral("anna"), example);
    QCoreApplication::processEvents();
    QCOMPARE(rowIds(), QStringList { QStringLiteral("bert") });
    QCOMPARE(selector()->count(), 1);
    QCOMPARE(selector()->itemText(0), QStringLiteral("bert"));
}

void tst_Client::questionAboutARemovedAccountDoesNotHitItsNeighbour()
{
    for (const char *id : { "anna", "bert", "carl" })
        addAccount(QLatin1String(id));
    list()->setCurrentItem(row(QStringLiteral("bert")));
    child<QToolButton>(client->accountsPage(), "Accounts_RemoveButton")->click();
    QPointer<QMessageBox> question = client->accountsPage()->findChild<QMessageBox *>();
    QVERIFY(question);
    KirvAccountManager::getInstance()->removeAccount(QStringLiteral("bert"), example);
    QCoreApplication::processEvents();
    if (question)
        question->button(QMessageBox::Yes)->click();
    processDeletions();
    QCOMPARE(rowIds(), (QStringList { QStringLiteral("anna"), QStringLiteral("carl") }));
    QVERIFY(account(QStringLiteral("anna")) && account(QStringLiteral("carl")));
}

void tst_Client::editAndCloseLeavesNothingBehind()
{
    addAccount(QStringLiteral("anna"));
    const auto round = [this](int number) {
        QDialog *window = openEditWindow(QStringLiteral("anna"));
        QVERIFY(window);
        auto *box = child<QDialogButtonBox>(window, "EditAccount_FrameButtons");
        box->button(number % 2 ? QDialogButtonBox::Save : QDialogButtonBox::Cancel)->click();
        processDeletions();
        QVERIFY(!client->accountsPage()->getAccEdit());
    };
    round(0);
    const int widgets = int(QApplication::allWidgets().size());
    const int objects = int(client->window()->findChildren<QObject *>().size());
    for (int i = 0; i < (kirvIsThorough() ? 1000 : 100); ++i)
        round(i);
    QCOMPARE(int(QApplication::allWidgets().size()), widgets);
    QCOMPARE(int(client->window()->findChildren<QObject *>().size()), objects);
}

void tst_Client::closingTheWindowEndsTheController()
{
    addAccount(QStringLiteral("anna"));
    QPointer<QDialog> window = openEditWindow(QStringLiteral("anna"));
    QPointer<KirvEditAccountDialog> controller = client->accountsPage()->getAccEdit();
    QVERIFY(window && controller);
    window->close();
    processDeletions();
    QVERIFY(!window && !controller);
}

void tst_Client::secondEditWindowReplacesTheFirst()
{
    KirvAccount *anna = addAccount(QStringLiteral("anna"));
    KirvAccount *bert = addAccount(QStringLiteral("bert"));
    client->accountsPage()->editAccount(anna);
    QPointer<QDialog> first = editWindow();
    QVERIFY(first);
    client->accountsPage()->editAccount(bert);
    processDeletions();
    QVERIFY(!first);
    QVERIFY(editWindow());
    QCOMPARE(child<QLabel>(editWindow(), "EditAccount_Identifier")->text(), QStringLiteral("bert (Example)"));
    QVERIFY(client->accountsPage()->getAccEdit());
}

void tst_Client::editWindowGoesWithItsAccount()
{
    addAccount(QStringLiteral("anna"));
    addAccount(QStringLiteral("bert"));
    QPointer<QDialog> window = openEditWindow(QStringLiteral("anna"));
    KirvAccountManager::getInstance()->removeAccount(QStringLiteral("bert"), example);
    processDeletions();
    QVERIFY(window && window->isVisible());
    KirvAccountManager::getInstance()->removeAccount(QStringLiteral("anna"), example);
    QVERIFY(!window->isVisible());
    processDeletions();
    QVERIFY(!window);
    QVERIFY(!client->accountsPage()->getAccEdit());
}

void tst_Client::editWindowGoesWithItsProtocol()
{
    addOnlineAccount(QStringLiteral("anna"));
    QPointer<QDialog> window = openEditWindow(QStringLiteral("anna"));
    child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(1); // an answer of the directory is on its way
    unload();
    processDeletions();
    QVERIFY(!window);
    QVERIFY(!client->accountsPage()->getAccEdit());
    load();
    QVERIFY(openEditWindow(QStringLiteral("anna")));
}

void tst_Client::editWindowGoesWithThePage()
{
    addOnlineAccount(QStringLiteral("anna"));
    QPointer<QDialog> window = openEditWindow(QStringLiteral("anna"));
    QPointer<KirvEditAccountDialog> controller = client->accountsPage()->getAccEdit();
    client.reset();
    QVERIFY(!window && !controller);
}

void tst_Client::oneSaveIsOneTransaction()
{
    KirvAccount *anna = addOnlineAccount(QStringLiteral("anna"));
    QDialog *window = openEditWindow(QStringLiteral("anna"));
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Anna"));
    child<QLineEdit>(window, "EditAccount_Password")->setText(QStringLiteral("another"));
    child<QCheckBox>(window, "EditAccount_RememberPresence")->setChecked(true);
    const int commits = client->profile().commitCount();
    child<QDialogButtonBox>(window, "EditAccount_FrameButtons")->button(QDialogButtonBox::Save)->click();
    QCOMPARE(client->profile().commitCount(), commits + 1);
    QVERIFY(!window->isVisible());
    QCOMPARE(anna->getAlias(), QStringLiteral("Anna"));
    QCOMPARE(anna->getPassword(), QStringLiteral("another"));
    QVERIFY(anna->record().restorePresence);
    QCOMPARE(row(QStringLiteral("anna"))->text(AliasColumn), QStringLiteral("Anna"));
    KIRV_TRY(anna->isLoggedIn());
}

void tst_Client::refusedSaveKeepsTheWindowOpen()
{
    KirvAccount *anna = addAccount(QStringLiteral("anna"));
    QDialog *window = openEditWindow(QStringLiteral("anna"));
    child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Anna"));
    client->profile().close();
    child<QDialogButtonBox>(window, "EditAccount_FrameButtons")->button(QDialogButtonBox::Save)->click();
    QVERIFY(window->isVisible());
    QCOMPARE(child<QLineEdit>(window, "EditAccount_Alias")->text(), QStringLiteral("Anna"));
    QCOMPARE(anna->getAlias(), QStringLiteral("anna"));
    QCOMPARE(row(QStringLiteral("anna"))->text(AliasColumn), QStringLiteral("anna"));
    auto *box = child<QMessageBox>(window, "EditAccount_SaveFailed");
    QVERIFY(box && box->isVisible() && !box->text().isEmpty());
    QVERIFY(!client->window()->messageBar()->messages().isEmpty());
}

void tst_Client::directoryTabSaysWhyItIsLocked()
{
    addOnlineAccount(QStringLiteral("anna"));
    QDialog *window = openEditWindow(QStringLiteral("anna"));
    auto *status = child<QLabel>(window, "EditAccount_PubDirStatus");
    auto *fields = child<QWidget>(window, "EditAccount_PubDirResults")->findChild<KirvFieldWidget *>();
    QVERIFY(status && fields);
    QCOMPARE(status->text(), QString());
    child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(1);
    QVERIFY(!fields->isEnabled());
    QCOMPARE(status->text(), QStringLiteral("Requesting the directory entry…"));
    KIRV_TRY(fields->isEnabled());
    QCOMPARE(status->text(), QString());
}

void tst_Client::directoryIsAskedWhenTheAccountComesOnLine()
{
    KirvAccount *anna = addOnlineAccount(QStringLiteral("anna"));
    KirvAccountManager::getInstance()->disableAccount(QStringLiteral("anna"), example);
    KIRV_TRY(!anna->isLoggedIn());
    QDialog *window = openEditWindow(QStringLiteral("anna"));
    auto *status = child<QLabel>(window, "EditAccount_PubDirStatus");
    auto *fields = child<QWidget>(window, "EditAccount_PubDirResults")->findChild<KirvFieldWidget *>();
    child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(1);
    QVERIFY(!fields->isEnabled());
    QVERIFY(status->text().contains(QLatin1String("must be connected")));
    KirvAccountManager::getInstance()->enableAccount(QStringLiteral("anna"), example);
    KIRV_TRY(fields->isEnabled());
    QCOMPARE(status->text(), QString());
}

void tst_Client::rowsShowStates()
{
    KirvAccount *anna = addAccount(QStringLiteral("anna"));
    KIRV_TRY_COMPARE(state(anna), QStringLiteral("Connecting…"));
    KIRV_TRY_COMPARE(state(anna), QStringLiteral("Connected"));
    anna->setPresence(anna->protocol()->presenceWithId(QStringLiteral("offline"), QString()));
    KIRV_TRY_COMPARE(state(anna), QStringLiteral("Logging out…"));
    KIRV_TRY_COMPARE(state(anna), QStringLiteral("Off line"));
    KirvAccountManager::getInstance()->disableAccount(QStringLiteral("anna"), example);
    QCOMPARE(state(anna), QStringLiteral("Disabled"));
}

void tst_Client::reconnectLogsInAgain()
{
    KirvAccount *anna = addOnlineAccount(QStringLiteral("anna"));
    anna->setPresence(anna->getProtocol()->createPresenceWithId(QStringLiteral("offline"), QString()));
    anna->getProtocol()->accountPresenceChanged(anna);
    KIRV_TRY_COMPARE(anna->connection()->state(), KirvConnection::Offline);
    list()->setCurrentItem(row(QStringLiteral("anna")));
    auto *reconnect = child<QPushButton>(client->accountsPage(), "Accounts_ReconnectButton");
    KIRV_TRY(reconnect->isEnabled());
    reconnect->click();
    KIRV_TRY(anna->isLoggedIn());
    QCOMPARE(anna->presence().getId(), QStringLiteral("available"));
}

void tst_Client::passwordIsAskedForAndTaken()
{
    addAccount(QStringLiteral("anna"), QStringLiteral("secret"), false);
    restart();
    KIRV_TRY(passwordQuestion());
    QPointer<KirvPasswordDialog> question = passwordQuestion();
    QVERIFY(child<QLabel>(question, "PasswordQuestion_Text")->text().contains(QLatin1String("anna (Example)")));
    QPushButton *ok = child<QDialogButtonBox>(question, "PasswordQuestion_Buttons")->button(QDialogButtonBox::Ok);
    QVERIFY(!ok->isEnabled());
    QTest::keyClicks(child<QLineEdit>(question, "PasswordQuestion_Password"), QStringLiteral("secret"));
    child<QCheckBox>(question, "PasswordQuestion_Remember")->setChecked(true);
    ok->click();
    KIRV_TRY(account(QStringLiteral("anna"))->isLoggedIn());
    processDeletions();
    QVERIFY(!question);

    restart();
    KIRV_TRY(account(QStringLiteral("anna"))->isLoggedIn());
    QVERIFY(!passwordQuestion());
}

void tst_Client::passwordsAreAskedOneAfterTheOther()
{
    addAccount(QStringLiteral("anna"), QStringLiteral("secret"), false);
    addAccount(QStringLiteral("bert"), QStringLiteral("secret"), false);
    restart();
    KIRV_TRY(passwordQuestion());
    QCOMPARE(int(client->window()->findChildren<KirvPasswordDialog *>().size()), 1);
    const KirvAccountKey first = passwordQuestion()->key();
    passwordQuestion()->reject();
    processDeletions();
    QVERIFY(passwordQuestion());
    QVERIFY(passwordQuestion()->key() != first);
    passwordQuestion()->reject();
    processDeletions();
    QVERIFY(!passwordQuestion());
}

void tst_Client::cancelledPasswordQuestionLeavesTheAccountOffLine()
{
    addAccount(QStringLiteral("anna"), QStringLiteral("secret"), false);
    restart();
    KIRV_TRY(passwordQuestion());
    passwordQuestion()->reject();
    KirvAccount *anna = account(QStringLiteral("anna"));
    QCOMPARE(state(anna), QStringLiteral("Password needed"));
    list()->setCurrentItem(row(QStringLiteral("anna")));
    auto *enter = child<QPushButton>(client->accountsPage(), "Accounts_PasswordButton");
    KIRV_TRY(enter->isEnabled());
    enter->click();
    QVERIFY(passwordQuestion());
    QTest::keyClicks(child<QLineEdit>(passwordQuestion(), "PasswordQuestion_Password"), QStringLiteral("secret"));
    QTest::keyClick(passwordQuestion(), Qt::Key_Return);
    KIRV_TRY(anna->isLoggedIn());
}

void tst_Client::passwordQuestionGoesWithItsAccount()
{
    addAccount(QStringLiteral("anna"), QStringLiteral("secret"), false);
    restart();
    KIRV_TRY(passwordQuestion());
    KirvAccountManager::getInstance()->removeAccount(QStringLiteral("anna"), example);
    processDeletions();
    QVERIFY(client->window()->findChildren<KirvPasswordDialog *>().isEmpty());
}

void tst_Client::passwordQuestionGoesWithItsProtocol()
{
    addAccount(QStringLiteral("anna"), QStringLiteral("secret"), false);
    addAccount(QStringLiteral("bert"), QStringLiteral("secret"), false);
    restart();
    KIRV_TRY(passwordQuestion());
    unload();
    processDeletions();
    QVERIFY(client->window()->findChildren<KirvPasswordDialog *>().isEmpty());
}

void tst_Client::registrationWithoutOfferIsTold()
{
    child<QToolButton>(client->accountsPage(), "Accounts_RegisterButton")->click();
    QCOMPARE(client->window()->messageBar()->messages(),
             QStringList { QStringLiteral("None of the loaded plug-ins can register a new account.") });
}

void tst_Client::registrationWithOneOfferGoesThere()
{
    QVERIFY(client->plugins().addProtocol(createOfferingProtocol(QStringLiteral("One"))));
    child<QToolButton>(client->accountsPage(), "Accounts_RegisterButton")->click();
    QCOMPARE(int(assistants().size()), 1);
    QVERIFY(client->window()->findChildren<KirvRegistrationChooser *>().isEmpty());
}

void tst_Client::registrationWithSeveralOffersIsChosen()
{
    QVERIFY(client->plugins().addProtocol(createOfferingProtocol(QStringLiteral("One"))));
    auto *two = createOfferingProtocol(QStringLiteral("Two"));
    QStringList registrations;
    two->makeRegistration = [&registrations] {
        registrations << QStringLiteral("Two");
        return createRequest();
    };
    QVERIFY(client->plugins().addProtocol(two));
    child<QToolButton>(client->accountsPage(), "Accounts_RegisterButton")->click();
    auto *chooser = client->window()->findChild<KirvRegistrationChooser *>();
    QVERIFY(chooser && chooser->isVisible());
    QVERIFY(assistants().isEmpty());
    auto *protocols = child<QListWidget>(chooser, "RegistrationChooser_List");
    QCOMPARE(protocols->count(), 2); // the example protocol offers none
    protocols->setCurrentRow(1);
    child<QDialogButtonBox>(chooser, "RegistrationChooser_Buttons")->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(registrations, QStringList { QStringLiteral("Two") });
    QCOMPARE(int(assistants().size()), 1);
    processDeletions();
    QVERIFY(!client->window()->findChild<KirvRegistrationChooser *>());
}

void tst_Client::registrationChoiceGoesWithItsProtocols()
{
    QVERIFY(client->plugins().addProtocol(createOfferingProtocol(QStringLiteral("One"))));
    QVERIFY(client->plugins().addProtocol(createOfferingProtocol(QStringLiteral("Two"))));
    child<QToolButton>(client->accountsPage(), "Accounts_RegisterButton")->click();
    auto *chooser = client->window()->findChild<KirvRegistrationChooser *>();
    QVERIFY(chooser);
    chooser->removeProtocol(QStringLiteral("One"));
    QCOMPARE(chooser->protocol(), QStringLiteral("Two"));
    chooser->removeProtocol(QStringLiteral("Two"));
    QVERIFY(!chooser->isVisible());
}

void tst_Client::actionsOfTheProtocolAreOffered()
{
    const QString offering = QStringLiteral("Offering");
    auto *protocol = createOfferingProtocol(offering);
    QVERIFY(client->plugins().addProtocol(protocol));
    KirvAccountManager::getInstance()->createAccount(QStringLiteral("anna"), QStringLiteral("anna"),
                                                     QStringLiteral("secret"), true, protocol,
                                                     protocol->presences().first(), {});
    const KirvAccount *anna = client->accounts().find({ QStringLiteral("anna"), offering });
    KIRV_TRY(anna->isOnline());
    QDialog *window = openEditWindow(QStringLiteral("anna"));
    QVERIFY(window);
    auto *more = child<QPushButton>(window, "EditAccount_ServerAccountButton");
    QVERIFY(more && more->menu());
    emit more->menu()->aboutToShow();
    QCOMPARE(int(more->menu()->actions().size()), 1);
    QVERIFY(more->menu()->actions().first()->isEnabled());
    more->menu()->actions().first()->trigger();
    QCOMPARE(int(assistants().size()), 1);

    KirvAccountManager::getInstance()->disableAccount(QStringLiteral("anna"), offering);
    emit more->menu()->aboutToShow();
    QVERIFY(!more->menu()->actions().first()->isEnabled());
}

void tst_Client::messagesAreShownOnceAndClosed()
{
    KirvMessageBar *bar = client->window()->messageBar();
    QVERIFY(!bar->isVisible());
    bar->showMessage(QStringLiteral("<b>one</b>"));
    bar->showMessage(QStringLiteral("<b>one</b>"));
    bar->showMessage(QStringLiteral("two"));
    QCOMPARE(bar->messages(), (QStringList { QStringLiteral("<b>one</b>"), QStringLiteral("two") }));
    QVERIFY(bar->isVisible());
    QCOMPARE(child<QLabel>(bar, "MessageBar_Text")->textFormat(), Qt::PlainText);
    child<QToolButton>(bar, "MessageBar_Close")->click();
    processDeletions();
    QCOMPARE(bar->messages(), QStringList { QStringLiteral("two") });
    bar->showMessage(QStringLiteral("three"));
    bar->showMessage(QStringLiteral("four"));
    bar->showMessage(QStringLiteral("five"));
    QCOMPARE(bar->messages(),
             (QStringList { QStringLiteral("three"), QStringLiteral("four"), QStringLiteral("five") }));
    processDeletions();
    for (int i = 0; i < 3; ++i) {
        child<QToolButton>(bar, "MessageBar_Close")->click();
        processDeletions();
    }
    QVERIFY(!bar->isVisible());
}

void tst_Client::namesTurnNoTextAround()
{
    const QString turned = QStringLiteral("<b>anna</b>\u202Etxt.exe");
    const QString shown = QStringLiteral("<b>anna</b>[U+202E]txt.exe");
    addAccount(QStringLiteral("bert"));
    KirvAccount *anna = addAccount(turned);
    QVERIFY(anna);
    client->accountsPage()->updateAccounts();
    for (const QString &name : { QStringLiteral("bert"), turned })
        selector()->setCurrentIndex(selector()->findText(name));
    QVERIFY2(client->window()->windowTitle().contains(shown), qPrintable(client->window()->windowTitle()));

    // A box of the library: it does not know that a client looks after it.
    list()->setCurrentItem(row(turned));
    child<QToolButton>(client->accountsPage(), "Accounts_RemoveButton")->click();
    auto *box = client->accountsPage()->findChild<QMessageBox *>();
    QVERIFY(box && box->isVisible());
    QVERIFY2(box->text().contains(shown) && !box->text().contains(QChar(0x202E)), qPrintable(box->text()));
    QCOMPARE(box->textFormat(), Qt::PlainText);
    box->button(QMessageBox::No)->click();
    QDialog *window = openEditWindow(turned);
    QVERIFY(window);
    QVERIFY(child<QLabel>(window, "EditAccount_Identifier")->text().contains(shown));
    QCOMPARE(child<QLineEdit>(window, "EditAccount_Alias")->text(), turned);
}

QTEST_MAIN(tst_Client)
#include "tst_client.moc"

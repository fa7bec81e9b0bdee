// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_actions_menu.h"
#include "client/kirv_server_commands.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_store.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/fakes/kirv_fake_server_request.h"
#include "tests/support/gui/kirv_assistant_window.h"
#include "tests/support/gui/kirv_remember_box.h"
#include "tests/support/kirv_patience.h"

#include <QCheckBox>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using Assistant = KirvAssistantWindow;
using Result = KirvServerRequest::Result;

namespace {

const KirvLogin newAccount { "juliet@example.org", "secret", {} };
const KirvAccountKey newKey { "juliet@example.org", "Alpha" };
const KirvAccountKey romeoKey { "romeo@example.org", "Alpha" };

} // namespace

/// The commands that lead to a server, and what their results do to the accounts.
class tst_ServerCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theSignalOpensTheOnlyRegistration();
    void theSignalLetsChooseAmongSeveral();
    void theSignalNamesAProtocol();
    void withoutAProtocolItIsUnavailable_data();
    void withoutAProtocolItIsUnavailable();
    void otherSignalsAreIgnored();
    void aCommandOpensOneWindow();

    void theRegisteredAccountIsAdded_data();
    void theRegisteredAccountIsAdded();
    void theRegistrationSaysWhereThePasswordGoes_data();
    void theRegistrationSaysWhereThePasswordGoes();
    void theBoxFollowsTheKeyringUntilItIsClicked();
    void aDestroyedWindowKeepsWhatItsBoxSaid_data();
    void aDestroyedWindowKeepsWhatItsBoxSaid();
    void aKnownAccountIsNotAddedTwice();
    void anAccountThatWasNotStoredCanBeAddedAgain();
    void anAccountThatOnlyTheServerKnowsIsReported();
    void closingTheWindowCancelsTheRegistration();

    void theNewPasswordIsStored();
    void aNewPasswordThatGoesIntoAFileIsSaid_data();
    void aNewPasswordThatGoesIntoAFileIsSaid();
    void aPasswordThatWasNotStoredStaysAndIsOfferedAgain();
    void closingTheWindowKeepsTheNewPassword();
    void aPasswordThatWasNotStoredOpensTheWindowAgain_data();
    void aPasswordThatWasNotStoredOpensTheWindowAgain();
    void aFailureAfterClosingIsReported();
    void theWindowThatWasClosedComesBackWithItsCommand();

    void theDeletedAccountIsRemoved();
    void aDeletedAccountThatWasNotRemovedIsReported();

    void windowsGoWithTheirProtocol_data();
    void windowsGoWithTheirProtocol();
    void windowsGoWithTheirAccount();
    void windowsGoWhileAModalChildIsOpen();
    void theWindowMayBeDestroyedWithItsParent();

    void theMenuHasTheActionsOfTheProtocol();
    void unknownActionsAreIgnored();

private:
    KirvFakeProtocol *addProtocol(const QString &name, bool offers = true);
    KirvFakeServerRequest *createRequest(const QString &protocol);
    KirvAccount *addAccount();
    /// The latest request of \a protocol; null when it has gone or there was none.
    KirvFakeServerRequest *request(const QString &protocol = "Alpha") const { return requests.value(protocol); }
    int logIns() const { return alpha->server->calls.filter(" log in ").size(); }
    static void press(QPushButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
    void registerAccount() { plugins->broadcast("register_account", {}); }
    void changePassword();

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvStore> store;
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvPluginLoader> plugins;
    std::unique_ptr<QWidget> window;
    KirvServerCommands *commands = nullptr;
    KirvFakeProtocol *alpha = nullptr;
    QHash<QString, QPointer<KirvFakeServerRequest>> requests; ///< the latest one of each protocol
    int created = 0; ///< how many requests there were
    std::unique_ptr<QSignalSpy> unavailable;
    std::unique_ptr<QSignalSpy> problems;
    std::unique_ptr<QSignalSpy> successes;
};

void tst_ServerCommands::init()
{
    folder = std::make_unique<QTemporaryDir>();
    store = std::make_unique<KirvStore>();
    QVERIFY2(store->open(folder->path()), qPrintable(store->lastError()));
    accounts = std::make_unique<KirvAccountCollection>(*store);
    plugins = std::make_unique<KirvPluginLoader>();
    connect(plugins.get(), &KirvPluginLoader::protocolLoaded, accounts.get(),
            [this](KirvProtocolBase *protocol) { accounts->protocolLoaded(protocol); });
    connect(plugins.get(), &KirvPluginLoader::protocolAboutToBeUnloaded, accounts.get(),
            [this](KirvProtocolBase *protocol) { accounts->protocolAboutToBeUnloaded(protocol->getName()); });
    window = std::make_unique<QWidget>();
    window->show();
    commands = new KirvServerCommands(*plugins, *accounts, window.get());
    unavailable = std::make_unique<QSignalSpy>(commands, &KirvServerCommands::unavailable);
    problems = std::make_unique<QSignalSpy>(commands, &KirvServerCommands::problemOccurred);
    successes = std::make_unique<QSignalSpy>(commands, &KirvServerCommands::succeeded);
    alpha = addProtocol("Alpha");
}

void tst_ServerCommands::cleanup()
{
    unavailable.reset();
    problems.reset();
    successes.reset();
    window.reset();
    plugins.reset();
    accounts.reset();
    store.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!Assistant::window());
    requests.clear();
    created = 0;
}

KirvFakeProtocol *tst_ServerCommands::addProtocol(const QString &name, bool offers)
{
    auto *protocol = new KirvFakeProtocol(name);
    if (offers)
        protocol->makeRegistration = [this, name] { return createRequest(name); };
    protocol->actions = { { "act", "Act & More…", "Says <what>." }, { "none", "Nothing", QString() } };
    protocol->makeRequest = [this, name](const QString &actionId, KirvConnection *) {
        return actionId == "act" ? createRequest(name) : nullptr;
    };
    return plugins->addProtocol(protocol) ? protocol : nullptr;
}

KirvFakeServerRequest *tst_ServerCommands::createRequest(const QString &protocol)
{
    KirvServerRequest::Step step;
    step.text = "Fill it in.";
    step.command = "Continue";
    step.hasPassword = true;
    auto *request = new KirvFakeServerRequest({ step });
    request->isHeld = true;
    requests[protocol] = request;
    ++created;
    return request;
}

/// An account that is logged in.
KirvAccount *tst_ServerCommands::addAccount()
{
    KirvAccountRecord record;
    record.key = romeoKey;
    record.password = "old";
    record.rememberPassword = true;
    record.defaultPresence = "available";
    KirvAccount *account = accounts->create(record, alpha);
    return QTest::qWaitFor([account] { return account->isOnline(); }, kirvPatience) ? account : nullptr;
}

/// Opens the window of the change and submits it, so that a reply of the server is awaited.
void tst_ServerCommands::changePassword()
{
    commands->run(romeoKey, "act", window.get());
    QVERIFY(request() && Assistant::window());
    press(Assistant::next());
    request()->canBeCancelled = false;
}

void tst_ServerCommands::theSignalOpensTheOnlyRegistration()
{
    addProtocol("Beta", false);
    registerAccount();
    QVERIFY(Assistant::window());
    QCOMPARE(request()->calls, QStringList { "start" });
    QVERIFY(!Assistant::window()->isModal());
}

void tst_ServerCommands::theSignalLetsChooseAmongSeveral()
{
    addProtocol("Beta");
    registerAccount();
    QVERIFY(!Assistant::window());
    auto *chooser = window->findChild<QDialog *>("RegistrationChooser");
    QVERIFY(chooser && chooser->isVisible());
    registerAccount();
    QCOMPARE(window->findChildren<QDialog *>("RegistrationChooser").size(), 1);
    chooser->findChild<QListWidget *>()->setCurrentRow(1);
    chooser->accept();
    QVERIFY(Assistant::window() && request("Beta") && !request());
}

void tst_ServerCommands::theSignalNamesAProtocol()
{
    addProtocol("Beta");
    plugins->broadcast("register_account", { KirvArg(QString("Beta")) });
    QVERIFY(Assistant::window() && request("Beta") && !request());
    QVERIFY(!window->findChild<QDialog *>("RegistrationChooser"));
}

void tst_ServerCommands::withoutAProtocolItIsUnavailable_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("part");
    QTest::newRow("none offers it") << ""
                                    << "None of the loaded plug-ins";
    QTest::newRow("the named one does not offer it") << "Beta"
                                                     << "Beta";
    QTest::newRow("the named one is not loaded") << "Gamma"
                                                 << "Gamma";
}

void tst_ServerCommands::withoutAProtocolItIsUnavailable()
{
    QFETCH(QString, argument);
    QFETCH(QString, part);
    window.reset();
    plugins = std::make_unique<KirvPluginLoader>();
    window = std::make_unique<QWidget>();
    commands = new KirvServerCommands(*plugins, *accounts, window.get());
    unavailable = std::make_unique<QSignalSpy>(commands, &KirvServerCommands::unavailable);
    addProtocol("Beta", false);
    plugins->broadcast("register_account",
                       argument.isEmpty() ? QList<KirvArg>() : QList<KirvArg> { KirvArg(argument) });
    QCOMPARE(unavailable->size(), 1);
    QVERIFY(unavailable->first().first().toString().contains(part));
    QVERIFY(!Assistant::window());
}

void tst_ServerCommands::otherSignalsAreIgnored()
{
    plugins->broadcast("something_else", {});
    QVERIFY(!Assistant::window() && unavailable->isEmpty());
}

void tst_ServerCommands::aCommandOpensOneWindow()
{
    QVERIFY(addAccount());
    registerAccount();
    const QPointer<KirvServerAssistant> first = Assistant::window();
    registerAccount();
    QCOMPARE(created, 1);
    first->close();
    registerAccount();
    QCOMPARE(created, 2);
    QVERIFY(Assistant::window() != first);

    commands->run(romeoKey, "act", window.get());
    commands->run(romeoKey, "act", window.get());
    QCOMPARE(created, 3);
}

void tst_ServerCommands::theRegisteredAccountIsAdded_data()
{
    QTest::addColumn<bool>("isRemembered");
    QTest::newRow("password stored") << true;
    QTest::newRow("password not stored") << false;
}

void tst_ServerCommands::theRegisteredAccountIsAdded()
{
    QFETCH(bool, isRemembered);
    registerAccount();
    Assistant::part<QCheckBox>("Remember")->setChecked(isRemembered);
    KirvLogin login = newAccount;
    login.settings = { KirvField::textEdit("", "server", "127.0.0.1", "") };
    request()->succeedWith(Result::AccountRegistered, login);
    QVERIFY(!Assistant::window() && !request());
    KirvAccount *account = accounts->find(newKey);
    QVERIFY(account);
    QCOMPARE(account->record().password, QString("secret"));
    QCOMPARE(account->record().rememberPassword, isRemembered);
    QCOMPARE(account->record().settings.value("server"), QString("127.0.0.1"));
    QCOMPARE(account->record().defaultPresence, QString("available"));
    KIRV_TRY(account->isOnline());
}

void tst_ServerCommands::theRegistrationSaysWhereThePasswordGoes_data()
{
    kirvAddPlacesOfPasswords();
}

void tst_ServerCommands::theRegistrationSaysWhereThePasswordGoes()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(QString, text);
    QFETCH(bool, isOn);
    KirvFakeSecretStore keyring(state);
    accounts->secrets().setKeyring(&keyring);
    registerAccount();
    auto *box = Assistant::part<QCheckBox>("Remember");
    auto *line = Assistant::part<QLabel>("RememberPlace");
    QVERIFY(box && line && box->isVisible() && line->isVisible());
    QCOMPARE(line->text(), text);
    QCOMPARE(box->accessibleDescription(), text);
    QCOMPARE(box->isChecked(), isOn);
    QVERIFY(box->toolTip().isEmpty());

    Q_EMIT request()->stepReady(KirvServerRequest::Step());
    QVERIFY(!box->isVisible() && !line->isVisible());
    request()->succeedWith(Result::AccountRegistered, newAccount);
    QVERIFY(accounts->find(newKey));
    QCOMPARE(accounts->find(newKey)->record().rememberPassword, isOn);
}

void tst_ServerCommands::theBoxFollowsTheKeyringUntilItIsClicked()
{
    KirvFakeSecretStore keyring(KirvSecretStore::Unknown);
    accounts->secrets().setKeyring(&keyring);
    registerAccount();
    auto *box = Assistant::part<QCheckBox>("Remember");
    kirvVerifyBoxFollowsKeyring(box, keyring);
}

void tst_ServerCommands::aDestroyedWindowKeepsWhatItsBoxSaid_data()
{
    theRegisteredAccountIsAdded_data();
}

void tst_ServerCommands::aDestroyedWindowKeepsWhatItsBoxSaid()
{
    QFETCH(bool, isRemembered);
    registerAccount();
    Assistant::part<QCheckBox>("Remember")->setChecked(isRemembered);
    press(Assistant::next());
    request()->canBeCancelled = false;
    delete Assistant::window();
    request()->succeedWith(Result::AccountRegistered, newAccount);
    QVERIFY(accounts->find(newKey));
    QCOMPARE(accounts->find(newKey)->record().rememberPassword, isRemembered);
}

void tst_ServerCommands::aKnownAccountIsNotAddedTwice()
{
    addAccount();
    registerAccount();
    request()->succeedWith(Result::AccountRegistered, { romeoKey.id, "new", {} });
    QVERIFY(Assistant::message().contains(romeoKey.id) && Assistant::message().contains("registered on the server"));
    QVERIFY(Assistant::message().contains("exists already"));
    QVERIFY(!Assistant::next()->isVisible());
    QCOMPARE(accounts->find(romeoKey)->record().password, QString("old"));
    press(Assistant::close());
    QVERIFY(!Assistant::window() && !request());
}

void tst_ServerCommands::anAccountThatWasNotStoredCanBeAddedAgain()
{
    registerAccount();
    store->close();
    request()->succeedWith(Result::AccountRegistered, newAccount);
    QVERIFY2(Assistant::message().contains(newKey.id) && Assistant::message().contains(accounts->lastError()),
             qPrintable(Assistant::message()));
    QVERIFY(!accounts->lastError().isEmpty());
    QVERIFY(!accounts->find(newKey));
    press(Assistant::next());
    QVERIFY(Assistant::window() && !accounts->find(newKey));
    QVERIFY(store->open(folder->path()));
    press(Assistant::next());
    QVERIFY(!Assistant::window() && accounts->find(newKey));
}

void tst_ServerCommands::anAccountThatOnlyTheServerKnowsIsReported()
{
    registerAccount();
    request()->succeedWith(Result::AccountRegistered, KirvLogin());
    QVERIFY(Assistant::message().contains("Add the account"));
    QVERIFY(accounts->accounts().isEmpty() && !Assistant::next()->isVisible());
}

void tst_ServerCommands::closingTheWindowCancelsTheRegistration()
{
    registerAccount();
    press(Assistant::next());
    QTest::keyClick(Assistant::window(), Qt::Key_Escape);
    QVERIFY(!Assistant::window() && !request());
}

void tst_ServerCommands::theNewPasswordIsStored()
{
    KirvAccount *account = addAccount();
    changePassword();
    QVERIFY(Assistant::window()->isModal());
    const int commits = store->commitCount();
    request()->succeedWith(Result::PasswordChanged, KirvLogin(), "new");
    QCOMPARE(Assistant::message(), QString("The password of the account romeo@example.org is changed on its server."));
    QVERIFY(!Assistant::part<QLabel>("MessageIcon")->isVisible()); // it is no warning
    QVERIFY(!Assistant::next()->isVisible());
    QCOMPARE(account->record().password, QString("new"));
    QCOMPARE(store->commitCount(), commits + 1);
    QCoreApplication::processEvents();
    QCOMPARE(logIns(), 1); // the session goes on
    QVERIFY(account->isOnline());
    press(Assistant::close());
    QVERIFY(!Assistant::window() && !request() && successes->isEmpty());
}

void tst_ServerCommands::aNewPasswordThatGoesIntoAFileIsSaid_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isRemembered");
    QTest::addColumn<bool>("isSaid");
    QTest::newRow("keyring") << int(KirvSecretStore::Ready) << true << false;
    QTest::newRow("keyring has gone") << int(KirvSecretStore::Unavailable) << true << true;
    QTest::newRow("keyring has gone, not remembered") << int(KirvSecretStore::Unavailable) << false << false;
}

void tst_ServerCommands::aNewPasswordThatGoesIntoAFileIsSaid()
{
    QFETCH(int, state);
    QFETCH(bool, isRemembered);
    QFETCH(bool, isSaid);
    KirvFakeSecretStore keyring;
    accounts->secrets().setKeyring(&keyring);
    KirvAccount *account = addAccount();
    account->change([&](KirvAccountRecord &record) { record.rememberPassword = isRemembered; });
    changePassword();
    keyring.setState(KirvSecretStore::State(state));
    request()->succeedWith(Result::PasswordChanged, KirvLogin(), "new");
    QVERIFY(Assistant::message().contains("is changed on its server"));
    QCOMPARE(Assistant::message().contains("in a file only you can read"), isSaid);
    accounts->secrets().setKeyring(nullptr);
}

void tst_ServerCommands::aPasswordThatWasNotStoredStaysAndIsOfferedAgain()
{
    KirvAccount *account = addAccount();
    changePassword();
    store->close();
    request()->succeedWith(Result::PasswordChanged, KirvLogin(), "new");
    QVERIFY2(Assistant::message().contains("not stored") && Assistant::message().contains(accounts->lastError()),
             qPrintable(Assistant::message()));
    QCOMPARE(account->record().password, QString("new"));
    QVERIFY(account->hasUnstoredPassword());
    QCOMPARE(Assistant::next()->text().remove('&'), QString("Store Again"));
    press(Assistant::next());
    QVERIFY(Assistant::message().contains("not stored"));
    QVERIFY(store->open(folder->path()));
    press(Assistant::next());
    QVERIFY(Assistant::message().contains("is changed") && !Assistant::next()->isVisible());
    QVERIFY(!account->hasUnstoredPassword());
    QCOMPARE(store->readAccounts().first().password, QString("new"));
    QCOMPARE(logIns(), 1);
}

void tst_ServerCommands::closingTheWindowKeepsTheNewPassword()
{
    KirvAccount *account = addAccount();
    changePassword();
    Assistant::window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!Assistant::window() && request());
    request()->succeedWith(Result::PasswordChanged, KirvLogin(), "new");
    QCOMPARE(account->record().password, QString("new"));
    QVERIFY(!Assistant::window() && !request());
    QCOMPARE(successes->size(), 1);
    QVERIFY(successes->first().first().toString().contains("is changed on its server"));
}

void tst_ServerCommands::aPasswordThatWasNotStoredOpensTheWindowAgain_data()
{
    QTest::addColumn<bool>("isDestroyed");
    QTest::newRow("closed") << false;
    QTest::newRow("destroyed") << true;
}

void tst_ServerCommands::aPasswordThatWasNotStoredOpensTheWindowAgain()
{
    QFETCH(bool, isDestroyed);
    KirvAccount *account = addAccount();
    changePassword();
    if (isDestroyed)
        delete Assistant::window();
    else
        Assistant::window()->close();
    QVERIFY(!Assistant::window());
    store->close();
    request()->succeedWith(Result::PasswordChanged, KirvLogin(), "new");
    QVERIFY(Assistant::message().contains("not stored"));
    QVERIFY(store->open(folder->path()));
    press(Assistant::next());
    QVERIFY(Assistant::message().contains("is changed") && !account->hasUnstoredPassword());
}

void tst_ServerCommands::aFailureAfterClosingIsReported()
{
    KirvAccount *account = addAccount();
    changePassword();
    Assistant::window()->close();
    request()->serverRefuses(KirvFailure(KirvFailure::RequestFailed, "too short"));
    QCOMPARE(problems->size(), 1);
    const QString text = problems->first().first().toString();
    QVERIFY(text.contains(romeoKey.id) && text.contains("too short"));
    QVERIFY(!request());
    QCOMPARE(account->record().password, QString("old"));
}

void tst_ServerCommands::theWindowThatWasClosedComesBackWithItsCommand()
{
    addAccount();
    changePassword();
    Assistant::window()->close();
    commands->run(romeoKey, "act", window.get());
    QCOMPARE(created, 1);
    QVERIFY(Assistant::window() && Assistant::isWaiting());
    request()->serverRefuses(KirvFailure::TimedOut);
    QVERIFY(Assistant::window() && problems->isEmpty());
}

void tst_ServerCommands::theDeletedAccountIsRemoved()
{
    addAccount();
    commands->run(romeoKey, "act", window.get());
    request()->succeedWith(Result::AccountDeleted);
    QVERIFY(!accounts->find(romeoKey) && !Assistant::window() && !request());
    QVERIFY(store->readAccounts().isEmpty());
}

void tst_ServerCommands::aDeletedAccountThatWasNotRemovedIsReported()
{
    addAccount();
    commands->run(romeoKey, "act", window.get());
    store->close();
    request()->succeedWith(Result::AccountDeleted);
    QVERIFY(Assistant::message().contains("deleted on its server")
            && Assistant::message().contains(accounts->lastError()));
    QVERIFY(accounts->find(romeoKey));
    QVERIFY(store->open(folder->path()));
    press(Assistant::next());
    QVERIFY(!accounts->find(romeoKey) && !Assistant::window());
}

void tst_ServerCommands::windowsGoWithTheirProtocol_data()
{
    QTest::addColumn<bool>("isRegistration");
    QTest::newRow("registration") << true;
    QTest::newRow("action") << false;
}

void tst_ServerCommands::windowsGoWithTheirProtocol()
{
    QFETCH(bool, isRegistration);
    addAccount();
    if (isRegistration)
        registerAccount();
    else
        changePassword(); // also while a reply is awaited
    QVERIFY(Assistant::window());
    bool wasFirst = false;
    connect(alpha, &QObject::destroyed, this, [&] { wasFirst = !request() && !Assistant::window(); });
    plugins.reset();
    QVERIFY(wasFirst);
}

void tst_ServerCommands::windowsGoWithTheirAccount()
{
    KirvAccount *account = addAccount();
    registerAccount();
    const QPointer<KirvFakeServerRequest> registration = request();
    changePassword();
    const QPointer<KirvFakeServerRequest> change = request();
    QVERIFY(accounts->remove(account));
    QVERIFY(!change && registration);
    QVERIFY(Assistant::window() && !Assistant::window()->isModal());
}

void tst_ServerCommands::windowsGoWhileAModalChildIsOpen()
{
    registerAccount();
    const QPointer<KirvServerAssistant> open = Assistant::window();
    const QPointer<QMessageBox> child = new QMessageBox(open);
    QMetaObject::invokeMethod(
        this, [this] { plugins.reset(); }, Qt::QueuedConnection);
    child->exec();
    KIRV_TRY(!open && !child);
}

void tst_ServerCommands::theWindowMayBeDestroyedWithItsParent()
{
    addAccount();
    auto parent = std::make_unique<QWidget>();
    commands->run(romeoKey, "act", parent.get());
    QVERIFY(Assistant::window());
    parent.reset();
    QVERIFY(!Assistant::window() && !request());
    commands->run(romeoKey, "act", window.get());
    QVERIFY(Assistant::window() && request());
}

void tst_ServerCommands::theMenuHasTheActionsOfTheProtocol()
{
    KirvAccount *account = addAccount();
    QVERIFY(KirvAccountActionsMenu::isUseful(romeoKey, *commands));
    QVERIFY(!KirvAccountActionsMenu::isUseful(newKey, *commands));
    KirvAccountActionsMenu menu(romeoKey, *commands, window.get(), nullptr);
    Q_EMIT menu.aboutToShow();
    QCOMPARE(menu.actions().size(), 2);
    QAction *action = menu.actions().first();
    QVERIFY(action->isEnabled() && action->toolTip().contains("&lt;what&gt;"));
    action->trigger();
    QVERIFY(Assistant::window());

    account->setPresence(alpha->presenceWithId("offline", QString()));
    KIRV_TRY(!account->isOnline());
    Q_EMIT menu.aboutToShow();
    QVERIFY(!menu.actions().first()->isEnabled());
    accounts->remove(account);
    Q_EMIT menu.aboutToShow();
    QVERIFY(menu.actions().isEmpty());
}

void tst_ServerCommands::unknownActionsAreIgnored()
{
    addAccount();
    commands->run(romeoKey, "none", window.get());
    commands->run(newKey, "act", window.get());
    QVERIFY(!Assistant::window());
}

QTEST_MAIN(tst_ServerCommands)
#include "tst_server_commands.moc"

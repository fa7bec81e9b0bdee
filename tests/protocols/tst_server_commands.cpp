// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_actions_menu.h"
#include "client/kirv_server_assistant.h"
#include "client/kirv_server_commands.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_store.h"
#include "tests/protocols/fake_server_request.h"

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <memory>

using Result = KirvServerRequest::Result;

namespace {

const KirvLogin newAccount { "juliet@example.org", "secret", {} };
const KirvAccountKey newKey { "juliet@example.org", "Alpha" };
const KirvAccountKey romeoKey { "romeo@example.org", "Alpha" };

} // namespace

/// The commands that lead to a server, and what their results do to the accounts.
class TestServerCommands : public QObject {
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
    void aKnownAccountIsNotAddedTwice();
    void anAccountThatWasNotStoredCanBeAddedAgain();
    void anAccountThatOnlyTheServerKnowsIsReported();
    void closingTheWindowCancelsTheRegistration();

    void theNewPasswordIsStored();
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
    RequestProtocol *addProtocol(const QString &name, bool offers = true);
    KirvAccount *addAccount();
    KirvServerAssistant *assistant() const;
    QString message() const;
    QPushButton *button(const QString &name) const
    {
        return assistant()->findChild<QPushButton *>("ServerAssistant_" + name + "Button");
    }
    void registerAccount() { plugins->broadcast("register_account", {}); }
    void changePassword();

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvStore> store;
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvPluginLoader> plugins;
    std::unique_ptr<QWidget> window;
    KirvServerCommands *commands = nullptr;
    RequestProtocol *alpha = nullptr;
    std::unique_ptr<QSignalSpy> unavailable;
    std::unique_ptr<QSignalSpy> problems;
};

void TestServerCommands::init()
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
    alpha = addProtocol("Alpha");
}

void TestServerCommands::cleanup()
{
    unavailable.reset();
    problems.reset();
    window.reset();
    plugins.reset();
    accounts.reset();
    store.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!assistant());
}

RequestProtocol *TestServerCommands::addProtocol(const QString &name, bool offers)
{
    auto *protocol = new RequestProtocol(name, offers);
    protocol->step.text = "Fill it in.";
    protocol->step.command = "Continue";
    protocol->step.hasPassword = true;
    return plugins->addProtocol(protocol) ? protocol : nullptr;
}

/// An account that is logged in.
KirvAccount *TestServerCommands::addAccount()
{
    KirvAccountRecord record;
    record.key = romeoKey;
    record.password = "old";
    record.rememberPassword = true;
    record.defaultPresence = "available";
    KirvAccount *account = accounts->create(record, alpha);
    return QTest::qWaitFor([account] { return account->isOnline(); }) ? account : nullptr;
}

KirvServerAssistant *TestServerCommands::assistant() const
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *found = qobject_cast<KirvServerAssistant *>(widget);
        if (found && found->isVisible())
            return found;
    }
    return nullptr;
}

QString TestServerCommands::message() const
{
    const auto *text = assistant() ? assistant()->findChild<QTextEdit *>("ServerAssistant_Message") : nullptr;
    return text && text->isVisible() ? text->toPlainText() : QString();
}

/// Opens the window of the change and submits it, so that a reply of the server is awaited.
void TestServerCommands::changePassword()
{
    commands->run(romeoKey, "act", window.get());
    QVERIFY(alpha->request && assistant());
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    Q_EMIT alpha->request->waiting("Changing the password…");
    alpha->request->canBeCancelled = false;
}

void TestServerCommands::theSignalOpensTheOnlyRegistration()
{
    addProtocol("Beta", false);
    registerAccount();
    QVERIFY(assistant());
    QCOMPARE(alpha->request->calls, QStringList { "start" });
    QVERIFY(!assistant()->isModal());
}

void TestServerCommands::theSignalLetsChooseAmongSeveral()
{
    RequestProtocol *beta = addProtocol("Beta");
    registerAccount();
    QVERIFY(!assistant());
    auto *chooser = window->findChild<QDialog *>("RegistrationChooser");
    QVERIFY(chooser && chooser->isVisible());
    registerAccount();
    QCOMPARE(window->findChildren<QDialog *>("RegistrationChooser").size(), 1);
    chooser->findChild<QListWidget *>()->setCurrentRow(1);
    chooser->accept();
    QVERIFY(assistant() && beta->request && !alpha->request);
}

void TestServerCommands::theSignalNamesAProtocol()
{
    RequestProtocol *beta = addProtocol("Beta");
    plugins->broadcast("register_account", { KirvArg(QString("Beta")) });
    QVERIFY(assistant() && beta->request && !alpha->request);
    QVERIFY(!window->findChild<QDialog *>("RegistrationChooser"));
}

void TestServerCommands::withoutAProtocolItIsUnavailable_data()
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

void TestServerCommands::withoutAProtocolItIsUnavailable()
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
    QVERIFY(!assistant());
}

void TestServerCommands::otherSignalsAreIgnored()
{
    plugins->broadcast("something_else", {});
    QVERIFY(!assistant() && unavailable->isEmpty());
}

void TestServerCommands::aCommandOpensOneWindow()
{
    QVERIFY(addAccount());
    registerAccount();
    const QPointer<KirvServerAssistant> first = assistant();
    registerAccount();
    QCOMPARE(alpha->created, 1);
    first->close();
    registerAccount();
    QCOMPARE(alpha->created, 2);
    QVERIFY(assistant() != first);

    commands->run(romeoKey, "act", window.get());
    commands->run(romeoKey, "act", window.get());
    QCOMPARE(alpha->created, 3);
}

void TestServerCommands::theRegisteredAccountIsAdded_data()
{
    QTest::addColumn<bool>("isRemembered");
    QTest::newRow("password stored") << true;
    QTest::newRow("password not stored") << false;
}

void TestServerCommands::theRegisteredAccountIsAdded()
{
    QFETCH(bool, isRemembered);
    registerAccount();
    assistant()->findChild<QCheckBox *>("ServerAssistant_Remember")->setChecked(isRemembered);
    KirvLogin login = newAccount;
    login.settings = { KirvField::textEdit("", "server", "127.0.0.1", "") };
    alpha->request->succeed(Result::AccountRegistered, login);
    QVERIFY(!assistant() && !alpha->request);
    KirvAccount *account = accounts->find(newKey);
    QVERIFY(account);
    QCOMPARE(account->record().password, QString("secret"));
    QCOMPARE(account->record().rememberPassword, isRemembered);
    QCOMPARE(account->record().settings.value("server"), QString("127.0.0.1"));
    QCOMPARE(account->record().defaultPresence, QString("available"));
    QTRY_VERIFY(account->isOnline());
}

void TestServerCommands::aKnownAccountIsNotAddedTwice()
{
    addAccount();
    registerAccount();
    alpha->request->succeed(Result::AccountRegistered, { romeoKey.id, "new", {} });
    QVERIFY(message().contains(romeoKey.id) && message().contains("registered on the server"));
    QVERIFY(message().contains("exists already"));
    QVERIFY(!button("Next")->isVisible());
    QCOMPARE(accounts->find(romeoKey)->record().password, QString("old"));
    QTest::mouseClick(button("Close"), Qt::LeftButton);
    QVERIFY(!assistant() && !alpha->request);
}

void TestServerCommands::anAccountThatWasNotStoredCanBeAddedAgain()
{
    registerAccount();
    store->close();
    alpha->request->succeed(Result::AccountRegistered, newAccount);
    QVERIFY2(message().contains(newKey.id) && message().contains(accounts->lastError()), qPrintable(message()));
    QVERIFY(!accounts->lastError().isEmpty());
    QVERIFY(!accounts->find(newKey));
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QVERIFY(assistant() && !accounts->find(newKey));
    QVERIFY(store->open(folder->path()));
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QVERIFY(!assistant() && accounts->find(newKey));
}

void TestServerCommands::anAccountThatOnlyTheServerKnowsIsReported()
{
    registerAccount();
    alpha->request->succeed(Result::AccountRegistered, KirvLogin());
    QVERIFY(message().contains("Add the account"));
    QVERIFY(accounts->accounts().isEmpty() && !button("Next")->isVisible());
}

void TestServerCommands::closingTheWindowCancelsTheRegistration()
{
    registerAccount();
    Q_EMIT alpha->request->waiting("Sending the form…");
    QTest::keyClick(assistant(), Qt::Key_Escape);
    QVERIFY(!assistant() && !alpha->request);
}

void TestServerCommands::theNewPasswordIsStored()
{
    KirvAccount *account = addAccount();
    changePassword();
    QVERIFY(assistant()->isModal());
    const int commits = store->commitCount();
    alpha->request->succeed(Result::PasswordChanged, KirvLogin(), "new");
    QVERIFY(!assistant() && !alpha->request);
    QCOMPARE(account->record().password, QString("new"));
    QCOMPARE(store->commitCount(), commits + 1);
    QCoreApplication::processEvents();
    QCOMPARE(alpha->logins, 1); // the session goes on
    QVERIFY(account->isOnline());
}

void TestServerCommands::aPasswordThatWasNotStoredStaysAndIsOfferedAgain()
{
    KirvAccount *account = addAccount();
    changePassword();
    store->close();
    alpha->request->succeed(Result::PasswordChanged, KirvLogin(), "new");
    QVERIFY2(message().contains("not stored") && message().contains(accounts->lastError()), qPrintable(message()));
    QCOMPARE(account->record().password, QString("new"));
    QVERIFY(account->hasUnstoredPassword());
    QCOMPARE(button("Next")->text().remove('&'), QString("Store Again"));
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QVERIFY(message().contains("not stored"));
    QVERIFY(store->open(folder->path()));
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QVERIFY(!assistant());
    QVERIFY(!account->hasUnstoredPassword());
    QCOMPARE(store->readAccounts().first().password, QString("new"));
    QCOMPARE(alpha->logins, 1);
}

void TestServerCommands::closingTheWindowKeepsTheNewPassword()
{
    KirvAccount *account = addAccount();
    changePassword();
    assistant()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!assistant() && alpha->request);
    alpha->request->succeed(Result::PasswordChanged, KirvLogin(), "new");
    QCOMPARE(account->record().password, QString("new"));
    QVERIFY(!assistant() && !alpha->request);
}

void TestServerCommands::aPasswordThatWasNotStoredOpensTheWindowAgain_data()
{
    QTest::addColumn<bool>("isDestroyed");
    QTest::newRow("closed") << false;
    QTest::newRow("destroyed") << true;
}

void TestServerCommands::aPasswordThatWasNotStoredOpensTheWindowAgain()
{
    QFETCH(bool, isDestroyed);
    KirvAccount *account = addAccount();
    changePassword();
    if (isDestroyed)
        delete assistant();
    else
        assistant()->close();
    QVERIFY(!assistant());
    store->close();
    alpha->request->succeed(Result::PasswordChanged, KirvLogin(), "new");
    QVERIFY(message().contains("not stored"));
    QVERIFY(store->open(folder->path()));
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QVERIFY(!assistant() && !account->hasUnstoredPassword());
}

void TestServerCommands::aFailureAfterClosingIsReported()
{
    KirvAccount *account = addAccount();
    changePassword();
    assistant()->close();
    Q_EMIT alpha->request->failed(KirvFailure(KirvFailure::RequestFailed, "too short"));
    QCOMPARE(problems->size(), 1);
    const QString text = problems->first().first().toString();
    QVERIFY(text.contains(romeoKey.id) && text.contains("too short"));
    QVERIFY(!alpha->request);
    QCOMPARE(account->record().password, QString("old"));
}

void TestServerCommands::theWindowThatWasClosedComesBackWithItsCommand()
{
    addAccount();
    changePassword();
    assistant()->close();
    commands->run(romeoKey, "act", window.get());
    QCOMPARE(alpha->created, 1);
    QVERIFY(assistant() && message().contains("Changing"));
    Q_EMIT alpha->request->failed(KirvFailure::TimedOut);
    QVERIFY(assistant() && problems->isEmpty());
}

void TestServerCommands::theDeletedAccountIsRemoved()
{
    addAccount();
    commands->run(romeoKey, "act", window.get());
    alpha->request->succeed(Result::AccountDeleted, KirvLogin());
    QVERIFY(!accounts->find(romeoKey) && !assistant() && !alpha->request);
    QVERIFY(store->readAccounts().isEmpty());
}

void TestServerCommands::aDeletedAccountThatWasNotRemovedIsReported()
{
    addAccount();
    commands->run(romeoKey, "act", window.get());
    store->close();
    alpha->request->succeed(Result::AccountDeleted, KirvLogin());
    QVERIFY(message().contains("deleted on its server") && message().contains(accounts->lastError()));
    QVERIFY(accounts->find(romeoKey));
    QVERIFY(store->open(folder->path()));
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QVERIFY(!accounts->find(romeoKey) && !assistant());
}

void TestServerCommands::windowsGoWithTheirProtocol_data()
{
    QTest::addColumn<bool>("isRegistration");
    QTest::newRow("registration") << true;
    QTest::newRow("action") << false;
}

void TestServerCommands::windowsGoWithTheirProtocol()
{
    QFETCH(bool, isRegistration);
    addAccount();
    if (isRegistration)
        registerAccount();
    else
        changePassword(); // also while a reply is awaited
    QVERIFY(assistant());
    bool wasFirst = false;
    connect(alpha, &QObject::destroyed, this, [&] { wasFirst = !alpha->request && !assistant(); });
    plugins.reset();
    QVERIFY(wasFirst);
}

void TestServerCommands::windowsGoWithTheirAccount()
{
    KirvAccount *account = addAccount();
    registerAccount();
    const QPointer<FakeServerRequest> registration = alpha->request;
    changePassword();
    const QPointer<FakeServerRequest> change = alpha->request;
    QVERIFY(accounts->remove(account));
    QVERIFY(!change && registration);
    QVERIFY(assistant() && !assistant()->isModal());
}

void TestServerCommands::windowsGoWhileAModalChildIsOpen()
{
    registerAccount();
    const QPointer<KirvServerAssistant> open = assistant();
    const QPointer<QMessageBox> child = new QMessageBox(open);
    QMetaObject::invokeMethod(
        this, [this] { plugins.reset(); }, Qt::QueuedConnection);
    child->exec();
    QTRY_VERIFY(!open && !child);
}

void TestServerCommands::theWindowMayBeDestroyedWithItsParent()
{
    addAccount();
    auto parent = std::make_unique<QWidget>();
    commands->run(romeoKey, "act", parent.get());
    QVERIFY(assistant());
    parent.reset();
    QVERIFY(!assistant() && !alpha->request);
    commands->run(romeoKey, "act", window.get());
    QVERIFY(assistant() && alpha->request);
}

void TestServerCommands::theMenuHasTheActionsOfTheProtocol()
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
    QVERIFY(assistant());

    account->setPresence(alpha->presenceWithId("offline", QString()));
    QTRY_VERIFY(!account->isOnline());
    Q_EMIT menu.aboutToShow();
    QVERIFY(!menu.actions().first()->isEnabled());
    accounts->remove(account);
    Q_EMIT menu.aboutToShow();
    QVERIFY(menu.actions().isEmpty());
}

void TestServerCommands::unknownActionsAreIgnored()
{
    addAccount();
    commands->run(romeoKey, "none", window.get());
    commands->run(newKey, "act", window.get());
    QVERIFY(!assistant());
}

QTEST_MAIN(TestServerCommands)
#include "tst_server_commands.moc"

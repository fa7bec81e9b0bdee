// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_export_window.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_registration_chooser.h"
#include "client/kirv_rescue_window.h"
#include "client/kirv_server_assistant.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/gui/kirv_pseudo_translator.h"
#include "tests/support/gui/kirv_text_survey.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");

/// What is shown as it is in every language.
QStringList untranslated()
{
    QStringList texts { ann,
                        bob,
                        "cleo",
                        "ann@example.org",
                        "Fake",
                        "XMPP",
                        "IRC",
                        "Kirv",
                        "GNOME Keyring",
                        "DALnet", // networks
                        "hackint",
                        "OFTC",
                        "Libera.Chat",
                        "kirv_protocol_irc.so",
                        "Rizon",
                        "kirv_protocol_xmpp.so",
                        "anna@example.org" };
    texts << QLocale().monthName(QDate::currentDate().month(), QLocale::ShortFormat); // of a date
    return texts;
}

/// The fake protocol is not translated.
void markTextsOf(KirvFakeProtocol *protocol)
{
    const auto marked = [](const char *text) { return KirvPseudoTranslator::pseudo(QString::fromLatin1(text)); };
    protocol->offeredPresences = { { "available", marked("Available"), QString() },
                                   { "away", marked("Away"), QString() },
                                   { "offline", marked("Offline"), QString() } };
    protocol->settings = { KirvField::textEdit(marked("Server"), "server", "localhost", QString()) };
    protocol->directory = { KirvField::textEdit(marked("Name"), "name", QString(), QString()) };
}

QList<KirvTextSurvey::Allowed> permissions()
{
    const auto at = [](const char *where) { return QRegularExpression(QString::fromLatin1(where)); };
    return {
        { at("^Accounts_(StripTitle text|StripIcon accessibleName)$"),
          "a list, not a sentence: state, presence, role" },
        { at("^Accounts_List item$"), "the same list, or the sentences of the strip as a description" },
        { at("^Accounts_StripReason plainText$"), "the presence is named in its sentence as the protocol calls it" },
        { at("^EditAccount_State text$"), "the line of the list" },
        { at("^EditAccount_State (toolTip|accessibleDescription)$"), "the presence is named as the protocol calls it" },
        { at("^KirvField_.*_Choose accessibleName$"), "the name of the setting stands in its sentence as it is shown" },
        { at("^(Import|Export)Accounts_(LeftOut|Outcome) plainText$"), "a heading with a list of sentences" },
        { at("^AddAccount_Advanced(Summary text| accessibleDescription)$"), "a list of the names of settings" },
    };
}

} // namespace

/// A translation into a language that nobody speaks shows what the windows leave untranslated, have no room for or put
/// together from pieces.
class tst_TextsOfWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void pseudoTextKeepsWhatIsNoText();
    void slipsAreFound();
    void clippedTextIsFound();

    void accountsPage_data() { addDirections(); }
    void accountsPage();
    void settingsPages_data() { addDirections(); }
    void settingsPages();
    void failures_data() { addDirections(); }
    void failures();
    void keyrings_data() { addDirections(); }
    void keyrings();
    void menus_data() { addDirections(); }
    void menus();
    void addWindows_data() { addDirections(); }
    void addWindows();
    void editWindows_data() { addDirections(); }
    void editWindows();
    void questions_data() { addDirections(); }
    void questions();
    void requestsToServers_data() { addDirections(); }
    void requestsToServers();
    void rescueWindow_data() { addDirections(); }
    void rescueWindow();
    void movingAccounts_data() { addDirections(); }
    void movingAccounts();

private:
    static void addDirections();
    /// Starts with the accounts \a ids of the fake protocol, and with the protocols that are there.
    void start(const QStringList &ids);
    QWidget *window() const { return windows->client->window(); }
    void look(const char *place, QWidget *window);
    /// Has the boxes that \a open leads to looked at and answered.
    void lookAtBoxes(const char *place, QMessageBox::StandardButton answer, const std::function<void()> &open);
    void lookAtEditWindow(const QString &place, KirvAccountConnection *account);
    void openContextMenu() const;

    std::unique_ptr<KirvPseudoTranslator> translator;
    std::unique_ptr<KirvTextSurvey> survey;
    std::unique_ptr<KirvClientWindows> windows;
};

void tst_TextsOfWindows::initTestCase()
{
    translator = std::make_unique<KirvPseudoTranslator>(QStringLiteral(KIRV_CATALOGUE));
    QVERIFY(translator->isReady());
    QCoreApplication::installTranslator(translator.get());
}

void tst_TextsOfWindows::init()
{
    survey = std::make_unique<KirvTextSurvey>(untranslated(), permissions());
}

void tst_TextsOfWindows::cleanup()
{
    KirvClientWindows::closeBoxes();
    windows.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_TextsOfWindows::addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void tst_TextsOfWindows::start(const QStringList &ids)
{
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
    windows = std::make_unique<KirvClientWindows>();
    windows->prepare = &markTextsOf;
    windows->options.pluginFolder = QStringLiteral(KIRV_PROTOCOLS);
    windows->restart();
    QVERIFY(windows->isReady());
    KIRV_TRY(windows->client->arePluginsLoaded());
    for (const QString &id : ids)
        windows->addAccount(id);
    KirvClientWindows::settle();
}

void tst_TextsOfWindows::look(const char *place, QWidget *window)
{
    KirvClientWindows::settle();
    // The latest event may be the end of a thread, which has shown other parts.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    survey->look(QString::fromLatin1(place), window);
}

void tst_TextsOfWindows::lookAtBoxes(const char *place, QMessageBox::StandardButton answer,
                                     const std::function<void()> &open)
{
    KirvWindowWatcher<QMessageBox> watcher([&](QMessageBox *box) {
        look(place, box);
        box->button(answer)->click();
    });
    open();
    KIRV_TRY(watcher.shown > 0);
    KirvClientWindows::settle();
    QVERIFY2(watcher.shown > 0, place);
}

void tst_TextsOfWindows::openContextMenu() const
{
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(1, 1), windows->list()->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(windows->list(), &request);
}

void tst_TextsOfWindows::pseudoTextKeepsWhatIsNoText()
{
    const auto pseudo = &KirvPseudoTranslator::pseudo;
    QVERIFY(pseudo("&Add %1 of %L2 or %n…").contains("&A"));
    for (const char *kept : { "%1", "%L2", "%n", "…" })
        QVERIFY(pseudo("&Add %1 of %L2 or %n…").contains(QString::fromUtf8(kept)));
    QVERIFY(pseudo("<b>Add</b>").contains("<b>"));
    QCOMPARE(pseudo("%1 · %2"), QString("%1 · %2"));
    QVERIFY(pseudo(" and ").startsWith(" ") && pseudo(" and ").endsWith(" "));
    const QString longer = pseudo("Add the accounts of another program");
    QVERIFY(longer.size() > 35 * 7 / 5);
    QVERIFY(longer.contains(QChar(0x05D0)));
    QCOMPARE(translator->translate("KirvSettingsWindow", "Quit", nullptr, -1), pseudo("Quit"));
    QCOMPARE(translator->translate("KirvSettingsWindow", "No such text", nullptr, -1), QString());
    QCOMPARE(translator->translate("QPlatformTheme", "Cancel", nullptr, -1), pseudo("Cancel"));
}

void tst_TextsOfWindows::slipsAreFound()
{
    const auto pseudo = &KirvPseudoTranslator::pseudo;
    QCOMPARE(survey->slipIn(pseudo("Add an account")), QString());
    QCOMPARE(survey->slipIn(pseudo("Removed %1.").arg(ann)), QString());
    QCOMPARE(survey->slipIn("ann (Fake), 12 %"), QString());
    QCOMPARE(survey->slipIn("Add"), QString("is not translated"));
    QCOMPARE(survey->slipIn("annex"), QString("is not translated"));
    QCOMPARE(survey->slipIn(pseudo("Add") + " an account"), QString("is not translated"));
    QCOMPARE(survey->slipIn(pseudo("Add") + " " + pseudo("account")), QString("is put together"));
    QCOMPARE(survey->slipIn(pseudo("Add %1").arg(pseudo("account"))), QString("is put together"));
    QCOMPARE(survey->slipIn(pseudo("It is so.") + " " + pseudo("It stays so.")), QString());
    QCOMPARE(survey->slipIn(pseudo("Add an account").left(12)), QString("is cut off"));
}

void tst_TextsOfWindows::clippedTextIsFound()
{
    QWidget top;
    QLabel label(KirvPseudoTranslator::pseudo("A text that is too long"), &top);
    label.setFixedWidth(20);
    top.show();
    survey->look("test", &top);
    QCOMPARE(survey->problems().size(), 1);
    QVERIFY2(survey->problems().constFirst().contains("is clipped"), qPrintable(survey->problems().constFirst()));
    label.setFixedWidth(label.sizeHint().width());
    QVERIFY(!KirvTextSurvey::isClipped(&label));
}

void tst_TextsOfWindows::accountsPage()
{
    start({});
    look("empty page", window());
    windows->addAccount(ann);
    windows->select(ann);
    KIRV_TRY(windows->account(ann)->isOnline());
    look("page", window());
    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    windows->addAccount(bob);
    windows->select(bob);
    look("page with a failure", window());
    windows->list()->selectAll();
    look("page with several selected", window());
    windows->select(bob);
    windows->toggleInPage(bob);
    look("page with a disabled account", window());
    windows->removeInPage(bob);
    look("page after a removal", window());
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
    QVERIFY2(survey->textCount() > 100, qPrintable(QString::number(survey->textCount())));
}

void tst_TextsOfWindows::settingsPages()
{
    start({ ann });
    auto *pages = KirvClientWindows::child<QListWidget>(window(), "Settings_Pages");
    for (int page = 1; page < pages->count(); ++page) {
        pages->setCurrentRow(page);
        look(qPrintable(QStringLiteral("page %1").arg(page)), window());
    }
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::failures()
{
    start({});
    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    for (int kind = KirvFailure::WrongPassword; kind <= KirvFailure::Other; ++kind) {
        windows->protocol->server->refusal = KirvFailure(KirvFailure::Kind(kind), bob);
        windows->addAccount(ann);
        windows->select(ann);
        KIRV_TRY(windows->account(ann)->lastFailure().isFailure());
        look(qPrintable(QStringLiteral("failure %1").arg(kind)), window());
        windows->removeInPage(ann);
    }
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::keyrings()
{
    start({ ann });
    KirvFakeSecretStore keyring;
    windows->client->accounts().secrets().setKeyring(&keyring);
    const auto lookAtStates = [&] {
        for (const auto state : { KirvSecretStore::Unknown, KirvSecretStore::Ready, KirvSecretStore::Locked,
                                  KirvSecretStore::Silent, KirvSecretStore::Unavailable }) {
            keyring.setState(state);
            windows->select(ann);
            look("page", window());
            lookAtEditWindow("edit window", windows->account(ann));
            KirvPasswordDialog password(*windows->account(ann), window());
            password.show();
            look("question about a password", &password);
        }
    };
    for (const QString &provider : { QStringLiteral("GNOME Keyring"), QString() }) {
        keyring.provider = provider;
        keyring.setState(KirvSecretStore::Ready);
        windows->restart();
        windows->client->accounts().secrets().setKeyring(&keyring);
        KIRV_TRY(!windows->account(ann)->awaitsSecrets());
        lookAtStates();
        // The password is there, and cannot be read.
        for (const auto outcome : { KirvSecretStore::Refused, KirvSecretStore::TimedOut, KirvSecretStore::Failed }) {
            keyring.outcome = outcome;
            windows->restart();
            windows->client->accounts().secrets().setKeyring(&keyring);
            KirvClientWindows::settle();
            lookAtStates();
        }
        keyring.outcome = KirvSecretStore::Done;
    }
    windows->end();
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::menus()
{
    start({ ann, bob });
    int opened = 0;
    const auto lookAtMenu = [&](const char *place) {
        openContextMenu();
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY2(menu, place);
        look(place, menu);
        menu->close();
        KirvClientWindows::settle();
        ++opened;
    };
    windows->select(ann);
    lookAtMenu("menu of an account");
    windows->list()->selectAll();
    lookAtMenu("menu of several accounts");
    windows->select(bob);
    windows->toggleInPage(bob);
    lookAtMenu("menu of a disabled account");
    QCOMPARE(opened, 3);
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::addWindows()
{
    start({ ann });
    const QList<QAction *> actions =
        KirvClientWindows::child<QToolButton>(window(), "Accounts_AddButton")->menu()->actions();
    for (QAction *action : actions) {
        const QByteArray place = "add window of " + action->text().toUtf8();
        const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *added) {
            look(place, added);
            auto *login = KirvClientWindows::child<QLineEdit>(added, "AddAccount_UsernameEdit");
            login->setText(QStringLiteral("@ @"));
            look(place + ", wrong login", added);
            login->setText(ann);
            const auto sections = added->findChildren<QAbstractButton *>();
            for (QAbstractButton *section : sections) {
                if (section->isCheckable() && section->objectName().contains("Advanced"))
                    section->setChecked(true);
            }
            look(place + ", filled", added);
            added->reject();
        });
        action->trigger();
        KirvClientWindows::settle();
        QVERIFY2(watcher.shown == 1, place);
    }
    const QStringList problems = survey->problems();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

void tst_TextsOfWindows::lookAtEditWindow(const QString &place, KirvAccountConnection *account)
{
    windows->client->accountsPage()->editAccount(account);
    const auto *controller = windows->client->accountsPage()->getAccEdit();
    auto *edited = controller ? qobject_cast<KirvLayoutDialog *>(controller->getWindow()) : nullptr;
    QVERIFY2(edited, qPrintable(place));
    auto *tabs = edited->findChild<QTabWidget *>();
    QVERIFY(tabs);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        look(qPrintable(QStringLiteral("%1, tab %2").arg(place).arg(tab)), edited);
    }
    KirvClientWindows::cancel(edited);
}

void tst_TextsOfWindows::editWindows()
{
    start({ ann });
    lookAtEditWindow("edit window", windows->account(ann));
    const QList<KirvProtocolBase *> protocols = windows->client->plugins().protocols();
    for (KirvProtocolBase *protocol : protocols) {
        if (protocol == windows->protocol)
            continue;
        const QString id = protocol->getName() == "XMPP" ? QStringLiteral("ann@example.org") : ann;
        KirvAccountManager::getInstance()->createAccount(
            id, id, "secret", true, protocol, protocol->presences().constLast(), protocol->accountSettings());
        KirvClientWindows::settle();
        KirvAccount *account = windows->client->accounts().find({ id, protocol->getName() });
        QVERIFY(account);
        lookAtEditWindow("edit window of " + protocol->getName(), account);
    }
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::questions()
{
    start({ ann, bob });
    KIRV_TRY(windows->account(ann)->isOnline());
    windows->select(ann);
    const auto click = [this](const char *name) { windows->pageButton(name)->click(); };
    lookAtBoxes("question about a removal", QMessageBox::No, [&] { click("Accounts_RemoveButton"); });
    lookAtBoxes("question about a disabling", QMessageBox::No,
                [&] { windows->row(ann)->setCheckState(0, Qt::Unchecked); });
    windows->list()->selectAll();
    lookAtBoxes("question about several removals", QMessageBox::No, [&] { click("Accounts_RemoveButton"); });
    QVERIFY(!windows->addInWindow(ann, [&](QMessageBox *box) { look("an account that exists", box); }));
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::requestsToServers()
{
    start({ ann });
    const QList<KirvProtocolBase *> protocols = windows->client->plugins().protocols();
    KirvRegistrationChooser chooser(protocols, window());
    chooser.show();
    look("choice of a protocol", &chooser);
    for (KirvProtocolBase *protocol : protocols) {
        const std::unique_ptr<KirvServerRequest> request(protocol->offersRegistration() ? protocol->createRegistration()
                                                                                        : nullptr);
        if (!request)
            continue;
        KirvServerAssistant assistant(request.get(), window());
        request->start();
        assistant.show();
        look("registration", &assistant);
    }
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::rescueWindow()
{
    start({ ann });
    windows->end();
    KirvRescueWindow rescue(windows->profileFolder(), KirvPseudoTranslator::pseudo("Something is wrong."));
    rescue.show();
    look("damaged profile", &rescue);
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::movingAccounts()
{
    start({ ann, bob });
    const QString path = windows->folder.filePath(QStringLiteral("ann"));
    auto *moving = window()->findChild<KirvMovingWindows *>();
    moving->exportAccounts();
    auto *exported = window()->findChild<KirvExportWindow *>();
    look("export", exported);
    KirvClientWindows::child<QAbstractButton>(exported, "ExportAccounts_Passwords")->setChecked(true);
    look("export without a pass phrase", exported);
    for (const char *line : { "ExportAccounts_PassPhrase", "ExportAccounts_Repetition" }) {
        KirvClientWindows::child<QLineEdit>(exported, line)->setText(QStringLiteral("ann ann ann ann"));
        look("export with a pass phrase", exported);
    }
    exported->exportTo(path);
    look("export while it runs", exported);
    KIRV_TRY(!exported->isWriting());
    look("export that is done", exported);
    QVERIFY(windows->client->accounts().remove(windows->account(bob)));
    moving->importFrom(path);
    auto *imported = window()->findChild<KirvImportWindow *>();
    look("import while it reads", imported);
    auto *action = KirvClientWindows::child<QAbstractButton>(imported, "ImportAccounts_Action");
    KIRV_TRY(action->isVisible());
    look("import that needs a pass phrase", imported);
    KirvClientWindows::child<QLineEdit>(imported, "ImportAccounts_PassPhrase")->setText(bob);
    action->click();
    KIRV_TRY(action->isVisible());
    look("import with a wrong pass phrase", imported);
    KirvClientWindows::child<QAbstractButton>(imported, "ImportAccounts_WithoutPasswords")->click();
    KIRV_TRY(KirvClientWindows::child<QWidget>(imported, "ImportAccounts_List")->isVisible());
    look("import", imported);
    action->click();
    look("page after an import", window());
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

QTEST_MAIN(tst_TextsOfWindows)
#include "tst_texts_of_windows.moc"

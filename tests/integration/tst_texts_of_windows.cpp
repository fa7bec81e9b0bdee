// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_log_window.h"
#include "client/kirv_certificate_question.h"
#include "client/kirv_certificate_questions.h"
#include "client/kirv_event_delegate.h"
#include "client/kirv_export_window.h"
#include "client/kirv_login_test_dialog.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_registration_chooser.h"
#include "client/kirv_report_window.h"
#include "client/kirv_rescue_window.h"
#include "client/kirv_server_assistant.h"
#include "client/kirv_server_commands.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_secret_blank.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/fakes/kirv_fake_server_request.h"
#include "tests/support/gui/kirv_assistant_window.h"
#include "tests/support/gui/kirv_pseudo_translator.h"
#include "tests/support/gui/kirv_text_survey.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSslCertificate>
#include <QSslError>
#include <QSslSocket>
#include <QSysInfo>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>
#include <algorithm>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QDate validFrom(2020, 2, 3), validUntil(2031, 3, 3); // a certificate

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
                        "anna@example.org",
                        "example.org",
                        "other.test" };
    // Of a report.
    texts << QCoreApplication::applicationName() << QSslSocket::sslLibraryVersionString()
          << QSysInfo::prettyProductName() << QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion()
          << QSysInfo::currentCpuArchitecture();
    for (const QDate &date : { validFrom, validUntil })
        texts << QLocale().toString(date, QLocale::LongFormat);
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

/// With everything that can be wrong with one, of which \a byte is the fingerprint, 32 times.
KirvServerCertificate makeCertificate(char byte)
{
    QList<QSslError> errors;
    for (const QSslError::SslError error :
         { QSslError::SelfSignedCertificate, QSslError::CertificateUntrusted, QSslError::HostNameMismatch,
           QSslError::CertificateExpired, QSslError::CertificateNotYetValid, QSslError::CertificateRevoked,
           QSslError::InvalidPurpose })
        errors << QSslError(error);
    KirvServerCertificate certificate(QSslCertificate(), errors, QStringLiteral("example.org"));
    certificate.subject = QStringLiteral("cleo");
    certificate.names = QStringList { QStringLiteral("other.test") };
    certificate.validFrom = QDateTime(validFrom, QTime(12, 0));
    certificate.validUntil = QDateTime(validUntil, QTime(12, 0));
    certificate.fingerprint = QByteArray(32, byte);
    return certificate;
}

/// A request whose own texts are marked: what a protocol and a server say.
class MarkedRequest : public KirvFakeServerRequest {
public:
    MarkedRequest()
        : KirvFakeServerRequest({ makeStep(false), makeStep(true) })
    {
    }
    QString title() const override { return KirvPseudoTranslator::pseudo(QStringLiteral("A Request")); }

private:
    static Step makeStep(bool isLater)
    {
        const auto marked = [](const char *text) { return KirvPseudoTranslator::pseudo(QString::fromLatin1(text)); };
        Step step;
        step.text = marked("This is what the server wants to know of somebody who has no account there.");
        step.fields = { KirvField::textEdit(marked("Word in the picture"), QStringLiteral("word"), QString(),
                                            marked("It says so.")),
                        KirvField::password(marked("Password"), QStringLiteral("password"), QString(), QString()) };
        step.configurations = QStringList { marked("One way"), marked("Another way") };
        step.pictures = { { marked("Word in the picture"), QByteArray(), QStringLiteral("example.org") } };
        step.command = marked("Go On");
        step.hasPassword = true;
        if (!isLater)
            return step;
        step.notice = marked("The server did not like that.");
        step.isDangerous = true;
        step.canGoBack = true;
        return step;
    }
};

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
        { at("^AccountLog_Entries item$"), "a time, an event and what the event is about" },
        { at("_LogInTestSteps (item|accessibleDescription)$"), "a step, with whom or how it is taken and its end" },
        { at("^Report_Text plainText$"), "a list of lines" },
        { at("^CertificateQuestion_Problems plainText$"), "a list of sentences" },
        { at("^ServerAssistant_Picture\\d plainText$"), "the caption stands in its sentence as the server says it" },
        { at("^ServerAssistant_Message plainText$"), "a sentence, and the reason why" },
        { at("^MessageBar_Text"), "the name of an account, and a sentence about it" },
        { at("^Report_Outcome text$"), "the reason of the system stands in its sentence; Qt 6 translates it" },
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
    void stepsOfRequests_data() { addDirections(); }
    void stepsOfRequests();
    void outcomesOfRequests_data() { addDirections(); }
    void outcomesOfRequests();
    void helpWindows_data() { addDirections(); }
    void helpWindows();
    void loginTests_data() { addDirections(); }
    void loginTests();
    void certificateQuestions_data() { addDirections(); }
    void certificateQuestions();
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
    /// The open window of that class; null when there is none.
    template <typename Window>
    static Window *open()
    {
        const auto all = QApplication::topLevelWidgets();
        for (QWidget *widget : all) {
            auto *window = qobject_cast<Window *>(widget);
            if (window && window->isVisible())
                return window;
        }
        return nullptr;
    }
    KirvFakeServer &server() const { return *windows->protocol->server; }
    /// An account that is refused, selected in the page.
    void addFailing();
    void lookAtSteps(const QString &place, QWidget *window, const char *list);
    /// Looks at a test of a log-in in \a window, whose first connection is held, with each of its ends.
    void lookAtLoginTest(const QString &place, QWidget *window, const QString &prefix);
    void lookAtCertificate(const char *place);
    /// Opens a request about ann.
    MarkedRequest *openRequest();

    QPointer<KirvFakeConnection> connection; ///< the latest one
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
        const QString id = QStringLiteral("ann@example.org");
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

/// What a protocol asks before it changes the password of an account or deletes it, up to the failure without a server.
void tst_TextsOfWindows::stepsOfRequests()
{
    start({ ann });
    int opened = 0;
    const QList<KirvProtocolBase *> protocols = windows->client->plugins().protocols();
    for (KirvProtocolBase *protocol : protocols) {
        const QList<KirvAccountAction> actions = protocol->accountActions();
        for (const KirvAccountAction &action : actions) {
            const std::unique_ptr<KirvConnection> offline(protocol->createConnection());
            const std::unique_ptr<KirvServerRequest> request(protocol->createAccountRequest(action.id, offline.get()));
            QVERIFY2(request, qPrintable(action.id));
            KirvServerAssistant assistant(request.get(), window());
            request->start();
            assistant.show();
            const QByteArray place = action.id.toUtf8();
            look(place, &assistant);
            const auto lines = assistant.findChildren<QLineEdit *>();
            for (int filled = 0; filled <= lines.size(); ++filled) { // nothing, one of them, and all
                if (filled > 0)
                    lines.at(filled - 1)->setText(ann);
                KirvAssistantWindow::next()->click();
                look(place + ", submitted", &assistant);
            }
            if (lines.isEmpty()) {
                KirvAssistantWindow::next()->click();
                look(place + ", confirmed", &assistant);
            }
            QVERIFY2(!KirvAssistantWindow::message().isEmpty(), place);
            ++opened;
        }
    }
    const bool hasXmpp = std::any_of(protocols.begin(), protocols.end(),
                                     [](KirvProtocolBase *protocol) { return protocol->getName() == "XMPP"; });
    QCOMPARE(opened > 0, hasXmpp); // which needs libraries that not every build has
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

MarkedRequest *tst_TextsOfWindows::openRequest()
{
    QPointer<MarkedRequest> request;
    windows->protocol->makeRequest = [&request](const QString &, KirvConnection *) {
        request = new MarkedRequest;
        return request;
    };
    window()->findChild<KirvServerCommands *>()->run({ ann, windows->protocol->name }, QStringLiteral("act"), window());
    windows->protocol->makeRequest = nullptr;
    return request;
}

void tst_TextsOfWindows::outcomesOfRequests()
{
    using Result = KirvServerRequest::Result;
    start({ ann });
    KIRV_TRY(windows->account(ann)->isOnline());
    const auto outcome = [this](const char *place, Result::Kind kind, const KirvLogin &login = {}) {
        MarkedRequest *request = openRequest();
        QVERIFY(request && KirvAssistantWindow::window());
        request->succeedWith(kind, login, bob);
        QVERIFY2(!KirvAssistantWindow::message().isEmpty(), place);
        look(place, KirvAssistantWindow::window());
        KirvAssistantWindow::window()->close();
        KirvClientWindows::settle();
    };
    QPointer<MarkedRequest> request = openRequest();
    QVERIFY(request);
    look("request", KirvAssistantWindow::window());
    KirvAssistantWindow::next()->click();
    look("second step of a request", KirvAssistantWindow::window());
    request->isHeld = true;
    KirvAssistantWindow::next()->click();
    Q_EMIT request->waiting(KirvPseudoTranslator::pseudo(QStringLiteral("Waiting for the server…")));
    look("request that waits", KirvAssistantWindow::window());
    for (int kind = KirvFailure::WrongPassword; kind <= KirvFailure::Other; ++kind) {
        Q_EMIT request->failed(KirvFailure(KirvFailure::Kind(kind), bob));
        look(qPrintable(QStringLiteral("request with the failure %1").arg(kind)), KirvAssistantWindow::window());
    }
    KirvAssistantWindow::next()->click();
    request->canBeCancelled = false;
    KirvAssistantWindow::window()->close();
    request->serverRefuses(KirvFailure(KirvFailure::TimedOut));
    QVERIFY(!windows->messages().isEmpty());
    look("failure after closing", window());

    outcome("password that is changed", Result::PasswordChanged);
    outcome("account that only the server knows", Result::AccountRegistered);
    outcome("account that exists", Result::AccountRegistered, { ann, bob, {} });
    const QString folder = windows->profileFolder();
    QVERIFY(QFile::rename(folder, folder + ".away")); // nothing can be stored
    outcome("password that is not stored", Result::PasswordChanged);
    outcome("account that is not added", Result::AccountRegistered, { bob, bob, {} });
    outcome("account that is not removed", Result::AccountDeleted);
    QVERIFY(QFile::rename(folder + ".away", folder));
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::addFailing()
{
    windows->protocol->onConnection = [this](KirvFakeConnection *made) { connection = made; };
    server().logIn = KirvFakeServer::Refuses;
    windows->addAccount(ann);
    windows->select(ann);
    KIRV_TRY(windows->account(ann)->lastFailure().isFailure());
    KirvClientWindows::settle();
}

void tst_TextsOfWindows::helpWindows()
{
    start({});
    QStringList versions;
    const QList<KirvProtocolBase *> protocols = windows->client->plugins().protocols();
    for (const KirvProtocolBase *protocol : protocols)
        versions += protocol->components();
    survey = std::make_unique<KirvTextSurvey>(untranslated() + versions, permissions());
    addFailing();
    server().logIn = KirvFakeServer::Accepts;
    windows->account(ann)->reconnect();
    KIRV_TRY(windows->account(ann)->isOnline());
    for (const auto outcome : { KirvLoginStep::Running, KirvLoginStep::Done, KirvLoginStep::Failed }) {
        const KirvLoginStep step(KirvLoginStep::Connection, outcome, KirvPseudoTranslator::pseudo("somebody"));
        windows->account(ann)->log().addStep(step, KirvSecretBlank());
    }
    windows->pageButton("Accounts_LogButton")->click();
    auto *log = open<KirvAccountLogWindow>();
    QVERIFY(log);
    look("log", log);
    QVERIFY(KirvClientWindows::child<QListWidget>(log, "AccountLog_Entries")->count() > 8);
    const auto lookAtReport = [this](const QByteArray &place) {
        auto *report = open<KirvReportWindow>();
        QVERIFY(report);
        look(place, report);
        KirvClientWindows::child<QCheckBox>(report, "Report_Names")->setChecked(true);
        look(place + " with names", report);
        QVERIFY(report->save(windows->folder.filePath(ann)));
        look(place + " that is saved", report);
        QVERIFY(!report->save(windows->folder.filePath("no/such/folder/ann")));
        look(place + " that is not saved", report);
        report->close();
        KirvClientWindows::settle();
    };
    KirvClientWindows::child<QPushButton>(log, "AccountLog_Report")->click();
    lookAtReport("report about an account");
    windows->client->pluginsPage()->findChild<QPushButton *>("Plugins_ReportButton")->click();
    lookAtReport("report about all");
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

/// The time at the end of a row is no property of a widget.
void tst_TextsOfWindows::lookAtSteps(const QString &place, QWidget *window, const char *name)
{
    look(qPrintable(place), window);
    const auto *list = KirvClientWindows::child<QListWidget>(window, name);
    QVERIFY2(list && list->isVisible() && list->count() > 0, qPrintable(place));
    for (int row = 0; row < list->count(); ++row) {
        const QString time = list->item(row)->data(KirvEventDelegate::EndRole).toString();
        QVERIFY2(survey->slipIn(time).isEmpty(), qPrintable(place + ": " + time));
    }
}

void tst_TextsOfWindows::lookAtLoginTest(const QString &place, QWidget *window, const QString &prefix)
{
    const QByteArray steps = prefix.toLatin1() + "_LogInTestSteps";
    auto *run = window->findChild<QPushButton *>(prefix + "_TestLogIn");
    const auto isConnecting = [this] { return connection && connection->state() == KirvConnection::Connecting; };
    KIRV_TRY(isConnecting());
    look(qPrintable(place + " that begins"), window);
    for (int kind = KirvLoginStep::NameLookup; kind <= KirvLoginStep::LogIn; ++kind) {
        const QString somebody =
            kind == KirvLoginStep::Connection ? QString() : KirvPseudoTranslator::pseudo("somebody");
        connection->reportStep({ KirvLoginStep::Kind(kind), KirvLoginStep::Running, somebody });
    }
    lookAtSteps(place + " that runs", window, steps);
    connection->loginFailed(KirvFailure::UntrustedCertificate);
    lookAtSteps(place + " that has failed", window, steps);
    run->click();
    KIRV_TRY(isConnecting());
    run->click();
    lookAtSteps(place + " that was cancelled", window, steps);
    server().logIn = KirvFakeServer::Accepts;
    run->click();
    KIRV_TRY(!connection);
    lookAtSteps(place + " that works", window, steps);
    server().logIn = KirvFakeServer::Refuses;
    run->click();
    KIRV_TRY(!connection);
    lookAtSteps(place + " that was refused at once", window, steps);
    connection.clear();
}

void tst_TextsOfWindows::loginTests()
{
    start({});
    addFailing();
    connection.clear();
    server().logIn = KirvFakeServer::Holds;
    windows->pageButton("Accounts_TestButton")->click();
    auto *dialog = open<KirvLoginTestDialog>();
    QVERIFY(dialog);
    lookAtLoginTest("test", dialog, "LogInTest");
    dialog->close();

    server().logIn = KirvFakeServer::Holds;
    bool isRun = false;
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *added) {
        KirvClientWindows::child<QLineEdit>(added, "AddAccount_UsernameEdit")->setText(bob);
        KirvClientWindows::child<QPushButton>(added, "AddAccount_TestLogIn")->click();
        lookAtLoginTest("test in the add window", added, "AddAccount");
        added->reject();
        isRun = true;
    });
    const QList<QAction *> actions =
        KirvClientWindows::child<QToolButton>(window(), "Accounts_AddButton")->menu()->actions();
    for (QAction *action : actions) {
        if (action->text().remove('&').contains(windows->protocol->name))
            action->trigger();
    }
    QVERIFY(isRun);
    QVERIFY2(survey->problems().isEmpty(), qPrintable(survey->problems().join('\n')));
}

void tst_TextsOfWindows::lookAtCertificate(const char *place)
{
    KIRV_TRY(open<KirvCertificateQuestion>());
    look(place, open<KirvCertificateQuestion>());
    look(place, window());
}

void tst_TextsOfWindows::certificateQuestions()
{
    start({});
    const auto answer = [](const char *button) {
        KirvClientWindows::child<QPushButton>(open<KirvCertificateQuestion>(), button)->click();
        KirvClientWindows::settle();
    };
    server().certificate = makeCertificate('\x11');
    windows->addAccount(ann);
    windows->select(ann);
    lookAtCertificate("certificate");
    answer("CertificateQuestion_ChangeButton");
    KIRV_TRY(windows->account(ann)->isOnline());
    windows->select(ann);
    look("page of a trusted certificate", window());

    server().certificate = makeCertificate('\x22');
    windows->account(ann)->reconnect();
    auto *button = windows->pageButton("Accounts_CertificateButton");
    KIRV_TRY(windows->account(ann)->lastFailure().isFailure() && button->isVisible() && button->isEnabled());
    button->click();
    lookAtCertificate("changed certificate");
    answer("CertificateQuestion_ChangeButton");
    KIRV_TRY(windows->account(ann)->isOnline());
    KIRV_TRY(button->isVisible() && button->isEnabled());
    button->click();
    lookAtCertificate("trusted certificate");
    answer("CertificateQuestion_LeaveButton");

    windows->restart(); // only the fingerprint is known then
    server().certificate = makeCertificate('\x33');
    windows->account(ann)->setPresence(windows->protocol->presenceWithId("offline", QString()));
    window()->findChild<KirvCertificateQuestions *>()->show(windows->account(ann));
    lookAtCertificate("trusted certificate of which little is known");
    answer("CertificateQuestion_ChangeButton");
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

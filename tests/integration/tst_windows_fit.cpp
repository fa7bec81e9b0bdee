// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_help.h"
#include "client/kirv_account_log_window.h"
#include "client/kirv_account_search.h"
#include "client/kirv_accounts_page_companion.h"
#include "client/kirv_certificate_question.h"
#include "client/kirv_client.h"
#include "client/kirv_export_window.h"
#include "client/kirv_import_window.h"
#include "client/kirv_login_test_dialog.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_report_window.h"
#include "client/kirv_server_assistant.h"
#include "client/kirv_server_commands.h"
#include "client/kirv_settings_window.h"
#include "client/kirv_translations.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_log.h"
#include "core/moving/kirv_account_file.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/store/kirv_store.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/gui/kirv_assistant_window.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_thorough.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSslCertificate>
#include <QSslError>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>
#include <QTranslator>
#include <QTreeWidget>
#include <QtTest>

namespace {

using Windows = KirvClientWindows;
const QString fake = QStringLiteral("Fake");
const qreal usualDpi = 96; // of fonts, more or less

/// A small screen: where letters are twice as large it has twice as many pixels each way.
QSize smallSize()
{
    return QSize(480, 360) * qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch() / usualDpi);
}

bool isUsualScale()
{
    return smallSize() == QSize(480, 360) && qFuzzyCompare(qApp->devicePixelRatio(), 1.0);
}

/// One from right to left and those with the longest texts, fewer at another scale; all in a thorough run.
QStringList languages()
{
    if (kirvIsThorough())
        return KirvTranslations(*qApp, QStringLiteral(KIRV_TRANSLATIONS)).languages();
    const QStringList few { QStringLiteral("ar"), QStringLiteral("de") };
    return isUsualScale() ? few + QStringList(QStringLiteral("fr")) : few;
}

/// As long as a server may make it.
QString longText(int words)
{
    return QStringLiteral("somebody at the conference.chat.example.org ").repeated(words).trimmed();
}

/// Whether \a widget stands in what can be scrolled up and down: its height is not bounded by the window.
bool isScrolled(const QWidget *widget)
{
    for (const QWidget *around = widget->parentWidget(); around && !around->isWindow();
         around = around->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea *>(around))
            return true;
    }
    return false;
}

/// Whether the text of \a widget has less room than it needs.
bool isClipped(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        const bool isElsewhere =
            label->text().isEmpty() || label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        if (label->wordWrap() && !label->text().isEmpty())
            return label->height() < label->heightForWidth(label->width());
        return !isElsewhere
            && (label->width() < label->sizeHint().width() || label->height() < label->sizeHint().height());
    }
    if (const auto *text = qobject_cast<const QTextEdit *>(widget))
        return text->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff
            && text->document()->size().height() > text->viewport()->height() + 1;
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button && !button->text().isEmpty() && button->width() < button->minimumSizeHint().width();
}

QString nameOf(const QWidget *widget)
{
    const QVariant text = widget->property("text");
    const QRect place(widget->mapTo(widget->window(), QPoint()), widget->size());
    return QStringLiteral("%1 %2 \"%3\" at %4,%5, %6 x %7")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(), text.toString())
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

/// What stands outside of \a window or of the widget around it, or whose text is clipped.
QStringList misplaced(const QWidget *window)
{
    QStringList names;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QWidget *around = widget->parentWidget();
        if (!widget->isVisible() || widget->window() != window)
            continue;
        const QRect inWindow(widget->mapTo(window, QPoint()), widget->size());
        const bool isContent = qobject_cast<const QAbstractScrollArea *>(around->parentWidget());
        const bool isWideOutside = inWindow.left() < 0 || inWindow.right() > window->rect().right();
        const bool isHighOutside = !window->rect().contains(inWindow) && !isScrolled(widget);
        if (isWideOutside || isHighOutside || (!isContent && !around->rect().contains(widget->geometry())))
            names << nameOf(widget) + QStringLiteral(" is outside");
        else if (isClipped(widget))
            names << nameOf(widget) + QStringLiteral(" is clipped");
    }
    return names;
}

/// What keeps \a window from being narrow.
QString widest(const QWidget *window)
{
    QStringList names;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const int needed = qMax(widget->minimumSizeHint().width(), widget->minimumWidth());
        if (widget->isVisible() && needed > smallSize().width() / 2)
            names << QStringLiteral("%1 needs %2").arg(nameOf(widget)).arg(needed);
    }
    return names.join(QLatin1Char('\n'));
}

/// For looking at the windows: pictures of them go into the folder that the environment names, if it does.
void picture(QWidget *window, const QString &name)
{
    const QString folder = qEnvironmentVariable("KIRV_PICTURES");
    if (!folder.isEmpty())
        window->grab().save(
            QStringLiteral("%1/%2.png").arg(folder, QString(name).replace(QLatin1Char(' '), QLatin1Char('-'))));
}

} // namespace

/// Every window fits a small screen and its own size, in each language and direction. CTest runs it again with twice
/// the scale, and with letters of twice the size.
class tst_WindowsFit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowFits_data();
    void windowFits();

private:
    using Look = std::function<void(QWidget *window)>;

    /// Starts the client with an account of each protocol.
    void start(const QString &language);
    void open(const QString &name, const Look &look);
    void openAddWindow(const QString &protocol, const Look &look);
    void openEditWindow(const QString &protocol, int tab, const Look &look);
    void openAssistant(const QString &protocol, const Look &look);
    void openExportWindow(const Look &look);
    void openImportWindow(const Look &look);
    void openPage(const QString &name, const Look &look);
    void openHelpWindows(const Look &look);
    void openLoginTestInAddWindow(const Look &look);
    void openCertificateQuestions(const Look &look) const;
    void openRequests(KirvProtocolBase *protocol, const Look &look);
    /// An account of a protocol without a network, which is refused.
    void addFailing();
    /// Reports all steps over the connection that is being tested, and looks while the last one runs and has failed.
    void lookAtSteps(QWidget *window, const Look &look);
    static void checkSizes(QWidget *window, const QString &name);
    static void checkWidths(QWidget *window);
    KirvAccount *account(const QString &protocol) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvTranslations> translations;
    std::unique_ptr<KirvClient> client;
    QPointer<KirvFakeProtocol> withoutNetwork;
    QPointer<KirvFakeConnection> connection; ///< its latest one
    bool isSeen = false;
};

void tst_WindowsFit::init()
{
    isSeen = false;
    folder = std::make_unique<QTemporaryDir>();
}

void tst_WindowsFit::cleanup()
{
    client.reset();
    translations.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

KirvAccount *tst_WindowsFit::account(const QString &protocol) const
{
    return client->accounts().accountsOf(protocol).value(0);
}

void tst_WindowsFit::openAddWindow(const QString &protocol, const Look &look)
{
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *window) {
        Windows::settle();
        if (auto *advanced = Windows::child<QToolButton>(window, "AddAccount_Advanced"))
            advanced->setChecked(true);
        look(window);
        window->reject();
    });
    QMenu *menu = Windows::child<QToolButton>(client->accountsPage(), "Accounts_AddButton")->menu();
    for (QAction *action : menu->actions()) {
        if (action->text().remove(QLatin1Char('&')).startsWith(protocol))
            action->trigger();
    }
}

void tst_WindowsFit::openEditWindow(const QString &protocol, int tab, const Look &look)
{
    client->accountsPage()->editAccount(account(protocol));
    QDialog *window = client->accountsPage()->getAccEdit()->getWindow();
    auto *tabs = Windows::child<QTabWidget>(window, "EditAccount_Tabs");
    if (tab < tabs->count()) {
        tabs->setCurrentIndex(tab);
        look(window);
    } else {
        isSeen = true; // the protocol has no directory
    }
    window->reject();
    Windows::settle();
}

void tst_WindowsFit::openAssistant(const QString &protocol, const Look &look)
{
    if (!client->plugins().protocol(protocol)->offersRegistration()) {
        isSeen = true;
        return;
    }
    client->window()->findChild<KirvServerCommands *>()->registerAccount(protocol);
    look(KirvAssistantWindow::window());
    KirvAssistantWindow::window()->close();
}

/// As it opens, with the pass phrase, and with what came of it.
void tst_WindowsFit::openExportWindow(const Look &look)
{
    Windows::child<QAbstractButton>(client->window(), "General_ExportButton")->click();
    auto *window = client->window()->findChild<KirvExportWindow *>();
    QVERIFY(window);
    look(window);
    Windows::child<QCheckBox>(window, "ExportAccounts_Passwords")->setChecked(true);
    look(window);
    Windows::child<QCheckBox>(window, "ExportAccounts_Passwords")->setChecked(false);
    window->exportTo(folder->filePath(QStringLiteral("missing/accounts.json")));
    auto *outcome = Windows::child<QWidget>(window, "ExportAccounts_Outcome");
    KIRV_TRY(outcome->isVisible());
    look(window);
    window->reject();
}

/// With a file that cannot be read, and asking for a pass phrase; with accounts of all kinds.
void tst_WindowsFit::openImportWindow(const Look &look)
{
    KirvMovedAccounts moved;
    for (const char *protocol : { "XMPP", "IRC", "Example", "Unknown" }) {
        for (const char *id : { "juliet@example.org", "juliet", "romeo@a.long.name.of.a.server.example.org" }) {
            KirvMovedAccount account;
            account.record.key = { QString::fromLatin1(id), QString::fromLatin1(protocol) };
            account.record.password = QStringLiteral("secret");
            account.record.rememberPassword = true;
            moved.accounts << account;
        }
    }
    QString problem;
    QFile file(folder->filePath(QStringLiteral("accounts.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(KirvAccountFile::write(moved, QStringLiteral("a pass phrase of some length"), &problem)) > 0);
    file.close();
    KirvImportWindow *window = nullptr;
    const auto read = [&](const QString &path) {
        client->window()->findChild<KirvMovingWindows *>()->importFrom(path);
        window = client->window()->findChild<KirvImportWindow *>();
        KIRV_TRY(!Windows::child<QWidget>(window, "ImportAccounts_Progress")->isVisible());
        look(window);
    };
    read(folder->filePath(QStringLiteral("missing.json")));
    read(file.fileName());
    Windows::child<QAbstractButton>(window, "ImportAccounts_WithoutPasswords")->click();
    KIRV_TRY(Windows::child<QWidget>(window, "ImportAccounts_List")->isVisible());
    look(window);
    window->reject();
}

void tst_WindowsFit::addFailing()
{
    withoutNetwork = new KirvFakeProtocol(fake);
    withoutNetwork->onConnection = [this](KirvFakeConnection *made) { connection = made; };
    withoutNetwork->server->logIn = KirvFakeServer::Refuses;
    withoutNetwork->server->refusal = KirvFailure(KirvFailure::AccessDenied, longText(4));
    QVERIFY(client->plugins().addProtocol(withoutNetwork));
    KirvAccountRecord record;
    record.key = { QStringLiteral("romeo@a.long.name.of.a.server.example.org"), fake };
    record.defaultPresence = record.lastPresence = withoutNetwork->presences().first().getId();
    record.password = QStringLiteral("secret");
    QVERIFY(client->accounts().create(record, withoutNetwork));
    KIRV_TRY(account(fake)->lastFailure().isFailure());
    Windows::settle();
    auto *list = Windows::child<QTreeWidget>(client->accountsPage(), "Accounts_List");
    const QList<QTreeWidgetItem *> rows = list->findItems(record.key.id, Qt::MatchExactly, 2);
    QCOMPARE(rows.size(), 1);
    list->setCurrentItem(rows.first());
    Windows::settle();
}

void tst_WindowsFit::openPage(const QString &name, const Look &look)
{
    if (name == QLatin1String("failed account")) {
        addFailing();
    } else if (name == QLatin1String("search")) {
        client->accountsPage()->findChild<KirvAccountSearch *>()->open();
        auto *field = Windows::child<QLineEdit>(client->accountsPage(), "Accounts_Search");
        QVERIFY(field->isVisible());
        look(client->window());
        field->setText(QStringLiteral("juliet"));
        KIRV_TRY(Windows::child<QWidget>(client->accountsPage(), "Accounts_SearchCount")->isVisible());
    } else if (name == QLatin1String("messages")) {
        client->window()->messageBar()->showMessage(KirvFailure(KirvFailure::UntrustedCertificate).text());
        client->window()->messageBar()->showMessage(longText(4), KirvAccountLogWindow::tr("&Report…"), [] {});
        QVERIFY(client->window()->messageBar()->isVisible());
    } else if (name == QLatin1String("empty")) {
        const QList<KirvAccount *> all = client->accounts().accounts();
        for (KirvAccount *removed : all)
            QVERIFY(client->accounts().remove(removed));
    } else {
        auto *general = Windows::child<QWidget>(client->window(), "General");
        QVERIFY(general);
        client->window()->showPage(general);
    }
    look(client->window());
}

void tst_WindowsFit::lookAtSteps(QWidget *window, const Look &look)
{
    KIRV_TRY(connection && connection->state() == KirvConnection::Connecting);
    for (int kind = KirvLoginStep::NameLookup; kind <= KirvLoginStep::LogIn; ++kind)
        connection->reportStep({ KirvLoginStep::Kind(kind), KirvLoginStep::Running, longText(kind) });
    look(window);
    connection->loginFailed(KirvFailure(KirvFailure::AccessDenied, longText(8)));
    look(window);
}

void tst_WindowsFit::openHelpWindows(const Look &look)
{
    addFailing();
    auto *help = client->window()->findChild<KirvAccountHelp *>();
    KirvAccount *failed = account(fake);
    help->showLog(failed);
    auto *log = client->window()->findChild<KirvAccountLogWindow *>();
    QVERIFY(log);
    look(log);
    help->showReport(failed->key());
    auto *report = client->window()->findChild<KirvReportWindow *>();
    QVERIFY(report);
    look(report);
    QVERIFY(!report->save(folder->filePath(QStringLiteral("missing/report.txt"))));
    look(report);
    withoutNetwork->server->logIn = KirvFakeServer::Holds;
    connection.clear();
    help->testLogin(failed);
    auto *test = client->window()->findChild<KirvLoginTestDialog *>();
    QVERIFY(test);
    lookAtSteps(test, look);
    test->reject();
}

void tst_WindowsFit::openLoginTestInAddWindow(const Look &look)
{
    addFailing();
    withoutNetwork->server->logIn = KirvFakeServer::Holds;
    openAddWindow(fake, [&](QWidget *window) {
        Windows::child<QLineEdit>(window, "AddAccount_UsernameEdit")->setText(QStringLiteral("juliet"));
        connection.clear();
        Windows::child<QPushButton>(window, "AddAccount_TestLogIn")->click();
        lookAtSteps(window, look);
    });
}

/// One to trust, one in place of another one, and one that is trusted.
void tst_WindowsFit::openCertificateQuestions(const Look &look) const
{
    KirvAccount *asked = client->accounts().accounts().first();
    const QList<QSslError> errors { QSslError(QSslError::SelfSignedCertificate), QSslError(QSslError::HostNameMismatch),
                                    QSslError(QSslError::CertificateExpired) };
    KirvServerCertificate certificate(QSslCertificate(), errors, longText(1));
    certificate.subject = certificate.issuer = longText(3);
    certificate.names = QStringList { longText(1), longText(2) };
    certificate.validFrom = certificate.validUntil = QDateTime::currentDateTime();
    certificate.fingerprint = QByteArray(32, '\x1a');
    const auto ask = [&](KirvCertificateQuestion::Kind kind) {
        KirvCertificateQuestion question(kind, *asked, certificate, client->window());
        question.open();
        look(&question);
    };
    ask(KirvCertificateQuestion::ToTrust);
    asked->change([](KirvAccountRecord &record) { record.trustedCertificate = QString(64, QLatin1Char('b')); });
    ask(KirvCertificateQuestion::ToTrust);
    ask(KirvCertificateQuestion::ToForget);
}

/// What can be done with an account on its server, up to the failure without a connection.
void tst_WindowsFit::openRequests(KirvProtocolBase *protocol, const Look &look)
{
    isSeen = true; // not every protocol has one
    const QList<KirvAccountAction> actions = protocol->accountActions();
    for (const KirvAccountAction &action : actions) {
        const std::unique_ptr<KirvConnection> offline(protocol->createConnection());
        const std::unique_ptr<KirvServerRequest> request(protocol->createAccountRequest(action.id, offline.get()));
        QVERIFY(request);
        KirvServerAssistant assistant(request.get(), client->window());
        request->start();
        assistant.show();
        look(&assistant);
        for (int submitted = 0; submitted < 2; ++submitted) {
            const auto lines = assistant.findChildren<QLineEdit *>();
            for (QLineEdit *line : lines)
                line->setText(submitted > 0 ? QStringLiteral("secret") : QString());
            KirvAssistantWindow::next()->click();
            look(&assistant);
        }
        QVERIFY(!KirvAssistantWindow::message().isEmpty());
    }
}

void tst_WindowsFit::open(const QString &name, const Look &look)
{
    if (name == QLatin1String("page")) {
        look(client->window());
    } else if (name == QLatin1String("plug-ins")) {
        client->window()->showPage(client->pluginsPage());
        look(client->window());
    } else if (name == QLatin1String("export")) {
        openExportWindow(look);
    } else if (name == QLatin1String("import")) {
        openImportWindow(look);
    } else if (name == QLatin1String("help")) {
        openHelpWindows(look);
    } else if (name == QLatin1String("add, tested")) {
        openLoginTestInAddWindow(look);
    } else if (name == QLatin1String("certificate")) {
        openCertificateQuestions(look);
    } else if (QStringList { "general", "empty", "failed account", "search", "messages" }.contains(name)) {
        openPage(name, look);
    }
    const QString first = client->plugins().protocols().first()->getName();
    if (name == QLatin1String("password")) {
        Q_EMIT client->accountsPage()->findChild<KirvAccountsPageCompanion *>()->passwordRequested(account(first));
        auto *question = client->window()->findChild<KirvPasswordDialog *>();
        QVERIFY(question);
        look(question);
        question->reject();
    }
    for (KirvProtocolBase *protocol : client->plugins().protocols()) {
        const QString of = protocol->getName();
        if (name == QLatin1String("add"))
            openAddWindow(of, look);
        else if (name == QLatin1String("edit"))
            openEditWindow(of, 0, look);
        else if (name == QLatin1String("directory"))
            openEditWindow(of, 1, look);
        else if (name == QLatin1String("register"))
            openAssistant(of, look);
        else if (name == QLatin1String("requests"))
            openRequests(protocol, look);
    }
}

/// As it opens, and small.
void tst_WindowsFit::checkSizes(QWidget *window, const QString &name)
{
    Windows::settle();
    const QSize small = smallSize();
    const QSize available = window->screen()->availableSize().expandedTo(small);
    QVERIFY2(window->width() <= available.width() && window->height() <= available.height(),
             qPrintable(QStringLiteral("%1 x %2").arg(window->width()).arg(window->height())));
    picture(window, name);
    const auto listed = [window] { return misplaced(window).join(QLatin1Char('\n')); };
    const bool isRoomEnough = window->screen()->availableSize().expandedTo(small) == window->screen()->availableSize();
    if (isRoomEnough)
        QCOMPARE(listed(), QString());
    window->resize(small);
    Windows::settle();
    picture(window, name + QStringLiteral(" small"));
    QVERIFY2(window->size() == small, qPrintable(widest(window)));
    QCOMPARE(listed(), QString());
}

/// Nothing is clipped at any width, from the small one on, until labels have long been beside their controls.
void tst_WindowsFit::checkWidths(QWidget *window)
{
    const QSize small = smallSize();
    const int step = isUsualScale() ? 3 : 13; // 3 pixels are less than the gap beside a label
    QStringList clipped;
    for (int width = small.width(); width < small.width() * 4 / 3; width += step) {
        window->resize(width, small.height());
        Windows::settle();
        const QStringList names = misplaced(window);
        for (const QString &name : names)
            clipped << QStringLiteral("%1: %2").arg(width).arg(name);
    }
    window->resize(small); // for the next look at it
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.mid(0, 20).join(QLatin1Char('\n'))));
}

void tst_WindowsFit::windowFits_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("language");
    const QStringList chosen = languages();
    for (const char *window :
         { "page", "failed account", "search", "messages", "empty", "plug-ins", "general", "add", "add, tested", "edit",
           "directory", "password", "certificate", "help", "register", "requests", "export", "import" }) {
        for (const QString &language : chosen)
            QTest::addRow("%s, %s", window, qPrintable(language)) << QString::fromLatin1(window) << language;
    }
}

void tst_WindowsFit::start(const QString &language)
{
    translations = std::make_unique<KirvTranslations>(*qApp, QStringLiteral(KIRV_TRANSLATIONS));
    KirvClientOptions options;
    options.profileFolder = folder->filePath(QStringLiteral("profile"));
    {
        KirvStore store; // the start uses the language of the profile
        QVERIFY(store.open(options.profileFolder));
        QVERIFY(store.writeSetting(QStringLiteral("language"), language));
    }
    options.pluginFolder = QStringLiteral(KIRV_FITTED_PROTOCOLS);
    client = std::make_unique<KirvClient>(options);
    QVERIFY(client->start());
    QCOMPARE(translations->chosen(), language);
    client->window()->show();
    KIRV_TRY(client->arePluginsLoaded());
    for (KirvProtocolBase *protocol : client->plugins().protocols()) {
        KirvAccountRecord record;
        record.key = { QStringLiteral("juliet@example.org"), protocol->getName() };
        if (!protocol->loginProblem(record.key.id).isEmpty())
            record.key.id = QStringLiteral("juliet");
        record.enabled = false;
        record.defaultPresence = record.lastPresence = protocol->presences().first().getId();
        QVERIFY2(client->accounts().create(record, protocol), qPrintable(client->accounts().lastError()));
    }
    Windows::settle();
}

/// Looks at both in one start of the client, which takes half of the time of a row.
void tst_WindowsFit::windowFits()
{
    QFETCH(QString, window);
    QFETCH(QString, language);
    start(language);
    int looks = 0;
    open(window, [&](QWidget *opened) {
        isSeen = true;
        checkSizes(opened, QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(" %1").arg(++looks));
        if (!QTest::currentTestFailed())
            checkWidths(opened);
    });
    QVERIFY(isSeen);
}

QTEST_MAIN(tst_WindowsFit)
#include "tst_windows_fit.moc"

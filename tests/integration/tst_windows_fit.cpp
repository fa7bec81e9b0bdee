// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_accounts_page_companion.h"
#include "client/kirv_client.h"
#include "client/kirv_export_window.h"
#include "client/kirv_import_window.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_server_commands.h"
#include "client/kirv_settings_window.h"
#include "client/kirv_translations.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/moving/kirv_account_file.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/store/kirv_store.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_assistant_window.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>

namespace {

using Windows = KirvClientWindows;
const QSize small(480, 360);

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
        if (widget->isVisible() && needed > small.width() / 2)
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

/// Every window fits a small screen and its own size, in each language and direction. CTest runs it a second time with
/// twice the scale.
class tst_WindowsFit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowFits_data();
    void windowFits();

private:
    using Look = std::function<void(QWidget *window)>;

    void open(const QString &name, const Look &look);
    void openAddWindow(const QString &protocol, const Look &look);
    void openEditWindow(const QString &protocol, int tab, const Look &look);
    void openAssistant(const QString &protocol, const Look &look);
    void openExportWindow(const Look &look);
    void openImportWindow(const Look &look);
    static void check(QWidget *window, const QString &name);
    KirvAccount *account(const QString &protocol) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvTranslations> translations;
    std::unique_ptr<KirvClient> client;
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
    }
}

void tst_WindowsFit::check(QWidget *window, const QString &name)
{
    Windows::settle();
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

void tst_WindowsFit::windowFits_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("language");
    const KirvTranslations known(*qApp, QStringLiteral(KIRV_TRANSLATIONS));
    for (const char *window :
         { "page", "plug-ins", "add", "edit", "directory", "password", "register", "export", "import" }) {
        for (const QString &language : known.languages())
            QTest::addRow("%s, %s", window, qPrintable(language)) << QString::fromLatin1(window) << language;
    }
}

void tst_WindowsFit::windowFits()
{
    QFETCH(QString, window);
    QFETCH(QString, language);
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
    int looks = 0;
    open(window, [&](QWidget *opened) {
        isSeen = true;
        check(opened, QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(" %1").arg(++looks));
    });
    QVERIFY(isSeen);
}

QTEST_MAIN(tst_WindowsFit)
#include "tst_windows_fit.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/system/kirv_windows.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_status.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_connection.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

namespace {

enum Page { AccountsPage, PluginsPage };
enum Column { AliasColumn, ProtocolColumn, IdColumn };

/// Waits until the window has arranged itself and \a widget is what the mouse would meet there.
bool scrollTo(QWidget *widget)
{
    return QTest::qWaitFor(
        [widget] {
            QWidget *window = widget->window();
            const auto areas = window->findChildren<QScrollArea *>();
            for (QScrollArea *area : areas) {
                if (area->isAncestorOf(widget))
                    area->ensureWidgetVisible(widget);
            }
            QWidget *met = window->childAt(widget->mapTo(window, widget->rect().center()));
            return met && (met == widget || widget->isAncestorOf(met));
        },
        kirvPatience);
}

} // namespace

KirvWindows::KirvWindows()
{
    options.profileFolder = files.filePath(QStringLiteral("profile"));
    options.pluginFolder = QStringLiteral(KIRV_PROTOCOL_FOLDER);
}

KirvWindows::~KirvWindows()
{
    quit();
}

bool KirvWindows::start()
{
    quit();
    client = std::make_unique<KirvClient>(options);
    if (!client->start()) {
        qWarning("%s", qPrintable(client->errorString()));
        return false;
    }
    client->window()->show();
    return QTest::qWaitForWindowExposed(client->window(), kirvPatience)
        && QTest::qWaitFor([this] { return client->arePluginsLoaded(); }, kirvPatience);
}

void KirvWindows::quit()
{
    client.reset();
}

bool KirvWindows::add(const QString &protocol, const QString &configuration, const QString &login,
                      const QString &password, const std::function<void(QWidget *)> &fillIn, bool isAccepted)
{
    showPage(AccountsPage);
    const auto window = [] { return KirvWindowDriver::window(QStringLiteral("AddAccount")); };
    const auto saveButton = [window] { return button(window(), "AddAccount_ButtonFrame", QDialogButtonBox::Save); };
    KirvWindowDriver driver(files.path());
    driver.expectOnTop(
        QStringLiteral("The page is there"), [this] { return client->accountsPage()->isVisible(); },
        [this] { KirvWindowDriver::openMenu(child<QToolButton>(client->accountsPage(), "Accounts_AddButton")); });
    driver.expect(
        QStringLiteral("The menu offers %1").arg(protocol),
        [protocol] { return KirvWindowDriver::menuOffers(protocol); },
        [protocol] { KirvWindowDriver::clickInMenu(protocol); });
    driver.expect(
        QStringLiteral("The window opens, with Save disabled"), [=] { return window() && !saveButton()->isEnabled(); },
        [=] {
            KirvWindowDriver::choose(child<QComboBox>(window(), "AddAccount_Configuration"), configuration);
            KirvWindowDriver::type(child<QLineEdit>(window(), "AddAccount_UsernameEdit"), login);
            KirvWindowDriver::type(child<QLineEdit>(window(), "AddAccount_PasswordEdit"), password);
            if (fillIn)
                fillIn(window());
        });
    driver.expect(
        QStringLiteral("Save is enabled"), [=] { return saveButton()->isEnabled(); },
        [=] { KirvWindowDriver::click(saveButton()); });
    if (!isAccepted) {
        driver.expect(
            QStringLiteral("The account is refused"), [this] { return question(); },
            [this] { KirvWindowDriver::click(question()->button(QMessageBox::Ok)); });
        driver.expect(
            QStringLiteral("The window is still open, as it was"),
            [=] {
                return !question() && window()
                    && child<QLineEdit>(window(), "AddAccount_UsernameEdit")->text() == login;
            },
            [=] { KirvWindowDriver::click(button(window(), "AddAccount_ButtonFrame", QDialogButtonBox::Cancel)); });
    }
    driver.expectOnTop(QStringLiteral("The window is gone"), [window] { return !window(); });
    return driver.run();
}

QDialog *KirvWindows::edit(const QString &login)
{
    showPage(AccountsPage);
    if (!QTest::qWaitFor([this] { return client->accountsPage()->isVisible(); }, kirvPatience))
        return nullptr;
    list()->scrollToItem(row(login));
    KirvWindowDriver::doubleClick(list()->viewport(), list()->visualItemRect(row(login)).center());
    return openEditWindow();
}

QDialog *KirvWindows::openEditWindow() const
{
    QWidget *window = nullptr;
    const bool isOpen = QTest::qWaitFor(
        [&window] {
            return (window = KirvWindowDriver::window(QStringLiteral("EditAccount")))
                && window->windowHandle()->isExposed();
        },
        kirvPatience);
    return isOpen ? qobject_cast<QDialog *>(window) : nullptr;
}

bool KirvWindows::save(QDialog *editWindow)
{
    KirvWindowDriver::click(button(editWindow, "EditAccount_FrameButtons", QDialogButtonBox::Save));
    return QTest::qWaitFor([] { return !KirvWindowDriver::window(QStringLiteral("EditAccount")); }, kirvPatience);
}

void KirvWindows::fill(QWidget *window, const QString &id, const QString &value)
{
    auto *field = child<QWidget>(window, qPrintable(QStringLiteral("KirvField_") + id));
    if (!scrollTo(field))
        qWarning("The field %s cannot be seen.", qPrintable(id));
    if (auto *box = qobject_cast<QComboBox *>(field)) {
        KirvWindowDriver::choose(box, value);
        return;
    }
    auto *edit = qobject_cast<QLineEdit *>(field);
    KirvWindowDriver::type(edit ? edit : field->findChild<QLineEdit *>(), value);
}

QTreeWidget *KirvWindows::list() const
{
    return child<QTreeWidget>(client->accountsPage(), "Accounts_List");
}

QTreeWidgetItem *KirvWindows::row(const QString &login) const
{
    return list()->findItems(login, Qt::MatchExactly | Qt::MatchCaseSensitive, IdColumn).value(0);
}

QComboBox *KirvWindows::selector() const
{
    return child<QComboBox>(client->accountsPage(), "Accounts_MainAccount");
}

void KirvWindows::select(const QString &login) const
{
    list()->setCurrentItem(row(login));
}

void KirvWindows::toggle(const QString &login) const
{
    list()->setCurrentItem(row(login), AliasColumn);
    KirvWindowDriver::pressKey(list(), Qt::Key_Space);
}

QMessageBox *KirvWindows::question() const
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

KirvAccount *KirvWindows::account(const QString &login) const
{
    for (KirvAccount *account : client->accounts().accounts()) {
        if (account->key().id == login)
            return account;
    }
    return nullptr;
}

QString KirvWindows::state(const QString &login) const
{
    const KirvAccount *shown = account(login);
    return shown ? KirvAccountStatus(*shown, false).text() : QString();
}

bool KirvWindows::hasGivenUp(const QString &login) const
{
    const KirvAccount *shown = account(login);
    return shown && KirvAccountStatus(*shown, false).kind() == KirvAccountStatus::Failed;
}

QString KirvWindows::problem(const QString &login) const
{
    const KirvAccount *shown = account(login);
    return shown ? shown->lastFailure().text().simplified() : QString();
}

QString KirvWindows::reason(const QString &login) const
{
    select(login);
    const auto *text = child<QTextEdit>(client->accountsPage(), "Accounts_StripReason");
    return text ? text->toPlainText() : QString();
}

QString KirvWindows::title() const
{
    return client->window()->windowTitle();
}

QString KirvWindows::messages() const
{
    return client->window()->messageBar()->messages().join(QLatin1Char('\n'));
}

void KirvWindows::reconnect(const QString &login)
{
    showPage(AccountsPage);
    list()->setCurrentItem(row(login));
    auto *button = child<QPushButton>(client->accountsPage(), "Accounts_ReconnectButton");
    QVERIFY(QTest::qWaitFor([button] { return button->isEnabled(); }, kirvPatience));
    KirvWindowDriver::click(button);
}

bool KirvWindows::goTo(const QString &login, const QString &presence)
{
    showPage(AccountsPage);
    const QPoint position = list()->visualItemRect(row(login)).center();
    QContextMenuEvent wish(QContextMenuEvent::Mouse, position, list()->viewport()->mapToGlobal(position));
    QApplication::sendEvent(list()->viewport(), &wish);
    for (const QString &command : { QStringLiteral("Pre&sence"), presence }) {
        if (!QTest::qWaitFor([command] { return KirvWindowDriver::menuOffers(command); }, kirvPatience))
            return false;
        KirvWindowDriver::clickInMenu(command);
    }
    return QTest::qWaitFor([] { return !QApplication::activePopupWidget(); }, kirvPatience);
}

void KirvWindows::hurry(const QString &login) const
{
    KirvConnection::Timing timing;
    timing.loginTimeout = 500;
    timing.backOff.first = 50;
    timing.backOff.last = 200;
    account(login)->connection()->setTiming(timing);
}

void KirvWindows::setLoaded(const QString &protocol, bool loaded)
{
    showPage(PluginsPage);
    auto *plugins = child<QTreeWidget>(client->pluginsPage(), "Plugins_List");
    plugins->setCurrentItem(plugins->findItems(protocol, Qt::MatchExactly).value(0));
    KirvWindowDriver::click(
        child<QPushButton>(client->pluginsPage(), loaded ? "Plugins_LoadButton" : "Plugins_UnloadButton"));
    if (auto *anyway = client->pluginsPage()->findChild<QPushButton *>(QStringLiteral("Plugins_UnloadAnyway")))
        KirvWindowDriver::click(anyway); // accounts are connected
}

void KirvWindows::showPage(int index)
{
    auto *pages = child<QListWidget>(client->window(), "Settings_Pages");
    pages->setFocus();
    pages->setCurrentRow(index);
}

QString KirvWindows::pluginFile(const QString &protocol) const
{
    const QList<KirvPluginInfo> plugins = client->plugins().plugins();
    for (const KirvPluginInfo &plugin : plugins) {
        if (plugin.name == protocol)
            return plugin.fileName;
    }
    return QString();
}

bool KirvWindows::profileHolds(const QByteArray &text) const
{
    QDirIterator entries(options.profileFolder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        if (file.open(QFile::ReadOnly) && file.readAll().contains(text))
            return true;
    }
    return false;
}

QPushButton *KirvWindows::button(const QWidget *window, const char *box, QDialogButtonBox::StandardButton which)
{
    return child<QDialogButtonBox>(window, box)->button(which);
}

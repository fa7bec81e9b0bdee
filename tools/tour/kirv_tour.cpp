// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/tour/kirv_tour.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_status.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>

#include <cstdio>

namespace {
const QString xmpp = QStringLiteral("XMPP");
const QString irc = QStringLiteral("IRC");
const QString add = QStringLiteral("AddAccount");
const QString edit = QStringLiteral("EditAccount");
const QString exportWindow = QStringLiteral("ExportAccounts");
const QString importWindow = QStringLiteral("ImportAccounts");
const QString settings = QStringLiteral("Settings");
const QString passPhrase = QStringLiteral("seven green horses");
enum Column { AliasColumn, ProtocolColumn };

/// The child of that name of the visible window \a window; null when there is none.
template <typename T>
T *child(const QString &window, const QString &name)
{
    QWidget *top = KirvWindowDriver::window(window);
    return top ? top->findChild<T *>(name) : nullptr;
}

QPushButton *button(const QString &window, const QString &box, QDialogButtonBox::StandardButton which)
{
    const auto *buttons = child<QDialogButtonBox>(window, box);
    return buttons ? buttons->button(which) : nullptr;
}

QPushButton *saveInAddWindow()
{
    return button(add, QStringLiteral("AddAccount_ButtonFrame"), QDialogButtonBox::Save);
}

QPushButton *saveInEditWindow()
{
    return button(edit, QStringLiteral("EditAccount_FrameButtons"), QDialogButtonBox::Save);
}

void typeInto(const QString &window, const QString &name, const QString &text)
{
    KirvWindowDriver::type(child<QLineEdit>(window, name), text);
}

void chooseIn(const QString &window, const QString &name, const QString &text)
{
    KirvWindowDriver::choose(child<QComboBox>(window, name), text);
}

void showPage(int index)
{
    auto *pages = child<QListWidget>(settings, QStringLiteral("Settings_Pages"));
    KirvWindowDriver::click(pages->viewport());
    for (int i = 0; i < pages->count(); ++i)
        KirvWindowDriver::pressKey(pages, Qt::Key_Up);
    for (int i = 0; i < index; ++i)
        KirvWindowDriver::pressKey(pages, Qt::Key_Down);
}

/// Types the path of the file in the file dialog, and confirms it.
void chooseFile(const QString &dialog, const QString &path)
{
    const QString line = QStringLiteral("fileNameEdit");
    typeInto(dialog, line, path);
    KirvWindowDriver::pressKey(child<QLineEdit>(dialog, line), Qt::Key_Return);
}

/// The visible part of that name; null when there is none.
template <typename T>
T *shown(const QString &window, const QString &name)
{
    T *part = child<T>(window, name);
    return part && part->isVisible() ? part : nullptr;
}

QMessageBox *question()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}
} // namespace

KirvTour::KirvTour(KirvDemo &demo, const QString &folder)
    : demo(demo)
    , options(KirvClientOptions::defaults())
    , driver(folder)
{
    options.profileFolder = demo.profileFolder();
}

bool KirvTour::run()
{
    startClient();
    if (!client)
        return false;
    planFirstAccount();
    planRestart();
    planEditing();
    planWrongPassword();
    if (demo.hasIrc())
        planIrcAccount();
    planExport();
    planImport();
    planDisabling();
    planRemoving();
    return driver.run();
}

void KirvTour::startClient()
{
    client = std::make_unique<KirvClient>(options);
    if (!client->start()) {
        std::printf("FAILED  The client starts: %s\n", qPrintable(client->errorString()));
        client.reset();
        return;
    }
    client->window()->setBanner(demo.instructions());
    client->window()->show();
}

void KirvTour::planFirstAccount()
{
    driver.expectOnTop(
        QStringLiteral("The settings window opens on the Accounts page"),
        [this] { return page() && page()->isVisible() && client->arePluginsLoaded(); },
        [this] { KirvWindowDriver::openMenu(page()->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton"))); });
    driver.expect(
        QStringLiteral("The menu of the add button offers XMPP"), [] { return KirvWindowDriver::menuOffers(xmpp); },
        [] { KirvWindowDriver::clickInMenu(xmpp); });
    driver.expect(
        QStringLiteral("The window for a new account opens"), [] { return KirvWindowDriver::window(add); },
        [] { chooseIn(add, QStringLiteral("AddAccount_Configuration"), QStringLiteral("Server on this computer")); });
    driver.expect(
        QStringLiteral("The ready-made configuration is chosen; Save is disabled without login and password"),
        [] {
            const auto *box = child<QComboBox>(add, QStringLiteral("AddAccount_Configuration"));
            return box->currentText() == QLatin1String("Server on this computer") && !saveInAddWindow()->isEnabled();
        },
        [this] { typeInto(add, QStringLiteral("AddAccount_UsernameEdit"), demo.address()); });
    driver.expect(
        QStringLiteral("Save is disabled without a password"),
        [this] {
            return child<QLineEdit>(add, QStringLiteral("AddAccount_UsernameEdit"))->text() == demo.address()
                && !saveInAddWindow()->isEnabled();
        },
        [this] { typeInto(add, QStringLiteral("AddAccount_PasswordEdit"), demo.password()); });
    driver.expect(
        QStringLiteral("Save is enabled with login and password"), [] { return saveInAddWindow()->isEnabled(); },
        [] {
            auto *remember = child<QCheckBox>(add, QStringLiteral("AddAccount_RememberPasswordCheckbox"));
            if (!remember->isChecked())
                KirvWindowDriver::pressKey(remember, Qt::Key_Space);
            chooseIn(add, QStringLiteral("AddAccount_PresenceCombo"), QStringLiteral("Away"));
        });
    driver.expect(
        QStringLiteral("The presence Away is chosen"),
        [] {
            return child<QComboBox>(add, QStringLiteral("AddAccount_PresenceCombo"))->currentText()
                == QLatin1String("Away");
        },
        [] { KirvWindowDriver::click(saveInAddWindow()); });
    driver.expectOnTop(
        QStringLiteral("The account stands in the list, checked"),
        [this] {
            return !KirvWindowDriver::window(add) && row(xmpp) && row(xmpp)->text(AliasColumn) == demo.address()
                && row(xmpp)->checkState(AliasColumn) == Qt::Checked;
        },
        [this] { select(xmpp); });
    driver.expect(QStringLiteral("The row says that the account is connected"),
                  [this] { return state(xmpp) == QLatin1String("Connected"); });
    driver.expect(QStringLiteral("The server sees the session"), [this] { return demo.isOnline(); });
}

void KirvTour::planRestart()
{
    driver.expectOnTop(
        QStringLiteral("The client quits"), [] { return true; },
        [this] {
            client.reset();
            startClient();
        });
    driver.expectOnTop(
        QStringLiteral("After the next start the account is back"),
        [this] { return client && row(xmpp) && row(xmpp)->checkState(AliasColumn) == Qt::Checked; },
        [this] { select(xmpp); });
    driver.expect(
        QStringLiteral("It has logged in by itself"), [this] { return state(xmpp) == QLatin1String("Connected"); },
        [] { showPage(0); });
}

void KirvTour::planEditing()
{
    driver.expectOnTop(
        QStringLiteral("The Accounts page is shown again"), [this] { return page()->isVisible(); },
        [this] { openEditWindow(xmpp); });
    driver.expect(
        QStringLiteral("A double click opens the window of the account, filled in"),
        [this] {
            const auto *alias = child<QLineEdit>(edit, QStringLiteral("EditAccount_Alias"));
            return alias && alias->text() == demo.address();
        },
        [] {
            typeInto(edit, QStringLiteral("EditAccount_Alias"), QStringLiteral("Anna at home"));
            child<QTabWidget>(edit, QStringLiteral("EditAccount_Tabs"))->setCurrentIndex(1);
        });
    driver.expect(
        QStringLiteral("The directory entry comes from the server"),
        [] {
            const auto *fields = child<QWidget>(edit, QStringLiteral("EditAccount_PubDirResults"));
            const auto *name = fields ? fields->findChild<QLineEdit *>() : nullptr;
            return name && name->isEnabled();
        },
        [] { KirvWindowDriver::click(saveInEditWindow()); });
    driver.expectOnTop(QStringLiteral("The row shows the new alias"), [this] {
        return !KirvWindowDriver::window(edit) && row(xmpp)->text(AliasColumn) == QLatin1String("Anna at home");
    });
}

void KirvTour::planWrongPassword()
{
    const auto changePassword = [this](const QString &text, const QString &password) {
        driver.expectOnTop(
            text, [this] { return page()->isVisible() && !KirvWindowDriver::window(edit); },
            [this] { openEditWindow(xmpp); });
        driver.expect(
            QStringLiteral("The window of the account opens"), [] { return KirvWindowDriver::window(edit); },
            [password] {
                typeInto(edit, QStringLiteral("EditAccount_Password"), password);
                KirvWindowDriver::click(saveInEditWindow());
            });
        driver.expectOnTop(
            QStringLiteral("The change is saved"), [] { return !KirvWindowDriver::window(edit); },
            [this] { select(xmpp); });
    };
    changePassword(QStringLiteral("The password is changed to a wrong one"), QStringLiteral("mistyped"));
    driver.expect(
        QStringLiteral("The row says that the password is wrong"),
        [this] {
            return state(xmpp) == QLatin1String("Wrong password")
                && problem(xmpp).contains(QLatin1String("password"), Qt::CaseInsensitive);
        },
        [] { showPage(0); });
    changePassword(QStringLiteral("The password is changed back"), demo.password());
    driver.expect(
        QStringLiteral("The account is connected again"),
        [this] { return state(xmpp) == QLatin1String("Connected") && problem(xmpp).isEmpty(); }, [] { showPage(0); });
}

void KirvTour::planIrcAccount()
{
    driver.expectOnTop(
        QStringLiteral("An IRC account is added beside it"), [this] { return page()->isVisible(); },
        [this] { KirvWindowDriver::openMenu(page()->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton"))); });
    driver.expect(
        QStringLiteral("The menu of the add button offers IRC"), [] { return KirvWindowDriver::menuOffers(irc); },
        [] { KirvWindowDriver::clickInMenu(irc); });
    driver.expect(
        QStringLiteral("The window for a new account opens"), [] { return KirvWindowDriver::window(add); },
        [this] {
            chooseIn(add, QStringLiteral("AddAccount_Configuration"), QStringLiteral("Server on this computer"));
            typeInto(add, QStringLiteral("AddAccount_UsernameEdit"), QStringLiteral("anna"));
            typeInto(add, QStringLiteral("AddAccount_PasswordEdit"), demo.password());
        });
    driver.expect(
        QStringLiteral("Save is enabled with nickname and password"), [] { return saveInAddWindow()->isEnabled(); },
        [] { KirvWindowDriver::click(saveInAddWindow()); });
    driver.expectOnTop(
        QStringLiteral("Both accounts stand in the list"),
        [this] { return row(irc) && row(xmpp) && row(irc)->checkState(AliasColumn) == Qt::Checked; },
        [this] { select(irc); });
    driver.expect(
        QStringLiteral("The IRC account is connected"), [this] { return state(irc) == QLatin1String("Connected"); },
        [] { showPage(0); });
}

void KirvTour::planExport()
{
    const QString path = exports.filePath(QStringLiteral("accounts.json"));
    driver.expectOnTop(
        QStringLiteral("The General page is opened"), [this] { return page()->isVisible(); }, [] { showPage(2); });
    driver.expect(
        QStringLiteral("It offers to export the accounts"),
        [] { return shown<QPushButton>(settings, QStringLiteral("General_ExportButton")); },
        [] { KirvWindowDriver::click(child<QPushButton>(settings, QStringLiteral("General_ExportButton"))); });
    driver.expect(
        QStringLiteral("All accounts are chosen"),
        [] {
            const auto *all = child<QCheckBox>(exportWindow, QStringLiteral("ExportAccounts_All"));
            return all && all->checkState() == Qt::Checked;
        },
        [] {
            KirvWindowDriver::pressKey(child<QCheckBox>(exportWindow, QStringLiteral("ExportAccounts_Passwords")),
                                       Qt::Key_Space);
            typeInto(exportWindow, QStringLiteral("ExportAccounts_PassPhrase"), passPhrase);
            typeInto(exportWindow, QStringLiteral("ExportAccounts_Repetition"), passPhrase);
        });
    driver.expect(
        QStringLiteral("A pass phrase that was repeated encrypts the passwords"),
        [] { return child<QPushButton>(exportWindow, QStringLiteral("ExportAccounts_Export"))->isEnabled(); },
        [] { KirvWindowDriver::click(child<QPushButton>(exportWindow, QStringLiteral("ExportAccounts_Export"))); });
    driver.expect(
        QStringLiteral("The file is chosen"),
        [] { return KirvWindowDriver::window(QStringLiteral("ExportAccounts_File")); },
        [path] { chooseFile(QStringLiteral("ExportAccounts_File"), path); });
    driver.expect(
        QStringLiteral("The accounts are in the file"),
        [path] {
            return shown<QTextEdit>(exportWindow, QStringLiteral("ExportAccounts_Outcome")) && QFile::exists(path);
        },
        [] { KirvWindowDriver::click(child<QPushButton>(exportWindow, QStringLiteral("ExportAccounts_Close"))); });
}

void KirvTour::planImport()
{
    const QString path = exports.filePath(QStringLiteral("accounts.json"));
    const auto action = [] { return child<QPushButton>(importWindow, QStringLiteral("ImportAccounts_Action")); };
    const auto list = [] { return shown<QTreeWidget>(importWindow, QStringLiteral("ImportAccounts_List")); };
    driver.expectOnTop(
        QStringLiteral("The export window is closed"), [] { return !KirvWindowDriver::window(exportWindow); },
        [] { KirvWindowDriver::click(child<QPushButton>(settings, QStringLiteral("General_ImportButton"))); });
    driver.expect(
        QStringLiteral("The file is chosen for an import"),
        [] { return KirvWindowDriver::window(QStringLiteral("ImportAccounts_File")); },
        [path] { chooseFile(QStringLiteral("ImportAccounts_File"), path); });
    driver.expect(
        QStringLiteral("Its passwords need the pass phrase"),
        [] { return shown<QLineEdit>(importWindow, QStringLiteral("ImportAccounts_PassPhrase")); },
        [action] {
            typeInto(importWindow, QStringLiteral("ImportAccounts_PassPhrase"), passPhrase);
            KirvWindowDriver::click(action());
        });
    driver.expect(
        QStringLiteral("All of its accounts exist, and are kept"),
        [action, list] { return list() && !action()->isEnabled(); },
        [list] { KirvWindowDriver::pressKey(list(), Qt::Key_Space); });
    driver.expect(
        QStringLiteral("One is checked to be replaced"), [action] { return action()->isEnabled(); },
        [action] { KirvWindowDriver::click(action()); });
    driver.expectOnTop(
        QStringLiteral("It was imported, and that can be undone"),
        [] {
            return !KirvWindowDriver::window(importWindow)
                && shown<QPushButton>(settings, QStringLiteral("MessageBar_Command"));
        },
        [] { KirvWindowDriver::click(child<QPushButton>(settings, QStringLiteral("MessageBar_Command"))); });
    driver.expectOnTop(
        QStringLiteral("The import is undone"), [this] { return client->accountHistory().latest() == 0 && row(xmpp); },
        [] { showPage(0); });
}

void KirvTour::planDisabling()
{
    driver.expectOnTop(
        QStringLiteral("The account is unticked while it is connected"), [this] { return page()->isVisible(); },
        [this] {
            row(xmpp)->treeWidget()->setCurrentItem(row(xmpp));
            KirvWindowDriver::pressKey(row(xmpp)->treeWidget(), Qt::Key_Space);
        });
    driver.expect(
        QStringLiteral("A question comes first, and the tick stays"),
        [this] { return question() && row(xmpp)->checkState(AliasColumn) == Qt::Checked; },
        [] { KirvWindowDriver::click(question()->button(QMessageBox::Yes)); });
    driver.expectOnTop(
        QStringLiteral("The account is disabled"),
        [this] { return row(xmpp)->checkState(AliasColumn) == Qt::Unchecked; }, [this] { select(xmpp); });
    driver.expect(QStringLiteral("The row says so"), [this] { return state(xmpp) == QLatin1String("Disabled"); });
    driver.expect(
        QStringLiteral("The server sees the session end"), [this] { return !demo.isOnline(); }, [] { showPage(0); });
}

void KirvTour::planRemoving()
{
    driver.expectOnTop(
        QStringLiteral("The Delete key is pressed on the account"), [this] { return page()->isVisible(); },
        [this] {
            row(xmpp)->treeWidget()->setCurrentItem(row(xmpp));
            KirvWindowDriver::pressKey(row(xmpp)->treeWidget(), Qt::Key_Delete);
        });
    driver.expect(
        QStringLiteral("A question names the account"),
        [] { return question() && question()->text().contains(QLatin1String("Anna at home")); },
        [] { KirvWindowDriver::click(question()->button(QMessageBox::Yes)); });
    driver.expectOnTop(QStringLiteral("The account is gone from the list and from the profile"),
                       [this] { return !row(xmpp) && client->accounts().accountsOf(xmpp).isEmpty(); });
}

QWidget *KirvTour::page() const
{
    return client->accountsPage();
}

/// The row of the account of \a protocol: the tour has one of each.
QTreeWidgetItem *KirvTour::row(const QString &protocol) const
{
    const auto *list = page()->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
    return list->findItems(protocol, Qt::MatchExactly, ProtocolColumn).value(0);
}

void KirvTour::openEditWindow(const QString &protocol) const
{
    QTreeWidget *list = row(protocol)->treeWidget();
    const QRect cell = list->visualItemRect(row(protocol));
    KirvWindowDriver::doubleClick(list->viewport(), QPoint(cell.center().x(), cell.center().y()));
}

void KirvTour::select(const QString &protocol) const
{
    row(protocol)->treeWidget()->setCurrentItem(row(protocol));
}

QString KirvTour::state(const QString &protocol) const
{
    const KirvAccount *account = client->accounts().accountsOf(protocol).value(0);
    return account && page()->isVisible() ? KirvAccountStatus(*account, false).text() : QString();
}

QString KirvTour::problem(const QString &protocol) const
{
    const KirvAccount *account = client->accounts().accountsOf(protocol).value(0);
    return account ? account->lastFailure().text() : QString();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/system/kirv_tested_account.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "host/kirv_account_connection.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_presence.h"
#include "host/kirv_protocol.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QWindow>

namespace {

const char editButtons[] = "EditAccount_FrameButtons";
const char addButtons[] = "AddAccount_ButtonFrame";

/// The visible window with a child called \a child; null when there is none.
QDialog *windowWith(const char *child)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<QDialog *>(widget);
        const auto *part = window && window->isVisible() ? KirvWindows::child<QWidget>(window, child) : nullptr;
        if (part && part->window() == window)
            return window;
    }
    return nullptr;
}

} // namespace

KirvTestedAccount::KirvTestedAccount(KirvWindows &windows, const QString &login, const QString &protocol)
    : windows(windows)
    , login(login)
    , protocol(protocol)
{
}

KirvAccountConnection *KirvTestedAccount::connection() const
{
    return KirvAccountManager::getInstance()->loadAccount(login, protocol);
}

bool KirvTestedAccount::create(const QString &password, const QString &configuration, const QString &presence)
{
    KirvProtocol *owner = KirvPluginManager::getInstance()->getProtocolByName(protocol);
    if (!owner)
        return false;
    KirvAccountManager::getInstance()->createAccount(login, login, password, true, owner,
                                                     owner->createPresenceWithId(presence, QString()),
                                                     owner->getConfigurationFields(configuration));
    return QTest::qWaitFor([this] { return windows.row(login); }, kirvPatience);
}

void KirvTestedAccount::goTo(const QString &presence)
{
    KirvProtocol *owner = connection()->getProtocol();
    connection()->setPresence(owner->createPresenceWithId(presence, QString()));
    owner->accountPresenceChanged(connection());
}

bool KirvTestedAccount::isConnected() const
{
    return windows.state(login) == QLatin1String("Connected");
}

bool KirvTestedAccount::isSettled() const
{
    const QString state = windows.state(login);
    return state != QStringLiteral("Connecting…") && state != QStringLiteral("Logging out…");
}

QString KirvTestedAccount::password() const
{
    return connection()->getPassword();
}

QString KirvTestedAccount::alias() const
{
    return connection()->getAlias();
}

void KirvTestedAccount::remove()
{
    KirvAccountManager::getInstance()->removeAccount(login, protocol);
}

bool KirvTestedAccount::isThere() const
{
    return connection();
}

void KirvTestedAccount::waitForAnswers(int milliseconds)
{
    KirvConnection *internal = windows.account(login)->connection();
    KirvConnection::Timing timing = internal->timing();
    timing.requestTimeout = milliseconds;
    timing.backOff.first = 3600 * 1000;
    timing.backOff.last = timing.backOff.first;
    internal->setTiming(timing);
}

bool KirvTestedAccount::loadProtocol(const QString &fileName)
{
    pluginFile = fileName;
    return windows.client->plugins().load(fileName);
}

bool KirvTestedAccount::unloadProtocol()
{
    return windows.client->plugins().unload(pluginFile.isEmpty() ? windows.pluginFile(protocol) : pluginFile);
}

QDialog *KirvTestedAccount::openEditWindow()
{
    windows.showPage(0);
    if (!QTest::qWaitFor([this] { return windows.client->accountsPage()->isVisible(); }, kirvPatience))
        return nullptr;
    windows.select(login);
    KirvWindowDriver::pressKey(windows.list(), Qt::Key_Return);
    const bool isOpen = QTest::qWaitFor(
        [] { return editWindow() && editWindow()->windowHandle() && editWindow()->windowHandle()->isExposed(); },
        kirvPatience);
    return isOpen ? editWindow() : nullptr;
}

QDialog *KirvTestedAccount::editWindow()
{
    return windowWith(editButtons);
}

QDialog *KirvTestedAccount::addWindow()
{
    return windowWith(addButtons);
}

bool KirvTestedAccount::isOutOfUse(const QPointer<QDialog> &window)
{
    return !window || !window->isVisible() || !saveButton(window)->isEnabled();
}

QPushButton *KirvTestedAccount::saveButton(const QDialog *window)
{
    const auto *box = KirvWindows::child<QDialogButtonBox>(window, editButtons);
    return (box ? box : KirvWindows::child<QDialogButtonBox>(window, addButtons))->button(QDialogButtonBox::Save);
}

void KirvTestedAccount::pressSave(QDialog *window)
{
    KirvWindowDriver::click(saveButton(window));
}

void KirvTestedAccount::pressCancel(QDialog *window)
{
    KirvWindowDriver::click(KirvWindows::button(window, editButtons, QDialogButtonBox::Cancel));
}

void KirvTestedAccount::typePassword(QDialog *editWindow, const QString &password)
{
    KirvWindowDriver::type(KirvWindows::child<QLineEdit>(editWindow, "EditAccount_Password"), password);
}

void KirvTestedAccount::typeAlias(QDialog *editWindow, const QString &alias)
{
    KirvWindowDriver::type(KirvWindows::child<QLineEdit>(editWindow, "EditAccount_Alias"), alias);
}

bool KirvTestedAccount::confirmRefusedSave()
{
    if (!QTest::qWaitFor([this] { return windows.question(); }, kirvPatience))
        return false;
    KirvWindowDriver::click(windows.question()->button(QMessageBox::Ok));
    return QTest::qWaitFor([this] { return !windows.question(); }, kirvPatience);
}

bool KirvTestedAccount::changePasswordOnServer(QDialog *editWindow, const QString &password)
{
    const QString command = QStringLiteral("Change Password on Server…");
    KirvWindowDriver driver(windows.profileFolder());
    driver.expectOnTop(
        QStringLiteral("The edit window is open"), [editWindow] { return editWindow->isVisible(); },
        [editWindow] {
            KirvWindowDriver::openMenu(KirvWindows::child<QPushButton>(editWindow, "EditAccount_ServerAccountButton"));
        });
    driver.expect(
        QStringLiteral("The menu offers the command"), [command] { return KirvWindowDriver::menuOffers(command); },
        [command] { KirvWindowDriver::clickInMenu(command); });
    const auto assistant = [] { return KirvWindowDriver::window(QStringLiteral("ServerAssistant")); };
    if (!driver.run() || !QTest::qWaitFor([=] { return assistant(); }, kirvPatience))
        return false;
    const auto edits = assistant()->findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits)
        KirvWindowDriver::type(edit, password);
    const QPointer<QPushButton> next = KirvWindows::child<QPushButton>(assistant(), "ServerAssistant_NextButton");
    KirvWindowDriver::click(next);
    // It says that the password is changed, or that the store has refused it.
    const auto *message = KirvWindows::child<QWidget>(assistant(), "ServerAssistant_Message");
    const auto isDone = [&] { return !assistant() || (next && next->isEnabled() && message->isVisible()); };
    if (!QTest::qWaitFor(isDone, kirvPatience))
        return false;
    if (assistant())
        KirvWindowDriver::click(KirvWindows::child<QPushButton>(assistant(), "ServerAssistant_CloseButton"));
    return QTest::qWaitFor([=] { return !assistant(); }, kirvPatience);
}

void KirvTestedAccount::showDirectory(QDialog *editWindow)
{
    KirvWindowDriver::pressKey(KirvWindows::child<QTabWidget>(editWindow, "EditAccount_Tabs")->tabBar(), Qt::Key_Right);
}

void KirvTestedAccount::fetchAgain(QDialog *editWindow)
{
    KirvWindowDriver::click(KirvWindows::child<QAbstractButton>(editWindow, "EditAccount_PubDirFetch"));
}

bool KirvTestedAccount::isDirectoryLocked(const QDialog *editWindow)
{
    return !KirvWindows::child<QWidget>(editWindow, "KirvField_town")->isEnabled();
}

QString KirvTestedAccount::directoryStatus(const QDialog *editWindow)
{
    return KirvWindows::child<QLabel>(editWindow, "EditAccount_PubDirStatus")->text();
}

QString KirvTestedAccount::directoryText(const QDialog *editWindow, const QString &field)
{
    const auto *widget = editWindow->findChild<QWidget *>(QLatin1String("KirvField_") + field);
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->text();
    return qobject_cast<const QPlainTextEdit *>(widget)->toPlainText();
}

bool KirvTestedAccount::replaceLayout(const KirvWindows &windows, const QString &layout, const QString &topName)
{
    const QString name = layout + QStringLiteral(".ui");
    QFile original(QStringLiteral(":/kirv/layouts/") + name);
    const QDir folder(windows.profileFolder() + QStringLiteral("/layouts"));
    QFile copy(folder.filePath(name));
    if (!original.open(QFile::ReadOnly) || !folder.mkpath(QStringLiteral(".")) || !copy.open(QFile::WriteOnly))
        return false;
    const QByteArray topWidget = "name=\"" + layout.toUtf8() + "\"";
    const QByteArray content = original.readAll();
    return content.count(topWidget) == 1
        && copy.write(QByteArray(content).replace(topWidget, "name=\"" + topName.toUtf8() + "\"")) > 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_client_windows.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_due_work.h"
#include "tests/support/kirv_patience.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QtTest>

KirvClientWindows::KirvClientWindows(const QString &protocolName, Secrets secrets)
    : protocolName(protocolName)
{
    options.usesKeyring = secrets == InKeyring;
    options.profileFolder = folder.filePath(QStringLiteral("profile"));
    options.pluginFolder = folder.path();
    ready = start();
}

KirvClientWindows::~KirvClientWindows() = default;

bool KirvClientWindows::start()
{
    client = std::make_unique<KirvClient>(options);
    if (!client->start())
        return false;
    protocol = new KirvFakeProtocol(protocolName);
    if (prepare)
        prepare(protocol);
    if (!client->plugins().addProtocol(protocol))
        return false;
    client->window()->show();
    settle();
    return true;
}

void KirvClientWindows::restart()
{
    end();
    ready = start();
}

void KirvClientWindows::end()
{
    client.reset();
    protocol = nullptr;
}

void KirvClientWindows::settle()
{
    kirvRunDueWork(3);
}

KirvAccount *KirvClientWindows::addAccount(const QString &id)
{
    KirvAccountManager::getInstance()->createAccount(id, id, password, true, protocol, protocol->presences().first(),
                                                     protocol->accountSettings());
    settle();
    return account(id);
}

KirvAccount *KirvClientWindows::account(const QString &id) const
{
    return client->accounts().find({ id, protocol->name });
}

QString KirvClientWindows::makePicture(int shade)
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(qRgb(shade, shade, shade));
    const QString path = folder.filePath(QStringLiteral("picture%1.png").arg(shade));
    return image.save(path) ? path : QString();
}

QTreeWidget *KirvClientWindows::list() const
{
    return child<QTreeWidget>(client->accountsPage(), "Accounts_List");
}

QTreeWidgetItem *KirvClientWindows::row(const QString &id) const
{
    for (int i = 0; i < list()->topLevelItemCount(); ++i) {
        if (list()->topLevelItem(i)->text(2) == id)
            return list()->topLevelItem(i);
    }
    return nullptr;
}

QStringList KirvClientWindows::rowIds() const
{
    QStringList ids;
    for (int i = 0; i < list()->topLevelItemCount(); ++i)
        ids << list()->topLevelItem(i)->text(2);
    return ids;
}

QComboBox *KirvClientWindows::selector() const
{
    return child<QComboBox>(client->accountsPage(), "Accounts_MainAccount");
}

QString KirvClientWindows::shownMainAccount() const
{
    const auto *shown = static_cast<KirvAccountConnection *>(selector()->currentData().value<void *>());
    return shown ? shown->getUid() : QString();
}

QAbstractButton *KirvClientWindows::pageButton(const char *name) const
{
    return child<QAbstractButton>(client->accountsPage(), name);
}

void KirvClientWindows::select(const QString &id) const
{
    // Whatever keys the test has pressed last.
    list()->setCurrentItem(row(id), 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QStringList KirvClientWindows::messages() const
{
    return client->window()->messageBar()->messages();
}

void KirvClientWindows::removeInPage(const QString &id)
{
    select(id);
    const KirvWindowWatcher<QMessageBox> answers([](QMessageBox *box) { box->button(QMessageBox::Yes)->click(); });
    pageButton("Accounts_RemoveButton")->click();
    settle();
}

void KirvClientWindows::toggleInPage(const QString &id)
{
    const KirvWindowWatcher<QMessageBox> answers([](QMessageBox *box) { box->button(QMessageBox::Yes)->click(); });
    QTreeWidgetItem *toggled = row(id);
    toggled->setCheckState(0, toggled->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    settle();
}

void KirvClientWindows::chooseMainAccount(const QString &id)
{
    for (int i = 0; i < selector()->count(); ++i) {
        if (static_cast<KirvAccountConnection *>(selector()->itemData(i).value<void *>())->getUid() == id)
            selector()->setCurrentIndex(i);
    }
    settle();
}

bool KirvClientWindows::addInWindow(const QString &id, const std::function<void(QMessageBox *)> &inBox)
{
    const KirvWindowWatcher<QMessageBox> boxWatcher([&](QMessageBox *box) {
        inBox(box);
        box->close();
    });
    bool isAccepted = false;
    const KirvWindowWatcher<KirvLayoutDialog> windowWatcher([&](KirvLayoutDialog *window) {
        const QPointer<KirvLayoutDialog> added(window);
        QObject::connect(window, &QDialog::accepted, [&isAccepted] { isAccepted = true; });
        child<QLineEdit>(window, "AddAccount_UsernameEdit")->setText(id);
        child<QLineEdit>(window, "AddAccount_PasswordEdit")->setText(password);
        child<QDialogButtonBox>(window, "AddAccount_ButtonFrame")->button(QDialogButtonBox::Save)->click();
        if (added && added->isVisible())
            added->reject();
    });
    child<QToolButton>(client->accountsPage(), "Accounts_AddButton")->menu()->actions().first()->trigger();
    settle();
    return isAccepted;
}

void KirvClientWindows::inAddWindow(const std::function<void(KirvLayoutDialog *)> &look) const
{
    bool isRun = false;
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *window) {
        const QPointer<KirvLayoutDialog> added(window);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window, kirvPatience));
        look(window);
        isRun = true;
        if (added && added->isVisible())
            added->reject();
    });
    child<QToolButton>(client->accountsPage(), "Accounts_AddButton")->menu()->actions().first()->trigger();
    settle();
    QVERIFY(isRun);
}

KirvLayoutDialog *KirvClientWindows::edit(const QString &id)
{
    client->accountsPage()->editAccount(account(id));
    const auto *controller = client->accountsPage()->getAccEdit();
    return controller ? qobject_cast<KirvLayoutDialog *>(controller->getWindow()) : nullptr;
}

QPushButton *KirvClientWindows::button(const QWidget *window, QDialogButtonBox::StandardButton which)
{
    return child<QDialogButtonBox>(window, "EditAccount_FrameButtons")->button(which);
}

void KirvClientWindows::save(const QWidget *window)
{
    button(window, QDialogButtonBox::Save)->click();
    settle();
}

void KirvClientWindows::cancel(KirvLayoutDialog *window)
{
    const QPointer<KirvLayoutDialog> open(window);
    closeBoxes();
    if (open)
        button(open, QDialogButtonBox::Cancel)->click();
    settle();
}

KirvAvatarQuickSetWidget *KirvClientWindows::picker(const QWidget *window)
{
    return window->findChild<KirvAvatarQuickSetWidget *>();
}

void KirvClientWindows::pick(const QWidget *window, const QString &path)
{
    QWidget *button = picker(window)->focusProxy();
    if (path.isEmpty()) {
        QTest::keyClick(button, Qt::Key_Delete);
    } else {
        QMimeData data;
        data.setUrls({ QUrl::fromLocalFile(path) });
        QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(button, &enter);
        QDropEvent drop(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(button, &drop);
    }
    settle();
}

QList<QMessageBox *> KirvClientWindows::boxes()
{
    QList<QMessageBox *> shown;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        if (box && box->isVisible())
            shown << box;
    }
    return shown;
}

void KirvClientWindows::closeBoxes()
{
    const QList<QMessageBox *> shown = boxes();
    for (QMessageBox *box : shown)
        box->close();
    settle();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/walk/kirv_walk_user.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_plugins_page.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_avatar_quick_set_widget.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

namespace {
const int maximumAccounts = 8;
}

KirvWalkUser::KirvWalkUser(KirvWalk &walk)
    : walk(walk)
{
}

std::vector<KirvWalkStep> KirvWalkUser::steps()
{
    return {
        { "add", 8, [this] { add(); } },
        { "select", 20, [this] { selectRow(); } },
        { "edit", 6, [this] { editSelected(); } },
        { "activate", 4, [this] { activateRow(); } },
        { "change in edit window", 12, [this] { changeOpenEditWindow(); } },
        { "finish edit window", 8, [this] { finishOpenEditWindow(); } },
        { "use directory", 8, [this] { useDirectory(); } },
        { "edit directory", 3, [this] { editDirectory(); } },
        { "run action", 5, [this] { runAccountAction(); } },
        { "use assistant", 12, [this] { useAssistant(); } },
        { "go through assistant", 4, [this] { goThroughAssistant(); } },
        { "pick avatar", 2, [this] { pickAvatar(); } },
        { "remove", 4, [this] { removeSelected(); } },
        { "toggle", 12, [this] { toggleRow(); } },
        { "answer question", 14, [this] { answerQuestion(); } },
        { "choose main account", 6, [this] { chooseMainAccount(); } },
        { "register", 2, [this] { registerAccount(); } },
        { "answer other window", 12, [this] { answerOtherWindow(); } },
        { "hide or show", 2, [this] { hideOrShow(); } },
        { "switch page", 4, [this] { switchPage(); } },
        { "use strip", 3, [this] { useStrip(); } },
        { "use menu", 5, [this] { useMenu(); } },
        { "sort", 2, [this] { sortOtherwise(); } },
        { "restart", 1, [this] { restart(); } },
    };
}

void KirvWalkUser::add()
{
    QMenu *menu = walk.page()->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton"))->menu();
    if (menu->actions().isEmpty() || walk.client->accounts().accounts().size() >= maximumAccounts)
        return;
    QTimer::singleShot(0, this, &KirvWalkUser::fillAndFinishAddWindow);
    menu->actions().at(walk.below(int(menu->actions().size())))->trigger();
}

void KirvWalkUser::fillAndFinishAddWindow()
{
    auto *window = walk.page()->findChild<QDialog *>(QStringLiteral("AddAccount"));
    if (!window)
        return;
    if (walk.maybe(50)) {
        auto *configuration = window->findChild<QComboBox *>(QStringLiteral("AddAccount_Configuration"));
        configuration->setCurrentIndex(walk.below(configuration->count()));
    }
    window->findChild<QLineEdit *>(QStringLiteral("AddAccount_UsernameEdit"))->setText(walk.login());
    if (walk.maybe(80))
        window->findChild<QLineEdit *>(QStringLiteral("AddAccount_PasswordEdit"))->setText(QStringLiteral("secret"));
    window->findChild<QCheckBox *>(QStringLiteral("AddAccount_RememberPasswordCheckbox"))->setChecked(walk.maybe(50));

    auto *buttons = window->findChild<QDialogButtonBox *>(QStringLiteral("AddAccount_ButtonFrame"));
    if (walk.maybe(10)) {
        walk.toggleProtocol(); // which may take the window away
    } else if (walk.maybe(80)) {
        QTimer::singleShot(0, this, &KirvWalkUser::dismissInformation);
        buttons->button(QDialogButtonBox::Save)->click();
    }
    window = walk.page()->findChild<QDialog *>(QStringLiteral("AddAccount"));
    if (window && window->isVisible())
        window->findChild<QDialogButtonBox *>(QStringLiteral("AddAccount_ButtonFrame"))
            ->button(QDialogButtonBox::Cancel)
            ->click();
}

/// A refused account is told in a box that blocks.
void KirvWalkUser::dismissInformation()
{
    for (QDialog *window : walk.page()->findChildren<QDialog *>(QStringLiteral("AddAccount"))) {
        for (QMessageBox *box : window->findChildren<QMessageBox *>())
            box->close();
    }
}

void KirvWalkUser::selectRow()
{
    if (QTreeWidgetItem *row = walk.anyRow()) {
        if (walk.maybe(90))
            // Not with the modifiers of the latest key, which the list looks at otherwise.
            walk.list()->setCurrentItem(row, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        else
            walk.list()->clearSelection();
    }
}

void KirvWalkUser::editSelected()
{
    walk.page()->findChild<QToolButton *>(QStringLiteral("Accounts_EditButton"))->click();
}

void KirvWalkUser::activateRow()
{
    if (QTreeWidgetItem *row = walk.anyRow())
        QMetaObject::invokeMethod(walk.list(), "itemActivated", Q_ARG(QTreeWidgetItem *, row),
                                  Q_ARG(int, walk.below(2)));
}

void KirvWalkUser::changeOpenEditWindow()
{
    auto *window = walk.anyEditWindow();
    if (!window)
        return;
    static const char *const texts[] = { "", "Work", "<b>Home</b>", "%1 %2", "a\nb", "\u05d0\u05d1" };
    const QString text = QString::fromUtf8(texts[walk.below(6)]);
    switch (walk.below(6)) {
    case 0:
        window->findChild<QLineEdit *>(QStringLiteral("EditAccount_Alias"))->setText(text);
        break;
    case 1:
        window->findChild<QLineEdit *>(QStringLiteral("EditAccount_Password"))->setText(text);
        break;
    case 2:
        window->findChild<QCheckBox *>(QStringLiteral("EditAccount_RememberPassword"))->toggle();
        break;
    case 3:
        window->findChild<QCheckBox *>(QStringLiteral("EditAccount_RememberPresence"))->toggle();
        break;
    case 4:
        window->findChild<QTextEdit *>(QStringLiteral("EditAccount_DescriptionEdit"))->setPlainText(text);
        break;
    default:
        if (auto *presences = window->findChild<QComboBox *>(QStringLiteral("EditAccount_PresenceCombo")))
            presences->setCurrentIndex(walk.below(qMax(1, presences->count())));
    }
}

void KirvWalkUser::finishOpenEditWindow()
{
    auto *window = walk.anyEditWindow();
    if (!window)
        return;
    auto *buttons = window->findChild<QDialogButtonBox *>(QStringLiteral("EditAccount_FrameButtons"));
    switch (walk.below(5)) {
    case 0:
        buttons->button(QDialogButtonBox::Cancel)->click();
        break;
    case 1:
        window->close();
        break;
    default:
        changeOpenEditWindow();
        useDirectory();
        save(window);
    }
}

void KirvWalkUser::save(QPointer<QDialog> window)
{
    QPushButton *button = window->findChild<QDialogButtonBox *>(QStringLiteral("EditAccount_FrameButtons"))
                              ->button(QDialogButtonBox::Save);
    if (!button->isEnabled())
        return;
    std::unique_ptr<StoreRefusal> refusal;
    if (!walk.refusal && walk.maybe(20))
        refusal = std::make_unique<StoreRefusal>(walk.profileFolder());
    button->click();
    if (!window || !window->isVisible())
        return;
    if (window->findChild<QMessageBox *>(QStringLiteral("EditAccount_SaveFailed")))
        walk.saw(QStringLiteral("a save that is refused"));
    if (!button->isEnabled())
        walk.saw(QStringLiteral("a publication that the server holds"));
}

void KirvWalkUser::useDirectory()
{
    auto *window = walk.anyEditWindow();
    if (!window)
        return;
    auto *tabs = window->findChild<QTabWidget *>(QStringLiteral("EditAccount_Tabs"));
    if (tabs->count() < 2)
        return;
    auto *text = window->findChild<QLineEdit *>(QStringLiteral("KirvField_name"));
    if (text && text->isEnabled() && walk.maybe(70)) {
        text->setText(walk.login());
    } else if (walk.maybe(50)) {
        tabs->setCurrentIndex(1 - tabs->currentIndex());
    } else {
        const QString name =
            walk.maybe(50) ? QStringLiteral("EditAccount_PubDirFetch") : QStringLiteral("EditAccount_PubDirDelete");
        window->findChild<QAbstractButton *>(name)->click();
    }
}

/// Straight to what chance alone seldom leads to: the window of an account that is on line, with the fields of its
/// directory entry open.
void KirvWalkUser::editDirectory()
{
    KirvAccount *account = walk.anyAccount();
    if (!account || !account->isOnline())
        return;
    walk.page()->editAccount(account);
    auto *window = walk.anyEditWindow();
    auto *tabs = window ? window->findChild<QTabWidget *>(QStringLiteral("EditAccount_Tabs")) : nullptr;
    if (!tabs)
        return;
    tabs->setCurrentIndex(1);
    QMetaObject::invokeMethod(account->connection(), "serverAccepts");
    useDirectory();
    if (window == walk.anyEditWindow() && walk.maybe(50))
        save(window);
}

void KirvWalkUser::pickAvatar()
{
    if (auto *avatar = walk.anyVisible<KirvAvatarQuickSetWidget>()) {
        QMetaObject::invokeMethod(avatar, "imageSelected",
                                  Q_ARG(QString, walk.maybe(70) ? walk.picture : QStringLiteral("/nonexistent")));
    }
}

void KirvWalkUser::removeSelected()
{
    if (walk.maybe(50))
        walk.page()->findChild<QToolButton *>(QStringLiteral("Accounts_RemoveButton"))->click();
    else
        QTest::keyClick(walk.list(), Qt::Key_Delete);
}

void KirvWalkUser::toggleRow()
{
    if (QTreeWidgetItem *row = walk.anyRow())
        row->setCheckState(0, row->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void KirvWalkUser::answerQuestion()
{
    auto *box = walk.anyVisible<QMessageBox>();
    if (!box)
        return;
    QAbstractButton *button = box->button(walk.maybe(60) ? QMessageBox::Yes : QMessageBox::No);
    if (button && walk.maybe(85))
        button->click();
    else
        box->close();
}

void KirvWalkUser::chooseMainAccount()
{
    if (walk.selector()->count())
        walk.selector()->setCurrentIndex(walk.below(walk.selector()->count()));
}

void KirvWalkUser::registerAccount()
{
    walk.page()->findChild<QToolButton *>(QStringLiteral("Accounts_RegisterButton"))->click();
}

/// The question for a password, the choice of a protocol to register with and what else the client opens.
void KirvWalkUser::answerOtherWindow()
{
    auto *window = walk.anyVisible<QDialog>();
    static const QStringList others { QStringLiteral("EditAccount"), QStringLiteral("ServerAssistant"),
                                      QStringLiteral("ExportAccounts"), QStringLiteral("ImportAccounts") };
    if (!window || others.contains(window->objectName()) || qobject_cast<QMessageBox *>(window))
        return;
    for (QLineEdit *edit : window->findChildren<QLineEdit *>())
        edit->setText(walk.maybe(80) ? QStringLiteral("secret") : QString());
    if (walk.maybe(70))
        window->accept();
    else
        window->reject();
}

void KirvWalkUser::hideOrShow()
{
    QWidget *window = walk.client->window();
    window->setVisible(!window->isVisible());
}

void KirvWalkUser::sortOtherwise()
{
    walk.list()->sortByColumn(walk.below(2), walk.maybe(50) ? Qt::AscendingOrder : Qt::DescendingOrder);
}

/// One click in the assistant, after filling in what there is.
void KirvWalkUser::useAssistant()
{
    auto *window = walk.anyVisible<QDialog>(QStringLiteral("ServerAssistant"));
    if (!window)
        return;
    for (QLineEdit *edit : window->findChildren<QLineEdit *>())
        edit->setText(walk.login());
    static const char *const buttons[] = { "ServerAssistant_NextButton", "ServerAssistant_NextButton",
                                           "ServerAssistant_NextButton", "ServerAssistant_BackButton",
                                           "ServerAssistant_CloseButton" };
    auto *button = window->findChild<QPushButton *>(QLatin1String(buttons[walk.below(5)]));
    if (button->isVisible())
        button->click();
}

/// As far as two replies of the server lead.
void KirvWalkUser::goThroughAssistant()
{
    for (int i = 0; i < 3; ++i) {
        walk.answerServerRequests(true);
        auto *button = walk.anyVisible<QPushButton>(QStringLiteral("ServerAssistant_NextButton"));
        if (i < 2 && button)
            button->click();
    }
}

/// Something that the protocol offers for one account, over its edit window.
void KirvWalkUser::runAccountAction()
{
    QDialog *window = walk.anyEditWindow();
    auto *button =
        window ? window->findChild<QPushButton *>(QStringLiteral("EditAccount_ServerAccountButton")) : nullptr;
    if (button && button->isEnabled())
        trigger(button->menu());
}

/// One of the menu's commands, or of those in its submenus.
void KirvWalkUser::trigger(QMenu *menu)
{
    QMetaObject::invokeMethod(menu, "aboutToShow");
    const QList<QAction *> actions = menu->actions();
    if (actions.isEmpty())
        return;
    QAction *action = actions.at(walk.below(int(actions.size())));
    if (action->menu())
        trigger(action->menu());
    else if (action->isEnabled())
        action->trigger();
}

void KirvWalkUser::useStrip()
{
    static const char *const buttons[] = { "Accounts_StripEditButton", "Accounts_ReconnectButton",
                                           "Accounts_PasswordButton" };
    if (walk.page()->isVisible())
        walk.page()->findChild<QPushButton *>(QLatin1String(buttons[walk.below(3)]))->click();
}

/// Opens the menu of the list for the current row, or the one without a row, and chooses something.
void KirvWalkUser::useMenu()
{
    auto *rows = walk.page()->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
    if (!rows->isVisible())
        return;
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(), rows->mapToGlobal(QPoint()));
    QApplication::sendEvent(rows, &request);
    if (QPointer<QMenu> menu = walk.page()->findChild<QMenu *>(QStringLiteral("Accounts_Menu"))) {
        trigger(menu);
        if (menu)
            menu->close();
    }
}

/// The walk is on the page of the accounts most of the time.
void KirvWalkUser::switchPage()
{
    QWidget *const pages[] = { walk.page(), walk.page(), walk.page(), walk.client->pluginsPage() };
    walk.client->window()->showPage(pages[walk.below(4)]);
}

void KirvWalkUser::restart()
{
    walk.quit();
    walk.start();
}

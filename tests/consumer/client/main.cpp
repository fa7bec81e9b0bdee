// SPDX-License-Identifier: LGPL-2.1-or-later
// A client in one file: the installed page in a settings window of our own, over a core of our own.
#include "memory_host.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "edit_account/kirv_pubdir_account_received_event.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QTranslator>
#include <QTreeWidget>
#include <cstdio>

namespace {

bool check(bool holds, const char *sentence)
{
    std::printf("%s: %s\n", holds ? "yes" : "NO", sentence);
    return holds;
}

/// Of the page and of its layouts, in the language of the user.
void loadTexts(const QString &folder)
{
    for (const QString &language : { QStringLiteral("en"), QLocale().name() }) {
        auto *texts = new QTranslator(qApp);
        if (texts->load(QStringLiteral("kirv_gui_accounts_tab_") + language, folder)) // "de_AT" finds "de", too
            QCoreApplication::installTranslator(texts);
    }
}

/// Opens the edit window of the account and changes its alias there, before the entry in the directory has arrived.
bool savesAnAlias(KirvAccountsTab *page, MemoryAccount *account)
{
    page->editAccount(account);
    QDialog *window = page->getAccEdit()->getWindow();
    KirvEditAccountDialog *dialog = KirvEditAccountDialog::of(window); // when the window is built, or later
    KirvPubdirAccountReceivedEvent blank(account, account->getProtocol()->getPubdirAccountFields());
    QCoreApplication::sendEvent(dialog, &blank); // before the window is shown: blank fields now count as unchanged

    auto *alias = window->findChild<QLineEdit *>(QStringLiteral("EditAccount_Alias"));
    bool good = check(alias->text() == QLatin1String("Ann at home"), "the edit window is filled in");
    alias->setText(QStringLiteral("Ann"));
    window->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    good &= check(account->alias == QLatin1String("Ann"), "Save reaches the core");
    return good;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);

    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    loadTexts(QStringLiteral(TRANSLATIONS));

    MemoryHost host(QStringLiteral(LAYOUTS));
    host.addAccount(QStringLiteral("ann"), QStringLiteral("Ann at home"));
    host.addAccount(QStringLiteral("ben"), QStringLiteral("Ben at work"), false);

    QTabWidget settingsWindow;
    KirvAccountsTab *page = KirvAccountsTab::getInstance();
    settingsWindow.addTab(page, QStringLiteral("Accounts"));
    page->readProtocolAccounts(QStringLiteral("Memory")); // whenever a protocol was loaded
    settingsWindow.show();

    const auto *list = page->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
    const auto *selector = page->findChild<QComboBox *>(QStringLiteral("Accounts_MainAccount"));
    bool good = check(list->topLevelItemCount() == 2, "both accounts are listed");
    good &= check(list->headerItem()->text(1) == QLatin1String("Protokoll"), "and it is in German");
    const auto *removeButton = page->findChild<QToolButton *>(QStringLiteral("Accounts_RemoveButton"));
    good &= check(removeButton->text().contains(QLatin1String("ntfernen")), "also in its layout");
    good &= check(selector->count() == 1, "the enabled one is offered as main account");

    list->topLevelItem(1)->setCheckState(0, Qt::Checked);
    good &=
        check(host.account(QStringLiteral("ben"), QStringLiteral("Memory"))->enabled, "ticking a row reaches the core");
    good &= check(selector->count() == 2, "and both are offered then");

    MemoryAccount *ann = host.account(QStringLiteral("ann"), QStringLiteral("Memory"));
    ann->loggedIn = true;
    good &= savesAnAlias(page, ann);
    good &= check(host.protocol.publishedEntries == 0, "and keeps the entry in the directory");
    return good ? 0 : 1;
}

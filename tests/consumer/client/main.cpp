// SPDX-License-Identifier: LGPL-2.1-or-later
// A client in one file: the installed page in a settings window of our own, over a core of our own.
#include "memory_host.h"

#include "accounts_tab/kirv_accounts_tab.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
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

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);

    QTranslator german;
    bool good = check(german.load(QStringLiteral("kirv_gui_accounts_tab_de"), QStringLiteral(TRANSLATIONS)),
                      "the texts of the page are there in German");
    QApplication::installTranslator(&german);

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
    good &= check(list->topLevelItemCount() == 2, "both accounts are listed");
    good &= check(list->headerItem()->text(1) == QLatin1String("Protokoll"), "and it is in German");
    const auto *removeButton = page->findChild<QToolButton *>(QStringLiteral("Accounts_RemoveButton"));
    good &= check(removeButton->text().contains(QLatin1String("ntfernen")), "also in its layout");
    good &= check(selector->count() == 1, "the enabled one is offered as main account");

    list->topLevelItem(1)->setCheckState(0, Qt::Checked);
    good &=
        check(host.account(QStringLiteral("ben"), QStringLiteral("Memory"))->enabled, "ticking a row reaches the core");
    good &= check(selector->count() == 2, "and both are offered then");

    page->editAccount(host.account(QStringLiteral("ann"), QStringLiteral("Memory")));
    const auto *alias = page->findChild<QLineEdit *>(QStringLiteral("EditAccount_Alias"));
    good &= check(alias && alias->text() == QLatin1String("Ann at home"), "the edit window is filled in");
    return good ? 0 : 1;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// kirv_observed_client PROFILE PLUGINS [load NAME|account NAME]...: the client, which writes to its standard output
// what a test wants to know of a start that a plug-in may end, and quits when all plug-ins are loaded or left out.
// "load" presses the Load button for the plug-in NAME then, "account" adds an account of the protocol NAME.
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_settings_window.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/plugins/kirv_plugin_queue.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_protocol.h"

#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <cstdio>

namespace {

void print(const char *kind, const QStringList &words)
{
    std::printf("%s|%s\n", kind, qPrintable(words.join(QLatin1Char('|')).replace(QLatin1Char('\n'), QLatin1Char(' '))));
    std::fflush(stdout);
}

class Observer : public QObject {
public:
    Observer(KirvClient &client, const QStringList &commands)
        : client(client)
        , commands(commands)
    {
        connect(&tick, &QTimer::timeout, this, &Observer::look);
        tick.start(2);
        connect(&client.plugins(), &KirvPluginLoader::pluginsChanged, this, &Observer::printChanges);
        client.window()->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !isPainted) {
            isPainted = true;
            print("painted", { QString::number(client.plugins().plugins().size()) });
        }
        return false;
    }

private:
    void look()
    {
        if (isPainted && client.pluginQueue().isBusy())
            ++turns;
        if (!client.arePluginsLoaded()) {
            openMenu();
        } else if (commands.size() >= 2) {
            const QString command = commands.takeFirst();
            command == QLatin1String("load") ? load(commands.takeFirst()) : addAccount(commands.takeFirst());
        } else {
            print("messages", client.window()->messageBar()->messages());
            print("turns", { QString::number(turns) });
            QCoreApplication::quit();
            tick.stop();
        }
    }

    /// The Accounts page is of use while plug-ins are being tested.
    void openMenu()
    {
        auto *button = client.accountsPage()->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton"));
        if (isUsed || !isPainted || !button->isEnabled() || !client.pluginQueue().isBusy())
            return;
        isUsed = true;
        print("page", { QStringLiteral("usable") });
    }

    void load(const QString &name)
    {
        auto *list = client.pluginsPage()->findChild<QTreeWidget *>(QStringLiteral("Plugins_List"));
        list->setCurrentItem(list->findItems(name, Qt::MatchExactly).value(0));
        client.pluginsPage()->findChild<QPushButton *>(QStringLiteral("Plugins_LoadButton"))->click();
    }

    void addAccount(const QString &name)
    {
        KirvProtocol *protocol = KirvPluginManager::getInstance()->getProtocolByName(name);
        KirvAccountManager::getInstance()->createAccount(QStringLiteral("anna"), QStringLiteral("anna"),
                                                         QStringLiteral("secret"), true, protocol,
                                                         protocol->getAllPresences().first(), {});
    }

    void printChanges()
    {
        for (const KirvPluginInfo &plugin : client.plugins().plugins()) {
            const QStringList state { plugin.name, KirvPluginsPage::stateText(plugin), plugin.error };
            if (shown.value(plugin.fileName) != state)
                print("plugin", state);
            shown.insert(plugin.fileName, state);
        }
    }

    KirvClient &client;
    QStringList commands;
    QTimer tick;
    int turns = 0; ///< of the event loop while plug-ins are tested and loaded
    bool isPainted = false;
    bool isUsed = false;
    QHash<QString, QStringList> shown;
};

} // namespace

int main(int argc, char *argv[])
{
    KirvApplication application(argc, argv);
    const QStringList arguments = KirvApplication::arguments();
    KirvClientOptions options;
    options.profileFolder = arguments.value(1);
    options.pluginFolder = arguments.value(2);
    KirvClient client(options);
    if (!client.start()) {
        std::printf("refused|%s\n", qPrintable(client.errorString()));
        return 2;
    }
    if (const int limit = qEnvironmentVariableIntValue("KIRV_OBSERVED_LIMIT"))
        client.pluginQueue().setTimeLimit(limit);
    client.window()->show();
    Observer observer(client, arguments.mid(3));
    return KirvApplication::exec();
}

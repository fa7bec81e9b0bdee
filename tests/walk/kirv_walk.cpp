// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/walk/kirv_walk.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "tests/support/kirv_patience.h"

#include <QComboBox>
#include <QImage>
#include <QTest>
#include <QTreeWidget>

KirvWalk::KirvWalk()
{
    picture = folder.filePath(QStringLiteral("picked.png"));
    exported = folder.filePath(QStringLiteral("accounts.json"));
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.save(picture);
}

KirvWalk::~KirvWalk()
{
    quit();
}

bool KirvWalk::start()
{
    KirvClientOptions options;
    options.profileFolder = profileFolder();
    options.pluginFolder = QStringLiteral(KIRV_WALK_PLUGINS);
    client = std::make_unique<KirvClient>(options);
    if (!client->start()) {
        qWarning("%s", qPrintable(client->errorString()));
        return false;
    }
    client->window()->show();
    // They come from the event loop; the way on must not depend on when.
    return QTest::qWaitFor([this] { return client->arePluginsLoaded(); }, kirvPatience);
}

void KirvWalk::quit()
{
    refusal.reset();
    if (!client)
        return;
    // Servers that never answer are not waited for.
    const auto connections = client->accounts().findChildren<KirvConnection *>();
    for (const QPointer<KirvConnection> connection : connections) {
        if (connection)
            connection->drop();
    }
    client.reset();
}

KirvAccountsTab *KirvWalk::page() const
{
    return client->accountsPage();
}

QTreeWidget *KirvWalk::list() const
{
    return page()->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
}

QComboBox *KirvWalk::selector() const
{
    return page()->findChild<QComboBox *>(QStringLiteral("Accounts_MainAccount"));
}

QString KirvWalk::login()
{
    static const char *const logins[] = { "ann", "bob", "<b>cy</b>", "dan%1", "eve%2" };
    return QLatin1String(logins[below(5)]) + QString::number(below(3));
}

QTreeWidgetItem *KirvWalk::anyRow()
{
    return list()->topLevelItemCount() ? list()->topLevelItem(below(list()->topLevelItemCount())) : nullptr;
}

KirvAccount *KirvWalk::anyAccount()
{
    const QList<KirvAccount *> accounts = client->accounts().accounts();
    return accounts.isEmpty() ? nullptr : accounts.at(below(int(accounts.size())));
}

KirvConnection *KirvWalk::anyConnection()
{
    const KirvEditAccountDialog *edited = page()->getAccEdit();
    const KirvAccount *account =
        edited ? client->accounts().find({ edited->getAccountId(), edited->getProtocolName() }) : nullptr;
    if (account && account->connection() && maybe(60))
        return account->connection();
    const auto connections = client->accounts().findChildren<KirvConnection *>();
    return connections.isEmpty() ? nullptr : connections.at(below(int(connections.size())));
}

void KirvWalk::toggleProtocol()
{
    const QList<KirvPluginInfo> plugins = client->plugins().plugins();
    const KirvPluginInfo &plugin = plugins.at(below(int(plugins.size())));
    if (!plugin.loaded || maybe(40)) {
        client->plugins().load(plugin.fileName);
        return;
    }
    if (anyEditWindow())
        saw(QStringLiteral("a protocol that goes under an edit window"));
    if (anyVisible<QDialog>(QStringLiteral("ServerAssistant")))
        saw(QStringLiteral("a protocol that goes under an assistant"));
    client->plugins().unload(plugin.fileName);
}

void KirvWalk::answerServerRequests(bool accept)
{
    const QList<KirvProtocolBase *> protocols = client->plugins().protocols();
    for (KirvProtocolBase *protocol : protocols) {
        bool hasSucceeded = false;
        QMetaObject::invokeMethod(protocol, "answerRequests", Q_RETURN_ARG(bool, hasSucceeded), Q_ARG(bool, accept));
        if (hasSucceeded)
            saw(QStringLiteral("a server request that succeeds"));
    }
}

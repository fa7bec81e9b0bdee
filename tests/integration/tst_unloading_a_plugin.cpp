// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client.h"
#include "client/kirv_plugins_page.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

namespace {

const QString example = QStringLiteral("Example");

} // namespace

/// Unloading a plug-in whose accounts are connected is confirmed first.
class tst_UnloadingAPlugin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutConnectedAccountsNothingIsAsked();
    void connectedAccountsAreCounted_data();
    void connectedAccountsAreCounted();
    void enterKeepsThePlugin();
    void escapeKeepsThePlugin();
    void pluginThatGoesMeanwhileTakesTheQuestionAlong();

private:
    bool addOnline(const QString &id) const;
    QPushButton *unload() const;
    QString file() const { return client->plugins().plugins().first().fileName; }
    bool isLoaded() const { return client->plugins().plugin(file()).loaded; }
    static QMessageBox *question() { return KirvClientWindows::boxes().value(0); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvClient> client;
};

void tst_UnloadingAPlugin::init()
{
    folder = std::make_unique<QTemporaryDir>();
    KirvClientOptions options;
    options.profileFolder = folder->filePath(QStringLiteral("profile"));
    options.pluginFolder = QStringLiteral(KIRV_EXAMPLE_PROTOCOLS);
    client = std::make_unique<KirvClient>(options);
    QVERIFY(client->start());
    client->window()->show();
    KIRV_TRY(client->arePluginsLoaded());
    client->window()->showPage(client->pluginsPage());
}

void tst_UnloadingAPlugin::cleanup()
{
    KirvClientWindows::closeBoxes();
    client.reset();
}

bool tst_UnloadingAPlugin::addOnline(const QString &id) const
{
    KirvProtocol *protocol = KirvPluginManager::getInstance()->getProtocolByName(example);
    KirvAccountManager::getInstance()->createAccount(id, id, QStringLiteral("secret"), true, protocol,
                                                     protocol->getAllPresences().first(),
                                                     protocol->getAccountSettings());
    const KirvAccount *account = client->accounts().find({ id, example });
    return account && QTest::qWaitFor([account] { return account->isOnline(); }, kirvPatience);
}

QPushButton *tst_UnloadingAPlugin::unload() const
{
    return KirvClientWindows::child<QPushButton>(client->pluginsPage(), "Plugins_UnloadButton");
}

void tst_UnloadingAPlugin::withoutConnectedAccountsNothingIsAsked()
{
    QVERIFY(addOnline(QStringLiteral("ann")));
    client->accounts().find({ QStringLiteral("ann"), example })->setEnabled(false);
    KIRV_TRY(!client->accounts().find({ QStringLiteral("ann"), example })->isOnline());
    QTest::mouseClick(unload(), Qt::LeftButton);
    QVERIFY(!question());
    QVERIFY(!isLoaded());
}

void tst_UnloadingAPlugin::connectedAccountsAreCounted_data()
{
    QTest::addColumn<int>("accounts");
    QTest::addColumn<QString>("part");
    QTest::newRow("one") << 1 << "its account ann goes off line";
    QTest::newRow("two") << 2 << "its 2 connected accounts go off line";
}

void tst_UnloadingAPlugin::connectedAccountsAreCounted()
{
    QFETCH(int, accounts);
    QFETCH(QString, part);
    for (int i = 0; i < accounts; ++i)
        QVERIFY(addOnline(i == 0 ? QStringLiteral("ann") : QStringLiteral("ann%1").arg(i)));
    QTest::mouseClick(unload(), Qt::LeftButton);
    QVERIFY(isLoaded());
    QVERIFY(question());
    QVERIFY2(question()->text().contains(part), qPrintable(question()->text()));
    QTest::mouseClick(KirvClientWindows::child<QAbstractButton>(question(), "Plugins_UnloadAnyway"), Qt::LeftButton);
    KirvClientWindows::settle();
    QVERIFY(!question() && !isLoaded());
}

void tst_UnloadingAPlugin::enterKeepsThePlugin()
{
    QVERIFY(addOnline(QStringLiteral("ann")));
    QTest::mouseClick(unload(), Qt::LeftButton);
    QVERIFY(question());
    QTest::keyClick(question(), Qt::Key_Return);
    KirvClientWindows::settle();
    QVERIFY(!question() && isLoaded());
    QVERIFY(client->accounts().find({ QStringLiteral("ann"), example })->isOnline());
}

void tst_UnloadingAPlugin::escapeKeepsThePlugin()
{
    QVERIFY(addOnline(QStringLiteral("ann")));
    QTest::mouseClick(unload(), Qt::LeftButton);
    QVERIFY(question());
    QTest::keyClick(question(), Qt::Key_Escape);
    KirvClientWindows::settle();
    QVERIFY(!question() && isLoaded());
}

void tst_UnloadingAPlugin::pluginThatGoesMeanwhileTakesTheQuestionAlong()
{
    QVERIFY(addOnline(QStringLiteral("ann")));
    QTest::mouseClick(unload(), Qt::LeftButton);
    QVERIFY(question());
    QVERIFY(client->plugins().unload(file()));
    KirvClientWindows::settle();
    QVERIFY(!question());
}

QTEST_MAIN(tst_UnloadingAPlugin)
#include "tst_unloading_a_plugin.moc"

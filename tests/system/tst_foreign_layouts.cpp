// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/system/kirv_tested_account.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

namespace {

const QString xmpp = QStringLiteral("XMPP");
const QString here = QStringLiteral("Server on this computer");
const QString ann = QStringLiteral("ann@localhost");
const QString bob = QStringLiteral("bob@localhost");
const QString secret = QStringLiteral("secret");

} // namespace

/// Layouts of the user's own, whose top widgets are not named as those of the built-in ones are.
class tst_ForeignLayouts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void savingWithoutAChangePublishesNothing_data() { editLayouts(); }
    void savingWithoutAChangePublishesNothing();
    void editWindowGoesWithItsAccount_data() { editLayouts(); }
    void editWindowGoesWithItsAccount();
    void editWindowGoesWithItsProtocol_data() { editLayouts(); }
    void editWindowGoesWithItsProtocol();
    void usingTheEditWindowAfterItsProtocolDoesNoHarm_data() { editLayouts(); }
    void usingTheEditWindowAfterItsProtocolDoesNoHarm();
    void addWindowGoesWithItsProtocol_data() { addLayouts(); }
    void addWindowGoesWithItsProtocol();
    void usingTheAddWindowAfterItsProtocolDoesNoHarm_data() { addLayouts(); }
    void usingTheAddWindowAfterItsProtocolDoesNoHarm();

private:
    static void editLayouts();
    static void addLayouts();
    /// Opens the edit window of the connected account; null when a step did not work.
    QDialog *edit(const QString &topName);
    /// Opens the add window and fills it in, unloads the protocol, does \a then if the window is still open, and
    /// waits until nothing can be done in it any more; false when a step did not work.
    bool unloadWhileAdding(const QString &topName, const std::function<void(QDialog *)> &then = {});

    KirvProsodyServer server;
    std::unique_ptr<KirvObservingXmppClient> juliet;
    std::unique_ptr<KirvWindows> windows;
    std::unique_ptr<KirvTestedAccount> account;
};

void tst_ForeignLayouts::initTestCase()
{
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    for (const char *user : { "ann", "juliet" })
        QVERIFY(server.addUser(user, secret));
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(server.port()));
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", server.certificatePath().toLocal8Bit());
}

void tst_ForeignLayouts::init()
{
    juliet = std::make_unique<KirvObservingXmppClient>();
    QVERIFY(juliet->logIn(server, "juliet"));
    KirvObservingXmppClient otherClient;
    QXmppVCardIq card;
    card.setFullName("Ann Example");
    card.setDescription("About me");
    QVERIFY(otherClient.logIn(server, "ann") && otherClient.publish(card));
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
    account = std::make_unique<KirvTestedAccount>(*windows, ann);
}

void tst_ForeignLayouts::cleanup()
{
    account.reset();
    windows.reset();
    juliet.reset();
}

void tst_ForeignLayouts::editLayouts()
{
    QTest::addColumn<QString>("topName");
    QTest::newRow("its own") << "EditAccount";
    QTest::newRow("any name") << "Dialog";
    QTest::newRow("another layout's") << "AddAccount";
    QTest::newRow("a child's") << "EditAccount_Alias";
}

void tst_ForeignLayouts::addLayouts()
{
    QTest::addColumn<QString>("topName");
    QTest::newRow("its own") << "AddAccount";
    QTest::newRow("any name") << "Dialog";
    QTest::newRow("another layout's") << "EditAccount";
}

QDialog *tst_ForeignLayouts::edit(const QString &topName)
{
    const bool isReady = KirvTestedAccount::replaceLayout(*windows, "EditAccount", topName)
        && account->create(secret, here, "available")
        && QTest::qWaitFor([this] { return account->isConnected(); }, kirvPatience);
    return isReady ? account->openEditWindow() : nullptr;
}

bool tst_ForeignLayouts::unloadWhileAdding(const QString &topName, const std::function<void(QDialog *)> &then)
{
    if (!KirvTestedAccount::replaceLayout(*windows, "AddAccount", topName))
        return false;
    QPointer<QDialog> window;
    bool isUnloaded = false;
    KirvWindowDriver driver(windows->profileFolder());
    driver.expectOnTop(
        "The page is there", [this] { return windows->client->accountsPage()->isVisible(); },
        [this] {
            KirvWindowDriver::openMenu(
                KirvWindows::child<QToolButton>(windows->client->accountsPage(), "Accounts_AddButton"));
        });
    driver.expect(
        "The menu offers the protocol", [] { return KirvWindowDriver::menuOffers(xmpp); },
        [] { KirvWindowDriver::clickInMenu(xmpp); });
    driver.expect(
        "The window is open", [] { return KirvTestedAccount::addWindow(); },
        [&] {
            window = KirvTestedAccount::addWindow();
            KirvWindowDriver::type(KirvWindows::child<QLineEdit>(window, "AddAccount_UsernameEdit"), bob);
            KirvWindowDriver::type(KirvWindows::child<QLineEdit>(window, "AddAccount_PasswordEdit"), secret);
            isUnloaded = account->unloadProtocol();
            if (then && window && window->isVisible())
                then(window);
        });
    driver.expect(
        "Nothing can be done in the window", [&] { return KirvTestedAccount::isOutOfUse(window); },
        [&] {
            if (window)
                window->reject();
        });
    driver.expectOnTop("The window is closed", [&] { return !window; });
    return driver.run() && isUnloaded;
}

void tst_ForeignLayouts::savingWithoutAChangePublishesNothing()
{
    QFETCH(QString, topName);
    QDialog *window = edit(topName);
    QVERIFY(window);
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());

    // The reply to this request comes after the reply to whatever the first window has sent.
    window = account->openEditWindow();
    QVERIFY(window);
    KirvTestedAccount::showDirectory(window);
    KIRV_TRY(!KirvTestedAccount::isDirectoryLocked(window));
    const QXmppVCardIq seen = juliet->vCardOf(ann);
    QCOMPARE(seen.fullName(), QString("Ann Example"));
    QCOMPARE(seen.description(), QString("About me"));
    QCOMPARE(KirvTestedAccount::directoryText(window, "fullname"), QString("Ann Example"));
}

void tst_ForeignLayouts::editWindowGoesWithItsAccount()
{
    QFETCH(QString, topName);
    const QPointer<QDialog> window = edit(topName);
    QVERIFY(window);
    account->remove();
    KIRV_TRY(KirvTestedAccount::isOutOfUse(window));
}

void tst_ForeignLayouts::editWindowGoesWithItsProtocol()
{
    QFETCH(QString, topName);
    const QPointer<QDialog> window = edit(topName);
    QVERIFY(window);
    QVERIFY(account->unloadProtocol());
    KIRV_TRY(KirvTestedAccount::isOutOfUse(window));
}

void tst_ForeignLayouts::usingTheEditWindowAfterItsProtocolDoesNoHarm()
{
    QFETCH(QString, topName);
    const QPointer<QDialog> window = edit(topName);
    QVERIFY(window);
    KirvTestedAccount::typeAlias(window, "Somebody");
    const QString fileName = windows->pluginFile(xmpp);
    QVERIFY(account->unloadProtocol());
    if (window && window->isVisible())
        KirvWindows::child<QTabWidget>(window, "EditAccount_Tabs")->setCurrentIndex(1);
    if (window && window->isVisible())
        KirvTestedAccount::saveButton(window)->click();
    KIRV_TRY(!window || !window->isVisible());

    QVERIFY(account->loadProtocol(fileName));
    KIRV_TRY(account->isConnected());
    QCOMPARE(account->alias(), ann);
    QCOMPARE(juliet->vCardOf(ann).fullName(), QString("Ann Example"));
}

void tst_ForeignLayouts::addWindowGoesWithItsProtocol()
{
    QFETCH(QString, topName);
    QVERIFY(unloadWhileAdding(topName));
}

void tst_ForeignLayouts::usingTheAddWindowAfterItsProtocolDoesNoHarm()
{
    QFETCH(QString, topName);
    const QString fileName = windows->pluginFile(xmpp);
    QVERIFY(unloadWhileAdding(topName, [](QDialog *window) { KirvTestedAccount::saveButton(window)->click(); }));
    QVERIFY(account->loadProtocol(fileName));
    QVERIFY(!KirvTestedAccount(*windows, bob).isThere());
}

QTEST_MAIN(tst_ForeignLayouts)
#include "tst_foreign_layouts.moc"

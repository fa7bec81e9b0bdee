// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_main_account.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "host/kirv_account_manager.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QImage>
#include <QPointer>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

namespace {
const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
} // namespace

/// Which account is the main account, and whether the windows show that one.
class tst_MainAccountRule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void firstEnabledAccountBecomesIt();
    void chosenOneStaysOverARestart();
    void removingPassesItOn_data();
    void removingPassesItOn();
    void disablingPassesItOn();
    void itIsSaidOnceThatItPassedOn();
    void nothingIsSaidWithoutASuccessor();
    void withoutAnEnabledAccountThereIsNone();
    void unloadedPlugInPassesNothingOn();
    void accountOfAMissingPlugInStaysOverARestart();
    void unloadedOneIsShownAsItChanges();
    void storedOneThatIsDisabledIsReplacedAtTheStart();
    void refusedStoringPassesItOnAllTheSame();
    void assigningStoresNothing();
    void aliasOfItIsShownAtOnce();
    void accountWithoutAliasIsOfferedUnderItsLogin();
    void entryOfARemovedAccountIsNotFollowed();
    void correctingTheSelectorIsNoChoice();
    void unloadedOneCanBeRead_data();
    void unloadedOneCanBeRead();
    void listOfManyIsNoHigherThanTenRows();

private:
    QString stored() const { return windows->client->settings().value(QStringLiteral("main_account")); }
    /// The login of the main account, when the selector and the title show it and it is stored; otherwise what is
    /// wrong.
    QString mainAccount() const;
    /// What is said about the main account.
    QStringList sayings() const { return windows->messages().filter(QStringLiteral("main account")); }
    KirvMainAccount &rule() const { return KirvHostServices::instance()->mainAccountRule; }

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_MainAccountRule::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
}

void tst_MainAccountRule::cleanup()
{
    windows.reset();
}

QString tst_MainAccountRule::mainAccount() const
{
    KirvClientWindows::settle();
    const auto *account = KirvAccountManager::getInstance()->getMainAccount();
    const QString id = account ? account->getUid() : QString();
    if (windows->shownMainAccount() != id)
        return QStringLiteral("%1, but the selector shows %2").arg(id, windows->shownMainAccount());
    if (stored() != (id.isEmpty() ? QString() : id + QStringLiteral("@@Fake")))
        return QStringLiteral("%1, but %2 is stored").arg(id, stored());
    const QString title = windows->client->window()->windowTitle();
    if (title != (id.isEmpty() ? QStringLiteral("Kirv – Settings") : QStringLiteral("Kirv – Settings – ") + id))
        return QStringLiteral("%1, but the title is %2").arg(id, title);
    return id;
}

void tst_MainAccountRule::firstEnabledAccountBecomesIt()
{
    QCOMPARE(mainAccount(), QString());
    windows->addAccount(bob);
    QCOMPARE(mainAccount(), bob);
    windows->addAccount(ann); // sorts before it
    QCOMPARE(mainAccount(), bob);
    windows->restart();
    QCOMPARE(mainAccount(), bob);
    QCOMPARE(windows->messages(), QStringList());
}

void tst_MainAccountRule::chosenOneStaysOverARestart()
{
    for (const QString &id : { ann, bob, cleo })
        windows->addAccount(id);
    windows->chooseMainAccount(bob);
    QCOMPARE(mainAccount(), bob);
    windows->restart();
    QCOMPARE(mainAccount(), bob);
    QVERIFY(rule().choose(windows->account(cleo)));
    QCOMPARE(mainAccount(), cleo);
}

void tst_MainAccountRule::removingPassesItOn_data()
{
    QTest::addColumn<bool>("inPage");
    QTest::newRow("in the page") << true;
    QTest::newRow("by another part") << false;
}

void tst_MainAccountRule::removingPassesItOn()
{
    QFETCH(bool, inPage);
    for (const QString &id : { cleo, ann, bob })
        windows->addAccount(id);
    windows->chooseMainAccount(ann);
    windows->account(cleo)->setEnabled(false);
    if (inPage)
        windows->removeInPage(ann);
    else
        KirvAccountManager::getInstance()->removeAccount(ann, QStringLiteral("Fake"));
    QCOMPARE(mainAccount(), bob);
}

void tst_MainAccountRule::disablingPassesItOn()
{
    for (const QString &id : { ann, bob, cleo })
        windows->addAccount(id);
    windows->toggleInPage(ann);
    QCOMPARE(mainAccount(), bob);
    windows->toggleInPage(ann); // is enabled again
    QCOMPARE(mainAccount(), bob);
}

void tst_MainAccountRule::itIsSaidOnceThatItPassedOn()
{
    for (const QString &id : { ann, bob, cleo })
        windows->addAccount(id);
    windows->removeInPage(ann);
    const QString removed = QStringLiteral("bob is the main account now, because ann was removed.");
    QCOMPARE(sayings(), QStringList { removed });
    windows->toggleInPage(bob);
    const QString disabled = QStringLiteral("cleo is the main account now, because bob was disabled.");
    QCOMPARE(sayings(), QStringList { disabled }); // the other one has become wrong
}

void tst_MainAccountRule::nothingIsSaidWithoutASuccessor()
{
    windows->addAccount(ann);
    windows->removeInPage(ann);
    QCOMPARE(mainAccount(), QString());
    QCOMPARE(sayings(), QStringList());
}

void tst_MainAccountRule::withoutAnEnabledAccountThereIsNone()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    windows->toggleInPage(ann);
    windows->toggleInPage(bob);
    QCOMPARE(mainAccount(), QString());
    windows->toggleInPage(bob);
    QCOMPARE(mainAccount(), bob);
}

void tst_MainAccountRule::unloadedPlugInPassesNothingOn()
{
    windows->addAccount(ann);
    auto *other = new KirvFakeProtocol(QStringLiteral("Other"));
    QVERIFY(windows->client->plugins().addProtocol(other));
    KirvAccountManager::getInstance()->createAccount(bob, bob, QString(), true, other, other->presences().first(),
                                                     other->accountSettings());
    KirvClientWindows::settle();
    windows->client->accounts().protocolAboutToBeUnloaded(QStringLiteral("Fake"));
    windows->client->accountsPage()->updateAccounts();
    KirvClientWindows::settle();
    QCOMPARE(stored(), QStringLiteral("ann@@Fake"));
    QCOMPARE(rule().account(), windows->account(ann));
    // The selector offers "bob", and shows that he is not the main account.
    QCOMPARE(windows->selector()->count(), 1);
    QCOMPARE(windows->selector()->currentIndex(), -1);
    QVERIFY2(windows->selector()->placeholderText().startsWith(QLatin1String("ann")),
             qPrintable(windows->selector()->placeholderText()));
    QCOMPARE(windows->messages(), QStringList());
    windows->client->accounts().protocolLoaded(windows->protocol);
    windows->client->accountsPage()->updateAccounts();
    KirvClientWindows::settle();
    QCOMPARE(windows->shownMainAccount(), ann);
}

void tst_MainAccountRule::accountOfAMissingPlugInStaysOverARestart()
{
    windows->addAccount(ann);
    windows->end();
    for (int i = 0; i < 2; ++i) {
        windows->client = std::make_unique<KirvClient>(windows->options);
        QVERIFY(windows->client->start());
        KirvClientWindows::settle();
        QCOMPARE(stored(), QStringLiteral("ann@@Fake"));
        QVERIFY(rule().account());
        QCOMPARE(windows->selector()->count(), 0);
        QCOMPARE(windows->selector()->placeholderText(), QStringLiteral("ann (its plug-in is not loaded)"));
        windows->client.reset();
    }
}

void tst_MainAccountRule::unloadedOneIsShownAsItChanges()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    windows->chooseMainAccount(ann);
    windows->client->accounts().protocolAboutToBeUnloaded(QStringLiteral("Fake"));
    windows->client->accountsPage()->updateAccounts();
    KirvClientWindows::settle();
    QCOMPARE(windows->selector()->count(), 0);
    QCOMPARE(windows->selector()->placeholderText(), QStringLiteral("ann (its plug-in is not loaded)"));
    windows->account(ann)->setAlias(QStringLiteral("Annie"));
    KirvClientWindows::settle();
    QCOMPARE(windows->selector()->placeholderText(), QStringLiteral("Annie (its plug-in is not loaded)"));
    QVERIFY(windows->client->accounts().remove(windows->account(ann)));
    KirvClientWindows::settle();
    QCOMPARE(windows->selector()->placeholderText(), QStringLiteral("bob (its plug-in is not loaded)"));
    QVERIFY(windows->client->accounts().remove(windows->account(bob)));
    KirvClientWindows::settle();
    QCOMPARE(windows->selector()->placeholderText(), QString());
}

void tst_MainAccountRule::storedOneThatIsDisabledIsReplacedAtTheStart()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    windows->account(ann)->setEnabled(false);
    QVERIFY(windows->client->settings().setValue(QStringLiteral("main_account"), QStringLiteral("ann@@Fake")));
    windows->restart();
    QCOMPARE(mainAccount(), bob);
}

void tst_MainAccountRule::refusedStoringPassesItOnAllTheSame()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    {
        const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"),
                                   QStringLiteral("setting"));
        QVERIFY(refusal.holds());
        windows->removeInPage(ann);
        KirvClientWindows::settle();
        QCOMPARE(windows->shownMainAccount(), bob);
        QCOMPARE(stored(), QStringLiteral("ann@@Fake"));
    }
    windows->restart();
    QCOMPARE(mainAccount(), bob);
}

void tst_MainAccountRule::assigningStoresNothing()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    QSignalSpy changes(&rule(), &KirvMainAccount::changed);
    const int commits = windows->client->profile().commitCount();
    KirvAccountManager::getInstance()->setMainAccount(windows->account(bob));
    QCOMPARE(int(changes.size()), 0);
    QCOMPARE(windows->client->profile().commitCount(), commits);
    QCOMPARE(rule().account(), windows->account(bob));
}

void tst_MainAccountRule::aliasOfItIsShownAtOnce()
{
    windows->addAccount(ann);
    windows->account(ann)->setAlias(QStringLiteral("Anna"));
    KirvClientWindows::settle();
    QCOMPARE(windows->row(ann)->text(0), QStringLiteral("Anna"));
    QCOMPARE(windows->selector()->currentText(), QStringLiteral("Anna"));
    QCOMPARE(windows->client->window()->windowTitle(), QStringLiteral("Kirv – Settings – Anna"));
}

void tst_MainAccountRule::accountWithoutAliasIsOfferedUnderItsLogin()
{
    windows->addAccount(ann);
    windows->account(ann)->setAlias(QString());
    KirvClientWindows::settle();
    QCOMPARE(windows->selector()->currentText(), ann);
}

/// The account goes between a refresh of the page, which fills the selector, and the correction of its entries.
void tst_MainAccountRule::entryOfARemovedAccountIsNotFollowed()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    windows->selector()->setCurrentIndex(windows->selector()->findText(bob));
    KirvClientWindows::settle();
    QCOMPARE(mainAccount(), bob);
    const QPointer<KirvAccount> removed(windows->account(ann));
    removed->connection()->drop(); // it is gone at once then
    windows->client->accountsPage()->updateAccounts();
    QVERIFY(windows->client->accounts().remove(removed));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!removed);
    KirvClientWindows::settle();
    QCOMPARE(windows->selector()->count(), 1);
    QCOMPARE(mainAccount(), bob);
}

void tst_MainAccountRule::correctingTheSelectorIsNoChoice()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    QSignalSpy choices(windows->client->accountsPage(), SIGNAL(mainAccountChanged()));
    windows->toggleInPage(ann);
    windows->toggleInPage(bob);
    windows->toggleInPage(ann);
    windows->removeInPage(ann);
    KirvClientWindows::settle();
    QCOMPARE(int(choices.size()), 0);
}

void tst_MainAccountRule::unloadedOneCanBeRead_data()
{
    QTest::addColumn<QColor>("paper");
    QTest::addColumn<QColor>("ink");
    QTest::newRow("black on white") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("white on black") << QColor(Qt::black) << QColor(Qt::white);
}

void tst_MainAccountRule::unloadedOneCanBeRead()
{
    QFETCH(QColor, paper);
    QFETCH(QColor, ink);
    windows->addAccount(ann);
    QComboBox *selector = windows->selector();
    QPalette palette = selector->palette();
    for (const QPalette::ColorRole role : { QPalette::Button, QPalette::Base, QPalette::Window })
        palette.setColor(role, paper);
    for (const QPalette::ColorRole role : { QPalette::ButtonText, QPalette::Text, QPalette::WindowText })
        palette.setColor(role, ink);
    selector->setPalette(palette);
    KirvClientWindows::settle();
    const QRect text(8, 4, selector->width() / 2, selector->height() - 8);
    const auto inked = [&] {
        const QImage image = selector->grab(text).toImage();
        int pixels = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                pixels += qAbs(qGray(image.pixel(x, y)) - qGray(paper.rgb())) > 128 ? 1 : 0;
        }
        return pixels;
    };
    QVERIFY(inked() > 10);
    windows->client->accounts().protocolAboutToBeUnloaded(QStringLiteral("Fake"));
    windows->client->accountsPage()->updateAccounts();
    KirvClientWindows::settle();
    QCOMPARE(selector->currentIndex(), -1);
    QVERIFY(!selector->placeholderText().isEmpty());
    selector->setEnabled(true); // pale texts of what is disabled are the style's own
    QVERIFY2(inked() > 10, qPrintable(QString::number(inked())));
}

void tst_MainAccountRule::listOfManyIsNoHigherThanTenRows()
{
    for (int i = 0; i < 60; ++i)
        windows->addAccount(QStringLiteral("account%1").arg(i));
    KirvClientWindows::settle();
    QComboBox *selector = windows->selector();
    QCOMPARE(selector->count(), 60);
    selector->showPopup();
    KIRV_TRY(selector->view()->isVisible());
    const int row = selector->view()->sizeHintForRow(0);
    QVERIFY(row > 0);
    QVERIFY2(selector->view()->height() <= 11 * row, qPrintable(QString::number(selector->view()->height())));
    selector->hidePopup();
}

QTEST_MAIN(tst_MainAccountRule)
#include "tst_main_account_rule.moc"

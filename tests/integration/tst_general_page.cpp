// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_group.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "client/kirv_translations.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>
#include <QToolButton>
#include <QTranslator>
#include <QTreeWidget>
#include <QUrl>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString german = QStringLiteral("de");
const QString arabic = QStringLiteral("ar");

/// Translates what the plug-in of the examples says about itself.
class ExampleTranslator : public QTranslator {
public:
    static QString description() { return QStringLiteral("Ein Protokoll zum Lernen."); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *, const char *, int) const override
    {
        return QLatin1String(context) == QLatin1String("KirvExampleProtocol") ? description() : QString();
    }
};

} // namespace

/// The page "General": the language that is chosen is spoken at once, or when the windows that are open are closed; the
/// keyring and the profile are shown.
class tst_GeneralPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void languagesAreListedInTheirOwnWords();
    void chosenLanguageIsSpokenAtOnce();
    void pageWorksAfterEachChange();
    void columnsKeepTheirWidths_data();
    void columnsKeepTheirWidths();
    void disabledAccountsAreEnabledAgainAfterwards();
    void chosenLanguageIsSpokenAtTheNextStart();
    void languageOfTheSystemIsChosenAgain();
    void directionFollowsTheLanguage();
    void presenceIsNamedAnew();
    void pluginIsDescribedAnew();
    void refusedChoiceIsTakenBack();
    void untouchedWindowIsClosedForIt();
    void windowWithInputDelaysIt_data();
    void windowWithInputDelaysIt();
    void questionDelaysIt();
    void quittingWhileItIsDelayedIsSafe();
    void messageOfThePageThatGoesMayHaveTheFocus();

    void keyringIsDescribed_data();
    void keyringIsDescribed();
    void lockedKeyringIsUnlocked_data();
    void lockedKeyringIsUnlocked();
    void lockedKeyringIsUnlockedForTheMove();
    void folderIsOpened();
    void copiesAreListed();

public Q_SLOTS:
    void takeUrl(const QUrl &url) { opened = url; }

private:
    template <class Widget>
    Widget *part(const char *name) const
    {
        return windows->client->window()->findChild<Widget *>(QLatin1String("General_") + QLatin1String(name));
    }
    QComboBox *box() const { return part<QComboBox>("Language"); }
    void showPage() const { KirvClientWindows::child<QListWidget>(window(), "Settings_Pages")->setCurrentRow(2); }
    KirvSettingsWindow *window() const { return windows->client->window(); }
    /// As a user does.
    void choose(const QString &language) const;
    bool isGerman() const { return window()->windowTitle().startsWith(QStringLiteral("Kirv – Einstellungen")); }
    QString hint() const
    {
        return part<QLabel>("LanguageHint")->isHidden() ? QString() : part<QLabel>("LanguageHint")->text();
    }
    bool isDelayed() const { return hint() != box()->currentData(Qt::ToolTipRole).toString(); }

    QTemporaryDir texts;
    std::unique_ptr<KirvTranslations> translations;
    std::unique_ptr<KirvClientWindows> windows;
    QUrl opened;
};

void tst_GeneralPage::initTestCase()
{
    // English, German, and a language from right to left that has the texts of English.
    for (const char *name : { "kirv_en.qm", "kirv_de.qm", "kirv_gui_accounts_tab_de.qm" })
        QVERIFY(QFile::copy(QStringLiteral(KIRV_TRANSLATIONS "/") + QLatin1String(name), texts.filePath(name)));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_TRANSLATIONS "/kirv_en.qm"), texts.filePath("kirv_ar.qm")));
}

void tst_GeneralPage::init()
{
    translations = std::make_unique<KirvTranslations>(*qApp, texts.path());
    translations->use(QString());
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->addAccount(ann);
    showPage();
}

void tst_GeneralPage::cleanup()
{
    KirvClientWindows::closeBoxes();
    windows.reset();
    translations.reset();
    QLocale::setDefault(QLocale::c());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_GeneralPage::choose(const QString &language) const
{
    const int index = box()->findData(language);
    QVERIFY(index >= 0);
    box()->setCurrentIndex(index);
    Q_EMIT box()->activated(index);
    if (box()->currentIndex() == index) // it was not refused
        KIRV_TRY(translations->chosen() == language || isDelayed());
    KirvClientWindows::settle();
}

void tst_GeneralPage::languagesAreListedInTheirOwnWords()
{
    QStringList names;
    for (int index = 0; index < box()->count(); ++index)
        names << box()->itemText(index);
    QCOMPARE(names, (QStringList { "As the system (English)", "Deutsch", "English", QString::fromUtf8("العربية") }));
    QCOMPARE(box()->currentIndex(), 0);
    QCOMPARE(box()->itemData(2, Qt::ToolTipRole), QVariant());
    QCOMPARE(box()->itemData(3, Qt::ToolTipRole).toString(), QString("No native speaker has read these texts yet."));
}

void tst_GeneralPage::chosenLanguageIsSpokenAtOnce()
{
    const QPointer<KirvAccountsTab> before = windows->client->accountsPage();
    choose(german);
    QVERIFY(isGerman());
    QVERIFY(!before);
    QCOMPARE(windows->list()->headerItem()->text(1), QStringLiteral("Protokoll"));
    QCOMPARE(windows->rowIds(), QStringList(ann));
    QCOMPARE(windows->shownMainAccount(), ann);
    QCOMPARE(KirvClientWindows::child<QToolButton>(windows->client->accountsPage(), "Accounts_AddButton")
                 ->menu()
                 ->actions()
                 .size(),
             1);
    // The same page is shown, with the choice.
    QVERIFY(part<QComboBox>("Language")->isVisible());
    QCOMPARE(box()->currentData().toString(), german);
    QVERIFY(hint().contains("Muttersprache"));
    QVERIFY(!isDelayed());
    QCOMPARE(windows->messages(), QStringList());
}

void tst_GeneralPage::pageWorksAfterEachChange()
{
    for (const QString &language : { german, arabic, QString(), german }) {
        choose(language);
        windows->addAccount(bob);
        QCOMPARE(windows->rowIds(), (QStringList { ann, bob }));
        windows->chooseMainAccount(bob);
        QVERIFY(window()->windowTitle().contains(bob));
        windows->toggleInPage(ann);
        QVERIFY(!windows->account(ann)->isEnabled());
        windows->toggleInPage(ann);
        QVERIFY(windows->account(ann)->isEnabled());
        windows->removeInPage(bob);
        QCOMPARE(windows->rowIds(), QStringList(ann));
        KirvLayoutDialog *edited = windows->edit(ann);
        QVERIFY(edited);
        KirvClientWindows::save(edited);
    }
}

void tst_GeneralPage::columnsKeepTheirWidths_data()
{
    QTest::addColumn<int>("dragged"); ///< by the user before; 0: not at all
    QTest::newRow("usual") << 0;
    QTest::newRow("dragged") << 37;
}

void tst_GeneralPage::columnsKeepTheirWidths()
{
    QFETCH(int, dragged);
    const auto showAccounts = [this] {
        KirvClientWindows::child<QListWidget>(window(), "Settings_Pages")->setCurrentRow(0);
        KirvClientWindows::settle();
    };
    showAccounts();
    const int width = windows->list()->columnWidth(1) + dragged;
    windows->list()->header()->resizeSection(1, width);
    for (const QString &language : { german, arabic, QString() }) {
        showPage();
        choose(language);
        showAccounts();
        QCOMPARE(windows->list()->columnWidth(1), width);
        QCOMPARE(windows->client->settings().value("accounts_page/protocol_width"),
                 dragged ? QString::number(width) : QString());
    }
}

/// The page that has disabled them is gone by then.
void tst_GeneralPage::disabledAccountsAreEnabledAgainAfterwards()
{
    windows->addAccount(bob);
    const auto group = [this] { return windows->client->accountsPage()->findChild<KirvAccountGroup *>(); };
    group()->disableAll();
    KirvClientWindows::settle();
    QCOMPARE(int(KirvClientWindows::boxes().size()), 1);
    KirvClientWindows::boxes().first()->button(QMessageBox::Yes)->click();
    KIRV_TRY(!windows->account(ann)->isEnabled() && !windows->account(bob)->isEnabled());
    KirvClientWindows::settle();
    QVERIFY(group()->canEnableAgain());
    choose(german);
    QVERIFY(isGerman());
    QVERIFY(group()->canEnableAgain());
    group()->enableAgain();
    QVERIFY(windows->account(ann)->isEnabled() && windows->account(bob)->isEnabled());
    QVERIFY(!group()->canEnableAgain());
}

void tst_GeneralPage::chosenLanguageIsSpokenAtTheNextStart()
{
    choose(german);
    windows->end();
    translations = std::make_unique<KirvTranslations>(*qApp, texts.path());
    translations->use(QString());
    windows->restart();
    QVERIFY(isGerman());
    QCOMPARE(box()->currentData().toString(), german);
}

void tst_GeneralPage::languageOfTheSystemIsChosenAgain()
{
    choose(german);
    choose(QString());
    QVERIFY(!isGerman());
    QCOMPARE(box()->currentIndex(), 0);
    windows->restart();
    QVERIFY(!isGerman());
}

void tst_GeneralPage::directionFollowsTheLanguage()
{
    choose(arabic);
    QCOMPARE(window()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(windows->list()->layoutDirection(), Qt::RightToLeft);
    choose(german);
    QCOMPARE(window()->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(windows->list()->layoutDirection(), Qt::LeftToRight);
}

void tst_GeneralPage::presenceIsNamedAnew()
{
    KIRV_TRY(windows->account(ann)->isOnline());
    const QString shown = QStringLiteral("Anwesend");
    windows->protocol->offeredPresences[0] = { windows->protocol->offeredPresences[0].getId(), shown, QString() };
    choose(german);
    const auto *title = KirvClientWindows::child<QLabel>(window(), "Accounts_StripTitle");
    windows->select(ann);
    KIRV_TRY(title->text().contains(shown));
}

void tst_GeneralPage::pluginIsDescribedAnew()
{
    KirvPluginLoader &plugins = windows->client->plugins();
    const QString file = QStringLiteral(KIRV_EXAMPLE_PROTOCOLS "/kirv_protocol_example.so");
    QVERIFY(plugins.load(file));
    const auto shown = [this] { return KirvClientWindows::child<QLabel>(window(), "Plugins_Details")->text(); };
    QCOMPARE(shown(), plugins.plugin(file).description);
    ExampleTranslator translator;
    QVERIFY(shown() != ExampleTranslator::description());
    QVERIFY(QCoreApplication::installTranslator(&translator));
    choose(german);
    QCOMPARE(shown(), ExampleTranslator::description());
    QCOMPARE(plugins.plugin(file).description, ExampleTranslator::description());
    QVERIFY(plugins.unload(file));
    choose(arabic); // of what is not loaded the last one is known
    QCOMPARE(shown(), ExampleTranslator::description());
}

void tst_GeneralPage::refusedChoiceIsTakenBack()
{
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"),
                               QStringLiteral("setting"));
    choose(german);
    QVERIFY(!isGerman());
    QCOMPARE(box()->currentIndex(), 0);
    QCOMPARE(windows->messages().size(), 1);
}

void tst_GeneralPage::untouchedWindowIsClosedForIt()
{
    const QPointer<KirvLayoutDialog> edited = windows->edit(ann);
    KirvClientWindows::settle();
    QVERIFY(edited && edited->isVisible());
    choose(german);
    QVERIFY(!edited);
    QVERIFY(isGerman());
}

void tst_GeneralPage::windowWithInputDelaysIt_data()
{
    QTest::addColumn<bool>("isText");
    QTest::newRow("a text is typed") << true;
    QTest::newRow("a box is ticked") << false;
}

void tst_GeneralPage::windowWithInputDelaysIt()
{
    QFETCH(bool, isText);
    const QPointer<KirvLayoutDialog> edited = windows->edit(ann);
    KirvClientWindows::settle();
    if (isText)
        QTest::keyClicks(KirvClientWindows::child<QLineEdit>(edited, "EditAccount_Alias"), "x");
    else
        KirvClientWindows::child<QAbstractButton>(edited, "EditAccount_RememberPassword")->click();
    choose(german);
    KIRV_TRY(isDelayed());
    QVERIFY(edited && edited->isVisible());
    QVERIFY(!isGerman());
    QCOMPARE(box()->currentData().toString(), german);
    KirvClientWindows::cancel(edited);
    KIRV_TRY(isGerman());
    QVERIFY(!isDelayed());
}

void tst_GeneralPage::questionDelaysIt()
{
    windows->select(ann);
    windows->pageButton("Accounts_RemoveButton")->click();
    QCOMPARE(KirvClientWindows::boxes().size(), 1);
    choose(german);
    KIRV_TRY(isDelayed());
    QVERIFY(!isGerman());
    KirvClientWindows::boxes().constFirst()->button(QMessageBox::Yes)->click();
    KIRV_TRY(isGerman());
    QCOMPARE(windows->rowIds(), QStringList());
}

void tst_GeneralPage::quittingWhileItIsDelayedIsSafe()
{
    KirvLayoutDialog *edited = windows->edit(ann);
    QTest::keyClicks(KirvClientWindows::child<QLineEdit>(edited, "EditAccount_Alias"), "x");
    choose(german);
    KIRV_TRY(isDelayed());
    windows->restart();
    QVERIFY(isGerman());
}

void tst_GeneralPage::messageOfThePageThatGoesMayHaveTheFocus()
{
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window(), kirvPatience));
    KirvClientWindows::child<QListWidget>(window(), "Settings_Pages")->setCurrentRow(0);
    windows->list()->sortByColumn(0, Qt::DescendingOrder);
    windows->select(ann);
    windows->list()->setFocus();
    QTest::keyClick(windows->list(), Qt::Key_Down, Qt::AltModifier);
    auto *button = KirvClientWindows::child<QWidget>(window(), "MessageBar_Command");
    QVERIFY(button);
    button->setFocus();
    QVERIFY(button->hasFocus());
    choose(german);
    QVERIFY(isGerman());
    QCOMPARE(windows->messages(), QStringList());
    windows->select(ann);
    windows->list()->setFocus();
    QVERIFY(windows->list()->hasFocus());
}

void tst_GeneralPage::keyringIsDescribed_data()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::addColumn<QString>("provider");
    QTest::addColumn<QString>("text");
    QTest::newRow("ready") << KirvSecretStore::Ready << "KWallet"
                           << "KWallet keeps the passwords. It is unlocked.";
    QTest::newRow("without a name") << KirvSecretStore::Ready << ""
                                    << "Your keyring keeps the passwords. It is unlocked.";
    QTest::newRow("locked") << KirvSecretStore::Locked << "KWallet"
                            << "KWallet keeps the passwords. It is locked.";
    QTest::newRow("silent") << KirvSecretStore::Silent << "KWallet"
                            << "KWallet keeps the passwords. It does not respond.";
    QTest::newRow("none") << KirvSecretStore::Unavailable << ""
                          << "There is no keyring. Passwords that are remembered are kept in a file only you can read.";
}

void tst_GeneralPage::keyringIsDescribed()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(QString, provider);
    QFETCH(QString, text);
    QCOMPARE(part<QLabel>("Keyring")->text(),
             QStringLiteral("Passwords that are remembered are kept in a file only you can read."));
    for (KirvAccount *account : windows->client->accounts().accounts())
        account->setPassword(QString()); // nothing is to be moved
    KirvFakeSecretStore keyring;
    keyring.provider = provider;
    windows->client->accounts().secrets().setKeyring(&keyring);
    keyring.setState(state);
    KirvClientWindows::settle();
    QCOMPARE(part<QLabel>("Keyring")->text(), text);
    QVERIFY(part<QPushButton>("UnlockButton")->isHidden()); // nothing is awaited
    windows->end();
}

void tst_GeneralPage::lockedKeyringIsUnlocked_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("for accounts that are enabled") << true;
    QTest::newRow("for accounts that are disabled") << false;
}

void tst_GeneralPage::lockedKeyringIsUnlocked()
{
    QFETCH(bool, isEnabled);
    KirvFakeSecretStore keyring;
    windows->client->accounts().secrets().setKeyring(&keyring);
    windows->addAccount(bob);
    KIRV_TRY(!keyring.secrets.isEmpty());
    for (const QString &id : { ann, bob })
        QVERIFY(windows->account(id)->setEnabled(isEnabled));
    keyring.setState(KirvSecretStore::Locked);
    keyring.outcome = KirvSecretStore::Refused;
    windows->restart();
    windows->client->accounts().secrets().setKeyring(&keyring);
    KIRV_TRY(!part<QPushButton>("UnlockButton")->isHidden());
    keyring.outcome = KirvSecretStore::Done;
    keyring.calls.clear();
    part<QPushButton>("UnlockButton")->click();
    KIRV_TRY(keyring.calls.contains(QStringLiteral("read")));
    keyring.setState(KirvSecretStore::Ready);
    KIRV_TRY(!windows->account(bob)->awaitsSecrets());
    KIRV_TRY(part<QPushButton>("UnlockButton")->isHidden());
    windows->end();
}

void tst_GeneralPage::lockedKeyringIsUnlockedForTheMove()
{
    KirvFakeSecretStore keyring(KirvSecretStore::Locked);
    KirvSecretKeeper &secrets = windows->client->accounts().secrets();
    secrets.setKeyring(&keyring);
    secrets.startMoving();
    keyring.setState(KirvSecretStore::Locked);
    KIRV_TRY_COMPARE(
        part<QLabel>("Keyring")->text(),
        QStringLiteral("Fake Keyring keeps the passwords. It is locked. Some passwords are still in a file "
                       "only you can read. They are moved when the keyring is unlocked."));
    QVERIFY(!part<QPushButton>("UnlockButton")->isHidden());
    part<QPushButton>("UnlockButton")->click();
    KIRV_TRY(!keyring.secrets.isEmpty());
    keyring.setState(KirvSecretStore::Ready);
    KIRV_TRY_COMPARE(part<QLabel>("Keyring")->text(),
                     QStringLiteral("Fake Keyring keeps the passwords. It is unlocked."));
    QVERIFY(part<QPushButton>("UnlockButton")->isHidden());
    windows->end();
}

void tst_GeneralPage::folderIsOpened()
{
    QVERIFY(part<QTextEdit>("ProfileFolder")->toPlainText().contains(windows->profileFolder()));
    QDesktopServices::setUrlHandler("file", this, "takeUrl");
    part<QPushButton>("OpenFolderButton")->click();
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(opened, QUrl::fromLocalFile(windows->profileFolder()));
}

void tst_GeneralPage::copiesAreListed()
{
    QVERIFY(part<QTreeWidget>("Copies")->isHidden());
    QCOMPARE(part<QLabel>("CopiesText")->text(), QString("There are no copies of the profile yet."));
    windows->restart(); // the end keeps a copy
    showPage();
    auto *copies = part<QTreeWidget>("Copies");
    QVERIFY(copies->isVisible());
    QCOMPARE(copies->topLevelItemCount(), 1);
    QVERIFY(copies->topLevelItem(0)->text(0).contains(QString::number(QDate::currentDate().day())));
    QCOMPARE(copies->topLevelItem(0)->text(1), QString("1"));
}

QTEST_MAIN(tst_GeneralPage)
#include "tst_general_page.moc"

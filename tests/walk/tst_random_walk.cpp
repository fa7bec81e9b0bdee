// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "core/store/kirv_client_settings.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_avatar_quick_set_widget.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace {

const int maximumAccounts = 12;

int setting(const char *variable, int fallback)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : fallback;
}

} // namespace

/// Walks through all commands of the page and its dialogs by chance, with protocols that come and go, servers that
/// answer or not and questions left open, and compares after every step what the page shows with what the account
/// manager and the store hold. The same seed walks the same way.
class tst_random_walk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pageManagerAndStoreAgreeAfterEveryStep();
    void cleanupTestCase();

private:
    struct Step {
        const char *name;
        int weight;
        std::function<void()> take;
    };

    std::vector<Step> steps();
    void takeStep(const std::vector<Step> &steps);
    QString disagreement() const;
    QString rowDisagreement() const;
    QString selectorDisagreement() const;
    QString storeDisagreement() const;
    QString editDisagreement() const;

    // What a person does.
    void add();
    void fillAndFinishAddWindow();
    void dismissInformation();
    void selectRow();
    void editSelected();
    void activateRow();
    void changeOpenEditWindow();
    void finishOpenEditWindow();
    void useDirectory();
    void removeSelected();
    void toggleRow();
    void answerQuestion();
    void chooseMainAccount();
    void registerAccount();
    void answerOtherWindow();
    void hideOrShow();
    void sortOtherwise();

    // What happens around them.
    void toggleProtocol();
    void serverDoes(const char *what);
    void timePasses();
    void removeBehindTheBack();
    void enableOrDisableBehindTheBack();
    void pickAvatar();

    int below(int limit) { return int(chance.bounded(limit)); }
    bool maybe(int percent) { return below(100) < percent; }
    QString login();
    QTreeWidgetItem *anyRow();
    KirvAccount *anyAccount();
    template <class Widget>
    Widget *anyVisible(const QString &name = QString());

    QRandomGenerator chance;
    QTemporaryDir profile;
    QString picture;
    std::unique_ptr<KirvClient> client;
    KirvAccountsTab *page = nullptr;
    QTreeWidget *list = nullptr;
    QComboBox *selector = nullptr;
    QSqlDatabase store;
    std::map<QString, int> taken;
};

void tst_random_walk::initTestCase()
{
    QVERIFY(profile.isValid());
    picture = profile.filePath(QStringLiteral("picked.png"));
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QVERIFY(image.save(picture));

    KirvClientOptions options;
    options.profileFolder = profile.filePath(QStringLiteral("profile"));
    options.pluginFolder = QStringLiteral(KIRV_WALK_PLUGINS);
    client = std::make_unique<KirvClient>(options);
    QVERIFY2(client->start(), qPrintable(client->errorString()));
    QTRY_VERIFY(client->arePluginsLoaded());
    QCOMPARE(client->plugins().protocols().size(), 2);

    page = client->accountsPage();
    list = page->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
    selector = page->findChild<QComboBox *>(QStringLiteral("Accounts_MainAccount"));
    client->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(client->window()));

    store = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("walk"));
    store.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    const QStringList files =
        QDir(options.profileFolder).entryList({ QStringLiteral("*.sqlite"), QStringLiteral("*.db") });
    QCOMPARE(files.size(), 1);
    store.setDatabaseName(QDir(options.profileFolder).filePath(files.first()));
    QVERIFY(store.open());
}

void tst_random_walk::cleanupTestCase()
{
    store = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("walk"));
    // Servers that never answer are not waited for.
    for (const KirvAccount *account : client->accounts().accounts()) {
        if (KirvConnection *connection = account->connection())
            connection->drop();
    }
    client.reset();
    for (const auto &[name, count] : taken)
        qInfo("%6d x %s", count, qPrintable(name));
}

void tst_random_walk::pageManagerAndStoreAgreeAfterEveryStep()
{
    // The same way each time unless asked for another, so that a failure is always news; 0 goes a new one.
    int seed = setting("KIRV_WALK_SEED", 1);
    if (seed == 0)
        seed = 1 + int(QRandomGenerator::system()->bounded(1000000));
    const int length = setting("KIRV_WALK_STEPS", 5000);
    qInfo("KIRV_WALK_SEED=%d KIRV_WALK_STEPS=%d", seed, length);
    chance.seed(quint32(seed));

    const std::vector<Step> ways = steps();
    QStringList trace;
    for (int i = 0; i < length; ++i) {
        takeStep(ways);
        trace << objectName();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QString wrong = disagreement();
        QVERIFY2(wrong.isEmpty(),
                 qPrintable(QStringLiteral("seed %1, step %2 after %3: %4")
                                .arg(seed)
                                .arg(i)
                                .arg(trace.mid(qMax(0, int(trace.size()) - 8)).join(QStringLiteral(", ")), wrong)));
    }
    for (const Step &way : ways)
        QVERIFY2(length < 5000 || taken[QLatin1String(way.name)] > 0, way.name);
}

std::vector<tst_random_walk::Step> tst_random_walk::steps()
{
    return {
        { "add", 8, [this] { add(); } },
        { "select", 20, [this] { selectRow(); } },
        { "edit", 6, [this] { editSelected(); } },
        { "activate", 4, [this] { activateRow(); } },
        { "change in edit window", 12, [this] { changeOpenEditWindow(); } },
        { "finish edit window", 8, [this] { finishOpenEditWindow(); } },
        { "use directory", 8, [this] { useDirectory(); } },
        { "pick avatar", 2, [this] { pickAvatar(); } },
        { "remove", 5, [this] { removeSelected(); } },
        { "toggle", 14, [this] { toggleRow(); } },
        { "answer question", 14, [this] { answerQuestion(); } },
        { "choose main account", 6, [this] { chooseMainAccount(); } },
        { "register", 2, [this] { registerAccount(); } },
        { "answer other window", 6, [this] { answerOtherWindow(); } },
        { "hide or show", 4, [this] { hideOrShow(); } },
        { "sort", 2, [this] { sortOtherwise(); } },
        { "load or unload", 4, [this] { toggleProtocol(); } },
        { "server accepts", 30, [this] { serverDoes("serverAccepts"); } },
        { "server refuses", 4, [this] { serverDoes("serverRefuses"); } },
        { "server goes", 4, [this] { serverDoes("serverGoes"); } },
        { "time passes", 6, [this] { timePasses(); } },
        { "removed behind the back", 1, [this] { removeBehindTheBack(); } },
        { "enabled or disabled behind the back", 3, [this] { enableOrDisableBehindTheBack(); } },
    };
}

void tst_random_walk::takeStep(const std::vector<Step> &steps)
{
    int total = 0;
    for (const Step &step : steps)
        total += step.weight;
    int at = below(total);
    for (const Step &step : steps) {
        at -= step.weight;
        if (at >= 0)
            continue;
        setObjectName(QLatin1String(step.name));
        ++taken[QLatin1String(step.name)];
        step.take();
        return;
    }
}

QString tst_random_walk::disagreement() const
{
    for (const QString &wrong :
         { rowDisagreement(), selectorDisagreement(), storeDisagreement(), editDisagreement() }) {
        if (!wrong.isEmpty())
            return wrong;
    }
    return QString();
}

/// Every configured account stands in the list once, as it is.
QString tst_random_walk::rowDisagreement() const
{
    QSet<KirvAccountKey> listed;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = list->topLevelItem(i);
        const KirvAccountKey key { row->text(2), row->text(1) };
        const KirvAccount *account = client->accounts().find(key);
        if (!account)
            return QStringLiteral("a row of the account %1 that is not configured").arg(key.toSetting());
        if (listed.contains(key))
            return QStringLiteral("two rows of %1").arg(key.toSetting());
        if (row->text(0) != account->getAlias())
            return QStringLiteral("the alias of %1").arg(key.toSetting());
        if (page->isVisible() && (row->checkState(0) == Qt::Checked) != account->isEnabled())
            return QStringLiteral("the check box of %1").arg(key.toSetting());
        listed.insert(key);
    }
    if (listed.size() != client->accounts().accounts().size())
        return QStringLiteral("%1 rows of %2 accounts").arg(listed.size()).arg(client->accounts().accounts().size());
    // The list's focus makes a row current without selecting it, which the buttons do not follow.
    const bool isSelected = !list->selectedItems().isEmpty();
    const bool isCurrent = list->currentIndex().isValid();
    for (const char *button : { "Accounts_EditButton", "Accounts_RemoveButton" }) {
        const bool isEnabled = page->findChild<QToolButton *>(QLatin1String(button))->isEnabled();
        if ((isSelected && !isEnabled) || (!isCurrent && isEnabled))
            return QStringLiteral("%1 is %2")
                .arg(QLatin1String(button), QLatin1String(isEnabled ? "enabled" : "disabled"));
    }
    return QString();
}

/// The selector offers each enabled and loaded account once, and shows the main account when it offers it.
QString tst_random_walk::selectorDisagreement() const
{
    QSet<void *> expected;
    for (KirvAccount *account : client->accounts().accounts()) {
        if (account->isEnabled() && account->isLoaded())
            expected.insert(static_cast<KirvAccountConnection *>(account));
    }
    QSet<void *> offered;
    for (int i = 0; i < selector->count(); ++i)
        offered.insert(selector->itemData(i).value<void *>());
    if (offered.size() != selector->count())
        return QStringLiteral("an account is offered twice");
    // While the page is hidden, it may not know yet what came; what went it must not offer.
    QSet<void *> configured;
    for (KirvAccount *account : client->accounts().accounts())
        configured.insert(static_cast<KirvAccountConnection *>(account));
    if (!configured.contains(offered))
        return QStringLiteral("an account that is gone is offered");
    if (!page->isVisible())
        return QString();
    if (offered != expected)
        return QStringLiteral("%1 accounts are offered, %2 are enabled and loaded")
            .arg(offered.size())
            .arg(expected.size());
    void *mainAccount = KirvAccountManager::getInstance()->getMainAccount();
    if (mainAccount && offered.contains(mainAccount) && selector->currentData().value<void *>() != mainAccount)
        return QStringLiteral("the selector does not show the main account");
    return QString();
}

/// A second connection to the database sees what the account manager holds.
QString tst_random_walk::storeDisagreement() const
{
    QSqlQuery query(store);
    if (!query.exec(QStringLiteral("SELECT id, protocol, alias, enabled FROM account ORDER BY position")))
        return query.lastQuery();
    for (const KirvAccount *account : client->accounts().accounts()) {
        if (!query.next())
            return QStringLiteral("the store holds too few accounts");
        const KirvAccountKey key { query.value(0).toString(), query.value(1).toString() };
        if (key != account->key())
            return QStringLiteral("the store holds %1 in place of %2").arg(key.toSetting(), account->key().toSetting());
        if (query.value(2).toString() != account->getAlias() || query.value(3).toBool() != account->isEnabled())
            return QStringLiteral("the store holds other values of %1").arg(key.toSetting());
    }
    if (query.next())
        return QStringLiteral("the store holds too many accounts");
    const auto *mainAccount = static_cast<KirvAccount *>(KirvAccountManager::getInstance()->getMainAccount());
    const QString stored = client->settings().value(QStringLiteral("main_account"));
    if (mainAccount && mainAccount->key().toSetting() != stored)
        return QStringLiteral("the store holds the main account %1").arg(stored);
    return QString();
}

/// The recorded edit dialog is alive, and no edit window is open without one.
QString tst_random_walk::editDisagreement() const
{
    KirvEditAccountDialog *recorded = page->getAccEdit();
    if (recorded && recorded->metaObject() != &KirvEditAccountDialog::staticMetaObject)
        return QStringLiteral("the recorded edit dialog");
    int open = 0;
    for (const QDialog *window : page->findChildren<QDialog *>(QStringLiteral("EditAccount")))
        open += window->isVisible();
    if (open > 1 || (open == 1 && !recorded))
        return QStringLiteral("%1 edit windows are open").arg(open);
    return QString();
}

QString tst_random_walk::login()
{
    static const char *const logins[] = { "ann", "bob", "<b>cy</b>", "dan%1", "eve%2" };
    return QLatin1String(logins[below(5)]) + QString::number(below(3));
}

QTreeWidgetItem *tst_random_walk::anyRow()
{
    return list->topLevelItemCount() ? list->topLevelItem(below(list->topLevelItemCount())) : nullptr;
}

KirvAccount *tst_random_walk::anyAccount()
{
    const QList<KirvAccount *> accounts = client->accounts().accounts();
    return accounts.isEmpty() ? nullptr : accounts.at(below(int(accounts.size())));
}

template <class Widget>
Widget *tst_random_walk::anyVisible(const QString &name)
{
    QList<Widget *> found;
    for (Widget *widget : client->window()->findChildren<Widget *>(name)) {
        if (widget->isVisible())
            found << widget;
    }
    return found.isEmpty() ? nullptr : found.at(below(int(found.size())));
}

void tst_random_walk::add()
{
    QMenu *menu = page->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton"))->menu();
    if (menu->actions().isEmpty() || client->accounts().accounts().size() >= maximumAccounts)
        return;
    QTimer::singleShot(0, this, &tst_random_walk::fillAndFinishAddWindow);
    menu->actions().at(below(int(menu->actions().size())))->trigger();
}

void tst_random_walk::fillAndFinishAddWindow()
{
    auto *window = page->findChild<QDialog *>(QStringLiteral("AddAccount"));
    if (!window)
        return;
    if (maybe(50)) {
        auto *configuration = window->findChild<QComboBox *>(QStringLiteral("AddAccount_Configuration"));
        configuration->setCurrentIndex(below(configuration->count()));
    }
    window->findChild<QLineEdit *>(QStringLiteral("AddAccount_UsernameEdit"))->setText(login());
    if (maybe(80))
        window->findChild<QLineEdit *>(QStringLiteral("AddAccount_PasswordEdit"))->setText(QStringLiteral("secret"));
    window->findChild<QCheckBox *>(QStringLiteral("AddAccount_RememberPasswordCheckbox"))->setChecked(maybe(50));

    auto *buttons = window->findChild<QDialogButtonBox *>(QStringLiteral("AddAccount_ButtonFrame"));
    if (maybe(10)) {
        toggleProtocol(); // which may take the window away
    } else if (maybe(80)) {
        QTimer::singleShot(0, this, &tst_random_walk::dismissInformation);
        buttons->button(QDialogButtonBox::Save)->click();
    }
    window = page->findChild<QDialog *>(QStringLiteral("AddAccount"));
    if (window && window->isVisible())
        window->findChild<QDialogButtonBox *>(QStringLiteral("AddAccount_ButtonFrame"))
            ->button(QDialogButtonBox::Cancel)
            ->click();
}

/// A refused account is told in a box that blocks.
void tst_random_walk::dismissInformation()
{
    for (QDialog *window : page->findChildren<QDialog *>(QStringLiteral("AddAccount"))) {
        for (QMessageBox *box : window->findChildren<QMessageBox *>())
            box->close();
    }
}

void tst_random_walk::selectRow()
{
    if (QTreeWidgetItem *row = anyRow()) {
        if (maybe(90))
            list->setCurrentItem(row);
        else
            list->clearSelection();
    }
}

void tst_random_walk::editSelected()
{
    page->findChild<QToolButton *>(QStringLiteral("Accounts_EditButton"))->click();
}

void tst_random_walk::activateRow()
{
    if (QTreeWidgetItem *row = anyRow())
        QMetaObject::invokeMethod(list, "itemActivated", Q_ARG(QTreeWidgetItem *, row), Q_ARG(int, below(2)));
}

void tst_random_walk::changeOpenEditWindow()
{
    auto *window = anyVisible<QDialog>(QStringLiteral("EditAccount"));
    if (!window)
        return;
    static const char *const texts[] = { "", "Work", "<b>Home</b>", "%1 %2", "a\nb", "\u05d0\u05d1" };
    const QString text = QString::fromUtf8(texts[below(6)]);
    switch (below(6)) {
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
            presences->setCurrentIndex(below(qMax(1, presences->count())));
    }
}

void tst_random_walk::finishOpenEditWindow()
{
    auto *window = anyVisible<QDialog>(QStringLiteral("EditAccount"));
    if (!window)
        return;
    auto *buttons = window->findChild<QDialogButtonBox *>(QStringLiteral("EditAccount_FrameButtons"));
    switch (below(5)) {
    case 0:
        buttons->button(QDialogButtonBox::Cancel)->click();
        break;
    case 1:
        window->close();
        break;
    default:
        buttons->button(QDialogButtonBox::Save)->click();
    }
}

void tst_random_walk::useDirectory()
{
    auto *window = anyVisible<QDialog>(QStringLiteral("EditAccount"));
    if (!window)
        return;
    auto *tabs = window->findChild<QTabWidget *>(QStringLiteral("EditAccount_Tabs"));
    if (tabs->count() < 2)
        return;
    if (maybe(40)) {
        tabs->setCurrentIndex(1 - tabs->currentIndex());
    } else if (maybe(30)) {
        const QString name =
            maybe(50) ? QStringLiteral("EditAccount_PubDirFetch") : QStringLiteral("EditAccount_PubDirDelete");
        window->findChild<QAbstractButton *>(name)->click();
    } else if (auto *text = window->findChild<QLineEdit *>(QStringLiteral("KirvField_name"))) {
        text->setText(login());
    }
}

void tst_random_walk::pickAvatar()
{
    if (auto *avatar = anyVisible<KirvAvatarQuickSetWidget>()) {
        QMetaObject::invokeMethod(avatar, "imageSelected",
                                  Q_ARG(QString, maybe(70) ? picture : QStringLiteral("/nonexistent")));
    }
}

void tst_random_walk::removeSelected()
{
    if (maybe(50))
        page->findChild<QToolButton *>(QStringLiteral("Accounts_RemoveButton"))->click();
    else
        QTest::keyClick(list, Qt::Key_Delete);
}

void tst_random_walk::toggleRow()
{
    if (QTreeWidgetItem *row = anyRow())
        row->setCheckState(0, row->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void tst_random_walk::answerQuestion()
{
    auto *box = anyVisible<QMessageBox>();
    if (!box)
        return;
    QAbstractButton *button = box->button(maybe(60) ? QMessageBox::Yes : QMessageBox::No);
    if (button && maybe(85))
        button->click();
    else
        box->close();
}

void tst_random_walk::chooseMainAccount()
{
    if (selector->count())
        selector->setCurrentIndex(below(selector->count()));
}

void tst_random_walk::registerAccount()
{
    page->findChild<QToolButton *>(QStringLiteral("Accounts_RegisterButton"))->click();
}

/// The question for a password, the choice of a protocol to register with and what else the client opens.
void tst_random_walk::answerOtherWindow()
{
    auto *window = anyVisible<QDialog>();
    if (!window || window->objectName() == QLatin1String("EditAccount") || qobject_cast<QMessageBox *>(window))
        return;
    for (QLineEdit *edit : window->findChildren<QLineEdit *>())
        edit->setText(maybe(80) ? QStringLiteral("secret") : QString());
    if (maybe(70))
        window->accept();
    else
        window->reject();
}

void tst_random_walk::hideOrShow()
{
    QWidget *window = client->window();
    window->setVisible(!window->isVisible());
}

void tst_random_walk::sortOtherwise()
{
    list->sortByColumn(below(2), maybe(50) ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void tst_random_walk::toggleProtocol()
{
    const QList<KirvPluginInfo> plugins = client->plugins().plugins();
    const KirvPluginInfo &plugin = plugins.at(below(int(plugins.size())));
    if (plugin.loaded && maybe(60))
        client->plugins().unload(plugin.fileName);
    else
        client->plugins().load(plugin.fileName);
}

void tst_random_walk::serverDoes(const char *what)
{
    const KirvAccount *account = anyAccount();
    if (account && account->connection())
        QMetaObject::invokeMethod(account->connection(), what);
}

void tst_random_walk::timePasses()
{
    const KirvAccount *account = anyAccount();
    if (account && account->connection())
        QMetaObject::invokeMethod(account->connection(), "advance", Q_ARG(int, 1 << below(18)));
}

void tst_random_walk::removeBehindTheBack()
{
    if (const KirvAccount *account = anyAccount())
        KirvAccountManager::getInstance()->removeAccount(account->key().id, account->key().protocol);
}

void tst_random_walk::enableOrDisableBehindTheBack()
{
    const KirvAccount *account = anyAccount();
    if (!account)
        return;
    const KirvAccountKey key = account->key();
    if (maybe(50))
        KirvAccountManager::getInstance()->enableAccount(key.id, key.protocol);
    else
        KirvAccountManager::getInstance()->disableAccount(key.id, key.protocol);
    // The page learns of it when it is shown or refreshed.
    page->updateAccounts();
}

QTEST_MAIN(tst_random_walk)
#include "tst_random_walk.moc"

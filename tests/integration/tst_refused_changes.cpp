// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_client_settings.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString refusedByTheTest = QStringLiteral("refused by the test");

/// What the picker shows, without the frame that it has with the focus.
QImage shownPicture(QWidget *picker)
{
    return picker->grab().toImage().copy(picker->rect().adjusted(8, 8, -8, -8));
}

bool isMention(const QStringList &texts)
{
    return texts.size() == 1 && texts.first().contains(refusedByTheTest);
}

} // namespace

/// What the windows show after the store has refused a change: what is stored.
class tst_RefusedChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { windows.reset(); }

    void rowOfAnAccountThatStaysIsBack_data();
    void rowOfAnAccountThatStaysIsBack();
    void rowAmongEqualAliasesKeepsItsPlace();
    void onlyRowIsBackWithItsButtons();
    void scrolledListStaysWhereItIs();
    void rowThatIsBackWorks();
    void accountRemovedByOthersWithoutSuccessKeepsItsRow();

    void pictureIsShownAsItWas_data();
    void pictureIsShownAsItWas();

    void mainAccountIsShownAsItWas_data();
    void mainAccountIsShownAsItWas();

    void addingSaysTheTrueReasonOnce();
    void addingAnExistingAccountSaysThatItExists();
    void addingAgainAfterARefusalWorks();
    void creatingWithoutAWindowSaysTheReasonInTheBar();

    void refusedEditKeepsEveryTypedValue();
    void rowWithoutAnAliasShowsItsLoginAgain_data();
    void rowWithoutAnAliasShowsItsLoginAgain();

    void checkBoxShowsWhatIsStored_data();
    void checkBoxShowsWhatIsStored();
    void refusedPasswordIsStoredWithTheNextSave_data();
    void refusedPasswordIsStoredWithTheNextSave();

private:
    QLineEdit *line(const QWidget *window, const char *name) const
    {
        return KirvClientWindows::child<QLineEdit>(window, name);
    }

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_RefusedChanges::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY2(windows->isReady(), qPrintable(windows->client->errorString()));
    for (const QString &id : { ann, bob, cleo })
        QVERIFY(windows->addAccount(id));
    KIRV_TRY(windows->account(cleo)->isOnline());
}

void tst_RefusedChanges::rowOfAnAccountThatStaysIsBack_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<int>("order");
    for (const QString &id : { ann, bob, cleo }) {
        QTest::addRow("%s", qPrintable(id)) << id << true << int(Qt::AscendingOrder);
        QTest::addRow("%s, descending", qPrintable(id)) << id << true << int(Qt::DescendingOrder);
        QTest::addRow("%s, disabled", qPrintable(id)) << id << false << int(Qt::AscendingOrder);
    }
}

void tst_RefusedChanges::rowOfAnAccountThatStaysIsBack()
{
    QFETCH(QString, id);
    QFETCH(bool, isEnabled);
    QFETCH(int, order);
    if (!isEnabled)
        windows->toggleInPage(id);
    const QStringList saidBefore = windows->messages(); // about the main account
    windows->list()->sortByColumn(0, Qt::SortOrder(order));
    const QStringList rows = windows->rowIds();
    QStringList offered;
    for (int i = 0; i < windows->selector()->count(); ++i)
        offered << windows->selector()->itemText(i);
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("DELETE"));
    for (int attempt = 0; attempt < 2; ++attempt) {
        windows->removeInPage(id);
        QCOMPARE(windows->rowIds(), rows);
        const QTreeWidgetItem *row = windows->row(id);
        QCOMPARE(row->checkState(0), isEnabled ? Qt::Checked : Qt::Unchecked);
        QCOMPARE(windows->list()->currentItem(), row);
        QCOMPARE(windows->list()->selectedItems(), QList<QTreeWidgetItem *> { windows->row(id) });
        QVERIFY(windows->pageButton("Accounts_EditButton")->isEnabled());
    }
    QCOMPARE(windows->selector()->count(), offered.size());
    for (int i = 0; i < offered.size(); ++i)
        QVERIFY(offered.contains(windows->selector()->itemText(i)));
    QCOMPARE(windows->account(id)->isEnabled(), isEnabled);
    QVERIFY(isMention(windows->messages().mid(saidBefore.size())));
}

void tst_RefusedChanges::rowAmongEqualAliasesKeepsItsPlace()
{
    for (const QString &id : { ann, bob, cleo })
        QVERIFY(windows->account(id)->change([](KirvAccountRecord &record) { record.alias = QStringLiteral("Same"); }));
    windows->restart();
    const QStringList rows = windows->rowIds();
    QCOMPARE(rows.size(), 3);
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("DELETE"));
    for (const QString &id : { ann, bob, cleo }) {
        windows->removeInPage(id);
        QCOMPARE(windows->rowIds(), rows);
    }
}

void tst_RefusedChanges::onlyRowIsBackWithItsButtons()
{
    windows->removeInPage(ann);
    windows->removeInPage(bob);
    QCOMPARE(windows->rowIds(), QStringList(cleo));
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("DELETE"));
    windows->removeInPage(cleo);
    QCOMPARE(windows->rowIds(), QStringList(cleo));
    QVERIFY(windows->row(cleo)->isSelected());
    QVERIFY(windows->pageButton("Accounts_EditButton")->isEnabled());
    QVERIFY(windows->pageButton("Accounts_RemoveButton")->isEnabled());
    QCOMPARE(windows->shownMainAccount(), cleo);
}

void tst_RefusedChanges::scrolledListStaysWhereItIs()
{
    for (int number = 0; number < 60; ++number)
        QVERIFY(windows->addAccount(QStringLiteral("m%1").arg(number, 2, 10, QLatin1Char('0'))));
    windows->select(QStringLiteral("m30"));
    QScrollBar *bar = windows->list()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    bar->setValue(windows->list()->indexOfTopLevelItem(windows->row(QStringLiteral("m29"))));
    const int value = bar->value();
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("DELETE"));
    windows->removeInPage(QStringLiteral("m30"));
    QVERIFY(windows->row(QStringLiteral("m30"))->isSelected());
    QCOMPARE(bar->value(), value);
}

void tst_RefusedChanges::rowThatIsBackWorks()
{
    {
        const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("DELETE"));
        windows->removeInPage(bob);
    }
    windows->toggleInPage(bob);
    QVERIFY(!windows->account(bob)->isEnabled());
    windows->toggleInPage(bob);
    QVERIFY(windows->account(bob)->isEnabled());
    windows->removeInPage(bob);
    QCOMPARE(windows->rowIds(), (QStringList { ann, cleo }));
    QVERIFY(!windows->account(bob));
}

void tst_RefusedChanges::accountRemovedByOthersWithoutSuccessKeepsItsRow()
{
    windows->select(ann);
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("DELETE"));
    KirvAccountManager::getInstance()->removeAccount(bob, windows->protocol->name);
    windows->settle();
    QCOMPARE(windows->rowIds(), (QStringList { ann, bob, cleo }));
    QCOMPARE(windows->list()->currentItem(), windows->row(ann));
}

void tst_RefusedChanges::pictureIsShownAsItWas_data()
{
    QTest::addColumn<bool>("hasPicture");
    QTest::addColumn<bool>("isRemoved");
    QTest::newRow("first picture") << false << false;
    QTest::newRow("another picture") << true << false;
    QTest::newRow("picture removed") << true << true;
}

void tst_RefusedChanges::pictureIsShownAsItWas()
{
    QFETCH(bool, hasPicture);
    QFETCH(bool, isRemoved);
    const QString first = windows->makePicture(10), second = windows->makePicture(200);
    if (hasPicture)
        QVERIFY(windows->account(ann)->setAvatar(first));
    QPointer<KirvLayoutDialog> window = windows->edit(ann);
    const QString stored = windows->account(ann)->avatarPath();
    QWidget *picker = KirvClientWindows::picker(window);
    const QImage before = shownPicture(picker);
    KIRV_TRY(window->isVisible());
    {
        const StoreRefusal refusal(windows->profileFolder());
        KirvClientWindows::pick(window, isRemoved ? QString() : second);
    }
    QCOMPARE(windows->account(ann)->avatarPath(), stored);
    QCOMPARE(shownPicture(picker), before);
    const QList<QMessageBox *> boxes = KirvClientWindows::boxes();
    QCOMPARE(boxes.size(), 1);
    QVERIFY(boxes.first()->text().contains(refusedByTheTest));
    QCOMPARE(boxes.first()->textFormat(), Qt::PlainText);
    KirvClientWindows::closeBoxes();

    // A second attempt works.
    KirvClientWindows::pick(window, isRemoved ? QString() : second);
    QVERIFY(windows->account(ann)->avatarPath() != stored);
    QVERIFY(shownPicture(picker) != before);
    QVERIFY(KirvClientWindows::boxes().isEmpty());
    KirvClientWindows::cancel(window);
}

void tst_RefusedChanges::mainAccountIsShownAsItWas_data()
{
    QTest::addColumn<QString>("chosenBefore");
    QTest::newRow("chosen before") << bob;
    QTest::newRow("never chosen") << QString();
}

void tst_RefusedChanges::mainAccountIsShownAsItWas()
{
    QFETCH(QString, chosenBefore);
    windows->chooseMainAccount(chosenBefore);
    const QString shown = windows->shownMainAccount();
    const QString title = windows->client->window()->windowTitle();
    const auto *before = KirvAccountManager::getInstance()->getMainAccount();
    {
        const StoreRefusal insertion(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"),
                                     QStringLiteral("setting"));
        QVERIFY(insertion.holds());
        windows->chooseMainAccount(cleo);
    }
    QCOMPARE(windows->shownMainAccount(), shown);
    QCOMPARE(KirvAccountManager::getInstance()->getMainAccount(), before);
    QCOMPARE(windows->client->window()->windowTitle(), title);
    QVERIFY(isMention(windows->messages()));
    windows->chooseMainAccount(cleo);
    QCOMPARE(windows->shownMainAccount(), cleo);
    QCOMPARE(windows->client->settings().value(QStringLiteral("main_account")), QStringLiteral("cleo@@Fake"));
}

void tst_RefusedChanges::addingSaysTheTrueReasonOnce()
{
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"));
    QStringList texts;
    QVERIFY(!windows->addInWindow(QStringLiteral("<b>dora</b>"), [&](QMessageBox *box) {
        KIRV_TRY(box->text().contains(refusedByTheTest));
        texts << box->text();
        QCOMPARE(box->textFormat(), Qt::PlainText);
    }));
    QCOMPARE(texts.size(), 1);
    QCOMPARE(windows->messages(), QStringList());
    QCOMPARE(windows->rowIds(), (QStringList { ann, bob, cleo }));
}

void tst_RefusedChanges::addingAnExistingAccountSaysThatItExists()
{
    QStringList texts;
    QVERIFY(!windows->addInWindow(bob, [&](QMessageBox *box) {
        windows->settle();
        texts << box->text();
        QCOMPARE(box->textFormat(), Qt::PlainText);
    }));
    QCOMPARE(texts, QStringList(QStringLiteral("Account 'bob' alerady exists!")));
    QCOMPARE(windows->messages(), QStringList());
}

void tst_RefusedChanges::addingAgainAfterARefusalWorks()
{
    {
        const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"));
        QVERIFY(!windows->addInWindow(QStringLiteral("dora")));
    }
    QVERIFY(windows->addInWindow(QStringLiteral("dora")));
    QCOMPARE(windows->rowIds(), (QStringList { ann, bob, cleo, QStringLiteral("dora") }));
}

void tst_RefusedChanges::creatingWithoutAWindowSaysTheReasonInTheBar()
{
    const StoreRefusal refusal(windows->profileFolder(), QStringLiteral("1"), QStringLiteral("INSERT"));
    QVERIFY(!windows->addAccount(QStringLiteral("dora")));
    QVERIFY(isMention(windows->messages()));
}

void tst_RefusedChanges::refusedEditKeepsEveryTypedValue()
{
    const QStringList names { QStringLiteral("EditAccount_Alias"), QStringLiteral("EditAccount_Password"),
                              QStringLiteral("KirvField_server"), QStringLiteral("KirvField_server-password") };
    QPointer<KirvLayoutDialog> window = windows->edit(ann);
    for (const QString &name : names)
        window->findChild<QLineEdit *>(name)->setText(QStringLiteral("typed in ") + name);
    KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit")->setPlainText(QStringLiteral("Busy"));
    KirvClientWindows::child<QComboBox>(window, "EditAccount_PresenceCombo")->setCurrentIndex(1);
    KirvClientWindows::child<QSpinBox>(window, "KirvField_port")->setValue(99);
    const QStringList boxes { QStringLiteral("EditAccount_RememberPresence"),
                              QStringLiteral("EditAccount_RememberDescription"),
                              QStringLiteral("KirvField_encrypted") };
    for (const QString &name : boxes)
        window->findChild<QCheckBox *>(name)->toggle();
    const KirvAccountRecord before = windows->account(ann)->record();

    const auto isTyped = [&] {
        for (const QString &name : names)
            QCOMPARE(window->findChild<QLineEdit *>(name)->text(), QStringLiteral("typed in ") + name);
        QCOMPARE(KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit")->toPlainText(),
                 QStringLiteral("Busy"));
        QCOMPARE(KirvClientWindows::child<QComboBox>(window, "EditAccount_PresenceCombo")->currentIndex(), 1);
        QCOMPARE(KirvClientWindows::child<QSpinBox>(window, "KirvField_port")->value(), 99);
        QVERIFY(window->findChild<QCheckBox *>(boxes.at(0))->isChecked());
        QVERIFY(window->findChild<QCheckBox *>(boxes.at(1))->isChecked());
        QVERIFY(!window->findChild<QCheckBox *>(boxes.at(2))->isChecked());
    };
    StoreRefusal refusal(windows->profileFolder());
    for (int attempt = 0; attempt < 2; ++attempt) {
        KirvClientWindows::save(window);
        QVERIFY(window && window->isVisible());
        QCOMPARE(KirvClientWindows::boxes().size(), 1);
        KirvClientWindows::closeBoxes();
        isTyped();
        QVERIFY(windows->account(ann)->record() == before);
        QCOMPARE(windows->row(ann)->text(0), before.alias);
        QCOMPARE(windows->rowIds(), (QStringList { ann, bob, cleo }));
        QCOMPARE(windows->selector()->itemText(0), before.alias);
    }
    refusal.end();
    KirvClientWindows::save(window);
    KIRV_TRY(!window);
    windows->restart();
    const KirvAccountRecord &stored = windows->account(ann)->record();
    QCOMPARE(stored.alias, QStringLiteral("typed in EditAccount_Alias"));
    QCOMPARE(stored.password, QStringLiteral("typed in EditAccount_Password"));
    QCOMPARE(stored.settings.value(QStringLiteral("server")), QStringLiteral("typed in KirvField_server"));
    QCOMPARE(stored.settings.value(QStringLiteral("server-password")),
             QStringLiteral("typed in KirvField_server-password"));
    QCOMPARE(stored.settings.value(QStringLiteral("port")), QStringLiteral("99"));
    QCOMPARE(stored.settings.value(QStringLiteral("encrypted")), QStringLiteral("false"));
    QCOMPARE(stored.defaultDescription, QStringLiteral("Busy"));
    QCOMPARE(stored.defaultPresence, QStringLiteral("away"));
    QVERIFY(stored.restorePresence && stored.restoreDescription);
    QCOMPARE(windows->row(ann)->text(0), stored.alias);
}

void tst_RefusedChanges::rowWithoutAnAliasShowsItsLoginAgain_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("nothing") << QString();
    QTest::newRow("alias") << QStringLiteral("aaa");
}

/// Sorted by what it shows, the row moves when that changes.
void tst_RefusedChanges::rowWithoutAnAliasShowsItsLoginAgain()
{
    QFETCH(QString, typed);
    windows->account(cleo)->setAlias(QString());
    KirvClientWindows::settle();
    windows->list()->sortByColumn(0, Qt::AscendingOrder);
    QCOMPARE(windows->row(cleo)->text(0), cleo);
    const QPointer<KirvLayoutDialog> window = windows->edit(cleo);
    line(window, "EditAccount_Alias")->setText(typed);
    KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit")->setPlainText(QStringLiteral("Busy"));
    {
        const StoreRefusal refusal(windows->profileFolder());
        KirvClientWindows::save(window);
        KirvClientWindows::closeBoxes();
    }
    QVERIFY(window);
    QCOMPARE(windows->row(cleo)->text(0), cleo);
    QCOMPARE(windows->rowIds(), (QStringList { ann, bob, cleo }));
    KirvClientWindows::cancel(window);
    QCOMPARE(windows->row(cleo)->text(0), cleo);
}

void tst_RefusedChanges::checkBoxShowsWhatIsStored_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isOnline");
    QTest::newRow("disabling on line") << true << true;
    QTest::newRow("disabling off line") << true << false;
    QTest::newRow("enabling") << false << false;
}

void tst_RefusedChanges::checkBoxShowsWhatIsStored()
{
    QFETCH(bool, isEnabled);
    QFETCH(bool, isOnline);
    if (!isEnabled)
        windows->toggleInPage(bob);
    if (isEnabled && !isOnline) {
        windows->protocol->server->logIn = KirvFakeServer::Refuses;
        windows->account(bob)->reconnect();
        windows->settle();
        QVERIFY(!windows->account(bob)->isOnline());
    }
    const int offered = windows->selector()->count();
    const QStringList saidBefore = windows->messages();
    const StoreRefusal refusal(windows->profileFolder());
    windows->toggleInPage(bob);
    QCOMPARE(windows->row(bob)->checkState(0), isEnabled ? Qt::Checked : Qt::Unchecked);
    QCOMPARE(windows->account(bob)->isEnabled(), isEnabled);
    QCOMPARE(windows->account(bob)->isOnline(), isOnline);
    QCOMPARE(windows->selector()->count(), offered);
    QVERIFY(isMention(windows->messages().mid(saidBefore.size())));
}

void tst_RefusedChanges::refusedPasswordIsStoredWithTheNextSave_data()
{
    QTest::addColumn<bool>("remember");
    QTest::newRow("to be remembered") << true;
    QTest::newRow("not to be remembered") << false;
}

/// The answer to the question for a password serves this run at least.
void tst_RefusedChanges::refusedPasswordIsStoredWithTheNextSave()
{
    QFETCH(bool, remember);
    const QString typed = QStringLiteral("typed");
    {
        const StoreRefusal refusal(windows->profileFolder());
        windows->account(ann)->providePassword(typed, remember);
    }
    QCOMPARE(windows->account(ann)->record().password, typed);
    QPointer<KirvLayoutDialog> window = windows->edit(ann);
    QCOMPARE(line(window, "EditAccount_Password")->text(), typed);
    KirvClientWindows::save(window);
    KIRV_TRY(!window);
    windows->restart();
    QCOMPARE(windows->account(ann)->record().password, remember ? typed : QString());
    QCOMPARE(windows->account(ann)->record().rememberPassword, remember);
}

QTEST_MAIN(tst_RefusedChanges)
#include "tst_refused_changes.moc"

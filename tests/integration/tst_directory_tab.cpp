// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "tests/integration/kirv_client_windows.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTextEdit>
#include <QtTest>

namespace {

const QString id = QStringLiteral("ann");
using Windows = KirvClientWindows;

} // namespace

/// The directory in the edit window: when it can be requested, and what becomes of values that are wrong.
class tst_DirectoryTab : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void directoryButtonsFollowTheConnection();

    void wrongEntryIsSaidAndNotPublished_data();
    void wrongEntryIsSaidAndNotPublished();
    void correctedEntryIsPublished();
    void wrongTextOfTheServerDoesNotKeepFromSaving();
    void entryTypedOffLineIsNotLost_data();
    void entryTypedOffLineIsNotLost();
    void unchangedEntryClosesOffLine();

private:
    KirvAccount *account() const { return windows->account(id); }
    KirvFakeConnection *connection() const { return static_cast<KirvFakeConnection *>(account()->connection()); }
    template <typename T>
    T *child(const char *name) const
    {
        return Windows::child<T>(window, name);
    }
    QLineEdit *entry(const char *field) const;
    /// Opens the window at its directory, with what the server holds.
    void openDirectory();

    std::unique_ptr<KirvClientWindows> windows;
    QPointer<KirvLayoutDialog> window;
};

void tst_DirectoryTab::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    KirvField birthday = KirvField::textEdit(QStringLiteral("Birthday"), QStringLiteral("birthday"), QString(),
                                             QStringLiteral("Such as 1999-12-31."));
    birthday.setPattern(QStringLiteral("([0-9]{4}-[0-9]{2}-[0-9]{2})?"));
    KirvField nick = KirvField::textEdit(QStringLiteral("Nickname"), QStringLiteral("nick"), QString(), QString());
    nick.setRequired(true);
    windows->protocol->directory << birthday << nick
                                 << KirvField::number(QStringLiteral("Size"), QStringLiteral("size"), 40, 1, 60,
                                                      QString());
    QVERIFY(windows->addAccount(id));
    QVERIFY(account()->isOnline());
}

void tst_DirectoryTab::cleanup()
{
    Windows::cancel(window);
    windows.reset();
}

QLineEdit *tst_DirectoryTab::entry(const char *field) const
{
    return child<QWidget>("EditAccount_PubDirResults")
        ->findChild<QLineEdit *>(QStringLiteral("KirvField_") + QLatin1String(field));
}

void tst_DirectoryTab::openDirectory()
{
    QList<KirvField> held = windows->protocol->directory;
    for (KirvField &field : held) {
        if (field.getId() == QLatin1String("nick"))
            field.setText(QStringLiteral("Annie"));
    }
    if (!windows->protocol->server->entries.contains(id))
        windows->protocol->server->entries.insert(id, held);
    window = windows->edit(id);
    QVERIFY(window);
    child<QTabWidget>("EditAccount_Tabs")->setCurrentIndex(1);
    Windows::settle();
    QVERIFY(entry("birthday")->isEnabled());
    windows->protocol->server->takeCalls();
}

void tst_DirectoryTab::directoryButtonsFollowTheConnection()
{
    window = windows->edit(id);
    QVERIFY(window);
    auto *fetch = child<QAbstractButton>("EditAccount_PubDirFetch");
    auto *remove = child<QAbstractButton>("EditAccount_PubDirDelete");
    const QString fetchTip = fetch->toolTip();
    const QString removeTip = remove->toolTip();
    QVERIFY(fetch->isEnabled() && remove->isEnabled() && fetchTip != removeTip);

    connection()->serverGoes();
    Windows::settle();
    const QString reason =
        QStringLiteral("The account must be connected before its directory entry can be read or changed.");
    for (const QAbstractButton *button : { fetch, remove }) {
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->toolTip(), reason);
        QCOMPARE(button->accessibleDescription(), reason);
    }

    account()->tryAgain();
    Windows::settle();
    QVERIFY(account()->isOnline());
    QVERIFY(fetch->isEnabled() && remove->isEnabled());
    QCOMPARE(fetch->toolTip(), fetchTip);
    QCOMPARE(remove->toolTip(), removeTip);
    QVERIFY(fetch->accessibleDescription().isEmpty() && remove->accessibleDescription().isEmpty());

    account()->setEnabled(false);
    Windows::settle();
    QVERIFY(!fetch->isEnabled() && !remove->isEnabled());
}

void tst_DirectoryTab::wrongEntryIsSaidAndNotPublished_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("reason");
    QTest::newRow("pattern") << QByteArray("birthday") << "in spring"
                             << "Invalid format: Such as 1999-12-31.";
    QTest::newRow("missing") << QByteArray("nick") << ""
                             << "This must be filled in.";
}

void tst_DirectoryTab::wrongEntryIsSaidAndNotPublished()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QFETCH(QString, reason);
    openDirectory();
    entry("town")->setText(QStringLiteral("Verona"));
    entry(field.constData())->setText(typed);
    child<QTabWidget>("EditAccount_Tabs")->setCurrentIndex(0);
    Windows::settle();
    entry(field.constData())->setText(typed); // the tab fetched nothing in between
    child<QLineEdit>("EditAccount_Alias")->setText(QStringLiteral("Other"));
    child<QLineEdit>("EditAccount_Password")->setText(QStringLiteral("another"));
    Windows::save(window);

    QVERIFY(window && window->isVisible());
    QCOMPARE(windows->protocol->server->takeCalls().filter(QStringLiteral("publish")), QStringList());
    QCOMPARE(account()->record().alias, id);
    QCOMPARE(account()->record().password, QStringLiteral("secret"));
    QVERIFY(account()->isOnline());
    // It is said, and what is wrong is in front, as it was typed.
    auto *hint = window->findChild<QLabel *>(QStringLiteral("KirvField_%1_Hint").arg(QLatin1String(field)));
    QVERIFY(hint && hint->isVisible());
    QCOMPARE(hint->text(), reason);
    const QString status = child<QLabel>("EditAccount_PubDirStatus")->text();
    QVERIFY2(status.contains(QLatin1String("Nothing was saved")), qPrintable(status));
    QVERIFY(entry(field.constData())->isEnabled());
    QCOMPARE(entry(field.constData())->text(), typed);
    QCOMPARE(entry("town")->text(), QStringLiteral("Verona"));
    QCOMPARE(window->focusWidget(), entry(field.constData()));
    // The other tab has kept what was typed, too.
    QCOMPARE(child<QLineEdit>("EditAccount_Alias")->text(), QStringLiteral("Other"));
}

void tst_DirectoryTab::correctedEntryIsPublished()
{
    openDirectory();
    entry("birthday")->setText(QStringLiteral("in spring"));
    Windows::save(window);
    QVERIFY(window && window->isVisible());
    entry("birthday")->setText(QStringLiteral("1990-01-02"));
    child<QLineEdit>("EditAccount_Alias")->setText(QStringLiteral("Other"));
    Windows::save(window);
    QVERIFY(!window || !window->isVisible());
    QCOMPARE(windows->protocol->server->takeCalls().filter(QStringLiteral("publish")),
             QStringList(QStringLiteral("ann publish birthday")));
    QCOMPARE(account()->record().alias, QStringLiteral("Other"));
}

void tst_DirectoryTab::wrongTextOfTheServerDoesNotKeepFromSaving()
{
    QList<KirvField> held = windows->protocol->directory;
    for (KirvField &field : held) {
        if (field.getId() == QLatin1String("birthday"))
            field.setText(QStringLiteral("of another program"));
    }
    windows->protocol->server->entries.insert(id, held);
    openDirectory();
    QCOMPARE(entry("birthday")->text(), QStringLiteral("of another program"));
    entry("town")->setText(QStringLiteral("Verona"));
    Windows::save(window);
    QVERIFY(!window || !window->isVisible());
    QCOMPARE(windows->protocol->server->takeCalls().filter(QStringLiteral("publish")),
             QStringList(QStringLiteral("ann publish town")));
}

void tst_DirectoryTab::entryTypedOffLineIsNotLost_data()
{
    QTest::addColumn<bool>("isTabShownAgain"); // which locks the fields
    QTest::newRow("open") << false;
    QTest::newRow("locked") << true;
}

void tst_DirectoryTab::entryTypedOffLineIsNotLost()
{
    QFETCH(bool, isTabShownAgain);
    openDirectory();
    connection()->serverGoes();
    Windows::settle();
    QVERIFY(!account()->isOnline());
    entry("town")->setText(QStringLiteral("Verona"));
    child<QTabWidget>("EditAccount_Tabs")->setCurrentIndex(0);
    if (isTabShownAgain) {
        child<QTabWidget>("EditAccount_Tabs")->setCurrentIndex(1);
        QVERIFY(!entry("town")->isEnabled());
    }
    child<QLineEdit>("EditAccount_Alias")->setText(QStringLiteral("Other"));
    Windows::save(window);

    // The rest is saved; the entry stays where it was typed, and the window says why.
    QVERIFY(window && window->isVisible());
    QCOMPARE(account()->record().alias, QStringLiteral("Other"));
    QCOMPARE(child<QTabWidget>("EditAccount_Tabs")->currentIndex(), 1);
    QCOMPARE(child<QLabel>("EditAccount_PubDirStatus")->text(),
             QStringLiteral("The account was saved, but its directory entry was not published, as the account is not "
                            "connected. Save again when it is."));
    QCOMPARE(entry("town")->text(), QStringLiteral("Verona"));
    QVERIFY(Windows::button(window, QDialogButtonBox::Save)->isEnabled());

    account()->tryAgain();
    Windows::settle();
    QVERIFY(account()->isOnline());
    QCOMPARE(entry("town")->text(), QStringLiteral("Verona"));
    windows->protocol->server->takeCalls();
    Windows::save(window);
    QVERIFY(!window || !window->isVisible());
    QCOMPARE(windows->protocol->server->takeCalls().filter(QStringLiteral("publish")),
             QStringList(QStringLiteral("ann publish town")));
}

void tst_DirectoryTab::unchangedEntryClosesOffLine()
{
    openDirectory();
    connection()->serverGoes();
    Windows::settle();
    child<QLineEdit>("EditAccount_Alias")->setText(QStringLiteral("Other"));
    Windows::save(window);
    QVERIFY(!window || !window->isVisible());
    QCOMPARE(account()->record().alias, QStringLiteral("Other"));

    // Neither does one that was never fetched keep it open.
    window = windows->edit(id);
    child<QLineEdit>("EditAccount_Alias")->setText(QStringLiteral("Third"));
    Windows::save(window);
    QVERIFY(!window || !window->isVisible());
    QCOMPARE(account()->record().alias, QStringLiteral("Third"));
}

QTEST_MAIN(tst_DirectoryTab)
#include "tst_directory_tab.moc"

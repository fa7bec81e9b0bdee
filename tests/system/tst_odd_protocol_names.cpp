// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/store_refusal.h"
#include "tests/system/kirv_tested_account.h"

#include <QDialog>
#include <QLabel>
#include <QMessageBox>

namespace {

const QString ann = QStringLiteral("ann");
const QString pluginFile = QStringLiteral(KIRV_NAMED_PROTOCOL);

} // namespace

/// Protocols whose names hold what the client puts between names itself.
class tst_OddProtocolNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void saveIsOneChange_data() { names(); }
    void saveIsOneChange();
    void editWindowGoesWithItsAccount_data() { names(); }
    void editWindowGoesWithItsAccount();
    void editWindowGoesWithItsProtocol_data() { names(); }
    void editWindowGoesWithItsProtocol();

private:
    static void names();
    QDialog *edit();

    std::unique_ptr<KirvWindows> windows;
    std::unique_ptr<KirvTestedAccount> account;
};

void tst_OddProtocolNames::init()
{
    QFETCH(QString, name);
    qputenv("KIRV_FIXTURE_PROTOCOL", name.toUtf8());
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
    account = std::make_unique<KirvTestedAccount>(*windows, ann, name);
    QVERIFY(account->loadProtocol(pluginFile));
}

void tst_OddProtocolNames::cleanup()
{
    account.reset();
    windows.reset();
}

void tst_OddProtocolNames::names()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "X", "X (Y)", "Y (X) (Z)", "X (", "X@@Y", "@@", "<b>X</b> &amp; Y", "%1 (%2)" })
        QTest::newRow(name) << name;
}

QDialog *tst_OddProtocolNames::edit()
{
    return account->create("old") ? account->openEditWindow() : nullptr;
}

void tst_OddProtocolNames::saveIsOneChange()
{
    QFETCH(QString, name);
    QDialog *window = edit();
    QVERIFY(window);
    QCOMPARE(KirvWindows::child<QLabel>(window, "EditAccount_Identifier")->text(),
             QString("ann (%1)").replace("%1", name));
    KirvTestedAccount::typePassword(window, "fresh");
    KirvTestedAccount::typeAlias(window, "Refused");
    StoreRefusal refusal(windows->profileFolder(), "NEW.alias = 'Refused'");
    QVERIFY(refusal.holds());
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(windows->question() || !KirvTestedAccount::editWindow());
    QVERIFY2(KirvTestedAccount::editWindow(), "The window is closed although its changes are not stored.");
    QVERIFY(account->confirmRefusedSave());
    QCOMPARE(account->password(), QString("old"));
    KirvTestedAccount::pressCancel(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());
    refusal.end();

    QVERIFY(windows->start());
    QVERIFY(account->loadProtocol(pluginFile));
    QCOMPARE(account->password(), QString("old"));
    QCOMPARE(account->alias(), ann);
}

void tst_OddProtocolNames::editWindowGoesWithItsAccount()
{
    const QPointer<QDialog> window = edit();
    QVERIFY(window);
    account->remove();
    KIRV_TRY(KirvTestedAccount::isOutOfUse(window));
}

void tst_OddProtocolNames::editWindowGoesWithItsProtocol()
{
    const QPointer<QDialog> window = edit();
    QVERIFY(window);
    QVERIFY(account->unloadProtocol());
    KIRV_TRY(KirvTestedAccount::isOutOfUse(window));
}

QTEST_MAIN(tst_OddProtocolNames)
#include "tst_odd_protocol_names.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/unit/kirv_library_symbols.h"

#include <QtTest>

namespace {

const QStringList publicClasses = { "KirvAccountsTab", "KirvAddAccountDialog", "KirvEditAccountDialog",
                                    "KirvPubdirAccountReceivedEvent" };

}

/// Reads what the built library exports.
class tst_ExportedSymbols : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void onlyThePublicClassesAreExported();
    void whatClientsAndPlugInsNeedIsExported_data();
    void whatClientsAndPlugInsNeedIsExported();

private:
    QStringList symbols;
};

void tst_ExportedSymbols::initTestCase()
{
    symbols = exportedSymbols(QStringLiteral(KIRV_LIBRARY));
    QVERIFY(!symbols.isEmpty());
}

void tst_ExportedSymbols::onlyThePublicClassesAreExported()
{
    QCOMPARE(symbolsOfOthers(symbols, publicClasses), QStringList());
}

void tst_ExportedSymbols::whatClientsAndPlugInsNeedIsExported_data()
{
    QTest::addColumn<QString>("symbol");
    for (const QString &name : publicClasses) {
        QTest::addRow("virtual table of %s", qPrintable(name)) << "vtable for " + name;
        QTest::addRow("type information of %s", qPrintable(name)) << "typeinfo for " + name;
    }
    for (const QString &name : publicClasses.mid(0, 3))
        QTest::addRow("meta-object of %s", qPrintable(name)) << name + "::staticMetaObject";
    const QStringList operations = {
        "KirvAccountsTab::getInstance()",
        "KirvAccountsTab::editAccount(KirvAccountConnection*)",
        "KirvAccountsTab::getAccEdit() const",
        "KirvAccountsTab::addAccountEntry(KirvAccountConnection*)",
        "KirvAccountsTab::updateAccount(KirvAccountConnection*)",
        "KirvAccountsTab::updateAccounts()",
        "KirvAccountsTab::readProtocolAccounts(QString const&)",
        "KirvAccountsTab::removeProtocolAccounts(QString const&)",
        "KirvAccountsTab::mainAccountChanged()",
        "KirvAddAccountDialog::exec()",
        "KirvAddAccountDialog::getProtocol() const",
        "KirvAddAccountDialog::getWindow() const",
        "KirvAddAccountDialog::of(QWidget const*)",
        "KirvEditAccountDialog::exec()",
        "KirvEditAccountDialog::getAccountId() const",
        "KirvEditAccountDialog::getProtocolName() const",
        "KirvEditAccountDialog::getWindow() const",
        "KirvEditAccountDialog::of(QWidget const*)",
        "KirvPubdirAccountReceivedEvent::KirvPubdirAccountReceivedEvent(KirvAccountConnection*, "
        "QList<KirvField> const&)",
        "KirvPubdirAccountReceivedEvent::getAccount() const",
        "KirvPubdirAccountReceivedEvent::getData() const"
    };
    for (const QString &operation : operations)
        QTest::newRow(qPrintable(operation)) << operation;
}

void tst_ExportedSymbols::whatClientsAndPlugInsNeedIsExported()
{
    QFETCH(QString, symbol);
    QVERIFY(symbols.contains(symbol));
}

QTEST_GUILESS_MAIN(tst_ExportedSymbols)
#include "tst_exported_symbols.moc"

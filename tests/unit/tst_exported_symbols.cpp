// SPDX-License-Identifier: LGPL-2.1-or-later
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QStringList publicClasses = { "KirvAccountsTab", "KirvAddAccountDialog", "KirvEditAccountDialog",
                                    "KirvPubdirAccountReceivedEvent" };

}

/// Reads what the built library exports.
class TestExportedSymbols : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void onlyThePublicClassesAreExported();
    void whatClientsAndPlugInsNeedIsExported_data();
    void whatClientsAndPlugInsNeedIsExported();

private:
    /// Demangled, without address and kind.
    QStringList symbols;
};

void TestExportedSymbols::initTestCase()
{
    QProcess nm;
    nm.start(KIRV_NM, { "-D", "--defined-only", "--demangle", KIRV_LIBRARY });
    QVERIFY(nm.waitForFinished());
    QCOMPARE(nm.exitCode(), 0);
    const QStringList lines = QString::fromLocal8Bit(nm.readAllStandardOutput()).split('\n');
    for (const QString &line : lines) {
        if (!line.isEmpty())
            symbols.append(line.section(' ', 2));
    }
    QVERIFY(!symbols.isEmpty());
}

void TestExportedSymbols::onlyThePublicClassesAreExported()
{
    // Member, virtual table, type information, or what calls a member through a second base class.
    const QRegularExpression ofAPublicClass(
        QStringLiteral("^((vtable|typeinfo|typeinfo name) for |non-virtual thunk to )?(%1)(::|$)")
            .arg(publicClasses.join('|')));
    // The ends of sections, and what the sanitizers add: marks of exported data, types of Qt that they look into.
    const QRegularExpression ofTheTools("^(__bss_start|_edata|_end|__odr_asan.*|typeinfo( name)? for Q\\w+)$");
    QStringList others;
    for (const QString &symbol : symbols) {
        if (!ofAPublicClass.match(symbol).hasMatch() && !ofTheTools.match(symbol).hasMatch())
            others.append(symbol);
    }
    QCOMPARE(others, QStringList());
}

void TestExportedSymbols::whatClientsAndPlugInsNeedIsExported_data()
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

void TestExportedSymbols::whatClientsAndPlugInsNeedIsExported()
{
    QFETCH(QString, symbol);
    QVERIFY(symbols.contains(symbol));
}

QTEST_GUILESS_MAIN(TestExportedSymbols)
#include "tst_exported_symbols.moc"

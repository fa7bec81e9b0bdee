// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/unit/kirv_library_symbols.h"

#include <QtTest>

namespace {
const QStringList markedClasses = { "KirvBackOff",           "KirvBoundedImage",  "KirvClock",        "KirvConnection",
                                    "KirvFailure",           "KirvLoginStep",     "KirvProtocolBase", "KirvProxy",
                                    "KirvServerCertificate", "KirvServerRequest", "KirvSystemProxy" };
}

/// Reads what the built library for protocol plug-ins exports.
class tst_ProtocolSymbols : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void onlyTheMarkedClassesAreExported();
    void whatPlugInsNeedIsExported_data();
    void whatPlugInsNeedIsExported();

private:
    QStringList symbols;
};

void tst_ProtocolSymbols::initTestCase()
{
    symbols = exportedSymbols(QStringLiteral(KIRV_LIBRARY));
    QVERIFY(!symbols.isEmpty());
}

void tst_ProtocolSymbols::onlyTheMarkedClassesAreExported()
{
    QStringList others;
    // The classes of the contract have no library of their own: each that uses one may hold its type and tables.
    const QRegularExpression typeOfTheContract(
        QStringLiteral("^(vtable|typeinfo|typeinfo name) for Kirv(Protocol|Presence|Field|Arg|AccountConnection)$"));
    const QRegularExpression function(
        QStringLiteral("^kirv(CallPlugin|FindProxy|LocalPath|ProxyFailure|ProxyTimedOut|SingleLine|VisibleText)\\("));
    for (const QString &symbol : symbolsOfOthers(symbols, markedClasses)) {
        if (!typeOfTheContract.match(symbol).hasMatch() && !function.match(symbol).hasMatch())
            others << symbol;
    }
    QCOMPARE(others, QStringList());
}

void tst_ProtocolSymbols::whatPlugInsNeedIsExported_data()
{
    QTest::addColumn<QString>("symbol");
    for (const char *name : { "KirvConnection", "KirvProtocolBase", "KirvServerRequest" }) {
        QTest::addRow("virtual table of %s", name) << QStringLiteral("vtable for %1").arg(name);
        QTest::addRow("type information of %s", name) << QStringLiteral("typeinfo for %1").arg(name);
        QTest::addRow("meta-object of %s", name) << QStringLiteral("%1::staticMetaObject").arg(name);
    }
    for (const char *operation :
         { "KirvBoundedImage::fromData(QByteArray const&, QString const&, int)",
           "KirvBoundedImage::fromFile(QString const&, int)", "KirvClock::system()",
           "KirvConnection::acceptsCertificate(KirvServerCertificate const&)", "KirvConnection::failForCertificate()",
           "KirvConnection::answerDirectoryRequest(int, QList<KirvField> const&)", "KirvConnection::clock() const",
           "KirvConnection::connectionLost(KirvFailure const&)", "KirvConnection::login() const",
           "KirvConnection::loginSucceeded()", "KirvConnection::loginFailed(KirvFailure const&)",
           "KirvConnection::logoutFinished()", "KirvFailure::KirvFailure(KirvFailure::Kind, QString const&)",
           "KirvFailure::text() const", "KirvProtocolBase::accountActions() const" })
        QTest::newRow(operation) << QString::fromLatin1(operation);
}

void tst_ProtocolSymbols::whatPlugInsNeedIsExported()
{
    QFETCH(QString, symbol);
    QVERIFY(symbols.contains(symbol));
}

QTEST_GUILESS_MAIN(tst_ProtocolSymbols)
#include "tst_protocol_symbols.moc"

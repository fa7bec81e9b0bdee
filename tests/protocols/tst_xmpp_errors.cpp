// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_errors.h"
#include "tests/protocols/xmpp_parsing.h"

#include <QTest>

Q_DECLARE_METATYPE(KirvFailure::Kind)

namespace {

const QString space = QStringLiteral("urn:ietf:params:xml:ns:xmpp-stanzas");

KirvXmppError error(const QByteArray &children)
{
    const QDomDocument document = parsed("<error xmlns='" + space.toLatin1() + "'>" + children + "</error>");
    return KirvXmppError(document.documentElement(), space);
}

/// An element named \a condition, and a text when there is one.
QByteArray conditionWith(const char *condition, const char *text)
{
    const QByteArray words = qstrlen(text) > 0 ? QByteArray("<text>") + text + "</text>" : QByteArray();
    return '<' + QByteArray(condition) + "/>" + words;
}

} // namespace

/// What the errors of servers mean.
class tst_XmppErrors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void conditionAndTextAreRead();
    void foreignElementsAreNoCondition();
    void sentencesArePlain_data();
    void sentencesArePlain();
    void conflictsAreOfSessions_data();
    void conflictsAreOfSessions();
    void requestsFail_data();
    void requestsFail();
    void loginsFail_data();
    void loginsFail();
};

void tst_XmppErrors::conditionAndTextAreRead()
{
    const KirvXmppError both = error("<text>Not now</text><not-allowed/><conflict/>");
    QCOMPARE(both.condition, QString("not-allowed")); // the first one
    QCOMPARE(both.text, QString("Not now"));
    const KirvXmppError none = error("");
    QVERIFY(none.condition.isEmpty() && none.text.isEmpty() && none.sentence().isEmpty());
}

void tst_XmppErrors::foreignElementsAreNoCondition()
{
    const KirvXmppError found = error("<extra xmlns='urn:other'/><text xmlns='urn:other'>No</text><gone/>");
    QCOMPARE(found.condition, QString("gone"));
    QVERIFY(found.text.isEmpty());
}

void tst_XmppErrors::sentencesArePlain_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("sentence");
    const QString notAccepted("the server does not accept what was sent"), notAllowed("the server does not allow it"),
        notNow("the server does not allow it now");
    QTest::newRow("own words") << conditionWith("conflict", "Taken") << "Taken";
    QTest::newRow("conflict") << conditionWith("conflict", "") << "the name is already in use";
    QTest::newRow("not-acceptable") << conditionWith("not-acceptable", "") << notAccepted;
    QTest::newRow("bad-request") << conditionWith("bad-request", "") << notAccepted;
    QTest::newRow("not-allowed") << conditionWith("not-allowed", "") << notAllowed;
    QTest::newRow("forbidden") << conditionWith("forbidden", "") << notAllowed;
    QTest::newRow("resource-constraint") << conditionWith("resource-constraint", "") << notNow;
    QTest::newRow("policy-violation") << conditionWith("policy-violation", "") << notNow;
    QTest::newRow("another") << conditionWith("odd-condition", "") << "odd-condition";
}

void tst_XmppErrors::sentencesArePlain()
{
    QFETCH(QByteArray, xml);
    QTEST(error(xml).sentence(), "sentence");
}

void tst_XmppErrors::conflictsAreOfSessions_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<bool>("isConflict");
    QTest::newRow("without words") << conditionWith("conflict", "") << true;
    QTest::newRow("replaced") << conditionWith("conflict", "Replaced by new connection") << true;
    QTest::newRow("resource") << conditionWith("conflict", "Resource in use") << true;
    QTest::newRow("an administrator's words") << conditionWith("conflict", "You were removed") << false;
    QTest::newRow("another condition") << conditionWith("policy-violation", "replaced") << false;
}

void tst_XmppErrors::conflictsAreOfSessions()
{
    QFETCH(QByteArray, xml);
    QTEST(error(xml).isConflict(), "isConflict");
}

void tst_XmppErrors::requestsFail_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<KirvFailure::Kind>("kind");
    QTest::addColumn<QString>("detail");
    QTest::newRow("not implemented") << conditionWith("feature-not-implemented", "") << KirvFailure::NotSupported << "";
    QTest::newRow("no service") << conditionWith("service-unavailable", "Sorry") << KirvFailure::NotSupported
                                << "Sorry";
    QTest::newRow("refused") << conditionWith("forbidden", "") << KirvFailure::RequestFailed
                             << "the server does not allow it";
    QTest::newRow("own words") << conditionWith("forbidden", "Ask Ann") << KirvFailure::RequestFailed << "Ask Ann";
}

void tst_XmppErrors::requestsFail()
{
    QFETCH(QByteArray, xml);
    const KirvFailure failure = error(xml).requestFailure();
    QTEST(failure.kind(), "kind");
    QTEST(failure.detail(), "detail");
}

void tst_XmppErrors::loginsFail_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<KirvFailure::Kind>("kind");
    QTest::addColumn<QString>("detail");
    QTest::newRow("wrong password") << conditionWith("not-authorized", "Wrong") << KirvFailure::WrongPassword << "";
    QTest::newRow("disabled") << conditionWith("account-disabled", "Pay first") << KirvFailure::AccessDenied
                              << "Pay first";
    QTest::newRow("for now") << conditionWith("temporary-auth-failure", "Later") << KirvFailure::Other << "Later";
    QTest::newRow("encryption") << conditionWith("encryption-required", "") << KirvFailure::BadSettings
                                << "the server requires encryption";
    QTest::newRow("mechanism") << conditionWith("invalid-mechanism", "") << KirvFailure::AuthenticationNotOffered << "";
    QTest::newRow("weak mechanism") << conditionWith("mechanism-too-weak", "") << KirvFailure::AuthenticationNotOffered
                                    << "";
}

void tst_XmppErrors::loginsFail()
{
    QFETCH(QByteArray, xml);
    const KirvFailure failure = error(xml).loginFailure();
    QTEST(failure.kind(), "kind");
    QTEST(failure.detail(), "detail");
}

QTEST_GUILESS_MAIN(tst_XmppErrors)
#include "tst_xmpp_errors.moc"

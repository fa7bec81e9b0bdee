// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_reconciler.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_connection.h"

#include <QHash>
#include <QtTest>

namespace {

using Step = KirvReconciler::Step;
using RequestedStep = KirvReconciler::RequestedStep;

const KirvPresence available(QStringLiteral("available"), QStringLiteral("Available"), QString());
const KirvPresence away(QStringLiteral("away"), QStringLiteral("Away"), QString());

KirvLogin loginWith(const QString &password)
{
    return { QStringLiteral("ann"), password, {} };
}

} // namespace

Q_DECLARE_METATYPE(KirvReconciler::Step)

/// What the reconciler decides; when it acts is the matter of tst_reconciler.
class tst_ReconcilerSteps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneStepLeadsToWhatIsWanted_data();
    void oneStepLeadsToWhatIsWanted();
    void aLoginDiffersInEveryPart_data();
    void aLoginDiffersInEveryPart();
    void aPresenceDiffersInItsDescription();
};

/// Every combination of what is and what is wanted, with the step that the rules in words give.
void tst_ReconcilerSteps::oneStepLeadsToWhatIsWanted_data()
{
    QTest::addColumn<QString>("is"); ///< the state; "gave up" is Offline after a failure, "comes back" Disconnecting
    QTest::addColumn<bool>("online");
    QTest::addColumn<bool>("otherLogin");
    QTest::addColumn<bool>("otherPresence");
    QTest::addColumn<int>("requestedStep");
    QTest::addColumn<Step>("step");

    // Not wanted on line: only what is not on its way out is logged out, whatever else differs.
    const QHash<QString, Step> whenNotWanted { { "Offline", Step::Nothing },   { "gave up", Step::Nothing },
                                               { "Connecting", Step::LogOut }, { "Online", Step::LogOut },
                                               { "Waiting", Step::LogOut },    { "Disconnecting", Step::Nothing },
                                               { "comes back", Step::LogOut } };
    struct Row {
        Step same; ///< the same login and presence, no requestedStep
        Step otherPresence;
        Step otherLogin; ///< with either presence
        Step retry; ///< with the requestedStep to retry: the same login and presence
        Step retryOtherPresence;
        Step reconnect;
        Step reconnectOtherPresence;
    };
    const Step nothing = Step::Nothing, logIn = Step::LogIn, presence = Step::ChangePresence;
    const QHash<QString, Row> whenWanted {
        { "Offline", { logIn, logIn, logIn, logIn, logIn, logIn, logIn } },
        { "gave up", { nothing, nothing, logIn, logIn, logIn, logIn, logIn } },
        { "Connecting", { nothing, presence, logIn, nothing, presence, logIn, logIn } },
        { "Online", { nothing, presence, logIn, nothing, presence, logIn, logIn } },
        { "Waiting", { nothing, presence, logIn, logIn, logIn, logIn, logIn } },
        { "Disconnecting", { logIn, logIn, logIn, logIn, logIn, logIn, logIn } },
        { "comes back", { nothing, presence, logIn, nothing, presence, nothing, presence } },
    };
    for (const char *is : { "Offline", "gave up", "Connecting", "Online", "Waiting", "Disconnecting", "comes back" }) {
        for (int bits = 0; bits < 8; ++bits) {
            const bool online = bits & 4, otherLogin = bits & 2, otherPresence = bits & 1;
            for (const RequestedStep requestedStep :
                 { RequestedStep::None, RequestedStep::Retry, RequestedStep::Reconnect }) {
                const Row &row = *whenWanted.constFind(QLatin1String(is));
                Step step = otherPresence ? row.otherPresence : row.same;
                if (requestedStep == RequestedStep::Retry)
                    step = otherPresence ? row.retryOtherPresence : row.retry;
                else if (requestedStep == RequestedStep::Reconnect)
                    step = otherPresence ? row.reconnectOtherPresence : row.reconnect;
                if (otherLogin)
                    step = row.otherLogin;
                if (!online)
                    step = whenNotWanted.value(QLatin1String(is));
                QTest::addRow("%s, %s, %s login, %s presence, requestedStep %d", is, online ? "wanted" : "not wanted",
                              otherLogin ? "other" : "same", otherPresence ? "other" : "same", int(requestedStep))
                    << is << online << otherLogin << otherPresence << int(requestedStep) << step;
            }
        }
    }
}

void tst_ReconcilerSteps::oneStepLeadsToWhatIsWanted()
{
    QFETCH(QString, is);
    QFETCH(bool, online);
    QFETCH(bool, otherLogin);
    QFETCH(bool, otherPresence);
    QFETCH(int, requestedStep);
    KirvFakeClock clock;
    KirvFakeConnection connection(std::make_shared<KirvFakeServer>(), clock);
    connection.server->logIn = connection.server->logOut = KirvFakeServer::Holds;
    const KirvLogin login = loginWith(QStringLiteral("secret"));
    connection.logIn(login, available);
    if (is == QLatin1String("Offline"))
        connection.drop();
    else if (is == QLatin1String("gave up"))
        connection.serverRefuses();
    else if (is == QLatin1String("Waiting"))
        connection.serverGoes();
    else if (is != QLatin1String("Connecting"))
        connection.serverAccepts();
    if (is == QLatin1String("Disconnecting"))
        connection.logOut();
    if (is == QLatin1String("comes back"))
        connection.logIn(login, available);

    KirvReconciler::Wanted wanted;
    wanted.online = online;
    wanted.login = otherLogin ? loginWith(QStringLiteral("changed")) : login;
    wanted.presence = otherPresence ? away : available;
    QTEST(KirvReconciler::nextStep(wanted, connection, RequestedStep(requestedStep)), "step");
}

void tst_ReconcilerSteps::aLoginDiffersInEveryPart_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("server");
    QTest::newRow("id") << "bob"
                        << "secret"
                        << "here";
    QTest::newRow("password") << "ann"
                              << ""
                              << "here";
    QTest::newRow("settings") << "ann"
                              << "secret"
                              << "there";
}

void tst_ReconcilerSteps::aLoginDiffersInEveryPart()
{
    QFETCH(QString, id);
    QFETCH(QString, password);
    QFETCH(QString, server);
    const auto make = [](const QString &id, const QString &password, const QString &server) {
        return KirvLogin { id, password, { KirvField::textEdit(QString(), "server", server, QString()) } };
    };
    KirvFakeConnection connection;
    connection.logIn(make("ann", "secret", "here"), available);
    KirvReconciler::Wanted wanted;
    wanted.online = true;
    wanted.presence = available;
    wanted.login = make("ann", "secret", "here");
    QCOMPARE(KirvReconciler::nextStep(wanted, connection, RequestedStep::None), Step::Nothing);
    wanted.login = make(id, password, server);
    QCOMPARE(KirvReconciler::nextStep(wanted, connection, RequestedStep::None), Step::LogIn);
}

void tst_ReconcilerSteps::aPresenceDiffersInItsDescription()
{
    KirvFakeConnection connection;
    connection.logIn(loginWith("secret"), available);
    KirvReconciler::Wanted wanted;
    wanted.online = true;
    wanted.login = loginWith("secret");
    wanted.presence = KirvPresence(available.getId(), "Other Words", "other.svg");
    QCOMPARE(KirvReconciler::nextStep(wanted, connection, RequestedStep::None), Step::Nothing);
    wanted.presence = KirvPresence(available.getId(), available.getDisplay(), QString(), "at lunch");
    QCOMPARE(KirvReconciler::nextStep(wanted, connection, RequestedStep::None), Step::ChangePresence);
}

QTEST_GUILESS_MAIN(tst_ReconcilerSteps)
#include "tst_reconciler_steps.moc"

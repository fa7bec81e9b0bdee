// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_login_test.h"

#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_protocol_base.h"

#include <QPointer>
#include <QStringList>

KirvLoginTest::KirvLoginTest(KirvProtocolBase &protocol, const KirvLogin &login, KirvClock &clock, QObject *parent)
    : QObject(parent)
    , protocol(&protocol)
    , login(login)
    , secrets(login)
    , clock(clock)
{
    connect(&protocol, &QObject::destroyed, this, [this] {
        this->protocol = nullptr;
        cancel();
    });
}

KirvLoginTest::~KirvLoginTest()
{
    release();
}

void KirvLoginTest::start()
{
    if (current != NotStarted || !protocol)
        return;
    current = Running;
    begun = clock.now();
    if (!createConnection()) {
        finish(Failed);
        return;
    }
    Q_EMIT changed();
}

/// False when there is none, or it could not even begin.
bool KirvLoginTest::createConnection()
{
    const auto create = [this] {
        connection.reset(protocol->createConnection());
        if (!connection)
            return;
        connect(connection.get(), &KirvConnection::loginStep, this, &KirvLoginTest::receiveStep);
        connect(connection.get(), &KirvConnection::stateChanged, this, &KirvLoginTest::receiveState);
        connect(connection.get(), &KirvConnection::failed, this, &KirvLoginTest::receiveFailure);
        KirvLogin used = login;
        used.settings = protocol->settingsForTest(login.settings);
        const KirvPresence presence = protocol->presenceWithId(QStringLiteral("invisible"), QString());
        // From the event loop, so that whoever starts the test sees everything.
        clock.callLater(0, connection.get(), [this, used, presence] { connection->logIn(used, presence); });
    };
    QString problem;
    if (!kirvCallPlugin(create, &problem))
        failure = KirvFailure(KirvFailure::Other, problem);
    else if (!connection)
        failure = KirvFailure(KirvFailure::Other, tr("The plug-in gives no connection."));
    return connection && !failure.isFailure();
}

void KirvLoginTest::cancel()
{
    release();
    if (current != Running)
        return;
    endRunningStep(KirvLoginStep::Failed);
    finish(Cancelled);
}

void KirvLoginTest::receiveStep(const KirvLoginStep &reported)
{
    if (current != Running)
        return;
    const QString text = secrets.without(reported.text());
    const bool goesOn =
        !taken.isEmpty() && taken.last().outcome == KirvLoginStep::Running && taken.last().kind == reported.kind();
    if (!goesOn) {
        endRunningStep(KirvLoginStep::Done);
        if (taken.size() >= mostSteps)
            return;
        Step step;
        step.kind = reported.kind();
        step.begun = clock.now();
        taken << step;
    }
    Step &step = taken.last();
    step.outcome = reported.outcome();
    if (step.outcome == KirvLoginStep::Failed)
        step.problem = text;
    else if (!text.isEmpty())
        step.text = text;
    if (step.outcome != KirvLoginStep::Running)
        step.milliseconds = step.begun.msecsTo(clock.now());
    Q_EMIT changed();
}

void KirvLoginTest::endRunningStep(KirvLoginStep::Outcome outcome)
{
    if (taken.isEmpty() || taken.last().outcome != KirvLoginStep::Running)
        return;
    taken.last().outcome = outcome;
    taken.last().milliseconds = taken.last().begun.msecsTo(clock.now());
}

void KirvLoginTest::receiveState(KirvConnection::State state)
{
    if (current == Running && state == KirvConnection::Online) {
        // In an orderly way: a server keeps what is only broken for a while.
        clock.callLater(0, connection.get(), [this] { connection->logOut(); });
        finish(Succeeded);
    } else if (current != Running && state == KirvConnection::Offline) {
        clock.callLater(0, connection.get(), [this] { release(); });
    }
}

/// There is one attempt.
void KirvLoginTest::receiveFailure(const KirvFailure &newFailure)
{
    if (current != Running)
        return;
    failure = newFailure;
    connection->disconnect(this);
    connection->drop();
    clock.callLater(0, connection.get(), [this] { release(); });
    finish(Failed);
}

void KirvLoginTest::finish(State state)
{
    current = state;
    const QPointer<KirvLoginTest> alive(this);
    Q_EMIT changed();
    if (alive)
        Q_EMIT finished();
}

/// Nothing is reported from now on.
void KirvLoginTest::release()
{
    if (!connection)
        return;
    connection->disconnect(this);
    connection->drop();
    connection.reset();
}

QString KirvLoginTest::result() const
{
    switch (current) {
    case NotStarted:
    case Running:
        break;
    case Succeeded:
        return tr("The log-in works.");
    case Failed:
        return secrets.without(failure.text());
    case Cancelled:
        return tr("The test was cancelled.");
    }
    return QString();
}

QString KirvLoginTest::lineOf(const Step &step)
{
    const QString title = KirvLoginStep::title(step.kind);
    const QString more = step.text.isEmpty() ? step.problem : step.text;
    //: %1 = a step of a log-in, as "Connection"; %2 = with whom or how, as "192.0.2.7", or what went wrong
    const QString line = more.isEmpty() ? title : tr("%1: %2").arg(title, more);
    if (step.text.isEmpty() || step.problem.isEmpty())
        return line;
    //: %1 = a step of a log-in, as "Connection: 192.0.2.7", %2 = a sentence about what went wrong
    return tr("%1. %2").arg(line, step.problem);
}

QString KirvLoginTest::outcomeOf(const Step &step)
{
    switch (step.outcome) {
    case KirvLoginStep::Running:
        return tr("running");
    case KirvLoginStep::Done:
        return tr("done");
    case KirvLoginStep::Failed:
        break;
    }
    return tr("failed");
}

QString KirvLoginTest::report() const
{
    //: %1 = date and time
    QStringList lines { tr("Test of a log-in, %1").arg(begun.toString(Qt::ISODate)) };
    for (const Step &step : taken) {
        //: %1 = "done" or "failed", %2 = a step of a log-in, %3 = number of milliseconds
        lines << tr("[%1] %2 (%3 ms)").arg(outcomeOf(step), lineOf(step)).arg(step.milliseconds);
    }
    lines << result();
    return lines.join(QLatin1Char('\n'));
}

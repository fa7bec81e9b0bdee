// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_patience.h"
#include "tests/walk/kirv_walk.h"
#include "tests/walk/kirv_walk_checks.h"
#include "tests/walk/kirv_walk_mover.h"
#include "tests/walk/kirv_walk_user.h"
#include "tests/walk/kirv_walk_world.h"

#include <QCoreApplication>
#include <QTest>

namespace {

int setting(const char *variable, int fallback)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : fallback;
}

/// What makes the walk worth while: one of this length comes by all of it.
const int thoroughLength = 5000;
const char *const wanted[] = { "a save that is refused",
                               "a publication that the server holds",
                               "a server request that succeeds",
                               "an account that is removed while it logs out",
                               "a protocol that goes under an edit window",
                               "a protocol that goes under an assistant",
                               "an export with passwords",
                               "an export without them",
                               "an import that replaces accounts",
                               "an import that is undone" };

} // namespace

/// Walks through all commands of the client by chance, with protocols that come and go, servers that answer or not,
/// a disk that refuses and questions left open, and compares after every step what the windows show with what the
/// core and the store hold.
class tst_RandomWalk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windowsCoreAndStoreAgreeAfterEveryStep();

private:
    QString takeStep(KirvWalk &walk, const std::vector<KirvWalkStep> &steps);
    void settle();
};

void tst_RandomWalk::windowsCoreAndStoreAgreeAfterEveryStep()
{
    // The same way each time unless another one is set, so that a failure is always news; 0 takes a new one.
    int seed = setting("KIRV_WALK_SEED", 2);
    if (seed == 0)
        seed = 1 + int(QRandomGenerator::system()->bounded(1000000));
    const int length = setting("KIRV_WALK_STEPS", thoroughLength);
    qInfo("KIRV_WALK_SEED=%d KIRV_WALK_STEPS=%d", seed, length);

    KirvWalk walk;
    walk.seed(seed);
    QVERIFY(walk.start());
    QVERIFY(QTest::qWaitForWindowExposed(walk.client->window(), kirvPatience));
    KirvWalkUser user(walk);
    KirvWalkMover mover(walk);
    KirvWalkWorld world(walk);
    const KirvWalkChecks checks(walk);
    std::vector<KirvWalkStep> steps = user.steps();
    for (const std::vector<KirvWalkStep> &others : { mover.steps(), world.steps() })
        steps.insert(steps.end(), others.begin(), others.end());

    QStringList trace;
    for (int i = 0; i < length; ++i) {
        trace << takeStep(walk, steps);
        if (trace.size() > 8)
            trace.removeFirst();
        settle();
        const QString wrong = checks.disagreement();
        QVERIFY2(wrong.isEmpty(),
                 qPrintable(QStringLiteral("seed %1, step %2 after %3: %4")
                                .arg(seed)
                                .arg(i)
                                .arg(trace.join(QStringLiteral(", ")), wrong)));
    }
    for (const auto &[name, count] : walk.sights())
        qInfo("%6d x %s", count, qPrintable(name));
    for (const char *name : wanted)
        QVERIFY2(length < thoroughLength || walk.hasSeen(QLatin1String(name)), name);
}

QString tst_RandomWalk::takeStep(KirvWalk &walk, const std::vector<KirvWalkStep> &steps)
{
    int total = 0;
    for (const KirvWalkStep &step : steps)
        total += step.weight;
    int at = walk.below(total);
    for (const KirvWalkStep &step : steps) {
        at -= step.weight;
        if (at >= 0)
            continue;
        const QString name = QLatin1String(step.name);
        walk.saw(name);
        step.take();
        return name;
    }
    return QString();
}

void tst_RandomWalk::settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_MAIN(tst_RandomWalk)
#include "tst_random_walk.moc"

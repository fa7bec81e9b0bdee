// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_TEST_H
#define KIRV_LOGIN_TEST_H

#include "core/accounts/kirv_secret_blank.h"
#include "core/protocol/kirv_connection.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <memory>

class KirvProtocolBase;

/// Finds out whether an account can log in: does it once, over a connection of its own, and logs out again.
///
/// The account need not exist, and nothing is stored. It arrives invisibly where the protocol offers that, and with
/// the protocol's settings for tests, so that a session of the same account is not disturbed. Used once; destroying it
/// ends it. The texts hold no secrets of the log-in.
class KirvLoginTest : public QObject {
    Q_OBJECT

public:
    enum State { NotStarted, Running, Succeeded, Failed, Cancelled };
    Q_ENUM(State)

    /// A step, and what is known of it. A value type.
    struct Step {
        KirvLoginStep::Kind kind = KirvLoginStep::NameLookup;
        KirvLoginStep::Outcome outcome = KirvLoginStep::Running;
        QString text; ///< with whom or how; may be empty
        QString problem; ///< why it failed; empty when it did not
        QDateTime begun;
        qint64 milliseconds = 0; ///< how long it took; 0 while it runs
    };
    static const int mostSteps = 100; ///< later ones are not kept

    /// \a protocol and \a clock are not owned. When \a protocol is destroyed the test is cancelled; the clock outlives
    /// it.
    KirvLoginTest(KirvProtocolBase &protocol, const KirvLogin &login, KirvClock &clock = KirvClock::system(),
                  QObject *parent = nullptr);
    ~KirvLoginTest() override;

    /// Begins; emits at once when it cannot. Does nothing the second time.
    void start();
    /// Breaks the connection at once, also the one of a test that is over and still logs out.
    void cancel();

    State state() const { return current; }
    bool isRunning() const { return current == Running; }
    QList<Step> steps() const { return taken; }
    /// How it ended, a sentence; empty before that.
    QString result() const;
    /// The steps and the result as lines to be sent to somebody.
    QString report() const;
    /// \a step in one line, as "Connection: 192.0.2.7".
    static QString lineOf(const Step &step);
    /// What became of \a step, in a word.
    static QString outcomeOf(const Step &step);

Q_SIGNALS:
    /// Steps or the state changed. A slot may destroy the test only when it is over.
    void changed();
    /// It is over. A slot may destroy the test.
    void finished();

private:
    bool createConnection();
    void receiveStep(const KirvLoginStep &step);
    void receiveState(KirvConnection::State state);
    void receiveFailure(const KirvFailure &newFailure);
    void finish(State state);
    void endRunningStep(KirvLoginStep::Outcome outcome);
    void release();

    KirvProtocolBase *protocol; ///< null once it is gone
    const KirvLogin login;
    const KirvSecretBlank secrets;
    KirvClock &clock;
    QDateTime begun;
    std::unique_ptr<KirvConnection> connection;
    QList<Step> taken;
    KirvFailure failure;
    State current = NotStarted;
};

#endif

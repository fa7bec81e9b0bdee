// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_LOGIN_GUARD_H
#define KIRV_XMPP_LOGIN_GUARD_H

#include "core/values/kirv_failure.h"

#include <QCoreApplication>
#include <QString>

class QDomElement;
class QXmppOutgoingClient;

/// Watches a log-in over one stream: chooses the way from those that the server offers, bounds the work that the server
/// demands, and lets it count as successful only when the server has done its part.
///
/// With SCRAM the server proves that it knows the password, too. The library does not look at the proof where servers
/// usually put it.
class KirvXmppLoginGuard {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppLoginGuard)

public:
    static constexpr int mostFeatures = 3; ///< before encryption, with it, and logged in
    static constexpr int mostChallenges = 3;
    static constexpr int longestChallenge = 4096; ///< characters, as it is sent
    /// How many rounds a server may ask for in the derivation of the password's key, which blocks for that long. Usual
    /// are 4,096 to 10,000; those of SHA-512 take longer.
    static constexpr int mostRounds = 30000, mostRoundsOfSha512 = 20000;

    /// \a stream is not owned and lives longer.
    explicit KirvXmppLoginGuard(QXmppOutgoingClient &stream);

    /// Takes out of \a features what is not used, and all but one way to log in; after the log-in that one, too. See
    /// kirvXmppReduceFeatures().
    bool receiveFeatures(QDomElement &features, bool sendsPasswords);
    /// Whether the server has offered features more often than a log-in has steps.
    bool isEndless() const { return featureCount > mostFeatures; }

    /// Looks at a challenge or at the end of the log-in before the library does. A failure: the log-in must not go on.
    KirvFailure receiveStep(const QDomElement &step);

    /// Whether the server has sent a challenge, and not yet said that the log-in is successful.
    bool isUnderWay() const { return challengeCount > 0 && !isDone; }
    /// The way in which the account logs in, as "SCRAM-SHA-256"; empty when none was chosen.
    QString mechanism() const { return chosen; }

private:
    KirvFailure receiveChallenge(const QString &text);
    KirvFailure receiveSuccess(const QDomElement &success);
    bool isProof(const QDomElement &success);
    bool isMutual() const { return chosen.startsWith(QLatin1String("SCRAM-")); }

    QXmppOutgoingClient &stream;
    QString chosen;
    int featureCount = 0;
    int challengeCount = 0;
    bool isDone = false; ///< logged in
    bool isProven = false; ///< the library has checked the server's proof
    bool isChecking = false; ///< the library checks it now
};

#endif

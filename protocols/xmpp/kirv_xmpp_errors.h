// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_ERRORS_H
#define KIRV_XMPP_ERRORS_H

#include "core/values/kirv_failure.h"

#include <QCoreApplication>
#include <QString>

class QDomElement;

/// What an error element of a server says. A value type.
struct KirvXmppError {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppError)

public:
    /// Reads the children of \a error that are in \a space.
    KirvXmppError(const QDomElement &error, const QString &space);

    /// The text of the server; without one a sentence for the usual conditions, or the bare condition.
    QString sentence() const;
    /// Whether a stream has ended because another session took its place. Some servers use the condition also for
    /// what an administrator does to a session, and give the reason as the text.
    bool isConflict() const;
    /// Of a request that is refused.
    KirvFailure requestFailure() const;
    /// Of a log-in that is refused.
    KirvFailure loginFailure() const;

    QString condition; ///< "conflict"
    QString text; ///< for people; may be empty
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_STEP_H
#define KIRV_LOGIN_STEP_H

#include "core/values/kirv_values_export.h"

#include <QCoreApplication>
#include <QMetaType>
#include <QString>

/// One step of a log-in, as a connection reports it. A value type.
class KIRV_PROTOCOL_EXPORT KirvLoginStep {
    Q_DECLARE_TR_FUNCTIONS(KirvLoginStep)

public:
    /// The steps in the order in which they are taken.
    enum Kind {
        NameLookup, ///< of the server
        Connection, ///< to the server or the proxy
        Encryption, ///< and the check of the server's certificate
        LogIn ///< proving to the server who one is, and what follows until the account is on line
    };
    /// How far the step is.
    enum Outcome { Running, Done, Failed };

    KirvLoginStep() = default;
    /// \a text says with whom or how, as "xmpp.example.org, port 5222" or "192.0.2.7"; of a failed step, why. Plain and
    /// translated, without secrets; kept in one line of at most 400 characters. May be empty.
    KirvLoginStep(Kind kind, Outcome outcome, const QString &text = QString());

    /// Which step it is.
    Kind kind() const { return stepKind; }
    /// How far it is.
    Outcome outcome() const { return stepOutcome; }
    /// With whom or how, or why it failed, as the constructor keeps it.
    QString text() const { return stepText; }
    /// What the step is called, as "Name look-up"; translated.
    QString title() const { return title(stepKind); }
    /// What a step of that \a kind is called; translated.
    static QString title(Kind kind);

    /// Whether step, outcome and text are the same.
    bool operator==(const KirvLoginStep &other) const
    {
        return stepKind == other.stepKind && stepOutcome == other.stepOutcome && stepText == other.stepText;
    }

private:
    Kind stepKind = NameLookup;
    Outcome stepOutcome = Running;
    QString stepText;
};

Q_DECLARE_METATYPE(KirvLoginStep)

#endif

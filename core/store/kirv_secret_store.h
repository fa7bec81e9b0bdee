// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_STORE_H
#define KIRV_SECRET_STORE_H

#include "core/store/kirv_secret_item.h"

#include <QObject>
#include <QString>
#include <functional>

/// A place outside the profile that keeps secrets, as the desktop's keyring does.
///
/// Nothing here waits: operations are carried out one after the other, in the order of their requests, and each is
/// answered from the event loop, also when the store does not respond.
class KirvSecretStore : public QObject {
    Q_OBJECT

public:
    enum State {
        Unknown, ///< it is being found out
        Ready,
        Locked, ///< the store itself asks the user to unlock it when an operation needs that
        Silent, ///< it is there and does not respond
        Unavailable ///< there is none
    };
    Q_ENUM(State)

    enum Outcome {
        Done,
        Missing, ///< there is no such secret; the store was unlocked
        Refused, ///< the user, or the store, did not allow it
        TimedOut, ///< no answer in time; it may still be carried out
        Failed
    };
    Q_ENUM(Outcome)

    /// How an operation ended. A value type.
    struct Reply {
        Outcome outcome = Failed;
        QString secret; ///< of a read that is Done
        QString text; ///< what the store says of a failure, plain text; may be empty
    };
    using Callback = std::function<void(const Reply &reply)>;

    explicit KirvSecretStore(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    virtual State state() const = 0;
    /// The name of the program that keeps the secrets, as "GNOME Keyring"; empty when it is not known.
    virtual QString providerName() const = 0;

    /// Each calls \a callback once, unless \a context or the store is destroyed before.
    virtual void read(const KirvSecretItem &item, QObject *context, const Callback &callback) = 0;
    virtual void write(const KirvSecretItem &item, const QString &secret, QObject *context,
                       const Callback &callback) = 0;
    /// Done or Missing: it is not there any more. Refused: it is, in a place that is locked.
    virtual void remove(const KirvSecretItem &item, QObject *context, const Callback &callback) = 0;

Q_SIGNALS:
    /// state() or providerName() changed, or an operation that had timed out has ended: what failed may be tried again.
    void stateChanged();
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_SECRET_STORE_H
#define KIRV_FAKE_SECRET_STORE_H

#include "core/store/kirv_secret_store.h"

#include <QList>
#include <QMap>
#include <QPointer>
#include <QStringList>
#include <utility>

/// A store of secrets in memory that replies as a test says. For tests that are linked with the client core.
class KirvFakeSecretStore : public KirvSecretStore {
public:
    explicit KirvFakeSecretStore(State state = Ready)
        : current(state)
    {
    }

    State state() const override { return current; }
    QString providerName() const override { return provider; }

    void setState(State state)
    {
        current = state;
        Q_EMIT stateChanged();
    }

    QString provider = QStringLiteral("Fake Keyring");
    QMap<QString, QString> secrets; ///< by key
    QMap<QString, QString> labels; ///< by key
    QStringList calls; ///< "read", "write" and "remove", in order
    Outcome outcome = Done; ///< what every operation ends with; Done: as it should
    bool isHeld = false; ///< operations are carried out by release()

    /// Carries out the oldest operation that is held.
    void release()
    {
        if (!held.isEmpty())
            carryOut(held.takeFirst());
    }
    int heldCount() const { return int(held.size()); }

    void read(const KirvSecretItem &item, QObject *context, const Callback &callback) override
    {
        take({ QStringLiteral("read"), item, QString(), context, callback });
    }
    void write(const KirvSecretItem &item, const QString &secret, QObject *context, const Callback &callback) override
    {
        take({ QStringLiteral("write"), item, secret, context, callback });
    }
    void remove(const KirvSecretItem &item, QObject *context, const Callback &callback) override
    {
        take({ QStringLiteral("remove"), item, QString(), context, callback });
    }

private:
    struct Call {
        QString name;
        KirvSecretItem item;
        QString secret;
        QPointer<QObject> context;
        Callback callback;
    };

    void take(const Call &call)
    {
        calls << call.name;
        if (isHeld)
            held << call;
        else
            QMetaObject::invokeMethod(
                this, [this, call] { carryOut(call); }, Qt::QueuedConnection);
    }

    void carryOut(const Call &call)
    {
        Reply reply;
        reply.outcome = outcome;
        if (outcome == Done && call.name == QLatin1String("read")) {
            reply.outcome = secrets.contains(call.item.key) ? Done : Missing;
            reply.secret = secrets.value(call.item.key);
        } else if (outcome == Done && call.name == QLatin1String("write")) {
            secrets.insert(call.item.key, call.secret);
            labels.insert(call.item.key, call.item.label);
        } else if (outcome == Done) {
            reply.outcome = secrets.remove(call.item.key) > 0 ? Done : Missing;
        }
        if (call.context)
            call.callback(reply);
    }

    State current;
    QList<Call> held;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_SECRET_SERVICE_H
#define KIRV_SCRIPTED_SECRET_SERVICE_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QStringList>
#include <atomic>

/// A Secret Service on the session bus that does what a test says: it says whether it is locked, refuses to be unlocked
/// as a user does who closes the question, or never replies. It keeps no secrets.
class KirvScriptedSecretService : public QDBusVirtualObject {
public:
    enum Script {
        NeverReplies,
        SaysItsState, ///< and replies to nothing else
        RefusesToUnlock ///< the question is closed at once
    };

    explicit KirvScriptedSecretService(Script script)
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("scripted-secrets")))
        , script(script)
    {
        bus.registerVirtualObject(QStringLiteral("/org/freedesktop/secrets"), this, QDBusConnection::SubPath);
    }
    ~KirvScriptedSecretService() override
    {
        leave();
        bus.unregisterObject(QStringLiteral("/org/freedesktop/secrets"), QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(QStringLiteral("scripted-secrets"));
    }

    bool appear() { return bus.registerService(QStringLiteral("org.freedesktop.secrets")); }
    void leave() { bus.unregisterService(QStringLiteral("org.freedesktop.secrets")); }

    std::atomic_bool isLocked { false };
    std::atomic_bool isHung { false }; ///< from now on it replies to nothing
    /// The methods that were called, in order.
    QStringList calls() const
    {
        const QMutexLocker locker(&mutex);
        return called;
    }

    QString introspect(const QString &) const override { return QString(); }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        const QString method = message.member();
        { // the connection has a thread of its own
            const QMutexLocker locker(&mutex);
            called << method;
        }
        message.setDelayedReply(true);
        if (script == NeverReplies || isHung)
            return true;
        if (method == QLatin1String("ReadAlias"))
            bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(collection()))));
        else if (method == QLatin1String("Get"))
            bus.send(message.createReply(QVariant::fromValue(QDBusVariant(bool(isLocked)))));
        else if (script == RefusesToUnlock)
            refuse(message);
        return true;
    }

private:
    static QString collection() { return QStringLiteral("/org/freedesktop/secrets/collection/all"); }

    void refuse(const QDBusMessage &message)
    {
        using Paths = QList<QDBusObjectPath>;
        const QString method = message.member();
        const QDBusObjectPath prompt(QStringLiteral("/org/freedesktop/secrets/prompt/1"));
        const Paths none, one { QDBusObjectPath(collection() + QStringLiteral("/1")) };
        if (method == QLatin1String("OpenSession")) {
            const bool isPlain = message.arguments().value(0).toString() == QLatin1String("plain");
            bus.send(isPlain ? message.createReply(
                         { QVariant::fromValue(QDBusVariant(QString())),
                           QVariant::fromValue(QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/session/1"))) })
                             : message.createErrorReply(QDBusError::NotSupported, QStringLiteral("plain only")));
        } else if (method == QLatin1String("GetAll")) {
            bus.send(message.createReply(QVariantMap()));
        } else if (method == QLatin1String("SearchItems")) {
            bus.send(message.createReply({ QVariant::fromValue(none), QVariant::fromValue(one) }));
        } else if (method == QLatin1String("Unlock")) {
            bus.send(message.createReply({ QVariant::fromValue(none), QVariant::fromValue(prompt) }));
        } else if (method == QLatin1String("Prompt")) {
            bus.send(message.createReply());
            QDBusMessage completed = QDBusMessage::createSignal(
                prompt.path(), QStringLiteral("org.freedesktop.Secret.Prompt"), QStringLiteral("Completed"));
            completed.setArguments({ true, QVariant::fromValue(QDBusVariant(QVariant::fromValue(none))) });
            bus.send(completed);
        } else if (method == QLatin1String("GetSecrets") || method == QLatin1String("CreateItem")) {
            bus.send(message.createErrorReply(QStringLiteral("org.freedesktop.Secret.Error.IsLocked"),
                                              QStringLiteral("locked")));
        }
    }

    QDBusConnection bus;
    const Script script;
    mutable QMutex mutex;
    QStringList called;
};

#endif

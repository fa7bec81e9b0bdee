// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_SECRET_SERVICE_H
#define KIRV_SCRIPTED_SECRET_SERVICE_H

#include "tests/support/servers/kirv_gnome_keyring.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QStringList>
#include <atomic>

/// A Secret Service on the session bus that does what a test says: it says whether it is locked, refuses to be unlocked
/// as a user does who closes the question, has it open until the test answers it, or never replies. It keeps no secrets
/// but one, which is the same for every item.
class KirvScriptedSecretService : public QDBusVirtualObject {
public:
    enum Script {
        NeverReplies,
        SaysItsState, ///< and replies to nothing else
        RefusesToUnlock, ///< the question is closed at once
        Asks ///< the question stays open until acceptQuestion()
    };

    explicit KirvScriptedSecretService(Script script)
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("scripted-secrets")))
        , script(script)
    {
        qDBusRegisterMetaType<KirvPassedSecret>();
        qDBusRegisterMetaType<PassedSecrets>();
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

    /// Unlocks it, as the password of the user does.
    void acceptQuestion()
    {
        isLocked = false;
        completeQuestion(false, { QDBusObjectPath(collection() + QStringLiteral("/1")) });
    }
    static QString secret() { return QStringLiteral("kept by the script"); }

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
        else if (script != SaysItsState)
            reply(message);
        return true;
    }

private:
    using Paths = QList<QDBusObjectPath>;
    using PassedSecrets = QMap<QDBusObjectPath, KirvPassedSecret>;

    static QString collection() { return QStringLiteral("/org/freedesktop/secrets/collection/all"); }
    static QDBusObjectPath prompt() { return QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/prompt/1")); }
    static QDBusObjectPath session() { return QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/session/1")); }

    void completeQuestion(bool isDismissed, const Paths &unlocked)
    {
        QDBusMessage completed = QDBusMessage::createSignal(
            prompt().path(), QStringLiteral("org.freedesktop.Secret.Prompt"), QStringLiteral("Completed"));
        completed.setArguments({ isDismissed, QVariant::fromValue(QDBusVariant(QVariant::fromValue(unlocked))) });
        bus.send(completed);
    }

    void reply(const QDBusMessage &message)
    {
        const QString method = message.member();
        const Paths none, one { QDBusObjectPath(collection() + QStringLiteral("/1")) };
        if (method == QLatin1String("OpenSession")) {
            const bool isPlain = message.arguments().value(0).toString() == QLatin1String("plain");
            bus.send(isPlain ? message.createReply(
                         { QVariant::fromValue(QDBusVariant(QString())), QVariant::fromValue(session()) })
                             : message.createErrorReply(QDBusError::NotSupported, QStringLiteral("plain only")));
        } else if (method == QLatin1String("GetAll")) {
            bus.send(message.createReply(QVariantMap()));
        } else if (method == QLatin1String("SearchItems")) {
            bus.send(message.createReply(
                { QVariant::fromValue(isLocked ? none : one), QVariant::fromValue(isLocked ? one : none) }));
        } else if (method == QLatin1String("Unlock")) {
            bus.send(message.createReply({ QVariant::fromValue(none), QVariant::fromValue(prompt()) }));
        } else if (method == QLatin1String("Prompt")) {
            bus.send(message.createReply());
            if (script == RefusesToUnlock)
                completeQuestion(true, none);
        } else if (method == QLatin1String("GetSecrets") && !isLocked) {
            const KirvPassedSecret passed { session(), QByteArray(), secret().toUtf8(), QStringLiteral("text/plain") };
            bus.send(message.createReply(QVariant::fromValue(PassedSecrets { { one.first(), passed } })));
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

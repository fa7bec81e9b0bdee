// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_GNOME_KEYRING_H
#define KIRV_GNOME_KEYRING_H

#include "tests/support/kirv_patience.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QList>
#include <QMap>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

/// A secret as the Secret Service passes it on.
struct KirvPassedSecret {
    QDBusObjectPath session;
    QByteArray parameters;
    QByteArray value;
    QString type;
};
Q_DECLARE_METATYPE(KirvPassedSecret)

inline QDBusArgument &operator<<(QDBusArgument &argument, const KirvPassedSecret &secret)
{
    argument.beginStructure();
    argument << secret.session << secret.parameters << secret.value << secret.type;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, KirvPassedSecret &secret)
{
    argument.beginStructure();
    argument >> secret.session >> secret.parameters >> secret.value >> secret.type;
    argument.endStructure();
    return argument;
}

/// A real GNOME Keyring on the session bus of the test program, see kirvEnterPrivateBus(), with its files in a folder
/// of its own. All operations wait.
class KirvGnomeKeyring {
public:
    KirvGnomeKeyring()
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("keyring-tool")))
    {
        qDBusRegisterMetaType<KirvPassedSecret>();
        qDBusRegisterMetaType<Attributes>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : { "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME" })
            environment.insert(QLatin1String(variable), home.path());
        daemon.setProcessEnvironment(environment);
        daemon.setStandardErrorFile(QProcess::nullDevice());
        daemon.setStandardOutputFile(QProcess::nullDevice());
    }
    ~KirvGnomeKeyring()
    {
        stop();
        QDBusConnection::disconnectFromBus(QStringLiteral("keyring-tool"));
    }

    /// Starts it with its collection unlocked, which is made when it is not there yet.
    bool start()
    {
        daemon.start(
            QStringLiteral("gnome-keyring-daemon"),
            { QStringLiteral("--foreground"), QStringLiteral("--unlock"), QStringLiteral("--components=secrets") });
        if (!daemon.waitForStarted(kirvPatience) || daemon.write(password()) < 0
            || !daemon.waitForBytesWritten(kirvPatience))
            return false;
        daemon.closeWriteChannel();
        return QTest::qWaitFor([this] { return isUnlocked(); }, kirvPatience);
    }
    /// Where its files are.
    QString folder() const { return home.path(); }
    void stop()
    {
        if (daemon.state() == QProcess::NotRunning)
            return;
        daemon.terminate();
        if (!daemon.waitForFinished(kirvPatience)) {
            daemon.kill();
            daemon.waitForFinished(kirvPatience);
        }
    }
    /// Locks the collection as the user's own program for it does.
    bool lock() { return lock(QDBusObjectPath(collection())) && !isUnlocked(); }
    /// Unlocks it as the log-in to a desktop does, without a question.
    bool unlock()
    {
        const KirvPassedSecret secret { openSession(), QByteArray(), password(), QStringLiteral("text/plain") };
        call(service(), guiltRiddenInterface(), "UnlockWithMasterPassword",
             { QVariant::fromValue(QDBusObjectPath(collection())), QVariant::fromValue(secret) });
        return isUnlocked();
    }
    /// How many secrets are in it.
    int count() { return int(items().size()); }

    // As another program does it.

    /// The secrets that are in it, in the order of the alphabet.
    QStringList secrets()
    {
        QStringList found;
        const QList<QDBusObjectPath> all = items();
        for (const QDBusObjectPath &item : all)
            found << QString::fromUtf8(secretOf(item).value);
        found.sort();
        return found;
    }
    /// Replaces the value \a secret; false when there is none.
    bool change(const QString &secret, const QString &other)
    {
        const QDBusObjectPath item = find(secret);
        KirvPassedSecret changed = secretOf(item);
        changed.value = other.toUtf8();
        return !item.path().isEmpty()
            && isDone(call(item.path(), itemInterface(), "SetSecret", { QVariant::fromValue(changed) }));
    }
    bool remove(const QString &secret)
    {
        const QDBusObjectPath item = find(secret);
        return !item.path().isEmpty() && isDone(call(item.path(), itemInterface(), "Delete", {}));
    }
    /// Moves the value \a secret into another collection, with a password of its own, and locks that.
    bool moveIntoLockedCollection(const QString &secret)
    {
        const QDBusObjectPath item = find(secret);
        const Attributes attributes = qdbus_cast<Attributes>(property(item.path(), itemInterface(), "Attributes"));
        KirvPassedSecret moved = secretOf(item), master = moved;
        master.value = QByteArrayLiteral("of the other collection");
        const QVariantMap label { { QStringLiteral("org.freedesktop.Secret.Collection.Label"),
                                    QStringLiteral("Other") } };
        const QDBusMessage created =
            call(service(), guiltRiddenInterface(), "CreateWithMasterPassword", { label, QVariant::fromValue(master) });
        const QDBusObjectPath other = created.arguments().value(0).value<QDBusObjectPath>();
        const QVariantMap properties { { QStringLiteral("org.freedesktop.Secret.Item.Label"), QStringLiteral("moved") },
                                       { QStringLiteral("org.freedesktop.Secret.Item.Attributes"),
                                         QVariant::fromValue(attributes) } };
        moved.session = openSession();
        return isDone(created)
            && isDone(call(other.path(), "org.freedesktop.Secret.Collection", "CreateItem",
                           { properties, QVariant::fromValue(moved), false }))
            && remove(secret) && lock(other) && count() == 0;
    }

private:
    using Attributes = QMap<QString, QString>;

    static const char *itemInterface() { return "org.freedesktop.Secret.Item"; }
    static const char *guiltRiddenInterface() { return "org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface"; }
    static bool isDone(const QDBusMessage &reply) { return reply.type() == QDBusMessage::ReplyMessage; }

    /// In which secrets are passed on as they are.
    QDBusObjectPath openSession()
    {
        return call(service(), "org.freedesktop.Secret.Service", "OpenSession",
                    { QStringLiteral("plain"), QVariant::fromValue(QDBusVariant(QString())) })
            .arguments()
            .value(1)
            .value<QDBusObjectPath>();
    }
    bool lock(const QDBusObjectPath &which)
    {
        const QList<QDBusObjectPath> paths { which };
        return isDone(call(service(), "org.freedesktop.Secret.Service", "Lock", { QVariant::fromValue(paths) }));
    }
    QList<QDBusObjectPath> items()
    {
        return qdbus_cast<QList<QDBusObjectPath>>(property(collection(), "org.freedesktop.Secret.Collection", "Items"));
    }
    KirvPassedSecret secretOf(const QDBusObjectPath &item)
    {
        const QDBusMessage reply =
            call(item.path(), itemInterface(), "GetSecret", { QVariant::fromValue(openSession()) });
        return qdbus_cast<KirvPassedSecret>(reply.arguments().value(0));
    }
    QDBusObjectPath find(const QString &secret)
    {
        const QList<QDBusObjectPath> all = items();
        for (const QDBusObjectPath &item : all) {
            if (secretOf(item).value == secret.toUtf8())
                return item;
        }
        return QDBusObjectPath();
    }

    static QByteArray password() { return QByteArrayLiteral("\n"); }
    static QString service() { return QStringLiteral("/org/freedesktop/secrets"); }
    static QString collection() { return QStringLiteral("/org/freedesktop/secrets/collection/login"); }

    QDBusMessage call(const QString &path, const char *interface, const char *method, const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.secrets"), path,
                                                              QLatin1String(interface), QLatin1String(method));
        message.setArguments(arguments);
        return bus.call(message);
    }
    QVariant property(const QString &path, const char *interface, const char *name)
    {
        const QDBusMessage reply =
            call(path, "org.freedesktop.DBus.Properties", "Get", { QLatin1String(interface), QLatin1String(name) });
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }
    bool isUnlocked()
    {
        const QVariant locked = property(collection(), "org.freedesktop.Secret.Collection", "Locked");
        return locked.isValid() && !locked.toBool();
    }

    QDBusConnection bus;
    QTemporaryDir home;
    QProcess daemon;
};

#endif

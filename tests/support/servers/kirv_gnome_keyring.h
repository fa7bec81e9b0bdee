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
#include <QObject>
#include <QProcess>
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
    bool lock()
    {
        const QList<QDBusObjectPath> paths { QDBusObjectPath(collection()) };
        call(service(), "org.freedesktop.Secret.Service", "Lock", { QVariant::fromValue(paths) });
        return !isUnlocked();
    }
    /// Unlocks it as the log-in to a desktop does, without a question.
    bool unlock()
    {
        const QDBusMessage session = call(service(), "org.freedesktop.Secret.Service", "OpenSession",
                                          { QStringLiteral("plain"), QVariant::fromValue(QDBusVariant(QString())) });
        const KirvPassedSecret secret { session.arguments().value(1).value<QDBusObjectPath>(), QByteArray(), password(),
                                        QStringLiteral("text/plain") };
        call(service(), "org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface", "UnlockWithMasterPassword",
             { QVariant::fromValue(QDBusObjectPath(collection())), QVariant::fromValue(secret) });
        return isUnlocked();
    }
    /// How many secrets are in it.
    int count() { return int(qdbus_cast<QList<QDBusObjectPath>>(property("Items")).size()); }

private:
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
    QVariant property(const char *name)
    {
        const QDBusMessage reply = call(collection(), "org.freedesktop.DBus.Properties", "Get",
                                        { QStringLiteral("org.freedesktop.Secret.Collection"), QLatin1String(name) });
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }
    bool isUnlocked()
    {
        const QVariant locked = property("Locked");
        return locked.isValid() && !locked.toBool();
    }

    QDBusConnection bus;
    QTemporaryDir home;
    QProcess daemon;
};

#endif

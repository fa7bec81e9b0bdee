// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCESSIBILITY_BUS_H
#define KIRV_ACCESSIBILITY_BUS_H

#include "tests/support/kirv_patience.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QList>
#include <QProcess>
#include <QtTest>
#include <functional>

/// One object of a program as assistive technology finds it on the bus. A value type.
struct KirvAccessible {
    QString service; ///< empty: there is none
    QDBusObjectPath path;
};
Q_DECLARE_METATYPE(KirvAccessible)

inline QDBusArgument &operator<<(QDBusArgument &argument, const KirvAccessible &accessible)
{
    argument.beginStructure();
    argument << accessible.service << accessible.path;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, KirvAccessible &accessible)
{
    argument.beginStructure();
    argument >> accessible.service >> accessible.path;
    argument.endStructure();
    return argument;
}

/// What an object is able to do.
struct KirvAccessibleAction {
    QString name, description, keys;
};
Q_DECLARE_METATYPE(KirvAccessibleAction)

inline QDBusArgument &operator<<(QDBusArgument &argument, const KirvAccessibleAction &action)
{
    argument.beginStructure();
    argument << action.name << action.description << action.keys;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, KirvAccessibleAction &action)
{
    argument.beginStructure();
    argument >> action.name >> action.description >> action.keys;
    argument.endStructure();
    return argument;
}

/// The accessibility bus of a desktop, with its real launcher and registry, on the session bus of the test program, see
/// kirvEnterPrivateBus(). Reads what programs show there, as a screen reader does. All operations wait.
class KirvAccessibilityBus {
public:
    /// Some of AT-SPI's numbers.
    enum Role {
        Invalid = 0,
        ComboBox = 11,
        List = 31,
        PushButton = 43,
        Table = 55,
        Tree = 65,
        TreeTable = 66,
        Unknown = 67
    };
    enum State { Checked = 4, Enabled = 8, Focusable = 11, Showing = 25 };

    ~KirvAccessibilityBus()
    {
        QDBusConnection::disconnectFromBus(connectionName());
        launcher.terminate();
        if (launcher.state() != QProcess::NotRunning && !launcher.waitForFinished(kirvPatience))
            launcher.kill();
    }

    bool start()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
        launcher.setProcessEnvironment(environment);
        launcher.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        launcher.start(QStringLiteral("/usr/libexec/at-spi-bus-launcher"),
                       { QStringLiteral("--launch-immediately"), QStringLiteral("--a11y=1") });
        if (!launcher.waitForStarted(kirvPatience)
            || !QTest::qWaitFor([this] { return !address().isEmpty(); }, kirvPatience))
            return false;
        QDBusConnection::connectToBus(address(), connectionName());
        return bus().isConnected();
    }

    /// The program with the process id \a process, when it is there.
    KirvAccessible program(qint64 process)
    {
        const KirvAccessible root { QStringLiteral("org.a11y.atspi.Registry"),
                                    QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root")) };
        const QList<KirvAccessible> programs = children(root);
        for (const KirvAccessible &candidate : programs) {
            if (qint64(bus().interface()->servicePid(candidate.service).value()) == process)
                return candidate;
        }
        return {};
    }

    QList<KirvAccessible> children(const KirvAccessible &parent)
    {
        return qdbus_cast<QList<KirvAccessible>>(first(call(parent, accessible(), "GetChildren")));
    }
    QString name(const KirvAccessible &object) { return property(object, "Name").toString(); }
    QString description(const KirvAccessible &object) { return property(object, "Description").toString(); }
    int role(const KirvAccessible &object) { return first(call(object, accessible(), "GetRole")).toInt(); }
    QString roleName(const KirvAccessible &object)
    {
        return first(call(object, accessible(), "GetRoleName")).toString();
    }
    bool has(const KirvAccessible &object, State state)
    {
        const auto bits = qdbus_cast<QList<uint>>(first(call(object, accessible(), "GetState")));
        return bits.value(state / 32) & (1u << (state % 32));
    }
    QList<KirvAccessibleAction> actions(const KirvAccessible &object)
    {
        return qdbus_cast<QList<KirvAccessibleAction>>(
            first(call(object, QStringLiteral("org.a11y.atspi.Action"), "GetActions")));
    }

    /// Does the first action of \a object, as pressing a button.
    bool press(const KirvAccessible &object)
    {
        return first(call(object, QStringLiteral("org.a11y.atspi.Action"), "DoAction", { 0 })).toBool();
    }

    /// All objects below \a root, of which each comes before its children, as far as \a mayEnter.
    QList<KirvAccessible> below(
        const KirvAccessible &root,
        const std::function<bool(const KirvAccessible &)> &mayEnter = [](const KirvAccessible &) { return true; })
    {
        QList<KirvAccessible> found;
        QList<KirvAccessible> left = children(root);
        while (!left.isEmpty() && found.size() < mostObjects) {
            const KirvAccessible object = left.takeFirst();
            found << object;
            if (mayEnter(object))
                left = children(object) + left;
        }
        return found;
    }
    /// The first one below \a root that is shown, of that role and with a name that begins so.
    KirvAccessible find(const KirvAccessible &root, Role wanted, const QString &beginning)
    {
        const QList<KirvAccessible> all = below(root);
        for (const KirvAccessible &object : all) {
            if (role(object) == wanted && has(object, Showing) && name(object).startsWith(beginning))
                return object;
        }
        return {};
    }

private:
    static constexpr int mostObjects = 5000;

    static QString connectionName() { return QStringLiteral("accessibility-reader"); }
    static QString accessible() { return QStringLiteral("org.a11y.atspi.Accessible"); }
    static QDBusConnection bus() { return QDBusConnection(connectionName()); }
    /// An error has its text there.
    static QVariant first(const QDBusMessage &reply)
    {
        return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
    }

    QString address()
    {
        const QDBusMessage request =
            QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                           QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
        return first(QDBusConnection::sessionBus().call(request)).toString();
    }
    static QDBusMessage message(const KirvAccessible &object, const QString &interface, const char *method,
                                const QVariantList &arguments)
    {
        QDBusMessage request =
            QDBusMessage::createMethodCall(object.service, object.path.path(), interface, QLatin1String(method));
        request.setArguments(arguments);
        return request;
    }
    static QDBusMessage call(const KirvAccessible &object, const QString &interface, const char *method,
                             const QVariantList &arguments = {})
    {
        return bus().call(message(object, interface, method, arguments));
    }
    static QVariant property(const KirvAccessible &object, const char *name)
    {
        const QDBusMessage reply = call(object, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                                        { accessible(), QLatin1String(name) });
        return first(reply).value<QDBusVariant>().variant();
    }

    QProcess launcher;
};

#endif

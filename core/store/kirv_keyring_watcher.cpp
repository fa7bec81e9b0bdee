// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_keyring_watcher.h"

#include "core/store/kirv_bus_probe.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFile>
#include <QMap>
#include <QPointer>
#include <QUuid>

#include <climits>
#include <utility>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.secrets");
const QString servicePath = QStringLiteral("/org/freedesktop/secrets");
const char *const serviceInterface = "org.freedesktop.Secret.Service";
const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");
const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local"); // signals of the connection itself
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

/// Of an item; its key is what QtKeychain calls a user.
using Attributes = QMap<QString, QString>;
const QString keyAttribute = QStringLiteral("user");

/// The name, as people know it, of the program of the process \a pid; empty when it is none of those.
QString nameOfProgram(uint pid)
{
    static const QMap<QByteArray, QString> names {
        { "gnome-keyring-d", QStringLiteral("GNOME Keyring") }, // the system cuts names off
        { "kwalletd5", QStringLiteral("KWallet") },
        { "kwalletd6", QStringLiteral("KWallet") },
        { "ksecretd", QStringLiteral("KWallet") },
        { "keepassxc", QStringLiteral("KeePassXC") },
    };
    QFile file(QStringLiteral("/proc/%1/comm").arg(pid));
    return file.open(QIODevice::ReadOnly) ? names.value(file.readAll().trimmed()) : QString();
}

} // namespace

KirvKeyringWatcher::KirvKeyringWatcher(int replyTimeoutMilliseconds, QObject *parent)
    : QObject(parent)
    , connectionName(QStringLiteral("kirv-keyring-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    lockedRefresh.setInterval(1000);
    connect(&lockedRefresh, &QTimer::timeout, this, [this] {
        if (!replyTimeout.isActive()) // otherwise one that does not reply would have time for ever
            refresh();
    });
    replyTimeout.setSingleShot(true);
    replyTimeout.setInterval(replyTimeoutMilliseconds);
    connect(&replyTimeout, &QTimer::timeout, this, [this] { finish(KirvSecretStore::Silent); });
    searchTimeout.setSingleShot(true);
    searchTimeout.setInterval(replyTimeoutMilliseconds);
    connect(&searchTimeout, &QTimer::timeout, this, [this] { endSearch(KirvSecretStore::Failed); });
    qDBusRegisterMetaType<Attributes>();
}

KirvKeyringWatcher::~KirvKeyringWatcher()
{
    if (!connecting) // to a bus that has not answered Qt was never connected
        return;
    connecting->wait();
    // A call must not outlast its connection.
    qDeleteAll(findChildren<QDBusPendingCallWatcher *>(QString(), Qt::FindDirectChildrenOnly));
    QDBusConnection::disconnectFromBus(connectionName);
}

void KirvKeyringWatcher::start()
{
    probe = std::make_unique<KirvBusProbe>();
    connect(probe.get(), &KirvBusProbe::answered, this, &KirvKeyringWatcher::connectToBus);
    connect(probe.get(), &KirvBusProbe::refused, this, [this] { finish(KirvSecretStore::Unavailable); });
    switch (probe->start(KirvBusProbe::sessionAddress())) {
    case KirvBusProbe::NoBus:
        current = KirvSecretStore::Unavailable;
        break;
    case KirvBusProbe::Awaited:
        replyTimeout.start();
        break;
    case KirvBusProbe::NotProbed:
        replyTimeout.start();
        connectToBus();
        break;
    }
}

/// Also a bus that answers makes Qt wait for it.
void KirvKeyringWatcher::connectToBus()
{
    connecting.reset(
        QThread::create([name = connectionName] { QDBusConnection::connectToBus(QDBusConnection::SessionBus, name); }));
    connect(connecting.get(), &QThread::finished, this, &KirvKeyringWatcher::connected);
    connecting->start();
}

void KirvKeyringWatcher::connected()
{
    QDBusConnection bus(connectionName);
    if (!bus.isConnected()) {
        finish(KirvSecretStore::Unavailable);
        return;
    }
    bus.connect(QString(), localPath, localInterface, QStringLiteral("Disconnected"), this, SLOT(busEnded()));
    // No service: for a name the connection would ask the bus who owns it, and wait.
    bus.connect(QString(), busPath, busName, QStringLiteral("NameOwnerChanged"), { serviceName }, QString(), this,
                SLOT(onNameOwnerChanged(QString, QString, QString, QDBusMessage)));
    requestOwner();
}

void KirvKeyringWatcher::call(const QDBusMessage &message, const Handler &handler)
{
    callWhile(round, message, handler);
}

/// Sends \a message and calls \a handler with its reply, however late, unless \a number is another one then.
void KirvKeyringWatcher::callWhile(const quint64 &number, const QDBusMessage &message, const Handler &handler)
{
    const QDBusPendingCall pending = QDBusConnection(connectionName).asyncCall(message, INT_MAX);
    auto *watcher = new QDBusPendingCallWatcher(pending, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [handler, &number, sentIn = number](auto *finished) {
        finished->deleteLater();
        if (sentIn == number)
            handler(finished->reply());
    });
}

void KirvKeyringWatcher::requestOwner()
{
    ++round;
    replyTimeout.start();
    QDBusMessage message = QDBusMessage::createMethodCall(busName, busPath, busName, QStringLiteral("GetNameOwner"));
    message.setArguments({ serviceName });
    call(message, [this](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            setOwner(reply.arguments().value(0).toString());
        else if (!std::exchange(isStartRequested, true))
            startService();
        else
            setOwner(QString());
    });
}

/// As other programs that use it do: it may be installed, but not started by the desktop.
void KirvKeyringWatcher::startService()
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(busName, busPath, busName, QStringLiteral("StartServiceByName"));
    message.setArguments({ serviceName, 0U });
    call(message, [this](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            requestOwner();
        else
            setOwner(QString());
    });
}

/// Whatever is on the bus can emit a signal of this name.
void KirvKeyringWatcher::onNameOwnerChanged(const QString &name, const QString &, const QString &newOwner,
                                            const QDBusMessage &message)
{
    if (name == serviceName && message.service() == busName)
        setOwner(newOwner);
}

void KirvKeyringWatcher::setOwner(const QString &newOwner)
{
    const bool isOther = newOwner != owner;
    if (isOther) {
        follow(false);
        owner = newOwner;
        provider.clear();
        follow(true);
        Q_EMIT replaced();
    }
    ++round;
    if (owner.isEmpty()) {
        finish(KirvSecretStore::Unavailable);
        return;
    }
    replyTimeout.start();
    requestProvider();
    if (isOther)
        set(KirvSecretStore::Unknown);
}

/// Connects or disconnects the signals of the service that may mean another state.
void KirvKeyringWatcher::follow(bool on)
{
    if (owner.isEmpty())
        return;
    const QList<QPair<QString, QString>> signalsOfInterest {
        { propertiesInterface, QStringLiteral("PropertiesChanged") },
        { QLatin1String(serviceInterface), QStringLiteral("CollectionChanged") },
        { QLatin1String(serviceInterface), QStringLiteral("CollectionCreated") },
        { QLatin1String(serviceInterface), QStringLiteral("CollectionDeleted") },
    };
    QDBusConnection bus(connectionName);
    for (const auto &signal : signalsOfInterest) {
        // The unique name: for any other the connection would ask the bus who owns it, and wait.
        if (on)
            bus.connect(owner, QString(), signal.first, signal.second, this, SLOT(refresh()));
        else
            bus.disconnect(owner, QString(), signal.first, signal.second, this, SLOT(refresh()));
    }
}

/// The service has shown its \a state, says nothing, or is gone.
void KirvKeyringWatcher::finish(KirvSecretStore::State state)
{
    const QPointer<KirvKeyringWatcher> alive(this);
    replyTimeout.stop();
    set(state);
    if (alive)
        Q_EMIT refreshed();
}

void KirvKeyringWatcher::requestProvider()
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(busName, busPath, busName, QStringLiteral("GetConnectionUnixProcessID"));
    message.setArguments({ owner });
    call(message, [this](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            provider = nameOfProgram(reply.arguments().value(0).toUInt());
        requestDefaultCollection();
    });
}

QDBusMessage KirvKeyringWatcher::callToOwner(const QString &path, const char *interface, const char *method) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(owner, path, QLatin1String(interface), QLatin1String(method));
    message.setAutoStartService(false);
    return message;
}

void KirvKeyringWatcher::requestDefaultCollection()
{
    QDBusMessage message = callToOwner(servicePath, serviceInterface, "ReadAlias");
    message.setArguments({ QStringLiteral("default") });
    call(message, [this](const QDBusMessage &reply) {
        const QString path = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (reply.type() == QDBusMessage::ReplyMessage && path.size() > 1) {
            requestLockState(path);
            return;
        }
        // Where there is no collection, writing would ask the user to make one.
        finish(KirvSecretStore::Unavailable);
    });
}

void KirvKeyringWatcher::requestLockState(const QString &collection)
{
    QDBusMessage message = callToOwner(collection, "org.freedesktop.DBus.Properties", "Get");
    message.setArguments({ QStringLiteral("org.freedesktop.Secret.Collection"), QStringLiteral("Locked") });
    call(message, [this](const QDBusMessage &reply) {
        const QVariant locked = reply.arguments().value(0).value<QDBusVariant>().variant();
        if (reply.type() != QDBusMessage::ReplyMessage || !locked.isValid())
            finish(KirvSecretStore::Unavailable);
        else
            finish(locked.toBool() ? KirvSecretStore::Locked : KirvSecretStore::Ready);
    });
}

void KirvKeyringWatcher::busEnded()
{
    setOwner(QString());
}

void KirvKeyringWatcher::search(const QString &key)
{
    cancelSearch(); // the one before
    searchTimeout.start();
    QDBusMessage message = callToOwner(servicePath, serviceInterface, "SearchItems");
    message.setArguments({ QVariant::fromValue(Attributes { { keyAttribute, key } }) });
    callWhile(searches, message, [this](const QDBusMessage &reply) {
        const auto count = [&reply](int index) {
            return qdbus_cast<QList<QDBusObjectPath>>(reply.arguments().value(index)).size();
        };
        if (reply.type() != QDBusMessage::ReplyMessage)
            endSearch(KirvSecretStore::Failed);
        else if (count(0) > 0) // unlocked ones
            endSearch(KirvSecretStore::Done);
        else
            endSearch(count(1) > 0 ? KirvSecretStore::Refused : KirvSecretStore::Missing);
    });
}

void KirvKeyringWatcher::cancelSearch()
{
    ++searches;
    searchTimeout.stop();
}

void KirvKeyringWatcher::endSearch(KirvSecretStore::Outcome outcome)
{
    cancelSearch();
    Q_EMIT searchEnded(outcome);
}

void KirvKeyringWatcher::refresh()
{
    if (owner.isEmpty()) {
        QMetaObject::invokeMethod(this, &KirvKeyringWatcher::refreshed, Qt::QueuedConnection);
        return;
    }
    ++round;
    if (current != KirvSecretStore::Silent)
        replyTimeout.start();
    requestDefaultCollection();
    if (current == KirvSecretStore::Silent) // until it replies
        QMetaObject::invokeMethod(this, &KirvKeyringWatcher::refreshed, Qt::QueuedConnection);
}

void KirvKeyringWatcher::set(KirvSecretStore::State state)
{
    if (state == current)
        return;
    current = state;
    if (state == KirvSecretStore::Locked)
        lockedRefresh.start();
    else
        lockedRefresh.stop();
    Q_EMIT changed();
}

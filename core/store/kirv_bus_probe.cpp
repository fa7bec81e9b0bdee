// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_bus_probe.h"

#include <QFileInfo>
#include <QList>
#include <QMap>
#include <QSocketNotifier>
#include <QtEndian>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace {

void pad(QByteArray &bytes, int alignment)
{
    while (bytes.size() % alignment != 0)
        bytes.append('\0');
}

void append(QByteArray &bytes, quint32 number)
{
    char buffer[sizeof number];
    qToLittleEndian(number, buffer);
    bytes.append(buffer, sizeof buffer);
}

void appendField(QByteArray &fields, char code, char type, const QByteArray &value)
{
    pad(fields, 8);
    fields.append(code).append('\1').append(type).append('\0');
    append(fields, quint32(value.size()));
    fields.append(value).append('\0');
}

/// The call that every connection to a bus begins with.
QByteArray helloMessage()
{
    QByteArray fields;
    appendField(fields, 1, 'o', "/org/freedesktop/DBus");
    appendField(fields, 2, 's', "org.freedesktop.DBus");
    appendField(fields, 3, 's', "Hello");
    appendField(fields, 6, 's', "org.freedesktop.DBus");
    QByteArray message("l\1\0\1", 4); // little-endian, a call, no flags, version 1
    append(message, 0); // length of the body
    append(message, 1); // serial number
    append(message, quint32(fields.size()));
    message.append(fields);
    pad(message, 8);
    return message;
}

/// The keys and values of one address, without its transport.
QMap<QByteArray, QByteArray> valuesOf(const QByteArray &address)
{
    QMap<QByteArray, QByteArray> values;
    const QList<QByteArray> pairs = address.mid(address.indexOf(':') + 1).split(',');
    for (const QByteArray &pair : pairs) {
        const int equals = int(pair.indexOf('='));
        if (equals > 0)
            values.insert(pair.left(equals), QByteArray::fromPercentEncoding(pair.mid(equals + 1)));
    }
    return values;
}

QByteArray userBus()
{
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QByteArray() : folder + "/bus";
}

} // namespace

KirvBusProbe::KirvBusProbe(QObject *parent)
    : QObject(parent)
{
    nextTry.setInterval(1000);
    connect(&nextTry, &QTimer::timeout, this, [this] {
        const Finding finding = retry();
        if (finding == NoBus)
            finish(false);
    });
}

KirvBusProbe::~KirvBusProbe()
{
    notifier.reset();
    if (handle >= 0)
        ::close(handle);
}

QByteArray KirvBusProbe::sessionAddress()
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty())
        return address;
    const QByteArray path = userBus();
    // Without the usual socket, connecting would start a bus.
    return path.isEmpty() || !QFileInfo::exists(QFile::decodeName(path)) ? QByteArray()
                                                                         : "unix:path=" + path.toPercentEncoding("/");
}

KirvBusProbe::Finding KirvBusProbe::start(const QByteArray &addresses)
{
    const QList<QByteArray> candidates = addresses.split(';');
    for (const QByteArray &candidate : candidates) {
        const int colon = int(candidate.indexOf(':'));
        if (colon <= 0)
            continue;
        const QMap<QByteArray, QByteArray> values = valuesOf(candidate);
        Finding finding = NotProbed;
        if (candidate.left(colon) != "unix")
            finding = NotProbed;
        else if (values.contains("path"))
            finding = connectTo(values.value("path"), false);
        else if (values.contains("abstract"))
            finding = connectTo(values.value("abstract"), true);
        else if (values.value("runtime") == "yes")
            finding = connectTo(userBus(), false);
        if (finding != NoBus)
            return finding;
    }
    return NoBus;
}

KirvBusProbe::Finding KirvBusProbe::connectTo(const QByteArray &path, bool isAbstract)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    const int start = isAbstract ? 1 : 0;
    if (path.isEmpty() || size_t(path.size()) + size_t(start) >= sizeof address.sun_path)
        return NoBus;
    std::memcpy(address.sun_path + start, path.constData(), size_t(path.size()));
    const size_t length = offsetof(sockaddr_un, sun_path) + size_t(start + path.size() + (isAbstract ? 0 : 1));
    unaccepted = QByteArray(reinterpret_cast<const char *>(&address), int(length));
    const Finding finding = retry();
    if (finding == Awaited && handle < 0)
        nextTry.start();
    return finding;
}

/// Connects to the address that is noted.
KirvBusProbe::Finding KirvBusProbe::retry()
{
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return NoBus;
    if (::connect(descriptor, reinterpret_cast<const sockaddr *>(unaccepted.constData()), socklen_t(unaccepted.size()))
        != 0) {
        const bool isBusy = errno == EAGAIN;
        ::close(descriptor);
        return isBusy ? Awaited : NoBus;
    }
    nextTry.stop();
    handle = descriptor;
    notifier = std::make_unique<QSocketNotifier>(handle, QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, &KirvBusProbe::readSocket);
    const QByteArray user = QByteArray::number(quint64(::geteuid())).toHex();
    send(QByteArray(1, '\0') + "AUTH EXTERNAL " + user + "\r\n");
    return Awaited;
}

void KirvBusProbe::readSocket()
{
    char buffer[4096];
    const ssize_t count = ::recv(handle, buffer, sizeof buffer, 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0) {
        finish(false);
        return;
    }
    if (step == Hello) {
        finish(true);
        return;
    }
    received.append(buffer, int(count));
    if (!received.contains('\n') && received.size() < int(sizeof buffer))
        return;
    if (!received.startsWith("OK")) { // it answers, and wants another kind of log-in
        finish(true);
        return;
    }
    step = Hello;
    send("BEGIN\r\n" + helloMessage());
}

/// A new connection takes as little as this at once.
void KirvBusProbe::send(const QByteArray &bytes)
{
    if (::send(handle, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL) != ssize_t(bytes.size()))
        QMetaObject::invokeMethod(
            this, [this] { finish(false); }, Qt::QueuedConnection);
}

void KirvBusProbe::finish(bool hasAnswered)
{
    nextTry.stop();
    if (notifier) {
        notifier->setEnabled(false);
        notifier.release()->deleteLater(); // it may be what calls this
    }
    if (handle >= 0)
        ::close(std::exchange(handle, -1));
    if (hasAnswered)
        Q_EMIT answered();
    else
        Q_EMIT refused();
}

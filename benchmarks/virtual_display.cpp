// SPDX-License-Identifier: LGPL-2.1-or-later
#include "benchmarks/virtual_display.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

const qint64 patience = 10LL * 1000 * 1000 * 1000; // nanoseconds
const int pauseBetweenLooks = 200; // microseconds
const uint16_t stripWidth = 24; // wider than the stroke of a letter

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};
template <class Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

/// Waits for a line that the server writes when it is ready.
QByteArray numberOfDisplay(QProcess &server)
{
    while (!server.canReadLine()) {
        if (!server.waitForReadyRead(10000))
            qFatal("Xvfb was not started: %s", qPrintable(server.errorString()));
    }
    return server.readLine().trimmed();
}

} // namespace

VirtualDisplay::VirtualDisplay()
{
    server.start(QStringLiteral("Xvfb"),
                 { QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                   QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                   QStringLiteral("-noreset") });
    displayName = ':' + numberOfDisplay(server);
    connection = xcb_connect(displayName.constData(), nullptr);
    if (xcb_connection_has_error(connection))
        qFatal("There is no connection to the display %s", displayName.constData());
    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    xcb_change_window_attributes(connection, screen->root, XCB_CW_EVENT_MASK, &events);
    const char atom[] = "_NET_WM_PID";
    const ReplyPointer<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, uint16_t(std::strlen(atom)), atom), nullptr));
    processAtom = reply ? reply->atom : 0;
}

VirtualDisplay::~VirtualDisplay()
{
    xcb_disconnect(connection);
    server.terminate();
    server.waitForFinished();
}

qint64 VirtualDisplay::now()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

qint64 VirtualDisplay::timeOfFirstWindow(pid_t process)
{
    const qint64 end = now() + patience;
    while (now() < end) {
        pollfd ready { xcb_get_file_descriptor(connection), POLLIN, 0 };
        poll(&ready, 1, 100);
        const qint64 time = now();
        while (const ReplyPointer<xcb_generic_event_t> event { xcb_poll_for_event(connection) }) {
            if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY)
                continue;
            window = reinterpret_cast<const xcb_map_notify_event_t *>(event.get())->window;
            if (isOf(window, process))
                return time;
        }
    }
    return -1;
}

bool VirtualDisplay::isOf(unsigned int mapped, pid_t process)
{
    const ReplyPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, mapped, processAtom, XCB_ATOM_CARDINAL, 0, 1), nullptr));
    uint32_t owner = 0;
    if (reply && xcb_get_property_value_length(reply.get()) == int(sizeof owner))
        std::memcpy(&owner, xcb_get_property_value(reply.get()), sizeof owner);
    return pid_t(owner) == process;
}

qint64 VirtualDisplay::timeOfFirstPainting()
{
    for (const qint64 end = now() + patience; now() < end; usleep(pauseBetweenLooks)) {
        if (isPainted())
            return now();
    }
    return -1;
}

bool VirtualDisplay::isPainted()
{
    const ReplyPointer<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!size || size->width < stripWidth)
        return false;
    const ReplyPointer<xcb_get_image_reply_t> strip(
        xcb_get_image_reply(connection,
                            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, int16_t(size->width / 2),
                                          int16_t(size->height / 2), stripWidth, 1, ~0U),
                            nullptr));
    if (!strip)
        return false;
    const uint8_t *bytes = xcb_get_image_data(strip.get());
    return std::any_of(bytes, bytes + xcb_get_image_data_length(strip.get()), [](uint8_t byte) { return byte != 0; });
}

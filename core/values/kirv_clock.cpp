// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_clock.h"

#include <QTimer>

namespace {

class SystemClock : public KirvClock {
public:
    QDateTime now() const override { return QDateTime::currentDateTimeUtc(); }
    void callLater(int milliseconds, QObject *context, std::function<void()> callback) override
    {
        QTimer::singleShot(milliseconds, context, std::move(callback));
    }
};

} // namespace

KirvClock &KirvClock::system()
{
    static SystemClock clock;
    return clock;
}

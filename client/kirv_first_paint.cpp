// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_first_paint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace {

const int patience = 500;

/// Owned by the window; deletes itself with the call.
class FirstPaint : public QObject {
public:
    FirstPaint(QWidget *window, std::function<void()> call)
        : QObject(window)
        , call(std::move(call))
    {
        window->installEventFilter(this);
        timer.setSingleShot(true);
        timer.start(patience);
        connect(&timer, &QTimer::timeout, this, [this] {
            this->call();
            deleteLater();
        });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            timer.start(0);
        }
        return false;
    }

private:
    const std::function<void()> call;
    QTimer timer;
};

} // namespace

void kirvAfterFirstPaint(QWidget *window, const std::function<void()> &call)
{
    new FirstPaint(window, call);
}

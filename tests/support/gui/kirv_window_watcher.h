// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WINDOW_WATCHER_H
#define KIRV_WINDOW_WATCHER_H

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <functional>

/// Runs an action each time a window of a class is shown, from the event loop, so that a test can answer windows that
/// block. It lives as long as the test wants to answer them.
template <typename Window>
class KirvWindowWatcher : public QObject {
public:
    explicit KirvWindowWatcher(const std::function<void(Window *)> &action)
        : action(action)
    {
        qApp->installEventFilter(this);
    }

    /// How many windows were shown.
    int shown = 0;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *window = event->type() == QEvent::Show ? qobject_cast<Window *>(object) : nullptr;
        if (window && window->isWindow() && !event->spontaneous()) {
            ++shown;
            QTimer::singleShot(0, window, [this, window] { action(window); });
        }
        return false;
    }

private:
    std::function<void(Window *)> action;
};

#endif

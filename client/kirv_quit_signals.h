// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_QUIT_SIGNALS_H
#define KIRV_QUIT_SIGNALS_H

#include <QObject>

class QSocketNotifier;

/// Turns SIGINT, SIGTERM and SIGHUP into an orderly end of the program. One per process.
class KirvQuitSignals : public QObject {
    Q_OBJECT

public:
    explicit KirvQuitSignals(QObject *parent = nullptr);
    ~KirvQuitSignals() override;

Q_SIGNALS:
    /// One of the signals came. Emitted from the event loop.
    void quitRequested();

private:
    QSocketNotifier *notifier = nullptr;
};

#endif

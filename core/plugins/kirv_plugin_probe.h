// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_PROBE_H
#define KIRV_PLUGIN_PROBE_H

#include "core/plugins/kirv_plugin_record.h"

#include <QObject>
#include <QProcess>
#include <QTimer>

/// Tests one plug-in after the other: the program kirv_plugin_tester loads it, in a process of its own that is stopped
/// when it takes too long. Nothing here waits for it.
class KirvPluginProbe : public QObject {
    Q_OBJECT

public:
    explicit KirvPluginProbe(QObject *parent = nullptr);
    /// Stops the test that is running.
    ~KirvPluginProbe() override;

    /// How long a plug-in may take; ten seconds at first.
    void setTimeLimit(int milliseconds) { limit.setInterval(milliseconds); }
    int timeLimit() const { return limit.interval(); }

    /// Tests the plug-in \a fileName; finished() follows, from the event loop. One at a time.
    void start(const QString &fileName);

Q_SIGNALS:
    /// Unknown: there was no test, because the testing program is missing or does not work here.
    void finished(KirvPluginRecord::Verdict verdict);

private:
    void read();
    void stop();
    void report();

    QProcess process;
    QTimer limit;
    QByteArray reply;
    bool isLate = false;
};

#endif

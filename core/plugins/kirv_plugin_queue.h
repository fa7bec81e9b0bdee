// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_QUEUE_H
#define KIRV_PLUGIN_QUEUE_H

#include "core/plugins/kirv_plugin_loader.h"
#include "core/plugins/kirv_plugin_probe.h"
#include "core/plugins/kirv_plugin_record.h"

#include <QStringList>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <functional>

/// Loads plug-ins from the event loop, one by one, so that none of them can keep the program from starting.
///
/// A file that is not known from an earlier start is tested by another process first; the known ones do not wait for
/// that. A plug-in that did harm, to that process or to an earlier start of this one, is left out until the file
/// changes or load() is called for it. What happens to each file is shown in KirvPluginLoader::plugins().
class KirvPluginQueue : public QObject {
    Q_OBJECT

public:
    /// \a loader is not owned and outlives the queue. What is known of the plug-ins is kept in \a recordFile, which
    /// only one queue may use at a time; empty: it is forgotten at the end.
    KirvPluginQueue(KirvPluginLoader &loader, const QString &recordFile, QObject *parent = nullptr);
    ~KirvPluginQueue() override;

    /// How long the test of a plug-in may take; ten seconds at first.
    void setTimeLimit(int milliseconds) { probe.setTimeLimit(milliseconds); }

    /// Loads every plug-in of \a folder that was not seen before. False when there is no such folder.
    bool loadFolder(const QString &folder);
    /// Loads the plug-in \a fileName, also when it was left out: it is tested anew then.
    void load(const QString &fileName);

    /// Whether a plug-in waits, is tested or is being loaded.
    bool isBusy() const { return stage != Idle; }

Q_SIGNALS:
    /// A plug-in is left out that the user may have used before; \a text says which and why.
    void problemOccurred(const QString &text);
    /// Every plug-in is loaded or left out.
    void finished();

private:
    enum Stage { Idle, Scheduled, Reading, Testing, Loading };

    void enter(const QString &fileName, bool first);
    void schedule(Stage next);
    void step();
    void read(const QString &fileName);
    void applyRecord(const KirvPluginFingerprint &plugin);
    void test(const KirvPluginFingerprint &plugin);
    void take(KirvPluginRecord::Verdict verdict);
    void prepareLoading(const KirvPluginFingerprint &plugin);
    void leaveOut(const KirvPluginFingerprint &plugin, KirvPluginRecord::Verdict verdict);
    QString reason(KirvPluginRecord::Verdict verdict) const;

    KirvPluginLoader &loader;
    KirvPluginRecord record;
    KirvPluginProbe probe;
    QStringList unread;
    QList<KirvPluginFingerprint> untested;
    QStringList requested; ///< by load(): an old verdict against them does not count
    KirvPluginFingerprint current; ///< what is tested or being loaded
    Stage stage = Idle;
    QTimer turn;
    QThreadPool reader; ///< one thread that reads files
    std::atomic<bool> isLeaving { false };
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_queue.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRunnable>

#include <utility>

namespace {

/// Reads the whole file, which may take long; \a stop ends that. Null when it cannot be read.
KirvPluginFingerprint fingerprint(const QString &fileName, const std::atomic<bool> &stop)
{
    const QFileInfo info(fileName);
    KirvPluginFingerprint plugin;
    plugin.file = fileName;
    plugin.size = info.size();
    plugin.changed = info.lastModified().toMSecsSinceEpoch();
    QFile file(fileName);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return plugin;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    while (!file.atEnd()) {
        const QByteArray part = file.read(256 * 1024);
        if (part.isEmpty() || stop)
            return plugin;
        hash.addData(part);
    }
    plugin.hash = hash.result();
    return plugin;
}

class ReadingTask : public QRunnable {
public:
    explicit ReadingTask(std::function<void()> work)
        : work(std::move(work))
    {
    }
    void run() override { work(); }

private:
    const std::function<void()> work;
};

} // namespace

KirvPluginQueue::KirvPluginQueue(KirvPluginLoader &loader, const QString &recordFile, QObject *parent)
    : QObject(parent)
    , loader(loader)
    , record(recordFile)
{
    reader.setMaxThreadCount(1);
    turn.setSingleShot(true);
    turn.setInterval(0);
    connect(&turn, &QTimer::timeout, this, &KirvPluginQueue::step);
    connect(&probe, &KirvPluginProbe::finished, this, &KirvPluginQueue::take);
}

KirvPluginQueue::~KirvPluginQueue()
{
    isLeaving = true;
    reader.waitForDone();
    if (record.isLoading())
        record.clearLoading();
}

bool KirvPluginQueue::loadFolder(const QString &folder)
{
    if (!QDir(folder).exists())
        return false;
    const QStringList files = KirvPluginLoader::filesOf(folder);
    for (const QString &file : files) {
        if (loader.plugin(file).fileName.isEmpty())
            enter(file, false);
    }
    if (stage == Idle)
        schedule(Scheduled);
    return true;
}

void KirvPluginQueue::load(const QString &fileName)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const KirvPluginInfo known = loader.plugin(path);
    if (known.loaded || known.activity != KirvPluginInfo::NoActivity)
        return;
    requested.append(path);
    enter(path, true);
}

void KirvPluginQueue::enter(const QString &fileName, bool first)
{
    loader.announce(fileName);
    loader.setActivity(fileName, KirvPluginInfo::Waiting);
    unread.insert(first ? 0 : int(unread.size()), fileName);
    if (stage == Idle)
        schedule(Scheduled);
}

/// Lets the event loop turn, so that the windows stay usable between two steps.
void KirvPluginQueue::schedule(Stage next)
{
    stage = next;
    turn.start();
}

void KirvPluginQueue::step()
{
    if (stage == Loading && !record.isLoading()) {
        record.setLoading(current);
        loader.load(current.file);
        schedule(Loading); // what it has put into the event loop belongs to its loading
        return;
    }
    if (record.isLoading())
        record.clearLoading();
    if (!unread.isEmpty()) {
        read(unread.takeFirst());
    } else if (!untested.isEmpty()) {
        test(untested.takeFirst());
    } else {
        stage = Idle;
        Q_EMIT finished();
    }
}

void KirvPluginQueue::read(const QString &fileName)
{
    if (!loader.inspect(fileName)) {
        requested.removeAll(fileName);
        schedule(Scheduled);
        return;
    }
    loader.setActivity(fileName, KirvPluginInfo::Waiting);
    stage = Reading;
    reader.start(new ReadingTask([this, fileName] {
        const KirvPluginFingerprint plugin = fingerprint(fileName, isLeaving);
        QMetaObject::invokeMethod(
            this, [this, plugin] { applyRecord(plugin); }, Qt::QueuedConnection);
    }));
}

void KirvPluginQueue::applyRecord(const KirvPluginFingerprint &plugin)
{
    if (plugin.isNull()) {
        leaveOut(plugin, KirvPluginRecord::Unknown);
        return;
    }
    KirvPluginRecord::Verdict verdict = record.verdict(plugin);
    if (requested.removeAll(plugin.file) > 0 && verdict != KirvPluginRecord::Survived)
        verdict = KirvPluginRecord::Unknown;
    if (verdict == KirvPluginRecord::Survived) {
        prepareLoading(plugin);
    } else if (verdict == KirvPluginRecord::Unknown) {
        untested.append(plugin);
        schedule(Scheduled);
    } else {
        leaveOut(plugin, verdict);
    }
}

void KirvPluginQueue::test(const KirvPluginFingerprint &plugin)
{
    stage = Testing;
    current = plugin;
    loader.setActivity(plugin.file, KirvPluginInfo::BeingTested);
    probe.start(plugin.file);
}

/// Without a test there is still the record: a plug-in that ends the program is left out at the next start.
void KirvPluginQueue::take(KirvPluginRecord::Verdict verdict)
{
    record.setVerdict(current, verdict);
    if (verdict == KirvPluginRecord::Survived || verdict == KirvPluginRecord::Unknown)
        prepareLoading(current);
    else
        leaveOut(current, verdict);
}

void KirvPluginQueue::prepareLoading(const KirvPluginFingerprint &plugin)
{
    current = plugin;
    loader.setActivity(plugin.file, KirvPluginInfo::BeingLoaded);
    schedule(Loading);
}

void KirvPluginQueue::leaveOut(const KirvPluginFingerprint &plugin, KirvPluginRecord::Verdict verdict)
{
    loader.leaveOut(plugin.file, reason(verdict));
    if (verdict == KirvPluginRecord::NotSurvived)
        //: %1 = name of a plug-in
        Q_EMIT problemOccurred(tr("The plug-in \"%1\" was left out, because the program ended when it was loaded the "
                                  "last time. It can be loaded on the page of the plug-ins.")
                                   .arg(loader.plugin(plugin.file).name));
    schedule(Scheduled);
}

QString KirvPluginQueue::reason(KirvPluginRecord::Verdict verdict) const
{
    switch (verdict) {
    case KirvPluginRecord::Crashed:
        return tr("The plug-in was left out, because it crashed when it was tested.");
    case KirvPluginRecord::Ended:
        return tr("The plug-in was left out, because it ended the process in which it was tested.");
    case KirvPluginRecord::TookTooLong:
        return tr("The plug-in was left out, because it was not ready within %1 s when it was tested.")
            .arg(probe.timeLimit() / 1000.0);
    case KirvPluginRecord::NotSurvived:
        return tr("The plug-in was left out, because the program ended when it was loaded the last time.");
    case KirvPluginRecord::Unknown:
    case KirvPluginRecord::Survived:
        break;
    }
    return tr("The file cannot be read.");
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_record.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

const int recordFormat = 1;
const qint64 maximumSize = 1024 * 1024;
const int maximumEntries = 200;

/// In the order of KirvPluginRecord::Verdict.
const char *const verdictNames[] = { "unknown", "survived", "crashed", "ended", "took too long", "not survived" };

/// What makes everything that is known worthless when it changes: the code that ran the plug-ins.
QJsonObject emptyRecord()
{
    return { { QStringLiteral("format"), recordFormat },
             { QStringLiteral("program"), QStringLiteral(KIRV_VERSION) },
             { QStringLiteral("qt"), QString::fromLatin1(qVersion()) } };
}

QJsonObject toJson(const KirvPluginFingerprint &plugin)
{
    return { { QStringLiteral("file"), plugin.file },
             { QStringLiteral("size"), double(plugin.size) },
             { QStringLiteral("changed"), double(plugin.changed) },
             { QStringLiteral("sha256"), QString::fromLatin1(plugin.hash.toHex()) } };
}

KirvPluginFingerprint fromJson(const QJsonObject &json)
{
    KirvPluginFingerprint plugin;
    plugin.file = json.value(QLatin1String("file")).toString();
    plugin.size = qint64(json.value(QLatin1String("size")).toDouble());
    plugin.changed = qint64(json.value(QLatin1String("changed")).toDouble());
    plugin.hash = QByteArray::fromHex(json.value(QLatin1String("sha256")).toString().toLatin1());
    return plugin;
}

KirvPluginRecord::Verdict verdictNamed(const QString &name)
{
    int verdict = KirvPluginRecord::NotSurvived;
    while (verdict > KirvPluginRecord::Unknown && name != QLatin1String(verdictNames[verdict]))
        --verdict;
    return KirvPluginRecord::Verdict(verdict);
}

} // namespace

bool KirvPluginFingerprint::operator==(const KirvPluginFingerprint &other) const
{
    return file == other.file && size == other.size && changed == other.changed && hash == other.hash;
}

KirvPluginRecord::KirvPluginRecord(const QString &path)
    : path(path)
{
    read();
    if (loading.isNull())
        return;
    enter(loading, NotSurvived);
    clearLoading();
}

KirvPluginRecord::Verdict KirvPluginRecord::verdict(const KirvPluginFingerprint &plugin) const
{
    for (const Entry &entry : entries) {
        if (entry.plugin == plugin)
            return entry.verdict;
    }
    return Unknown;
}

void KirvPluginRecord::setVerdict(const KirvPluginFingerprint &plugin, Verdict verdict)
{
    if (this->verdict(plugin) == verdict)
        return;
    enter(plugin, verdict);
    write();
}

void KirvPluginRecord::setLoading(const KirvPluginFingerprint &plugin)
{
    loading = plugin;
    write();
}

void KirvPluginRecord::clearLoading()
{
    loading = KirvPluginFingerprint();
    write();
}

void KirvPluginRecord::enter(const KirvPluginFingerprint &plugin, Verdict verdict)
{
    for (int i = int(entries.size()) - 1; i >= 0; --i) {
        if (entries.at(i).plugin.file == plugin.file)
            entries.removeAt(i);
    }
    if (verdict != Unknown && !plugin.isNull())
        entries.append({ plugin, verdict });
    while (entries.size() > maximumEntries)
        entries.removeFirst();
}

void KirvPluginRecord::read()
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > maximumSize || !file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject stored = QJsonDocument::fromJson(file.read(maximumSize)).object();
    const QJsonObject expected = emptyRecord();
    for (auto it = expected.begin(); it != expected.end(); ++it) {
        if (stored.value(it.key()) != it.value())
            return;
    }
    const QJsonArray plugins = stored.value(QLatin1String("plugins")).toArray();
    for (const QJsonValue &value : plugins) {
        const QJsonObject plugin = value.toObject();
        enter(fromJson(plugin), verdictNamed(plugin.value(QLatin1String("verdict")).toString()));
    }
    loading = fromJson(stored.value(QLatin1String("loading")).toObject());
}

/// False when it cannot be written; what is known then holds for this start only.
bool KirvPluginRecord::write() const
{
    if (path.isEmpty())
        return false;
    QJsonArray plugins;
    for (const Entry &entry : entries) {
        QJsonObject plugin = toJson(entry.plugin);
        plugin.insert(QStringLiteral("verdict"), QString::fromLatin1(verdictNames[entry.verdict]));
        plugins.append(plugin);
    }
    QJsonObject record = emptyRecord();
    record.insert(QStringLiteral("plugins"), plugins);
    if (!loading.isNull())
        record.insert(QStringLiteral("loading"), toJson(loading));

    QFile file(path + QStringLiteral(".new"));
    file.remove();
    const QByteArray bytes = QJsonDocument(record).toJson();
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
        && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) && file.write(bytes) == bytes.size()
        && file.flush();
    file.close();
    if (isWritten
        && std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0)
        return true;
    file.remove();
    return false;
}

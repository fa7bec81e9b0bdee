// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_RECORD_H
#define KIRV_PLUGIN_RECORD_H

#include <QByteArray>
#include <QList>
#include <QString>

/// Which file it was that something is known about: another one of the same name has another fingerprint. A value type.
struct KirvPluginFingerprint {
    QString file; ///< absolute path
    qint64 size = 0;
    qint64 changed = 0; ///< milliseconds since 1970
    QByteArray hash; ///< SHA-256 of its bytes; empty: unknown

    bool isNull() const { return hash.isEmpty(); }
    bool operator==(const KirvPluginFingerprint &other) const;
};

/// What is known about plug-in files from earlier starts, in a small JSON file: how they did when they were tested, and
/// which one was being loaded when a start ended. The file is replaced as a whole, so that it is never read in part;
/// one that is damaged, or of another version of the program or of Qt, counts as empty.
///
/// Only the end of the process matters here, not that of the machine: nothing is forced onto the disk.
class KirvPluginRecord {
public:
    enum Verdict {
        Unknown,
        Survived, ///< it did not harm the process that tested it
        Crashed, ///< that process crashed
        Ended, ///< it ended that process
        TookTooLong, ///< that process was stopped after its time
        NotSurvived, ///< the program itself ended while the plug-in was being loaded
    };

    /// Reads the file \a path; empty: nothing is remembered. A plug-in that was being loaded when the last start ended
    /// gets the verdict NotSurvived.
    explicit KirvPluginRecord(const QString &path);

    /// Of exactly this file.
    Verdict verdict(const KirvPluginFingerprint &plugin) const;
    /// Replaces what is known about the file of that path. Unknown forgets it.
    void setVerdict(const KirvPluginFingerprint &plugin, Verdict verdict);

    /// From here on, a process that ends has been ended by this plug-in.
    void setLoading(const KirvPluginFingerprint &plugin);
    void clearLoading();
    bool isLoading() const { return !loading.isNull(); }

private:
    struct Entry {
        KirvPluginFingerprint plugin;
        Verdict verdict = Unknown;
    };

    void read();
    bool write() const;
    void enter(const KirvPluginFingerprint &plugin, Verdict verdict);

    const QString path;
    QList<Entry> entries; ///< the oldest first
    KirvPluginFingerprint loading;
};

#endif

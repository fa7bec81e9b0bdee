// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_database_header.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

// The offsets are those of https://www.sqlite.org/fileformat2.html.

namespace {

const int headerSize = 100;

quint32 numberAt(const QByteArray &bytes, int offset)
{
    return bytes.size() >= offset + 4 ? qFromBigEndian<quint32>(bytes.constData() + offset) : 0;
}

bool isPageSize(quint32 size)
{
    return size >= 512 && size <= 65536 && (size & (size - 1)) == 0;
}

/// The start of page 1 as the rollback journal \a path has kept it; empty when it has not.
QByteArray firstPageInJournal(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray header = file.read(28);
    const quint32 sector = numberAt(header, 20), pageSize = numberAt(header, 24);
    if (!header.startsWith(QByteArray::fromHex("d9d505f920a163d7")) || !isPageSize(pageSize) || sector < 28
        || sector > 65536)
        return QByteArray();
    const qint64 record = 4 + qint64(pageSize) + 4;
    for (qint64 offset = sector; offset + record <= file.size() && file.seek(offset); offset += record) {
        const quint32 page = numberAt(file.read(4), 0);
        if (page == 1)
            return file.read(headerSize);
        if (page == 0)
            break;
    }
    return QByteArray();
}

/// The start of page 1 as it was written last to the log \a path; empty when it was not.
QByteArray firstPageInLog(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray header = file.read(32);
    const quint32 pageSize = numberAt(header, 8);
    if ((numberAt(header, 0) & ~1u) != 0x377f0682 || !isPageSize(pageSize))
        return QByteArray();
    QByteArray found;
    const qint64 frame = 24 + qint64(pageSize);
    for (qint64 offset = 32; offset + frame <= file.size() && file.seek(offset); offset += frame) {
        const QByteArray frameHeader = file.read(24);
        if (frameHeader.mid(8, 8) != header.mid(16, 8)) // of an older log
            break;
        if (numberAt(frameHeader, 0) == 1)
            found = file.read(headerSize);
    }
    return found;
}

}

KirvDatabaseHeader KirvDatabaseHeader::ofFile(const QString &path)
{
    QByteArray bytes = firstPageInJournal(path + QLatin1String("-journal"));
    if (bytes.isEmpty())
        bytes = firstPageInLog(path + QLatin1String("-wal"));
    if (bytes.isEmpty()) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            bytes = file.read(headerSize);
    }
    KirvDatabaseHeader header;
    header.isDatabase = bytes.size() == headerSize && bytes.startsWith(QByteArray("SQLite format 3", 16));
    if (header.isDatabase) {
        const int size = int(numberAt(bytes, 16) >> 16);
        header.pageSize = size == 1 ? 65536 : size;
        header.version = qint32(numberAt(bytes, 60));
        header.applicationId = numberAt(bytes, 68);
    }
    return header;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DATABASE_HEADER_H
#define KIRV_DATABASE_HEADER_H

#include <QString>
#include <QtGlobal>

/// What the first bytes of an SQLite file say about it, read without SQLite, which might change the file. Private to
/// the store.
///
/// A journal or log beside the file is taken into account: the bytes are those that the file has after recovery, or
/// will have when a transaction that was not completed is.
struct KirvDatabaseHeader {
    bool isDatabase = false;
    quint32 applicationId = 0;
    qint32 version = 0; ///< the user version
    int pageSize = 0; ///< in bytes

    static KirvDatabaseHeader ofFile(const QString &path);
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FILE_IDENTITY_H
#define KIRV_FILE_IDENTITY_H

#include <QFile>
#include <QString>
#include <sys/stat.h>

/// What tells a file from every other one, whatever its name. A value type; private to the store.
struct KirvFileIdentity {
    dev_t device = 0;
    ino_t number = 0;

    static KirvFileIdentity of(const QString &path)
    {
        struct stat status { };
        if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
            return {};
        return { status.st_dev, status.st_ino };
    }
    bool operator==(const KirvFileIdentity &other) const { return device == other.device && number == other.number; }
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_private_file.h"

#include <QFile>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool sync(const QString &path, int flags)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | flags);
    if (descriptor < 0)
        return false;
    const bool synced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return synced;
}

}

bool kirvMakePrivate(const QString &path)
{
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QFile::Permissions current = QFile::permissions(path);
    if (!(current & others))
        return true;
    const QFile::Permissions owners = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    return QFile::setPermissions(path, current & owners);
}

bool kirvMakePrivateFolder(const QString &path)
{
    return ::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0;
}

bool kirvMakePrivateFile(const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return descriptor >= 0 && ::close(descriptor) == 0;
}

bool kirvReplaceFile(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool kirvLinkFile(const QString &name, const QString &second)
{
    return ::link(QFile::encodeName(name).constData(), QFile::encodeName(second).constData()) == 0
        || (QFile::copy(name, second) && kirvMakePrivate(second) && kirvSyncFile(second));
}

bool kirvSyncFile(const QString &path)
{
    return sync(path, O_NOFOLLOW);
}

bool kirvSyncFolder(const QString &folder)
{
    return sync(folder, O_DIRECTORY);
}

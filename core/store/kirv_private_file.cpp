// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_private_file.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

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

bool kirvSyncFolder(const QString &folder)
{
#ifdef Q_OS_UNIX
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool synced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return synced;
#else
    Q_UNUSED(folder)
    return true;
#endif
}

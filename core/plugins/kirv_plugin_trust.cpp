// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_trust.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

#ifdef Q_OS_UNIX

namespace {

/// An access control list can grant the group's permissions to others, which the mode does not show.
bool hasAccessControlList(const QByteArray &path)
{
#ifdef Q_OS_LINUX
    return ::getxattr(path.constData(), "system.posix_acl_access", nullptr, 0) > 0;
#else
    Q_UNUSED(path)
    return false;
#endif
}

} // namespace

KirvPluginTrust::KirvPluginTrust()
    : KirvPluginTrust(::geteuid())
{
}

KirvPluginTrust::KirvPluginTrust(unsigned user)
    : user(user)
{
}

QString KirvPluginTrust::refusalReason(const QString &path) const
{
    const QString file = QFileInfo(path).canonicalFilePath();
    if (file.isEmpty())
        return tr("The file cannot be examined.");
    // A link can be replaced by whoever may write to the folder in which it lies.
    QStringList entries { file, QFileInfo(file).path(), QFileInfo(QFileInfo(path).path()).canonicalFilePath() };
    entries.removeDuplicates();
    for (const QString &entry : qAsConst(entries)) {
        const QString reason = entryRefusalReason(entry);
        if (!reason.isEmpty())
            return reason;
    }
    return QString();
}

QString KirvPluginTrust::entryRefusalReason(const QString &path) const
{
    const QByteArray encoded = QFile::encodeName(path);
    const QString shown = QDir::toNativeSeparators(path);
    struct stat state { };
    if (::stat(encoded.constData(), &state) != 0)
        return tr("The file cannot be examined.");
    if (state.st_uid != 0 && state.st_uid != user)
        //: %1 = path of a file or folder
        return tr("The plug-in is not trusted: %1 belongs to another user.").arg(shown);
    const bool groupMay = (state.st_mode & S_IWGRP) && (!isPrivateGroup(state.st_gid) || hasAccessControlList(encoded));
    if (groupMay || (state.st_mode & S_IWOTH))
        //: %1 = path of a file or folder
        return tr("The plug-in is not trusted: others than you may write to %1.").arg(shown);
    return QString();
}

bool KirvPluginTrust::isPrivateGroup(unsigned group) const
{
    const struct passwd *account = ::getpwuid(user);
    if (!account || account->pw_gid != group)
        return false;
    const QByteArray userName = account->pw_name;
    const struct group *entry = ::getgrgid(group);
    if (!entry || userName != entry->gr_name)
        return false;
    for (char **member = entry->gr_mem; member && *member; ++member) {
        if (userName != *member)
            return false;
    }
    return true;
}

#else

KirvPluginTrust::KirvPluginTrust()
    : KirvPluginTrust(0)
{
}

KirvPluginTrust::KirvPluginTrust(unsigned user)
    : user(user)
{
}

QString KirvPluginTrust::refusalReason(const QString &) const
{
    return QString();
}

#endif

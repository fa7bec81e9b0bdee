// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_command_file.h"

#include "core/store/kirv_private_file.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cstdio>
#include <sys/stat.h>

namespace {

bool writeAndSync(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    file.close();
    return isWritten && file.error() == QFile::NoError && kirvSyncFile(path);
}

} // namespace

KirvCommandFile::KirvCommandFile(const QString &path)
    : path(path)
{
}

bool KirvCommandFile::fail(const QString &problem)
{
    text = problem;
    return false;
}

bool KirvCommandFile::read(qint64 largest, QByteArray *bytes)
{
    QFile file(path);
    const bool isOpen = isStandard() ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        //: %1 = path of a file, %2 = what the system says
        return fail(tr("The file \"%1\" cannot be read: %2").arg(path, file.errorString()));
    }
    for (;;) { // a pipe gives a part at a time
        const QByteArray part = file.read(largest + 1 - bytes->size());
        *bytes += part;
        if (part.isEmpty() || bytes->size() > largest)
            break;
    }
    if (file.error() != QFile::NoError)
        return fail(tr("The file \"%1\" cannot be read: %2").arg(path, file.errorString()));
    if (bytes->size() > largest)
        return fail(tr("The file \"%1\" is too large to be a file of exported accounts.").arg(path));
    return true;
}

bool KirvCommandFile::mayWrite(bool overwrites)
{
    struct stat status { };
    if (isStandard() || ::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return true;
    if (!S_ISREG(status.st_mode))
        return fail(tr("\"%1\" is not a file that can be overwritten.").arg(path));
    return overwrites ? true : fail(tr("The file \"%1\" exists already. Use --force to overwrite it.").arg(path));
}

bool KirvCommandFile::write(const QByteArray &bytes, bool overwrites)
{
    if (isStandard())
        return writeToOutput(bytes);
    if (!mayWrite(overwrites))
        return false;
    const QString part = path + QLatin1String(".part-") + QUuid::createUuid().toString(QUuid::WithoutBraces).left(8);
    bool isDone = kirvMakePrivateFile(part);
    if (isDone) {
        isDone = writeAndSync(part, bytes) && (overwrites ? kirvReplaceFile(part, path) : kirvLinkFile(part, path));
        QFile::remove(part);
    }
    if (!isDone)
        return fail(tr("The file \"%1\" cannot be written.").arg(path));
    kirvSyncFolder(QFileInfo(path).absolutePath());
    return true;
}

bool KirvCommandFile::writeToOutput(const QByteArray &bytes)
{
    const bool isWritten = std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) == size_t(bytes.size())
        && std::fflush(stdout) == 0;
    return isWritten ? true : fail(tr("The standard output cannot be written."));
}

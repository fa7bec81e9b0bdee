// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_moving_file.h"

#include "core/moving/kirv_pidgin_file.h"
#include "core/values/kirv_visible_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const qint64 megabyte = 1024 * 1024;
/// Of a file that may be one of Pidgin: its first elements.
const qint64 beginning = 4096;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KirvMovingFile)
};

QString shownPath(const QString &path)
{
    return kirvVisibleText(QDir::toNativeSeparators(path));
}

QString notOrdinary(const QString &path)
{
    //: %1 = path of a file
    return Texts::tr("%1 is not an ordinary file.").arg(shownPath(path));
}

QString unreadable(const QString &path, const QString &reason)
{
    //: %1 = path of a file, %2 = the system's reason
    return Texts::tr("The file %1 cannot be read: %2.").arg(shownPath(path), reason);
}

/// Without waiting for the other end of a pipe, and without what opening a device does.
bool open(QFile *file, const QString &path, QString *problem)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        *problem = errno == ENXIO ? notOrdinary(path) : unreadable(path, qt_error_string(errno)); // ENXIO: a socket
        return false;
    }
    struct stat status { };
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        *problem = notOrdinary(path);
        return false;
    }
    if (file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    *problem = unreadable(path, file->errorString());
    ::close(descriptor);
    return false;
}

/// Why no file of that name may be written; empty: it may.
QString whyKept(const QString &path)
{
    struct stat status { };
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0 || S_ISREG(status.st_mode))
        return QString();
    if (S_ISLNK(status.st_mode)) {
        //: %1 = path of a file
        return Texts::tr("%1 is a link to another file. Choose another name.").arg(shownPath(path));
    }
    return notOrdinary(path);
}

} // namespace

KirvMovingFile::Content KirvMovingFile::read(const QString &path)
{
    Content content;
    QFile file;
    if (!open(&file, path, &content.problem))
        return content;
    content.bytes = file.read(std::min(file.size(), KirvAccountFile::largestFile) + 1);
    const qint64 largest =
        KirvPidginFile::isOne(content.bytes) ? KirvPidginFile::largestFile : KirvAccountFile::largestFile;
    if (file.error() != QFileDevice::NoError) {
        content.problem = unreadable(path, file.errorString());
    } else if (content.bytes.size() > largest) {
        //: %1 = path of a file, %L2 = a number
        content.problem = Texts::tr("The file %1 is larger than %L2 MB, so it is not read.")
                              .arg(shownPath(path))
                              .arg(largest / megabyte);
    }
    if (!content.problem.isEmpty())
        content.bytes.clear();
    return content;
}

KirvAccountFile::Result KirvMovingFile::accounts(const QByteArray &bytes, const QString &passPhrase)
{
    if (!KirvPidginFile::isOne(bytes))
        return KirvAccountFile::read(bytes, passPhrase);
    const KirvPidginFile::Result foreign = KirvPidginFile::read(bytes);
    return { foreign.accounts, foreign.problem, false };
}

bool KirvMovingFile::isPidginFile(const QString &path)
{
    QFile file;
    QString problem;
    return open(&file, path, &problem) && KirvPidginFile::isOne(file.read(beginning));
}

QString KirvMovingFile::write(const QString &path, const QByteArray &bytes, const std::function<bool()> &isWanted)
{
    const QString reason = whyKept(path);
    if (!reason.isEmpty())
        return reason;
    QSaveFile file(path);
    // A file that is replaced may be readable for others; what takes its place is not, before anything is in it.
    const bool isWritten = file.open(QIODevice::WriteOnly)
        && file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) && file.write(bytes) == bytes.size();
    if (isWritten && !isWanted()) {
        file.cancelWriting();
        return QString();
    }
    if (isWritten && file.commit())
        return QString();
    //: %1 = path of a file, %2 = the system's reason
    return Texts::tr("The file %1 cannot be written: %2.").arg(shownPath(path), file.errorString());
}

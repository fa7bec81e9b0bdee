// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_default_profile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

/// The path in an environment variable; empty when it holds none or a relative one.
QString absolutePathIn(const char *variable)
{
    const QString path = QFile::decodeName(qgetenv(variable));
    return QDir::isAbsolutePath(path) ? path : QString();
}

}

QString kirvDefaultProfileFolder(QString *error)
{
    const QString data = absolutePathIn("XDG_DATA_HOME");
    const QString home = absolutePathIn("HOME");
    if (data.isEmpty() && home.isEmpty()) {
        *error = QCoreApplication::translate("KirvStore",
                                             "There is no home folder to keep the profile in: the environment variable "
                                             "HOME is not set. Set it, or name a folder for the profile.");
        return QString();
    }
    const QString base = data.isEmpty() ? home + QLatin1String("/.local/share") : data;
    return QDir::cleanPath(base + QLatin1String("/kirv"));
}

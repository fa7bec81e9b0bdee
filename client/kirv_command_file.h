// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_COMMAND_FILE_H
#define KIRV_COMMAND_FILE_H

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// A file with accounts, as the command line names it; "-" is the standard output or input.
class KirvCommandFile {
    Q_DECLARE_TR_FUNCTIONS(KirvCommandFile)

public:
    explicit KirvCommandFile(const QString &path);

    /// All of it, at most \a largest bytes. False when it cannot be read or is larger.
    bool read(qint64 largest, QByteArray *bytes);
    /// Whether write() could succeed: nothing is there, or a file that \a overwrites allows to replace.
    bool mayWrite(bool overwrites);
    /// Writes \a bytes to a file for its owner only, completely or not at all.
    bool write(const QByteArray &bytes, bool overwrites);
    /// Why the last of these gave false, a sentence for the user.
    QString problem() const { return text; }

private:
    bool fail(const QString &problem);
    bool writeToOutput(const QByteArray &bytes);
    bool isStandard() const { return path == QLatin1String("-"); }

    const QString path;
    QString text;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LAYOUT_FILE_H
#define KIRV_LAYOUT_FILE_H

#include <QCoreApplication>
#include <QString>

#include <memory>

class QWidget;

/// One layout file as Qt Designer writes them: read with care and made into widgets.
class KirvLayoutFile {
    Q_DECLARE_TR_FUNCTIONS(KirvLayoutFile)

public:
    explicit KirvLayoutFile(const QString &path);

    /// The widget tree, without a parent; null when the file cannot be used, problem() then says why.
    std::unique_ptr<QWidget> build();

    /// One sentence, empty as long as nothing failed.
    QString problem() const { return failure; }

private:
    QByteArray read();

    QString path;
    QString failure;
};

#endif

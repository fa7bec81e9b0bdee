// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FILE_CHOICE_H
#define KIRV_FILE_CHOICE_H

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>

/// Chooses the file or folder \a path in \a dialog, which is cancelled when it does not take it.
inline void kirvChooseFile(QFileDialog *dialog, const QString &path)
{
    dialog->findChild<QLineEdit *>()->setText(path);
    dialog->findChild<QDialogButtonBox *>()->buttons().first()->click();
    if (dialog->isVisible())
        dialog->reject();
}

#endif

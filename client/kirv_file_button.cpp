// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_file_button.h"

#include "client/kirv_window_front.h"
#include "core/ui/kirv_field_form.h"
#include "core/values/kirv_local_path.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

void KirvFileButton::addTo(KirvFieldForm *form, const QStringList &ids)
{
    for (const QString &id : ids) {
        if (QLineEdit *line = form->lineOf(id))
            form->addBeside(line, new KirvFileButton(line, form));
    }
}

KirvFileButton::KirvFileButton(QLineEdit *line, QWidget *parent)
    : QToolButton(parent)
    , line(line)
{
    setObjectName(line->objectName() + QStringLiteral("_Choose"));
    setText(tr("Choose…"));
    setToolTip(tr("Choose the file."));
    setFocusPolicy(Qt::StrongFocus);
    //: %1 = what the file is, as "Trusted certificate"
    setAccessibleName(tr("Choose the file for %1").arg(line->accessibleName()));
    connect(this, &QToolButton::clicked, this, &KirvFileButton::choose);
}

void KirvFileButton::choose()
{
    if (dialog) {
        kirvBringToFront(dialog);
        return;
    }
    const QFileInfo present(kirvLocalPath(line->text()));
    const bool isThere = !line->text().isEmpty() && present.isAbsolute() && present.absoluteDir().exists();
    dialog = new QFileDialog(this, line->accessibleName(), isThere ? present.absolutePath() : QDir::homePath());
    dialog->setObjectName(QStringLiteral("ChooseFile"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({ tr("Certificates and keys (*.pem *.crt *.cer *.key)"), tr("All files (*)") });
    if (isThere && present.isFile()) {
        dialog->selectNameFilter(dialog->nameFilters().constLast());
        dialog->selectFile(present.fileName());
    }
    connect(dialog, &QFileDialog::fileSelected, line, [line = line](const QString &path) {
        line->setText(QDir::toNativeSeparators(path));
        line->setFocus();
    });
    dialog->open();
}

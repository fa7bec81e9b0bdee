// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_profile_saver.h"

#include "client/kirv_message_bar.h"
#include "core/store/kirv_store.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>

KirvProfileSaver::KirvProfileSaver(KirvStore &store, KirvMessageBar &messages)
    : QObject(messages.window())
    , store(store)
    , messages(messages)
{
}

void KirvProfileSaver::showRefusal(const QString &reason)
{
    if (!store.isOpen() || store.isInPlace()) {
        messages.showMessage(reason);
        return;
    }
    shownReason = reason;
    messages.showMessage(reason, tr("&Save to Another Folder…"), [this] { chooseFolder(); });
}

void KirvProfileSaver::chooseFolder()
{
    if (dialog) {
        dialog->activateWindow();
        return;
    }
    dialog = new QFileDialog(messages.window(), tr("Save to an Empty Folder"), QDir::homePath());
    dialog->setObjectName(QStringLiteral("ProfileSaver_FolderDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, tr("&Save"));
    connect(dialog, &QFileDialog::fileSelected, this, &KirvProfileSaver::saveTo);
    dialog->open();
}

void KirvProfileSaver::saveTo(const QString &folder)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool isSaved = store.saveTo(folder);
    QGuiApplication::restoreOverrideCursor();
    if (!isSaved) {
        messages.showMessage(store.lastError());
        return;
    }
    messages.removeMessage(shownReason);
    const QString path = QDir::toNativeSeparators(folder);
    const bool isSameFolder = QDir(folder) == QDir(store.folder());
    const QString text = isSameFolder
        ? tr(
            "Everything that was stored is in \"%1\" again. Continue to go on with it; the accounts log in again then.")
        : tr("Everything that was stored is in \"%1\" now. Continue to go on with it; the accounts log in again then. "
             "From the next start on, start the program with the option --profile \"%1\".");
    messages.showMessage(text.arg(path), tr("&Continue"), [this, folder] { Q_EMIT continuationRequested(folder); });
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IMPORT_WINDOW_H
#define KIRV_IMPORT_WINDOW_H

#include "client/kirv_background_job.h"
#include "client/kirv_move_dialog.h"
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_account_import.h"

#include <QByteArray>
#include <QHash>
#include <memory>

class KirvAccountCheckList;
class KirvAccountCollection;
class KirvAccountHistory;
class KirvMainAccount;
class KirvWrappedText;
class QDialogButtonBox;
class QFileDialog;
class QLineEdit;
class QPushButton;

/// Shows which accounts are in a file, and takes over those that the user chooses. The file is read in a thread; it can
/// be any file, and nothing changes before the import is confirmed.
class KirvImportWindow : public KirvMoveDialog {
    Q_OBJECT

public:
    /// What is imported into. Nothing is owned, and all of it outlives the window.
    struct Environment {
        KirvAccountCollection &accounts;
        KirvMainAccount &mainAccount;
        KirvAccountHistory &history;
    };

    KirvImportWindow(const Environment &environment, QWidget *parent);

    /// Reads the file \a path in place of the one before.
    void read(const QString &path);
    /// Lists again what would come, from the event loop: accounts or protocols came or went.
    void listLater();
    /// A window that lets the user choose a file, not shown yet. It deletes itself when it is closed.
    static QFileDialog *createFileDialog(QWidget *parent);

Q_SIGNALS:
    /// The accounts \a accounts were taken over, by the logins that they have here.
    void imported(const QList<KirvAccountKey> &accounts);
    /// Part of them, such as a picture, could not be taken over; \a text says why.
    void partLeftOut(const QString &text);

private:
    enum State { Reading, Unreadable, NeedsPassPhrase, Listing };
    /// What the thread has found.
    struct Found {
        QByteArray bytes; ///< empty: as before
        bool needsPassPhrase = false;
        KirvAccountFile::Result result;
    };

    QWidget *createContent();
    QWidget *createPassPhrase();
    QWidget *createButtons();
    static Found readFile(const QString &path);
    void readAccounts(const QString &passPhrase);
    void take(const Found &found);
    void setState(State newState);
    void showText(const QString &text);
    void showProblem(const QString &text);
    void goOn();
    void chooseFile();

    void list();
    void refreshRows();
    void refreshButtons();
    QString stateOf(const KirvAccountImport::Row &row) const;
    static QString stateOfLosing(const KirvAccountImport::Row &row);
    QString shownPath() const;
    QString listingText() const;
    QString leftOutText() const;
    void import();

    const Environment environment;
    KirvBackgroundJob job;
    State state = Reading;
    QString path;
    QByteArray bytes;
    KirvMovedAccounts moved;
    std::unique_ptr<KirvAccountImport> plan; ///< null: nothing is listed
    bool isRefreshDue = false;
    bool isImporting = false;

    KirvWrappedText *text = nullptr;
    QWidget *passPhrase = nullptr;
    QLineEdit *passPhraseLine = nullptr;
    KirvAccountCheckList *rows = nullptr;
    KirvWrappedText *problem = nullptr;
    KirvWrappedText *leftOut = nullptr;
    QPushButton *otherFileButton = nullptr;
    QPushButton *withoutButton = nullptr;
    QPushButton *actionButton = nullptr;
    QDialogButtonBox *box = nullptr;
};

#endif

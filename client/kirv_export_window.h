// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EXPORT_WINDOW_H
#define KIRV_EXPORT_WINDOW_H

#include "client/kirv_background_job.h"
#include "client/kirv_move_dialog.h"
#include "core/values/kirv_account_key.h"

#include <QList>
#include <QStringList>

class KirvAccountCheckList;
class KirvAccountCollection;
class KirvMainAccount;
class KirvWrappedText;
class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
struct KirvMovedAccounts;

/// Writes accounts to a file that can be imported elsewhere: the user chooses which, and whether with passwords. It
/// stays open to say what was written and what was left out.
class KirvExportWindow : public KirvMoveDialog {
    Q_OBJECT

public:
    /// \a accounts and \a mainAccount are not owned and outlive the window. \a chosen are checked, or all when it is
    /// empty.
    KirvExportWindow(const KirvAccountCollection &accounts, const KirvMainAccount &mainAccount,
                     const QList<KirvAccountKey> &chosen, QWidget *parent);
    ~KirvExportWindow() override;

    /// Checks exactly \a chosen, or all when it is empty.
    void check(const QList<KirvAccountKey> &chosen);
    /// Writes what is checked to \a path, in a thread. Does nothing while that is not possible.
    void exportTo(const QString &path);
    bool isWriting() const { return job.isRunning(); }

    /// What is being written is not written then, unless that is done already.
    void reject() override;

private:
    struct Outcome {
        QString problem;
        bool isCancelled = false;
        int count = 0; ///< of the accounts that are in the file
        QStringList leftOut;
    };

    QWidget *createContent();
    QWidget *createPassPhrase();
    QLineEdit *createPassPhraseLine(const char *name);
    QWidget *createButtons();
    void refreshList();
    void setRows(const QList<KirvAccountKey> &checked, bool areNewOnesChecked);
    QString passPhraseProblem() const;
    void updateControls();
    void chooseFile();
    void cancel();
    static Outcome write(KirvMovedAccounts moved, const QString &phrase, const QString &path,
                         const KirvBackgroundJob::Flag &isWanted);
    void finish(const Outcome &outcome, const QString &path);
    void showOutcome(const QString &text);

    const KirvAccountCollection &accounts;
    const KirvMainAccount &mainAccount;
    KirvBackgroundJob job;
    KirvBackgroundJob::Flag isWanted; ///< whether what is being written is still to be written
    QList<KirvAccountKey> listed;
    bool isRefreshDue = false;

    KirvAccountCheckList *list = nullptr;
    QCheckBox *passwordsBox = nullptr;
    QWidget *passPhrase = nullptr;
    QLineEdit *passPhraseLine = nullptr;
    QLineEdit *repetitionLine = nullptr;
    QLabel *problem = nullptr;
    KirvWrappedText *outcomeText = nullptr;
    QPushButton *exportButton = nullptr;
    QDialogButtonBox *box = nullptr;
};

#endif

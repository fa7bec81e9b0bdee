// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REPORT_WINDOW_H
#define KIRV_REPORT_WINDOW_H

#include "client/kirv_report.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPlainTextEdit;

/// Shows a report before it leaves the program: to be read, copied, and saved to a file.
class KirvReportWindow : public QDialog {
    Q_OBJECT

public:
    /// A report about \a account, or about all when that is not configured.
    KirvReportWindow(const KirvReport &report, const KirvAccountKey &account, QWidget *parent);

    /// Writes the report to \a path. False when that is not possible; the window says why.
    bool save(const QString &path);

private:
    void arrange();
    void refresh();
    void chooseFile();

    const KirvReport report;
    const KirvAccountKey account;
    QPlainTextEdit *text;
    QCheckBox *names;
    QLabel *outcome;
};

#endif

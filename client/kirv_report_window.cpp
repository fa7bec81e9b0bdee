// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_report_window.h"

#include "client/kirv_button_flow.h"
#include "client/kirv_text_label.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

KirvReportWindow::KirvReportWindow(const KirvReport &report, const KirvAccountKey &account, QWidget *parent)
    : QDialog(parent)
    , report(report)
    , account(account)
    , text(new QPlainTextEdit(this))
    , names(new QCheckBox(tr("&Include logins and other names"), this))
    , outcome(new QLabel(this))
{
    setObjectName(QStringLiteral("Report"));
    setWindowTitle(tr("Report for Somebody Who Helps"));
    text->setObjectName(QStringLiteral("Report_Text"));
    text->setAccessibleName(tr("Report"));
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setTabChangesFocus(true);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    names->setObjectName(QStringLiteral("Report_Names"));
    outcome->setObjectName(QStringLiteral("Report_Outcome"));
    outcome->setTextFormat(Qt::PlainText);
    outcome->setWordWrap(true);
    outcome->hide();
    connect(names, &QCheckBox::toggled, this, &KirvReportWindow::refresh);
    arrange();
    const int unit = fontMetrics().averageCharWidth();
    const QSize available = parent->screen()->availableSize();
    resize(std::min(85 * unit, available.width()), std::min(55 * unit, available.height()));
    refresh();
}

void KirvReportWindow::arrange()
{
    QLabel *introduction = kirvCreateText(
        "Report_Introduction", tr("Passwords are left out. Read the report before you give it to anybody."), this);
    auto *copy = new QPushButton(tr("&Copy"), this);
    copy->setObjectName(QStringLiteral("Report_Copy"));
    connect(copy, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(text->toPlainText()); });
    auto *saveButton = new QPushButton(tr("&Save…"), this);
    saveButton->setObjectName(QStringLiteral("Report_Save"));
    connect(saveButton, &QPushButton::clicked, this, &KirvReportWindow::chooseFile);
    auto *close = new QDialogButtonBox(QDialogButtonBox::Close, this);
    close->setObjectName(QStringLiteral("Report_Buttons"));
    close->button(QDialogButtonBox::Close)->setDefault(true);
    connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *buttons = new KirvButtonFlow(this);
    buttons->addAtBeginning(copy);
    buttons->addAtBeginning(saveButton);
    buttons->addAtEnd(close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addWidget(text, 1);
    layout->addWidget(names);
    layout->addWidget(outcome);
    layout->addWidget(buttons);
}

void KirvReportWindow::refresh()
{
    text->setPlainText(report.text(account, names->isChecked()));
}

void KirvReportWindow::chooseFile()
{
    auto *dialog = new QFileDialog(this, tr("Save Report"), QDir::homePath());
    dialog->setObjectName(QStringLiteral("Report_File"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->selectFile(tr("report") + QLatin1String(".txt"));
    connect(dialog, &QFileDialog::fileSelected, this, &KirvReportWindow::save);
    dialog->open();
}

bool KirvReportWindow::save(const QString &path)
{
    const QByteArray bytes = text->toPlainText().toUtf8();
    QSaveFile file(path);
    const bool isSaved = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    const QString shown = QDir::toNativeSeparators(path);
    //: %1 = path of a file
    outcome->setText(isSaved ? tr("The report was saved to %1.").arg(shown)
                             //: %1 = path of a file, %2 = the system's reason
                             : tr("The report could not be saved to %1: %2.").arg(shown, file.errorString()));
    outcome->show();
    return isSaved;
}

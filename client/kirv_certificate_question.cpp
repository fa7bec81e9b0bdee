// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_certificate_question.h"

#include "client/kirv_plain_text.h"
#include "client/kirv_text_label.h"
#include "client/kirv_wrapped_text.h"
#include "core/accounts/kirv_account.h"
#include "core/ui/kirv_form_area.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace {

const int bytesInALine = 16; // of a fingerprint

/// Two lines can be compared with two others.
QString inLines(const QString &fingerprint)
{
    QString lines = fingerprint;
    const int place = 3 * bytesInALine;
    return lines.size() > place ? lines.insert(place, QLatin1Char('\n')) : lines;
}

} // namespace

KirvCertificateQuestion::KirvCertificateQuestion(Kind kind, const KirvAccount &account,
                                                 const KirvServerCertificate &certificate, QWidget *parent)
    : QDialog(parent)
    , accountKey(account.key())
    , questionKind(kind)
    , shown(certificate)
    , area(new KirvFormArea(this))
{
    setObjectName(QStringLiteral("CertificateQuestion"));
    //: %1 = name of a server
    setWindowTitle(shown.host.isEmpty() ? tr("Trusted Certificate")
                                        : tr("Certificate of %1").arg(kirvPlainName(shown.host)));
    setWindowModality(Qt::WindowModal);
    area->setObjectName(QStringLiteral("CertificateQuestion_Area"));
    area->setWidget(createPage(account));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(createButtons());
}

QWidget *KirvCertificateQuestion::createPage(const KirvAccount &account)
{
    auto *page = new QWidget;
    auto *icon = new QLabel(page);
    icon->setObjectName(QStringLiteral("CertificateQuestion_Icon"));
    const int edge = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    const auto kind = questionKind == ToTrust ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    icon->setPixmap(style()->standardIcon(kind, nullptr, this).pixmap(edge, edge));

    QLabel *title = kirvCreateText("CertificateQuestion_Heading", heading(account), page);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto *problems = new KirvWrappedText(page);
    problems->setObjectName(QStringLiteral("CertificateQuestion_Problems"));
    problems->setAccessibleName(tr("What is wrong with the certificate"));
    problems->showText(kirvPlainSentence(shown.problems.join(QLatin1Char('\n'))));
    problems->setVisible(!shown.problems.isEmpty());
    auto *texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addWidget(problems);
    if (questionKind == ToTrust)
        texts->addWidget(kirvCreateText("CertificateQuestion_Risk",
                                        tr("Somebody between you and the server could read your password."), page));
    auto *top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(texts, 1);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(createDetails(account));
    layout->addStretch();
    return page;
}

QString KirvCertificateQuestion::heading(const KirvAccount &account) const
{
    const QString name = kirvPlainName(account.displayName());
    if (questionKind == ToForget)
        //: %1 = name of an account
        return tr("You have chosen to trust this certificate for the account %1.").arg(name);
    if (!account.trustedCertificate().isEmpty())
        //: %1 = name of an account
        return tr("The server shows another certificate than the one that you have trusted for the account %1.")
            .arg(name);
    //: %1 = name of an account
    return tr("The certificate of the server of the account %1 is not trusted.").arg(name);
}

QWidget *KirvCertificateQuestion::createDetails(const KirvAccount &account)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("CertificateQuestion_Details"));
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    frame->setBackgroundRole(QPalette::Base);
    frame->setForegroundRole(QPalette::Text);
    auto *details = new QFormLayout(frame);
    details->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
    details->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    const QString fingerprint = shown.fingerprintText();
    const QList<KirvServerCertificate::Detail> lines = shown.details();
    for (const KirvServerCertificate::Detail &line : lines) {
        const bool isFingerprint = line.text == fingerprint;
        addDetail(details, isFingerprint ? "CertificateQuestion_Fingerprint" : "CertificateQuestion_Detail", line.label,
                  line.text, isFingerprint);
    }
    const QByteArray before = account.trustedCertificate();
    if (questionKind == ToTrust && !before.isEmpty())
        //: the fingerprint of the certificate that was trusted so far
        addDetail(details, "CertificateQuestion_Before", tr("Trusted so far"),
                  KirvServerCertificate::fingerprintText(before), true);
    return frame;
}

void KirvCertificateQuestion::addDetail(QFormLayout *details, const char *name, const QString &label,
                                        const QString &text, bool isFingerprint)
{
    auto *value = new KirvWrappedText;
    value->setObjectName(QLatin1String(name));
    value->setAccessibleName(label);
    if (isFingerprint)
        value->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    value->showText(isFingerprint ? inLines(text) : kirvPlainName(text));
    //: the caption of a line: %1 = what it is about
    details->addRow(tr("%1:").arg(label), value);
}

QWidget *KirvCertificateQuestion::createButtons()
{
    auto *buttons = new QDialogButtonBox(this);
    buttons->setObjectName(QStringLiteral("CertificateQuestion_Buttons"));
    const bool isToTrust = questionKind == ToTrust;
    QPushButton *change =
        buttons->addButton(isToTrust ? tr("&Trust for This Account") : tr("&Stop Trusting"),
                           isToTrust ? QDialogButtonBox::AcceptRole : QDialogButtonBox::DestructiveRole);
    change->setObjectName(QStringLiteral("CertificateQuestion_ChangeButton"));
    change->setAutoDefault(false);
    QPushButton *leave =
        buttons->addButton(isToTrust ? tr("&Do Not Connect") : tr("Cl&ose"), QDialogButtonBox::RejectRole);
    leave->setObjectName(QStringLiteral("CertificateQuestion_LeaveButton"));
    leave->setDefault(true);
    leave->setFocus();
    connect(change, &QPushButton::clicked, this, &QDialog::accept);
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

void KirvCertificateQuestion::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // When the texts know their font and width.
    QMetaObject::invokeMethod(this, &KirvCertificateQuestion::grow, Qt::QueuedConnection);
}

void KirvCertificateQuestion::grow()
{
    area->updateGeometry();
    const QSize available = screen()->availableGeometry().size() * 9 / 10;
    resize(size().expandedTo(sizeHint()).boundedTo(available));
}

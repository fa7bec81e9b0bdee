// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_strip.h"

#include "client/kirv_account_status.h"
#include "client/kirv_button_flow.h"
#include "client/kirv_plain_text.h"
#include "client/kirv_state_shape.h"
#include "core/accounts/kirv_account.h"
#include "core/ui/kirv_keyboard.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QStyle>
#include <QTextDocument>
#include <QTextEdit>
#include <QtMath>

namespace {
/// Longer reasons are scrolled.
const int linesOfReason = 3;
}

KirvAccountStrip::KirvAccountStrip(QWidget *parent)
    : QFrame(parent)
    , icon(new QLabel(this))
    , title(new QLabel(this))
    , reason(new QTextEdit(this))
    , logButton(createButton("Accounts_LogButton", tr("Log"), tr("Shows what happened to the account's connection.")))
    , testButton(createButton("Accounts_TestButton", tr("What Is Wrong?"),
                              tr("Tries each step of the log-in with what is stored, beside the account's own "
                                 "connection.")))
    , passwordButton(createButton("Accounts_PasswordButton", tr("Enter Password…"),
                                  tr("Takes another password and logs the account in with it.")))
    , certificateButton(createButton("Accounts_CertificateButton", tr("Show Certificate…"),
                                     tr("Shows the certificate of the server and asks whether it is trusted.")))
    , firstPlace(new QStackedLayout)
    , reconnectButton(
          createButton("Accounts_ReconnectButton", tr("Reconnect"), tr("Logs the account out and in again.")))
    , editButton(createButton("Accounts_StripEditButton", tr("Edit…"), tr("Change the account")))
{
    setObjectName(QStringLiteral("Accounts_Strip"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    setForegroundRole(QPalette::Text);

    icon->setObjectName(QStringLiteral("Accounts_StripIcon"));
    title->setObjectName(QStringLiteral("Accounts_StripTitle"));
    title->setTextFormat(Qt::PlainText);
    title->setForegroundRole(QPalette::Text);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum); // no text widens the page
    title->setWordWrap(true); // in some languages it is longer than a line

    reason->setObjectName(QStringLiteral("Accounts_StripReason"));
    reason->setAccessibleName(tr("Reason of the state of the account"));
    reason->setReadOnly(true);
    reason->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    reason->setTabChangesFocus(true);
    reason->setFrameShape(QFrame::NoFrame);
    reason->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    reason->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    reason->document()->setDocumentMargin(0);
    reason->viewport()->setAutoFillBackground(false);

    connect(logButton, &QPushButton::clicked, this, &KirvAccountStrip::logRequested);
    connect(testButton, &QPushButton::clicked, this, &KirvAccountStrip::testRequested);
    connect(passwordButton, &QPushButton::clicked, this, &KirvAccountStrip::passwordRequested);
    connect(certificateButton, &QPushButton::clicked, this, &KirvAccountStrip::certificateRequested);
    connect(reconnectButton, &QPushButton::clicked, this, &KirvAccountStrip::reconnectionRequested);
    connect(editButton, &QPushButton::clicked, this, &KirvAccountStrip::editRequested);
    arrange();
    fixHeight();
    show(nullptr, false);
}

QPushButton *KirvAccountStrip::createButton(const char *name, const QString &text, const QString &toolTip)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    return button;
}

void KirvAccountStrip::arrange()
{
    auto *first = new QWidget(this);
    first->setLayout(firstPlace);
    firstPlace->addWidget(passwordButton);
    firstPlace->addWidget(certificateButton);
    auto *buttons = new KirvButtonFlow(this);
    buttons->setObjectName(QStringLiteral("Accounts_StripButtons"));
    // The context menu has the spare ones, too, and the page another button to edit.
    buttons->addSpareAtEnd(logButton);
    buttons->addSpareAtEnd(testButton);
    buttons->addAtEnd(first);
    buttons->addAtEnd(reconnectButton);
    buttons->addSpareAtEnd(editButton);
    auto *layout = new QGridLayout(this);
    layout->setColumnStretch(1, 1);
    layout->addWidget(icon, 0, 0);
    layout->addWidget(title, 0, 1);
    layout->addWidget(reason, 1, 1);
    layout->addWidget(buttons, 2, 0, 1, 2);
}

void KirvAccountStrip::fixHeight()
{
    const int edge = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setFixedSize(edge, edge);
    reason->setMinimumHeight(reason->fontMetrics().lineSpacing());
    // The lines of a document are as high as their font in fractions.
    reason->setMaximumHeight(linesOfReason * qCeil(QFontMetricsF(reason->font()).lineSpacing()) + 2);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void KirvAccountStrip::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if ((event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) && reason)
        fixHeight();
}

void KirvAccountStrip::chooseMnemonics()
{
    QSet<QChar> taken = kirvMnemonicsAround(this);
    passwordButton->setText(kirvWithMnemonic(tr("Enter Password…"), &taken));
    certificateButton->setText(kirvWithMnemonic(tr("Show Certificate…"), &taken));
    reconnectButton->setText(kirvWithMnemonic(tr("Reconnect"), &taken));
    editButton->setText(kirvWithMnemonic(tr("Edit…"), &taken));
    testButton->setText(kirvWithMnemonic(tr("What Is Wrong?"), &taken));
    logButton->setText(kirvWithMnemonic(tr("Log"), &taken));
}

void KirvAccountStrip::show(const KirvAccount *account, bool isMain)
{
    logButton->setEnabled(account);
    if (!account) {
        offer(nullptr);
        showNone(tr("No account is selected."), QString());
        return;
    }
    const KirvAccountStatus status(*account, isMain);
    offer(&status);
    icon->setPixmap(kirvStatePixmap(status.kind(), this, icon->width()));
    icon->setAccessibleName(status.accessibleLine());
    title->setText(status.accessibleLine());
    shown = account->key();
    //: %1 = name of an account
    const QString name = tr("State of %1").arg(kirvPlainName(account->displayName()));
    setAccessibleName(name);
    setToolTip(kirvPlainToolTip(name));
    const QString text = status.reason();
    if (reason->toPlainText() != text) // what is selected in it stays
        reason->setPlainText(text);
}

/// What can be done with an account; null: nothing.
void KirvAccountStrip::offer(const KirvAccountStatus *status)
{
    testButton->setEnabled(status && status->canBeWrong());
    passwordButton->setEnabled(status && status->canEnterPassword());
    reconnectButton->setEnabled(status && status->canReconnect());
    editButton->setEnabled(status && status->canEdit());
    QPushButton *first = status && status->isAboutCertificate() ? certificateButton : passwordButton;
    const bool hadFocus = firstPlace->currentWidget()->hasFocus();
    firstPlace->setCurrentWidget(first);
    if (hadFocus)
        first->setFocus();
}

void KirvAccountStrip::showSeveral(int count)
{
    logButton->setEnabled(false);
    offer(nullptr);
    showNone(tr("%n accounts are selected.", nullptr, count),
             tr("They can be enabled, disabled and removed with the context menu."));
}

void KirvAccountStrip::showNone(const QString &text, const QString &details)
{
    icon->setPixmap(QPixmap());
    icon->setAccessibleName(QString());
    title->setText(text);
    setAccessibleName(text);
    setToolTip(QString());
    shown = KirvAccountKey();
    reason->setPlainText(details);
}

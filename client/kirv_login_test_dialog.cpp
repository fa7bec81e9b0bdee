// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_login_test_dialog.h"

#include "client/kirv_button_flow.h"
#include "client/kirv_login_test_view.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

KirvLoginTestDialog::KirvLoginTestDialog(const KirvAccount &account, QWidget *parent)
    : QDialog(parent)
    , accountKey(account.key())
    , tested(&account)
{
    setObjectName(QStringLiteral("LogInTest"));
    //: %1 = name of an account
    setWindowTitle(tr("Log-In of %1").arg(kirvPlainName(account.displayName())));
    view = new KirvLoginTestView(
        *account.protocol(), [this] { return storedLogin(); }, objectName(), this);
    auto *close = new QDialogButtonBox(QDialogButtonBox::Close, this);
    close->setObjectName(QStringLiteral("LogInTest_Buttons"));
    connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *buttons = new KirvButtonFlow(this);
    buttons->addAtBeginning(view->runButton());
    buttons->addAtBeginning(view->copyButton());
    buttons->addAtEnd(close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(view);
    layout->addStretch();
    layout->addWidget(buttons);
    connect(view, &KirvLoginTestView::stepsChanged, this, &KirvLoginTestDialog::growToFit);
    view->chooseMnemonics();
    close->button(QDialogButtonBox::Close)->setDefault(true);
    const int unit = fontMetrics().averageCharWidth();
    resize(std::min(70 * unit, parent->screen()->availableSize().width()), sizeHint().height());
    view->start();
}

/// As it is now: the account may have been changed since the last test.
KirvLogin KirvLoginTestDialog::storedLogin() const
{
    if (!tested)
        return { accountKey.id, QString(), {} };
    return { accountKey.id, tested->record().password, tested->settings(), tested->trustedCertificate() };
}

void KirvLoginTestDialog::growToFit()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (sizeHint().height() > height())
        resize(width(), std::min(sizeHint().height(), screen()->availableSize().height()));
}

void KirvLoginTestDialog::done(int result)
{
    view->cancel();
    QDialog::done(result);
}

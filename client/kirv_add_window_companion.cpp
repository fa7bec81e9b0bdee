// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_add_window_companion.h"

#include "add_account/kirv_add_account_dialog.h"
#include "client/kirv_remember_box.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/ui/kirv_length_limit.h"
#include "host/kirv_protocol.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>

namespace {

QDialogButtonBox *buttonsOf(const QWidget *window)
{
    return window->findChild<QDialogButtonBox *>(QStringLiteral("AddAccount_ButtonFrame"));
}

} // namespace

KirvAddWindowCompanion::KirvAddWindowCompanion(KirvLayoutDialog *window, const KirvAddAccountDialog *controller,
                                               const KirvAccountCollection &accounts)
    : KirvWindowCompanion(window)
    , accounts(accounts)
    , protocolName(controller->getProtocol()->getName())
{
    // Before the page's connection is made, so that it comes first.
    connect(buttonsOf(window), &QDialogButtonBox::accepted, this, [this] { isAdding = true; });
}

void KirvAddWindowCompanion::aboutToShow()
{
    for (const char *name : { "AddAccount_UsernameEdit", "AddAccount_PasswordEdit" })
        kirvLimitLength(window()->findChild<QLineEdit *>(QLatin1String(name)));
    if (auto *box = window()->findChild<QCheckBox *>(QStringLiteral("AddAccount_RememberPasswordCheckbox"));
        box && !box->findChild<KirvRememberBox *>())
        new KirvRememberBox(box, accounts.secrets(), KirvRememberBox::OffWhenUnsafe);
    // After the page's.
    connect(buttonsOf(window()), &QDialogButtonBox::accepted, this, [this] { isAdding = false; });
}

void KirvAddWindowCompanion::close()
{
    const auto boxes = window()->findChildren<QDialog *>();
    for (QDialog *box : boxes)
        box->close();
    window()->close();
}

bool KirvAddWindowCompanion::takeRefusal(const KirvAccountKey &key, const QString &reason)
{
    if (!isAdding || key.protocol != protocolName)
        return false;
    isAdding = false;
    // The page's message box, which comes next, blocks: its own event loop delivers this.
    QMetaObject::invokeMethod(
        this, [this, key, reason] { correctMessage(key, reason); }, Qt::QueuedConnection);
    return true;
}

/// The page says of every refused account that it exists already.
void KirvAddWindowCompanion::correctMessage(const KirvAccountKey &key, const QString &reason)
{
    auto *box = window()->findChild<QMessageBox *>();
    if (!box)
        return;
    box->setTextFormat(Qt::PlainText);
    if (!accounts.find(key))
        box->setText(reason);
}

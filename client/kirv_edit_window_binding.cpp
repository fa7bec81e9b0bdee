// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_edit_window_binding.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_actions_menu.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/values/kirv_failure.h"
#include "edit_account/kirv_pubdir_account_received_event.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_protocol.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>

namespace {
/// The window tells which account it edits in its label only: "id (protocol)".
KirvAccountKey keyFromIdentifier(const QLabel *identifier)
{
    const QString text = identifier ? identifier->text() : QString();
    const int bracket = int(text.lastIndexOf(QLatin1String(" (")));
    if (bracket < 0 || !text.endsWith(QLatin1Char(')')))
        return KirvAccountKey();
    return { text.left(bracket), text.mid(bracket + 2, text.size() - bracket - 3) };
}
} // namespace

KirvEditWindowBinding::KirvEditWindowBinding(QDialog *window, QObject *controller, KirvAccountCollection &accounts)
    : QObject(window)
    , window(window)
    , controller(controller)
    , accounts(accounts)
    , accountKey(keyFromIdentifier(window->findChild<QLabel *>(QStringLiteral("EditAccount_Identifier"))))
    , tabs(window->findChild<QTabWidget *>(QStringLiteral("EditAccount_Tabs")))
    , passwordEdit(window->findChild<QLineEdit *>(QStringLiteral("EditAccount_Password")))
    , directoryLabel(window->findChild<QLabel *>(QStringLiteral("EditAccount_PubDirStatus")))
{
    connect(window, SIGNAL(finished(int)), controller, SLOT(finished(int)));
    connect(window, &QDialog::finished, window, &QDialog::deleteLater);
    // The page deletes the controller of the window before when it opens the next one.
    connect(controller, &QObject::destroyed, this, &KirvEditWindowBinding::close);
    connect(&accounts, &KirvAccountCollection::accountChanged, this, &KirvEditWindowBinding::accountChanged);
    if (const KirvAccount *account = accounts.find(accountKey)) {
        wasLoggedIn = account->isLoggedIn();
        knownPassword = account->getPassword();
    }
    bindButtons();
    bindDirectory();
}

KirvEditWindowBinding::~KirvEditWindowBinding()
{
    if (!controller)
        return;
    controller->disconnect(this);
    delete controller;
}

void KirvEditWindowBinding::close()
{
    window->reject();
    window->deleteLater(); // a window that was hidden already does not finish again
}

bool KirvEditWindowBinding::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == directoryFields && event->type() == QEvent::EnabledChange) {
        if (isDirectoryLocked())
            directoryLocked = QDateTime::currentDateTime();
        updateDirectoryStatus();
    }
    return QObject::eventFilter(watched, event);
}

void KirvEditWindowBinding::bindButtons()
{
    auto *box = window->findChild<QDialogButtonBox *>(QStringLiteral("EditAccount_FrameButtons"));
    if (!box)
        return;
    if (!accounts.find(accountKey)) { // the page leaves the buttons of such a window without effect
        connect(box, &QDialogButtonBox::rejected, window, &QDialog::reject);
        return;
    }
    if (QPushButton *saveButton = box->button(QDialogButtonBox::Save)) {
        disconnect(saveButton, SIGNAL(clicked()), controller, SLOT(saveAndClose()));
        connect(saveButton, &QPushButton::clicked, this, &KirvEditWindowBinding::save);
    }
    if (KirvAccountActionsMenu::isUseful(accountKey, accounts)) {
        QPushButton *more = box->addButton(tr("&Server Account"), QDialogButtonBox::ResetRole); // stands apart
        more->setObjectName(QStringLiteral("EditAccount_ServerAccountButton"));
        more->setAutoDefault(false);
        more->setToolTip(tr("What can be done with the account on its server."));
        more->setMenu(new KirvAccountActionsMenu(accountKey, accounts, window, more));
    }
}

void KirvEditWindowBinding::bindDirectory()
{
    const auto *place = window->findChild<QWidget *>(QStringLiteral("EditAccount_PubDirResults"));
    directoryFields = place ? place->findChild<KirvFieldWidget *>() : nullptr;
    if (!directoryFields)
        return;
    directoryFields->installEventFilter(this);
    if (directoryLabel)
        directoryLabel->setTextFormat(Qt::PlainText);
    startWithBlankEntry();
    updateDirectoryStatus();
}

/// What is not known yet counts as blank and unchanged, or Save would publish the blank fields in place of the
/// entry that the server has.
void KirvEditWindowBinding::startWithBlankEntry()
{
    KirvAccount *account = accounts.find(accountKey);
    if (!account || !account->isLoaded())
        return;
    KirvPubdirAccountReceivedEvent blank(account, account->getProtocol()->getPubdirAccountFields());
    QCoreApplication::sendEvent(controller, &blank);
}

void KirvEditWindowBinding::save()
{
    const QPointer<KirvAccount> account = accounts.find(accountKey);
    if (!account || !controller) {
        close();
        return;
    }
    account->beginSave();
    QMetaObject::invokeMethod(controller, "saveSettings", Qt::DirectConnection);
    if (!account)
        return;
    if (account->endSave()) {
        window->accept();
        return;
    }
    KirvAccountsTab::getInstance()->updateAccount(account); // its row shows what is stored
    tellSaveFailed();
}

void KirvEditWindowBinding::tellSaveFailed()
{
    auto *box =
        new QMessageBox(QMessageBox::Warning, tr("Saving Account"), accounts.lastError(), QMessageBox::Ok, window);
    box->setObjectName(QStringLiteral("EditAccount_SaveFailed"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(tr("Nothing was changed. The window stays open, so that you can try again."));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->show();
}

void KirvEditWindowBinding::accountChanged(KirvAccount *account)
{
    if (account->key() != accountKey || !controller)
        return;
    updatePassword(*account);
    updateDirectory(*account);
}

/// The account may get another password while the window is open, on its server say: the window, which shows the
/// one before, must not put that back.
void KirvEditWindowBinding::updatePassword(const KirvAccount &account)
{
    const QString password = account.getPassword();
    if (passwordEdit && passwordEdit->text() == knownPassword && password != knownPassword)
        passwordEdit->setText(password);
    knownPassword = password;
}

void KirvEditWindowBinding::updateDirectory(const KirvAccount &account)
{
    if (!directoryFields)
        return;
    const bool cameOnline = account.isLoggedIn() && !wasLoggedIn;
    wasLoggedIn = account.isLoggedIn();
    const bool isDirectoryShown = tabs && tabs->currentIndex() > 0;
    if (cameOnline && isDirectoryShown && isDirectoryLocked())
        QMetaObject::invokeMethod(controller, "requestPubdirInfo", Qt::DirectConnection);
    updateDirectoryStatus();
}

void KirvEditWindowBinding::updateDirectoryStatus()
{
    if (directoryLabel)
        directoryLabel->setText(directoryStatus(accounts.find(accountKey)));
}

QString KirvEditWindowBinding::directoryStatus(const KirvAccount *account) const
{
    if (!account || !account->isLoggedIn())
        return tr("The account must be connected before its directory entry can be read or changed.");
    if (isDirectoryLocked())
        return tr("Asking the server…");
    if (directoryLocked.isValid() && account->lastFailureTime() >= directoryLocked)
        return account->lastFailure().text();
    return QString();
}

bool KirvEditWindowBinding::isDirectoryLocked() const
{
    return directoryFields && !directoryFields->isEnabledTo(directoryFields->parentWidget());
}

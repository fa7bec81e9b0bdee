// SPDX-License-Identifier: LGPL-2.1-or-later
#include "edit_account/kirv_edit_account_dialog.h"

#include "accounts_tab/kirv_account_window_p.h"
#include "accounts_tab/kirv_accounts_tab.h"
#include "edit_account/kirv_pubdir_account_received_event.h"
#include "host/kirv_account_connection.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_protocol.h"
#include "host/kirv_settings_manager.h"
#include "host/kirv_ui_loader.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>

namespace {

void setChecked(QCheckBox *box, const KirvField &field)
{
    box->setCheckState(field.isChecked() ? Qt::Checked : Qt::Unchecked);
}

bool isChecked(const QCheckBox *box)
{
    // Intended: a box that is partially checked counts as not checked here.
    return box->checkState() == Qt::Checked;
}

/// A child of the window that clears the controller's pointers into it when the window is destroyed.
class WindowGuard : public QObject {
public:
    WindowGuard(QObject *controller, QDialog *&window, KirvFieldWidget *&fields)
        : QObject(window)
        , controller(controller)
        , window(window)
        , fields(fields)
    {
    }
    ~WindowGuard() override
    {
        if (controller) {
            window = nullptr;
            fields = nullptr;
        }
    }

private:
    QPointer<QObject> controller;
    QDialog *&window;
    KirvFieldWidget *&fields;
};

}

KirvEditAccountDialog::KirvEditAccountDialog(const QString &accountId, const QString &protocolName, QWidget *parent,
                                             Qt::WindowFlags flags)
    : accountId(accountId)
    , protocol(KirvPluginManager::getInstance()->getProtocolByName(protocolName))
    , accountSettingsWidget(nullptr)
    , aliasEdit(nullptr)
    , passwordEdit(nullptr)
    , rememberPasswordCheck(nullptr)
    , rememberPresenceCheck(nullptr)
    , rememberDescriptionCheck(nullptr)
    , descriptionEdit(nullptr)
    , presenceCombo(nullptr)
    , saveButton(nullptr)
    , cancelButton(nullptr)
    , pubdirWidget(nullptr)
    , dialog(nullptr)
    , pubdirControls(nullptr)
    , avatarWidget(nullptr)
    , protocolName(protocolName)
    , accountWindow(new KirvAccountWindow(this))
{
    KirvAccountsTab *page = KirvAccountsTab::getInstance();
    // Intended: the previous dialog is deleted also when no window is opened below.
    delete page->accEdit;
    page->accEdit = nullptr;
    if (!protocol)
        return;
    page->accEdit = this;

    setupGui();
    if (!dialog)
        return;
    setupData();
    dialog->setParent(parent, flags);
    dialog->setWindowModality(Qt::WindowModal);
    // Intended: the caller's flags serve the re-parenting only, the window is always a plain dialog.
    dialog->setWindowFlags(Qt::Dialog);
    dialog->setVisible(true);
}

KirvEditAccountDialog::~KirvEditAccountDialog()
{
    // Not getInstance(): it would create a page when there is none any more.
    if (KirvAccountsTab::instance && KirvAccountsTab::instance->accEdit == this)
        KirvAccountsTab::instance->accEdit = nullptr;
}

QString KirvEditAccountDialog::getAccountId() const
{
    return accountId;
}

QString KirvEditAccountDialog::getProtocolName() const
{
    return protocolName;
}

QDialog *KirvEditAccountDialog::getWindow() const
{
    return accountWindow->get();
}

KirvEditAccountDialog *KirvEditAccountDialog::of(const QWidget *window)
{
    return qobject_cast<KirvEditAccountDialog *>(KirvAccountWindow::controllerOf(window));
}

void KirvEditAccountDialog::setupGui()
{
    dialog = accountWindow->load(QLatin1String("EditAccount"));
    if (!dialog)
        return;
    new WindowGuard(this, dialog, pubdirWidget);

    aliasEdit = dialog->findChild<QLineEdit *>(QLatin1String("EditAccount_Alias"));
    QWidget *avatarPlacement = dialog->findChild<QWidget *>(QLatin1String("EditAccount_AvatarPlacement"));
    passwordEdit = dialog->findChild<QLineEdit *>(QLatin1String("EditAccount_Password"));
    rememberPasswordCheck = dialog->findChild<QCheckBox *>(QLatin1String("EditAccount_RememberPassword"));
    rememberPresenceCheck = dialog->findChild<QCheckBox *>(QLatin1String("EditAccount_RememberPresence"));
    rememberDescriptionCheck = dialog->findChild<QCheckBox *>(QLatin1String("EditAccount_RememberDescription"));
    QDialogButtonBox *buttons = dialog->findChild<QDialogButtonBox *>(QLatin1String("EditAccount_FrameButtons"));
    saveButton = buttons->button(QDialogButtonBox::Save);
    cancelButton = buttons->button(QDialogButtonBox::Cancel);
    QTabWidget *tabs = dialog->findChild<QTabWidget *>(QLatin1String("EditAccount_Tabs"));
    QLabel *identifier = dialog->findChild<QLabel *>(QLatin1String("EditAccount_Identifier"));
    presenceCombo = dialog->findChild<QComboBox *>(QLatin1String("EditAccount_PresenceCombo"));
    descriptionEdit = dialog->findChild<QTextEdit *>(QLatin1String("EditAccount_DescriptionEdit"));
    pubdirControls = dialog->findChild<QWidget *>(QLatin1String("EditAccount_PubDirControls"));
    QWidget *pubdirResults = dialog->findChild<QWidget *>(QLatin1String("EditAccount_PubDirResults"));
    QWidget *accountSettings = dialog->findChild<QWidget *>(QLatin1String("EditAccount_AccSettings"));

    identifier->setText(accountId + QLatin1String(" (") + protocol->getName() + QLatin1String(")"));
    KirvAccountConnection *account = KirvAccountManager::getInstance()->loadAccount(accountId, protocol->getName());
    if (!account)
        return;

    connect(rememberPresenceCheck, SIGNAL(toggled(bool)), presenceCombo, SLOT(setDisabled(bool)));
    connect(rememberPresenceCheck, SIGNAL(toggled(bool)), descriptionEdit, SLOT(setDisabled(bool)));
    connect(rememberDescriptionCheck, SIGNAL(toggled(bool)), descriptionEdit, SLOT(setDisabled(bool)));
    setupAvatar(account, avatarPlacement);
    setupPresences(account);
    setupAccountSettings(account, accountSettings);
    setupPubdir(tabs, pubdirResults);
    connect(saveButton, SIGNAL(clicked()), this, SLOT(saveAndClose()));
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(reject()));
}

void KirvEditAccountDialog::setupAvatar(KirvAccountConnection *account, QWidget *placeholder)
{
    avatarWidget = new KirvAvatarQuickSetWidget(dialog);
    avatarWidget->setFixedSize(64, 64);
    KirvUILoader::insertWidget(placeholder, avatarWidget);
    avatarWidget->setImage(account->getCurrentAvatarPath());
    connect(avatarWidget, SIGNAL(imageSelected(const QString &)), this, SLOT(changeAvatar(const QString &)));
}

void KirvEditAccountDialog::setupPresences(KirvAccountConnection *account)
{
    const QList<KirvPresence> presences = protocol->getAllPresences();
    for (int i = 0; i < presences.size(); ++i) {
        const KirvPresence &presence = presences.at(i);
        // Intended: a slash is put before "icons/" here, also when the theme directory ends with one.
        const QIcon icon(KirvSettingsManager::getInstance()->getCurrentRosterThemeDir() + QLatin1String("/icons/")
                         + presence.getIcon());
        presenceCombo->insertItem(presenceCombo->count(), icon, presence.getDisplay(), QVariant(presence.getId()));
        if (presence.getId() == account->getDefaultPresence().getId())
            presenceCombo->setCurrentIndex(i);
    }
    descriptionEdit->setText(account->getDefaultPresence().getDescription());
}

void KirvEditAccountDialog::setupAccountSettings(KirvAccountConnection *account, QWidget *placeholder)
{
    const QList<KirvField> settings = account->getAccountSettingsInOrder();
    if (settings.isEmpty())
        return;
    accountSettingsWidget = new KirvFieldWidget(settings, dialog, KirvFieldWidget::Layout(0));
    KirvUILoader::insertWidget(placeholder, accountSettingsWidget);
}

void KirvEditAccountDialog::setupPubdir(QTabWidget *tabs, QWidget *placeholder)
{
    const QList<KirvField> fields = protocol->getPubdirAccountFields();
    if (fields.isEmpty()) {
        tabs->removeTab(1);
        return;
    }
    pubdirWidget = new KirvFieldWidget(fields, dialog, KirvFieldWidget::Layout(0));
    connect(tabs, SIGNAL(currentChanged(int)), this, SLOT(togglePubdirControl(int)));
    KirvUILoader::insertWidget(placeholder, pubdirWidget);
    setupPubdirControls();
}

/// A layout need not offer these controls.
void KirvEditAccountDialog::setupPubdirControls()
{
    if (!pubdirControls)
        return;
    if (QAbstractButton *fetch = pubdirControls->findChild<QAbstractButton *>(QLatin1String("EditAccount_PubDirFetch")))
        connect(fetch, SIGNAL(clicked()), this, SLOT(requestPubdirInfo()));

    QAbstractButton *remove = pubdirControls->findChild<QAbstractButton *>(QLatin1String("EditAccount_PubDirDelete"));
    if (!remove)
        return;
    const QString title = QCoreApplication::translate("translation", "Deleting directory entry", "message box title");
    const QString question = QCoreApplication::translate(
        "translation", "Do you want to delete the directory entry of account '%1' (%2) from the server?",
        "%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry");
    QMessageBox *box = new QMessageBox(QMessageBox::Question, title, question.arg(accountId, protocol->getName()),
                                       QMessageBox::Yes | QMessageBox::No, dialog);
    box->setObjectName(QLatin1String("EditAccount_PubDirDeleteQuestion"));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    connect(remove, SIGNAL(clicked()), box, SLOT(open()));
    connect(box->button(QMessageBox::Yes), SIGNAL(clicked()), this, SLOT(removePubdirInfo()));
}

/// Fills what does not depend on whether the account manager finds the account.
void KirvEditAccountDialog::setupData()
{
    const QList<KirvField> globals =
        KirvSettingsManagerPrivate::settingsMgrPrivInstance->readAccountGlobals(accountId, protocol->getName());
    for (const KirvField &field : globals) {
        const QString id = field.getId();
        if (id == QLatin1String("alias"))
            aliasEdit->setText(field.getText());
        else if (id == QLatin1String("password"))
            passwordEdit->setText(field.getText());
        else if (id == QLatin1String("password/remember"))
            setChecked(rememberPasswordCheck, field);
        else if (id == QLatin1String("presence/restore"))
            setChecked(rememberPresenceCheck, field);
        else if (id == QLatin1String("presence/restore_desc"))
            setChecked(rememberDescriptionCheck, field);
    }
}

void KirvEditAccountDialog::saveSettings()
{
    if (!dialog)
        return;
    KirvAccountConnection *account = KirvAccountManager::getInstance()->loadAccount(accountId, protocol->getName());
    if (!account)
        return;

    if (pubdirWidget && KirvAccountManager::getInstance()->accountEnabled(accountId, protocol->getName()))
        savePubdirInfo(account);

    // Intended: written also while the remember-presence box has both widgets disabled.
    const QString presenceId = presenceCombo->itemData(presenceCombo->currentIndex(), Qt::UserRole).toString();
    const QString description = descriptionEdit->document()->toPlainText();
    account->setDefaultPresence(protocol->createPresenceWithId(presenceId, description));

    account->setRestoreLastPresence(isChecked(rememberPresenceCheck));
    account->setRestoreLastDescription(isChecked(rememberDescriptionCheck));
    account->setRememberPassword(isChecked(rememberPasswordCheck));
    savePassword(account);
    account->setAlias(aliasEdit->text());
    if (accountSettingsWidget)
        account->setAccountSettings(accountSettingsWidget->getFields());

    KirvAccountsTab::getInstance()->updateAccount(account);
}

/// Unchanged data is not published again, and nothing is sent for an account that is offline.
void KirvEditAccountDialog::savePubdirInfo(KirvAccountConnection *account)
{
    const QList<KirvField> fields = pubdirWidget->getFields();
    if (!account->isLoggedIn() || fields == pubdirData)
        return;
    pubdirData = fields;
    pubdirWidget->setEnabled(false);
    protocol->publishPubdirInfo(account, fields);
}

void KirvEditAccountDialog::savePassword(KirvAccountConnection *account)
{
    if (passwordEdit->text() == account->getPassword())
        return;
    account->setPassword(passwordEdit->text());
    if (account->isEnabled()) {
        account->setPresence(account->getDefaultPresence());
        account->getProtocol()->accountPresenceChanged(account);
    }
}

void KirvEditAccountDialog::saveAndClose()
{
    const QPointer<QDialog> window(dialog); // a slot may delete the controller, the window or both
    saveSettings();
    if (window)
        window->accept();
    if (window)
        window->close();
}

void KirvEditAccountDialog::reject()
{
    const QPointer<QDialog> window(dialog); // as in saveAndClose()
    if (window)
        window->reject();
    if (window)
        window->close();
}

void KirvEditAccountDialog::changeAvatar(const QString &path)
{
    if (!protocol)
        return;
    KirvAccountConnection *account = KirvAccountManager::getInstance()->loadAccount(accountId, protocol->getName());
    if (account)
        account->setAvatar(path);
}

int KirvEditAccountDialog::exec()
{
    if (!dialog)
        return 0; // QDialog::Rejected: there is no window that could be accepted
    return dialog->exec();
}

void KirvEditAccountDialog::finished(int result)
{
    Q_UNUSED(result);
    deleteLater();
}

void KirvEditAccountDialog::togglePubdirControl(int index)
{
    if (index != 0)
        requestPubdirInfo();
}

void KirvEditAccountDialog::requestPubdirInfo()
{
    if (KirvAccountConnection *account = lockPubdirFields())
        protocol->fetchPubdirInfo(account);
}

void KirvEditAccountDialog::removePubdirInfo()
{
    if (KirvAccountConnection *account = lockPubdirFields()) {
        pubdirData.clear(); // so that the empty answer blanks the fields
        protocol->deletePubdirInfo(account);
    }
}

/// Disables the directory fields until the reply has arrived, and returns the account to send the request for. Null
/// when no request can be sent: intended, the fields then stay disabled until a reply for the account arrives.
KirvAccountConnection *KirvEditAccountDialog::lockPubdirFields()
{
    if (!pubdirWidget)
        return nullptr;
    pubdirWidget->setEnabled(false);
    KirvAccountManager *manager = KirvAccountManager::getInstance();
    if (!manager->accountEnabled(accountId, protocol->getName()))
        return nullptr;
    KirvAccountConnection *account = manager->loadAccount(accountId, protocol->getName());
    return account && account->isLoggedIn() ? account : nullptr;
}

void KirvEditAccountDialog::customEvent(QEvent *event)
{
    if (int(event->type()) != KirvPubdirAccountReceivedEvent::EventType)
        return;
    const KirvPubdirAccountReceivedEvent *answer = static_cast<KirvPubdirAccountReceivedEvent *>(event);
    KirvAccountConnection *account = answer->getAccount();
    if (!pubdirWidget || !account)
        return;
    if (account->getUid() != accountId || account->getProtocol() != protocol)
        return;

    const QList<KirvField> data = answer->getData();
    if (!data.isEmpty()) {
        pubdirData = data;
        pubdirWidget->fillWithFields(pubdirData);
    } else if (pubdirData.isEmpty()) {
        pubdirWidget->fillWithFields(protocol->getPubdirAccountFields());
    } // else what was published stays
    pubdirWidget->setEnabled(true);
}

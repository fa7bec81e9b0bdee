// SPDX-License-Identifier: LGPL-2.1-or-later
#include "add_account/kirv_add_account_dialog.h"

#include "accounts_tab/kirv_account_window_p.h"
#include "accounts_tab/kirv_accounts_tab.h"
#include "accounts_tab/kirv_qt_compat_p.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_protocol.h"
#include "host/kirv_settings_manager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace {

QString noConfiguration()
{
    return QCoreApplication::translate("translation", "None", "nc");
}

}

KirvAddAccountDialog::KirvAddAccountDialog(KirvProtocol *protocol, const QString &configuration, QWidget *parent,
                                           Qt::WindowFlags flags)
    : protocol(protocol)
    , fieldWidget(nullptr)
    , passwordEdit(nullptr)
    , usernameEdit(nullptr)
    , presenceCombo(nullptr)
    , rememberPasswordCheckbox(nullptr)
    , saveButton(nullptr)
    , dialog(nullptr)
    , initialConfiguration(configuration)
    , accountWindow(new KirvAccountWindow(this))
{
    setupGui();
    if (!dialog)
        return;
    dialog->setParent(parent, flags);
    dialog->setWindowModality(Qt::WindowModal);
    // Intended: the caller's flags serve the re-parenting only, the window is always a plain dialog.
    dialog->setWindowFlags(Qt::Dialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose, true);
}

KirvAddAccountDialog::~KirvAddAccountDialog() { }

KirvProtocol *KirvAddAccountDialog::getProtocol() const
{
    return protocol;
}

QDialog *KirvAddAccountDialog::getWindow() const
{
    return accountWindow->get();
}

KirvAddAccountDialog *KirvAddAccountDialog::of(const QWidget *window)
{
    return qobject_cast<KirvAddAccountDialog *>(KirvAccountWindow::controllerOf(window));
}

/// The combo boxes are filled before their signals are connected, so filling them runs no slot.
void KirvAddAccountDialog::setupGui()
{
    dialog = accountWindow->load(QLatin1String("AddAccount"));
    if (!dialog)
        return;
    usernameEdit = dialog->findChild<QLineEdit *>(QLatin1String("AddAccount_UsernameEdit"));
    passwordEdit = dialog->findChild<QLineEdit *>(QLatin1String("AddAccount_PasswordEdit"));
    rememberPasswordCheckbox = dialog->findChild<QCheckBox *>(QLatin1String("AddAccount_RememberPasswordCheckbox"));
    presenceCombo = dialog->findChild<QComboBox *>(QLatin1String("AddAccount_PresenceCombo"));
    QLabel *configurationLabel = dialog->findChild<QLabel *>(QLatin1String("AddAccount_ConfigurationLabel"));
    QComboBox *configurations = dialog->findChild<QComboBox *>(QLatin1String("AddAccount_Configuration"));
    QDialogButtonBox *buttons = dialog->findChild<QDialogButtonBox *>(QLatin1String("AddAccount_ButtonFrame"));

    connect(buttons, SIGNAL(accepted()), this, SLOT(addAccount()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    saveButton = buttons->button(QDialogButtonBox::Save);
    saveButton->setEnabled(false);
    connect(dialog, SIGNAL(finished(int)), this, SLOT(finished(int)));
    // A window that is destroyed with its parent does not emit finished(); the controller is deleted all the same.
    connect(dialog, SIGNAL(destroyed()), this, SLOT(deleteLater()));

    QWidget *loginFrame = dialog->findChild<QWidget *>(QLatin1String("AddAccount_LoginFrame"));
    setupConfigurations(configurations, configurationLabel);
    connect(configurations, KIRV_COMBO_BOX_TEXT_SIGNAL, this, SLOT(configurationChanged(const QString &)));
    setupFieldWidget(qobject_cast<QFormLayout *>(loginFrame->layout()));
    passwordEdit->setEchoMode(QLineEdit::Password);
    setupPresences();
    connect(usernameEdit, SIGNAL(textChanged(const QString &)), this, SLOT(textChanged(const QString &)));
    connect(passwordEdit, SIGNAL(textChanged(const QString &)), this, SLOT(textChanged(const QString &)));
    dialog->adjustSize();
    setupLoginValidation();
    selectInitialConfiguration(configurations);
}

void KirvAddAccountDialog::setupConfigurations(QComboBox *configurations, QWidget *label)
{
    if (protocol->getConfigurations().isEmpty()) {
        configurations->setVisible(false);
        label->setVisible(false);
        return;
    }
    configurations->addItem(QIcon(), noConfiguration());
    // Intended: one call to test and one to fill.
    const QStringList names = protocol->getConfigurations();
    for (const QString &name : names)
        configurations->addItem(QIcon(), name);
}

void KirvAddAccountDialog::setupFieldWidget(QFormLayout *loginForm)
{
    if (!loginForm)
        return;
    const QList<KirvField> settings = protocol->getAccountSettings();
    if (settings.isEmpty())
        return;
    fieldWidget = new KirvFieldWidget(settings, nullptr, KirvFieldWidget::Layout(0));
    loginForm->addRow(fieldWidget);
}

void KirvAddAccountDialog::setupPresences()
{
    const QList<KirvPresence> presences = protocol->getAllPresences();
    for (const KirvPresence &presence : presences) {
        // Intended: no slash is put before "icons/", the theme directory ends with one.
        const QString icon = KirvSettingsManager::getInstance()->getCurrentRosterThemeDir() + QLatin1String("icons/")
            + presence.getIcon();
        presenceCombo->addItem(QIcon(icon), presence.getDisplay(), QVariant(presence.getId()));
    }
    presenceCombo->setCurrentIndex(0);
}

void KirvAddAccountDialog::setupLoginValidation()
{
    usernameEdit->setValidator(kirvCreatePatternValidator(protocol->getLoginPattern(), this));
}

void KirvAddAccountDialog::selectInitialConfiguration(QComboBox *configurations)
{
    const int index = configurations->findData(QVariant(initialConfiguration), Qt::DisplayRole,
                                               Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index != -1)
        configurations->setCurrentIndex(index);
}

void KirvAddAccountDialog::textChanged(const QString &text)
{
    Q_UNUSED(text);
    // Intended: without the validator, so that a login of which only the beginning is typed enables Save, too.
    saveButton->setEnabled(!usernameEdit->text().isEmpty() && !passwordEdit->text().isEmpty());
}

void KirvAddAccountDialog::configurationChanged(const QString &name)
{
    if (name == noConfiguration()) {
        if (fieldWidget)
            fieldWidget->fillWithFields(protocol->getAccountSettings());
        usernameEdit->setText(QString());
        return;
    }

    if (fieldWidget)
        fieldWidget->fillWithFields(protocol->getConfigurationFields(name));
    // Intended: a second call, and the last "login" wins.
    const QList<KirvField> fields = protocol->getConfigurationFields(name);
    for (const KirvField &field : fields) {
        if (field.getId() == QLatin1String("login"))
            usernameEdit->setText(field.getText());
    }
}

void KirvAddAccountDialog::addAccount()
{
    const QString login = usernameEdit->text();
    const QString password = passwordEdit->text();
    // Intended: a box that is partially checked counts as checked here.
    const bool rememberPassword = rememberPasswordCheckbox->checkState() != Qt::Unchecked;
    QList<KirvField> settings;
    if (fieldWidget)
        settings = fieldWidget->getFields();
    const QString presenceId = presenceCombo->itemData(presenceCombo->currentIndex(), Qt::UserRole).toString();
    const KirvPresence presence = protocol->createPresenceWithId(presenceId, QString());

    // Intended: the login is the account id and the alias.
    KirvAccountConnection *account = KirvAccountManager::getInstance()->createAccount(
        login, login, password, rememberPassword, protocol, presence, settings);
    if (!account) {
        const QString title =
            QCoreApplication::translate("translation", "Add account", "adding account error message box title");
        // Intended: the translations are keyed on this spelling.
        const QString text = QCoreApplication::translate("translation", "Account '%1' alerady exists!",
                                                         "information about existing account while adding account");
        QMessageBox::information(dialog, title, text.arg(login), QMessageBox::Ok, QMessageBox::NoButton);
        return;
    }

    KirvAccountsTab::getInstance()->addAccountEntry(account);
    dialog->accept();
    dialog->close();
}

int KirvAddAccountDialog::exec()
{
    if (!dialog) {
        deleteLater();
        return 0; // QDialog::Rejected: there is no window that could be accepted
    }
    return dialog->exec();
}

void KirvAddAccountDialog::finished(int result)
{
    Q_UNUSED(result);
    deleteLater();
}

void KirvAddAccountDialog::reject()
{
    dialog->close();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_edit_window_companion.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_actions_menu.h"
#include "client/kirv_directory_guard.h"
#include "client/kirv_file_button.h"
#include "client/kirv_plain_text.h"
#include "client/kirv_remember_box.h"
#include "client/kirv_state_line.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/ui/kirv_field_form.h"
#include "core/ui/kirv_form_area.h"
#include "core/ui/kirv_length_limit.h"
#include "core/values/kirv_text_limit.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextEdit>

#include <utility>

namespace {

/// The outermost enabled widgets in \a container, without \a excluded and what contains it.
QList<QPointer<QWidget>> enabledWidgets(const QWidget *container, const QWidget *excluded)
{
    QList<QPointer<QWidget>> found;
    const auto children = container->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *widget : children) {
        if (widget == excluded || widget->isWindow() || !widget->isEnabledTo(container))
            continue;
        if (widget->isAncestorOf(excluded))
            found << enabledWidgets(widget, excluded);
        else
            found << widget;
    }
    return found;
}

} // namespace

KirvEditWindowCompanion::KirvEditWindowCompanion(KirvLayoutDialog *window, KirvEditAccountDialog *controller,
                                                 KirvAccountCollection &accounts, KirvServerCommands &serverCommands)
    : KirvWindowCompanion(window)
    , controller(controller)
    , accounts(accounts)
    , serverCommands(serverCommands)
    , accountKey { controller->getAccountId(), controller->getProtocolName() }
    , buttons(window->findChild<QDialogButtonBox *>(QStringLiteral("EditAccount_FrameButtons")))
    , saveButton(buttons->button(QDialogButtonBox::Save))
    , passwordEdit(window->findChild<QLineEdit *>(QStringLiteral("EditAccount_Password")))
{
    connect(saveButton, &QPushButton::clicked, this, &KirvEditWindowCompanion::beginSave);
}

KirvEditWindowCompanion::~KirvEditWindowCompanion()
{
    accounts.disconnect(this); // the widgets are gone already
    if (saving)
        saving->endSave();
    if (!controller)
        return;
    controller->disconnect(this);
    delete controller;
}

void KirvEditWindowCompanion::close()
{
    if (controller) {
        controller->disconnect(this);
        delete controller;
    }
    window()->finish(QDialog::Rejected);
    window()->deleteLater(); // a window that was hidden already does not finish again
}

void KirvEditWindowCompanion::aboutToShow()
{
    if (isBound || !controller)
        return;
    isBound = true;
    bindWindow();
    KirvAccount *account = accounts.find(accountKey);
    if (!account || !account->isLoaded()) { // the page leaves the buttons of such a window without effect
        connect(buttons, &QDialogButtonBox::rejected, window(), &QDialog::reject);
        return;
    }
    knownPassword = account->getPassword();
    kirvLimitLength(passwordEdit);
    kirvLimitLength(window()->findChild<QLineEdit *>(QStringLiteral("EditAccount_Alias")));
    new KirvRememberBox(window()->findChild<QCheckBox *>(QStringLiteral("EditAccount_RememberPassword")),
                        accounts.secrets(), KirvRememberBox::AsItIs);
    findSettings(*account->protocol());
    unshownSecrets = account->record().unreadSecrets;
    addReasons();
    showSecrets(*account);
    connect(&accounts.secrets(), &KirvSecretKeeper::changed, this, [this] {
        if (const KirvAccount *shown = accounts.find(accountKey))
            showSecrets(*shown);
    });
    showIdentifierAsPlainText();
    describeParts();
    showDescriptionAsPlainText(*account);
    watchRefusals(*account);
    addServerAccountButton();
    if (settings)
        KirvFileButton::addTo(settings, account->protocol()->fileSettings());
    directory = new KirvDirectoryGuard(window(), controller, accounts);
    connect(directory, &KirvDirectoryGuard::publicationEnded, this, &KirvEditWindowCompanion::onPublicationEnded);
    input.note(window());
    fitToScreen();
}

/// As a rule Qt opens a window with two thirds of the screen at most; here it may have nine tenths, and what does not
/// fit is scrolled.
void KirvEditWindowCompanion::fitToScreen()
{
    const auto areas = window()->findChildren<KirvFormArea *>();
    for (const KirvFormArea *area : areas)
        area->ensurePolished();
    // Once the forms in the areas are laid out, they may be narrower.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const int scrollBar = window()->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, window());
    window()->resize(
        (window()->sizeHint() + QSize(3 * scrollBar, 0)).boundedTo(window()->screen()->availableSize() * 9 / 10));
}

void KirvEditWindowCompanion::bindWindow()
{
    connect(window(), SIGNAL(finished(int)), controller, SLOT(finished(int)));
    connect(window(), &QDialog::finished, window(), &QDialog::deleteLater);
    // The page deletes the controller of the window before when it opens the next one.
    connect(controller, &QObject::destroyed, this, &KirvEditWindowCompanion::close);
    connect(&accounts, &KirvAccountCollection::accountChanged, this, &KirvEditWindowCompanion::onAccountChanged);
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this, [this](const KirvAccount *account) {
        if (account->key() == accountKey)
            close();
    });
}

void KirvEditWindowCompanion::showIdentifierAsPlainText()
{
    if (auto *identifier = window()->findChild<QLabel *>(QStringLiteral("EditAccount_Identifier"))) {
        identifier->setTextFormat(Qt::PlainText);
        identifier->setToolTip(kirvPlainToolTip(kirvPlainName(accountKey.id))); // the line may be too short for it
        identifier->setText(
            kirvPlainName(kirvShortName(accountKey.id) + QLatin1String(" (") + accountKey.protocol + QLatin1Char(')')));
    }
}

/// What a layout need not have, and what an empty line means.
void KirvEditWindowCompanion::describeParts()
{
    if (auto *state = window()->findChild<QLabel *>(QStringLiteral("EditAccount_State")))
        new KirvStateLine(state, accountKey, accounts);
    auto *alias = window()->findChild<QLineEdit *>(QStringLiteral("EditAccount_Alias"));
    alias->setPlaceholderText(kirvPlainName(kirvShortName(accountKey.id)));
    for (const char *name : { "EditAccount_ServerHeading", "EditAccount_PresenceHeading" }) {
        if (auto *heading = window()->findChild<QLabel *>(QLatin1String(name))) {
            QFont bold = heading->font();
            bold.setBold(true);
            heading->setFont(bold);
        }
    }
    const auto *settings = window()->findChild<QWidget *>(QStringLiteral("EditAccount_AccSettings"));
    auto *heading = window()->findChild<QLabel *>(QStringLiteral("EditAccount_ServerHeading"));
    if (heading && settings && !settings->findChild<KirvFieldWidget *>())
        heading->hide();
}

/// The page sets it as a text that may be markup.
void KirvEditWindowCompanion::showDescriptionAsPlainText(const KirvAccount &account)
{
    auto *description = window()->findChild<QTextEdit *>(QStringLiteral("EditAccount_DescriptionEdit"));
    description->setPlainText(account.getDefaultPresence().getDescription());
    kirvLimitLength(description);
}

void KirvEditWindowCompanion::addServerAccountButton()
{
    if (!KirvAccountActionsMenu::isUseful(accountKey, serverCommands))
        return;
    QPushButton *more = buttons->addButton(tr("&Server Account"), QDialogButtonBox::ResetRole); // stands apart
    more->setObjectName(QStringLiteral("EditAccount_ServerAccountButton"));
    more->setAutoDefault(false);
    more->setToolTip(tr("What can be done with the account on its server."));
    more->setMenu(new KirvAccountActionsMenu(accountKey, serverCommands, window(), more));
}

/// The form of the settings: the directory may have fields with the same ids.
void KirvEditWindowCompanion::findSettings(const KirvProtocolBase &protocol)
{
    const auto idsOf = [](const QList<KirvField> &fields) {
        QStringList ids;
        for (const KirvField &field : fields)
            ids << field.getId();
        return ids;
    };
    const auto forms = window()->findChildren<KirvFieldForm *>();
    for (KirvFieldForm *form : forms) {
        if (!settings && idsOf(form->fields()) == idsOf(protocol.accountSettings()))
            settings = form;
    }
}

void KirvEditWindowCompanion::beginSave()
{
    KirvAccount *account = accounts.find(accountKey);
    if (saving || !account || !account->isLoaded()) // the page saves nothing then
        return;
    saving = account;
    account->beginSave();
    if (directory)
        directory->saveBegins();
    QMetaObject::invokeMethod(this, &KirvEditWindowCompanion::endClick, Qt::QueuedConnection);
}

bool KirvEditWindowCompanion::mayFinish(int result)
{
    if (keepsOpen) // the page closes the window after it has accepted it
        return false;
    return result != QDialog::Accepted || !saving || commitSave();
}

/// Whether the window may finish now.
bool KirvEditWindowCompanion::commitSave()
{
    const QPointer<KirvEditWindowCompanion> alive(this);
    const QPointer<KirvAccount> account = std::exchange(saving, nullptr);
    const bool isWrong = directory && directory->wouldPublishWrong();
    if (isWrong)
        account->cancelSave();
    const bool isSaved = account->endSave();
    if (!alive || !account || account->isRemoved())
        return true;
    if (directory)
        directory->saveEnded(isSaved);
    keepsOpen = !isSaved || (directory && (directory->isPublishing() || directory->isLeftUnpublished()));
    if (!isSaved) {
        KirvAccountsTab::getInstance()->updateAccount(account); // its row shows what is stored
        KirvAccountsTab::getInstance()->updateAccounts(); // and the selector, in the order of the rows
    }
    if (isWrong) {
        directory->showWrongEntry();
    } else if (!isSaved) {
        showRefusal(tr("Saving Account"), tr("Nothing was changed. The window stays open, so that you can try again."));
    } else if (directory && directory->isLeftUnpublished()) {
        directory->showUnpublished();
    } else if (keepsOpen) {
        setPublishing(true);
    }
    return !keepsOpen;
}

/// The click on Save has led to everything that it leads to.
void KirvEditWindowCompanion::endClick()
{
    if (saving)
        commitSave();
    keepsOpen = false;
}

/// Meanwhile the window shows what is saved and can only be closed.
void KirvEditWindowCompanion::setPublishing(bool isPublishing)
{
    if (isPublishing) {
        disabled = enabledWidgets(window(), buttons) << saveButton;
        for (QWidget *widget : qAsConst(disabled))
            widget->setEnabled(false);
        return;
    }
    for (QWidget *widget : std::exchange(disabled, {})) {
        if (widget)
            widget->setEnabled(true);
    }
}

void KirvEditWindowCompanion::onPublicationEnded(bool succeeded)
{
    setPublishing(false);
    if (succeeded) {
        window()->finish(QDialog::Accepted);
        return;
    }
    directory->showFields();
    saveButton->setFocus(); // it lost the focus when it was disabled; Enter must not cancel now
}

void KirvEditWindowCompanion::watchRefusals(const KirvAccount &account)
{
    connect(&account, &KirvAccount::refused, this, [this] {
        wasRefused = true;
        QMetaObject::invokeMethod(
            this, [this] { wasRefused = false; }, Qt::QueuedConnection);
    });
    auto *picker = window()->findChild<KirvAvatarQuickSetWidget *>();
    // The page has made its connection already: the account has the picture by then, or has refused it.
    connect(picker, &KirvAvatarQuickSetWidget::imageSelected, this, [this, picker] {
        const KirvAccount *account = accounts.find(accountKey);
        if (!wasRefused || !account)
            return;
        picker->setImage(account->avatarPath());
        showRefusal(tr("Picture of the Account"), tr("The picture was not changed."));
    });
}

void KirvEditWindowCompanion::showRefusal(const QString &title, const QString &advice)
{
    auto *box = new QMessageBox(QMessageBox::Warning, title, accounts.lastError(), QMessageBox::Ok, window());
    box->setObjectName(QStringLiteral("EditAccount_SaveFailed"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(advice);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->show();
}

/// The account may get another password while the window is open, on its server say: the window, which shows the one
/// before, must not put that back.
void KirvEditWindowCompanion::onAccountChanged(KirvAccount *account)
{
    if (account->key() != accountKey || account->isSaving())
        return;
    const QString password = account->getPassword();
    if (passwordEdit->text() == knownPassword && password != knownPassword)
        passwordEdit->setText(password);
    knownPassword = password;
    showSecrets(*account);
}

/// Puts a line below each secret that the window does not show.
void KirvEditWindowCompanion::addReasons()
{
    reasons.insert(QString(), kirvAddLineBelow(passwordEdit, "Reason"));
    for (const QString &field : qAsConst(unshownSecrets)) {
        QLineEdit *edit = settings && !field.isEmpty() ? settings->lineOf(field) : nullptr;
        if (!edit)
            continue;
        QLabel *line = kirvCreateLine(edit->objectName() + QStringLiteral("_Reason"), settings);
        settings->addBelow(edit, line);
        reasons.insert(field, line);
    }
}

/// Says why secrets are not shown, and shows secret settings that have become known: Save would put the empty text that
/// is shown for them in their place.
void KirvEditWindowCompanion::showSecrets(const KirvAccount &account)
{
    const QSet<QString> &unread = account.record().unreadSecrets;
    const QSet<QString> known = unshownSecrets - unread;
    unshownSecrets.intersect(unread);
    for (const QString &field : known) {
        QLineEdit *edit = settings && !field.isEmpty() ? settings->lineOf(field) : nullptr;
        if (edit && edit->text().isEmpty())
            edit->setText(kirvEditablePart(account.record().settings.value(field)));
    }
    showReasons(account);
}

void KirvEditWindowCompanion::showReasons(const KirvAccount &account)
{
    const KirvAccountRecord &record = account.record();
    const KirvSecretTexts texts(accounts.secrets());
    for (auto reason = reasons.constBegin(); reason != reasons.constEnd(); ++reason) {
        const QString &field = reason.key();
        const QString value = field.isEmpty() ? account.getPassword() : record.settings.value(field);
        const bool isShown = !record.unreadSecrets.contains(field) || !value.isEmpty();
        if (field.isEmpty())
            passwordEdit->setPlaceholderText(isShown ? tr("None is stored") : QString());
        if (!*reason)
            continue;
        (*reason)->setText(isShown                           ? QString()
                               : account.awaitsSecret(field) ? texts.notShown()
                                                             : KirvSecretTexts::passwordIsGone());
        (*reason)->setVisible(!isShown);
    }
}

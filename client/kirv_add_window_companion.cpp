// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_add_window_companion.h"

#include "add_account/kirv_add_account_dialog.h"
#include "client/kirv_advanced_section.h"
#include "client/kirv_button_flow.h"
#include "client/kirv_file_button.h"
#include "client/kirv_login_line.h"
#include "client/kirv_login_test_view.h"
#include "client/kirv_remember_box.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/ui/kirv_field_form.h"
#include "core/ui/kirv_keyboard.h"
#include "core/ui/kirv_length_limit.h"
#include "core/ui/kirv_reveal_button.h"
#include "host/kirv_field_widget.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

QDialogButtonBox *buttonsOf(const QWidget *window)
{
    return window->findChild<QDialogButtonBox *>(QStringLiteral("AddAccount_ButtonFrame"));
}

bool isEmptyThoughRequired(const KirvField &field)
{
    return field.isRequired() && field.getText().isEmpty();
}

} // namespace

KirvAddWindowCompanion::KirvAddWindowCompanion(KirvLayoutDialog *window, const KirvAddAccountDialog *controller,
                                               const KirvAccountCollection &accounts)
    : KirvWindowCompanion(window)
    , accounts(accounts)
    , base(static_cast<KirvProtocolBase *>(controller->getProtocol())) // every protocol of this client is one
    , protocolName(base->getName())
{
    // Before the page's connection is made, so that it comes first.
    connect(buttonsOf(window), &QDialogButtonBox::accepted, this, [this] { isAdding = true; });
}

void KirvAddWindowCompanion::aboutToShow()
{
    if (loginEdit)
        return;
    //: %1 = the name of a protocol
    window()->setWindowTitle(tr("Add %1 Account").arg(protocolName));
    setUpLogin();
    setUpSettings();
    setUpSaving();
    setUpTest();
    updateSaving();
    fitHeight();
    // What the style makes higher is known when the window is visible.
    QMetaObject::invokeMethod(this, &KirvAddWindowCompanion::growToFit, Qt::QueuedConnection);
    loginEdit->setFocus();
    // After the page's.
    connect(buttonsOf(window()), &QDialogButtonBox::accepted, this, [this] { isAdding = false; });
    input.note(window());
}

void KirvAddWindowCompanion::setUpLogin()
{
    loginEdit = window()->findChild<QLineEdit *>(QStringLiteral("AddAccount_UsernameEdit"));
    passwordEdit = window()->findChild<QLineEdit *>(QStringLiteral("AddAccount_PasswordEdit"));
    kirvLimitLength(loginEdit);
    kirvLimitLength(passwordEdit);
    loginLine = new KirvLoginLine(loginEdit, protocolName, base->loginExample(), accounts);
    if (KirvRevealButton *reveal = KirvRevealButton::addBeside(passwordEdit))
        reveal->setObjectName(QStringLiteral("AddAccount_PasswordReveal"));
    if (auto *box = window()->findChild<QCheckBox *>(QStringLiteral("AddAccount_RememberPasswordCheckbox")))
        new KirvRememberBox(box, accounts.secrets(), KirvRememberBox::OffWhenUnsafe);
    connect(loginLine, &KirvLoginLine::problemChanged, this, &KirvAddWindowCompanion::growToFit);
    connect(loginLine, &KirvLoginLine::problemChanged, this, &KirvAddWindowCompanion::updateTest);
    connect(loginEdit, &QLineEdit::textChanged, this, &KirvAddWindowCompanion::updateSaving);
    connect(loginEdit, &QLineEdit::editingFinished, this, &KirvAddWindowCompanion::openAdvancedForProblem);
    connect(passwordEdit, &QLineEdit::textChanged, this, &KirvAddWindowCompanion::updateSaving);
}

void KirvAddWindowCompanion::setUpSettings()
{
    settings = window()->findChild<KirvFieldWidget *>();
    if (!settings)
        return;
    advanced = KirvAdvancedSection::addAbove(settings);
    if (advanced)
        connect(advanced, &KirvAdvancedSection::toggled, this, &KirvAddWindowCompanion::fitHeight);
    takeNewSettings();
    // After the page's connection, which fills the settings in.
    if (const auto *configurations = window()->findChild<QComboBox *>(QStringLiteral("AddAccount_Configuration")))
        connect(configurations, &QComboBox::currentTextChanged, this, &KirvAddWindowCompanion::takeNewSettings);
}

void KirvAddWindowCompanion::setUpSaving()
{
    QDialogButtonBox *buttons = buttonsOf(window());
    saveWithoutPassword = new QPushButton(buttons);
    saveWithoutPassword->setObjectName(QStringLiteral("AddAccount_SaveWithoutPassword"));
    QSet<QChar> taken = kirvMnemonicsAround(saveWithoutPassword);
    saveWithoutPassword->setText(kirvWithMnemonic(tr("Save Without a Password"), &taken));
    buttons->addButton(saveWithoutPassword, QDialogButtonBox::AcceptRole);

    auto *column = qobject_cast<QBoxLayout *>(window()->layout());
    if (!column || column->indexOf(buttons) < 0)
        return;
    saveHint = new QLabel(window());
    saveHint->setObjectName(QStringLiteral("AddAccount_SaveHint"));
    saveHint->setTextFormat(Qt::PlainText);
    saveHint->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    column->insertWidget(column->indexOf(buttons), saveHint);
}

/// The buttons of the test stand in the row of the others.
void KirvAddWindowCompanion::setUpTest()
{
    QDialogButtonBox *buttons = buttonsOf(window());
    auto *column = qobject_cast<QBoxLayout *>(window()->layout());
    const int row = column ? column->indexOf(buttons) : -1;
    if (row < 0)
        return;
    test = new KirvLoginTestView(
        *base, [this] { return typedLogin(); }, QStringLiteral("AddAccount"), window());
    auto *flow = new KirvButtonFlow(window());
    flow->setObjectName(QStringLiteral("AddAccount_Buttons"));
    column->insertWidget(row, flow);
    flow->addAtBeginning(test->runButton());
    flow->addAtBeginning(test->copyButton());
    flow->addAtEnd(buttons);
    column->insertWidget(saveHint ? column->indexOf(saveHint) : row, test);
    test->chooseMnemonics();
    test->placeInTabOrderBefore(buttons);
    connect(test, &KirvLoginTestView::stepsChanged, this, &KirvAddWindowCompanion::growToFit);
    connect(window(), &QDialog::finished, test, &KirvLoginTestView::cancel);
}

KirvLogin KirvAddWindowCompanion::typedLogin() const
{
    return { loginEdit->text(), passwordEdit->text(), settingsFields() };
}

QList<KirvField> KirvAddWindowCompanion::settingsFields() const
{
    if (settings)
        return settings->getFields();
    return base ? base->accountSettings() : QList<KirvField>();
}

/// Of a login that is good by itself.
QString KirvAddWindowCompanion::settingsProblem() const
{
    const QString login = loginEdit->text();
    const bool isGood = base && !login.isEmpty() && base->loginProblem(login).isEmpty();
    return isGood ? base->settingsProblem(login, settingsFields()) : QString();
}

/// What is missing is there.
void KirvAddWindowCompanion::openAdvancedForProblem()
{
    if (advanced && !settingsProblem().isEmpty())
        advanced->setOpen(true);
}

/// An account that exists already can be tested, too.
void KirvAddWindowCompanion::updateTest()
{
    if (!test || !base)
        return;
    const QString login = loginEdit->text();
    const QString problem = login.isEmpty() ? tr("The login is missing.") : base->loginProblem(login);
    test->setProblem(problem.isEmpty() ? settingsProblem() : problem);
}

/// The form of the settings is a new one. Settings that differ from those of any new account, or that must be filled
/// in, are not hidden.
void KirvAddWindowCompanion::takeNewSettings()
{
    if (!base) // the protocol has gone, and the window goes
        return;
    const auto forms = settings->findChildren<KirvFieldForm *>(); // the one before is about to be deleted
    connect(forms.last(), &KirvFieldForm::edited, this, &KirvAddWindowCompanion::updateSaving);
    KirvFileButton::addTo(forms.last(), base->fileSettings());
    updateSaving();
    if (!advanced)
        return;
    const QList<KirvField> fields = settings->getFields();
    if (fields != base->accountSettings() || std::any_of(fields.begin(), fields.end(), isEmptyThoughRequired))
        advanced->setOpen(true);
}

/// As high as its content needs and the screen has room for; the width that the user gave it stays.
void KirvAddWindowCompanion::fitHeight()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // of what was just shown or hidden
    const QSize available = window()->screen()->availableSize() * 9 / 10; // the frame is around it
    const int width = std::min(std::max(window()->width(), window()->sizeHint().width()), available.width());
    window()->resize(width, std::min(wantedHeight(width), available.height()));
}

/// Texts and rows that are wrapped need more height than the window has by itself.
int KirvAddWindowCompanion::wantedHeight(int width) const
{
    const int height = window()->sizeHint().height();
    const QLayout *layout = window()->layout();
    return layout && layout->hasHeightForWidth() ? std::max(height, layout->totalHeightForWidth(width)) : height;
}

/// A sentence of several lines must not hide what is below it.
void KirvAddWindowCompanion::growToFit()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (window()->isVisible() && wantedHeight(window()->width()) > window()->height())
        fitHeight();
}

void KirvAddWindowCompanion::updateSaving()
{
    if (!saveWithoutPassword || !base) // not built yet, or about to close
        return;
    updateTest();
    const bool hasLogin = !loginEdit->text().isEmpty(), hasPassword = !passwordEdit->text().isEmpty();
    const QString problem = settingsProblem();
    const bool needsNoPassword =
        hasLogin && !hasPassword && problem.isEmpty() && !base->needsPassword(loginEdit->text(), settingsFields());
    saveWithoutPassword->setVisible(needsNoPassword);
    QString why;
    if (!hasLogin)
        why = hasPassword ? tr("The login is missing.") : tr("The login and the password are missing.");
    else if (!problem.isEmpty())
        why = problem;
    else if (!hasPassword)
        why = needsNoPassword ? tr("The account can be used without a password.") : tr("The password is missing.");
    if (QPushButton *save = buttonsOf(window())->button(QDialogButtonBox::Save)) {
        save->setToolTip(why);
        save->setAccessibleDescription(why);
    }
    if (saveHint)
        saveHint->setText(why);
}

void KirvAddWindowCompanion::close()
{
    if (test)
        test->cancel();
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
    loginLine->showRefusal(reason);
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

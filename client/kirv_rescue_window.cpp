// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_rescue_window.h"

#include "client/kirv_wrapped_text.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
const int comfortableRescueWidth = 75; // in average characters
}

KirvRescueWindow::KirvRescueWindow(const QString &folder, const QString &problem, QWidget *parent)
    : QDialog(parent)
    , profile(folder)
    , copies(profile.copies())
    , icon(new QLabel(this))
    , text(new KirvWrappedText(this))
    , outcome(new KirvWrappedText(this))
    , copiesLabel(new QLabel(this))
    , list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("ProfileRescue"));
    setWindowTitle(tr("Damaged Profile"));
    createTexts(problem);
    createCopies();
    createChoices();
    createButtons();
    arrange();
    fitToContents();
    chooseDefault();
}

void KirvRescueWindow::createTexts(const QString &problem)
{
    icon->setObjectName(QStringLiteral("ProfileRescue_Icon"));
    showIcon(QStyle::SP_MessageBoxWarning);
    text->setObjectName(QStringLiteral("ProfileRescue_Text"));
    text->setAccessibleName(tr("Problem"));
    text->showText(problem + QLatin1Char('\n')
                   + tr("Choose what to do. The damaged database is kept in any case, under a name with the date."));
    outcome->setObjectName(QStringLiteral("ProfileRescue_Outcome"));
    outcome->setAccessibleName(tr("Result"));
    outcome->hide();
    for (KirvWrappedText *part : { text, outcome }) // on a small screen
        part->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void KirvRescueWindow::createCopies()
{
    copiesLabel->setObjectName(QStringLiteral("ProfileRescue_CopiesLabel"));
    copiesLabel->setText(copies.isEmpty() ? tr("There is no copy of the profile that could be restored.")
                                          : tr("Co&pies of the profile:"));
    copiesLabel->setWordWrap(true);

    list->setObjectName(QStringLiteral("ProfileRescue_Copies"));
    list->setAccessibleName(tr("Copies of the profile"));
    list->setHeaderLabels({ tr("Date"), tr("Accounts") });
    list->setRootIsDecorated(false);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    list->setTabKeyNavigation(false);
    for (const KirvProfileCopy &copy : copies)
        list->addTopLevelItem(
            new QTreeWidgetItem({ KirvDamagedProfile::dateText(copy), QLocale().toString(copy.accounts) }));
    list->resizeColumnToContents(0);
    if (!copies.isEmpty()) {
        copiesLabel->setBuddy(list);
        list->setCurrentItem(list->topLevelItem(0));
    }
    list->setVisible(!copies.isEmpty());
}

void KirvRescueWindow::createChoices()
{
    restoreButton = createChoice(QStringLiteral("RestoreButton"), tr("&Restore the Selected Copy"),
                                 tr("Accounts and settings are then as they were at that time. Passwords and other "
                                    "secret settings are in no copy and have to be entered again."));
    recoverButton = createChoice(QStringLiteral("RecoverButton"), tr("Recover &What Is Readable"),
                                 tr("The damaged database is read row by row, with the passwords, and what was found "
                                    "is shown."));
    freshButton =
        createChoice(QStringLiteral("FreshButton"), tr("Start &Fresh"), tr("The profile then has no accounts."));
    restoreButton->setEnabled(!copies.isEmpty());
    connect(restoreButton, &QPushButton::clicked, this, &KirvRescueWindow::restoreSelected);
    connect(recoverButton, &QPushButton::clicked, this, [this] { take([this] { return profile.recover(); }); });
    connect(freshButton, &QPushButton::clicked, this, [this] { take([this] { return profile.startFresh(); }); });
}

QCommandLinkButton *KirvRescueWindow::createChoice(const QString &name, const QString &title,
                                                   const QString &description)
{
    auto *button = new QCommandLinkButton(title, description, this);
    button->setObjectName(QLatin1String("ProfileRescue_") + name);
    button->setAccessibleDescription(description);
    button->setAutoDefault(true);
    return button;
}

void KirvRescueWindow::createButtons()
{
    auto *buttons = new QDialogButtonBox(this);
    buttons->setObjectName(QStringLiteral("ProfileRescue_Buttons"));
    continueButton = buttons->addButton(tr("&Continue"), QDialogButtonBox::AcceptRole);
    continueButton->setObjectName(QStringLiteral("ProfileRescue_ContinueButton"));
    continueButton->setEnabled(false);
    quitButton = buttons->addButton(tr("&Quit"), QDialogButtonBox::RejectRole);
    quitButton->setObjectName(QStringLiteral("ProfileRescue_QuitButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void KirvRescueWindow::arrange()
{
    auto *texts = new QVBoxLayout;
    texts->addWidget(text);
    texts->addWidget(outcome);
    auto *top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(texts, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(copiesLabel);
    layout->addWidget(list);
    layout->addWidget(restoreButton);
    layout->addWidget(recoverButton);
    layout->addWidget(freshButton);
    layout->addStretch();
    layout->addWidget(findChild<QDialogButtonBox *>());
}

/// The newest copy, which is known to be whole, before what may still be found.
void KirvRescueWindow::chooseDefault()
{
    QPushButton *const first = copies.isEmpty() ? recoverButton : restoreButton;
    first->setDefault(true);
    if (copies.isEmpty())
        first->setFocus();
    else
        list->setFocus();
}

template <typename Choice>
void KirvRescueWindow::take(Choice choice)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool isDone = choice();
    QGuiApplication::restoreOverrideCursor();
    showOutcome(isDone);
}

void KirvRescueWindow::restoreSelected()
{
    const int index = list->indexOfTopLevelItem(list->currentItem());
    if (index >= 0)
        take([this, index] { return profile.restore(copies.at(index)); });
}

void KirvRescueWindow::showOutcome(bool isDone)
{
    outcome->showText(profile.outcome());
    outcome->show();
    if (isDone)
        prepareContinuing();
    fitToContents();
}

/// As high as the texts need, where the screen is.
void KirvRescueWindow::fitToContents()
{
    const QSize room = screen()->availableSize();
    const int wide = qMin(room.width(), qMax(width(), comfortableRescueWidth * fontMetrics().averageCharWidth()));
    layout()->activate();
    resize(wide, qMin(room.height(), layout()->totalHeightForWidth(wide)));
}

void KirvRescueWindow::prepareContinuing()
{
    repaired = true;
    text->showText(tr("The profile can be used again."));
    showIcon(QStyle::SP_MessageBoxInformation);
    recoverButton->setEnabled(false); // there is no damaged database any more
    continueButton->setEnabled(true);
    continueButton->setDefault(true);
    continueButton->setFocus();
}

void KirvRescueWindow::showIcon(QStyle::StandardPixmap which)
{
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(which, nullptr, this).pixmap(size, size));
}

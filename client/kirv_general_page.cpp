// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_general_page.h"

#include "client/kirv_button_flow.h"
#include "client/kirv_damaged_profile.h"
#include "client/kirv_secret_texts.h"
#include "client/kirv_text_label.h"
#include "client/kirv_translations.h"
#include "client/kirv_wrapped_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_profile_rescue.h"
#include "core/ui/kirv_form_area.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

KirvGeneralPage::KirvGeneralPage(KirvAccountCollection &accounts, const KirvTranslations *translations,
                                 const QString &profileFolder, QWidget *parent)
    : QWidget(parent)
    , accounts(accounts)
    , profileFolder(profileFolder)
{
    setObjectName(QStringLiteral("General"));
    auto *area = new KirvFormArea(this);
    auto *content = new QWidget(area);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(createLanguage(translations));
    column->addWidget(createKeyring());
    column->addWidget(createProfile());
    column->addStretch();
    area->setWidget(content);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area);
    connect(&accounts.secrets(), &KirvSecretKeeper::changed, this, &KirvGeneralPage::refreshKeyring);
    refreshKeyring();
    connect(&accounts, &KirvAccountCollection::accountAdded, this, &KirvGeneralPage::refreshMoving);
    connect(&accounts, &KirvAccountCollection::accountRemoved, this, &KirvGeneralPage::refreshMoving);
    refreshMoving();
}

QLabel *KirvGeneralPage::createText(const char *name, QWidget *parent)
{
    QLabel *label = kirvCreateText(name, QString(), parent);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QGroupBox *KirvGeneralPage::createLanguage(const KirvTranslations *translations)
{
    auto *group = new QGroupBox(tr("Language"), this);
    group->setObjectName(QStringLiteral("General_LanguageGroup"));
    languageBox = new QComboBox(group);
    languageBox->setObjectName(QStringLiteral("General_Language"));
    languageBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    languageBox->setEnabled(translations);
    auto *label = new QLabel(tr("&Language of the program:"), group);
    label->setObjectName(QStringLiteral("General_LanguageLabel"));
    label->setBuddy(languageBox);
    languageHint = createText("General_LanguageHint", group);
    languageHint->hide();
    if (translations)
        fillLanguages(*translations);
    connect(languageBox, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT languageChosen(languageBox->itemData(index).toString()); });

    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(label, languageBox);
    auto *column = new QVBoxLayout(group);
    column->addLayout(form);
    column->addWidget(languageHint);
    return group;
}

void KirvGeneralPage::fillLanguages(const KirvTranslations &translations)
{
    //: entry of a list of languages; %1 = the language of the system in its own words, as "Deutsch"
    addLanguage(tr("As the system (%1)").arg(KirvTranslations::ownName(translations.languageOfSystem())), QString(),
                KirvTranslations::isRead(translations.languageOfSystem()));
    const QStringList languages = translations.languages();
    for (const QString &language : languages)
        addLanguage(KirvTranslations::ownName(language), language, KirvTranslations::isRead(language));
}

void KirvGeneralPage::addLanguage(const QString &name, const QString &language, bool isRead)
{
    languageBox->addItem(name, language);
    if (!isRead)
        languageBox->setItemData(languageBox->count() - 1, tr("No native speaker has read these texts yet."),
                                 Qt::ToolTipRole);
}

void KirvGeneralPage::showLanguage(const QString &language, bool isPending)
{
    languageBox->setCurrentIndex(qMax(0, languageBox->findData(language)));
    const QString unread = languageBox->currentData(Qt::ToolTipRole).toString();
    languageHint->setText(isPending ? tr("The language changes when the open windows are closed.") : unread);
    languageHint->setVisible(!languageHint->text().isEmpty());
}

void KirvGeneralPage::focusLanguage()
{
    languageBox->setFocus(Qt::OtherFocusReason);
}

QGroupBox *KirvGeneralPage::createKeyring()
{
    auto *group = new QGroupBox(tr("Passwords"), this);
    group->setObjectName(QStringLiteral("General_KeyringGroup"));
    keyringText = createText("General_Keyring", group);
    unlockButton = new QPushButton(tr("&Unlock…"), group);
    unlockButton->setObjectName(QStringLiteral("General_UnlockButton"));
    unlockButton->setToolTip(
        tr("The keyring asks you to unlock it. Then the passwords that accounts wait for are read, and those "
           "that are in a file are moved."));
    connect(unlockButton, &QPushButton::clicked, &accounts.secrets(), &KirvSecretKeeper::unlock);
    auto *row = new QHBoxLayout(group);
    row->addWidget(keyringText, 1);
    row->addWidget(unlockButton, 0, Qt::AlignTop);
    return group;
}

void KirvGeneralPage::refreshKeyring()
{
    const KirvSecretStore *keyring = accounts.secrets().keyring();
    keyringText->setText(KirvSecretTexts(accounts.secrets()).state());
    // A keyring asks only when something is read or written.
    bool isNeeded = accounts.secrets().hasMovableSecrets();
    const QList<KirvAccount *> all = accounts.accounts();
    for (const KirvAccount *account : all)
        isNeeded = isNeeded || account->awaitsSecrets();
    unlockButton->setVisible(keyring && keyring->state() == KirvSecretStore::Locked && isNeeded);
}

QGroupBox *KirvGeneralPage::createProfile()
{
    auto *group = new QGroupBox(tr("Profile"), this);
    group->setObjectName(QStringLiteral("General_ProfileGroup"));
    auto *folder = new KirvWrappedText(group);
    folder->setObjectName(QStringLiteral("General_ProfileFolder"));
    //: %1 = path of a folder
    folder->showText(
        tr("Your accounts and settings are in the folder %1.").arg(QDir::toNativeSeparators(profileFolder)));
    auto *openButton = new QPushButton(tr("&Open Folder"), group);
    openButton->setObjectName(QStringLiteral("General_OpenFolderButton"));
    openButton->setToolTip(tr("Shows the folder in the file manager."));
    connect(openButton, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(profileFolder)); });

    copiesLabel = createText("General_CopiesText", group);
    copyList = new QTreeWidget(group);
    copyList->setObjectName(QStringLiteral("General_Copies"));
    copyList->setAccessibleName(tr("Copies of the profile"));
    copyList->setHeaderLabels({ tr("Date"), tr("Accounts") });
    copyList->setRootIsDecorated(false);
    copyList->setTabKeyNavigation(false);
    copyList->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    copyList->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);

    auto *row = new QHBoxLayout;
    row->addWidget(folder, 1);
    row->addWidget(openButton, 0, Qt::AlignTop);
    auto *column = new QVBoxLayout(group);
    column->addLayout(row);
    column->addWidget(createMoving(group));
    column->addWidget(copiesLabel);
    column->addWidget(copyList);
    return group;
}

QWidget *KirvGeneralPage::createMoving(QWidget *parent)
{
    exportButton = new QPushButton(tr("&Export Accounts…"), parent);
    exportButton->setObjectName(QStringLiteral("General_ExportButton"));
    exportButton->setToolTip(tr("Writes accounts to a file that can be imported on another computer."));
    connect(exportButton, &QPushButton::clicked, this, &KirvGeneralPage::exportRequested);
    auto *importButton = new QPushButton(tr("&Import Accounts…"), parent);
    importButton->setObjectName(QStringLiteral("General_ImportButton"));
    importButton->setToolTip(tr("Takes accounts over from such a file, or from Pidgin."));
    connect(importButton, &QPushButton::clicked, this, &KirvGeneralPage::importRequested);
    auto *buttons = new KirvButtonFlow(parent);
    buttons->addAtBeginning(exportButton);
    buttons->addAtBeginning(importButton);
    return buttons;
}

void KirvGeneralPage::refreshMoving()
{
    exportButton->setEnabled(!accounts.accounts().isEmpty());
}

/// Each copy is read for that, so only when somebody looks.
void KirvGeneralPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        refreshCopies();
}

void KirvGeneralPage::refreshCopies()
{
    const QList<KirvProfileCopy> copies = KirvProfileRescue(profileFolder).copies();
    copiesLabel->setText(copies.isEmpty() ? tr("There are no copies of the profile yet.")
                                          : tr("Copies of the profile, without passwords; one can be restored when the "
                                               "profile is damaged:"));
    copyList->clear();
    for (const KirvProfileCopy &copy : copies)
        copyList->addTopLevelItem(
            new QTreeWidgetItem({ KirvDamagedProfile::dateText(copy), QLocale().toString(copy.accounts) }));
    copyList->resizeColumnToContents(0);
    copyList->setVisible(!copies.isEmpty());
}

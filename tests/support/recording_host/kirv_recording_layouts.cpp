// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_ui_loader.h"
#include "tests/support/recording_host/kirv_recording_host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

/// A named child in \a parent's layout; null when the test leaves it out.
template <typename Widget>
Widget *addChild(QWidget *parent, const QString &name)
{
    if (KirvRecordingHost::instance().layouts.omitted.contains(name))
        return nullptr;
    auto *widget = new Widget(parent);
    widget->setObjectName(name);
    if (parent->layout())
        parent->layout()->addWidget(widget);
    return widget;
}

QWidget *createAccounts()
{
    auto *page = new QWidget;
    new QVBoxLayout(page);
    addChild<QTreeWidget>(page, QStringLiteral("Accounts_List"));
    addChild<QComboBox>(page, QStringLiteral("Accounts_MainAccount"));
    addChild<QToolButton>(page, QStringLiteral("Accounts_AddButton"));
    addChild<QToolButton>(page, QStringLiteral("Accounts_EditButton"));
    addChild<QToolButton>(page, QStringLiteral("Accounts_RemoveButton"));
    addChild<QToolButton>(page, QStringLiteral("Accounts_RegisterButton"));
    return page;
}

void addLoginFrame(QWidget *window)
{
    auto *frame = addChild<QWidget>(window, QStringLiteral("AddAccount_LoginFrame"));
    if (KirvRecordingHost::instance().layouts.loginFrameHasForm)
        new QFormLayout(frame);
    else
        new QVBoxLayout(frame);
    addChild<QLineEdit>(frame, QStringLiteral("AddAccount_UsernameEdit"));
    addChild<QLineEdit>(frame, QStringLiteral("AddAccount_PasswordEdit"));
}

QWidget *createAddAccount()
{
    auto *window = new QDialog;
    new QVBoxLayout(window);
    addChild<QLabel>(window, QStringLiteral("AddAccount_ConfigurationLabel"));
    addChild<QComboBox>(window, QStringLiteral("AddAccount_Configuration"));
    addLoginFrame(window);
    // Three states, so that tests can leave it in the middle.
    addChild<QCheckBox>(window, QStringLiteral("AddAccount_RememberPasswordCheckbox"))->setTristate(true);
    addChild<QComboBox>(window, QStringLiteral("AddAccount_PresenceCombo"));
    addChild<QDialogButtonBox>(window, QStringLiteral("AddAccount_ButtonFrame"))
        ->setStandardButtons(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    return window;
}

QWidget *createGeneralTab()
{
    auto *tab = new QWidget;
    new QVBoxLayout(tab);
    addChild<QLabel>(tab, QStringLiteral("EditAccount_Identifier"));
    addChild<QLineEdit>(tab, QStringLiteral("EditAccount_Alias"));
    addChild<QWidget>(tab, QStringLiteral("EditAccount_AvatarPlacement"));
    addChild<QLineEdit>(tab, QStringLiteral("EditAccount_Password"));
    for (const char *name :
         { "EditAccount_RememberPassword", "EditAccount_RememberPresence", "EditAccount_RememberDescription" })
        addChild<QCheckBox>(tab, QLatin1String(name))->setTristate(true);
    addChild<QComboBox>(tab, QStringLiteral("EditAccount_PresenceCombo"));
    addChild<QTextEdit>(tab, QStringLiteral("EditAccount_DescriptionEdit"));
    addChild<QWidget>(tab, QStringLiteral("EditAccount_AccSettings"));
    return tab;
}

QWidget *createDirectoryTab()
{
    auto *tab = new QWidget;
    new QVBoxLayout(tab);
    addChild<QWidget>(tab, QStringLiteral("EditAccount_PubDirResults"));
    if (auto *controls = addChild<QWidget>(tab, QStringLiteral("EditAccount_PubDirControls"))) {
        new QVBoxLayout(controls);
        addChild<QPushButton>(controls, QStringLiteral("EditAccount_PubDirFetch"));
        addChild<QPushButton>(controls, QStringLiteral("EditAccount_PubDirDelete"));
    }
    return tab;
}

QWidget *createEditAccount()
{
    auto *window = new QDialog;
    new QVBoxLayout(window);
    auto *tabs = addChild<QTabWidget>(window, QStringLiteral("EditAccount_Tabs"));
    tabs->addTab(createGeneralTab(), QStringLiteral("General"));
    tabs->addTab(createDirectoryTab(), QStringLiteral("Directory"));
    addChild<QDialogButtonBox>(window, QStringLiteral("EditAccount_FrameButtons"))
        ->setStandardButtons(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    return window;
}

QWidget *create(const QString &name)
{
    if (KirvRecordingHost::instance().layouts.omitted.contains(name))
        return nullptr;
    QWidget *top = nullptr;
    if (name == QLatin1String("Accounts"))
        top = createAccounts();
    else if (name == QLatin1String("AddAccount"))
        top = createAddAccount();
    else if (name == QLatin1String("EditAccount"))
        top = createEditAccount();
    if (top)
        top->setObjectName(name);
    return top;
}

void announce(QWidget *top)
{
    // A copy, as the announcement may replace itself.
    const std::function<void(QWidget *)> announce = KirvRecordingHost::instance().layouts.announce;
    if (announce && top)
        announce(top);
}

}

KirvUILoader *KirvUILoader::getInstance()
{
    static KirvUILoader loader;
    return &loader;
}

QWidget *KirvUILoader::loadUI(const QString &name, QWidget *parent, const QString &variant)
{
    KirvRecordingHost::instance().record(
        QString(), QStringLiteral("loadUI"),
        { kirvWritten(name), parent->metaObject()->className(), kirvWritten(variant) });
    QWidget *top = create(name);
    auto *filling = new QVBoxLayout(parent);
    filling->setContentsMargins(0, 0, 0, 0);
    filling->addWidget(top);
    announce(top);
    return top;
}

QWidget *KirvUILoader::loadUI(const QString &name, const QString &variant)
{
    KirvRecordingHost::instance().record(QString(), QStringLiteral("loadUI"),
                                         { kirvWritten(name), kirvWritten(variant) });
    QWidget *top = create(name);
    announce(top);
    return top;
}

void KirvUILoader::insertWidget(QWidget *placeholder, QWidget *widget)
{
    KirvRecordingHost::instance().record(QString(), QStringLiteral("insertWidget"),
                                         { kirvWritten(placeholder->objectName()), widget->metaObject()->className() });
    auto *filling = new QVBoxLayout(placeholder);
    filling->setContentsMargins(0, 0, 0, 0);
    filling->addWidget(widget);
}

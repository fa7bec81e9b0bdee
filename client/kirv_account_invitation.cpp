// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_invitation.h"

#include "core/ui/kirv_keyboard.h"

#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {
/// In average characters: a narrower text would make the window higher than small screens are.
const int shortestLine = 32;
} // namespace

KirvAccountInvitation::KirvAccountInvitation(QWidget *parent)
    : QWidget(parent)
    , addButton(new QPushButton(tr("Add an Account"), this))
    , registerButton(new QPushButton(tr("Register a New One…"), this))
{
    setObjectName(QStringLiteral("Accounts_Invitation"));
    addButton->setObjectName(QStringLiteral("Accounts_InvitationAddButton"));
    registerButton->setObjectName(QStringLiteral("Accounts_InvitationRegisterButton"));
    registerButton->setToolTip(tr("Create a new account on a server"));
    connect(registerButton, &QPushButton::clicked, this, &KirvAccountInvitation::registrationRequested);

    auto *icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("Accounts_InvitationIcon"));
    const int edge = 2 * style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this);
    const QIcon people =
        QIcon::fromTheme(QStringLiteral("system-users"), QIcon(QStringLiteral(":/kirv/client/icons/system-users.svg")));
    icon->setPixmap(people.pixmap(edge, edge));
    icon->setAlignment(Qt::AlignCenter);

    auto *text = new QLabel(tr("There is no account yet. Add one that you already have, or register a new one."), this);
    text->setObjectName(QStringLiteral("Accounts_InvitationText"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(shortestLine * fontMetrics().averageCharWidth());
    text->setAlignment(Qt::AlignCenter);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(registerButton);
    auto *middle = new QHBoxLayout;
    middle->addStretch();
    middle->addLayout(buttons);
    middle->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(icon);
    layout->addWidget(text);
    layout->addLayout(middle);
    layout->addStretch();
    updateAddButton();
}

void KirvAccountInvitation::setAddMenu(QMenu *menu)
{
    if (menu == addMenu)
        return;
    addMenu = menu;
    addButton->setMenu(menu);
    if (menu)
        menu->installEventFilter(this);
    updateAddButton();
}

void KirvAccountInvitation::chooseMnemonics()
{
    QSet<QChar> taken = kirvMnemonicsAround(this);
    addButton->setText(kirvWithMnemonic(tr("Add an Account"), &taken));
    registerButton->setText(kirvWithMnemonic(tr("Register a New One…"), &taken));
}

void KirvAccountInvitation::takeFocus()
{
    (addButton->isEnabled() ? addButton : registerButton)->setFocus(Qt::OtherFocusReason);
}

bool KirvAccountInvitation::eventFilter(QObject *watched, QEvent *event)
{
    // Only menus are watched; while one is destroyed the pointer to it must not be followed.
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved)
        QMetaObject::invokeMethod(this, &KirvAccountInvitation::updateAddButton, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void KirvAccountInvitation::updateAddButton()
{
    const bool hasProtocols = addMenu && !addMenu->actions().isEmpty();
    addButton->setEnabled(hasProtocols);
    addButton->setToolTip(hasProtocols ? tr("Add an account that you already have")
                                       : tr("No protocol is loaded. Load one on the Plug-ins page."));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_invitation.h"

#include "core/ui/kirv_keyboard.h"

#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {
/// In average characters: a narrower text would make the window higher than small screens are.
const int shortestLine = 32;

/// A picture that gives way to what is more important where there is little room.
class Picture : public QWidget {
public:
    Picture(const QIcon &icon, QWidget *parent)
        : QWidget(parent)
        , icon(icon)
    {
    }

    QSize sizeHint() const override { return edge() * QSize(2, 2); }
    QSize minimumSizeHint() const override { return QSize(1, 1); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (2 * height() >= edge())
            icon.paint(&painter, rect());
    }

private:
    int edge() const { return style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this); }

    const QIcon icon;
};

} // namespace

KirvAccountInvitation::KirvAccountInvitation(QWidget *parent)
    : QWidget(parent)
    , text(new QLabel(this))
    , addButton(createButton("Add", QString()))
    , registerButton(createButton("Register", tr("Create a new account on a server")))
    , importButton(createButton("Import", tr("Take accounts over from a file")))
    , pidginButton(createButton("Pidgin", tr("Take the accounts of Pidgin over; its own file is only read")))
{
    setObjectName(QStringLiteral("Accounts_Invitation"));
    connect(registerButton, &QPushButton::clicked, this, &KirvAccountInvitation::registrationRequested);
    connect(importButton, &QPushButton::clicked, this, &KirvAccountInvitation::importRequested);
    connect(pidginButton, &QPushButton::clicked, this, [this] { Q_EMIT pidginRequested(pidginFile); });
    pidginButton->hide();

    auto *icon = new Picture(
        QIcon::fromTheme(QStringLiteral("system-users"), QIcon(QStringLiteral(":/kirv/client/icons/system-users.svg"))),
        this);
    icon->setObjectName(QStringLiteral("Accounts_InvitationIcon"));

    text->setObjectName(QStringLiteral("Accounts_InvitationText"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(shortestLine * fontMetrics().averageCharWidth());
    text->setAlignment(Qt::AlignCenter);

    auto *buttons = new QVBoxLayout;
    for (QPushButton *button : { addButton, registerButton, importButton, pidginButton })
        buttons->addWidget(button);
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
    updateText();
    updateAddButton();
    chooseMnemonics();
}

/// Its text comes with its mnemonic.
QPushButton *KirvAccountInvitation::createButton(const char *name, const QString &toolTip)
{
    auto *button = new QPushButton(this);
    button->setObjectName(QStringLiteral("Accounts_Invitation%1Button").arg(QLatin1String(name)));
    button->setToolTip(toolTip);
    return button;
}

void KirvAccountInvitation::updateText()
{
    text->setText(pidginFile.isEmpty()
                      ? tr("There is no account yet. Add one that you already have, register a new one, or import "
                           "accounts from a file.")
                      : tr("There is no account yet. Add one that you already have, register a new one, or import "
                           "accounts. There are accounts of Pidgin on this computer."));
}

void KirvAccountInvitation::offerPidgin(const QString &path)
{
    pidginFile = path;
    pidginButton->setHidden(path.isEmpty());
    updateText();
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
    importButton->setText(kirvWithMnemonic(tr("Import…"), &taken));
    pidginButton->setText(kirvWithMnemonic(tr("Import from Pidgin…"), &taken));
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
    const bool isFirst = hasProtocols && !addButton->isEnabled();
    addButton->setEnabled(hasProtocols);
    if (isFirst && window()->focusWidget() == registerButton) // in the place of the other one
        takeFocus();
    addButton->setToolTip(hasProtocols ? tr("Add an account that you already have") : noProtocolText());
}

QString KirvAccountInvitation::noProtocolText()
{
    return tr("No protocol is loaded. Load one on the Plug-ins page.");
}

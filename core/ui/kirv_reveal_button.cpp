// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_reveal_button.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>

KirvRevealButton::KirvRevealButton(QLineEdit *edit, QWidget *parent)
    : QToolButton(parent)
    , edit(edit)
{
    setCheckable(true);
    setAutoRaise(true);
    connect(this, &QToolButton::toggled, edit, [this](bool on) { reveal(on); });
    reveal(false);
}

KirvRevealButton *KirvRevealButton::addBeside(QLineEdit *edit)
{
    QWidget *parent = edit->parentWidget();
    auto *form = parent ? qobject_cast<QFormLayout *>(parent->layout()) : nullptr;
    if (!form || form->indexOf(edit) < 0)
        return nullptr;
    int row = 0;
    QFormLayout::ItemRole role = QFormLayout::FieldRole;
    form->getWidgetPosition(edit, &row, &role);
    form->removeWidget(edit);
    auto *button = new KirvRevealButton(edit, parent);
    auto *line = new QHBoxLayout;
    line->setSpacing(0);
    line->addWidget(edit);
    line->addWidget(button);
    form->setLayout(row, role, line);
    QWidget::setTabOrder(edit, button);
    return button;
}

void KirvRevealButton::reveal(bool on)
{
    edit->setEchoMode(on ? QLineEdit::Normal : QLineEdit::Password);
    setIcon(on ? QIcon::fromTheme(QStringLiteral("password-show-off"),
                                  QIcon(QStringLiteral(":/kirv/icons/password-hide.svg")))
               : QIcon::fromTheme(QStringLiteral("password-show-on"),
                                  QIcon(QStringLiteral(":/kirv/icons/password-show.svg"))));
    setToolTip(on ? tr("Hide the text") : tr("Show the text"));
    setAccessibleName(toolTip());
}

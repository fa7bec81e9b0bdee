// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_reveal_button.h"

#include "core/ui/kirv_form_place.h"

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
    KirvFormPlace place(edit);
    if (!place.isValid())
        return nullptr;
    auto *button = new KirvRevealButton(edit, edit->parentWidget());
    auto *line = new QHBoxLayout;
    line->setSpacing(0);
    place.replaceBy(line);
    line->addWidget(edit);
    line->addWidget(button);
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

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_message_bar.h"

#include "client/kirv_plain_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
const int mostMessages = 3;
}

KirvMessageBar::KirvMessageBar(QWidget *parent)
    : QFrame(parent)
    , rows(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("MessageBar"));
    setAccessibleName(tr("Messages"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    hide();
}

void KirvMessageBar::showMessage(const QString &message)
{
    showMessage(message, QString(), {});
}

void KirvMessageBar::showMessage(const QString &message, const QString &command, const std::function<void()> &action)
{
    const QString text = kirvPlainName(message);
    if (text.isEmpty() || texts.contains(text))
        return;
    if (texts.size() == mostMessages)
        removeRow(0);
    texts << text;
    QPushButton *button = nullptr;
    if (action) {
        button = new QPushButton(command);
        button->setObjectName(QStringLiteral("MessageBar_Command"));
        connect(button, &QPushButton::clicked, this, action);
    }
    rows->addWidget(createRow(text, button));
    show();
}

void KirvMessageBar::removeMessage(const QString &message)
{
    const int index = int(texts.indexOf(kirvPlainName(message)));
    if (index >= 0)
        removeRow(index);
}

/// \a button may be null; the row owns it.
QWidget *KirvMessageBar::createRow(const QString &text, QWidget *button)
{
    auto *row = new QWidget(this);
    row->setObjectName(QStringLiteral("MessageBar_Row"));

    auto *icon = new QLabel(row);
    icon->setObjectName(QStringLiteral("MessageBar_Icon"));
    icon->setAccessibleName(tr("Problem"));
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(size, size));

    auto *label = new QLabel(row);
    label->setObjectName(QStringLiteral("MessageBar_Text"));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setText(text);
    label->setForegroundRole(foregroundRole());

    auto *close = new QToolButton(row);
    close->setObjectName(QStringLiteral("MessageBar_Close"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, this));
    close->setAutoRaise(true);
    close->setToolTip(tr("Close this message."));
    close->setAccessibleName(tr("Close This Message"));
    connect(close, &QToolButton::clicked, this, [this, row] { removeRow(rows->indexOf(row)); });

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(label, 1);
    if (button)
        layout->addWidget(button, 0, Qt::AlignTop);
    layout->addWidget(close, 0, Qt::AlignTop);
    return row;
}

void KirvMessageBar::removeRow(int index)
{
    texts.removeAt(index);
    QWidget *row = rows->itemAt(index)->widget();
    rows->removeWidget(row);
    row->hide();
    row->deleteLater(); // its own button may have caused this
    setVisible(!texts.isEmpty());
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_registration_chooser.h"

#include "core/protocol/kirv_protocol_base.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

KirvRegistrationChooser::KirvRegistrationChooser(const QList<KirvProtocolBase *> &protocols, QWidget *parent)
    : QDialog(parent)
    , list(new QListWidget(this))
{
    setObjectName(QStringLiteral("RegistrationChooser"));
    setWindowTitle(tr("Register Account"));
    setWindowModality(Qt::WindowModal);

    auto *question = new QLabel(tr("For which &protocol do you want to register a new account?"), this);
    question->setObjectName(QStringLiteral("RegistrationChooser_Text"));
    question->setWordWrap(true);
    question->setBuddy(list);

    list->setObjectName(QStringLiteral("RegistrationChooser_List"));
    list->setAccessibleName(tr("Protocols"));
    for (KirvProtocolBase *protocol : protocols)
        list->addItem(new QListWidgetItem(QIcon(protocol->getIconPath(0)), protocol->getName()));
    list->setCurrentRow(0);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("RegistrationChooser_Buttons"));
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Continue"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list, &QListWidget::itemActivated, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(question);
    layout->addWidget(list);
    layout->addWidget(buttons);
}

QString KirvRegistrationChooser::protocol() const
{
    return list->currentItem() ? list->currentItem()->text() : QString();
}

void KirvRegistrationChooser::removeProtocol(const QString &protocol)
{
    qDeleteAll(list->findItems(protocol, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (list->count() == 0)
        reject();
}

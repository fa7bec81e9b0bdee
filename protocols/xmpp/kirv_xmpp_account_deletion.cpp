// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_account_deletion.h"

#include "host/kirv_account_connection.h"
#include "host/kirv_account_manager.h"
#include "protocols/xmpp/kirv_xmpp_connection.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox *createBox(const QString &objectName, QMessageBox::Icon icon, const QString &text, QWidget *window)
{
    auto *box = new QMessageBox(icon, KirvXmppAccountDeletion::tr("Delete Account on Server"), text,
                                QMessageBox::NoButton, window);
    box->setObjectName(objectName);
    box->setTextFormat(Qt::PlainText);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
}

} // namespace

void KirvXmppAccountDeletion::start(KirvXmppConnection *connection, QWidget *window)
{
    (new KirvXmppAccountDeletion(connection, window))->askOnce();
}

KirvXmppAccountDeletion::KirvXmppAccountDeletion(KirvXmppConnection *connection, QWidget *window)
    : QObject(connection)
    , connection(connection)
    , window(window)
    , login(connection->account()->getUid())
    , protocol(connection->account()->getProtocolName())
{
}

void KirvXmppAccountDeletion::askOnce()
{
    //: %1 = the address of an account
    ask(QStringLiteral("XmppDeletion_FirstQuestion"),
        tr("Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for it "
           "are lost.")
            .arg(login),
        tr("&Delete on Server"), &KirvXmppAccountDeletion::askAgain);
}

void KirvXmppAccountDeletion::askAgain()
{
    //: %1 = the address of an account
    ask(QStringLiteral("XmppDeletion_SecondQuestion"),
        tr("This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be deleted?")
            .arg(login),
        tr("&Delete for Good"), &KirvXmppAccountDeletion::deleteOnServer);
}

/// Goes on with \a next when the user gives the \a command, and ends here otherwise.
void KirvXmppAccountDeletion::ask(const QString &objectName, const QString &text, const QString &command,
                                  void (KirvXmppAccountDeletion::*next)())
{
    QMessageBox *box = createBox(objectName, QMessageBox::Warning, text, window);
    QPushButton *yes = box->addButton(command, QMessageBox::DestructiveRole);
    yes->setObjectName(objectName + QStringLiteral("_Delete"));
    QPushButton *no = box->addButton(QMessageBox::Cancel);
    box->setDefaultButton(no);
    box->setEscapeButton(no);
    connect(this, &QObject::destroyed, box, &QWidget::close);
    connect(box, &QDialog::finished, this, [this, box, yes, next] {
        if (box->clickedButton() == yes)
            (this->*next)();
        else
            deleteLater();
    });
    box->show();
}

void KirvXmppAccountDeletion::deleteOnServer()
{
    const QPointer<KirvXmppAccountDeletion> alive(this);
    connection->deleteOnServer([alive](const KirvFailure &failure) {
        if (alive)
            alive->finish(failure);
    });
}

void KirvXmppAccountDeletion::finish(const KirvFailure &failure)
{
    deleteLater();
    if (failure.isFailure()) {
        //: %1 = the address of an account, %2 = the reason, a sentence
        const QString text = tr("The account %1 was not deleted. %2").arg(login, failure.text());
        createBox(QStringLiteral("XmppDeletion_Refusal"), QMessageBox::Information, text, window)->show();
        return;
    }
    // The connection, which is telling this, goes with the account: let it finish first.
    QMetaObject::invokeMethod(
        qApp,
        [login = login, protocol = protocol] { KirvAccountManager::getInstance()->removeAccount(login, protocol); },
        Qt::QueuedConnection);
}

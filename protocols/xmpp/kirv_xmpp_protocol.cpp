// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_protocol.h"

#include "host/kirv_account_connection.h"
#include "protocols/xmpp/kirv_xmpp_account_deletion.h"
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_password_dialog.h"
#include "protocols/xmpp/kirv_xmpp_registration_window.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"
#include "protocols/xmpp/kirv_xmpp_vcard.h"

#include <QApplication>

namespace {

const auto protocolName = QStringLiteral("XMPP");
const auto changePasswordId = QStringLiteral("change-password");
const auto deleteOnServerId = QStringLiteral("delete-on-server");

} // namespace

KirvXmppProtocol::~KirvXmppProtocol()
{
    delete registration;
}

QString KirvXmppProtocol::getName()
{
    return protocolName;
}

QString KirvXmppProtocol::getDescription()
{
    return tr("XMPP (Jabber): conversations between addresses of many independent servers.");
}

QString KirvXmppProtocol::getIconPath(int)
{
    return QStringLiteral(":/kirv/protocols/xmpp.svg");
}

QStringList KirvXmppProtocol::getConfigurations()
{
    return KirvXmppSettings::configurations();
}

QList<KirvField> KirvXmppProtocol::getConfigurationFields(const QString &name)
{
    return KirvXmppSettings::configurationFields(name);
}

QString KirvXmppProtocol::getLoginPattern()
{
    return KirvXmppSettings::loginPattern();
}

QList<KirvPresence> KirvXmppProtocol::presences() const
{
    return {
        { QStringLiteral("available"), tr("Available"), QStringLiteral("available.svg") },
        { QStringLiteral("chat"), tr("Free to chat"), QStringLiteral("chat.svg") },
        { QStringLiteral("away"), tr("Away"), QStringLiteral("away.svg") },
        { QStringLiteral("xa"), tr("Extended away"), QStringLiteral("xa.svg") },
        { QStringLiteral("dnd"), tr("Do not disturb"), QStringLiteral("dnd.svg") },
        { QStringLiteral("invisible"), tr("Invisible"), QStringLiteral("invisible.svg") },
        { QStringLiteral("offline"), tr("Offline"), QStringLiteral("offline.svg") },
    };
}

QList<KirvField> KirvXmppProtocol::accountSettings() const
{
    return KirvXmppSettings().toFields();
}

QList<KirvField> KirvXmppProtocol::directoryFields() const
{
    return KirvXmppVCard::blankFields();
}

KirvConnection *KirvXmppProtocol::createConnection()
{
    return new KirvXmppConnection(account);
}

void KirvXmppProtocol::handleCoreSignal(const QString &name, const QList<KirvArg> &args)
{
    if (name != QLatin1String("register_account"))
        return;
    if (args.isEmpty() || args.first().getValue().toString() == protocolName)
        openRegistration();
}

bool KirvXmppProtocol::offersRegistration() const
{
    return true;
}

void KirvXmppProtocol::openRegistration()
{
    if (!registration) {
        registration = new KirvXmppRegistrationWindow(this, QApplication::activeWindow());
        registration->setAttribute(Qt::WA_DeleteOnClose);
    }
    registration->show();
    registration->raise();
    registration->activateWindow();
}

QList<KirvAccountAction> KirvXmppProtocol::accountActions(KirvAccountConnection *) const
{
    return {
        { changePasswordId, tr("Change Password on Server…"), tr("Gives the account a new password on its server."),
          true },
        { deleteOnServerId, tr("Delete Account on Server…"),
          tr("Deletes the account on its server for good, and then here."), true },
    };
}

void KirvXmppProtocol::runAccountAction(const QString &id, KirvAccountConnection *account, QWidget *window)
{
    auto *connection = qobject_cast<KirvXmppConnection *>(connectionOf(account));
    if (!connection)
        return;
    if (id == changePasswordId)
        KirvXmppPasswordDialog::open(connection, window);
    else if (id == deleteOnServerId)
        KirvXmppAccountDeletion::start(connection, window);
}

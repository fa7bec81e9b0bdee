// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_protocol.h"

#include "protocols/tls/kirv_system_certificates.h"
#include "protocols/xmpp/kirv_xmpp_address.h"
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_deletion_request.h"
#include "protocols/xmpp/kirv_xmpp_password_request.h"
#include "protocols/xmpp/kirv_xmpp_registration_request.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"
#include "protocols/xmpp/kirv_xmpp_vcard.h"

#include <QXmppGlobal.h>

static void initializeResources()
{
    Q_INIT_RESOURCE(kirv_xmpp); // a static library's resources are left out unless they are referred to
}

namespace {

const auto changePasswordId = QStringLiteral("change-password");
const auto deleteOnServerId = QStringLiteral("delete-on-server");

} // namespace

KirvXmppProtocol::KirvXmppProtocol(QObject *parent)
    : KirvProtocolBase(parent)
{
    initializeResources();
    KirvSystemCertificates::prepareEncryption();
}

QString KirvXmppProtocol::getName()
{
    return QStringLiteral("XMPP");
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

QString KirvXmppProtocol::normalizedLogin(const QString &login) const
{
    return kirvXmppNormalizedAddress(login);
}

QString KirvXmppProtocol::loginExample() const
{
    return QStringLiteral("anna@example.org");
}

QString KirvXmppProtocol::loginProblem(const QString &login) const
{
    return KirvXmppSettings::loginProblem(login);
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

QStringList KirvXmppProtocol::fileSettings() const
{
    return KirvXmppSettings::fileFields();
}

QList<KirvField> KirvXmppProtocol::directoryFields() const
{
    return KirvXmppVCard::blankFields();
}

/// A session with the same resource would take the place of the other one, and one with a higher priority its messages.
QList<KirvField> KirvXmppProtocol::settingsForTest(const QList<KirvField> &settings) const
{
    KirvXmppSettings changed(settings);
    changed.resource = QStringLiteral("Kirv-test.*");
    changed.priority = -1;
    return changed.toFields();
}

QStringList KirvXmppProtocol::components() const
{
    return { QStringLiteral("XMPP plug-in " KIRV_VERSION), QLatin1String("QXmpp ") + QXmppVersion() };
}

KirvConnection *KirvXmppProtocol::createConnection()
{
    return new KirvXmppConnection;
}

bool KirvXmppProtocol::offersRegistration() const
{
    return true;
}

KirvServerRequest *KirvXmppProtocol::createRegistration()
{
    return new KirvXmppRegistrationRequest;
}

QList<KirvAccountAction> KirvXmppProtocol::accountActions() const
{
    return {
        { changePasswordId, tr("Change Password on Server…"), tr("Gives the account a new password on its server.") },
        { deleteOnServerId, tr("Delete Account on Server…"),
          tr("Deletes the account on its server for good, and then here.") },
    };
}

KirvServerRequest *KirvXmppProtocol::createAccountRequest(const QString &actionId, KirvConnection *connection)
{
    auto *own = qobject_cast<KirvXmppConnection *>(connection);
    if (own && actionId == changePasswordId)
        return new KirvXmppPasswordRequest(own);
    if (own && actionId == deleteOnServerId)
        return new KirvXmppDeletionRequest(own);
    return nullptr;
}

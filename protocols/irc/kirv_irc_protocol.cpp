// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_protocol.h"

#include "protocols/irc/kirv_irc_connection.h"
#include "protocols/irc/kirv_irc_settings.h"
#include "protocols/tls/kirv_system_certificates.h"

#include <Irc>

static void initializeResources()
{
    Q_INIT_RESOURCE(kirv_irc); // a static library's resources are left out unless they are referred to
}

KirvIrcProtocol::KirvIrcProtocol(QObject *parent)
    : KirvProtocolBase(parent)
{
    initializeResources();
    KirvSystemCertificates::prepareEncryption();
}

QString KirvIrcProtocol::getName()
{
    return QStringLiteral("IRC");
}

QString KirvIrcProtocol::getDescription()
{
    return tr("Internet Relay Chat: conversations in channels of a network of servers.");
}

QString KirvIrcProtocol::getIconPath(int)
{
    return QStringLiteral(":/kirv/protocols/irc.svg");
}

QStringList KirvIrcProtocol::getConfigurations()
{
    return KirvIrcSettings::configurations();
}

QList<KirvField> KirvIrcProtocol::getConfigurationFields(const QString &name)
{
    return KirvIrcSettings::configurationFields(name);
}

QString KirvIrcProtocol::getLoginPattern()
{
    return KirvIrcSettings::loginPattern();
}

QString KirvIrcProtocol::normalizedLogin(const QString &login) const
{
    return KirvIrcSettings::normalizedLogin(login);
}

QString KirvIrcProtocol::loginExample() const
{
    return tr("anna, or anna@irc.example.org");
}

QString KirvIrcProtocol::loginProblem(const QString &login) const
{
    return KirvIrcSettings::loginProblem(login);
}

bool KirvIrcProtocol::needsPassword(const QString &login, const QList<KirvField> &settings) const
{
    return KirvIrcSettings(login, QString(), settings).needsPassword();
}

QString KirvIrcProtocol::settingsProblem(const QString &login, const QList<KirvField> &settings) const
{
    return KirvIrcSettings(login, QString(), settings).serverProblem();
}

QList<KirvPresence> KirvIrcProtocol::presences() const
{
    return {
        { QStringLiteral("available"), tr("Available"), QStringLiteral("available.svg") },
        { QStringLiteral("away"), tr("Away"), QStringLiteral("away.svg") },
        { QStringLiteral("offline"), tr("Offline"), QStringLiteral("offline.svg") },
    };
}

QList<KirvField> KirvIrcProtocol::accountSettings() const
{
    return KirvIrcSettings::defaultFields();
}

QList<KirvField> KirvIrcProtocol::settingsForTest(const QList<KirvField> &settings) const
{
    return KirvIrcSettings::forTest(settings);
}

QStringList KirvIrcProtocol::components() const
{
    return { QStringLiteral("IRC plug-in " KIRV_VERSION), QLatin1String("libcommuni ") + Irc::version() };
}

QStringList KirvIrcProtocol::fileSettings() const
{
    return KirvIrcSettings::fileFields();
}

KirvConnection *KirvIrcProtocol::createConnection()
{
    return new KirvIrcConnection;
}

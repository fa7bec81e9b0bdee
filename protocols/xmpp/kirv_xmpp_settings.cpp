// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_settings.h"

#include "core/values/kirv_local_path.h"
#include "core/values/kirv_visible_text.h"
#include "protocols/xmpp/kirv_xmpp_address.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSslCertificate>
#include <QXmppConfiguration.h>

namespace {

const auto serverId = QStringLiteral("server");
const auto portId = QStringLiteral("port");
const auto resourceId = QStringLiteral("resource");
const auto priorityId = QStringLiteral("priority");
const auto encryptionId = QStringLiteral("encryption");
const auto certificateId = QStringLiteral("certificate");

/// Besides the "@" between its parts.
QString charactersNeverInLogins()
{
    return QStringLiteral("\"&'/:<>");
}

/// The stored values, in the order of KirvXmppSettings::Encryption.
const QStringList encryptionValues { QStringLiteral("required"), QStringLiteral("offered"), QStringLiteral("none"),
                                     QStringLiteral("direct") };

QXmppConfiguration::StreamSecurityMode securityMode(KirvXmppSettings::Encryption encryption)
{
    switch (encryption) {
    case KirvXmppSettings::IfOffered:
        return QXmppConfiguration::TLSEnabled;
    case KirvXmppSettings::None:
        return QXmppConfiguration::TLSDisabled;
    case KirvXmppSettings::Direct:
        return QXmppConfiguration::LegacySSL;
    case KirvXmppSettings::Required:
        break;
    }
    return QXmppConfiguration::TLSRequired;
}

/// \a text as a number from \a minimum to \a maximum, or \a fallback when it is none.
int toNumber(const QString &text, int minimum, int maximum, int fallback)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= minimum && number <= maximum ? number : fallback;
}

/// The port and the certificate of the server that was started together with the program, when it was.
int localPort()
{
    const int port = qEnvironmentVariableIntValue("KIRV_XMPP_LOCAL_PORT");
    return port > 0 && port <= 65535 ? port : KirvXmppSettings::defaultPort;
}

QString localCertificatePath()
{
    return QFile::decodeName(qgetenv("KIRV_XMPP_LOCAL_CERTIFICATE"));
}

} // namespace

KirvXmppSettings::KirvXmppSettings(const QList<KirvField> &fields)
    : proxy(fields)
{
    for (const KirvField &field : fields) {
        const QString id = field.getId();
        const QString text = field.getText();
        if (id == serverId)
            server = text.trimmed();
        else if (id == portId)
            port = toNumber(text, 1, 65535, defaultPort);
        else if (id == resourceId)
            resource = text.trimmed();
        else if (id == priorityId)
            priority = toNumber(text, -128, 127, KirvXmppSettings().priority);
        else if (id == encryptionId) // what is not known is the safest
            encryption = Encryption(qMax(0, int(encryptionValues.indexOf(text))));
        else if (id == certificateId)
            certificatePath = kirvLocalPath(text);
    }
}

QList<KirvField> KirvXmppSettings::toFields() const
{
    QList<KirvField> fields = toServerFields();
    fields.insert(
        2,
        KirvField::textEdit(
            tr("Resource"), resourceId, resource,
            tr("Distinguishes this client from your other ones. Characters by chance take the place of a *. Empty: "
               "the server chooses.")));
    fields.insert(
        3,
        KirvField::number(tr("Priority"), priorityId, priority, -128, 127,
                          tr("Messages go to the client with the highest priority, and to none with a negative one. "
                             "This client does not show messages.")));
    return fields;
}

QString KirvXmppSettings::randomPart()
{
    const QString characters = QStringLiteral("abcdefghijklmnopqrstuvwxyz0123456789");
    QString part;
    while (part.size() < 8)
        part += characters.at(int(QRandomGenerator::system()->bounded(quint32(characters.size()))));
    return part;
}

QString KirvXmppSettings::resourceWith(const QString &random) const
{
    return QString(resource).replace(QLatin1Char('*'), random);
}

QList<KirvField> KirvXmppSettings::toServerFields() const
{
    const QList<KirvField> own {
        KirvField::textEdit(tr("Server"), serverId, server,
                            tr("Only needed when it cannot be found by the domain of the login. Service records are "
                               "not looked up where there is a proxy.")),
        KirvField::number(tr("Port"), portId, port, 1, 65535,
                          tr("Ordinarily %1, and %2 with direct TLS.").arg(defaultPort).arg(directPort)),
        KirvField::choice(
            tr("Encryption"), encryptionId, encryptionValues.at(encryption), encryptionValues,
            { tr("Required"), tr("If the server offers it"), tr("None"), tr("Required at once (direct TLS)") },
            tr("Without encryption others in the network can read along, your password included.")),
        KirvField::textEdit(tr("Trusted certificate"), certificateId, certificatePath,
                            tr("A file with a certificate (PEM) that is trusted besides those of the system.")),
    };
    return own + proxy.toFields();
}

QStringList KirvXmppSettings::fileFields()
{
    return { certificateId };
}

QStringList KirvXmppSettings::configurations()
{
    return { tr("Server of the domain"), tr("Server on this computer"), tr("Server on this computer, unencrypted") };
}

QList<KirvField> KirvXmppSettings::configurationFields(const QString &name)
{
    const int index = int(configurations().indexOf(name));
    if (index < 0)
        return {};
    KirvXmppSettings settings;
    if (index == 0)
        return settings.toFields();

    settings.server = QStringLiteral("127.0.0.1");
    settings.port = localPort();
    if (index == 2)
        settings.encryption = None;
    else
        settings.certificatePath = localCertificatePath();
    return settings.toFields();
}

QString KirvXmppSettings::loginPattern()
{
    const QString part = QStringLiteral("[^\\s\"&'/:<>@]+");
    const QString label = QStringLiteral("[^\\s\"&'/:<>@.]+");
    return QStringLiteral("%1@%2(\\.%2)*").arg(part, label);
}

QString KirvXmppSettings::loginProblem(const QString &login)
{
    const int at = int(login.indexOf(QLatin1Char('@')));
    const QString name = login.left(at), domain = at < 0 ? QString() : login.mid(at + 1);
    for (const QChar character : login) {
        if (character.isSurrogate())
            continue;
        if (character.isSpace())
            return tr("An address contains no blanks.");
        const bool isSeparator = character == QLatin1Char('@');
        if (!character.isPrint() || (!isSeparator && charactersNeverInLogins().contains(character)))
            return tr("The character \"%1\" is not allowed in an address.").arg(kirvVisibleText(character));
    }
    if (at < 0)
        return tr("The domain is missing, as in anna@example.org.");
    if (domain.contains(QLatin1Char('@')))
        return tr("An address contains one \"@\" only.");
    if (name.isEmpty())
        return tr("The name before the \"@\" is missing.");
    if (domain.isEmpty())
        return tr("The domain after the \"@\" is missing.");
    if (domain.split(QLatin1Char('.')).contains(QString()))
        return tr("The domain after the \"@\" is not complete.");
    const auto isTooLong = [](const QString &part) { return part.toUtf8().size() > kirvXmppLongestAddressPart; };
    return isTooLong(name) || isTooLong(domain) ? tr("The address is too long.") : QString();
}

bool KirvXmppSettings::apply(const QString &domain, QXmppConfiguration *configuration, QString *problem) const
{
    QList<QSslCertificate> certificates;
    *problem = proxy.problem();
    if (!problem->isEmpty() || (!certificatePath.isEmpty() && !readCertificates(&certificates, problem)))
        return false;

    configuration->setDomain(domain);
    // Without a host it is looked up in the network, and the port is used only where no other one is found.
    configuration->setHost(server.isEmpty() && port != defaultPort ? domain : server);
    configuration->setPort(encryption == Direct && port == defaultPort ? directPort : port);
    configuration->setStreamSecurityMode(securityMode(encryption));
    configuration->setAutoReconnectionEnabled(false);
    configuration->setAutoAcceptSubscriptions(false);
    configuration->setUseNonSASLAuthentication(false);
    configuration->setIgnoreSslErrors(false);
    configuration->setCaCertificates(certificates);
    configuration->setNetworkProxy(proxy.toNetworkProxy());
    return true;
}

bool KirvXmppSettings::readCertificates(QList<QSslCertificate> *certificates, QString *problem) const
{
    const qint64 largest = 1024 * 1024;
    QFile file(certificatePath);
    // Opening a pipe would wait for who writes to it.
    if (QFileInfo::exists(certificatePath) && !QFileInfo(certificatePath).isFile()) {
        //: %1 is a file name
        *problem = tr("The trusted certificate %1 is not a file.").arg(certificatePath);
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        //: %1 is a file name, %2 the reason
        *problem = tr("The trusted certificate %1 cannot be read (%2).").arg(certificatePath, file.errorString());
        return false;
    }
    *certificates = QSslCertificate::fromData(file.read(largest), QSsl::Pem);
    if (certificates->isEmpty())
        *problem = tr("The file %1 does not hold a certificate in PEM format.").arg(certificatePath);
    return !certificates->isEmpty();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_settings.h"

#include "core/values/kirv_visible_text.h"
#include "protocols/irc/kirv_irc_text.h"

#include <QHash>
#include <QRegularExpression>

namespace {

const char serverId[] = "server";
const char portId[] = "port";
const char encryptionId[] = "encryption";
const char certificateId[] = "certificate";
const char clientCertificateId[] = "client_certificate";
const char clientKeyId[] = "client_key";
const char passwordUseId[] = "password_use";
const char saslUserId[] = "sasl_user";
const char realNameId[] = "real_name";
const char alternativeNicksId[] = "alternative_nicks";

const char required[] = "required";
const char none[] = "none";
const char notUsed[] = "none";
const char forServer[] = "server";
const char forSasl[] = "sasl";

const int encryptedPort = 6697;
const int plainPort = 6667;

const char nickPattern[] = "[A-Za-z_`^{|}\\[\\]\\\\][A-Za-z0-9_`^{|}\\[\\]\\\\-]*";

const char serverPattern[] = "[A-Za-z0-9.:-]+";

struct Network {
    const char *name;
    const char *server;
};

/// Public networks that offer encryption on the usual port, with certificates that systems trust.
const Network networks[] = {
    { "DALnet", "irc.dal.net" }, { "hackint", "irc.hackint.org" }, { "Libera.Chat", "irc.libera.chat" },
    { "OFTC", "irc.oftc.net" },  { "Rizon", "irc.rizon.net" },
};

bool isNick(const QString &text)
{
    static const QRegularExpression expression(QRegularExpression::anchoredPattern(QLatin1String(nickPattern)));
    return expression.match(text).hasMatch();
}

QStringList readNickList(const QString &text)
{
    static const QRegularExpression separator(QStringLiteral("[,\\s]+"));
    QStringList nicks;
    for (const QString &nick : text.split(separator)) {
        if (isNick(nick))
            nicks += nick;
    }
    return nicks;
}

KirvIrcSettings::PasswordUse readPasswordUse(const QString &value)
{
    if (value == QLatin1String(forServer))
        return KirvIrcSettings::ForServer;
    return value == QLatin1String(forSasl) ? KirvIrcSettings::ForSasl : KirvIrcSettings::NotUsed;
}

QHash<QString, QString> textsById(const QList<KirvField> &fields)
{
    QHash<QString, QString> texts;
    for (const KirvField &field : fields)
        texts.insert(field.getId(), field.getText());
    return texts;
}

QList<KirvField> fieldsFor(const QString &server, int port, const char *encryption)
{
    QList<KirvField> fields = KirvIrcSettings::defaultFields();
    for (KirvField &field : fields) {
        if (field.getId() == QLatin1String(serverId))
            field.setText(server);
        else if (field.getId() == QLatin1String(portId))
            field.setText(QString::number(port));
        else if (field.getId() == QLatin1String(encryptionId))
            field.setText(QLatin1String(encryption));
    }
    return fields;
}

QString portProblem()
{
    return KirvIrcSettings::tr("The port must be a number from 1 to 65535.");
}

/// What follows the "@" of a login. A value type.
struct ServerPart {
    QString server;
    bool hasPort = false;
    quint16 port = 0; ///< 0: it is no port
};

/// One colon stands before a port; the addresses of IPv6 have several.
ServerPart readServerPart(const QString &text)
{
    const int colon = int(text.indexOf(QLatin1Char(':')));
    if (colon < 0 || text.indexOf(QLatin1Char(':'), colon + 1) >= 0)
        return { text };
    static const QRegularExpression digits(QRegularExpression::anchoredPattern(QStringLiteral("[0-9]{1,5}")));
    const QString port = text.mid(colon + 1);
    return { text.left(colon), true, digits.match(port).hasMatch() ? port.toUShort() : quint16(0) };
}

/// The port of the server that was started together with the program, when it was.
int localPort()
{
    const int port = qEnvironmentVariableIntValue("KIRV_IRC_LOCAL_PORT");
    return port > 0 && port <= 65535 ? port : plainPort;
}

} // namespace

KirvIrcSettings::KirvIrcSettings(const QString &login, const QString &password, const QList<KirvField> &fields)
    : password(password)
    , proxy(fields)
{
    const QHash<QString, QString> texts = textsById(defaultFields() + fields);
    const auto text = [&texts](const char *id) { return texts.value(QLatin1String(id)).trimmed(); };

    nick = login.section(QLatin1Char('@'), 0, 0);
    server = text(serverId);
    port = text(portId).toUShort();
    if (server.isEmpty()) {
        const ServerPart part = readServerPart(login.section(QLatin1Char('@'), 1));
        server = part.server;
        port = part.hasPort ? part.port : port;
    }
    encrypted = text(encryptionId) != QLatin1String(none);
    certificateFile = text(certificateId);
    clientCertificateFile = text(clientCertificateId);
    clientKeyFile = text(clientKeyId);
    passwordUse = readPasswordUse(text(passwordUseId));
    saslUser = text(saslUserId).isEmpty() ? nick : text(saslUserId);
    realName = kirvIrcLine(text(realNameId), 100);
    if (realName.isEmpty())
        realName = nick;
    if (clientKeyFile.isEmpty())
        clientKeyFile = clientCertificateFile;
    alternativeNicks = readNickList(text(alternativeNicksId));
}

QString KirvIrcSettings::problem() const
{
    if (!isNick(nick))
        return tr("\"%1\" cannot be a nick.").arg(nick);
    if (!serverProblem().isEmpty())
        return serverProblem();
    if (clientCertificateFile.isEmpty() && !clientKeyFile.isEmpty())
        return tr("There is a key of a client certificate, but no client certificate.");
    if (usesClientCertificate() && !encrypted)
        return tr("A client certificate can be used with encryption only.");
    if (!proxy.problem().isEmpty())
        return proxy.problem();
    if (passwordUse == ForServer && password != kirvIrcLine(password, 400))
        return tr("The password cannot be sent: it is too long or has characters that do not belong to a line.");
    return QString();
}

QString KirvIrcSettings::serverProblem() const
{
    if (server.isEmpty())
        return tr("No server is given.");
    if (server != kirvIrcLine(server, 255) || server.contains(QLatin1Char(' ')))
        return tr("\"%1\" is not the name of a server.").arg(kirvIrcLine(server, 255));
    return port == 0 ? portProblem() : QString();
}

QStringList KirvIrcSettings::nicks() const
{
    QStringList candidates { nick };
    candidates += alternativeNicks;
    for (int appended = 1; appended <= 3; ++appended)
        candidates += nick + QString(appended, QLatin1Char('_'));
    candidates.removeDuplicates();
    return candidates;
}

bool KirvIrcSettings::needsPassword() const
{
    return passwordUse == ForServer || (passwordUse == ForSasl && !usesClientCertificate());
}

QString KirvIrcSettings::userName() const
{
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9]"));
    const QString name = QString(nick).remove(others).left(9).toLower();
    return name.isEmpty() ? QStringLiteral("user") : name;
}

QList<KirvField> KirvIrcSettings::defaultFields()
{
    const QList<KirvField> own {
        KirvField::textEdit(tr("Server"), QLatin1String(serverId), QString(),
                            tr("The name or address of the server. When it is empty, the part of the login after "
                               "the @ is the server.")),
        KirvField::number(tr("Port"), QLatin1String(portId), encryptedPort, 1, 65535,
                          tr("Usually 6697 with encryption and 6667 without. When the server is empty, a port in the "
                             "login, as in ann@irc.example.org:6667, is used instead.")),
        KirvField::choice(
            tr("Encryption"), QLatin1String(encryptionId), QLatin1String(required),
            { QLatin1String(required), QLatin1String(none) }, { tr("Required (TLS)"), tr("None") },
            tr("With encryption the server must also prove who it is. Without, everybody on the way can read along.")),
        KirvField::textEdit(tr("Trusted certificate"), QLatin1String(certificateId), QString(),
                            tr("The path of a file with a certificate (PEM) to trust besides those that this "
                               "computer trusts already.")),
        KirvField::choice(tr("Use of the password"), QLatin1String(passwordUseId), QLatin1String(notUsed),
                          { QLatin1String(notUsed), QLatin1String(forServer), QLatin1String(forSasl) },
                          { tr("Not used"), tr("Password of the server"), tr("Password of a registered nick (SASL)") },
                          tr("What the account's password is for. Most networks need none, unless you have "
                             "registered your nick there.")),
        KirvField::textEdit(tr("SASL user"), QLatin1String(saslUserId), QString(),
                            tr("The name under which the nick is registered. Empty: the nick itself.")),
        KirvField::textEdit(tr("Real name"), QLatin1String(realNameId), QString(),
                            tr("What others see as your name when they ask for it. Empty: the nick.")),
        KirvField::textEdit(tr("Alternative nicks"), QLatin1String(alternativeNicksId), QString(),
                            tr("Nicks to try when yours is in use, separated by commas.")),
        KirvField::textEdit(tr("Client certificate"), QLatin1String(clientCertificateId), QString(),
                            tr("The path of a file with a certificate of your own (PEM), to log in with instead of "
                               "the password (SASL EXTERNAL). Empty: none.")),
        KirvField::textEdit(tr("Key of the client certificate"), QLatin1String(clientKeyId), QString(),
                            tr("The path of the file with the certificate's private key (PEM, without a password). "
                               "Empty: it is in the certificate's file.")),
    };
    return own + KirvProxy().toFields();
}

QList<KirvField> KirvIrcSettings::forTest(QList<KirvField> fields)
{
    for (KirvField &field : fields) {
        if (field.getId() == QLatin1String(realNameId) || field.getId() == QLatin1String(alternativeNicksId))
            field.setText(QString());
    }
    return fields;
}

QStringList KirvIrcSettings::fileFields()
{
    return { QLatin1String(certificateId), QLatin1String(clientCertificateId), QLatin1String(clientKeyId) };
}

QStringList KirvIrcSettings::configurations()
{
    QStringList names;
    for (const Network &network : networks)
        names += QLatin1String(network.name);
    return names << tr("Server on this computer");
}

QList<KirvField> KirvIrcSettings::configurationFields(const QString &name)
{
    if (name == tr("Server on this computer"))
        return fieldsFor(QStringLiteral("127.0.0.1"), localPort(), none);
    for (const Network &network : networks) {
        if (name == QLatin1String(network.name))
            return fieldsFor(QLatin1String(network.server), encryptedPort, required);
    }
    return {};
}

QString KirvIrcSettings::loginPattern()
{
    return QStringLiteral("%1(@%2)?").arg(QLatin1String(nickPattern), QLatin1String(serverPattern));
}

QString KirvIrcSettings::loginProblem(const QString &login)
{
    const int at = int(login.indexOf(QLatin1Char('@')));
    const QString nick = login.left(at);
    if (std::any_of(login.begin(), login.end(), [](QChar character) { return character.isSpace(); }))
        return tr("A nickname contains no blanks.");
    if (nick.isEmpty())
        return tr("The nickname is missing.");
    if (nick.front().isDigit() || nick.front() == QLatin1Char('-'))
        return tr("A nickname starts with a letter.");
    if (!isNick(nick))
        return tr("A nickname consists of unaccented letters, digits and the characters %1.")
            .arg(QStringLiteral("- _ ` ^ { | } [ ] \\"));
    if (at < 0)
        return QString();
    const QString server = login.mid(at + 1);
    const ServerPart part = readServerPart(server);
    if (part.server.isEmpty())
        return tr("The server after the \"@\" is missing.");
    static const QRegularExpression address(QRegularExpression::anchoredPattern(QLatin1String(serverPattern)));
    if (!address.match(server).hasMatch())
        return tr("\"%1\" is no address of a server.").arg(kirvVisibleText(server));
    return part.hasPort && part.port == 0 ? portProblem() : QString();
}

QString KirvIrcSettings::normalizedLogin(const QString &login)
{
    const QString upper = QStringLiteral("[]\\~"), lower = QStringLiteral("{}|^");
    QString result = login;
    bool isNick = true;
    for (QChar &character : result) {
        isNick = isNick && character != QLatin1Char('@');
        const int index = isNick ? int(upper.indexOf(character)) : -1;
        if (index >= 0)
            character = lower.at(index);
        else if (character >= QLatin1Char('A') && character <= QLatin1Char('Z'))
            character = character.toLower();
    }
    return result;
}

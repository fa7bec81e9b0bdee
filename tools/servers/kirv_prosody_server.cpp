// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/servers/kirv_prosody_server.h"

#include <QDir>
#include <QFile>

namespace {

const char sessionMark[] = "session ";

/// \a text as a string of the configuration's language.
QString quoted(const QString &text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

QString quotedList(const QStringList &texts)
{
    QStringList list;
    for (const QString &text : texts)
        list << quoted(text);
    return list.join(QStringLiteral(", "));
}

QString luaBoolean(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

KirvProsodyServer::KirvProsodyServer() = default;

KirvProsodyServer::KirvProsodyServer(const Options &options)
    : options(options)
{
}

QString KirvProsodyServer::certificatePath() const
{
    return options.offersEncryption ? QDir(folder()).filePath(domain() + QLatin1String(".crt")) : QString();
}

QStringList KirvProsodyServer::arguments() const
{
    return { QStringLiteral("-F"), QStringLiteral("--config"), configurationPath() };
}

QString KirvProsodyServer::configurationPath() const
{
    return QDir(folder()).filePath(QStringLiteral("prosody.cfg.lua"));
}

bool KirvProsodyServer::writeConfiguration()
{
    const QDir home(folder());
    // The socket of the admin shell, which sessions() asks, is made in the data folder.
    if (!home.mkpath(QStringLiteral("data")))
        return fail(QStringLiteral("%1/data").arg(home.path()));
    if (options.offersEncryption && !QFile::exists(certificatePath()) && !makeCertificate())
        return false;

    QStringList modules { "roster", "saslauth", "disco", "vcard", "register", "ping", "admin_shell" };
    if (options.offersEncryption)
        modules << QStringLiteral("tls");
    modules << options.enabledModules;
    const QStringList lines {
        QStringLiteral("run_as_root = true"),
        QStringLiteral("data_path = %1").arg(quoted(home.filePath(QStringLiteral("data")))),
        QStringLiteral("pidfile = %1").arg(quoted(home.filePath(QStringLiteral("prosody.pid")))),
        QStringLiteral("certificates = %1").arg(quoted(home.path())),
        QStringLiteral("interfaces = { %1 }").arg(quoted(host())),
        QStringLiteral("c2s_ports = { %1 }").arg(options.encryptsAtOnce ? QString() : QString::number(port())),
        QStringLiteral("c2s_direct_tls_ports = { %1 }")
            .arg(options.encryptsAtOnce ? QString::number(port()) : QString()),
        QStringLiteral("modules_enabled = { %1 }").arg(quotedList(modules)),
        QStringLiteral("modules_disabled = { %1 }").arg(quotedList(options.disabledModules + QStringList("s2s"))),
        QStringLiteral("authentication = \"internal_plain\""),
        QStringLiteral("allow_registration = %1").arg(luaBoolean(options.allowsRegistration)),
        QStringLiteral("c2s_require_encryption = %1")
            .arg(luaBoolean(options.offersEncryption && options.requiresEncryption)),
        QStringLiteral("allow_unencrypted_plain_auth = %1").arg(luaBoolean(!options.offersEncryption)),
        QStringLiteral("log = { info = \"*console\" }"),
        QStringLiteral("VirtualHost %1").arg(quoted(domain())),
    };
    return writeFile(QStringLiteral("prosody.cfg.lua"), lines.join(QLatin1Char('\n')).toUtf8() + '\n');
}

bool KirvProsodyServer::makeCertificate()
{
    const QString key = QDir(folder()).filePath(domain() + QLatin1String(".key"));
    return runTool(QStringLiteral("openssl"),
                   { "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days",
                     "30", "-subj", "/CN=" + domain(), "-addext", "subjectAltName=DNS:" + domain(), "-keyout", key,
                     "-out", certificatePath() });
}

bool KirvProsodyServer::addUser(const QString &user, const QString &password)
{
    return control({ QStringLiteral("register"), user, domain(), password });
}

bool KirvProsodyServer::removeUser(const QString &user)
{
    return control({ QStringLiteral("deluser"), user + QLatin1Char('@') + domain() });
}

bool KirvProsodyServer::hasUser(const QString &user) const
{
    return QFile::exists(QDir(folder()).filePath(QStringLiteral("data/%1/accounts/%2.dat").arg(domain(), user)));
}

QStringList KirvProsodyServer::sessions()
{
    const QString question =
        QStringLiteral("> for jid in pairs(prosody.full_sessions) do print(%1 .. jid) end").arg(quoted(sessionMark));
    QString printed;
    if (!control({ QStringLiteral("shell"), question }, &printed))
        return {};

    QStringList addresses;
    for (const QString &line : printed.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String(sessionMark)))
            addresses << line.mid(int(qstrlen(sessionMark))).trimmed();
    }
    return addresses;
}

bool KirvProsodyServer::isOnline(const QString &user)
{
    return !sessions().filter(user + QLatin1Char('@') + domain() + QLatin1Char('/')).isEmpty();
}

bool KirvProsodyServer::control(const QStringList &command, QString *printed)
{
    return runTool(QStringLiteral("prosodyctl"), QStringList { "--config", configurationPath() } + command, printed);
}

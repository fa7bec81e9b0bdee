// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/servers/kirv_ngircd_server.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_UNIX

// Started by root, the server becomes "nobody" by itself, and with that the system forgets that it is to end with
// its parent. So it is "nobody" from the start, and its files are nobody's.

bool isRoot()
{
    return geteuid() == 0;
}

bool giveToServerUser(const QString &folder)
{
    const passwd *nobody = getpwnam("nobody");
    const auto give = [nobody](const QString &path) {
        return chown(QFile::encodeName(path).constData(), nobody->pw_uid, nobody->pw_gid) == 0;
    };
    bool given = nobody && give(folder);
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files))
        given = given && give(file.filePath());
    return given;
}

#else

bool isRoot()
{
    return false;
}

bool giveToServerUser(const QString &)
{
    return true;
}

#endif

} // namespace

bool KirvNgircdServer::writeConfiguration()
{
    if (encrypted && !QFile::exists(certificateFile()) && !createCertificate())
        return false;
    if (!writeFile(QStringLiteral("ngircd.conf"), configuration()))
        return false;
    return !isRoot() || giveToServerUser(folder())
        || fail(QCoreApplication::translate("KirvNgircdServer", "The files of the server could not be given to it."));
}

/// The parameters for the key exchange are a well-known group: the server would take seconds to make its own.
bool KirvNgircdServer::createCertificate()
{
    const QString openssl = QStringLiteral("openssl");
    return runTool(openssl,
                   { QStringLiteral("genpkey"), QStringLiteral("-genparam"), QStringLiteral("-algorithm"),
                     QStringLiteral("DH"), QStringLiteral("-pkeyopt"), QStringLiteral("group:ffdhe2048"),
                     QStringLiteral("-out"), parameterFile() })
        && runTool(openssl,
                   { QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                     QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-days"),
                     QStringLiteral("365"), QStringLiteral("-subj"), QStringLiteral("/CN=localhost"),
                     QStringLiteral("-addext"), QStringLiteral("subjectAltName=DNS:localhost,IP:127.0.0.1"),
                     QStringLiteral("-keyout"), keyFile(), QStringLiteral("-out"), certificateFile() });
}

/// Without penalties, as they make clients wait that come and go as quickly as tests do.
QByteArray KirvNgircdServer::configuration() const
{
    QStringList lines {
        QStringLiteral("[Global]"),
        QStringLiteral("Name = irc.test.local"),
        QStringLiteral("Info = Server on this computer"),
        QStringLiteral("AdminEMail = admin@localhost"),
        QStringLiteral("Listen = %1").arg(host()),
        QStringLiteral("MotdPhrase = Welcome"),
    };
    if (!encrypted)
        lines += QStringLiteral("Ports = %1").arg(port());
    if (!password.isEmpty())
        lines += QStringLiteral("Password = %1").arg(password);
    lines += {
        QStringLiteral("[Limits]"),
        QStringLiteral("MaxPenaltyTime = 0"),
        QStringLiteral("MaxConnectionsIP = 0"),
        QStringLiteral("MaxNickLength = %1").arg(maximumNickLength),
        QStringLiteral("[Options]"),
        QStringLiteral("DNS = no"),
        QStringLiteral("Ident = no"),
        QStringLiteral("PAM = no"),
    };
    if (encrypted) {
        lines += {
            QStringLiteral("[SSL]"),
            QStringLiteral("Ports = %1").arg(port()),
            QStringLiteral("CertFile = %1").arg(certificateFile()),
            QStringLiteral("KeyFile = %1").arg(keyFile()),
            QStringLiteral("DHFile = %1").arg(parameterFile()),
        };
    }
    return lines.join(QLatin1Char('\n')).toUtf8() + '\n';
}

QString KirvNgircdServer::program() const
{
    return isRoot() ? QStringLiteral("setpriv") : QStringLiteral("ngircd");
}

QStringList KirvNgircdServer::arguments() const
{
    const QStringList server { QStringLiteral("-n"), QStringLiteral("-f"), configurationFile() };
    if (!isRoot())
        return server;
    return QStringList { QStringLiteral("--reuid=nobody"), QStringLiteral("--regid=nogroup"),
                         QStringLiteral("--clear-groups"), QStringLiteral("--pdeathsig=KILL"),
                         QStringLiteral("ngircd") }
    + server;
}

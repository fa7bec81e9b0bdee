// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_OBSERVING_IRC_CLIENT_H
#define KIRV_OBSERVING_IRC_CLIENT_H

#include "tests/support/kirv_patience.h"
#include "tools/servers/kirv_ngircd_server.h"

#include <QDebug>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslSocket>

/// Another user on the same server, who speaks the protocol by hand.
class KirvObservingIrcClient {
public:
    bool logIn(const KirvNgircdServer &server, const QString &nick)
    {
        if (server.isEncrypted()) {
            QSslConfiguration configuration = socket.sslConfiguration();
            configuration.setCaCertificates(QSslCertificate::fromPath(server.certificateFile()));
            socket.setSslConfiguration(configuration);
            socket.connectToHostEncrypted(server.host(), server.port());
        } else {
            socket.connectToHost(server.host(), server.port());
        }
        return !ask(QStringLiteral("NICK %1\r\nUSER %1 0 * :%1").arg(nick), QStringLiteral(" 251 ")).isEmpty();
    }

    /// Whether \a nick is on the server.
    bool sees(const QString &nick)
    {
        return ask(QStringLiteral("ISON ") + nick, QStringLiteral(" 303 ")).endsWith(QLatin1Char(':') + nick);
    }

    /// Why \a nick is away; null when it is not.
    QString awayTextOf(const QString &nick)
    {
        const QString answer = ask(QStringLiteral("WHOIS ") + nick, QStringLiteral(" 318 "));
        const QRegularExpression away(QStringLiteral(" 301 \\S+ %1 :(.*)\r\n").arg(nick));
        return away.match(answer).captured(1);
    }

private:
    /// Sends \a line and gives what the server says up to the line with \a end; empty when that never comes.
    QString ask(const QString &line, const QString &end)
    {
        QString answer;
        socket.write(line.toUtf8() + "\r\n");
        const bool complete = QTest::qWaitFor(
            [&] {
                while (!answer.contains(end) && socket.canReadLine())
                    answer += QString::fromUtf8(socket.readLine());
                return answer.contains(end);
            },
            kirvPatience);
        if (!complete)
            qWarning().noquote() << "Asked" << line << "the server said:" << answer;
        return complete ? answer.trimmed() : QString();
    }

    QSslSocket socket;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_proxy.h"

#include "core/protocol/kirv_system_proxy.h"

#include <algorithm>

namespace {

const auto kindId = QStringLiteral("proxy");
const auto hostId = QStringLiteral("proxy_host");
const auto portId = QStringLiteral("proxy_port");
const auto userId = QStringLiteral("proxy_user");
const auto passwordId = QStringLiteral("proxy_password");

/// The stored values, in the order of KirvProxy::Kind.
const QStringList kindValues { QStringLiteral("none"), QStringLiteral("system"), QStringLiteral("socks5"),
                               QStringLiteral("http"), QStringLiteral("unknown") };

const int longestName = 255; // of a host, and in bytes of what SOCKS5 can carry

KirvProxy::Kind kindOf(const QString &value)
{
    const int index = int(kindValues.indexOf(value));
    if (value.isEmpty())
        return KirvProxy::None;
    return index < 0 ? KirvProxy::Unknown : KirvProxy::Kind(index);
}

int portOf(const QString &text)
{
    bool isNumber = false;
    const int port = text.trimmed().toInt(&isNumber);
    return isNumber && port > 0 && port <= 65535 ? port : 0;
}

bool hasControls(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return character.category() == QChar::Other_Control; });
}

bool isHost(const QString &text)
{
    return text.size() <= longestName && std::none_of(text.begin(), text.end(), [](QChar character) {
               return character.isSpace() || character.category() == QChar::Other_Control
                   || character == QLatin1Char('/') || character == QLatin1Char('@');
           });
}

QString nameOf(const QNetworkProxy &proxy)
{
    const bool needsBrackets = proxy.hostName().contains(QLatin1Char(':'));
    return QStringLiteral("%1:%2")
        .arg(needsBrackets ? QStringLiteral("[%1]").arg(proxy.hostName()) : proxy.hostName())
        .arg(proxy.port());
}

} // namespace

KirvProxy::KirvProxy(const QList<KirvField> &fields)
{
    for (const KirvField &field : fields) {
        const QString text = field.getText();
        if (field.getId() == kindId)
            kind = kindOf(text);
        else if (field.getId() == hostId)
            host = text.trimmed();
        else if (field.getId() == portId)
            port = portOf(text);
        else if (field.getId() == userId)
            user = text;
        else if (field.getId() == passwordId)
            password = text;
    }
}

QList<KirvField> KirvProxy::toFields() const
{
    return {
        KirvField::choice(tr("Proxy"), kindId, kindValues.at(kind), kindValues.mid(0, Unknown),
                          { tr("None"), tr("That of the system"), tr("SOCKS5"), tr("HTTP") },
                          tr("What all connections of the account go through. With a proxy the account is never "
                             "connected without it, and the proxy looks the name of the server up.")),
        KirvField::textEdit(tr("Proxy host"), hostId, host, tr("The name or address of a SOCKS5 or HTTP proxy.")),
        KirvField::number(tr("Proxy port"), portId, port, 1, 65535,
                          tr("Ordinarily 1080 with SOCKS5, and 3128 or 8080 with HTTP.")),
        KirvField::textEdit(tr("Proxy user"), userId, user, tr("Empty: the proxy needs no log-in.")),
        KirvField::password(tr("Proxy password"), passwordId, password,
                            tr("The proxy receives it without encryption. Do not use the password of the account.")),
    };
}

QString KirvProxy::problem() const
{
    if (kind == None || kind == System)
        return QString();
    if (kind == Unknown)
        return tr("The kind of the proxy is not known.");
    if (host.isEmpty())
        return tr("The proxy has no host.");
    if (!isHost(host))
        return tr("\"%1\" is not the name of a proxy.").arg(host.left(longestName));
    if (port == 0)
        return tr("The port of the proxy must be a number from 1 to 65535.");
    const bool isTooLong = user.toUtf8().size() > longestName || password.toUtf8().size() > longestName;
    if (isTooLong || hasControls(user) || hasControls(password))
        return tr("The user or the password of the proxy cannot be sent: it is too long or has characters that do not "
                  "belong to a line.");
    if (kind == Http && user.contains(QLatin1Char(':')))
        return tr("The user of an HTTP proxy cannot have a colon.");
    if (user.isEmpty() && !password.isEmpty())
        return tr("There is a password of the proxy, but no user.");
    return QString();
}

QNetworkProxy KirvProxy::toNetworkProxy() const
{
    if (kind == None)
        return QNetworkProxy(QNetworkProxy::NoProxy);
    if (kind == System)
        return QNetworkProxy(QNetworkProxy::DefaultProxy);
    return QNetworkProxy(kind == Http ? QNetworkProxy::HttpProxy : QNetworkProxy::Socks5Proxy, host, quint16(port),
                         user, password);
}

void kirvFindProxy(const QNetworkProxy &proxy, const QString &host, int port, KirvClock &clock, QObject *context,
                   const KirvProxyReceiver &receiver)
{
    if (proxy.type() != QNetworkProxy::DefaultProxy)
        return receiver(proxy, KirvFailure());
    KirvSystemProxy::instance().request(
        host, port, clock, context, [receiver](const std::optional<QNetworkProxy> &found) {
            receiver(found.value_or(QNetworkProxy()), found ? KirvFailure::None : KirvFailure::ProxyUnknown);
        });
}

KirvFailure kirvProxyFailure(const QNetworkProxy &proxy, QAbstractSocket::SocketError error, const QString &text)
{
    if (proxy.type() == QNetworkProxy::NoProxy)
        return KirvFailure();
    switch (error) {
    case QAbstractSocket::ProxyConnectionRefusedError:
    case QAbstractSocket::ProxyNotFoundError:
        return KirvFailure(KirvFailure::ProxyNotReached, nameOf(proxy));
    case QAbstractSocket::ProxyConnectionTimeoutError:
        return kirvProxyTimedOut(proxy);
    case QAbstractSocket::ProxyAuthenticationRequiredError:
        return KirvFailure(KirvFailure::ProxyLoginRefused, nameOf(proxy));
    case QAbstractSocket::SocketAccessError:
        return KirvFailure(KirvFailure::ProxyDenied, nameOf(proxy));
    case QAbstractSocket::ProxyConnectionClosedError:
    case QAbstractSocket::ProxyProtocolError:
    case QAbstractSocket::UnsupportedSocketOperationError:
    case QAbstractSocket::NetworkError: // on the way to the proxy, or beyond it
        return KirvFailure(KirvFailure::ProxyFailed, text);
    case QAbstractSocket::HostNotFoundError: // Qt takes the one reply of SOCKS5 for the other
        if (proxy.type() != QNetworkProxy::Socks5Proxy)
            return KirvFailure();
        return KirvFailure(KirvFailure::ProxyFailed,
                           KirvProxy::tr("it does not find the server, or does not allow a connection to it"));
    default:
        return KirvFailure();
    }
}

KirvFailure kirvProxyTimedOut(const QNetworkProxy &proxy)
{
    return KirvFailure(KirvFailure::ProxyTimedOut, nameOf(proxy));
}

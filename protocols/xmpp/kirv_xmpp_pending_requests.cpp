// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_pending_requests.h"

#include <QUrl>
#include <QUuid>

namespace {

/// The form in which addresses are compared: servers write theirs in lower case, and may write domains in either of
/// two forms. The resource is as it is.
QString normalised(const QString &address)
{
    const int slash = address.indexOf(QLatin1Char('/'));
    const QString bare = address.left(slash);
    const QString resource = slash < 0 ? QString() : address.mid(slash);
    const int at = bare.indexOf(QLatin1Char('@'));
    const QString domain = bare.mid(at + 1).toLower();
    const QString ascii = QString::fromLatin1(QUrl::toAce(domain));
    return bare.left(at + 1).toLower() + (ascii.isEmpty() ? domain : ascii) + resource;
}

} // namespace

void KirvXmppPendingRequests::setAccount(const QString &address)
{
    fullAddress = normalised(address);
    bareAddress = fullAddress.section(QLatin1Char('/'), 0, 0);
    domain = bareAddress.section(QLatin1Char('@'), -1);
}

QString KirvXmppPendingRequests::add(const QString &to, const Receiver &receiver)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    requests.insert(id, { normalised(to), receiver });
    return id;
}

bool KirvXmppPendingRequests::isAwaited(const QString &id, const QString &from) const
{
    const auto request = requests.constFind(id);
    if (request == requests.constEnd())
        return false;
    // The server replies for the account, and need not say that it is the server.
    const bool isToAccount = request->to.isEmpty() || request->to == bareAddress;
    const bool isToServer = isToAccount || request->to == domain;
    if (from.isEmpty())
        return isToServer;
    return isToAccount ? isOwnServer(from) : normalised(from) == request->to;
}

bool KirvXmppPendingRequests::isOwnServer(const QString &address) const
{
    const QString compared = normalised(address);
    return compared.isEmpty() || compared == domain || compared == bareAddress || compared == fullAddress;
}

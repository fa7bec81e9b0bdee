// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_address.h"

#include <algorithm>
#include <idn-free.h>
#include <idna.h>
#include <stringprep.h>

namespace {

/// Whether \a address consists of what nodeprep and nameprep only make lower case: most do.
bool isSimple(const QString &address)
{
    return std::all_of(address.begin(), address.end(), [](QChar character) {
        const ushort code = character.unicode();
        return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9')
            || code == '.' || code == '-' || code == '_' || code == '@';
    });
}

QString normalizedUser(const QString &user)
{
    const QByteArray typed = user.toUtf8();
    if (typed.size() > kirvXmppLongestAddressPart || typed.contains('\0'))
        return user;
    QByteArray prepared = typed.leftJustified(4 * kirvXmppLongestAddressPart, '\0');
    const bool isPrepared =
        stringprep(prepared.data(), size_t(prepared.size()), Stringprep_profile_flags(0), stringprep_xmpp_nodeprep)
        == STRINGPREP_OK;
    return isPrepared ? QString::fromUtf8(prepared.constData()) : user;
}

QString normalizedDomain(const QString &domain)
{
    const QByteArray typed = domain.toUtf8();
    if (typed.size() > kirvXmppLongestAddressPart || typed.contains('\0'))
        return domain;
    char *converted = nullptr;
    if (idna_to_ascii_8z(typed.constData(), &converted, IDNA_ALLOW_UNASSIGNED) != IDNA_SUCCESS)
        return domain.toLower();
    const QString ascii = QString::fromLatin1(converted).toLower();
    idn_free(converted);
    return ascii;
}

} // namespace

QString kirvXmppNormalizedAddress(const QString &address)
{
    const int at = int(address.indexOf(QLatin1Char('@')));
    if (at < 0)
        return address;
    QString normalized = isSimple(address)
        ? address.toLower()
        : normalizedUser(address.left(at)) + QLatin1Char('@') + normalizedDomain(address.mid(at + 1));
    if (normalized.endsWith(QLatin1Char('.'))) // the root of all names may be written or not
        normalized.chop(1);
    return normalized;
}

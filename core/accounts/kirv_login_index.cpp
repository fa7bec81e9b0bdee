// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_login_index.h"

#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_protocol_base.h"

namespace {

/// A login that the protocol makes nothing of is only the same as itself.
QString normalized(const KirvProtocolBase *protocol, const QString &login)
{
    QString result;
    if (!kirvCallPlugin([&] { result = protocol->normalizedLogin(login); }) || result.isEmpty())
        return login;
    return result;
}

} // namespace

void KirvLoginIndex::load(const KirvProtocolBase *protocol, const QString &name, const QStringList &ids)
{
    Logins logins;
    logins.protocol = protocol;
    logins.ids.reserve(int(ids.size()));
    for (const QString &id : ids) {
        const QString login = normalized(protocol, id);
        QStringList &same = logins.ids[login];
        same << id;
        if (same.size() == 2)
            logins.repeated << login;
    }
    loaded.insert(name, logins);
}

void KirvLoginIndex::unload(const QString &name)
{
    loaded.remove(name);
}

void KirvLoginIndex::insert(const KirvAccountKey &key)
{
    const auto logins = loaded.find(key.protocol);
    if (logins != loaded.end())
        logins->ids[normalized(logins->protocol, key.id)] << key.id;
}

void KirvLoginIndex::remove(const KirvAccountKey &key)
{
    const auto logins = loaded.find(key.protocol);
    if (logins == loaded.end())
        return;
    const auto same = logins->ids.find(normalized(logins->protocol, key.id));
    if (same == logins->ids.end())
        return;
    same->removeOne(key.id);
    if (same->isEmpty())
        logins->ids.erase(same);
}

QString KirvLoginIndex::find(const KirvAccountKey &key) const
{
    const auto logins = loaded.constFind(key.protocol);
    if (logins == loaded.constEnd())
        return QString();
    return logins->ids.value(normalized(logins->protocol, key.id)).value(0);
}

QList<QStringList> KirvLoginIndex::duplicateLogins(const QString &name) const
{
    QList<QStringList> groups;
    const Logins logins = loaded.value(name);
    for (const QString &login : logins.repeated) {
        const QStringList same = logins.ids.value(login);
        if (same.size() > 1)
            groups << same;
    }
    return groups;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_names.h"

#include "core/accounts/kirv_account.h"

#include <QSet>

#include <algorithm>

namespace {

/// Of many accounts, as many are named in a sentence.
const int mostNamed = 5;

/// \a name with the part before the first colon, which is a protocol or its beginning, in lower case.
QString folded(const QString &name)
{
    const int colon = int(name.indexOf(QLatin1Char(':')));
    return name.left(colon).toLower() + name.mid(colon < 0 ? int(name.size()) : colon);
}

} // namespace

KirvAccountNames::KirvAccountNames(const QList<KirvAccount *> &accounts)
{
    for (KirvAccount *account : accounts) {
        byName.insert(of(account->key()), account);
        byId.insert(account->key().id, account);
        byFoldedName.insert(folded(of(account->key())), account);
    }
}

QString KirvAccountNames::of(const KirvAccountKey &key)
{
    return key.protocol + QLatin1Char(':') + key.id;
}

/// The first of these ways by which there is one counts, so that the full name of an account names no other.
QList<KirvAccount *> KirvAccountNames::candidates(const QString &name) const
{
    QList<KirvAccount *> found = byName.values(name);
    if (found.isEmpty())
        found = byId.values(name);
    if (found.isEmpty())
        found = byFoldedName.values(folded(name));
    std::reverse(found.begin(), found.end()); // the latest is the first of a hash
    return found;
}

QList<KirvAccount *> KirvAccountNames::find(const QStringList &names, QString *problem) const
{
    QList<KirvAccount *> found;
    QSet<KirvAccount *> all;
    for (const QString &name : names) {
        const QList<KirvAccount *> those = candidates(name);
        if (those.size() == 1) {
            if (!all.contains(those.first()))
                found << those.first();
            all << those.first();
            continue;
        }
        if (those.isEmpty()) {
            *problem = tr("There is no account \"%1\".").arg(name);
            return {};
        }
        QStringList full;
        for (const KirvAccount *account : those.mid(0, mostNamed))
            full << of(account->key());
        //: %1 = what was typed, %2 = names that could be meant
        *problem = tr("Several accounts are called \"%1\". Name one of them with its protocol: %2")
                       .arg(name, full.join(QLatin1String(", ")));
        return {};
    }
    return found;
}

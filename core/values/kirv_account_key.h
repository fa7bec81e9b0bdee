// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_KEY_H
#define KIRV_ACCOUNT_KEY_H

#include <QHash>
#include <QString>

/// What names an account: its id and the name of its protocol. A value type.
struct KirvAccountKey {
    QString id; ///< the account id: the name under which the account logs in
    QString protocol; ///< the name of its protocol

    /// Whether both name the same account.
    bool operator==(const KirvAccountKey &other) const { return id == other.id && protocol == other.protocol; }
    /// Whether they name different accounts.
    bool operator!=(const KirvAccountKey &other) const { return !(*this == other); }

    /// The form in which the main account is stored: the id, "@@" and the protocol name.
    QString toSetting() const { return id + QLatin1String("@@") + protocol; }
    /// Reads that form; the last "@@" separates, as an id may hold one too. Empty parts when it has none.
    static KirvAccountKey fromSetting(const QString &text)
    {
        const int at = int(text.lastIndexOf(QLatin1String("@@")));
        return at < 0 ? KirvAccountKey() : KirvAccountKey { text.left(at), text.mid(at + 2) };
    }
};

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using KirvHashSeed = uint;
#else
using KirvHashSeed = size_t;
#endif

inline KirvHashSeed qHash(const KirvAccountKey &key, KirvHashSeed seed = 0)
{
    return qHash(key.id, seed) ^ (qHash(key.protocol, seed) * 31);
}

#endif

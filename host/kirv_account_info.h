// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_INFO_H
#define KIRV_ACCOUNT_INFO_H

#include <QString>

/// The stored description of one configured account, whether it is loaded or not.
/// The account manager owns what it hands out; callers never delete one.
class KirvAccountInfo {
public:
    /// The description of no account: its texts are empty.
    KirvAccountInfo()
        : enabled(false)
    {
    }
    /// The description of the account \a id, which is shown as \a alias.
    KirvAccountInfo(const QString &id, const QString &alias, bool enabled)
        : id(id)
        , alias(alias)
        , enabled(enabled)
    {
    }

    /// The account id: the name under which the account logs in.
    QString getId() const { return id; }
    /// The name shown for the account.
    QString getAlias() const { return alias; }
    /// Whether the account is enabled, as KirvAccountManager::accountEnabled() says.
    bool isEnabled() const { return enabled; }

private:
    QString id;
    QString alias;
    bool enabled;
};

#endif

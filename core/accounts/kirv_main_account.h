// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MAIN_ACCOUNT_H
#define KIRV_MAIN_ACCOUNT_H

#include <QObject>
#include <QString>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountManagerPrivate;
class KirvClientSettings;

/// The rule by which the core chooses and stores the main account: it is the account that the user chose last; while
/// that one is not configured or not enabled, the first enabled account in order. A protocol that is not loaded changes
/// nothing.
class KirvMainAccount : public QObject {
    Q_OBJECT

public:
    enum Reason { Removed, Disabled };

    /// None is owned, and all outlive this. \a state is where the contract keeps the main account: what is assigned
    /// there counts as chosen. Nothing is chosen before the first restore().
    KirvMainAccount(const KirvAccountCollection &accounts, KirvClientSettings &settings,
                    KirvAccountManagerPrivate &state, QObject *parent = nullptr);

    /// Null only when no account is enabled.
    KirvAccount *account() const;
    /// Makes the stored account the main account again, or another one by the rule.
    void restore();
    /// Makes \a account, which is enabled, the main account and stores it. False when the store refuses; nothing has
    /// changed then.
    bool choose(KirvAccount *account);

Q_SIGNALS:
    /// Another account became the main account, or none is, by restore(), choose() or the rule.
    void changed();
    /// The rule made \a next the main account, as that of the name \a previous cannot be it any more. Comes after
    /// changed().
    void successorChosen(const QString &previous, KirvMainAccount::Reason reason, KirvAccount *next);

private:
    KirvAccount *firstEnabled() const;
    void chooseSuccessor(const KirvAccount *previous, Reason reason);
    void assign(KirvAccount *account);

    const KirvAccountCollection &accounts;
    KirvClientSettings &settings;
    KirvAccountManagerPrivate &state;
    bool isRestored = false;
};

#endif

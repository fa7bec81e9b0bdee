// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_PLACES_H
#define KIRV_ACCOUNT_PLACES_H

#include <QHash>
#include <QVector>

class KirvAccount;

/// The order of the accounts with the places of those that were removed in this run: what is restored stands between
/// the same accounts again, in whatever order they were removed and come back. In memory only.
///
/// A place is a number greater than 0. The accounts are only compared, never followed.
class KirvAccountPlaces {
public:
    /// Gives \a account a place of its own behind all others.
    void append(const KirvAccount *account);
    /// The place of \a account; 0 when it has none.
    int placeOf(const KirvAccount *account) const { return places.value(account); }
    /// \a account leaves its place, which stays empty.
    void leave(const KirvAccount *account);
    /// Puts \a account, which has a place, into the empty place \a place instead. Does nothing when that is not empty.
    void fill(int place, const KirvAccount *account);
    /// Moves \a account with its place before \a next, or behind all others when \a next is null.
    void move(const KirvAccount *account, const KirvAccount *next);
    /// All places in order, the empty ones, too.
    const QVector<int> &inOrder() const { return order; }
    /// The account at \a place; null when it is empty.
    const KirvAccount *at(int place) const { return accounts.value(place); }

private:
    bool isEmpty(int place) const { return order.contains(place) && !accounts.contains(place); }

    QVector<int> order; ///< all places
    QHash<const KirvAccount *, int> places;
    QHash<int, const KirvAccount *> accounts; ///< those that are not empty
    int last = 0;
};

#endif

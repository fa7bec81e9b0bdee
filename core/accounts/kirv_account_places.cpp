// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_places.h"

void KirvAccountPlaces::append(const KirvAccount *account)
{
    order << ++last;
    places.insert(account, last);
    accounts.insert(last, account);
}

void KirvAccountPlaces::leave(const KirvAccount *account)
{
    accounts.remove(places.take(account));
}

void KirvAccountPlaces::fill(int place, const KirvAccount *account)
{
    if (!isEmpty(place))
        return;
    const int given = places.value(account);
    order.removeOne(given);
    accounts.remove(given);
    places.insert(account, place);
    accounts.insert(place, account);
}

void KirvAccountPlaces::move(const KirvAccount *account, const KirvAccount *next)
{
    const int place = places.value(account);
    order.removeOne(place);
    const int index = int(order.indexOf(places.value(next)));
    order.insert(index < 0 ? int(order.size()) : index, place);
}

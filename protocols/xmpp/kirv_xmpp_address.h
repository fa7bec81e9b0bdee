// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_ADDRESS_H
#define KIRV_XMPP_ADDRESS_H

#include <QString>

/// What the part before the @ and the domain of an address have at the most, in bytes of UTF-8 (RFC 7622, 3.2 and 3.3).
const int kirvXmppLongestAddressPart = 1023;

/// The bare address \a address as servers compare it: the part before the @ prepared with nodeprep, the domain with
/// nameprep and in the form in which it is looked up ("xn--…"). What has no such form stays as it is.
QString kirvXmppNormalizedAddress(const QString &address);

#endif

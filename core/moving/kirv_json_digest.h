// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_JSON_DIGEST_H
#define KIRV_JSON_DIGEST_H

#include <QByteArray>
#include <QJsonObject>

/// The BLAKE2b digest, 32 bytes, of the canonical form of \a object by RFC 8785: the same however the text is laid out
/// that it was read from. Numbers must be whole and within what a double holds exactly.
QByteArray kirvJsonDigest(const QJsonObject &object);

#endif

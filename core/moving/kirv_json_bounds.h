// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_JSON_BOUNDS_H
#define KIRV_JSON_BOUNDS_H

#include <QByteArray>

/// Whether \a json, which may be anything, can be parsed without much memory: what is in one another is not deeper than
/// \a mostDepth, and there are not more than \a mostParts values, an object or an array counting as four. Says nothing
/// about whether it is well-formed.
bool kirvIsBoundedJson(const QByteArray &json, int mostDepth, int mostParts);

#endif

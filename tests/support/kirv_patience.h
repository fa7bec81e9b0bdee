// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PATIENCE_H
#define KIRV_PATIENCE_H

#include <QTest>

/// How long a test waits for a condition before it fails, in milliseconds: long enough for a loaded machine. A test
/// that passes waits no longer than it must.
const int kirvPatience = 20000;

#define KIRV_TRY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, kirvPatience)
#define KIRV_TRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, kirvPatience)
/// For texts, which a failing test prints.
#define KIRV_TRY_CONTAINS(text, word)                                                                                  \
    QTRY_VERIFY2_WITH_TIMEOUT(text.contains(QLatin1String(word), Qt::CaseInsensitive), qPrintable(text), kirvPatience)

#endif

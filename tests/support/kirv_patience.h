// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PATIENCE_H
#define KIRV_PATIENCE_H

#include <QTest>

/// How long a test waits for a condition before it fails, in milliseconds: long enough for a loaded machine, and
/// shorter than the time after which a log-in has failed, so that no test passes by the second attempt. A test that
/// passes waits no longer than it must.
const int kirvPatience = 20000;
/// The same for a program that does much, from its start to its end.
const int kirvPatienceWithProgram = 3 * kirvPatience;

#define KIRV_TRY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, kirvPatience)
#define KIRV_TRY_SAYING(condition, text) QTRY_VERIFY2_WITH_TIMEOUT(condition, text, kirvPatience)
#define KIRV_TRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, kirvPatience)
/// For texts, which a failing test prints.
#define KIRV_TRY_CONTAINS(text, word)                                                                                  \
    QTRY_VERIFY2_WITH_TIMEOUT(text.contains(QLatin1String(word), Qt::CaseInsensitive), qPrintable(text), kirvPatience)

#endif

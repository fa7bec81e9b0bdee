// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_COLUMNS_H
#define KIRV_ACCOUNT_COLUMNS_H

#include "core/store/kirv_account_record.h"

#include <QList>
#include <QVariantList>

// How a record stands in the table of the accounts. Private to the store.

/// A column and the member that it holds: a text or a flag.
struct KirvAccountColumn {
    const char *name;
    QString KirvAccountRecord::*text;
    bool KirvAccountRecord::*flag;
};

/// All columns but the key and the position, in the order of kirvColumnValues(). Secrets have no column here.
const QList<KirvAccountColumn> &kirvAccountColumns();
/// Their names, each with \a suffix behind it, separated by commas.
QString kirvJoinedColumns(const QString &suffix);
/// Expressions, separated by commas, that give for each its value, and the default where a row has none.
QString kirvColumnsWithDefaults();
/// The one of the column called \a name; empty when it is none of them.
QString kirvColumnWithDefault(const QString &name);
/// A question mark for each.
QString kirvColumnPlaceHolders();

/// \a record without what is not to be stored.
KirvAccountRecord kirvStoredForm(KirvAccountRecord record);
QVariantList kirvColumnValues(const KirvAccountRecord &record);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STORE_SCHEMA_H
#define KIRV_STORE_SCHEMA_H

#include <QList>
#include <QStringList>

/// The steps from an empty database to the present schema: the statements at index N lead from version N to
/// version N + 1. A step that was released is never changed; a new schema is a new step at the end.
const QList<QStringList> &kirvStoreSchemaSteps();

#endif

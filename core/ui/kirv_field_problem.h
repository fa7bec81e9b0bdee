// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FIELD_PROBLEM_H
#define KIRV_FIELD_PROBLEM_H

#include "host/kirv_field.h"

// What can be wrong with the value of a field.

/// What is wrong with the value of \a field, as a sentence for the user; empty when nothing is.
QString kirvFieldProblem(const KirvField &field);
/// Whether any value of \a field is wrong.
bool kirvCanHaveProblem(const KirvField &field);

/// Whether the text of \a field can neither be shown in full nor be changed.
bool kirvIsTooLongToEdit(const KirvField &field);
/// Whether the text of \a field is a whole number from its minimum to its maximum.
bool kirvIsWholeNumberIn(const KirvField &field);

/// \a text, or its first characters and an ellipsis: \a length at most.
QString kirvShortened(const QString &text, int length);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LENGTH_LIMIT_H
#define KIRV_LENGTH_LIMIT_H

class QLineEdit;
class QPlainTextEdit;
class QTextEdit;

// What is typed or pasted into a field beyond what the field takes is said beside it, in place of being cut in silence.
// The limit goes with the field.

/// The limit is that of \a edit itself.
void kirvLimitLength(QLineEdit *edit);
/// The limit is that of a line of text.
void kirvLimitLength(QTextEdit *edit);
void kirvLimitLength(QPlainTextEdit *edit);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TYPED_INPUT_H
#define KIRV_TYPED_INPUT_H

#include <QHash>
#include <QString>
#include <QVariant>

class QWidget;

/// Whether the user has entered anything in a window. A value type.
class KirvTypedInput {
public:
    /// Notes what \a window shows before the user can change it.
    void note(const QWidget *window);
    /// Whether a text was typed or something was chosen since. What the program fills in counts only where it cannot be
    /// told from a choice.
    bool isIn(const QWidget *window) const;

private:
    QHash<QString, QVariant> noted; ///< by object name
};

#endif

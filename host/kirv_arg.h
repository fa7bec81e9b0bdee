// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ARG_H
#define KIRV_ARG_H

#include <QVariant>

/// One argument of a core signal. A value type; the signal's name says what the value means.
class KirvArg {
public:
    /// Carries an invalid value.
    KirvArg() { }
    /// Carries \a value.
    explicit KirvArg(const QVariant &value)
        : value(value)
    {
    }

    /// The value that the argument carries; invalid when it carries none.
    QVariant getValue() const { return value; }

private:
    QVariant value;
};

#endif

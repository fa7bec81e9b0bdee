// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ARG_H
#define KIRV_ARG_H

#include <QVariant>

/// One argument of a core signal. A value type; the signal's name says what the value means.
class KirvArg {
public:
    KirvArg() { }
    explicit KirvArg(const QVariant &value)
        : value(value)
    {
    }

    QVariant getValue() const { return value; }

private:
    QVariant value;
};

#endif

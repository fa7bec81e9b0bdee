// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_QUICK_KEYS_H
#define KIRV_QUICK_KEYS_H

#include <QtGlobal>

/// Stands before libsodium's crypto_pwhash() in a program that is linked with this: a key takes a second otherwise, on
/// purpose.
struct KirvQuickKeys {
    int made = 0; ///< keys
    qint64 operations = 0; ///< of the last one
    qint64 memory = 0; ///< of the last one, bytes
    bool hasMemory = true; ///< false: keys cannot be made
    bool isReal = false; ///< true: libsodium makes the keys

    static KirvQuickKeys &instance();
};

#endif

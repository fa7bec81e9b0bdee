// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_quick_keys.h"

#include <dlfcn.h>
#include <sodium.h>

KirvQuickKeys &KirvQuickKeys::instance()
{
    static KirvQuickKeys keys;
    return keys;
}

extern "C" int crypto_pwhash(unsigned char *const key, unsigned long long keySize, const char *const passPhrase,
                             unsigned long long passPhraseSize, const unsigned char *const salt,
                             unsigned long long operations, std::size_t memory, int algorithm)
{
    KirvQuickKeys &keys = KirvQuickKeys::instance();
    ++keys.made;
    keys.operations = static_cast<qint64>(operations);
    keys.memory = static_cast<qint64>(memory);
    if (!keys.hasMemory)
        return -1;
    if (keys.isReal) {
        using Function = int (*)(unsigned char *, unsigned long long, const char *, unsigned long long,
                                 const unsigned char *, unsigned long long, std::size_t, int);
        static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "crypto_pwhash"));
        return real ? real(key, keySize, passPhrase, passPhraseSize, salt, operations, memory, algorithm) : -1;
    }
    // Everything that makes another key does so here, too.
    crypto_generichash_state state;
    crypto_generichash_init(&state, salt, crypto_pwhash_SALTBYTES, static_cast<std::size_t>(keySize));
    crypto_generichash_update(&state, reinterpret_cast<const unsigned char *>(&operations), sizeof operations);
    crypto_generichash_update(&state, reinterpret_cast<const unsigned char *>(&memory), sizeof memory);
    crypto_generichash_update(&state, reinterpret_cast<const unsigned char *>(passPhrase), passPhraseSize);
    return crypto_generichash_final(&state, key, static_cast<std::size_t>(keySize));
}

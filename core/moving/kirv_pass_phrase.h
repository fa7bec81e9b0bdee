// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PASS_PHRASE_H
#define KIRV_PASS_PHRASE_H

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// The pass phrases that files of accounts are encrypted with. The bounds are those of new ones.
class KirvPassPhrase {
    Q_DECLARE_TR_FUNCTIONS(KirvPassPhrase)

public:
    static constexpr int shortest = 12; ///< in characters
    static constexpr int longest = 1024; ///< in bytes of UTF-8

    /// The pass phrase that \a bytes are, typed or in a file: UTF-8 whatever the locale is, so that it is the same
    /// everywhere; in the encoding of the locale when they are no UTF-8.
    static QString fromBytes(const QByteArray &bytes);
    /// Why nothing new is encrypted with \a phrase, a sentence for the user; empty: it can be used.
    static QString problemWithNew(const QString &phrase);
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_BOX_H
#define KIRV_SECRET_BOX_H

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// Bytes that are encrypted with a pass phrase: Argon2id makes the key of it, the secret box of libsodium (XSalsa20 and
/// Poly1305) encrypts. Private to KirvAccountFile.
///
/// Keys and the forms of the pass phrase that are made here are overwritten.
namespace KirvSecretBox {

/// What a box may need to be opened; more is refused before anything is done.
constexpr qint64 mostMemory = 512 * 1024 * 1024; ///< bytes
constexpr qint64 mostOperations = 10;

enum Outcome {
    Done,
    Damaged, ///< not of the form of a box, or changed by accident
    TooExpensive, ///< needs more than the bounds above
    NoMemory, ///< now
    WrongPassPhrase
};

/// Encrypts \a content; \a box is what open() and check() take.
Outcome seal(const QByteArray &content, const QString &passPhrase, QJsonObject *box);
/// Done, Damaged or TooExpensive; takes no time.
Outcome check(const QJsonObject &box);
/// Gives the \a content, which the caller overwrites.
Outcome open(const QJsonObject &box, const QString &passPhrase, QByteArray *content);
/// Overwrites \a bytes, which nothing else shares, and empties them.
void wipe(QByteArray &bytes);

} // namespace KirvSecretBox

#endif

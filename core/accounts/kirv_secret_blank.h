// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_BLANK_H
#define KIRV_SECRET_BLANK_H

#include <QString>
#include <QStringList>

struct KirvAccountRecord;
struct KirvLogin;

/// Takes the secrets of an account out of texts that somebody else may read. A value type.
///
/// A secret is taken out wherever it occurs, also in the forms in which protocols send it; a short one only where it
/// stands alone, as the text would show it by what is missing otherwise. What looks like a part of a log-in by SASL is
/// taken out, too.
class KirvSecretBlank {
public:
    static const int shortSecret = 4; ///< characters; shorter ones stand alone

    KirvSecretBlank() = default;
    explicit KirvSecretBlank(const QStringList &secrets);
    /// Of the password and the secret settings.
    explicit KirvSecretBlank(const KirvAccountRecord &record);
    explicit KirvSecretBlank(const KirvLogin &login);
    /// Of both.
    KirvSecretBlank &operator+=(const KirvSecretBlank &other);

    /// \a text with blank() in place of each secret.
    QString without(const QString &text) const;
    /// What stands in the place of a secret.
    static QString blank();
    /// \a text with \a replacement in place of \a word, where that stands alone, in capitals or not.
    static QString withoutWord(const QString &text, const QString &word, const QString &replacement);

private:
    bool isLoginPayload(const QString &token) const;
    QString withoutPayloads(const QString &text) const;

    QStringList secrets; ///< the longest first
};

#endif

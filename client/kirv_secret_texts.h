// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_TEXTS_H
#define KIRV_SECRET_TEXTS_H

#include <QCoreApplication>
#include <QString>

class KirvAccount;
class KirvSecretKeeper;

/// What the windows say about where passwords are kept, in one place. All texts are plain text.
class KirvSecretTexts {
    Q_DECLARE_TR_FUNCTIONS(KirvSecretTexts)

public:
    /// \a keeper is not owned and outlives this.
    explicit KirvSecretTexts(const KirvSecretKeeper &keeper)
        : keeper(keeper)
    {
    }

    /// Where a password that is remembered goes, for the line below the box; empty while that is not known.
    QString place() const;
    /// Who keeps the passwords, and in what state that is, in sentences.
    QString state() const;
    /// Where a password is that was just stored while isRememberingUnsafe(), in a sentence.
    static QString keptInFile();
    /// Whether passwords are better not remembered unless the user says so: there is no keyring.
    bool isRememberingUnsafe() const;
    /// A few words about why a secret that is awaited is not there.
    QString shortObstacle() const;
    /// The same in sentences, with what can be done when the password is awaited.
    QString obstacle() const;
    /// The same, with what can be done when \a account awaits what it awaits.
    QString obstacleOf(const KirvAccount &account) const;
    /// Why a password, or a setting that is one, is not shown, and what happens to it; for the edit window.
    QString notShown() const;
    /// A password that the profile says is in the keyring is not there.
    static QString passwordIsGone();

private:
    /// \a named with the name of the keyring's program as its %1, or \a nameless when that is not known.
    QString withProvider(const QString &named, const QString &nameless) const;
    QString obstacleItself() const;
    QString obstacleWith(const QString &advice) const;

    const KirvSecretKeeper &keeper;
};

#endif

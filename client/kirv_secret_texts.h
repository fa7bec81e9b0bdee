// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_TEXTS_H
#define KIRV_SECRET_TEXTS_H

#include <QCoreApplication>
#include <QString>

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

    /// The name of the keyring's program, or "your keyring".
    QString provider() const;
    /// Where a password that is remembered goes, for the line below the box; empty while that is not known.
    QString place() const;
    /// Whether passwords are better not remembered unless the person says so: there is no keyring.
    bool isRememberingUnsafe() const;
    /// A few words about why a secret that is awaited is not there.
    QString shortObstacle() const;
    /// The same in sentences, with what can be done.
    QString obstacle() const;
    /// Why a password is not shown, and what happens to it; for the edit window.
    QString notShown() const;
    /// A password that the profile says is in the keyring is not there.
    static QString passwordIsGone();

private:
    const KirvSecretKeeper &keeper;
};

#endif

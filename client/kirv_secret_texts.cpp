// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_secret_texts.h"

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_secret_keeper.h"

QString KirvSecretTexts::withProvider(const QString &named, const QString &nameless) const
{
    const QString name = keeper.keyring() ? keeper.keyring()->providerName() : QString();
    return name.isEmpty() ? nameless : named.arg(name);
}

QString KirvSecretTexts::place() const
{
    if (!keeper.keyring())
        return tr("in a file only you can read");
    switch (keeper.keyring()->state()) {
    case KirvSecretStore::Unknown:
        break;
    case KirvSecretStore::Ready:
        //: where a password is kept; %1 = "GNOME Keyring"
        return withProvider(tr("in %1"),
                            //: where a password is kept
                            tr("in your keyring"));
    case KirvSecretStore::Locked:
        //: where a password is kept; %1 = "GNOME Keyring"
        return withProvider(tr("in %1 (locked: you will be asked to unlock it)"),
                            //: where a password is kept
                            tr("in your keyring (locked: you will be asked to unlock it)"));
    case KirvSecretStore::Silent:
        return tr("Your keyring does not respond: it would be kept there when it responds again");
    case KirvSecretStore::Unavailable:
        return tr("There is no keyring here: it would be kept in a file only you can read");
    }
    return QString();
}

QString KirvSecretTexts::state() const
{
    const QString inFile = tr("Passwords that are remembered are kept in a file only you can read.");
    if (!keeper.keyring())
        return inFile;
    switch (keeper.keyring()->state()) {
    case KirvSecretStore::Unknown:
        return tr("The program is finding out whether there is a keyring.");
    case KirvSecretStore::Ready:
        //: %1 = "GNOME Keyring", here and below
        return withProvider(tr("%1 keeps the passwords. It is unlocked."),
                            tr("Your keyring keeps the passwords. It is unlocked."));
    case KirvSecretStore::Locked: {
        const QString locked = withProvider(tr("%1 keeps the passwords. It is locked."),
                                            tr("Your keyring keeps the passwords. It is locked."));
        if (!keeper.hasMovableSecrets())
            return locked;
        return locked + QLatin1Char(' ')
            + tr("Some passwords are still in a file only you can read. They are moved when the keyring is unlocked.");
    }
    case KirvSecretStore::Silent:
        return withProvider(tr("%1 keeps the passwords. It does not respond."),
                            tr("Your keyring keeps the passwords. It does not respond."));
    case KirvSecretStore::Unavailable:
        break;
    }
    return tr("There is no keyring.") + QLatin1Char(' ') + inFile;
}

QString KirvSecretTexts::keptInFile()
{
    //: it = a password that was just stored
    return tr("There is no keyring here: it is kept in a file only you can read.");
}

bool KirvSecretTexts::isRememberingUnsafe() const
{
    return keeper.keyring() && keeper.keyring()->state() == KirvSecretStore::Unavailable;
}

QString KirvSecretTexts::shortObstacle() const
{
    switch (keeper.obstacle()) {
    case KirvSecretKeeper::None:
        return tr("Reading the password…");
    case KirvSecretKeeper::Locked:
    case KirvSecretKeeper::Refused:
        return tr("The keyring is locked");
    case KirvSecretKeeper::Silent:
        return tr("The keyring does not respond");
    case KirvSecretKeeper::Unavailable:
        return tr("The keyring is not there");
    case KirvSecretKeeper::Failed:
        break;
    }
    return tr("The keyring cannot be read");
}

QString KirvSecretTexts::obstacleItself() const
{
    switch (keeper.obstacle()) {
    case KirvSecretKeeper::None:
        //: %1 = "GNOME Keyring", here and below
        return withProvider(tr("The password is being read from %1."),
                            tr("The password is being read from your keyring."));
    case KirvSecretKeeper::Locked:
        return withProvider(tr("The password is in %1, which is locked. Unlock it."),
                            tr("The password is in your keyring, which is locked. Unlock it."));
    case KirvSecretKeeper::Refused:
        return withProvider(tr("The password is in %1, which was not unlocked. Reconnect asks again."),
                            tr("The password is in your keyring, which was not unlocked. Reconnect asks again."));
    case KirvSecretKeeper::Silent:
        return withProvider(
            tr("The password is in %1, which does not respond. The account connects when it does."),
            tr("The password is in your keyring, which does not respond. The account connects when it does."));
    case KirvSecretKeeper::Unavailable:
        return tr("The password is in the keyring, which is not there. The account connects when it is started.");
    case KirvSecretKeeper::Failed:
        break;
    }
    return withProvider(tr("The password is in %1, which cannot be read. Reconnect tries again."),
                        tr("The password is in your keyring, which cannot be read. Reconnect tries again."));
}

QString KirvSecretTexts::obstacleWith(const QString &advice) const
{
    if (keeper.obstacle() == KirvSecretKeeper::None)
        return obstacleItself();
    return obstacleItself() + QLatin1Char(' ') + advice;
}

QString KirvSecretTexts::obstacle() const
{
    return obstacleWith(tr("Or enter the password: it is used until the program ends."));
}

QString KirvSecretTexts::obstacleOf(const KirvAccount &account) const
{
    if (!account.awaitsSetting())
        return obstacle();
    // The password alone would not let it log in.
    return obstacleWith(account.awaitsPassword()
                            ? tr("Or edit the account and enter its passwords again.")
                            //: it = a password that is one of the settings of an account, such as that of a proxy
                            : tr("Or edit the account and enter it again."));
}

QString KirvSecretTexts::notShown() const
{
    switch (keeper.obstacle()) {
    case KirvSecretKeeper::None:
        return tr("The password is being read. It stays as it is unless you enter another one.");
    case KirvSecretKeeper::Locked:
    case KirvSecretKeeper::Refused:
        return tr("The keyring is locked. The password stays as it is unless you enter another one.");
    case KirvSecretKeeper::Silent:
        return tr("The keyring does not respond. The password stays as it is unless you enter another one.");
    case KirvSecretKeeper::Unavailable:
        return tr("The keyring is not there. The password stays as it is unless you enter another one.");
    case KirvSecretKeeper::Failed:
        break;
    }
    return tr("The keyring cannot be read. The password stays as it is unless you enter another one.");
}

QString KirvSecretTexts::passwordIsGone()
{
    return tr("The password is not in the keyring any more.");
}

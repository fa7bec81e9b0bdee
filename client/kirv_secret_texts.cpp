// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_secret_texts.h"

#include "core/accounts/kirv_secret_keeper.h"

QString KirvSecretTexts::provider() const
{
    const QString name = keeper.keyring() ? keeper.keyring()->providerName() : QString();
    return name.isEmpty() ? tr("your keyring") : name;
}

QString KirvSecretTexts::place() const
{
    if (!keeper.keyring())
        return tr("in a file only you can read");
    switch (keeper.keyring()->state()) {
    case KirvSecretStore::Unknown:
        break;
    case KirvSecretStore::Ready:
        //: where a password is kept; %1 = "GNOME Keyring", or "your keyring"
        return tr("in %1").arg(provider());
    case KirvSecretStore::Locked:
        //: where a password is kept; %1 = "GNOME Keyring", or "your keyring"
        return tr("in %1 (locked: you will be asked to unlock it)").arg(provider());
    case KirvSecretStore::Silent:
        return tr("Your keyring does not respond: it would be kept there when it responds again");
    case KirvSecretStore::Unavailable:
        return tr("There is no keyring here: it would be kept in a file only you can read");
    }
    return QString();
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

QString KirvSecretTexts::obstacle() const
{
    const QString otherwise = tr("Or enter the password: it is used until the program ends.");
    switch (keeper.obstacle()) {
    case KirvSecretKeeper::None:
        return tr("The password is being read from %1.").arg(provider());
    case KirvSecretKeeper::Locked:
        return tr("The password is in %1, which is locked. Unlock it.").arg(provider()) + QLatin1Char(' ') + otherwise;
    case KirvSecretKeeper::Refused:
        return tr("The password is in %1, which was not unlocked. Reconnect asks again.").arg(provider())
            + QLatin1Char(' ') + otherwise;
    case KirvSecretKeeper::Silent:
        return tr("The password is in %1, which does not respond. The account connects when it does.").arg(provider())
            + QLatin1Char(' ') + otherwise;
    case KirvSecretKeeper::Unavailable:
        return tr("The password is in the keyring, which is not there. The account connects when it is started.")
            + QLatin1Char(' ') + otherwise;
    case KirvSecretKeeper::Failed:
        break;
    }
    return tr("The password is in %1, which cannot be read. Reconnect tries again.").arg(provider()) + QLatin1Char(' ')
        + otherwise;
}

QString KirvSecretTexts::notShown() const
{
    //: %1 = a few words, as "The keyring is locked"
    return tr("%1. The password stays as it is unless you enter another one.").arg(shortObstacle());
}

QString KirvSecretTexts::passwordIsGone()
{
    return tr("The password is not in the keyring any more.");
}

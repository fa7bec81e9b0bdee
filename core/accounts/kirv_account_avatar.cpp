// SPDX-License-Identifier: LGPL-2.1-or-later
// The picture of an account: the user's own and the one that another client has put on the server.
#include "core/accounts/kirv_account.h"

#include "core/store/kirv_store.h"

#include <QDir>
#include <QTemporaryFile>

void KirvAccount::discardUnusedAvatars()
{
    for (const QString &avatar : qAsConst(importedAvatars)) {
        if (avatar != current.avatar)
            profile.discardAvatar(avatar);
    }
    importedAvatars.clear();
}

bool KirvAccount::setAvatar(const QString &path)
{
    if (removed)
        return false;
    QString avatar;
    if (!path.isEmpty()) {
        avatar = profile.importAvatar(path);
        if (avatar.isEmpty()) {
            Q_EMIT refused(profile.lastError());
            return false;
        }
    }
    const bool hadNoAvatar = avatar.isEmpty() && current.avatar.isEmpty();
    return takeAvatar(avatar, [hadNoAvatar](KirvAccountRecord &record) {
        if (!hadNoAvatar)
            record.settings.insert(KirvOwnSetting::avatarIsChosen, QStringLiteral("true"));
    });
}

/// Makes \a imported, a name in the profile's folder or empty, the avatar.
bool KirvAccount::takeAvatar(const QString &imported, const std::function<void(KirvAccountRecord &)> &alsoChange)
{
    return change([&](KirvAccountRecord &record) {
        record.avatar = imported;
        if (!imported.isEmpty())
            importedAvatars << imported;
        alsoChange(record);
    });
}

KirvAvatar KirvAccount::avatar() const
{
    return { avatarPath(), current.settings.value(KirvOwnSetting::avatarOnServer).toLatin1(),
             current.settings.contains(KirvOwnSetting::avatarIsChosen) };
}

void KirvAccount::onAvatarPublished(const QString &path, const QByteArray &onServer)
{
    if (removed)
        return;
    change([&](KirvAccountRecord &record) {
        record.settings.insert(KirvOwnSetting::avatarOnServer, QString::fromLatin1(onServer));
        if (path == avatarPath()) // otherwise another one was chosen since
            record.settings.remove(KirvOwnSetting::avatarIsChosen);
    });
}

/// A picture that cannot be used changes nothing here, and is not overwritten either.
void KirvAccount::onAvatarReceived(const QByteArray &image, const QByteArray &onServer)
{
    if (removed || avatar().isChosen)
        return;
    QString imported;
    if (!image.isEmpty()) {
        QTemporaryFile file;
        if (file.open() && file.write(image) == image.size() && file.flush())
            imported = profile.importAvatar(file.fileName());
    }
    const bool isUsable = image.isEmpty() || !imported.isEmpty();
    takeAvatar(isUsable ? imported : current.avatar, [&onServer](KirvAccountRecord &record) {
        record.settings.insert(KirvOwnSetting::avatarOnServer, QString::fromLatin1(onServer));
    });
}

QString KirvAccount::avatarPath() const
{
    return current.avatar.isEmpty() ? QString() : QDir(profile.avatarFolder()).filePath(current.avatar);
}

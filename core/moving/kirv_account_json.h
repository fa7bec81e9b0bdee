// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_JSON_H
#define KIRV_ACCOUNT_JSON_H

#include "core/moving/kirv_moved_accounts.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

/// Between accounts and their members in a file, see docs/export-format.md. Private to the moving of accounts.
namespace KirvAccountJson {

/// What everybody may read of \a account: without password and secret settings.
QJsonObject readablePart(const KirvMovedAccount &account);
/// Its password and secret settings, as far as it has them.
QJsonObject secretPart(const KirvAccountRecord &record);

/// Fills \a account, which is empty, from its readable part. The result is the name of a member that is wrong, or
/// empty.
QString readReadablePart(const QJsonValue &json, KirvMovedAccount *account);
/// Adds the password and the secret settings. False when \a json is no secret part of \a record.
bool readSecretPart(const QJsonValue &json, KirvAccountRecord *record);

/// Whether \a setting is one of KirvOwnSetting, which belong to a profile.
bool isOwnSetting(const QString &setting);
/// The name of the first member with a value that no file has: too long, not a text, or with control characters. Empty:
/// none.
QString wrongMember(const KirvMovedAccount &account);

} // namespace KirvAccountJson

#endif

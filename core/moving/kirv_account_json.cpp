// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_account_json.h"

#include "core/values/kirv_text_limit.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <algorithm>

namespace {

const QLatin1String login("login");
const QLatin1String protocol("protocol");
const QLatin1String settings("settings");
const QLatin1String secretSettings("secret_settings");
const QLatin1String trustedCertificate("trusted_certificate");
const QLatin1String picture("picture");
const QLatin1String password("password");

const int mostSettings = 1000; ///< of one account

enum Form { Line, Lines, HexDigest };

struct TextMember {
    QLatin1String name;
    QString KirvAccountRecord::*text = nullptr;
    Form form = Line;
};

struct FlagMember {
    QLatin1String name;
    bool KirvAccountRecord::*flag = nullptr;
};

// The names of the file stay what they are, whatever the record and the columns of the store are called.
const TextMember texts[] = {
    { QLatin1String("alias"), &KirvAccountRecord::alias, Line },
    { QLatin1String("default_presence"), &KirvAccountRecord::defaultPresence, Line },
    { QLatin1String("default_description"), &KirvAccountRecord::defaultDescription, Lines },
    { QLatin1String("last_presence"), &KirvAccountRecord::lastPresence, Line },
    { QLatin1String("last_description"), &KirvAccountRecord::lastDescription, Lines },
    { trustedCertificate, &KirvAccountRecord::trustedCertificate, HexDigest },
};

const FlagMember flags[] = {
    { QLatin1String("enabled"), &KirvAccountRecord::enabled },
    { QLatin1String("remember_password"), &KirvAccountRecord::rememberPassword },
    { QLatin1String("restore_presence"), &KirvAccountRecord::restorePresence },
    { QLatin1String("restore_description"), &KirvAccountRecord::restoreDescription },
};

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

bool isLayout(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\t') || character == QLatin1Char('\r');
}

bool isWellFormed(const QString &text, Form form)
{
    static const QRegularExpression digest(QRegularExpression::anchoredPattern(QStringLiteral("([0-9a-f]{64})?")));
    if (form == HexDigest)
        return digest.match(text).hasMatch();
    const auto isWrong = [form](QChar character) {
        return isControl(character) && !(form == Lines && isLayout(character));
    };
    return text.size() <= kirvLongestEditableText && text.isValidUtf16()
        && std::none_of(text.begin(), text.end(), isWrong);
}

bool isName(const QString &text)
{
    return !text.isEmpty() && isWellFormed(text, Line);
}

bool isSetting(const QString &id, const QString &value)
{
    return isName(id) && isWellFormed(value, Lines);
}

bool areSettings(const KirvAccountRecord &record)
{
    if (record.settings.size() > mostSettings || record.secretSettings.size() > mostSettings)
        return false;
    for (auto setting = record.settings.begin(); setting != record.settings.end(); ++setting) {
        if (!isSetting(setting.key(), setting.value()))
            return false;
    }
    return std::all_of(record.secretSettings.begin(), record.secretSettings.end(), isName);
}

/// A member that is missing leaves \a target as it is.
bool readText(const QJsonObject &json, QLatin1String name, QString *target)
{
    const QJsonValue value = json.value(name);
    if (value.isUndefined())
        return true;
    *target = value.toString();
    return value.isString();
}

bool readFlag(const QJsonObject &json, QLatin1String name, bool *target)
{
    const QJsonValue value = json.value(name);
    if (value.isUndefined())
        return true;
    *target = value.toBool();
    return value.isBool();
}

/// A value of \a allowed says that the setting may be there.
template <typename Predicate>
bool readSettings(const QJsonValue &json, QMap<QString, QString> *target, Predicate isAllowed)
{
    if (json.isUndefined())
        return true;
    const QJsonObject object = json.toObject();
    if (!json.isObject() || object.size() > mostSettings)
        return false;
    for (auto value = object.begin(); value != object.end(); ++value) {
        if (!value.value().isString() || !isAllowed(value.key()))
            return false;
        target->insert(value.key(), value.value().toString());
    }
    return true;
}

bool readSecretSettings(const QJsonValue &json, QSet<QString> *target)
{
    if (json.isUndefined())
        return true;
    const QJsonArray array = json.toArray();
    if (!json.isArray() || array.size() > mostSettings)
        return false;
    for (const QJsonValue &id : array) {
        if (!id.isString() || target->contains(id.toString()) || KirvAccountJson::isOwnSetting(id.toString()))
            return false;
        target->insert(id.toString());
    }
    return true;
}

bool readPicture(const QJsonValue &json, QByteArray *target)
{
    if (json.isUndefined())
        return true;
    const auto decoded = QByteArray::fromBase64Encoding(
        json.toString().toLatin1(), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    *target = decoded ? *decoded : QByteArray();
    return !target->isEmpty();
}

/// The name of a member that a file of this version does not have.
QString unknownMember(const QJsonObject &json)
{
    QStringList unknown = json.keys();
    for (const QLatin1String name : { login, protocol, settings, secretSettings, picture })
        unknown.removeAll(name);
    for (const TextMember &member : texts)
        unknown.removeAll(member.name);
    for (const FlagMember &member : flags)
        unknown.removeAll(member.name);
    return unknown.value(0);
}

/// The name of a member that is not of its kind.
QString readMembers(const QJsonObject &json, KirvMovedAccount *account)
{
    KirvAccountRecord &record = account->record;
    if (!readText(json, login, &record.key.id))
        return login;
    if (!readText(json, protocol, &record.key.protocol))
        return protocol;
    for (const TextMember &member : texts) {
        if (!readText(json, member.name, &(record.*member.text)))
            return member.name;
    }
    for (const FlagMember &member : flags) {
        if (!readFlag(json, member.name, &(record.*member.flag)))
            return member.name;
    }
    if (!readSecretSettings(json.value(secretSettings), &record.secretSettings))
        return secretSettings;
    const auto isReadable = [&record](const QString &id) {
        return !KirvAccountJson::isOwnSetting(id) && !record.secretSettings.contains(id);
    };
    if (!readSettings(json.value(settings), &record.settings, isReadable))
        return settings;
    return readPicture(json.value(picture), &account->picture) ? QString() : QString(picture);
}

QJsonArray sorted(const QStringList &names)
{
    QStringList inOrder = names;
    inOrder.sort();
    return QJsonArray::fromStringList(inOrder);
}

} // namespace

bool KirvAccountJson::isOwnSetting(const QString &setting)
{
    return setting.startsWith(QLatin1String("kirv/"));
}

QJsonObject KirvAccountJson::readablePart(const KirvMovedAccount &account)
{
    const KirvAccountRecord &record = account.record;
    QJsonObject json { { login, record.key.id }, { protocol, record.key.protocol } };
    for (const TextMember &member : texts)
        json.insert(member.name, record.*member.text);
    for (const FlagMember &member : flags)
        json.insert(member.name, record.*member.flag);
    QJsonObject readable;
    for (auto setting = record.settings.begin(); setting != record.settings.end(); ++setting) {
        if (!isOwnSetting(setting.key()) && !record.secretSettings.contains(setting.key()))
            readable.insert(setting.key(), setting.value());
    }
    json.insert(settings, readable);
    QStringList secrets;
    for (const QString &id : record.secretSettings) {
        if (!isOwnSetting(id))
            secrets << id;
    }
    json.insert(secretSettings, sorted(secrets));
    if (!account.picture.isEmpty())
        json.insert(picture, QString::fromLatin1(account.picture.toBase64()));
    return json;
}

QJsonObject KirvAccountJson::secretPart(const KirvAccountRecord &record)
{
    QJsonObject json, secrets;
    if (!record.password.isEmpty())
        json.insert(password, record.password);
    for (const QString &id : record.secretSettings) {
        if (record.settings.contains(id) && !isOwnSetting(id))
            secrets.insert(id, record.settings.value(id));
    }
    if (!secrets.isEmpty())
        json.insert(settings, secrets);
    return json;
}

QString KirvAccountJson::readReadablePart(const QJsonValue &json, KirvMovedAccount *account)
{
    const QJsonObject object = json.toObject();
    if (!json.isObject())
        return login;
    const QString unknown = unknownMember(object);
    const QString wrong = unknown.isEmpty() ? readMembers(object, account) : unknown;
    return wrong.isEmpty() ? wrongMember(*account) : wrong;
}

bool KirvAccountJson::readSecretPart(const QJsonValue &json, KirvAccountRecord *record)
{
    const QJsonObject object = json.toObject();
    const auto isSecret = [record](const QString &id) { return record->secretSettings.contains(id); };
    QMap<QString, QString> secrets;
    const int known = int(object.contains(password)) + int(object.contains(settings));
    if (!json.isObject() || object.size() != known || !readText(object, password, &record->password)
        || !readSettings(object.value(settings), &secrets, isSecret))
        return false;
    for (auto secret = secrets.begin(); secret != secrets.end(); ++secret)
        record->settings.insert(secret.key(), secret.value());
    return isWellFormed(record->password, Lines) && areSettings(*record);
}

QString KirvAccountJson::wrongMember(const KirvMovedAccount &account)
{
    const KirvAccountRecord &record = account.record;
    if (!isName(record.key.id))
        return login;
    if (!isName(record.key.protocol))
        return protocol;
    if (!isWellFormed(record.password, Lines))
        return password;
    for (const TextMember &member : texts) {
        if (!isWellFormed(record.*member.text, member.form))
            return member.name;
    }
    return areSettings(record) ? QString() : QString(settings);
}

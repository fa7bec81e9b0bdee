// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_secret_blank.h"

#include "core/protocol/kirv_login.h"
#include "core/store/kirv_account_record.h"

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace {

/// As they are sent in links and in XML.
QStringList formsOf(const QString &secret)
{
    return { secret, secret.toHtmlEscaped(), QString::fromLatin1(QUrl::toPercentEncoding(secret)) };
}

/// Whether \a bytes are what SASL sends: a message of SCRAM, or of PLAIN, whose parts are separated by null bytes.
bool isSaslMessage(const QByteArray &bytes)
{
    static const QByteArray beginnings[] = { "n,", "y,", "p=", "c=", "r=", "v=" };
    const bool isText =
        std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == '\0' || uchar(byte) >= 0x20; });
    const bool isPlain = bytes.count('\0') == 2;
    return isText
        && (isPlain || std::any_of(std::begin(beginnings), std::end(beginnings), [&](const QByteArray &beginning) {
                return bytes.startsWith(beginning);
            }));
}

/// \a text, which may have been cut where it ends with an ellipsis, without the beginning of \a secret there.
QString withoutBeginning(const QString &text, const QString &secret)
{
    const QChar ellipsis(0x2026);
    if (!text.endsWith(ellipsis))
        return text;
    const QString kept = text.chopped(1);
    for (int length = int(secret.size()) - 1; length >= KirvSecretBlank::shortSecret; --length) {
        if (kept.endsWith(secret.left(length)))
            return kept.chopped(length) + KirvSecretBlank::blank() + ellipsis;
    }
    return text;
}

} // namespace

KirvSecretBlank::KirvSecretBlank(const QStringList &given)
{
    for (const QString &secret : given) {
        if (!secret.trimmed().isEmpty())
            secrets += formsOf(secret);
    }
    secrets.removeDuplicates();
    std::sort(secrets.begin(), secrets.end(),
              [](const QString &left, const QString &right) { return left.size() > right.size(); });
}

KirvSecretBlank::KirvSecretBlank(const KirvAccountRecord &record)
{
    QStringList given { record.password };
    for (const QString &field : record.secretSettings)
        given << record.settings.value(field);
    *this = KirvSecretBlank(given);
}

KirvSecretBlank::KirvSecretBlank(const KirvLogin &login)
{
    QStringList given { login.password };
    for (const KirvField &field : login.settings) {
        if (field.getKind() == KirvField::Password)
            given << field.getText();
    }
    *this = KirvSecretBlank(given);
}

KirvSecretBlank &KirvSecretBlank::operator+=(const KirvSecretBlank &other)
{
    return *this = KirvSecretBlank(secrets + other.secrets);
}

QString KirvSecretBlank::blank()
{
    return QStringLiteral("\u2022\u2022\u2022");
}

QString KirvSecretBlank::withoutWord(const QString &text, const QString &word, const QString &replacement)
{
    if (word.isEmpty() || !text.contains(word, Qt::CaseInsensitive))
        return text;
    const QRegularExpression alone(
        QLatin1String("(?<!\\w)") + QRegularExpression::escape(word) + QLatin1String("(?!\\w)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return QString(text).replace(alone, replacement);
}

QString KirvSecretBlank::without(const QString &text) const
{
    if (text.isEmpty())
        return text;
    QString result = text;
    for (const QString &secret : secrets) {
        if (secret.size() < shortSecret)
            result = withoutWord(result, secret, blank());
        else
            result = withoutBeginning(result.replace(secret, blank()), secret);
    }
    return withoutPayloads(result);
}

QString KirvSecretBlank::withoutPayloads(const QString &text) const
{
    static const QRegularExpression base64(QStringLiteral("[A-Za-z0-9+/_-]{8,}={0,2}"));
    QString result;
    int end = 0;
    for (auto match = base64.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch token = match.next();
        result += text.mid(end, int(token.capturedStart()) - end);
        result += isLoginPayload(token.captured()) ? blank() : token.captured();
        end = int(token.capturedEnd());
    }
    return result + text.mid(end);
}

/// A part of such a text may begin anywhere in a group of four characters.
bool KirvSecretBlank::isLoginPayload(const QString &token) const
{
    QByteArray encoded = token.toLatin1();
    encoded.replace('-', '+').replace('_', '/');
    if (encoded.size() % 4 == 0 && isSaslMessage(QByteArray::fromBase64(encoded)))
        return true;
    for (int offset = 0; offset < 4; ++offset) {
        const QByteArray bytes = QByteArray::fromBase64(encoded.mid(offset));
        const auto isInside = [&](const QString &secret) {
            return secret.size() >= shortSecret && bytes.contains(secret.toUtf8());
        };
        if (std::any_of(secrets.begin(), secrets.end(), isInside))
            return true;
    }
    return false;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_json_digest.h"

#include <QJsonArray>
#include <QJsonValue>
#include <algorithm>
#include <sodium.h>

namespace {

/// Takes the canonical form in pieces, as it can be large.
class Digest {
public:
    Digest() { crypto_generichash_init(&state, nullptr, 0, crypto_generichash_BYTES); }

    void add(const QJsonValue &value);
    QByteArray result();

private:
    void add(const QJsonArray &array);
    void add(const QJsonObject &object);
    void add(const QString &text);
    void add(const QByteArray &bytes)
    {
        crypto_generichash_update(&state, reinterpret_cast<const unsigned char *>(bytes.constData()),
                                  static_cast<unsigned long long>(bytes.size()));
    }

    crypto_generichash_state state {};
};

QByteArray escaped(char character)
{
    switch (character) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return uchar(character) < 0x20 ? "\\u00" + QByteArray(1, character).toHex() : QByteArray(1, character);
    }
}

bool needsEscape(char character)
{
    return uchar(character) < 0x20 || character == '"' || character == '\\';
}

void Digest::add(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    QByteArray quoted("\"");
    int done = 0;
    for (int index = 0; index < utf8.size(); ++index) {
        if (!needsEscape(utf8.at(index)))
            continue;
        quoted += utf8.mid(done, index - done) + escaped(utf8.at(index));
        done = index + 1;
    }
    add(quoted + utf8.mid(done) + '"');
}

void Digest::add(const QJsonArray &array)
{
    QByteArray before("[");
    for (const QJsonValue &value : array) {
        add(before);
        add(value);
        before = ",";
    }
    add(array.isEmpty() ? QByteArray("[]") : QByteArray("]"));
}

void Digest::add(const QJsonObject &object)
{
    QStringList names = object.keys();
    std::sort(names.begin(), names.end()); // by code units of UTF-16, as the standard has it
    QByteArray before("{");
    for (const QString &name : qAsConst(names)) {
        add(before);
        add(name);
        add(QByteArray(":"));
        add(object.value(name));
        before = ",";
    }
    add(names.isEmpty() ? QByteArray("{}") : QByteArray("}"));
}

void Digest::add(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Object:
        return add(value.toObject());
    case QJsonValue::Array:
        return add(value.toArray());
    case QJsonValue::String:
        return add(value.toString());
    case QJsonValue::Double:
        return add(QByteArray::number(qint64(value.toDouble())));
    case QJsonValue::Bool:
        return add(QByteArray(value.toBool() ? "true" : "false"));
    default:
        return add(QByteArray("null"));
    }
}

QByteArray Digest::result()
{
    QByteArray bytes(crypto_generichash_BYTES, '\0');
    crypto_generichash_final(&state, reinterpret_cast<unsigned char *>(bytes.data()),
                             static_cast<std::size_t>(bytes.size()));
    return bytes;
}

} // namespace

QByteArray kirvJsonDigest(const QJsonObject &object)
{
    Digest digest;
    digest.add(QJsonValue(object));
    return digest.result();
}

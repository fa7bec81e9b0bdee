// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_secret_box.h"

#include "core/moving/kirv_json_digest.h"
#include "core/store/kirv_wiped_text.h"

#include <QJsonValue>
#include <cmath>
#include <sodium.h>

namespace {

const QLatin1String derivation("argon2id13");
const QLatin1String cipher("xsalsa20poly1305");
const QLatin1String checksum("checksum");

unsigned char *in(QByteArray &bytes)
{
    return reinterpret_cast<unsigned char *>(bytes.data());
}

const unsigned char *in(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

/// A box as its members say it.
struct Parts {
    qint64 operations = 0;
    qint64 memory = 0;
    QByteArray salt, nonce, data;
};

/// The key of a box, overwritten at its end.
class Key {
public:
    Key() = default;
    ~Key() { sodium_memzero(bytes, sizeof bytes); }
    Q_DISABLE_COPY(Key)

    /// False when there is not enough memory.
    bool derive(const QString &passPhrase, const Parts &parts);

    unsigned char bytes[crypto_secretbox_KEYBYTES] = {};
};

/// The same characters can be composed in several ways; keyboards differ in it.
bool Key::derive(const QString &passPhrase, const Parts &parts)
{
    QString normal = passPhrase.normalized(QString::NormalizationForm_C);
    QByteArray utf8 = normal.toUtf8();
    const bool isDerived =
        crypto_pwhash(bytes, sizeof bytes, utf8.constData(), static_cast<unsigned long long>(utf8.size()),
                      in(parts.salt), static_cast<unsigned long long>(parts.operations),
                      static_cast<std::size_t>(parts.memory), crypto_pwhash_ALG_ARGON2ID13)
        == 0;
    KirvSecretBox::wipe(utf8);
    kirvWipe(normal);
    return isDerived;
}

QByteArray random(int size)
{
    QByteArray bytes(size, '\0');
    randombytes_buf(bytes.data(), static_cast<std::size_t>(size));
    return bytes;
}

QString toText(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

/// Empty when \a value is no bytes.
QByteArray toBytes(const QJsonValue &value)
{
    const auto decoded = QByteArray::fromBase64Encoding(
        value.toString().toLatin1(), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? *decoded : QByteArray();
}

/// -1 when \a value is no whole number that a double holds exactly.
qint64 toNumber(const QJsonValue &value)
{
    const double number = value.toDouble(-1);
    return number >= 0 && number <= 9007199254740991.0 && std::floor(number) == number ? qint64(number) : -1;
}

QString checksumOf(QJsonObject box)
{
    box.remove(checksum);
    return toText(kirvJsonDigest(box));
}

QJsonObject toJson(const Parts &parts)
{
    QJsonObject box { { QStringLiteral("derivation"), derivation },
                      { QStringLiteral("operations"), double(parts.operations) },
                      { QStringLiteral("memory"), double(parts.memory) },
                      { QStringLiteral("salt"), toText(parts.salt) },
                      { QStringLiteral("cipher"), cipher },
                      { QStringLiteral("nonce"), toText(parts.nonce) },
                      { QStringLiteral("data"), toText(parts.data) } };
    box.insert(checksum, checksumOf(box));
    return box;
}

/// The form first: the digest is that of well-formed boxes.
KirvSecretBox::Outcome fromJson(const QJsonObject &box, Parts *parts)
{
    parts->operations = toNumber(box.value(QLatin1String("operations")));
    parts->memory = toNumber(box.value(QLatin1String("memory")));
    parts->salt = toBytes(box.value(QLatin1String("salt")));
    parts->nonce = toBytes(box.value(QLatin1String("nonce")));
    parts->data = toBytes(box.value(QLatin1String("data")));
    const bool isWellFormed = box.size() == 8 && box.value(QLatin1String("derivation")).toString() == derivation
        && box.value(QLatin1String("cipher")).toString() == cipher
        && parts->operations >= qint64(crypto_pwhash_OPSLIMIT_MIN)
        && parts->memory >= qint64(crypto_pwhash_MEMLIMIT_MIN) && parts->salt.size() == int(crypto_pwhash_SALTBYTES)
        && parts->nonce.size() == int(crypto_secretbox_NONCEBYTES)
        && parts->data.size() >= int(crypto_secretbox_MACBYTES);
    if (!isWellFormed || box.value(checksum).toString() != checksumOf(box))
        return KirvSecretBox::Damaged;
    const bool isAffordable =
        parts->operations <= KirvSecretBox::mostOperations && parts->memory <= KirvSecretBox::mostMemory;
    return isAffordable ? KirvSecretBox::Done : KirvSecretBox::TooExpensive;
}

} // namespace

KirvSecretBox::Outcome KirvSecretBox::seal(const QByteArray &content, const QString &passPhrase, QJsonObject *box)
{
    if (sodium_init() < 0)
        return NoMemory;
    Parts parts;
    parts.operations = qint64(crypto_pwhash_OPSLIMIT_MODERATE);
    parts.memory = qint64(crypto_pwhash_MEMLIMIT_MODERATE);
    parts.salt = random(int(crypto_pwhash_SALTBYTES));
    parts.nonce = random(int(crypto_secretbox_NONCEBYTES));
    Key key;
    if (!key.derive(passPhrase, parts))
        return NoMemory;
    parts.data = QByteArray(content.size() + int(crypto_secretbox_MACBYTES), '\0');
    crypto_secretbox_easy(in(parts.data), in(content), static_cast<unsigned long long>(content.size()),
                          in(qAsConst(parts).nonce), key.bytes);
    *box = toJson(parts);
    return Done;
}

KirvSecretBox::Outcome KirvSecretBox::check(const QJsonObject &box)
{
    Parts parts;
    return fromJson(box, &parts);
}

KirvSecretBox::Outcome KirvSecretBox::open(const QJsonObject &box, const QString &passPhrase, QByteArray *content)
{
    Parts parts;
    const Outcome outcome = fromJson(box, &parts);
    if (outcome != Done)
        return outcome;
    Key key;
    if (sodium_init() < 0 || !key.derive(passPhrase, parts))
        return NoMemory;
    *content = QByteArray(parts.data.size() - int(crypto_secretbox_MACBYTES), '\0');
    const bool isOpened = crypto_secretbox_open_easy(in(*content), in(qAsConst(parts).data),
                                                     static_cast<unsigned long long>(parts.data.size()),
                                                     in(qAsConst(parts).nonce), key.bytes)
        == 0;
    return isOpened ? Done : WrongPassPhrase;
}

void KirvSecretBox::wipe(QByteArray &bytes)
{
    if (!bytes.isEmpty())
        sodium_memzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    bytes.clear();
}

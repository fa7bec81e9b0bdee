// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_vcard.h"

#include "core/values/kirv_bounded_image.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImage>
#include <QPainter>

namespace {

const int largestSide = 192;
const int largestPhoto = 60000;
const auto vCardSpace = QStringLiteral("vcard-temp");
const auto photoName = QStringLiteral("PHOTO");

/// Where the text of a field stands inside the entry.
struct Place {
    KirvField field;
    QStringList path;
};

/// The days of the calendar, as 1999-12-31, and no day.
QString datePattern()
{
    const QString leapYear = QStringLiteral("[0-9]{2}(0[48]|[2468][048]|[13579][26])|([02468][048]|[13579][26])00");
    return QStringLiteral("([0-9]{4}-((0[13578]|1[02])-(0[1-9]|[12][0-9]|3[01])|(0[469]|11)-(0[1-9]|[12][0-9]|30)"
                          "|02-(0[1-9]|1[0-9]|2[0-8]))|(%1)-02-29)?")
        .arg(leapYear);
}

QList<Place> places()
{
    const auto line = [](const QString &label, const char *id) {
        return KirvField::textEdit(label, QLatin1String(id), QString(), QString());
    };
    KirvField birthday = KirvField::textEdit(KirvXmppVCard::tr("Birthday"), QStringLiteral("birthday"), QString(),
                                             KirvXmppVCard::tr("Year, month and day, such as 1999-12-31."));
    birthday.setPattern(datePattern());
    KirvField web = KirvField::textEdit(KirvXmppVCard::tr("Web page"), QStringLiteral("web"), QString(),
                                        KirvXmppVCard::tr("An address that begins with http:// or https://."));
    web.setPattern(QStringLiteral("((?i:https?)://[^\\s/?#]+[^\\s]*)?"));
    return {
        { line(KirvXmppVCard::tr("Full name"), "fullname"), { "FN" } },
        { line(KirvXmppVCard::tr("Nickname"), "nickname"), { "NICKNAME" } },
        { birthday, { "BDAY" } },
        { line(KirvXmppVCard::tr("E-mail"), "email"), { "EMAIL", "USERID" } },
        { line(KirvXmppVCard::tr("Telephone"), "telephone"), { "TEL", "NUMBER" } },
        { line(KirvXmppVCard::tr("Town"), "town"), { "ADR", "LOCALITY" } },
        { line(KirvXmppVCard::tr("Country"), "country"), { "ADR", "CTRY" } },
        { web, { "URL" } },
        { line(KirvXmppVCard::tr("Organisation"), "organisation"), { "ORG", "ORGNAME" } },
        { KirvField::multiLine(KirvXmppVCard::tr("About"), QStringLiteral("about"), QString(), QString()), { "DESC" } },
    };
}

/// What of \a text can be sent, as it is read back: line ends are line feeds, and nothing but spaces is no text.
QString storable(const QString &text)
{
    QString sendable = kirvXmppSendable(text);
    sendable.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return sendable.trimmed().isEmpty() ? QString() : sendable;
}

/// Elements are looked for by their names: the prefixes of other clients are taken away.
void removePrefixes(QDomElement element)
{
    if (element.namespaceURI() == vCardSpace)
        element.setPrefix(QString());
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        removePrefixes(child);
}

QByteArray encode(const QImage &image, const char *format)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format) ? data : QByteArray();
}

/// \a image on white, for a format that knows no transparency.
QImage flattened(const QImage &image)
{
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(Qt::white);
    QPainter(&result).drawImage(0, 0, image);
    return result;
}

} // namespace

KirvXmppPhoto KirvXmppPhoto::fromFile(const QString &path)
{
    const QImage image = KirvBoundedImage::fromFile(path, largestSide).image();
    if (image.isNull())
        return {};
    const QByteArray lossless = encode(image, "PNG");
    if (!lossless.isEmpty() && lossless.size() <= largestPhoto)
        return { lossless, QStringLiteral("image/png") };
    return { encode(flattened(image), "JPEG"), QStringLiteral("image/jpeg") };
}

QByteArray KirvXmppPhoto::hash() const
{
    return isNull() ? QByteArray() : QCryptographicHash::hash(data, QCryptographicHash::Sha1);
}

KirvXmppVCard::KirvXmppVCard()
    : content(kirvXmppNewDocument(vCardSpace, QStringLiteral("vCard")))
    , root(content.documentElement())
{
}

KirvXmppVCard::KirvXmppVCard(const QDomElement &element)
    : KirvXmppVCard()
{
    if (element.namespaceURI() != vCardSpace)
        return;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        root.appendChild(content.importNode(child, true));
    removePrefixes(root);
}

QList<KirvField> KirvXmppVCard::blankFields()
{
    QList<KirvField> fields;
    for (const Place &place : places())
        fields << place.field;
    return fields;
}

QList<KirvField> KirvXmppVCard::toFields() const
{
    QList<KirvField> fields;
    bool isBlank = true;
    for (const Place &place : places()) {
        fields << place.field;
        fields.last().setText(text(place.path));
        isBlank = isBlank && fields.last().getText().isEmpty();
    }
    return isBlank ? QList<KirvField>() : fields;
}

void KirvXmppVCard::setFields(const QList<KirvField> &fields)
{
    for (const Place &place : places()) {
        for (const KirvField &field : fields) {
            if (field.getId() == place.field.getId())
                setText(place.path, storable(field.getText()));
        }
    }
}

KirvXmppPhoto KirvXmppVCard::photo() const
{
    return { QByteArray::fromBase64(text({ photoName, "BINVAL" }).toLatin1()), text({ photoName, "TYPE" }) };
}

void KirvXmppVCard::setPhoto(const KirvXmppPhoto &photo)
{
    root.removeChild(root.firstChildElement(photoName));
    setText({ photoName, "TYPE" }, photo.isNull() ? QString() : photo.type);
    setText({ photoName, "BINVAL" }, QString::fromLatin1(photo.data.toBase64()));
}

void KirvXmppVCard::clear()
{
    QDomElement next;
    for (QDomElement child = root.firstChildElement(); !child.isNull(); child = next) {
        next = child.nextSiblingElement();
        if (child.tagName() != photoName)
            root.removeChild(child);
    }
}

int KirvXmppVCard::size() const
{
    return content.toByteArray(-1).size();
}

QString KirvXmppVCard::text(const QStringList &path) const
{
    QDomElement element = root;
    for (const QString &name : path)
        element = element.firstChildElement(name);
    return element.text();
}

/// Writes \a text at \a path, making the elements that are missing. An empty text removes the element, and those
/// around it that hold nothing else.
void KirvXmppVCard::setText(const QStringList &path, const QString &text)
{
    if (text == this->text(path))
        return;
    QDomElement element = root;
    for (const QString &name : path) {
        const QDomElement child = element.firstChildElement(name);
        element = child.isNull() ? kirvXmppAppend(element, name) : child;
    }
    while (element.hasChildNodes())
        element.removeChild(element.firstChild());
    if (!text.isEmpty()) {
        element.appendChild(content.createTextNode(text));
        return;
    }
    while (element != root && element.text().isEmpty()) {
        QDomElement parent = element.parentNode().toElement();
        parent.removeChild(element);
        element = parent;
    }
}

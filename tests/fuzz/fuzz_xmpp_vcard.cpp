// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_vcard.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"
#include "tests/fuzz/xmpp_document.h"

#include <QXmppElement.h>
#include <cstdint>

namespace {

/// What stands for an entry of the directory in a request.
QByteArray written(const KirvXmppVCard &card)
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    QXmppElement(card.document().documentElement()).toXml(&writer);
    return text;
}

/// What of \a text an entry keeps.
QString storable(const QString &text)
{
    QString sendable = kirvXmppSendable(text);
    sendable.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return sendable.trimmed().isEmpty() ? QString() : sendable;
}

/// The blank fields with \a texts, one after the other.
QList<KirvField> fieldsWith(const QList<QByteArray> &texts)
{
    QList<KirvField> fields = KirvXmppVCard::blankFields();
    for (int i = 0; i < fields.size(); ++i)
        fields[i].setText(QString::fromUtf8(texts.value(i)));
    return fields;
}

/// The elements that no field stands for.
int countOfOthers(const KirvXmppVCard &card)
{
    static const QStringList known { "FN", "NICKNAME", "BDAY", "EMAIL", "TEL", "ADR", "URL", "ORG", "DESC", "PHOTO" };
    int count = 0;
    const QDomDocument document = card.document();
    for (QDomElement child = document.documentElement().firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        count += known.contains(child.localName()) ? 0 : 1;
    return count;
}

} // namespace

/// An entry of a directory, and after bytes of 255 the texts that a user puts in.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QList<QByteArray> parts = QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\xff');
    const QDomDocument document = readDocument(parts.first());
    KirvXmppVCard card(document.documentElement());
    const KirvXmppPhoto photo = card.photo();
    const QByteArray before = written(card);
    const int others = countOfOthers(card);
    card.setFields({});
    check(written(card) == before);

    const QList<KirvField> typed = fieldsWith(parts.mid(1));
    card.setFields(typed);
    const QList<KirvField> fields = card.toFields();
    for (int i = 0; i < typed.size(); ++i) {
        // Where there are several, as of addresses, the next one takes the place of the first.
        const QString text = storable(typed[i].getText());
        check(text.isEmpty() || (!fields.isEmpty() && fields[i].getText() == text));
    }
    check(card.photo().data == photo.data && countOfOthers(card) == others);

    // What another client reads of it is the same.
    const QDomDocument sent = readDocument(written(card));
    const KirvXmppVCard read(sent.documentElement());
    check(!sent.isNull() && read.toFields() == fields && read.photo().data == photo.data);

    card.setPhoto({ parts.last(), QStringLiteral("image/png") });
    check(card.photo().data == parts.last() && card.toFields() == fields);
    card.clear();
    check(card.toFields().isEmpty() && card.photo().data == parts.last());
    return 0;
}

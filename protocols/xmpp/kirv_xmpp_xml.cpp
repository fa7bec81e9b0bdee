// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_xml.h"

namespace {

bool isSendable(uint character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return !QChar::isSurrogate(character) && character != 0xfffe && character != 0xffff;
}

} // namespace

bool kirvXmppIsSendable(const QString &text)
{
    return kirvXmppSendable(text) == text;
}

QString kirvXmppSendable(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair)
            result += text.at(i++);
        if (isPair || isSendable(text.at(i).unicode()))
            result += text.at(i);
    }
    return result;
}

QDomDocument kirvXmppNewDocument(const QString &space, const QString &name)
{
    QDomDocument document;
    document.appendChild(document.createElementNS(space, name));
    return document;
}

QDomElement kirvXmppAppend(QDomElement &parent, const QString &name, const QString &text)
{
    QDomDocument document = parent.ownerDocument();
    QDomElement element = document.createElementNS(parent.namespaceURI(), name);
    if (!text.isEmpty())
        element.appendChild(document.createTextNode(text));
    parent.appendChild(element);
    return element;
}

QDomElement kirvXmppChild(const QDomElement &parent, const QString &space, const QString &name)
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.localName() == name && child.namespaceURI() == space)
            return child;
    }
    return QDomElement();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_XML_H
#define KIRV_XMPP_XML_H

#include <QDomElement>
#include <QString>

/// Whether \a text can be sent: XML has no form for control characters and broken surrogates, and a server
/// closes the stream that holds one.
bool kirvXmppIsSendable(const QString &text);
/// \a text without what cannot be sent.
QString kirvXmppSendable(const QString &text);

/// A new document whose root is an element \a name of the namespace \a space. Keep it as long as its elements: they
/// do not keep it.
QDomDocument kirvXmppNewDocument(const QString &space, const QString &name);
/// Appends an element of the parent's namespace, with \a text where that is not empty.
QDomElement kirvXmppAppend(QDomElement &parent, const QString &name, const QString &text = QString());
/// The first child element of that name and namespace; null when there is none.
QDomElement kirvXmppChild(const QDomElement &parent, const QString &space, const QString &name);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEST_XMPP_PARSING_H
#define KIRV_TEST_XMPP_PARSING_H

#include <QDomDocument>
#include <QTest>

/// The document of \a xml, with namespaces. Keep it as long as its elements.
inline QDomDocument parsed(const QByteArray &xml)
{
    QDomDocument document;
    QString problem;
    if (!document.setContent(xml, true, &problem))
        qWarning("The test's own XML is malformed: %s", qPrintable(problem));
    return document;
}

/// The text of the element at \a path below \a root ("TEL/NUMBER"); empty when there is none.
inline QString textAt(const QDomElement &root, const QString &path)
{
    QDomElement element = root;
    for (const QString &name : path.split('/'))
        element = element.firstChildElement(name);
    return element.text();
}

#endif

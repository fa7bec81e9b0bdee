// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FUZZ_XMPP_DOCUMENT_H
#define KIRV_FUZZ_XMPP_DOCUMENT_H

#include <QDomDocument>
#include <QXmlStreamReader>
#include <cstdlib>

/// Ends the program, which is what the fuzzer takes for a find.
inline void check(bool holds)
{
    if (!holds)
        abort();
}

/// \a text as the reader of streams makes elements of a stanza; null when it is malformed.
inline QDomDocument readDocument(const QByteArray &text)
{
    QDomDocument document;
    QXmlStreamReader reader(text);
    return document.setContent(&reader, true) ? document : QDomDocument();
}

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_VCARD_H
#define KIRV_XMPP_VCARD_H

#include "host/kirv_field.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QList>

/// The picture of a vCard as it is sent. A value type.
struct KirvXmppPhoto {
    QByteArray data; ///< empty: no picture
    QString type; ///< its media type

    /// Reads the picture at \a path and scales it down to what is sent. Null when there is none that can be used.
    static KirvXmppPhoto fromFile(const QString &path);
    bool isNull() const { return data.isEmpty(); }
    /// What a presence says of the picture.
    QByteArray hash() const;
};

/// An entry of the directory (vcard-temp). Keeps everything it was read with, also what it has no field for.
/// A value type that shares its content: copies are the same entry.
class KirvXmppVCard {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppVCard)

public:
    /// The largest entry that may be sent, in bytes; servers close the stream on one that is much larger.
    static const int largestSize = 200000;

    /// An empty entry.
    KirvXmppVCard();
    /// Reads the reply of a server; an element that is no entry, or null, gives an empty one.
    explicit KirvXmppVCard(const QDomElement &element);

    static QList<KirvField> blankFields();
    /// The entry as fields; an empty list when none of them has a text.
    QList<KirvField> toFields() const;
    /// Changes what \a fields stand for, and nothing else; fields that it does not know are ignored.
    void setFields(const QList<KirvField> &fields);

    KirvXmppPhoto photo() const;
    void setPhoto(const KirvXmppPhoto &photo);
    /// Empties the entry, except for the picture.
    void clear();

    QDomDocument document() const { return content; }
    int size() const; ///< in bytes, as it is sent

private:
    QString text(const QStringList &path) const;
    void setText(const QStringList &path, const QString &text);

    QDomDocument content;
    QDomElement root; ///< of the content
};

#endif

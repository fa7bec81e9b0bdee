// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LAYOUT_CHECK_H
#define KIRV_LAYOUT_CHECK_H

#include <QCoreApplication>
#include <QList>
#include <QString>

class QXmlStreamReader;

/// Reads a layout before widgets are made of it and finds what a layout must not contain: it arranges widgets of Qt and
/// ours, shows pictures from its own folder and from the program, and does nothing else. What is not known here is
/// refused. docs/layouts.md has the rules.
class KirvLayoutCheck {
    Q_DECLARE_TR_FUNCTIONS(KirvLayoutCheck)

public:
    /// \a folder is that of the layout file.
    explicit KirvLayoutCheck(const QString &folder);

    /// The first fault of the layout \a xml, a sentence for the user; empty when it has none.
    QString findFault(const QByteArray &xml) const;

private:
    /// An element that is being read.
    struct Element {
        QString name;
        QString property; ///< the name of the property that it is or belongs to
        QString text;
        QString parts; ///< the text without those of its parts that are only spaces
    };

    static QString faultOfStructure(QXmlStreamReader &reader);
    QString faultOfContent(QXmlStreamReader &reader) const;
    static QString faultOfStart(const QXmlStreamReader &reader);
    static QString faultOfAttributes(const QXmlStreamReader &reader);
    QString faultOfEnd(const QList<Element> &open) const;
    static QString faultOfNumber(const Element &element);
    QString faultOfText(const Element &element) const;
    QString faultOfStyleSheet(const QString &text) const;
    QString faultOfRichText(const QString &text) const;
    QString faultOfAddress(const QString &name) const;
    QString faultOfPicture(const QString &path) const;
    QString faultOfPictureFile(const QString &path) const;
    static QString unknownClass(const QString &className);

    const QString folder;
};

#endif

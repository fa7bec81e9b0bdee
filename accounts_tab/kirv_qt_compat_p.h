// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_QT_COMPAT_P_H
#define KIRV_QT_COMPAT_P_H

#include <QHeaderView>
#include <QString>
#include <QtGlobal>

#if QT_VERSION >= 0x060000
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#else
#include <QRegExp>
#include <QRegExpValidator>
#endif

// What differs between the majors of Qt that the page is built on (4.8, 5.15, 6.4), in one place.

/// The combo box's signal that carries the text of the item that became current.
#if QT_VERSION >= 0x060000
#define KIRV_COMBO_BOX_TEXT_SIGNAL SIGNAL(currentTextChanged(const QString &))
#else
#define KIRV_COMBO_BOX_TEXT_SIGNAL SIGNAL(currentIndexChanged(const QString &))
#endif

/// Sets how the user and the view may resize one \a section of \a header.
inline void kirvSetResizeMode(QHeaderView *header, int section, QHeaderView::ResizeMode mode)
{
#if QT_VERSION >= 0x050000
    header->setSectionResizeMode(section, mode);
#else
    header->setResizeMode(section, mode);
#endif
}

#if QT_VERSION >= 0x060000
/// \a pattern in the syntax of QRegularExpression, as QRegExp understands it: there, marks are characters of words.
inline QString kirvPerlPattern(const QString &pattern)
{
    QString perl;
    int firstInSet = -1; // the index of the first member of the set of characters around i
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        const bool inSet = firstInSet != -1;
        if (c == QLatin1Char('\\') && i + 1 < pattern.size()) {
            const QString escape = pattern.mid(i++, 2);
            if (escape == QLatin1String("\\w"))
                perl += QLatin1String(inSet ? "\\w\\p{M}" : "[\\w\\p{M}]");
            else if (escape == QLatin1String("\\W") && !inSet)
                perl += QLatin1String("[^\\w\\p{M}]");
            else
                perl += escape;
            continue;
        }
        if (c == QLatin1Char('[') && !inSet)
            firstInSet = pattern.indexOf(QLatin1Char('^'), i) == i + 1 ? i + 2 : i + 1;
        else if (c == QLatin1Char(']') && i > firstInSet) // the first member may be a bracket itself
            firstInSet = -1;
        perl += c;
    }
    return perl;
}
#endif

/// A validator that accepts what matches \a pattern as a whole, case-sensitively; nothing can be typed when the
/// pattern is empty or invalid. \a parent owns it.
inline QValidator *kirvCreatePatternValidator(const QString &pattern, QObject *parent)
{
#if QT_VERSION >= 0x060000
    // The validator takes an expression that is empty for none, and logs each use of one that is invalid.
    QRegularExpression expression(pattern.isEmpty() ? QLatin1String("(?:)") : kirvPerlPattern(pattern),
                                  QRegularExpression::UseUnicodePropertiesOption
                                      | QRegularExpression::DotMatchesEverythingOption);
    if (!expression.isValid())
        expression.setPattern(QLatin1String("(?!)"));
    return new QRegularExpressionValidator(expression, parent);
#else
    return new QRegExpValidator(QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp), parent);
#endif
}

#endif

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

/// A validator that accepts what matches \a pattern as a whole, case-sensitively. \a parent owns it.
inline QValidator *kirvCreatePatternValidator(const QString &pattern, QObject *parent)
{
#if QT_VERSION >= 0x060000
    return new QRegularExpressionValidator(QRegularExpression(pattern), parent);
#else
    return new QRegExpValidator(QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp), parent);
#endif
}

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LIBRARY_SYMBOLS_H
#define KIRV_LIBRARY_SYMBOLS_H

#include "tests/support/kirv_patience.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

/// What the library \a file exports: demangled, without address and kind. Empty when it cannot be read.
inline QStringList exportedSymbols(const QString &file)
{
    QProcess nm;
    nm.start(QStringLiteral(KIRV_NM),
             { QStringLiteral("-D"), QStringLiteral("--defined-only"), QStringLiteral("--demangle"), file });
    if (!nm.waitForFinished(kirvPatience) || nm.exitCode() != 0)
        return QStringList();
    QStringList symbols;
    const QStringList lines = QString::fromLocal8Bit(nm.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!line.isEmpty())
            symbols << line.section(QLatin1Char(' '), 2);
    }
    return symbols;
}

/// Those of \a symbols that belong neither to \a classes nor to the tools that built the library.
inline QStringList symbolsOfOthers(const QStringList &symbols, const QStringList &classes)
{
    // Member, virtual table, type information, or what calls a member through a second base class.
    const QRegularExpression ofThem(
        QStringLiteral("^((vtable|typeinfo|typeinfo name) for |non-virtual thunk to )?(%1)(::|$)")
            .arg(classes.join(QLatin1Char('|'))));
    // The ends of sections, what the sanitizers add (marks of exported data, types that they look into), and functions
    // of the standard library's templates that were not inlined.
    const QRegularExpression ofTheTools(
        QStringLiteral("^(__bss_start|_edata|_end|__odr_asan.*|typeinfo( name)? for Q\\w+|(\\w+ )?std::.*)$"));
    QStringList others;
    for (const QString &symbol : symbols) {
        if (!ofThem.match(symbol).hasMatch() && !ofTheTools.match(symbol).hasMatch())
            others << symbol;
    }
    return others;
}

#endif

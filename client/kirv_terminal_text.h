// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TERMINAL_TEXT_H
#define KIRV_TERMINAL_TEXT_H

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// \a text, which may come from anywhere, in one line of at most \a longest characters without anything that a terminal
/// obeys or that turns the direction of what follows.
QString kirvTerminalText(const QString &text, int longest = 200);

/// \a rows in columns that are as wide as what is in them, with two spaces between; each line ends without spaces.
QStringList kirvTerminalTable(const QList<QStringList> &rows);

/// \a object in one line, with a line feed at its end. What a terminal obeys or does not show is escaped in it.
QByteArray kirvTerminalJson(const QJsonObject &object);

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_terminal_text.h"

#include "core/values/kirv_single_line.h"
#include "core/values/kirv_visible_text.h"

#include <QJsonDocument>

#include <algorithm>
#include <cwchar>

namespace {

/// How many columns of a terminal \a text takes.
int columnsOf(const QString &text)
{
    int columns = 0;
    const auto characters = text.toUcs4();
    for (const uint character : characters) {
        const int width = ::wcwidth(wchar_t(character));
        columns += width < 0 ? 1 : width;
    }
    return columns;
}

} // namespace

QString kirvTerminalText(const QString &text, int longest)
{
    return kirvSingleLine(kirvVisibleText(text.left(4 * longest)), longest);
}

QStringList kirvTerminalTable(const QList<QStringList> &rows)
{
    QList<int> widths;
    for (const QStringList &row : rows) {
        for (int column = 0; column < row.size(); ++column) {
            if (column == widths.size())
                widths << 0;
            widths[column] = std::max(widths.at(column), columnsOf(row.at(column)));
        }
    }
    QStringList lines;
    for (const QStringList &row : rows) {
        QString line;
        int end = 0; // of the column before
        for (int column = 0; column < row.size(); ++column) {
            line += QString(end - columnsOf(line), QLatin1Char(' ')) + row.at(column);
            end += widths.at(column) + 2;
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        lines << line;
    }
    return lines;
}

QByteArray kirvTerminalJson(const QJsonObject &object)
{
    // Such characters stand in texts only, where their escaped form means the same.
    const QString json = QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    QString line;
    line.reserve(json.size() + 1);
    for (const QChar character : json) {
        if (kirvIsInvisible(character))
            line += QStringLiteral("\\u%1").arg(int(character.unicode()), 4, 16, QLatin1Char('0'));
        else
            line += character;
    }
    return line.toUtf8() + '\n';
}

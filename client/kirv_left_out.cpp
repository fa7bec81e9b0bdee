// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_left_out.h"

#include "client/kirv_plain_text.h"

#include <QCoreApplication>

namespace {

const int mostLines = 100;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KirvLeftOut)
};

} // namespace

QString kirvLeftOutText(const QString &heading, const QStringList &leftOut)
{
    if (leftOut.isEmpty())
        return QString();
    QStringList lines { heading };
    for (const QString &sentence : leftOut.mid(0, mostLines))
        lines << QStringLiteral("• ") + kirvPlainSentence(sentence);
    if (leftOut.size() > mostLines)
        lines << QStringLiteral("• ") + Texts::tr("and %n more", nullptr, int(leftOut.size()) - mostLines);
    return lines.join(QLatin1Char('\n'));
}

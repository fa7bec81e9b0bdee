// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/gui/kirv_pseudo_translator.h"

#include "client/kirv_translations.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

QChar accented(QChar letter)
{
    static const QString plain = QStringLiteral("aceilnorsuyzACEILNORSUYZ");
    static const QString with = QString::fromUtf8("áćéíłńóŕśúýźÁĆÉÍŁŃÓŔŚÚÝŹ");
    const int place = int(plain.indexOf(letter));
    return place < 0 ? letter : with.at(place);
}

/// So many letters more in words, so that lines can be wrapped; the last ones from right to left.
QString padding(int letters)
{
    static const QString leftToRight = QString::fromUtf8("łóńgér");
    static const QString rightToLeft = QString::fromUtf8("אבגדה");
    const int atEnd = letters > 2 ? qMin(letters, int(rightToLeft.size())) : 0;
    QString text;
    for (int left = letters - atEnd; left > 0; left -= int(leftToRight.size()))
        text += QLatin1Char(' ') + leftToRight.left(left);
    return atEnd ? text + QLatin1Char(' ') + rightToLeft.left(atEnd) : text;
}

} // namespace

KirvPseudoTranslator::KirvPseudoTranslator(const QString &catalogue)
{
    if (!qtTexts.load(QStringLiteral("qtbase_de"), kirvQtTranslationFolder()))
        qWarning("Qt's own catalogues are not installed.");
    QFile file(catalogue);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader reader(&file);
    QString context, source, comment;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            if (reader.name() == QLatin1String("name"))
                context = reader.readElementText();
            else if (reader.name() == QLatin1String("source"))
                source = reader.readElementText();
            else if (reader.name() == QLatin1String("comment"))
                comment = reader.readElementText();
            else if (reader.name() == QLatin1String("message"))
                comment.clear();
        } else if (reader.isEndElement() && reader.name() == QLatin1String("message")) {
            known << keyOf(context, source, comment);
        }
    }
}

QString KirvPseudoTranslator::keyOf(const QString &context, const QString &text, const QString &comment)
{
    return context + QChar(1) + text + QChar(1) + comment;
}

QString KirvPseudoTranslator::translate(const char *context, const char *text, const char *comment, int n) const
{
    const QString source = QString::fromUtf8(text);
    const QString room = QString::fromUtf8(context);
    // Names of keys are parts of "Ctrl+N"; the direction is set by the test.
    if (room == QLatin1String("QShortcut") || room == QLatin1String("QGuiApplication"))
        return QString();
    const bool isOurs = known.contains(keyOf(room, source, QString::fromUtf8(comment)))
        || known.contains(keyOf(room, source, QString()));
    return isOurs || !qtTexts.translate(context, text, comment, n).isEmpty() ? pseudo(source) : QString();
}

QString KirvPseudoTranslator::pseudo(const QString &text)
{
    static const QRegularExpression kept(QStringLiteral("%L?(\\d{1,2}|n)|&\\w+;|&.|<[^>]*>"));
    // Blanks around the text and the end of a sentence stay at the ends.
    static const QRegularExpression parts(QStringLiteral("^(\\s*)(.*?)([.?!…:]*)(\\s*)$"),
                                          QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch part = parts.match(text);
    const QString middle = part.captured(2);
    QString changed;
    int letters = 0, done = 0;
    const auto change = [&](int to) {
        for (; done < to; ++done) {
            letters += middle.at(done).isLetter() ? 1 : 0;
            changed += accented(middle.at(done));
        }
    };
    QRegularExpressionMatchIterator matches = kept.globalMatch(middle);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        change(int(match.capturedStart()));
        changed += match.captured();
        letters += match.captured().startsWith(QLatin1Char('&')) ? 1 : 0;
        done = int(match.capturedEnd());
    }
    change(int(middle.size()));
    if (letters == 0)
        return text;
    return part.captured(1) + opening() + changed + padding((letters * 2 + 4) / 5) + part.captured(3) + closing()
        + part.captured(4);
}

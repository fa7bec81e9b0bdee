// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEXT_SURVEY_H
#define KIRV_TEXT_SURVEY_H

#include <QList>
#include <QRegularExpression>
#include <QStringList>

class QWidget;

/// Reads what the widgets of a window show, also to assistive technology, while KirvPseudoTranslator translates.
class KirvTextSurvey {
public:
    /// Texts that are put together from several ones, and why that is right.
    struct Allowed {
        QRegularExpression where; ///< matches "name of the widget property"
        QString reason;
    };

    /// \a data are texts that are not translated, as names of accounts; whole words in any text.
    KirvTextSurvey(const QStringList &data, const QList<Allowed> &allowed);

    /// Adds what is wrong with the visible widgets of \a window; \a place is named in the lines.
    void look(const QString &place, QWidget *window);
    /// What is wrong, one line each: a text, or a part of it, without marks; a sentence put together from marked
    /// pieces; a text that has less room than it needs.
    QStringList problems() const { return found; }
    /// How many texts were read.
    int textCount() const { return count; }

    /// What is wrong with one text; empty: nothing. For tests of the survey itself.
    QString slipIn(const QString &text) const;
    /// Whether a text in \a widget is cut off.
    static bool isClipped(const QWidget *widget);

private:
    void check(const QString &place, const QString &where, const QString &text);

    QRegularExpression data;
    const QList<Allowed> allowed;
    QStringList found;
    int count = 0;
};

#endif

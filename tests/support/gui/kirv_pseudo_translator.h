// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PSEUDO_TRANSLATOR_H
#define KIRV_PSEUDO_TRANSLATOR_H

#include <QSet>
#include <QTranslator>

/// Translates into a language that nobody speaks: every text in marks, with accents, longer by some 40 % and with a run
/// from right to left. "Add an account" becomes "[!! Ádd áń áććóúńt łóńg אבג !!]".
///
/// It knows the texts that a catalogue of the program has, and those of Qt that Qt's own catalogue has; whatever else a
/// window shows bears no marks.
class KirvPseudoTranslator : public QTranslator {
public:
    /// \a catalogue is a .ts file of the program.
    explicit KirvPseudoTranslator(const QString &catalogue);

    /// Whether both catalogues were found.
    bool isReady() const { return !known.isEmpty() && !qtTexts.isEmpty(); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *comment, int n) const override;

    static QString opening() { return QStringLiteral("[!! "); }
    static QString closing() { return QStringLiteral(" !!]"); }
    /// What \a text becomes. Placeholders, markup and the letter of a mnemonic stay, and so does a text without
    /// letters.
    static QString pseudo(const QString &text);

private:
    static QString keyOf(const QString &context, const QString &text, const QString &comment);

    QSet<QString> known;
    QTranslator qtTexts; ///< German, by which a text of Qt is known
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_field_problem.h"

#include "core/ui/kirv_field_form.h"
#include "core/values/kirv_text_limit.h"

#include <QRegularExpression>

namespace {

const int longestExplanation = 200;

bool isTooLong(const QString &text)
{
    return kirvEditableLength(text) < text.size();
}

/// A password can be replaced whether it is shown in full or not.
bool isTooLongPassword(const KirvField &field)
{
    return field.getKind() == KirvField::Password && isTooLong(field.getText());
}

/// Says what is valid where the field explains it.
QString invalidFormat(const KirvField &field)
{
    const QString explanation = kirvShortened(field.getToolTip(), longestExplanation);
    //: %1 = a sentence that says what is valid
    return explanation.isEmpty() ? KirvFieldForm::tr("Invalid format.")
                                 : KirvFieldForm::tr("Invalid format: %1").arg(explanation);
}

} // namespace

QString kirvShortened(const QString &text, int length)
{
    return text.size() <= length ? text : text.left(length - 1) + QChar(0x2026);
}

bool kirvIsTooLongToEdit(const KirvField &field)
{
    const bool isText = field.getKind() == KirvField::Text || field.getKind() == KirvField::MultiLine;
    return isText && isTooLong(field.getText());
}

bool kirvIsWholeNumberIn(const KirvField &field)
{
    bool isNumber = false;
    const int number = field.getText().toInt(&isNumber);
    return isNumber && number >= field.getMinimum() && number <= field.getMaximum();
}

QString kirvFieldProblem(const KirvField &field)
{
    if (field.getKind() == KirvField::CheckBox || field.getKind() == KirvField::Label)
        return QString();
    if (field.getText().isEmpty())
        return field.isRequired() ? KirvFieldForm::tr("This must be filled in.") : QString();
    if (kirvIsTooLongToEdit(field))
        return KirvFieldForm::tr("This text is too long to be shown in full and to be changed here.");
    if (isTooLongPassword(field))
        return KirvFieldForm::tr(
            "This text is too long to be shown in full. It is kept as long as nothing is changed here.");
    if (field.getKind() == KirvField::Number && !kirvIsWholeNumberIn(field))
        return KirvFieldForm::tr("This must be a whole number from %1 to %2.")
            .arg(field.getMinimum())
            .arg(field.getMaximum());
    if (field.getPattern().isEmpty())
        return QString();
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(field.getPattern()));
    if (pattern.isValid() && !pattern.match(field.getText()).hasMatch())
        return invalidFormat(field);
    return QString();
}

bool kirvCanHaveProblem(const KirvField &field)
{
    return field.isRequired() || !field.getPattern().isEmpty() || field.getKind() == KirvField::Number
        || kirvIsTooLongToEdit(field) || isTooLongPassword(field);
}

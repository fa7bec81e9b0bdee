// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_field_form.h"

#include "core/ui/kirv_field_problem.h"
#include "core/ui/kirv_hint_line.h"
#include "core/ui/kirv_keyboard.h"
#include "core/ui/kirv_length_limit.h"
#include "core/ui/kirv_reveal_button.h"
#include "core/values/kirv_text_limit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTextDocument>
#include <QVBoxLayout>

#include <limits>

namespace {

// Longer texts come from servers at most; they are cut where only a caption is expected, and get a control that
// scrolls where they are the value.
const int longestCaption = 200;
const int longestBoxCaption = 60;
const int longestNumber = 20;
const int longestWord = 60;
const int longestToolTip = 1000;
const int longestLine = 2000;
const int labelWidth = 40; // in average characters
const int shownLines = 4;

/// The field's name for people.
QString captionOf(const KirvField &field)
{
    const QString label = kirvShortened(field.getLabel(), longestCaption + 1).simplified();
    return kirvShortened(label.isEmpty() ? field.getId() : label, longestCaption);
}

/// \a caption as it stands before a control.
QString labelTextOf(const QString &caption)
{
    return !caption.isEmpty() && caption.back().isPunct() ? caption : KirvFieldForm::tr("%1:").arg(caption);
}

/// A tool tip that shows \a text as it is; Qt takes what looks like markup for markup.
QString toolTipOf(const QString &text)
{
    const QString plain = kirvShortened(text, longestToolTip);
    return Qt::mightBeRichText(plain) || plain.size() > longestCaption ? Qt::convertFromPlainText(plain) : plain;
}

bool fitsOneLine(const QString &text)
{
    static const QRegularExpression lineBreak(QStringLiteral("[\\n\\r\\x{0085}\\x{2028}\\x{2029}]"));
    return text.size() <= longestLine && !text.contains(lineBreak);
}

/// Whether a label can show \a text in a reasonable size; it breaks lines only between words.
bool fitsLabel(const QString &text)
{
    static const QRegularExpression longWord(QStringLiteral("\\S{%1}").arg(longestWord));
    return text.size() <= longestLine && !text.contains(longWord);
}

QString objectNameOf(const KirvField &field)
{
    return QStringLiteral("KirvField_%1").arg(field.getId());
}

/// Scrolling a form must not change what the pointer passes over.
void takeWheelOnlyWithFocus(QWidget *control, QObject *filter)
{
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(filter);
}

int heightOfLines(const QPlainTextEdit *edit, int lines)
{
    return edit->fontMetrics().lineSpacing() * lines + 2 * edit->frameWidth()
        + 2 * int(edit->document()->documentMargin());
}

} // namespace

KirvField KirvFieldForm::Row::edited() const
{
    KirvField result = field;
    const QVariant now = editor.value ? editor.value() : shown;
    if (now == shown)
        return result;
    if (field.getKind() == KirvField::CheckBox)
        result.setChecked(now.toBool());
    else
        result.setText(now.toString());
    return result;
}

KirvFieldForm::KirvFieldForm(const QList<KirvField> &fields, QFormLayout::RowWrapPolicy labels, QWidget *parent)
    : QWidget(parent)
    , layout(new QFormLayout(this))
{
    setObjectName(QStringLiteral("KirvFieldForm"));
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->setRowWrapPolicy(labels);
    rows.reserve(std::size_t(fields.size()));
    for (const KirvField &field : fields)
        addRow(field);
    assignMnemonics();
}

QList<KirvField> KirvFieldForm::fields() const
{
    QList<KirvField> result;
    for (const Row &row : rows)
        result.append(row.edited());
    return result;
}

QLineEdit *KirvFieldForm::lineOf(const QString &id) const
{
    for (const Row &row : rows) {
        if (row.field.getId() == id)
            return qobject_cast<QLineEdit *>(row.editor.widget);
    }
    return nullptr;
}

void KirvFieldForm::addBelow(QLineEdit *line, QWidget *widget)
{
    for (const Row &row : rows) {
        auto *cell = row.editor.widget == line ? qobject_cast<QVBoxLayout *>(row.cell->parent()) : nullptr;
        if (cell)
            cell->addWidget(widget);
    }
}

void KirvFieldForm::addBeside(QLineEdit *line, QWidget *button)
{
    for (const Row &row : rows) {
        if (row.editor.widget == line)
            row.cell->addWidget(button);
    }
    setTabOrder(line, button);
}

void KirvFieldForm::assignMnemonics()
{
    QSet<QChar> taken = kirvMnemonicsAround(this);
    for (const Caption &caption : captions)
        caption.widget->setProperty("text", kirvWithMnemonic(caption.plain, &taken));
}

bool KirvFieldForm::eventFilter(QObject *watched, QEvent *event)
{
    const auto *control = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Wheel && !control->hasFocus()) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::FocusOut
        && static_cast<QFocusEvent *>(event)->reason() != Qt::ActiveWindowFocusReason) {
        for (const Row &row : rows) {
            if (row.editor.widget == watched)
                updateHint(row, true);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void KirvFieldForm::addRow(const KirvField &field)
{
    const std::size_t index = rows.size();
    rows.push_back(Row());
    rows.back().field = field;
    if (field.getKind() == KirvField::Label) {
        addNote(field);
        return;
    }

    Row &row = rows.back();
    row.editor = makeEditor(field, index);
    row.shown = row.editor.value();
    QWidget *editor = row.editor.widget;
    editor->setObjectName(objectNameOf(field));
    editor->setAccessibleName(captionOf(field));
    editor->setAccessibleDescription(kirvShortened(field.getToolTip(), longestToolTip));
    editor->setToolTip(toolTipOf(field.getToolTip()));

    addControl(&row);
    updateHint(row, false);
}

void KirvFieldForm::addControl(Row *row)
{
    // A layout, not a widget: accessibility looks for the label of a control among its siblings.
    auto *cell = new QVBoxLayout;
    auto *line = row->cell = new QHBoxLayout;
    line->setSpacing(0);
    line->addWidget(row->editor.widget);
    if (row->field.getKind() == KirvField::Password)
        line->addWidget(makeRevealButton(*row));
    cell->addLayout(line);
    if (kirvCanHaveProblem(row->field)) {
        row->hint = new KirvHintLine(objectNameOf(row->field) + QStringLiteral("_Hint"), this);
        row->editor.widget->installEventFilter(this);
        cell->addWidget(row->hint);
    }

    const QString caption = captionOf(row->field);
    const bool isCheckBox = row->field.getKind() == KirvField::CheckBox;
    if (isCheckBox && caption.size() <= longestBoxCaption) {
        layout->addRow(QString(), cell);
        captions.append({ row->editor.widget, caption });
        return;
    }
    QLabel *label = makeLabel(row->field);
    label->setBuddy(row->editor.widget);
    layout->addRow(label, cell);
    captions.append({ label, isCheckBox ? caption : labelTextOf(caption) });
}

/// The label of \a field, without its text and its buddy.
QLabel *KirvFieldForm::makeLabel(const KirvField &field)
{
    auto *label = new QLabel(this);
    label->setObjectName(objectNameOf(field) + QStringLiteral("_Label"));
    label->setTextFormat(Qt::PlainText);
    label->setToolTip(toolTipOf(field.getToolTip()));
    label->setWordWrap(captionOf(field).size() > labelWidth);
    label->setMaximumWidth(fontMetrics().averageCharWidth() * labelWidth);
    return label;
}

void KirvFieldForm::addNote(const KirvField &field)
{
    const QString caption = field.getLabel().isEmpty() ? QString() : captionOf(field);
    const QString text = field.getText().isEmpty() ? caption : field.getText();
    QWidget *note = nullptr;
    if (fitsLabel(text)) {
        auto *label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        label->setText(text);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        note = label;
    } else {
        auto *edit = new QPlainTextEdit(kirvShortened(text, kirvEditableLength(text)), this);
        edit->setReadOnly(true);
        edit->setTabChangesFocus(true);
        edit->setAccessibleName(caption);
        note = edit;
    }
    note->setObjectName(objectNameOf(field));
    note->setToolTip(toolTipOf(field.getToolTip()));
    if (caption.isEmpty() || field.getText().isEmpty()) {
        layout->addRow(note);
        return;
    }
    QLabel *label = makeLabel(field);
    label->setText(labelTextOf(caption));
    layout->addRow(label, note);
}

KirvFieldForm::Editor KirvFieldForm::makeEditor(const KirvField &field, std::size_t row)
{
    switch (field.getKind()) {
    case KirvField::CheckBox:
        return makeCheckBox(field, row);
    case KirvField::Choice:
        return makeChoice(field, row);
    case KirvField::Number:
        return makeNumber(field, row);
    case KirvField::MultiLine:
        return makeText(field, row);
    case KirvField::Password:
        return makeLine(field, row);
    default:
        return fitsOneLine(field.getText()) ? makeLine(field, row) : makeText(field, row);
    }
}

KirvFieldForm::Editor KirvFieldForm::makeLine(const KirvField &field, std::size_t row)
{
    auto *edit = new QLineEdit(this);
    edit->setText(kirvEditablePart(field.getText()));
    kirvLimitLength(edit);
    edit->setCursorPosition(0);
    if (field.getKind() == KirvField::Password)
        edit->setEchoMode(QLineEdit::Password);
    if (field.isRequired())
        edit->setPlaceholderText(tr("Required"));
    connect(edit, &QLineEdit::textChanged, this, [this, row] { takeEdit(row); });
    return { edit, [edit] { return edit->text(); } };
}

KirvFieldForm::Editor KirvFieldForm::makeText(const KirvField &field, std::size_t row)
{
    auto *edit = new QPlainTextEdit(kirvShortened(field.getText(), kirvEditableLength(field.getText())), this);
    kirvLimitLength(edit);
    edit->setReadOnly(kirvIsTooLongToEdit(field));
    edit->setTabChangesFocus(true);
    edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    edit->setFixedHeight(heightOfLines(edit, shownLines));
    if (field.isRequired())
        edit->setPlaceholderText(tr("Required"));
    connect(edit, &QPlainTextEdit::textChanged, this, [this, row] { takeEdit(row); });
    return { edit, [edit] { return edit->toPlainText(); } };
}

KirvFieldForm::Editor KirvFieldForm::makeCheckBox(const KirvField &field, std::size_t row)
{
    auto *box = new QCheckBox(this);
    box->setChecked(field.isChecked());
    connect(box, &QCheckBox::toggled, this, [this, row] { takeEdit(row); });
    return { box, [box] { return box->isChecked(); } };
}

KirvFieldForm::Editor KirvFieldForm::makeChoice(const KirvField &field, std::size_t row)
{
    auto *box = new QComboBox(this);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(12);
    takeWheelOnlyWithFocus(box, this);

    const QStringList values = field.getValues();
    const QStringList displays = field.getDisplays();
    for (int i = 0; i < values.size(); ++i) {
        const QString display = displays.value(i).isEmpty() ? values.at(i) : displays.at(i);
        box->addItem(kirvShortened(display, longestCaption), values.at(i));
    }
    int current = values.indexOf(field.getText());
    if (current < 0) {
        const QString text = field.getText();
        box->insertItem(0, text.isEmpty() ? tr("Not chosen") : kirvShortened(text, longestCaption), text);
        current = 0;
    }
    box->setCurrentIndex(current);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, row] { takeEdit(row); });
    return { box, [box] { return box->currentData(); } };
}

KirvFieldForm::Editor KirvFieldForm::makeNumber(const KirvField &field, std::size_t row)
{
    auto *box = new QSpinBox(this);
    takeWheelOnlyWithFocus(box, this);
    box->setRange(field.getMinimum(), field.getMaximum());
    if (kirvIsWholeNumberIn(field)) {
        box->setValue(field.getText().toInt());
    } else {
        // The value that stands there though it must not is shown as it is, one step below the smallest number.
        box->setMinimum(qMax(field.getMinimum(), std::numeric_limits<int>::min() + 1) - 1);
        box->setSpecialValueText(field.getText().isEmpty()
                                     ? QStringLiteral(" ")
                                     : kirvShortened(field.getText().left(longestCaption).simplified(), longestNumber));
        box->setValue(box->minimum());
    }
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, row] { takeEdit(row); });
    return { box, [box] { return box->value(); } };
}

QWidget *KirvFieldForm::makeRevealButton(const Row &row)
{
    auto *button = new KirvRevealButton(static_cast<QLineEdit *>(row.editor.widget), this);
    button->setObjectName(objectNameOf(row.field) + QStringLiteral("_Reveal"));
    return button;
}

QWidget *KirvFieldForm::showProblems(const QStringList &ids)
{
    QWidget *first = nullptr;
    for (const Row &row : rows) {
        if (!row.hint || (!ids.isEmpty() && !ids.contains(row.field.getId())))
            continue;
        updateHint(row, true);
        if (!first && !row.hint->text().isEmpty())
            first = row.editor.widget;
    }
    return first;
}

void KirvFieldForm::takeEdit(std::size_t row)
{
    updateHint(rows[row], true);
    Q_EMIT edited();
}

void KirvFieldForm::updateHint(const Row &row, bool remindOfEmpty)
{
    if (!row.hint)
        return;
    const KirvField field = row.edited();
    const QString problem = field.getText().isEmpty() && !remindOfEmpty ? QString() : kirvFieldProblem(field);
    if (problem == row.hint->text())
        return;
    row.editor.widget->setAccessibleDescription(problem.isEmpty() ? kirvShortened(field.getToolTip(), longestToolTip)
                                                                  : problem);
    row.hint->setText(problem);
}

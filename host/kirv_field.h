// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FIELD_H
#define KIRV_FIELD_H

#include <QString>
#include <QStringList>

/// One settings or directory field: an id, a value and what a field widget needs to render it.
///
/// A value type: copy it freely. Text kinds carry their value in getText(), the check box in
/// isChecked(). A number carries its decimal text, a choice the value of the chosen option.
class KirvField {
public:
    /// How a field is rendered. Text is the kind of a default-constructed field.
    enum Kind { Text, Password, CheckBox, Choice, Number, Label, MultiLine };

    /// A line of text in which everything is empty.
    KirvField()
        : kind(Text)
        , checked(false)
        , required(false)
        , minimum(0)
        , maximum(0)
    {
    }

    /// A line of text. An empty \a label shows the id in its place; an empty \a toolTip shows none.
    static KirvField textEdit(const QString &label, const QString &id, const QString &text, const QString &toolTip)
    {
        return KirvField(Text, label, id, text, toolTip);
    }

    /// A line of text whose characters are masked.
    static KirvField password(const QString &label, const QString &id, const QString &text, const QString &toolTip)
    {
        return KirvField(Password, label, id, text, toolTip);
    }

    /// A box that is ticked or not; its text value stays empty.
    static KirvField checkBox(const QString &label, const QString &id, bool checked, const QString &toolTip)
    {
        KirvField field(CheckBox, label, id, QString(), toolTip);
        field.checked = checked;
        return field;
    }

    /// One of several \a values; \a displays are the texts shown for them, in the same order.
    /// Displays may be shorter than values or empty: then the value itself is shown. A \a text
    /// that is none of the values is kept and shown as an option of its own.
    static KirvField choice(const QString &label, const QString &id, const QString &text, const QStringList &values,
                            const QStringList &displays, const QString &toolTip)
    {
        KirvField field(Choice, label, id, text, toolTip);
        field.values = values;
        field.displays = displays;
        return field;
    }

    /// A whole number from \a minimum to \a maximum, both included.
    static KirvField number(const QString &label, const QString &id, int value, int minimum, int maximum,
                            const QString &toolTip)
    {
        KirvField field(Number, label, id, QString::number(value), toolTip);
        field.minimum = minimum;
        field.maximum = maximum;
        return field;
    }

    /// A text to read only: instructions, a heading. Shown as plain text, markup is not interpreted.
    static KirvField note(const QString &label, const QString &id, const QString &text, const QString &toolTip)
    {
        return KirvField(Label, label, id, text, toolTip);
    }

    /// Text of several lines, separated by line feeds.
    static KirvField multiLine(const QString &label, const QString &id, const QString &text, const QString &toolTip)
    {
        return KirvField(MultiLine, label, id, text, toolTip);
    }

    /// How the field is rendered.
    Kind getKind() const { return kind; }
    /// Names the field among those of the same list.
    QString getId() const { return id; }
    /// The value of every kind but the check box. Of a label it is the text to read.
    QString getText() const { return text; }
    /// The value of a check box; false for every other kind.
    bool isChecked() const { return checked; }
    /// The text beside or above the control; empty: the id is shown in its place.
    QString getLabel() const { return label; }
    /// The tool tip of the control; empty: it has none.
    QString getToolTip() const { return toolTip; }
    /// The values among which a choice is made; empty for every other kind.
    QStringList getValues() const { return values; }
    /// The texts shown for getValues(), in the same order; missing ones are the value itself.
    QStringList getDisplays() const { return displays; }
    /// The smallest number that a number field takes.
    int getMinimum() const { return minimum; }
    /// The largest number that a number field takes.
    int getMaximum() const { return maximum; }
    /// A regular expression that the whole text must match; empty accepts any text.
    QString getPattern() const { return pattern; }
    /// Whether an empty text is an error.
    bool isRequired() const { return required; }

    /// Changes getText(). A number field takes the decimal text, a choice one of its values.
    void setText(const QString &value) { text = value; }
    /// Changes isChecked().
    void setChecked(bool value) { checked = value; }
    /// Changes getPattern(); an empty one accepts any text.
    void setPattern(const QString &value) { pattern = value; }
    /// Changes isRequired().
    void setRequired(bool value) { required = value; }

    /// Compares everything: id, value and appearance.
    bool operator==(const KirvField &other) const
    {
        return kind == other.kind && id == other.id && text == other.text && checked == other.checked
            && label == other.label && toolTip == other.toolTip && values == other.values && displays == other.displays
            && pattern == other.pattern && required == other.required && minimum == other.minimum
            && maximum == other.maximum;
    }
    /// Whether anything differs.
    bool operator!=(const KirvField &other) const { return !(*this == other); }

private:
    KirvField(Kind kind, const QString &label, const QString &id, const QString &text, const QString &toolTip)
        : kind(kind)
        , label(label)
        , id(id)
        , text(text)
        , toolTip(toolTip)
        , checked(false)
        , required(false)
        , minimum(0)
        , maximum(0)
    {
    }

    Kind kind;
    QString label;
    QString id;
    QString text;
    QString toolTip;
    QStringList values;
    QStringList displays;
    QString pattern;
    bool checked;
    bool required;
    int minimum;
    int maximum;
};

#endif

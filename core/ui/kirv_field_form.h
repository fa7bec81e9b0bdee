// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FIELD_FORM_H
#define KIRV_FIELD_FORM_H

#include "host/kirv_field.h"

#include <QFormLayout>
#include <QList>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <vector>

class KirvHintLine;
class QHBoxLayout;
class QLabel;
class QLineEdit;

/// The rows of a field widget for one list of fields; a new list makes a new form.
///
/// The control of a field is named "KirvField_" and the field's id, its label and its hint the same with "_Label"
/// and "_Hint" behind. All texts are shown as plain text.
class KirvFieldForm : public QWidget {
    Q_OBJECT

public:
    KirvFieldForm(const QList<KirvField> &fields, QFormLayout::RowWrapPolicy labels, QWidget *parent);

    /// What stands in the controls, valid or not. A field that was not edited comes back as it was given, also
    /// when its control could not show its value exactly.
    QList<KirvField> fields() const;

    /// Says at each field of \a ids, or at each of all when it is empty, what is wrong with its value, also that it is
    /// missing. The control of the first that is wrong; null when none is.
    QWidget *showProblems(const QStringList &ids = QStringList());
    /// The line of text that edits the field \a id; null when there is none.
    QLineEdit *lineOf(const QString &id) const;
    /// Puts \a button, which the form then owns, behind that line, also in the order of Tab.
    void addBeside(QLineEdit *line, QWidget *button);
    /// Puts \a widget, which the form then owns, below that line.
    void addBelow(QLineEdit *line, QWidget *widget);

    /// Gives the captions mnemonics that do not clash in the window that the form is in by now.
    void assignMnemonics();

Q_SIGNALS:
    /// The user has changed a value.
    void edited();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What edits a field. \a value is what stands in it: text, or for a check box whether it is ticked.
    struct Editor {
        QWidget *widget = nullptr;
        std::function<QVariant()> value;
    };
    struct Row {
        KirvField field;
        Editor editor;
        QVariant shown;
        QHBoxLayout *cell = nullptr; ///< that the control is in
        KirvHintLine *hint = nullptr;

        KirvField edited() const;
    };
    struct Caption {
        QWidget *widget;
        QString plain;
    };

    void addRow(const KirvField &field);
    void addNote(const KirvField &field);
    Editor makeEditor(const KirvField &field, std::size_t row);
    Editor makeLine(const KirvField &field, std::size_t row);
    Editor makeText(const KirvField &field, std::size_t row);
    Editor makeCheckBox(const KirvField &field, std::size_t row);
    Editor makeChoice(const KirvField &field, std::size_t row);
    Editor makeNumber(const KirvField &field, std::size_t row);
    QWidget *makeRevealButton(const Row &row);
    QLabel *makeLabel(const KirvField &field);
    void addControl(Row *row);
    void takeEdit(std::size_t row);
    void updateHint(const Row &row, bool remindOfEmpty);

    QFormLayout *layout;
    std::vector<Row> rows;
    QList<Caption> captions;
};

#endif

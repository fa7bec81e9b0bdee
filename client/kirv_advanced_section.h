// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ADVANCED_SECTION_H
#define KIRV_ADVANCED_SECTION_H

#include <QWidget>

class KirvFieldWidget;
class QLabel;
class QToolButton;

/// A row above the settings of a new account that shows and hides them. They are hidden at first.
class KirvAdvancedSection : public QWidget {
    Q_OBJECT

public:
    /// Puts a section with \a fields below it at the end of the form that they stand in; null when they stand in none.
    static KirvAdvancedSection *addAbove(KirvFieldWidget *fields);

    void setOpen(bool open);

Q_SIGNALS:
    void toggled(bool isOpen);

protected:
    void changeEvent(QEvent *event) override;

private:
    KirvAdvancedSection(KirvFieldWidget *fields, QWidget *parent);

    void showFields(bool isOpen);
    void showArrow(bool isOpen);

    KirvFieldWidget *const fields;
    QToolButton *const button;
    QLabel *const summary;
};

#endif

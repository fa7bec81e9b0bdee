// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FILE_BUTTON_H
#define KIRV_FILE_BUTTON_H

#include <QPointer>
#include <QStringList>
#include <QToolButton>

class KirvFieldForm;
class QFileDialog;
class QLineEdit;

/// The button beside the path of a file: opens a window in which the file is chosen, without stopping the program. The
/// window shows first what the path leads to.
class KirvFileButton : public QToolButton {
    Q_OBJECT

public:
    /// Gives each line of \a form that edits one of the fields \a ids such a button, named as the line and "_Choose".
    static void addTo(KirvFieldForm *form, const QStringList &ids);

private:
    explicit KirvFileButton(QLineEdit *line, QWidget *parent);

    void choose();

    QLineEdit *const line; ///< in the same form
    QPointer<QFileDialog> dialog;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REMEMBER_BOX_H
#define KIRV_REMEMBER_BOX_H

#include "client/kirv_secret_texts.h"

#include <QObject>

class KirvSecretKeeper;
class QCheckBox;
class QLabel;
class QWidget;

/// Says below a "Remember password" box where the password goes, and keeps that up to date. Owned by the box.
class KirvRememberBox : public QObject {
    Q_OBJECT

public:
    enum Default {
        AsItIs, ///< the box shows what is stored
        OffWhenUnsafe ///< the box is off where there is no keyring, until the user has clicked it
    };

    /// Puts a line into the layout of \a box. \a keeper outlives the box.
    KirvRememberBox(QCheckBox *box, const KirvSecretKeeper &keeper, Default behaviour);

private:
    void refresh();

    QCheckBox *const box;
    QLabel *const line;
    const KirvSecretTexts texts;
    bool mayChange;
};

/// A line of plain text that is wrapped, for below a widget of \a parent.
QLabel *kirvCreateLine(const QString &objectName, QWidget *parent);
/// Puts a line of text, named after \a widget, below it, in whatever layout it is.
QLabel *kirvAddLineBelow(QWidget *widget, const char *suffix);

#endif

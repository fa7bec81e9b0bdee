// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MAIN_ACCOUNT_SELECTOR_H
#define KIRV_MAIN_ACCOUNT_SELECTOR_H

#include <QObject>

class QComboBox;

/// Corrects the page's selector of the main account after each of its refreshes, without a change that the page takes
/// for a choice of the user: the selector is disabled while it offers nothing.
class KirvMainAccountSelector : public QObject {
    Q_OBJECT

public:
    /// \a box owns this.
    explicit KirvMainAccountSelector(QComboBox *box);

private:
    void correctLater();
    void correct();

    QComboBox *box;
    bool isDue = false;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MAIN_ACCOUNT_SELECTOR_H
#define KIRV_MAIN_ACCOUNT_SELECTOR_H

#include <QObject>

class KirvAccount;
class KirvAccountCollection;
class QComboBox;

/// Corrects the page's selector of the main account after each of its refreshes, without a change that the page takes
/// for a choice of the user: the selector is disabled while it offers nothing, shows the main account or, when that is
/// not offered, names it without an entry, and offers an account without an alias under its login.
class KirvMainAccountSelector : public QObject {
    Q_OBJECT

public:
    /// \a box owns this, and \a accounts outlives it.
    KirvMainAccountSelector(QComboBox *box, const KirvAccountCollection &accounts);

    /// Corrects it from the event loop: the main account may be another one, or have another name. A refresh that
    /// changes no entry does not show that.
    void correctLater();

private:
    void correct();
    void nameEntries();
    int entryOf(const KirvAccount *account) const;

    QComboBox *box;
    const KirvAccountCollection &accounts;
    bool isDue = false;
};

#endif

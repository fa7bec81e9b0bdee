// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STATE_LINE_H
#define KIRV_STATE_LINE_H

#include "core/values/kirv_account_key.h"

#include <QObject>

class KirvAccountCollection;
class QLabel;

/// Says in a label what an account does now, as long as the label exists; its tool tip says why. Owned by the label.
class KirvStateLine : public QObject {
    Q_OBJECT

public:
    /// \a accounts, not owned, outlives \a label. While it has no account \a key the text stays.
    KirvStateLine(QLabel *label, const KirvAccountKey &key, const KirvAccountCollection &accounts);

private:
    void refresh();

    QLabel *label;
    const KirvAccountKey key;
    const KirvAccountCollection &accounts;
};

#endif

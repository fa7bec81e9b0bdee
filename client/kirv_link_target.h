// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LINK_TARGET_H
#define KIRV_LINK_TARGET_H

#include "client/kirv_account_link.h"

#include <QObject>

class QMimeData;
class QWidget;

/// Takes links to accounts, such as xmpp:anna\@example.org, that are dropped on a widget or pasted while the focus is
/// in it and not in a field of text. Owned by the widget.
class KirvLinkTarget : public QObject {
    Q_OBJECT

public:
    explicit KirvLinkTarget(QWidget *widget);

Q_SIGNALS:
    /// From the event loop, when drag and drop has ended. A \a link that is too long was pasted: it is said so.
    void linkTaken(const KirvAccountLink &link);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(const QMimeData *data);

    QWidget *const widget;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_GROUP_H
#define KIRV_ACCOUNT_GROUP_H

#include "core/values/kirv_account_key.h"

#include <QList>
#include <QObject>

#include <functional>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountUndo;
class KirvMainAccount;
class QWidget;

/// The commands that change several accounts at once, each in one change of the store: all of them, or none. Before
/// something is taken away there is one question for all of them, and it is one step to undo.
class KirvAccountGroup : public QObject {
    Q_OBJECT

public:
    /// None is owned, and all outlive this, which belongs to \a parent; questions stand over the window of \a parent.
    KirvAccountGroup(KirvAccountCollection &accounts, KirvMainAccount &mainAccount, KirvAccountUndo &undo,
                     QWidget *parent);

    void enable(const QList<KirvAccountKey> &keys);
    /// Asks when one of them is logged in.
    void disable(const QList<KirvAccountKey> &keys);
    /// Asks in any case.
    void remove(const QList<KirvAccountKey> &keys);

    bool canDisableAll() const;
    void disableAll();
    /// Whether there are accounts that disableAll() has disabled and that are disabled since.
    bool canEnableAgain() const;
    /// Enables exactly those.
    void enableAgain();

private:
    QList<KirvAccount *> find(const QList<KirvAccountKey> &keys) const;
    QList<KirvAccount *> mainLast(QList<KirvAccount *> found) const;
    QList<KirvAccountKey> enabledOnes() const;
    void disableNow(const QList<KirvAccountKey> &keys, bool isAll);
    void removeNow(const QList<KirvAccountKey> &keys);
    void ask(const QString &title, const QString &question, const QList<KirvAccountKey> &keys,
             const std::function<void()> &whenAccepted);

    KirvAccountCollection &accounts;
    KirvMainAccount &mainAccount;
    KirvAccountUndo &undo;
    QWidget *parent;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_HISTORY_H
#define KIRV_ACCOUNT_HISTORY_H

#include "core/accounts/kirv_removed_account.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

struct KirvAccountBatch;
class KirvAccount;
class KirvAccountCollection;
class KirvMainAccount;

/// What was removed, disabled and imported in this run, whoever did it, and how it is undone.
///
/// A step is one removal or disabling, or several of them between beginStep() and endStep(), or one import. An import
/// that is undone is followed by a step that makes it again, with what was changed since: neither is lost. An account
/// that is enabled in another way leaves the step that disabled it. Everything is in memory only, until the history is
/// destroyed or the step is dropped: there are at most mostSteps, and as long as they hold more than mostBytes of
/// pictures, the oldest ones go, but never the latest.
class KirvAccountHistory : public QObject {
    Q_OBJECT

public:
    enum Kind {
        Removal,
        Disabling,
        Import,
        UndoneImport ///< latest() and latestUndoable() pass it over: what undoes does not make anything again
    };
    static constexpr int mostSteps = 1000;
    static constexpr qint64 mostBytes = 64 * 1024 * 1024;

    /// Neither is owned, and both outlive this.
    KirvAccountHistory(KirvAccountCollection &accounts, KirvMainAccount &mainAccount, QObject *parent = nullptr);

    /// Makes the changes that follow, which are all of the kind \a kind, one step. Does not nest.
    void beginStep(Kind kind);
    void endStep();

    /// What an import has changed. A value type.
    struct Imported {
        QList<KirvAccountKey> added;
        QList<KirvRemovedAccount> replaced; ///< as they were before
        KirvAccountKey mainAccount; ///< the one before; the id is empty: none
    };
    /// Makes an import that is done a step of its own.
    void addImport(const Imported &imported);

    /// Number of the latest step; 0 when there is none.
    int latest() const;
    bool has(int step) const { return indexOf(step) >= 0; }
    /// False while nothing of it can be undone: of a disabling while each of its accounts was removed by a later step
    /// that can still be undone, of a removal while there are such accounts again. undo() keeps the step then. Also
    /// false when there is no such step.
    bool canUndo(int step) const;
    /// Number of the latest step that can be undone; 0 when there is none. Steps before one that cannot be undone are
    /// passed over when they are about the same accounts.
    int latestUndoable() const;
    Kind kindOf(int step) const;
    /// The accounts of the step, in the order in which they were changed.
    QList<KirvAccountKey> accountsOf(int step) const;
    /// The names of the same.
    QStringList namesOf(int step) const;

    /// Undoes the step: removed accounts are there again with everything that belonged to them, disabled ones are
    /// enabled with the presence that was wanted, imported ones are removed or as they were before, those of an undone
    /// import as they were before that, and the main account is the one that it was. Gives the reasons, a sentence
    /// each, why some of it was not undone. What the store refused stays in the step and can be undone later, of
    /// removals and imports all of it, and so do accounts to enable that a later step removed, and accounts to add as
    /// long as there is such an account again; what cannot be undone, as there is no such account any more, is dropped.
    QStringList undo(int step);

Q_SIGNALS:
    /// The step \a step is complete.
    void stepAdded(int step);
    /// It was undone or dropped.
    void stepGone(int step);

private:
    /// One account.
    struct Change {
        KirvRemovedAccount account; ///< of one that is there only what undoing it needs
        QString name;
        bool wasMain = false;
        bool isNew = false; ///< an import has added it
    };
    struct Step {
        int number = 0;
        Kind kind = Removal;
        QList<Change> changes;
        qint64 bytes() const;
    };
    enum Result { Undone, Refused, Impossible };
    /// What was not undone.
    struct Rest {
        QList<Change> changes; ///< can be undone later
        QStringList reasons;
        void add(const QString &reason);
    };

    int indexOf(int step) const;
    bool isRemovalHeld(const KirvAccountKey &key) const;
    void prepare(Kind kind, const KirvAccount *account);
    void confirm(Kind kind, const KirvAccountKey &key);
    void add(const Step &step);
    void dropOldest();
    void forget(int index);
    Step oppositeOf(const Step &step) const;
    void accountChanged(const KirvAccount *account);
    Rest bringBack(const Step &step);
    QString addTo(KirvAccountBatch *batch, Kind kind, const Change &change) const;
    Rest enableAll(const Step &step);
    Result enable(const Change &change, QString *reason);

    KirvAccountCollection &accounts;
    KirvMainAccount &mainAccount;
    QList<Step> steps; ///< oldest first
    QHash<KirvAccountKey, Change> prepared; ///< begun, and not confirmed yet
    QHash<KirvAccountKey, int> disabledBy; ///< the number of the step
    QHash<KirvAccountKey, int> removedBy; ///< the number of the latest step; it may be gone
    Step open; ///< its number is 0 while no step is open
    int lastNumber = 0;
};

#endif

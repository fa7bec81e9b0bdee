// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_LOG_H
#define KIRV_ACCOUNT_LOG_H

#include "core/accounts/kirv_reconciler.h"
#include "core/protocol/kirv_connection.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QObject>
#include <vector>

class KirvSecretBlank;

/// What happened to the connection of one account in this run: the last events, in memory only and without secrets.
class KirvAccountLog : public QObject {
    Q_OBJECT

public:
    static const int mostEntries = 500;
    static const int longestText = 400; ///< characters of an entry

    /// One event. A value type.
    struct Entry {
        QDateTime time;
        bool isFailure = false;
        QString text; ///< plain and translated
    };

    explicit KirvAccountLog(QObject *parent = nullptr);

    /// The entries, the oldest first.
    QList<Entry> entries() const;
    int count() const { return int(ring.size()); }
    /// Counts all entries that there ever were.
    quint64 total() const { return added; }
    void clear();

    // What is added. Nothing that secrets takes out of texts is kept.

    void addState(KirvConnection::State state, const QString &detail, const KirvSecretBlank &secrets);
    void addStep(const KirvLoginStep &step, const KirvSecretBlank &secrets);
    void addFailure(const KirvFailure &failure, const KirvSecretBlank &secrets);
    void addNotice(const QString &text, const KirvSecretBlank &secrets);
    void addAction(KirvReconciler::Step action);

Q_SIGNALS:
    /// An entry was added, and where the log was full the oldest one is gone.
    void entryAdded();

private:
    enum Kind : quint8 { State, Step, Failure, Notice, Action };
    /// As small as can be: there may be many accounts.
    struct Stored {
        qint64 time; ///< in milliseconds
        QByteArray text; ///< UTF-8; shared with an earlier entry where it is the same
        Kind kind;
        quint8 what; ///< the state, the action, or the kind of the step
        quint8 outcome; ///< of the step
    };

    void add(Kind kind, int what, int outcome, const QString &text);
    QByteArray shared(const QByteArray &text) const;
    static QString stateText(KirvConnection::State state);
    static QString actionText(KirvReconciler::Step action);
    static QString textOf(const Stored &stored);

    std::vector<Stored> ring; ///< grows up to mostEntries
    size_t oldest = 0;
    quint64 added = 0;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_DIRECTORY_H
#define KIRV_ACCOUNT_DIRECTORY_H

#include "core/protocol/kirv_directory_answer.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <optional>

class KirvConnection;

/// The public-directory entry of one account: makes the requests and matches their answers.
///
/// A publication needs a base, the entry as it was fetched before: only the fields that differ from it are published.
/// Without one, after a failed fetch say, nothing is published. A publication that is made while a save is open waits
/// for the commit, and then until the connection uses what was saved.
class KirvAccountDirectory : public QObject {
    Q_OBJECT

public:
    enum Operation { Fetch, Publish, Delete };

    explicit KirvAccountDirectory(QObject *parent = nullptr);

    /// The connection for the requests; not owned. Null: there is none, and what is outstanding fails.
    void setConnection(KirvConnection *connection);
    /// The fields that an entry without data has.
    void setBlankFields(const QList<KirvField> &fields);

    void fetch();
    /// Publishes what differs between \a fields and the base.
    void publish(const QList<KirvField> &fields);
    void deleteEntry();
    /// Forgets the base: it is not known any more what \a fields of a later publication are based on.
    void forget();

    /// Whether there is a base; base() is empty otherwise.
    bool isKnown() const { return known.has_value(); }
    QList<KirvField> base() const { return known.value_or(QList<KirvField>()); }
    /// Whether a request or a held publication is without its answer.
    bool isBusy() const { return outstanding != 0 || held || drafted; }

    /// A save begins: publications wait for its end.
    void hold();
    /// The save ended; a publication made in it is dropped unless \a saved.
    void release(bool saved);
    /// The connection uses what was saved: publications that waited for this are sent.
    void connectionSettled();

    /// Those of \a fields whose values differ from those of the same id in \a base, or whose id is among \a uncertain.
    static QList<KirvField> changes(const QList<KirvField> &fields, const QList<KirvField> &base,
                                    const QSet<QString> &uncertain = {});

Q_SIGNALS:
    /// A request was made; answered() follows, unless a later request replaces it.
    void requested(KirvAccountDirectory::Operation operation);
    /// The latest request is answered. Answers to requests that a later one has replaced are not emitted.
    void answered(KirvAccountDirectory::Operation operation, const KirvDirectoryAnswer &answer);

private:
    void begin(Operation operation, int request);
    void send(const QList<KirvField> &changes);
    void receive(const KirvDirectoryAnswer &answer);
    void fail(Operation operation, const QString &reason);

    QPointer<KirvConnection> connection;
    QList<KirvField> blank;
    std::optional<QList<KirvField>> known;
    QSet<QString> unconfirmed; ///< ids of the fields that were sent since; the server holds the one value or the other
    std::optional<QList<KirvField>> drafted; ///< the changes of a publication that the open save made
    std::optional<QList<KirvField>> held; ///< the changes of a publication that is saved, but not sent yet
    Operation operation = Fetch; ///< of the outstanding request
    int outstanding = 0; ///< the number of the latest request without an answer; 0: none
    bool saving = false;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_directory.h"

#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_same_value.h"

#include <algorithm>

KirvAccountDirectory::KirvAccountDirectory(QObject *parent)
    : QObject(parent)
{
}

void KirvAccountDirectory::setConnection(KirvConnection *newConnection)
{
    if (connection)
        connection->disconnect(this);
    connection = newConnection;
    known.reset();
    if (connection)
        connect(connection, &KirvConnection::directoryAnswered, this, &KirvAccountDirectory::receive);
    if (isBusy())
        fail(held || drafted ? Publish : operation, KirvFailure::connectionEnded().detail());
}

void KirvAccountDirectory::setBlankFields(const QList<KirvField> &fields)
{
    blank = fields;
}

void KirvAccountDirectory::fetch()
{
    known.reset();
    if (connection)
        begin(Fetch, connection->fetchDirectory());
}

void KirvAccountDirectory::publish(const QList<KirvField> &fields)
{
    if (!known)
        return;
    (saving ? drafted : held) = changes(fields, *known, unconfirmed);
    connectionSettled();
}

void KirvAccountDirectory::deleteEntry()
{
    known.reset();
    if (connection)
        begin(Delete, connection->deleteDirectory());
}

void KirvAccountDirectory::forget()
{
    known.reset();
}

void KirvAccountDirectory::hold()
{
    saving = true;
}

void KirvAccountDirectory::release(bool saved)
{
    saving = false;
    if (saved && drafted)
        held = drafted;
    drafted.reset();
}

void KirvAccountDirectory::connectionSettled()
{
    if (!held || saving || !connection)
        return;
    const bool isGone = connection->state() == KirvConnection::Offline
        || (connection->state() == KirvConnection::Waiting && !connection->isWaitingForTurn());
    if (!connection->isLoggedIn() && !isGone)
        return; // it is on its way
    const QList<KirvField> changes = *held;
    held.reset();
    send(changes);
}

QList<KirvField> KirvAccountDirectory::changes(const QList<KirvField> &fields, const QList<KirvField> &base,
                                               const QSet<QString> &uncertain)
{
    QList<KirvField> changed;
    for (const KirvField &field : fields) {
        const auto before = std::find_if(base.begin(), base.end(), [&field](const KirvField &candidate) {
            return candidate.getId() == field.getId();
        });
        if (before == base.end() || !kirvHasSameValue(*before, field) || uncertain.contains(field.getId()))
            changed << field;
    }
    return changed;
}

void KirvAccountDirectory::begin(Operation newOperation, int request)
{
    operation = newOperation;
    outstanding = request;
    Q_EMIT requested(operation);
}

void KirvAccountDirectory::send(const QList<KirvField> &changes)
{
    for (const KirvField &field : changes)
        unconfirmed.insert(field.getId());
    if (!changes.isEmpty())
        begin(Publish, connection->publishDirectory(changes));
    if (!changes.isEmpty() || outstanding || !known) // else a later request has taken its place
        return;
    KirvDirectoryAnswer unchanged;
    unchanged.outcome = KirvDirectoryAnswer::Data;
    unchanged.fields = base();
    Q_EMIT answered(Publish, unchanged);
}

void KirvAccountDirectory::receive(const KirvDirectoryAnswer &answer)
{
    if (answer.request != outstanding)
        return;
    outstanding = 0;
    if (answer.outcome != KirvDirectoryAnswer::Failed) {
        known = answer.outcome == KirvDirectoryAnswer::Data ? answer.fields : blank;
        unconfirmed.clear();
    }
    Q_EMIT answered(operation, answer);
}

void KirvAccountDirectory::fail(Operation failed, const QString &reason)
{
    outstanding = 0;
    drafted.reset();
    held.reset();
    KirvDirectoryAnswer answer;
    answer.failure = KirvFailure(KirvFailure::RequestFailed, reason);
    Q_EMIT answered(failed, answer);
}

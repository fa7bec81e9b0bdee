// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/connection/kirv_protocol_base.h"

#include "core/connection/kirv_connection.h"

#include <QHash>
#include <QPointer>

class KirvProtocolBase::Private {
public:
    /// The account's connection when it is logged in. One that is not answers with nothing.
    KirvConnection *connectionForRequest(const KirvAccountConnection *account) const
    {
        KirvConnection *connection = connections.value(account);
        if (!connection || connection->isLoggedIn())
            return connection;
        connection->answerWithoutDirectory();
        return nullptr;
    }

    QHash<const KirvAccountConnection *, QPointer<KirvConnection>> connections;
};

KirvProtocolBase::KirvProtocolBase(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

KirvProtocolBase::~KirvProtocolBase() = default;

QList<KirvField> KirvProtocolBase::directoryFields() const
{
    return {};
}

void KirvProtocolBase::handleCoreSignal(const QString &, const QList<KirvArg> &) { }

bool KirvProtocolBase::offersRegistration() const
{
    return false;
}

QList<KirvAccountAction> KirvProtocolBase::accountActions(KirvAccountConnection *) const
{
    return {};
}

void KirvProtocolBase::runAccountAction(const QString &, KirvAccountConnection *, QWidget *) { }

void KirvProtocolBase::publishPubdirInfo(KirvAccountConnection *account, const QList<KirvField> &fields)
{
    if (KirvConnection *connection = d->connectionForRequest(account))
        connection->publishDirectory(fields);
}

void KirvProtocolBase::fetchPubdirInfo(KirvAccountConnection *account)
{
    if (KirvConnection *connection = d->connectionForRequest(account))
        connection->fetchDirectory();
}

void KirvProtocolBase::deletePubdirInfo(KirvAccountConnection *account)
{
    if (KirvConnection *connection = d->connectionForRequest(account))
        connection->deleteDirectory();
}

KirvConnection *KirvProtocolBase::connectionOf(const KirvAccountConnection *account) const
{
    return d->connections.value(account);
}

void KirvProtocolBase::setConnectionOf(const KirvAccountConnection *account, KirvConnection *connection)
{
    if (connection)
        d->connections.insert(account, connection);
    else
        d->connections.remove(account);
}

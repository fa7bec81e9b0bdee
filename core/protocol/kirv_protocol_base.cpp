// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_protocol_base.h"

KirvProtocolBase::KirvProtocolBase(QObject *parent)
    : QObject(parent)
{
}

KirvProtocolBase::~KirvProtocolBase() = default;

QString KirvProtocolBase::normalizedLogin(const QString &login) const
{
    return login;
}

QString KirvProtocolBase::loginExample() const
{
    return QString();
}

QString KirvProtocolBase::loginProblem(const QString &) const
{
    return QString();
}

bool KirvProtocolBase::needsPassword(const QString &, const QList<KirvField> &) const
{
    return true;
}

QString KirvProtocolBase::settingsProblem(const QString &, const QList<KirvField> &) const
{
    return QString();
}

KirvPresence KirvProtocolBase::presenceWithId(const QString &id, const QString &description) const
{
    const QList<KirvPresence> offered = presences();
    if (offered.isEmpty())
        return KirvPresence();
    KirvPresence found = offered.first();
    for (const KirvPresence &presence : offered) {
        if (presence.getId() == id) {
            found = presence;
            break;
        }
    }
    return KirvPresence(found.getId(), found.getDisplay(), found.getIcon(), description);
}

QStringList KirvProtocolBase::fileSettings() const
{
    return {};
}

QList<KirvField> KirvProtocolBase::directoryFields() const
{
    return {};
}

QList<KirvField> KirvProtocolBase::settingsForTest(const QList<KirvField> &settings) const
{
    return settings;
}

QStringList KirvProtocolBase::components() const
{
    return {};
}

void KirvProtocolBase::handleCoreSignal(const QString &, const QList<KirvArg> &) { }

bool KirvProtocolBase::offersRegistration() const
{
    return false;
}

KirvServerRequest *KirvProtocolBase::createRegistration()
{
    return nullptr;
}

QList<KirvAccountAction> KirvProtocolBase::accountActions() const
{
    return {};
}

KirvServerRequest *KirvProtocolBase::createAccountRequest(const QString &, KirvConnection *)
{
    return nullptr;
}

void KirvProtocolBase::publishPubdirInfo(KirvAccountConnection *account, const QList<KirvField> &fields)
{
    Q_EMIT directoryRequested(account, PublishDirectory, fields);
}

void KirvProtocolBase::fetchPubdirInfo(KirvAccountConnection *account)
{
    Q_EMIT directoryRequested(account, FetchDirectory, {});
}

void KirvProtocolBase::deletePubdirInfo(KirvAccountConnection *account)
{
    Q_EMIT directoryRequested(account, DeleteDirectory, {});
}

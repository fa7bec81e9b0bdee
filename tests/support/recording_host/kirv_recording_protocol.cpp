// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/recording_host/kirv_recording_protocol.h"

#include "tests/support/recording_host/kirv_recording_host.h"

namespace {

// Every protocol of this host is a recording one.
const KirvRecordingProtocol *self(const KirvProtocol *protocol)
{
    return static_cast<const KirvRecordingProtocol *>(protocol);
}

void record(const KirvProtocol *protocol, const QString &operation, const QStringList &arguments)
{
    KirvRecordingHost::instance().record(self(protocol)->name, operation, arguments);
}

}

KirvRecordingProtocol::KirvRecordingProtocol(const QString &name)
    : name(name)
    , reportedName(name)
    , iconPath(QStringLiteral("/icons/") + name + QStringLiteral(".recorded"))
    , presences({ KirvPresence("online", "Available", "online.recorded"), KirvPresence("away", "Away", "away.recorded"),
                  KirvPresence("offline", "Offline", "offline.recorded") })
{
}

KirvPresence KirvRecordingProtocol::presence(const QString &id, const QString &description) const
{
    for (const KirvPresence &presence : presences) {
        if (presence.getId() == id)
            return KirvPresence(id, presence.getDisplay(), presence.getIcon(), description);
    }
    return KirvPresence(id, QString(), QString(), description);
}

void KirvRecordingProtocol::record(const QString &operation, const QStringList &arguments) const
{
    ::record(this, operation, arguments);
}

QString KirvRecordingProtocol::getName()
{
    record(QStringLiteral("getName"), {});
    return reportedName;
}

QString KirvRecordingProtocol::getDescription()
{
    record(QStringLiteral("getDescription"), {});
    return QString();
}

QString KirvRecordingProtocol::getIconPath(int variant)
{
    record(QStringLiteral("getIconPath"), { QString::number(variant) });
    return iconPath;
}

QStringList KirvRecordingProtocol::getConfigurations()
{
    record(QStringLiteral("getConfigurations"), {});
    return configurations;
}

QList<KirvField> KirvRecordingProtocol::getConfigurationFields(const QString &name)
{
    record(QStringLiteral("getConfigurationFields"), { kirvWritten(name) });
    return configurationFields.value(name);
}

void KirvRecordingProtocol::publishPubdirInfo(KirvAccountConnection *account, const QList<KirvField> &fields)
{
    record(QStringLiteral("publishPubdirInfo"), { kirvWritten(account), kirvWritten(fields) });
}

void KirvRecordingProtocol::fetchPubdirInfo(KirvAccountConnection *account)
{
    record(QStringLiteral("fetchPubdirInfo"), { kirvWritten(account) });
}

void KirvRecordingProtocol::deletePubdirInfo(KirvAccountConnection *account)
{
    record(QStringLiteral("deletePubdirInfo"), { kirvWritten(account) });
}

QString KirvRecordingProtocol::getLoginPattern()
{
    record(QStringLiteral("getLoginPattern"), {});
    return loginPattern;
}

QList<KirvPresence> KirvProtocol::getAllPresences() const
{
    record(this, QStringLiteral("getAllPresences"), {});
    return self(this)->presences;
}

QList<KirvField> KirvProtocol::getAccountSettings() const
{
    record(this, QStringLiteral("getAccountSettings"), {});
    return self(this)->accountSettings;
}

QList<KirvField> KirvProtocol::getPubdirAccountFields() const
{
    record(this, QStringLiteral("getPubdirAccountFields"), {});
    return self(this)->pubdirFields;
}

KirvPresence KirvProtocol::createPresenceWithId(const QString &id, const QString &description) const
{
    record(this, QStringLiteral("createPresenceWithId"), { kirvWritten(id), kirvWritten(description) });
    return self(this)->presence(id, description);
}

void KirvProtocol::accountPresenceChanged(KirvAccountConnection *account)
{
    record(this, QStringLiteral("accountPresenceChanged"), { kirvWritten(account) });
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RECORDING_PROTOCOL_H
#define KIRV_RECORDING_PROTOCOL_H

#include "host/kirv_protocol.h"

#include <QMap>

/// A protocol whose answers a test sets. It offers the presences "online", "away" and "offline" at first, no
/// configurations, no settings, no directory and a login pattern that takes everything.
class KirvRecordingProtocol : public KirvProtocol {
public:
    explicit KirvRecordingProtocol(const QString &name);

    QString getName() override;
    QString getDescription() override;
    QString getIconPath(int variant) override;
    QStringList getConfigurations() override;
    QList<KirvField> getConfigurationFields(const QString &name) override;
    void publishPubdirInfo(KirvAccountConnection *account, const QList<KirvField> &fields) override;
    void fetchPubdirInfo(KirvAccountConnection *account) override;
    void deletePubdirInfo(KirvAccountConnection *account) override;
    QString getLoginPattern() override;

    /// By this name the plug-in manager finds it, and the log calls it so.
    const QString name;
    /// What getName() gives: the same, unless a test tells the two apart.
    QString reportedName;
    QString iconPath;
    QStringList configurations;
    QMap<QString, QList<KirvField>> configurationFields;
    QString loginPattern = QStringLiteral(".*");
    QList<KirvPresence> presences;
    QList<KirvField> accountSettings;
    QList<KirvField> pubdirFields;

    /// The presence of that id with that description; of that id alone when the protocol does not offer it.
    KirvPresence presence(const QString &id, const QString &description) const;

private:
    void record(const QString &operation, const QStringList &arguments) const;
};

#endif

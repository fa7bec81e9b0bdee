// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_PROTOCOL_H
#define KIRV_IRC_PROTOCOL_H

#include "core/protocol/kirv_protocol_base.h"

/// Internet Relay Chat. What a login is and what the settings mean: see KirvIrcSettings. There is no directory.
class KirvIrcProtocol : public KirvProtocolBase {
    Q_OBJECT

public:
    explicit KirvIrcProtocol(QObject *parent = nullptr);

    QString getName() override;
    QString getDescription() override;
    QString getIconPath(int variant) override;
    QStringList getConfigurations() override;
    QList<KirvField> getConfigurationFields(const QString &name) override;
    QString getLoginPattern() override;

    QString normalizedLogin(const QString &login) const override;
    QString loginExample() const override;
    QString loginProblem(const QString &login) const override;
    bool needsPassword(const QString &login, const QList<KirvField> &settings) const override;
    QString settingsProblem(const QString &login, const QList<KirvField> &settings) const override;
    QList<KirvPresence> presences() const override;
    QList<KirvField> accountSettings() const override;
    QList<KirvField> settingsForTest(const QList<KirvField> &settings) const override;
    QStringList components() const override;
    QStringList fileSettings() const override;
    KirvConnection *createConnection() override;
};

#endif

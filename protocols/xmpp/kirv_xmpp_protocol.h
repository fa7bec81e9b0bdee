// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_PROTOCOL_H
#define KIRV_XMPP_PROTOCOL_H

#include "core/protocol/kirv_protocol_base.h"

/// XMPP. What a login is and what the settings mean: see KirvXmppSettings. The directory is the vCard.
class KirvXmppProtocol : public KirvProtocolBase {
    Q_OBJECT

public:
    explicit KirvXmppProtocol(QObject *parent = nullptr);

    QString getName() override;
    QString getDescription() override;
    QString getIconPath(int variant) override;
    QStringList getConfigurations() override;
    QList<KirvField> getConfigurationFields(const QString &name) override;
    QString getLoginPattern() override;

    QString normalizedLogin(const QString &login) const override;
    QString loginExample() const override;
    QString loginProblem(const QString &login) const override;
    QList<KirvPresence> presences() const override;
    QList<KirvField> accountSettings() const override;
    QStringList fileSettings() const override;
    QList<KirvField> directoryFields() const override;
    QList<KirvField> settingsForTest(const QList<KirvField> &settings) const override;
    QStringList components() const override;
    KirvConnection *createConnection() override;

    bool offersRegistration() const override;
    KirvServerRequest *createRegistration() override;
    QList<KirvAccountAction> accountActions() const override;
    KirvServerRequest *createAccountRequest(const QString &actionId, KirvConnection *connection) override;
};

#endif

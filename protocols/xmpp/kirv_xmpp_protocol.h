// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_PROTOCOL_H
#define KIRV_XMPP_PROTOCOL_H

#include "core/protocol/kirv_protocol_base.h"

#include <QPointer>

class KirvXmppRegistrationWindow;

/// XMPP. What a login is and what the settings mean: see KirvXmppSettings. The directory is the vCard.
class KirvXmppProtocol : public KirvProtocolBase {
    Q_OBJECT

public:
    using KirvProtocolBase::KirvProtocolBase;
    ~KirvXmppProtocol() override;

    QString getName() override;
    QString getDescription() override;
    QString getIconPath(int variant) override;
    QStringList getConfigurations() override;
    QList<KirvField> getConfigurationFields(const QString &name) override;
    QString getLoginPattern() override;

    QList<KirvPresence> presences() const override;
    QList<KirvField> accountSettings() const override;
    QList<KirvField> directoryFields() const override;
    KirvConnection *createConnection() override;

    /// Answers "register_account" without arguments or with the name of this protocol.
    void handleCoreSignal(const QString &name, const QList<KirvArg> &args) override;
    bool offersRegistration() const override;

    QList<KirvAccountAction> accountActions(KirvAccountConnection *account) const override;
    void runAccountAction(const QString &id, KirvAccountConnection *account, QWidget *window) override;

private:
    void openRegistration();

    QPointer<KirvXmppRegistrationWindow> registration;
};

#endif

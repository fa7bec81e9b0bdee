// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EXAMPLE_PROTOCOL_H
#define KIRV_EXAMPLE_PROTOCOL_H

#include "core/protocol/kirv_protocol_base.h"

/// A protocol without a network, to learn from: its server lives inside the connection and echoes the user's
/// status text.
class KirvExampleProtocol : public KirvProtocolBase {
    Q_OBJECT

public:
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
};

#endif

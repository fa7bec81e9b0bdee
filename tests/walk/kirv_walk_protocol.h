// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WALK_PROTOCOL_H
#define KIRV_WALK_PROTOCOL_H

#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/protocol/kirv_protocol_plugin.h"
#include "tests/support/fakes/kirv_fake_clock.h"

/// A connection whose server does nothing by itself: a test says when it answers, and how, by the names of the
/// invokable operations. Its time stands still until it is advanced.
class KirvWalkConnection : public KirvConnection {
    Q_OBJECT

public:
    explicit KirvWalkConnection(KirvAccountConnection *account);

    /// Answers whatever is asked at the moment.
    Q_INVOKABLE void serverAnswers();
    /// Refuses it: the password, or the directory request.
    Q_INVOKABLE void serverRefuses();
    /// Breaks the connection, or the attempt to connect.
    Q_INVOKABLE void serverGoes();
    Q_INVOKABLE void advance(int milliseconds);

    void fetchDirectory() override;
    void publishDirectory(const QList<KirvField> &fields) override;
    void deleteDirectory() override;

protected:
    void startLogin(const KirvPresence &presence) override;
    void startLogout() override;
    void abortConnection() override;
    void applyPresence(const KirvPresence &presence) override;

private:
    void ask(const QList<KirvField> &answer);

    int request = 0; ///< the directory request that waits for an answer; 0: none
    QList<KirvField> answerToRequest;
    QList<KirvField> entry;
};

class KirvWalkProtocol : public KirvProtocolBase {
    Q_OBJECT

public:
    QString getName() override;
    QString getIconPath(int variant) override;
    QStringList getConfigurations() override;
    QList<KirvField> getConfigurationFields(const QString &name) override;
    QString getLoginPattern() override;

    QList<KirvPresence> presences() const override;
    QList<KirvField> accountSettings() const override;
    QList<KirvField> directoryFields() const override;
    KirvConnection *createConnection(KirvAccountConnection *account) override;
    bool offersRegistration() const override;
};

class KirvWalkPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "kirv_walk_protocol.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *error) override;
};

#endif

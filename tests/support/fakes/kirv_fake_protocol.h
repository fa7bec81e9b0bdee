// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_PROTOCOL_H
#define KIRV_FAKE_PROTOCOL_H

#include "core/protocol/kirv_protocol_base.h"
#include "tests/support/fakes/kirv_fake_connection.h"

#include <functional>
#include <memory>

/// A protocol without a network. It offers what its members hold, which a test may change, and all its connections
/// meet one KirvFakeServer.
class KirvFakeProtocol : public KirvProtocolBase {
    Q_OBJECT

public:
    /// \a clock is that of its connections; not owned.
    explicit KirvFakeProtocol(const QString &name = QStringLiteral("Fake"), KirvClock &clock = KirvClock::system());

    QString getName() override { return name; }
    QString getDescription() override { return description; }
    QString getIconPath(int) override { return iconPath; }
    QStringList getConfigurations() override;
    QList<KirvField> getConfigurationFields(const QString &name) override;
    QString getLoginPattern() override { return loginPattern; }

    QString normalizedLogin(const QString &login) const override { return normalize ? normalize(login) : login; }
    QString loginExample() const override { return example; }
    QString loginProblem(const QString &login) const override { return findProblem ? findProblem(login) : QString(); }
    QString settingsProblem(const QString &, const QList<KirvField> &settings) const override
    {
        return findSettingsProblem ? findSettingsProblem(settings) : QString();
    }
    bool needsPassword(const QString &, const QList<KirvField> &settings) const override
    {
        return !worksWithoutPassword || !worksWithoutPassword(settings);
    }
    QList<KirvPresence> presences() const override { return offeredPresences; }
    QList<KirvField> accountSettings() const override { return settings; }
    QStringList fileSettings() const override { return files; }
    QList<KirvField> directoryFields() const override { return directory; }
    QList<KirvField> settingsForTest(const QList<KirvField> &given) const override
    {
        return changeForTest ? changeForTest(given) : given;
    }
    QStringList components() const override { return parts; }
    KirvConnection *createConnection() override;
    void handleCoreSignal(const QString &name, const QList<KirvArg> &args) override;
    bool offersRegistration() const override { return bool(makeRegistration); }
    KirvServerRequest *createRegistration() override;
    QList<KirvAccountAction> accountActions() const override { return actions; }
    KirvServerRequest *createAccountRequest(const QString &actionId, KirvConnection *connection) override;

    const QString name;
    QString description;
    QString iconPath;
    QString loginPattern; ///< everything at first
    QStringList configurations;
    QList<KirvField> configurationFields; ///< of each configuration
    QList<KirvPresence> offeredPresences; ///< "available", "away" and "offline" at first
    QList<KirvField> settings; ///< one of most kinds at first
    QStringList files; ///< the ids of those that are the path of a file; none at first
    QList<KirvField> directory; ///< "name" and "town" at first
    QList<KirvAccountAction> actions;
    bool givesConnections = true;
    std::function<void(KirvFakeConnection *)> onConnection; ///< of each that is made
    std::function<QList<KirvField>(const QList<KirvField> &)> changeForTest; ///< null: nothing is changed
    QStringList parts;
    QString example;
    std::function<QString(const QString &login)> normalize;
    std::function<QString(const QString &login)> findProblem; ///< null: nothing is wrong with any login
    /// Null: nothing is missing in any settings.
    std::function<QString(const QList<KirvField> &settings)> findSettingsProblem;
    std::function<bool(const QList<KirvField> &settings)> worksWithoutPassword; ///< null: none does
    std::function<KirvServerRequest *()> makeRegistration;
    std::function<KirvServerRequest *(const QString &actionId, KirvConnection *connection)> makeRequest;

    QStringList coreSignals; ///< received, each as its name and the number of its arguments
    std::function<void()> onCoreSignal;

    KirvClock &clock;
    const std::shared_ptr<KirvFakeServer> server;
};

#endif

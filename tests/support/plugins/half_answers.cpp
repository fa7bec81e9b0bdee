// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fixture_protocol.h"

/// Throws half of its answers away: log-ins with the presence "silent", log-outs and directory
/// requests get none.
class KirvForgetfulConnection : public KirvFixtureConnection {
public:
    using KirvFixtureConnection::KirvFixtureConnection;

    void fetchDirectory() override { beginDirectoryRequest(); }
    void publishDirectory(const QList<KirvField> &) override { beginDirectoryRequest(); }

protected:
    void startLogin(const KirvPresence &presence) override
    {
        if (presence.getId() != QLatin1String("silent"))
            loginSucceeded();
    }
    void startLogout() override { }
};

class KirvForgetfulProtocol : public KirvFixtureProtocol {
public:
    KirvForgetfulProtocol()
        : KirvFixtureProtocol(QStringLiteral("Forgetful"))
    {
    }

    KirvConnection *createConnection(KirvAccountConnection *account) override
    {
        return new KirvForgetfulConnection(account);
    }
};

/// The plug-in of the protocol that forgets.
class KirvHalfAnswersPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override { return new KirvForgetfulProtocol; }
};

#include "half_answers.moc"

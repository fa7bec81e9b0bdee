// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

#include <QFileInfo>
#include <QThread>
#include <QTimer>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

namespace {

/// Does what the environment variable KIRV_FIXTURE_MISDEED states when \a place is where it states it, as in
/// "crash in name"; nothing in the process that tests plug-ins if KIRV_FIXTURE_SPARED is its program's name.
void misbehave(const char *place)
{
    const QByteArray misdeed = qgetenv("KIRV_FIXTURE_MISDEED");
    const QString program = QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).fileName();
    if (!misdeed.endsWith(QByteArray(" in ") + place) || program == qEnvironmentVariable("KIRV_FIXTURE_SPARED"))
        return;
    if (misdeed.startsWith("crash"))
        ::kill(::getpid(), SIGSEGV);
    if (misdeed.startsWith("abort"))
        std::abort();
    if (misdeed.startsWith("exception"))
        throw std::runtime_error("no moon tonight");
    if (misdeed.startsWith("odd exception"))
        throw 42;
    if (misdeed.startsWith("exit"))
        std::exit(0);
    if (misdeed.startsWith("loop")) {
        volatile bool goesOn = true;
        while (goesOn) { }
    }
    if (misdeed.startsWith("work"))
        QThread::sleep(30);
}

struct Initializer {
    Initializer() { misbehave("initializer"); }
};
const Initializer initializer;

class Protocol : public KirvFakeProtocol {
public:
    Protocol()
        : KirvFakeProtocol(QStringLiteral("Misbehaving"))
    {
    }
    QString getName() override
    {
        misbehave("name");
        return KirvFakeProtocol::getName();
    }
    QString getIconPath(int variant) override
    {
        misbehave("icon");
        return KirvFakeProtocol::getIconPath(variant);
    }
    QList<KirvField> accountSettings() const override
    {
        misbehave("settings");
        return KirvFakeProtocol::accountSettings();
    }
    QList<KirvField> directoryFields() const override
    {
        misbehave("directory");
        return KirvFakeProtocol::directoryFields();
    }
    KirvConnection *createConnection() override
    {
        misbehave("connection");
        auto *connection = new KirvFakeConnection(server, clock);
        connection->onLogIn = [] { misbehave("log-in"); };
        connection->onAbort = [] { misbehave("end"); };
        QTimer::singleShot(0, connection, [] { misbehave("event"); });
        return connection;
    }
};

} // namespace

/// Behaves well unless KIRV_FIXTURE_MISDEED states a misdeed.
class KirvMisbehavingPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvMisbehavingPlugin() { misbehave("constructor"); }
    KirvProtocolBase *createProtocol(QString *) override
    {
        misbehave("protocol");
        return new Protocol;
    }
};

#include "misbehaving.moc"

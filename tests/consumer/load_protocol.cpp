// SPDX-License-Identifier: LGPL-2.1-or-later
// load_protocol FILE NAME: loads the plug-in FILE as the client does and logs in with the protocol NAME.
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"

#include <QCoreApplication>
#include <QTimer>
#include <cstdio>
#include <memory>

namespace {

int fail(const QString &reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail(QStringLiteral("usage: load_protocol FILE NAME"));

    KirvPluginLoader loader;
    if (!loader.load(arguments.at(1)))
        return fail(loader.plugins().first().error);
    KirvProtocolBase *protocol = loader.protocol(arguments.at(2));
    if (!protocol)
        return fail(QStringLiteral("the protocol has another name"));

    const std::unique_ptr<KirvConnection> connection(protocol->createConnection());
    QObject::connect(connection.get(), &KirvConnection::stateChanged, &application, [](KirvConnection::State state) {
        if (state == KirvConnection::Online)
            QCoreApplication::exit(0);
    });
    QTimer::singleShot(20000, &application, [] { QCoreApplication::exit(1); });
    connection->logIn({ QStringLiteral("ann"), QStringLiteral("secret"), protocol->accountSettings() },
                      protocol->presences().first());
    return QCoreApplication::exec();
}

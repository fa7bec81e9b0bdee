// SPDX-License-Identifier: LGPL-2.1-or-later
// kirv_plugin_tester FILE: loads the plug-in FILE and does with it what the client does when it loads it.
#include "core/plugins/kirv_plugin_tester.h"

#include "core/plugins/kirv_plugin_file.h"
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_protocol_base.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace {

void confine()
{
    ::setpgid(0, 0); // what a plug-in starts is stopped together with this process
#ifdef Q_OS_LINUX
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // the test ends with the client
#endif
    const struct rlimit none = { 0, 0 };
    ::setrlimit(RLIMIT_CORE, &none); // a crash is nothing that has to be looked into later
}

/// A plug-in that prints does not reach the channel on which this program replies.
int takeChannel()
{
    const int channel = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nowhere, STDOUT_FILENO);
    return channel;
}

bool reply(int channel, const char *text)
{
    return ::write(channel, text, std::strlen(text)) == ssize_t(std::strlen(text));
}

/// Reasons that the plug-in gives are not kept: the client gets them again when it loads the plug-in itself.
void test(const QString &path)
{
    KirvPluginFile file(path);
    const std::unique_ptr<KirvProtocolBase> protocol = file.createProtocol();
    if (!protocol)
        return;
    kirvCallPlugin([&] {
        protocol->accountSettings();
        protocol->directoryFields();
        const std::unique_ptr<KirvConnection> connection(protocol->createConnection());
        QCoreApplication::processEvents();
    });
}

} // namespace

int main(int argc, char *argv[])
{
    confine();
    const int channel = takeChannel();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc != 2 || !reply(channel, kirvTesterReady))
        return 1;
    test(QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath());
    reply(channel, kirvTesterSurvived);
    ::_exit(0); // what a plug-in does at the end of the process comes too late to be of use
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_command.h"
#include "client/kirv_application.h"
#include "client/kirv_client_options.h"
#include "client/kirv_client_start.h"
#include "client/kirv_memory_protection.h"
#include "client/kirv_profile_command.h"
#include "client/kirv_quit_signals.h"
#include "client/kirv_session_bus_guard.h"

#include <memory>

#include <QGuiApplication>

#include <cstdio>

namespace {

int runAccountsCommand(int argc, char *argv[], const QStringList &arguments)
{
    const auto run = [&arguments](QCoreApplication &application) {
        KirvApplication::prepare(application);
        return KirvAccountsCommand(KirvAccountsOptions::fromCommandLine(arguments)).run();
    };
    if (!KirvAccountsOptions::areForImport(arguments)) {
        QCoreApplication application(argc, argv);
        return run(application);
    }
    // An import may load plug-ins, and these may use what needs an application with a GUI; they are tested with the
    // same platform before they are loaded for the first time. No display is needed for it.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    // Qt warns that there is no folder for what runs, which is nothing to worry about.
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type != QtWarningMsg)
                std::fprintf(stderr, "kirv: %s\n", qPrintable(text));
        });
    QGuiApplication application(count, argv);
    qInstallMessageHandler(before);
    return run(application);
}

/// Does what needs no window. True when that was all, with the exit status in \a status.
bool runWithoutWindow(int argc, char *argv[], int *status)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    if (KirvAccountsOptions::areMeant(arguments)) {
        *status = runAccountsCommand(argc, argv, arguments);
        return true;
    }
    const bool isForDisplay = KirvApplication::expectsDisplay(arguments);
    if (isForDisplay && !KirvClientOptions::isWithoutWindow(arguments))
        return false;
    QCoreApplication application(argc, argv);
    KirvApplication::prepare(application);
    const KirvClientOptions options = KirvClientOptions::fromCommandLine(arguments);
    KirvProfileCommand command(options);
    if (options.command != KirvClientOptions::Start) {
        *status = command.run();
        return true;
    }
    // The windows, for which Qt ends a program that finds no display, come after what can be said without them.
    *status = isForDisplay ? KirvProfileCommand::Success : command.checkBeforeStart();
    return *status != KirvProfileCommand::Success;
}

} // namespace

int main(int argc, char *argv[])
{
    kirvProtectMemory(); // where it is refused, dumps are what the system allows
    int status = 0;
    if (runWithoutWindow(argc, argv, &status))
        return status;
    auto busGuard = std::make_unique<KirvSessionBusGuard>(argc, argv);
    KirvApplication application(argc, argv);
    busGuard.reset();
    const KirvClientOptions options = KirvClientOptions::fromCommandLine(KirvApplication::arguments());
    KirvQuitSignals quitSignals;
    // Also before the main event loop runs, while the window about a damaged profile is open.
    QObject::connect(&quitSignals, &KirvQuitSignals::quitRequested, &application, [] { KirvApplication::exit(); });
    return kirvRunClient(options, KirvApplication::hasDisplay());
}

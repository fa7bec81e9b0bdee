// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_client_options.h"
#include "client/kirv_quit_signals.h"
#include "client/kirv_settings_window.h"
#include "tools/demo/kirv_demo.h"

/// Usage: kirv_demo. The client on a throw-away profile, with private servers on this computer that end with it.
int main(int argc, char *argv[])
{
    KirvApplication application(argc, argv);
    KirvClientOptions options = KirvClientOptions::fromCommandLine(KirvApplication::arguments());
    KirvQuitSignals quitSignals;
    QObject::connect(&quitSignals, &KirvQuitSignals::quitRequested, &application, &QApplication::quit);

    KirvDemo demo;
    if (!demo.start()) {
        KirvApplication::reportFatal(demo.errorString());
        return 1;
    }
    options.profileFolder = demo.profileFolder();
    options.usesKeyring = false; // nothing of the demo stays

    KirvClient client(options);
    if (!client.start()) {
        KirvApplication::reportFatal(client.errorString());
        return 1;
    }
    client.window()->setBanner(demo.instructions());
    client.window()->show();
    return KirvApplication::exec();
}

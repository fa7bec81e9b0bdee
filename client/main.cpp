// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_client_options.h"
#include "client/kirv_demo.h"
#include "client/kirv_quit_signals.h"
#include "client/kirv_settings_window.h"

int main(int argc, char *argv[])
{
    KirvApplication application(argc, argv);
    KirvClientOptions options = KirvClientOptions::fromCommandLine(KirvApplication::arguments());
    KirvQuitSignals quitSignals;
    QObject::connect(&quitSignals, &KirvQuitSignals::quitRequested, &application, &QApplication::quit);

    std::unique_ptr<KirvDemo> demo;
    if (options.demo) {
        demo = std::make_unique<KirvDemo>();
        if (!demo->start()) {
            KirvApplication::reportFatal(demo->errorString());
            return 1;
        }
        options.profileFolder = demo->profileFolder();
    }

    KirvClient client(options);
    if (!client.start()) {
        KirvApplication::reportFatal(client.errorString());
        return 1;
    }
    if (demo)
        client.window()->setBanner(demo->instructions());
    client.window()->show();
    return KirvApplication::exec();
}

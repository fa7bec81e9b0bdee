// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_client_options.h"
#include "client/kirv_quit_signals.h"
#include "client/kirv_settings_window.h"

int main(int argc, char *argv[])
{
    KirvApplication application(argc, argv);
    const KirvClientOptions options = KirvClientOptions::fromCommandLine(KirvApplication::arguments());
    KirvQuitSignals quitSignals;
    QObject::connect(&quitSignals, &KirvQuitSignals::quitRequested, &application, &QApplication::quit);

    KirvClient client(options);
    if (!client.start()) {
        KirvApplication::reportFatal(client.errorString());
        return 1;
    }
    client.window()->show();
    return KirvApplication::exec();
}

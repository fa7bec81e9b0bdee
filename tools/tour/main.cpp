// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_application.h"
#include "client/kirv_quit_signals.h"
#include "tools/demo/kirv_demo.h"
#include "tools/tour/kirv_tour.h"

#include <QDir>
#include <QLocale>

#include <cstdio>

/// Usage: kirv_tour FOLDER. Pictures of each step are left in FOLDER; exits with 0 only when all worked.
int main(int argc, char *argv[])
{
    QLocale::setDefault(QLocale::c()); // the tour reads the English texts
    KirvApplication application(argc, argv);
    KirvApplication::setQuitOnLastWindowClosed(false);
    const QString folder = KirvApplication::arguments().value(1, QStringLiteral("."));
    if (!QDir().mkpath(folder)) {
        KirvApplication::reportFatal(QStringLiteral("The folder %1 cannot be made.").arg(folder));
        return 1;
    }
    KirvQuitSignals quitSignals;
    QObject::connect(&quitSignals, &KirvQuitSignals::quitRequested, &application, &QApplication::quit);

    KirvDemo demo;
    if (!demo.start()) {
        KirvApplication::reportFatal(demo.errorString());
        return 1;
    }
    const bool worked = KirvTour(demo, folder).run();
    std::printf(worked ? "All steps worked.\n" : "A step of the tour did not work.\n");
    return worked ? 0 : 1;
}

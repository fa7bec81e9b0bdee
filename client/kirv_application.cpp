// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_application.h"

#include "client/kirv_descriptor_limit.h"
#include "client/kirv_translations.h"
#include "core/protocol/kirv_plugin_call.h"

#include <QIcon>
#include <QMessageBox>

#include <cstdio>

void KirvApplication::initializeResources()
{
    Q_INIT_RESOURCE(kirv_client);
}

KirvApplication::KirvApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
    initializeResources();
    prepare(*this);
    // Qt 5 would make each window fit for OpenGL, of which nothing is shown, and load the driver for it at the first.
    setAttribute(Qt::AA_ForceRasterWidgets);
    kirvRaiseDescriptorLimit(); // where it is refused, accounts beyond it say that they cannot connect
    setWindowIcon(QIcon(QStringLiteral(":/kirv/client/icons/kirv.svg")));
}

void KirvApplication::prepare(QCoreApplication &application)
{
    setApplicationName(QStringLiteral("kirv"));
    setApplicationVersion(QStringLiteral(KIRV_VERSION));
    (new KirvTranslations(application))->use(QString());
}

bool KirvApplication::hasDisplay()
{
    return platformName() != QLatin1String("offscreen") && platformName() != QLatin1String("minimal");
}

bool KirvApplication::expectsDisplay(const QStringList &arguments)
{
    for (const char *variable : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" }) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return arguments.contains(QStringLiteral("-platform")) || arguments.contains(QStringLiteral("--platform"));
}

bool KirvApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        QString problem;
        kirvCallPlugin([] { throw; }, &problem);
        Q_EMIT exceptionCaught(problem);
        return true;
    }
}

void KirvApplication::reportFatal(const QString &text)
{
    std::fprintf(stderr, "kirv: %s\n", qPrintable(text));
    if (!hasDisplay())
        return; // there is no user who could close the box
    QMessageBox box(QMessageBox::Critical, tr("Kirv"), text, QMessageBox::Close);
    box.setObjectName(QStringLiteral("FatalProblem"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

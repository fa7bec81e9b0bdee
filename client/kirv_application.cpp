// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_application.h"

#include "client/kirv_translations.h"

#include <QIcon>
#include <QMessageBox>

#include <cstdio>

static void initializeResources()
{
    Q_INIT_RESOURCE(kirv_client); // a static library's resources are left out unless initialized
}

KirvApplication::KirvApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
    initializeResources();
    setApplicationName(QStringLiteral("kirv"));
    setApplicationVersion(QStringLiteral(KIRV_VERSION));
    setWindowIcon(QIcon(QStringLiteral(":/kirv/client/icons/kirv.svg")));
    kirvInstallTranslations(*this);
}

void KirvApplication::reportFatal(const QString &text)
{
    std::fprintf(stderr, "kirv: %s\n", qPrintable(text));
    if (platformName() == QLatin1String("offscreen"))
        return; // there is no user who could close the box
    QMessageBox box(QMessageBox::Critical, tr("Kirv"), text, QMessageBox::Close);
    box.setObjectName(QStringLiteral("FatalProblem"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_translations.h"

#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

namespace {
QString qtTranslationFolder()
{
#if QT_VERSION >= 0x060000
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

void install(QCoreApplication &application, const QLocale &locale, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(&application);
    if (translator->load(locale, name, QStringLiteral("_"), folder))
        application.installTranslator(translator);
    else
        delete translator;
}
} // namespace

QString kirvTranslationFolder()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../share/kirv/translations"));
}

void kirvInstallTranslations(QCoreApplication &application, const QLocale &locale, const QString &folder)
{
    install(application, locale, QStringLiteral("qtbase"), qtTranslationFolder());
    install(application, locale, QStringLiteral("kirv"), folder);
}

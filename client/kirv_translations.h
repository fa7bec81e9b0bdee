// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TRANSLATIONS_H
#define KIRV_TRANSLATIONS_H

#include <QCoreApplication>
#include <QLocale>

/// Where the texts that came with the program are.
QString kirvTranslationFolder();
/// Installs the texts of the program, from \a folder, and of Qt in the language of \a locale, as far as there
/// are any; English otherwise. The application owns the translators.
void kirvInstallTranslations(QCoreApplication &application, const QLocale &locale = QLocale(),
                             const QString &folder = kirvTranslationFolder());

#endif

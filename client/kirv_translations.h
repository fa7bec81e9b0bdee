// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TRANSLATIONS_H
#define KIRV_TRANSLATIONS_H

#include <QCoreApplication>
#include <QLocale>

/// Installs the texts of the program and of Qt in the language of \a locale, as far as there are any; English
/// otherwise. The application owns the translators.
void kirvInstallTranslations(QCoreApplication &application, const QLocale &locale = QLocale());

#endif

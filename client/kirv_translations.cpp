// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_translations.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>

namespace {

KirvTranslations *living = nullptr;

QString english()
{
    return QStringLiteral("en");
}

QString prefix()
{
    return QStringLiteral("kirv_");
}

/// Of the texts that come with the library of the page.
QString libraryPrefix()
{
    return QStringLiteral("kirv_gui_accounts_tab_");
}

bool isRightToLeft()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance())
        && QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

} // namespace

/// Those beside the program come first, so that a build that is not installed uses its own.
QString kirvTranslationFolder()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString own = program.filePath(QStringLiteral("../share/kirv/translations"));
    return QFileInfo(own).isDir() ? own : program.filePath(QStringLiteral(KIRV_TRANSLATIONS_FROM_BIN));
}

QString kirvQtTranslationFolder()
{
#if QT_VERSION >= 0x060000
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

KirvTranslations::KirvTranslations(QCoreApplication &application, const QString &folder)
    : QObject(&application)
    , application(application)
    , folder(folder)
    , systemLocale(QLocale())
    , isMirrored(isRightToLeft())
{
    living = this;
}

KirvTranslations::~KirvTranslations()
{
    if (living == this)
        living = nullptr;
}

KirvTranslations *KirvTranslations::instance()
{
    return living;
}

QStringList KirvTranslations::languages() const
{
    QStringList found { english() };
    const QStringList files = QDir(folder).entryList({ prefix() + QStringLiteral("*.qm") }, QDir::Files);
    for (const QString &file : files) {
        const QString language = file.mid(prefix().size()).chopped(3);
        if (file.startsWith(libraryPrefix()))
            continue;
        if (language != english() && QLocale(language).language() != QLocale::C)
            found << language;
    }
    std::sort(found.begin(), found.end(), [](const QString &one, const QString &other) {
        return ownName(one).localeAwareCompare(ownName(other)) < 0;
    });
    return found;
}

QString KirvTranslations::ownName(const QString &language)
{
    const QLocale locale(language);
    QString name = locale.nativeLanguageName();
    if (locale.language() == QLocale::English)
        name = QStringLiteral("English"); // rather than "American English"
    else if (locale.language() == QLocale::Spanish)
        name = QStringLiteral("español"); // rather than "español de España"
    if (!name.isEmpty())
        name.replace(0, 1, locale.toUpper(name.at(0)));
    if (!language.contains(QLatin1Char('_')))
        return name;
    return QStringLiteral("%1 (%2)").arg(name, locale.nativeCountryName());
}

bool KirvTranslations::isRead(const QString &language)
{
    return language == english(); // the texts were written in it; translations/README.md says the same of each
}

void KirvTranslations::use(const QString &language)
{
    wanted = language;
    const bool isChosen = languages().contains(language);
    current = isChosen ? language : languageOf(systemLocale);
    const QLocale locale(current);
    // Who chooses the language of the system keeps its formats.
    QLocale::setDefault(isChosen && locale.language() != systemLocale.language() ? locale : systemLocale);
    translators.clear();
    loadAll(english());
    if (current != english())
        loadAll(current);
    // After the translators: Qt chooses the direction by its own texts, which may not be installed.
    if (qobject_cast<QGuiApplication *>(&application)) {
        const bool isMirroredNow = (locale.textDirection() == Qt::RightToLeft) != isMirrored;
        QGuiApplication::setLayoutDirection(isMirroredNow ? Qt::RightToLeft : Qt::LeftToRight);
    }
}

/// The first language that \a locale names and that there is.
QString KirvTranslations::languageOf(const QLocale &locale) const
{
    const QStringList known = languages();
    const QStringList wanted = locale.uiLanguages();
    for (QString name : wanted) {
        name.replace(QLatin1Char('-'), QLatin1Char('_'));
        const QString family = name.section(QLatin1Char('_'), 0, 0);
        for (const QString &language : { name, family }) {
            if (known.contains(language))
                return language;
        }
        // "pt" stands for "pt_BR" in some systems
        if (name == family && known.contains(QLocale(family).name()))
            return QLocale(family).name();
    }
    return english();
}

void KirvTranslations::loadAll(const QString &language)
{
    load(QStringLiteral("qtbase_") + language, kirvQtTranslationFolder());
    load(libraryPrefix() + language, folder);
    load(prefix() + language, folder);
}

void KirvTranslations::load(const QString &file, const QString &inFolder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file, inFolder))
        return;
    application.installTranslator(translator.get());
    translators.push_back(std::move(translator));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TRANSLATIONS_H
#define KIRV_TRANSLATIONS_H

#include <QCoreApplication>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

class QTranslator;

/// Where the texts that came with the program are.
QString kirvTranslationFolder();
/// Where Qt's own are, which packages of their own install.
QString kirvQtTranslationFolder();

/// The languages of the program and the one that is used. The texts of the program and of Qt, the formats of numbers
/// and dates and the direction of the layout follow it. Made after the application, and one at a time.
///
/// Below every language lies English, which has texts of its own: plural forms, and what the sources misspell.
class KirvTranslations : public QObject {
    Q_OBJECT

public:
    /// Uses no language yet; \a folder holds the texts. \a application outlives this.
    explicit KirvTranslations(QCoreApplication &application, const QString &folder = kirvTranslationFolder());
    /// Takes the texts away; the locale and the direction stay.
    ~KirvTranslations() override;

    /// The one that lives; null: there is none.
    static KirvTranslations *instance();

    /// The languages that there are, as "pt_BR", sorted by their own names; English is always one of them.
    QStringList languages() const;
    /// As "português (Brasil)".
    static QString ownName(const QString &language);
    /// Whether a native speaker has read the texts of \a language.
    static bool isRead(const QString &language);

    /// Uses \a language, which is one of languages(); otherwise, and when it is empty, that of the system.
    void use(const QString &language);
    /// What use() was called with last.
    QString chosen() const { return wanted; }
    /// What is used when the system chooses, one of languages().
    QString languageOfSystem() const { return languageOf(systemLocale); }
    /// What is used, one of languages().
    QString inUse() const { return current; }

private:
    QString languageOf(const QLocale &locale) const;
    void loadAll(const QString &language);
    void load(const QString &file, const QString &inFolder);

    QCoreApplication &application;
    const QString folder;
    const QLocale systemLocale; ///< what the program was started with
    const bool isMirrored; ///< the program was started with -reverse
    std::vector<std::unique_ptr<QTranslator>> translators; ///< the last one is looked into first
    QString wanted;
    QString current;
};

#endif

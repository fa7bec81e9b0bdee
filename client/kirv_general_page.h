// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_GENERAL_PAGE_H
#define KIRV_GENERAL_PAGE_H

#include <QWidget>

class KirvAccountCollection;
class KirvTranslations;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QTreeWidget;

/// The page "General" of the settings window: the language, who keeps the passwords, and where the profile is.
class KirvGeneralPage : public QWidget {
    Q_OBJECT

public:
    /// \a accounts and \a translations are not owned and outlive the page; without \a translations the language cannot
    /// be chosen. \a profileFolder is the folder of the profile.
    KirvGeneralPage(KirvAccountCollection &accounts, const KirvTranslations *translations, const QString &profileFolder,
                    QWidget *parent = nullptr);

    /// Shows \a language as the chosen one, empty: as the system, and whether it is used only later.
    void showLanguage(const QString &language, bool isPending);
    /// Gives the keyboard to the list of languages.
    void focusLanguage();

Q_SIGNALS:
    /// The user has chosen \a language; empty: as the system.
    void languageChosen(const QString &language);
    void exportRequested();
    void importRequested();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QGroupBox *createLanguage(const KirvTranslations *translations);
    void fillLanguages(const KirvTranslations &translations);
    void addLanguage(const QString &name, const QString &language, bool isRead);
    QGroupBox *createKeyring();
    QGroupBox *createProfile();
    QWidget *createMoving(QWidget *parent);
    void refreshMoving();
    void refreshKeyring();
    void refreshCopies();
    QLabel *createText(const char *name, QWidget *parent);

    KirvAccountCollection &accounts;
    const QString profileFolder;
    QComboBox *languageBox = nullptr;
    QLabel *languageHint = nullptr;
    QLabel *keyringText = nullptr;
    QPushButton *unlockButton = nullptr;
    QLabel *copiesLabel = nullptr;
    QPushButton *exportButton = nullptr;
    QTreeWidget *copyList = nullptr;
};

#endif

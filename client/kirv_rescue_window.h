// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RESCUE_WINDOW_H
#define KIRV_RESCUE_WINDOW_H

#include "client/kirv_damaged_profile.h"

#include <QCommandLinkButton>
#include <QDialog>
#include <QStyle>

class KirvWrappedText;
class QLabel;
class QPushButton;
class QTreeWidget;

/// Says what is wrong with a damaged profile and offers what can be done about it. It stays open, with the reason,
/// when that fails; when it worked, it says what was done, and the other choices can still be taken instead.
class KirvRescueWindow : public QDialog {
    Q_OBJECT

public:
    /// \a problem says what is wrong with the profile in \a folder.
    KirvRescueWindow(const QString &folder, const QString &problem, QWidget *parent = nullptr);

    /// Whether one of the choices has worked. The profile can be opened then, also when the user quits.
    bool isRepaired() const { return repaired; }

private:
    void createTexts(const QString &problem);
    void createCopies();
    void createChoices();
    QCommandLinkButton *createChoice(const QString &name, const QString &title, const QString &description);
    void createButtons();
    void arrange();
    void chooseDefault();

    template <typename Choice>
    void take(Choice choice);
    void restoreSelected();
    void showOutcome(bool isDone);
    void prepareContinuing();
    void fitToContents();
    void showIcon(QStyle::StandardPixmap icon);

    KirvDamagedProfile profile;
    const QList<KirvProfileCopy> copies;
    bool repaired = false;

    QLabel *icon;
    KirvWrappedText *text;
    KirvWrappedText *outcome;
    QLabel *copiesLabel;
    QTreeWidget *list;
    QCommandLinkButton *restoreButton = nullptr;
    QCommandLinkButton *recoverButton = nullptr;
    QCommandLinkButton *freshButton = nullptr;
    QPushButton *continueButton = nullptr;
    QPushButton *quitButton = nullptr;
};

#endif

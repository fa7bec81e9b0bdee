// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WALK_USER_H
#define KIRV_WALK_USER_H

#include "tests/walk/kirv_walk.h"

#include <QObject>
#include <QPointer>

#include <vector>

class QMenu;

/// What a user does in the windows of the client.
class KirvWalkUser : public QObject {
    Q_OBJECT

public:
    explicit KirvWalkUser(KirvWalk &walk);

    std::vector<KirvWalkStep> steps();

private:
    void add();
    void fillAndFinishAddWindow();
    void dismissInformation();
    void selectRow();
    void editSelected();
    void activateRow();
    void changeOpenEditWindow();
    void finishOpenEditWindow();
    void save(QPointer<QDialog> window);
    void useDirectory();
    void editDirectory();
    void runAccountAction();
    void trigger(QMenu *menu);
    void pickAvatar();
    void removeSelected();
    void toggleRow();
    void answerQuestion();
    void chooseMainAccount();
    void registerAccount();
    void answerOtherWindow();
    void useAssistant();
    void goThroughAssistant();
    void hideOrShow();
    void switchPage();
    void useStrip();
    void useMenu();
    void sortOtherwise();
    void restart();

    KirvWalk &walk;
};

#endif

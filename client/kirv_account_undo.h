// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_UNDO_H
#define KIRV_ACCOUNT_UNDO_H

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

class KirvAccountCollection;
class KirvAccountHistory;
class KirvMessageBar;
class QWidget;

/// Offers to undo what was removed, disabled and imported: in the message bar as long as the message is shown, and by
/// Ctrl+Z in the window. The message of a step that cannot be undone before a later one is not shown until then, and
/// neither is that of an earlier step with the same words. A field in which text is typed keeps the key for itself.
class KirvAccountUndo : public QObject {
    Q_OBJECT

public:
    /// \a accounts, \a history and \a messages are not owned and outlive this, which belongs to \a window.
    KirvAccountUndo(KirvAccountCollection &accounts, KirvAccountHistory &history, KirvMessageBar &messages,
                    QWidget *window);

    /// The command that undoes the latest step that can be undone, with a mnemonic; empty when there is none.
    QString command() const;
    /// Says why when none can be undone.
    void undoLatest();
    void undo(int step);

    KirvAccountHistory &history() const { return past; }

    /// The step that disabled all accounts; 0: none. Kept here, as the pages are created anew for another language.
    int allDisabled() const { return stepOfAll; }
    void setAllDisabled(int step) { stepOfAll = step; }

private:
    void stepAdded(int step);
    void show(int step);
    void updateMessage(int step);
    void replaceEarlier(int step, const QString &text);
    bool isReplaced(int step) const;
    void holdBack();
    void showHeldBack();
    void withdraw(int step);
    QString messageOf(int step) const;
    bool enableAgain(int step);

    KirvAccountCollection &accounts;
    KirvAccountHistory &past;
    KirvMessageBar &messages;
    QHash<int, QString> shown; ///< the message of each step
    QSet<int> heldBack; ///< steps whose message is not shown until a later step was undone
    int stepOfAll = 0;
};

#endif

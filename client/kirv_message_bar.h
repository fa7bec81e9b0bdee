// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MESSAGE_BAR_H
#define KIRV_MESSAGE_BAR_H

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

class KirvFocusReturn;
class QScrollArea;
class QVBoxLayout;

/// What the user should know, shown inside the window without stopping the user: one paragraph of plain text each, with
/// a button that takes it away. Hidden while there is none.
///
/// The bar floats over its window: nothing there moves when messages come and go. It stands at the bottom of a place,
/// or at the top when the pointer is where it would appear or grow, and grows away from that edge, up to a third of the
/// place, but to no less than two lines; then it is scrolled. While the pointer is over it nothing in it moves: what
/// was taken away leaves an empty place until the pointer leaves. When a message that has the focus goes, the focus
/// returns to where it was.
class KirvMessageBar : public QFrame {
    Q_OBJECT

public:
    enum Kind { Problem, Information };

    explicit KirvMessageBar(QWidget *parent = nullptr);

    /// Stands over \a place, in a list over its rows without their check boxes, while that is visible, rather than over
    /// the places of earlier calls. It is in the bar's window and not owned.
    void floatOver(QWidget *place);
    /// Shows \a message, in which nothing is interpreted and nothing turns the text around. The same text is not shown
    /// twice; of many, the latest stay.
    void showMessage(const QString &message);
    /// The same with a button: \a command is its text, \a action is what it does.
    void showMessage(const QString &message, const QString &command, const std::function<void()> &action,
                     Kind kind = Problem);
    /// Takes \a message away, if it is shown.
    void removeMessage(const QString &message);
    /// The texts shown now, oldest first.
    QStringList messages() const { return texts; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;

private:
    QWidget *createRow(const QString &text, QWidget *button, Kind kind);
    void insertRow(QWidget *row);
    void removeRow(int index);
    void vacate(QWidget *row);
    void closeGaps();
    void settle();
    bool isPointerOver() const;
    QWidget *place() const;
    QRect room() const;
    QRect areaAt(bool isTop) const;
    int scrollBarWidth() const;
    int contentHeight(int width) const;
    bool wouldCoverPointer(bool isTop) const;
    void chooseEdge();
    void arrange();
    void showNewest();

    QScrollArea *area;
    QWidget *content;
    QVBoxLayout *layout;
    KirvFocusReturn *focusReturn;
    QList<QWidget *> rows; ///< one row per text, in the same order
    QList<QWidget *> gaps; ///< rows that were taken away under the pointer, empty
    QTimer secondClick; ///< runs while nothing but gaps is shown
    QStringList texts;
    QList<QPointer<QWidget>> places; ///< the latest first
    bool isAtTop = false;
    bool isNewestDue = false; ///< the newest message is to be scrolled to
};

#endif

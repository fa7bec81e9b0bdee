// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MESSAGE_BAR_H
#define KIRV_MESSAGE_BAR_H

#include <QFrame>
#include <QString>
#include <QStringList>

#include <functional>

class QVBoxLayout;

/// Problems shown inside the window, above its pages, without stopping the user: one paragraph of plain text
/// each, with a button that takes it away. Hidden while there is none.
class KirvMessageBar : public QFrame {
    Q_OBJECT

public:
    explicit KirvMessageBar(QWidget *parent = nullptr);

    /// Shows \a message, in which nothing is interpreted and nothing turns the text around. The same text is not shown
    /// twice; of many, the latest stay.
    void showMessage(const QString &message);
    /// The same with a button: \a command is its text, \a action is what it does.
    void showMessage(const QString &message, const QString &command, const std::function<void()> &action);
    /// Takes \a message away, if it is shown.
    void removeMessage(const QString &message);
    /// The texts shown now, oldest first.
    QStringList messages() const { return texts; }

private:
    QWidget *createRow(const QString &text, QWidget *button);
    void removeRow(int index);

    QVBoxLayout *rows; ///< one row per text, in the same order
    QStringList texts;
};

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WINDOW_DRIVER_H
#define KIRV_WINDOW_DRIVER_H

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QComboBox;
class QLineEdit;
class QWidget;

/// A list of steps through real windows, done one after the other by mouse and keyboard.
///
/// Each step waits until something holds, prints it with its outcome, keeps a picture, and then does what leads
/// to the next one. Steps go on inside modal dialogs and open menus.
class KirvWindowDriver : public QObject {
    Q_OBJECT

public:
    /// Pictures are put into \a folder.
    explicit KirvWindowDriver(const QString &folder, QObject *parent = nullptr);

    /// Adds a step: waits until \a holds, says \a text and does \a then.
    void expect(const QString &text, std::function<bool()> holds, std::function<void()> then = {});
    /// The same, but not before all dialogs and menus of earlier steps have returned.
    void expectOnTop(const QString &text, std::function<bool()> holds, std::function<void()> then = {});

    /// Does all steps in the application's event loop; true when all of them worked in time.
    bool run();

    // What the user does. The widgets must be visible.
    static void click(QWidget *widget);
    static void doubleClick(QWidget *widget, const QPoint &position);
    static void pressKey(QWidget *widget, Qt::Key key);
    /// Replaces the text.
    static void type(QLineEdit *edit, const QString &text);
    /// Goes down to the choice of that text; to the first one when there is none.
    static void choose(QComboBox *box, const QString &text);
    /// Opens the button's menu and returns when the menu, and what it leads to, has closed.
    static void openMenu(QWidget *button);
    /// Clicks the command of that text in the menu that is open.
    static void clickInMenu(const QString &text);
    static bool menuOffers(const QString &text);

    /// The visible window of that object name; null when there is none.
    static QWidget *window(const QString &name);

private:
    struct Step {
        QString text;
        std::function<bool()> holds;
        std::function<void()> then;
        bool onTop;
    };

    void tick();
    void end(bool success);
    void takePicture(const QString &text);

    const QString folder;
    std::vector<Step> steps;
    size_t current = 0;
    int depth = 0; ///< how many steps are still doing what they do
    bool succeeded = false;
    bool ended = false;
    QElapsedTimer waiting;
    QElapsedTimer total;
};

#endif

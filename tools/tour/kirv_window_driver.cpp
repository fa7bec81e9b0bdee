// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/tour/kirv_window_driver.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <cstdio>

namespace {
const int pollMilliseconds = 20;
const int activationMilliseconds = 2000;
const qint64 stepMilliseconds = 20000;
const qint64 totalMilliseconds = 180000;

QAction *actionInMenu(const QString &text)
{
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    const QList<QAction *> actions = menu ? menu->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

/// While it lives, something is being typed: no step begins before it is complete, although events are handled
/// between the keys.
class Typing {
public:
    Typing() { ++depth; }
    ~Typing() { --depth; }
    static bool isGoingOn() { return depth > 0; }

private:
    static int depth;
};

int Typing::depth = 0;

QWindow *prepare(QWidget *widget)
{
    QWindow *window = widget->window()->windowHandle();
    widget->window()->activateWindow();
    // Keys, and shortcuts above all, go to the active window only.
    const Typing typing;
    if (!QTest::qWaitForWindowActive(window, activationMilliseconds))
        std::printf("        (the window %s is not active)\n", qPrintable(widget->window()->objectName()));
    return window;
}
/// A visible window that belongs to \a widget; null when there is none.
QWidget *windowAbove(const QWidget *widget)
{
    const QList<QDialog *> dialogs = widget->findChildren<QDialog *>();
    for (QDialog *dialog : dialogs) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}
} // namespace

KirvWindowDriver::KirvWindowDriver(const QString &folder, QObject *parent)
    : QObject(parent)
    , folder(folder)
{
}

void KirvWindowDriver::expect(const QString &text, std::function<bool()> holds, std::function<void()> then)
{
    steps.push_back({ text, std::move(holds), std::move(then), false });
}

void KirvWindowDriver::expectOnTop(const QString &text, std::function<bool()> holds, std::function<void()> then)
{
    steps.push_back({ text, std::move(holds), std::move(then), true });
}

bool KirvWindowDriver::run()
{
    total.start();
    waiting.start();
    QTimer::singleShot(0, this, &KirvWindowDriver::tick);
    QApplication::exec();
    return succeeded;
}

void KirvWindowDriver::tick()
{
    if (ended)
        return;
    if (current == steps.size()) {
        end(true);
        return;
    }
    const Step &step = steps[current];
    const bool mayGo = !Typing::isGoingOn() && (!step.onTop || depth == 0);
    if (!mayGo || !step.holds()) {
        if (waiting.elapsed() > stepMilliseconds || total.elapsed() > totalMilliseconds) {
            std::printf("FAILED  %s\n", qPrintable(step.text));
            takePicture(QStringLiteral("failed"));
            end(false);
        } else {
            QTimer::singleShot(pollMilliseconds, this, &KirvWindowDriver::tick);
        }
        return;
    }

    std::printf("ok      %s\n", qPrintable(step.text));
    std::fflush(stdout);
    takePicture(step.text);
    ++current;
    waiting.restart();
    // What comes next may be a dialog or a menu that does not return: the next step is under way before it.
    QTimer::singleShot(pollMilliseconds, this, &KirvWindowDriver::tick);
    ++depth;
    if (step.then)
        step.then();
    --depth;
}

void KirvWindowDriver::end(bool success)
{
    ended = true;
    succeeded = success;
    std::fflush(stdout);
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    QApplication::exit();
}

void KirvWindowDriver::takePicture(const QString &text)
{
    QWidget *shown = QApplication::activePopupWidget();
    if (!shown)
        shown = QApplication::activeModalWidget();
    if (!shown)
        shown = QApplication::activeWindow();
    if (!shown)
        shown = window(QStringLiteral("Settings"));
    if (QWidget *above = shown ? windowAbove(shown) : nullptr)
        shown = above;
    if (!shown)
        return;
    static const QRegularExpression notPlain(QStringLiteral("[^a-z0-9]+"));
    const QString slug = text.toLower().replace(notPlain, QStringLiteral("-")).left(60);
    const QString name = QStringLiteral("%1-%2.png").arg(current + 1, 2, 10, QLatin1Char('0')).arg(slug);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // of parts that were shown just now
    shown->grab().save(QDir(folder).filePath(name));
}

void KirvWindowDriver::click(QWidget *widget)
{
    QWindow *window = prepare(widget);
    QTest::mouseClick(window, Qt::LeftButton, {}, widget->mapTo(widget->window(), widget->rect().center()));
}

void KirvWindowDriver::doubleClick(QWidget *widget, const QPoint &position)
{
    QWindow *window = prepare(widget);
    const QPoint place = widget->mapTo(widget->window(), position);
    QTest::mouseClick(window, Qt::LeftButton, {}, place);
    QTest::mouseDClick(window, Qt::LeftButton, {}, place);
}

void KirvWindowDriver::pressKey(QWidget *widget, Qt::Key key)
{
    const QPointer<QWindow> window(prepare(widget));
    widget->setFocus();
    QTest::keyPress(window, key);
    if (window) // the key may have closed it
        QTest::keyRelease(window, key);
}

void KirvWindowDriver::type(QLineEdit *edit, const QString &text)
{
    const Typing typing;
    click(edit);
    QWindow *window = edit->window()->windowHandle();
    QTest::keySequence(window, QKeySequence(QKeySequence::SelectAll));
    QTest::keyClick(window, Qt::Key_Delete);
    for (const QChar character : text)
        QTest::keyClick(window, character.toLatin1());
}

void KirvWindowDriver::choose(QComboBox *box, const QString &text)
{
    const Typing typing;
    QWindow *window = prepare(box);
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(window, Qt::Key_Home);
    for (int i = 0; i < box->findText(text); ++i)
        QTest::keyClick(window, Qt::Key_Down);
}

void KirvWindowDriver::openMenu(QWidget *button)
{
    QWindow *window = prepare(button);
    const QPoint place = button->mapTo(button->window(), button->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, place);
}

void KirvWindowDriver::clickInMenu(const QString &text)
{
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (QAction *action = actionInMenu(text))
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, menu->actionGeometry(action).center());
}

bool KirvWindowDriver::menuOffers(const QString &text)
{
    return actionInMenu(text);
}

QWidget *KirvWindowDriver::window(const QString &name)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->objectName() == name && widget->isVisible())
            return widget;
    }
    return nullptr;
}

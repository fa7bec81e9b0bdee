// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QTextEdit>
#include <QTreeWidget>
#include <QWindow>
#include <QtTest>
#include <algorithm>

namespace {

using Windows = KirvClientWindows;
const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");

/// Presses \a key in the active window, as the keyboard does.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *window = popup ? popup : QApplication::activeWindow();
    QVERIFY(window);
    const QPointer<QWindow> handle(window->windowHandle()); // the key may close it
    QTest::keyPress(handle.data(), key, modifiers);
    if (handle)
        QTest::keyRelease(handle.data(), key, modifiers);
}

void type(const QString &text)
{
    QVERIFY(QApplication::activeWindow());
    for (const QChar character : text)
        QTest::keyClick(QApplication::activeWindow()->windowHandle(), character.toLatin1());
}

QString focused()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

/// Goes with Tab to the widget \a name; false when Tab does not lead there.
bool tabTo(const QString &name)
{
    for (int i = 0; i < 80 && focused() != name; ++i)
        press(Qt::Key_Tab);
    return focused() == name;
}

/// The same for a button of a message box, which has no name.
bool tabTo(const QWidget *button)
{
    for (int i = 0; i < 10 && QApplication::focusWidget() != button; ++i)
        press(Qt::Key_Tab);
    return QApplication::focusWidget() == button;
}

} // namespace

/// An account is added, edited and removed with the keyboard alone, and all that is in the windows can be used with it,
/// also where windows go from right to left.
class tst_KeyboardOnly : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void accountIsAdded_data() { addDirections(); }
    void accountIsAdded();
    void accountIsEdited_data() { addDirections(); }
    void accountIsEdited();
    void directoryEntryIsEdited_data() { addDirections(); }
    void directoryEntryIsEdited();
    void accountIsRemovedAndComesBack_data() { addDirections(); }
    void accountIsRemovedAndComesBack();
    void exportIsBegunOnThePageGeneral_data() { addDirections(); }
    void exportIsBegunOnThePageGeneral();
    void tabReachesEveryControl_data();
    void tabReachesEveryControl();

private:
    static void addDirections();
    /// Goes to that page of the window.
    void goToPage(const QString &title);
    /// Starts the client in the direction of the row, with the accounts.
    void start(const QStringList &ids);
    /// Goes to the row of the account in the list.
    void goToRow(const QString &id);
    /// The active window but the main one; null when that is active.
    QDialog *dialog() const;

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_KeyboardOnly::addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void tst_KeyboardOnly::init()
{
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
}

void tst_KeyboardOnly::cleanup()
{
    windows.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_KeyboardOnly::start(const QStringList &ids)
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : ids)
        QVERIFY(windows->addAccount(id));
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
}

void tst_KeyboardOnly::goToRow(const QString &id)
{
    QVERIFY2(tabTo(QStringLiteral("Accounts_List")), qPrintable(focused()));
    press(Qt::Key_Home);
    for (int i = 0; i < 10 && windows->list()->currentItem()->text(2) != id; ++i)
        press(Qt::Key_Down);
    QCOMPARE(windows->list()->currentItem()->text(2), id);
}

QDialog *tst_KeyboardOnly::dialog() const
{
    return qobject_cast<QDialog *>(QApplication::activeWindow());
}

void tst_KeyboardOnly::accountIsAdded()
{
    start({});
    bool isAccepted = false;
    const auto fillIn = [](const QWidget *window) {
        KIRV_TRY_COMPARE(QApplication::activeWindow(), window);
        KIRV_TRY_COMPARE(focused(), QStringLiteral("AddAccount_UsernameEdit"));
        type(ann);
        QVERIFY(tabTo(QStringLiteral("AddAccount_PasswordEdit")));
        type(QStringLiteral("secret"));
        press(Qt::Key_Return);
    };
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *window) {
        const QPointer<KirvLayoutDialog> open(window);
        connect(window, &QDialog::accepted, this, [&isAccepted] { isAccepted = true; });
        fillIn(window);
        if (open && !isAccepted)
            open->reject(); // something has failed
    });
    press(Qt::Key_N, Qt::ControlModifier);
    Windows::settle();
    if (QApplication::activePopupWidget()) { // the menu of the protocols
        press(Qt::Key_Down);
        press(Qt::Key_Return);
    }
    KIRV_TRY(isAccepted);
    Windows::settle();
    QVERIFY(windows->account(ann));
    QCOMPARE(windows->rowIds(), QStringList(ann));
    QCOMPARE(windows->account(ann)->record().password, QStringLiteral("secret"));
}

void tst_KeyboardOnly::accountIsEdited()
{
    start({ ann, bob });
    goToRow(bob);
    press(Qt::Key_Return);
    KIRV_TRY(dialog());
    QVERIFY(tabTo(QStringLiteral("EditAccount_Alias")));
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("Robert"));
    QVERIFY2(tabTo(QStringLiteral("KirvField_server")), qPrintable(focused()));
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("example.org"));
    press(Qt::Key_Return);
    Windows::settle();
    QVERIFY(!dialog());
    QCOMPARE(windows->account(bob)->record().alias, QStringLiteral("Robert"));
    QCOMPARE(windows->account(bob)->record().settings.value(QStringLiteral("server")), QStringLiteral("example.org"));
    QCOMPARE(windows->account(ann)->record().alias, ann);
}

void tst_KeyboardOnly::directoryEntryIsEdited()
{
    start({ ann });
    goToRow(ann);
    press(Qt::Key_Return);
    KIRV_TRY(dialog());
    QVERIFY(tabTo(QStringLiteral("qt_tabwidget_tabbar")));
    press(QApplication::layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right);
    Windows::settle();
    QVERIFY2(tabTo(QStringLiteral("KirvField_town")), qPrintable(focused()));
    type(QStringLiteral("Verona"));
    press(Qt::Key_Return);
    Windows::settle();
    QVERIFY(!dialog());
    QVERIFY(windows->protocol->server->calls.contains(QStringLiteral("ann publish town")));
}

void tst_KeyboardOnly::accountIsRemovedAndComesBack()
{
    start({ ann, bob });
    goToRow(bob);
    const KirvWindowWatcher<QMessageBox> watcher([](QMessageBox *box) {
        const QPointer<QMessageBox> open(box);
        const bool isActive = QTest::qWaitFor([box] { return QApplication::activeWindow() == box; }, kirvPatience);
        if (isActive && tabTo(box->button(QMessageBox::Yes)))
            press(Qt::Key_Space);
        if (open && open->isVisible())
            open->reject(); // something has failed
    });
    press(Qt::Key_Delete);
    KIRV_TRY(!windows->account(bob));
    Windows::settle();
    QCOMPARE(windows->rowIds(), QStringList(ann));

    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
    QVERIFY(tabTo(QStringLiteral("Accounts_List")));
    press(Qt::Key_Z, Qt::ControlModifier);
    Windows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob }));
}

void tst_KeyboardOnly::goToPage(const QString &title)
{
    QVERIFY2(tabTo(QStringLiteral("Settings_Pages")), qPrintable(focused()));
    const auto *pages = Windows::child<QListWidget>(windows->client->window(), "Settings_Pages");
    press(Qt::Key_Home);
    for (int i = 0; i < 10 && pages->currentItem()->text() != title; ++i)
        press(Qt::Key_Down);
    QCOMPARE(pages->currentItem()->text(), title);
    Windows::settle();
}

void tst_KeyboardOnly::exportIsBegunOnThePageGeneral()
{
    start({ ann });
    goToPage(QStringLiteral("General"));
    QVERIFY2(tabTo(QStringLiteral("General_ExportButton")), qPrintable(focused()));
    press(Qt::Key_Space);
    KIRV_TRY(dialog());
    KIRV_TRY_COMPARE(focused(), QStringLiteral("ExportAccounts_List"));
    QVERIFY2(tabTo(QStringLiteral("ExportAccounts_All")), qPrintable(focused()));
    press(Qt::Key_Space); // no account is chosen any more
    QVERIFY(!dialog()->findChild<QPushButton *>("ExportAccounts_Export")->isEnabled());
    press(Qt::Key_Escape);
    KIRV_TRY(!dialog());
}

void tst_KeyboardOnly::tabReachesEveryControl_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("place");
    for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        for (const char *place : { "Accounts", "Plug-ins", "General", "edit window", "export window" })
            QTest::addRow("%s, %s", place, direction == Qt::LeftToRight ? "left to right" : "right to left")
                << direction << QString::fromLatin1(place);
    }
}

/// Each that is shown and enabled; what belongs to another one, as the text field of a box, has its keys there.
static QSet<QWidget *> controlsIn(const QWidget *window)
{
    QSet<QWidget *> controls;
    const auto all = window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const bool isControl = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget)
            || qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSpinBox *>(widget)
            || qobject_cast<QTextEdit *>(widget) || qobject_cast<QAbstractItemView *>(widget);
        const bool isOfAnother = qobject_cast<QComboBox *>(widget->parentWidget())
            || qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) || qobject_cast<QHeaderView *>(widget)
            || qobject_cast<QTabBar *>(widget->parentWidget());
        if (isControl && !isOfAnother && widget->isVisible() && widget->isEnabled() && widget->window() == window)
            controls << widget;
    }
    return controls;
}

void tst_KeyboardOnly::tabReachesEveryControl()
{
    QFETCH(QString, place);
    start({ ann, bob });
    if (place == QLatin1String("edit window") || place == QLatin1String("export window")) {
        goToRow(bob);
        if (place == QLatin1String("edit window")) {
            press(Qt::Key_Return);
        } else {
            press(Qt::Key_Menu);
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            const auto actions = menu->actions();
            const auto it = std::find_if(actions.begin(), actions.end(),
                                         [](const QAction *action) { return action->text().startsWith("E&xport"); });
            QVERIFY(it != actions.end());
            (*it)->trigger();
            menu->close();
        }
        KIRV_TRY(dialog());
    } else {
        goToPage(place);
    }
    const QWidget *window = QApplication::activeWindow();
    QSet<QWidget *> missing = controlsIn(window);
    QVERIFY(missing.size() > 3);
    for (int i = 0; i < 150; ++i) {
        press(Qt::Key_Tab);
        missing.remove(QApplication::focusWidget());
    }
    QStringList names;
    for (const QWidget *widget : qAsConst(missing))
        names << widget->objectName() + QLatin1Char('/') + QLatin1String(widget->metaObject()->className());
    QVERIFY2(names.isEmpty(), qPrintable(names.join(QStringLiteral(", "))));
}

QTEST_MAIN(tst_KeyboardOnly)
#include "tst_keyboard_only.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "add_account/kirv_add_account_dialog.h"
#include "tests/unit/kirv_edit_fixture.h"

#include <QtTest>

#include <memory>

namespace {

/// What is found for one widget.
struct Found {
    Found() = default;
    explicit Found(const QWidget *widget)
        : adding(KirvAddAccountDialog::of(widget))
        , editing(KirvEditAccountDialog::of(widget))
    {
    }

    bool isNothing() const { return !adding && !editing; }

    KirvAddAccountDialog *adding = nullptr;
    KirvEditAccountDialog *editing = nullptr;
};

}

/// What the controllers of the add and the edit window offer, and how one is found by its window.
class tst_WindowControllers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<KirvEditFixture>(); }
    void cleanup();

    void theEditControllerNamesItsAccountAndWindow();
    void theProtocolNameOutlivesTheProtocol();
    void anUnknownProtocolHasANameButNoWindow();
    void theAddControllerNamesItsProtocolAndWindow();
    void aLayoutWithoutDialogLeavesNoWindow();
    void aDestroyedWindowIsForgotten();
    void aDestroyedWindowIsForgottenBeforeItSignalsThat();
    void controllersAreFoundByTheirWindows();
    void nothingElseIsFound();
    void aDestroyedControllerIsNotFound();
    void theReplacedEditControllerIsNotFound();
    void eachOfSeveralControllersIsFound();
    void theEditControllerIsFoundWhileItsWindowIsLoaded();
    void theAddControllerIsFoundWhileItsWindowIsLoaded();
    void onlyAWindowOfItsOwnIsTakenForTheOneBeingLoaded();
    void aWindowDestroyedDuringTheLoadingIsNotFound();
    void aWindowLoadedInsideTheLoadingOfAnotherHasItsOwnController_data();
    void aWindowLoadedInsideTheLoadingOfAnotherHasItsOwnController();
    void afterTheLoadingOnlyTheLoadedWindowIsFound();
    void loadingThePageFindsNothing();

private:
    KirvAddAccountDialog *openAdd(QWidget *parent)
    {
        adding = new KirvAddAccountDialog(fixture->xmpp, QString(), parent, Qt::Sheet);
        return adding;
    }
    void announce(const std::function<void(QWidget *)> &announce) { fixture->host.layouts.announce = announce; }

    std::unique_ptr<KirvEditFixture> fixture;
    QPointer<KirvAddAccountDialog> adding;
};

void tst_WindowControllers::cleanup()
{
    delete adding;
    fixture.reset();
}

void tst_WindowControllers::theEditControllerNamesItsAccountAndWindow()
{
    fixture->open();
    QCOMPARE(fixture->dialog()->getAccountId(), QString("alice"));
    QCOMPARE(fixture->dialog()->getProtocolName(), QString("XMPP"));
    QVERIFY(fixture->window);
    QCOMPARE(fixture->dialog()->getWindow(), fixture->window.data());
}

void tst_WindowControllers::theProtocolNameOutlivesTheProtocol()
{
    // The protocol itself reports another name, and is not called.
    fixture->xmpp->reportedName = "Jabber (old)";
    fixture->open();
    fixture->host.unloadProtocol("XMPP");
    fixture->host.forgetCalls();
    QCOMPARE(fixture->dialog()->getProtocolName(), QString("XMPP"));
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_WindowControllers::anUnknownProtocolHasANameButNoWindow()
{
    const KirvEditAccountDialog dialog("alice", "Unknown", fixture->page(), Qt::Sheet);
    QCOMPARE(dialog.getAccountId(), QString("alice"));
    QCOMPARE(dialog.getProtocolName(), QString("Unknown"));
    QVERIFY(!dialog.getWindow());
}

void tst_WindowControllers::theAddControllerNamesItsProtocolAndWindow()
{
    openAdd(fixture->page());
    QCOMPARE(adding->getProtocol(), static_cast<KirvProtocol *>(fixture->xmpp));
    auto *window = fixture->page()->findChild<QDialog *>("AddAccount");
    QVERIFY(window);
    QCOMPARE(adding->getWindow(), window);
}

void tst_WindowControllers::aLayoutWithoutDialogLeavesNoWindow()
{
    fixture->host.layouts.omitted = { "AddAccount", "EditAccount" };
    openAdd(fixture->page());
    QVERIFY(!adding->getWindow());
    fixture->open();
    QVERIFY(!fixture->dialog()->getWindow());
    QVERIFY(Found(nullptr).isNothing());
}

void tst_WindowControllers::aDestroyedWindowIsForgotten()
{
    fixture->open();
    openAdd(fixture->page());
    const QWidget *editWindow = fixture->window;
    const QWidget *addWindow = adding->getWindow();
    delete editWindow;
    delete addWindow;
    QVERIFY(!fixture->dialog()->getWindow());
    QVERIFY(!adding->getWindow());
    QVERIFY(Found(editWindow).isNothing());
    QVERIFY(Found(addWindow).isNothing());
}

void tst_WindowControllers::aDestroyedWindowIsForgottenBeforeItSignalsThat()
{
    fixture->open();
    openAdd(fixture->page());
    KirvEditAccountDialog *const editing = fixture->dialog();
    int signalled = 0;
    for (QDialog *window : { editing->getWindow(), adding->getWindow() }) {
        connect(window, &QObject::destroyed, this, [&, window] {
            ++signalled;
            QVERIFY(Found(window).isNothing());
            QVERIFY(editing->getWindow() != window);
            QVERIFY(adding->getWindow() != window);
        });
        delete window;
    }
    QCOMPARE(signalled, 2);
}

void tst_WindowControllers::controllersAreFoundByTheirWindows()
{
    fixture->open();
    openAdd(fixture->page());
    QCOMPARE(Found(fixture->window).editing, fixture->dialog());
    QVERIFY(!Found(fixture->window).adding);
    QCOMPARE(Found(adding->getWindow()).adding, adding.data());
    QVERIFY(!Found(adding->getWindow()).editing);

    fixture->window->close();
    QCOMPARE(Found(fixture->window).editing, fixture->dialog());
}

void tst_WindowControllers::nothingElseIsFound()
{
    fixture->open();
    openAdd(fixture->page());
    QVERIFY(Found(nullptr).isNothing());
    QVERIFY(Found(fixture->page()).isNothing());
    QVERIFY(Found(fixture->tabs()).isNothing());
    QVERIFY(Found(fixture->button(QDialogButtonBox::Save)).isNothing());
    const QDialog foreign;
    QVERIFY(Found(&foreign).isNothing());
    QWidget inside(fixture->window);
    QVERIFY(Found(&inside).isNothing());
}

void tst_WindowControllers::aDestroyedControllerIsNotFound()
{
    fixture->open();
    openAdd(fixture->page());
    const QPointer<QDialog> addWindow = adding->getWindow();
    delete fixture->dialog();
    QVERIFY(fixture->window);
    QVERIFY(Found(fixture->window).isNothing());
    QCOMPARE(Found(addWindow).adding, adding.data());
    delete adding;
    QVERIFY(addWindow);
    QVERIFY(Found(addWindow).isNothing());
}

void tst_WindowControllers::theReplacedEditControllerIsNotFound()
{
    fixture->open();
    const QPointer<QDialog> before = fixture->window;
    fixture->host.addAccount("bob", "IRC");
    fixture->open("bob", "IRC");
    QVERIFY(before);
    QVERIFY(Found(before).isNothing());
    QCOMPARE(Found(fixture->window).editing->getAccountId(), QString("bob"));
}

void tst_WindowControllers::eachOfSeveralControllersIsFound()
{
    QList<KirvAddAccountDialog *> controllers;
    for (int i = 0; i < 4; ++i)
        controllers << new KirvAddAccountDialog(fixture->xmpp, QString(), fixture->page(), Qt::Sheet);
    // From the middle, the end and the beginning.
    for (int i : { 1, 1, 0, 0 }) {
        for (KirvAddAccountDialog *controller : controllers)
            QCOMPARE(Found(controller->getWindow()).adding, controller);
        const QPointer<QDialog> window = controllers.at(i)->getWindow();
        delete controllers.takeAt(i);
        QVERIFY(Found(window).isNothing());
    }
}

void tst_WindowControllers::theEditControllerIsFoundWhileItsWindowIsLoaded()
{
    Found found;
    QPointer<QWidget> announced;
    announce([&](QWidget *window) {
        announced = window;
        found = Found(window);
        QVERIFY(found.editing);
        QCOMPARE(found.editing->getAccountId(), QString("alice"));
        QCOMPARE(found.editing->getProtocolName(), QString("XMPP"));
        QVERIFY(!found.editing->getWindow());
    });
    fixture->open();
    QVERIFY(announced);
    QCOMPARE(announced.data(), fixture->window.data());
    QCOMPARE(found.editing, fixture->dialog());
    QVERIFY(!found.adding);
    QCOMPARE(Found(fixture->window).editing, fixture->dialog());
}

void tst_WindowControllers::theAddControllerIsFoundWhileItsWindowIsLoaded()
{
    Found found;
    announce([&](QWidget *window) {
        found = Found(window);
        QVERIFY(found.adding);
        QCOMPARE(found.adding->getProtocol(), static_cast<KirvProtocol *>(fixture->xmpp));
        QVERIFY(!found.adding->getWindow());
    });
    openAdd(nullptr);
    QCOMPARE(found.adding, adding.data());
    QVERIFY(!found.editing);
    QCOMPARE(Found(adding->getWindow()).adding, adding.data());
}

void tst_WindowControllers::onlyAWindowOfItsOwnIsTakenForTheOneBeingLoaded()
{
    // Without a parent, so that only its own controller keeps it from being taken for another's.
    openAdd(nullptr);
    QDialog *const addWindow = adding->getWindow();
    int announced = 0;
    announce([&](QWidget *window) {
        ++announced;
        QVERIFY(Found(window).editing);
        QVERIFY(Found(nullptr).isNothing());
        QVERIFY(Found(window->findChild<QLineEdit *>()).isNothing());
        QVERIFY(Found(fixture->page()).isNothing());
        const QWidget topLevel;
        QVERIFY(Found(&topLevel).isNothing());
        const QDialog child(fixture->page());
        QVERIFY(Found(&child).isNothing());
        QVERIFY(!Found(addWindow).editing);
        QCOMPARE(Found(addWindow).adding, adding.data());
    });
    fixture->open();
    QCOMPARE(announced, 1);
    delete addWindow;
}

void tst_WindowControllers::aWindowDestroyedDuringTheLoadingIsNotFound()
{
    int announced = 0;
    announce([&](QWidget *window) {
        ++announced;
        auto *discarded = new QDialog;
        QVERIFY(Found(discarded).editing);
        delete discarded;
        QVERIFY(Found(discarded).isNothing());
        QVERIFY(Found(window).editing);
    });
    fixture->open();
    QCOMPARE(announced, 1);
}

void tst_WindowControllers::aWindowLoadedInsideTheLoadingOfAnotherHasItsOwnController_data()
{
    QTest::addColumn<bool>("outerEdits");
    QTest::addColumn<bool>("innerEdits");
    QTest::newRow("add inside edit") << true << false;
    QTest::newRow("edit inside add") << false << true;
    QTest::newRow("add inside add") << false << false;
}

void tst_WindowControllers::aWindowLoadedInsideTheLoadingOfAnotherHasItsOwnController()
{
    QFETCH(bool, outerEdits);
    QFETCH(bool, innerEdits);
    const auto open = [this](bool edits) -> QObject * {
        if (edits)
            return new KirvEditAccountDialog("alice", "XMPP", fixture->page(), Qt::Sheet);
        return new KirvAddAccountDialog(fixture->xmpp, QString(), fixture->page(), Qt::Sheet);
    };
    const auto controllerOf = [](QWidget *window, bool edits) -> QObject * {
        const Found found(window);
        // Never one of the other kind.
        if (edits)
            return found.adding ? nullptr : found.editing;
        return found.editing ? nullptr : static_cast<QObject *>(found.adding);
    };

    QPointer<QWidget> outerWindow;
    QPointer<QWidget> innerWindow;
    QObject *outer = nullptr;
    QObject *inner = nullptr;
    announce([&](QWidget *window) {
        outerWindow = window;
        outer = controllerOf(window, outerEdits);
        announce([&](QWidget *window) {
            innerWindow = window;
            inner = controllerOf(window, innerEdits);
        });
        const QObject *opened = open(innerEdits);
        QCOMPARE(opened, static_cast<const QObject *>(inner));
        QCOMPARE(controllerOf(innerWindow, innerEdits), inner);
        QCOMPARE(controllerOf(outerWindow, outerEdits), outer);
    });
    const QObject *opened = open(outerEdits);
    QCOMPARE(opened, static_cast<const QObject *>(outer));
    QVERIFY(outer);
    QVERIFY(inner);
    QVERIFY(outer != inner);
    QCOMPARE(controllerOf(outerWindow, outerEdits), outer);
    QCOMPARE(controllerOf(innerWindow, innerEdits), inner);
    delete inner;
    QVERIFY(Found(innerWindow).isNothing());
    QCOMPARE(controllerOf(outerWindow, outerEdits), outer);
    delete outer;
}

void tst_WindowControllers::afterTheLoadingOnlyTheLoadedWindowIsFound()
{
    std::unique_ptr<QDialog> second;
    announce([&](QWidget *) {
        second = std::make_unique<QDialog>();
        QVERIFY(Found(second.get()).editing);
    });
    fixture->open();
    QVERIFY(second);
    QVERIFY(Found(second.get()).isNothing());
    QCOMPARE(Found(fixture->window).editing, fixture->dialog());
}

void tst_WindowControllers::loadingThePageFindsNothing()
{
    int announced = 0;
    announce([&](QWidget *top) {
        ++announced;
        QVERIFY(Found(top).isNothing());
        const QDialog foreign;
        QVERIFY(Found(&foreign).isNothing());
    });
    const KirvAccountsTab page;
    QCOMPARE(announced, 1);
}

QTEST_MAIN(tst_WindowControllers)
#include "tst_window_controllers.moc"

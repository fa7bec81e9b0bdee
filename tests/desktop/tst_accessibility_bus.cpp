// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_accessibility_bus.h"
#include "tests/support/servers/kirv_private_bus.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

namespace {

const QString protocol = QStringLiteral("IRC");
/// Instead of the number of a page: the one of the accounts while there is none, beside a file of Pidgin.
const int emptyPage = -1;
const QString ircLink = QStringLiteral("irc://eve@irc.example.org/");

KirvAccountRecord makeAccount(const QString &id, const QString &ofProtocol, bool isEnabled = true)
{
    KirvAccountRecord account;
    account.key = { id, ofProtocol };
    account.alias = id;
    account.enabled = isEnabled;
    account.defaultPresence = QStringLiteral("available");
    return account;
}

} // namespace

/// What the installed program shows to assistive technology on the real bus, and what that can do there.
class tst_AccessibilityBus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void whatTakesTheFocusHasANameAndARole_data() { windows(); }
    void whatTakesTheFocusHasANameAndARole();
    void buttonsHaveAnAction_data() { windows(); }
    void buttonsHaveAnAction();
    void rowsTellStateAndReason();

private:
    static void windows();
    QString filePath(const char *name) const { return folder->filePath(QLatin1String(name)); }
    void makeProfile(int page);
    /// Starts the program and waits until its plug-ins are loaded.
    void start(int page, const QStringList &arguments = {});
    /// Opens the window of the row and waits until it is there.
    void open();
    KirvAccessible find(KirvAccessibilityBus::Role role, const QString &beginning)
    {
        return bus.find(program, role, beginning);
    }
    KirvAccessible row(const QString &id);
    QString told(const KirvAccessible &object);

    KirvAccessibilityBus bus;
    QTemporaryDir installation;
    std::unique_ptr<QTemporaryDir> folder;
    QProcess process;
    KirvAccessible program;
};

void tst_AccessibilityBus::initTestCase()
{
    QVERIFY(bus.start());
    QProcess install;
    install.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    install.start(QStringLiteral(KIRV_CMAKE),
                  { QStringLiteral("--install"), QStringLiteral(KIRV_BUILD_FOLDER), QStringLiteral("--prefix"),
                    installation.path() });
    QVERIFY(install.waitForFinished(kirvPatienceWithProgram));
    QCOMPARE(install.exitCode(), 0);
}

void tst_AccessibilityBus::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    for (const char *name : { "run", "plugins", "profile", "home" })
        QVERIFY(QDir().mkdir(filePath(name)));
    QVERIFY(QFile::setPermissions(filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_NAMED_PROTOCOL), filePath("plugins/named.so")));
}

void tst_AccessibilityBus::cleanup()
{
    process.terminate();
    if (!QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, kirvPatience))
        process.kill();
    process.waitForFinished(kirvPatience);
    folder.reset();
}

void tst_AccessibilityBus::makeProfile(int page)
{
    if (page == emptyPage) {
        QVERIFY(QDir().mkdir(filePath("home/.purple")));
        QVERIFY(QFile::copy(QStringLiteral(KIRV_PIDGIN_FILE), filePath("home/.purple/accounts.xml")));
        return;
    }
    KirvStore store;
    QVERIFY2(store.open(filePath("profile")), qPrintable(store.lastError()));
    QVERIFY(store.insertAccount(makeAccount(QStringLiteral("ann"), protocol)));
    QVERIFY(store.insertAccount(makeAccount(QStringLiteral("bob"), protocol, false)));
    QVERIFY(store.insertAccount(makeAccount(QStringLiteral("cleo"), QStringLiteral("Other"))));
    QVERIFY(store.writeSetting(QStringLiteral("settings_window/page"), QString::number(page)));
}

void tst_AccessibilityBus::start(int page, const QStringList &arguments)
{
    makeProfile(page);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), filePath("run"));
    environment.insert(QStringLiteral("HOME"), filePath("home"));
    environment.insert(QStringLiteral("KIRV_FIXTURE_PROTOCOL"), protocol);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(installation.filePath(QStringLiteral(KIRV_PROGRAM)),
                  QStringList { QStringLiteral("--profile"), filePath("profile"), QStringLiteral("--plugins"),
                                filePath("plugins") }
                      + arguments);
    QVERIFY(process.waitForStarted(kirvPatience));
    KIRV_TRY(!(program = bus.program(process.processId())).service.isEmpty());
    KIRV_TRY(!bus.children(program).isEmpty());
}

/// For a message.
QString tst_AccessibilityBus::told(const KirvAccessible &object)
{
    return QStringLiteral("%1 \"%2\" (%3)").arg(bus.roleName(object), bus.name(object), object.path.path());
}

/// The cell of the list that is read aloud for the account.
KirvAccessible tst_AccessibilityBus::row(const QString &id)
{
    const QList<KirvAccessible> all = bus.below(program);
    for (const KirvAccessible &object : all) {
        if (bus.name(object).startsWith(id + QLatin1String(", ")))
            return object;
    }
    return {};
}

void tst_AccessibilityBus::windows()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("pressed"); ///< the name of the button that opens the window; empty: none
    QTest::addColumn<QString>("control"); ///< the name of one that is there when everything is
    const QStringList none;
    QTest::newRow("accounts") << 0 << none << ""
                              << "Add";
    QTest::newRow("plug-ins") << 1 << none << ""
                              << "Unload";
    QTest::newRow("general") << 2 << none << ""
                             << "Export";
    QTest::newRow("export window") << 2 << none << "Export"
                                   << "Close";
    QTest::newRow("edit window") << 0 << none << "Edit"
                                 << "Save";
    QTest::newRow("import window") << emptyPage << none << "Import from Pidgin"
                                   << "Choose Another";
    QTest::newRow("report window") << 1 << none << "Report"
                                   << "Copy";
    QTest::newRow("add window") << 0 << QStringList { ircLink } << ""
                                << "Save";
}

void tst_AccessibilityBus::open()
{
    QFETCH(int, page);
    QFETCH(QStringList, arguments);
    QFETCH(QString, pressed);
    QFETCH(QString, control);
    start(page, arguments);
    if (!pressed.isEmpty()) {
        KIRV_TRY(!find(KirvAccessibilityBus::PushButton, pressed).service.isEmpty());
        QVERIFY(bus.press(find(KirvAccessibilityBus::PushButton, pressed)));
    }
    KIRV_TRY(!find(KirvAccessibilityBus::PushButton, control).service.isEmpty());
}

void tst_AccessibilityBus::whatTakesTheFocusHasANameAndARole()
{
    open();
    if (QTest::currentTestFailed())
        return;
    // Qt says of no view that it takes the focus. What is in a combo box belongs to that.
    const QSet<int> views { KirvAccessibilityBus::List, KirvAccessibilityBus::Table, KirvAccessibilityBus::Tree,
                            KirvAccessibilityBus::TreeTable };
    const auto isOpen = [this](const KirvAccessible &object) {
        return bus.has(object, KirvAccessibilityBus::Showing) && bus.role(object) != KirvAccessibilityBus::ComboBox;
    };
    int seen = 0;
    QStringList wrong;
    const QList<KirvAccessible> all = bus.below(program, isOpen);
    for (const KirvAccessible &object : all) {
        const int role = bus.role(object);
        if (!bus.has(object, KirvAccessibilityBus::Showing)
            || !(bus.has(object, KirvAccessibilityBus::Focusable) || views.contains(role)))
            continue;
        ++seen;
        if (bus.name(object).isEmpty() || role == KirvAccessibilityBus::Invalid
            || role == KirvAccessibilityBus::Unknown)
            wrong << told(object);
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
    QVERIFY2(seen >= 5, qPrintable(QString::number(seen)));
}

void tst_AccessibilityBus::buttonsHaveAnAction()
{
    open();
    if (QTest::currentTestFailed())
        return;
    int seen = 0;
    QStringList wrong;
    const QList<KirvAccessible> all = bus.below(program);
    for (const KirvAccessible &object : all) {
        if (bus.role(object) != KirvAccessibilityBus::PushButton || !bus.has(object, KirvAccessibilityBus::Showing)
            || !bus.has(object, KirvAccessibilityBus::Enabled))
            continue;
        ++seen;
        const QList<KirvAccessibleAction> actions = bus.actions(object);
        if (actions.isEmpty() || actions.first().name.isEmpty())
            wrong << told(object);
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
    QVERIFY2(seen >= 2, qPrintable(QString::number(seen)));
}

void tst_AccessibilityBus::rowsTellStateAndReason()
{
    start(0);
    const QList<QStringList> expected { { "ann", "Connected", "Since" },
                                        { "bob", "Disabled", "" },
                                        { "cleo", "not loaded", "Other" } };
    for (const QStringList &account : expected) {
        KIRV_TRY(!row(account.at(0)).service.isEmpty());
        KIRV_TRY(bus.name(row(account.at(0))).contains(account.at(1)));
        const KirvAccessible cell = row(account.at(0));
        QVERIFY2(bus.description(cell).contains(account.at(2)), qPrintable(bus.description(cell)));
        QVERIFY2(!bus.description(cell).isEmpty(), qPrintable(told(cell)));
        QCOMPARE(bus.has(cell, KirvAccessibilityBus::Checked), account.at(0) != QLatin1String("bob"));
    }
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    // A display without any program begins anew, and refuses connections meanwhile.
    const QGuiApplication application(argc, argv);
    tst_AccessibilityBus test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_accessibility_bus.moc"

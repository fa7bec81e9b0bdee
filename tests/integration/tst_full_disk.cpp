// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/integration/kirv_shown_and_stored.h"
#include "tests/support/kirv_full_disk.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_thorough.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPointer>
#include <QSpinBox>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>
#include <vector>

namespace {
const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString dora = QStringLiteral("dora");
}

/// A user goes through all commands while the disk is full from the n-th write on, for every n.
///
/// A command that is refused leaves everything as it was. So the walk goes on from there in place of starting anew: for
/// each command the disk is full from its first write, its second one and so on until there is none any more, and stays
/// full each time for the commands that follow.
class tst_FullDisk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void windowsShowWhatIsStored();

private:
    struct Command {
        const char *name;
        std::function<bool()> run; ///< whether the windows say that it was done
        std::function<void()> prepare = [] {}; ///< so that it has something to do, while there is space
    };

    std::vector<Command> commands();
    bool save(const std::function<void(QWidget *)> &type);
    bool changeAlias();
    bool changeEverything();
    bool pick(const QString &path);
    bool chooseMainAccount(const QString &id);
    bool toggle();
    void setEnabled(bool enabled);
    bool remove();
    void compare(const QString &when, const QStringList &edited = QStringList());
    bool isWriteReached(const Command &command, int write);
    void runOthers(const Command &command, const QString &when);

    std::unique_ptr<KirvClientWindows> windows;
    std::unique_ptr<KirvShownAndStored> shown;
    std::vector<Command> walk;
    int comparisons = 0;
    int refusals = 0;
    int saves = 0; ///< tells the values of one from those of another
};

void tst_FullDisk::initTestCase()
{
    // Thousands of times, what the platform of the test cannot do.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY2(windows->isReady(), qPrintable(windows->client->errorString()));
    for (const QString &id : { ann, bob })
        QVERIFY(windows->addAccount(id));
    shown = std::make_unique<KirvShownAndStored>(*windows);
    walk = commands();
}

std::vector<tst_FullDisk::Command> tst_FullDisk::commands()
{
    const QString dark = windows->makePicture(10), light = windows->makePicture(200);
    const auto acceptPassword = [this] {
        return windows->account(ann)->acceptServerPassword(QStringLiteral("of the server %1").arg(++saves));
    };
    const auto typePassword = [this] {
        windows->account(ann)->providePassword(QStringLiteral("typed %1").arg(++saves), true);
        windows->settle();
        return !windows->account(ann)->hasUnstoredPassword();
    };
    return {
        { "add", [this] { return windows->account(dora) || windows->addInWindow(dora); }, [this] { remove(); } },
        { "alias", [this] { return changeAlias(); } },
        { "save", [this] { return changeEverything(); } },
        { "first picture", [=] { return pick(dark); }, [this] { pick(QString()); } },
        { "other picture", [=] { return pick(light); }, [=] { pick(dark); } },
        { "no picture", [this] { return pick(QString()); }, [=] { pick(light); } },
        { "first main account", [this] { return chooseMainAccount(bob); } },
        { "other main account", [this] { return chooseMainAccount(ann); }, [this] { chooseMainAccount(bob); } },
        { "disable", [this] { return toggle(); }, [this] { setEnabled(true); } },
        { "enable", [this] { return toggle(); }, [this] { setEnabled(false); } },
        { "password of the server", acceptPassword },
        { "password typed", typePassword },
        { "remove", [this] { return remove(); }, [this] { windows->addAccount(dora); } },
    };
}

bool tst_FullDisk::save(const std::function<void(QWidget *)> &type)
{
    const QPointer<KirvLayoutDialog> window = windows->edit(ann);
    type(window);
    ++saves;
    KirvClientWindows::save(window);
    const bool isSaved = !window;
    KirvClientWindows::cancel(window);
    return isSaved;
}

bool tst_FullDisk::changeAlias()
{
    return save([this](QWidget *window) {
        KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Z%1").arg(saves));
    });
}

bool tst_FullDisk::changeEverything()
{
    return save([this](QWidget *window) {
        const QString text = QString::number(saves);
        for (const char *name :
             { "EditAccount_Alias", "EditAccount_Password", "KirvField_server", "KirvField_server-password" })
            KirvClientWindows::child<QLineEdit>(window, name)->setText(text);
        KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit")->setPlainText(text);
        KirvClientWindows::child<QComboBox>(window, "EditAccount_PresenceCombo")->setCurrentIndex(saves % 2);
        KirvClientWindows::child<QSpinBox>(window, "KirvField_port")->setValue(1 + saves);
        for (const char *name :
             { "EditAccount_RememberPresence", "EditAccount_RememberDescription", "KirvField_encrypted" })
            KirvClientWindows::child<QCheckBox>(window, name)->toggle();
    });
}

bool tst_FullDisk::pick(const QString &path)
{
    KirvLayoutDialog *window = windows->edit(ann);
    const QString before = windows->account(ann)->avatarPath();
    KirvClientWindows::pick(window, path);
    const QString difference = shown->differenceIn(window, ann);
    [&] { QVERIFY2(difference.isEmpty(), qPrintable(difference)); }();
    KirvClientWindows::cancel(window);
    return windows->account(ann)->avatarPath() != before;
}

bool tst_FullDisk::chooseMainAccount(const QString &id)
{
    windows->chooseMainAccount(id);
    return windows->shownMainAccount() == id;
}

bool tst_FullDisk::toggle()
{
    const Qt::CheckState before = windows->row(bob)->checkState(0);
    windows->toggleInPage(bob);
    return windows->row(bob)->checkState(0) != before;
}

void tst_FullDisk::setEnabled(bool enabled)
{
    if (windows->account(bob)->isEnabled() != enabled)
        windows->toggleInPage(bob);
}

bool tst_FullDisk::remove()
{
    if (!windows->row(dora))
        return true;
    const QStringList rows = windows->rowIds();
    windows->removeInPage(dora);
    if (!windows->row(dora))
        return true;
    [&] {
        QCOMPARE(windows->rowIds(), rows);
        QVERIFY(windows->row(dora)->isSelected());
    }();
    return false;
}

void tst_FullDisk::compare(const QString &when, const QStringList &edited)
{
    const QString difference = shown->difference(edited);
    ++comparisons;
    QVERIFY2(difference.isEmpty(), qPrintable(when + QLatin1String(": ") + difference));
}

/// Runs \a command and the others with the disk full from its write number \a write; whether it makes so many.
bool tst_FullDisk::isWriteReached(const Command &command, int write)
{
    const QString when = QStringLiteral("%1, full from write %2").arg(QLatin1String(command.name)).arg(write);
    command.prepare();
    const QString before = shown->stored();
    kirvFillDiskAt(windows->profileFolder(), write);
    const bool isAccepted = command.run();
    const bool isReached = kirvDiskWrites() > write;
    refusals += !isAccepted;
    compare(when);
    if (!QTest::currentTestFailed() && !isAccepted)
        [&] { QCOMPARE(shown->stored(), before); }();
    // The disk is as full after the first write as after any other.
    if (isReached && !QTest::currentTestFailed() && (write == 0 || kirvIsThorough()))
        runOthers(command, when);
    kirvFreeDisk();
    [&] { QVERIFY2(isReached || isAccepted, qPrintable(when)); }();
    return isReached;
}

/// While the disk is full.
void tst_FullDisk::runOthers(const Command &command, const QString &when)
{
    const QString stored = shown->stored();
    for (const Command &other : walk) {
        if (&other == &command)
            continue;
        other.run();
        compare(when + QLatin1String(", then ") + QLatin1String(other.name), { ann });
        [&] { QCOMPARE(shown->stored(), stored); }();
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_FullDisk::windowsShowWhatIsStored()
{
    compare(QStringLiteral("at first"));
    for (const Command &command : walk) {
        const int before = refusals;
        int write = 0;
        while (!QTest::currentTestFailed() && isWriteReached(command, write))
            ++write;
        if (QTest::currentTestFailed())
            return;
        qInfo("%s: %d writes, %d refusals", command.name, write, refusals - before);
        QVERIFY2(refusals > before, command.name);
    }
    shown.reset();
    windows->restart();
    QVERIFY(windows->isReady());
    shown = std::make_unique<KirvShownAndStored>(*windows);
    compare(QStringLiteral("after a restart"));
    qInfo("%d refusals, %d comparisons", refusals, comparisons);
}

QTEST_MAIN(tst_FullDisk)
#include "tst_full_disk.moc"

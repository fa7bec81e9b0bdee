// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_import_window.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_pidgin_file.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/gui/kirv_file_choice.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_quick_keys.h"
#include "tests/support/store_refusal.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>
#include <QThreadPool>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString phrase = QStringLiteral("seven green horses");

KirvMovedAccount moved(const QString &id, const QString &protocol = QStringLiteral("Fake"))
{
    KirvMovedAccount account;
    account.record.key = { id, protocol };
    account.record.alias = QStringLiteral("Alias of ") + id;
    account.record.password = QStringLiteral("word of ") + id;
    account.record.rememberPassword = true;
    account.record.enabled = false;
    account.record.defaultPresence = QStringLiteral("available");
    return account;
}

/// Two accounts as Pidgin writes them.
const char pidginAccounts[] = "<?xml version='1.0' encoding='UTF-8' ?>\n\n<account version='1.0'>\n"
                              "\t<account>\n\t\t<protocol>prpl-jabber</protocol>\n"
                              "\t\t<name>anna@example.org/Laptop</name>\n\t\t<password>s3cret</password>\n"
                              "\t</account>\n"
                              "\t<account>\n\t\t<protocol>prpl-zephyr</protocol>\n\t\t<name>anna</name>\n"
                              "\t</account>\n</account>\n";

} // namespace

/// Accounts of a file are shown before they are taken over, as one step that can be undone; no file does harm.
class tst_ImportWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newAccountsAreTakenOver();
    void importIsUndone();
    void importedRowsAreSelected();
    void existingAccountIsKeptUnlessChosen();
    void existingAccountIsReplaced();
    void lostPasswordIsSaidBeforeTheImport();
    void placeOfThePasswordsIsSaidBeforeTheImport();
    void accountIsLeftOut();
    void nothingChangesBeforeTheImport();
    void passPhraseOpensThePasswords();
    void wrongPassPhraseIsSaid();
    void passwordsAreLeftOut();
    void pidginFileIsRecognisedByItsContent();
    void unusableFileIsSaid_data();
    void unusableFileIsSaid();
    void largeFileIsNotRead();
    void windowLivesWhileAFileIsRead();
    void closingWhileReadingIsSafe();
    void refusedImportChangesNothing();
    void listFollowsTheAccounts();
    void listFollowsTheProtocols();
    void fileIsChosen();
    void otherFileIsChosen();
    void emptyPageImports();
    void emptyPageOffersPidgin_data();
    void emptyPageOffersPidgin();
    void keyboardAloneImports();
    void mnemonicsAreUnique();

private:
    KirvImportWindow *window() const
    {
        return KirvClientWindows::shownChild<KirvImportWindow>(windows->client->window());
    }
    template <typename T>
    T *part(const char *name) const
    {
        return window()->findChild<T *>(QLatin1String("ImportAccounts_") + QLatin1String(name));
    }
    template <typename T>
    T *pagePart(const char *name) const
    {
        return KirvClientWindows::child<T>(windows->client->window(), name);
    }
    QTreeWidget *list() const { return part<QTreeWidget>("List"); }
    QPushButton *action() const { return part<QPushButton>("Action"); }
    bool isListing() const { return window() && list()->isVisible(); }
    QString shown(const char *name) const
    {
        const auto *text = window() ? part<QTextEdit>(name) : nullptr;
        return text && text->isVisible() ? text->toPlainText() : QString();
    }
    QString write(const QByteArray &bytes, const QString &name = QStringLiteral("accounts.json")) const;
    QString writeAccounts(const QList<KirvMovedAccount> &accounts, const QString &passPhrase = QString()) const;
    /// Clicks Import on the page "General" and chooses the file.
    void choose(const QString &path);
    /// The same without the dialog.
    void open(const QString &path) const
    {
        windows->client->window()->findChild<KirvMovingWindows *>()->importFrom(path);
    }
    QTreeWidgetItem *row(const QString &id) const;
    void import();

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_ImportWindow::init()
{
    qunsetenv("PURPLEHOME");
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
}

void tst_ImportWindow::cleanup()
{
    KirvQuickKeys::instance().isReal = false;
    KirvClientWindows::closeBoxes();
    windows.reset();
}

QString tst_ImportWindow::write(const QByteArray &bytes, const QString &name) const
{
    QFile file(windows->folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

QString tst_ImportWindow::writeAccounts(const QList<KirvMovedAccount> &accounts, const QString &passPhrase) const
{
    KirvMovedAccounts all;
    all.accounts = accounts;
    QString problem;
    return write(KirvAccountFile::write(all, passPhrase, &problem));
}

void tst_ImportWindow::choose(const QString &path)
{
    const KirvWindowWatcher<QFileDialog> chooses([path](QFileDialog *dialog) { kirvChooseFile(dialog, path); });
    pagePart<QListWidget>("Settings_Pages")->setCurrentRow(2);
    pagePart<QPushButton>("General_ImportButton")->click();
    KIRV_TRY(window());
    QCOMPARE(chooses.shown, 1);
}

QTreeWidgetItem *tst_ImportWindow::row(const QString &id) const
{
    for (int i = 0; i < list()->topLevelItemCount(); ++i) {
        if (list()->topLevelItem(i)->text(0).contains(id))
            return list()->topLevelItem(i);
    }
    return nullptr;
}

void tst_ImportWindow::import()
{
    QVERIFY(action()->isEnabled());
    action()->click();
    KirvClientWindows::settle();
}

void tst_ImportWindow::newAccountsAreTakenOver()
{
    choose(writeAccounts({ moved(ann), moved(bob) }));
    KIRV_TRY(isListing());
    QVERIFY(row(ann) && row(bob));
    QCOMPARE(row(ann)->text(0), QStringLiteral("Alias of ann (ann)"));
    QCOMPARE(row(ann)->text(1), QStringLiteral("Fake"));
    QCOMPARE(row(ann)->text(2), QStringLiteral("New"));
    QCOMPARE(row(ann)->checkState(0), Qt::Checked);
    QVERIFY(action()->text().contains(QLatin1Char('2')) && action()->isDefault());
    import();
    QVERIFY(!window());
    QVERIFY(windows->account(ann) && windows->account(bob));
    QCOMPARE(windows->account(bob)->record().alias, QStringLiteral("Alias of bob"));
    KIRV_TRY(windows->rowIds() == QStringList({ ann, bob }));
}

void tst_ImportWindow::importIsUndone()
{
    windows->addAccount(cleo);
    choose(writeAccounts({ moved(ann), moved(bob) }));
    KIRV_TRY(isListing());
    import();
    QVERIFY(windows->account(ann) && windows->account(bob));
    QCOMPARE(windows->messages().size(), 1);
    QVERIFY2(windows->messages().first().contains(QLatin1String("2 accounts"))
                 && windows->messages().first().contains(QLatin1String("imported")),
             qPrintable(windows->messages().first()));
    auto *undo = pagePart<QPushButton>("MessageBar_Command");
    QVERIFY(undo);
    undo->click();
    KirvClientWindows::settle();
    QVERIFY(!windows->account(ann) && !windows->account(bob) && windows->account(cleo));
    KIRV_TRY(windows->rowIds() == QStringList { cleo });
    QCOMPARE(windows->messages(), QStringList(QStringLiteral("The import of 2 accounts was undone.")));
}

void tst_ImportWindow::importedRowsAreSelected()
{
    windows->addAccount(cleo);
    windows->select(cleo);
    choose(writeAccounts({ moved(ann), moved(bob) }));
    KIRV_TRY(isListing());
    import();
    KIRV_TRY(windows->row(bob) && windows->row(bob)->isSelected());
    QVERIFY(windows->row(ann)->isSelected());
    QVERIFY(!windows->row(cleo)->isSelected());
    QVERIFY(windows->list()->isVisible()); // it was on another page
}

void tst_ImportWindow::existingAccountIsKeptUnlessChosen()
{
    windows->addAccount(ann);
    choose(writeAccounts({ moved(ann), moved(bob) }));
    KIRV_TRY(isListing());
    QCOMPARE(row(ann)->text(2), QStringLiteral("Exists, will be kept"));
    QCOMPARE(row(ann)->checkState(0), Qt::Unchecked);
    QCOMPARE(part<QCheckBox>("All")->checkState(), Qt::PartiallyChecked);
    import();
    QCOMPARE(windows->account(ann)->record().alias, ann);
    QVERIFY(windows->account(bob));
}

void tst_ImportWindow::existingAccountIsReplaced()
{
    windows->addAccount(ann);
    choose(writeAccounts({ moved(ann) }));
    KIRV_TRY(isListing());
    QVERIFY(!action()->isEnabled());
    row(ann)->setCheckState(0, Qt::Checked);
    QCOMPARE(row(ann)->text(2), QStringLiteral("Exists, will be replaced"));
    import();
    QCOMPARE(windows->account(ann)->record().alias, QStringLiteral("Alias of ann"));
    pagePart<QPushButton>("MessageBar_Command")->click();
    KirvClientWindows::settle();
    QVERIFY(windows->account(ann));
    QCOMPARE(windows->account(ann)->record().alias, ann);
}

void tst_ImportWindow::lostPasswordIsSaidBeforeTheImport()
{
    for (const QString &id : { ann, bob, cleo })
        windows->addAccount(id);
    QList<KirvMovedAccount> accounts { moved(ann), moved(bob), moved(cleo) };
    for (int index : { 0, 1 })
        accounts[index].record.password.clear();
    for (int index : { 1, 2 })
        accounts[index].record.settings.insert(QStringLiteral("server"), QStringLiteral("elsewhere.example"));
    choose(writeAccounts(accounts, phrase));
    KIRV_TRY(window() && part<QLineEdit>("PassPhrase")->isVisible());
    part<QLineEdit>("PassPhrase")->setText(phrase);
    action()->click();
    KIRV_TRY(isListing());
    for (const QString &id : { ann, bob, cleo })
        row(id)->setCheckState(0, Qt::Checked);
    QCOMPARE(row(ann)->text(2), QStringLiteral("Exists, will be replaced"));
    QCOMPARE(row(bob)->text(2), QStringLiteral("Exists, will be replaced; its passwords must be entered again"));
    QCOMPARE(row(cleo)->text(2), QStringLiteral("Exists, will be replaced"));
    row(bob)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(row(bob)->text(2), QStringLiteral("Exists, will be kept"));
    row(bob)->setCheckState(0, Qt::Checked);
    import();
    QVERIFY(!windows->account(ann)->record().password.isEmpty());
    QCOMPARE(windows->account(bob)->record().password, QString());
    QCOMPARE(windows->account(cleo)->record().password, QStringLiteral("word of cleo"));
}

/// When that is a file, and as long as it is.
void tst_ImportWindow::placeOfThePasswordsIsSaidBeforeTheImport()
{
    const QString inFile = QStringLiteral("There is no keyring. Passwords that are remembered are kept in a file only "
                                          "you can read.");
    KirvFakeSecretStore keyring(KirvSecretStore::Unavailable);
    windows->client->accounts().secrets().setKeyring(&keyring);
    open(writeAccounts({ moved(ann) }, phrase));
    KIRV_TRY(part<QLineEdit>("PassPhrase")->isVisible());
    part<QLineEdit>("PassPhrase")->setText(phrase);
    action()->click();
    KIRV_TRY(isListing());
    QVERIFY2(shown("Text").endsWith(inFile), qPrintable(shown("Text")));
    keyring.setState(KirvSecretStore::Ready);
    KIRV_TRY(!shown("Text").contains(inFile));
    keyring.setState(KirvSecretStore::Unavailable);
    KIRV_TRY(shown("Text").endsWith(inFile));
    KirvMovedAccount withoutPassword = moved(bob);
    withoutPassword.record.password.clear();
    open(writeAccounts({ withoutPassword }));
    KIRV_TRY(isListing() && row(bob));
    QVERIFY2(!shown("Text").contains(inFile), qPrintable(shown("Text")));
    window()->reject();
    windows->end();
}

void tst_ImportWindow::accountIsLeftOut()
{
    choose(writeAccounts({ moved(ann), moved(bob) }));
    KIRV_TRY(isListing());
    row(ann)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(row(ann)->text(2), QStringLiteral("New, will be left out"));
    QVERIFY(action()->text().contains(QLatin1Char('1')));
    import();
    QVERIFY(!windows->account(ann) && windows->account(bob));
}

void tst_ImportWindow::nothingChangesBeforeTheImport()
{
    choose(writeAccounts({ moved(ann) }));
    KIRV_TRY(isListing());
    window()->reject();
    KirvClientWindows::settle();
    QVERIFY(!window());
    QVERIFY(windows->client->accounts().accounts().isEmpty());
    QCOMPARE(windows->messages(), QStringList());
}

void tst_ImportWindow::passPhraseOpensThePasswords()
{
    choose(writeAccounts({ moved(ann) }, phrase));
    KIRV_TRY(part<QLineEdit>("PassPhrase")->isVisible());
    QVERIFY(!action()->isEnabled());
    QCOMPARE(part<QLineEdit>("PassPhrase")->echoMode(), QLineEdit::Password);
    part<QLineEdit>("PassPhrase")->setText(phrase);
    action()->click();
    KIRV_TRY(isListing());
    QVERIFY(!part<QLineEdit>("PassPhrase")->isVisible());
    import();
    QCOMPARE(windows->account(ann)->record().password, QStringLiteral("word of ann"));
}

void tst_ImportWindow::wrongPassPhraseIsSaid()
{
    choose(writeAccounts({ moved(ann) }, phrase));
    KIRV_TRY(part<QLineEdit>("PassPhrase")->isVisible());
    part<QLineEdit>("PassPhrase")->setText(QStringLiteral("eight green horses"));
    action()->click();
    KIRV_TRY(!shown("Problem").isEmpty());
    QVERIFY(!isListing());
    QVERIFY(part<QLineEdit>("PassPhrase")->isVisible() && part<QLineEdit>("PassPhrase")->isEnabled());
    part<QLineEdit>("PassPhrase")->setText(phrase);
    action()->click();
    KIRV_TRY(isListing());
    QCOMPARE(shown("Problem"), QString());
    import();
    QCOMPARE(windows->account(ann)->record().password, QStringLiteral("word of ann"));
}

void tst_ImportWindow::passwordsAreLeftOut()
{
    choose(writeAccounts({ moved(ann) }, phrase));
    KIRV_TRY(part<QPushButton>("WithoutPasswords")->isVisible());
    part<QPushButton>("WithoutPasswords")->click();
    KIRV_TRY(isListing());
    import();
    QVERIFY(windows->account(ann));
    QCOMPARE(windows->account(ann)->record().password, QString());
}

void tst_ImportWindow::pidginFileIsRecognisedByItsContent()
{
    const QString path = write(pidginAccounts, QStringLiteral("something else"));
    choose(path);
    KIRV_TRY(isListing());
    QCOMPARE(list()->topLevelItemCount(), 1);
    QVERIFY2(shown("LeftOut").contains(QLatin1String("zephyr"), Qt::CaseInsensitive), qPrintable(shown("LeftOut")));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray(pidginAccounts));
}

void tst_ImportWindow::unusableFileIsSaid_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : { "missing", "folder", "pipe", "device", "socket", "empty", "noise", "cut off", "newer",
                              "deep", "cut off Pidgin" })
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void tst_ImportWindow::unusableFileIsSaid()
{
    QFETCH(QString, kind);
    KirvMovedAccounts all;
    all.accounts << moved(ann);
    QString problem;
    QByteArray bytes = KirvAccountFile::write(all, QString(), &problem);
    const QString path = windows->folder.filePath(QStringLiteral("accounts.json"));
    const QByteArray name = QFile::encodeName(path);
    int listener = -1;
    if (kind == QLatin1String("folder")) {
        QVERIFY(QDir().mkdir(path));
    } else if (kind == QLatin1String("pipe")) {
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    } else if (kind == QLatin1String("device")) {
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path));
    } else if (kind == QLatin1String("socket")) {
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        QVERIFY(size_t(name.size()) < sizeof address.sun_path);
        std::copy(name.begin(), name.end(), address.sun_path);
        listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
        QCOMPARE(::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    } else if (kind != QLatin1String("missing")) {
        if (kind == QLatin1String("empty"))
            bytes.clear();
        else if (kind == QLatin1String("noise"))
            bytes = QByteArray(5000, '\xff') + QByteArray(5000, '\0');
        else if (kind == QLatin1String("cut off"))
            bytes.chop(bytes.size() / 2);
        else if (kind == QLatin1String("newer"))
            bytes.replace("\"version\": 1", "\"version\": 2000");
        else if (kind == QLatin1String("deep"))
            bytes = QByteArray(1000000, '[');
        else
            bytes = QByteArray(pidginAccounts).chopped(60);
        QVERIFY(!write(bytes).isEmpty());
    }
    open(path); // a file dialog takes some of them only
    KIRV_TRY(!shown("Problem").isEmpty());
    const bool isFile = kind != QLatin1String("folder") && kind != QLatin1String("pipe")
        && kind != QLatin1String("device") && kind != QLatin1String("socket");
    QCOMPARE(!shown("Problem").contains(QLatin1String("not an ordinary file")), isFile);
    QVERIFY(!isListing() && !action()->isVisible());
    QVERIFY(windows->client->accounts().accounts().isEmpty());
    // It can be left for a good one.
    QVERIFY(part<QPushButton>("OtherFile")->isEnabled());
    ::close(listener);
}

void tst_ImportWindow::largeFileIsNotRead()
{
    QFile file(windows->folder.filePath(QStringLiteral("large")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(KirvAccountFile::largestFile + 1));
    open(file.fileName());
    KIRV_TRY(shown("Problem").contains(QLatin1String("64 MB")));
    open(write(pidginAccounts + QByteArray(int(KirvPidginFile::largestFile), ' ')));
    KIRV_TRY(shown("Problem").contains(QLatin1String("16 MB")));
}

void tst_ImportWindow::windowLivesWhileAFileIsRead()
{
    KirvQuickKeys::instance().isReal = true;
    choose(writeAccounts({ moved(ann) }, phrase));
    KIRV_TRY(part<QLineEdit>("PassPhrase")->isVisible());
    part<QLineEdit>("PassPhrase")->setText(phrase);
    action()->click();
    // Deriving the key takes its time, in which this goes on.
    QVERIFY(part<QWidget>("Progress")->isVisible());
    QVERIFY(!part<QLineEdit>("PassPhrase")->isEnabled() && !action()->isVisible());
    QVERIFY(part<QDialogButtonBox>("Buttons")->button(QDialogButtonBox::Cancel)->isEnabled());
    KIRV_TRY(isListing());
    QVERIFY(!part<QWidget>("Progress")->isVisible());
}

void tst_ImportWindow::closingWhileReadingIsSafe()
{
    KirvQuickKeys::instance().isReal = true;
    choose(writeAccounts({ moved(ann) }, phrase));
    KIRV_TRY(part<QLineEdit>("PassPhrase")->isVisible());
    part<QLineEdit>("PassPhrase")->setText(phrase);
    action()->click();
    const QPointer<KirvImportWindow> closed(window());
    QTest::keyClick(closed, Qt::Key_Escape);
    KIRV_TRY(!closed);
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kirvPatience));
    KirvClientWindows::settle();
    QVERIFY(!window());
    // And the program may end.
    choose(windows->folder.filePath(QStringLiteral("accounts.json")));
    windows->end();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kirvPatience));
}

void tst_ImportWindow::refusedImportChangesNothing()
{
    windows->addAccount(cleo);
    choose(writeAccounts({ moved(ann), moved(bob) }));
    KIRV_TRY(isListing());
    row(ann)->setCheckState(0, Qt::Unchecked);
    row(ann)->setCheckState(0, Qt::Checked);
    StoreRefusal refusal(windows->profileFolder(), QStringLiteral("NEW.id = 'bob'"), QStringLiteral("INSERT"));
    QVERIFY(refusal.holds());
    import();
    QVERIFY(isListing());
    QVERIFY(!shown("Problem").isEmpty());
    QVERIFY(!windows->account(ann) && !windows->account(bob));
    QCOMPARE(windows->rowIds(), QStringList { cleo });
    refusal.end();
    import();
    QVERIFY(windows->account(ann) && windows->account(bob));
}

void tst_ImportWindow::listFollowsTheAccounts()
{
    choose(writeAccounts({ moved(ann), moved(bob), moved(cleo) }));
    KIRV_TRY(isListing());
    row(cleo)->setCheckState(0, Qt::Unchecked);
    windows->addAccount(ann);
    KIRV_TRY(row(ann)->text(2).startsWith(QLatin1String("Exists")));
    QCOMPARE(row(cleo)->checkState(0), Qt::Unchecked); // as it was chosen
    QVERIFY(windows->client->accounts().remove(windows->account(ann)));
    KIRV_TRY(row(ann)->text(2).startsWith(QLatin1String("New")));
}

void tst_ImportWindow::listFollowsTheProtocols()
{
    const QString other = QStringLiteral("Other");
    choose(writeAccounts({ moved(ann), moved(bob, other) }));
    KIRV_TRY(isListing());
    QVERIFY(row(bob)->isDisabled());
    QVERIFY2(shown("LeftOut").contains(other), qPrintable(shown("LeftOut")));
    QVERIFY(action()->text().contains(QLatin1Char('1')));
    QVERIFY(windows->client->plugins().addProtocol(new KirvFakeProtocol(other)));
    KIRV_TRY(!row(bob)->isDisabled());
    QCOMPARE(shown("LeftOut"), QString());
    import();
    QVERIFY(windows->client->accounts().find({ bob, other }));
}

void tst_ImportWindow::fileIsChosen()
{
    pagePart<QListWidget>("Settings_Pages")->setCurrentRow(2);
    pagePart<QPushButton>("General_ImportButton")->click();
    const QPointer<QFileDialog> dialog(pagePart<QFileDialog>("ImportAccounts_File"));
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
    dialog->reject();
    KirvClientWindows::settle();
    QVERIFY(!dialog && !window());
}

void tst_ImportWindow::otherFileIsChosen()
{
    choose(write("noise"));
    KIRV_TRY(!shown("Problem").isEmpty());
    const QString other = writeAccounts({ moved(ann) });
    const KirvWindowWatcher<QFileDialog> chooses([other](QFileDialog *dialog) { kirvChooseFile(dialog, other); });
    part<QPushButton>("OtherFile")->click();
    KIRV_TRY(isListing());
    QCOMPARE(shown("Problem"), QString());
    QVERIFY(row(ann));
}

void tst_ImportWindow::emptyPageImports()
{
    auto *button = pagePart<QPushButton>("Accounts_InvitationImportButton");
    QVERIFY(button->isVisible() && button->isEnabled());
    const QString path = writeAccounts({ moved(ann) });
    const KirvWindowWatcher<QFileDialog> chooses([path](QFileDialog *dialog) { kirvChooseFile(dialog, path); });
    button->click();
    KIRV_TRY(isListing());
    import();
    KIRV_TRY(!button->isVisible() && windows->list()->isVisible());
    QVERIFY(windows->row(ann)->isSelected());
}

void tst_ImportWindow::emptyPageOffersPidgin_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("isOffered");
    QTest::newRow("nothing") << "nothing" << false;
    QTest::newRow("a file of Pidgin") << "file" << true;
    QTest::newRow("another file of that name") << "other" << false;
    QTest::newRow("a pipe") << "pipe" << false;
    QTest::newRow("a folder") << "folder" << false;
}

void tst_ImportWindow::emptyPageOffersPidgin()
{
    QFETCH(QString, kind);
    QFETCH(bool, isOffered);
    const QString name = QStringLiteral(".purple/accounts.xml");
    const QString path = windows->folder.filePath(name);
    QVERIFY(QDir(windows->folder.path()).mkdir(QStringLiteral(".purple")));
    qputenv("PURPLEHOME", QFile::encodeName(windows->folder.path()));
    if (kind == QLatin1String("file"))
        QVERIFY(!write(pidginAccounts, name).isEmpty());
    else if (kind == QLatin1String("other"))
        QVERIFY(!write("<accounts/>", name).isEmpty());
    else if (kind == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    else if (kind == QLatin1String("folder"))
        QVERIFY(QDir().mkdir(path));
    windows->restart();
    auto *offer = pagePart<QPushButton>("Accounts_InvitationPidginButton");
    auto *text = pagePart<QLabel>("Accounts_InvitationText");
    if (isOffered)
        KIRV_TRY(offer->isVisible());
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kirvPatience));
    KirvClientWindows::settle();
    QCOMPARE(offer->isVisible(), isOffered);
    QCOMPARE(text->text().contains(QLatin1String("Pidgin")), isOffered);
    if (!isOffered)
        return;
    // There is room for it on a small screen, too.
    const QSize small(480, 360);
    windows->client->window()->resize(small);
    KirvClientWindows::settle();
    QCOMPARE(windows->client->window()->size(), small);
    QVERIFY(offer->height() >= offer->sizeHint().height());
    QVERIFY(offer->parentWidget()->rect().contains(offer->geometry()));
    offer->click();
    KIRV_TRY(isListing());
    QVERIFY(shown("Text").contains(path));
}

void tst_ImportWindow::keyboardAloneImports()
{
    windows->addAccount(cleo);
    choose(writeAccounts({ moved(ann), moved(bob) }, phrase));
    KIRV_TRY(part<QLineEdit>("PassPhrase")->isVisible());
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window(), kirvPatience));
    KIRV_TRY(QApplication::focusWidget() == part<QLineEdit>("PassPhrase"));
    QTest::keyClicks(QApplication::focusWidget(), phrase);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    KIRV_TRY(isListing());
    KIRV_TRY(QApplication::focusWidget() == list());
    QTest::keyClick(list(), Qt::Key_Space);
    QCOMPARE(list()->topLevelItem(0)->checkState(0), Qt::Unchecked);
    QTest::keyClick(list(), Qt::Key_Return); // the default button
    KIRV_TRY(!window());
    QVERIFY(!windows->account(ann) && windows->account(bob));
}

void tst_ImportWindow::mnemonicsAreUnique()
{
    choose(writeAccounts({ moved(ann) }, phrase));
    KIRV_TRY(part<QLineEdit>("PassPhrase")->isVisible());
    for (int state = 0; state < 2; ++state) {
        QStringList keys;
        const auto widgets = window()->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            const QString text = widget->property("text").toString();
            const QString key = widget->isVisible() ? QKeySequence::mnemonic(text).toString() : QString();
            QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(text));
            if (!key.isEmpty())
                keys << key;
        }
        QVERIFY(keys.size() >= 3);
        part<QPushButton>("WithoutPasswords")->click();
        KIRV_TRY(isListing());
    }
}

QTEST_MAIN(tst_ImportWindow)
#include "tst_import_window.moc"

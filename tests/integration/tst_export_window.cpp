// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_export_window.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_pass_phrase.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/gui/kirv_file_choice.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_quick_keys.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>
#include <QThreadPool>
#include <QTreeWidget>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString phrase = QStringLiteral("seven green horses");

QStringList loginsIn(const KirvMovedAccounts &moved)
{
    QStringList logins;
    for (const KirvMovedAccount &account : moved.accounts)
        logins << account.record.key.id;
    return logins;
}

int modeOf(const QString &path)
{
    struct stat status { };
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

} // namespace

/// Accounts are written to a file: those that are chosen, with passwords only when that is requested.
class tst_ExportWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void allAccountsAreChosenAtFirst();
    void chosenAccountsAreInTheFile();
    void boxAboveTheListChoosesAll();
    void selectedRowsAreChosen();
    void nothingChosenCannotBeExported();
    void pageWithoutAccountsExportsNone();
    void fileIsForItsOwnerOnly();
    void fileDialogProposesAName();
    void passwordsStayAtHome();
    void passPhraseIsChecked_data();
    void passPhraseIsChecked();
    void passwordsGoEncrypted();
    void secretsOfALockedKeyringAreNamed();
    void onlyOrdinaryFilesAreReplaced_data();
    void onlyOrdinaryFilesAreReplaced();
    void missingFolderIsSaid();
    void cancelledExportWritesNothing();
    void closingWhileWritingIsSafe();
    void listFollowsTheAccounts();
    void oneWindowIsEnough();
    void keyboardAloneExports();
    void everyControlHasAName();
    void mnemonicsAreUnique();

private:
    KirvExportWindow *window() const
    {
        return KirvClientWindows::shownChild<KirvExportWindow>(windows->client->window());
    }
    template <typename T>
    T *part(const char *name) const
    {
        return window()->findChild<T *>(QLatin1String("ExportAccounts_") + QLatin1String(name));
    }
    QTreeWidget *list() const { return part<QTreeWidget>("List"); }
    QPushButton *exportButton() const { return part<QPushButton>("Export"); }
    QString outcome() const
    {
        const auto *text = part<QTextEdit>("Outcome");
        return text->isVisible() ? text->toPlainText() : QString();
    }
    void open();
    void setChecked(const QString &id, bool isChecked);
    void enterPassPhrase(const QString &first, const QString &second);
    /// Clicks Export and chooses the file; waits for what comes of it.
    void exportTo(const QString &path);
    QString target() const { return windows->folder.filePath(QStringLiteral("accounts.json")); }
    KirvAccountFile::Result read(const QString &passPhrase = QString()) const
    {
        return KirvAccountFile::read(contentOf(target()), passPhrase);
    }

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_ExportWindow::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : { ann, bob, cleo })
        windows->addAccount(id);
}

void tst_ExportWindow::cleanup()
{
    KirvQuickKeys::instance().isReal = false;
    KirvClientWindows::closeBoxes();
    windows.reset();
}

void tst_ExportWindow::open()
{
    KirvClientWindows::child<QListWidget>(windows->client->window(), "Settings_Pages")->setCurrentRow(2);
    KirvClientWindows::child<QPushButton>(windows->client->window(), "General_ExportButton")->click();
    KirvClientWindows::settle();
    QVERIFY(window());
}

void tst_ExportWindow::setChecked(const QString &id, bool isChecked)
{
    for (int i = 0; i < list()->topLevelItemCount(); ++i) {
        if (list()->topLevelItem(i)->text(0) == id)
            list()->topLevelItem(i)->setCheckState(0, isChecked ? Qt::Checked : Qt::Unchecked);
    }
}

void tst_ExportWindow::enterPassPhrase(const QString &first, const QString &second)
{
    part<QCheckBox>("Passwords")->setChecked(true);
    part<QLineEdit>("PassPhrase")->setText(first);
    part<QLineEdit>("Repetition")->setText(second);
}

void tst_ExportWindow::exportTo(const QString &path)
{
    QVERIFY(exportButton()->isEnabled());
    const KirvWindowWatcher<QMessageBox> overwrites([](QMessageBox *box) { box->button(QMessageBox::Yes)->click(); });
    const KirvWindowWatcher<QFileDialog> chooses([path](QFileDialog *dialog) { kirvChooseFile(dialog, path); });
    exportButton()->click();
    KIRV_TRY_COMPARE(chooses.shown, 1);
    KIRV_TRY(!window()->findChild<QFileDialog *>());
    KIRV_TRY(!window()->isWriting() && !outcome().isEmpty());
}

void tst_ExportWindow::allAccountsAreChosenAtFirst()
{
    open();
    QCOMPARE(list()->topLevelItemCount(), 3);
    QCOMPARE(part<QCheckBox>("All")->checkState(), Qt::Checked);
    exportTo(target());
    QCOMPARE(loginsIn(read().accounts), QStringList({ ann, bob, cleo }));
    QVERIFY2(outcome().contains(target()), qPrintable(outcome()));
    QVERIFY(outcome().contains(QLatin1String("no passwords")));
}

void tst_ExportWindow::chosenAccountsAreInTheFile()
{
    open();
    setChecked(bob, false);
    QCOMPARE(part<QCheckBox>("All")->checkState(), Qt::PartiallyChecked);
    exportTo(target());
    QCOMPARE(loginsIn(read().accounts), QStringList({ ann, cleo }));
}

void tst_ExportWindow::boxAboveTheListChoosesAll()
{
    open();
    setChecked(bob, false);
    part<QCheckBox>("All")->click();
    QCOMPARE(list()->topLevelItem(1)->checkState(0), Qt::Checked);
    QCOMPARE(part<QCheckBox>("All")->checkState(), Qt::Checked);
    part<QCheckBox>("All")->click();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(list()->topLevelItem(i)->checkState(0), Qt::Unchecked);
    QCOMPARE(part<QCheckBox>("All")->checkState(), Qt::Unchecked);
}

void tst_ExportWindow::selectedRowsAreChosen()
{
    const auto chooseInMenu = [this](const char *action) {
        QTest::keyClick(windows->list(), Qt::Key_Menu);
        auto *menu = windows->client->window()->findChild<QMenu *>("Accounts_Menu");
        QVERIFY(menu);
        QVERIFY(menu->findChild<QAction *>(QLatin1String(action)));
        menu->findChild<QAction *>(QLatin1String(action))->trigger();
        menu->close();
        KirvClientWindows::settle();
    };
    windows->select(bob);
    chooseInMenu("Accounts_ExportAction");
    QVERIFY(window());
    exportTo(target());
    QCOMPARE(loginsIn(read().accounts), QStringList { bob });
    windows->select(ann);
    windows->row(cleo)->setSelected(true);
    chooseInMenu("Accounts_ExportSeveralAction");
    exportTo(target());
    QCOMPARE(loginsIn(read().accounts), QStringList({ ann, cleo }));
}

void tst_ExportWindow::nothingChosenCannotBeExported()
{
    open();
    part<QCheckBox>("All")->click();
    QVERIFY(!exportButton()->isEnabled());
    setChecked(ann, true);
    QVERIFY(exportButton()->isEnabled());
}

void tst_ExportWindow::pageWithoutAccountsExportsNone()
{
    const auto *button = KirvClientWindows::child<QPushButton>(windows->client->window(), "General_ExportButton");
    QVERIFY(button->isEnabled());
    for (const QString &id : { ann, bob, cleo })
        QVERIFY(windows->client->accounts().remove(windows->account(id)));
    QVERIFY(!button->isEnabled());
    windows->addAccount(ann);
    QVERIFY(button->isEnabled());
}

void tst_ExportWindow::fileIsForItsOwnerOnly()
{
    open();
    exportTo(target());
    QCOMPARE(modeOf(target()), 0600);
    // Also in place of one that others may read.
    QVERIFY(QFile::setPermissions(target(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    exportTo(target());
    QCOMPARE(modeOf(target()), 0600);
    QCOMPARE(loginsIn(read().accounts).size(), 3);
}

void tst_ExportWindow::fileDialogProposesAName()
{
    open();
    exportButton()->click();
    auto *dialog = window()->findChild<QFileDialog *>();
    QVERIFY(dialog);
    QCOMPARE(QFileInfo(dialog->selectedFiles().value(0)).fileName(), QStringLiteral("kirv-accounts.json"));
    QVERIFY(!dialog->testOption(QFileDialog::DontConfirmOverwrite));
    dialog->reject();
}

void tst_ExportWindow::passwordsStayAtHome()
{
    open();
    QVERIFY(!part<QCheckBox>("Passwords")->isChecked());
    QVERIFY(!part<QLineEdit>("PassPhrase")->isVisible());
    exportTo(target());
    QVERIFY(!KirvAccountFile::hasSecrets(contentOf(target())));
    QVERIFY(!contentOf(target()).contains("secret\""));
    QVERIFY(read().accounts.accounts.first().record.password.isEmpty());
}

void tst_ExportWindow::passPhraseIsChecked_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("problem");
    const QString isShort = QStringLiteral("at least");
    const QString isOther = QStringLiteral("the same");
    QTest::newRow("none") << QString() << QString() << isShort;
    QTest::newRow("eleven characters") << "elevenchars"
                                       << "elevenchars" << isShort;
    QTest::newRow("eleven characters of two units each")
        << QString::fromUtf8("🐎🐎🐎🐎🐎🐎🐎🐎🐎🐎🐎") << QString::fromUtf8("🐎🐎🐎🐎🐎🐎🐎🐎🐎🐎🐎") << isShort;
    QTest::newRow("not repeated") << phrase << QString() << isOther;
    QTest::newRow("repeated with a slip") << phrase << phrase + QLatin1Char(' ') << isOther;
    const QString horses = QString::fromUtf8("🐎").repeated(257); // of four bytes each
    QTest::newRow("more bytes than it may have") << horses << horses << QStringLiteral("too long");
    QTest::newRow("right") << phrase << phrase << QString();
}

void tst_ExportWindow::passPhraseIsChecked()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, problem);
    open();
    enterPassPhrase(first, second);
    KirvClientWindows::settle();
    QCOMPARE(part<QLineEdit>("PassPhrase")->maxLength(), int(KirvPassPhrase::longest));
    const auto *shown = part<QLabel>("Problem");
    QCOMPARE(shown->isVisible(), !problem.isEmpty());
    QVERIFY2(shown->text().contains(problem), qPrintable(shown->text()));
    QCOMPARE(exportButton()->isEnabled(), problem.isEmpty());
    QVERIFY(part<QLabel>("Advice")->isVisible());
    // Without passwords it does not matter.
    part<QCheckBox>("Passwords")->setChecked(false);
    QVERIFY(exportButton()->isEnabled());
    QVERIFY(!part<QLineEdit>("PassPhrase")->isVisible());
}

void tst_ExportWindow::passwordsGoEncrypted()
{
    open();
    enterPassPhrase(phrase, phrase);
    QCOMPARE(part<QLineEdit>("PassPhrase")->echoMode(), QLineEdit::Password);
    QCOMPARE(part<QLineEdit>("Repetition")->echoMode(), QLineEdit::Password);
    exportTo(target());
    QVERIFY2(!outcome().contains(QLatin1String("no passwords")), qPrintable(outcome()));
    QVERIFY2(outcome().contains(QLatin1String("stored passwords are in it")), qPrintable(outcome()));
    QVERIFY(KirvAccountFile::hasSecrets(contentOf(target())));
    QVERIFY(!contentOf(target()).contains("secret\""));
    QCOMPARE(read(phrase).accounts.accounts.first().record.password, QStringLiteral("secret"));
    QVERIFY(read(QStringLiteral("eight green horses")).wrongPassPhrase);
    // It does not stay in the window.
    QCOMPARE(part<QLineEdit>("PassPhrase")->text(), QString());
    QCOMPARE(part<QLineEdit>("Repetition")->text(), QString());
}

void tst_ExportWindow::secretsOfALockedKeyringAreNamed()
{
    KirvFakeSecretStore keyring;
    windows->client->accounts().secrets().setKeyring(&keyring);
    windows->addAccount(QStringLiteral("dora"));
    KIRV_TRY(!keyring.secrets.isEmpty());
    keyring.setState(KirvSecretStore::Locked);
    keyring.outcome = KirvSecretStore::Refused;
    windows->restart();
    windows->client->accounts().secrets().setKeyring(&keyring);
    KirvClientWindows::settle();
    open();
    enterPassPhrase(phrase, phrase);
    exportTo(target());
    QVERIFY2(outcome().contains(QLatin1String("not in the file")) && outcome().contains(QLatin1String("dora")),
             qPrintable(outcome()));
    windows->end();
}

void tst_ExportWindow::onlyOrdinaryFilesAreReplaced_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("problem");
    QTest::newRow("link") << "link"
                          << "is a link";
    QTest::newRow("link to nothing") << "dangling link"
                                     << "is a link";
    QTest::newRow("pipe") << "pipe"
                          << "not an ordinary file";
    QTest::newRow("folder") << "folder"
                            << "not an ordinary file";
}

void tst_ExportWindow::onlyOrdinaryFilesAreReplaced()
{
    QFETCH(QString, kind);
    QFETCH(QString, problem);
    const QString other = windows->folder.filePath(QStringLiteral("other"));
    QFile file(other);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("before") == 6);
    file.close();
    if (kind == QLatin1String("link"))
        QVERIFY(QFile::link(other, target()));
    else if (kind == QLatin1String("dangling link"))
        QVERIFY(QFile::link(other + QLatin1String("-missing"), target()));
    else if (kind == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(QFile::encodeName(target()).constData(), 0600), 0);
    else
        QVERIFY(QDir().mkdir(target()));
    open();
    window()->exportTo(target());
    KIRV_TRY(!outcome().isEmpty());
    QVERIFY2(outcome().contains(problem), qPrintable(outcome()));
    QCOMPARE(contentOf(other), QByteArray("before"));
    QVERIFY(!QFile::exists(other + QLatin1String("-missing")));
    QVERIFY(exportButton()->isEnabled());
}

void tst_ExportWindow::missingFolderIsSaid()
{
    open();
    window()->exportTo(windows->folder.filePath(QStringLiteral("missing/accounts.json")));
    KIRV_TRY(outcome().contains(QLatin1String("cannot be written")));
    QVERIFY(exportButton()->isEnabled());
    exportTo(target());
    QCOMPARE(loginsIn(read().accounts).size(), 3);
}

void tst_ExportWindow::cancelledExportWritesNothing()
{
    KirvQuickKeys::instance().isReal = true; // which takes some time
    open();
    enterPassPhrase(phrase, phrase);
    window()->exportTo(target());
    auto *cancel = part<QDialogButtonBox>("Buttons")->button(QDialogButtonBox::Cancel);
    QVERIFY(cancel->isVisible() && !exportButton()->isEnabled() && !list()->isEnabled());
    QVERIFY(part<QWidget>("Progress")->isVisible());
    cancel->click();
    KIRV_TRY(outcome().contains(QLatin1String("cancelled")));
    QVERIFY(!QFile::exists(target()));
    QCOMPARE(QDir(windows->folder.path()).entryList({ QStringLiteral("accounts*") }), QStringList());
    QVERIFY(!cancel->isVisible() && exportButton()->isEnabled() && list()->isEnabled());
    QVERIFY(!part<QWidget>("Progress")->isVisible());
}

void tst_ExportWindow::closingWhileWritingIsSafe()
{
    KirvQuickKeys::instance().isReal = true;
    open();
    enterPassPhrase(phrase, phrase);
    window()->exportTo(target());
    const QPointer<KirvExportWindow> closed(window());
    closed->close();
    KIRV_TRY(!closed);
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kirvPatience));
    KirvClientWindows::settle();
    QVERIFY(!QFile::exists(target()));
    // And the program may end.
    open();
    enterPassPhrase(phrase, phrase);
    window()->exportTo(target());
    windows->end();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kirvPatience));
}

void tst_ExportWindow::listFollowsTheAccounts()
{
    open();
    setChecked(bob, false);
    QVERIFY(windows->client->accounts().remove(windows->account(ann)));
    windows->addAccount(QStringLiteral("dora"));
    QCOMPARE(list()->topLevelItemCount(), 3);
    exportTo(target());
    QCOMPARE(loginsIn(read().accounts), QStringList { cleo });
}

void tst_ExportWindow::oneWindowIsEnough()
{
    open();
    KirvClientWindows::child<QPushButton>(windows->client->window(), "General_ExportButton")->click();
    QCOMPARE(windows->client->window()->findChildren<KirvExportWindow *>().size(), 1);
}

void tst_ExportWindow::keyboardAloneExports()
{
    open();
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window(), kirvPatience));
    QVERIFY(QApplication::focusWidget() == list());
    QTest::keyClick(list(), Qt::Key_Space); // the first account
    QCOMPARE(list()->topLevelItem(0)->checkState(0), Qt::Unchecked);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() == part<QCheckBox>("Passwords"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() == part<QLineEdit>("PassPhrase"));
    QTest::keyClicks(QApplication::focusWidget(), phrase);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // the button that shows the text
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() == part<QLineEdit>("Repetition"));
    QTest::keyClicks(QApplication::focusWidget(), phrase);
    const KirvWindowWatcher<QFileDialog> chooses([this](QFileDialog *dialog) {
        dialog->findChild<QLineEdit *>()->setText(target());
        QTest::keyClick(dialog->findChild<QDialogButtonBox *>()->buttons().first(), Qt::Key_Space);
    });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    KIRV_TRY(!outcome().isEmpty());
    QCOMPARE(loginsIn(read(phrase).accounts), QStringList({ bob, cleo }));
    QVERIFY(part<QDialogButtonBox>("Buttons")->button(QDialogButtonBox::Close)->isDefault());
    QTest::keyClick(window(), Qt::Key_Escape);
    KIRV_TRY(!window());
}

void tst_ExportWindow::everyControlHasAName()
{
    open();
    enterPassPhrase(phrase, phrase);
    exportTo(target());
    part<QCheckBox>("Passwords")->setChecked(true);
    const auto widgets = window()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus || widget->focusProxy())
            continue;
        QAccessibleInterface *described = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
        QVERIFY2(described && !described->text(QAccessible::Name).isEmpty(),
                 qPrintable(QLatin1String(widget->metaObject()->className()) + widget->objectName()));
        QVERIFY2(!widget->objectName().isEmpty(), widget->metaObject()->className());
    }
}

void tst_ExportWindow::mnemonicsAreUnique()
{
    open();
    enterPassPhrase(phrase, phrase);
    QStringList keys;
    const auto widgets = window()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QString text = widget->property("text").toString();
        const QString key = widget->isVisible() ? QKeySequence::mnemonic(text).toString() : QString();
        QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(text));
        if (!key.isEmpty())
            keys << key;
    }
    QVERIFY(keys.size() >= 5);
}

QTEST_MAIN(tst_ExportWindow)
#include "tst_export_window.moc"

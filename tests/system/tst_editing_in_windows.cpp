// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "core/values/kirv_text_limit.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_presence.h"
#include "host/kirv_protocol.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/system/kirv_windows.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDialog>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QWindow>

#include <csignal>

using Open = std::function<QDialog *(KirvWindows &)>;
using Leave = std::function<void(QDialog *)>;
using Go = std::function<void(KirvWindows &)>;
Q_DECLARE_METATYPE(Open)
Q_DECLARE_METATYPE(Leave)
Q_DECLARE_METATYPE(Go)

namespace {

const QString xmpp = QStringLiteral("XMPP");
const QString here = QStringLiteral("Server on this computer");
const QString ann = QStringLiteral("ann@localhost");
const QString bob = QStringLiteral("bob@localhost");
const QString secret = QStringLiteral("anns-password");
const QString mustBeConnected = QStringLiteral("must be connected");

using Entry = QMap<QString, QString>;

/// All fields of a directory entry, each with a text of its own that \a mark tells from another entry's.
Entry fullEntry(const QString &mark)
{
    return { { "fullname", "Ann Example " + mark }, { "nickname", "Annie " + mark },
             { "birthday", "1985-12-0" + mark },    { "email", "ann" + mark + "@example.org" },
             { "telephone", "+49 30 1234" + mark }, { "town", "Berlin " + mark },
             { "country", "Germany " + mark },      { "web", "https://example.org/" + mark },
             { "organisation", "Example " + mark }, { "about", "Line one\nline <b>two</b> & " + mark } };
}

QXmppVCardIq cardOf(const Entry &entry)
{
    QXmppVCardIq card;
    card.setFullName(entry["fullname"]);
    card.setNickName(entry["nickname"]);
    card.setBirthday(QDate::fromString(entry["birthday"], Qt::ISODate));
    card.setEmail(entry["email"]);
    QXmppVCardPhone phone;
    phone.setNumber(entry["telephone"]);
    card.setPhones({ phone });
    QXmppVCardAddress address;
    address.setLocality(entry["town"]);
    address.setCountry(entry["country"]);
    card.setAddresses({ address });
    card.setUrl(entry["web"]);
    QXmppVCardOrganization organization;
    organization.setOrganization(entry["organisation"]);
    card.setOrganization(organization);
    card.setDescription(entry["about"]);
    return card;
}

Entry entryOf(const QXmppVCardIq &card)
{
    return { { "fullname", card.fullName() },
             { "nickname", card.nickName() },
             { "birthday", card.birthday().toString(Qt::ISODate) },
             { "email", card.email() },
             { "telephone", card.phones().value(0).number() },
             { "town", card.addresses().value(0).locality() },
             { "country", card.addresses().value(0).country() },
             { "web", card.url() },
             { "organisation", card.organization().organization() },
             { "about", card.description() } };
}

QByteArray hashOf(const QByteArray &photo)
{
    return QCryptographicHash::hash(photo, QCryptographicHash::Sha1);
}

void pressKeys(QWidget *widget, QKeySequence::StandardKey keys)
{
    widget->setFocus();
    QTest::keySequence(widget->window()->windowHandle(), QKeySequence(keys));
}

/// Puts \a text in place of what \a field holds, as typing it would take too long.
void paste(QWidget *field, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    KirvWindowDriver::pressKey(field, Qt::Key_End);
    pressKeys(field, QKeySequence::SelectAll);
    QTest::keyClick(field->window()->windowHandle(), Qt::Key_Delete);
    if (!text.isEmpty())
        pressKeys(field, QKeySequence::Paste);
}

/// Pastes the file \a path into the picture of the account.
void pastePicture(QDialog *window, const QString &path)
{
    auto *data = new QMimeData;
    data->setUrls({ QUrl::fromLocalFile(path) });
    QGuiApplication::clipboard()->setMimeData(data);
    auto *button = KirvWindows::child<QAbstractButton>(window, "KirvAvatar_Button");
    KirvWindowDriver::pressKey(button, Qt::Key_Shift);
    pressKeys(button, QKeySequence::Paste);
}

// The parts of the edit window.

template <class Widget>
Widget *part(QDialog *window, const char *name)
{
    return KirvWindows::child<Widget>(window, name);
}

QLineEdit *alias(QDialog *window)
{
    return part<QLineEdit>(window, "EditAccount_Alias");
}

QLineEdit *password(QDialog *window)
{
    return part<QLineEdit>(window, "EditAccount_Password");
}

QTextEdit *description(QDialog *window)
{
    return part<QTextEdit>(window, "EditAccount_DescriptionEdit");
}

QComboBox *presence(QDialog *window)
{
    return part<QComboBox>(window, "EditAccount_PresenceCombo");
}

QCheckBox *box(QDialog *window, const char *what)
{
    return part<QCheckBox>(window, QByteArray("EditAccount_Remember").append(what).constData());
}

void tick(QCheckBox *box)
{
    KirvWindowDriver::pressKey(box, Qt::Key_Space);
}

QSpinBox *priority(QDialog *window)
{
    return part<QSpinBox>(window, "KirvField_priority");
}

QPushButton *cancelButton(QDialog *window)
{
    return KirvWindows::button(window, "EditAccount_FrameButtons", QDialogButtonBox::Cancel);
}

// Its directory tab.

bool isLocked(QDialog *window)
{
    return !part<QWidget>(window, "EditAccount_PubDirResults")->findChild<KirvFieldWidget *>()->isEnabled();
}

QString status(QDialog *window)
{
    return part<QLabel>(window, "EditAccount_PubDirStatus")->text();
}

QWidget *field(QDialog *window, const QString &id)
{
    return window->findChild<QWidget *>("KirvField_" + id);
}

QString textOf(const QWidget *field)
{
    const auto *line = qobject_cast<const QLineEdit *>(field);
    return line ? line->text() : qobject_cast<const QPlainTextEdit *>(field)->toPlainText();
}

Entry shownEntry(QDialog *window)
{
    Entry entry = fullEntry(QString());
    for (auto value = entry.begin(); value != entry.end(); ++value)
        value.value() = textOf(field(window, value.key()));
    return entry;
}

/// A server that does not answer for a while, although it is there.
class Silence {
public:
    explicit Silence(const KirvProsodyServer &server)
    {
        QFile file(server.folder() + "/prosody.pid");
        if (file.open(QFile::ReadOnly))
            process = file.readAll().trimmed().toInt();
        signal(SIGSTOP);
    }
    ~Silence() { end(); }
    bool holds() const { return process > 0; }
    void end()
    {
        signal(SIGCONT);
        process = 0;
    }

private:
    void signal(int number) const
    {
        if (process > 0)
            ::kill(process, number);
    }

    int process = 0;
};

} // namespace

/// What a user does in the window of an account, against a real server and before the eyes of another user.
class tst_EditingInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void windowOpensFilledIn_data();
    void windowOpensFilledIn();
    void unusualTextsAreShownAndStoredAsTheyAre_data();
    void unusualTextsAreShownAndStoredAsTheyAre();
    void whatIsRestoredGreysOutWhatItOverrides();
    void wrongPasswordLogsOutAndTheRightOneLogsIn();
    void savingKeepsTheConnectionOfAnAccountWhosePasswordIsNotRemembered();
    void changedSettingsMakeOneReconnection();
    void cancelWritesNothingButThePicture_data();
    void cancelWritesNothingButThePicture();

    void pickedPictureIsSeenByOthersAndSurvivesItsFile();
    void pictureThatCannotBeUsedIsRefused_data();
    void pictureThatCannotBeUsedIsRefused();
    void pictureThatVanishedIsSaid();

    void entryComesFromTheServerAndGoesThere();
    void entryIsFetchedAgain();
    void entryStaysWhenOnlyTheAccountIsChanged();
    void entryStaysWhenSavedBeforeItCame();
    void entryIsDeletedAfterAQuestion();
    void veryLongEntryOfTheServerIsKept();
    void tooLongEntryIsRefused();
    void fieldsAreLockedUntilTheAccountIsConnected_data();
    void fieldsAreLockedUntilTheAccountIsConnected();
    void fieldsAreLockedWhileTheServerIsAsked();
    void fieldsStayLockedUntilTheLatestRequestIsAnswered();
    void serverThatDoesNotAnswerIsSaid();
    void serverKilledWhilePublishing();

    void windowGoesWithWhatItEdits_data();
    void windowGoesWithWhatItEdits();
    void stripLeavesOneWindow();

private:
    /// Creates an account and waits until it is connected.
    bool add(const QString &login, bool remember = true)
    {
        KirvProtocol *protocol = KirvPluginManager::getInstance()->getProtocolByName(xmpp);
        KirvAccountManager::getInstance()->createAccount(login, login, secret, remember, protocol,
                                                         protocol->createPresenceWithId("available", QString()),
                                                         protocol->getConfigurationFields(here));
        return QTest::qWaitFor([this, &login] { return windows->row(login) && isConnected(login); }, kirvPatience);
    }
    bool isConnected(const QString &login) const { return windows->state(login) == QLatin1String("Connected"); }
    QDialog *editDirectory()
    {
        QDialog *window = windows->edit(ann);
        if (window)
            KirvWindowDriver::pressKey(part<QTabWidget>(window, "EditAccount_Tabs")->tabBar(), Qt::Key_Right);
        return window;
    }
    /// The same with the entry of the server; null when that does not come.
    QDialog *editFetchedDirectory()
    {
        QDialog *window = editDirectory();
        return window && QTest::qWaitFor([window] { return !isLocked(window); }, kirvPatience) ? window : nullptr;
    }
    void goTo(const QString &presenceId, const QString &text = QString()) const
    {
        KirvAccount *account = windows->account(ann);
        account->setPresence(account->getProtocol()->createPresenceWithId(presenceId, text));
        account->getProtocol()->accountPresenceChanged(account);
    }
    /// Lets \a change set how long the account waits for what the test would wait for, too.
    template <typename Change>
    void changeTiming(Change change) const
    {
        KirvConnection *connection = windows->account(ann)->connection();
        KirvConnection::Timing timing = connection->timing();
        change(&timing);
        connection->setTiming(timing);
    }
    /// Unlike KirvWindows::save(), does not expect that the window closes.
    static void clickSave(QDialog *window)
    {
        KirvWindowDriver::click(KirvWindows::button(window, "EditAccount_FrameButtons", QDialogButtonBox::Save));
    }
    /// Everything that is stored of the account, but its picture.
    QStringList storedValues() const
    {
        const KirvAccount *account = windows->account(ann);
        QStringList values { account->getAlias(), account->getPassword(), account->getDefaultPresence().getId(),
                             account->getDefaultPresence().getDescription() };
        for (bool flag : { account->record().rememberPassword, account->record().restorePresence,
                           account->record().restoreDescription })
            values << QString::number(flag);
        for (const KirvField &setting : account->getAccountSettingsInOrder())
            values << setting.getText();
        return values;
    }
    bool publishElsewhere(const Entry &entry)
    {
        KirvObservingXmppClient otherClient;
        return otherClient.logIn(server, "ann", secret) && otherClient.publish(cardOf(entry));
    }
    bool addWithEntry() { return add(ann) && publishElsewhere(fullEntry("1")); }
    Entry seenEntry() { return entryOf(juliet->vCardOf(ann)); }
    QByteArray seenHash() const { return juliet->presenceOf(ann).photoHash(); }
    QString createPicture(const QString &name, QRgb color) const
    {
        QImage image(48, 48, QImage::Format_RGB32);
        image.fill(color);
        const QString path = files.filePath(name);
        return image.save(path) ? path : QString();
    }

    QTemporaryDir files;
    KirvProsodyServer server;
    std::unique_ptr<KirvObservingXmppClient> juliet;
    std::unique_ptr<KirvWindows> windows;
};

void tst_EditingInWindows::initTestCase()
{
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    for (const char *user : { "ann", "bob", "juliet" })
        QVERIFY(server.addUser(user, secret));
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(server.port()));
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", server.certificatePath().toLocal8Bit());
    KirvObservingXmppClient friendOfAnn;
    QVERIFY(friendOfAnn.logIn(server, "juliet", secret) && friendOfAnn.befriend(server, "ann", secret));
}

void tst_EditingInWindows::init()
{
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    juliet = std::make_unique<KirvObservingXmppClient>();
    QVERIFY(juliet->logIn(server, "juliet", secret));
    QVERIFY(publishElsewhere({}));
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
}

void tst_EditingInWindows::cleanup()
{
    windows.reset();
    juliet.reset();
}

void tst_EditingInWindows::windowOpensFilledIn_data()
{
    QTest::addColumn<Open>("open");
    QTest::newRow("double click") << Open([](KirvWindows &windows) { return windows.edit(ann); });
    QTest::newRow("Enter") << Open([](KirvWindows &windows) {
        windows.select(ann);
        KirvWindowDriver::pressKey(windows.list(), Qt::Key_Return);
        return windows.openEditWindow();
    });
    QTest::newRow("button") << Open([](KirvWindows &windows) {
        windows.select(ann);
        KirvWindowDriver::click(windows.child<QToolButton>(windows.client->accountsPage(), "Accounts_EditButton"));
        return windows.openEditWindow();
    });
}

void tst_EditingInWindows::windowOpensFilledIn()
{
    QFETCH(Open, open);
    QVERIFY(add(ann));
    KirvAccount *account = windows->account(ann);
    account->setAlias("Ann at home");
    account->setDefaultPresence(account->getProtocol()->createPresenceWithId("away", "At lunch"));
    account->setRestoreLastDescription(true);

    QDialog *window = open(*windows);
    QVERIFY(window);
    QCOMPARE(part<QLabel>(window, "EditAccount_Identifier")->text(), QString("ann@localhost (XMPP)"));
    QCOMPARE(alias(window)->text(), QString("Ann at home"));
    QCOMPARE(password(window)->text(), secret);
    QCOMPARE(password(window)->echoMode(), QLineEdit::Password);
    QVERIFY(box(window, "Password")->isChecked());
    QVERIFY(!box(window, "Presence")->isChecked());
    QVERIFY(box(window, "Description")->isChecked());
    QCOMPARE(presence(window)->currentData().toString(), QString("away"));
    QCOMPARE(description(window)->toPlainText(), QString("At lunch"));
    QCOMPARE(part<QSpinBox>(window, "KirvField_port")->value(), int(server.port()));
    QCOMPARE(part<QTabWidget>(window, "EditAccount_Tabs")->count(), 2);
}

void tst_EditingInWindows::unusualTextsAreShownAndStoredAsTheyAre_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "Ann at home";
    QTest::newRow("empty") << "";
    QTest::newRow("very long") << QString("0123456789").repeated(1000);
    QTest::newRow("line breaks") << "first line\nsecond line";
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05e0\u05d4 \u202eabc");
    QTest::newRow("markup") << "<b>x</b> &amp; <img src='file:///etc/hostname'>";
    QTest::newRow("format") << "%1 %2 &x";
}

void tst_EditingInWindows::unusualTextsAreShownAndStoredAsTheyAre()
{
    QFETCH(QString, text);
    QVERIFY(add(ann));
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    paste(alias(window), text);
    paste(description(window), text);
    QVERIFY(windows->save(window));
    QCOMPARE(windows->row(ann)->text(0), text.isEmpty() ? ann : text);

    QVERIFY(windows->start());
    QCOMPARE(windows->row(ann)->text(0), text.isEmpty() ? ann : text);
    KIRV_TRY(isConnected(ann));
    KIRV_TRY(juliet->sees(ann) && juliet->presenceOf(ann).statusText() == text.left(1000));
    window = windows->edit(ann);
    QVERIFY(window);
    QCOMPARE(alias(window)->text(), text);
    QCOMPARE(description(window)->toPlainText(), text);
}

void tst_EditingInWindows::whatIsRestoredGreysOutWhatItOverrides()
{
    QVERIFY(add(ann));
    goTo("dnd", "Writing");
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    QVERIFY(presence(window)->isEnabled() && description(window)->isEnabled());
    tick(box(window, "Presence"));
    QVERIFY(!presence(window)->isEnabled() && !description(window)->isEnabled());
    tick(box(window, "Presence"));
    QVERIFY(presence(window)->isEnabled() && description(window)->isEnabled());
    tick(box(window, "Description"));
    QVERIFY(presence(window)->isEnabled() && !description(window)->isEnabled());
    tick(box(window, "Presence"));
    QVERIFY(windows->save(window));

    windows->quit();
    KIRV_TRY(!juliet->sees(ann));
    QVERIFY(windows->start());
    KIRV_TRY(juliet->sees(ann));
    QCOMPARE(juliet->presenceOf(ann).availableStatusType(), QXmppPresence::DND);
    QCOMPARE(juliet->presenceOf(ann).statusText(), QString("Writing"));
    window = windows->edit(ann);
    QVERIFY(window);
    QVERIFY(box(window, "Presence")->isChecked() && box(window, "Description")->isChecked());
    QVERIFY(!presence(window)->isEnabled() && !description(window)->isEnabled());
}

void tst_EditingInWindows::wrongPasswordLogsOutAndTheRightOneLogsIn()
{
    QVERIFY(add(ann));
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    KirvWindowDriver::type(password(window), "mistyped");
    QVERIFY(windows->save(window));
    KIRV_TRY_CONTAINS(windows->problem(ann), "password");
    KIRV_TRY(windows->hasGivenUp(ann));
    KIRV_TRY(!server.isOnline("ann"));

    window = windows->edit(ann);
    QVERIFY(window);
    QCOMPARE(password(window)->text(), QString("mistyped"));
    KirvWindowDriver::type(password(window), secret);
    QVERIFY(windows->save(window));
    KIRV_TRY(isConnected(ann));
    KIRV_TRY(server.isOnline("ann"));
    QCOMPARE(windows->problem(ann), QString());
}

void tst_EditingInWindows::savingKeepsTheConnectionOfAnAccountWhosePasswordIsNotRemembered()
{
    QVERIFY(add(ann, false));
    const QDateTime since = windows->account(ann)->connection()->since();
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    QVERIFY(!box(window, "Password")->isChecked());
    KirvWindowDriver::type(alias(window), "Ann");
    QVERIFY(windows->save(window));
    QCOMPARE(windows->row(ann)->text(0), QString("Ann"));
    QVERIFY(isConnected(ann));
    QCOMPARE(windows->account(ann)->connection()->since(), since);
    QVERIFY(!windows->question());
    QVERIFY(!windows->profileHolds(secret.toUtf8()));
}

void tst_EditingInWindows::changedSettingsMakeOneReconnection()
{
    QVERIFY(add(ann));
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    int logIns = 0;
    const QObject scope;
    connect(windows->account(ann)->connection(), &KirvConnection::stateChanged, &scope,
            [&logIns](KirvConnection::State state) { logIns += state == KirvConnection::Connecting; });
    paste(priority(window), "7");
    clickSave(window);
    QCOMPARE(logIns, 0); // not within the save
    KIRV_TRY(isConnected(ann) && juliet->presenceOf(ann).priority() == 7);
    QCOMPARE(logIns, 1);
}

void tst_EditingInWindows::cancelWritesNothingButThePicture_data()
{
    QTest::addColumn<Leave>("leave");
    QTest::newRow("Cancel") << Leave([](QDialog *window) { KirvWindowDriver::click(cancelButton(window)); });
    // Not released: the window is gone by then.
    QTest::newRow("Escape") << Leave([](QDialog *window) { QTest::keyPress(window->windowHandle(), Qt::Key_Escape); });
    QTest::newRow("closed") << Leave([](QDialog *window) { window->close(); });
}

void tst_EditingInWindows::cancelWritesNothingButThePicture()
{
    QFETCH(Leave, leave);
    QVERIFY(addWithEntry());
    const QStringList before = storedValues();

    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    pastePicture(window, createPicture("red.png", qRgb(255, 0, 0)));
    KirvWindowDriver::type(alias(window), "Somebody");
    KirvWindowDriver::type(password(window), "another");
    paste(description(window), "Elsewhere");
    KirvWindowDriver::choose(presence(window), presence(window)->itemText(2));
    for (const char *what : { "Password", "Presence", "Description" })
        tick(box(window, what));
    paste(priority(window), "7");
    KirvWindowDriver::pressKey(part<QTabWidget>(window, "EditAccount_Tabs")->tabBar(), Qt::Key_Right);
    KIRV_TRY(!isLocked(window));
    paste(field(window, "fullname"), "Somebody");
    KirvWindowDriver::pressKey(part<QTabWidget>(window, "EditAccount_Tabs")->tabBar(), Qt::Key_Left);
    leave(window);
    KIRV_TRY(!KirvWindowDriver::window("EditAccount"));
    QCOMPARE(storedValues(), before);
    QVERIFY(isConnected(ann));
    QCOMPARE(seenEntry(), fullEntry("1"));
    KIRV_TRY(!seenHash().isEmpty());

    QVERIFY(windows->start());
    QCOMPARE(storedValues(), before);
    QVERIFY(QFile::exists(windows->account(ann)->getCurrentAvatarPath()));
}

void tst_EditingInWindows::pickedPictureIsSeenByOthersAndSurvivesItsFile()
{
    QVERIFY(add(ann));
    const QRgb red = qRgb(200, 10, 20);
    const QString picked = createPicture("picked.png", red);
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    pastePicture(window, picked);
    QVERIFY(QFile::remove(picked));
    QVERIFY(windows->save(window));

    KIRV_TRY(!seenHash().isEmpty());
    const QByteArray photo = juliet->vCardOf(ann).photo();
    QCOMPARE(hashOf(photo), seenHash());
    QCOMPARE(QImage::fromData(photo).pixel(24, 24), red);

    windows->quit();
    KIRV_TRY(!juliet->sees(ann));
    QVERIFY(windows->start());
    KIRV_TRY(juliet->sees(ann) && seenHash() == hashOf(photo));
    window = windows->edit(ann);
    QVERIFY(window);
    const QImage shown = part<QWidget>(window, "KirvAvatar_Button")->grab().toImage();
    QCOMPARE(shown.pixel(shown.rect().center()), red);
}

void tst_EditingInWindows::pictureThatCannotBeUsedIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");

    const QString text = files.filePath("text.png");
    QFile textFile(text);
    QVERIFY(textFile.open(QFile::WriteOnly) && textFile.write("<b>This</b> is no picture.") > 0);
    QTest::newRow("no picture") << text << "not a picture";

    const QString large = files.filePath("large.png");
    QImage image(10000, 5000, QImage::Format_Mono);
    image.fill(0);
    QVERIFY(image.save(large));
    QTest::newRow("50 megapixels") << large << "10000 × 5000";

    for (int megabytes : { 11, 100 }) {
        const QString heavy = createPicture(QString("heavy%1.png").arg(megabytes), qRgb(0, 255, 0));
        QVERIFY(QFile::resize(heavy, megabytes * 1024 * 1024));
        QTest::addRow("%d MB", megabytes) << heavy << "10 MB";
    }
    QTest::newRow("not there") << files.filePath("nowhere.png") << "cannot be read";
}

void tst_EditingInWindows::pictureThatCannotBeUsedIsRefused()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    QVERIFY(add(ann));
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    KirvWindowDriver::type(alias(window), "Ann");
    pastePicture(window, createPicture("red.png", qRgb(255, 0, 0)));
    const QString avatar = windows->account(ann)->getCurrentAvatarPath();
    QVERIFY(QFile::exists(avatar));
    KIRV_TRY(!seenHash().isEmpty());
    const QByteArray hash = seenHash();

    pastePicture(window, path);
    KIRV_TRY(windows->question());
    QVERIFY2(windows->question()->text().contains(reason), qPrintable(windows->question()->text()));
    QCOMPARE(windows->question()->textFormat(), Qt::PlainText);
    KirvWindowDriver::click(windows->question()->button(QMessageBox::Ok));
    KIRV_TRY(!windows->question());

    QCOMPARE(windows->account(ann)->getCurrentAvatarPath(), avatar);
    QVERIFY(QFile::exists(avatar));
    QCOMPARE(alias(window)->text(), QString("Ann"));
    QVERIFY(windows->save(window));
    QCOMPARE(windows->row(ann)->text(0), QString("Ann"));
    QCOMPARE(hashOf(juliet->vCardOf(ann).photo()), hash);
}

void tst_EditingInWindows::pictureThatVanishedIsSaid()
{
    QVERIFY(add(ann));
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    pastePicture(window, createPicture("red.png", qRgb(255, 0, 0)));
    const QString avatar = windows->account(ann)->getCurrentAvatarPath();
    // Looked at by the picker, and gone before the account could take it.
    Q_EMIT window->findChild<KirvAvatarQuickSetWidget *>()->imageSelected(files.filePath("vanished.png"));
    KIRV_TRY_CONTAINS(windows->messages(), "vanished.png");
    QCOMPARE(windows->account(ann)->getCurrentAvatarPath(), avatar);
    QVERIFY(QFile::exists(avatar));
    KIRV_TRY(windows->question());
    KirvWindowDriver::click(windows->question()->button(QMessageBox::Ok));
    KIRV_TRY(!windows->question());
    QVERIFY(windows->save(window));
    QVERIFY(isConnected(ann));
}

void tst_EditingInWindows::entryComesFromTheServerAndGoesThere()
{
    QVERIFY(addWithEntry());
    QDialog *window = editFetchedDirectory();
    QVERIFY(window);
    QCOMPARE(shownEntry(window), fullEntry("1"));
    QCOMPARE(status(window), QString());

    const Entry changed = fullEntry("2");
    for (auto value = changed.begin(); value != changed.end(); ++value)
        paste(field(window, value.key()), value.value());
    QVERIFY(windows->save(window));
    KIRV_TRY(seenEntry() == changed);
    QCOMPARE(windows->problem(ann), QString());
}

void tst_EditingInWindows::entryIsFetchedAgain()
{
    QVERIFY(addWithEntry());
    QDialog *window = editFetchedDirectory();
    QVERIFY(window);
    paste(field(window, "town"), "Nowhere");
    QVERIFY(publishElsewhere(fullEntry("2")));
    KirvWindowDriver::click(part<QPushButton>(window, "EditAccount_PubDirFetch"));
    KIRV_TRY(!isLocked(window) && shownEntry(window) == fullEntry("2"));
}

void tst_EditingInWindows::entryStaysWhenOnlyTheAccountIsChanged()
{
    QVERIFY(addWithEntry());
    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    KirvWindowDriver::type(alias(window), "Ann");
    QVERIFY(windows->save(window));
    // What the first window sends arrives before what the second one asks for.
    window = editFetchedDirectory();
    QVERIFY(window);
    QCOMPARE(shownEntry(window), fullEntry("1"));
    QCOMPARE(seenEntry(), fullEntry("1"));
}

void tst_EditingInWindows::entryStaysWhenSavedBeforeItCame()
{
    QVERIFY(addWithEntry());
    Silence silence(server);
    QVERIFY(silence.holds());
    QDialog *window = editDirectory();
    QVERIFY(window);
    QVERIFY(isLocked(window));
    QVERIFY(windows->save(window));
    silence.end();
    window = editFetchedDirectory();
    QVERIFY(window);
    QCOMPARE(shownEntry(window), fullEntry("1"));
    QCOMPARE(seenEntry(), fullEntry("1"));
}

void tst_EditingInWindows::entryIsDeletedAfterAQuestion()
{
    QVERIFY(addWithEntry());
    QDialog *window = editFetchedDirectory();
    QVERIFY(window);
    const auto answer = [&](QMessageBox::StandardButton button) {
        KirvWindowDriver::click(part<QPushButton>(window, "EditAccount_PubDirDelete"));
        if (!QTest::qWaitFor([this] { return windows->question(); }, kirvPatience))
            return false;
        KirvWindowDriver::click(windows->question()->button(button));
        return QTest::qWaitFor([this] { return !windows->question(); }, kirvPatience);
    };

    QVERIFY(answer(QMessageBox::No));
    QVERIFY(!isLocked(window));
    QCOMPARE(shownEntry(window), fullEntry("1"));
    QCOMPARE(seenEntry(), fullEntry("1"));

    QVERIFY(answer(QMessageBox::Yes));
    KIRV_TRY(seenEntry() == entryOf(QXmppVCardIq()));
    KIRV_TRY(!isLocked(window));
    QCOMPARE(shownEntry(window), entryOf(QXmppVCardIq()));
}

void tst_EditingInWindows::veryLongEntryOfTheServerIsKept()
{
    QVERIFY(add(ann));
    Entry entry = fullEntry("1");
    entry["about"] = QString("0123456789").repeated(15000);
    QVERIFY(publishElsewhere(entry));
    QDialog *window = editFetchedDirectory();
    QVERIFY(window);
    entry["town"] = "Potsdam";
    paste(field(window, "town"), entry["town"]);
    QVERIFY(windows->save(window));
    KIRV_TRY(seenEntry() == entry);
}

void tst_EditingInWindows::tooLongEntryIsRefused()
{
    QVERIFY(addWithEntry());
    QDialog *window = editFetchedDirectory();
    QVERIFY(window);
    // As much as fields take, of what is five times as long when it is sent.
    for (const char *id : { "fullname", "about" })
        paste(field(window, id), QString(kirvLongestEditableText, '&'));
    clickSave(window);
    KIRV_TRY_CONTAINS(status(window), "too long");
    KIRV_TRY_CONTAINS(windows->problem(ann), "too long");
    QVERIFY(window->isVisible() && !isLocked(window));
    QVERIFY(isConnected(ann));
    QCOMPARE(seenEntry(), fullEntry("1"));
}

void tst_EditingInWindows::fieldsAreLockedUntilTheAccountIsConnected_data()
{
    QTest::addColumn<bool>("isDisabled");
    QTest::newRow("off line") << false;
    QTest::newRow("disabled") << true;
}

void tst_EditingInWindows::fieldsAreLockedUntilTheAccountIsConnected()
{
    QFETCH(bool, isDisabled);
    QVERIFY(addWithEntry());
    KirvAccountManager *manager = KirvAccountManager::getInstance();
    if (isDisabled)
        manager->disableAccount(ann, xmpp);
    else
        goTo("offline");
    KIRV_TRY(!server.isOnline("ann"));

    QDialog *window = editDirectory();
    QVERIFY(window);
    QVERIFY(isLocked(window));
    QVERIFY2(status(window).contains(mustBeConnected), qPrintable(status(window)));
    if (isDisabled)
        manager->enableAccount(ann, xmpp);
    else
        goTo("available");
    KIRV_TRY(isConnected(ann));
    KIRV_TRY(!isLocked(window));
    QCOMPARE(shownEntry(window), fullEntry("1"));
    QCOMPARE(status(window), QString());
}

void tst_EditingInWindows::fieldsAreLockedWhileTheServerIsAsked()
{
    QVERIFY(addWithEntry());
    Silence silence(server);
    QVERIFY(silence.holds());
    QDialog *window = editDirectory();
    QVERIFY(window);
    QVERIFY(isLocked(window));
    QVERIFY(!status(window).isEmpty() && !status(window).contains(mustBeConnected));
    silence.end();
    KIRV_TRY(!isLocked(window));
    QCOMPARE(shownEntry(window), fullEntry("1"));
    QCOMPARE(status(window), QString());
}

void tst_EditingInWindows::fieldsStayLockedUntilTheLatestRequestIsAnswered()
{
    QVERIFY(addWithEntry());
    Silence silence(server);
    QVERIFY(silence.holds());
    QDialog *window = editDirectory();
    QVERIFY(window);
    QList<bool> lockedAfterAnswers;
    connect(windows->account(ann)->connection(), &KirvConnection::directoryAnswered, window,
            [&] { lockedAfterAnswers << isLocked(window); });
    KirvWindowDriver::click(part<QPushButton>(window, "EditAccount_PubDirFetch"));
    QVERIFY(isLocked(window));
    QVERIFY(!status(window).isEmpty());
    silence.end();
    KIRV_TRY(!isLocked(window));
    QCOMPARE(lockedAfterAnswers, (QList<bool> { true, false })); // the first request was replaced
    QCOMPARE(shownEntry(window), fullEntry("1"));
}

void tst_EditingInWindows::serverThatDoesNotAnswerIsSaid()
{
    QVERIFY(add(ann));
    changeTiming([](KirvConnection::Timing *timing) { timing->requestTimeout = 300; });
    Silence silence(server);
    QVERIFY(silence.holds());
    QDialog *window = editDirectory();
    QVERIFY(window);
    KIRV_TRY(!windows->problem(ann).isEmpty());
    QVERIFY(isLocked(window)); // what they would publish is based on nothing
    QCOMPARE(status(window), windows->problem(ann));
    QVERIFY(isConnected(ann));
}

void tst_EditingInWindows::serverKilledWhilePublishing()
{
    QVERIFY(addWithEntry());
    changeTiming([](KirvConnection::Timing *timing) { timing->backOff.first = 100; });
    QDialog *window = editFetchedDirectory();
    QVERIFY(window);
    paste(field(window, "town"), "Potsdam");
    Silence silence(server);
    QVERIFY(silence.holds());
    clickSave(window);
    QVERIFY(window->isVisible());
    server.kill();
    KIRV_TRY(!isConnected(ann));
    KIRV_TRY(status(window).contains(mustBeConnected));
    QVERIFY(!windows->problem(ann).isEmpty());
    QCOMPARE(shownEntry(window)["town"], QString("Potsdam"));

    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KIRV_TRY(isConnected(ann));
    QVERIFY(!isLocked(window));
    QVERIFY(windows->save(window));
    Entry entry = fullEntry("1");
    entry["town"] = "Potsdam";
    window = editFetchedDirectory();
    QVERIFY(window);
    QCOMPARE(shownEntry(window), entry);
}

void tst_EditingInWindows::windowGoesWithWhatItEdits_data()
{
    QTest::addColumn<Go>("go");
    QTest::newRow("account") << Go([](KirvWindows &) { KirvAccountManager::getInstance()->removeAccount(ann, xmpp); });
    QTest::newRow("protocol") << Go(
        [](KirvWindows &windows) { QVERIFY(windows.client->plugins().unload(windows.pluginFile(xmpp))); });
    QTest::newRow("client") << Go([](KirvWindows &windows) { windows.quit(); });
}

void tst_EditingInWindows::windowGoesWithWhatItEdits()
{
    QFETCH(Go, go);
    QVERIFY(add(ann));
    Silence silence(server);
    QVERIFY(silence.holds());
    QPointer<QDialog> window = editDirectory();
    QVERIFY(window);
    QVERIFY(isLocked(window));
    KirvWindowDriver::click(part<QPushButton>(window, "EditAccount_PubDirDelete"));
    KIRV_TRY(windows->question());
    QPointer<KirvEditAccountDialog> controller = windows->client->accountsPage()->getAccEdit();
    QVERIFY(controller);

    go(*windows);
    KIRV_TRY(!window && !controller);
    QVERIFY(!QApplication::activeModalWidget());
    silence.end();
    QVERIFY(!windows->client || !windows->client->accountsPage()->getAccEdit());
    KIRV_TRY(!server.isOnline("ann"));
}

void tst_EditingInWindows::stripLeavesOneWindow()
{
    QVERIFY(add(ann) && add(bob));
    QVERIFY(windows->edit(ann));
    windows->list()->setCurrentItem(windows->row(bob));
    // By a shortcut, say: the mouse would not reach it.
    auto *editButton = windows->child<QPushButton>(windows->client->accountsPage(), "Accounts_StripEditButton");
    KIRV_TRY(editButton->isEnabled());
    editButton->click();
    const auto editWindows = [this] {
        return windows->client->window()->findChildren<QDialog *>(QStringLiteral("EditAccount"));
    };
    KIRV_TRY(editWindows().size() == 1);
    QDialog *window = windows->openEditWindow();
    QVERIFY(window);
    QCOMPARE(part<QLabel>(window, "EditAccount_Identifier")->text(), QString("bob@localhost (XMPP)"));
    KirvWindowDriver::type(alias(window), "Bob");
    QVERIFY(windows->save(window));
    KIRV_TRY(editWindows().isEmpty());
    QVERIFY(!windows->client->accountsPage()->getAccEdit());
    QCOMPARE(windows->row(bob)->text(0), QString("Bob"));
    QCOMPARE(windows->row(ann)->text(0), ann);
}

QTEST_MAIN(tst_EditingInWindows)
#include "tst_editing_in_windows.moc"

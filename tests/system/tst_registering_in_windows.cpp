// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "core/accounts/kirv_account_collection.h"
#include "tests/support/xmpp/registration_script.h"
#include "tests/support/xmpp/xmpp_observer.h"
#include "tests/system/kirv_windows.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

namespace {

const QString xmpp = QStringLiteral("XMPP");
const QString here = QStringLiteral("Server on this computer");
const QString hereInClear = QStringLiteral("Server on this computer, unencrypted");
const QString romeo = QStringLiteral("romeo");
const QString romeoAddress = QStringLiteral("romeo@localhost");
const QString secret = QStringLiteral("secret");
const QString changePassword = QStringLiteral("Change Password on Server…");
const QString deleteAccount = QStringLiteral("Delete Account on Server…");

} // namespace

/// What a person does who has no account yet, and what can be done with an account on its server, in the client's
/// windows.
class tst_registering_in_windows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newAccountIsInTheListAndLoggedIn();
    void takenNameIsSaidAndNothingIsLost();
    void registrationThatIsNotOfferedIsSaid();
    void silentServerIsSaid();
    void serverThatIsNotThereIsSaid();
    void formIsShownAsTheServerHasIt();
    void serverGoesWhileTheFormIsFilledIn();
    void connectionIsLostWhileTheFormIsSent();
    void clientQuitsWhileTheServerIsAsked();

    void passwordIsChangedOnTheServer();
    void actionsNeedAConnection();
    void accountIsDeletedOnTheServer();
    void cancelKeepsTheAccount_data();
    void cancelKeepsTheAccount();

private:
    bool start(KirvProsodyServer &server);
    void use(quint16 port) { qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(port)); }
    /// Clicks the register button and chooses a ready-made configuration in the window that opens.
    bool openWindow(const QString &configuration);
    void press(const char *button);
    /// What the window says when the server has answered.
    QString message() const;
    bool isAtForm() const { return window && child<QWidget>("XmppRegistration_FormFields")->isVisible(); }
    void fill(const char *field, const QString &text) { KirvWindows::fill(window, QLatin1String(field), text); }
    QString filled(const char *field) const
    {
        return child<QLineEdit>(qPrintable(QStringLiteral("KirvField_%1").arg(QLatin1String(field))))->text();
    }
    template <class Widget>
    Widget *child(const char *name) const
    {
        return KirvWindows::child<Widget>(window, name);
    }
    bool isConnected(const QString &login) const { return windows->state(login) == QLatin1String("Connected"); }

    bool addRomeo(KirvProsodyServer &server);
    /// Chooses a command in the Server Account menu of the account's edit window.
    bool choose(QDialog *editWindow, const QString &command);
    static QMessageBox *box(const char *name)
    {
        return qobject_cast<QMessageBox *>(KirvWindowDriver::window(QLatin1String(name)));
    }
    static void confirm(const char *question)
    {
        KirvWindowDriver::click(
            box(question)->findChild<QPushButton *>(QLatin1String(question) + QLatin1String("_Delete")));
    }

    std::unique_ptr<KirvWindows> windows;
    QPointer<QWidget> window; ///< of the registration
};

void tst_registering_in_windows::init()
{
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
}

void tst_registering_in_windows::cleanup()
{
    windows.reset();
    QVERIFY(!window);
    qunsetenv("KIRV_XMPP_LOCAL_PORT");
    qunsetenv("KIRV_XMPP_LOCAL_CERTIFICATE");
}

bool tst_registering_in_windows::start(KirvProsodyServer &server)
{
    if (!server.start()) {
        qWarning("%s", qPrintable(server.errorString()));
        return false;
    }
    use(server.port());
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", server.certificatePath().toLocal8Bit());
    return true;
}

bool tst_registering_in_windows::openWindow(const QString &configuration)
{
    windows->showPage(0);
    if (!QTest::qWaitFor([this] { return windows->client->accountsPage()->isVisible(); }, patience))
        return false;
    KirvWindowDriver::click(
        KirvWindows::child<QToolButton>(windows->client->accountsPage(), "Accounts_RegisterButton"));
    window = KirvWindowDriver::window(QStringLiteral("XmppRegistration"));
    if (!window || !QTest::qWaitForWindowExposed(window))
        return false;
    KirvWindowDriver::choose(child<QComboBox>("XmppRegistration_Configuration"), configuration);
    return filled("domain") == QLatin1String("localhost");
}

void tst_registering_in_windows::press(const char *button)
{
    KirvWindowDriver::click(child<QPushButton>(button));
}

QString tst_registering_in_windows::message() const
{
    const auto *label = window ? child<QLabel>("XmppRegistration_Message") : nullptr;
    const bool hasAnswer = label && label->isVisible() && !child<QWidget>("XmppRegistration_Progress")->isVisible();
    return hasAnswer ? label->text() : QString();
}

bool tst_registering_in_windows::addRomeo(KirvProsodyServer &server)
{
    return start(server) && server.addUser(romeo, secret)
        && windows->add(
            xmpp, here, romeoAddress, secret,
            [](QWidget *window) {
                KirvWindows::child<QAbstractButton>(window, "AddAccount_RememberPasswordCheckbox")->setChecked(true);
            })
        && QTest::qWaitFor([this] { return isConnected(romeoAddress); }, patience);
}

bool tst_registering_in_windows::choose(QDialog *editWindow, const QString &command)
{
    KirvWindowDriver walk(windows->profileFolder());
    walk.expectOnTop(
        QStringLiteral("The edit window is there"), [editWindow] { return editWindow->isVisible(); },
        [editWindow] {
            KirvWindowDriver::openMenu(KirvWindows::child<QPushButton>(editWindow, "EditAccount_ServerAccountButton"));
        });
    walk.expect(
        QStringLiteral("The menu offers: %1").arg(command), [command] { return KirvWindowDriver::menuOffers(command); },
        [command] { KirvWindowDriver::clickInMenu(command); });
    return walk.run();
}

void tst_registering_in_windows::newAccountIsInTheListAndLoggedIn()
{
    KirvProsodyServer server;
    QVERIFY(start(server));
    QVERIFY(openWindow(here));
    press("XmppRegistration_NextButton");
    TRY(isAtForm());
    fill("username", romeo);
    fill("password", secret);
    QVERIFY(child<QCheckBox>("XmppRegistration_Remember")->isChecked());
    press("XmppRegistration_NextButton");
    TRY(!window);

    TRY(windows->row(romeoAddress));
    QCOMPARE(windows->row(romeoAddress)->checkState(0), Qt::Checked);
    QCOMPARE(windows->list()->topLevelItemCount(), 1);
    TRY(isConnected(romeoAddress));
    QVERIFY(server.hasUser(romeo));
    TRY(server.isOnline(romeo));
    TRY(windows->selector()->count() == 1);

    QVERIFY(windows->start());
    TRY(isConnected(romeoAddress));
}

void tst_registering_in_windows::takenNameIsSaidAndNothingIsLost()
{
    KirvProsodyServer server;
    QVERIFY(start(server));
    QVERIFY(server.addUser(romeo, QStringLiteral("another")));
    QVERIFY(openWindow(here));
    press("XmppRegistration_NextButton");
    TRY(isAtForm());
    fill("username", romeo);
    fill("password", secret);
    press("XmppRegistration_NextButton");
    TRY_SAYS(message(), "\"romeo\" is already in use");
    QVERIFY(isAtForm());
    QCOMPARE(filled("username"), romeo);
    QCOMPARE(filled("password"), secret);
    QCOMPARE(windows->list()->topLevelItemCount(), 0);

    fill("username", QStringLiteral("romeo2"));
    press("XmppRegistration_NextButton");
    TRY(!window);
    TRY(isConnected(QStringLiteral("romeo2@localhost")));
}

void tst_registering_in_windows::registrationThatIsNotOfferedIsSaid()
{
    KirvProsodyServer::Options options;
    options.allowsRegistration = false;
    KirvProsodyServer server(options);
    QVERIFY(start(server));
    QVERIFY(openWindow(here));
    press("XmppRegistration_NextButton");
    TRY_SAYS(message(), "does not offer");
    QVERIFY(!isAtForm());
    QCOMPARE(filled("domain"), QStringLiteral("localhost"));
    QCOMPARE(filled("server"), server.host());
    press("XmppRegistration_CloseButton");
    TRY(!window);
}

void tst_registering_in_windows::silentServerIsSaid()
{
    ScriptedXmppServer server;
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    window->setProperty("timeout", 500);
    press("XmppRegistration_NextButton");
    QVERIFY(child<QWidget>("XmppRegistration_Progress")->isVisible());
    TRY_SAYS(message(), "did not answer in time");
    QVERIFY(!isAtForm());
    QCOMPARE(filled("domain"), QStringLiteral("localhost"));
    QVERIFY(child<QPushButton>("XmppRegistration_NextButton")->isEnabled());
}

void tst_registering_in_windows::serverThatIsNotThereIsSaid()
{
    use(KirvLocalServer::findFreePort());
    QVERIFY(openWindow(hereInClear));
    fill("domain", QStringLiteral("example.org"));
    press("XmppRegistration_NextButton");
    TRY_SAYS(message(), "does not accept connections");
    QCOMPARE(filled("domain"), QStringLiteral("example.org"));

    // It comes after all.
    KirvProsodyServer server;
    QVERIFY(start(server));
    KirvWindowDriver::choose(child<QComboBox>("XmppRegistration_Configuration"), here);
    fill("domain", QStringLiteral("localhost"));
    press("XmppRegistration_NextButton");
    TRY(isAtForm());
}

void tst_registering_in_windows::formIsShownAsTheServerHasIt()
{
    ScriptedXmppServer server(registering(dataForm(pngPicture())));
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    press("XmppRegistration_NextButton");
    TRY(isAtForm());
    const QString instructions = child<QLabel>("XmppRegistration_Instructions")->text();
    QVERIFY(instructions.contains(QLatin1String("Join <us>")) && instructions.contains(QLatin1String("Fill it in.")));
    const auto *picture = child<QLabel>("XmppRegistration_Picture1");
    QVERIFY(picture && picture->isVisible() && !picture->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(filled("odd"), QStringLiteral("as it was"));

    fill("username", romeo);
    fill("password", secret);
    press("XmppRegistration_NextButton");
    QVERIFY2(message().contains(QLatin1String("What is written there?")), qPrintable(message()));
    QVERIFY(!server.received().contains("type=\"set\""));

    fill("ocr", QStringLiteral("green"));
    fill("odd", QStringLiteral("odder"));
    press("XmppRegistration_NextButton");
    TRY(!window);
    QVERIFY(server.received().contains("<field var=\"ocr\"><value>green</value></field>"));
    QVERIFY(server.received().contains("<field var=\"odd\"><value>odder</value></field>"));
    TRY(windows->row(romeoAddress));
}

void tst_registering_in_windows::serverGoesWhileTheFormIsFilledIn()
{
    KirvProsodyServer server;
    QVERIFY(start(server));
    QVERIFY(openWindow(here));
    press("XmppRegistration_NextButton");
    TRY(isAtForm());
    fill("username", romeo);
    fill("password", secret);
    server.kill();
    press("XmppRegistration_NextButton");
    TRY(!message().isEmpty());
    QVERIFY(isAtForm());
    QCOMPARE(filled("username"), romeo);
    QCOMPARE(filled("password"), secret);
    QVERIFY(!windows->row(romeoAddress));

    QVERIFY(start(server));
    press("XmppRegistration_NextButton");
    TRY(!window);
    TRY(isConnected(romeoAddress));
}

void tst_registering_in_windows::connectionIsLostWhileTheFormIsSent()
{
    ScriptedXmppServer server(registering("<username/><password/>", ""));
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    press("XmppRegistration_NextButton");
    TRY(isAtForm());
    fill("username", romeo);
    fill("password", secret);
    press("XmppRegistration_NextButton");
    TRY(server.received().contains("type=\"set\""));
    server.hangUp();
    TRY_SAYS(message(), "lost");
    QVERIFY(isAtForm());
    QCOMPARE(filled("username"), romeo);
    QCOMPARE(filled("password"), secret);
    QCOMPARE(windows->list()->topLevelItemCount(), 0);
}

void tst_registering_in_windows::clientQuitsWhileTheServerIsAsked()
{
    ScriptedXmppServer server;
    use(server.serverPort());
    QVERIFY(openWindow(hereInClear));
    press("XmppRegistration_NextButton");
    TRY(server.connections() == 1);
    windows->quit();
    QVERIFY(!window);
    QVERIFY(windows->start());
    QCOMPARE(windows->list()->topLevelItemCount(), 0);
}

void tst_registering_in_windows::passwordIsChangedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QVERIFY(choose(editWindow, changePassword));
    QPointer<QWidget> dialog;
    TRY((dialog = KirvWindowDriver::window(QStringLiteral("XmppPassword"))));
    KirvWindowDriver::type(KirvWindows::child<QLineEdit>(dialog, "XmppPassword_Password"), QStringLiteral("fresh"));
    KirvWindowDriver::type(KirvWindows::child<QLineEdit>(dialog, "XmppPassword_Repetition"), QStringLiteral("fresh"));
    KirvWindowDriver::click(KirvWindows::button(dialog, "XmppPassword_Buttons", QDialogButtonBox::Ok));
    TRY(!dialog);
    QCOMPARE(windows->account(romeoAddress)->getPassword(), QStringLiteral("fresh"));
    XmppObserver withOldPassword;
    QVERIFY(!withOldPassword.logIn(server, romeo, secret));
    XmppObserver withNewPassword;
    QVERIFY(withNewPassword.logIn(server, romeo, QStringLiteral("fresh")));

    // Saving what else was edited must not bring the old password back.
    QVERIFY(windows->save(editWindow));
    QVERIFY(windows->start());
    TRY(isConnected(romeoAddress));
    QCOMPARE(windows->problem(romeoAddress), QString());
}

void tst_registering_in_windows::actionsNeedAConnection()
{
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QMenu *menu = KirvWindows::child<QPushButton>(editWindow, "EditAccount_ServerAccountButton")->menu();
    const auto areOffered = [menu] {
        emit menu->aboutToShow();
        return menu->actions().size() == 2 && menu->actions().at(0)->isEnabled() && menu->actions().at(1)->isEnabled();
    };
    QVERIFY(areOffered());
    server.kill();
    TRY(!isConnected(romeoAddress));
    QVERIFY(!areOffered());
    QVERIFY(choose(editWindow, deleteAccount));
    QVERIFY(!KirvWindowDriver::window(QStringLiteral("XmppDeletion_FirstQuestion")));
}

void tst_registering_in_windows::accountIsDeletedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QVERIFY(server.hasUser(romeo));
    QVERIFY(windows->profileHolds(romeoAddress.toUtf8()));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QVERIFY(choose(editWindow, deleteAccount));
    for (const char *question : { "XmppDeletion_FirstQuestion", "XmppDeletion_SecondQuestion" }) {
        TRY(box(question));
        QVERIFY(box(question)->text().contains(romeoAddress));
        QVERIFY(server.hasUser(romeo));
        confirm(question);
    }
    TRY(!windows->row(romeoAddress));
    TRY(!server.hasUser(romeo));
    TRY(!KirvWindowDriver::window(QStringLiteral("EditAccount")));
    QVERIFY(!windows->account(romeoAddress));
    TRY(windows->selector()->count() == 0);
    QVERIFY(!server.isOnline(romeo));
    windows->quit();
    QVERIFY(!windows->profileHolds(romeoAddress.toUtf8()));
}

void tst_registering_in_windows::cancelKeepsTheAccount_data()
{
    QTest::addColumn<QStringList>("questions");
    const QString first = QStringLiteral("XmppDeletion_FirstQuestion");
    const QString second = QStringLiteral("XmppDeletion_SecondQuestion");
    QTest::newRow("at the first question") << QStringList { first };
    QTest::newRow("at the second question") << QStringList { first, second };
}

void tst_registering_in_windows::cancelKeepsTheAccount()
{
    QFETCH(QStringList, questions);
    KirvProsodyServer server;
    QVERIFY(addRomeo(server));
    QDialog *editWindow = windows->edit(romeoAddress);
    QVERIFY(editWindow);
    QVERIFY(choose(editWindow, deleteAccount));
    const QString last = questions.takeLast();
    for (const QString &question : qAsConst(questions)) {
        TRY(box(qPrintable(question)));
        confirm(qPrintable(question));
    }
    TRY(box(qPrintable(last)));
    KirvWindowDriver::click(box(qPrintable(last))->button(QMessageBox::Cancel));
    TRY(!box(qPrintable(last)));
    QVERIFY(!box("XmppDeletion_SecondQuestion"));
    QVERIFY(editWindow->isVisible());
    QVERIFY(windows->row(romeoAddress));
    QVERIFY(isConnected(romeoAddress));
    QVERIFY(server.hasUser(romeo));
    QVERIFY(server.isOnline(romeo));
}

QTEST_MAIN(tst_registering_in_windows)
#include "tst_registering_in_windows.moc"

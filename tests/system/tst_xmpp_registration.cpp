// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_server_commands.h"
#include "host/kirv_field_widget.h"
#include "tests/support/gui/kirv_assistant_window.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_registration_script.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>

using Values = KirvPluginProfile::Values;
using Assistant = KirvAssistantWindow;

namespace {

const QString romeoAddress = "romeo@localhost";
const KirvAccountKey romeoKey { romeoAddress, "XMPP" };

} // namespace

/// The requests of the XMPP plug-in in the assistant's real window, against servers: the registration of an account,
/// and what can be done with an account on its server.
class tst_XmppRegistration : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void signalOpensOneWindow();
    void signalForAnotherProtocolIsLeftAlone();
    void windowGoesWithTheProtocol();
    void newAccountIsInTheListAndLogsIn();
    void passwordIsForgottenOnRequest();
    void takenNameCanBeChanged();
    void registrationIsNotOffered();
    void silentServerIsSaid();
    void serverIsNotThere();
    void untrustedCertificateIsAskedAbout();
    void domainMustBeEntered();
    void requiredFieldsMustBeFilledIn();
    void formIsShownAsItComes();
    void fixedFieldsAreShownAsTheyCome();
    void formWithoutFieldsNamesItsAddress();
    void connectionLostWhileTheFormIsFilledIn();
    void connectionLostWhileTheFormIsSent();
    void goingBackKeepsWhatWasTyped();
    void accountThatIsInTheListAlreadyIsSaid();

    void passwordIsChangedOnTheServer();
    void passwordChangeThatFailsKeepsTheOldOne();
    void accountIsDeletedOnTheServer();
    void deletionIsConfirmedTwice_data();
    void deletionIsConfirmedTwice();
    void actionsWithoutAConnectionDoNothing();

private:
    bool openRegistration();
    /// Runs an action of romeo's account; false when no window opens.
    bool openAction(const QString &actionId);
    void type(const QString &field, const QString &text);
    void fillServer(const Values &values);
    void fillServer(const KirvProsodyServer &server);
    void fillServer(const KirvScriptedXmppServer &server);
    static void press(QPushButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
    /// Presses Continue at the server's step and waits for the form.
    static bool openForm();
    /// Opens the registration on \a server up to its form.
    template <typename Server>
    bool openFormOf(const Server &server)
    {
        if (!openRegistration())
            return false;
        fillServer(server);
        return openForm();
    }
    KirvAccount *romeo() const { return profile->accounts().find(romeoKey); }

    std::unique_ptr<KirvXmppProfile> profile;
    std::unique_ptr<QWidget> window;
    KirvServerCommands *commands = nullptr; ///< owned by the window
};

void tst_XmppRegistration::init()
{
    profile = std::make_unique<KirvXmppProfile>();
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
    window = std::make_unique<QWidget>();
    window->show();
    commands = new KirvServerCommands(profile->plugins(), profile->accounts(), window.get());
}

void tst_XmppRegistration::cleanup()
{
    window.reset();
    profile.reset();
    QVERIFY(!Assistant::window());
}

bool tst_XmppRegistration::openRegistration()
{
    profile->plugins().broadcast("register_account", {});
    return Assistant::window();
}

bool tst_XmppRegistration::openAction(const QString &actionId)
{
    commands->run(romeoKey, actionId, window.get());
    return Assistant::window();
}

void tst_XmppRegistration::type(const QString &field, const QString &text)
{
    QLineEdit *edit = Assistant::field(field);
    QVERIFY2(edit, qPrintable(field));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void tst_XmppRegistration::fillServer(const Values &values)
{
    auto *widget = Assistant::part<KirvFieldWidget>("Fields");
    widget->fillWithFields(KirvPluginProfile::withValues(widget->getFields(), values));
}

void tst_XmppRegistration::fillServer(const KirvProsodyServer &server)
{
    fillServer({ { "domain", server.domain() },
                 { "server", server.host() },
                 { "port", QString::number(server.port()) },
                 { "certificate", server.certificatePath() } });
}

void tst_XmppRegistration::fillServer(const KirvScriptedXmppServer &server)
{
    fillServer({ { "domain", "localhost" },
                 { "server", "127.0.0.1" },
                 { "port", QString::number(server.serverPort()) },
                 { "encryption", "none" } });
}

bool tst_XmppRegistration::openForm()
{
    press(Assistant::next());
    return QTest::qWaitFor(&Assistant::isAtLaterStep, kirvPatience);
}

void tst_XmppRegistration::signalOpensOneWindow()
{
    QVERIFY(openRegistration());
    const QPointer<KirvServerAssistant> first = Assistant::window();
    QVERIFY(openRegistration());
    QCOMPARE(Assistant::window(), first.data());
    QVERIFY(Assistant::next()->isEnabled() && !Assistant::isAtLaterStep());
    press(Assistant::close());
    KIRV_TRY(!first);
}

void tst_XmppRegistration::signalForAnotherProtocolIsLeftAlone()
{
    QSignalSpy unavailable(commands, &KirvServerCommands::unavailable);
    profile->plugins().broadcast("register_account", { KirvArg("IRC") });
    QVERIFY(!Assistant::window());
    QCOMPARE(unavailable.size(), 1);
    profile->plugins().broadcast("something_else", {});
    QVERIFY(!Assistant::window());
    profile->plugins().broadcast("register_account", { KirvArg("XMPP") });
    QVERIFY(Assistant::window());
}

void tst_XmppRegistration::windowGoesWithTheProtocol()
{
    QVERIFY(openRegistration());
    const QPointer<KirvServerAssistant> open = Assistant::window();
    QVERIFY(profile->plugins().unload(profile->plugins().plugins().first().fileName));
    KIRV_TRY(!open);
}

void tst_XmppRegistration::newAccountIsInTheListAndLogsIn()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QSignalSpy added(&profile->accounts(), &KirvAccountCollection::accountAdded);
    QVERIFY(openFormOf(server));
    QVERIFY(!Assistant::text().isEmpty());
    type("username", "romeo");
    type("password", "secret");
    press(Assistant::next());
    KIRV_TRY(!Assistant::window());

    QCOMPARE(added.size(), 1);
    KirvAccount *account = romeo();
    QVERIFY(account);
    KIRV_TRY_STATE(account, Online);
    QVERIFY(server.isOnline("romeo"));
    QVERIFY(account->record().rememberPassword);
    QCOMPARE(account->record().password, QString("secret"));
    KirvObservingXmppClient independent;
    QVERIFY(independent.logIn(server, "romeo"));
}

void tst_XmppRegistration::passwordIsForgottenOnRequest()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openFormOf(server));
    type("username", romeoAddress); // the whole address is understood, too
    type("password", "secret");
    Assistant::part<QCheckBox>("Remember")->setChecked(false);
    press(Assistant::next());
    KIRV_TRY(!Assistant::window());
    QVERIFY(romeo());
    QVERIFY(!romeo()->record().rememberPassword);
    KIRV_TRY_STATE(romeo(), Online);
}

void tst_XmppRegistration::takenNameCanBeChanged()
{
    KirvProsodyServer server;
    QVERIFY2(server.start() && server.addUser("romeo", "other"), qPrintable(server.errorString()));
    QVERIFY(openFormOf(server));
    type("username", "romeo");
    type("password", "secret");
    press(Assistant::next());
    KIRV_TRY_CONTAINS(Assistant::message(), "\"romeo\" is already in use");
    QCOMPARE(Assistant::filled("username"), QString("romeo"));
    QCOMPARE(Assistant::filled("password"), QString("secret"));
    QVERIFY(!romeo());

    type("username", "romeo2");
    QLineEdit *edit = Assistant::field("username");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    KIRV_TRY(!Assistant::window());
    KirvAccount *account = profile->accounts().find({ "romeo2@localhost", "XMPP" });
    QVERIFY(account);
    KIRV_TRY_STATE(account, Online);
}

void tst_XmppRegistration::registrationIsNotOffered()
{
    KirvProsodyServer::Options options;
    options.allowsRegistration = false;
    KirvProsodyServer server(options);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openRegistration());
    fillServer(server);
    press(Assistant::next());
    KIRV_TRY_CONTAINS(Assistant::message(), "does not offer");
    QVERIFY(!Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled("domain"), QString("localhost"));
}

void tst_XmppRegistration::silentServerIsSaid()
{
    KirvScriptedXmppServer server;
    QVERIFY(openRegistration());
    QVERIFY(commands->findChild<KirvServerRequest *>()->setProperty("timeout", 200));
    fillServer(server);
    QLineEdit *edit = Assistant::field("domain");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(Assistant::isWaiting());
    KIRV_TRY_CONTAINS(Assistant::message(), "in time");
    QCOMPARE(edit->text(), QString("localhost"));
    QCOMPARE(Assistant::window()->focusWidget(), edit);
    QVERIFY(Assistant::next()->isEnabled());
}

void tst_XmppRegistration::serverIsNotThere()
{
    QVERIFY(openRegistration());
    const QString port = QString::number(KirvLocalServer::findFreePort());
    fillServer({ { "domain", "localhost" }, { "server", "127.0.0.1" }, { "port", port } });
    press(Assistant::next());
    KIRV_TRY_CONTAINS(Assistant::message(), "does not accept connections");
}

void tst_XmppRegistration::untrustedCertificateIsAskedAbout()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openRegistration());
    fillServer(server);
    fillServer(Values { { "certificate", "" } });
    QVERIFY(openForm());
    QVERIFY2(Assistant::text().contains("not trusted"), qPrintable(Assistant::text()));
    QVERIFY2(Assistant::message().contains("self-signed"), qPrintable(Assistant::message()));
    QCOMPARE(Assistant::next()->text().remove('&'), QString("Trust for This Account"));
    QVERIFY(!Assistant::next()->isDefault());
    press(Assistant::next());
    KIRV_TRY(Assistant::field("username"));
    type("username", "romeo");
    type("password", "secret");
    press(Assistant::next());
    KIRV_TRY(romeo());
    KIRV_TRY(romeo()->isOnline());
    QCOMPARE(romeo()->record().trustedCertificate.size(), 64);
    QVERIFY(!romeo()->connection()->pinnedCertificate().isNull());
}

void tst_XmppRegistration::domainMustBeEntered()
{
    QVERIFY(openRegistration());
    press(Assistant::next());
    QVERIFY(Assistant::message().contains("domain"));
    // A configuration for this computer knows its domain.
    auto *box = Assistant::part<QComboBox>("Configuration");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(Assistant::filled("domain"), QString("localhost"));
    QCOMPARE(Assistant::filled("server"), QString("127.0.0.1"));
}

void tst_XmppRegistration::requiredFieldsMustBeFilledIn()
{
    KirvScriptedXmppServer server(registering("<username/><password/>"));
    QVERIFY(openFormOf(server));
    type("username", "romeo");
    press(Assistant::next());
    QVERIFY(Assistant::message().contains("Password"));
    QVERIFY(!server.received().contains("type=\"set\""));
}

void tst_XmppRegistration::formIsShownAsItComes()
{
    KirvScriptedXmppServer server(registering(dataForm(pngPicture())));
    QVERIFY(openFormOf(server));
    QVERIFY(Assistant::text().contains("Join <us>") && Assistant::text().contains("Fill it in."));
    KIRV_TRY(Assistant::part<QLabel>("Picture1"));
    const auto *picture = Assistant::part<QLabel>("Picture1");
    QVERIFY(picture && picture->pixmap(Qt::ReturnByValue).size() == QSize(60, 20));
    QCOMPARE(picture->accessibleName(), QString("What is written there?"));
    QVERIFY(!Assistant::field<QWidget>("FORM_TYPE"));
    QCOMPARE(Assistant::field("password")->echoMode(), QLineEdit::Password);
    QVERIFY(Assistant::field<QCheckBox>("news")->isChecked());
    QCOMPARE(Assistant::field<QComboBox>("colour")->currentText(), QString("Blue"));
    QVERIFY(Assistant::field<QCheckBox>("pets/1")->isChecked());
    QCOMPARE(Assistant::filled("odd"), QString("as it was"));

    type("username", "romeo");
    type("password", "secret");
    type("ocr", "a<b");
    Assistant::field<QCheckBox>("pets/0")->setChecked(true);
    press(Assistant::next());
    KIRV_TRY(!Assistant::window());
    const QByteArray sent = server.received().mid(server.received().indexOf("type=\"set\""));
    const auto holds = [&sent](const QByteArray &name, const QByteArray &values) {
        return sent.contains("<field var=\"" + name + "\">" + values + "</field>");
    };
    QVERIFY2(sent.contains("<x xmlns=\"jabber:x:data\" type=\"submit\">")
                 || sent.contains("<x type=\"submit\" xmlns=\"jabber:x:data\">"),
             sent.constData());
    QVERIFY2(holds("FORM_TYPE", "<value>jabber:iq:register</value>"), sent.constData());
    QVERIFY2(holds("username", "<value>romeo</value>"), sent.constData());
    QVERIFY2(holds("news", "<value>1</value>"), sent.constData());
    QVERIFY2(holds("colour", "<value>b</value>"), sent.constData());
    QVERIFY2(holds("pets", "<value>dog</value><value>cat</value>"), sent.constData());
    QVERIFY2(holds("story", "<value>one</value><value>two</value>"), sent.constData());
    QVERIFY2(holds("odd", "<value>as it was</value>"), sent.constData());
    QVERIFY2(holds("ocr", "<value>a&lt;b</value>"), sent.constData());
    QVERIFY(romeo());
}

void tst_XmppRegistration::fixedFieldsAreShownAsTheyCome()
{
    KirvScriptedXmppServer server(
        registering("<instructions>Please.</instructions><key>k1</key><username/><password/><zip/><shoesize/>"));
    QVERIFY(openFormOf(server));
    QVERIFY(!Assistant::field<QWidget>("key"));
    type("username", "romeo");
    type("password", "secret");
    type("zip", "37121");
    type("shoesize", "43");
    press(Assistant::next());
    KIRV_TRY(!Assistant::window());
    for (const char *part : { "<key>k1</key>", "<username>romeo</username>", "<password>secret</password>",
                              "<zip>37121</zip>", "<shoesize>43</shoesize>" })
        QVERIFY2(server.received().contains(part), part);
}

void tst_XmppRegistration::formWithoutFieldsNamesItsAddress()
{
    KirvScriptedXmppServer server(registering("<instructions>Go there.</instructions><x xmlns='jabber:x:oob'>"
                                              "<url>https://example.org/&lt;join&gt;</url></x>"));
    QVERIFY(openRegistration());
    fillServer(server);
    press(Assistant::next());
    KIRV_TRY_CONTAINS(Assistant::message(), "from within a client");
    QVERIFY(Assistant::text().contains("https://example.org/<join>"));
    QVERIFY(!Assistant::next()->isVisible());
}

void tst_XmppRegistration::connectionLostWhileTheFormIsFilledIn()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openFormOf(server));
    type("username", "romeo");
    type("password", "secret");
    server.kill();
    press(Assistant::next());
    KIRV_TRY(!Assistant::message().isEmpty());
    QCOMPARE(Assistant::filled("username"), QString("romeo"));
    QCOMPARE(Assistant::filled("password"), QString("secret"));

    QVERIFY2(server.start(), qPrintable(server.errorString()));
    press(Assistant::next());
    KIRV_TRY(!Assistant::window());
    QVERIFY(romeo());
    KIRV_TRY_STATE(romeo(), Online);
}

void tst_XmppRegistration::connectionLostWhileTheFormIsSent()
{
    KirvScriptedXmppServer server(registering("<username/><password/>", ""));
    QVERIFY(openFormOf(server));
    type("username", "romeo");
    type("password", "secret");
    press(Assistant::next());
    KIRV_TRY(server.received().contains("type=\"set\""));
    server.hangUp();
    KIRV_TRY_CONTAINS(Assistant::message(), "lost");
    QVERIFY(Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled("username"), QString("romeo"));
    QVERIFY(!romeo());
}

void tst_XmppRegistration::goingBackKeepsWhatWasTyped()
{
    KirvScriptedXmppServer server(registering("<username/><password/>"));
    QVERIFY(openFormOf(server));
    type("username", "romeo");
    press(Assistant::back());
    QVERIFY(!Assistant::isAtLaterStep());
    QCOMPARE(Assistant::filled("domain"), QString("localhost"));
    QVERIFY(openForm());
    QCOMPARE(Assistant::filled("username"), QString("romeo"));
}

void tst_XmppRegistration::accountThatIsInTheListAlreadyIsSaid()
{
    profile->createAccount(romeoAddress, {});
    KirvScriptedXmppServer server(registering("<username/><password/>"));
    QVERIFY(openFormOf(server));
    type("username", "romeo");
    type("password", "another");
    press(Assistant::next());
    KIRV_TRY_CONTAINS(Assistant::message(), "exists already");
    QVERIFY(!Assistant::next()->isVisible());
    QCOMPARE(romeo()->record().password, QString("secret"));
}

void tst_XmppRegistration::passwordIsChangedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);
    QSignalSpy states(account->connection(), &KirvConnection::stateChanged);

    QVERIFY(openAction("change-password"));
    type("new_password", "new");
    type("repetition", "ne");
    press(Assistant::next());
    QVERIFY(Assistant::message().contains("different"));
    QTest::keyClicks(Assistant::field("repetition"), "w");
    press(Assistant::next());
    KIRV_TRY(Assistant::message().contains("changed"));
    press(Assistant::close());
    KIRV_TRY(!Assistant::window());

    QCOMPARE(account->record().password, QString("new"));
    QCoreApplication::processEvents();
    QVERIFY(states.isEmpty()); // the session goes on
    profile->goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    KirvObservingXmppClient independent;
    QVERIFY(independent.logIn(server, "romeo", "new"));
}

void tst_XmppRegistration::passwordChangeThatFailsKeepsTheOldOne()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);

    QVERIFY(openAction("change-password"));
    type("new_password", "new");
    type("repetition", "new");
    server.kill();
    press(Assistant::next());
    KIRV_TRY_CONTAINS(Assistant::message(), "lost");
    QCOMPARE(Assistant::filled("new_password"), QString("new"));
    QCOMPARE(account->record().password, QString("secret"));
    press(Assistant::close());
    KIRV_TRY(!Assistant::window());
}

void tst_XmppRegistration::accountIsDeletedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);
    QSignalSpy failed(account->connection(), &KirvConnection::failed);

    QVERIFY(openAction("delete-on-server"));
    const QString question = Assistant::text();
    QVERIFY(question.contains(romeoAddress));
    press(Assistant::next());
    QVERIFY(Assistant::text().contains(romeoAddress) && Assistant::text() != question);
    QVERIFY(server.hasUser("romeo"));
    press(Assistant::next());
    KIRV_TRY(!romeo());
    KIRV_TRY(!Assistant::window());
    QCOMPARE(failed.size(), 0);
    QVERIFY(!server.isOnline("romeo"));
    QVERIFY(!server.hasUser("romeo"));
}

void tst_XmppRegistration::deletionIsConfirmedTwice_data()
{
    QTest::addColumn<int>("confirmations");
    QTest::newRow("cancelled at the first question") << 0;
    QTest::newRow("cancelled at the second question") << 1;
}

void tst_XmppRegistration::deletionIsConfirmedTwice()
{
    QFETCH(int, confirmations);
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);

    QVERIFY(openAction("delete-on-server"));
    for (int i = 0; i < confirmations; ++i)
        press(Assistant::next());
    QTest::keyClick(Assistant::window(), Qt::Key_Escape);
    KIRV_TRY(!Assistant::window());
    // The session still serves: a deletion would end it.
    KirvObservingXmppClient independent;
    QVERIFY(independent.logIn(server, "romeo", "secret"));
    QVERIFY(account->isOnline());
    QVERIFY(server.hasUser("romeo"));
}

void tst_XmppRegistration::actionsWithoutAConnectionDoNothing()
{
    KirvAccount *account = profile->createAccount(romeoAddress, {});
    QVERIFY(!commands->canRun(romeoKey));
    QVERIFY(!openAction("no such action"));
    QCOMPARE(commands->actionsOf(romeoKey).size(), 2);

    // One that was opened before the connection ended says so, and goes with its account.
    QVERIFY(openAction("delete-on-server"));
    press(Assistant::next());
    press(Assistant::next());
    KIRV_TRY_CONTAINS(Assistant::message(), "not connected");
    const QPointer<KirvServerAssistant> deletion = Assistant::window();
    QVERIFY(openAction("change-password"));
    QVERIFY(account->record().password == "secret");
    KirvAccountManager::getInstance()->removeAccount(romeoAddress, "XMPP");
    KIRV_TRY(!deletion && !Assistant::window());
}

QTEST_MAIN(tst_XmppRegistration)
#include "tst_xmpp_registration.moc"

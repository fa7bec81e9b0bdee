// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_field_widget.h"
#include "tests/support/xmpp/registration_script.h"
#include "tests/support/xmpp/xmpp_observer.h"
#include "tests/support/xmpp/xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

const QString romeoAddress = "romeo@localhost";

} // namespace

/// The registration of an account in its real window, and what can be done with the account on its server.
class TestXmppRegistration : public QObject {
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
    void untrustedCertificateIsSaid();
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
    void deletionIsAskedTwice_data();
    void deletionIsAskedTwice();
    void actionsWithoutAConnectionDoNothing();

private:
    QDialog *openWindow();
    template <class Widget>
    Widget *child(const QString &name) const
    {
        return window ? window->findChild<Widget *>(name) : nullptr;
    }
    void type(const QString &field, const QString &text);
    void fillServer(const Values &values);
    void fillServer(const KirvProsodyServer &server);
    void fillServer(const ScriptedXmppServer &server);
    void press(const QString &button);
    QString message() const;
    bool isAtForm() const { return child<QWidget>("XmppRegistration_FormFields")->isVisible(); }
    KirvAccount *romeo() const { return profile->accounts().find({ romeoAddress, "XMPP" }); }
    static QDialog *topLevel(const QString &name);

    std::unique_ptr<XmppProfile> profile;
    QPointer<QDialog> window;
};

void TestXmppRegistration::init()
{
    profile = std::make_unique<XmppProfile>();
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
}

void TestXmppRegistration::cleanup()
{
    profile.reset();
    QVERIFY(!window);
}

QDialog *TestXmppRegistration::topLevel(const QString &name)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name && widget->isVisible())
            return qobject_cast<QDialog *>(widget);
    }
    return nullptr;
}

QDialog *TestXmppRegistration::openWindow()
{
    profile->plugins().emitCoreSignal("register_account", {});
    window = topLevel("XmppRegistration");
    return window;
}

void TestXmppRegistration::type(const QString &field, const QString &text)
{
    auto *edit = child<QLineEdit>("KirvField_" + field);
    QVERIFY2(edit, qPrintable(field));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void TestXmppRegistration::fillServer(const Values &values)
{
    auto *widget = child<KirvFieldWidget>("XmppRegistration_ServerFields");
    QList<KirvField> fields = widget->getFields();
    for (KirvField &field : fields) {
        if (values.contains(field.getId()))
            field.setText(values[field.getId()]);
    }
    widget->fillWithFields(fields);
}

void TestXmppRegistration::fillServer(const KirvProsodyServer &server)
{
    fillServer({ { "domain", server.domain() },
                 { "server", server.host() },
                 { "port", QString::number(server.port()) },
                 { "certificate", server.certificatePath() } });
}

void TestXmppRegistration::fillServer(const ScriptedXmppServer &server)
{
    fillServer({ { "domain", "localhost" },
                 { "server", "127.0.0.1" },
                 { "port", QString::number(server.serverPort()) },
                 { "encryption", "none" } });
}

void TestXmppRegistration::press(const QString &button)
{
    QTest::mouseClick(child<QPushButton>("XmppRegistration_" + button), Qt::LeftButton);
}

QString TestXmppRegistration::message() const
{
    auto *label = child<QLabel>("XmppRegistration_Message");
    return label && label->isVisible() && !child<QWidget>("XmppRegistration_Progress")->isVisible() ? label->text()
                                                                                                    : QString();
}

void TestXmppRegistration::signalOpensOneWindow()
{
    QVERIFY(openWindow());
    QDialog *first = window;
    QCOMPARE(openWindow(), first);
    QCOMPARE(child<QPushButton>("XmppRegistration_NextButton")->isEnabled(), true);
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus && widget->objectName().startsWith("Xmpp")
            && !qobject_cast<QLabel *>(widget) && !qobject_cast<QAbstractButton *>(widget))
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    press("CloseButton");
    TRY(!window);
}

void TestXmppRegistration::signalForAnotherProtocolIsLeftAlone()
{
    profile->plugins().emitCoreSignal("register_account", { KirvArg("IRC") });
    QVERIFY(!topLevel("XmppRegistration"));
    profile->plugins().emitCoreSignal("something_else", {});
    QVERIFY(!topLevel("XmppRegistration"));
    profile->plugins().emitCoreSignal("register_account", { KirvArg("XMPP") });
    QVERIFY(topLevel("XmppRegistration"));
}

void TestXmppRegistration::windowGoesWithTheProtocol()
{
    QVERIFY(openWindow());
    profile->plugins().unload(profile->plugins().plugins().first().fileName);
    TRY(!window);
}

void TestXmppRegistration::newAccountIsInTheListAndLogsIn()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QSignalSpy added(&profile->accounts(), &KirvAccountCollection::accountAdded);
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    QVERIFY(child<QLabel>("XmppRegistration_Instructions")->isVisible());
    type("username", "romeo");
    type("password", "secret");
    press("NextButton");
    TRY(!window);

    QCOMPARE(added.size(), 1);
    KirvAccount *account = romeo();
    QVERIFY(account);
    TRY_STATE(account, Online);
    QVERIFY(server.isOnline("romeo"));
    QVERIFY(account->remembersPassword());
    QCOMPARE(account->getPassword(), QString("secret"));
    XmppObserver independent;
    QVERIFY(independent.logIn(server, "romeo"));
}

void TestXmppRegistration::passwordIsForgottenOnRequest()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    type("username", romeoAddress); // the whole address is understood, too
    type("password", "secret");
    child<QCheckBox>("XmppRegistration_Remember")->setChecked(false);
    press("NextButton");
    TRY(!window);
    QVERIFY(romeo());
    QVERIFY(!romeo()->remembersPassword());
    TRY_STATE(romeo(), Online);
}

void TestXmppRegistration::takenNameCanBeChanged()
{
    KirvProsodyServer server;
    QVERIFY2(server.start() && server.addUser("romeo", "other"), qPrintable(server.errorString()));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    type("username", "romeo");
    type("password", "secret");
    press("NextButton");
    TRY(message().contains("romeo") && message().contains("in use"));
    QCOMPARE(child<QLineEdit>("KirvField_username")->text(), QString("romeo"));
    QCOMPARE(child<QLineEdit>("KirvField_password")->text(), QString("secret"));
    QVERIFY(!romeo());

    type("username", "romeo2");
    auto *edit = child<QLineEdit>("KirvField_username");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    TRY(!window);
    KirvAccount *account = profile->accounts().find({ "romeo2@localhost", "XMPP" });
    QVERIFY(account);
    TRY_STATE(account, Online);
}

void TestXmppRegistration::registrationIsNotOffered()
{
    KirvProsodyServer::Options options;
    options.allowsRegistration = false;
    KirvProsodyServer server(options);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(message().contains("does not offer"));
    QVERIFY(!isAtForm());
    QCOMPARE(child<QLineEdit>("KirvField_domain")->text(), QString("localhost"));
}

void TestXmppRegistration::silentServerIsSaid()
{
    ScriptedXmppServer server;
    QVERIFY(openWindow());
    window->setProperty("timeout", 200);
    fillServer(server);
    auto *edit = child<QLineEdit>("KirvField_domain");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(child<QWidget>("XmppRegistration_Progress")->isVisible());
    TRY(message().contains("in time"));
    QCOMPARE(edit->text(), QString("localhost"));
    QCOMPARE(window->focusWidget(), edit);
    QVERIFY(child<QPushButton>("XmppRegistration_NextButton")->isEnabled());
}

void TestXmppRegistration::serverIsNotThere()
{
    QVERIFY(openWindow());
    const QString port = QString::number(KirvLocalServer::findFreePort());
    fillServer({ { "domain", "localhost" }, { "server", "127.0.0.1" }, { "port", port } });
    press("NextButton");
    TRY(message().contains("does not accept connections"));
}

void TestXmppRegistration::untrustedCertificateIsSaid()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openWindow());
    fillServer(server);
    fillServer(Values { { "certificate", "" } });
    press("NextButton");
    TRY(message().contains("not trusted"));
    QVERIFY(!isAtForm());
}

void TestXmppRegistration::domainMustBeEntered()
{
    QVERIFY(openWindow());
    press("NextButton");
    QVERIFY(message().contains("domain"));
    // A configuration for this computer knows its domain.
    auto *box = child<QComboBox>("XmppRegistration_Configuration");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(child<QLineEdit>("KirvField_domain")->text(), QString("localhost"));
    QCOMPARE(child<QLineEdit>("KirvField_server")->text(), QString("127.0.0.1"));
}

void TestXmppRegistration::requiredFieldsMustBeFilledIn()
{
    ScriptedXmppServer server(registering("<username/><password/>"));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    type("username", "romeo");
    press("NextButton");
    QVERIFY(message().contains("Password"));
    QVERIFY(!server.received().contains("type=\"set\""));
}

void TestXmppRegistration::formIsShownAsItComes()
{
    ScriptedXmppServer server(registering(dataForm(pngPicture())));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    const auto *instructions = child<QLabel>("XmppRegistration_Instructions");
    QVERIFY(instructions->text().contains("Join <us>") && instructions->text().contains("Fill it in."));
    QCOMPARE(instructions->textFormat(), Qt::PlainText);
    const auto *picture = child<QLabel>("XmppRegistration_Picture1");
    QVERIFY(picture && picture->pixmap(Qt::ReturnByValue).size() == QSize(60, 20));
    QCOMPARE(picture->accessibleName(), QString("What is written there?"));
    QVERIFY(!child<QWidget>("KirvField_FORM_TYPE"));
    QCOMPARE(child<QLineEdit>("KirvField_password")->echoMode(), QLineEdit::Password);
    QVERIFY(child<QCheckBox>("KirvField_news")->isChecked());
    QCOMPARE(child<QComboBox>("KirvField_colour")->currentText(), QString("Blue"));
    QVERIFY(child<QCheckBox>("KirvField_pets/1")->isChecked());
    QCOMPARE(child<QLineEdit>("KirvField_odd")->text(), QString("as it was"));

    type("username", "romeo");
    type("password", "secret");
    type("ocr", "a<b");
    child<QCheckBox>("KirvField_pets/0")->setChecked(true);
    press("NextButton");
    TRY(!window);
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

void TestXmppRegistration::fixedFieldsAreShownAsTheyCome()
{
    ScriptedXmppServer server(
        registering("<instructions>Please.</instructions><key>k1</key><username/><password/><zip/><shoesize/>"));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    QVERIFY(!child<QWidget>("KirvField_key"));
    type("username", "romeo");
    type("password", "secret");
    type("zip", "37121");
    type("shoesize", "43");
    press("NextButton");
    TRY(!window);
    for (const char *part : { "<key>k1</key>", "<username>romeo</username>", "<password>secret</password>",
                              "<zip>37121</zip>", "<shoesize>43</shoesize>" })
        QVERIFY2(server.received().contains(part), part);
}

void TestXmppRegistration::formWithoutFieldsNamesItsAddress()
{
    ScriptedXmppServer server(registering("<instructions>Go there.</instructions><x xmlns='jabber:x:oob'>"
                                          "<url>https://example.org/&lt;join&gt;</url></x>"));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(message().contains("from within a client"));
    QVERIFY(child<QLabel>("XmppRegistration_Instructions")->text().contains("https://example.org/<join>"));
    QVERIFY(!child<QPushButton>("XmppRegistration_NextButton")->isEnabled());
}

void TestXmppRegistration::connectionLostWhileTheFormIsFilledIn()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    type("username", "romeo");
    type("password", "secret");
    server.kill();
    press("NextButton");
    TRY(!message().isEmpty());
    QCOMPARE(child<QLineEdit>("KirvField_username")->text(), QString("romeo"));
    QCOMPARE(child<QLineEdit>("KirvField_password")->text(), QString("secret"));

    QVERIFY2(server.start(), qPrintable(server.errorString()));
    press("NextButton");
    TRY(!window);
    QVERIFY(romeo());
    TRY_STATE(romeo(), Online);
}

void TestXmppRegistration::connectionLostWhileTheFormIsSent()
{
    ScriptedXmppServer server(registering("<username/><password/>", ""));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    type("username", "romeo");
    type("password", "secret");
    press("NextButton");
    TRY(server.received().contains("type=\"set\""));
    server.hangUp();
    TRY(message().contains("lost"));
    QVERIFY(isAtForm());
    QCOMPARE(child<QLineEdit>("KirvField_username")->text(), QString("romeo"));
    QVERIFY(!romeo());
}

void TestXmppRegistration::goingBackKeepsWhatWasTyped()
{
    ScriptedXmppServer server(registering("<username/><password/>"));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    type("username", "romeo");
    press("BackButton");
    QVERIFY(!isAtForm());
    QCOMPARE(child<QLineEdit>("KirvField_domain")->text(), QString("localhost"));
    press("NextButton");
    TRY(isAtForm());
    QCOMPARE(child<QLineEdit>("KirvField_username")->text(), QString("romeo"));
}

void TestXmppRegistration::accountThatIsInTheListAlreadyIsSaid()
{
    profile->createAccount(romeoAddress, {});
    ScriptedXmppServer server(registering("<username/><password/>"));
    QVERIFY(openWindow());
    fillServer(server);
    press("NextButton");
    TRY(isAtForm());
    type("username", "romeo");
    type("password", "secret");
    press("NextButton");
    TRY(message().contains("in the list already"));
    QVERIFY(!child<QPushButton>("XmppRegistration_NextButton")->isEnabled());
}

void TestXmppRegistration::passwordIsChangedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY2(server.start() && server.addUser("romeo", "secret"), qPrintable(server.errorString()));
    KirvAccount *account = profile->createAccount(server, "romeo");
    profile->goTo(account, "available");
    TRY_STATE(account, Online);

    profile->protocol()->runAccountAction("change-password", account, nullptr);
    QPointer<QDialog> dialog = topLevel("XmppPassword");
    QVERIFY(dialog);
    auto *change = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QTest::keyClicks(dialog->findChild<QLineEdit *>("XmppPassword_Password"), "new");
    QTest::keyClicks(dialog->findChild<QLineEdit *>("XmppPassword_Repetition"), "ne");
    QVERIFY(!change->isEnabled());
    QTest::keyClicks(dialog->findChild<QLineEdit *>("XmppPassword_Repetition"), "w");
    QVERIFY(change->isEnabled());
    QTest::mouseClick(change, Qt::LeftButton);
    TRY(!dialog);

    QCOMPARE(account->getPassword(), QString("new"));
    profile->goTo(account, "offline");
    TRY_STATE(account, Offline);
    profile->goTo(account, "available");
    TRY_STATE(account, Online);
    XmppObserver independent;
    QVERIFY(independent.logIn(server, "romeo", "new"));
}

void TestXmppRegistration::passwordChangeThatFailsKeepsTheOldOne()
{
    KirvProsodyServer server;
    QVERIFY2(server.start() && server.addUser("romeo", "secret"), qPrintable(server.errorString()));
    KirvAccount *account = profile->createAccount(server, "romeo");
    profile->goTo(account, "available");
    TRY_STATE(account, Online);

    profile->protocol()->runAccountAction("change-password", account, nullptr);
    QPointer<QDialog> dialog = topLevel("XmppPassword");
    QVERIFY(dialog);
    QTest::keyClicks(dialog->findChild<QLineEdit *>("XmppPassword_Password"), "new");
    QTest::keyClicks(dialog->findChild<QLineEdit *>("XmppPassword_Repetition"), "new");
    server.kill();
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    auto *message = dialog->findChild<QLabel *>("XmppPassword_Message");
    TRY(message->isVisible() && message->text().contains("lost"));
    QCOMPARE(dialog->findChild<QLineEdit *>("XmppPassword_Password")->text(), QString("new"));
    QCOMPARE(account->getPassword(), QString("secret"));
    dialog->close();
    TRY(!dialog);
}

void TestXmppRegistration::accountIsDeletedOnTheServer()
{
    KirvProsodyServer server;
    QVERIFY2(server.start() && server.addUser("romeo", "secret"), qPrintable(server.errorString()));
    KirvAccount *account = profile->createAccount(server, "romeo");
    profile->goTo(account, "available");
    TRY_STATE(account, Online);
    QSignalSpy failed(account->connection(), &KirvConnection::failed);

    profile->protocol()->runAccountAction("delete-on-server", account, nullptr);
    for (const char *question : { "XmppDeletion_FirstQuestion", "XmppDeletion_SecondQuestion" }) {
        TRY(topLevel(question));
        auto *box = qobject_cast<QMessageBox *>(topLevel(question));
        QVERIFY(box->text().contains(romeoAddress));
        QTest::mouseClick(box->findChild<QPushButton *>(question + QString("_Delete")), Qt::LeftButton);
    }
    TRY(!romeo());
    QCOMPARE(failed.size(), 0);
    QVERIFY(!server.isOnline("romeo"));
    QVERIFY(!server.hasUser("romeo"));
}

void TestXmppRegistration::deletionIsAskedTwice_data()
{
    QTest::addColumn<QStringList>("questions");
    QTest::newRow("no to the first") << QStringList { "XmppDeletion_FirstQuestion" };
    QTest::newRow("no to the second") << QStringList { "XmppDeletion_FirstQuestion", "XmppDeletion_SecondQuestion" };
}

void TestXmppRegistration::deletionIsAskedTwice()
{
    QFETCH(QStringList, questions);
    KirvProsodyServer server;
    QVERIFY2(server.start() && server.addUser("romeo", "secret"), qPrintable(server.errorString()));
    KirvAccount *account = profile->createAccount(server, "romeo");
    profile->goTo(account, "available");
    TRY_STATE(account, Online);

    profile->protocol()->runAccountAction("delete-on-server", account, nullptr);
    for (const QString &question : questions) {
        TRY(topLevel(question));
        if (question != questions.last())
            QTest::mouseClick(topLevel(question)->findChild<QPushButton *>(question + "_Delete"), Qt::LeftButton);
    }
    QPointer<QDialog> last = topLevel(questions.last());
    QTest::keyClick(last, Qt::Key_Escape);
    TRY(!last);
    QVERIFY(!topLevel("XmppDeletion_SecondQuestion"));
    QVERIFY(account->isLoggedIn());
    QVERIFY(server.hasUser("romeo"));
}

void TestXmppRegistration::actionsWithoutAConnectionDoNothing()
{
    KirvAccount *account = profile->createAccount(romeoAddress, {});
    for (const KirvAccountAction &action : profile->protocol()->accountActions(account)) {
        QVERIFY(action.needsConnection && !action.text.isEmpty());
        profile->protocol()->runAccountAction(action.id, nullptr, nullptr);
    }
    profile->protocol()->runAccountAction("no such action", account, nullptr);

    // An account that goes takes its questions with it.
    profile->protocol()->runAccountAction("delete-on-server", account, nullptr);
    profile->protocol()->runAccountAction("change-password", account, nullptr);
    TRY(topLevel("XmppDeletion_FirstQuestion") && topLevel("XmppPassword"));
    KirvAccountManager::getInstance()->removeAccount(romeoAddress, "XMPP");
    TRY(!topLevel("XmppDeletion_FirstQuestion") && !topLevel("XmppPassword"));
}

QTEST_MAIN(TestXmppRegistration)
#include "tst_xmpp_registration.moc"

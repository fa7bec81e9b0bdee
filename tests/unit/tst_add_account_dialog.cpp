// SPDX-License-Identifier: LGPL-2.1-or-later
#include "add_account/kirv_add_account_dialog.h"
#include "host/kirv_field_widget.h"
#include "tests/support/recording_host/kirv_recording_icons.h"
#include "tests/unit/kirv_page_fixture.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QValidator>
#include <QtTest>

#include <memory>

/// The add dialog's window: how it is built, bound and filled, and what typing and choosing do.
class tst_AddAccountDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void slotsStandInTheirOrder_data();
    void slotsStandInTheirOrder();
    void theMetaObjectHoldsNothingElse();
    void theProtocolIsCalledInOrder();
    void theWindowIsAHiddenPlainDialogOfItsParent();
    void theWindowFitsItsContent();
    void presencesAreOfferedInOrder();
    void presenceIconsAreFoundWithoutAnAddedSlash();
    void aProtocolWithoutPresencesLeavesNoneCurrent();
    void withoutConfigurationsTheChoiceIsHidden();
    void withoutConfigurationsTheChoiceIsStillConnected();
    void configurationsFollowNone();
    void theFieldWidgetIsTheLastRowOfTheLoginForm();
    void withoutSettingsOrFormThereIsNoFieldWidget_data();
    void withoutSettingsOrFormThereIsNoFieldWidget();
    void thePasswordIsMasked();
    void saveNeedsLoginAndPassword();
    void saveDoesNotDependOnTheValidator();
    void noConfigurationIsChosenBeforehand();
    void aConfigurationIsChosenBeforehand();
    void configurationsAreComparedExactly_data();
    void configurationsAreComparedExactly();
    void choosingAConfigurationFillsFieldsAndLogin();
    void theLastLoginOfAConfigurationWins();
    void aConfigurationWithoutLoginKeepsTheLogin();
    void aConfigurationChangesNothingElse();
    void choosingNoneRestoresTheSettingsAndClearsTheLogin();
    void aConfigurationCalledNoneIsNone();
    void aConfigurationWithoutFieldWidgetSkipsTheRefill();
    void aConfiguredLoginPassesTheValidatorBy();

private:
    KirvAddAccountDialog *open(const QString &configuration = QString(""));
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }
    QLineEdit *login() const { return child<QLineEdit>("AddAccount_UsernameEdit"); }
    QLineEdit *password() const { return child<QLineEdit>("AddAccount_PasswordEdit"); }
    QComboBox *configurations() const { return child<QComboBox>("AddAccount_Configuration"); }
    QComboBox *presences() const { return child<QComboBox>("AddAccount_PresenceCombo"); }
    QPushButton *save() const
    {
        return child<QDialogButtonBox>("AddAccount_ButtonFrame")->button(QDialogButtonBox::Save);
    }
    QString shownFields() const { return kirvWritten(window->findChild<KirvFieldWidget *>()->getFields()); }

    std::unique_ptr<KirvPageFixture> fixture;
    KirvRecordingProtocol *xmpp = nullptr;
    QPointer<KirvAddAccountDialog> dialog;
    QPointer<QDialog> window;
};

namespace {

KirvField text(const QString &id, const QString &value)
{
    return KirvField::textEdit(QString(), id, value, QString());
}

}

void tst_AddAccountDialog::init()
{
    fixture = std::make_unique<KirvPageFixture>();
    xmpp = fixture->xmpp;
    xmpp->accountSettings = { text("server", ""), text("port", "5222") };
    xmpp->configurations = QStringList { "Home", "Work" };
    xmpp->configurationFields["Home"] = { text("server", "home.example"), text("login", "me@home.example") };
    xmpp->configurationFields["Work"] = { text("server", "work.example"), text("port", "5223") };
    fixture->page();
    fixture->host.forgetCalls();
}

void tst_AddAccountDialog::cleanup()
{
    delete dialog;
    fixture.reset();
}

KirvAddAccountDialog *tst_AddAccountDialog::open(const QString &configuration)
{
    dialog = new KirvAddAccountDialog(xmpp, configuration, fixture->page(), Qt::Sheet);
    window = fixture->page()->findChild<QDialog *>("AddAccount");
    return dialog;
}

void tst_AddAccountDialog::slotsStandInTheirOrder_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("signature");
    int index = 0;
    for (const char *signature :
         { "textChanged(QString)", "addAccount()", "finished(int)", "configurationChanged(QString)", "reject()" })
        QTest::newRow(signature) << index++ << QByteArray(signature);
}

void tst_AddAccountDialog::slotsStandInTheirOrder()
{
    QFETCH(int, index);
    QFETCH(QByteArray, signature);
    const QMetaObject &meta = KirvAddAccountDialog::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Protected);
}

void tst_AddAccountDialog::theMetaObjectHoldsNothingElse()
{
    const QMetaObject &meta = KirvAddAccountDialog::staticMetaObject;
    QCOMPARE(meta.className(), "KirvAddAccountDialog");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 5);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.classInfoCount(), meta.classInfoOffset());
}

void tst_AddAccountDialog::theProtocolIsCalledInOrder()
{
    open();
    QCOMPARE(fixture->host.calls(),
             (QStringList { "loadUI(AddAccount, null)", "XMPP.getConfigurations()", "XMPP.getConfigurations()",
                            "XMPP.getAccountSettings()", "KirvFieldWidget([server=, port=5222], none, 0)",
                            "XMPP.getAllPresences()", "getCurrentRosterThemeDir()", "getCurrentRosterThemeDir()",
                            "getCurrentRosterThemeDir()", "XMPP.getLoginPattern()" }));
}

void tst_AddAccountDialog::theWindowIsAHiddenPlainDialogOfItsParent()
{
    open();
    QVERIFY(!dialog->parent());
    QCOMPARE(window->parent(), fixture->page());
    QVERIFY(window->isHidden());
    QCOMPARE(window->windowModality(), Qt::WindowModal);
    QVERIFY(window->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(window->windowType(), Qt::Dialog);
}

void tst_AddAccountDialog::theWindowFitsItsContent()
{
    open();
    const QSize size = window->size();
    window->adjustSize();
    QCOMPARE(size, window->size());
}

void tst_AddAccountDialog::presencesAreOfferedInOrder()
{
    open();
    QCOMPARE(presences()->count(), 3);
    QCOMPARE(presences()->currentIndex(), 0);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(presences()->itemText(i), xmpp->presences.at(i).getDisplay());
        QCOMPARE(presences()->itemData(i, Qt::UserRole), QVariant(xmpp->presences.at(i).getId()));
    }
}

void tst_AddAccountDialog::presenceIconsAreFoundWithoutAnAddedSlash()
{
    fixture->host.rosterThemeDir = "/no/slash";
    open();
    QCOMPARE(kirvRecordedIconReads(),
             (QStringList { "/no/slashicons/online.recorded", "/no/slashicons/away.recorded",
                            "/no/slashicons/offline.recorded" }));
    QCOMPARE(presences()->itemIcon(1).name(), QString("/no/slashicons/away.recorded"));
}

void tst_AddAccountDialog::aProtocolWithoutPresencesLeavesNoneCurrent()
{
    xmpp->presences.clear();
    open();
    QCOMPARE(presences()->count(), 0);
    QCOMPARE(presences()->currentIndex(), -1);
}

void tst_AddAccountDialog::withoutConfigurationsTheChoiceIsHidden()
{
    xmpp->configurations.clear();
    open("Home");
    QVERIFY(configurations()->isHidden());
    QVERIFY(child<QLabel>("AddAccount_ConfigurationLabel")->isHidden());
    QCOMPARE(configurations()->count(), 0);
    QCOMPARE(fixture->host.calls({ "getConfigurations", "getConfigurationFields" }),
             QStringList { "XMPP.getConfigurations()" });
}

void tst_AddAccountDialog::withoutConfigurationsTheChoiceIsStillConnected()
{
    xmpp->configurations.clear();
    open();
    fixture->host.forgetCalls();
    configurations()->addItem("Home");
    QCOMPARE(fixture->host.calls({ "getConfigurationFields" }).size(), 2);
    QCOMPARE(login()->text(), QString("me@home.example"));
}

void tst_AddAccountDialog::configurationsFollowNone()
{
    open();
    QVERIFY(!configurations()->isHidden());
    QVERIFY(!child<QLabel>("AddAccount_ConfigurationLabel")->isHidden());
    QCOMPARE(configurations()->count(), 3);
    const QStringList names { "None", "Home", "Work" };
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(configurations()->itemText(i), names.at(i));
        QVERIFY(configurations()->itemIcon(i).isNull());
        QVERIFY(!configurations()->itemData(i, Qt::UserRole).isValid());
    }
}

void tst_AddAccountDialog::theFieldWidgetIsTheLastRowOfTheLoginForm()
{
    open();
    auto *frame = child<QWidget>("AddAccount_LoginFrame");
    auto *form = qobject_cast<QFormLayout *>(frame->layout());
    auto *fields = window->findChild<KirvFieldWidget *>();
    QVERIFY(fields);
    QCOMPARE(fields->parent(), frame);
    int row = -1;
    QFormLayout::ItemRole role = QFormLayout::LabelRole;
    form->getWidgetPosition(fields, &row, &role);
    QCOMPARE(row, form->rowCount() - 1);
    QCOMPARE(role, QFormLayout::SpanningRole);
    QCOMPARE(shownFields(), QString("[server=, port=5222]"));
}

void tst_AddAccountDialog::withoutSettingsOrFormThereIsNoFieldWidget_data()
{
    QTest::addColumn<bool>("hasSettings");
    QTest::addColumn<bool>("hasForm");
    QTest::addColumn<int>("settingsCalls");
    QTest::newRow("no settings") << false << true << 1;
    QTest::newRow("no form") << true << false << 0;
    QTest::newRow("neither") << false << false << 0;
}

void tst_AddAccountDialog::withoutSettingsOrFormThereIsNoFieldWidget()
{
    QFETCH(bool, hasSettings);
    QFETCH(bool, hasForm);
    QFETCH(int, settingsCalls);
    if (!hasSettings)
        xmpp->accountSettings.clear();
    fixture->host.layouts.loginFrameHasForm = hasForm;
    open();
    QVERIFY(!window->findChild<KirvFieldWidget *>());
    QCOMPARE(fixture->host.count("XMPP.getAccountSettings()"), settingsCalls);
}

void tst_AddAccountDialog::thePasswordIsMasked()
{
    open();
    QCOMPARE(password()->echoMode(), QLineEdit::Password);
    QCOMPARE(login()->echoMode(), QLineEdit::Normal);
}

void tst_AddAccountDialog::saveNeedsLoginAndPassword()
{
    open();
    QVERIFY(!save()->isEnabled());
    QTest::keyClicks(login(), "m");
    QVERIFY(!save()->isEnabled());
    QTest::keyClicks(password(), "s");
    QVERIFY(save()->isEnabled());
    QTest::keyClick(login(), Qt::Key_Backspace);
    QVERIFY(!save()->isEnabled());
    QTest::keyClicks(login(), "m");
    QVERIFY(save()->isEnabled());
    QTest::keyClick(password(), Qt::Key_Backspace);
    QVERIFY(!save()->isEnabled());
}

void tst_AddAccountDialog::saveDoesNotDependOnTheValidator()
{
    xmpp->loginPattern = "[a-z]+@[a-z]+";
    open();
    QTest::keyClicks(login(), "me");
    QTest::keyClicks(password(), "s");
    QVERIFY(!login()->hasAcceptableInput());
    QVERIFY(save()->isEnabled());
}

void tst_AddAccountDialog::noConfigurationIsChosenBeforehand()
{
    open();
    QCOMPARE(configurations()->currentIndex(), 0);
    QCOMPARE(fixture->host.calls({ "fillWithFields", "getConfigurationFields" }), QStringList());
}

void tst_AddAccountDialog::aConfigurationIsChosenBeforehand()
{
    open("Home");
    QCOMPARE(configurations()->currentText(), QString("Home"));
    QCOMPARE(shownFields(), QString("[server=home.example, login=me@home.example]"));
    QCOMPARE(login()->text(), QString("me@home.example"));
    QVERIFY(!save()->isEnabled());
    QTest::keyClicks(password(), "s");
    QVERIFY(save()->isEnabled());
}

void tst_AddAccountDialog::configurationsAreComparedExactly_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("other case") << "home";
    QTest::newRow("beginning") << "Hom";
    QTest::newRow("part") << "ome";
    QTest::newRow("pattern") << "H*";
    QTest::newRow("none") << "None";
    QTest::newRow("unknown") << "Elsewhere";
}

void tst_AddAccountDialog::configurationsAreComparedExactly()
{
    QFETCH(QString, name);
    open(name);
    QCOMPARE(configurations()->currentIndex(), 0);
    QCOMPARE(fixture->host.calls({ "fillWithFields", "getConfigurationFields" }), QStringList());
}

void tst_AddAccountDialog::choosingAConfigurationFillsFieldsAndLogin()
{
    open();
    fixture->host.forgetCalls();
    configurations()->setCurrentIndex(1);
    QCOMPARE(fixture->host.calls(),
             (QStringList { "XMPP.getConfigurationFields(Home)",
                            "fillWithFields([server=home.example, login=me@home.example])",
                            "XMPP.getConfigurationFields(Home)" }));
    QCOMPARE(login()->text(), QString("me@home.example"));
}

void tst_AddAccountDialog::theLastLoginOfAConfigurationWins()
{
    xmpp->configurationFields["Home"] = { text("login", "first"), text("Login", "other id"), text("login", "last"),
                                          text("server", "home.example") };
    open();
    configurations()->setCurrentIndex(1);
    QCOMPARE(login()->text(), QString("last"));
}

void tst_AddAccountDialog::aConfigurationWithoutLoginKeepsTheLogin()
{
    open();
    QTest::keyClicks(login(), "me");
    configurations()->setCurrentIndex(2);
    QCOMPARE(login()->text(), QString("me"));
    QCOMPARE(shownFields(), QString("[server=work.example, port=5223]"));
}

void tst_AddAccountDialog::aConfigurationChangesNothingElse()
{
    open();
    QTest::keyClicks(password(), "secret");
    child<QCheckBox>("AddAccount_RememberPasswordCheckbox")->setCheckState(Qt::Checked);
    presences()->setCurrentIndex(1);
    for (int i : { 1, 2, 0 }) {
        configurations()->setCurrentIndex(i);
        QCOMPARE(password()->text(), QString("secret"));
        QCOMPARE(child<QCheckBox>("AddAccount_RememberPasswordCheckbox")->checkState(), Qt::Checked);
        QCOMPARE(presences()->currentIndex(), 1);
    }
}

void tst_AddAccountDialog::choosingNoneRestoresTheSettingsAndClearsTheLogin()
{
    open("Work");
    QTest::keyClicks(login(), "typed");
    QTest::keyClicks(password(), "s");
    QVERIFY(save()->isEnabled());
    fixture->host.forgetCalls();
    configurations()->setCurrentIndex(0);
    QCOMPARE(fixture->host.calls(),
             (QStringList { "XMPP.getAccountSettings()", "fillWithFields([server=, port=5222])" }));
    QCOMPARE(login()->text(), QString());
    QVERIFY(!save()->isEnabled());
}

void tst_AddAccountDialog::aConfigurationCalledNoneIsNone()
{
    xmpp->configurations = QStringList { "Home", "None" };
    xmpp->configurationFields["None"] = { text("login", "nobody") };
    open("Home");
    fixture->host.forgetCalls();
    configurations()->setCurrentIndex(2);
    QCOMPARE(fixture->host.calls(),
             (QStringList { "XMPP.getAccountSettings()", "fillWithFields([server=, port=5222])" }));
    QCOMPARE(login()->text(), QString());
}

void tst_AddAccountDialog::aConfigurationWithoutFieldWidgetSkipsTheRefill()
{
    xmpp->accountSettings.clear();
    open();
    configurations()->setCurrentIndex(1);
    QCOMPARE(login()->text(), QString("me@home.example"));
    configurations()->setCurrentIndex(0);
    QCOMPARE(login()->text(), QString());
    QCOMPARE(fixture->host.calls({ "fillWithFields" }), QStringList());
}

void tst_AddAccountDialog::aConfiguredLoginPassesTheValidatorBy()
{
    xmpp->loginPattern = "[0-9]+";
    open();
    configurations()->setCurrentIndex(1);
    QCOMPARE(login()->text(), QString("me@home.example"));
}

QTEST_MAIN(tst_AddAccountDialog)
#include "tst_add_account_dialog.moc"

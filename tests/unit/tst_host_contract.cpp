// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_account_connection.h"
#include "host/kirv_account_info.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_arg.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_presence.h"
#include "host/kirv_protocol.h"
#include "host/kirv_settings_manager.h"
#include "host/kirv_ui_loader.h"

#include <QtTest>

#include <cstring>
#include <type_traits>

Q_DECLARE_METATYPE(KirvField)

namespace {

using Fields = QList<KirvField>;
using Text = const QString &;

template <typename Signature, typename Operation>
constexpr bool isExactly(Operation)
{
    return std::is_same<Signature, Operation>::value;
}

// What the library and the plug-ins were built against: order and kind of arguments, result, const.
using Manager = KirvAccountManager;
static_assert(isExactly<KirvAccountManager *(*)()>(&Manager::getInstance), "");
static_assert(isExactly<QList<KirvAccountInfo *> (Manager::*)(Text) const>(&Manager::getAccountsInfo), "");
static_assert(isExactly<bool (Manager::*)(Text, Text) const>(&Manager::accountEnabled), "");
static_assert(isExactly<KirvAccountConnection *(Manager::*)(Text, Text)>(&Manager::getAccount), "");
static_assert(isExactly<KirvAccountConnection *(Manager::*)(Text, Text)>(&Manager::loadAccount), "");
static_assert(isExactly<KirvAccountConnection *(Manager::*)() const>(&Manager::getMainAccount), "");
static_assert(
    isExactly<KirvAccountConnection *(Manager::*)(Text, Text, Text, bool, KirvProtocol *, const KirvPresence &,
                                                  const Fields &)>(&Manager::createAccount),
    "");
static_assert(isExactly<void (Manager::*)(Text, Text)>(&Manager::enableAccount), "");
static_assert(isExactly<void (Manager::*)(Text, Text)>(&Manager::disableAccount), "");
static_assert(isExactly<void (Manager::*)(Text, Text)>(&Manager::removeAccount), "");
static_assert(isExactly<void (Manager::*)(KirvAccountConnection *)>(&Manager::setMainAccount), "");
static_assert(isExactly<KirvAccountManagerPrivate **>(&KirvAccountManagerPrivate::ampInstance), "");
static_assert(isExactly<KirvAccountConnection * KirvAccountManagerPrivate::*>(&KirvAccountManagerPrivate::mainAccount),
              "");

using Account = KirvAccountConnection;
static_assert(isExactly<QString (Account::*)() const>(&Account::getUid), "");
static_assert(isExactly<QString (Account::*)() const>(&Account::getProtocolName), "");
static_assert(isExactly<KirvProtocol *(Account::*)() const>(&Account::getProtocol), "");
static_assert(isExactly<QString (Account::*)() const>(&Account::getAlias), "");
static_assert(isExactly<void (Account::*)(Text)>(&Account::setAlias), "");
static_assert(isExactly<QString (Account::*)() const>(&Account::getPassword), "");
static_assert(isExactly<void (Account::*)(Text)>(&Account::setPassword), "");
static_assert(isExactly<void (Account::*)(bool)>(&Account::setRememberPassword), "");
static_assert(isExactly<void (Account::*)(bool)>(&Account::setRestoreLastPresence), "");
static_assert(isExactly<void (Account::*)(bool)>(&Account::setRestoreLastDescription), "");
static_assert(isExactly<KirvPresence (Account::*)() const>(&Account::getDefaultPresence), "");
static_assert(isExactly<void (Account::*)(const KirvPresence &)>(&Account::setDefaultPresence), "");
static_assert(isExactly<void (Account::*)(const KirvPresence &)>(&Account::setPresence), "");
static_assert(isExactly<QString (Account::*)() const>(&Account::getCurrentAvatarPath), "");
static_assert(isExactly<void (Account::*)(Text)>(&Account::setAvatar), "");
static_assert(isExactly<Fields (Account::*)() const>(&Account::getAccountSettingsInOrder), "");
static_assert(isExactly<void (Account::*)(const Fields &)>(&Account::setAccountSettings), "");
static_assert(isExactly<bool (Account::*)() const>(&Account::isEnabled), "");
static_assert(isExactly<bool (Account::*)() const>(&Account::isLoggedIn), "");

using Protocol = KirvProtocol;
static_assert(isExactly<QList<KirvPresence> (Protocol::*)() const>(&Protocol::getAllPresences), "");
static_assert(isExactly<Fields (Protocol::*)() const>(&Protocol::getAccountSettings), "");
static_assert(isExactly<Fields (Protocol::*)() const>(&Protocol::getPubdirAccountFields), "");
static_assert(isExactly<KirvPresence (Protocol::*)(Text, Text) const>(&Protocol::createPresenceWithId), "");
static_assert(isExactly<void (Protocol::*)(KirvAccountConnection *)>(&Protocol::accountPresenceChanged), "");
static_assert(isExactly<QString (Protocol::*)(int)>(&Protocol::getIconPath), "");
static_assert(isExactly<Fields (Protocol::*)(Text)>(&Protocol::getConfigurationFields), "");
static_assert(isExactly<void (Protocol::*)(KirvAccountConnection *, const Fields &)>(&Protocol::publishPubdirInfo), "");

static_assert(isExactly<KirvPluginManager *(*)()>(&KirvPluginManager::getInstance), "");
static_assert(isExactly<KirvProtocol *(KirvPluginManager::*)(Text)>(&KirvPluginManager::getProtocolByName), "");
static_assert(isExactly<KirvPluginManagerPrivate **>(&KirvPluginManagerPrivate::instance), "");
static_assert(
    isExactly<void (KirvPluginManagerPrivate::*)(Text, QList<KirvArg>)>(&KirvPluginManagerPrivate::emitCoreSignal), "");

static_assert(isExactly<KirvSettingsManager *(*)()>(&KirvSettingsManager::getInstance), "");
static_assert(isExactly<QString (KirvSettingsManager::*)() const>(&KirvSettingsManager::getCurrentRosterThemeDir), "");
static_assert(isExactly<KirvSettingsManagerPrivate **>(&KirvSettingsManagerPrivate::settingsMgrPrivInstance), "");
static_assert(
    isExactly<Fields (KirvSettingsManagerPrivate::*)(Text, Text)>(&KirvSettingsManagerPrivate::readAccountGlobals), "");
static_assert(
    isExactly<void (KirvSettingsManagerPrivate::*)(const KirvField &)>(&KirvSettingsManagerPrivate::writeGlobalSetting),
    "");

using Loader = KirvUILoader;
static_assert(isExactly<KirvUILoader *(*)()>(&Loader::getInstance), "");
static_assert(isExactly<void (*)(QWidget *, QWidget *)>(&Loader::insertWidget), "");
static_assert(isExactly<QWidget *(Loader::*)(Text, QWidget *, Text)>(
                  static_cast<QWidget *(Loader::*)(Text, QWidget *, Text)>(&Loader::loadUI)),
              "");
static_assert(
    isExactly<QWidget *(Loader::*)(Text, Text)>(static_cast<QWidget *(Loader::*)(Text, Text)>(&Loader::loadUI)), "");

static_assert(isExactly<void (KirvFieldWidget::*)(const Fields &)>(&KirvFieldWidget::fillWithFields), "");
static_assert(isExactly<Fields (KirvFieldWidget::*)() const>(&KirvFieldWidget::getFields), "");
static_assert(std::is_constructible<KirvFieldWidget, const Fields &, QWidget *, KirvFieldWidget::Layout>::value, "");
static_assert(KirvFieldWidget::LabelsBeside == 0, "the library always passes the first enumerator");
static_assert(isExactly<void (KirvAvatarQuickSetWidget::*)(Text)>(&KirvAvatarQuickSetWidget::setImage), "");
static_assert(isExactly<void (KirvAvatarQuickSetWidget::*)(Text)>(&KirvAvatarQuickSetWidget::imageSelected), "");

static_assert(std::is_copy_assignable<KirvField>::value && std::is_copy_assignable<KirvPresence>::value
                  && std::is_copy_assignable<KirvArg>::value,
              "value types");

/// The place of a virtual operation in the table of its class (Itanium C++ ABI).
template <typename Operation>
int slotOf(Operation operation)
{
    struct {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } parts;
    static_assert(sizeof parts == sizeof operation, "");
    std::memcpy(&parts, &operation, sizeof parts);
#if defined(__aarch64__) || defined(__arm__)
    return int(parts.pointer / std::ptrdiff_t(sizeof(void *)));
#else
    return int((parts.pointer - 1) / std::ptrdiff_t(sizeof(void *)));
#endif
}

}

class tst_HostContract : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void virtualOperationsOfAProtocolStandInTheirOrder();
    void aTextFieldCarriesIdAndText();
    void fieldsAreComparedInFull_data();
    void fieldsAreComparedInFull();
    void listsOfFieldsAreComparedElementByElement();
    void aPresenceCarriesItsFourTexts();
    void anAccountInfoCarriesWhatIsStored();
    void anArgumentCarriesItsValue();
    void uiWidgetsAreReachedByCast();
};

void tst_HostContract::virtualOperationsOfAProtocolStandInTheirOrder()
{
    QCOMPARE(slotOf(&KirvProtocol::getName), 0);
    QCOMPARE(slotOf(&KirvProtocol::getIconPath), 2);
    const int configurations = slotOf(&KirvProtocol::getConfigurations);
    const int configurationFields = slotOf(&KirvProtocol::getConfigurationFields);
    const int publish = slotOf(&KirvProtocol::publishPubdirInfo);
    QVERIFY(configurations > 2);
    QVERIFY(configurationFields > configurations);
    QVERIFY(publish > configurationFields);
    QCOMPARE(slotOf(&KirvProtocol::fetchPubdirInfo), publish + 1);
    QCOMPARE(slotOf(&KirvProtocol::deletePubdirInfo), publish + 2);
    QVERIFY(slotOf(&KirvProtocol::getLoginPattern) > publish + 2);
}

void tst_HostContract::aTextFieldCarriesIdAndText()
{
    const KirvField field = KirvField::textEdit("", "main_account", "alice@@XMPP", "");
    QCOMPARE(field.getId(), QString("main_account"));
    QCOMPARE(field.getText(), QString("alice@@XMPP"));
    QCOMPARE(field.getKind(), KirvField::Text);
    QVERIFY(!field.isChecked());
}

void tst_HostContract::fieldsAreComparedInFull_data()
{
    QTest::addColumn<KirvField>("other");
    QTest::addColumn<bool>("equal");
    const KirvField field = KirvField::textEdit("Label", "id", "text", "Tip");
    KirvField checked = field;
    checked.setChecked(true);
    KirvField required = field;
    required.setRequired(true);
    KirvField pattern = field;
    pattern.setPattern("a+");
    QTest::newRow("the same") << KirvField::textEdit("Label", "id", "text", "Tip") << true;
    QTest::newRow("label") << KirvField::textEdit("", "id", "text", "Tip") << false;
    QTest::newRow("id") << KirvField::textEdit("Label", "ID", "text", "Tip") << false;
    QTest::newRow("text") << KirvField::textEdit("Label", "id", "Text", "Tip") << false;
    QTest::newRow("tool tip") << KirvField::textEdit("Label", "id", "text", "") << false;
    QTest::newRow("kind") << KirvField::password("Label", "id", "text", "Tip") << false;
    QTest::newRow("checked") << checked << false;
    QTest::newRow("required") << required << false;
    QTest::newRow("pattern") << pattern << false;
}

void tst_HostContract::fieldsAreComparedInFull()
{
    QFETCH(KirvField, other);
    QFETCH(bool, equal);
    QCOMPARE(KirvField::textEdit("Label", "id", "text", "Tip") == other, equal);
    QCOMPARE(KirvField::textEdit("Label", "id", "text", "Tip") != other, !equal);
}

void tst_HostContract::listsOfFieldsAreComparedElementByElement()
{
    const Fields fields = { KirvField::textEdit("", "a", "1", ""), KirvField::textEdit("", "b", "2", "") };
    QVERIFY(fields == Fields({ KirvField::textEdit("", "a", "1", ""), KirvField::textEdit("", "b", "2", "") }));
    QVERIFY(fields != Fields({ KirvField::textEdit("", "b", "2", ""), KirvField::textEdit("", "a", "1", "") }));
    QVERIFY(fields != Fields({ KirvField::textEdit("", "a", "1", "") }));
}

void tst_HostContract::aPresenceCarriesItsFourTexts()
{
    const KirvPresence presence = KirvPresence("away", "Away", "away.png", "at lunch");
    QCOMPARE(presence.getId(), QString("away"));
    QCOMPARE(presence.getDisplay(), QString("Away"));
    QCOMPARE(presence.getIcon(), QString("away.png"));
    QCOMPARE(presence.getDescription(), QString("at lunch"));
}

void tst_HostContract::anAccountInfoCarriesWhatIsStored()
{
    const KirvAccountInfo info("alice", "Work", true);
    QCOMPARE(info.getId(), QString("alice"));
    QCOMPARE(info.getAlias(), QString("Work"));
    QVERIFY(info.isEnabled());
}

void tst_HostContract::anArgumentCarriesItsValue()
{
    QCOMPARE(KirvArg(QVariant(7)).getValue().toInt(), 7);
    QVERIFY(!KirvArg().getValue().isValid());
}

void tst_HostContract::uiWidgetsAreReachedByCast()
{
    QCOMPARE(KirvFieldWidget::staticMetaObject.className(), "KirvFieldWidget");
    QVERIFY(KirvFieldWidget::staticMetaObject.inherits(&QWidget::staticMetaObject));
    const QMetaObject &picker = KirvAvatarQuickSetWidget::staticMetaObject;
    QVERIFY(picker.inherits(&QWidget::staticMetaObject));
    QVERIFY(picker.indexOfSignal("imageSelected(QString)") != -1);
}

QTEST_MAIN(tst_HostContract)
#include "tst_host_contract.moc"

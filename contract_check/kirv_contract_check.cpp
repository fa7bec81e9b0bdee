// SPDX-License-Identifier: LGPL-2.1-or-later
#include "contract_check/kirv_contract_check.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "host/kirv_account_connection.h"
#include "host/kirv_account_info.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_protocol.h"
#include "host/kirv_settings_manager.h"
#include "host/kirv_ui_loader.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScopedPointer>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString nowhere = QStringLiteral("No such protocol");

KirvAccountManager &manager()
{
    return *KirvAccountManager::getInstance();
}

/// Whether both have the same fields with the same values; how they are shown may differ.
bool haveSameValues(const QList<KirvField> &some, const QList<KirvField> &others)
{
    if (some.size() != others.size())
        return false;
    for (int index = 0; index < some.size(); ++index) {
        const KirvField &one = some.at(index);
        const KirvField &other = others.at(index);
        if (one.getId() != other.getId() || one.getText() != other.getText() || one.isChecked() != other.isChecked())
            return false;
    }
    return true;
}

KirvField fieldWithId(const QList<KirvField> &fields, const char *id)
{
    for (const KirvField &field : fields) {
        if (field.getId() == QLatin1String(id))
            return field;
    }
    return KirvField();
}

/// The children that a layout must have, and their classes.
const char *const requiredChildren[][2] = { { "Accounts_List", "QTreeWidget" },
                                            { "Accounts_AddButton", "QToolButton" },
                                            { "Accounts_EditButton", "QToolButton" },
                                            { "Accounts_RemoveButton", "QToolButton" },
                                            { "AddAccount_ConfigurationLabel", "QLabel" },
                                            { "AddAccount_Configuration", "QComboBox" },
                                            { "AddAccount_UsernameEdit", "QLineEdit" },
                                            { "AddAccount_PasswordEdit", "QLineEdit" },
                                            { "AddAccount_RememberPasswordCheckbox", "QCheckBox" },
                                            { "AddAccount_PresenceCombo", "QComboBox" },
                                            { "AddAccount_LoginFrame", "QWidget" },
                                            { "AddAccount_ButtonFrame", "QDialogButtonBox" },
                                            { "EditAccount_Tabs", "QTabWidget" },
                                            { "EditAccount_Identifier", "QLabel" },
                                            { "EditAccount_AvatarPlacement", "QWidget" },
                                            { "EditAccount_Alias", "QLineEdit" },
                                            { "EditAccount_Password", "QLineEdit" },
                                            { "EditAccount_RememberPassword", "QCheckBox" },
                                            { "EditAccount_RememberPresence", "QCheckBox" },
                                            { "EditAccount_RememberDescription", "QCheckBox" },
                                            { "EditAccount_PresenceCombo", "QComboBox" },
                                            { "EditAccount_DescriptionEdit", "QTextEdit" },
                                            { "EditAccount_AccSettings", "QWidget" },
                                            { "EditAccount_PubDirResults", "QWidget" },
                                            { "EditAccount_FrameButtons", "QDialogButtonBox" } };

void verifyChildren(const QWidget &window, const QString &layout)
{
    for (const auto &child : requiredChildren) {
        const QString name = QLatin1String(child[0]);
        if (!name.startsWith(layout + QLatin1Char('_')))
            continue;
        const QWidget *widget = window.findChild<QWidget *>(name);
        QVERIFY2(widget && widget->inherits(child[1]), child[0]);
    }
}

} // namespace

KirvContractCheck::KirvContractCheck(const QString &protocol, const QString &first, const QString &second)
    : protocol(protocol)
    , first(first)
    , second(second)
{
}

void KirvContractCheck::init()
{
    QVERIFY2(KirvAccountManager::getInstance() && KirvPluginManager::getInstance() && KirvSettingsManager::getInstance()
                 && KirvUILoader::getInstance(),
             "a getInstance() returns null");
    QVERIFY2(loaded(), "the protocol that the check was given is not loaded");
    QVERIFY2(!listed().contains(first) && !listed().contains(second), "the logins that the check was given are taken");
}

void KirvContractCheck::cleanup()
{
    const QStringList all = listed();
    for (const QString &id : { first, second }) {
        if (all.contains(id))
            manager().removeAccount(id, protocol);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

KirvProtocol *KirvContractCheck::loaded() const
{
    return KirvPluginManager::getInstance()->getProtocolByName(protocol);
}

KirvAccountConnection *KirvContractCheck::create(const QString &id)
{
    return manager().createAccount(id, QStringLiteral("Alias of ") + id, QStringLiteral("word"), true, loaded(),
                                   loaded()->getAllPresences().value(0), loaded()->getAccountSettings());
}

QStringList KirvContractCheck::listed() const
{
    QStringList ids;
    const QList<KirvAccountInfo *> infos = manager().getAccountsInfo(protocol);
    for (const KirvAccountInfo *info : infos)
        ids << info->getId();
    return ids;
}

QList<KirvField> KirvContractCheck::changedSettings() const
{
    QList<KirvField> settings = loaded()->getAccountSettings();
    for (KirvField &field : settings) {
        if (field.getKind() == KirvField::CheckBox)
            field.setChecked(!field.isChecked());
        else if (field.getKind() == KirvField::Text && field.getPattern().isEmpty())
            field.setText(QStringLiteral("a \"b\" <c>"));
    }
    return settings;
}

const KirvAccountInfo *KirvContractCheck::described(const QString &id) const
{
    const QList<KirvAccountInfo *> infos = manager().getAccountsInfo(protocol);
    for (const KirvAccountInfo *info : infos) {
        if (info->getId() == id)
            return info;
    }
    return nullptr;
}

void KirvContractCheck::stateIsThereWhileTheCoreIsUp()
{
    QVERIFY(KirvAccountManagerPrivate::ampInstance);
    QVERIFY(KirvPluginManagerPrivate::instance);
    QVERIFY(KirvSettingsManagerPrivate::settingsMgrPrivInstance);
}

void KirvContractCheck::protocolIsFoundByItsName()
{
    QCOMPARE(loaded()->getName(), protocol);
    QCOMPARE(KirvPluginManager::getInstance()->getProtocolByName(protocol), loaded());
    QVERIFY(!KirvPluginManager::getInstance()->getProtocolByName(nowhere));
    QVERIFY(!KirvPluginManager::getInstance()->getProtocolByName(QString()));
}

void KirvContractCheck::protocolOffersPresences()
{
    QVERIFY2(!loaded()->getAllPresences().isEmpty(), "the first presence is that of new accounts");
}

void KirvContractCheck::presenceCarriesItsDescription()
{
    const QList<KirvPresence> presences = loaded()->getAllPresences();
    QVERIFY(!presences.isEmpty());
    for (const KirvPresence &presence : presences) {
        const KirvPresence made = loaded()->createPresenceWithId(presence.getId(), QStringLiteral("a <b> & c"));
        QCOMPARE(made.getId(), presence.getId());
        QCOMPARE(made.getDescription(), QStringLiteral("a <b> & c"));
    }
    QCOMPARE(loaded()->createPresenceWithId(QStringLiteral("no such presence"), QString()).getId(),
             presences.first().getId());
}

void KirvContractCheck::iconOfAProtocolMayBeMissing()
{
    loaded()->getIconPath(0);
    loaded()->getIconPath(-1);
    loaded()->getConfigurations();
    QVERIFY(loaded()->getConfigurationFields(QStringLiteral("no such configuration")).isEmpty());
}

void KirvContractCheck::createdAccountIsThere()
{
    const KirvPresence offered = loaded()->getAllPresences().value(0);
    const KirvPresence presence(offered.getId(), offered.getDisplay(), offered.getIcon(), QStringLiteral("a <b> & c"));
    const QList<KirvField> settings = changedSettings();
    KirvAccountConnection *account = manager().createAccount(
        first, QStringLiteral("Alias of ") + first, QStringLiteral("word"), false, loaded(), presence, settings);
    QVERIFY(account);
    QCOMPARE(account->getUid(), first);
    QCOMPARE(account->getProtocolName(), protocol);
    QCOMPARE(account->getProtocol(), loaded());
    QCOMPARE(account->getAlias(), QStringLiteral("Alias of ") + first);
    QCOMPARE(account->getPassword(), QStringLiteral("word"));
    QCOMPARE(account->getDefaultPresence().getId(), presence.getId());
    QCOMPARE(account->getDefaultPresence().getDescription(), presence.getDescription());
    QVERIFY2(haveSameValues(account->getAccountSettingsInOrder(), settings), "the settings are those that were given");
    QVERIFY(account->isEnabled());
    const QList<KirvField> general =
        KirvSettingsManagerPrivate::settingsMgrPrivInstance->readAccountGlobals(first, protocol);
    QVERIFY2(!fieldWithId(general, "password/remember").isChecked(), "the password was not to be remembered");
}

void KirvContractCheck::createdAccountIsListedOnce()
{
    QVERIFY(create(first));
    QCOMPARE(listed().count(first), 1);
    const KirvAccountInfo *info = described(first);
    QCOMPARE(info->getAlias(), QStringLiteral("Alias of ") + first);
    QVERIFY(info->isEnabled());
    QVERIFY(manager().accountEnabled(first, protocol));
}

void KirvContractCheck::accountIsNamedByLoginAndProtocol()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    QCOMPARE(manager().getAccount(first, protocol), account);
    QCOMPARE(manager().loadAccount(first, protocol), account);
    QVERIFY(!manager().getAccount(second, protocol));
    QVERIFY(!manager().loadAccount(second, protocol));
    QVERIFY(!manager().getAccount(first, nowhere));
    QVERIFY(!manager().loadAccount(first, nowhere));
    QVERIFY(!manager().accountEnabled(second, protocol));
    QVERIFY(!manager().accountEnabled(first, nowhere));
    QVERIFY(manager().getAccountsInfo(nowhere).isEmpty());
    // The page does so with rows whose account another part of the client has removed.
    const QStringList before = listed();
    manager().disableAccount(second, protocol);
    manager().disableAccount(first, nowhere);
    QVERIFY(manager().accountEnabled(first, protocol));
    manager().disableAccount(first, protocol);
    manager().enableAccount(second, protocol);
    manager().enableAccount(first, nowhere);
    QVERIFY(!manager().accountEnabled(first, protocol));
    QCOMPARE(listed(), before);
    manager().removeAccount(second, protocol);
    manager().removeAccount(first, nowhere);
    QCOMPARE(manager().loadAccount(first, protocol), account);
    QCOMPARE(listed(), before);
}

void KirvContractCheck::takenLoginIsRefused()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    account->setAlias(QStringLiteral("kept"));
    QVERIFY(!manager().createAccount(first, QStringLiteral("other"), QStringLiteral("other word"), true, loaded(),
                                     loaded()->getAllPresences().value(0), loaded()->getAccountSettings()));
    QCOMPARE(listed().count(first), 1);
    QCOMPARE(manager().getAccount(first, protocol), account);
    QCOMPARE(account->getAlias(), QStringLiteral("kept"));
    QCOMPARE(account->getPassword(), QStringLiteral("word"));
}

void KirvContractCheck::listKeepsItsOrder()
{
    QVERIFY(create(first));
    QVERIFY(create(second));
    const QStringList order = listed();
    // Of both, as one of them is at the end already to which a change might move it.
    for (const QString &id : { first, second }) {
        for (const char *alias : { "zz", "aa" }) {
            manager().loadAccount(id, protocol)->setAlias(QLatin1String(alias));
            QCOMPARE(listed(), order);
        }
        manager().disableAccount(id, protocol);
        QCOMPARE(listed(), order);
        manager().enableAccount(id, protocol);
        QCOMPARE(listed(), order);
    }
}

void KirvContractCheck::aliasIsChanged()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    const QString alias = QStringLiteral("Ann & <b>Ben</b>");
    account->setAlias(alias);
    QCOMPARE(account->getAlias(), alias);
    QVERIFY(described(first));
    QCOMPARE(described(first)->getAlias(), alias);
    // What is shown for an account without an alias is the client's choice; the field of the edit window stays empty.
    account->setAlias(QString());
    QCOMPARE(account->getAlias(), QString());
}

void KirvContractCheck::enablingIsRepeatable()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    for (const bool isWanted : { true, false, false, true, true }) {
        if (isWanted)
            manager().enableAccount(first, protocol);
        else
            manager().disableAccount(first, protocol);
        QCOMPARE(manager().accountEnabled(first, protocol), isWanted);
        QVERIFY(described(first));
        QCOMPARE(described(first)->isEnabled(), isWanted);
        const KirvAccountConnection *now = manager().loadAccount(first, protocol);
        QVERIFY(now);
        QCOMPARE(now->isEnabled(), isWanted);
    }
}

void KirvContractCheck::disabledAccountIsOffLine()
{
    QVERIFY(create(first));
    manager().disableAccount(first, protocol);
    // At once, also while the connection is still logging out.
    const KirvAccountConnection *account = manager().getAccount(first, protocol);
    QVERIFY(!account || !account->isLoggedIn());
}

void KirvContractCheck::settingsComeBack()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    QVERIFY2(haveSameValues(account->getAccountSettingsInOrder(), loaded()->getAccountSettings()),
             "an account has the settings of its protocol, in their order");
    const QList<KirvField> settings = changedSettings();
    account->setAccountSettings(settings);
    QVERIFY2(haveSameValues(account->getAccountSettingsInOrder(), settings), "the settings are those that were set");
}

void KirvContractCheck::generalSettingsAreComplete()
{
    KirvSettingsManagerPrivate *settings = KirvSettingsManagerPrivate::settingsMgrPrivInstance;
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    account->setAlias(QStringLiteral("changed"));
    account->setPassword(QStringLiteral("another word"));
    for (const bool isOn : { true, false }) {
        account->setRememberPassword(isOn);
        account->setRestoreLastPresence(isOn);
        account->setRestoreLastDescription(isOn);
        const QList<KirvField> fields = settings->readAccountGlobals(first, protocol);
        QCOMPARE(fieldWithId(fields, "alias").getText(), QStringLiteral("changed"));
        QCOMPARE(fieldWithId(fields, "password").getText(), QStringLiteral("another word"));
        for (const char *id : { "password/remember", "presence/restore", "presence/restore_desc" }) {
            QCOMPARE(fieldWithId(fields, id).getId(), QString::fromLatin1(id));
            QVERIFY2(fieldWithId(fields, id).isChecked() == isOn, id);
        }
    }
    QVERIFY(settings->readAccountGlobals(second, protocol).isEmpty());
    QVERIFY(settings->readAccountGlobals(first, nowhere).isEmpty());
}

void KirvContractCheck::mainAccountIsAssigned()
{
    KirvAccountConnection *before = manager().getMainAccount();
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    manager().disableAccount(first, protocol);
    manager().setMainAccount(account);
    QVERIFY2(!manager().accountEnabled(first, protocol), "nothing else is changed");
    QCOMPARE(manager().getMainAccount(), account);
    QCOMPARE(KirvAccountManagerPrivate::ampInstance->mainAccount, account);
    manager().setMainAccount(nullptr);
    QVERIFY(!manager().getMainAccount());
    manager().setMainAccount(before);
}

void KirvContractCheck::removedAccountIsGone()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    manager().setMainAccount(account);
    manager().removeAccount(first, protocol);
    QVERIFY(!listed().contains(first));
    QVERIFY(!manager().getAccount(first, protocol));
    QVERIFY(!manager().loadAccount(first, protocol));
    QVERIFY(!manager().accountEnabled(first, protocol));
    // The account was destroyed, or will be: a pointer to it would dangle.
    QVERIFY2(manager().getMainAccount() != account, "the removed account is still the main account");
    QVERIFY2(create(first), "a login is free again when its account was removed");
}

void KirvContractCheck::themeFolderEndsWithASlash()
{
    QVERIFY(KirvSettingsManager::getInstance()->getCurrentRosterThemeDir().endsWith(QLatin1Char('/')));
}

void KirvContractCheck::layoutsAreBuilt_data()
{
    QTest::addColumn<QString>("layout");
    QTest::newRow("add window") << "AddAccount";
    QTest::newRow("edit window") << "EditAccount";
}

void KirvContractCheck::layoutsAreBuilt()
{
    QFETCH(QString, layout);
    const QScopedPointer<QWidget> window(KirvUILoader::getInstance()->loadUI(layout, QString()));
    QVERIFY2(qobject_cast<QDialog *>(window.data()), "the top widget of a window is a QDialog");
    QVERIFY2(!window->parent(), "the caller owns it");
    verifyChildren(*window, layout);
    const auto *buttons = window->findChild<QDialogButtonBox *>();
    QVERIFY(buttons && buttons->button(QDialogButtonBox::Save));
    QWidget parent;
    QWidget *child = KirvUILoader::getInstance()->loadUI(QStringLiteral("Accounts"), &parent, QString());
    QVERIFY(child);
    QVERIFY(parent.isAncestorOf(child));
    verifyChildren(parent, QStringLiteral("Accounts"));
}

void KirvContractCheck::widgetFillsItsPlaceholder()
{
    QWidget placeholder;
    placeholder.resize(300, 200);
    auto *widget = new QWidget;
    KirvUILoader::insertWidget(&placeholder, widget);
    QVERIFY(placeholder.isAncestorOf(widget)); // which owns it now
    placeholder.show();
    QCoreApplication::processEvents();
    QCOMPARE(widget->size(), placeholder.size());
}

void KirvContractCheck::fieldsComeBackFromTheForm()
{
    const QString none;
    const QList<KirvField> fields = {
        KirvField::textEdit(QStringLiteral("Colour"), QStringLiteral("colour"), QStringLiteral("a <b> & c"), none),
        KirvField::password(QStringLiteral("Word"), QStringLiteral("word"), QStringLiteral("secret"), none),
        KirvField::checkBox(QStringLiteral("Box"), QStringLiteral("box"), true, none),
        // None of the values: it is shown as an option of its own.
        KirvField::choice(QStringLiteral("Size"), QStringLiteral("size"), QStringLiteral("huge"),
                          { QStringLiteral("small"), QStringLiteral("large") }, { QStringLiteral("Small") }, none),
        KirvField::number(QStringLiteral("Port"), QStringLiteral("port"), 5222, 1, 65535, none),
        KirvField::note(QStringLiteral("Note"), QStringLiteral("note"), QStringLiteral("Read <this>"), none),
        KirvField::multiLine(QStringLiteral("Lines"), QStringLiteral("lines"), QStringLiteral("one\n\ntwo"), none)
    };
    const KirvFieldWidget form(fields, nullptr, KirvFieldWidget::LabelsBeside);
    const QList<KirvField> read = form.getFields();
    QCOMPARE(read.size(), fields.size());
    QVERIFY2(read == fields, "what nobody edited is as it was given, or every Save would change it");
}

void KirvContractCheck::formIsFilledAnew()
{
    const QString none;
    KirvFieldWidget form(loaded()->getAccountSettings(), nullptr, KirvFieldWidget::LabelsAbove);
    const QList<KirvField> other = { KirvField::textEdit(none, QStringLiteral("one"), QStringLiteral("1"), none) };
    form.fillWithFields(other);
    QVERIFY(form.getFields() == other);
    form.fillWithFields(QList<KirvField>());
    QVERIFY(form.getFields().isEmpty());
}

void KirvContractCheck::avatarMayBeMissing()
{
    KirvAvatarQuickSetWidget picture(nullptr);
    QSignalSpy chosen(&picture, SIGNAL(imageSelected(QString)));
    picture.setImage(QString());
    picture.setImage(QStringLiteral("/no/such/picture.png"));
    QCOMPARE(chosen.count(), 0); // only the user chooses
}

void KirvContractCheck::pageShowsTheAccounts()
{
    QVERIFY(create(first));
    QVERIFY(create(second));
    manager().disableAccount(second, protocol);
    const QScopedPointer<KirvAccountsTab> page(KirvAccountsTab::getInstance());
    page->readProtocolAccounts(protocol);
    const QTreeWidget *list = page->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
    QVERIFY(list);
    QStringList ticked, others;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = list->topLevelItem(row);
        (item->checkState(0) == Qt::Checked ? ticked : others) << item->text(0);
    }
    QCOMPARE(ticked.count(QStringLiteral("Alias of ") + first), 1);
    QCOMPARE(others.count(QStringLiteral("Alias of ") + second), 1);
}

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
#include <QScopedPointer>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString nowhere = QStringLiteral("No such protocol");

KirvAccountManager &manager()
{
    return *KirvAccountManager::getInstance();
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
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    QCOMPARE(account->getUid(), first);
    QCOMPARE(account->getProtocolName(), protocol);
    QCOMPARE(account->getProtocol(), loaded());
    QCOMPARE(account->getAlias(), QStringLiteral("Alias of ") + first);
    QCOMPARE(account->getPassword(), QStringLiteral("word"));
    QVERIFY(account->isEnabled());
}

void KirvContractCheck::createdAccountIsListedOnce()
{
    QVERIFY(create(first));
    QCOMPARE(listed().count(first), 1);
    const QList<KirvAccountInfo *> infos = manager().getAccountsInfo(protocol);
    const KirvAccountInfo *info = infos.value(listed().indexOf(first));
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
    manager().enableAccount(second, protocol);
    manager().disableAccount(second, protocol);
    manager().removeAccount(second, nowhere);
    QCOMPARE(manager().getAccount(first, protocol), account);
}

void KirvContractCheck::takenLoginIsRefused()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    account->setAlias(QStringLiteral("kept"));
    QVERIFY(!create(first));
    QCOMPARE(listed().count(first), 1);
    QCOMPARE(manager().getAccount(first, protocol), account);
    QCOMPARE(account->getAlias(), QStringLiteral("kept"));
}

void KirvContractCheck::listKeepsItsOrder()
{
    QVERIFY(create(first));
    QVERIFY(create(second));
    const QStringList order = listed();
    manager().getAccount(first, protocol)->setAlias(QStringLiteral("zz"));
    QCOMPARE(listed(), order);
    manager().disableAccount(first, protocol);
    manager().enableAccount(first, protocol);
    QCOMPARE(listed(), order);
}

void KirvContractCheck::aliasIsChanged()
{
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    const QString alias = QStringLiteral("Ann & <b>Ben</b>");
    account->setAlias(alias);
    QCOMPARE(account->getAlias(), alias);
    QCOMPARE(manager().getAccountsInfo(protocol).value(listed().indexOf(first))->getAlias(), alias);
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
        QCOMPARE(manager().getAccountsInfo(protocol).value(listed().indexOf(first))->isEnabled(), isWanted);
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
    QList<KirvField> settings = account->getAccountSettingsInOrder();
    QCOMPARE(settings.size(), loaded()->getAccountSettings().size());
    for (KirvField &field : settings) {
        if (field.getKind() == KirvField::CheckBox)
            field.setChecked(!field.isChecked());
        else if (field.getKind() == KirvField::Text && field.getPattern().isEmpty())
            field.setText(QStringLiteral("a \"b\" <c>"));
    }
    account->setAccountSettings(settings);
    const QList<KirvField> stored = account->getAccountSettingsInOrder();
    QCOMPARE(stored.size(), settings.size());
    for (int index = 0; index < stored.size(); ++index) {
        QCOMPARE(stored.at(index).getId(), settings.at(index).getId());
        QCOMPARE(stored.at(index).getText(), settings.at(index).getText());
        QCOMPARE(stored.at(index).isChecked(), settings.at(index).isChecked());
    }
}

void KirvContractCheck::generalSettingsAreComplete()
{
    KirvSettingsManagerPrivate *settings = KirvSettingsManagerPrivate::settingsMgrPrivInstance;
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    account->setAlias(QStringLiteral("changed"));
    QStringList ids;
    const QList<KirvField> fields = settings->readAccountGlobals(first, protocol);
    for (const KirvField &field : fields) {
        ids << field.getId();
        if (field.getId() == QLatin1String("alias"))
            QCOMPARE(field.getText(), QStringLiteral("changed"));
    }
    for (const char *id : { "alias", "password", "password/remember", "presence/restore", "presence/restore_desc" })
        QVERIFY2(ids.contains(QLatin1String(id)), id);
    QVERIFY(settings->readAccountGlobals(second, protocol).isEmpty());
    QVERIFY(settings->readAccountGlobals(first, nowhere).isEmpty());
}

void KirvContractCheck::mainAccountIsAssigned()
{
    KirvAccountConnection *before = manager().getMainAccount();
    KirvAccountConnection *account = create(first);
    QVERIFY(account);
    manager().setMainAccount(account);
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
    QWidget parent;
    QWidget *child = KirvUILoader::getInstance()->loadUI(QStringLiteral("Accounts"), &parent, QString());
    QVERIFY(child);
    QVERIFY(parent.isAncestorOf(child));
    QVERIFY(parent.findChild<QTreeWidget *>(QStringLiteral("Accounts_List")));
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
        KirvField::password(QStringLiteral("Word"), QStringLiteral("word"), QStringLiteral("secret"), none)
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
    QStringList ticked;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = list->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            ticked << item->text(0);
    }
    QVERIFY(ticked.contains(QStringLiteral("Alias of ") + first));
    QVERIFY(!ticked.contains(QStringLiteral("Alias of ") + second));
}

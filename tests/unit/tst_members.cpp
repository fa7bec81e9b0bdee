// SPDX-License-Identifier: LGPL-2.1-or-later
#include "add_account/kirv_add_account_dialog.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "edit_account/kirv_pubdir_account_received_event.h"
#include "tests/unit/kirv_page_fixture.h"
#include "tests/unit/kirv_private_member.h"

#include <QtTest>

#include <algorithm>
#include <memory>

KIRV_PRIVATE_MEMBER(KirvAccountsTab, mainAccountBox);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, accountList);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, addMenu);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, addButton);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, editButton);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, removeButton);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, pendingAccountId);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, pendingProtocol);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, pendingItem);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, protocolActions);
KIRV_PRIVATE_MEMBER(KirvAccountsTab, accEdit);

KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, protocol);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, fieldWidget);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, passwordEdit);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, usernameEdit);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, presenceCombo);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, rememberPasswordCheckbox);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, saveButton);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, dialog);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, initialConfiguration);
KIRV_PRIVATE_MEMBER(KirvAddAccountDialog, accountWindow);

KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, accountId);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, protocol);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, accountSettingsWidget);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, aliasEdit);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, passwordEdit);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, rememberPasswordCheck);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, rememberPresenceCheck);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, rememberDescriptionCheck);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, descriptionEdit);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, presenceCombo);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, saveButton);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, cancelButton);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, pubdirWidget);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, pubdirData);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, dialog);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, pubdirControls);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, avatarWidget);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, protocolName);
KIRV_PRIVATE_MEMBER(KirvEditAccountDialog, accountWindow);

KIRV_PRIVATE_MEMBER(KirvPubdirAccountReceivedEvent, account);
KIRV_PRIVATE_MEMBER(KirvPubdirAccountReceivedEvent, data);

#define OFFSET(object, Class, member) kirvOffset(object, kirvMember(Class##_##member()))
#define VALUE(object, Class, member) ((object).*kirvMember(Class##_##member()))

namespace {

bool isAscending(const QList<qptrdiff> &offsets)
{
    return std::is_sorted(offsets.begin(), offsets.end(), std::less_equal<>());
}

}

/// The data members of the public classes: their order is part of the classes' layout, their first values of what
/// a fresh object promises.
class tst_Members : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<KirvPageFixture>(); }
    void cleanup() { fixture.reset(); }

    void membersOfThePageStandInTheirOrder();
    void membersOfThePageStartEmpty();
    void membersOfTheAddDialogStandInTheirOrder();
    void membersOfTheEditDialogStandInTheirOrder();
    void aControllerForAnUnknownProtocolHasNoWindow();
    void membersOfTheEventStandInTheirOrder();

private:
    std::unique_ptr<KirvPageFixture> fixture;
};

void tst_Members::membersOfThePageStandInTheirOrder()
{
    const KirvAccountsTab &page = *fixture->page();
    QVERIFY(isAscending({ OFFSET(page, KirvAccountsTab, mainAccountBox), OFFSET(page, KirvAccountsTab, accountList),
                          OFFSET(page, KirvAccountsTab, addMenu), OFFSET(page, KirvAccountsTab, addButton),
                          OFFSET(page, KirvAccountsTab, editButton), OFFSET(page, KirvAccountsTab, removeButton),
                          OFFSET(page, KirvAccountsTab, pendingAccountId),
                          OFFSET(page, KirvAccountsTab, pendingProtocol), OFFSET(page, KirvAccountsTab, pendingItem),
                          OFFSET(page, KirvAccountsTab, protocolActions), OFFSET(page, KirvAccountsTab, accEdit) }));
}

void tst_Members::membersOfThePageStartEmpty()
{
    const KirvAccountsTab &page = *fixture->page();
    QVERIFY(VALUE(page, KirvAccountsTab, pendingAccountId).isNull());
    QVERIFY(VALUE(page, KirvAccountsTab, pendingProtocol).isNull());
    QVERIFY(VALUE(page, KirvAccountsTab, protocolActions).isEmpty());
    QVERIFY(VALUE(page, KirvAccountsTab, accEdit) == nullptr);
    QCOMPARE(VALUE(page, KirvAccountsTab, mainAccountBox), fixture->selector());
    QCOMPARE(VALUE(page, KirvAccountsTab, accountList), fixture->list());
    QCOMPARE(VALUE(page, KirvAccountsTab, addMenu), fixture->addMenu());
    QCOMPARE(VALUE(page, KirvAccountsTab, addButton), fixture->addButton());
    QCOMPARE(VALUE(page, KirvAccountsTab, editButton), fixture->editButton());
    QCOMPARE(VALUE(page, KirvAccountsTab, removeButton), fixture->removeButton());
}

void tst_Members::membersOfTheAddDialogStandInTheirOrder()
{
    fixture->xmpp->configurations = QStringList { "Home" };
    const KirvAddAccountDialog dialog(fixture->xmpp, "Home", fixture->page(), Qt::Sheet);
    QVERIFY(isAscending(
        { OFFSET(dialog, KirvAddAccountDialog, protocol), OFFSET(dialog, KirvAddAccountDialog, fieldWidget),
          OFFSET(dialog, KirvAddAccountDialog, passwordEdit), OFFSET(dialog, KirvAddAccountDialog, usernameEdit),
          OFFSET(dialog, KirvAddAccountDialog, presenceCombo),
          OFFSET(dialog, KirvAddAccountDialog, rememberPasswordCheckbox),
          OFFSET(dialog, KirvAddAccountDialog, saveButton), OFFSET(dialog, KirvAddAccountDialog, dialog),
          OFFSET(dialog, KirvAddAccountDialog, initialConfiguration),
          OFFSET(dialog, KirvAddAccountDialog, accountWindow) }));
    QCOMPARE(VALUE(dialog, KirvAddAccountDialog, protocol), static_cast<KirvProtocol *>(fixture->xmpp));
    QVERIFY(VALUE(dialog, KirvAddAccountDialog, fieldWidget) == nullptr);
    QCOMPARE(VALUE(dialog, KirvAddAccountDialog, initialConfiguration), QString("Home"));
    QVERIFY(!dialog.parent());
}

void tst_Members::membersOfTheEditDialogStandInTheirOrder()
{
    fixture->host.addAccount("alice", "XMPP");
    const KirvEditAccountDialog dialog("alice", "XMPP", fixture->page(), Qt::Sheet);
    QVERIFY(isAscending(
        { OFFSET(dialog, KirvEditAccountDialog, accountId), OFFSET(dialog, KirvEditAccountDialog, protocol),
          OFFSET(dialog, KirvEditAccountDialog, accountSettingsWidget),
          OFFSET(dialog, KirvEditAccountDialog, aliasEdit), OFFSET(dialog, KirvEditAccountDialog, passwordEdit),
          OFFSET(dialog, KirvEditAccountDialog, rememberPasswordCheck),
          OFFSET(dialog, KirvEditAccountDialog, rememberPresenceCheck),
          OFFSET(dialog, KirvEditAccountDialog, rememberDescriptionCheck),
          OFFSET(dialog, KirvEditAccountDialog, descriptionEdit), OFFSET(dialog, KirvEditAccountDialog, presenceCombo),
          OFFSET(dialog, KirvEditAccountDialog, saveButton), OFFSET(dialog, KirvEditAccountDialog, cancelButton),
          OFFSET(dialog, KirvEditAccountDialog, pubdirWidget), OFFSET(dialog, KirvEditAccountDialog, pubdirData),
          OFFSET(dialog, KirvEditAccountDialog, dialog), OFFSET(dialog, KirvEditAccountDialog, pubdirControls),
          OFFSET(dialog, KirvEditAccountDialog, avatarWidget), OFFSET(dialog, KirvEditAccountDialog, protocolName),
          OFFSET(dialog, KirvEditAccountDialog, accountWindow) }));
    QCOMPARE(VALUE(dialog, KirvEditAccountDialog, accountId), QString("alice"));
    QCOMPARE(VALUE(dialog, KirvEditAccountDialog, protocol), static_cast<KirvProtocol *>(fixture->xmpp));
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, accountSettingsWidget) == nullptr);
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, pubdirWidget) == nullptr);
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, pubdirData).isEmpty());
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, pubdirControls) != nullptr);
    QVERIFY(!dialog.parent());
}

void tst_Members::aControllerForAnUnknownProtocolHasNoWindow()
{
    const KirvEditAccountDialog dialog("alice", "Unknown", fixture->page(), Qt::Sheet);
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, protocol) == nullptr);
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, dialog) == nullptr);
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, accountSettingsWidget) == nullptr);
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, pubdirWidget) == nullptr);
    QVERIFY(VALUE(dialog, KirvEditAccountDialog, pubdirData).isEmpty());
}

void tst_Members::membersOfTheEventStandInTheirOrder()
{
    const KirvPubdirAccountReceivedEvent event(nullptr, {});
    QVERIFY(isAscending({ OFFSET(event, KirvPubdirAccountReceivedEvent, account),
                          OFFSET(event, KirvPubdirAccountReceivedEvent, data) }));
}

QTEST_MAIN(tst_Members)
#include "tst_members.moc"

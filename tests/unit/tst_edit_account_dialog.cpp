// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/recording_host/kirv_recording_icons.h"
#include "tests/unit/kirv_edit_fixture.h"

#include <QtTest>

#include <memory>

/// The edit dialog's window: how it is built, bound and shown, and how dialog and window end.
class tst_EditAccountDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<KirvEditFixture>(); }
    void cleanup() { fixture.reset(); }

    void slotsStandInTheirOrder_data();
    void slotsStandInTheirOrder();
    void theMetaObjectHoldsNothingElse();
    void theHostIsCalledInOrder();
    void theWindowIsShownWindowModal();
    void theDialogIsRecordedWithThePage();
    void theIdentifierNamesIdAndProtocol();
    void presencesAreOfferedInOrder();
    void presenceIconsAreFoundWithAnAddedSlash();
    void theDefaultPresenceIsCurrent_data();
    void theDefaultPresenceIsCurrent();
    void theDescriptionIsShownAsText_data();
    void theDescriptionIsShownAsText();
    void markupInTheDescriptionIsShownFormatted();
    void theAvatarPickerFillsItsPlace();
    void theSettingsFillTheirPlace();
    void withoutSettingsThePlaceStaysEmpty();
    void theDirectoryFillsItsPlace();
    void withoutDirectoryTheSecondTabGoes();
    void tickedBoxesDisableWhatTheyOverride_data();
    void tickedBoxesDisableWhatTheyOverride();
    void anAccountNotFoundShowsOnlyWhatIsStored();
    void anAccountNotFoundConnectsNothing();
    void anUnknownProtocolOpensNothing();
    void anUnknownProtocolEndsTheDialogBefore();
    void aControllerWithoutWindowAnswersRejected();
    void theNextDialogLeavesTheWindowBefore();
    void nothingIsConnectedToTheEndOfTheWindow();
    void finishedEndsTheController();
    void execBlocksUntilTheWindowIsClosed();
    void theControllerDeletedWhileItsWindowIsOpen();
    void theWindowDeletedBeforeTheController();

private:
    std::unique_ptr<KirvEditFixture> fixture;
};

void tst_EditAccountDialog::slotsStandInTheirOrder_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("signature");
    int index = 0;
    for (const char *signature : { "saveSettings()", "saveAndClose()", "requestPubdirInfo()", "removePubdirInfo()",
                                   "togglePubdirControl(int)", "changeAvatar(QString)", "finished(int)", "reject()" })
        QTest::newRow(signature) << index++ << QByteArray(signature);
}

void tst_EditAccountDialog::slotsStandInTheirOrder()
{
    QFETCH(int, index);
    QFETCH(QByteArray, signature);
    const QMetaObject &meta = KirvEditAccountDialog::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Protected);
}

void tst_EditAccountDialog::theMetaObjectHoldsNothingElse()
{
    const QMetaObject &meta = KirvEditAccountDialog::staticMetaObject;
    QCOMPARE(meta.className(), "KirvEditAccountDialog");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 8);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.classInfoCount(), meta.classInfoOffset());
}

void tst_EditAccountDialog::theHostIsCalledInOrder()
{
    fixture->open();
    QStringList calls = fixture->host.calls();
    calls.removeAll("XMPP.getName()");
    calls.removeAll("alice@XMPP.getDefaultPresence()");
    calls.removeAll("getCurrentRosterThemeDir()");
    QCOMPARE(calls,
             (QStringList { "getProtocolByName(XMPP)", "loadUI(EditAccount, null)", "loadAccount(alice, XMPP)",
                            "KirvAvatarQuickSetWidget(EditAccount)",
                            "insertWidget(EditAccount_AvatarPlacement, KirvAvatarQuickSetWidget)",
                            "alice@XMPP.getCurrentAvatarPath()", "setImage(/avatars/alice.png)",
                            "XMPP.getAllPresences()", "alice@XMPP.getAccountSettingsInOrder()",
                            "KirvFieldWidget([server=example.org, tls=true], EditAccount, 0)",
                            "insertWidget(EditAccount_AccSettings, KirvFieldWidget)", "XMPP.getPubdirAccountFields()",
                            "KirvFieldWidget([name=, town=], EditAccount, 0)",
                            "insertWidget(EditAccount_PubDirResults, KirvFieldWidget)",
                            "readAccountGlobals(alice, XMPP)" }));
    QCOMPARE(fixture->host.effects(), QStringList());
}

void tst_EditAccountDialog::theWindowIsShownWindowModal()
{
    fixture->open();
    QVERIFY(fixture->window);
    QVERIFY(fixture->window->isVisible());
    QCOMPARE(fixture->window->parent(), fixture->page());
    QCOMPARE(fixture->window->windowModality(), Qt::WindowModal);
    QVERIFY(!fixture->dialog()->parent());

    // As a plain dialog: Qt itself makes a sheet of a window-modal one when it is shown.
    QDialog likewise;
    likewise.setParent(fixture->page(), Qt::Sheet);
    likewise.setWindowModality(Qt::WindowModal);
    likewise.setWindowFlags(Qt::Dialog);
    likewise.setVisible(true);
    QCOMPARE(fixture->window->windowFlags(), likewise.windowFlags());
}

void tst_EditAccountDialog::theDialogIsRecordedWithThePage()
{
    fixture->open();
    QVERIFY(fixture->dialog());
}

void tst_EditAccountDialog::theIdentifierNamesIdAndProtocol()
{
    fixture->open();
    QCOMPARE(fixture->child<QLabel>("Identifier")->text(), QString("alice (XMPP)"));
}

void tst_EditAccountDialog::presencesAreOfferedInOrder()
{
    fixture->open();
    const auto *combo = fixture->child<QComboBox>("PresenceCombo");
    QCOMPARE(combo->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(combo->itemText(i), fixture->xmpp->presences.at(i).getDisplay());
        QCOMPARE(combo->itemData(i, Qt::UserRole), QVariant(fixture->xmpp->presences.at(i).getId()));
    }
}

void tst_EditAccountDialog::presenceIconsAreFoundWithAnAddedSlash()
{
    fixture->open();
    QCOMPARE(kirvRecordedIconReads(),
             (QStringList { "/theme//icons/online.recorded", "/theme//icons/away.recorded",
                            "/theme//icons/offline.recorded" }));
    QCOMPARE(fixture->child<QComboBox>("PresenceCombo")->itemIcon(2).name(), QString("/theme//icons/offline.recorded"));
}

void tst_EditAccountDialog::theDefaultPresenceIsCurrent_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QString>("defaultId");
    QTest::addColumn<int>("current");
    QTest::newRow("one matches") << QStringList { "online", "away", "offline" } << "away" << 1;
    QTest::newRow("none matches") << QStringList { "online", "away", "offline" } << "Away" << 0;
    QTest::newRow("the last match wins") << QStringList { "away", "online", "away" } << "away" << 2;
    QTest::newRow("the last of neighbours wins") << QStringList { "online", "away", "away" } << "away" << 2;
    QTest::newRow("no presences") << QStringList() << "away" << -1;
}

void tst_EditAccountDialog::theDefaultPresenceIsCurrent()
{
    QFETCH(QStringList, ids);
    QFETCH(QString, defaultId);
    QFETCH(int, current);
    fixture->xmpp->presences.clear();
    for (const QString &id : ids)
        fixture->xmpp->presences.append(KirvPresence(id, id, id));
    fixture->alice->defaultPresence = KirvPresence(defaultId, QString(), QString());
    fixture->open();
    QCOMPARE(fixture->child<QComboBox>("PresenceCombo")->currentIndex(), current);
}

void tst_EditAccountDialog::theDescriptionIsShownAsText_data()
{
    QTest::addColumn<QString>("description");
    QTest::newRow("words") << "at lunch";
    QTest::newRow("empty") << "";
    QTest::newRow("lines") << "first\nsecond";
    QTest::newRow("characters of markup") << "3 < 4 & 5 > 2";
    QTest::newRow("right to left") << QString::fromUtf8("\u05e9\u05dc\u05d5\u05dd");
}

void tst_EditAccountDialog::theDescriptionIsShownAsText()
{
    QFETCH(QString, description);
    fixture->alice->defaultPresence = fixture->xmpp->presence("away", description);
    fixture->open();
    QCOMPARE(fixture->child<QTextEdit>("DescriptionEdit")->toPlainText(), description);
}

void tst_EditAccountDialog::markupInTheDescriptionIsShownFormatted()
{
    fixture->alice->defaultPresence = fixture->xmpp->presence("away", "at <b>lunch</b>");
    fixture->open();
    const auto *edit = fixture->child<QTextEdit>("DescriptionEdit");
    QCOMPARE(edit->toPlainText(), QString("at lunch"));
    QTextCursor cursor(edit->document());
    cursor.setPosition(5);
    QCOMPARE(cursor.charFormat().fontWeight(), int(QFont::Bold));
}

void tst_EditAccountDialog::theAvatarPickerFillsItsPlace()
{
    fixture->open();
    auto *picker = fixture->child<QWidget>("AvatarPlacement")->findChild<KirvAvatarQuickSetWidget *>();
    QVERIFY(picker);
    QCOMPARE(picker->minimumSize(), QSize(64, 64));
    QCOMPARE(picker->maximumSize(), QSize(64, 64));
}

void tst_EditAccountDialog::theSettingsFillTheirPlace()
{
    fixture->open();
    QVERIFY(fixture->settingsForm());
    QCOMPARE(fixture->tabs()->count(), 2);
}

void tst_EditAccountDialog::withoutSettingsThePlaceStaysEmpty()
{
    fixture->alice->settings.clear();
    fixture->open();
    QVERIFY(fixture->child<QWidget>("AccSettings")->findChildren<QWidget *>().isEmpty());
    QCOMPARE(fixture->tabs()->count(), 2);
    QVERIFY(fixture->directoryForm());
}

void tst_EditAccountDialog::theDirectoryFillsItsPlace()
{
    fixture->open();
    QVERIFY(fixture->directoryForm());
    QVERIFY(fixture->directoryForm()->isEnabled());
    QCOMPARE(fixture->tabs()->currentIndex(), 0);
    QCOMPARE(fixture->host.calls({ "fetchPubdirInfo" }), QStringList());
}

void tst_EditAccountDialog::withoutDirectoryTheSecondTabGoes()
{
    fixture->xmpp->pubdirFields.clear();
    fixture->alice->loggedIn = true;
    fixture->open();
    QCOMPARE(fixture->tabs()->count(), 1);
    QCOMPARE(fixture->tabs()->tabText(0), QString("General"));
    fixture->host.forgetCalls();
    fixture->tabs()->addTab(new QWidget, "Another");
    fixture->tabs()->setCurrentIndex(1);
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_EditAccountDialog::tickedBoxesDisableWhatTheyOverride_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<bool>("presence");
    QTest::addColumn<bool>("description");
    QTest::newRow("last presence") << "RememberPresence" << false << false;
    QTest::newRow("last description") << "RememberDescription" << true << false;
    QTest::newRow("password") << "RememberPassword" << true << true;
}

void tst_EditAccountDialog::tickedBoxesDisableWhatTheyOverride()
{
    QFETCH(QString, box);
    QFETCH(bool, presence);
    QFETCH(bool, description);
    fixture->open();
    auto *combo = fixture->child<QComboBox>("PresenceCombo");
    auto *edit = fixture->child<QTextEdit>("DescriptionEdit");
    QVERIFY(combo->isEnabled());
    QVERIFY(edit->isEnabled());

    auto *check = fixture->child<QCheckBox>(qPrintable(box));
    check->setChecked(!check->isChecked());
    check->setChecked(true);
    QCOMPARE(combo->isEnabled(), presence);
    QCOMPARE(edit->isEnabled(), description);
    check->setChecked(false);
    QVERIFY(combo->isEnabled());
    QVERIFY(edit->isEnabled());
}

void tst_EditAccountDialog::anAccountNotFoundShowsOnlyWhatIsStored()
{
    fixture->alice->loadable = false;
    fixture->open();
    QVERIFY(fixture->window->isVisible());
    QCOMPARE(fixture->child<QLabel>("Identifier")->text(), QString("alice (XMPP)"));
    QCOMPARE(fixture->child<QLineEdit>("Alias")->text(), QString("Work"));
    QCOMPARE(fixture->child<QLineEdit>("Password")->text(), QString("secret"));
    QVERIFY(fixture->child<QCheckBox>("RememberPassword")->isChecked());
    QCOMPARE(fixture->child<QComboBox>("PresenceCombo")->count(), 0);
    QVERIFY(!fixture->settingsForm());
    QVERIFY(!fixture->directoryForm());
    QVERIFY(!fixture->window->findChild<KirvAvatarQuickSetWidget *>());
    QCOMPARE(fixture->tabs()->count(), 2);
    QCOMPARE(
        fixture->host.calls({ "loadUI", "loadAccount", "readAccountGlobals", "getAllPresences",
                              "getPubdirAccountFields", "KirvFieldWidget", "insertWidget" }),
        (QStringList { "loadUI(EditAccount, null)", "loadAccount(alice, XMPP)", "readAccountGlobals(alice, XMPP)" }));
    QVERIFY(fixture->dialog());
}

void tst_EditAccountDialog::anAccountNotFoundConnectsNothing()
{
    fixture->alice->loadable = false;
    fixture->open();
    fixture->alice->loadable = true;
    fixture->host.forgetCalls();
    fixture->button(QDialogButtonBox::Save)->click();
    fixture->button(QDialogButtonBox::Cancel)->click();
    fixture->child<QCheckBox>("RememberPresence")->setChecked(true);
    fixture->tabs()->setCurrentIndex(1);
    QVERIFY(fixture->window->isVisible());
    QVERIFY(fixture->child<QComboBox>("PresenceCombo")->isEnabled());
    QVERIFY(fixture->child<QTextEdit>("DescriptionEdit")->isEnabled());
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_EditAccountDialog::anUnknownProtocolOpensNothing()
{
    const std::unique_ptr<KirvEditAccountDialog> dialog(
        new KirvEditAccountDialog("alice", "Unknown", fixture->page(), Qt::Sheet));
    QCOMPARE(fixture->host.calls(), QStringList { "getProtocolByName(Unknown)" });
    QVERIFY(!kirvVisibleWindow<QDialog>());
    QVERIFY(!fixture->dialog());
}

void tst_EditAccountDialog::anUnknownProtocolEndsTheDialogBefore()
{
    fixture->open();
    const QPointer<KirvEditAccountDialog> before = fixture->dialog();
    const std::unique_ptr<KirvEditAccountDialog> dialog(
        new KirvEditAccountDialog("alice", "Unknown", fixture->page(), Qt::Sheet));
    QVERIFY(!before);
    QVERIFY(!fixture->dialog());
    QVERIFY(fixture->window);
}

void tst_EditAccountDialog::aControllerWithoutWindowAnswersRejected()
{
    KirvEditAccountDialog dialog("alice", "Unknown", fixture->page(), Qt::Sheet);
    fixture->host.forgetCalls();
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    for (const char *slot : { "saveSettings", "saveAndClose", "requestPubdirInfo", "removePubdirInfo", "reject" })
        QVERIFY(QMetaObject::invokeMethod(&dialog, slot));
    QVERIFY(QMetaObject::invokeMethod(&dialog, "togglePubdirControl", Q_ARG(int, 1)));
    QVERIFY(QMetaObject::invokeMethod(&dialog, "changeAvatar", Q_ARG(QString, "/new.png")));
    QCOMPARE(fixture->host.effects(), QStringList());
}

void tst_EditAccountDialog::theNextDialogLeavesTheWindowBefore()
{
    fixture->host.addAccount("bob", "IRC");
    fixture->open();
    const QPointer<KirvEditAccountDialog> first = fixture->dialog();
    const QPointer<QDialog> firstWindow = fixture->window;
    fixture->open("bob", "IRC");
    QVERIFY(!first);
    QVERIFY(firstWindow);
    QVERIFY(firstWindow->isVisible());
    QVERIFY(fixture->window != firstWindow);

    // Its buttons do nothing any more.
    fixture->host.forgetCalls();
    firstWindow->findChild<QDialogButtonBox *>("EditAccount_FrameButtons")->button(QDialogButtonBox::Save)->click();
    QCOMPARE(fixture->host.calls(), QStringList());
}

void tst_EditAccountDialog::nothingIsConnectedToTheEndOfTheWindow()
{
    fixture->open();
    const QPointer<KirvEditAccountDialog> dialog = fixture->dialog();
    fixture->window->close();
    fixture->letGo();
    QVERIFY(dialog);
    QCOMPARE(fixture->dialog(), dialog.data());
    QVERIFY(fixture->window);
}

void tst_EditAccountDialog::finishedEndsTheController()
{
    fixture->open();
    const QPointer<KirvEditAccountDialog> dialog = fixture->dialog();
    QVERIFY(QMetaObject::invokeMethod(dialog, "finished", Q_ARG(int, 1)));
    QVERIFY(dialog);
    fixture->letGo();
    QVERIFY(!dialog);
    QVERIFY(!fixture->dialog());
    QVERIFY(fixture->window);
    QVERIFY(fixture->window->isVisible());
}

void tst_EditAccountDialog::execBlocksUntilTheWindowIsClosed()
{
    fixture->open();
    QTimer::singleShot(0, fixture->window, [&] { fixture->button(QDialogButtonBox::Save)->click(); });
    QCOMPARE(fixture->dialog()->exec(), int(QDialog::Accepted));
    fixture->open();
    QTimer::singleShot(0, fixture->window, [&] { fixture->button(QDialogButtonBox::Cancel)->click(); });
    QCOMPARE(fixture->dialog()->exec(), int(QDialog::Rejected));
}

void tst_EditAccountDialog::theControllerDeletedWhileItsWindowIsOpen()
{
    fixture->alice->loggedIn = true;
    fixture->open();
    delete fixture->dialog();
    fixture->host.forgetCalls();
    fixture->tabs()->setCurrentIndex(1);
    fixture->child<QPushButton>("PubDirFetch")->click();
    fixture->button(QDialogButtonBox::Save)->click();
    fixture->button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(fixture->host.calls(), QStringList());
    delete fixture->window;
    QVERIFY(!fixture->dialog());
}

void tst_EditAccountDialog::theWindowDeletedBeforeTheController()
{
    fixture->alice->loggedIn = true;
    fixture->open();
    delete fixture->window;
    fixture->host.forgetCalls();
    for (const char *slot : { "saveSettings", "saveAndClose", "requestPubdirInfo", "removePubdirInfo", "reject" })
        QVERIFY(fixture->call(slot));
    QCOMPARE(fixture->dialog()->exec(), int(QDialog::Rejected));
    QCOMPARE(fixture->host.effects(), QStringList());
    fixture->open();
    QVERIFY(fixture->window);
}

QTEST_MAIN(tst_EditAccountDialog)
#include "tst_edit_account_dialog.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/unit/kirv_edit_fixture.h"

#include <QtTest>

#include <memory>

/// What the edit dialog shows of the stored account and what saving writes.
class tst_EditAccountSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<KirvEditFixture>(); }
    void cleanup() { fixture.reset(); }

    void storedValuesFillTheWindow_data();
    void storedValuesFillTheWindow();
    void laterValuesOverwriteEarlierOnes();
    void otherValuesAreSkipped();
    void storedTicksDisableWhatTheyOverride_data();
    void storedTicksDisableWhatTheyOverride();
    void savingWithoutChangesWritesInOrder();
    void everyChangeIsWritten();
    void theDefaultPresenceIsWrittenWhileItIsDisabled();
    void onlyACheckedBoxCountsAsChecked_data();
    void onlyACheckedBoxCountsAsChecked();
    void aChangedPasswordTakesAnEnabledAccountToItsDefaultPresence();
    void aChangedPasswordOfADisabledAccountIsOnlyStored();
    void theSavedPasswordIsComparedWithTheAccounts();
    void emptyValuesAreWritten();
    void withoutSettingsNoneAreWritten();
    void thePageShowsTheNewAlias();
    void saveClosesTheWindow();
    void saveSettingsAloneLeavesTheWindow();
    void savingAnAccountThatIsGoneClosesOnly();
    void cancelWritesNothing();
    void anAvatarIsAppliedAtOnce();
    void theAvatarOfAnAccountThatIsGone();

private:
    void save()
    {
        fixture->host.forgetCalls();
        QTest::mouseClick(fixture->button(QDialogButtonBox::Save), Qt::LeftButton);
    }

    std::unique_ptr<KirvEditFixture> fixture;
};

namespace {

const QString defaultPresenceKept = "alice@XMPP.setDefaultPresence(away:at lunch)";
const QString settingsKept = "alice@XMPP.setAccountSettings([server=example.org, tls=true])";

QStringList written(const QString &presence, const QStringList &password, const QString &alias, const QString &settings)
{
    return QStringList { presence, "alice@XMPP.setRestoreLastPresence(false)",
                         "alice@XMPP.setRestoreLastDescription(false)", "alice@XMPP.setRememberPassword(true)" }
    + password + QStringList { "alice@XMPP.setAlias(" + alias + ')', settings };
}

}

void tst_EditAccountSettings::storedValuesFillTheWindow_data()
{
    QTest::addColumn<bool>("checked");
    QTest::newRow("checked") << true;
    QTest::newRow("not checked") << false;
}

void tst_EditAccountSettings::storedValuesFillTheWindow()
{
    QFETCH(bool, checked);
    using F = KirvEditFixture;
    fixture->alice->globals = { F::text("alias", "Work"), F::text("password", "secret"),
                                F::check("password/remember", checked), F::check("presence/restore", checked),
                                F::check("presence/restore_desc", checked) };
    fixture->open();
    QCOMPARE(fixture->child<QLineEdit>("Alias")->text(), QString("Work"));
    QCOMPARE(fixture->child<QLineEdit>("Password")->text(), QString("secret"));
    for (const char *box : { "RememberPassword", "RememberPresence", "RememberDescription" })
        QCOMPARE(fixture->child<QCheckBox>(box)->checkState(), checked ? Qt::Checked : Qt::Unchecked);
    QCOMPARE(fixture->host.calls({ "readAccountGlobals" }), QStringList { "readAccountGlobals(alice, XMPP)" });
}

void tst_EditAccountSettings::laterValuesOverwriteEarlierOnes()
{
    using F = KirvEditFixture;
    fixture->alice->globals = { F::text("alias", "First"), F::check("password/remember", true),
                                F::text("alias", "Last"), F::check("password/remember", false) };
    fixture->open();
    QCOMPARE(fixture->child<QLineEdit>("Alias")->text(), QString("Last"));
    QCOMPARE(fixture->child<QCheckBox>("RememberPassword")->checkState(), Qt::Unchecked);
}

void tst_EditAccountSettings::otherValuesAreSkipped()
{
    using F = KirvEditFixture;
    fixture->alice->globals = { F::text("Alias", "Other case"), F::text("login", "alice"), F::text("", "nothing") };
    fixture->open();
    QCOMPARE(fixture->child<QLineEdit>("Alias")->text(), QString());
    QCOMPARE(fixture->child<QLineEdit>("Password")->text(), QString());
}

void tst_EditAccountSettings::storedTicksDisableWhatTheyOverride_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("presence");
    QTest::newRow("last presence") << "presence/restore" << false;
    QTest::newRow("last description") << "presence/restore_desc" << true;
}

void tst_EditAccountSettings::storedTicksDisableWhatTheyOverride()
{
    QFETCH(QString, id);
    QFETCH(bool, presence);
    fixture->alice->globals = { KirvEditFixture::check(id, true) };
    fixture->open();
    QCOMPARE(fixture->child<QComboBox>("PresenceCombo")->isEnabled(), presence);
    QVERIFY(!fixture->child<QTextEdit>("DescriptionEdit")->isEnabled());
}

void tst_EditAccountSettings::savingWithoutChangesWritesInOrder()
{
    fixture->open();
    save();
    QCOMPARE(fixture->host.effects(), written(defaultPresenceKept, {}, "Work", settingsKept));
    QStringList calls = fixture->host.calls();
    calls.removeAll("XMPP.getName()");
    QCOMPARE(
        calls,
        (QStringList { "loadAccount(alice, XMPP)", "accountEnabled(alice, XMPP)", "getFields()",
                       "alice@XMPP.isLoggedIn()", "XMPP.createPresenceWithId(away, at lunch)", defaultPresenceKept,
                       "alice@XMPP.setRestoreLastPresence(false)", "alice@XMPP.setRestoreLastDescription(false)",
                       "alice@XMPP.setRememberPassword(true)", "alice@XMPP.getPassword()", "alice@XMPP.setAlias(Work)",
                       "getFields()", settingsKept, "alice@XMPP.getUid()", "alice@XMPP.getProtocolName()" }));
}

void tst_EditAccountSettings::everyChangeIsWritten()
{
    fixture->open();
    fixture->child<QLineEdit>("Alias")->setText("Home");
    fixture->child<QComboBox>("PresenceCombo")->setCurrentIndex(2);
    fixture->child<QTextEdit>("DescriptionEdit")->setPlainText("two\nlines");
    fixture->settingsForm()->findChild<QLineEdit *>("server")->setText("other.org");
    fixture->settingsForm()->findChild<QCheckBox *>("tls")->setChecked(false);
    save();
    QCOMPARE(fixture->host.effects(),
             written("alice@XMPP.setDefaultPresence(offline:two\nlines)", {}, "Home",
                     "alice@XMPP.setAccountSettings([server=other.org, tls=false])"));
}

void tst_EditAccountSettings::theDefaultPresenceIsWrittenWhileItIsDisabled()
{
    fixture->open();
    fixture->child<QCheckBox>("RememberPresence")->setChecked(true);
    save();
    QVERIFY(fixture->host.effects().contains(defaultPresenceKept));
    QVERIFY(fixture->host.effects().contains("alice@XMPP.setRestoreLastPresence(true)"));
}

void tst_EditAccountSettings::onlyACheckedBoxCountsAsChecked_data()
{
    QTest::addColumn<Qt::CheckState>("state");
    QTest::addColumn<QString>("value");
    QTest::newRow("unchecked") << Qt::Unchecked << "false";
    QTest::newRow("partially checked") << Qt::PartiallyChecked << "false";
    QTest::newRow("checked") << Qt::Checked << "true";
}

void tst_EditAccountSettings::onlyACheckedBoxCountsAsChecked()
{
    QFETCH(Qt::CheckState, state);
    QFETCH(QString, value);
    fixture->open();
    for (const char *box : { "RememberPassword", "RememberPresence", "RememberDescription" })
        fixture->child<QCheckBox>(box)->setCheckState(state);
    save();
    QCOMPARE(fixture->host.calls({ "setRestoreLastPresence", "setRestoreLastDescription", "setRememberPassword" }),
             (QStringList { "alice@XMPP.setRestoreLastPresence(" + value + ')',
                            "alice@XMPP.setRestoreLastDescription(" + value + ')',
                            "alice@XMPP.setRememberPassword(" + value + ')' }));
}

void tst_EditAccountSettings::aChangedPasswordTakesAnEnabledAccountToItsDefaultPresence()
{
    fixture->open();
    fixture->child<QLineEdit>("Password")->setText("changed");
    fixture->child<QComboBox>("PresenceCombo")->setCurrentIndex(0);
    save();
    QCOMPARE(fixture->host.effects(),
             written("alice@XMPP.setDefaultPresence(online:at lunch)",
                     { "alice@XMPP.setPassword(changed)", "alice@XMPP.setPresence(online:at lunch)",
                       "XMPP.accountPresenceChanged(alice@XMPP)" },
                     "Work", settingsKept));
}

void tst_EditAccountSettings::aChangedPasswordOfADisabledAccountIsOnlyStored()
{
    fixture->alice->enabled = false;
    fixture->open();
    fixture->child<QLineEdit>("Password")->setText("changed");
    save();
    QCOMPARE(fixture->host.effects(),
             written(defaultPresenceKept, { "alice@XMPP.setPassword(changed)" }, "Work", settingsKept));
}

void tst_EditAccountSettings::theSavedPasswordIsComparedWithTheAccounts()
{
    // Not with the one that was shown at first.
    fixture->alice->password = "changed elsewhere";
    fixture->open();
    save();
    QVERIFY(fixture->host.effects().contains("alice@XMPP.setPassword(secret)"));
}

void tst_EditAccountSettings::emptyValuesAreWritten()
{
    fixture->open();
    fixture->child<QLineEdit>("Alias")->clear();
    fixture->child<QLineEdit>("Password")->clear();
    save();
    QVERIFY(fixture->host.effects().contains("alice@XMPP.setAlias(\"\")"));
    QVERIFY(fixture->host.effects().contains("alice@XMPP.setPassword(\"\")"));
}

void tst_EditAccountSettings::withoutSettingsNoneAreWritten()
{
    fixture->alice->settings.clear();
    fixture->open();
    save();
    QCOMPARE(fixture->host.calls({ "setAccountSettings" }), QStringList());
    QVERIFY(fixture->host.effects().contains("alice@XMPP.setAlias(Work)"));
}

void tst_EditAccountSettings::thePageShowsTheNewAlias()
{
    fixture->page()->readProtocolAccounts("XMPP");
    fixture->open();
    fixture->child<QLineEdit>("Alias")->setText("<b>Home</b>");
    save();
    QCOMPARE(fixture->row("alice")->text(0), QString("<b>Home</b>"));
    // The row is the last to know.
    QCOMPARE(fixture->host.effects().mid(fixture->host.effects().indexOf(settingsKept)),
             (QStringList { settingsKept, "enableAccount(alice, XMPP)" }));
}

void tst_EditAccountSettings::saveClosesTheWindow()
{
    fixture->open();
    int result = -1;
    connect(fixture->window.data(), &QDialog::finished, this, [&](int value) { result = value; });
    save();
    QVERIFY(!fixture->window->isVisible());
    QCOMPARE(result, int(QDialog::Accepted));
    QVERIFY(fixture->dialog());
}

void tst_EditAccountSettings::saveSettingsAloneLeavesTheWindow()
{
    fixture->open();
    fixture->host.forgetCalls();
    QVERIFY(fixture->call("saveSettings"));
    QCOMPARE(fixture->host.effects(), written(defaultPresenceKept, {}, "Work", settingsKept));
    QVERIFY(fixture->window->isVisible());
}

void tst_EditAccountSettings::savingAnAccountThatIsGoneClosesOnly()
{
    fixture->page()->readProtocolAccounts("XMPP");
    fixture->open();
    fixture->child<QLineEdit>("Alias")->setText("Home");
    fixture->alice->loadable = false;
    save();
    QStringList calls = fixture->host.calls();
    calls.removeAll("XMPP.getName()");
    QCOMPARE(calls, QStringList { "loadAccount(alice, XMPP)" });
    QCOMPARE(fixture->row("alice")->text(0), QString("Alias of alice"));
    QVERIFY(!fixture->window->isVisible());
    QCOMPARE(fixture->window->result(), int(QDialog::Accepted));
}

void tst_EditAccountSettings::cancelWritesNothing()
{
    fixture->open();
    fixture->child<QLineEdit>("Alias")->setText("Home");
    fixture->child<QLineEdit>("Password")->setText("changed");
    fixture->host.forgetCalls();
    QTest::mouseClick(fixture->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(fixture->host.calls(), QStringList());
    QVERIFY(!fixture->window->isVisible());
    QCOMPARE(fixture->window->result(), int(QDialog::Rejected));
}

void tst_EditAccountSettings::anAvatarIsAppliedAtOnce()
{
    fixture->open();
    fixture->host.forgetCalls();
    auto *picker = fixture->window->findChild<KirvAvatarQuickSetWidget *>();
    Q_EMIT picker->imageSelected("/pictures/new.png");
    QStringList calls = fixture->host.calls();
    calls.removeAll("XMPP.getName()");
    QCOMPARE(calls, (QStringList { "loadAccount(alice, XMPP)", "alice@XMPP.setAvatar(/pictures/new.png)" }));

    // Cancel does not take it back.
    fixture->button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(fixture->alice->avatarPath, QString("/pictures/new.png"));
    QCOMPARE(fixture->host.effects().size(), 1);
}

void tst_EditAccountSettings::theAvatarOfAnAccountThatIsGone()
{
    fixture->open();
    fixture->alice->loadable = false;
    fixture->host.forgetCalls();
    Q_EMIT fixture->window->findChild<KirvAvatarQuickSetWidget *>()->imageSelected("/pictures/new.png");
    QCOMPARE(fixture->host.effects(), QStringList());
}

QTEST_MAIN(tst_EditAccountSettings)
#include "tst_edit_account_settings.moc"

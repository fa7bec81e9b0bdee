// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_settings_table.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_fake_protocol.h"

#include <QDir>
#include <QImage>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class SettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home = std::make_unique<QTemporaryDir>();
        QVERIFY(home->isValid());
        store = std::make_unique<KirvStore>();
        QVERIFY(store->open(profile()));
        settings = std::make_unique<KirvClientSettings>(*store);
    }

    void cleanup()
    {
        settings.reset();
        store.reset();
    }

    void theManagerIsThereBeforeAndAfterTheCore()
    {
        QCOMPARE(KirvSettingsManagerPrivate::settingsMgrPrivInstance, settings.get());
        settings.reset();
        QVERIFY(!KirvSettingsManagerPrivate::settingsMgrPrivInstance);
        QVERIFY(KirvSettingsManager::getInstance());
        QCOMPARE(KirvSettingsManager::getInstance()->getCurrentRosterThemeDir(), QString());
    }

    void everySettingStandsInTheTableOnce()
    {
        QSet<QString> keys;
        for (const KirvSetting &setting : kirvSettingsTable()) {
            QVERIFY2(!keys.contains(setting.key), qPrintable(setting.key));
            keys.insert(setting.key);
        }
        QVERIFY(keys.contains(QStringLiteral("main_account")));
    }

    void aSettingThatIsNotSetHasItsDefault()
    {
        QCOMPARE(settings->value(QStringLiteral("main_account")), QString());
        QCOMPARE(settings->value(QStringLiteral("something of the client's own")), QString());
    }

    void aSettingSurvivesARestart()
    {
        QVERIFY(settings->setValue(QStringLiteral("key"), QStringLiteral("first")));
        QVERIFY(settings->setValue(QStringLiteral("key"), QString::fromUtf8("zweiter Wert ☕")));
        restart();
        QCOMPARE(settings->value(QStringLiteral("key")), QString::fromUtf8("zweiter Wert ☕"));
    }

    void writingAGlobalSettingIsOneCommit()
    {
        const int commits = store->commitCount();
        KirvSettingsManagerPrivate::settingsMgrPrivInstance->writeGlobalSetting(
            KirvField::textEdit(QString(), QStringLiteral("main_account"), QStringLiteral("a@@b@@XMPP"), QString()));
        QCOMPARE(store->commitCount(), commits + 1);
        restart();
        QCOMPARE(settings->value(QStringLiteral("main_account")), QStringLiteral("a@@b@@XMPP"));
    }

    void aRefusedGlobalSettingIsSaid()
    {
        KirvAccountCollection accounts(*store);
        QSignalSpy problems(&accounts, &KirvAccountCollection::problemOccurred);
        store->close();
        KirvSettingsManagerPrivate::settingsMgrPrivInstance->writeGlobalSetting(
            KirvField::textEdit(QString(), QStringLiteral("main_account"), QStringLiteral("a@@b"), QString()));
        QCOMPARE(problems.size(), 1);
        QVERIFY(!problems.first().first().toString().isEmpty());
        QCOMPARE(accounts.lastError(), problems.first().first().toString());
    }

    void theGlobalsOfAnAccountAreItsFiveFields()
    {
        KirvAccountCollection accounts(*store);
        FakeProtocol protocol;
        accounts.protocolLoaded(&protocol);
        KirvAccountConnection *account = KirvAccountManager::getInstance()->createAccount(
            QStringLiteral("id"), QStringLiteral("Alias"), QStringLiteral("word"), false, &protocol,
            protocol.presences().first(), {});
        QVERIFY(account);
        compareGlobals({ "Alias", "word", "-", "-", "-" });
        account->setAlias(QString());
        account->setRememberPassword(true);
        compareGlobals({ "", "word", "+", "-", "-" });
        account->setRestoreLastPresence(true);
        compareGlobals({ "", "word", "+", "+", "-" });
        account->setRestoreLastDescription(true);
        account->setRestoreLastPresence(false);
        compareGlobals({ "", "word", "+", "-", "+" });
        accounts.protocolAboutToBeUnloaded(protocol.getName());
        compareGlobals({ "", "word", "+", "-", "+" });
    }

    void anUnknownAccountHasNoGlobals()
    {
        const auto read = [] {
            return KirvSettingsManagerPrivate::settingsMgrPrivInstance->readAccountGlobals(QStringLiteral("id"),
                                                                                           QStringLiteral("Fake"));
        };
        QVERIFY(read().isEmpty());
        KirvAccountCollection accounts(*store);
        QVERIFY(read().isEmpty());
    }

    void theBuiltInThemeHasAnIconForEveryPresence_data()
    {
        QTest::addColumn<QString>("presence");
        for (const char *presence : { "available", "chat", "away", "xa", "dnd", "invisible", "offline" })
            QTest::newRow(presence) << presence;
    }
    void theBuiltInThemeHasAnIconForEveryPresence()
    {
        QFETCH(QString, presence);
        const QString theme = KirvSettingsManager::getInstance()->getCurrentRosterThemeDir();
        QCOMPARE(theme, QStringLiteral(":/kirv/roster/default/"));
        const QImage icon(theme + QLatin1String("icons/") + presence + QLatin1String(".svg"));
        QVERIFY(!icon.isNull());
        QVERIFY(icon.width() >= 16 && icon.width() <= 22);
    }

    void anotherThemeIsUsedWhenItIsThere_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<bool>("isUsed");
        QTest::newRow("complete") << "dark" << true;
        QTest::newRow("with blanks") << "My Theme" << true;
        QTest::newRow("none") << "" << false;
        QTest::newRow("gone") << "gone" << false;
        QTest::newRow("without icons") << "empty" << false;
        QTest::newRow("outside the folder") << "../outside" << false;
        QTest::newRow("the folder itself") << "." << false;
        QTest::newRow("the folder above") << ".." << false;
    }
    void anotherThemeIsUsedWhenItIsThere()
    {
        QFETCH(QString, theme);
        QFETCH(bool, isUsed);
        const QString themes = home->filePath(QStringLiteral("themes"));
        for (const char *folder : { "dark/icons", "My Theme/icons", "empty", "../outside/icons", "icons", "../icons" })
            QVERIFY(QDir(home->path()).mkpath(themes + QLatin1Char('/') + QLatin1String(folder)));
        QVERIFY(settings->setValue(QStringLiteral("roster_theme"), theme));
        QCOMPARE(settings->rosterThemeDir(), QStringLiteral(":/kirv/roster/default/"));
        settings->setThemeFolder(themes);
        const QString expected =
            isUsed ? themes + QLatin1Char('/') + theme + QLatin1Char('/') : QStringLiteral(":/kirv/roster/default/");
        QCOMPARE(settings->rosterThemeDir(), expected);
        QCOMPARE(KirvSettingsManager::getInstance()->getCurrentRosterThemeDir(), expected);
    }

private:
    QString profile() const { return home->filePath(QStringLiteral("profile")); }

    void restart()
    {
        settings.reset();
        store->close();
        QVERIFY(store->open(profile()));
        settings = std::make_unique<KirvClientSettings>(*store);
    }

    /// Compares the globals of the account "id" of the protocol "Fake": texts, and "+" or "-" for check boxes.
    static void compareGlobals(const QStringList &expected)
    {
        const QList<KirvField> fields = KirvSettingsManagerPrivate::settingsMgrPrivInstance->readAccountGlobals(
            QStringLiteral("id"), QStringLiteral("Fake"));
        QStringList ids, values;
        QList<KirvField::Kind> kinds;
        for (const KirvField &field : fields) {
            ids << field.getId();
            kinds << field.getKind();
            values << (field.getKind() == KirvField::CheckBox ? QLatin1String(field.isChecked() ? "+" : "-")
                                                              : field.getText());
            QVERIFY(!field.getLabel().isEmpty() && field.getLabel() != field.getId());
        }
        QCOMPARE(
            ids,
            QStringList({ "alias", "password", "password/remember", "presence/restore", "presence/restore_desc" }));
        QCOMPARE(kinds,
                 QList<KirvField::Kind>({ KirvField::Text, KirvField::Password, KirvField::CheckBox,
                                          KirvField::CheckBox, KirvField::CheckBox }));
        QCOMPARE(values, expected);
    }

    std::unique_ptr<QTemporaryDir> home;
    std::unique_ptr<KirvStore> store;
    std::unique_ptr<KirvClientSettings> settings;
};

QTEST_MAIN(SettingsTest)
#include "tst_settings.moc"

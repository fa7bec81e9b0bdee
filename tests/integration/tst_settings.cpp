// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_settings_table.h"
#include "core/store/kirv_store.h"
#include "tests/support/fakes/kirv_fake_protocol.h"

#include <QDir>
#include <QImage>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class tst_Settings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home = std::make_unique<QTemporaryDir>();
        QVERIFY(home->isValid());
        store = std::make_unique<KirvStore>();
        QVERIFY(store->open(profile()));
        start();
    }

    void cleanup()
    {
        stop();
        store.reset();
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

    void aRefusedSettingIsReported()
    {
        QSignalSpy refusals(settings.get(), &KirvClientSettings::writeFailed);
        QVERIFY(settings->setValue(QStringLiteral("key"), QStringLiteral("first")));
        QCOMPARE(refusals.size(), 0);
        store->close();
        QVERIFY(!settings->setValue(QStringLiteral("key"), QStringLiteral("second")));
        QCOMPARE(refusals.size(), 1);
        QCOMPARE(refusals.first().first().toString(), store->lastError());
        QVERIFY(!store->lastError().isEmpty());
    }

    void theGlobalsOfAnAccountAreItsFiveFields()
    {
        KirvFakeProtocol protocol;
        accounts->protocolLoaded(&protocol);
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
        accounts->protocolAboutToBeUnloaded(protocol.getName());
        compareGlobals({ "", "word", "+", "-", "+" });
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
        stop();
        store->close();
        QVERIFY(store->open(profile()));
        start();
    }

    void start()
    {
        settings = std::make_unique<KirvClientSettings>(*store);
        accounts = std::make_unique<KirvAccountCollection>(*store);
        services = std::make_unique<KirvHostServices>(*accounts, plugins, *settings);
    }

    void stop()
    {
        services.reset();
        accounts.reset();
        settings.reset();
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
    KirvPluginLoader plugins;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvAccountCollection> accounts;
    std::unique_ptr<KirvHostServices> services;
};

QTEST_MAIN(tst_Settings)
#include "tst_settings.moc"

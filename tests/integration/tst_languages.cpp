// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_import_window.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_settings_window.h"
#include "client/kirv_translations.h"
#include "core/moving/kirv_account_file.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QtTest>

namespace {
const QString ann = QStringLiteral("ann");
const QString longLogin = QStringLiteral("ann.in.the.long.run@a.long.name.of.a.server.example.org");
const QSize small(480, 360);
const int generalPage = 2;
}

/// The program speaks the language of the system or the one that was chosen, and English where there is no other.
class tst_Languages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void languageOfTheSystemIsSpoken_data();
    void languageOfTheSystemIsSpoken();
    void languagesAreNamedInTheirOwnWords();
    void languageIsComplete_data();
    void languageIsComplete();
    void numberIsSaidInPlainEnglish_data();
    void numberIsSaidInPlainEnglish();
    void existingAccountIsSaidWithoutTheSlip_data();
    void existingAccountIsSaidWithoutTheSlip();
    void directionFollowsTheLanguage();
    void windowCanBeSmallAfterTheChange_data();
    void windowCanBeSmallAfterTheChange();
    void choicesOfAnImportAreWhole_data() { windowCanBeSmallAfterTheChange_data(); }
    void choicesOfAnImportAreWhole();

private:
    /// As a program does that is started with the locale \a system.
    void start(const QString &system);
    /// Copies what there is of English and adds empty texts of \a languages.
    QString folderWith(const QStringList &languages);

    QTemporaryDir folder;
    std::unique_ptr<KirvTranslations> translations;
};

void tst_Languages::init()
{
    QVERIFY(folder.isValid());
}

void tst_Languages::cleanup()
{
    translations.reset();
    QLocale::setDefault(QLocale::c());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_Languages::start(const QString &system)
{
    translations.reset();
    QLocale::setDefault(QLocale(system));
    translations = std::make_unique<KirvTranslations>(*qApp, QStringLiteral(KIRV_TRANSLATIONS));
    translations->use(QString());
}

QString tst_Languages::folderWith(const QStringList &languages)
{
    for (const QString &language : languages)
        QFile::copy(QStringLiteral(KIRV_TRANSLATIONS "/kirv_en.qm"),
                    folder.filePath(QStringLiteral("kirv_%1.qm").arg(language)));
    return folder.path();
}

void tst_Languages::languageOfTheSystemIsSpoken_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("de_DE") << "de_DE"
                           << "de";
    QTest::newRow("de_AT") << "de_AT"
                           << "de";
    QTest::newRow("pt_BR") << "pt_BR"
                           << "pt_BR";
    QTest::newRow("pt_PT") << "pt_PT"
                           << "en";
    QTest::newRow("en_GB") << "en_GB"
                           << "en";
    QTest::newRow("nl_NL") << "nl_NL"
                           << "en";
    QTest::newRow("ar_EG") << "ar_EG"
                           << "ar";
    QTest::newRow("C") << "C"
                       << "en";
}

void tst_Languages::languageOfTheSystemIsSpoken()
{
    QFETCH(QString, system);
    QFETCH(QString, spoken);
    QLocale::setDefault(QLocale(system));
    KirvTranslations found(*qApp, folderWith({ "de", "pt_BR", "ar" }));
    found.use(QString());
    QCOMPARE(found.inUse(), spoken);
    QCOMPARE(QLocale(), QLocale(system));
    found.use(QStringLiteral("xx"));
    QCOMPARE(found.inUse(), spoken);
    found.use(QStringLiteral("ar"));
    QCOMPARE(found.inUse(), QStringLiteral("ar"));
    QCOMPARE(QLocale().language(), QLocale::Arabic);
}

void tst_Languages::languagesAreNamedInTheirOwnWords()
{
    const KirvTranslations found(*qApp, folderWith({ "de", "pt_BR", "ar", "es" }));
    QStringList names;
    for (const QString &language : found.languages())
        names << KirvTranslations::ownName(language);
    QCOMPARE(names,
             (QStringList { "Deutsch", "English", "Español", "Português (Brasil)",
                            QString::fromUtf8("\xd8\xa7\xd9\x84\xd8\xb9\xd8\xb1\xd8\xa8\xd9\x8a\xd8\xa9") }));
    QVERIFY(KirvTranslations::isRead("en"));
    QVERIFY(!KirvTranslations::isRead("ar"));
    const KirvTranslations none(*qApp, folder.filePath("none"));
    QCOMPARE(none.languages(), QStringList("en"));
}

void tst_Languages::languageIsComplete_data()
{
    QTest::addColumn<QString>("title"); // of the client
    QTest::addColumn<QString>("column"); // of the page
    QTest::addColumn<QString>("button"); // of Qt itself
    QTest::newRow("de_DE") << QStringLiteral("Kirv – Einstellungen") << QStringLiteral("Protokoll")
                           << QStringLiteral("Abbrechen");
    QTest::newRow("es_ES") << QStringLiteral("Kirv – Ajustes") << QStringLiteral("Protocolo")
                           << QStringLiteral("Cancelar");
    QTest::newRow("fr_FR") << QStringLiteral("Kirv – Paramètres") << QStringLiteral("Protocole")
                           << QStringLiteral("Annuler");
    QTest::newRow("pl_PL") << QStringLiteral("Kirv – Ustawienia") << QStringLiteral("Protokół")
                           << QStringLiteral("Anuluj");
    QTest::newRow("pt_BR") << QStringLiteral("Kirv – Configurações") << QStringLiteral("Protocolo")
                           << QStringLiteral("Cancelar");
    QTest::newRow("ar_EG") << QStringLiteral("إعدادات Kirv") << QStringLiteral("البروتوكول") << QStringLiteral("ألغِ");
}

void tst_Languages::languageIsComplete()
{
    QFETCH(QString, button);
    start(QLatin1String(QTest::currentDataTag()));
    const KirvClientWindows windows;
    QVERIFY(windows.isReady());
    QTEST(windows.client->window()->windowTitle(), "title");
    QTEST(windows.list()->headerItem()->text(1), "column");
    const QDialogButtonBox box(QDialogButtonBox::Cancel);
    const QString shown = box.button(QDialogButtonBox::Cancel)->text().remove(QLatin1Char('&'));
    QVERIFY2(shown.contains(button), qPrintable(shown));
}

void tst_Languages::numberIsSaidInPlainEnglish_data()
{
    QTest::addColumn<QString>("system");
    QTest::newRow("English") << "en_US";
    QTest::newRow("a language without texts") << "nl_NL";
    QTest::newRow("no language") << "C";
}

void tst_Languages::numberIsSaidInPlainEnglish()
{
    QFETCH(QString, system);
    start(system);
    QCOMPARE(QCoreApplication::translate("KirvAccountUndo", "%n accounts were removed.", nullptr, 1),
             QStringLiteral("1 account was removed."));
    QCOMPARE(QCoreApplication::translate("KirvAccountUndo", "%n accounts were removed.", nullptr, 2),
             QStringLiteral("2 accounts were removed."));
}

void tst_Languages::existingAccountIsSaidWithoutTheSlip_data()
{
    numberIsSaidInPlainEnglish_data();
}

void tst_Languages::existingAccountIsSaidWithoutTheSlip()
{
    QFETCH(QString, system);
    start(system);
    KirvClientWindows windows;
    QVERIFY(windows.isReady());
    windows.addAccount(ann);
    QStringList texts;
    QVERIFY(!windows.addInWindow(ann, [&](QMessageBox *box) {
        KirvClientWindows::settle();
        texts << box->text();
    }));
    QCOMPARE(texts, QStringList(QStringLiteral("Account 'ann' already exists!")));
}

void tst_Languages::directionFollowsTheLanguage()
{
    KirvTranslations found(*qApp, folderWith({ "de", "ar" }));
    found.use("ar");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    found.use("de");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft); // as -reverse does
    KirvTranslations mirrored(*qApp, folder.path());
    mirrored.use("de");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    mirrored.use("ar");
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void tst_Languages::windowCanBeSmallAfterTheChange_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : KirvTranslations(*qApp, QStringLiteral(KIRV_TRANSLATIONS)).languages())
        QTest::newRow(qPrintable(language)) << language;
}

/// The page of the accounts is made anew while another one is shown.
void tst_Languages::windowCanBeSmallAfterTheChange()
{
    QFETCH(QString, language);
    start(QStringLiteral("C"));
    KirvClientWindows windows;
    QVERIFY(windows.isReady());
    windows.addAccount(longLogin);
    KirvSettingsWindow *window = windows.client->window();
    auto *pages = KirvClientWindows::child<QListWidget>(window, "Settings_Pages");
    pages->setCurrentRow(generalPage);
    KirvClientWindows::settle();
    auto *box = KirvClientWindows::child<QComboBox>(window, "General_Language");
    box->setCurrentIndex(box->findData(language));
    Q_EMIT box->activated(box->currentIndex());
    KIRV_TRY_COMPARE(translations->chosen(), language);
    KirvClientWindows::settle();
    for (const int page : { generalPage, 0, 1 }) {
        pages->setCurrentRow(page);
        window->resize(small);
        KirvClientWindows::settle();
        QCOMPARE(window->size(), small);
    }
}

/// At the size with which the window opens; the names are elided where there is not enough room for all.
void tst_Languages::choicesOfAnImportAreWhole()
{
    QFETCH(QString, language);
    start(language);
    KirvClientWindows windows;
    QVERIFY(windows.isReady());
    KirvMovedAccounts moved;
    for (const QString &id : { longLogin, ann }) {
        KirvMovedAccount account;
        account.record.key = { id, QStringLiteral("Fake") };
        account.record.alias = QStringLiteral("Somebody with a name of some length");
        moved.accounts << account;
    }
    windows.addAccount(longLogin);
    QString problem;
    QFile file(folder.filePath(QStringLiteral("accounts.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(KirvAccountFile::write(moved, QString(), &problem)) > 0);
    file.close();
    windows.client->window()->findChild<KirvMovingWindows *>()->importFrom(file.fileName());
    auto *window = windows.client->window()->findChild<KirvImportWindow *>();
    QVERIFY(window);
    auto *list = KirvClientWindows::child<QTreeWidget>(window, "ImportAccounts_List");
    KIRV_TRY_COMPARE(list->topLevelItemCount(), 2);
    KirvClientWindows::settle();
    QVERIFY(window->width() <= window->screen()->availableSize().width());
    QStringList seen;
    for (int turn = 0; turn < 2; ++turn) {
        for (int row = 0; row < 2; ++row) {
            QTreeWidgetItem *item = list->topLevelItem(row);
            seen << item->text(2);
            QVERIFY2(list->columnWidth(2) >= list->sizeHintForIndex(list->model()->index(row, 2)).width(),
                     qPrintable(item->text(2)));
            item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        }
    }
    seen.removeDuplicates();
    QCOMPARE(int(seen.size()), 4);
    QVERIFY(list->header()->length() <= list->viewport()->width());
}

QTEST_MAIN(tst_Languages)
#include "tst_languages.moc"

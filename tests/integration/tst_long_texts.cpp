// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "core/values/kirv_text_limit.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_tool.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolTip>
#include <QTreeWidget>
#include <QtTest>
#include <algorithm>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
QString long40k()
{
    return QString(40000, QLatin1Char('x'));
}

QString long10M()
{
    return QString(10000000, QLatin1Char('x'));
}

QString manyTurns()
{
    return (QChar(0x202e) + QStringLiteral("abc")).repeated(5000);
}

int turnsIn(const QString &text)
{
    return int(std::count_if(text.cbegin(), text.cend(), kirvTurnsDirection));
}

/// The texts that the fields and labels of all windows have to lay out, which is what can block a window.
QStringList laidOut()
{
    QStringList texts;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (const auto *line = qobject_cast<const QLineEdit *>(widget))
            texts << line->text();
        else if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts << label->text();
        else if (const auto *edit = qobject_cast<const QTextEdit *>(widget))
            texts << edit->toPlainText();
    }
    return texts;
}

int longestLaidOut()
{
    int longest = 0;
    for (const QString &text : laidOut())
        longest = qMax(longest, int(text.size()));
    return longest;
}

int mostTurnsLaidOut()
{
    int most = 0;
    for (const QString &text : laidOut())
        most = qMax(most, turnsIn(text));
    return most;
}

} // namespace

/// Texts that are longer than a field can hold, and accounts that hold what no program should have stored.
class tst_LongTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void whatComesBackAsItWasShownStays_data();
    void whatComesBackAsItWasShownStays();
    void longTextCanBeReplaced_data();
    void longTextCanBeReplaced();
    void accountWithALongAliasCanBeRemoved();
    void unchangedLongPasswordMakesNoReconnection();

    void oddAccountIsReadAndChanged_data();
    void oddAccountIsReadAndChanged();
    void oddAccountIsRemoved_data();
    void oddAccountIsRemoved();

    void whatIsTypedBeyondTheLimitIsSaid_data();
    void whatIsTypedBeyondTheLimitIsSaid();
    void whatIsAddedBeyondTheLimitIsSaid();
    void longDescriptionIsCutAndSaid_data();
    void longDescriptionIsCutAndSaid();
    void pastedTurnsAreCutAndSaid();

private:
    QString database() const { return databaseIn(windows->profileFolder()); }
    void store(const QString &field, const QString &text);
    QString stored(const QString &field);
    static QString toolTip() { return QToolTip::isVisible() ? QToolTip::text() : QString(); }

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_LongTexts::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY2(windows->isReady(), qPrintable(windows->client->errorString()));
    for (const QString &id : { ann, bob })
        QVERIFY(windows->addAccount(id));
}

void tst_LongTexts::cleanup()
{
    QToolTip::hideText();
    windows.reset();
}

/// Stores \a text of the account "ann" while the client does not run.
void tst_LongTexts::store(const QString &field, const QString &text)
{
    windows->end();
    {
        KirvStore store;
        QVERIFY(store.open(windows->profileFolder()));
        QList<KirvAccountRecord> records = store.readAccounts();
        KirvAccountRecord &record = records.first();
        QCOMPARE(record.key.id, ann);
        if (field == QLatin1String("alias"))
            record.alias = text;
        else if (field == QLatin1String("password"))
            record.password = text;
        else if (field == QLatin1String("description"))
            record.defaultDescription = text;
        else
            record.settings[field] = text;
        QVERIFY(store.updateAccount(record));
    }
    windows->restart();
    QVERIFY(windows->isReady());
}

QString tst_LongTexts::stored(const QString &field)
{
    windows->end();
    KirvStore store;
    if (!store.open(windows->profileFolder()))
        return store.lastError();
    const KirvAccountRecord record = store.readAccounts().value(0);
    if (field == QLatin1String("alias"))
        return record.alias;
    if (field == QLatin1String("password"))
        return record.password;
    return field == QLatin1String("description") ? record.defaultDescription : record.settings.value(field);
}

void tst_LongTexts::whatComesBackAsItWasShownStays_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    for (const char *field : { "alias", "password", "description", "server", "server-password" }) {
        QTest::addRow("%s, at the limit", field) << field << QString(kirvLongestEditableText, QLatin1Char('x'));
        QTest::addRow("%s, 40,000", field) << field << long40k();
        QTest::addRow("%s, 10,000,000", field) << field << long10M();
        const QString pair = QString::fromUtf8("\U0001F600");
        QTest::addRow("%s, cut in a pair", field) << field << QLatin1Char('x') + pair.repeated(20000);
        QTest::addRow("%s, many turns", field) << field << manyTurns();
        QTest::addRow("%s, odd spaces", field)
            << field << QStringLiteral("a\u00a0b\r\nc\u2028d\u2029e\rf\ufdd0g\ufdd1");
    }
}

void tst_LongTexts::whatComesBackAsItWasShownStays()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    store(field, text);
    QPointer<KirvLayoutDialog> window = windows->edit(ann);
    QVERIFY(window);
    windows->settle();
    QVERIFY2(longestLaidOut() <= kirvLongestEditableText, qPrintable(QString::number(longestLaidOut())));
    QVERIFY2(mostTurnsLaidOut() <= kirvMostTurns, qPrintable(QString::number(mostTurnsLaidOut())));
    KirvClientWindows::child<QCheckBox>(window, "EditAccount_RememberPresence")->toggle();
    KirvClientWindows::save(window);
    QVERIFY(!window);
    QVERIFY(windows->account(ann)->record().restorePresence);
    QVERIFY2(stored(field) == text, qPrintable(QString::number(stored(field).size())));
}

void tst_LongTexts::longTextCanBeReplaced_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("line");
    QTest::newRow("alias") << "alias"
                           << "EditAccount_Alias";
    QTest::newRow("password") << "password"
                              << "EditAccount_Password";
    QTest::newRow("server password") << "server-password"
                                     << "KirvField_server-password";
}

void tst_LongTexts::longTextCanBeReplaced()
{
    QFETCH(QString, field);
    QFETCH(QString, line);
    store(field, long10M());
    QPointer<KirvLayoutDialog> window = windows->edit(ann);
    window->findChild<QLineEdit *>(line)->setText(QStringLiteral("short"));
    KirvClientWindows::save(window);
    QVERIFY(!window);
    QCOMPARE(stored(field), QStringLiteral("short"));
}

void tst_LongTexts::accountWithALongAliasCanBeRemoved()
{
    store(QStringLiteral("alias"), long10M());
    windows->chooseMainAccount(ann);
    QVERIFY(windows->client->window()->windowTitle().size() < 300);
    windows->toggleInPage(ann);
    windows->toggleInPage(ann);
    QVERIFY(windows->account(ann)->isEnabled());
    QVERIFY2(longestLaidOut() <= kirvLongestEditableText, qPrintable(QString::number(longestLaidOut())));
    windows->removeInPage(ann);
    QCOMPARE(windows->rowIds(), QStringList(bob));
}

void tst_LongTexts::unchangedLongPasswordMakesNoReconnection()
{
    store(QStringLiteral("password"), long40k());
    KIRV_TRY(windows->account(ann)->isOnline());
    windows->protocol->server->takeCalls();
    QPointer<KirvLayoutDialog> window = windows->edit(ann);
    KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Other"));
    KirvClientWindows::save(window);
    QVERIFY(!window);
    QCOMPARE(windows->protocol->server->takeCalls(), QStringList());
}

void tst_LongTexts::oddAccountIsReadAndChanged_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("value");
    for (const char *column : { "id", "alias", "default_description", "default_presence", "avatar" }) {
        QTest::addRow("%s, no UTF-8", column) << column << "CAST(x'61ff62c0' AS TEXT)";
        QTest::addRow("%s, a blob", column) << column << "x'61ff62c0'";
        QTest::addRow("%s, a number", column) << column << "17";
        QTest::addRow("%s, with a null character", column) << column << "CAST(x'610062' AS TEXT)";
    }
}

void tst_LongTexts::oddAccountIsReadAndChanged()
{
    QFETCH(QString, column);
    QFETCH(QString, value);
    windows->end();
    const QString done =
        runInDatabase(database(),
                      { QStringLiteral("UPDATE account SET %1 = %2 WHERE id = 'ann'").arg(column, value),
                        QStringLiteral("SELECT 'done'") })
            .toString();
    QCOMPARE(done, QStringLiteral("done"));
    windows->restart();
    QVERIFY2(windows->isReady(), qPrintable(windows->client->errorString()));
    QCOMPARE(windows->rowIds().size(), 2);
    const QString id = windows->rowIds().at(windows->rowIds().first() == bob ? 1 : 0);
    QPointer<KirvLayoutDialog> window = windows->edit(id);
    QVERIFY(window);
    KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Changed"));
    KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit")->setPlainText(QStringLiteral("Text"));
    KirvClientWindows::save(window);
    QVERIFY2(!window, qPrintable(windows->messages().join(QLatin1Char(' '))));
    windows->restart();
    QCOMPARE(windows->account(id)->record().alias, QStringLiteral("Changed"));
    QCOMPARE(windows->account(id)->record().defaultDescription, QStringLiteral("Text"));
}

void tst_LongTexts::oddAccountIsRemoved_data()
{
    oddAccountIsReadAndChanged_data();
}

void tst_LongTexts::oddAccountIsRemoved()
{
    QFETCH(QString, column);
    QFETCH(QString, value);
    windows->end();
    runInDatabase(database(), { QStringLiteral("UPDATE account SET %1 = %2 WHERE id = 'ann'").arg(column, value) });
    windows->restart();
    QVERIFY2(windows->isReady(), qPrintable(windows->client->errorString()));
    QCOMPARE(windows->rowIds().size(), 2);
    windows->removeInPage(windows->rowIds().at(windows->rowIds().first() == bob ? 1 : 0));
    QCOMPARE(windows->rowIds(), QStringList(bob));
    windows->restart();
    QCOMPARE(windows->rowIds(), QStringList(bob));
}

void tst_LongTexts::whatIsTypedBeyondTheLimitIsSaid_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("alias") << "EditAccount_Alias";
    QTest::newRow("password") << "EditAccount_Password";
    QTest::newRow("setting") << "KirvField_server";
}

void tst_LongTexts::whatIsTypedBeyondTheLimitIsSaid()
{
    QFETCH(QString, line);
    KirvLayoutDialog *window = windows->edit(ann);
    auto *edit = window->findChild<QLineEdit *>(line);
    edit->clear();
    QTest::keyClicks(edit, QStringLiteral("short"));
    QCOMPARE(toolTip(), QString());
    edit->selectAll();
    QGuiApplication::clipboard()->setText(long40k());
    edit->paste();
    QCOMPARE(edit->text().size(), kirvLongestEditableText);
    QVERIFY2(toolTip().contains(QLocale().toString(kirvLongestEditableText)), qPrintable(toolTip()));
    QToolTip::hideText();
    KIRV_TRY(!QToolTip::isVisible());
    QTest::keyClick(edit, Qt::Key_A);
    QVERIFY(!toolTip().isEmpty());
    KirvClientWindows::cancel(window);
}

void tst_LongTexts::whatIsAddedBeyondTheLimitIsSaid()
{
    QStringList said;
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *window) {
        for (const char *name : { "AddAccount_UsernameEdit", "AddAccount_PasswordEdit" }) {
            auto *edit = KirvClientWindows::child<QLineEdit>(window, name);
            QGuiApplication::clipboard()->setText(long40k());
            edit->paste();
            said << toolTip();
            QToolTip::hideText();
            KIRV_TRY(!QToolTip::isVisible());
        }
        window->reject();
    });
    windows->addInWindow(ann);
    QVERIFY(said.size() >= 2);
    for (const QString &text : qAsConst(said))
        QVERIFY(!text.isEmpty());
}

void tst_LongTexts::longDescriptionIsCutAndSaid_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPasted");
    QTest::newRow("pasted") << long40k() << true;
    QTest::newRow("pasted, far too long") << long10M() << true;
    QTest::newRow("dropped") << long40k() << false;
}

void tst_LongTexts::longDescriptionIsCutAndSaid()
{
    QFETCH(QString, text);
    QFETCH(bool, isPasted);
    KirvLayoutDialog *window = windows->edit(ann);
    auto *edit = KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit");
    edit->setPlainText(QStringLiteral("begin end"));
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(6);
    edit->setTextCursor(cursor);
    int mostAdded = 0; // at once, and laid out
    QObject context;
    connect(edit->document(), &QTextDocument::contentsChange, &context,
            [&mostAdded](int, int, int added) { mostAdded = qMax(mostAdded, added); });
    if (isPasted) {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(edit, QKeySequence::Paste);
    } else {
        edit->insertPlainText(text);
    }
    if (isPasted)
        QVERIFY2(mostAdded <= kirvLongestEditableText, qPrintable(QString::number(mostAdded)));
    QCOMPARE(edit->toPlainText().size(), kirvLongestEditableText);
    QVERIFY(edit->toPlainText().startsWith(QLatin1String("begin xxx")));
    QVERIFY(edit->toPlainText().endsWith(QLatin1String("xxxend")));
    QVERIFY(!toolTip().isEmpty());
    KirvClientWindows::cancel(window);
}

void tst_LongTexts::pastedTurnsAreCutAndSaid()
{
    const KirvLayoutDialog *window = windows->edit(ann);
    auto *edit = KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit");
    edit->clear();
    QGuiApplication::clipboard()->setText(manyTurns());
    QTest::keySequence(edit, QKeySequence::Paste);
    QCOMPARE(turnsIn(edit->toPlainText()), kirvMostTurns);
    QVERIFY(!toolTip().isEmpty());
}

QTEST_MAIN(tst_LongTexts)
#include "tst_long_texts.moc"

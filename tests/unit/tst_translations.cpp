// SPDX-License-Identifier: LGPL-2.1-or-later
#include "add_account/kirv_add_account_dialog.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/unit/kirv_edit_fixture.h"

#include <QMessageBox>
#include <QTranslator>
#include <QtTest>

#include <memory>

/// Translates everything of the library's context into "[text]" and writes down what it translated.
class KirvRecordingTranslator : public QTranslator {
public:
    KirvRecordingTranslator() { QCoreApplication::installTranslator(this); }
    ~KirvRecordingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *comment, int) const override
    {
        if (qstrcmp(context, "translation") != 0)
            return QString();
        translated.append(qMakePair(QString::fromUtf8(text), QString::fromUtf8(comment)));
        return QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']');
    }

    /// Text and translator comment of each call.
    mutable QList<QPair<QString, QString>> translated;
};

/// Every text that users see goes through the translation, with a comment for the translator.
class tst_Translations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void headerLabels();
    void removeQuestion();
    void disableQuestion();
    void refusedAccount();
    void noConfiguration();
    void aConfigurationOfTheTranslatedNameIsNone();
    void whatIsNotTranslated();

private:
    void verifyTranslated(const QString &text, const QString &comment)
    {
        QVERIFY2(translator->translated.contains(qMakePair(text, comment)), qPrintable(text));
    }

    std::unique_ptr<KirvRecordingTranslator> translator;
    std::unique_ptr<KirvEditFixture> fixture;
};

void tst_Translations::init()
{
    translator = std::make_unique<KirvRecordingTranslator>();
    fixture = std::make_unique<KirvEditFixture>();
}

void tst_Translations::cleanup()
{
    fixture.reset();
    translator.reset();
}

void tst_Translations::headerLabels()
{
    const QTreeWidgetItem *header = fixture->list()->headerItem();
    QCOMPARE(header->text(0), QString("[Alias]"));
    QCOMPARE(header->text(1), QString("[Protocol]"));
    QCOMPARE(header->text(2), QString("uid"));
    const QList<QPair<QString, QString>> expected = { { "Alias", "account alias in account list" },
                                                      { "Protocol", "account protocol in account list" } };
    QCOMPARE(translator->translated, expected);
}

void tst_Translations::removeQuestion()
{
    fixture->showFilledPage();
    fixture->clickRow(fixture->row("alice"));
    fixture->removeButton()->click();
    const auto *box = kirvVisibleWindow<QMessageBox>();
    QCOMPARE(box->windowTitle(), QString("[Removing account]"));
    QCOMPARE(box->text(), QString("[Do you want to remove account 'Alias of alice' (XMPP) and all related data?]"));
    verifyTranslated("Removing account", "message box title");
    verifyTranslated("Do you want to remove account '%1' (%2) and all related data?",
                     "%1 = account alias, %2 = account protocol. Confirmation of removing account");
}

void tst_Translations::disableQuestion()
{
    fixture->alice->loggedIn = true;
    fixture->showFilledPage();
    fixture->clickCheckBox(fixture->row("alice"));
    const auto *box = kirvVisibleWindow<QMessageBox>();
    QCOMPARE(box->windowTitle(), QString("[Disabling account]"));
    QCOMPARE(box->text(),
             QString("[Do you want to disable account 'alice' (XMPP) in which you are currently logged in.]"));
    verifyTranslated("Disabling account", "message box title");
    verifyTranslated("Do you want to disable account '%1' (%2) in which you are currently logged in.",
                     "%1 = account id, %2 = account protocol. Confirmation of disabling account");
}

void tst_Translations::refusedAccount()
{
    fixture->host.acceptsNewAccounts = false;
    const std::unique_ptr<KirvAddAccountDialog> dialog(
        new KirvAddAccountDialog(fixture->xmpp, QString(""), fixture->page(), Qt::Sheet));
    auto *window = fixture->page()->findChild<QDialog *>("AddAccount");
    window->findChild<QLineEdit *>("AddAccount_UsernameEdit")->setText("alice");
    KirvWindowWatcher<QMessageBox> refusal([&](QMessageBox *box) {
        QCOMPARE(box->windowTitle(), QString("[Add account]"));
        QCOMPARE(box->text(), QString("[Account 'alice' alerady exists!]"));
        box->accept();
    });
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "addAccount"));
    QCOMPARE(refusal.shown, 1);
    verifyTranslated("Add account", "adding account error message box title");
    verifyTranslated("Account '%1' alerady exists!", "information about existing account while adding account");
}

void tst_Translations::noConfiguration()
{
    fixture->xmpp->configurations = QStringList { "Home" };
    const KirvAddAccountDialog dialog(fixture->xmpp, QString(""), fixture->page(), Qt::Sheet);
    const auto *configurations =
        fixture->page()->findChild<QDialog *>("AddAccount")->findChild<QComboBox *>("AddAccount_Configuration");
    QCOMPARE(configurations->itemText(0), QString("[None]"));
    QCOMPARE(configurations->itemText(1), QString("Home"));
    verifyTranslated("None", "nc");
}

void tst_Translations::aConfigurationOfTheTranslatedNameIsNone()
{
    fixture->xmpp->configurations = QStringList { "None", "[None]" };
    fixture->xmpp->accountSettings = { KirvEditFixture::text("server", "") };
    const KirvAddAccountDialog dialog(fixture->xmpp, QString(""), fixture->page(), Qt::Sheet);
    auto *configurations =
        fixture->page()->findChild<QDialog *>("AddAccount")->findChild<QComboBox *>("AddAccount_Configuration");
    fixture->host.forgetCalls();
    configurations->setCurrentIndex(1);
    QCOMPARE(fixture->host.calls({ "getConfigurationFields" }).size(), 2);
    fixture->host.forgetCalls();
    configurations->setCurrentIndex(2);
    QCOMPARE(fixture->host.calls({ "getConfigurationFields", "getAccountSettings" }),
             QStringList { "XMPP.getAccountSettings()" });
}

void tst_Translations::whatIsNotTranslated()
{
    fixture->showFilledPage();
    fixture->open();
    QCOMPARE(fixture->child<QLabel>("Identifier")->text(), QString("alice (XMPP)"));
    for (const auto &call : translator->translated) {
        QVERIFY2(!call.second.isEmpty(), qPrintable(call.first));
        QVERIFY(call.first != "uid");
    }
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"

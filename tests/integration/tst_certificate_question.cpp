// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_certificate_question.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");

KirvServerCertificate makeCertificate(char byte)
{
    KirvServerCertificate certificate;
    certificate.host = QStringLiteral("example.org");
    certificate.subject = QStringLiteral("other.test (Others)");
    certificate.issuer = QStringLiteral("Somebody");
    certificate.names = QStringList { "other.test" };
    certificate.validFrom = QDateTime(QDate(2020, 2, 3), QTime());
    certificate.validUntil = QDateTime(QDate(2031, 3, 3), QTime());
    certificate.fingerprint = QByteArray(32, byte);
    certificate.problems = QStringList { "It is self-signed.", "It is for other.test." };
    return certificate;
}

} // namespace

/// The question whether the certificate of a server is to be trusted.
class tst_CertificateQuestion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void firstLoginOfANewAccountOpensIt();
    void startOfTheProgramOpensNone();
    void severalNewAccountsOpenOne();
    void laterRefusalWaitsInTheStrip();
    void itSaysAllThatIsKnown();
    void trustingLogsInAndHolds();
    void leavingChangesNothing_data();
    void leavingChangesNothing();
    void enterDoesNotTrust();
    void changedCertificateShowsBothFingerprints();
    void certificateThatChangesMeanwhileClosesIt();
    void trustCanBeTakenBack();
    void trustCanBeTakenBackWhileOffLine();
    void buttonTakesThePlaceOfThePasswords();
    void itClosesWithItsAccount_data();
    void itClosesWithItsAccount();
    void endOfTheProgramClosesIt();
    void theEventLoopGoesOn();
    void refusingStoreIsSaid();
    void trustComesBackWithARemovedAccount();
    void everythingFitsASmallWindow();
    void hostileTextsAreShownAsPlainText();
    void assistiveTechnologyIsToldEverything();

private:
    KirvFakeServer &server() const { return *windows->protocol->server; }
    static QList<KirvCertificateQuestion *> questions()
    {
        QList<KirvCertificateQuestion *> shown;
        const auto all = QApplication::topLevelWidgets();
        for (QWidget *widget : all) {
            auto *question = qobject_cast<KirvCertificateQuestion *>(widget);
            if (question && question->isVisible())
                shown << question;
        }
        return shown;
    }
    static KirvCertificateQuestion *question() { return questions().value(0); }
    template <class Widget = QPushButton>
    static Widget *part(const char *name)
    {
        return question()->findChild<Widget *>(QLatin1String("CertificateQuestion_") + QLatin1String(name));
    }
    template <class Widget>
    Widget *pagePart(const char *name) const
    {
        return windows->client->window()->findChild<Widget *>(QLatin1String(name));
    }
    static QString textOf(const char *name) { return part<QTextEdit>(name)->toPlainText(); }
    QString reason() const { return pagePart<QTextEdit>("Accounts_StripReason")->toPlainText(); }
    QString trusted(const QString &id = ann) const { return windows->account(id)->record().trustedCertificate; }
    /// Its certificate, and the strip says so.
    bool isRefused() const
    {
        return windows->account(ann)->lastFailure().kind() == KirvFailure::UntrustedCertificate
            && (!windows->list()->currentItem() || reason().contains(QLatin1String("Show Certificate")));
    }
    bool isOnline(const QString &id = ann) const { return windows->account(id)->isOnline(); }
    /// Selects the account and opens the question with the button of the strip.
    void openFromStrip(const QString &id = ann);
    /// An account whose certificate is trusted, on line.
    void trustFirst();

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_CertificateQuestion::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    server().certificate = makeCertificate('\x1a');
}

void tst_CertificateQuestion::cleanup()
{
    windows.reset();
}

void tst_CertificateQuestion::openFromStrip(const QString &id)
{
    windows->select(id);
    auto *button = pagePart<QPushButton>("Accounts_CertificateButton");
    KIRV_TRY(button->isVisible() && button->isEnabled());
    button->click();
    QVERIFY(question());
}

void tst_CertificateQuestion::trustFirst()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    part("ChangeButton")->click();
    KIRV_TRY(isOnline());
    QVERIFY(!question());
}

void tst_CertificateQuestion::firstLoginOfANewAccountOpensIt()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    QCOMPARE(question()->key().id, ann);
    QVERIFY(!isOnline());
}

void tst_CertificateQuestion::startOfTheProgramOpensNone()
{
    for (int number = 0; number < 50; ++number)
        windows->addAccount(QString::number(number));
    KIRV_TRY(question());
    QCOMPARE(questions().size(), 1);
    part("LeaveButton")->click();
    windows->restart();
    server().certificate = makeCertificate('\x1a');
    for (KirvAccount *account : windows->client->accounts().accounts())
        account->reconnect();
    const auto isRefused = [this](int number) {
        return windows->account(QString::number(number))->lastFailure().kind() == KirvFailure::UntrustedCertificate;
    };
    for (int number = 0; number < 50; ++number)
        KIRV_TRY(isRefused(number));
    KirvClientWindows::settle();
    QVERIFY(!question());
}

void tst_CertificateQuestion::severalNewAccountsOpenOne()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    KIRV_TRY(question());
    KIRV_TRY(windows->account(bob)->lastFailure().isFailure());
    KirvClientWindows::settle();
    QCOMPARE(questions().size(), 1);
    const QString first = question()->key().id;
    part("LeaveButton")->click();
    KirvClientWindows::settle();
    QVERIFY(!question());
    openFromStrip(first == ann ? bob : ann);
}

void tst_CertificateQuestion::laterRefusalWaitsInTheStrip()
{
    trustFirst();
    server().certificate = makeCertificate('\x2b');
    windows->account(ann)->reconnect();
    KIRV_TRY(windows->account(ann)->lastFailure().kind() == KirvFailure::UntrustedCertificate);
    KirvClientWindows::settle();
    QVERIFY(!question());
    windows->select(ann);
    KIRV_TRY_CONTAINS(reason(), "another one than the one that you have trusted");
    KIRV_TRY_CONTAINS(reason(), "Show Certificate");
    openFromStrip();
}

void tst_CertificateQuestion::itSaysAllThatIsKnown()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    QVERIFY(question()->windowTitle().contains("example.org"));
    QVERIFY(part<QLabel>("Heading")->text().contains("not trusted"));
    QCOMPARE(textOf("Problems"), QStringLiteral("It is self-signed.\nIt is for other.test."));
    QString details;
    for (const QTextEdit *line : question()->findChildren<QTextEdit *>(QStringLiteral("CertificateQuestion_Detail")))
        details += line->toPlainText() + '\n';
    for (const char *said : { "other.test", "Others", "Somebody", "2020", "2031" })
        QVERIFY2(details.contains(said), qPrintable(details));
    QCOMPARE(textOf("Fingerprint").remove('\n'), KirvServerCertificate::fingerprintText(QByteArray(32, '\x1a')));
    QVERIFY(!part<QTextEdit>("Before"));
    QCOMPARE(part("ChangeButton")->text().remove('&'), QStringLiteral("Trust for This Account"));
    QCOMPARE(part("LeaveButton")->text().remove('&'), QStringLiteral("Do Not Connect"));
}

void tst_CertificateQuestion::trustingLogsInAndHolds()
{
    trustFirst();
    QCOMPARE(trusted(), QString("1a").repeated(32));
    const KirvServerCertificate certificate = server().certificate;
    windows->restart();
    server().certificate = certificate;
    windows->account(ann)->reconnect();
    KIRV_TRY(isOnline());
    KirvClientWindows::settle();
    QVERIFY(isOnline());
    windows->addAccount(bob); // it holds for the one account only
    KIRV_TRY(question());
    QCOMPARE(question()->key().id, bob);
}

void tst_CertificateQuestion::leavingChangesNothing_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("button") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("closed") << 2;
}

void tst_CertificateQuestion::leavingChangesNothing()
{
    QFETCH(int, way);
    windows->addAccount(ann);
    KIRV_TRY(question());
    if (way == 0)
        part("LeaveButton")->click();
    else if (way == 1)
        QTest::keyClick(question(), Qt::Key_Escape);
    else
        question()->close();
    KirvClientWindows::settle();
    QVERIFY(!question());
    QVERIFY(trusted().isEmpty());
    QVERIFY(!isOnline());
    openFromStrip(); // the question can be asked again
}

void tst_CertificateQuestion::enterDoesNotTrust()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    QVERIFY(QTest::qWaitForWindowActive(question(), kirvPatience));
    QVERIFY(part("LeaveButton")->isDefault());
    QVERIFY(part("LeaveButton")->hasFocus());
    QTest::keyClick(question()->focusWidget(), Qt::Key_Return);
    KirvClientWindows::settle();
    QVERIFY(!question());
    QVERIFY(trusted().isEmpty());
}

void tst_CertificateQuestion::changedCertificateShowsBothFingerprints()
{
    trustFirst();
    server().certificate = makeCertificate('\x2b');
    windows->account(ann)->reconnect();
    KIRV_TRY(isRefused());
    openFromStrip();
    QVERIFY(part<QLabel>("Heading")->text().contains("another certificate than the one that you have trusted"));
    QVERIFY(textOf("Fingerprint").startsWith("2B:2B:"));
    QVERIFY(textOf("Before").startsWith("1A:1A:"));
    part("ChangeButton")->click();
    KIRV_TRY(isOnline());
    QCOMPARE(trusted(), QString("2b").repeated(32));
}

/// What is trusted is what was shown.
void tst_CertificateQuestion::certificateThatChangesMeanwhileClosesIt()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    windows->account(ann)->reconnect();
    KirvClientWindows::settle();
    QVERIFY(question()); // it is the same
    server().certificate = makeCertificate('\x2b');
    windows->account(ann)->reconnect();
    KIRV_TRY(!question());
    QVERIFY(trusted().isEmpty());
    openFromStrip();
    QVERIFY(textOf("Fingerprint").startsWith("2B:"));
    server().certificate = KirvServerCertificate();
    windows->account(ann)->reconnect();
    KIRV_TRY(isOnline());
    KIRV_TRY(!question());
}

void tst_CertificateQuestion::trustCanBeTakenBack()
{
    trustFirst();
    openFromStrip();
    QVERIFY(part<QLabel>("Heading")->text().contains("You have chosen to trust"));
    QVERIFY(textOf("Fingerprint").startsWith("1A:"));
    QVERIFY(part("LeaveButton")->isDefault());
    part("LeaveButton")->click();
    QVERIFY(isOnline());
    openFromStrip();
    part("ChangeButton")->click();
    KIRV_TRY(windows->account(ann)->lastFailure().kind() == KirvFailure::UntrustedCertificate);
    QVERIFY(trusted().isEmpty());
    KirvClientWindows::settle();
    QVERIFY(!question());
}

/// Through the menu, which has the command as long as one is trusted.
void tst_CertificateQuestion::trustCanBeTakenBackWhileOffLine()
{
    trustFirst();
    windows->account(ann)->setPresence(windows->protocol->presenceWithId("offline", QString()));
    KIRV_TRY(!isOnline());
    windows->select(ann);
    windows->list()->setFocus();
    const auto openMenu = [this] {
        QTest::keyClick(windows->list(), Qt::Key_Menu);
        return QPointer<QWidget>(QApplication::activePopupWidget());
    };
    const QString command = QStringLiteral("Accounts_CertificateAction");
    QPointer<QWidget> menu = openMenu();
    QVERIFY(menu && menu->findChild<QAction *>(command));
    menu->findChild<QAction *>(command)->trigger();
    if (menu)
        menu->close();
    QVERIFY(question());
    QVERIFY(textOf("Fingerprint").startsWith("1A:"));
    part("ChangeButton")->click();
    QVERIFY(trusted().isEmpty());
    KirvClientWindows::settle();
    menu = openMenu();
    QVERIFY(menu && !menu->findChild<QAction *>(command));
    menu->close();
}

void tst_CertificateQuestion::buttonTakesThePlaceOfThePasswords()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    part("LeaveButton")->click();
    windows->select(ann);
    auto *certificate = pagePart<QPushButton>("Accounts_CertificateButton");
    auto *password = pagePart<QPushButton>("Accounts_PasswordButton");
    KIRV_TRY(certificate->isVisible());
    QVERIFY(!password->isVisible());
    const QRect place = certificate->geometry();
    server().certificate = KirvServerCertificate();
    windows->account(ann)->reconnect();
    KIRV_TRY(password->isVisible());
    QVERIFY(!certificate->isVisible());
    QCOMPARE(password->geometry(), place);
}

void tst_CertificateQuestion::itClosesWithItsAccount_data()
{
    QTest::addColumn<int>("end");
    QTest::newRow("removed") << 0;
    QTest::newRow("disabled") << 1;
    QTest::newRow("its protocol goes") << 2;
}

void tst_CertificateQuestion::itClosesWithItsAccount()
{
    QFETCH(int, end);
    windows->addAccount(ann);
    KIRV_TRY(question());
    const QPointer<KirvCertificateQuestion> open = question();
    KirvAccountCollection &accounts = windows->client->accounts();
    if (end == 0)
        QVERIFY(accounts.remove(windows->account(ann)));
    else if (end == 1)
        windows->account(ann)->setEnabled(false);
    else
        Q_EMIT windows->client->plugins().protocolAboutToBeUnloaded(windows->protocol);
    KIRV_TRY(!open);
    KirvClientWindows::settle();
    QVERIFY(!question());
}

void tst_CertificateQuestion::endOfTheProgramClosesIt()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    const QPointer<KirvCertificateQuestion> open = question();
    windows->end();
    QVERIFY(!open);
}

void tst_CertificateQuestion::theEventLoopGoesOn()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    server().certificate = KirvServerCertificate();
    windows->addAccount(bob);
    KIRV_TRY(isOnline(bob));
    QVERIFY(question());
}

void tst_CertificateQuestion::refusingStoreIsSaid()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    const QString folder = windows->profileFolder();
    QVERIFY(QFile::rename(folder, folder + ".away"));
    part("ChangeButton")->click();
    KirvClientWindows::settle();
    QVERIFY(QFile::rename(folder + ".away", folder));
    QVERIFY(trusted().isEmpty());
    QVERIFY(!isOnline());
    QVERIFY(!windows->messages().isEmpty());
    openFromStrip();
}

void tst_CertificateQuestion::trustComesBackWithARemovedAccount()
{
    trustFirst();
    windows->removeInPage(ann);
    KIRV_TRY(!windows->account(ann));
    auto *undo = pagePart<QAbstractButton>("MessageBar_Command");
    QVERIFY(undo && undo->isVisible());
    undo->click();
    KIRV_TRY(windows->account(ann));
    QCOMPARE(trusted(), QString("1a").repeated(32));
    KIRV_TRY(isOnline());
    QVERIFY(!question());
}

void tst_CertificateQuestion::everythingFitsASmallWindow()
{
    server().certificate.subject = QString(200, 'w');
    server().certificate.names = QStringList(QString(200, 'n'));
    server().certificate.problems = QStringList(QString(200, 'p'));
    trustFirst();
    server().certificate.fingerprint = QByteArray(32, '\x2b');
    windows->account(ann)->reconnect();
    KIRV_TRY(isRefused());
    openFromStrip();
    KirvClientWindows::settle();
    QVERIFY(question()->minimumSizeHint().width() <= 480);
    QVERIFY(question()->minimumSizeHint().height() <= 360);
    question()->resize(480, 360);
    KirvClientWindows::settle();
    QCOMPARE(question()->size(), QSize(480, 360));
    for (const char *name : { "ChangeButton", "LeaveButton" }) {
        const QPushButton *button = part(name);
        const QRect shown(button->mapTo(question(), QPoint()), button->size());
        QVERIFY2(question()->rect().contains(shown) && button->width() >= button->sizeHint().width(), name);
    }
}

void tst_CertificateQuestion::hostileTextsAreShownAsPlainText()
{
    server().certificate.subject = QStringLiteral("<b>bold</b>");
    server().certificate.names = QStringList(QString::fromUtf8("<img src='x'>\u202egro"));
    server().certificate.problems = QStringList("<h1>fine</h1>");
    windows->addAccount(QStringLiteral("<i>ann</i>"));
    KIRV_TRY(question());
    QCOMPARE(textOf("Problems"), QStringLiteral("<h1>fine</h1>"));
    QStringList details;
    for (const QTextEdit *line : question()->findChildren<QTextEdit *>(QStringLiteral("CertificateQuestion_Detail")))
        details << line->toPlainText();
    QVERIFY(details.contains("<b>bold</b>"));
    QVERIFY(details.contains("<img src='x'>[U+202E]gro")
            || details.contains(QString::fromUtf8("<img src='x'>\ufffdgro")));
    for (const QLabel *label : question()->findChildren<QLabel *>()) {
        if (!label->text().isEmpty())
            QVERIFY2(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()),
                     qPrintable(label->text()));
    }
}

void tst_CertificateQuestion::assistiveTechnologyIsToldEverything()
{
    windows->addAccount(ann);
    KIRV_TRY(question());
    for (const QWidget *widget : question()->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus)
            continue;
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
        QVERIFY2(interface && !interface->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
    }
}

QTEST_MAIN(tst_CertificateQuestion)
#include "tst_certificate_question.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_field_widget.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFormLayout>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>

namespace {

template <typename T>
T *child(const QWidget *window, const char *name)
{
    return KirvClientWindows::child<T>(window, name);
}

QLineEdit *login(const QWidget *window)
{
    return child<QLineEdit>(window, "AddAccount_UsernameEdit");
}

QLineEdit *password(const QWidget *window)
{
    return child<QLineEdit>(window, "AddAccount_PasswordEdit");
}

QPushButton *save(const QWidget *window)
{
    return child<QDialogButtonBox>(window, "AddAccount_ButtonFrame")->button(QDialogButtonBox::Save);
}

QPushButton *saveWithoutPassword(const QWidget *window)
{
    return child<QPushButton>(window, "AddAccount_SaveWithoutPassword");
}

/// What stands below the login.
QString hint(const QWidget *window)
{
    const auto *label = child<QLabel>(window, "AddAccount_UsernameEdit_Hint");
    return label && label->isVisible() ? label->text() : QString();
}

QString whyNotSaved(const QWidget *window)
{
    return child<QLabel>(window, "AddAccount_SaveHint")->text();
}

KirvFieldWidget *settings(const QWidget *window)
{
    return window->findChild<KirvFieldWidget *>();
}

QToolButton *advanced(const QWidget *window)
{
    return child<QToolButton>(window, "AddAccount_Advanced");
}

/// Drops \a text on \a target as a drag from elsewhere does. Whether it was taken.
bool dropOn(QWidget *target, const QString &text, bool isUrl)
{
    QMimeData data;
    if (isUrl)
        data.setUrls({ QUrl(text) });
    else
        data.setText(text);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
}

} // namespace

/// The window for a new account, as a user meets it: little to fill in, and what is wrong is said while it is typed.
class tst_AddingAnAccount : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void titleNamesTheProtocol();
    void typingStartsInTheLogin();
    void emptyLoginShowsAnExample();
    void settingsAreBelowAdvanced();
    void advancedNamesTheFirstSettings();
    void readyMadeConfigurationOpensTheSettings();
    void configurationWithoutOtherSettingsOpensNothing();
    void settingThatMustBeFilledInIsNotHidden();
    void hiddenSettingsAreSaved();
    void windowFitsItsContentWhenSettingsComeAndGo();
    void passwordIsShownWhileTheEyeIsDown();
    void wrongLoginIsSaidWhileItIsTyped();
    void existingAccountIsSaidBeforeItIsSaved();
    void hintMovesNothing();
    void windowGrowsWithALongHint();
    void hintIsReadByAssistiveTechnology();
    void refusedCharacterIsSaid_data();
    void refusedCharacterIsSaid();
    void reasonWhySaveIsDisabled_data();
    void reasonWhySaveIsDisabled();
    void wrongLoginIsRefusedWithTheReason();
    void accountWithoutPasswordHasAButtonOfItsOwn();
    void settingDecidesWhetherAPasswordIsNeeded();
    void settingThatIsMissingIsSaid();
    void keyboardAloneAddsAnAccount();
    void tabGoesFromTopToBottom_data();
    void tabGoesFromTopToBottom();
    void arrowIsBesideItsText_data() { advancedStaysWhereItIs_data(); }
    void arrowIsBesideItsText();
    void advancedStaysWhereItIs_data();
    void advancedStaysWhereItIs();
    void nothingIsCutOffInASmallWindow();
    void linkIsTakenForItsLogin_data();
    void linkIsTakenForItsLogin();
    void linkIsDroppedOnTheLogin_data();
    void linkIsDroppedOnTheLogin();
    void linkOnThePageOpensTheWindow_data();
    void linkOnThePageOpensTheWindow();
    void otherTextOnThePageOpensNothing();
    void linkThatIsTooLongOpensNothing();

private:
    std::unique_ptr<KirvClientWindows> windows;
};

void tst_AddingAnAccount::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->protocol->example = QStringLiteral("anna@example.org");
    windows->protocol->findProblem = [](const QString &text) {
        return text.contains(QLatin1Char('@')) ? QString() : QStringLiteral("The domain is missing.");
    };
}

void tst_AddingAnAccount::cleanup()
{
    windows.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_AddingAnAccount::titleNamesTheProtocol()
{
    windows->inAddWindow(
        [](KirvLayoutDialog *window) { QCOMPARE(window->windowTitle(), QString("Add Fake Account")); });
}

void tst_AddingAnAccount::typingStartsInTheLogin()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QCOMPARE(window->focusWidget(), login(window));
        QTest::keyClicks(window->focusWidget(), "anna");
        QCOMPARE(login(window)->text(), QString("anna"));
    });
}

void tst_AddingAnAccount::emptyLoginShowsAnExample()
{
    windows->inAddWindow(
        [](KirvLayoutDialog *window) { QCOMPARE(login(window)->placeholderText(), QString("anna@example.org")); });
}

void tst_AddingAnAccount::settingsAreBelowAdvanced()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QVERIFY(!settings(window)->isVisible());
        QVERIFY(login(window)->isVisible() && password(window)->isVisible());
        QVERIFY(advanced(window)->focusPolicy() & Qt::TabFocus);
        QTest::keyClick(advanced(window), Qt::Key_Space);
        QVERIFY(settings(window)->isVisible());
        QTest::keyClick(advanced(window), Qt::Key_Space);
        QVERIFY(!settings(window)->isVisible());
    });
}

void tst_AddingAnAccount::advancedNamesTheFirstSettings()
{
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "", ""),
                                    KirvField::number("Port", "port", 1, 1, 9, "") };
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QCOMPARE(child<QLabel>(window, "AddAccount_AdvancedSummary")->text(), QString("Server, Port"));
        QCOMPARE(advanced(window)->accessibleDescription(), QString("Server, Port"));
    });
    for (const char *name : { "A", "B" })
        windows->protocol->settings << KirvField::textEdit(name, name, "", "");
    windows->inAddWindow([](KirvLayoutDialog *window) {
        const auto *summary = child<QLabel>(window, "AddAccount_AdvancedSummary");
        QCOMPARE(summary->text(), QString("Server, Port, A…"));
        QVERIFY(summary->isVisible());
        advanced(window)->click();
        QVERIFY(!summary->isVisible());
    });
}

void tst_AddingAnAccount::readyMadeConfigurationOpensTheSettings()
{
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "", "") };
    windows->protocol->configurations = QStringList("Local");
    windows->protocol->configurationFields = { KirvField::textEdit("Server", "server", "127.0.0.1", "") };
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QVERIFY(!settings(window)->isVisible());
        child<QComboBox>(window, "AddAccount_Configuration")->setCurrentText("Local");
        QVERIFY(settings(window)->isVisible());
        QCOMPARE(settings(window)->getFields().first().getText(), QString("127.0.0.1"));
    });
}

void tst_AddingAnAccount::configurationWithoutOtherSettingsOpensNothing()
{
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "", "") };
    windows->protocol->configurations = QStringList("Usual");
    windows->protocol->configurationFields = windows->protocol->settings;
    windows->inAddWindow([](KirvLayoutDialog *window) {
        child<QComboBox>(window, "AddAccount_Configuration")->setCurrentText("Usual");
        QVERIFY(!settings(window)->isVisible());
    });
}

void tst_AddingAnAccount::settingThatMustBeFilledInIsNotHidden()
{
    KirvField server = KirvField::textEdit("Server", "server", "", "");
    server.setRequired(true);
    windows->protocol->settings = { server };
    windows->inAddWindow([](KirvLayoutDialog *window) { QVERIFY(settings(window)->isVisible()); });
}

void tst_AddingAnAccount::hiddenSettingsAreSaved()
{
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "example.org", "") };
    QVERIFY(windows->addInWindow("anna@fake"));
    QCOMPARE(windows->account("anna@fake")->record().settings.value("server"), QString("example.org"));
}

void tst_AddingAnAccount::windowFitsItsContentWhenSettingsComeAndGo()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        const QSize closed = window->size();
        QCOMPARE(closed.height(), window->sizeHint().height());
        advanced(window)->click();
        QVERIFY(window->height() > closed.height());
        QVERIFY(window->height() <= window->screen()->availableSize().height() * 9 / 10); // the frame is around it
        window->resize(window->width() + 50, window->height());
        const int chosenWidth = window->width();
        advanced(window)->click();
        QCOMPARE(window->size(), QSize(chosenWidth, closed.height()));
    });
}

void tst_AddingAnAccount::passwordIsShownWhileTheEyeIsDown()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        auto *eye = child<QToolButton>(window, "AddAccount_PasswordReveal");
        QVERIFY(eye && eye->isVisible());
        QCOMPARE(password(window)->echoMode(), QLineEdit::Password);
        QTest::keyClick(eye, Qt::Key_Space);
        QCOMPARE(password(window)->echoMode(), QLineEdit::Normal);
        QTest::keyClick(eye, Qt::Key_Space);
        QCOMPARE(password(window)->echoMode(), QLineEdit::Password);
    });
}

void tst_AddingAnAccount::wrongLoginIsSaidWhileItIsTyped()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QCOMPARE(hint(window), QString());
        QTest::keyClicks(login(window), "anna");
        QCOMPARE(hint(window), QString("The domain is missing."));
        QTest::keyClicks(login(window), "@");
        QCOMPARE(hint(window), QString());
        login(window)->clear();
        QCOMPARE(hint(window), QString());
    });
}

void tst_AddingAnAccount::existingAccountIsSaidBeforeItIsSaved()
{
    windows->protocol->normalize = [](const QString &text) { return text.toLower(); };
    QVERIFY(windows->addAccount("anna@fake"));
    windows->inAddWindow([](KirvLayoutDialog *window) {
        login(window)->setText("Anna@Fake");
        QCOMPARE(hint(window),
                 QString("The account \"Anna@Fake\" (Fake) exists already: it is the same as \"anna@fake\" to the "
                         "server."));
        login(window)->setText("anna@fake");
        QCOMPARE(hint(window), QString("The account \"anna@fake\" (Fake) exists already."));
    });
}

void tst_AddingAnAccount::hintMovesNothing()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        const QPoint before = password(window)->mapTo(window, QPoint());
        const QSize size = window->size();
        QTest::keyClicks(login(window), "anna");
        QCOMPARE(hint(window), QString("The domain is missing."));
        QCoreApplication::processEvents();
        QCOMPARE(password(window)->mapTo(window, QPoint()), before);
        QCOMPARE(window->size(), size);
    });
}

void tst_AddingAnAccount::windowGrowsWithALongHint()
{
    windows->protocol->findProblem = [](const QString &) {
        return QStringLiteral(
                   "This sentence has a good many words, so that it takes more than one line where it is shown. ")
            .repeated(3);
    };
    windows->inAddWindow([](KirvLayoutDialog *window) {
        const int before = window->height();
        QTest::keyClicks(login(window), "a");
        QVERIFY(window->height() > before);
        QCOMPARE(window->height(), window->sizeHint().height());
    });
}

void tst_AddingAnAccount::hintIsReadByAssistiveTechnology()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QTest::keyClicks(login(window), "anna");
        QAccessibleInterface *line = QAccessible::queryAccessibleInterface(login(window));
        QCOMPARE(line->text(QAccessible::Description), QString("The domain is missing."));
        QCOMPARE(line->text(QAccessible::Name), QString("Login"));
    });
}

void tst_AddingAnAccount::refusedCharacterIsSaid_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("said");
    QTest::newRow("the protocol knows why") << "A login contains no blanks."
                                            << "A login contains no blanks.";
    QTest::newRow("it does not") << ""
                                 << "A login cannot contain this.";
}

void tst_AddingAnAccount::refusedCharacterIsSaid()
{
    QFETCH(QString, reason);
    QFETCH(QString, said);
    windows->protocol->loginPattern = QStringLiteral("\\S+");
    windows->protocol->findProblem = [reason](const QString &text) {
        return text == QLatin1String("an na") || text == QLatin1String("a b") ? reason : QString();
    };
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        QTest::keyClicks(login(window), "anna");
        login(window)->setCursorPosition(2);
        QTest::keyClick(login(window), Qt::Key_Space);
        QCOMPARE(login(window)->text(), QString("anna"));
        KIRV_TRY_COMPARE(hint(window), said);
        QTest::keyClick(login(window), Qt::Key_X);
        QCOMPARE(hint(window), QString());
        login(window)->clear();
        QGuiApplication::clipboard()->setText("a b");
        login(window)->paste();
        KIRV_TRY_COMPARE(hint(window), said);
    });
}

void tst_AddingAnAccount::reasonWhySaveIsDisabled_data()
{
    QTest::addColumn<QString>("typedLogin");
    QTest::addColumn<QString>("typedPassword");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing") << ""
                             << ""
                             << "The login and the password are missing.";
    QTest::newRow("login") << "anna@fake"
                           << ""
                           << "The password is missing.";
    QTest::newRow("password") << ""
                              << "secret"
                              << "The login is missing.";
    QTest::newRow("both") << "anna@fake"
                          << "secret"
                          << "";
}

void tst_AddingAnAccount::reasonWhySaveIsDisabled()
{
    QFETCH(QString, typedLogin);
    QFETCH(QString, typedPassword);
    QFETCH(QString, reason);
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        login(window)->setText(typedLogin);
        password(window)->setText(typedPassword);
        QCOMPARE(whyNotSaved(window), reason);
        QCOMPARE(save(window)->toolTip(), reason);
        QCOMPARE(save(window)->accessibleDescription(), reason);
        QCOMPARE(save(window)->isEnabled(), reason.isEmpty());
        QVERIFY(!saveWithoutPassword(window)->isVisible());
    });
}

void tst_AddingAnAccount::wrongLoginIsRefusedWithTheReason()
{
    QString said;
    const KirvWindowWatcher<QMessageBox> boxes([&](QMessageBox *box) {
        QCoreApplication::processEvents();
        said = box->text();
        box->close();
    });
    windows->inAddWindow([](KirvLayoutDialog *window) {
        login(window)->setText("anna");
        password(window)->setText("secret");
        QVERIFY(save(window)->isEnabled()); // intended: Save has its own rule
        save(window)->click();
        QVERIFY(window->isVisible());
        QCOMPARE(hint(window), QString("The domain is missing."));
        QCOMPARE(login(window)->text(), QString("anna"));
        QCOMPARE(password(window)->text(), QString("secret"));
    });
    QCOMPARE(said, QString("The domain is missing."));
    QVERIFY(!windows->account("anna"));
}

void tst_AddingAnAccount::accountWithoutPasswordHasAButtonOfItsOwn()
{
    windows->protocol->worksWithoutPassword = [](const QList<KirvField> &) { return true; };
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QVERIFY(!saveWithoutPassword(window)->isVisible());
        login(window)->setText("anna@fake");
        QVERIFY(saveWithoutPassword(window)->isVisible());
        QVERIFY(!save(window)->isEnabled()); // intended: Save has its own rule
        QCOMPARE(whyNotSaved(window), QString("The account can be used without a password."));
        password(window)->setText("secret");
        QVERIFY(!saveWithoutPassword(window)->isVisible());
        password(window)->clear();
        saveWithoutPassword(window)->click();
    });
    QVERIFY(windows->account("anna@fake"));
    QCOMPARE(windows->account("anna@fake")->record().password, QString());
    QVERIFY(windows->row("anna@fake"));
}

void tst_AddingAnAccount::settingDecidesWhetherAPasswordIsNeeded()
{
    windows->protocol->settings = { KirvField::checkBox("Guest", "guest", false, "") };
    windows->protocol->configurations = QStringList("Guest");
    windows->protocol->configurationFields = { KirvField::checkBox("Guest", "guest", true, ""),
                                               KirvField::textEdit("login", "login", "anna@fake", "") };
    windows->protocol->worksWithoutPassword = [](const QList<KirvField> &fields) { return fields.first().isChecked(); };
    windows->inAddWindow([](KirvLayoutDialog *window) {
        login(window)->setText("anna@fake");
        QVERIFY(!saveWithoutPassword(window)->isVisible());
        advanced(window)->click();
        auto *guest = child<QAbstractButton>(window, "KirvField_guest");
        guest->setFocus();
        QTest::keyClick(guest, Qt::Key_Space);
        QVERIFY(saveWithoutPassword(window)->isVisible());
        QTest::keyClick(guest, Qt::Key_Space);
        QVERIFY(!saveWithoutPassword(window)->isVisible());
        // A ready-made configuration brings another form.
        child<QComboBox>(window, "AddAccount_Configuration")->setCurrentText("Guest");
        QVERIFY(saveWithoutPassword(window)->isVisible());
    });
}

/// Without which no log-in can work, as the server of an account that does not name it.
void tst_AddingAnAccount::settingThatIsMissingIsSaid()
{
    const QString missing = QStringLiteral("No server is given.");
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "", "") };
    windows->protocol->worksWithoutPassword = [](const QList<KirvField> &) { return true; };
    windows->protocol->findSettingsProblem = [&missing](const QList<KirvField> &fields) {
        return fields.value(0).getText().isEmpty() ? missing : QString();
    };
    QString said;
    const KirvWindowWatcher<QMessageBox> boxes([&](QMessageBox *box) {
        QCoreApplication::processEvents();
        said = box->text();
        box->close();
    });
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        QVERIFY(!settings(window)->isVisible());
        login(window)->setText("anna");
        QCOMPARE(hint(window), QString("The domain is missing.")); // which comes first
        QVERIFY(!whyNotSaved(window).contains(missing));
        login(window)->setText("anna@fake");
        QCOMPARE(whyNotSaved(window), missing);
        QVERIFY(!saveWithoutPassword(window)->isVisible());
        QVERIFY(!child<QPushButton>(window, "AddAccount_TestLogIn")->isEnabled());
        QVERIFY(!settings(window)->isVisible());
        login(window)->setFocus();
        KIRV_TRY(login(window)->hasFocus());
        QTest::keyClick(login(window), Qt::Key_Tab); // the login is finished
        QVERIFY(settings(window)->isVisible());
        password(window)->setText("secret");
        save(window)->click();
        QVERIFY(window->isVisible());
        QCOMPARE(said, missing);
        QVERIFY(!windows->account("anna@fake"));
        auto *server = child<QLineEdit>(window, "KirvField_server");
        QTest::keyClicks(server, "example.org");
        QCOMPARE(whyNotSaved(window), QString());
        save(window)->click();
        QVERIFY(!window->isVisible());
    });
    QVERIFY(windows->account("anna@fake"));
}

void tst_AddingAnAccount::keyboardAloneAddsAnAccount()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        const auto type = [window](const char *text) { QTest::keyClicks(window->focusWidget(), text); };
        type("anna@fake");
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QCOMPARE(window->focusWidget(), password(window));
        type("secret");
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    });
    QVERIFY(windows->account("anna@fake"));
    QCOMPARE(windows->account("anna@fake")->record().password, QString("secret"));
}

void tst_AddingAnAccount::tabGoesFromTopToBottom_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<QString>("configuration"); // chosen afterwards
    QTest::newRow("settings hidden") << false << QString();
    QTest::newRow("settings shown") << true << QString();
    QTest::newRow("settings of a configuration") << false << QStringLiteral("Local");
    QTest::newRow("settings of a configuration, shown before") << true << QStringLiteral("Local");
}

void tst_AddingAnAccount::tabGoesFromTopToBottom()
{
    QFETCH(bool, isOpen);
    QFETCH(QString, configuration);
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "", ""),
                                    KirvField::number("Port", "port", 1, 1, 9, "") };
    windows->protocol->configurations = QStringList("Local");
    windows->protocol->configurationFields = { KirvField::textEdit("Server", "server", "127.0.0.1", ""),
                                               KirvField::number("Port", "port", 2, 1, 9, "") };
    QStringList expected = { "AddAccount_Configuration", "AddAccount_Advanced" };
    if (isOpen || !configuration.isEmpty())
        expected << "KirvField_server"
                 << "KirvField_port";
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        login(window)->setText("anna@fake");
        password(window)->setText("secret");
        child<QComboBox>(window, "AddAccount_Configuration")->setFocus();
        if (isOpen)
            advanced(window)->click();
        if (!configuration.isEmpty())
            child<QComboBox>(window, "AddAccount_Configuration")->setCurrentText(configuration);
        KirvClientWindows::settle();
        QWidgetList stops;
        do {
            stops << window->focusWidget();
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        } while (window->focusWidget() != login(window) && stops.size() < 20);
        QStringList names;
        for (const QWidget *stop : stops.mid(0, expected.size()))
            names << stop->objectName();
        QCOMPARE(names, expected);
        QList<int> places;
        for (const QWidget *stop : stops.mid(expected.size())) {
            QVERIFY2(child<QWidget>(window, "AddAccount_Buttons")->isAncestorOf(stop), qPrintable(stop->objectName()));
            places << stop->mapTo(window, QPoint()).x();
        }
        QCOMPARE(int(places.size()), 3); // to test the log-in, to save, and to cancel
        QVERIFY(std::is_sorted(places.begin(), places.end()));
        for (auto stop = stops.crbegin(); stop != stops.crend(); ++stop) {
            QTest::keyClick(window->focusWidget(), Qt::Key_Backtab);
            QCOMPARE(window->focusWidget(), *stop);
        }
    });
}

void tst_AddingAnAccount::arrowIsBesideItsText()
{
    QFETCH(bool, isRightToLeft);
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "", "") };
    QGuiApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        QToolButton *button = advanced(window);
        button->setFixedSize(button->size());
        button->setText(QStringLiteral(" ")); // only the arrow is drawn
        const QImage image = button->grab().toImage();
        int inked = 0, atBeginning = 0; // pixels
        for (int x = 4; x < image.width() - 4; ++x) {
            for (int y = 4; y < image.height() - 4; ++y) {
                const bool isInk = image.pixelColor(x, y).lightness() < 128;
                inked += isInk;
                atBeginning += isInk && (x < image.width() / 2) != isRightToLeft;
            }
        }
        QVERIFY(inked > 5);
        QCOMPARE(atBeginning, inked);
    });
}

void tst_AddingAnAccount::advancedStaysWhereItIs_data()
{
    QTest::addColumn<bool>("isRightToLeft");
    QTest::newRow("from left to right") << false;
    QTest::newRow("from right to left") << true;
}

/// A second click on the same spot hides again what the first one has shown.
void tst_AddingAnAccount::advancedStaysWhereItIs()
{
    QFETCH(bool, isRightToLeft);
    windows->protocol->settings = { KirvField::textEdit("Server", "server", "", "") };
    QGuiApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        const QToolButton *button = advanced(window);
        const QRect closed(button->mapTo(window, QPoint()), button->size());
        const QWidget *section = button->parentWidget();
        QCOMPARE(isRightToLeft ? button->geometry().right() : button->x(), isRightToLeft ? section->rect().right() : 0);
        for (const bool isOpen : { true, false }) {
            QTest::mouseClick(window->childAt(closed.center()), Qt::LeftButton);
            KirvClientWindows::settle();
            QCOMPARE(settings(window)->isVisible(), isOpen);
            QCOMPARE(QRect(button->mapTo(window, QPoint()), button->size()), closed);
        }
    });
}

void tst_AddingAnAccount::nothingIsCutOffInASmallWindow()
{
    windows->inAddWindow([](KirvLayoutDialog *window) {
        advanced(window)->click();
        window->resize(window->minimumSizeHint());
        KirvClientWindows::settle(); // the buttons take more rows then
        QVERIFY2(window->width() <= 480 && window->height() <= 360,
                 qPrintable(QString("%1x%2").arg(window->width()).arg(window->height())));
        const QRect inside = window->rect();
        for (const char *name : { "AddAccount_ButtonFrame", "AddAccount_SaveHint", "AddAccount_FormArea" }) {
            const auto *widget = child<QWidget>(window, name);
            QVERIFY2(inside.contains(QRect(widget->mapTo(window, QPoint()), widget->size())), name);
        }
    });
}

void tst_AddingAnAccount::linkIsTakenForItsLogin_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("any text can be a login") << ".*";
    QTest::newRow("a link cannot be a login") << "[a-z@.]+";
}

void tst_AddingAnAccount::linkIsTakenForItsLogin()
{
    QFETCH(QString, pattern);
    windows.reset();
    windows = std::make_unique<KirvClientWindows>(QStringLiteral("XMPP"));
    windows->protocol->loginPattern = pattern;
    windows->inAddWindow([](KirvLayoutDialog *window) {
        QGuiApplication::clipboard()->setText("xmpp:anna@example.org");
        login(window)->paste();
        KIRV_TRY_COMPARE(login(window)->text(), QString("anna@example.org"));
        QCOMPARE(hint(window), QString());
        login(window)->clear();
        QTest::keySequence(login(window), QKeySequence::Paste);
        KIRV_TRY_COMPARE(login(window)->text(), QString("anna@example.org"));
    });
}

void tst_AddingAnAccount::linkIsDroppedOnTheLogin_data()
{
    QTest::addColumn<bool>("isUrl");
    QTest::addColumn<QString>("before");
    QTest::newRow("address") << true << "";
    QTest::newRow("text") << false << "";
    QTest::newRow("over what was typed") << false << "bob@ex";
}

void tst_AddingAnAccount::linkIsDroppedOnTheLogin()
{
    QFETCH(bool, isUrl);
    QFETCH(QString, before);
    windows.reset();
    windows = std::make_unique<KirvClientWindows>(QStringLiteral("XMPP"));
    windows->inAddWindow([&](KirvLayoutDialog *window) {
        login(window)->setText(before);
        QVERIFY(dropOn(login(window), "xmpp:anna@example.org", isUrl));
        QCOMPARE(login(window)->text(), QString("anna@example.org"));
    });
}

void tst_AddingAnAccount::linkOnThePageOpensTheWindow_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : { "pasted", "dropped address", "dropped text", "dropped on the list" })
        QTest::newRow(how) << how;
}

void tst_AddingAnAccount::linkOnThePageOpensTheWindow()
{
    QFETCH(QString, how);
    windows.reset();
    windows = std::make_unique<KirvClientWindows>(QStringLiteral("XMPP"));
    QString filledIn;
    const KirvWindowWatcher<KirvLayoutDialog> watcher([&](KirvLayoutDialog *window) {
        filledIn = login(window)->text();
        window->reject();
    });
    QWidget *page = windows->client->accountsPage();
    const QString link = QStringLiteral("xmpp:anna@example.org");
    if (how == QLatin1String("pasted")) {
        QGuiApplication::clipboard()->setText(link);
        page->window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page->window(), kirvPatience));
        child<QToolButton>(page, "Accounts_AddButton")->setFocus();
        QTest::keySequence(page->window()->focusWidget(), QKeySequence::Paste);
    } else {
        QWidget *target = how == QLatin1String("dropped on the list") ? windows->list()->viewport()
                                                                      : child<QWidget>(page, "Accounts");
        QVERIFY(dropOn(target, link, how == QLatin1String("dropped address")));
    }
    KIRV_TRY_COMPARE(filledIn, QString("anna@example.org"));
}

void tst_AddingAnAccount::otherTextOnThePageOpensNothing()
{
    windows.reset();
    windows = std::make_unique<KirvClientWindows>(QStringLiteral("XMPP"));
    QWidget *page = windows->client->accountsPage();
    for (const char *text : { "anna@example.org", "https://example.org", "", "xmpp" }) {
        QVERIFY(!dropOn(child<QWidget>(page, "Accounts"), QString::fromLatin1(text), false));
        QVERIFY(!dropOn(windows->list()->viewport(), QString::fromLatin1(text), true));
    }
}

void tst_AddingAnAccount::linkThatIsTooLongOpensNothing()
{
    windows.reset();
    windows = std::make_unique<KirvClientWindows>(QStringLiteral("XMPP"));
    QWidget *page = windows->client->accountsPage();
    const KirvWindowWatcher<KirvLayoutDialog> watcher([](KirvLayoutDialog *window) { window->reject(); });
    const QString link = "xmpp:anna@" + QString(5000, QLatin1Char('a'));
    QVERIFY(!dropOn(child<QWidget>(page, "Accounts"), link, false));
    QCOMPARE(windows->messages(), QStringList());
    QGuiApplication::clipboard()->setText(link);
    page->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page->window(), kirvPatience));
    child<QToolButton>(page, "Accounts_AddButton")->setFocus();
    QTest::keySequence(page->window()->focusWidget(), QKeySequence::Paste);
    KIRV_TRY_COMPARE(windows->messages(), QStringList("The link was not opened because it is too long."));
    QCOMPARE(watcher.shown, 0);
}

QTEST_MAIN(tst_AddingAnAccount)
#include "tst_adding_an_account.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_status.h"
#include "client/kirv_password_dialog.h"
#include "client/kirv_settings_window.h"
#include "client/kirv_state_shape.h"
#include "core/accounts/kirv_account_collection.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");

const QList<KirvAccountStatus::Kind> allKinds { KirvAccountStatus::Connected, KirvAccountStatus::Connecting,
                                                KirvAccountStatus::Waiting,   KirvAccountStatus::Failed,
                                                KirvAccountStatus::OffLine,   KirvAccountStatus::Disabled,
                                                KirvAccountStatus::NotLoaded };

} // namespace

/// What the rows of the page and the strip below its list say about the accounts.
class tst_PageStates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void rowTellsItsState_data();
    void rowTellsItsState();
    void failureHasShortWords_data();
    void failureHasShortWords();
    void waitingIsCountedDown_data();
    void waitingIsCountedDown();
    void waitingForItsTurnNamesNoTime();
    void everyStateHasAShapeOfItsOwn();
    void paintedRowFollowsTheState();
    void accountWithoutAliasShowsItsLogin();
    void statesReachNoSlotOfThePage();
    void accessibilityTreeHoldsStateAndReason();
    void stripTellsTheWholeReason();
    void stripTellsTheProtection();
    void stripOffersWhatIsPossible();
    void stripAsksForThePassword();
    void stripReconnects();
    void stripReconnectsWhatStartsOffLine();
    void stripOpensTheEditWindow();
    void stripIsReachedByTheKeyboard();
    void accountWithoutAnAliasIsNamedByItsLogin();
    void stripDoesNotJump();
    void longReasonCanBeScrolled();
    void stripStandsBelowTheListInAnyLayout_data();
    void stripStandsBelowTheListInAnyLayout();

private:
    KirvFakeServer &server() const { return *windows->protocol->server; }
    KirvFakeConnection *connection(const QString &id = ann) const
    {
        return qobject_cast<KirvFakeConnection *>(windows->account(id)->connection());
    }
    /// Brings the account "ann" there, and waits until the row says so.
    void bringTo(KirvAccountStatus::Kind kind);
    KirvAccountStatus status(const QString &id = ann) const { return { *windows->account(id), false }; }
    QString spoken(const QString &id = ann) const
    {
        return windows->row(id)->data(0, Qt::AccessibleTextRole).toString();
    }
    template <typename T>
    T *part(const char *name) const
    {
        return KirvClientWindows::child<T>(windows->client->accountsPage(), name);
    }
    QString reason() const { return part<QTextEdit>("Accounts_StripReason")->toPlainText(); }
    QPushButton *button(const char *name) const { return part<QPushButton>(name); }
    void useLayout(const QString &items);

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_PageStates::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    QVERIFY(QTest::qWaitForWindowExposed(windows->client->window(), kirvPatience));
}

void tst_PageStates::cleanup()
{
    windows.reset();
}

void tst_PageStates::bringTo(KirvAccountStatus::Kind kind)
{
    switch (kind) {
    case KirvAccountStatus::Connecting:
        server().logIn = KirvFakeServer::Holds;
        break;
    case KirvAccountStatus::Waiting:
        server().logIn = KirvFakeServer::Refuses;
        server().refusal = { KirvFailure::TimedOut, QStringLiteral("example.org") };
        break;
    case KirvAccountStatus::Failed:
        server().logIn = KirvFakeServer::Refuses;
        break;
    default:
        break;
    }
    KirvAccount *account = windows->account(ann) ? windows->account(ann) : windows->addAccount(ann);
    if (kind == KirvAccountStatus::OffLine)
        account->setPresence(windows->protocol->presenceWithId(QStringLiteral("offline"), QString()));
    if (kind == KirvAccountStatus::Disabled)
        account->setEnabled(false);
    if (kind == KirvAccountStatus::NotLoaded)
        windows->client->accounts().protocolAboutToBeUnloaded(windows->protocol->name);
    KIRV_TRY_COMPARE(status().kind(), kind);
    KirvClientWindows::settle();
}

void tst_PageStates::rowTellsItsState_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("line");
    QTest::newRow("connected") << int(KirvAccountStatus::Connected) << "Connected · Available";
    QTest::newRow("connecting") << int(KirvAccountStatus::Connecting) << "Connecting…";
    QTest::newRow("wrong password") << int(KirvAccountStatus::Failed) << "Wrong password";
    QTest::newRow("off line") << int(KirvAccountStatus::OffLine) << "Off line";
    QTest::newRow("disabled") << int(KirvAccountStatus::Disabled) << "Disabled";
    QTest::newRow("no plug-in") << int(KirvAccountStatus::NotLoaded) << "Its plug-in is not loaded";
}

void tst_PageStates::rowTellsItsState()
{
    QFETCH(int, kind);
    QFETCH(QString, line);
    windows->addAccount(QStringLiteral("aaa")); // the first one is the main account
    bringTo(KirvAccountStatus::Kind(kind));
    QCOMPARE(status().line(), line);
    QCOMPARE(spoken(), QStringLiteral("ann, ") + line);
}

void tst_PageStates::failureHasShortWords_data()
{
    QTest::addColumn<int>("kind");
    for (int kind = KirvFailure::WrongPassword; kind <= KirvFailure::Other; ++kind)
        QTest::newRow(qPrintable(QString::number(kind))) << kind;
}

void tst_PageStates::failureHasShortWords()
{
    QFETCH(int, kind);
    const KirvFailure failure { KirvFailure::Kind(kind) };
    server().logIn = KirvFakeServer::Refuses;
    server().refusal = failure;
    windows->addAccount(ann);
    KIRV_TRY(windows->account(ann)->lastFailure().isFailure());
    const QString text = status().text();
    QVERIFY2(!text.isEmpty() && text.size() < 40, qPrintable(text));
    QVERIFY2(status().reason().startsWith(failure.text()), qPrintable(status().reason()));
    QCOMPARE(status().kind(), failure.isWorthRetrying() ? KirvAccountStatus::Waiting : KirvAccountStatus::Failed);
}

void tst_PageStates::waitingIsCountedDown_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("begun second") << 11001 << "Waiting, next try in 12 s";
    QTest::newRow("whole second") << 12000 << "Waiting, next try in 12 s";
    QTest::newRow("last second") << 1 << "Waiting, next try in 1 s";
    QTest::newRow("due") << -1500 << "Waiting, next try in 1 s";
    QTest::newRow("long") << 119000 << "Waiting, next try in 119 s";
    QTest::newRow("minutes") << 120000 << "Waiting, next try in 2 min";
    QTest::newRow("begun minute") << 241000 << "Waiting, next try in 5 min";
}

void tst_PageStates::waitingIsCountedDown()
{
    QFETCH(int, milliseconds);
    QFETCH(QString, text);
    bringTo(KirvAccountStatus::Waiting);
    const QDateTime now = connection()->nextRetry().addMSecs(-milliseconds);
    QCOMPARE(status().text(now), text);
    // What is read aloud stays right while the time passes.
    const QString time = connection()->nextRetry().time().toString(QStringLiteral("hh:mm:ss"));
    QVERIFY2(spoken().contains(QStringLiteral("Waiting, next try at ") + time), qPrintable(spoken()));
}

void tst_PageStates::waitingForItsTurnNamesNoTime()
{
    bringTo(KirvAccountStatus::Waiting);
    connection()->setLoginGate([] { return false; });
    windows->account(ann)->reconnect();
    KIRV_TRY(connection()->isWaitingForTurn());
    KIRV_TRY_COMPARE(spoken(), QStringLiteral("ann, Waiting to connect… · main account"));
    QCOMPARE(status().text(), QStringLiteral("Waiting to connect…"));
    QVERIFY2(status().reason().endsWith(QLatin1String("Other accounts connect first.")), qPrintable(status().reason()));
}

void tst_PageStates::everyStateHasAShapeOfItsOwn()
{
    QList<QImage> shapes;
    for (const KirvAccountStatus::Kind kind : allKinds) {
        QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        kirvPaintStateShape(&painter, image.rect(), kind, Qt::black);
        QVERIFY2(!shapes.contains(image), qPrintable(QString::number(kind)));
        shapes << image;
    }
}

void tst_PageStates::paintedRowFollowsTheState()
{
    const auto picture = [this] {
        return windows->list()->viewport()->grab(windows->list()->visualItemRect(windows->row(ann))).toImage();
    };
    bringTo(KirvAccountStatus::Connected);
    const QImage connected = picture();
    QCOMPARE(picture(), connected);
    server().logIn = KirvFakeServer::Refuses;
    connection()->connectionLost(KirvFailure::WrongPassword);
    KIRV_TRY_COMPARE(status().kind(), KirvAccountStatus::Failed);
    QVERIFY(picture() != connected);
}

void tst_PageStates::accountWithoutAliasShowsItsLogin()
{
    bringTo(KirvAccountStatus::Connected);
    const QRect place = windows->list()->visualItemRect(windows->row(ann));
    windows->list()->clearFocus();
    const QImage named = windows->list()->viewport()->grab(place).toImage();
    windows->account(ann)->setAlias(QString());
    windows->client->accountsPage()->updateAccount(windows->account(ann));
    KirvClientWindows::settle();
    QCOMPARE(windows->row(ann)->text(0), ann);
    QVERIFY2(spoken().startsWith(QLatin1String("ann, ")), qPrintable(spoken()));
    windows->list()->clearFocus();
    QCOMPARE(windows->list()->viewport()->grab(place).toImage(), named);
}

void tst_PageStates::statesReachNoSlotOfThePage()
{
    windows->addAccount(ann);
    windows->addAccount(bob);
    int changes = 0;
    connect(windows->list(), &QTreeWidget::itemChanged, this, [&changes] { ++changes; });
    server().logIn = KirvFakeServer::Refuses;
    connection()->connectionLost(KirvFailure::TimedOut);
    windows->account(bob)->reconnect();
    KIRV_TRY(spoken(bob).contains(QLatin1String("Wrong password")));
    KIRV_TRY(spoken(ann).contains(QLatin1String("Waiting")));
    windows->list()->disconnect(this);
    QCOMPARE(changes, 0);
}

void tst_PageStates::accessibilityTreeHoldsStateAndReason()
{
    bringTo(KirvAccountStatus::Failed);
    windows->addAccount(bob);
    KIRV_TRY(spoken(bob).contains(QLatin1String("Wrong password")));
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(windows->list());
    QVERIFY(list && list->tableInterface());
    for (const QString &id : { ann, bob }) {
        const int index = windows->list()->indexOfTopLevelItem(windows->row(id));
        QAccessibleInterface *cell = list->tableInterface()->cellAt(index, 0);
        QVERIFY(cell);
        QVERIFY2(cell->text(QAccessible::Name).startsWith(id + QStringLiteral(", Wrong password")),
                 qPrintable(cell->text(QAccessible::Name)));
        const QString told = cell->text(QAccessible::Description);
        QVERIFY2(told.contains(KirvFailure(KirvFailure::WrongPassword).text()), qPrintable(told));
    }
    windows->select(ann);
    KirvClientWindows::settle();
    QAccessibleInterface *strip = QAccessible::queryAccessibleInterface(part<QWidget>("Accounts_Strip"));
    QCOMPARE(strip->text(QAccessible::Name), QStringLiteral("State of ann"));
}

void tst_PageStates::stripTellsTheWholeReason()
{
    QCOMPARE(part<QLabel>("Accounts_StripTitle")->text(), QStringLiteral("No account is selected."));
    QCOMPARE(reason(), QString());
    bringTo(KirvAccountStatus::Failed);
    windows->select(ann);
    KIRV_TRY(part<QLabel>("Accounts_StripTitle")->text().startsWith(QLatin1String("Wrong password")));
    QVERIFY2(reason().contains(KirvFailure(KirvFailure::WrongPassword).text()), qPrintable(reason()));
    QVERIFY2(reason().contains(QLatin1String("Enter the password again")), qPrintable(reason()));
    QVERIFY2(reason().contains(QLatin1String("Since ")), qPrintable(reason()));
    server().logIn = KirvFakeServer::Accepts;
    windows->account(ann)->reconnect();
    KIRV_TRY(part<QLabel>("Accounts_StripTitle")->text().startsWith(QLatin1String("Connected")));
    QVERIFY2(reason().startsWith(QLatin1String("The presence is Available.")), qPrintable(reason()));
}

void tst_PageStates::stripTellsTheProtection()
{
    bringTo(KirvAccountStatus::Connected);
    windows->select(ann);
    KIRV_TRY(reason().contains(QLatin1String("Since ")));
    QVERIFY2(!reason().contains(QLatin1String("Protection")), qPrintable(reason()));
    server().logIn = KirvFakeServer::Holds;
    windows->account(ann)->reconnect();
    KIRV_TRY_COMPARE(status().kind(), KirvAccountStatus::Connecting);
    connection()->security = QStringLiteral("TLSv1.3, SASL EXTERNAL");
    connection()->serverAccepts();
    KIRV_TRY_COMPARE(status().kind(), KirvAccountStatus::Connected);
    KIRV_TRY(reason().endsWith(QLatin1String("Protection: TLSv1.3, SASL EXTERNAL.")));
}

void tst_PageStates::stripOffersWhatIsPossible()
{
    QPushButton *password = button("Accounts_PasswordButton");
    QPushButton *reconnect = button("Accounts_ReconnectButton");
    QPushButton *edit = button("Accounts_StripEditButton");
    QVERIFY(!password->isEnabled() && !reconnect->isEnabled() && !edit->isEnabled());
    bringTo(KirvAccountStatus::Connected);
    windows->select(ann);
    KIRV_TRY(password->isEnabled() && reconnect->isEnabled() && edit->isEnabled());
    windows->account(ann)->setEnabled(false);
    KIRV_TRY(!password->isEnabled() && !reconnect->isEnabled() && edit->isEnabled());
    bringTo(KirvAccountStatus::NotLoaded);
    KIRV_TRY(!password->isEnabled() && !reconnect->isEnabled() && !edit->isEnabled());
    QVERIFY2(reason().contains(QLatin1String("Plug-ins page")), qPrintable(reason()));
}

void tst_PageStates::stripAsksForThePassword()
{
    bringTo(KirvAccountStatus::Failed);
    windows->select(ann);
    KIRV_TRY(button("Accounts_PasswordButton")->isEnabled());
    button("Accounts_PasswordButton")->click();
    auto *question = windows->client->window()->findChild<KirvPasswordDialog *>();
    QVERIFY(question && question->isVisible());
    QCOMPARE(question->key().id, ann);
}

void tst_PageStates::stripReconnects()
{
    bringTo(KirvAccountStatus::OffLine);
    windows->select(ann);
    KIRV_TRY(button("Accounts_ReconnectButton")->isEnabled());
    button("Accounts_ReconnectButton")->click();
    KIRV_TRY_COMPARE(status().kind(), KirvAccountStatus::Connected);
}

/// With the best presence there is.
void tst_PageStates::stripReconnectsWhatStartsOffLine()
{
    windows->addAccount(ann);
    const KirvPresence offLine = windows->protocol->presenceWithId(QStringLiteral("offline"), QString());
    windows->account(ann)->setDefaultPresence(offLine);
    windows->account(ann)->setPresence(offLine);
    KIRV_TRY_COMPARE(status().kind(), KirvAccountStatus::OffLine);
    windows->select(ann);
    KIRV_TRY(button("Accounts_ReconnectButton")->isEnabled());
    button("Accounts_ReconnectButton")->click();
    KIRV_TRY_COMPARE(status().kind(), KirvAccountStatus::Connected);
}

void tst_PageStates::stripOpensTheEditWindow()
{
    bringTo(KirvAccountStatus::Connected);
    windows->addAccount(bob);
    windows->select(ann);
    KIRV_TRY(button("Accounts_StripEditButton")->isEnabled());
    button("Accounts_StripEditButton")->click();
    const KirvEditAccountDialog *opened = windows->client->accountsPage()->getAccEdit();
    QVERIFY(opened);
    QCOMPARE(KirvClientWindows::child<QLabel>(opened->getWindow(), "EditAccount_Identifier")->text().contains(ann),
             true);
}

void tst_PageStates::stripIsReachedByTheKeyboard()
{
    bringTo(KirvAccountStatus::Connected);
    windows->select(ann);
    KIRV_TRY(button("Accounts_ReconnectButton")->isEnabled());
    windows->list()->setFocus();
    QStringList reached;
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(reached,
             (QStringList { QStringLiteral("Accounts_StripReason"), QStringLiteral("Accounts_LogButton"),
                            QStringLiteral("Accounts_PasswordButton"), QStringLiteral("Accounts_ReconnectButton"),
                            QStringLiteral("Accounts_StripEditButton") }));
    QSet<QString> mnemonics;
    const auto buttons = windows->client->accountsPage()->findChildren<QAbstractButton *>();
    for (const QAbstractButton *shown : buttons) {
        const QString key = QKeySequence::mnemonic(shown->text()).toString();
        QVERIFY2(key.isEmpty() || !mnemonics.contains(key), qPrintable(shown->text()));
        mnemonics << key;
    }
}

void tst_PageStates::accountWithoutAnAliasIsNamedByItsLogin()
{
    windows->addAccount(ann);
    for (const bool isRestarted : { false, true }) {
        windows->account(ann)->setAlias(QString());
        KirvClientWindows::settle();
        if (isRestarted)
            windows->restart();
        QCOMPARE(windows->row(ann)->text(0), ann);
        QCOMPARE(windows->selector()->itemText(0), ann);
        KirvLayoutDialog *window = windows->edit(ann);
        QVERIFY(window);
        auto *alias = KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias");
        QCOMPARE(alias->text(), QString());
        KirvClientWindows::save(window); // the page rewrites the row
        QCOMPARE(windows->row(ann)->text(0), ann);
        QCOMPARE(windows->account(ann)->getAlias(), QString());
        window = windows->edit(ann);
        KirvClientWindows::child<QLineEdit>(window, "EditAccount_Alias")->setText(QStringLiteral("Anna"));
        KirvClientWindows::save(window);
        QCOMPARE(windows->row(ann)->text(0), QStringLiteral("Anna"));
    }
}

void tst_PageStates::stripDoesNotJump()
{
    windows->addAccount(bob);
    const auto places = [this] {
        QList<QRect> all;
        for (const char *name : { "Accounts_Strip", "Accounts_List", "Accounts_AddButton", "Accounts_MainAccount",
                                  "Accounts_PasswordButton", "Accounts_ReconnectButton", "Accounts_StripEditButton" }) {
            const auto *widget = part<QWidget>(name);
            all << QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
        }
        return all;
    };
    windows->list()->setCurrentItem(nullptr);
    KirvClientWindows::settle();
    const QList<QRect> before = places();
    bringTo(KirvAccountStatus::Connected);
    windows->select(ann);
    KirvClientWindows::settle();
    QCOMPARE(places(), before);
    connection()->connectionLost({ KirvFailure::Other, QString(300, QLatin1Char('x')) });
    KirvClientWindows::settle();
    QCOMPARE(places(), before);
    windows->account(ann)->setAlias(QString(4000, QLatin1Char('y')));
    bringTo(KirvAccountStatus::Disabled);
    QCOMPARE(places(), before);
    bringTo(KirvAccountStatus::NotLoaded);
    QCOMPARE(places(), before);
}

void tst_PageStates::longReasonCanBeScrolled()
{
    windows->client->window()->resize(480, 360);
    bringTo(KirvAccountStatus::Connected);
    windows->select(ann);
    QString words;
    for (int i = 0; i < 60; ++i)
        words += QStringLiteral("word%1 ").arg(i);
    connection()->connectionLost({ KirvFailure::Other, words });
    KIRV_TRY(reason().contains(QLatin1String("word40")));
    auto *shown = part<QTextEdit>("Accounts_StripReason");
    QVERIFY(shown->verticalScrollBar()->maximum() > 0);
    shown->setFocus();
    QTest::keyClick(shown, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(shown, Qt::Key_PageDown);
    QVERIFY(shown->verticalScrollBar()->value() > 0);
}

/// A layout with the required widgets, and \a items around the list.
void tst_PageStates::useLayout(const QString &items)
{
    const QDir folder(windows->profileFolder());
    QVERIFY(folder.mkpath(QStringLiteral("layouts")));
    QFile file(folder.filePath(QStringLiteral("layouts/Accounts.ui")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString buttons =
        QStringLiteral("<item><layout class='QHBoxLayout' name='row'>"
                       "<item><widget class='QToolButton' name='Accounts_AddButton'/></item>"
                       "<item><widget class='QToolButton' name='Accounts_EditButton'/></item>"
                       "<item><widget class='QToolButton' name='Accounts_RemoveButton'/></item></layout></item>");
    file.write(QStringLiteral("<ui version='4.0'><class>Accounts</class><widget class='QWidget' name='Accounts'>"
                              "<layout class='QVBoxLayout' name='rows'>%1%2</layout></widget></ui>")
                   .arg(items, buttons)
                   .toUtf8());
}

void tst_PageStates::stripStandsBelowTheListInAnyLayout_data()
{
    const QString list = QStringLiteral("<widget class='QTreeWidget' name='Accounts_List'/>");
    const QString label = QStringLiteral("<widget class='QLabel' name='beside'/>");
    const QString in = QStringLiteral("<item><widget class='QWidget' name='box'>%1</widget></item>");
    QTest::addColumn<QString>("items");
    QTest::newRow("column") << QStringLiteral("<item>%1</item>").arg(list);
    QTest::newRow("row") << QStringLiteral("<item><layout class='QHBoxLayout' name='in'>"
                                           "<item>%1</item><item>%2</item></layout></item>")
                                .arg(list, label);
    QTest::newRow("grid") << QStringLiteral("<item><layout class='QGridLayout' name='in'><item row='0' column='0'>%2"
                                            "</item><item row='0' column='1' rowspan='2'>%1</item></layout></item>")
                                 .arg(list, label);
    QTest::newRow("form") << QStringLiteral("<item><layout class='QFormLayout' name='in'><item row='0' column='0'>%2"
                                            "</item><item row='0' column='1'>%1</item></layout></item>")
                                 .arg(list, label);
    QTest::newRow("splitter")
        << QStringLiteral("<item><widget class='QSplitter' name='in'>%1%2</widget></item>").arg(label, list);
    QTest::newRow("no layout") << in.arg(
        QStringLiteral("<property name='minimumSize'><size><width>300</width><height>300</height></size></property>"
                       "<widget class='QTreeWidget' name='Accounts_List'><property name='geometry'><rect><x>5</x>"
                       "<y>5</y><width>280</width><height>280</height></rect></property></widget>"));
    QTest::newRow("scroll area")
        << QStringLiteral("<item><widget class='QScrollArea' name='in'><property name='widgetResizable'><bool>true"
                          "</bool></property>%1</widget></item>")
               .arg(list);
    QTest::newRow("tab") << QStringLiteral("<item><widget class='QTabWidget' name='in'>%1</widget></item>").arg(list);
    QTest::newRow("stack")
        << QStringLiteral("<item><widget class='QStackedWidget' name='in'>%1</widget></item>").arg(list);
}

void tst_PageStates::stripStandsBelowTheListInAnyLayout()
{
    QFETCH(QString, items);
    useLayout(items);
    windows->restart();
    QVERIFY(windows->isReady());
    QVERIFY2(windows->messages().isEmpty(), qPrintable(windows->messages().join(QLatin1Char('\n'))));
    QVERIFY(QTest::qWaitForWindowExposed(windows->client->window(), kirvPatience));
    windows->addAccount(ann);
    windows->select(ann);
    KirvClientWindows::settle();
    const auto place = [this](const char *name) {
        const auto *widget = part<QWidget>(name);
        return QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
    };
    QVERIFY(part<QWidget>("Accounts_Strip")->isVisible());
    QVERIFY(windows->list()->isVisible());
    QVERIFY(place("Accounts_List").height() > 0);
    QVERIFY(place("Accounts_Strip").top() > place("Accounts_List").bottom());
    QCOMPARE(place("Accounts_Strip").left(), place("Accounts_List").left());
    QCOMPARE(place("Accounts_Strip").width(), place("Accounts_List").width());
}

QTEST_MAIN(tst_PageStates)
#include "tst_page_states.moc"

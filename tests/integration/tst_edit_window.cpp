// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "tests/integration/kirv_client_windows.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTextEdit>
#include <QtTest>

namespace {

const QString id = QStringLiteral("ann");
using Windows = KirvClientWindows;

} // namespace

/// What the edit window says of its account, and where its parts are.
class tst_EditWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void serverSettingsStandBeforePresence();
    void stateFollowsTheAccount();
    void emptyLinesSayWhatTheyMean();

private:
    KirvAccount *account() const { return windows->account(id); }
    KirvFakeConnection *connection() const { return static_cast<KirvFakeConnection *>(account()->connection()); }
    template <typename T>
    T *child(const char *name) const
    {
        return Windows::child<T>(window, name);
    }

    std::unique_ptr<KirvClientWindows> windows;
    QPointer<KirvLayoutDialog> window;
};

void tst_EditWindow::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    QVERIFY(windows->addAccount(id));
    QVERIFY(account()->isOnline());
}

void tst_EditWindow::cleanup()
{
    Windows::cancel(window);
    windows.reset();
}

void tst_EditWindow::serverSettingsStandBeforePresence()
{
    window = windows->edit(id);
    QVERIFY(window);
    const auto top = [this](const char *name) { return child<QWidget>(name)->mapTo(window, QPoint()).y(); };
    QVERIFY(child<QLabel>("EditAccount_ServerHeading") && child<QLabel>("EditAccount_PresenceHeading"));
    QVERIFY(top("EditAccount_Password") < top("EditAccount_ServerHeading"));
    QVERIFY(top("EditAccount_ServerHeading") < top("KirvField_server"));
    QVERIFY(top("KirvField_server") < top("EditAccount_PresenceHeading"));
    QVERIFY(top("EditAccount_PresenceHeading") < top("EditAccount_PresenceCombo"));
    QCOMPARE(child<QTabWidget>("EditAccount_Tabs")->count(), 2);
    // Tab goes the same way.
    QWidget *widget = child<QWidget>("EditAccount_RememberPassword");
    QStringList order;
    while (widget && widget->objectName() != QLatin1String("EditAccount_PresenceCombo") && order.size() < 100) {
        order << widget->objectName();
        widget = widget->nextInFocusChain();
    }
    QVERIFY2(order.contains(QLatin1String("KirvField_server")), qPrintable(order.join(QLatin1Char(' '))));

    // A protocol without settings has no such section.
    Windows::cancel(window);
    windows->protocol->settings.clear();
    window = windows->edit(id);
    QVERIFY(window && !child<QLabel>("EditAccount_ServerHeading")->isVisible());
    QVERIFY(child<QLabel>("EditAccount_PresenceHeading")->isVisible());
}

void tst_EditWindow::stateFollowsTheAccount()
{
    window = windows->edit(id);
    QVERIFY(window);
    auto *state = child<QLabel>("EditAccount_State");
    QVERIFY(state && state->isVisible());
    QCOMPARE(state->text(), QStringLiteral("Connected · Available"));
    connection()->serverGoes();
    Windows::settle();
    QVERIFY2(state->text().startsWith(QLatin1String("Waiting, next try at ")), qPrintable(state->text()));
    QVERIFY2(state->accessibleDescription().contains(QLatin1String("The next try is at")),
             qPrintable(state->accessibleDescription()));

    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    account()->reconnect();
    Windows::settle();
    QCOMPARE(state->text(), QStringLiteral("Wrong password"));
    for (const QString &reason : { state->toolTip(), state->accessibleDescription() })
        QVERIFY2(reason.contains(QLatin1String("Enter the password again")), qPrintable(reason));

    account()->setEnabled(false);
    Windows::settle();
    QCOMPARE(state->text(), QStringLiteral("Disabled"));
}

void tst_EditWindow::emptyLinesSayWhatTheyMean()
{
    window = windows->edit(id);
    QVERIFY(window);
    // Without an alias the account is named by its login.
    QCOMPARE(child<QLineEdit>("EditAccount_Alias")->placeholderText(), id);
    QCOMPARE(child<QLineEdit>("EditAccount_Password")->placeholderText(), QStringLiteral("None is stored"));
    QVERIFY(!child<QTextEdit>("EditAccount_DescriptionEdit")->placeholderText().isEmpty());
}

QTEST_MAIN(tst_EditWindow)
#include "tst_edit_window.moc"

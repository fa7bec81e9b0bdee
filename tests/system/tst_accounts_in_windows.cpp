// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_password_dialog.h"
#include "client/kirv_settings_window.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_field_widget.h"
#include "tests/system/kirv_windows.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeWidget>

namespace {

const QString xmpp = QStringLiteral("XMPP");
const QString here = QStringLiteral("Server on this computer");
const QString ann = QStringLiteral("ann@localhost");
const QString bob = QStringLiteral("bob@localhost");
const QString secret = QStringLiteral("anns-password");

} // namespace

/// What a user does with accounts on the page, against a real server.
class tst_AccountsInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void addedAccountIsLoggedInAndComesBackAfterARestart();
    void everythingInTheAddWindowHasAnAccessibleName();
    void existingAccountIsRefusedAndNothingTypedIsLost();
    void passwordThatIsNotRememberedIsAskedFor();
    void wrongPasswordIsSaid();
    void serverThatIsNotThereIsSaid();
    void untrustedCertificateIsSaidAndCanBeTrusted();

    void untickedOfflineAccountIsDisabledAtOnce();
    void untickedConnectedAccountIsAskedAbout();
    void removedAccountLeavesNothingBehind();
    void mainAccountIsFollowedAndRestored();

    void protocolGoesAndComesWhileConnected();
    void protocolGoesWhileAnAccountIsEdited();
    void protocolGoesWhileAQuestionIsOpen();

private:
    bool addAnn()
    {
        return windows->add(xmpp, here, ann, secret, [](QWidget *window) { remember(window); });
    }
    static void remember(QWidget *window)
    {
        KirvWindows::child<QAbstractButton>(window, "AddAccount_RememberPasswordCheckbox")->setChecked(true);
    }
    bool isConnected(const QString &login) const { return windows->state(login) == QLatin1String("Connected"); }

    KirvProsodyServer server;
    std::unique_ptr<KirvWindows> windows;
};

void tst_AccountsInWindows::initTestCase()
{
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(server.addUser(QStringLiteral("ann"), secret));
    QVERIFY(server.addUser(QStringLiteral("bob"), secret));
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(server.port()));
}

void tst_AccountsInWindows::init()
{
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", server.certificatePath().toLocal8Bit());
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
}

void tst_AccountsInWindows::cleanup()
{
    windows.reset();
}

void tst_AccountsInWindows::addedAccountIsLoggedInAndComesBackAfterARestart()
{
    QVERIFY(addAnn());
    QVERIFY(windows->row(ann));
    QCOMPARE(windows->row(ann)->checkState(0), Qt::Checked);
    KIRV_TRY(isConnected(ann));
    KIRV_TRY(server.isOnline(QStringLiteral("ann")));
    KIRV_TRY(windows->reason(ann).contains(QLatin1String("Protection: ")));
    const QString protection = windows->reason(ann).section(QStringLiteral("Protection: "), 1);
    QVERIFY2(protection.contains(QLatin1String(", SASL SCRAM-SHA-")), qPrintable(protection));

    windows->quit();
    KIRV_TRY(!server.isOnline(QStringLiteral("ann")));
    QVERIFY(windows->start());
    QVERIFY(windows->row(ann));
    KIRV_TRY(isConnected(ann));
    KIRV_TRY(server.isOnline(QStringLiteral("ann")));
}

void tst_AccountsInWindows::everythingInTheAddWindowHasAnAccessibleName()
{
    int seen = 0;
    QStringList nameless;
    const auto look = [&](QWidget *window) {
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            const bool isField = widget->isVisible() && widget->focusPolicy() != Qt::NoFocus
                && !widget->objectName().startsWith(QLatin1String("qt_"));
            if (!isField)
                continue;
            ++seen;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            const bool isLabelled = accessible
                && (!accessible->relations(QAccessible::Label).isEmpty() || !widget->accessibleName().isEmpty()
                    || !accessible->text(QAccessible::Name).isEmpty());
            if (!isLabelled)
                nameless << widget->objectName();
        }
    };
    QVERIFY(windows->add(xmpp, here, ann, secret, look));
    QVERIFY2(seen >= 10, qPrintable(QString::number(seen)));
    QCOMPARE(nameless, QStringList());
}

void tst_AccountsInWindows::existingAccountIsRefusedAndNothingTypedIsLost()
{
    QVERIFY(addAnn());
    QVERIFY(windows->add(xmpp, here, ann, secret, {}, false));
    QCOMPARE(windows->list()->topLevelItemCount(), 1);
}

void tst_AccountsInWindows::passwordThatIsNotRememberedIsAskedFor()
{
    const auto forget = [](QWidget *window) {
        KirvWindows::child<QAbstractButton>(window, "AddAccount_RememberPasswordCheckbox")->setChecked(false);
    };
    const QString unusual = QStringLiteral("unusual-word-to-find");
    QVERIFY(server.addUser(QStringLiteral("cy"), unusual));
    const QString cy = QStringLiteral("cy@localhost");
    QVERIFY(windows->add(xmpp, here, cy, unusual, forget));
    KIRV_TRY(isConnected(cy));
    QVERIFY(!windows->profileHolds(unusual.toUtf8()));

    QVERIFY(windows->start());
    KirvPasswordDialog *dialog = nullptr;
    KIRV_TRY((dialog = windows->client->window()->findChild<KirvPasswordDialog *>()));
    KIRV_TRY(dialog->isVisible());
    KirvWindowDriver::type(dialog->findChild<QLineEdit *>(), unusual);
    KirvWindowDriver::click(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok));
    KIRV_TRY(isConnected(cy));
}

void tst_AccountsInWindows::wrongPasswordIsSaid()
{
    QVERIFY(windows->add(xmpp, here, ann, QStringLiteral("mistyped")));
    KIRV_TRY_CONTAINS(windows->problem(ann), "password");
    QVERIFY(windows->hasGivenUp(ann));
    QVERIFY(!server.isOnline(QStringLiteral("ann")));
}

void tst_AccountsInWindows::serverThatIsNotThereIsSaid()
{
    const int nobody = KirvLocalServer::findFreePort();
    QVERIFY(windows->add(xmpp, here, ann, secret, [nobody](QWidget *window) {
        window->findChild<QSpinBox *>(QStringLiteral("KirvField_port"))->setValue(nobody);
    }));
    KIRV_TRY(!windows->problem(ann).isEmpty());
    KIRV_TRY_CONTAINS(windows->state(ann), "waiting");
}

void tst_AccountsInWindows::untrustedCertificateIsSaidAndCanBeTrusted()
{
    qunsetenv("KIRV_XMPP_LOCAL_CERTIFICATE");
    QVERIFY(addAnn());
    KIRV_TRY_CONTAINS(windows->problem(ann), "certificate");
    KIRV_TRY(KirvWindowDriver::window(QStringLiteral("CertificateQuestion")));
    KirvWindowDriver::click(KirvWindows::child<QPushButton>(
        KirvWindowDriver::window(QStringLiteral("CertificateQuestion")), "CertificateQuestion_LeaveButton"));
    QVERIFY(!isConnected(ann));

    QDialog *window = windows->edit(ann);
    QVERIFY(window);
    window->findChild<QLineEdit *>(QStringLiteral("KirvField_certificate"))->setText(server.certificatePath());
    QVERIFY(windows->save(window));
    KIRV_TRY(isConnected(ann));
}

void tst_AccountsInWindows::untickedOfflineAccountIsDisabledAtOnce()
{
    QVERIFY(windows->add(xmpp, here, ann, QStringLiteral("mistyped")));
    KIRV_TRY_CONTAINS(windows->problem(ann), "password");
    windows->toggle(ann);
    QVERIFY(!windows->question());
    QCOMPARE(windows->row(ann)->checkState(0), Qt::Unchecked);
    QVERIFY(!windows->account(ann)->isEnabled());
}

void tst_AccountsInWindows::untickedConnectedAccountIsAskedAbout()
{
    QVERIFY(addAnn());
    KIRV_TRY(isConnected(ann));

    windows->toggle(ann);
    KIRV_TRY(windows->question());
    QCOMPARE(windows->row(ann)->checkState(0), Qt::Checked);
    KirvWindowDriver::click(windows->question()->button(QMessageBox::No));
    KIRV_TRY(!windows->question());
    QVERIFY(isConnected(ann) && windows->account(ann)->isEnabled());

    windows->toggle(ann);
    KIRV_TRY(windows->question());
    KirvWindowDriver::click(windows->question()->button(QMessageBox::Yes));
    KIRV_TRY(windows->row(ann)->checkState(0) == Qt::Unchecked);
    KIRV_TRY(!server.isOnline(QStringLiteral("ann")));
    QCOMPARE(windows->selector()->count(), 0);

    windows->toggle(ann);
    KIRV_TRY(isConnected(ann));
    QCOMPARE(windows->selector()->count(), 1);
}

void tst_AccountsInWindows::removedAccountLeavesNothingBehind()
{
    QVERIFY(addAnn());
    KIRV_TRY(isConnected(ann));
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QString picture = windows->profileFolder() + QStringLiteral("/../picture.png");
    QVERIFY(image.save(picture));
    windows->account(ann)->setAvatar(picture);
    const QString avatar = windows->account(ann)->getCurrentAvatarPath();
    QVERIFY(QFile::exists(avatar));
    QVERIFY(windows->profileHolds("ann@localhost"));

    windows->select(ann);
    KirvWindowDriver::pressKey(windows->list(), Qt::Key_Delete);
    KIRV_TRY(windows->question());
    QVERIFY(windows->question()->text().contains(ann));
    KirvWindowDriver::click(windows->question()->button(QMessageBox::Yes));
    KIRV_TRY(!windows->row(ann));
    KIRV_TRY(!server.isOnline(QStringLiteral("ann")));
    QCOMPARE(windows->selector()->count(), 0);
    QVERIFY(!windows->account(ann));
    QVERIFY(!QFile::exists(avatar));

    windows->quit();
    QVERIFY(!windows->profileHolds("ann@localhost"));
    QVERIFY(!windows->profileHolds(secret.toUtf8()));
}

void tst_AccountsInWindows::mainAccountIsFollowedAndRestored()
{
    QVERIFY(addAnn());
    QVERIFY(windows->add(xmpp, here, bob, secret, [](QWidget *window) { remember(window); }));
    KIRV_TRY(isConnected(ann) && isConnected(bob));
    KIRV_TRY(windows->selector()->count() == 2);
    KirvWindowDriver::choose(windows->selector(), ann);
    KirvWindowDriver::choose(windows->selector(), bob);
    KIRV_TRY_CONTAINS(windows->title(), "bob@localhost");

    QVERIFY(windows->start());
    KIRV_TRY_CONTAINS(windows->title(), "bob@localhost");
    QVERIFY(KirvAccountManager::getInstance()->getMainAccount() == windows->account(bob));
    KIRV_TRY(windows->selector()->currentText() == bob);
}

void tst_AccountsInWindows::protocolGoesAndComesWhileConnected()
{
    QVERIFY(addAnn());
    KIRV_TRY(isConnected(ann));
    windows->setLoaded(xmpp, false);
    KIRV_TRY(!server.isOnline(QStringLiteral("ann")));
    QVERIFY(!windows->account(ann)->isLoaded());

    windows->setLoaded(xmpp, true);
    KIRV_TRY(isConnected(ann));
    windows->showPage(0);
    QCOMPARE(windows->list()->topLevelItemCount(), 1);
    KIRV_TRY(windows->selector()->count() == 1);
}

void tst_AccountsInWindows::protocolGoesWhileAnAccountIsEdited()
{
    QVERIFY(addAnn());
    KIRV_TRY(isConnected(ann));
    QVERIFY(windows->edit(ann));
    QVERIFY(windows->client->plugins().unload(windows->pluginFile(xmpp)));
    KIRV_TRY(!KirvWindowDriver::window(QStringLiteral("EditAccount")));
    windows->setLoaded(xmpp, true);
    KIRV_TRY(isConnected(ann));
    QVERIFY(windows->edit(ann));
}

void tst_AccountsInWindows::protocolGoesWhileAQuestionIsOpen()
{
    QVERIFY(addAnn());
    KIRV_TRY(isConnected(ann));
    windows->toggle(ann);
    KIRV_TRY(windows->question());
    QVERIFY(windows->client->plugins().unload(windows->pluginFile(xmpp)));
    QVERIFY(windows->client->plugins().load(windows->pluginFile(xmpp)));
    KIRV_TRY(windows->question());
    KirvWindowDriver::click(windows->question()->button(QMessageBox::Yes));
    KIRV_TRY(!windows->account(ann)->isEnabled());
    KIRV_TRY(!server.isOnline(QStringLiteral("ann")));
}

QTEST_MAIN(tst_AccountsInWindows)
#include "tst_accounts_in_windows.moc"

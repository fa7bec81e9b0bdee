// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_certificate_question.h"
#include "client/kirv_settings_window.h"
#include "tests/system/kirv_windows.h"
#include "tools/servers/kirv_ngircd_server.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QApplication>
#include <QCheckBox>
#include <QCryptographicHash>
#include <QFile>
#include <QPushButton>
#include <QSslCertificate>
#include <QTest>
#include <QTextEdit>

namespace {

const QString secret = QStringLiteral("anns-password");

QString digestText(const QString &file)
{
    const QByteArray digest = QSslCertificate::fromPath(file).value(0).digest(QCryptographicHash::Sha256);
    return KirvServerCertificate::fingerprintText(digest);
}

} // namespace

/// Servers with certificates that nobody trusts, met through the windows.
class tst_CertificatesInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void certificateIsTrustedAndItsChangeIsAskedAbout_data();
    void certificateIsTrustedAndItsChangeIsAskedAbout();
    void accountThatIsNotTrustedStaysOffLine();

private:
    bool startServer(bool isXmpp);
    KirvLocalServer &server(bool isXmpp)
    {
        return isXmpp ? static_cast<KirvLocalServer &>(prosody) : static_cast<KirvLocalServer &>(ngircd);
    }
    QString certificateFile(bool isXmpp) const { return isXmpp ? prosody.certificatePath() : ngircd.certificateFile(); }
    bool add(bool isXmpp, const QString &login);
    static KirvCertificateQuestion *question()
    {
        const auto all = QApplication::topLevelWidgets();
        for (QWidget *widget : all) {
            auto *found = qobject_cast<KirvCertificateQuestion *>(widget);
            if (found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    static QString text(const char *name)
    {
        const auto *edit = KirvWindows::child<QTextEdit>(question(), name);
        return edit ? edit->toPlainText().remove(QLatin1Char('\n')) : QString();
    }
    static void press(const char *name) { KirvWindowDriver::click(KirvWindows::child<QPushButton>(question(), name)); }
    bool isConnected(const QString &login) const { return windows->state(login) == QLatin1String("Connected"); }

    KirvProsodyServer prosody;
    KirvNgircdServer ngircd;
    std::unique_ptr<KirvWindows> windows;
};

void tst_CertificatesInWindows::init()
{
    qunsetenv("KIRV_XMPP_LOCAL_CERTIFICATE");
    ngircd.setEncrypted(true);
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
}

void tst_CertificatesInWindows::cleanup()
{
    windows.reset();
}

bool tst_CertificatesInWindows::startServer(bool isXmpp)
{
    if (!server(isXmpp).start())
        return false;
    const QByteArray port = QByteArray::number(server(isXmpp).port());
    qputenv(isXmpp ? "KIRV_XMPP_LOCAL_PORT" : "KIRV_IRC_LOCAL_PORT", port);
    if (!isXmpp)
        return true;
    return prosody.hasUser(QStringLiteral("ann")) || prosody.addUser(QStringLiteral("ann"), secret);
}

bool tst_CertificatesInWindows::add(bool isXmpp, const QString &login)
{
    const QString configuration = QStringLiteral("Server on this computer");
    return windows->add(
        isXmpp ? QStringLiteral("XMPP") : QStringLiteral("IRC"), configuration, login, secret, [&](QWidget *window) {
            KirvWindows::child<QCheckBox>(window, "AddAccount_RememberPasswordCheckbox")->setChecked(true);
            if (!isXmpp)
                KirvWindows::fill(window, QStringLiteral("encryption"), QStringLiteral("Required (TLS)"));
        });
}

void tst_CertificatesInWindows::certificateIsTrustedAndItsChangeIsAskedAbout_data()
{
    QTest::addColumn<bool>("isXmpp");
    QTest::addColumn<QString>("login");
    QTest::newRow("Prosody") << true << "ann@localhost";
    QTest::newRow("ngIRCd") << false << "alice";
}

void tst_CertificatesInWindows::certificateIsTrustedAndItsChangeIsAskedAbout()
{
    QFETCH(bool, isXmpp);
    QFETCH(QString, login);
    QVERIFY(startServer(isXmpp));
    QVERIFY(add(isXmpp, login));
    KIRV_TRY(question());
    const QString first = digestText(certificateFile(isXmpp));
    QCOMPARE(text("CertificateQuestion_Fingerprint"), first);
    QVERIFY(text("CertificateQuestion_Problems").contains("self-signed"));
    QCOMPARE(windows->state(login), QStringLiteral("Certificate not trusted"));
    press("CertificateQuestion_ChangeButton");
    KIRV_TRY(isConnected(login));

    windows->quit();
    QVERIFY(windows->start());
    KIRV_TRY(isConnected(login));
    QVERIFY(!question());

    server(isXmpp).stop();
    QVERIFY(QFile::remove(certificateFile(isXmpp)));
    QVERIFY(startServer(isXmpp));
    const QString second = digestText(certificateFile(isXmpp));
    QVERIFY(second != first);
    windows->reconnect(login);
    KIRV_TRY(windows->hasGivenUp(login));
    KIRV_TRY_CONTAINS(windows->reason(login), "another one than the one that you have trusted");
    QVERIFY(!question());
    KirvWindowDriver::click(KirvWindows::child<QPushButton>(windows->client->window(), "Accounts_CertificateButton"));
    KIRV_TRY(question());
    QCOMPARE(text("CertificateQuestion_Fingerprint"), second);
    QCOMPARE(text("CertificateQuestion_Before"), first);
    press("CertificateQuestion_ChangeButton");
    KIRV_TRY(isConnected(login));
}

void tst_CertificatesInWindows::accountThatIsNotTrustedStaysOffLine()
{
    const QString ann = QStringLiteral("ann@localhost");
    QVERIFY(startServer(true));
    QVERIFY(add(true, ann));
    KIRV_TRY(question());
    press("CertificateQuestion_LeaveButton");
    KIRV_TRY(!question());
    QVERIFY(windows->hasGivenUp(ann));
    QVERIFY(!prosody.isOnline(QStringLiteral("ann")));
    windows->quit();
    QVERIFY(windows->start());
    KIRV_TRY(windows->hasGivenUp(ann));
    QCoreApplication::processEvents();
    QVERIFY(!question());
}

QTEST_MAIN(tst_CertificatesInWindows)
#include "tst_certificates_in_windows.moc"

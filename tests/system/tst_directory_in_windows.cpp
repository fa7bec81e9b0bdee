// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_scripted_session_server.h"
#include "tests/support/store_refusal.h"
#include "tests/system/kirv_tested_account.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QDialog>

namespace {

const QString here = QStringLiteral("Server on this computer");
const QString hereInClear = QStringLiteral("Server on this computer, unencrypted");
const QString ann = QStringLiteral("ann@localhost");
const QString secret = QStringLiteral("secret");
const QByteArray card = "<FN>Ann Example</FN><TEL><NUMBER>1234</NUMBER></TEL><DESC>About me</DESC>"
                        "<ADR><LOCALITY>Berlin</LOCALITY></ADR>";
const int requestTimeout = 1000;

QXmppVCardIq entry(const QString &town, const QString &telephone)
{
    QXmppVCardIq result;
    result.setFullName("Ann Example");
    QXmppVCardAddress address;
    address.setLocality(town);
    result.setAddresses({ address });
    QXmppVCardPhone phone;
    phone.setNumber(telephone);
    result.setPhones({ phone });
    result.setDescription("About me");
    return result;
}

} // namespace

/// The directory tab of the edit window, when a request fails, and what is published then.
class tst_DirectoryInWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void failedFetchKeepsTheFieldsLocked_data() { failingFetches(); }
    void failedFetchKeepsTheFieldsLocked();
    void savingAfterAFailedFetchPublishesNothing_data() { failingFetches(); }
    void savingAfterAFailedFetchPublishesNothing();
    void onlyTheChangedFieldIsPublished();
    void changedFieldIsPublishedOverAFreshCopy();
    void failedPublicationLosesNothing_data();
    void failedPublicationLosesNothing();
    void refusedSavePublishesNothingAndLosesNothing();

private:
    static void failingFetches();
    /// A new account that is connected to the scripted server, which has answered what is requested at log-in.
    bool connectAccount();
    bool publishElsewhere(const KirvProsodyServer &prosody, const QXmppVCardIq &changed);
    /// Opens the edit window at its directory tab.
    QDialog *editDirectory();
    /// The same; false when the fields do not hold the entry in time.
    bool openFetched(QPointer<QDialog> *window);

    std::unique_ptr<KirvScriptedSessionServer> server;
    std::unique_ptr<KirvWindows> windows;
    std::unique_ptr<KirvTestedAccount> account;
};

void tst_DirectoryInWindows::init()
{
    server = std::make_unique<KirvScriptedSessionServer>();
    server->setCard(card);
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(server->serverPort()));
    windows = std::make_unique<KirvWindows>();
    QVERIFY(windows->start());
    account = std::make_unique<KirvTestedAccount>(*windows, ann);
}

void tst_DirectoryInWindows::cleanup()
{
    account.reset();
    windows.reset();
    server.reset();
}

void tst_DirectoryInWindows::failingFetches()
{
    QTest::addColumn<int>("directory");
    QTest::newRow("refused") << int(KirvScriptedSessionServer::RefusesToRead);
    QTest::newRow("timed out") << int(KirvScriptedSessionServer::IsSilent);
}

bool tst_DirectoryInWindows::connectAccount()
{
    if (!account->create(secret, hereInClear))
        return false;
    account->waitForAnswers(requestTimeout);
    account->goTo("available");
    // The presence that says which picture the entry has is sent after the entry was read.
    return QTest::qWaitFor(
        [this] { return account->isConnected() && server->presences().value(1).contains("vcard-temp:x:update"); },
        kirvPatience);
}

bool tst_DirectoryInWindows::publishElsewhere(const KirvProsodyServer &prosody, const QXmppVCardIq &changed)
{
    KirvObservingXmppClient otherClient;
    return otherClient.logIn(prosody, "ann") && otherClient.publish(changed);
}

QDialog *tst_DirectoryInWindows::editDirectory()
{
    QDialog *window = account->openEditWindow();
    if (window)
        KirvTestedAccount::showDirectory(window);
    return window;
}

bool tst_DirectoryInWindows::openFetched(QPointer<QDialog> *window)
{
    *window = editDirectory();
    return *window
        && QTest::qWaitFor(
            [window] {
                return !KirvTestedAccount::isDirectoryLocked(*window)
                    && KirvTestedAccount::directoryText(*window, "fullname") == "Ann Example";
            },
            kirvPatience);
}

void tst_DirectoryInWindows::failedFetchKeepsTheFieldsLocked()
{
    QFETCH(int, directory);
    QVERIFY(connectAccount());
    server->setDirectory(KirvScriptedSessionServer::Directory(directory));
    QDialog *window = editDirectory();
    QVERIFY(window);
    KIRV_TRY(!windows->problem(ann).isEmpty());
    QVERIFY2(KirvTestedAccount::isDirectoryLocked(window), "The fields are enabled although nothing was fetched.");
    QCOMPARE(KirvTestedAccount::directoryStatus(window), windows->problem(ann));

    server->setDirectory(KirvScriptedSessionServer::Answers);
    KirvTestedAccount::fetchAgain(window);
    KIRV_TRY(!KirvTestedAccount::isDirectoryLocked(window));
    QCOMPARE(KirvTestedAccount::directoryText(window, "fullname"), QString("Ann Example"));
    QCOMPARE(KirvTestedAccount::directoryStatus(window), QString());
}

void tst_DirectoryInWindows::savingAfterAFailedFetchPublishesNothing()
{
    QFETCH(int, directory);
    QVERIFY(connectAccount());
    server->setDirectory(KirvScriptedSessionServer::Directory(directory));
    QPointer<QDialog> window = editDirectory();
    QVERIFY(window);
    KIRV_TRY(!windows->problem(ann).isEmpty());
    if (!KirvTestedAccount::isDirectoryLocked(window))
        KirvWindows::fill(window, "town", "Potsdam");
    server->setDirectory(KirvScriptedSessionServer::Answers);
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());

    // The reply to this request comes after the reply to whatever the first window has sent.
    window = editDirectory();
    QVERIFY(window);
    KIRV_TRY(!KirvTestedAccount::isDirectoryLocked(window));
    QCOMPARE(server->storedCard(), card);
    QCOMPARE(server->publications(), QByteArrayList());
    QCOMPARE(KirvTestedAccount::directoryText(window, "telephone"), QString("1234"));
}

void tst_DirectoryInWindows::onlyTheChangedFieldIsPublished()
{
    QVERIFY(connectAccount());
    QPointer<QDialog> window;
    QVERIFY(openFetched(&window));
    KirvWindows::fill(window, "town", "Potsdam");
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(server->publications().size() == 1);
    QCOMPARE(server->storedCard(), QByteArray(card).replace("Berlin", "Potsdam"));
}

void tst_DirectoryInWindows::changedFieldIsPublishedOverAFreshCopy()
{
    KirvProsodyServer prosody;
    QVERIFY2(prosody.start() && prosody.addUser("ann", secret) && prosody.addUser("juliet", secret),
             qPrintable(prosody.errorString()));
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(prosody.port()));
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", prosody.certificatePath().toLocal8Bit());
    QVERIFY(publishElsewhere(prosody, entry("Berlin", "1234")));
    QVERIFY(account->create(secret, here, "available"));
    KIRV_TRY(account->isConnected());
    QPointer<QDialog> window;
    QVERIFY(openFetched(&window));

    QVERIFY(publishElsewhere(prosody, entry("Berlin", "5678")));
    KirvWindows::fill(window, "town", "Potsdam");
    KirvTestedAccount::pressSave(window);
    KirvObservingXmppClient juliet;
    QVERIFY(juliet.logIn(prosody, "juliet"));
    KIRV_TRY(juliet.vCardOf(ann).addresses().value(0).locality() == "Potsdam");
    const QXmppVCardIq seen = juliet.vCardOf(ann);
    QCOMPARE(seen.phones().value(0).number(), QString("5678"));
    QCOMPARE(seen.fullName(), QString("Ann Example"));
    QCOMPARE(seen.description(), QString("About me"));
}

void tst_DirectoryInWindows::failedPublicationLosesNothing_data()
{
    QTest::addColumn<int>("directory");
    QTest::newRow("refused") << int(KirvScriptedSessionServer::RefusesToPublish);
    QTest::newRow("timed out") << int(KirvScriptedSessionServer::IgnoresPublications);
}

void tst_DirectoryInWindows::failedPublicationLosesNothing()
{
    QFETCH(int, directory);
    QVERIFY(connectAccount());
    QPointer<QDialog> window;
    QVERIFY(openFetched(&window));
    server->setDirectory(KirvScriptedSessionServer::Directory(directory));
    KirvWindows::fill(window, "town", "Potsdam");
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(!windows->problem(ann).isEmpty());
    QCOMPARE(server->publications().size(), 1);
    QCOMPARE(server->storedCard(), card);

    server->setDirectory(KirvScriptedSessionServer::Answers);
    if (!KirvTestedAccount::editWindow())
        QVERIFY(editDirectory());
    window = KirvTestedAccount::editWindow();
    KIRV_TRY(!KirvTestedAccount::isDirectoryLocked(window));
    QCOMPARE(KirvTestedAccount::directoryText(window, "town"), QString("Potsdam"));
    QCOMPARE(KirvTestedAccount::directoryText(window, "telephone"), QString("1234"));
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(server->storedCard() == QByteArray(card).replace("Berlin", "Potsdam"));
}

void tst_DirectoryInWindows::refusedSavePublishesNothingAndLosesNothing()
{
    QVERIFY(connectAccount());
    QPointer<QDialog> window = account->openEditWindow();
    QVERIFY(window);
    KirvTestedAccount::typeAlias(window, "Ann");
    KirvTestedAccount::showDirectory(window);
    KIRV_TRY(!KirvTestedAccount::isDirectoryLocked(window));
    KirvWindows::fill(window, "town", "Potsdam");
    StoreRefusal refusal(windows->profileFolder());
    QVERIFY(refusal.holds());
    KirvTestedAccount::pressSave(window);
    QVERIFY(account->confirmRefusedSave());
    KIRV_TRY(!KirvTestedAccount::isDirectoryLocked(window));
    QCOMPARE(KirvTestedAccount::directoryText(window, "town"), QString("Potsdam"));
    QCOMPARE(server->storedCard(), card);
    QCOMPARE(server->publications(), QByteArrayList());

    refusal.end();
    KirvTestedAccount::pressSave(window);
    KIRV_TRY(!KirvTestedAccount::editWindow());
    QCOMPARE(account->alias(), QString("Ann"));
    KIRV_TRY(server->publications().size() == 1);
    QCOMPARE(server->storedCard(), QByteArray(card).replace("Berlin", "Potsdam"));
}

QTEST_MAIN(tst_DirectoryInWindows)
#include "tst_directory_in_windows.moc"

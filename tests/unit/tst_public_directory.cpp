// SPDX-License-Identifier: LGPL-2.1-or-later
#include "edit_account/kirv_pubdir_account_received_event.h"
#include "tests/support/kirv_patience.h"
#include "tests/unit/kirv_edit_fixture.h"

#include <QMessageBox>
#include <QtTest>

#include <memory>

/// The account's directory entry: requested, shown, published and deleted.
class tst_PublicDirectory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { fixture.reset(); }

    void theEventCarriesAccountAndData();
    void everyVisitOfTheTabSendsARequest();
    void onlyTheFirstTabSendsNoRequest_data();
    void onlyTheFirstTabSendsNoRequest();
    void aRequestDisablesTheFields_data();
    void aRequestDisablesTheFields();
    void fieldsWithoutARequestStayDisabled_data();
    void fieldsWithoutARequestStayDisabled();
    void anAnswerFillsAndEnablesTheFields();
    void aPostedAnswerIsHandledLikeASentOne();
    void anAnswerReplacesWhatTheUserTyped();
    void anEmptyAnswerShowsBlankFieldsOrLeavesThem();
    void anEmptyAnswerAfterADeletionBlanksTheFields();
    void answersForOthersAreDropped_data();
    void answersForOthersAreDropped();
    void otherEventsAreIgnored();
    void withoutDirectoryEverythingReturnsAtOnce();
    void savingPublishesChangedFields();
    void whatWasPublishedIsNotPublishedAgain();
    void whatWasReceivedIsNotPublishedBack();
    void savingSendsNothingForAnAccountThatIsOffline_data();
    void savingSendsNothingForAnAccountThatIsOffline();
    void fieldsEditedOffLineAreSentOnceConnected();
    void theFetchButtonSendsARequest();
    void theDeleteButtonOpensAQuestionFirst_data();
    void theDeleteButtonOpensAQuestionFirst();
    void aLayoutWithoutControlsIsServed_data();
    void aLayoutWithoutControlsIsServed();

private:
    using Fields = QList<KirvField>;
    static Fields entry(const QString &name, const QString &town)
    {
        return { KirvEditFixture::text("name", name), KirvEditFixture::text("town", town) };
    }
    void answer(KirvAccountConnection *account, const Fields &data)
    {
        KirvPubdirAccountReceivedEvent event(account, data);
        QCoreApplication::sendEvent(fixture->dialog(), &event);
    }
    QString shown() const { return kirvWritten(fixture->directoryForm()->getFields()); }
    void type(const char *field, const QString &text)
    {
        fixture->directoryForm()->findChild<QLineEdit *>(QLatin1String(field))->setText(text);
    }
    QStringList sent() const
    {
        return fixture->host.calls({ "publishPubdirInfo", "fetchPubdirInfo", "deletePubdirInfo" });
    }
    void save()
    {
        fixture->host.forgetCalls();
        fixture->call("saveSettings");
    }

    std::unique_ptr<KirvEditFixture> fixture;
    KirvRecordingAccount *alice = nullptr;
};

void tst_PublicDirectory::init()
{
    fixture = std::make_unique<KirvEditFixture>();
    alice = fixture->alice;
    alice->loggedIn = true;
    fixture->open();
    fixture->host.forgetCalls();
}

void tst_PublicDirectory::theEventCarriesAccountAndData()
{
    Fields data = entry("Alice", "Oslo");
    const KirvPubdirAccountReceivedEvent event(alice, data);
    data.clear();
    QCOMPARE(int(event.type()), 1212);
    QCOMPARE(int(event.type()), QEvent::User + 212);
    QCOMPARE(event.getAccount(), static_cast<KirvAccountConnection *>(alice));
    QVERIFY(event.getData() == entry("Alice", "Oslo"));
}

void tst_PublicDirectory::everyVisitOfTheTabSendsARequest()
{
    fixture->tabs()->setCurrentIndex(1);
    QCOMPARE(sent(), QStringList { "XMPP.fetchPubdirInfo(alice@XMPP)" });
    fixture->tabs()->setCurrentIndex(0);
    QCOMPARE(sent().size(), 1);
    fixture->tabs()->setCurrentIndex(1);
    QCOMPARE(sent().size(), 2);
}

void tst_PublicDirectory::onlyTheFirstTabSendsNoRequest_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("requests");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("second") << 1 << 1;
    QTest::newRow("third") << 2 << 1;
    QTest::newRow("none") << -1 << 1;
}

void tst_PublicDirectory::onlyTheFirstTabSendsNoRequest()
{
    QFETCH(int, index);
    QFETCH(int, requests);
    QVERIFY(QMetaObject::invokeMethod(fixture->dialog(), "togglePubdirControl", Q_ARG(int, index)));
    QCOMPARE(sent().size(), requests);
    QCOMPARE(fixture->directoryForm()->isEnabled(), requests == 0);
}

void tst_PublicDirectory::aRequestDisablesTheFields_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("request");
    QTest::newRow("fetch") << QByteArray("requestPubdirInfo") << "XMPP.fetchPubdirInfo(alice@XMPP)";
    QTest::newRow("delete") << QByteArray("removePubdirInfo") << "XMPP.deletePubdirInfo(alice@XMPP)";
}

void tst_PublicDirectory::aRequestDisablesTheFields()
{
    QFETCH(QByteArray, slot);
    QFETCH(QString, request);
    bool wasEnabled = true;
    fixture->host.hook("accountEnabled", [&] { wasEnabled = fixture->directoryForm()->isEnabled(); });
    QVERIFY(fixture->call(slot));
    QVERIFY(!wasEnabled);
    QVERIFY(!fixture->directoryForm()->isEnabled());
    QStringList calls = fixture->host.calls();
    calls.removeAll("XMPP.getName()");
    QCOMPARE(calls,
             (QStringList { "accountEnabled(alice, XMPP)", "loadAccount(alice, XMPP)", "alice@XMPP.isLoggedIn()",
                            request }));
}

void tst_PublicDirectory::fieldsWithoutARequestStayDisabled_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("loadable");
    QTest::addColumn<bool>("loggedIn");
    QTest::addColumn<QStringList>("calls");
    const QString isEnabled = "accountEnabled(alice, XMPP)";
    const QString load = "loadAccount(alice, XMPP)";
    for (const char *slot : { "requestPubdirInfo", "removePubdirInfo" }) {
        const QByteArray name(slot);
        QTest::newRow(name + ", disabled") << name << false << true << true << QStringList { isEnabled };
        QTest::newRow(name + ", not found") << name << true << false << true << QStringList { isEnabled, load };
        QTest::newRow(name + ", off line")
            << name << true << true << false << QStringList { isEnabled, load, "alice@XMPP.isLoggedIn()" };
    }
}

void tst_PublicDirectory::fieldsWithoutARequestStayDisabled()
{
    QFETCH(QByteArray, slot);
    QFETCH(bool, enabled);
    QFETCH(bool, loadable);
    QFETCH(bool, loggedIn);
    QFETCH(QStringList, calls);
    answer(alice, entry("Alice", "Oslo"));
    alice->enabled = enabled;
    alice->loadable = loadable;
    alice->loggedIn = loggedIn;
    fixture->host.forgetCalls();
    QVERIFY(fixture->call(slot));
    QStringList made = fixture->host.calls();
    made.removeAll("XMPP.getName()");
    QCOMPARE(made, calls);
    QVERIFY(!fixture->directoryForm()->isEnabled());
    QVERIFY(!kirvVisibleWindow<QMessageBox>());

    // An answer unlocks them; the data was not cleared, so an empty one leaves it in place.
    answer(alice, {});
    QVERIFY(fixture->directoryForm()->isEnabled());
    QCOMPARE(shown(), QString("[name=Alice, town=Oslo]"));
}

void tst_PublicDirectory::anAnswerFillsAndEnablesTheFields()
{
    fixture->call("requestPubdirInfo");
    fixture->host.forgetCalls();
    answer(alice, entry("Alice", "Oslo"));
    QCOMPARE(fixture->host.calls({ "fillWithFields" }), QStringList { "fillWithFields([name=Alice, town=Oslo])" });
    QCOMPARE(fixture->host.effects(), QStringList());
    QVERIFY(fixture->directoryForm()->isEnabled());
}

void tst_PublicDirectory::aPostedAnswerIsHandledLikeASentOne()
{
    fixture->call("requestPubdirInfo");
    QCoreApplication::postEvent(fixture->page()->getAccEdit(),
                                new KirvPubdirAccountReceivedEvent(alice, entry("Alice", "Oslo")));
    KIRV_TRY(fixture->directoryForm()->isEnabled());
    QCOMPARE(shown(), QString("[name=Alice, town=Oslo]"));
}

void tst_PublicDirectory::anAnswerReplacesWhatTheUserTyped()
{
    answer(alice, entry("Alice", "Oslo"));
    type("name", "typed");
    answer(alice, entry("Alice B.", "Oslo"));
    QCOMPARE(shown(), QString("[name=Alice B., town=Oslo]"));
}

void tst_PublicDirectory::anEmptyAnswerShowsBlankFieldsOrLeavesThem()
{
    type("name", "typed");
    answer(alice, {});
    QCOMPARE(shown(), QString("[name=, town=]"));
    answer(alice, entry("Alice", "Oslo"));
    type("name", "typed");
    fixture->call("requestPubdirInfo");
    answer(alice, {});
    QCOMPARE(shown(), QString("[name=typed, town=Oslo]"));
    QVERIFY(fixture->directoryForm()->isEnabled());
}

void tst_PublicDirectory::anEmptyAnswerAfterADeletionBlanksTheFields()
{
    answer(alice, entry("Alice", "Oslo"));
    // Cleared before the request, which may be answered at once.
    fixture->host.hook("deletePubdirInfo", [&] { answer(alice, {}); });
    fixture->call("removePubdirInfo");
    QCOMPARE(shown(), QString("[name=, town=]"));
    QVERIFY(fixture->directoryForm()->isEnabled());
}

void tst_PublicDirectory::answersForOthersAreDropped_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("protocol");
    QTest::addColumn<bool>("reloaded");
    QTest::newRow("another account") << "bob"
                                     << "XMPP" << false;
    QTest::newRow("the same id of another protocol") << "alice"
                                                     << "IRC" << false;
    QTest::newRow("another case") << "Alice"
                                  << "XMPP" << false;
    QTest::newRow("another object of the protocol") << "alice"
                                                    << "XMPP" << true;
}

void tst_PublicDirectory::answersForOthersAreDropped()
{
    QFETCH(QString, id);
    QFETCH(QString, protocol);
    QFETCH(bool, reloaded);
    if (reloaded)
        fixture->host.addProtocol("XMPP");
    KirvRecordingAccount other(id, fixture->host.findProtocol(protocol));
    fixture->call("requestPubdirInfo");
    answer(&other, entry("Mallory", "Nowhere"));
    QCOMPARE(shown(), QString("[name=, town=]"));
    QVERIFY(!fixture->directoryForm()->isEnabled());
    answer(&other, {});
    QVERIFY(!fixture->directoryForm()->isEnabled());
}

void tst_PublicDirectory::otherEventsAreIgnored()
{
    fixture->call("requestPubdirInfo");
    fixture->host.forgetCalls();
    for (int type : { 1211, 1213, int(QEvent::User), int(QEvent::MaxUser) }) {
        QEvent event { QEvent::Type(type) };
        QCoreApplication::sendEvent(fixture->dialog(), &event);
    }
    QCOMPARE(fixture->host.calls(), QStringList());
    QVERIFY(!fixture->directoryForm()->isEnabled());
}

void tst_PublicDirectory::withoutDirectoryEverythingReturnsAtOnce()
{
    fixture->xmpp->pubdirFields.clear();
    fixture->open();
    fixture->host.forgetCalls();
    fixture->call("requestPubdirInfo");
    fixture->call("removePubdirInfo");
    QVERIFY(QMetaObject::invokeMethod(fixture->dialog(), "togglePubdirControl", Q_ARG(int, 1)));
    answer(alice, entry("Alice", "Oslo"));
    QCOMPARE(fixture->host.calls({ "accountEnabled", "loadAccount", "isLoggedIn", "fillWithFields" }), QStringList());
    QCOMPARE(sent(), QStringList());
    save();
    QCOMPARE(fixture->host.calls({ "accountEnabled" }), QStringList());
    QCOMPARE(sent(), QStringList());
}

void tst_PublicDirectory::savingPublishesChangedFields()
{
    answer(alice, entry("Alice", "Oslo"));
    type("town", "Bergen");
    fixture->host.hook("publishPubdirInfo", [&] { QVERIFY(!fixture->directoryForm()->isEnabled()); });
    save();
    QCOMPARE(sent(), QStringList { "XMPP.publishPubdirInfo(alice@XMPP, [name=Alice, town=Bergen])" });
    // Before anything else is written.
    QCOMPARE(fixture->host.effects().first(), sent().first());
    QVERIFY(!fixture->directoryForm()->isEnabled());
    answer(alice, {});
    QVERIFY(fixture->directoryForm()->isEnabled());
    QCOMPARE(shown(), QString("[name=Alice, town=Bergen]"));
}

void tst_PublicDirectory::whatWasPublishedIsNotPublishedAgain()
{
    type("name", "Alice");
    save();
    QCOMPARE(sent().size(), 1);
    save();
    QCOMPARE(sent(), QStringList());
}

void tst_PublicDirectory::whatWasReceivedIsNotPublishedBack()
{
    answer(alice, entry("Alice", "Oslo"));
    save();
    QCOMPARE(sent(), QStringList());
    QVERIFY(fixture->directoryForm()->isEnabled());
}

void tst_PublicDirectory::savingSendsNothingForAnAccountThatIsOffline_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("loggedIn");
    QTest::newRow("disabled") << false << true;
    QTest::newRow("off line") << true << false;
}

void tst_PublicDirectory::savingSendsNothingForAnAccountThatIsOffline()
{
    QFETCH(bool, enabled);
    QFETCH(bool, loggedIn);
    alice->enabled = enabled;
    alice->loggedIn = loggedIn;
    type("name", "Alice");
    save();
    QCOMPARE(sent(), QStringList());
    QVERIFY(fixture->directoryForm()->isEnabled());
    QVERIFY(fixture->host.effects().contains("alice@XMPP.setAlias(Work)"));
}

void tst_PublicDirectory::fieldsEditedOffLineAreSentOnceConnected()
{
    alice->loggedIn = false;
    type("name", "Alice");
    save();
    alice->loggedIn = true;
    save();
    QCOMPARE(sent(), QStringList { "XMPP.publishPubdirInfo(alice@XMPP, [name=Alice, town=])" });
}

void tst_PublicDirectory::theFetchButtonSendsARequest()
{
    fixture->tabs()->setCurrentIndex(1);
    fixture->host.forgetCalls();
    QTest::mouseClick(fixture->child<QPushButton>("PubDirFetch"), Qt::LeftButton);
    QCOMPARE(sent(), QStringList { "XMPP.fetchPubdirInfo(alice@XMPP)" });
}

void tst_PublicDirectory::theDeleteButtonOpensAQuestionFirst_data()
{
    QTest::addColumn<bool>("yes");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void tst_PublicDirectory::theDeleteButtonOpensAQuestionFirst()
{
    QFETCH(bool, yes);
    fixture->tabs()->setCurrentIndex(1);
    fixture->host.forgetCalls();
    // A second time too: the question can be opened again.
    for (int i = 1; i <= 2; ++i) {
        QTest::mouseClick(fixture->child<QPushButton>("PubDirDelete"), Qt::LeftButton);
        QMessageBox *box = nullptr;
        for (QMessageBox *candidate : fixture->window->findChildren<QMessageBox *>()) {
            if (candidate->isVisible())
                box = candidate;
        }
        QVERIFY(box);
        QCOMPARE(sent().size(), yes ? i - 1 : 0);
        QVERIFY(box->text().contains("alice"));
        QVERIFY(box->text().contains("XMPP"));
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QTest::mouseClick(box->button(yes ? QMessageBox::Yes : QMessageBox::No), Qt::LeftButton);
        QVERIFY(!box->isVisible());
        QCOMPARE(sent().size(), yes ? i : 0);
    }
    QVERIFY(!yes || sent().first() == "XMPP.deletePubdirInfo(alice@XMPP)");
}

void tst_PublicDirectory::aLayoutWithoutControlsIsServed_data()
{
    QTest::addColumn<QString>("omitted");
    for (const char *name : { "EditAccount_PubDirControls", "EditAccount_PubDirFetch", "EditAccount_PubDirDelete" })
        QTest::newRow(name) << name;
}

void tst_PublicDirectory::aLayoutWithoutControlsIsServed()
{
    QFETCH(QString, omitted);
    fixture->host.layouts.omitted.insert(omitted);
    fixture->open();
    fixture->host.forgetCalls();
    fixture->tabs()->setCurrentIndex(1);
    QCOMPARE(sent(), QStringList { "XMPP.fetchPubdirInfo(alice@XMPP)" });
    if (auto *fetch = fixture->child<QPushButton>("PubDirFetch")) {
        fetch->click();
        QCOMPARE(sent().size(), 2);
    }
}

QTEST_MAIN(tst_PublicDirectory)
#include "tst_public_directory.moc"

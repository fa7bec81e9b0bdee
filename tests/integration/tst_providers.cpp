// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_provider_list.h"
#include "client/kirv_server_commands.h"
#include "client/kirv_settings_window.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/fakes/kirv_fake_server_request.h"
#include "tests/support/gui/kirv_assistant_window.h"

#include <QCompleter>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray entry(const char *domain, const char *more = "")
{
    return QByteArray(R"({"protocol":"XMPP","domain":")") + domain + R"(","source":"a leaflet","date":"2026-01-02")"
        + more + '}';
}

QByteArray listOf(const QByteArray &entries)
{
    return R"({"format":1,"providers":[)" + entries + "]}";
}

QStringList domainsOf(const KirvProviderList &list, const QString &protocol = QStringLiteral("XMPP"))
{
    QStringList domains;
    for (const KirvProvider &provider : list.of(protocol))
        domains << provider.domain;
    return domains;
}

} // namespace

/// The list of providers that a registration offers.
class tst_Providers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entriesAreRead();
    void entriesOfAnotherProtocolAreNotOffered();
    void incompleteEntriesAreLeftOutAndCounted_data();
    void incompleteEntriesAreLeftOutAndCounted();
    void foreignFilesAreNotUsed_data();
    void foreignFilesAreNotUsed();
    void listIsBounded();
    void largeFilesAreNotUsed();
    void pipesDoNotBlock();
    void programComesWithNoneThatNobodyStates();
    void fileOfTheProfileReplacesTheList();
    void registrationOffersThem();
};

void tst_Providers::entriesAreRead()
{
    KirvProviderList list;
    QCOMPARE(list.read(listOf(entry("chat.example", R"(,"name":"Chat","other":[1])"))), QString());
    const QList<KirvProvider> providers = list.of(QStringLiteral("xmpp"));
    QCOMPARE(providers.size(), 1);
    QCOMPARE(providers.first().domain, QStringLiteral("chat.example"));
    QCOMPARE(providers.first().name, QStringLiteral("Chat"));
    QCOMPARE(providers.first().source, QStringLiteral("a leaflet"));
    QCOMPARE(providers.first().date, QDate(2026, 1, 2));
}

void tst_Providers::entriesOfAnotherProtocolAreNotOffered()
{
    KirvProviderList list;
    list.read(listOf(entry("chat.example")));
    QVERIFY(list.of(QStringLiteral("IRC")).isEmpty());
}

void tst_Providers::incompleteEntriesAreLeftOutAndCounted_data()
{
    QTest::addColumn<QByteArray>("wrong");
    QTest::newRow("no source") << QByteArray(R"({"protocol":"XMPP","domain":"a.example","date":"2026-01-02"})");
    QTest::newRow("no date") << QByteArray(R"({"protocol":"XMPP","domain":"a.example","source":"me"})");
    QTest::newRow("no day of the calendar")
        << QByteArray(R"({"protocol":"XMPP","domain":"a.example","source":"me","date":"2026-02-30"})");
    QTest::newRow("no protocol") << QByteArray(R"({"domain":"a.example","source":"me","date":"2026-01-02"})");
    QTest::newRow("no domain") << entry("a name");
    QTest::newRow("an address") << entry("me@a.example");
    QTest::newRow("too long") << entry(QByteArray(300, 'x') + ".example");
    QTest::newRow("no object") << QByteArray("7");
}

void tst_Providers::incompleteEntriesAreLeftOutAndCounted()
{
    QFETCH(QByteArray, wrong);
    KirvProviderList list;
    QVERIFY(list.read(listOf(wrong + ',' + entry("good.example"))).contains(QStringLiteral("left out")));
    QCOMPARE(domainsOf(list), QStringList(QStringLiteral("good.example")));
}

void tst_Providers::foreignFilesAreNotUsed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("providers: chat.example");
    QTest::newRow("another format") << QByteArray(R"({"format":2,"providers":[]})");
    QTest::newRow("a list alone") << QByteArray("[]");
}

void tst_Providers::foreignFilesAreNotUsed()
{
    QFETCH(QByteArray, content);
    KirvProviderList list;
    list.read(listOf(entry("chat.example")));
    QVERIFY(list.read(content).contains(QStringLiteral("not used")));
    QVERIFY(domainsOf(list).isEmpty());
}

void tst_Providers::listIsBounded()
{
    QByteArray entries;
    for (int i = 0; i < KirvProviderList::mostProviders + 5; ++i)
        entries += (i > 0 ? "," : "") + entry("a" + QByteArray::number(i) + ".example");
    KirvProviderList list;
    QVERIFY(!list.read(listOf(entries)).isEmpty());
    QCOMPARE(domainsOf(list).size(), int(KirvProviderList::mostProviders));
}

void tst_Providers::largeFilesAreNotUsed()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("providers.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(listOf(entry("chat.example")) + QByteArray(KirvProviderList::largestFile, ' '));
    file.close();
    KirvProviderList list;
    QVERIFY(list.load(QDir(folder.path())).contains(QStringLiteral("too large")));
    QVERIFY(domainsOf(list).isEmpty());
}

void tst_Providers::pipesDoNotBlock()
{
    const QTemporaryDir folder;
    QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(QStringLiteral("providers.json"))).constData(), 0600), 0);
    KirvProviderList list;
    QVERIFY(list.load(QDir(folder.path())).contains(QStringLiteral("cannot be read")));
}

void tst_Providers::programComesWithNoneThatNobodyStates()
{
    const QTemporaryDir folder;
    KirvProviderList list;
    QCOMPARE(list.load(QDir(folder.path())), QString());
    QFile shipped(QStringLiteral(":/kirv/client/providers.json"));
    QVERIFY(shipped.open(QIODevice::ReadOnly));
    QCOMPARE(list.read(shipped.readAll()), QString()); // nothing of it is left out
}

void tst_Providers::fileOfTheProfileReplacesTheList()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("providers.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(listOf(entry("chat.example")));
    file.close();
    KirvProviderList list;
    QCOMPARE(list.load(QDir(folder.path())), QString());
    QCOMPARE(domainsOf(list), QStringList(QStringLiteral("chat.example")));
}

void tst_Providers::registrationOffersThem()
{
    KirvClientWindows windows(QStringLiteral("XMPP"));
    QVERIFY(windows.isReady());
    QFile file(QDir(windows.profileFolder()).filePath(QStringLiteral("providers.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(listOf(entry("chat.example") + ",{}"));
    file.close();
    windows.restart();
    QVERIFY(windows.messages().join(QLatin1Char(' ')).contains(QStringLiteral("One entry is left out")));
    windows.protocol->makeRegistration = []() -> KirvServerRequest * {
        KirvServerRequest::Step step;
        step.fields << KirvField::textEdit(QStringLiteral("Domain"), QStringLiteral("domain"), QString(), QString());
        step.providerField = QStringLiteral("domain");
        step.command = QStringLiteral("Continue");
        return new KirvFakeServerRequest({ step });
    };
    windows.client->window()->findChild<KirvServerCommands *>()->registerAccount();
    const auto *domain = KirvAssistantWindow::field(QStringLiteral("domain"));
    QVERIFY(domain && domain->completer());
    QCOMPARE(domain->completer()->completionModel()->rowCount(), 1);
}

QTEST_MAIN(tst_Providers)
#include "tst_providers.moc"

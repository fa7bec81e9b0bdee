// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_link.h"
#include "client/kirv_client.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/plugins/kirv_plugin_queue.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// Links of the desktop that the client is started with.
class tst_AccountLinks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void linkIsRead_data();
    void linkIsRead();
    void schemesOfTheDesktopEntryAreLinks();
    void otherTextsAreNoLinks_data();
    void otherTextsAreNoLinks();

    void linkOpensTheAddWindow_data();
    void linkOpensTheAddWindow();
    void linkIsOpenedOnce();
    void missingProtocolIsSaid();
    void longLinkIsSaid();

    void wrongCommandLinesAreRefused_data();
    void wrongCommandLinesAreRefused();

private:
    QString fileIn(const QString &name) const { return folder->filePath(name); }
    KirvClientOptions optionsFor(const QString &link) const;

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_AccountLinks::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    QVERIFY(QDir().mkdir(fileIn(QStringLiteral("plugins"))));
}

/// Of a client whose only plug-in takes its name from the environment.
KirvClientOptions tst_AccountLinks::optionsFor(const QString &link) const
{
    KirvClientOptions options;
    options.profileFolder = fileIn(QStringLiteral("profile"));
    options.pluginFolder = fileIn(QStringLiteral("plugins"));
    options.link = KirvAccountLink::fromText(link);
    QFile::copy(QStringLiteral(KIRV_NAMED_PROTOCOL), fileIn(QStringLiteral("plugins/named.so")));
    return options;
}

void tst_AccountLinks::linkIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("protocol");
    QTest::addColumn<QString>("login");
    QTest::newRow("address") << "xmpp:ann@example.org"
                             << "XMPP"
                             << "ann@example.org";
    QTest::newRow("upper case") << "XMPP:ann@example.org"
                                << "XMPP"
                                << "ann@example.org";
    QTest::newRow("resource") << "xmpp:ann@example.org/desk"
                              << "XMPP"
                              << "ann@example.org";
    QTest::newRow("encoded") << "xmpp:j%C3%BCrgen@example.org"
                             << "XMPP" << QString::fromUtf8("jürgen@example.org");
    QTest::newRow("registration") << "xmpp:ann@example.org?register"
                                  << "XMPP"
                                  << "ann@example.org";
    QTest::newRow("registration on a server") << "xmpp:example.org?register;x=y"
                                              << "XMPP"
                                              << "";
    QTest::newRow("message to somebody") << "xmpp:ben@example.org?message;body=Hi"
                                         << "XMPP"
                                         << "";
    QTest::newRow("room") << "xmpp:room@chat.example.org?join"
                          << "XMPP"
                          << "";
    QTest::newRow("own account and somebody's address") << "xmpp://ann@example.org/ben@example.com?message"
                                                        << "XMPP"
                                                        << "ann@example.org";
    QTest::newRow("server of XMPP") << "xmpp://example.org"
                                    << "XMPP"
                                    << "";
    QTest::newRow("nick") << "irc://ann@irc.example.org/#kirv"
                          << "IRC"
                          << "ann@irc.example.org";
    QTest::newRow("port") << "ircs://ann@irc.example.org:6697/"
                          << "IRC"
                          << "ann@irc.example.org:6697";
    QTest::newRow("usual port without encryption") << "irc://ann@irc.example.org:6667/"
                                                   << "IRC"
                                                   << "ann@irc.example.org"; // the account is to be encrypted
    QTest::newRow("other port") << "irc://ann@irc.example.org:7000/"
                                << "IRC"
                                << "ann@irc.example.org:7000";
    QTest::newRow("server of IRC") << "irc://irc.example.org/kirv"
                                   << "IRC"
                                   << "@irc.example.org";
    QTest::newRow("server and port of IRC") << "ircs://irc.example.org:6697/kirv"
                                            << "IRC"
                                            << "@irc.example.org:6697";
    QTest::newRow("line break") << "xmpp:ann%0A@example.org"
                                << "XMPP"
                                << "";
    QTest::newRow("too long") << "xmpp:" + QString(3000, QLatin1Char('a')) + "@example.org"
                              << "XMPP"
                              << "";
}

void tst_AccountLinks::linkIsRead()
{
    QFETCH(QString, text);
    const KirvAccountLink link = KirvAccountLink::fromText(text);
    QVERIFY(!link.isNull());
    QTEST(link.protocol, "protocol");
    QTEST(link.login, "login");
}

void tst_AccountLinks::schemesOfTheDesktopEntryAreLinks()
{
    QFile entry(QStringLiteral(KIRV_DESKTOP_FILE));
    QVERIFY(entry.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(entry.readAll());
    QVERIFY(text.contains(QLatin1String("\nExec=kirv %u\n")));
    QRegularExpressionMatchIterator scheme =
        QRegularExpression(QStringLiteral("x-scheme-handler/([^;\n]*)")).globalMatch(text);
    QStringList schemes;
    while (scheme.hasNext()) {
        schemes << scheme.next().captured(1);
        const QString link = schemes.last() + QStringLiteral("://ann@example.org");
        QVERIFY2(!KirvAccountLink::fromText(link).isNull(), qPrintable(link));
    }
    schemes.sort();
    QCOMPARE(schemes, (QStringList { "irc", "ircs", "xmpp" }));
}

void tst_AccountLinks::otherTextsAreNoLinks_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         { "", "xmpp", "word", "https://example.org", "file:///etc/passwd", "ann@example.org", "ir c://a" })
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_AccountLinks::otherTextsAreNoLinks()
{
    QFETCH(QString, text);
    QVERIFY(KirvAccountLink::fromText(text).isNull());
    QVERIFY(!KirvAccountLink::fromText(text + QString(KirvAccountLink::longest, QLatin1Char('x'))).isTooLong);
}

void tst_AccountLinks::linkOpensTheAddWindow_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("login");
    QTest::newRow("XMPP") << "xmpp:ann@example.org"
                          << "XMPP"
                          << "ann@example.org";
    QTest::newRow("IRC") << "ircs://ann@irc.example.org"
                         << "IRC"
                         << "ann@irc.example.org";
    QTest::newRow("port") << "ircs://ann@irc.example.org:6697"
                          << "IRC"
                          << "ann@irc.example.org:6697";
    QTest::newRow("no nick") << "irc://irc.example.org"
                             << "IRC"
                             << "@irc.example.org";
    QTest::newRow("no login") << "xmpp://example.org"
                              << "XMPP"
                              << "";
}

void tst_AccountLinks::linkOpensTheAddWindow()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    qputenv("KIRV_FIXTURE_PROTOCOL", name.toUtf8());
    QString filled;
    KirvWindowWatcher<QDialog> watcher([&filled](QDialog *window) {
        const auto *line = window->findChild<QLineEdit *>(QStringLiteral("AddAccount_UsernameEdit"));
        filled = line ? line->text() : QStringLiteral("no line");
        window->reject();
    });
    KirvClient client(optionsFor(text));
    QVERIFY2(client.start(), qPrintable(client.errorString()));
    client.window()->show();
    KIRV_TRY_COMPARE(watcher.shown, 1);
    QTEST(filled, "login");
    QVERIFY(client.window()->messageBar()->messages().isEmpty());
}

void tst_AccountLinks::linkIsOpenedOnce()
{
    qputenv("KIRV_FIXTURE_PROTOCOL", "XMPP");
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->reject(); });
    KirvClient client(optionsFor(QStringLiteral("xmpp:ann@example.org")));
    QVERIFY2(client.start(), qPrintable(client.errorString()));
    client.window()->show();
    KIRV_TRY_COMPARE(watcher.shown, 1);

    QSignalSpy finished(&client.pluginQueue(), &KirvPluginQueue::finished);
    const QString plugin = client.plugins().plugins().first().fileName;
    QVERIFY(client.plugins().unload(plugin));
    client.pluginQueue().load(plugin);
    QVERIFY(finished.wait(kirvPatience));
    QCoreApplication::processEvents();
    QCOMPARE(watcher.shown, 1);
}

void tst_AccountLinks::missingProtocolIsSaid()
{
    qputenv("KIRV_FIXTURE_PROTOCOL", "Other");
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->reject(); });
    KirvClient client(optionsFor(QStringLiteral("xmpp:ann@example.org")));
    QVERIFY2(client.start(), qPrintable(client.errorString()));
    client.window()->show();
    KIRV_TRY_COMPARE(client.window()->messageBar()->messages(),
                     QStringList { QStringLiteral("The link cannot be opened: the protocol XMPP is not available.") });
    QCOMPARE(watcher.shown, 0);
}

void tst_AccountLinks::longLinkIsSaid()
{
    qputenv("KIRV_FIXTURE_PROTOCOL", "XMPP");
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->reject(); });
    const QString link =
        QStringLiteral("XMPP:ann@example.org/").leftJustified(KirvAccountLink::longest, QLatin1Char('x'));
    QCOMPARE(KirvAccountLink::fromText(link).login, QStringLiteral("ann@example.org"));
    KirvClient client(optionsFor(link + QLatin1Char('x')));
    QVERIFY2(client.start(), qPrintable(client.errorString()));
    client.window()->show();
    KIRV_TRY_COMPARE(client.window()->messageBar()->messages(),
                     QStringList { QStringLiteral("The link was not opened because it is too long.") });
    QCOMPARE(watcher.shown, 0);
}

void tst_AccountLinks::wrongCommandLinesAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("two links") << QStringList { "xmpp:ann@example.org", "xmpp:ben@example.org" };
    QTest::newRow("a link to check") << QStringList { "--check", "xmpp:ann@example.org" };
    QTest::newRow("a link of another kind") << QStringList { "https://example.org" };
}

void tst_AccountLinks::wrongCommandLinesAreRefused()
{
    QFETCH(QStringList, arguments);
    QProcess program;
    program.start(QStringLiteral(KIRV_PROGRAM), QStringList { "--profile", fileIn("profile") } + arguments);
    QVERIFY(program.waitForFinished(kirvPatience));
    QCOMPARE(program.exitCode(), 1);
    QVERIFY(program.readAllStandardError().startsWith("kirv: "));
}

QTEST_MAIN(tst_AccountLinks)
#include "tst_account_links.moc"

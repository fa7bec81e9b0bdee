// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_fields.h"
#include "core/moving/kirv_pidgin_file.h"
#include "protocols/irc/kirv_irc_protocol.h"
#include "protocols/irc/kirv_irc_settings.h"
#include "protocols/xmpp/kirv_xmpp_protocol.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"
#include "tests/support/kirv_field_texts.h"
#include "tests/support/kirv_profile_files.h"

#include <QTest>

namespace {

const QByteArray xmpp = "prpl-jabber";
const QByteArray irc = "prpl-irc";

QByteArray setting(const char *name, const char *type, const QByteArray &value)
{
    return QByteArray("<setting name='") + name + "' type='" + type + "'>" + value + "</setting>";
}

QByteArray fileWith(const QByteArray &protocol, const QByteArray &name, const QByteArray &settings)
{
    return "<account version='1.0'><account><protocol>" + protocol + "</protocol><name>" + name
        + "</name><password>pw</password><proxy><type>socks5</type><host>p.example</host><port>9050</port>"
          "<username>u</username><password>secret</password></proxy><settings>"
        + settings + "</settings></account></account>";
}

/// Why the protocol does not understand \a value in its field \a id.
QByteArray problemOf(const KirvField &field, const QString &value)
{
    switch (field.getKind()) {
    case KirvField::Choice:
        return field.getValues().contains(value) ? QByteArray() : "no such value";
    case KirvField::Number: {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        return isNumber && number >= field.getMinimum() && number <= field.getMaximum() ? QByteArray() : "no number";
    }
    case KirvField::CheckBox:
        return value == "true" || value == "false" ? QByteArray() : "no truth value";
    default:
        return QByteArray();
    }
}

} // namespace

/// What comes out of a file of Pidgin is what our protocols understand.
class tst_PidginAccounts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everySettingIsOneOfTheProtocol_data();
    void everySettingIsOneOfTheProtocol();
    void xmppSettingsMeanTheSame_data();
    void xmppSettingsMeanTheSame();
    void ircSettingsMeanTheSame_data();
    void ircSettingsMeanTheSame();
    void accountsOfTheFileCanBeUsed();

private:
    KirvProtocolBase &protocolOf(const KirvAccountRecord &record)
    {
        return record.key.protocol == xmppProtocol.getName() ? static_cast<KirvProtocolBase &>(xmppProtocol)
                                                             : ircProtocol;
    }

    KirvXmppProtocol xmppProtocol;
    KirvIrcProtocol ircProtocol;
};

void tst_PidginAccounts::everySettingIsOneOfTheProtocol_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray server = setting("connect_server", "string", "s.example") + setting("port", "int", "5000");
    for (const char *security : { "require_tls", "opportunistic_tls", "old_ssl", "else" })
        QTest::addRow("XMPP, %s", security)
            << fileWith(xmpp, "a@b.example/c", server + setting("connection_security", "string", security));
    for (const char *ssl : { "0", "1" })
        for (const char *sasl : { "0", "1" })
            QTest::addRow("IRC, ssl %s, sasl %s", ssl, sasl)
                << fileWith(irc, "a@b.example",
                            setting("ssl", "bool", ssl) + setting("sasl", "bool", sasl) + setting("port", "int", "7000")
                                + setting("realname", "string", "A") + setting("sasl_login_name", "string", "a"));
    QTest::newRow("sample") << contentOf(QStringLiteral(KIRV_TEST_DATA "/pidgin_accounts.xml"));
}

void tst_PidginAccounts::everySettingIsOneOfTheProtocol()
{
    QFETCH(QByteArray, file);
    const KirvPidginFile::Result result = KirvPidginFile::read(file);
    QCOMPARE(result.problem, QString());
    QVERIFY(!result.accounts.accounts.isEmpty());
    for (const KirvMovedAccount &account : result.accounts.accounts) {
        const KirvAccountRecord &record = account.record;
        KirvProtocolBase &protocol = protocolOf(record);
        QCOMPARE(record.key.protocol, protocol.getName());
        const QList<KirvField> fields = protocol.accountSettings();
        for (auto value = record.settings.constBegin(); value != record.settings.constEnd(); ++value) {
            const auto field = std::find_if(fields.begin(), fields.end(), [&](const KirvField &candidate) {
                return candidate.getId() == value.key();
            });
            QVERIFY2(field != fields.end(), qPrintable(value.key()));
            QVERIFY2(problemOf(*field, value.value()).isEmpty(), qPrintable(value.key() + '=' + value.value()));
        }
        for (const QString &secret : kirvSecretFields(fields))
            QVERIFY2(!record.settings.contains(secret) || record.secretSettings.contains(secret), qPrintable(secret));
    }
}

void tst_PidginAccounts::xmppSettingsMeanTheSame_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<int>("encryption");
    const auto security = [](const char *value) { return setting("connection_security", "string", value); };
    QTest::newRow("missing") << QByteArray() << int(KirvXmppSettings::Required);
    QTest::newRow("required") << security("require_tls") << int(KirvXmppSettings::Required);
    QTest::newRow("offered") << security("opportunistic_tls") << int(KirvXmppSettings::IfOffered);
    QTest::newRow("direct") << security("old_ssl") << int(KirvXmppSettings::Direct);
    QTest::newRow("unknown") << security("none") << int(KirvXmppSettings::Required);
}

void tst_PidginAccounts::xmppSettingsMeanTheSame()
{
    QFETCH(QByteArray, given);
    const QByteArray others = setting("connect_server", "string", "s.example") + setting("port", "int", "5000");
    const KirvPidginFile::Result result = KirvPidginFile::read(fileWith(xmpp, "a@b.example/c", given + others));
    const KirvMovedAccount account = result.accounts.accounts.value(0);
    const KirvXmppSettings settings(kirvFieldsWithValues(xmppProtocol.accountSettings(), account.record.settings));
    QTEST(int(settings.encryption), "encryption");
    QCOMPARE(settings.server, QStringLiteral("s.example"));
    QCOMPARE(settings.port, 5000);
    QCOMPARE(settings.resource, QStringLiteral("c"));
    QCOMPARE(settings.proxy.kind, KirvProxy::Socks5);
    QCOMPARE(settings.proxy.host, QStringLiteral("p.example"));
    QCOMPARE(settings.proxy.port, 9050);
    QCOMPARE(settings.proxy.user, QStringLiteral("u"));
    QCOMPARE(settings.proxy.password, QStringLiteral("secret"));
}

void tst_PidginAccounts::ircSettingsMeanTheSame_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<bool>("isEncrypted");
    QTest::addColumn<int>("port");
    QTest::addColumn<int>("passwordUse");
    const QByteArray ssl = setting("ssl", "bool", "1"), sasl = setting("sasl", "bool", "1");
    QTest::newRow("nothing") << QByteArray() << false << 6667 << int(KirvIrcSettings::ForServer);
    QTest::newRow("TLS") << ssl << true << 6697 << int(KirvIrcSettings::ForServer);
    QTest::newRow("TLS, port") << ssl + setting("port", "int", "7000") << true << 7000
                               << int(KirvIrcSettings::ForServer);
    QTest::newRow("TLS, SASL") << ssl + sasl << true << 6697 << int(KirvIrcSettings::ForSasl);
    QTest::newRow("SASL") << sasl << true << 6697 << int(KirvIrcSettings::ForSasl);
    QTest::newRow("SASL, in clear") << sasl + setting("auth_plain_in_clear", "bool", "1") << false << 6667
                                    << int(KirvIrcSettings::ForSasl);
}

void tst_PidginAccounts::ircSettingsMeanTheSame()
{
    QFETCH(QByteArray, given);
    QFETCH(int, port);
    const QByteArray others = setting("realname", "string", "A B");
    const KirvAccountRecord record =
        KirvPidginFile::read(fileWith(irc, "a_@b.example", given + others)).accounts.accounts.value(0).record;
    const KirvIrcSettings settings(record.key.id, record.password,
                                   kirvFieldsWithValues(ircProtocol.accountSettings(), record.settings));
    QCOMPARE(settings.problem(), QString());
    QCOMPARE(settings.nick, QStringLiteral("a_"));
    QCOMPARE(settings.server, QStringLiteral("b.example"));
    QCOMPARE(int(settings.port), port);
    QTEST(settings.encrypted, "isEncrypted");
    QTEST(int(settings.passwordUse), "passwordUse");
    QCOMPARE(settings.realName, QStringLiteral("A B"));
    QCOMPARE(settings.password, QStringLiteral("pw"));
    QCOMPARE(settings.proxy.port, 9050);
}

void tst_PidginAccounts::accountsOfTheFileCanBeUsed()
{
    const KirvPidginFile::Result result =
        KirvPidginFile::read(contentOf(QStringLiteral(KIRV_TEST_DATA "/pidgin_accounts.xml")));
    QCOMPARE(int(result.accounts.accounts.size()), 3);
    for (const KirvMovedAccount &account : result.accounts.accounts) {
        const KirvProtocolBase &protocol = protocolOf(account.record);
        QCOMPARE(protocol.loginProblem(account.record.key.id), QString());
        QVERIFY(!protocol.normalizedLogin(account.record.key.id).isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_PidginAccounts)
#include "tst_pidgin_accounts.moc"

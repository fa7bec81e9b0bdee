// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_address.h"
#include "protocols/xmpp/kirv_xmpp_protocol.h"

#include <QTest>

/// Addresses as servers compare them.
class tst_XmppAddress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void spellingsOfOneAddressAreTheSame_data();
    void spellingsOfOneAddressAreTheSame();
    void otherAddressesAreOthers_data();
    void otherAddressesAreOthers();
    void theResultStaysAsItIs();
    void theProtocolNormalizesLogins();
};

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

void tst_XmppAddress::spellingsOfOneAddressAreTheSame_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::newRow("capitals") << "Name@Host.Example"
                              << "name@host.example";
    QTest::newRow("capital umlauts") << text("Ärger@host") << text("ärger@host");
    QTest::newRow("sharp s") << text("straße@host") << "strasse@host";
    QTest::newRow("wide letters") << text("ｎａｍｅ@host") << "name@host";
    QTest::newRow("letter and accent apart") << text("re\u0301sume\u0301@host") << text("résumé@host");
    QTest::newRow("ligature") << text("oﬃce@host") << "office@host";
    QTest::newRow("roman numeral") << text("henry\u2163@host") << "henryiv@host";
    QTest::newRow("soft hyphen") << text("na\u00adme@host") << "name@host";
    QTest::newRow("greek sigma") << text("ΣΑΣ@host") << text("σασ@host");
    QTest::newRow("domain with umlauts") << text("name@Bücher.example") << "name@xn--bcher-kva.example";
    QTest::newRow("encoded domain in capitals") << "name@XN--BCHER-KVA.example" << text("name@bücher.example");
    QTest::newRow("other full stop") << text("name@host\u3002example") << "name@host.example";
    QTest::newRow("root of the names") << "name@host.example."
                                       << "name@host.example";
    QTest::newRow("address of a computer") << "name@[::A]"
                                           << "name@[::a]";
}

void tst_XmppAddress::spellingsOfOneAddressAreTheSame()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QCOMPARE(kirvXmppNormalizedAddress(one), kirvXmppNormalizedAddress(other));
}

void tst_XmppAddress::otherAddressesAreOthers_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::newRow("another name") << "name@host"
                                  << "names@host";
    QTest::newRow("another domain") << "name@host"
                                    << "name@hosts";
    QTest::newRow("an accent") << "resume@host" << text("résumé@host");
    QTest::newRow("a dot in the name") << "na.me@host"
                                       << "name@host";
    QTest::newRow("letters of another script") << text("nаme@host") << "name@host";
    QTest::newRow("what is prohibited") << text("na\u2028me@host") << "name@host";
    QTest::newRow("too long") << QString(2000, 'a') + text("ä@host") << QString(2000, 'a') + text("Ä@host");
    QTest::newRow("no domain") << "name"
                               << "Name";
    QTest::newRow("zero") << text("näme") + QChar(0) + "x@host" << text("näme") + QChar(0) + "y@host";
}

void tst_XmppAddress::otherAddressesAreOthers()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QVERIFY(kirvXmppNormalizedAddress(one) != kirvXmppNormalizedAddress(other));
}

void tst_XmppAddress::theResultStaysAsItIs()
{
    for (const char *address : { "name@host", "Name@Bücher.example.", "ΣΑΣ@host", "a@b@c", "@", "" }) {
        const QString once = kirvXmppNormalizedAddress(text(address));
        QCOMPARE(kirvXmppNormalizedAddress(once), once);
    }
}

void tst_XmppAddress::theProtocolNormalizesLogins()
{
    const KirvXmppProtocol protocol;
    QCOMPARE(protocol.normalizedLogin(text("Röbi@Host")), text("röbi@host"));
}

QTEST_GUILESS_MAIN(tst_XmppAddress)
#include "tst_xmpp_address.moc"

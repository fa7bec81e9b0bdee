// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_features.h"
#include "tests/protocols/xmpp_parsing.h"

#include <QStringList>
#include <QTest>

namespace {

const QByteArray saslSpace = "urn:ietf:params:xml:ns:xmpp-sasl";

QByteArray featuresOf(const QByteArray &content)
{
    return "<features xmlns='http://etherx.jabber.org/streams'>" + content + "</features>";
}

QByteArray mechanisms(const QByteArrayList &names)
{
    QByteArray content;
    for (const QByteArray &name : names)
        content += "<mechanism>" + name + "</mechanism>";
    return "<mechanisms xmlns='" + saslSpace + "'>" + content + "</mechanisms>";
}

QStringList mechanismsOf(const QDomElement &features)
{
    QStringList names;
    const QDomElement list = features.firstChildElement("mechanisms");
    for (QDomElement name = list.firstChildElement(); !name.isNull(); name = name.nextSiblingElement())
        names << name.text();
    return names;
}

} // namespace

/// Which features of a server the library sees.
class tst_XmppFeatures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unusedFeaturesAreTakenOut();
    void theBestAllowedWayIsLeft_data();
    void theBestAllowedWayIsLeft();
};

void tst_XmppFeatures::unusedFeaturesAreTakenOut()
{
    QDomDocument document = parsed(featuresOf("<starttls xmlns='urn:ietf:params:xml:ns:xmpp-tls'/>"
                                              "<compression xmlns='http://jabber.org/features/compress'/>"
                                              "<sm xmlns='urn:xmpp:sm:3'/><csi xmlns='urn:xmpp:csi:0'/>"
                                              "<auth xmlns='http://jabber.org/features/iq-auth'/>"
                                              "<bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'/>"
                                              "<session xmlns='urn:ietf:params:xml:ns:xmpp-session'/>"
                                              "<register xmlns='http://jabber.org/features/iq-register'/>"));
    QDomElement features = document.documentElement();
    QString mechanism;
    QVERIFY(kirvXmppReduceFeatures(features, true, &mechanism));
    QStringList names;
    for (QDomElement child = features.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        names << child.localName();
    QCOMPARE(names, QStringList({ "starttls", "bind", "session", "register" }));
}

void tst_XmppFeatures::theBestAllowedWayIsLeft_data()
{
    QTest::addColumn<QByteArrayList>("offered");
    QTest::addColumn<bool>("sendsPasswords");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<bool>("canLogIn");
    const QByteArrayList usual { "PLAIN", "SCRAM-SHA-1", "DIGEST-MD5" };
    QTest::newRow("allowed") << usual << true << QStringList("SCRAM-SHA-1") << true;
    QTest::newRow("not allowed") << usual << false << QStringList("SCRAM-SHA-1") << true;
    QTest::newRow("the best is last") << QByteArrayList { "PLAIN", "DIGEST-MD5", "SCRAM-SHA-1", "SCRAM-SHA-256" }
                                      << true << QStringList("SCRAM-SHA-256") << true;
    QTest::newRow("the best is first") << QByteArrayList { "SCRAM-SHA-512", "SCRAM-SHA-256", "PLAIN" } << true
                                       << QStringList("SCRAM-SHA-512") << true;
    QTest::newRow("no password") << QByteArrayList { "ANONYMOUS", "EXTERNAL", "X-FACEBOOK-PLATFORM" } << true
                                 << QStringList() << false;
    QTest::newRow("twice") << QByteArrayList { "PLAIN", "PLAIN" } << true << QStringList("PLAIN") << true;
    QTest::newRow("nothing else") << QByteArrayList { "PLAIN" } << false << QStringList() << false;
    QTest::newRow("nothing else but allowed") << QByteArrayList { "PLAIN" } << true << QStringList("PLAIN") << true;
    QTest::newRow("written otherwise") << QByteArrayList { " plain\n" } << false << QStringList() << false;
    QTest::newRow("other secrets") << QByteArrayList { "X-OAUTH2", "OAUTHBEARER", "LOGIN" } << false << QStringList()
                                   << false;
    QTest::newRow("nothing is offered") << QByteArrayList() << false << QStringList() << true;
}

void tst_XmppFeatures::theBestAllowedWayIsLeft()
{
    QFETCH(QByteArrayList, offered);
    QFETCH(bool, sendsPasswords);
    QDomDocument document = parsed(featuresOf(mechanisms(offered)));
    QDomElement features = document.documentElement();
    QString mechanism;
    QTEST(kirvXmppReduceFeatures(features, sendsPasswords, &mechanism), "canLogIn");
    QCOMPARE(mechanism, mechanismsOf(features).value(0));
    QTEST(mechanismsOf(features), "left");
}

QTEST_APPLESS_MAIN(tst_XmppFeatures)
#include "tst_xmpp_features.moc"

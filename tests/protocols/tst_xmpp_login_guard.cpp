// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_login_guard.h"
#include "tests/protocols/xmpp_parsing.h"
#include "tests/support/servers/kirv_scram.h"

#include <QSslSocket>
#include <QTest>
#include <QXmppConfiguration.h>
#include <QXmppOutgoingClient.h>
#include <memory>

namespace {

using Guard = KirvXmppLoginGuard;

QByteArray featuresOf(const QByteArray &content)
{
    return "<features xmlns='http://etherx.jabber.org/streams'>" + content + "</features>";
}

/// A stream of the library that is connected to nothing: a test gives it what the server sends, and reads from its log
/// what it wants to send.
class UnconnectedStream : public QXmppOutgoingClient {
public:
    UnconnectedStream()
        : QXmppOutgoingClient(nullptr)
    {
        configuration().setDomain(QStringLiteral("example.org"));
        configuration().setUser(QStringLiteral("ann"));
        configuration().setPassword(QStringLiteral("secret"));
        configuration().setStreamSecurityMode(QXmppConfiguration::TLSDisabled);
        connect(this, &QXmppLoggable::logMessage, this, [this](QXmppLogger::MessageType type, const QString &text) {
            if (type == QXmppLogger::SentMessage)
                sent << text.toUtf8();
        });
    }

    void receive(const QByteArray &xml)
    {
        const QDomDocument document = parsed(xml);
        handleStanza(document.documentElement());
    }

    QByteArrayList sent;
};

} // namespace

/// What a server may do in a log-in, and when the log-in counts. The library takes part in it, over no network.
class tst_XmppLoginGuard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theBestWayIsChosen_data();
    void theBestWayIsChosen();
    void theWayIsChosenAnewWithEncryption();
    void noWayIsLeftAfterTheLogIn();
    void featuresAreBounded();

    void challengesAreBounded_data();
    void challengesAreBounded();
    void aFewChallengesAreEnough_data();
    void aFewChallengesAreEnough();
    void otherElementsAreNotItsBusiness_data();
    void otherElementsAreNotItsBusiness();

    void successNeedsTheProof_data();
    void successNeedsTheProof();
    void theProofMayComeInAChallenge();
    void aProofIsNoneWithoutAChallenge();
    void waysWithoutAProofNeedNone_data();
    void waysWithoutAProofNeedNone();

private:
    bool offer(const QByteArrayList &mechanisms, bool sendsPasswords = true);
    KirvFailure step(const QByteArray &xml);
    KirvFailure challenge(const QByteArray &content) { return step(kirvSaslElement("challenge", content)); }
    QByteArray begin(KirvScram &scram);
    static QByteArray kindOf(const KirvFailure &failure);

    std::unique_ptr<UnconnectedStream> stream;
    std::unique_ptr<Guard> guard;
    QByteArray left; ///< the ways that offer() has left, in one line
};

void tst_XmppLoginGuard::init()
{
    guard.reset(); // before its stream
    stream = std::make_unique<UnconnectedStream>();
    guard = std::make_unique<Guard>(*stream);
}

/// The server offers these ways; the library does not see it.
bool tst_XmppLoginGuard::offer(const QByteArrayList &mechanisms, bool sendsPasswords)
{
    const QDomDocument document = parsed(featuresOf(mechanisms.isEmpty() ? QByteArray() : kirvMechanisms(mechanisms)));
    QDomElement features = document.documentElement();
    const bool canLogIn = guard->receiveFeatures(features, sendsPasswords);
    left = textAt(features, QStringLiteral("mechanisms")).toUtf8();
    return canLogIn;
}

KirvFailure tst_XmppLoginGuard::step(const QByteArray &xml)
{
    const QDomDocument document = parsed(xml);
    return guard->receiveStep(document.documentElement());
}

/// Logs in up to the library's reply to the challenge, which becomes the result.
QByteArray tst_XmppLoginGuard::begin(KirvScram &scram)
{
    offer({ scram.mechanism });
    stream->receive(featuresOf(kirvMechanisms({ scram.mechanism })));
    const QByteArray first = scram.answer(stream->sent.value(stream->sent.size() - 1));
    if (step(first).isFailure())
        return QByteArray();
    stream->receive(first);
    return stream->sent.value(stream->sent.size() - 1);
}

/// A word for what the server has done.
QByteArray tst_XmppLoginGuard::kindOf(const KirvFailure &failure)
{
    if (!failure.isFailure())
        return "right";
    if (failure.kind() != KirvFailure::ServiceUnavailable)
        return failure.text().toUtf8();
    const QString text = failure.detail();
    if (text.contains(QLatin1String("more work")))
        return "laborious";
    if (text.contains(QLatin1String("more than a log-in needs")))
        return "too much";
    if (text.contains(QLatin1String("is wrong")))
        return "wrong";
    return text.contains(QLatin1String("not proved")) ? "unproved" : text.toUtf8();
}

void tst_XmppLoginGuard::theBestWayIsChosen_data()
{
    QTest::addColumn<QByteArrayList>("offered");
    QTest::addColumn<bool>("sendsPasswords");
    QTest::addColumn<bool>("canLogIn");
    QTest::addColumn<QByteArray>("chosen");
    const QByteArrayList usual { "PLAIN", "SCRAM-SHA-1", "SCRAM-SHA-256" };
    QTest::newRow("encrypted") << usual << true << true << QByteArray("SCRAM-SHA-256");
    QTest::newRow("not encrypted") << usual << false << true << QByteArray("SCRAM-SHA-256");
    QTest::newRow("the password, encrypted") << QByteArrayList { "PLAIN" } << true << true << QByteArray("PLAIN");
    QTest::newRow("the password, not encrypted") << QByteArrayList { "PLAIN" } << false << false << QByteArray();
    QTest::newRow("without a password") << QByteArrayList { "ANONYMOUS", "EXTERNAL" } << true << false << QByteArray();
    QTest::newRow("nothing yet") << QByteArrayList() << false << true << QByteArray();
}

void tst_XmppLoginGuard::theBestWayIsChosen()
{
    QFETCH(QByteArrayList, offered);
    QFETCH(bool, sendsPasswords);
    QTEST(offer(offered, sendsPasswords), "canLogIn");
    QTEST(guard->mechanism().toUtf8(), "chosen");
    QCOMPARE(left, guard->mechanism().toUtf8());
    QVERIFY(!guard->isUnderWay());
}

void tst_XmppLoginGuard::theWayIsChosenAnewWithEncryption()
{
    QVERIFY(offer({ "SCRAM-SHA-1" }, false));
    QCOMPARE(guard->mechanism(), QStringLiteral("SCRAM-SHA-1"));
    QVERIFY(offer({ "PLAIN" }, true));
    QCOMPARE(guard->mechanism(), QStringLiteral("PLAIN"));
}

/// The library would log in again.
void tst_XmppLoginGuard::noWayIsLeftAfterTheLogIn()
{
    offer({ "PLAIN" });
    QCOMPARE(kindOf(step(kirvSaslElement("success"))), QByteArray("right"));
    QVERIFY(offer({ "SCRAM-SHA-512", "ANONYMOUS" }));
    QCOMPARE(left, QByteArray());
    QCOMPARE(guard->mechanism(), QStringLiteral("PLAIN"));
}

void tst_XmppLoginGuard::featuresAreBounded()
{
    for (int count = 0; count < Guard::mostFeatures; ++count) {
        QVERIFY(offer({ "PLAIN" }));
        QCOMPARE(left, QByteArray("PLAIN"));
        QVERIFY(!guard->isEndless());
    }
    offer({ "SCRAM-SHA-1" });
    QVERIFY(guard->isEndless());
    QCOMPARE(left, QByteArray());
    QCOMPARE(guard->mechanism(), QStringLiteral("PLAIN"));
}

void tst_XmppLoginGuard::challengesAreBounded_data()
{
    QTest::addColumn<QByteArray>("mechanism");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("kind");
    const auto row = [](const char *name, const char *mechanism, const QByteArray &content, const char *kind) {
        QTest::newRow(name) << QByteArray(mechanism) << content << QByteArray(kind);
    };
    const auto rounds = [](int count) { return "r=abc,s=c2FsdA==,i=" + QByteArray::number(count); };
    const int most = Guard::mostRounds, mostOfSha512 = Guard::mostRoundsOfSha512;
    row("usual", "SCRAM-SHA-1", rounds(4096), "right");
    row("most rounds of SHA-1", "SCRAM-SHA-1", rounds(most), "right");
    row("too many rounds of SHA-1", "SCRAM-SHA-1", rounds(most + 1), "laborious");
    row("most rounds of SHA-256", "SCRAM-SHA-256", rounds(most), "right");
    row("too many rounds of SHA-256", "SCRAM-SHA-256", rounds(most + 1), "laborious");
    row("most rounds of SHA-512", "SCRAM-SHA-512", rounds(mostOfSha512), "right");
    row("too many rounds of SHA-512", "SCRAM-SHA-512", rounds(mostOfSha512 + 1), "laborious");
    row("rounds beyond numbers", "SCRAM-SHA-1", "r=abc,i=99999999999999999999", "laborious");
    row("rounds that are no number", "SCRAM-SHA-1", "r=abc,i=4096x", "laborious");
    row("rounds twice", "SCRAM-SHA-1", rounds(4096) + ",i=4096", "wrong");
    row("salt twice", "SCRAM-SHA-1", rounds(4096) + ",s=c2FsdA==", "wrong");
    row("a proof at once", "SCRAM-SHA-1", rounds(4096) + ",v=AAAA", "wrong");
    row("unknown parts", "SCRAM-SHA-1", rounds(4096) + ",x=y,,z", "right");
    // In four characters for three.
    const int longest = Guard::longestChallenge / 4 * 3;
    row("as long as possible", "SCRAM-SHA-1", rounds(1).leftJustified(longest, 'x').replace("=1x", "=1,"), "right");
    row("too long", "SCRAM-SHA-1", rounds(1).leftJustified(longest + 1, 'x').replace("=1x", "=1,"), "too much");
    row("too long of another way", "DIGEST-MD5", QByteArray(longest + 1, 'x'), "too much");
    row("what another way does not mean", "DIGEST-MD5", "i=99999999,i=1,v=AAAA", "right");
}

void tst_XmppLoginGuard::challengesAreBounded()
{
    QFETCH(QByteArray, mechanism);
    QFETCH(QByteArray, content);
    QVERIFY(offer({ mechanism }));
    QTEST(kindOf(challenge(content)), "kind");
}

void tst_XmppLoginGuard::aFewChallengesAreEnough_data()
{
    QTest::addColumn<QByteArray>("mechanism");
    for (const char *mechanism : { "SCRAM-SHA-1", "DIGEST-MD5", "PLAIN" })
        QTest::newRow(mechanism) << QByteArray(mechanism);
}

void tst_XmppLoginGuard::aFewChallengesAreEnough()
{
    QFETCH(QByteArray, mechanism);
    QVERIFY(offer({ mechanism }));
    for (int count = 0; count < Guard::mostChallenges; ++count) {
        QCOMPARE(kindOf(challenge("r=abc")), QByteArray("right"));
        QVERIFY(guard->isUnderWay());
    }
    QCOMPARE(kindOf(challenge("r=abc")), QByteArray("too much"));
}

void tst_XmppLoginGuard::otherElementsAreNotItsBusiness_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : { "failure", "abort", "response" })
        QTest::newRow(name) << QByteArray(name);
}

void tst_XmppLoginGuard::otherElementsAreNotItsBusiness()
{
    QFETCH(QByteArray, name);
    offer({ "SCRAM-SHA-1" });
    QVERIFY(!step(kirvSaslElement(name, "i=99999999")).isFailure());
    QVERIFY(!guard->isUnderWay());
}

void tst_XmppLoginGuard::successNeedsTheProof_data()
{
    QTest::addColumn<QByteArray>("mechanism");
    QTest::addColumn<int>("hash");
    QTest::addColumn<QByteArray>("password"); ///< that the server knows
    QTest::addColumn<bool>("proves");
    QTest::addColumn<QByteArray>("kind");
    const auto row = [](const char *name, const char *mechanism, QCryptographicHash::Algorithm hash,
                        const char *password, bool proves, const char *kind) {
        QTest::newRow(name) << QByteArray(mechanism) << int(hash) << QByteArray(password) << proves << QByteArray(kind);
    };
    row("SHA-1", "SCRAM-SHA-1", QCryptographicHash::Sha1, "secret", true, "right");
    row("SHA-256", "SCRAM-SHA-256", QCryptographicHash::Sha256, "secret", true, "right");
    row("SHA-512", "SCRAM-SHA-512", QCryptographicHash::Sha512, "secret", true, "right");
    row("another password", "SCRAM-SHA-1", QCryptographicHash::Sha1, "another", true, "unproved");
    row("another way", "SCRAM-SHA-256", QCryptographicHash::Sha1, "secret", true, "unproved");
    row("nothing", "SCRAM-SHA-1", QCryptographicHash::Sha1, "secret", false, "unproved");
}

void tst_XmppLoginGuard::successNeedsTheProof()
{
    QFETCH(QByteArray, mechanism);
    QFETCH(int, hash);
    QFETCH(QByteArray, password);
    QFETCH(bool, proves);
    QFETCH(QByteArray, kind);
    KirvScram scram;
    scram.mechanism = mechanism;
    scram.hash = QCryptographicHash::Algorithm(hash);
    scram.password = password;
    scram.proves = proves;
    const QByteArray response = begin(scram);
    QVERIFY2(response.startsWith("<response"), response.constData());
    QVERIFY(guard->isUnderWay());
    const auto state = stream->socket()->state();
    QCOMPARE(kindOf(step(scram.answer(response))), kind);
    QCOMPARE(guard->isUnderWay(), kind != "right");
    QCOMPARE(stream->socket()->state(), state);
}

void tst_XmppLoginGuard::theProofMayComeInAChallenge()
{
    KirvScram scram;
    scram.provesInChallenge = true;
    const QByteArray proof = scram.answer(begin(scram));
    QCOMPARE(kindOf(step(proof)), QByteArray("right"));
    QVERIFY(guard->isUnderWay());
    stream->receive(proof); // the library checks it
    QCOMPARE(kindOf(step(kirvSaslElement("success"))), QByteArray("right"));
    QVERIFY(!guard->isUnderWay());
}

/// The library takes what comes first for a challenge and replies to it, as it does to a proof.
void tst_XmppLoginGuard::aProofIsNoneWithoutAChallenge()
{
    KirvScram scram;
    offer({ scram.mechanism });
    stream->receive(featuresOf(kirvMechanisms({ scram.mechanism })));
    QByteArray first = scram.answer(stream->sent.value(stream->sent.size() - 1));
    QCOMPARE(kindOf(step(first.replace("challenge", "success"))), QByteArray("unproved"));
    QVERIFY(!guard->isUnderWay());
}

void tst_XmppLoginGuard::waysWithoutAProofNeedNone_data()
{
    QTest::addColumn<QByteArray>("mechanism");
    for (const char *mechanism : { "PLAIN", "DIGEST-MD5" })
        QTest::newRow(mechanism) << QByteArray(mechanism);
}

void tst_XmppLoginGuard::waysWithoutAProofNeedNone()
{
    QFETCH(QByteArray, mechanism);
    offer({ mechanism });
    QCOMPARE(kindOf(step(kirvSaslElement("success"))), QByteArray("right"));
    QVERIFY(!guard->isUnderWay());
}

QTEST_GUILESS_MAIN(tst_XmppLoginGuard)
#include "tst_xmpp_login_guard.moc"

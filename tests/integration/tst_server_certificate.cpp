// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_server_certificate.h"
#include "core/values/kirv_failure.h"

#include <QCryptographicHash>
#include <QSslCertificate>
#include <QSslError>
#include <QtTest>

namespace {

/// A value of the encoding of certificates (DER).
QByteArray der(int tag, const QByteArray &content)
{
    QByteArray length;
    if (content.size() < 128) {
        length = QByteArray(1, char(content.size()));
    } else {
        for (int rest = int(content.size()); rest > 0; rest >>= 8)
            length.prepend(char(rest & 0xff));
        length.prepend(char(0x80 | length.size()));
    }
    return QByteArray(1, char(tag)) + length + content;
}

QByteArray sequence(const QByteArray &content)
{
    return der(0x30, content);
}

/// One part of a name: 3 is the common name, 10 the organization.
QByteArray part(char kind, const QByteArray &text)
{
    const QByteArray id = der(0x06, QByteArray("\x55\x04") + kind);
    return der(0x31, sequence(id + der(0x0c, text)));
}

/// A certificate that nobody could use: what it says of itself is all that counts here.
QSslCertificate makeCertificate(const QByteArray &subject, const QByteArray &issuer)
{
    const QByteArray algorithm = sequence(der(0x06, QByteArray::fromHex("2a8648ce3d040302")));
    const QByteArray keyKind =
        sequence(der(0x06, QByteArray::fromHex("2a8648ce3d0201")) + der(0x06, QByteArray::fromHex("2a8648ce3d030107")));
    const QByteArray key = sequence(keyKind + der(0x03, QByteArray(66, '\x04')));
    const QByteArray dates = sequence(der(0x17, "200101000000Z") + der(0x17, "300101000000Z"));
    const QByteArray content =
        sequence(der(0x02, "\x01") + algorithm + sequence(issuer) + dates + sequence(subject) + key);
    return QSslCertificate(sequence(content + algorithm + der(0x03, QByteArray(9, '\0'))), QSsl::Der);
}

KirvServerCertificate read(const QByteArray &subject, const QByteArray &issuer = QByteArray(),
                           const QList<QSslError::SslError> &errors = {})
{
    const QSslCertificate certificate = makeCertificate(subject, issuer);
    QList<QSslError> all;
    for (const QSslError::SslError error : errors)
        all << QSslError(error, certificate);
    return KirvServerCertificate(certificate, all, QStringLiteral("example.org"));
}

QString detail(const KirvServerCertificate &certificate, const QString &label)
{
    const QList<KirvServerCertificate::Detail> details = certificate.details();
    for (const KirvServerCertificate::Detail &line : details) {
        if (line.label == label)
            return line.text;
    }
    return QString();
}

} // namespace

/// What is known of the certificate of a server.
class tst_ServerCertificate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itSaysWhomItIsForAndFrom_data();
    void itSaysWhomItIsForAndFrom();
    void itHasDatesAndAFingerprint();
    void problemsAreSentencesWithoutRepetition();
    void aProblemOfTheIssuerIsSaidToBeOne();
    void nothingShownIsNull();
    void hostileTextsAreOneBoundedLine_data();
    void hostileTextsAreOneBoundedLine();
};

void tst_ServerCertificate::itSaysWhomItIsForAndFrom_data()
{
    QTest::addColumn<QByteArray>("subject");
    QTest::addColumn<QByteArray>("issuer");
    QTest::addColumn<QString>("isFor");
    QTest::addColumn<QString>("issuedBy");
    QTest::newRow("names") << part(3, "example.org") << part(3, "Authority") << "example.org"
                           << "Authority";
    QTest::newRow("organizations") << part(3, "example.org") + part(10, "Example") << part(10, "Authority")
                                   << "example.org (Example)"
                                   << "Authority";
    QTest::newRow("same twice") << part(3, "Example") + part(10, "Example") << QByteArray() << "Example"
                                << "";
    QTest::newRow("several") << part(3, "a") + part(3, "b") + part(3, "c") + part(3, "d") << part(3, "x") << "a, b, c"
                             << "x";
    QTest::newRow("nothing") << QByteArray() << QByteArray() << ""
                             << "";
}

void tst_ServerCertificate::itSaysWhomItIsForAndFrom()
{
    QFETCH(QByteArray, subject);
    QFETCH(QByteArray, issuer);
    QFETCH(QString, isFor);
    QFETCH(QString, issuedBy);
    const KirvServerCertificate certificate = read(subject, issuer);
    QVERIFY(!certificate.isNull());
    QStringList expected = isFor.split(", "), found = certificate.subject.split(", ");
    expected.sort();
    found.sort(); // several of a kind have no order
    if (expected.size() == 3)
        QCOMPARE(found.size(), 3);
    else
        QCOMPARE(found, expected);
    QCOMPARE(certificate.issuer, issuedBy);
    QCOMPARE(detail(certificate, "For"), certificate.subject);
    QCOMPARE(detail(certificate, "Issued by"), issuedBy);
}

void tst_ServerCertificate::itHasDatesAndAFingerprint()
{
    const QSslCertificate original = makeCertificate(part(3, "a"), part(3, "b"));
    const KirvServerCertificate certificate = read(part(3, "a"), part(3, "b"));
    QCOMPARE(certificate.validFrom, original.effectiveDate());
    QCOMPARE(certificate.validUntil, original.expiryDate());
    QCOMPARE(certificate.validUntil.toUTC().date(), QDate(2030, 1, 1));
    QCOMPARE(certificate.fingerprint, QCryptographicHash::hash(original.toDer(), QCryptographicHash::Sha256));
    QCOMPARE(certificate.fingerprintText().size(), 95);
    QCOMPARE(KirvServerCertificate::fingerprintText(QByteArray::fromHex("9f3a0c")), QStringLiteral("9F:3A:0C"));
    QCOMPARE(detail(certificate, "Fingerprint (SHA-256)"), certificate.fingerprintText());
    QVERIFY(detail(certificate, "Valid until").contains("2030"));
    QVERIFY(read(part(3, "a")) != certificate);
}

void tst_ServerCertificate::problemsAreSentencesWithoutRepetition()
{
    const KirvServerCertificate certificate =
        read(part(3, "other.test"), part(3, "b"),
             { QSslError::UnableToGetLocalIssuerCertificate, QSslError::UnableToVerifyFirstCertificate,
               QSslError::HostNameMismatch, QSslError::CertificateExpired, QSslError::CertificateNotYetValid,
               QSslError::CertificateRevoked });
    QCOMPARE(certificate.problems.size(), 5);
    QCOMPARE(certificate.problems.at(0), QStringLiteral("It is not from an authority that this computer trusts."));
    QCOMPARE(certificate.problems.at(1), QStringLiteral("It is for other.test, and not for example.org."));
    QVERIFY(certificate.problems.at(2).startsWith("It has expired: it was valid until "));
    QVERIFY(certificate.problems.at(3).startsWith("It is not valid before "));
    QCOMPARE(certificate.problems.at(4), QStringLiteral("It was withdrawn."));
    QVERIFY(!certificate.isSelfIssued);
    const KirvServerCertificate own = read(part(3, "a"), part(3, "a"), { QSslError::SelfSignedCertificate });
    QCOMPARE(own.problems, QStringList { "It is self-signed: no authority has issued it." });
    QCOMPARE(detail(own, "Issued by"), QStringLiteral("itself"));
}

void tst_ServerCertificate::aProblemOfTheIssuerIsSaidToBeOne()
{
    const QSslCertificate issuer = makeCertificate(part(3, "b"), part(3, "b"));
    const KirvServerCertificate certificate(makeCertificate(part(3, "a"), part(3, "b")),
                                            { QSslError(QSslError::CertificateExpired, issuer) }, "a");
    QCOMPARE(certificate.problems, QStringList { "A certificate of its issuer has expired." });
}

void tst_ServerCertificate::nothingShownIsNull()
{
    QVERIFY(KirvServerCertificate().isNull());
    const KirvServerCertificate none(QSslCertificate(), { QSslError(QSslError::NoPeerCertificate) }, "a");
    QVERIFY(none.isNull());
    QVERIFY(none.fingerprintText().isEmpty());
    QCOMPARE(none.problems.size(), 1);
}

void tst_ServerCertificate::hostileTextsAreOneBoundedLine_data()
{
    QTest::addColumn<QByteArray>("text");
    // Names of more than 1 MB are no names for the TLS library.
    QTest::newRow("1 MB") << QByteArray(500000, 'x');
    QTest::newRow("1 MB of blanks") << QByteArray(500000, ' ') + "x";
    QTest::newRow("line breaks") << QByteArray("a\r\nTrusted\n\n\x0b\x0c b");
    QTest::newRow("control characters") << QByteArray("a\x01\x02\x1b[31mred\x7f\xc2\x9b");
    QTest::newRow("NUL") << QByteArray("good.test\0.evil.test", 20);
    QTest::newRow("direction") << QByteArray("\xe2\x80\xae"
                                             "gro.elpmaxe\xe2\x80\xac \xe2\x81\xa6x\xd8\x9c");
    QTest::newRow("invisible") << QByteArray("exa\xe2\x80\x8bmple\xef\xbb\xbf");
    QTest::newRow("line separators") << QByteArray("a\xe2\x80\xa8"
                                                   "b\xe2\x80\xa9"
                                                   "c");
    QTest::newRow("emoji at the border") << QByteArray(197, 'x') + QByteArray("\xf0\x9f\x98\x80").repeated(20);
    QTest::newRow("markup") << QByteArray("<b>&amp;</b><img src='x'>");
}

void tst_ServerCertificate::hostileTextsAreOneBoundedLine()
{
    QFETCH(QByteArray, text);
    const KirvServerCertificate certificate(makeCertificate(part(3, text) + part(10, text), part(10, text)),
                                            { QSslError(QSslError::HostNameMismatch) }, QString::fromUtf8(text));
    QVERIFY(!certificate.isNull());
    QStringList texts = certificate.problems;
    texts << certificate.host << certificate.subject << certificate.issuer;
    const QList<KirvServerCertificate::Detail> details = certificate.details();
    for (const KirvServerCertificate::Detail &line : details)
        texts << line.text;
    texts << KirvFailure(KirvFailure::UntrustedCertificate, certificate.problems.join(' ')).text();
    for (const QString &shown : qAsConst(texts)) {
        QVERIFY2(shown.size() <= 800, qPrintable(shown.left(2000)));
        for (int index = 0; index < shown.size(); ++index) {
            const QChar character = shown.at(index);
            const QChar::Category category = character.category();
            QVERIFY2(category != QChar::Other_Control && category != QChar::Other_Format
                         && category != QChar::Separator_Line && category != QChar::Separator_Paragraph,
                     qPrintable(QString::number(character.unicode(), 16)));
            QVERIFY(!character.isHighSurrogate() || (index + 1 < shown.size() && shown.at(index + 1).isLowSurrogate()));
        }
    }
}

QTEST_GUILESS_MAIN(tst_ServerCertificate)
#include "tst_server_certificate.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_certificates.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_test_certificates.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

Q_DECLARE_METATYPE(QSsl::KeyAlgorithm)

/// What is read of the files of a client certificate.
class tst_IrcCertificates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void certificatesOfAFileAreRead();
    void keysOfEachKindAreRead_data();
    void keysOfEachKindAreRead();
    void otherFilesHoldNothing_data();
    void otherFilesHoldNothing();
    void openFilesAreNoticed_data();
    void openFilesAreNoticed();

private:
    QString write(const QString &name, const QByteArray &bytes) const;
    static QByteArray read(const QString &path);
    QString ofOpenssl(const QString &name, const QStringList &arguments) const;

    QTemporaryDir folder;
    KirvTestCertificates certificates;
};

void tst_IrcCertificates::initTestCase()
{
    for (const char *name : { "one", "two" })
        QVERIFY(certificates.make(QLatin1String(name), KirvTestCertificates::Wish()));
}

QString tst_IrcCertificates::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(folder.filePath(name));
    file.remove(); // it may not be writable
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

QByteArray tst_IrcCertificates::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The path of the file that openssl writes; empty when it fails.
QString tst_IrcCertificates::ofOpenssl(const QString &name, const QStringList &arguments) const
{
    const QString path = folder.filePath(name);
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"), arguments + QStringList { QStringLiteral("-out"), path });
    return openssl.waitForFinished(kirvPatience) && openssl.exitCode() == 0 ? path : QString();
}

void tst_IrcCertificates::certificatesOfAFileAreRead()
{
    const QString one = certificates.certificate(QStringLiteral("one"));
    QCOMPARE(kirvReadCertificates(one), QList<QSslCertificate> { certificates.read(QStringLiteral("one")) });
    const QString both =
        write(QStringLiteral("both"), read(one) + read(certificates.certificate(QStringLiteral("two"))));
    QCOMPARE(int(kirvReadCertificates(both).size()), 2);
    const QString withKey =
        write(QStringLiteral("with key"), read(certificates.key(QStringLiteral("one"))) + read(one));
    QCOMPARE(int(kirvReadCertificates(withKey).size()), 1);
    QVERIFY(!kirvReadPrivateKey(withKey).isNull());
}

void tst_IrcCertificates::keysOfEachKindAreRead_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QSsl::KeyAlgorithm>("algorithm");
    QTest::newRow("elliptic curve") << QStringList { "ecparam", "-name", "prime256v1", "-genkey", "-noout" }
                                    << QSsl::Ec;
    QTest::newRow("RSA") << QStringList { "genrsa", "-traditional" } << QSsl::Rsa;
    QTest::newRow("RSA, as PKCS 8") << QStringList { "genrsa" } << QSsl::Rsa;
    QTest::newRow("elliptic curve, as PKCS 8")
        << QStringList { "genpkey", "-algorithm", "EC", "-pkeyopt", "ec_paramgen_curve:prime256v1" } << QSsl::Ec;
}

void tst_IrcCertificates::keysOfEachKindAreRead()
{
    QFETCH(QStringList, arguments);
    QFETCH(QSsl::KeyAlgorithm, algorithm);
    const QString path = ofOpenssl(QStringLiteral("key"), arguments);
    QVERIFY(!path.isEmpty());
    const QSslKey key = kirvReadPrivateKey(path);
    QVERIFY(!key.isNull());
    QCOMPARE(key.algorithm(), algorithm);
    QCOMPARE(key.type(), QSsl::PrivateKey);
}

void tst_IrcCertificates::otherFilesHoldNothing_data()
{
    QTest::addColumn<QString>("path");
    const QByteArray certificate = read(certificates.certificate(QStringLiteral("one")));
    const QByteArray key = read(certificates.key(QStringLiteral("one")));
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QVERIFY(::mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0);
    QTest::newRow("none") << folder.filePath(QStringLiteral("not there"));
    QTest::newRow("no name") << QString();
    QTest::newRow("folder") << folder.path();
    QTest::newRow("pipe") << pipe;
    QTest::newRow("device") << QStringLiteral("/dev/zero");
    QTest::newRow("empty") << write(QStringLiteral("empty"), QByteArray());
    QTest::newRow("text") << write(QStringLiteral("text"), QByteArray("-----BEGIN CERTIFICATE-----\nno\n"));
    QTest::newRow("too large") << write(QStringLiteral("large"), certificate + key + QByteArray(1 << 20, ' '));
    QTest::newRow("key with a password") << ofOpenssl(
        QStringLiteral("locked"), { "genpkey", "-algorithm", "RSA", "-aes256", "-pass", "pass:word" });
}

void tst_IrcCertificates::otherFilesHoldNothing()
{
    QFETCH(QString, path);
    const bool isMade = !path.isEmpty();
    QCOMPARE(isMade, QByteArray(QTest::currentDataTag()) != "no name");
    QCOMPARE(kirvReadCertificates(path), QList<QSslCertificate>());
    QVERIFY(kirvReadPrivateKey(path).isNull());
}

void tst_IrcCertificates::openFilesAreNoticed_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isOpen");
    for (const int mode : { 0600, 0400, 0700 })
        QTest::addRow("%o", mode) << mode << false;
    for (const int mode : { 0640, 0620, 0604, 0602, 0644, 0666 })
        QTest::addRow("%o", mode) << mode << true;
}

void tst_IrcCertificates::openFilesAreNoticed()
{
    QFETCH(int, mode);
    QFETCH(bool, isOpen);
    const QString path = write(QStringLiteral("mode"), "any");
    QVERIFY(::chmod(QFile::encodeName(path).constData(), mode_t(mode)) == 0);
    QCOMPARE(kirvIsReadableByOthers(path), isOpen);
}

QTEST_GUILESS_MAIN(tst_IrcCertificates)
#include "tst_irc_certificates.moc"

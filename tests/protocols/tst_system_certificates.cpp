// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/tls/kirv_system_certificates.h"
#include "tests/support/kirv_patience.h"

#include <QSemaphore>
#include <QSslConfiguration>
#include <QThread>
#include <QtTest>
#include <atomic>

class tst_SystemCertificates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void theyAreThoseOfTheSystem();
    void theyAreReadOnceInAnotherThread();
    void theEventLoopRunsMeanwhile();
    void theyAreGivenAtOnceWhenTheyAreThere();
    void whatIsNotFreshIsReadAgain();
    void theSameCertificatesAreKept();
    void destroyedContextsReceiveNothing();
    void itMayBeDestroyedWhileTheyAreRead();

private:
    QList<QSslCertificate> read();

    QList<QSslCertificate> ofSystem;
    std::atomic<int> reads;
    std::atomic<QThread *> reader;
    QSemaphore permits;
};

void tst_SystemCertificates::initTestCase()
{
    ofSystem = QSslConfiguration::systemCaCertificates();
    QVERIFY2(ofSystem.size() > 3, "the system trusts nobody");
}

void tst_SystemCertificates::init()
{
    reads = 0;
    reader = nullptr;
    permits.acquire(permits.available());
}

/// Waits for a permit and gives the first certificates of the system.
QList<QSslCertificate> tst_SystemCertificates::read()
{
    permits.acquire();
    reader = QThread::currentThread();
    ++reads;
    return ofSystem.mid(0, 3);
}

void tst_SystemCertificates::theyAreThoseOfTheSystem()
{
    QList<QSslCertificate> received;
    KirvSystemCertificates::instance().request(this, [&](const auto &certificates) { received = certificates; });
    KIRV_TRY(!received.isEmpty());
    QCOMPARE(received, ofSystem);
}

void tst_SystemCertificates::theyAreReadOnceInAnotherThread()
{
    KirvSystemCertificates certificates([this] { return read(); });
    int received = 0;
    for (int i = 0; i < 100; ++i) {
        certificates.request(this, [&](const QList<QSslCertificate> &list) {
            ++received;
            QCOMPARE(list.size(), 3);
        });
    }
    QCOMPARE(received, 0);
    permits.release(100);
    KIRV_TRY_COMPARE(received, 100);
    QCOMPARE(reads.load(), 1);
    QVERIFY(reader != QThread::currentThread());
}

void tst_SystemCertificates::theEventLoopRunsMeanwhile()
{
    KirvSystemCertificates certificates([this] { return read(); });
    bool received = false;
    certificates.request(this, [&](const auto &) { received = true; });
    int turns = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ++turns; });
    timer.start(0);
    KIRV_TRY(turns > 100);
    QVERIFY(!received);
    permits.release();
    KIRV_TRY(received);
}

void tst_SystemCertificates::theyAreGivenAtOnceWhenTheyAreThere()
{
    permits.release(5);
    KirvSystemCertificates certificates([this] { return read(); });
    int received = 0;
    const auto receive = [&](const auto &) { ++received; };
    certificates.request(this, receive);
    KIRV_TRY_COMPARE(received, 1);
    certificates.request(this, receive);
    QCOMPARE(received, 2);
    QCOMPARE(reads.load(), 1);
}

void tst_SystemCertificates::whatIsNotFreshIsReadAgain()
{
    permits.release(5);
    KirvSystemCertificates certificates([this] { return read().mid(reads - 1); }, 0);
    QList<int> sizes;
    const auto receive = [&](const QList<QSslCertificate> &list) { sizes << int(list.size()); };
    certificates.request(this, receive);
    KIRV_TRY_COMPARE(sizes, QList<int> { 3 });
    certificates.request(this, receive);
    QCOMPARE(sizes.size(), 1);
    KIRV_TRY_COMPARE(sizes, (QList<int> { 3, 2 })); // one is not trusted any more
}

void tst_SystemCertificates::theSameCertificatesAreKept()
{
    permits.release(5);
    const auto readNewCopies = [this] {
        QList<QSslCertificate> copies;
        for (const QSslCertificate &certificate : read())
            copies << QSslCertificate(certificate.toDer(), QSsl::Der);
        return copies;
    };
    KirvSystemCertificates certificates(readNewCopies, 0);
    QList<Qt::HANDLE> handles;
    const auto receive = [&](const QList<QSslCertificate> &list) { handles << list.first().handle(); };
    certificates.request(this, receive);
    KIRV_TRY_COMPARE(handles.size(), 1);
    certificates.request(this, receive);
    KIRV_TRY_COMPARE(handles.size(), 2);
    QCOMPARE(reads.load(), 2);
    QCOMPARE(handles.at(0), handles.at(1));
}

void tst_SystemCertificates::destroyedContextsReceiveNothing()
{
    KirvSystemCertificates certificates([this] { return read(); });
    auto context = std::make_unique<QObject>();
    int received = 0;
    certificates.request(context.get(), [&](const auto &) { received += 10; });
    certificates.request(this, [&](const auto &) { ++received; });
    context.reset();
    permits.release();
    KIRV_TRY_COMPARE(received, 1);
}

void tst_SystemCertificates::itMayBeDestroyedWhileTheyAreRead()
{
    bool received = false;
    {
        KirvSystemCertificates certificates([this] { return read(); });
        certificates.request(this, [&](const auto &) { received = true; });
        permits.release();
    }
    QCOMPARE(reads.load(), 1);
    QCoreApplication::processEvents();
    QVERIFY(!received);
}

QTEST_GUILESS_MAIN(tst_SystemCertificates)
#include "tst_system_certificates.moc"

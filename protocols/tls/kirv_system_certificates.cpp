// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/tls/kirv_system_certificates.h"

#include <QCoreApplication>
#include <QSslConfiguration>
#include <QThread>
#include <QThreadPool>
#include <utility>

KirvSystemCertificates::KirvSystemCertificates(const Reader &read, int freshFor, QObject *parent)
    : QObject(parent)
    , read(read)
    , freshness(freshFor)
{
}

KirvSystemCertificates::~KirvSystemCertificates()
{
    if (thread)
        thread->wait();
    delete thread;
}

KirvSystemCertificates &KirvSystemCertificates::instance()
{
    static QPointer<KirvSystemCertificates> shared;
    if (!shared) {
        shared = new KirvSystemCertificates(&QSslConfiguration::systemCaCertificates, freshFor,
                                            QCoreApplication::instance());
    }
    return *shared;
}

void KirvSystemCertificates::request(QObject *context, const Receiver &receiver)
{
    if (isFresh()) {
        receiver(certificates);
        return;
    }
    requests.append({ context, receiver });
    startReading();
}

void KirvSystemCertificates::prepareEncryption()
{
    QThreadPool::globalInstance()->start([] { QSslConfiguration::defaultConfiguration(); });
}

void KirvSystemCertificates::startReading()
{
    if (thread)
        return;
    thread = QThread::create([this] { result = read(); });
    connect(thread, &QThread::finished, this, &KirvSystemCertificates::finishReading);
    thread->start();
}

void KirvSystemCertificates::finishReading()
{
    thread->wait();
    delete std::exchange(thread, nullptr);
    // Connections share what they already have: a copy is almost two megabytes.
    const QList<QSslCertificate> latest = std::exchange(result, {});
    if (latest != certificates)
        certificates = latest;
    age.start();
    const QList<Request> answered = std::exchange(requests, {});
    const QList<QSslCertificate> answer = certificates; // a receiver may destroy this object
    for (const Request &request : answered) {
        if (request.context)
            request.receiver(answer);
    }
}

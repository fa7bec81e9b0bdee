// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_system_certificates.h"

#include <QCoreApplication>
#include <QSslConfiguration>
#include <QThread>
#include <QThreadPool>
#include <utility>

KirvXmppSystemCertificates::KirvXmppSystemCertificates(const Reader &read, int freshFor, QObject *parent)
    : QObject(parent)
    , read(read)
    , freshness(freshFor)
{
}

KirvXmppSystemCertificates::~KirvXmppSystemCertificates()
{
    if (thread)
        thread->wait();
    delete thread;
}

KirvXmppSystemCertificates &KirvXmppSystemCertificates::instance()
{
    static QPointer<KirvXmppSystemCertificates> shared;
    if (!shared) {
        shared = new KirvXmppSystemCertificates(&QSslConfiguration::systemCaCertificates, freshFor,
                                                QCoreApplication::instance());
    }
    return *shared;
}

void KirvXmppSystemCertificates::request(QObject *context, const Receiver &receiver)
{
    if (isFresh()) {
        receiver(certificates);
        return;
    }
    requests.append({ context, receiver });
    startReading();
}

void KirvXmppSystemCertificates::prepareEncryption()
{
    QThreadPool::globalInstance()->start([] { QSslConfiguration::defaultConfiguration(); });
}

void KirvXmppSystemCertificates::startReading()
{
    if (thread)
        return;
    thread = QThread::create([this] { result = read(); });
    connect(thread, &QThread::finished, this, &KirvXmppSystemCertificates::finishReading);
    thread->start();
}

void KirvXmppSystemCertificates::finishReading()
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
